<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en_GB">
<context>
    <name>AccessPointList</name>
    <message>
        <source>Open</source>
        <translation>Abierta</translation>
    </message>
    <message>
        <source>Signal %1</source>
        <translation>Señal %1</translation>
    </message>
    <message>
        <source>Access points</source>
        <translation>Puntos de acceso</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Señal</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>Press Scan to look for access points.</source>
        <translation>Pulse «Buscar» para buscar puntos de acceso.</translation>
    </message>
</context>
<context>
    <name>CKeyPad</name>
    <message>
        <source>Shift</source>
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>SHIFT</source>
        <translation>MAYÚS</translation>
    </message>
    <message>
        <source>abc</source>
        <translation>abc</translation>
    </message>
    <message>
        <source>#+=</source>
        <translation>#+=</translation>
    </message>
</context>
<context>
    <name>CMessageBox</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>CPageTable</name>
    <message>
        <source>Previous</source>
        <translation>Anterior</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>WIFI Scan Start...</source>
        <translation>Iniciando la búsqueda Wi-Fi...</translation>
    </message>
    <message>
        <source>WIFI Scan In Progress...</source>
        <translation>Búsqueda Wi-Fi en curso...</translation>
    </message>
    <message>
        <source>WIFI Scan Failed</source>
        <translation>La búsqueda Wi-Fi ha fallado</translation>
    </message>
    <message>
        <source>WIFI Scan Finished</source>
        <translation>Búsqueda Wi-Fi finalizada</translation>
    </message>
    <message>
        <source>WIFI Scan:</source>
        <translation>Búsqueda Wi-Fi:</translation>
    </message>
    <message>
        <source>ESSID</source>
        <translation>ESSID</translation>
    </message>
    <message>
        <source>BSSID</source>
        <translation>BSSID</translation>
    </message>
    <message>
        <source>WIFI Scan No Results</source>
        <translation>Búsqueda Wi-Fi sin resultados</translation>
    </message>
</context>
<context>
    <name>testset::DeviceFolder</name>
    <message>
        <source>the scan tool %1 cannot be started</source>
        <translation>no se puede iniciar la herramienta de búsqueda %1</translation>
    </message>
    <message>
        <source>the scan&apos;s output %1 cannot be written: %2</source>
        <translation>no se puede escribir la salida de la búsqueda %1: %2</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>el disco de %1 está lleno</translation>
    </message>
    <message>
        <source>the scan tool wrote no output</source>
        <translation>la herramienta de búsqueda no escribió ninguna salida</translation>
    </message>
    <message>
        <source>the scan tool ended without a closing line</source>
        <translation>la herramienta de búsqueda terminó sin línea final</translation>
    </message>
</context>
<context>
    <name>testset::HomeScreen</name>
    <message>
        <source>No Wi-Fi adapter: choose a stored scan.</source>
        <translation>Sin adaptador Wi-Fi: elija una grabación.</translation>
    </message>
    <message>
        <source>access points on 2.4 GHz: %1, on 5 GHz: %2</source>
        <translation>puntos de acceso en 2,4 GHz: %1, en 5 GHz: %2</translation>
    </message>
    <message>
        <source>a scan that fails</source>
        <translation>una búsqueda que falla</translation>
    </message>
    <message>
        <source>Choose a utility.</source>
        <translation>Elija una herramienta de medida.</translation>
    </message>
    <message>
        <source>Open: press to go on</source>
        <translation>Abierto: pulse para continuar</translation>
    </message>
    <message>
        <source>Wi-Fi Analyser</source>
        <translation>Analizador Wi-Fi</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Informes: %1</translation>
    </message>
    <message>
        <source>No reports yet</source>
        <translation>Aún no hay informes</translation>
    </message>
</context>
<context>
    <name>testset::ReportDocument</name>
    <message>
        <source>The picture %1 cannot be shown.</source>
        <translation>No se puede mostrar la imagen %1.</translation>
    </message>
    <message>
        <source>Wi-Fi report %1</source>
        <translation>Informe Wi-Fi %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Página %1 de %2</translation>
    </message>
