<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_GB">
<context>
    <name>AccessPointList</name>
    <message>
        <source>Open</source>
        <translation>Ouvert</translation>
    </message>
    <message>
        <source>Signal %1</source>
        <translation>Signal %1</translation>
    </message>
    <message>
        <source>Access points</source>
        <translation>Points d’accès</translation>
    </message>
    <message>
        <source>Signal</source>
        <translation>Signal</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>Press Scan to look for access points.</source>
        <translation>Appuyez sur «&#xa0;Lancer&#xa0;» pour chercher des points d’accès.</translation>
    </message>
</context>
<context>
    <name>CKeyPad</name>
    <message>
        <source>Shift</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>SHIFT</source>
        <translation>MAJ</translation>
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
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>WIFI Scan Start...</source>
        <translation>Démarrage de la recherche Wi-Fi...</translation>
    </message>
    <message>
        <source>WIFI Scan In Progress...</source>
        <translation>Recherche Wi-Fi en cours...</translation>
    </message>
    <message>
        <source>WIFI Scan Failed</source>
        <translation>Échec de la recherche Wi-Fi</translation>
    </message>
    <message>
        <source>WIFI Scan Finished</source>
        <translation>Recherche Wi-Fi terminée</translation>
    </message>
    <message>
        <source>WIFI Scan:</source>
        <translation>Recherche Wi-Fi&#xa0;:</translation>
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
        <translation>Recherche Wi-Fi sans résultat</translation>
    </message>
</context>
<context>
    <name>testset::DeviceFolder</name>
    <message>
        <source>the scan tool %1 cannot be started</source>
        <translation>l&apos;outil de recherche %1 ne peut pas être lancé</translation>
    </message>
    <message>
        <source>the scan&apos;s output %1 cannot be written: %2</source>
        <translation>impossible d&apos;écrire le résultat de la recherche dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the disk of %1 is full</source>
        <translation>le disque de %1 est plein</translation>
    </message>
    <message>
        <source>the scan tool wrote no output</source>
        <translation>l’outil de recherche n’a écrit aucune sortie</translation>
    </message>
    <message>
        <source>the scan tool ended without a closing line</source>
        <translation>l’outil de recherche s’est terminé sans ligne de fin</translation>
    </message>
</context>
<context>
    <name>testset::HomeScreen</name>
    <message>
        <source>No Wi-Fi adapter: choose a stored scan.</source>
        <translation>Pas d’adaptateur Wi-Fi&#xa0;: choisissez un enregistrement.</translation>
    </message>
    <message>
        <source>access points on 2.4 GHz: %1, on 5 GHz: %2</source>
        <translation>points d’accès à 2,4 GHz&#xa0;: %1, à 5 GHz&#xa0;: %2</translation>
    </message>
    <message>
        <source>a scan that fails</source>
        <translation>une recherche qui échoue</translation>
    </message>
    <message>
        <source>Choose a utility.</source>
        <translation>Choisissez un outil de mesure.</translation>
    </message>
    <message>
        <source>Open: press to go on</source>
        <translation>Ouvert&#xa0;: appuyez pour continuer</translation>
    </message>
    <message>
        <source>Wi-Fi Analyser</source>
        <translation>Analyseur Wi-Fi</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>Rapports&#xa0;: %1</translation>
    </message>
    <message>
        <source>No reports yet</source>
        <translation>Aucun rapport</translation>
    </message>
</context>
<context>
    <name>testset::ReportDocument</name>
    <message>
        <source>The picture %1 cannot be shown.</source>
        <translation>L’image %1 ne peut pas être affichée.</translation>
    </message>
    <message>
        <source>Wi-Fi report %1</source>
        <translation>Rapport Wi-Fi %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
