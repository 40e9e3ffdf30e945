<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_GB">
<context>
    <name>AccessPointList</name>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Signal %1</source>
        <translation>Signal %1</translation>
    </message>
    <message>
        <source>Access points</source>
        <translation>Access Points</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Press Scan to look for access points.</source>
        <translation>Mit „Suchen“ nach Access Points suchen.</translation>
    </message>
</context>
<context>
    <name>CKeyPad</name>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>SHIFT</source>
        <translation>UMSCHALT</translation>
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
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>CPageTable</name>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>WIFI Scan Start...</source>
        <translation>WLAN-Suche startet ...</translation>
    </message>
    <message>
        <source>WIFI Scan In Progress...</source>
        <translation>WLAN-Suche läuft ...</translation>
    </message>
    <message>
        <source>WIFI Scan Failed</source>
        <translation>WLAN-Suche fehlgeschlagen</translation>
    </message>
    <message>
        <source>WIFI Scan Finished</source>
        <translation>WLAN-Suche beendet</translation>
    </message>
    <message>
        <source>WIFI Scan:</source>
        <translation>WLAN-Suche:</translation>
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
        <translation>WLAN-Suche ohne Ergebnis</translation>
    </message>
</context>
<context>
    <name>testset::DeviceFolder</name>
    <message>
        <source>the scan tool %1 cannot be started</source>
        <translation>das Scan-Programm %1 kann nicht gestartet werden</translation>
    </message>
    <message>
        <source>the scan&apos;s output %1 cannot be written: %2</source>
        <translation>die Scan-Ausgabe %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>der Datenträger von %1 ist voll</translation>
    </message>
    <message>
        <source>the scan tool wrote no output</source>
        <translation>das Scan-Programm hat keine Ausgabe geschrieben</translation>
    </message>
    <message>
        <source>the scan tool ended without a closing line</source>
        <translation>das Scan-Programm endete ohne Schlusszeile</translation>
    </message>
</context>
<context>
    <name>testset::HomeScreen</name>
    <message>
        <source>No Wi-Fi adapter: choose a stored scan.</source>
        <translation>Kein WLAN-Adapter: wählen Sie eine Aufnahme.</translation>
    </message>
    <message>
        <source>access points on 2.4 GHz: %1, on 5 GHz: %2</source>
        <translation>Access Points auf 2,4 GHz: %1, auf 5 GHz: %2</translation>
    </message>
    <message>
        <source>a scan that fails</source>
        <translation>eine Suche, die fehlschlägt</translation>
    </message>
    <message>
        <source>Choose a utility.</source>
        <translation>Wählen Sie ein Messprogramm.</translation>
    </message>
    <message>
        <source>Open: press to go on</source>
        <translation>Geöffnet: hier geht es weiter</translation>
    </message>
    <message>
        <source>Wi-Fi Analyser</source>
        <translation>WLAN-Analyse</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Berichte: %1</translation>
    </message>
    <message>
        <source>No reports yet</source>
        <translation>Noch keine Berichte</translation>
    </message>
</context>
<context>
    <name>testset::ReportDocument</name>
    <message>
        <source>The picture %1 cannot be shown.</source>
        <translation>Das Bild %1 kann nicht gezeigt werden.</translation>
    </message>
    <message>
        <source>Wi-Fi report %1</source>
        <translation>WLAN-Bericht %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
</context>
<context>
    <name>testset::ResultsScreen</name>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>There are no reports yet. F1 in the analyser saves one.</source>
        <translation>Es gibt noch keine Berichte. F1 speichert im Analysator einen.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>All reports</source>
        <translation>Alle Berichte</translation>
    </message>
    <message>
        <source>Export as PDF</source>
        <translation>Als PDF exportieren</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Ordner zeigen</translation>
    </message>
    <message>
        <source>%1 is no report of the analyser</source>
        <translation>%1 ist kein Bericht des Analysators</translation>
    </message>
    <message>
        <source>Exported as %1</source>
        <translation>Exportiert als %1</translation>
    </message>
    <message>
        <source>Not exported: %1: %2</source>
        <translation>Nicht exportiert: %1: %2</translation>
    </message>
    <message>
        <source>No file manager opened %1</source>
        <translation>Kein Dateimanager hat %1 geöffnet</translation>
    </message>