</context>
<context>
    <name>testset::ResultsScreen</name>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>There are no reports yet. F1 in the analyser saves one.</source>
        <translation>Aún no hay informes. F1 en el analizador guarda uno.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>All reports</source>
        <translation>Todos los informes</translation>
    </message>
    <message>
        <source>Export as PDF</source>
        <translation>Exportar a PDF</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>%1 is no report of the analyser</source>
        <translation>%1 no es un informe del analizador</translation>
    </message>
    <message>
        <source>Exported as %1</source>
        <translation>Exportado como %1</translation>
    </message>
    <message>
        <source>Not exported: %1: %2</source>
        <translation>No exportado: %1: %2</translation>
    </message>
    <message>
        <source>No file manager opened %1</source>
        <translation>Ningún gestor de archivos abrió %1</translation>
    </message>
</context>
<context>
    <name>testset::TestSetWindow</name>
    <message>
        <source>Closing...</source>
        <translation>Cerrando...</translation>
    </message>
    <message>
        <source>Test Set</source>
        <translation>Equipo de medida</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <source>Plug in</source>
        <translation>Conectar</translation>
    </message>
    <message>
        <source>Replay: %1</source>
        <translation>Reproducción: %1</translation>
    </message>
    <message>
        <source>(unplugged)</source>
        <translation>(desconectado)</translation>
    </message>
    <message>
        <source>Scan is not possible: %1</source>
        <translation>No se puede buscar: %1</translation>
    </message>
    <message>
        <source>Not saved: nothing was written in %1</source>
        <translation>No guardado: no se ha escrito nada en %1</translation>
    </message>
    <message>
        <source>Saved %1, but not all of its pictures</source>
        <translation>%1 guardado, pero no todas sus imágenes</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 guardado</translation>
    </message>
    <message>
        <source>Close and open to scan again</source>
        <translation>Cierre y vuelva a abrir para buscar de nuevo</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>scanning: %1 s</source>
        <translation>buscando: %1 s</translation>
    </message>
</context>
<context>
    <name>testset::TopBar</name>
    <message>
        <source>Busy</source>
        <translation>Ocupado</translation>
    </message>
</context>
<context>
    <name>wifiondivo::CScanResult</name>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
</context>
<context>
    <name>wifiondivo::CToolbox</name>
    <message>
        <source>Scan</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Der.</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izq.</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abajo</translation>
    </message>
</context>
<context>
    <name>wifiondivo::CWifiondivo</name>
    <message>
        <source>Scan</source>
        <translation>Búsqueda</translation>
    </message>
    <message>
        <source>2.4Graph</source>
        <translation>Espectro 2,4</translation>
    </message>
    <message>
        <source>2.4GraphCH</source>
        <translation>Canales 2,4</translation>
    </message>
    <message>
        <source>5.0GraphCH</source>
        <translation>Canales 5,0</translation>
    </message>
    <message>
        <source>5.0Graph</source>
        <translation>Espectro 5,0</translation>
    </message>
    <message>
        <source>AP List</source>
        <translation>Lista de AP</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>WIFI device can&apos;t be detected!</source>
        <translation>¡No se detecta ningún adaptador Wi-Fi!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Save Test Result</source>
        <translation>Guardar el resultado</translation>
    </message>
    <message>
        <source>General Information</source>
        <translation>Información general</translation>
    </message>
    <message>
        <source>Date and Time Results Were Saved:</source>
        <translation>Fecha y hora en que se guardaron los resultados:</translation>
    </message>
    <message>
        <source>Software Version:</source>
        <translation>Versión del software:</translation>
    </message>
    <message>
        <source>MAC Address of Test Port:</source>
        <translation>Dirección MAC del puerto de medida:</translation>
    </message>
    <message>
        <source>Serial Number of Test Set:</source>
        <translation>Número de serie del equipo:</translation>
    </message>
</context>
<context>
    <name>wifiondivo::Wifiondivo_2_4GraphCH</name>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>AP</source>
        <translation>AP</translation>
    </message>
    <message>
        <source>Best Signal</source>
        <translation>Mejor señal</translation>
    </message>
    <message>
        <source>Best Signal Bar</source>
        <translation>Barra de la mejor señal</translation>
    </message>
</context>
<context>
    <name>wifiondivo::Wifiondivo_5GraphCH</name>
    <message>
        <source>Channel</source>
        <translation>Canal</translation>
    </message>
    <message>
        <source>AP</source>
        <translation>AP</translation>
    </message>
    <message>
        <source>Best Signal</source>
        <translation>Mejor señal</translation>
    </message>
    <message>
        <source>Best Signal Bar</source>
        <translation>Barra de la mejor señal</translation>
    </message>
</context>
</TS>