</context>
<context>
    <name>testset::ResultsScreen</name>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>There are no reports yet. F1 in the analyser saves one.</source>
        <translation>Il n’y a pas encore de rapport. F1 dans l’analyseur en enregistre un.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>All reports</source>
        <translation>Tous les rapports</translation>
    </message>
    <message>
        <source>Export as PDF</source>
        <translation>Exporter en PDF</translation>
    </message>
    <message>
        <source>Show folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>%1 is no report of the analyser</source>
        <translation>%1 n’est pas un rapport de l’analyseur</translation>
    </message>
    <message>
        <source>Exported as %1</source>
        <translation>Exporté sous %1</translation>
    </message>
    <message>
        <source>Not exported: %1: %2</source>
        <translation>Non exporté&#xa0;: %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>No file manager opened %1</source>
        <translation>Aucun gestionnaire de fichiers n’a ouvert %1</translation>
    </message>
</context>
<context>
    <name>testset::TestSetWindow</name>
    <message>
        <source>Closing...</source>
        <translation>Fermeture...</translation>
    </message>
    <message>
        <source>Test Set</source>
        <translation>Appareil de mesure</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>Débrancher</translation>
    </message>
    <message>
        <source>Plug in</source>
        <translation>Brancher</translation>
    </message>
    <message>
        <source>Replay: %1</source>
        <translation>Relecture&#xa0;: %1</translation>
    </message>
    <message>
        <source>(unplugged)</source>
        <translation>(débranché)</translation>
    </message>
    <message>
        <source>Scan is not possible: %1</source>
        <translation>Recherche impossible&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not saved: nothing was written in %1</source>
        <translation>Non enregistré&#xa0;: rien n&apos;a été écrit dans %1</translation>
    </message>
    <message>
        <source>Saved %1, but not all of its pictures</source>
        <translation>%1 enregistré, mais sans toutes ses images</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Close and open to scan again</source>
        <translation>Fermez puis rouvrez pour relancer la recherche</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sauver</translation>
    </message>
    <message>
        <source>scanning: %1 s</source>
        <translation>recherche&#xa0;: %1 s</translation>
    </message>
</context>
<context>
    <name>testset::TopBar</name>
    <message>
        <source>Busy</source>
        <translation>Occupé</translation>
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
        <translation>Lancer</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
</context>
<context>
    <name>wifiondivo::CWifiondivo</name>
    <message>
        <source>Scan</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>2.4Graph</source>
        <translation>Spectre 2,4</translation>
    </message>
    <message>
        <source>2.4GraphCH</source>
        <translation>Canaux 2,4</translation>
    </message>
    <message>
        <source>5.0GraphCH</source>
        <translation>Canaux 5,0</translation>
    </message>
    <message>
        <source>5.0Graph</source>
        <translation>Spectre 5,0</translation>
    </message>
    <message>
        <source>AP List</source>
        <translation>Liste des AP</translation>
    </message>
    <message>
        <source>Tips</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>WIFI device can&apos;t be detected!</source>
        <translation>Aucun adaptateur Wi-Fi détecté&#xa0;!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save Test Result</source>
        <translation>Enregistrer le résultat</translation>
    </message>
    <message>
        <source>General Information</source>
        <translation>Informations générales</translation>
    </message>
    <message>
        <source>Date and Time Results Were Saved:</source>
        <translation>Date et heure d&apos;enregistrement des résultats&#xa0;:</translation>
    </message>
    <message>
        <source>Software Version:</source>
        <translation>Version du logiciel&#xa0;:</translation>
    </message>
    <message>
        <source>MAC Address of Test Port:</source>
        <translation>Adresse MAC du port de mesure&#xa0;:</translation>
    </message>
    <message>
        <source>Serial Number of Test Set:</source>
        <translation>Numéro de série de l&apos;appareil&#xa0;:</translation>
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
        <translation>Meilleur signal</translation>
    </message>
    <message>
        <source>Best Signal Bar</source>
        <translation>Barre du meilleur signal</translation>
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
        <translation>Meilleur signal</translation>
    </message>
    <message>
        <source>Best Signal Bar</source>
        <translation>Barre du meilleur signal</translation>
    </message>
</context>
</TS>