</context>
<context>
    <name>testset::TestSetWindow</name>
    <message>
        <source>Closing...</source>
        <translation>Wird geschlossen ...</translation>
    </message>
    <message>
        <source>Test Set</source>
        <translation>Messgerät</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>Abziehen</translation>
    </message>
    <message>
        <source>Plug in</source>
        <translation>Einstecken</translation>
    </message>
    <message>
        <source>Replay: %1</source>
        <translation>Aufnahme: %1</translation>
    </message>
    <message>
        <source>(unplugged)</source>
        <translation>(abgezogen)</translation>
    </message>
    <message>
        <source>Scan is not possible: %1</source>
        <translation>Scannen ist nicht möglich: %1</translation>
    </message>
    <message>
        <source>Not saved: nothing was written in %1</source>
        <translation>Nicht gespeichert: in %1 wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>Saved %1, but not all of its pictures</source>
        <translation>%1 gespeichert, aber nicht alle Bilder</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Close and open to scan again</source>
        <translation>Zum erneuten Scannen schließen und öffnen</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>scanning: %1 s</source>
        <translation>Suche läuft: %1 s</translation>
    </message>
</context>
<context>
    <name>testset::TopBar</name>
    <message>
        <source>Busy</source>
        <translation>Beschäftigt</translation>
    </message>
</context>
<context>
    <name>wifiondivo::CScanResult</name>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
</context>
<context>
    <name>wifiondivo::CToolbox</name>
    <message>
        <source>Scan</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Auf</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ab</translation>
    </message>
</context>
<context>
    <name>wifiondivo::CWifiondivo</name>
    <message>
        <source>Scan</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>2.4Graph</source>
        <translation>2,4-Bild</translation>
    </message>
    <message>
        <source>2.4GraphCH</source>
        <translation>2,4-Kanäle</translation>
    </message>
    <message>
        <source>5.0GraphCH</source>
        <translation>5,0-Kanäle</translation>
    </message>
    <message>
        <source>5.0Graph</source>
        <translation>5,0-Bild</translation>
    </message>
    <message>
        <source>AP List</source>
        <translation>AP-Liste</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>WIFI device can&apos;t be detected!</source>
        <translation>Kein WLAN-Adapter gefunden!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save Test Result</source>
        <translation>Messergebnis speichern</translation>
    </message>
    <message>
        <source>General Information</source>
        <translation>Allgemeine Angaben</translation>
    </message>
    <message>
        <source>Date and Time Results Were Saved:</source>
        <translation>Datum und Uhrzeit der Speicherung:</translation>
    </message>
    <message>
        <source>Software Version:</source>
        <translation>Software-Version:</translation>
    </message>
    <message>
        <source>MAC Address of Test Port:</source>
        <translation>MAC-Adresse des Messanschlusses:</translation>
    </message>
    <message>
        <source>Serial Number of Test Set:</source>
        <translation>Seriennummer des Messgeräts:</translation>
    </message>
</context>
<context>
    <name>wifiondivo::Wifiondivo_2_4GraphCH</name>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>AP</source>
        <translation>AP</translation>
    </message>
    <message>
        <source>Best Signal</source>
        <translation>Bestes Signal</translation>
    </message>
    <message>
        <source>Best Signal Bar</source>
        <translation>Balken des besten Signals</translation>
    </message>
</context>
<context>
    <name>wifiondivo::Wifiondivo_5GraphCH</name>
    <message>
        <source>Channel</source>
        <translation>Kanal</translation>
    </message>
    <message>
        <source>AP</source>
        <translation>AP</translation>
    </message>
    <message>
        <source>Best Signal</source>
        <translation>Bestes Signal</translation>
    </message>
    <message>
        <source>Best Signal Bar</source>
        <translation>Balken des besten Signals</translation>
    </message>
</context>
</TS>
