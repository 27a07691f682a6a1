<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutWindow</name>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Revision %1</source>
        <translation>Revision %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
    <message>
        <source>Air traffic surveillance display</source>
        <translation>Anzeige zur Luftverkehrsüberwachung</translation>
    </message>
    <message>
        <source>Copyright © Korvane. All rights reserved.</source>
        <translation>Copyright © Korvane. Alle Rechte vorbehalten.</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the versions, for a fault report</source>
        <translation>Die Versionen für eine Fehlermeldung kopieren</translation>
    </message>
    <message>
        <source>&amp;Third-Party Notices</source>
        <translation>&amp;Hinweise zu Drittkomponenten</translation>
    </message>
    <message>
        <source>Third-Party Notices</source>
        <translation>Hinweise zu Drittkomponenten</translation>
    </message>
</context>
<context>
    <name>Absence</name>
    <message>
        <source>sensor&apos;s number %1</source>
        <translation>Sensornummer %1</translation>
    </message>
    <message>
        <source>Its reports</source>
        <translation>Seine Meldungen</translation>
    </message>
    <message>
        <source>Its reports (CAT%1)</source>
        <translation>Seine Meldungen (CAT%1)</translation>
    </message>
    <message>
        <source>It has the track %1, but none of its reports says where it is.</source>
        <translation>Es hat den Track %1, aber keine seiner Meldungen sagt, wo es ist.</translation>
    </message>
    <message>
        <source>It is outside the view, %1 NM from its centre in direction %2°.</source>
        <translation>Es liegt außerhalb des Ausschnitts, %1 NM von dessen Mitte in Richtung %2°.</translation>
    </message>
    <message>
        <source>Its symbol is under the label of %1.</source>
        <translation>Sein Symbol liegt unter dem Label von %1.</translation>
    </message>
    <message>
        <source>It is in view; the view is too wide for labels, so that only its symbol is shown.</source>
        <translation>Es ist im Ausschnitt; dieser ist zu weit für Labels, sodass nur das Symbol gezeigt wird.</translation>
    </message>
    <message>
        <source>It is in view; labels are switched off, so that only its symbol is shown.</source>
        <translation>Es ist im Ausschnitt; Labels sind ausgeschaltet, sodass nur das Symbol gezeigt wird.</translation>
    </message>
    <message>
        <source>It is in view; its label is under others, so that only its symbol is shown.</source>
        <translation>Es ist im Ausschnitt; sein Label liegt unter anderen, sodass nur das Symbol gezeigt wird.</translation>
    </message>
    <message>
        <source>It is shown.</source>
        <translation>Es wird gezeigt.</translation>
    </message>
    <message>
        <source>It coasts: no report has told its position for %1 s.</source>
        <translation>Es wird extrapoliert: seit %1 s hat keine Meldung seine Position genannt.</translation>
    </message>
    <message>
        <source>Its track %1 ended at %2: its source ended it.</source>
        <translation>Sein Track %1 endete um %2: die Quelle hat ihn beendet.</translation>
    </message>
    <message>
        <source>Its track %1 ended at %2: no report had told its position since %3.</source>
        <translation>Sein Track %1 endete um %2: seit %3 hatte keine Meldung seine Position genannt.</translation>
    </message>
    <message>
        <source>%1 carry neither track number nor address, so they are plots and no track.</source>
        <translation>%1 tragen weder Tracknummer noch Adresse, sie sind also Plots und kein Track.</translation>
    </message>
    <message>
        <source>The plot layer shows them.</source>
        <translation>Die Plot-Ebene zeigt sie.</translation>
    </message>
    <message>
        <source>The plot layer is switched off.</source>
        <translation>Die Plot-Ebene ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>%1 are dropped: they are of another source than the sensor&apos;s.</source>
        <translation>%1 werden verworfen: sie stammen von einer anderen Quelle als der des Sensors.</translation>
    </message>
    <message>
        <source>%1 are dropped: they are of SAC/SIC %2/%3, the sensor is set to %4/%5.</source>
        <translation>%1 werden verworfen: sie tragen SAC/SIC %2/%3, der Sensor ist auf %4/%5 eingestellt.</translation>
    </message>
    <message>
        <source>%1 are dropped: sensors of the configured kind do not send them.</source>
        <translation>%1 werden verworfen: Sensoren der eingestellten Art senden sie nicht.</translation>
    </message>
    <message>
        <source>%1 are dropped: this program shows nothing of their category.</source>
        <translation>%1 werden verworfen: dieses Programm zeigt nichts aus ihrer Kategorie.</translation>
    </message>
    <message>
        <source>%1 are dropped: they carry neither track number nor address nor a position.</source>
        <translation>%1 werden verworfen: sie tragen weder Tracknummer noch Adresse noch Position.</translation>
    </message>
    <message>
        <source>%1 are dropped: the source marks it as a test target.</source>
        <translation>%1 werden verworfen: die Quelle kennzeichnet es als Testziel.</translation>
    </message>
    <message>
        <source>%1 have told no position yet.</source>
        <translation>%1 haben noch keine Position genannt.</translation>
    </message>
    <message>
        <source>%1 are dropped: their position is out of range. Is the sensor&apos;s location right?</source>
        <translation>%1 werden verworfen: ihre Position liegt außerhalb des Bereichs. Stimmt der Standort des Sensors?</translation>
    </message>
    <message>
        <source>%1 make no track: all system track numbers are in use.</source>
        <translation>%1 ergeben keinen Track: alle System-Tracknummern sind vergeben.</translation>
    </message>
    <message>
        <source>%1 are dropped: %2.</source>
        <translation>%1 werden verworfen: %2.</translation>
    </message>
    <message>
        <source>It has not been received, and no input is open now.</source>
        <translation>Es ist nicht empfangen worden, und zurzeit ist kein Eingang geöffnet.</translation>
    </message>
    <message>
        <source>It has not been received, and the input is paused.</source>
        <translation>Es ist nicht empfangen worden, und der Eingang ist angehalten.</translation>
    </message>
    <message>
        <source>It has not been received: no report has named it.</source>
        <translation>Es ist nicht empfangen worden: keine Meldung hat es genannt.</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Show the Place</source>
        <translation>Ort zeigen</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Show Labels</source>
        <translation>Labels zeigen</translation>
    </message>
    <message>
        <source>Show Plots</source>
        <translation>Plots zeigen</translation>
    </message>
    <message>
        <source>Start Input</source>
        <translation>Eingang starten</translation>
    </message>
    <message>
        <source>Resume Input</source>
        <translation>Eingang fortsetzen</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen...</translation>
    </message>
</context>
<context>
    <name>AbsenceWindow</name>
    <message>
        <source>Why Is It Not Shown?</source>
        <translation>Warum wird es nicht gezeigt?</translation>
    </message>
    <message>
        <source>Callsign, squawk, address or track number</source>
        <translation>Rufzeichen, Transpondercode, Adresse oder Tracknummer</translation>
    </message>
    <message>
        <source>Type whom you miss, such as VYX123, 7000, 4B1A2C or #42.</source>
        <translation>Geben Sie ein, was Sie vermissen, etwa VYX123, 7000, 4B1A2C oder #42.</translation>
    </message>
    <message>
        <source>   last received %1 UTC, %2 s ago</source>
        <translation>   zuletzt empfangen %1 UTC, vor %2 s</translation>
    </message>
</context>
<context>
    <name>Actions</name>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Start Input</source>
        <translation>Eingang starten</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Stop Input</source>
        <translation>Eingang stoppen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Replay Recording File  ...</source>
        <translation>Aufzeichnung wiedergeben  ...</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Replay from recording file.</source>
        <translation>Eine Aufzeichnung wiedergeben.</translation>
    </message>
    <message>
        <source>Playback Window</source>
        <translation>Wiedergabefenster</translation>
    </message>
    <message>
        <source>Show the playback control window</source>
        <translation>Das Fenster zur Steuerung der Wiedergabe zeigen</translation>
    </message>
    <message>
        <source>Replay Speed</source>
        <translation>Wiedergabetempo</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Record...</source>
        <translation>Aufzeichnen...</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Aufzeichnen</translation>
    </message>
    <message>
        <source>Record what the input receives to a file</source>
        <translation>Was der Eingang empfängt, in eine Datei aufzeichnen</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>ZoomOut</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Rotate Right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>CW</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Rotate Left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>CCW</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Rotate North Up</source>
        <translation>Nach Norden ausrichten</translation>
    </message>
    <message>
        <source>North Up</source>
        <translation>Norden oben</translation>
    </message>
    <message>
        <source>Rotate...</source>
        <translation>Drehen...</translation>
    </message>
    <message>
        <source>Rotate view</source>
        <translation>Ansicht drehen</translation>
    </message>
    <message>
        <source>Move Left</source>
        <translation>Nach links verschieben</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben verschieben</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten verschieben</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Move Right</source>
        <translation>Nach rechts verschieben</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Go To...</source>
        <translation>Gehe zu...</translation>
    </message>
    <message>
        <source>Go To</source>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>Go to specified location...</source>
        <translation>Zu einem bestimmten Ort gehen...</translation>
    </message>
    <message>
        <source>Save Layout...</source>
        <translation>Layout speichern...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save current map layout.</source>
        <translation>Das Kartenlayout speichern.</translation>
    </message>
    <message>
        <source>Load Layout</source>
        <translation>Layout laden</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Colours, fonts and map style of scope and windows</source>
        <translation>Farben, Schriften und Kartenstil von Anzeige und Fenstern</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Resize Main Window</source>
        <translation>Hauptfenster anpassen</translation>
    </message>
    <message>
        <source>Statistics...</source>
        <translation>Statistik...</translation>
    </message>
    <message>
        <source>Show Statistics</source>
        <translation>Statistik zeigen</translation>
    </message>
    <message>
        <source>Raw View...</source>
        <translation>Rohdaten...</translation>
    </message>
    <message>
        <source>Show the records as they come, with their octets</source>
        <translation>Die Datensätze zeigen, wie sie ankommen, mit ihren Oktetten</translation>
    </message>
    <message>
        <source>Diagnose Input...</source>
        <translation>Eingang diagnostizieren...</translation>
    </message>
    <message>
        <source>Say in words what arrives and what is wrong with it</source>
        <translation>In Worten sagen, was ankommt und was daran falsch ist</translation>
    </message>
    <message>
        <source>Sensor Manager...</source>
        <translation>Sensorverwaltung...</translation>
    </message>
    <message>
        <source>Sensor Check...</source>
        <translation>Sensorprüfung...</translation>
    </message>
    <message>
        <source>Detection, rotation and errors of radars, measured</source>
        <translation>Erfassung, Umlauf und Fehler von Radaren, gemessen</translation>
    </message>
    <message>
        <source>Toggle Track Label</source>
        <translation>Track-Labels ein/aus</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Track Label Format...</source>
        <translation>Format der Track-Labels...</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Arrange Labels Automatically</source>
        <translation>Labels automatisch anordnen</translation>
    </message>
    <message>
        <source>Labels keep out of each other&apos;s way</source>
        <translation>Labels weichen einander aus</translation>
    </message>
    <message>
        <source>Reset Label</source>
        <translation>Label zurücksetzen</translation>
    </message>
    <message>
        <source>Give up the place to which the selected track&apos;s label was dragged</source>
        <translation>Den Platz aufgeben, an den das Label des gewählten Tracks gezogen wurde</translation>
    </message>
    <message>
        <source>Reset All Labels</source>
        <translation>Alle Labels zurücksetzen</translation>
    </message>
    <message>
        <source>Give up the places to which labels were dragged</source>
        <translation>Die Plätze aufgeben, an die Labels gezogen wurden</translation>
    </message>
    <message>
        <source>Follow Selected Track</source>
        <translation>Gewähltem Track folgen</translation>
    </message>
    <message>
        <source>Selected track will always be put at the center of map</source>
        <translation>Der gewählte Track bleibt in der Mitte der Karte</translation>
    </message>
    <message>
        <source>Acknowledge Alert</source>
        <translation>Alarm quittieren</translation>
    </message>
    <message>
        <source>Alerts and emergencies of the selected track blink no longer</source>
        <translation>Alarme und Notfälle des gewählten Tracks blinken nicht mehr</translation>
    </message>
    <message>
        <source>Acknowledge All Alerts</source>
        <translation>Alle Alarme quittieren</translation>
    </message>
    <message>
        <source>No alert and no emergency blinks any longer</source>
        <translation>Kein Alarm und kein Notfall blinkt mehr</translation>
    </message>
    <message>
        <source>Toggle Track List</source>
        <translation>Trackliste ein/aus</translation>
    </message>
    <message>
        <source>Toggle Alert List</source>
        <translation>Alarmliste ein/aus</translation>
    </message>
    <message>
        <source>Explain Track</source>
        <translation>Track erklären</translation>
    </message>
    <message>
        <source>Why Is It Not Shown?...</source>
        <translation>Warum wird es nicht gezeigt?...</translation>
    </message>
    <message>
        <source>Where a target is that cannot be seen</source>
        <translation>Wo ein Ziel ist, das nicht zu sehen ist</translation>
    </message>
    <message>
        <source>Static Maps...</source>
        <translation>Statische Karten...</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Manage static maps</source>
        <translation>Statische Karten verwalten</translation>
    </message>
    <message>
        <source>Toggle Static Maps</source>
        <translation>Statische Karten ein/aus</translation>
    </message>
    <message>
        <source>Toggle all static map layers</source>
        <translation>Alle Ebenen statischer Karten ein/aus</translation>
    </message>
    <message>
        <source>Static Map Editor...</source>
        <translation>Karteneditor...</translation>
    </message>
    <message>
        <source>Open Static Map Editor</source>
        <translation>Den Karteneditor öffnen</translation>
    </message>
    <message>
        <source>Toggle Tile Map</source>
        <translation>Kachelkarte ein/aus</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Map tiles of an online service or a file, see Settings</source>
        <translation>Kartenkacheln eines Online-Dienstes oder einer Datei, siehe Einstellungen</translation>
    </message>
    <message>
        <source>Bing Maps Downloader...</source>
        <translation>Kachel-Download (Bing Maps)...</translation>
    </message>
    <message>
        <source>Download map tiles of any service ahead of need</source>
        <translation>Kartenkacheln eines Dienstes im Voraus herunterladen</translation>
    </message>
    <message>
        <source>Toggle Sensor Map</source>
        <translation>Sensorkarte ein/aus</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
    <message>
        <source>Toggle Weather Map</source>
        <translation>Wetterkarte ein/aus</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>Toggle Video Map</source>
        <translation>Videokarte ein/aus</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Toggle Plots</source>
        <translation>Plots ein/aus</translation>
    </message>
    <message>
        <source>Plots</source>
        <translation>Plots</translation>
    </message>
    <message>
        <source>Toggle plots: every target report, also those without a track</source>
        <translation>Plots ein/aus: jede Zielmeldung, auch solche ohne Track</translation>
    </message>
    <message>
        <source>Weather Intensity</source>
        <translation>Wetterintensität</translation>
    </message>
    <message>
        <source>Toggle Range Rings</source>
        <translation>Entfernungsringe ein/aus</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>Ringe</translation>
    </message>
    <message>
        <source>Rang Rings ...</source>
        <translation>Entfernungsringe ...</translation>
    </message>
    <message>
        <source>Set Range Rings Center</source>
        <translation>Mitte der Ringe setzen</translation>
    </message>
    <message>
        <source>Toggle Ring Distances</source>
        <translation>Ringentfernungen ein/aus</translation>
    </message>
    <message>
        <source>Show the distance of each range ring</source>
        <translation>Die Entfernung jedes Rings zeigen</translation>
    </message>
    <message>
        <source>Toggle Compass Rose</source>
        <translation>Kompassrose ein/aus</translation>
    </message>
    <message>
        <source>Show true bearings from the centre of the range rings</source>
        <translation>Rechtweisende Richtungen von der Mitte der Ringe aus zeigen</translation>
    </message>
    <message>
        <source>Toggle Scale Bar</source>
        <translation>Maßstabsleiste ein/aus</translation>
    </message>
    <message>
        <source>Toggle Key</source>
        <translation>Legende ein/aus</translation>
    </message>
    <message>
        <source>Show what symbols and weather colours mean</source>
        <translation>Zeigen, was Symbole und Wetterfarben bedeuten</translation>
    </message>
    <message>
        <source>Cheat Sheet...</source>
        <translation>Kurzübersicht...</translation>
    </message>
    <message>
        <source>Show Cheat Sheet</source>
        <translation>Die Kurzübersicht zeigen</translation>
    </message>
    <message>
        <source>What&apos;s New?...</source>
        <translation>Was ist neu?...</translation>
    </message>
    <message>
        <source>About...</source>
        <translation>Über...</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Track</source>
        <translation>&amp;Track</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Karte</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Track</translation>
    </message>
    <message>
        <source>New Window With Profile...</source>
        <translation>Neues Fenster mit Profil...</translation>
    </message>
    <message>
        <source>Start the program once more, with settings of its own</source>
        <translation>Das Programm noch einmal starten, mit eigenen Einstellungen</translation>
    </message>
    <message>
        <source>Lock Settings...</source>
        <translation>Einstellungen sperren...</translation>
    </message>
    <message>
        <source>Who does not have the password changes no settings</source>
        <translation>Wer das Passwort nicht hat, ändert keine Einstellungen</translation>
    </message>
    <message>
        <source>Show Bars and Panes</source>
        <translation>Leisten und Bereiche zeigen</translation>
    </message>
    <message>
        <source>In full screen: all bars and panes over the scope, and away again</source>
        <translation>Im Vollbild: alle Leisten und Bereiche über der Anzeige, und wieder weg</translation>
    </message>
    <message>
        <source>New Plan View</source>
        <translation>Neue Lagedarstellung</translation>
    </message>
    <message>
        <source>The same picture in a window of its own, with its own centre, scale and layers</source>
        <translation>Dasselbe Bild in einem eigenen Fenster, mit eigener Mitte, eigenem Maßstab und eigenen Ebenen</translation>
    </message>
    <message>
        <source>Getting Started...</source>
        <translation>Erste Schritte...</translation>
    </message>
    <message>
        <source>To a picture step by step: demonstration, recording or live input</source>
        <translation>Schritt für Schritt zum Bild: Vorführung, Aufzeichnung oder Live-Eingang</translation>
    </message>
    <message>
        <source>Contents...</source>
        <translation>Inhalt...</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Where the values of the selected track, or what the pointer is on, come from</source>
        <translation>Woher die Werte des gewählten Tracks oder dessen stammen, worauf der Zeiger steht</translation>
    </message>
</context>
<context>
    <name>AdsbTracker</name>
    <message>
        <source>ADS-B Tracker: %1 positions more than 1,000 km from the sensor were not taken, is its location right?</source>
        <translation>ADS-B-Tracker: %1 Positionen mehr als 1.000 km vom Sensor entfernt wurden nicht übernommen, stimmt dessen Standort?</translation>
    </message>
</context>
<context>
    <name>AlertIndicator</name>
    <message numerus="yes">
        <source>%n to acknowledge</source>
        <translation>
            <numerusform>%n zu quittieren</numerusform>
            <numerusform>%n zu quittieren</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>AlertListModel</name>
    <message>
        <source>Initial</source>
        <translation>Beginnend</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Terminated</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>End, no data</source>
        <translation>Ende, keine Daten</translation>
    </message>
    <message>
        <source>Acknowledged</source>
        <translation>Quittiert</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Track</translation>
    </message>
    <message>
        <source>Other Track</source>
        <translation>Anderer Track</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Gebiet</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Begin UTC</source>
        <translation>Beginn UTC</translation>
    </message>
    <message>
        <source>End UTC</source>
        <translation>Ende UTC</translation>
    </message>
    <message>
        <source>Safety-net alert, emergency or special pulse</source>
        <translation>Alarm eines Sicherheitsnetzes, Notfall oder Sonderimpuls</translation>
    </message>
    <message>
        <source>Lasts</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Since its begin, or from there to its end; minutes and seconds</source>
        <translation>Seit dem Beginn, oder von dort bis zum Ende; Minuten und Sekunden</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Flight level of the track</source>
        <translation>Flugfläche des Tracks</translation>
    </message>
    <message>
        <source>Other Level</source>
        <translation>Andere Höhe</translation>
    </message>
    <message>
        <source>Flight level of the other track</source>
        <translation>Flugfläche des anderen Tracks</translation>
    </message>
    <message>
        <source>Sensor No.</source>
        <translation>Sensor-Nr.</translation>
    </message>
    <message>
        <source>The sensor&apos;s own number of the track</source>
        <translation>Die Nummer, die der Sensor selbst dem Track gibt</translation>
    </message>
    <message>
        <source>Other Sensor No.</source>
        <translation>Andere Sensor-Nr.</translation>
    </message>
    <message>
        <source>The sensor&apos;s own number of the other track</source>
        <translation>Die Nummer, die der Sensor selbst dem anderen Track gibt</translation>
    </message>
</context>
<context>
    <name>AlertProcessor</name>
    <message>
        <source>Unsupported CAT004 message type: %1 (%2)</source>
        <translation>Nicht unterstützte CAT004-Meldungsart: %1 (%2)</translation>
    </message>
    <message>
        <source>Unsupported CAT004 status: %1 (%2)</source>
        <translation>Nicht unterstützter CAT004-Status: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>Assessment</name>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>from north markers</source>
        <translation>aus Nordmarken</translation>
    </message>
    <message>
        <source>from sector crossings</source>
        <translation>aus Sektordurchgängen</translation>
    </message>
    <message>
        <source>as the radar says; not measured</source>
        <translation>wie das Radar sagt; nicht gemessen</translation>
    </message>
    <message>
        <source>from reports of the same targets</source>
        <translation>aus Meldungen derselben Ziele</translation>
    </message>
    <message>
        <source>Antenna</source>
        <translation>Antenne</translation>
    </message>
    <message>
        <source>Rotation period</source>
        <translation>Umlaufzeit</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>too few reports</source>
        <translation>zu wenige Meldungen</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>Turns measured</source>
        <translation>Gemessene Umläufe</translation>
    </message>
    <message>
        <source>Jitter</source>
        <translation>Schwankung</translation>
    </message>
    <message>
        <source>one standard deviation</source>
        <translation>eine Standardabweichung</translation>
    </message>
    <message>
        <source>Shortest and longest turn</source>
        <translation>Kürzester und längster Umlauf</translation>
    </message>
    <message>
        <source>%1 s and %2 s</source>
        <translation>%1 s und %2 s</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhr</translation>
    </message>
    <message>
        <source>%1, least %2, 95 % below %3</source>
        <translation>%1, mindestens %2, 95 % unter %3</translation>
    </message>
    <message>
        <source>Delay of service messages</source>
        <translation>Verzögerung der Dienstmeldungen</translation>
    </message>
    <message>
        <source>clock offset and way</source>
        <translation>Uhrabweichung und Weg</translation>
    </message>
    <message>
        <source>Delay of plots</source>
        <translation>Verzögerung der Plots</translation>
    </message>
    <message>
        <source>median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>the data have no times of arrival</source>
        <translation>die Daten haben keine Ankunftszeiten</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>%1 to %2 %, %3 looks</source>
        <translation>%1 bis %2 %, %3 Blicke</translation>
    </message>
    <message>
        <source>Detection</source>
        <translation>Erfassung</translation>
    </message>
    <message>
        <source>Probability of detection</source>
        <translation>Entdeckungswahrscheinlichkeit</translation>
    </message>
    <message>
        <source>too few reports of the same targets</source>
        <translation>zu wenige Meldungen derselben Ziele</translation>
    </message>
    <message>
        <source>Secondary radar</source>
        <translation>Sekundärradar</translation>
    </message>
    <message>
        <source>Primary radar</source>
        <translation>Primärradar</translation>
    </message>
    <message>
        <source>%1, within %2 NM</source>
        <translation>%1, innerhalb von %2 NM</translation>
    </message>
    <message>
        <source>False plots</source>
        <translation>Falsche Plots</translation>
    </message>
    <message>
        <source>%1 a turn</source>
        <translation>%1 je Umlauf</translation>
    </message>
    <message>
        <source>Lone plots</source>
        <translation>Einzelplots</translation>
    </message>
    <message>
        <source>belong to no track</source>
        <translation>gehören zu keinem Track</translation>
    </message>
    <message>
        <source>Second plots</source>
        <translation>Zweitplots</translation>
    </message>
    <message>
        <source>of one target in one turn</source>
        <translation>eines Ziels in einem Umlauf</translation>
    </message>
    <message>
        <source>Compared with %1</source>
        <translation>Verglichen mit %1</translation>
    </message>
    <message>
        <source>, an even sample of %1</source>
        <translation>, eine gleichmäßige Stichprobe von %1</translation>
    </message>
    <message>
        <source>Matched plots</source>
        <translation>Zugeordnete Plots</translation>
    </message>
    <message>
        <source>%1 used, of %2 aircraft%3</source>
        <translation>%1 verwendet, von %2 Luftfahrzeugen%3</translation>
    </message>
    <message>
        <source>too few, or in too few directions</source>
        <translation>zu wenige oder in zu wenigen Richtungen</translation>
    </message>
    <message>
        <source>Range bias</source>
        <translation>Entfernungsablage</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>Range gain</source>
        <translation>Entfernungsmaßstab</translation>
    </message>
    <message>
        <source>m/NM</source>
        <translation>m/NM</translation>
    </message>
    <message>
        <source>Azimuth bias</source>
        <translation>Azimutablage</translation>
    </message>
    <message>
        <source>Time offset</source>
        <translation>Zeitversatz</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>the radar&apos;s stamps are ahead</source>
        <translation>die Zeitstempel des Radars gehen vor</translation>
    </message>
    <message>
        <source>the radar&apos;s stamps are behind</source>
        <translation>die Zeitstempel des Radars gehen nach</translation>
    </message>
    <message>
        <source>Random error of range</source>
        <translation>Zufälliger Entfernungsfehler</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message>
        <source>one standard deviation, the reference&apos;s included</source>
        <translation>eine Standardabweichung, einschließlich der Referenz</translation>
    </message>
    <message>
        <source>Random error of azimuth</source>
        <translation>Zufälliger Azimutfehler</translation>
    </message>
    <message>
        <source>Detection by range</source>
        <translation>Erfassung nach Entfernung</translation>
    </message>
    <message>
        <source>ADS-B (CAT021)</source>
        <translation>ADS-B (CAT021)</translation>
    </message>
    <message>
        <source>system tracks (CAT062)</source>
        <translation>Systemtracks (CAT062)</translation>
    </message>
    <message>
        <source>Range, NM</source>
        <translation>Entfernung, NM</translation>
    </message>
    <message>
        <source>Looks</source>
        <translation>Blicke</translation>
    </message>
    <message>
        <source>Detected</source>
        <translation>Erfasst</translation>
    </message>
    <message>
        <source>Primary</source>
        <translation>Primär</translation>
    </message>
    <message>
        <source>Secondary</source>
        <translation>Sekundär</translation>
    </message>
    <message>
        <source>%1 and more</source>
        <translation>%1 und mehr</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 Datensätze</translation>
    </message>
    <message>
        <source>%1 reports of reference targets</source>
        <translation>%1 Meldungen von Referenzzielen</translation>
    </message>
    <message>
        <source>Rotation: the times between north markers, or crossings of one sector. Jitter is their standard deviation, less what the resolution of the time stamps (1/128 s) alone would give.</source>
        <translation>Umlauf: die Zeiten zwischen Nordmarken oder Durchgängen eines Sektors. Die Schwankung ist ihre Standardabweichung, abzüglich dessen, was allein die Auflösung der Zeitstempel (1/128 s) ergäbe.</translation>
    </message>
    <message>
        <source>Delay: time of arrival less time of day. It holds the way, the radar&apos;s processing and the difference of the two clocks.</source>
        <translation>Verzögerung: Ankunftszeit abzüglich der Tageszeit. Sie enthält den Weg, die Verarbeitung des Radars und den Unterschied der beiden Uhren.</translation>
    </message>
    <message>
        <source>Probability of detection: blips over scans. Of the turns between two detections of a target those count in which it was detected; five turns without end a track. Intervals are Wilson&apos;s, 95 %.</source>
        <translation>Entdeckungswahrscheinlichkeit: Erfassungen je Umlauf. Von den Umläufen zwischen zwei Erfassungen eines Ziels zählen die, in denen es erfasst wurde; fünf Umläufe ohne Erfassung beenden einen Track. Die Intervalle sind die von Wilson, 95 %.</translation>
    </message>
    <message>
        <source>False plots: lone plots, to which no other plot within the neighbouring turns belongs, and second plots of one address in one turn.</source>
        <translation>Falsche Plots: Einzelplots, zu denen in den benachbarten Umläufen kein anderer Plot gehört, und Zweitplots einer Adresse in einem Umlauf.</translation>
    </message>
    <message>
        <source>Bias, gain and time offset: weighted least squares over all matched plots, dr = b + g r - r&apos; t and da = c - a&apos; t, with r and a the slant range and azimuth of the reference on the ellipsoid of WGS-84 at the plot&apos;s time, r&apos; and a&apos; their rates. Outliers are kept out by Huber&apos;s weights and then beyond four deviations; confidence is the sandwich by aircraft. Refraction, some tens of metres at long range and low elevation, is part of the gain. Plots nearer than 5 km or above 30° are left out.</source>
        <translation>Ablage, Maßstab und Zeitversatz: gewichtete kleinste Quadrate über alle zugeordneten Plots, dr = b + g r - r&apos; t und da = c - a&apos; t, mit r und a als Schrägentfernung und Azimut der Referenz auf dem Ellipsoid WGS-84 zur Zeit des Plots, r&apos; und a&apos; als deren Änderungen. Ausreißer werden durch Gewichte nach Huber und dann jenseits von vier Abweichungen ferngehalten; die Konfidenz ist der nach Luftfahrzeugen gruppierte Sandwich-Schätzer. Die Brechung, einige zehn Meter bei großer Entfernung und geringer Elevation, ist Teil des Maßstabs. Plots näher als 5 km oder über 30° bleiben außer Betracht.</translation>
    </message>
    <message>
        <source>Sensor check of %1</source>
        <translation>Sensorprüfung von %1</translation>
    </message>
    <message>
        <source>It holds no reports of radars (CAT001, CAT002, CAT034, CAT048).</source>
        <translation>Sie enthält keine Meldungen von Radaren (CAT001, CAT002, CAT034, CAT048).</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>rings in NM</source>
        <translation>Ringe in NM</translation>
    </message>
    <message>
        <source>Detected, %</source>
        <translation>Erfasst, %</translation>
    </message>
    <message>
        <source>Any</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Azimuth, degrees</source>
        <translation>Azimut, Grad</translation>
    </message>
    <message>
        <source>Measured minus reference, m</source>
        <translation>Messung minus Referenz, m</translation>
    </message>
    <message>
        <source>Measured minus reference, degrees</source>
        <translation>Messung minus Referenz, Grad</translation>
    </message>
    <message>
        <source>Time, s</source>
        <translation>Zeit, s</translation>
    </message>
    <message>
        <source>Turn, s</source>
        <translation>Umlauf, s</translation>
    </message>
    <message>
        <source>Probability of detection by range and azimuth</source>
        <translation>Entdeckungswahrscheinlichkeit nach Entfernung und Azimut</translation>
    </message>
    <message>
        <source>Probability of detection by range</source>
        <translation>Entdeckungswahrscheinlichkeit nach Entfernung</translation>
    </message>
    <message>
        <source>Range errors</source>
        <translation>Entfernungsfehler</translation>
    </message>
    <message>
        <source>Azimuth errors</source>
        <translation>Azimutfehler</translation>
    </message>
    <message>
        <source>Turns of the antenna</source>
        <translation>Umläufe der Antenne</translation>
    </message>
    <message>
        <source>%1: a report is written as .html or .pdf.</source>
        <translation>%1: ein Bericht wird als .html oder .pdf geschrieben.</translation>
    </message>
    <message>
        <source>Methods</source>
        <translation>Verfahren</translation>
    </message>
    <message>
        <source>height not known, taken as 0 m</source>
        <translation>Höhe nicht bekannt, als 0 m angenommen</translation>
    </message>
    <message>
        <source>%1 m high</source>
        <translation>Höhe %1 m</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>measured less reference, 95 % confidence</source>
        <translation>gemessen minus Referenz, Konfidenz 95 %</translation>
    </message>
</context>
<context>
    <name>CaptureReader</name>
    <message>
        <source>This reader reads network captures only.</source>
        <translation>Dieser Leser liest nur Netzwerkmitschnitte.</translation>
    </message>
    <message>
        <source>Link type %1 is not supported.</source>
        <translation>Der Verbindungstyp %1 wird nicht unterstützt.</translation>
    </message>
</context>
<context>
    <name>ChangelogWindow</name>
    <message>
        <source>What&apos;s New?</source>
        <translation>Was ist neu?</translation>
    </message>
</context>
<context>
    <name>ChartView</name>
    <message>
        <source>There are no data for this yet.</source>
        <translation>Dafür gibt es noch keine Daten.</translation>
    </message>
</context>
<context>
    <name>CheatSheet</name>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
    <message>
        <source>Menu %1</source>
        <translation>Menü %1</translation>
    </message>
    <message>
        <source>Mouse on the plan view</source>
        <translation>Maus in der Lagedarstellung</translation>
    </message>
    <message>
        <source>Keys on the plan view</source>
        <translation>Tasten in der Lagedarstellung</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listen</translation>
    </message>
    <message>
        <source>Double-click</source>
        <translation>Doppelklick</translation>
    </message>
    <message>
        <source>Bring the track into view</source>
        <translation>Den Track in den Ausschnitt bringen</translation>
    </message>
    <message>
        <source>Enter or space on a track</source>
        <translation>Eingabe oder Leertaste auf einem Track</translation>
    </message>
    <message>
        <source>Enter or space on an alert</source>
        <translation>Eingabe oder Leertaste auf einem Alarm</translation>
    </message>
    <message>
        <source>Acknowledge the alert</source>
        <translation>Den Alarm quittieren</translation>
    </message>
    <message>
        <source>Right click</source>
        <translation>Rechtsklick</translation>
    </message>
    <message>
        <source>What can be done with the track</source>
        <translation>Was mit dem Track getan werden kann</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>In every other window: the page of the manual about it</source>
        <translation>In jedem anderen Fenster: die Seite des Handbuchs dazu</translation>
    </message>
</context>
<context>
    <name>CheatSheetWindow</name>
    <message>
        <source>Cheat Sheet</source>
        <translation>Kurzübersicht</translation>
    </message>
    <message>
        <source>Search all commands, also those without a key</source>
        <translation>Alle Befehle durchsuchen, auch solche ohne Taste</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Keys and mouse gestures</source>
        <translation>Tasten und Mausgesten</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Save as &amp;PDF...</source>
        <translation>Als &amp;PDF speichern...</translation>
    </message>
    <message>
        <source>No command and no gesture has these words.</source>
        <translation>Kein Befehl und keine Geste enthält diese Wörter.</translation>
    </message>
    <message>
        <source>Save Cheat Sheet</source>
        <translation>Kurzübersicht speichern</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>ColumnChoice</name>
    <message>
        <source>Default Columns</source>
        <translation>Vorgegebene Spalten</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>--theme: &apos;%1&apos; is not a theme (%2)</source>
        <translation>--theme: „%1“ ist kein Design (%2)</translation>
    </message>
</context>
<context>
    <name>Config</name>
    <message>
        <source>UDP</source>
        <translation>UDP</translation>
    </message>
    <message>
        <source>Async Serial</source>
        <translation>Serielle Schnittstelle</translation>
    </message>
    <message>
        <source>Recording File</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Unknown Input Method</source>
        <translation>Unbekannter Eingang</translation>
    </message>
    <message>
        <source>ASTERIX Processor</source>
        <translation>ASTERIX-Verarbeitung</translation>
    </message>
    <message>
        <source>1090ES ADS-B Processor</source>
        <translation>1090ES-ADS-B-Verarbeitung</translation>
    </message>
    <message>
        <source>Alenia SIR-M Radar Processor</source>
        <translation>Alenia-SIR-M-Radarverarbeitung</translation>
    </message>
    <message>
        <source>Unknown Processor</source>
        <translation>Unbekannte Verarbeitung</translation>
    </message>
    <message>
        <source>Raw ASTERIX Datablock(s)</source>
        <translation>Rohe ASTERIX-Datenblöcke</translation>
    </message>
    <message>
        <source>HDLC Frame</source>
        <translation>HDLC-Rahmen</translation>
    </message>
    <message>
        <source>ManagAir Message</source>
        <translation>ManagAir-Nachricht</translation>
    </message>
    <message>
        <source>Unknown Format</source>
        <translation>Unbekanntes Format</translation>
    </message>
    <message>
        <source>Raw Radar Data</source>
        <translation>Rohe Radardaten</translation>
    </message>
</context>
<context>
    <name>ConfigDefaults</name>
    <message>
        <source>&amp;Defaults</source>
        <translation>Zur&amp;ücksetzen</translation>
    </message>
    <message>
        <source>Puts back what the program, or the theme chosen, has by itself.</source>
        <translation>Stellt wieder her, was das Programm oder das gewählte Design von sich aus hat.</translation>
    </message>
    <message>
        <source>Default of &quot;%1&quot;</source>
        <translation>Vorgabe von „%1“</translation>
    </message>
    <message>
        <source>Defaults of the Page &quot;%1&quot;</source>
        <translation>Vorgaben der Seite „%1“</translation>
    </message>
</context>
<context>
    <name>ConfigPage</name>
    <message>
        <source>Locked while the input runs. Stop the input to change it.</source>
        <translation>Gesperrt, solange der Eingang läuft. Zum Ändern den Eingang stoppen.</translation>
    </message>
    <message>
        <source>%1
%2 to %3, default %4.</source>
        <translation>%1
%2 bis %3, Vorgabe %4.</translation>
    </message>
    <message>
        <source>Changed. %1</source>
        <translation>Geändert. %1</translation>
    </message>
</context>
<context>
    <name>ConfigSearch</name>
    <message>
        <source>Only what is &amp;not default</source>
        <translation>Nur Abwei&amp;chungen von der Vorgabe</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Search in all settings</source>
        <translation>In allen Einstellungen suchen</translation>
    </message>
    <message>
        <source>Words of names and explanations on all pages; Return goes to the next hit.</source>
        <translation>Wörter aus Namen und Erklärungen aller Seiten; Eingabe geht zum nächsten Treffer.</translation>
    </message>
    <message>
        <source>Shows what has been set in another way than the program or the theme has it.</source>
        <translation>Zeigt, was anders eingestellt ist, als das Programm oder das Design es hat.</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message numerus="yes">
        <source>%n hit(s)</source>
        <translation>
            <numerusform>%n Treffer</numerusform>
            <numerusform>%n Treffer</numerusform>
        </translation>
    </message>
    <message>
        <source>Hit %1 of %2</source>
        <translation>Treffer %1 von %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there with another choice of &quot;%2&quot;.</source>
        <translation>„%1“ gibt es bei einer anderen Wahl von „%2“.</translation>
    </message>
</context>
<context>
    <name>ConfigWindow</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>%1. The settings hold until the program ends.</source>
        <translation>%1. Die Einstellungen gelten bis zum Ende des Programms.</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message numerus="yes">
        <source>%n setting(s) changed</source>
        <translation>
            <numerusform>%n Einstellung geändert</numerusform>
            <numerusform>%n Einstellungen geändert</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, geändert</translation>
    </message>
</context>
<context>
    <name>ConflictLinePainter</name>
    <message>
        <source>%1 NM</source>
        <translation>%1 NM</translation>
    </message>
    <message>
        <source>%1 ft</source>
        <translation>%1 ft</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>ControlClient</name>
    <message>
        <source>Nobody listens on %1.</source>
        <translation>Auf %1 hört niemand.</translation>
    </message>
    <message>
        <source>The terminal on %1 does not answer: %2</source>
        <translation>Das Terminal an %1 antwortet nicht: %2</translation>
    </message>
    <message>
        <source>There is no right to speak to %1: only its owner may.</source>
        <translation>Auf %1 darf nur der Eigentümer zugreifen.</translation>
    </message>
</context>
<context>
    <name>ControlCommands</name>
    <message>
        <source>The request has no &quot;command&quot;: one of %1.</source>
        <translation>Die Anfrage hat kein „command“: eines von %1.</translation>
    </message>
    <message>
        <source>The command %1 takes no &quot;%2&quot;.</source>
        <translation>Der Befehl %1 kennt kein „%2“.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;: %2.</source>
        <translation>Es gibt keinen Befehl „%1“: %2.</translation>
    </message>
    <message>
        <source>&quot;path&quot; has to be the absolute path of a file.</source>
        <translation>„path“ muss der absolute Pfad einer Datei sein.</translation>
    </message>
    <message>
        <source>A request is a JSON object in one line.</source>
        <translation>Eine Anfrage ist ein JSON-Objekt in einer Zeile.</translation>
    </message>
    <message>
        <source>A request is a JSON object in one line: %1 at octet %2.</source>
        <translation>Eine Anfrage ist ein JSON-Objekt in einer Zeile: %1 bei Oktett %2.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has to be a number.</source>
        <translation>„%1“ muss eine Zahl sein.</translation>
    </message>
    <message>
        <source>There is no window.</source>
        <translation>Es gibt kein Fenster.</translation>
    </message>
</context>
<context>
    <name>ControlConnection</name>
    <message>
        <source>A request has at most %1 octets.</source>
        <translation>Eine Anfrage hat höchstens %1 Oktette.</translation>
    </message>
</context>
<context>
    <name>ControlServer</name>
    <message>
        <source>The control socket %1 cannot be made: %2.</source>
        <translation>Der Steuer-Socket %1 kann nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>%1 is there already, and is no control socket.</source>
        <translation>%1 gibt es schon und ist kein Steuer-Socket.</translation>
    </message>
    <message>
        <source>Another program listens on the control socket %1.</source>
        <translation>Am Steuer-Socket %1 hört ein anderes Programm.</translation>
    </message>
    <message>
        <source>The folder of the control socket %1 is not there.</source>
        <translation>Den Ordner des Steuer-Sockets %1 gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>CoordinateEdit</name>
    <message>
        <source>such as %1</source>
        <translation>etwa %1</translation>
    </message>
    <message>
        <source>Latitude and longitude, as %1, %2 or with signs and letters</source>
        <translation>Breite und Länge als %1, %2 oder mit Vorzeichen und Buchstaben</translation>
    </message>
    <message>
        <source>Latitude and longitude: %1, %2 or %3</source>
        <translation>Breite und Länge: %1, %2 oder %3</translation>
    </message>
    <message>
        <source>Latitudes have to be below 90°, longitudes below 180°: such as 395427N1162317E.</source>
        <translation>Breiten müssen unter 90°, Längen unter 180° liegen: etwa 395427N1162317E.</translation>
    </message>
</context>
<context>
    <name>CoordinateText</name>
    <message>
        <source>This could be read in several ways. Write 48.1234, 16.5678 or 48,1234; 16,5678; south and west with either a sign or a letter.</source>
        <translation>Das ließe sich verschieden lesen. Schreiben Sie 48.1234, 16.5678 oder 48,1234; 16,5678; Süd und West mit Vorzeichen oder Buchstaben.</translation>
    </message>
    <message>
        <source>Latitudes end at 90°, longitudes at 180°, minutes and seconds before 60: such as 395427N1162317E.</source>
        <translation>Breiten enden bei 90°, Längen bei 180°, Minuten und Sekunden vor 60: etwa 395427N1162317E.</translation>
    </message>
    <message>
        <source>Write 395427N1162317E, 39°54&apos;27&quot;N 116°23&apos;17&quot;E, N39 54.45 E116 23.28 or 39.9076, 116.3881.</source>
        <translation>Schreiben Sie 395427N1162317E, 39°54&apos;27&quot;N 116°23&apos;17&quot;E, N39 54.45 E116 23.28 oder 39.9076, 116.3881.</translation>
    </message>
</context>
<context>
    <name>DataEngine</name>
    <message>
        <source>Input is working now, stop first!</source>
        <translation>Der Eingang läuft, bitte zuerst stoppen!</translation>
    </message>
    <message>
        <source>The input is not opened: this version has no decoder for &quot;%1&quot;.</source>
        <translation>Der Eingang wird nicht geöffnet: diese Version hat keinen Decoder für „%1“.</translation>
    </message>
    <message>
        <source>There is no tracker for sensors of the type %1, its reports are not shown.</source>
        <translation>Für Sensoren der Art %1 gibt es keinen Tracker, ihre Meldungen werden nicht gezeigt.</translation>
    </message>
    <message>
        <source>There is no live input to record.</source>
        <translation>Es gibt keinen Live-Eingang zum Aufzeichnen.</translation>
    </message>
    <message>
        <source>Recording input to %1</source>
        <translation>Der Eingang wird in %1 aufgezeichnet</translation>
    </message>
    <message>
        <source>Recording %1 finished, %2 messages.</source>
        <translation>Aufzeichnung %1 beendet, %2 Nachrichten.</translation>
    </message>
    <message>
        <source>Recording %1 stopped after %2 messages: %3</source>
        <translation>Aufzeichnung %1 nach %2 Nachrichten abgebrochen: %3</translation>
    </message>
</context>
<context>
    <name>DemoRun</name>
    <message>
        <source>The demonstration cannot be shown: %1</source>
        <translation>Die Vorführung kann nicht gezeigt werden: %1</translation>
    </message>
</context>
<context>
    <name>DemoTraffic</name>
    <message>
        <source>%1 was found neither beside the executable nor in the path</source>
        <translation>%1 wurde weder neben dem Programm noch im Pfad gefunden</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 antwortet nicht</translation>
    </message>
    <message>
        <source>%1 names no sensor for the scenario</source>
        <translation>%1 nennt keinen Sensor für das Szenario</translation>
    </message>
    <message>
        <source>No free UDP port: %1</source>
        <translation>Kein freier UDP-Port: %1</translation>
    </message>
    <message>
        <source>The demonstration traffic has ended.</source>
        <translation>Der Verkehr der Vorführung ist zu Ende.</translation>
    </message>
    <message>
        <source>The demonstration traffic ended with status %1.</source>
        <translation>Der Verkehr der Vorführung endete mit Status %1.</translation>
    </message>
    <message>
        <source>The demonstration traffic crashed or was killed.</source>
        <translation>Der Verkehr der Vorführung ist abgestürzt oder wurde beendet.</translation>
    </message>
</context>
<context>
    <name>DetectionLayer</name>
    <message>
        <source>Detection</source>
        <translation>Erfassung</translation>
    </message>
</context>
<context>
    <name>DetectionScale</name>
    <message>
        <source>below %1 %</source>
        <translation>unter %1 %</translation>
    </message>
    <message>
        <source>%1 % and more</source>
        <translation>%1 % und mehr</translation>
    </message>
    <message>
        <source>%1 to %2 %</source>
        <translation>%1 bis %2 %</translation>
    </message>
</context>
<context>
    <name>DiagnosisWindow</name>
    <message>
        <source>Fine</source>
        <translation>In Ordnung</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Wrong</source>
        <translation>Falsch</translation>
    </message>
    <message>
        <source>Diagnose Input</source>
        <translation>Eingang diagnostizieren</translation>
    </message>
    <message>
        <source>&amp;Look Again</source>
        <translation>&amp;Noch einmal</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the sentences to the clipboard</source>
        <translation>Die Sätze in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>No input is open. Start one or replay a recording, then look again.</source>
        <translation>Kein Eingang ist geöffnet. Starten Sie einen oder geben Sie eine Aufzeichnung wieder, dann noch einmal.</translation>
    </message>
    <message>
        <source>Listening...</source>
        <translation>Höre zu...</translation>
    </message>
    <message>
        <source>1 message</source>
        <translation>1 Nachricht</translation>
    </message>
    <message>
        <source>%1 messages</source>
        <translation>%1 Nachrichten</translation>
    </message>
    <message>
        <source>Listening... %1 so far.</source>
        <translation>Höre zu... bisher %1.</translation>
    </message>
    <message>
        <source>Something is wrong in what arrived (%1).</source>
        <translation>Etwas stimmt nicht an dem, was ankam (%1).</translation>
    </message>
    <message>
        <source>Nothing is wrong in what arrived (%1).</source>
        <translation>An dem, was ankam, ist nichts falsch (%1).</translation>
    </message>
</context>
<context>
    <name>DisplayConfigPage</name>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Fills in the colours, fonts and map style of all pages. Each of them can be changed afterwards.</source>
        <translation>Füllt Farben, Schriften und Kartenstil aller Seiten aus. Alles davon kann danach geändert werden.</translation>
    </message>
    <message>
        <source>T&amp;heme:</source>
        <translation>&amp;Design:</translation>
    </message>
    <message>
        <source>Plan view</source>
        <translation>Lagedarstellung</translation>
    </message>
    <message>
        <source>Where the view begins while no sensor is configured, and the centre of the range rings.</source>
        <translation>Wo die Ansicht beginnt, solange kein Sensor eingerichtet ist, und die Mitte der Entfernungsringe.</translation>
    </message>
    <message>
        <source>&amp;Centre:</source>
        <translation>&amp;Mitte:</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translation>&amp;Hintergrund:</translation>
    </message>
    <message>
        <source>Background Colour</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>&amp;Time zone:</source>
        <translation>&amp;Zeitzone:</translation>
    </message>
    <message>
        <source>St&amp;yle:</source>
        <translation>&amp;Stil:</translation>
    </message>
    <message>
        <source>The system&apos;s</source>
        <translation>Die des Systems</translation>
    </message>
    <message>
        <source>The language of windows, menus and messages. It changes when the program is started again.</source>
        <translation>Die Sprache der Fenster, Menüs und Meldungen. Sie wechselt, wenn das Programm neu gestartet wird.</translation>
    </message>
    <message>
        <source>Lan&amp;guage:</source>
        <translation>S&amp;prache:</translation>
    </message>
    <message>
        <source>The new language is spoken from the next start on.</source>
        <translation>Die neue Sprache gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Choose a time zone.</source>
        <translation>Wählen Sie eine Zeitzone.</translation>
    </message>
    <message>
        <source>There is no time zone &quot;%1&quot;.</source>
        <translation>Es gibt keine Zeitzone „%1“.</translation>
    </message>
    <message>
        <source>Time zone of the clock; %1 is the one of this computer.</source>
        <translation>Zeitzone der Uhr; %1 ist die dieses Rechners.</translation>
    </message>
    <message>
        <source>Colour of the scope where nothing else is drawn.</source>
        <translation>Farbe der Anzeige, wo sonst nichts gezeichnet ist.</translation>
    </message>
    <message>
        <source>How buttons, lists and menus of the windows are drawn.</source>
        <translation>Wie Knöpfe, Listen und Menüs der Fenster gezeichnet werden.</translation>
    </message>
    <message>
        <source>Te&amp;xt size:</source>
        <translation>Te&amp;xtgröße:</translation>
    </message>
    <message>
        <source>How large the text of windows, lists and menus is, beside what the system has.</source>
        <translation>Wie groß der Text in Fenstern, Listen und Menüs ist, gemessen an dem des Systems.</translation>
    </message>
    <message>
        <source>Text beside the &amp;icons of the tool bars</source>
        <translation>Text neben den S&amp;ymbolen der Werkzeugleisten</translation>
    </message>
    <message>
        <source>Off: the tool bars have icons alone and need less room.</source>
        <translation>Aus: die Werkzeugleisten haben nur Symbole und brauchen weniger Platz.</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Protokolldatei</translation>
    </message>
    <message>
        <source>Be&amp;gin a new file at:</source>
        <translation>Neue Datei &amp;ab:</translation>
    </message>
    <message>
        <source>How large a file of messages grows; 0 stands for no file.</source>
        <translation>Wie groß eine Datei mit Meldungen wird; 0 steht für keine Datei.</translation>
    </message>
    <message>
        <source>no file</source>
        <translation>keine Datei</translation>
    </message>
    <message>
        <source>&amp;Files kept:</source>
        <translation>&amp;Behaltene Dateien:</translation>
    </message>
    <message>
        <source>How many files of messages there are at most; the oldest is removed.</source>
        <translation>Wie viele Dateien mit Meldungen es höchstens gibt; die älteste wird entfernt.</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperre</translation>
    </message>
    <message>
        <source>With a password settings are locked: who does not have it changes none of them.</source>
        <translation>Mit einem Passwort sind die Einstellungen gesperrt: wer es nicht hat, ändert keine davon.</translation>
    </message>
    <message>
        <source>&amp;Password for settings:</source>
        <translation>Pass&amp;wort für Einstellungen:</translation>
    </message>
    <message>
        <source>&amp;Restart Now</source>
        <translation>&amp;Jetzt neu starten</translation>
    </message>
    <message>
        <source>Applies the settings, closes the program and starts it again as it was started. A live input that is running is opened again.</source>
        <translation>Übernimmt die Einstellungen, beendet das Programm und startet es wieder, wie es gestartet wurde. Ein laufender Live-Eingang wird wieder geöffnet.</translation>
    </message>
</context>
<context>
    <name>EchoExplanation</name>
    <message>
        <source>Range</source>
        <translation>Entfernung</translation>
    </message>
    <message>
        <source>cell %1 from the antenna on, each %2 m long</source>
        <translation>Zelle %1 von der Antenne aus, jede %2 m lang</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Azimut</translation>
    </message>
    <message>
        <source>one of %1 directions of a turn; the newest radial over its middle counts</source>
        <translation>eine von %1 Richtungen eines Umlaufs; der neueste Radial über ihrer Mitte zählt</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>only uncompressed video of 8 bits a cell is drawn</source>
        <translation>nur unkomprimiertes Video mit 8 Bit je Zelle wird gezeichnet</translation>
    </message>
    <message>
        <source>Cells in radial</source>
        <translation>Zellen im Radial</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Tageszeit</translation>
    </message>
    <message>
        <source>Message number</source>
        <translation>Nachrichtennummer</translation>
    </message>
    <message>
        <source>gaps in it are counted as missing messages</source>
        <translation>Lücken darin werden als fehlende Nachrichten gezählt</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>drawn around the place of the sensor of that SAC/SIC</source>
        <translation>um den Standort des Sensors mit diesem SAC/SIC gezeichnet</translation>
    </message>
    <message>
        <source>%1 bits a cell</source>
        <translation>%1 Bit je Zelle</translation>
    </message>
    <message>
        <source>Amplitude</source>
        <translation>Amplitude</translation>
    </message>
    <message>
        <source>%1 of 255</source>
        <translation>%1 von 255</translation>
    </message>
    <message>
        <source>as drawn; the radar&apos;s next radial of this direction is waited for</source>
        <translation>wie gezeichnet; auf den nächsten Radial des Radars in dieser Richtung wird gewartet</translation>
    </message>
    <message>
        <source>not above the threshold of %1, so it is not drawn</source>
        <translation>nicht über der Schwelle von %1, daher nicht gezeichnet</translation>
    </message>
    <message>
        <source>above the threshold of %1; fades within %2 s</source>
        <translation>über der Schwelle von %1; verblasst innerhalb von %2 s</translation>
    </message>
    <message>
        <source>%1, octet %2</source>
        <translation>%1, Oktett %2</translation>
    </message>
</context>
<context>
    <name>EmptyScope</name>
    <message>
        <source>Nothing arrives on %1: check the sender, and the input in Settings (F10).</source>
        <translation>Auf %1 kommt nichts an: prüfen Sie den Sender und den Eingang in den Einstellungen (F10).</translation>
    </message>
    <message>
        <source>There are no targets in what %1 brings; if there should be, check sensor and processor in Settings (F10).</source>
        <translation>In dem, was %1 bringt, sind keine Ziele; falls welche da sein müssten, prüfen Sie Sensor und Verarbeitung in den Einstellungen (F10).</translation>
    </message>
</context>
<context>
    <name>ExitReport</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>Fault</name>
    <message>
        <source>fewer than three octets of a block header</source>
        <translation>weniger als drei Oktette eines Blockkopfes</translation>
    </message>
    <message>
        <source>block length is zero</source>
        <translation>Blocklänge ist null</translation>
    </message>
    <message>
        <source>block length is less than the header&apos;s</source>
        <translation>Blocklänge ist kleiner als die des Kopfes</translation>
    </message>
    <message>
        <source>block runs past the end of the data</source>
        <translation>Block reicht über das Ende der Daten hinaus</translation>
    </message>
    <message>
        <source>no table for this category</source>
        <translation>keine Tabelle für diese Kategorie</translation>
    </message>
    <message>
        <source>FSPEC runs past the end of the block</source>
        <translation>FSPEC reicht über das Ende des Blocks hinaus</translation>
    </message>
    <message>
        <source>FSPEC bit of no item is set</source>
        <translation>ein FSPEC-Bit ohne Datenelement ist gesetzt</translation>
    </message>
    <message>
        <source>item runs past the end of the block</source>
        <translation>Datenelement reicht über das Ende des Blocks hinaus</translation>
    </message>
    <message>
        <source>repetition count runs past the end of the block</source>
        <translation>Wiederholungszahl reicht über das Ende des Blocks hinaus</translation>
    </message>
    <message>
        <source>explicit length is zero</source>
        <translation>ausdrückliche Länge ist null</translation>
    </message>
    <message>
        <source>message header is cut short</source>
        <translation>Nachrichtenkopf ist abgeschnitten</translation>
    </message>
    <message>
        <source>unknown message type</source>
        <translation>unbekannte Nachrichtenart</translation>
    </message>
    <message>
        <source>length leaves no room for the message</source>
        <translation>die Länge lässt keinen Raum für die Nachricht</translation>
    </message>
    <message>
        <source>message runs past the end of the data</source>
        <translation>Nachricht reicht über das Ende der Daten hinaus</translation>
    </message>
    <message>
        <source>length does not fit the number of records</source>
        <translation>die Länge passt nicht zur Zahl der Datensätze</translation>
    </message>
    <message>
        <source>no frame of the encapsulation</source>
        <translation>kein Rahmen der Kapselung</translation>
    </message>
    <message>
        <source>the length is not that of the downlink format</source>
        <translation>die Länge ist nicht die des Downlink-Formats</translation>
    </message>
    <message>
        <source>wrong parity</source>
        <translation>falsche Parität</translation>
    </message>
    <message>
        <source>not decoded</source>
        <translation>nicht decodiert</translation>
    </message>
</context>
<context>
    <name>FieldForm</name>
    <message>
        <source>INVALID COORDINATE</source>
        <translation>UNGÜLTIGE KOORDINATE</translation>
    </message>
</context>
<context>
    <name>FileEdit</name>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
</context>
<context>
    <name>FileReader</name>
    <message>
        <source>%1 (format %2) cannot be read.</source>
        <translation>%1 (Format %2) kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>No file is open.</source>
        <translation>Keine Datei ist geöffnet.</translation>
    </message>
    <message>
        <source>The recording has no time stamps.</source>
        <translation>Die Aufzeichnung hat keine Zeitstempel.</translation>
    </message>
</context>
<context>
    <name>FileWriter</name>
    <message>
        <source>%1 (format %2) cannot be written.</source>
        <translation>%1 (Format %2) kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>No file is open.</source>
        <translation>Keine Datei ist geöffnet.</translation>
    </message>
</context>
<context>
    <name>FinalFormatFraming</name>
    <message>
        <source>A frame&apos;s length field says %1.</source>
        <translation>Das Längenfeld eines Rahmens nennt %1.</translation>
    </message>
    <message>
        <source>The file ends within a frame.</source>
        <translation>Die Datei endet innerhalb eines Rahmens.</translation>
    </message>
    <message>
        <source>A frame of %1 octets has no end mark.</source>
        <translation>Ein Rahmen von %1 Oktetten hat keine Endemarke.</translation>
    </message>
</context>
<context>
    <name>FinalFormatWriter</name>
    <message>
        <source>A message of %1 octets does not fit into a frame.</source>
        <translation>Eine Nachricht von %1 Oktetten passt nicht in einen Rahmen.</translation>
    </message>
    <message>
        <source>The time stamp cannot be stored.</source>
        <translation>Der Zeitstempel kann nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>FirstStartGuide</name>
    <message>
        <source>Getting Started</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>What arrives there is told below, before anything is set.</source>
        <translation>Was dort ankommt, steht unten, bevor etwas eingestellt wird.</translation>
    </message>
    <message>
        <source>Where do the data come from?</source>
        <translation>Woher kommen die Daten?</translation>
    </message>
    <message>
        <source>Which sensor is it?</source>
        <translation>Welcher Sensor ist es?</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>Nothing was recognised, so the sensor must be described by hand.</source>
        <translation>Nichts wurde erkannt, der Sensor muss also von Hand beschrieben werden.</translation>
    </message>
    <message>
        <source>Without a sensor nothing can be shown: choose its type.</source>
        <translation>Ohne Sensor kann nichts gezeigt werden: wählen Sie seinen Typ.</translation>
    </message>
    <message>
        <source>Bac&amp;k</source>
        <translation>Zurü&amp;ck</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
</context>
<context>
    <name>GeoCompassRose</name>
    <message>
        <source>Compass rose</source>
        <translation>Kompassrose</translation>
    </message>
</context>
<context>
    <name>GeoLastPlaceMap</name>
    <message>
        <source>Last places</source>
        <translation>Letzte Orte</translation>
    </message>
</context>
<context>
    <name>GeoMapKey</name>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Legende</translation>
    </message>
</context>
<context>
    <name>GeoNorthArrow</name>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>North arrow</source>
        <translation>Nordpfeil</translation>
    </message>
</context>
<context>
    <name>GeoPlotMap</name>
    <message>
        <source>%1 plot</source>
        <translation>Plot %1</translation>
    </message>
    <message>
        <source>Plots</source>
        <translation>Plots</translation>
    </message>
</context>
<context>
    <name>GeoRangeRingMap</name>
    <message>
        <source>%1 NM</source>
        <translation>%1 NM</translation>
    </message>
    <message>
        <source>Range rings</source>
        <translation>Entfernungsringe</translation>
    </message>
</context>
<context>
    <name>GeoScaleBar</name>
    <message>
        <source>%1 NM</source>
        <translation>%1 NM</translation>
    </message>
    <message>
        <source>Scale bar</source>
        <translation>Maßstabsleiste</translation>
    </message>
</context>
<context>
    <name>GeoSensorMap</name>
    <message>
        <source>%1 %2 NM</source>
        <translation>%1 %2 NM</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
</context>
<context>
    <name>GeoStaticMap</name>
    <message>
        <source>Static maps</source>
        <translation>Statische Karten</translation>
    </message>
</context>
<context>
    <name>GeoTileMap</name>
    <message>
        <source>Bottom tiles</source>
        <translation>Untere Kacheln</translation>
    </message>
    <message>
        <source>Top tiles</source>
        <translation>Obere Kacheln</translation>
    </message>
</context>
<context>
    <name>GeoVideoMap</name>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
</context>
<context>
    <name>GeoWeatherMap</name>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
</context>
<context>
    <name>Gestures</name>
    <message>
        <source>Left click on a symbol or label</source>
        <translation>Linksklick auf ein Symbol oder Label</translation>
    </message>
    <message>
        <source>Select the track</source>
        <translation>Den Track auswählen</translation>
    </message>
    <message>
        <source>Left click once more</source>
        <translation>Noch ein Linksklick</translation>
    </message>
    <message>
        <source>Select the next track at this place</source>
        <translation>Den nächsten Track an dieser Stelle auswählen</translation>
    </message>
    <message>
        <source>Right click on a symbol or label</source>
        <translation>Rechtsklick auf ein Symbol oder Label</translation>
    </message>
    <message>
        <source>What can be done with the track</source>
        <translation>Was mit dem Track getan werden kann</translation>
    </message>
    <message>
        <source>Right click elsewhere</source>
        <translation>Rechtsklick anderswo</translation>
    </message>
    <message>
        <source>What can be done at this place</source>
        <translation>Was an dieser Stelle getan werden kann</translation>
    </message>
    <message>
        <source>Right drag on the map</source>
        <translation>Rechts ziehen auf der Karte</translation>
    </message>
    <message>
        <source>Move the view</source>
        <translation>Die Ansicht verschieben</translation>
    </message>
    <message>
        <source>Right drag on a label</source>
        <translation>Rechts ziehen auf einem Label</translation>
    </message>
    <message>
        <source>Move the label</source>
        <translation>Das Label verschieben</translation>
    </message>
    <message>
        <source>Right double-click</source>
        <translation>Rechter Doppelklick</translation>
    </message>
    <message>
        <source>Bring this point to the centre</source>
        <translation>Diesen Punkt in die Mitte bringen</translation>
    </message>
    <message>
        <source>Wheel</source>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>Zoom around the pointer</source>
        <translation>Um den Zeiger herum zoomen</translation>
    </message>
    <message>
        <source>Alt + wheel</source>
        <translation>Alt + Mausrad</translation>
    </message>
    <message>
        <source>Zoom in small steps</source>
        <translation>In kleinen Schritten zoomen</translation>
    </message>
    <message>
        <source>Left click with the cross</source>
        <translation>Linksklick mit dem Kreuz</translation>
    </message>
    <message>
        <source>Place the centre of the range rings</source>
        <translation>Die Mitte der Entfernungsringe setzen</translation>
    </message>
    <message>
        <source>Rotate clockwise by 1°</source>
        <translation>Um 1° im Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>Rotate counter-clockwise by 1°</source>
        <translation>Um 1° gegen den Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>Rotate clockwise by 0.1°</source>
        <translation>Um 0,1° im Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>Rotate counter-clockwise by 0.1°</source>
        <translation>Um 0,1° gegen den Uhrzeigersinn drehen</translation>
    </message>
</context>
<context>
    <name>GpsFraming</name>
    <message>
        <source>The file ends within a time stamp.</source>
        <translation>Die Datei endet innerhalb eines Zeitstempels.</translation>
    </message>
    <message>
        <source>A data block&apos;s length field says %1.</source>
        <translation>Das Längenfeld eines Datenblocks nennt %1.</translation>
    </message>
    <message>
        <source>The file ends within a data block.</source>
        <translation>Die Datei endet innerhalb eines Datenblocks.</translation>
    </message>
</context>
<context>
    <name>GzipSource</name>
    <message>
        <source>Unpacking cannot be set up.</source>
        <translation>Das Entpacken kann nicht vorbereitet werden.</translation>
    </message>
    <message>
        <source>The compressed file ends early.</source>
        <translation>Die komprimierte Datei endet zu früh.</translation>
    </message>
    <message>
        <source>The compressed file is damaged: %1.</source>
        <translation>Die komprimierte Datei ist beschädigt: %1.</translation>
    </message>
    <message>
        <source>out of memory</source>
        <translation>kein Speicher mehr</translation>
    </message>
    <message>
        <source>Unpacking cannot be taken up.</source>
        <translation>Das Entpacken kann nicht fortgesetzt werden.</translation>
    </message>
</context>
<context>
    <name>HeadlessRun</name>
    <message>
        <source>Cannot read the sensor file %1</source>
        <translation>Die Sensordatei %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>The input is open already.</source>
        <translation>Der Eingang ist schon geöffnet.</translation>
    </message>
    <message>
        <source>No input is open.</source>
        <translation>Kein Eingang ist geöffnet.</translation>
    </message>
    <message>
        <source>There is no window.</source>
        <translation>Es gibt kein Fenster.</translation>
    </message>
    <message>
        <source>Receiving on %1</source>
        <translation>Empfang auf %1</translation>
    </message>
    <message>
        <source>%1 is written again.</source>
        <translation>%1 wird wieder geschrieben.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Data engine did not confirm the input close within 10 s, forcing shutdown.</source>
        <translation>Das Schließen des Eingangs wurde nicht innerhalb von 10 s bestätigt, das Beenden wird erzwungen.</translation>
    </message>
    <message>
        <source>Data processing thread did not stop within 5 s, abandoning it.</source>
        <translation>Der Verarbeitungs-Thread hielt nicht innerhalb von 5 s an, er wird aufgegeben.</translation>
    </message>
</context>
<context>
    <name>HealthDock</name>
    <message>
        <source>Input Health</source>
        <translation>Zustand des Eingangs</translation>
    </message>
</context>
<context>
    <name>HealthLamp</name>
    <message>
        <source>Input</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>How the input does; a click shows its sources.</source>
        <translation>Wie es dem Eingang geht; ein Klick zeigt seine Quellen.</translation>
    </message>
</context>
<context>
    <name>HealthPane</name>
    <message>
        <source>Sources</source>
        <translation>Quellen</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>%1 Manual</source>
        <translation>%1 Handbuch</translation>
    </message>
    <message>
        <source>◀ Back</source>
        <translation>◀ Zurück</translation>
    </message>
    <message>
        <source>The page before</source>
        <translation>Die Seite davor</translation>
    </message>
    <message>
        <source>Forward ▶</source>
        <translation>Vor ▶</translation>
    </message>
    <message>
        <source>The next page</source>
        <translation>Die nächste Seite</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>The index page</source>
        <translation>Die Indexseite</translation>
    </message>
    <message>
        <source>A−</source>
        <translation>A−</translation>
    </message>
    <message>
        <source>Smaller text</source>
        <translation>Kleinerer Text</translation>
    </message>
    <message>
        <source>A+</source>
        <translation>A+</translation>
    </message>
    <message>
        <source>Larger text</source>
        <translation>Größerer Text</translation>
    </message>
    <message>
        <source>Search all pages (Ctrl+F)</source>
        <translation>Alle Seiten durchsuchen (Strg+F)</translation>
    </message>
    <message>
        <source>Search all pages</source>
        <translation>Alle Seiten durchsuchen</translation>
    </message>
    <message>
        <source>What the search has found</source>
        <translation>Was die Suche gefunden hat</translation>
    </message>
    <message>
        <source>No page has all of these words.</source>
        <translation>Keine Seite enthält alle diese Wörter.</translation>
    </message>
    <message>
        <source>This page is available in English only.</source>
        <translation>Diese Seite gibt es nur auf Englisch.</translation>
    </message>
</context>
<context>
    <name>InputConfigPage</name>
    <message>
        <source>Choose a recording file.</source>
        <translation>Wählen Sie eine Aufzeichnung.</translation>
    </message>
    <message>
        <source>This file does not exist.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>This file cannot be read.</source>
        <translation>Diese Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Input</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>&amp;Data from:</source>
        <translation>&amp;Daten von:</translation>
    </message>
    <message>
        <source>&amp;Second input</source>
        <translation>&amp;Zweiter Eingang</translation>
    </message>
    <message>
        <source>Listens on another port too: for sensors that send over two networks.</source>
        <translation>Hört zusätzlich auf einem weiteren Port: für Sensoren, die über zwei Netze senden.</translation>
    </message>
    <message>
        <source>D&amp;evice:</source>
        <translation>&amp;Gerät:</translation>
    </message>
    <message>
        <source>&amp;Baud rate:</source>
        <translation>&amp;Baudrate:</translation>
    </message>
    <message>
        <source>&amp;Parity:</source>
        <translation>&amp;Parität:</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>Ungerade</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Space</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Mark</translation>
    </message>
    <message>
        <source>&amp;Stop bits:</source>
        <translation>&amp;Stoppbits:</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>1.5</source>
        <translation>1,5</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>Recording File</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>Date&amp;i:</translation>
    </message>
    <message>
        <source>Start &amp;again at the end of the file</source>
        <translation>Am Ende der Datei von &amp;vorn beginnen</translation>
    </message>
    <message>
        <source>Choose where the data comes from.</source>
        <translation>Wählen Sie, woher die Daten kommen.</translation>
    </message>
    <message>
        <source>Name the serial device.</source>
        <translation>Nennen Sie das serielle Gerät.</translation>
    </message>
    <message>
        <source>Enter a rate in bits per second.</source>
        <translation>Geben Sie eine Rate in Bits je Sekunde ein.</translation>
    </message>
    <message>
        <source>How the sensor&apos;s messages come in: over a network, a serial line, or from a recording.</source>
        <translation>Wie die Nachrichten des Sensors hereinkommen: über ein Netz, eine serielle Leitung oder aus einer Aufzeichnung.</translation>
    </message>
    <message>
        <source>The input is opened by itself as soon as the program runs.</source>
        <translation>Der Eingang wird von selbst geöffnet, sobald das Programm läuft.</translation>
    </message>
    <message>
        <source>The serial port that the sensor&apos;s line is plugged into.</source>
        <translation>Der serielle Anschluss, an dem die Leitung des Sensors steckt.</translation>
    </message>
    <message>
        <source>Bits per second, as the sender has it set.</source>
        <translation>Bits je Sekunde, wie beim Sender eingestellt.</translation>
    </message>
    <message>
        <source>Bits of a character on the line.</source>
        <translation>Bits eines Zeichens auf der Leitung.</translation>
    </message>
    <message>
        <source>The check bit of a character on the line.</source>
        <translation>Das Prüfbit eines Zeichens auf der Leitung.</translation>
    </message>
    <message>
        <source>How long the line rests between two characters.</source>
        <translation>Wie lange die Leitung zwischen zwei Zeichen ruht.</translation>
    </message>
    <message>
        <source>The recording that is played when the input is started.</source>
        <translation>Die Aufzeichnung, die beim Start des Eingangs wiedergegeben wird.</translation>
    </message>
    <message>
        <source>Plays the recording over and over until it is stopped.</source>
        <translation>Gibt die Aufzeichnung immer wieder wieder, bis sie gestoppt wird.</translation>
    </message>
    <message>
        <source>%1 is not there now.</source>
        <translation>%1 ist zurzeit nicht da.</translation>
    </message>
    <message>
        <source>Complete the fields above to see what arrives.</source>
        <translation>Füllen Sie die Felder oben aus, um zu sehen, was ankommt.</translation>
    </message>
    <message>
        <source>Stop the input first: its settings are locked while it runs.</source>
        <translation>Stoppen Sie zuerst den Eingang: seine Einstellungen sind gesperrt, solange er läuft.</translation>
    </message>
    <message>
        <source>Start input a&amp;t program start</source>
        <translation>Eingang beim Programms&amp;tart starten</translation>
    </message>
    <message>
        <source>Data b&amp;its:</source>
        <translation>Datenb&amp;its:</translation>
    </message>
</context>
<context>
    <name>InputHealth</name>
    <message>
        <source>%1 listens on UDP port %2 too.</source>
        <translation>%1 hört ebenfalls auf UDP-Port %2.</translation>
    </message>
    <message>
        <source>NO DATA since %1</source>
        <translation>KEINE DATEN seit %1</translation>
    </message>
    <message>
        <source>There is a gap in %1: the picture is old.</source>
        <translation>In %1 ist eine Lücke: das Bild ist alt.</translation>
    </message>
    <message>
        <source>Nothing arrives on %1 any more: the picture is old.</source>
        <translation>Auf %1 kommt nichts mehr an: das Bild ist alt.</translation>
    </message>
    <message>
        <source>Nothing has arrived on %1 yet.</source>
        <translation>Auf %1 ist noch nichts angekommen.</translation>
    </message>
    <message>
        <source>%1 listens there too, and takes what is sent.</source>
        <translation>%1 hört dort ebenfalls und nimmt, was gesendet wird.</translation>
    </message>
    <message>
        <source>Check the sender and the line.</source>
        <translation>Prüfen Sie Sender und Leitung.</translation>
    </message>
    <message>
        <source>Check the sender, and the input in Settings (F10).</source>
        <translation>Prüfen Sie den Sender und den Eingang in den Einstellungen (F10).</translation>
    </message>
    <message>
        <source>The safety nets are no longer heard, since %1: the indicators show what they said then.</source>
        <translation>Die Sicherheitsnetze werden seit %1 nicht mehr gehört: die Anzeigen zeigen, was sie damals sagten.</translation>
    </message>
    <message>
        <source>No data from %1 since %2.</source>
        <translation>Keine Daten von %1 seit %2.</translation>
    </message>
    <message>
        <source>NO DATA since %1 from %2: the picture is old.</source>
        <translation>KEINE DATEN seit %1 von %2: das Bild ist alt.</translation>
    </message>
    <message>
        <source>Data again from %1, after %2 s without any.</source>
        <translation>Wieder Daten von %1, nach %2 s ohne.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>The %1 of %2 has ended only because nothing is heard of the safety nets any more.</source>
        <translation>%1 von %2 ist nur zu Ende, weil von den Sicherheitsnetzen nichts mehr gehört wird.</translation>
    </message>
    <message>
        <source>%1 listens on UDP port %2 too: of the two, one alone gets each datagram.</source>
        <translation>%1 hört ebenfalls auf UDP-Port %2: nur einer von beiden bekommt jedes Datagramm.</translation>
    </message>
</context>
<context>
    <name>InputNotices</name>
    <message>
        <source>No input is running.</source>
        <translation>Kein Eingang läuft.</translation>
    </message>
    <message>
        <source>No alerts.</source>
        <translation>Keine Alarme.</translation>
    </message>
    <message>
        <source>Nothing of what %1 brings is seen. %2
More: View, Input Health.</source>
        <translation>Nichts von dem, was %1 bringt, ist zu sehen. %2
Mehr dazu: Ansicht, Zustand des Eingangs.</translation>
    </message>
    <message>
        <source>No tracks. The target reports of %1 are shown as plots.</source>
        <translation>Keine Tracks. Die Zielmeldungen von %1 werden als Plots gezeigt.</translation>
    </message>
    <message>
        <source>No tracks. %1</source>
        <translation>Keine Tracks. %1</translation>
    </message>
    <message>
        <source>No tracks yet in %1.</source>
        <translation>Noch keine Tracks in %1.</translation>
    </message>
    <message>
        <source>No tracks. Listening on %1.</source>
        <translation>Keine Tracks. Es wird auf %1 gehört.</translation>
    </message>
</context>
<context>
    <name>InputProbe</name>
    <message>
        <source>UDP port %1</source>
        <translation>UDP-Port %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>UDP port %1 is taken by %2. Only one of two listeners gets what is sent to a port, so it is left alone: end that program, or choose another port.</source>
        <translation>Der UDP-Port %1 ist belegt (%2). Nur einer von zwei Hörern bekommt, was an einen Port gesendet wird, er wird daher in Ruhe gelassen: beenden Sie jenes Programm oder wählen Sie einen anderen Port.</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>ein anderes Programm</translation>
    </message>
</context>
<context>
    <name>InputProposal</name>
    <message>
        <source>It holds no reports of targets.</source>
        <translation>Sie enthält keine Zielmeldungen.</translation>
    </message>
    <message>
        <source>Its reports carry no aircraft addresses, so they make no tracks.</source>
        <translation>Ihre Meldungen tragen keine Luftfahrzeugadressen, sie ergeben also keine Tracks.</translation>
    </message>
    <message>
        <source>Its reports carry no track numbers, so they make no tracks.</source>
        <translation>Ihre Meldungen tragen keine Tracknummern, sie ergeben also keine Tracks.</translation>
    </message>
    <message>
        <source>Its reports carry no polar positions (I010/040), without which they make no tracks.</source>
        <translation>Ihre Meldungen tragen keine Polarkoordinaten (I010/040), ohne die sie keine Tracks ergeben.</translation>
    </message>
    <message>
        <source>Its reports carry no positions in WGS-84, so they make no tracks.</source>
        <translation>Ihre Meldungen tragen keine Positionen in WGS-84, sie ergeben also keine Tracks.</translation>
    </message>
    <message>
        <source>No report carries both an identity and a position, so they make no tracks.</source>
        <translation>Keine Meldung trägt zugleich Identität und Position, sie ergeben also keine Tracks.</translation>
    </message>
    <message>
        <source>%1 %2/%3</source>
        <translation>%1 %2/%3</translation>
    </message>
    <message>
        <source>It holds no extended squitters, without which there are no tracks.</source>
        <translation>Sie enthält keine Extended Squitter, ohne die es keine Tracks gibt.</translation>
    </message>
    <message>
        <source>No position of an aircraft could be made out.</source>
        <translation>Keine Position eines Luftfahrzeugs ließ sich ermitteln.</translation>
    </message>
    <message>
        <source>It holds no tracks.</source>
        <translation>Sie enthält keine Tracks.</translation>
    </message>
    <message>
        <source>Played as %1 &quot;%2&quot; of the sensor file</source>
        <translation>Wiedergegeben als %1 „%2“ der Sensordatei</translation>
    </message>
    <message>
        <source>Played as %1</source>
        <translation>Wiedergegeben als %1</translation>
    </message>
    <message>
        <source>, the other source left out</source>
        <translation>, die andere Quelle ausgelassen</translation>
    </message>
    <message>
        <source>, %1 other sources left out</source>
        <translation>, %1 andere Quellen ausgelassen</translation>
    </message>
    <message>
        <source>; where it stands is not known, and its positions are relative to that</source>
        <translation>; sein Standort ist nicht bekannt, und die Positionen sind auf ihn bezogen</translation>
    </message>
    <message>
        <source>Its reports carry no track numbers, so they make no tracks; the plot layer shows them.</source>
        <translation>Ihre Meldungen tragen keine Tracknummern und ergeben daher keine Tracks; die Plot-Ebene zeigt sie.</translation>
    </message>
    <message>
        <source>It holds no tracks; the plot layer shows its plots.</source>
        <translation>Sie enthält keine Tracks; die Plot-Ebene zeigt ihre Plots.</translation>
    </message>
</context>
<context>
    <name>InputRecorder</name>
    <message>
        <source>the file has been removed</source>
        <translation>die Datei ist entfernt worden</translation>
    </message>
</context>
<context>
    <name>InputSession</name>
    <message>
        <source>serial line %1</source>
        <translation>serielle Leitung %1</translation>
    </message>
    <message>
        <source>recording %1</source>
        <translation>Aufzeichnung %1</translation>
    </message>
    <message>
        <source>UDP %1:%2</source>
        <translation>UDP %1:%2</translation>
    </message>
    <message>
        <source>UDP port %1</source>
        <translation>UDP-Port %1</translation>
    </message>
    <message>
        <source>Opening %1 ...</source>
        <translation>%1 wird geöffnet ...</translation>
    </message>
    <message>
        <source>Paused. The picture is not being updated.</source>
        <translation>Angehalten. Das Bild wird nicht aktualisiert.</translation>
    </message>
    <message>
        <source>Input stopped. %1
This is the last picture.</source>
        <translation>Eingang gestoppt. %1
Dies ist das letzte Bild.</translation>
    </message>
    <message>
        <source>Input stopped. This is the last picture.</source>
        <translation>Eingang gestoppt. Dies ist das letzte Bild.</translation>
    </message>
    <message>
        <source>No input is running. Press Start to open %1.</source>
        <translation>Kein Eingang läuft. Drücken Sie Start, um %1 zu öffnen.</translation>
    </message>
    <message>
        <source>Input is working now, stop first!</source>
        <translation>Der Eingang läuft, bitte zuerst stoppen!</translation>
    </message>
    <message>
        <source>Unknown sensor</source>
        <translation>Unbekannter Sensor</translation>
    </message>
    <message>
        <source>Inpput is not working now.</source>
        <translation>Der Eingang läuft zurzeit nicht.</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>%1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>No sensor is configured. Choose one in Settings (F10), then press Start; or let Help, Getting Started, lead you.</source>
        <translation>Kein Sensor ist eingerichtet. Wählen Sie einen in den Einstellungen (F10) und drücken Sie dann Start; oder lassen Sie sich von Hilfe, Erste Schritte führen.</translation>
    </message>
    <message>
        <source>%1
Another attempt is made by itself.</source>
        <translation>%1
Es wird von selbst weiter versucht.</translation>
    </message>
    <message>
        <source>No further attempt is made to open the input.</source>
        <translation>Es wird nicht weiter versucht, den Eingang zu öffnen.</translation>
    </message>
</context>
<context>
    <name>Inspection</name>
    <message>
        <source>Plot</source>
        <translation>Plot</translation>
    </message>
    <message>
        <source>The alert is no longer there, or it is an emergency: what a track says of itself is explained with the track.</source>
        <translation>Den Alarm gibt es nicht mehr, oder es ist ein Notfall: was ein Track von sich selbst sagt, wird beim Track erklärt.</translation>
    </message>
    <message>
        <source>Alert %1</source>
        <translation>Alarm %1</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Erklärung</translation>
    </message>
    <message>
        <source>Select a track to see where its values come from; or point at a plot, weather or radar video and press Ctrl+E.</source>
        <translation>Wählen Sie einen Track, um zu sehen, woher seine Werte stammen; oder zeigen Sie auf Plot, Wetter oder Radarvideo und drücken Sie Strg+E.</translation>
    </message>
    <message>
        <source>Explain Plot</source>
        <translation>Plot erklären</translation>
    </message>
    <message>
        <source>Explain Radar Video</source>
        <translation>Radarvideo erklären</translation>
    </message>
    <message>
        <source>Explain Weather</source>
        <translation>Wetter erklären</translation>
    </message>
    <message>
        <source>The report of this plot is kept no more.</source>
        <translation>Die Meldung dieses Plots ist nicht mehr aufbewahrt.</translation>
    </message>
    <message>
        <source>Plot of %1</source>
        <translation>Plot von %1</translation>
    </message>
    <message>
        <source>Its report</source>
        <translation>Seine Meldung</translation>
    </message>
    <message>
        <source>Weather, level %1</source>
        <translation>Wetter, Stufe %1</translation>
    </message>
    <message>
        <source>Its vectors</source>
        <translation>Seine Vektoren</translation>
    </message>
    <message>
        <source>Start of its picture</source>
        <translation>Beginn seines Bilds</translation>
    </message>
    <message>
        <source>End of its picture</source>
        <translation>Ende seines Bilds</translation>
    </message>
    <message>
        <source>Radar video</source>
        <translation>Radarvideo</translation>
    </message>
</context>
<context>
    <name>InspectionPane</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Shown</source>
        <translation>Gezeigt</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Alter</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>Regel</translation>
    </message>
    <message>
        <source>Arrived</source>
        <translation>Ankunft</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Report as Text</source>
        <translation>Meldung als Text</translation>
    </message>
    <message>
        <source>Report as NDJSON</source>
        <translation>Meldung als NDJSON</translation>
    </message>
    <message>
        <source>Report as Hexadecimal</source>
        <translation>Meldung hexadezimal</translation>
    </message>
    <message>
        <source>All Reports as NDJSON</source>
        <translation>Alle Meldungen als NDJSON</translation>
    </message>
    <message>
        <source>Newest report</source>
        <translation>Neueste Meldung</translation>
    </message>
    <message>
        <source>Report %1 before the newest</source>
        <translation>Meldung %1 vor der neuesten</translation>
    </message>
    <message>
        <source>No report is kept</source>
        <translation>Keine Meldung ist aufbewahrt</translation>
    </message>
    <message>
        <source>%1: %2, %3 octets</source>
        <translation>%1: %2, %3 Oktette</translation>
    </message>
    <message>
        <source>Values shown</source>
        <translation>Gezeigte Werte</translation>
    </message>
    <message>
        <source>Last reports</source>
        <translation>Letzte Meldungen</translation>
    </message>
    <message>
        <source>Items of the report</source>
        <translation>Elemente der Meldung</translation>
    </message>
</context>
<context>
    <name>LayoutMenu</name>
    <message>
        <source>Cannot write the layout file %1</source>
        <translation>Die Layoutdatei %1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>LayoutSaveWindow</name>
    <message>
        <source>Make it the &amp;current layout</source>
        <translation>Zum &amp;aktuellen Layout machen</translation>
    </message>
    <message>
        <source>Save Layout</source>
        <translation>Layout speichern</translation>
    </message>
    <message>
        <source>The current layout is shown again when the program is started.</source>
        <translation>Das aktuelle Layout wird beim nächsten Start wieder gezeigt.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>The layout needs a name.</source>
        <translation>Das Layout braucht einen Namen.</translation>
    </message>
    <message>
        <source>The name &quot;default&quot; belongs to the built-in layout.</source>
        <translation>Der Name „default“ gehört dem eingebauten Layout.</translation>
    </message>
    <message>
        <source>Replace the layout &quot;%1&quot;?</source>
        <translation>Das Layout „%1“ ersetzen?</translation>
    </message>
</context>
<context>
    <name>LegacyMapFile</name>
    <message>
        <source>This is not a valid Legacy format map file.</source>
        <translation>Dies ist keine gültige Karte im alten Format.</translation>
    </message>
    <message>
        <source>Failed to parse the legacy map file at line %1.</source>
        <translation>Die Kartendatei im alten Format kann in Zeile %1 nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>LibraryVersions</name>
    <message>
        <source>%1 is missing</source>
        <translation>%1 fehlt</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>ASTERIX library</source>
        <translation>ASTERIX-Bibliothek</translation>
    </message>
    <message>
        <source>Mode S library</source>
        <translation>Mode-S-Bibliothek</translation>
    </message>
    <message>
        <source>Aircraft database library</source>
        <translation>Luftfahrzeugdatenbank-Bibliothek</translation>
    </message>
    <message>
        <source>Qt %1 (built with %2)</source>
        <translation>Qt %1 (übersetzt mit %2)</translation>
    </message>
</context>
<context>
    <name>ListExport</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>ListFilter</name>
    <message>
        <source>There is no column &quot;%1&quot;. Columns are: %2.</source>
        <translation>Es gibt keine Spalte „%1“. Spalten sind: %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds no numbers to compare.</source>
        <translation>„%1“ enthält keine Zahlen zum Vergleichen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; wants a number, as in %2.</source>
        <translation>„%1“ verlangt eine Zahl, wie in %2.</translation>
    </message>
</context>
<context>
    <name>ListPane</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Words that a row must hold, or columns: %1. A text with blanks stands in quotes.</source>
        <translation>Wörter, die eine Zeile enthalten muss, oder Spalten: %1. Ein Text mit Leerzeichen steht in Anführungszeichen.</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Copy List</source>
        <translation>Liste kopieren</translation>
    </message>
    <message>
        <source>Export CSV...</source>
        <translation>CSV exportieren...</translation>
    </message>
    <message>
        <source>List Menu</source>
        <translation>Listenmenü</translation>
    </message>
    <message>
        <source>Columns, copy, export</source>
        <translation>Spalten, Kopieren, Exportieren</translation>
    </message>
    <message>
        <source>%1 All rows are shown.</source>
        <translation>%1 Alle Zeilen werden gezeigt.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>The filter lets none of the %1 rows through.</source>
        <translation>Der Filter lässt keine der %1 Zeilen durch.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>CSV exportieren</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Kommagetrennte Werte (*.csv)</translation>
    </message>
</context>
<context>
    <name>ListPanes</name>
    <message>
        <source>Track List</source>
        <translation>Trackliste</translation>
    </message>
    <message>
        <source>Alert List</source>
        <translation>Alarmliste</translation>
    </message>
    <message>
        <source>Track List - %1</source>
        <translation>Trackliste - %1</translation>
    </message>
    <message>
        <source>Alert List - %1</source>
        <translation>Alarmliste - %1</translation>
    </message>
</context>
<context>
    <name>LockCommands</name>
    <message>
        <source>The settings are locked.</source>
        <translation>Die Einstellungen sind gesperrt.</translation>
    </message>
    <message>
        <source>The settings are not locked.</source>
        <translation>Die Einstellungen sind nicht gesperrt.</translation>
    </message>
    <message>
        <source>Unlock Settings...</source>
        <translation>Einstellungen entsperren...</translation>
    </message>
    <message>
        <source>Lock Settings</source>
        <translation>Einstellungen sperren</translation>
    </message>
    <message>
        <source>Lock Settings...</source>
        <translation>Einstellungen sperren...</translation>
    </message>
</context>
<context>
    <name>LogFile</name>
    <message numerus="yes">
        <source>%n lines are missing here.</source>
        <translation>
            <numerusform>Hier fehlt %n Zeile.</numerusform>
            <numerusform>Hier fehlen %n Zeilen.</numerusform>
        </translation>
    </message>
    <message>
        <source>The log file %1 cannot be written: %2. It goes on when it can.</source>
        <translation>Die Protokolldatei %1 kann nicht geschrieben werden: %2. Sie wird fortgesetzt, sobald es geht.</translation>
    </message>
    <message>
        <source>Another run of the program writes the log file; this one does not.</source>
        <translation>Ein anderer Lauf des Programms schreibt die Protokolldatei; dieser nicht.</translation>
    </message>
    <message>
        <source>No log file can be written in %1.</source>
        <translation>In %1 kann keine Protokolldatei geschrieben werden.</translation>
    </message>
    <message>
        <source>The log file %1 cannot be put aside: %2. It goes on when it can.</source>
        <translation>Die Protokolldatei %1 kann nicht beiseitegelegt werden: %2. Sie wird fortgesetzt, sobald es geht.</translation>
    </message>
</context>
<context>
    <name>LogGate</name>
    <message>
        <source>%1 … %2 more like this</source>
        <translation>%1 … noch %2 dieser Art</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Open Log Folder</source>
        <translation>Protokollordner öffnen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>%1 is running, do you want to exit?</source>
        <translation>%1 läuft, wirklich beenden?</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>The input is running on %1. Stop it?</source>
        <translation>Der Eingang läuft auf %1. Stoppen?</translation>
    </message>
    <message>
        <source>%1 x %2</source>
        <translation>%1 x %2</translation>
    </message>
    <message>
        <source>Debug functions enabled</source>
        <translation>Diagnosefunktionen eingeschaltet</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>Loading map %1: %2</source>
        <translation>Karte %1 wird geladen: %2</translation>
    </message>
    <message>
        <source>Radar video of SAC %1, SIC %2 is not shown: no sensor has this identification.</source>
        <translation>Radarvideo von SAC %1, SIC %2 wird nicht gezeigt: kein Sensor hat diese Kennung.</translation>
    </message>
    <message>
        <source>1 label shortened</source>
        <translation>1 Label gekürzt</translation>
    </message>
    <message>
        <source>%1 labels shortened</source>
        <translation>%1 Labels gekürzt</translation>
    </message>
    <message>
        <source>UDP input is working now, stop it first!</source>
        <translation>Der UDP-Eingang läuft, bitte zuerst stoppen!</translation>
    </message>
    <message>
        <source>Cannot read the sensor file %1</source>
        <translation>Die Sensordatei %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Cannot load the aircraft database: %1</source>
        <translation>Die Luftfahrzeugdatenbank kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>--sensor auto is for recordings; the live input is shown with the configured sensor.</source>
        <translation>--sensor auto ist für Aufzeichnungen; der Live-Eingang wird mit dem eingerichteten Sensor gezeigt.</translation>
    </message>
    <message>
        <source>First frame after %1 ms</source>
        <translation>Erstes Bild nach %1 ms</translation>
    </message>
    <message>
        <source>No window can be opened with the profile %1.</source>
        <translation>Mit dem Profil %1 kann kein Fenster geöffnet werden.</translation>
    </message>
    <message>
        <source>Another window with these settings is open: changes in this one are not saved. (Other settings: File, New Window With Profile...)</source>
        <translation>Ein anderes Fenster mit diesen Einstellungen ist offen: Änderungen in diesem werden nicht gespeichert. (Andere Einstellungen: Datei, Neues Fenster mit Profil...)</translation>
    </message>
    <message>
        <source>The input is not started by itself: the program has crashed twice within a minute of its start. Press Start to try again.</source>
        <translation>Der Eingang wird nicht von selbst gestartet: das Programm ist zweimal innerhalb einer Minute nach dem Start abgestürzt. Drücken Sie Start für einen neuen Versuch.</translation>
    </message>
</context>
<context>
    <name>Manual</name>
    <message>
        <source>%1 › %2</source>
        <translation>%1 › %2</translation>
    </message>
</context>
<context>
    <name>ManualView</name>
    <message>
        <source>Page of the manual</source>
        <translation>Handbuchseite</translation>
    </message>
</context>
<context>
    <name>MapConfigPage</name>
    <message>
        <source>Map Layers</source>
        <translation>Kartenebenen</translation>
    </message>
    <message>
        <source>Static maps</source>
        <translation>Statische Karten</translation>
    </message>
    <message>
        <source>Show static ma&amp;ps</source>
        <translation>Statische &amp;Karten zeigen</translation>
    </message>
    <message>
        <source>Map inde&amp;x:</source>
        <translation>Karten&amp;index:</translation>
    </message>
    <message>
        <source>Select Map Index</source>
        <translation>Kartenindex wählen</translation>
    </message>
    <message>
        <source>Map Index (*.idx);;All files (*)</source>
        <translation>Kartenindex (*.idx);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>S&amp;tyle sheet:</source>
        <translation>&amp;Stildatei:</translation>
    </message>
    <message>
        <source>Select Map Style Sheet</source>
        <translation>Kartenstildatei wählen</translation>
    </message>
    <message>
        <source>Map Style Sheet (*.mss)</source>
        <translation>Kartenstildatei (*.mss)</translation>
    </message>
    <message>
        <source>Symbol si&amp;ze:</source>
        <translation>Symbol&amp;größe:</translation>
    </message>
    <message>
        <source>Smooth scaled p&amp;ictures</source>
        <translation>Skalierte &amp;Bilder glätten</translation>
    </message>
    <message>
        <source>Pictures in maps look softer when they are enlarged, and take longer to draw.</source>
        <translation>Bilder in Karten wirken weicher, wenn sie vergrößert werden, und brauchen länger zum Zeichnen.</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
    <message>
        <source>Show the &amp;sensor</source>
        <translation>Senso&amp;r zeigen</translation>
    </message>
    <message>
        <source>Show its na&amp;me</source>
        <translation>Seinen &amp;Namen zeigen</translation>
    </message>
    <message>
        <source>Show its co&amp;verage</source>
        <translation>Seine &amp;Abdeckung zeigen</translation>
    </message>
    <message>
        <source>Show the &amp;antenna line of a radar</source>
        <translation>Antennen&amp;linie eines Radars zeigen</translation>
    </message>
    <message>
        <source>Flash the &amp;north marker of a radar</source>
        <translation>Nordmarke eines Radars a&amp;ufblitzen lassen</translation>
    </message>
    <message>
        <source>Short north marker</source>
        <translation>Kurze Nordmarke</translation>
    </message>
    <message>
        <source>A tick at the rim of the coverage instead of a line from the site.</source>
        <translation>Ein Strich am Rand der Abdeckung statt einer Linie vom Standort aus.</translation>
    </message>
    <message>
        <source>Sit&amp;e and coverage:</source>
        <translation>Stand&amp;ort und Abdeckung:</translation>
    </message>
    <message>
        <source>Sensor Colour</source>
        <translation>Sensorfarbe</translation>
    </message>
    <message>
        <source>Antenna &amp;line:</source>
        <translation>An&amp;tennenlinie:</translation>
    </message>
    <message>
        <source>Antenna Line Colour</source>
        <translation>Farbe der Antennenlinie</translation>
    </message>
    <message>
        <source>North &amp;marker:</source>
        <translation>Nor&amp;dmarke:</translation>
    </message>
    <message>
        <source>North Marker Colour</source>
        <translation>Farbe der Nordmarke</translation>
    </message>
    <message>
        <source>Range rings</source>
        <translation>Entfernungsringe</translation>
    </message>
    <message>
        <source>Show range &amp;rings</source>
        <translation>&amp;Entfernungsringe zeigen</translation>
    </message>
    <message>
        <source>N&amp;umber of rings:</source>
        <translation>An&amp;zahl der Ringe:</translation>
    </message>
    <message>
        <source>&amp;Distance between rings:</source>
        <translation>Abstand z&amp;wischen den Ringen:</translation>
    </message>
    <message>
        <source>&amp;Colour:</source>
        <translation>&amp;Farbe:</translation>
    </message>
    <message>
        <source>Range Ring Colour</source>
        <translation>Farbe der Entfernungsringe</translation>
    </message>
    <message>
        <source>Show their distances</source>
        <translation>Ihre Entfernungen zeigen</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientierung</translation>
    </message>
    <message>
        <source>Show a compass rose</source>
        <translation>Kompassrose zeigen</translation>
    </message>
    <message>
        <source>Show a scale &amp;bar</source>
        <translation>&amp;Maßstabsleiste zeigen</translation>
    </message>
    <message>
        <source>Show a &amp;key of symbols and weather colours</source>
        <translation>Legende der S&amp;ymbole und Wetterfarben zeigen</translation>
    </message>
    <message>
        <source>&amp;Text and rose:</source>
        <translation>Sc&amp;hrift und Rose:</translation>
    </message>
    <message>
        <source>Orientation Colour</source>
        <translation>Farbe der Orientierung</translation>
    </message>
    <message>
        <source>Plots</source>
        <translation>Plots</translation>
    </message>
    <message>
        <source>Show pl&amp;ots</source>
        <translation>&amp;Plots zeigen</translation>
    </message>
    <message>
        <source>Every target report with a place, also those that no track is made of.</source>
        <translation>Jede Zielmeldung mit einem Ort, auch solche, aus denen kein Track wird.</translation>
    </message>
    <message>
        <source>Time that a plot is seen:</source>
        <translation>Sichtbarkeitsdauer eines Plots:</translation>
    </message>
    <message>
        <source>three revolutions</source>
        <translation>drei Umläufe</translation>
    </message>
    <message>
        <source>Plot colour:</source>
        <translation>Plotfarbe:</translation>
    </message>
    <message>
        <source>Plot Colour</source>
        <translation>Plotfarbe</translation>
    </message>
    <message>
        <source>The name of a file is needed.</source>
        <translation>Der Name einer Datei fehlt.</translation>
    </message>
    <message>
        <source>Draws the airspaces, routes and places of the map index under the traffic.</source>
        <translation>Zeichnet Lufträume, Strecken und Orte des Kartenindex unter den Verkehr.</translation>
    </message>
    <message>
        <source>The list of the maps that are drawn; a new one is made where the file does not exist.</source>
        <translation>Die Liste der gezeichneten Karten; fehlt die Datei, wird eine neue angelegt.</translation>
    </message>
    <message>
        <source>The colours, lines and fonts that maps are drawn with.</source>
        <translation>Farben, Linien und Schriften, mit denen Karten gezeichnet werden.</translation>
    </message>
    <message>
        <source>How large the symbols of places are drawn.</source>
        <translation>Wie groß die Symbole von Orten gezeichnet werden.</translation>
    </message>
    <message>
        <source>Draws the sensor of the input where it stands, with all that is chosen below.</source>
        <translation>Zeichnet den Sensor des Eingangs an seinem Standort, mit allem, was unten gewählt ist.</translation>
    </message>
    <message>
        <source>Writes the sensor&apos;s name beside its site.</source>
        <translation>Schreibt den Namen des Sensors an seinen Standort.</translation>
    </message>
    <message>
        <source>Draws a circle as far out as the sensor covers.</source>
        <translation>Zeichnet einen Kreis, so weit der Sensor reicht.</translation>
    </message>
    <message>
        <source>Draws where the antenna points, by the sector messages that come in.</source>
        <translation>Zeichnet, wohin die Antenne zeigt, nach den ankommenden Sektormeldungen.</translation>
    </message>
    <message>
        <source>Draws a line to the north for a moment whenever the antenna passes it.</source>
        <translation>Zeichnet kurz eine Linie nach Norden, sooft die Antenne dort vorbeikommt.</translation>
    </message>
    <message>
        <source>Colour of the sensor&apos;s symbol, its name and the rim of its coverage.</source>
        <translation>Farbe des Sensorsymbols, seines Namens und des Rands seiner Abdeckung.</translation>
    </message>
    <message>
        <source>Colour of the line that turns with the antenna.</source>
        <translation>Farbe der Linie, die sich mit der Antenne dreht.</translation>
    </message>
    <message>
        <source>Colour of the line that flashes when the antenna passes the north.</source>
        <translation>Farbe der Linie, die aufblitzt, wenn die Antenne durch Norden geht.</translation>
    </message>
    <message>
        <source>Draws circles of equal distance round the sensor or the centre chosen.</source>
        <translation>Zeichnet Kreise gleicher Entfernung um den Sensor oder die gewählte Mitte.</translation>
    </message>
    <message>
        <source>How many rings are drawn.</source>
        <translation>Wie viele Ringe gezeichnet werden.</translation>
    </message>
    <message>
        <source>From the centre to the first ring, and from each ring to the next.</source>
        <translation>Von der Mitte zum ersten Ring und von jedem Ring zum nächsten.</translation>
    </message>
    <message>
        <source>Colour of the rings.</source>
        <translation>Farbe der Ringe.</translation>
    </message>
    <message>
        <source>Writes the distance on each ring, on four bearings.</source>
        <translation>Schreibt an jeden Ring die Entfernung, in vier Richtungen.</translation>
    </message>
    <message>
        <source>Draws bearings round the rim of the view, which turn with it.</source>
        <translation>Zeichnet Richtungen um den Rand der Ansicht, die sich mit ihr drehen.</translation>
    </message>
    <message>
        <source>Draws how long some nautical miles are in the view.</source>
        <translation>Zeichnet, wie lang einige Seemeilen in der Ansicht sind.</translation>
    </message>
    <message>
        <source>Draws what each symbol and colour that is in sight means.</source>
        <translation>Zeichnet, was jedes sichtbare Symbol und jede sichtbare Farbe bedeutet.</translation>
    </message>
    <message>
        <source>Colour of ring distances, compass rose, scale bar and key.</source>
        <translation>Farbe von Ringentfernungen, Kompassrose, Maßstabsleiste und Legende.</translation>
    </message>
    <message>
        <source>How long a plot takes to fade away; 0 stands for three revolutions of the antenna.</source>
        <translation>Wie lange ein Plot zum Verblassen braucht; 0 steht für drei Umläufe der Antenne.</translation>
    </message>
    <message>
        <source>Colour of the marks of plots.</source>
        <translation>Farbe der Plotmarken.</translation>
    </message>
</context>
<context>
    <name>MapConversion</name>
    <message>
        <source>The suffix of &quot;%1&quot; is that of no map format.</source>
        <translation>Die Endung von „%1“ gehört zu keinem Kartenformat.</translation>
    </message>
</context>
<context>
    <name>MapEditorCommands</name>
    <message>
        <source>Change Map Data</source>
        <translation>Kartendaten ändern</translation>
    </message>
    <message>
        <source>Add Group</source>
        <translation>Gruppe hinzufügen</translation>
    </message>
    <message>
        <source>Delete Group</source>
        <translation>Gruppe löschen</translation>
    </message>
    <message>
        <source>Change Group</source>
        <translation>Gruppe ändern</translation>
    </message>
    <message>
        <source>Add Element</source>
        <translation>Element hinzufügen</translation>
    </message>
    <message>
        <source>Delete Element</source>
        <translation>Element löschen</translation>
    </message>
    <message>
        <source>Change Element</source>
        <translation>Element ändern</translation>
    </message>
    <message>
        <source>Change Points</source>
        <translation>Punkte ändern</translation>
    </message>
    <message>
        <source>Move Point</source>
        <translation>Punkt verschieben</translation>
    </message>
    <message>
        <source>Change Style</source>
        <translation>Stil ändern</translation>
    </message>
</context>
<context>
    <name>MapEditorDocument</name>
    <message>
        <source>Maps cannot be written in this format.</source>
        <translation>In diesem Format können Karten nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Cannot write backup file &quot;%1&quot;.</source>
        <translation>Die Sicherungsdatei „%1“ kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Name Image Files</source>
        <translation>Bilddateien benennen</translation>
    </message>
    <message>
        <source>Move Group</source>
        <translation>Gruppe verschieben</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Move to Group</source>
        <translation>In Gruppe verschieben</translation>
    </message>
    <message>
        <source>Delete Points</source>
        <translation>Punkte löschen</translation>
    </message>
</context>
<context>
    <name>MapEditorElementPane</name>
    <message>
        <source>Select an element on the left, or add one.</source>
        <translation>Wählen Sie links ein Element oder fügen Sie eines hinzu.</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Class:</source>
        <translation>&amp;Klasse:</translation>
    </message>
    <message>
        <source>Ca&amp;ption:</source>
        <translation>&amp;Beschriftung:</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Typ:</translation>
    </message>
    <message>
        <source>C&amp;oordinate:</source>
        <translation>K&amp;oordinate:</translation>
    </message>
    <message>
        <source>&amp;Image:</source>
        <translation>Bil&amp;d:</translation>
    </message>
    <message>
        <source>Nort&amp;h-west:</source>
        <translation>No&amp;rdwest:</translation>
    </message>
    <message>
        <source>So&amp;uth-east:</source>
        <translation>&amp;Südost:</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>Wählen...</translation>
    </message>
    <message>
        <source>There is no picture yet.</source>
        <translation>Noch kein Bild.</translation>
    </message>
    <message>
        <source>Choose Image</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.bmp *.gif);;All files (*)</source>
        <translation>Bilder (*.png *.jpg *.jpeg *.bmp *.gif);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The image &quot;%1&quot; could not be read: %2</source>
        <translation>Das Bild „%1“ konnte nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>MapEditorLayer</name>
    <message>
        <source>Map editor</source>
        <translation>Karteneditor</translation>
    </message>
</context>
<context>
    <name>MapEditorMetaPane</name>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>A&amp;uthor:</source>
        <translation>A&amp;utor:</translation>
    </message>
    <message>
        <source>&amp;Version:</source>
        <translation>&amp;Version:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>Co&amp;mment:</source>
        <translation>K&amp;ommentar:</translation>
    </message>
</context>
<context>
    <name>MapEditorPlanTool</name>
    <message>
        <source>Draw</source>
        <translation>Zeichnen</translation>
    </message>
</context>
<context>
    <name>MapEditorPointModel</name>
    <message>
        <source>Decimal Degrees</source>
        <translation>Dezimalgrad</translation>
    </message>
    <message>
        <source>Coordinate</source>
        <translation>Koordinate</translation>
    </message>
</context>
<context>
    <name>MapEditorPointPane</name>
    <message>
        <source>Insert Before</source>
        <translation>Davor einfügen</translation>
    </message>
    <message>
        <source>Put a point before the current one</source>
        <translation>Einen Punkt vor dem aktuellen einfügen</translation>
    </message>
    <message>
        <source>Insert After</source>
        <translation>Dahinter einfügen</translation>
    </message>
    <message>
        <source>Put a point behind the current one</source>
        <translation>Einen Punkt hinter dem aktuellen einfügen</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Insert coordinates from the clipboard, one a line</source>
        <translation>Koordinaten aus der Zwischenablage einfügen, eine je Zeile</translation>
    </message>
    <message>
        <source>Reverse</source>
        <translation>Umkehren</translation>
    </message>
    <message>
        <source>Turn the order of the points round</source>
        <translation>Die Reihenfolge der Punkte umkehren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete the selected points</source>
        <translation>Die ausgewählten Punkte löschen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no coordinate; nothing was pasted.</source>
        <translation>„%1“ ist keine Koordinate; nichts wurde eingefügt.</translation>
    </message>
    <message>
        <source>There are no coordinates to paste.</source>
        <translation>Es gibt keine Koordinaten zum Einfügen.</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
</context>
<context>
    <name>MapEditorProgress</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>MapEditorStylePane</name>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Line Colour</source>
        <translation>Linienfarbe</translation>
    </message>
    <message>
        <source>Fill Colour</source>
        <translation>Füllfarbe</translation>
    </message>
    <message>
        <source>solid</source>
        <translation>durchgezogen</translation>
    </message>
    <message>
        <source>dashed</source>
        <translation>gestrichelt</translation>
    </message>
    <message>
        <source>dotted</source>
        <translation>gepunktet</translation>
    </message>
    <message>
        <source>dash, dot</source>
        <translation>Strich, Punkt</translation>
    </message>
    <message>
        <source>dash, dot, dot</source>
        <translation>Strich, Punkt, Punkt</translation>
    </message>
    <message>
        <source>cross</source>
        <translation>Kreuz</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>&amp;Symbols and labels:</source>
        <translation>&amp;Symbole und Labels:</translation>
    </message>
    <message>
        <source>&amp;Line colour:</source>
        <translation>&amp;Linienfarbe:</translation>
    </message>
    <message>
        <source>Line st&amp;yle:</source>
        <translation>Linien&amp;art:</translation>
    </message>
    <message>
        <source>Line &amp;width:</source>
        <translation>Linien&amp;breite:</translation>
    </message>
    <message>
        <source>&amp;Fill colour:</source>
        <translation>&amp;Füllfarbe:</translation>
    </message>
    <message>
        <source>Fill &amp;pattern:</source>
        <translation>Füll&amp;muster:</translation>
    </message>
    <message>
        <source>F&amp;ont:</source>
        <translation>S&amp;chrift:</translation>
    </message>
    <message>
        <source>Font si&amp;ze:</source>
        <translation>Schrift&amp;größe:</translation>
    </message>
    <message>
        <source>New...</source>
        <translation>Neu...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>New Style Class</source>
        <translation>Neue Stilklasse</translation>
    </message>
    <message>
        <source>Name of the class:</source>
        <translation>Name der Klasse:</translation>
    </message>
    <message>
        <source>Style classes</source>
        <translation>Stilklassen</translation>
    </message>
</context>
<context>
    <name>MapEditorStyles</name>
    <message>
        <source>The style sheet has no file name.</source>
        <translation>Die Stildatei hat keinen Dateinamen.</translation>
    </message>
</context>
<context>
    <name>MapEditorTreeModel</name>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>no name</source>
        <translation>ohne Namen</translation>
    </message>
    <message>
        <source>1 point</source>
        <translation>1 Punkt</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 Punkte</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
</context>
<context>
    <name>MapEditorTreePane</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Nothing has this text.</source>
        <translation>Nichts enthält diesen Text.</translation>
    </message>
    <message>
        <source>Open a map, or add a group.</source>
        <translation>Öffnen Sie eine Karte oder fügen Sie eine Gruppe hinzu.</translation>
    </message>
    <message>
        <source>Elements of the map</source>
        <translation>Elemente der Karte</translation>
    </message>
</context>
<context>
    <name>MapEditorWindow</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Stile</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Open Style Sheet...</source>
        <translation>Stildatei öffnen...</translation>
    </message>
    <message>
        <source>Save Style Sheet As...</source>
        <translation>Stildatei speichern unter...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>&amp;Duplicate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Move to Group</source>
        <translation>In Gruppe &amp;verschieben</translation>
    </message>
    <message>
        <source>Move Group &amp;Up</source>
        <translation>Gruppe nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Group Dow&amp;n</source>
        <translation>Gruppe nach u&amp;nten</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>&amp;Gruppe</translation>
    </message>
    <message>
        <source>+ %1</source>
        <translation>+ %1</translation>
    </message>
    <message>
        <source>&amp;Plan View</source>
        <translation>&amp;Lagedarstellung</translation>
    </message>
    <message>
        <source>&amp;Draw</source>
        <translation>&amp;Zeichnen</translation>
    </message>
    <message>
        <source>&amp;Go There</source>
        <translation>&amp;Dorthin gehen</translation>
    </message>
    <message>
        <source>There is no plan view</source>
        <translation>Es gibt keine Lagedarstellung</translation>
    </message>
    <message>
        <source>Select an element first</source>
        <translation>Zuerst ein Element auswählen</translation>
    </message>
    <message>
        <source>Set points by clicks on the plan view; Enter ends, Escape cancels</source>
        <translation>Punkte durch Klicken in der Lagedarstellung setzen; Eingabe beendet, Escape bricht ab</translation>
    </message>
    <message>
        <source>Bring the element, or its current point, to the centre of the plan view</source>
        <translation>Das Element oder seinen aktuellen Punkt in die Mitte der Lagedarstellung bringen</translation>
    </message>
    <message>
        <source>New map</source>
        <translation>Neue Karte</translation>
    </message>
    <message>
        <source>%1[*] - Static Map Editor</source>
        <translation>%1[*] - Karteneditor</translation>
    </message>
    <message>
        <source>Click on the plan view to set points. Enter or a double-click ends, Escape cancels.</source>
        <translation>Klicken Sie in die Lagedarstellung, um Punkte zu setzen. Eingabe oder Doppelklick beendet, Escape bricht ab.</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>Neue Gruppe</translation>
    </message>
    <message>
        <source>Maps (*.xml *.map *.mapx);;All files (*)</source>
        <translation>Karten (*.xml *.map *.mapx);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Map Style Sheet (*.mss)</source>
        <translation>Kartenstildatei (*.mss)</translation>
    </message>
    <message>
        <source>Open Static Map</source>
        <translation>Statische Karte öffnen</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>The map could not be opened.</source>
        <translation>Die Karte konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The style sheet could not be opened.</source>
        <translation>Die Stildatei konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Select Map Style Sheet</source>
        <translation>Kartenstildatei wählen</translation>
    </message>
    <message>
        <source>Save Static Map</source>
        <translation>Statische Karte speichern</translation>
    </message>
    <message>
        <source>XML map (*.xml);;Binary map (*.map)</source>
        <translation>XML-Karte (*.xml);;Binäre Karte (*.map)</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>%1 wird gespeichert</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>The map could not be saved.</source>
        <translation>Die Karte konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Save Style Sheet</source>
        <translation>Stildatei speichern</translation>
    </message>
    <message>
        <source>The style sheet could not be saved.</source>
        <translation>Die Stildatei konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Static Map Editor</source>
        <translation>Karteneditor</translation>
    </message>
    <message>
        <source>The map has been changed.</source>
        <translation>Die Karte wurde geändert.</translation>
    </message>
    <message>
        <source>The styles have been changed.</source>
        <translation>Die Stile wurden geändert.</translation>
    </message>
    <message>
        <source>Save the changes?</source>
        <translation>Änderungen speichern?</translation>
    </message>
</context>
<context>
    <name>MapFile</name>
    <message>
        <source>Map file format mismatch.</source>
        <translation>Das Format der Kartendatei passt nicht.</translation>
    </message>
    <message>
        <source>Invalid map file open mode.</source>
        <translation>Ungültiger Öffnungsmodus für die Kartendatei.</translation>
    </message>
    <message>
        <source>Map file &quot;%1&quot; is not writable.</source>
        <translation>Die Kartendatei „%1“ ist nicht beschreibbar.</translation>
    </message>
    <message>
        <source>Map file &quot;%1&quot; does not exist or is not readable.</source>
        <translation>Die Kartendatei „%1“ gibt es nicht oder sie ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Cannot open map file &quot;%1&quot;: %2.</source>
        <translation>Die Kartendatei „%1“ kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>Cannot open map file &quot;%1&quot;.</source>
        <translation>Die Kartendatei „%1“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Cannot write map file &quot;%1&quot;: %2.</source>
        <translation>Die Kartendatei „%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>Map file is not open for reading.</source>
        <translation>Die Kartendatei ist nicht zum Lesen geöffnet.</translation>
    </message>
    <message>
        <source>Map file &quot;%1&quot; is too large.</source>
        <translation>Die Kartendatei „%1“ ist zu groß.</translation>
    </message>
    <message>
        <source>Map file is not open for writing.</source>
        <translation>Die Kartendatei ist nicht zum Schreiben geöffnet.</translation>
    </message>
    <message>
        <source>Reading was cancelled.</source>
        <translation>Das Lesen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Writing was cancelled.</source>
        <translation>Das Schreiben wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>MapImport</name>
    <message>
        <source>The import was cancelled.</source>
        <translation>Der Import wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Layer &quot;%1&quot;: %2</source>
        <translation>Ebene „%1“: %2</translation>
    </message>
    <message>
        <source>There is no reference system EPSG:%1.</source>
        <translation>Es gibt kein Bezugssystem EPSG:%1.</translation>
    </message>
    <message>
        <source>The reference system of the coordinates cannot be used: %1</source>
        <translation>Das Bezugssystem der Koordinaten ist nicht verwendbar: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) without a usable shape were left out.</source>
        <translation>
            <numerusform>%n Objekt ohne brauchbare Form wurde ausgelassen.</numerusform>
            <numerusform>%n Objekte ohne brauchbare Form wurden ausgelassen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s) outside of the globe were left out. Are the coordinates not degrees, and the reference system not stated?</source>
        <translation>
            <numerusform>%n Objekt außerhalb der Erdkugel wurde ausgelassen. Sind die Koordinaten keine Grad, und das Bezugssystem ist nicht angegeben?</numerusform>
            <numerusform>%n Objekte außerhalb der Erdkugel wurden ausgelassen. Sind die Koordinaten keine Grad, und das Bezugssystem ist nicht angegeben?</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no layer &quot;%1&quot;; the file has: %2.</source>
        <translation>Es gibt keine Ebene „%1“; die Datei hat: %2.</translation>
    </message>
    <message>
        <source>The file has no layers.</source>
        <translation>Die Datei hat keine Ebenen.</translation>
    </message>
    <message>
        <source>Cannot read &quot;%1&quot;: %2</source>
        <translation>„%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>it is not GeoJSON, KML, Shapefile or DXF.</source>
        <translation>es ist weder GeoJSON noch KML, Shapefile oder DXF.</translation>
    </message>
    <message>
        <source>Imported from %1</source>
        <translation>Importiert aus %1</translation>
    </message>
    <message>
        <source>This program was built without GDAL, which reads GeoJSON, KML, Shapefile and DXF. Install its development package (Debian and Ubuntu: libgdal-dev) and build again.</source>
        <translation>Dieses Programm wurde ohne GDAL gebaut, das GeoJSON, KML, Shapefile und DXF liest. Installieren Sie dessen Entwicklungspaket (Debian und Ubuntu: libgdal-dev) und bauen Sie neu.</translation>
    </message>
    <message>
        <source>Geographic files (%1)</source>
        <translation>Geografische Dateien (%1)</translation>
    </message>
    <message>
        <source>File &quot;%1&quot; does not exist or is not readable.</source>
        <translation>Die Datei „%1“ gibt es nicht oder sie ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Nothing in &quot;%1&quot; can be shown on a map.</source>
        <translation>Nichts in „%1“ lässt sich auf einer Karte zeigen.</translation>
    </message>
</context>
<context>
    <name>MapImportWindow</name>
    <message>
        <source>Names with commas between them; the first that a feature has counts.</source>
        <translation>Namen, durch Kommas getrennt; es zählt der erste, den ein Objekt hat.</translation>
    </message>
    <message>
        <source>as the file says</source>
        <translation>wie in der Datei</translation>
    </message>
    <message>
        <source>Import %1</source>
        <translation>%1 importieren</translation>
    </message>
    <message>
        <source>Import To</source>
        <translation>Importieren nach</translation>
    </message>
    <message>
        <source>Maps (*.map *.xml)</source>
        <translation>Karten (*.map *.xml)</translation>
    </message>
    <message>
        <source>all</source>
        <translation>alle</translation>
    </message>
    <message>
        <source>Names with commas between them</source>
        <translation>Namen, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>Map &amp;file:</source>
        <translation>Karten&amp;datei:</translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>&amp;Class:</source>
        <translation>&amp;Klasse:</translation>
    </message>
    <message>
        <source>&amp;Name from property:</source>
        <translation>&amp;Name aus Eigenschaft:</translation>
    </message>
    <message>
        <source>Ca&amp;ption from property:</source>
        <translation>&amp;Beschriftung aus Eigenschaft:</translation>
    </message>
    <message>
        <source>&amp;Symbol of points:</source>
        <translation>&amp;Symbol der Punkte:</translation>
    </message>
    <message>
        <source>&amp;Layers:</source>
        <translation>&amp;Ebenen:</translation>
    </message>
    <message>
        <source>Points become s&amp;ymbols</source>
        <translation>Punkte werden S&amp;ymbole</translation>
    </message>
    <message>
        <source>Points and airspaces get la&amp;bels</source>
        <translation>Punkte und Lufträume erhalten L&amp;abels</translation>
    </message>
    <message>
        <source>Fill &amp;areas</source>
        <translation>&amp;Flächen füllen</translation>
    </message>
    <message>
        <source>&amp;Recognise airspaces</source>
        <translation>Luft&amp;räume erkennen</translation>
    </message>
    <message>
        <source>Reference system of the coordinates, for files such as drawings that name none</source>
        <translation>Bezugssystem der Koordinaten, für Dateien wie Zeichnungen, die keines nennen</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source>keep all points</source>
        <translation>alle Punkte behalten</translation>
    </message>
    <message>
        <source>Lines and areas are simplified as long as they move by no more than this</source>
        <translation>Linien und Flächen werden vereinfacht, solange sie sich dabei um nicht mehr als dies verschieben</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Koordinaten</translation>
    </message>
    <message>
        <source>&amp;EPSG code:</source>
        <translation>EPS&amp;G-Code:</translation>
    </message>
    <message>
        <source>&amp;Tolerance:</source>
        <translation>&amp;Toleranz:</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>The name of a file is needed.</source>
        <translation>Der Name einer Datei fehlt.</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>Das ist ein Ordner.</translation>
    </message>
    <message>
        <source>The name has to end in &quot;.map&quot; or &quot;.xml&quot;.</source>
        <translation>Der Name muss auf „.map“ oder „.xml“ enden.</translation>
    </message>
    <message>
        <source>Replace &quot;%1&quot;?</source>
        <translation>„%1“ ersetzen?</translation>
    </message>
</context>
<context>
    <name>MapIndex</name>
    <message>
        <source>Cannot open map index file &quot;%1&quot;: %2.</source>
        <translation>Die Kartenindexdatei „%1“ kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>Malformed map index file &quot;%1&quot;: %2.</source>
        <translation>Die Kartenindexdatei „%1“ ist fehlerhaft: %2.</translation>
    </message>
    <message>
        <source>Cannot write map index file &quot;%1&quot;: %2.</source>
        <translation>Die Kartenindexdatei „%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
</context>
<context>
    <name>MapLibrary</name>
    <message>
        <source>Loading was cancelled.</source>
        <translation>Das Laden wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Failed to load map %1: %2</source>
        <translation>Die Karte %1 konnte nicht geladen werden: %2</translation>
    </message>
    <message>
        <source>Loading stylesheet: %1</source>
        <translation>Stildatei wird geladen: %1</translation>
    </message>
    <message>
        <source>Loading stylesheet: NOT FOUND</source>
        <translation>Stildatei wird geladen: NICHT GEFUNDEN</translation>
    </message>
    <message>
        <source>Failed to load style sheet:</source>
        <translation>Die Stildatei konnte nicht geladen werden:</translation>
    </message>
</context>
<context>
    <name>MapLoad</name>
    <message>
        <source>The format of the map file is unknown.</source>
        <translation>Das Format der Kartendatei ist unbekannt.</translation>
    </message>
</context>
<context>
    <name>MapStylePreview</name>
    <message>
        <source>LABEL</source>
        <translation>LABEL</translation>
    </message>
</context>
<context>
    <name>MapStyleSheet</name>
    <message>
        <source>This is not a valid map style sheet.</source>
        <translation>Das ist keine gültige Kartenstildatei.</translation>
    </message>
    <message>
        <source>Style sheet &quot;%1&quot; does not exist or is not readable.</source>
        <translation>Die Stildatei „%1“ gibt es nicht oder sie ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Cannot create directory &quot;%1&quot;.</source>
        <translation>Das Verzeichnis „%1“ kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Cannot write backup file &quot;%1&quot;.</source>
        <translation>Die Sicherungsdatei „%1“ kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>MapWindows</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>MapXmlReader</name>
    <message>
        <source>An element has too many attributes.</source>
        <translation>Ein Element hat zu viele Attribute.</translation>
    </message>
    <message>
        <source>Elements are nested too deeply.</source>
        <translation>Elemente sind zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>Definitions of entities are not read.</source>
        <translation>Entitätsdefinitionen werden nicht gelesen.</translation>
    </message>
</context>
<context>
    <name>MbTilesReader</name>
    <message>
        <source>The file does not exist.</source>
        <translation>Die Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>This is not an MBTiles file (%1).</source>
        <translation>Das ist keine MBTiles-Datei (%1).</translation>
    </message>
    <message>
        <source>The file has no tiles.</source>
        <translation>Die Datei hat keine Kacheln.</translation>
    </message>
    <message>
        <source>The file holds vector tiles, which cannot be shown. It must hold pictures (PNG or JPEG).</source>
        <translation>Die Datei enthält Vektorkacheln, die nicht gezeigt werden können. Sie muss Bilder enthalten (PNG oder JPEG).</translation>
    </message>
    <message>
        <source>The tiles of the file are not pictures (PNG or JPEG).</source>
        <translation>Die Kacheln der Datei sind keine Bilder (PNG oder JPEG).</translation>
    </message>
    <message>
        <source>The tiles are %1 pictures, which need a plugin of Qt that is not installed.</source>
        <translation>Die Kacheln sind %1-Bilder, für die ein nicht installiertes Qt-Plugin nötig ist.</translation>
    </message>
</context>
<context>
    <name>MbTilesWriter</name>
    <message>
        <source>Another program is writing the file.</source>
        <translation>Ein anderes Programm schreibt gerade in die Datei.</translation>
    </message>
    <message>
        <source>The folder cannot be written to.</source>
        <translation>In den Ordner kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>Die Datei kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>A tile is not a picture.</source>
        <translation>Eine Kachel ist kein Bild.</translation>
    </message>
    <message>
        <source>There are no tiles to write.</source>
        <translation>Es gibt keine Kacheln zu schreiben.</translation>
    </message>
</context>
<context>
    <name>MessageRouter</name>
    <message>
        <source>Decoded ASTERIX data block reports zero size, the rest of the message is dropped.</source>
        <translation>Ein decodierter ASTERIX-Datenblock meldet die Größe null, der Rest der Nachricht wird verworfen.</translation>
    </message>
    <message>
        <source>ASTERIX data block with SAC/SIC %1/%2 does not match the configured sensor SAC/SIC %3/%4, dropped.</source>
        <translation>ASTERIX-Datenblock mit SAC/SIC %1/%2 passt nicht zu SAC/SIC %3/%4 des eingerichteten Sensors, verworfen.</translation>
    </message>
    <message>
        <source>Unsupported ASTERIX catetory received: %1</source>
        <translation>Nicht unterstützte ASTERIX-Kategorie empfangen: %1</translation>
    </message>
    <message>
        <source>Failed to extract Mode-S encapsulation.</source>
        <translation>Die Mode-S-Kapselung konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Failed to decode Mode-S message.</source>
        <translation>Eine Mode-S-Nachricht konnte nicht decodiert werden.</translation>
    </message>
    <message>
        <source>Failed to decode Alenia SIR-M message (%1 bytes).</source>
        <translation>Eine Alenia-SIR-M-Nachricht konnte nicht decodiert werden (%1 Bytes).</translation>
    </message>
    <message>
        <source>Failed to decode Alenia SIR-M message (%1 bytes), further failures are logged as debug.</source>
        <translation>Eine Alenia-SIR-M-Nachricht konnte nicht decodiert werden (%1 Bytes), weitere Fehler werden als Debug protokolliert.</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Messages</source>
        <translation>Meldungen</translation>
    </message>
</context>
<context>
    <name>MlatTracker</name>
    <message>
        <source>MLAT Tracker: CAT020 message has neither valid track number (I020/161) nor valid Mode-S address (I020/220), ignore.</source>
        <translation>MLAT-Tracker: CAT020-Meldung ohne gültige Tracknummer (I020/161) und ohne gültige Mode-S-Adresse (I020/220), ignoriert.</translation>
    </message>
    <message>
        <source>MLAT Tracker: CAT010 message has neither valid track number (I010/161) nor valid Mode-S address (I010/220), ignore.</source>
        <translation>MLAT-Tracker: CAT010-Meldung ohne gültige Tracknummer (I010/161) und ohne gültige Mode-S-Adresse (I010/220), ignoriert.</translation>
    </message>
    <message>
        <source>MLAT Tracker: the vertical trends (I020/170) of SAC/SIC %1/%2 contradict its levels, which changed the other way by %3 ft; the trends shown may be wrong.</source>
        <translation>MLAT-Tracker: die Vertikaltendenzen (I020/170) von SAC/SIC %1/%2 widersprechen seinen Höhen, die sich um %3 ft in die andere Richtung änderten; die gezeigten Tendenzen können falsch sein.</translation>
    </message>
</context>
<context>
    <name>OctetSource</name>
    <message>
        <source>Reading was cancelled.</source>
        <translation>Das Lesen wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>OctetView</name>
    <message>
        <source>Octets of the report</source>
        <translation>Oktette der Meldung</translation>
    </message>
</context>
<context>
    <name>PasswordField</name>
    <message>
        <source>Set...</source>
        <translation>Setzen...</translation>
    </message>
    <message>
        <source>Change...</source>
        <translation>Ändern...</translation>
    </message>
</context>
<context>
    <name>PasswordWindow</name>
    <message>
        <source>Lock Settings</source>
        <translation>Einstellungen sperren</translation>
    </message>
    <message>
        <source>Without the password nobody changes settings, sensors, maps or layouts here. The scope is worked with as before, and what is switched on it holds until the program ends.</source>
        <translation>Ohne das Passwort ändert hier niemand Einstellungen, Sensoren, Karten oder Layouts. Mit der Anzeige wird gearbeitet wie bisher, und was an ihr eingeschaltet wird, gilt bis zum Ende des Programms.</translation>
    </message>
    <message>
        <source>&amp;New password:</source>
        <translation>&amp;Neues Passwort:</translation>
    </message>
    <message>
        <source>At least %1 characters.</source>
        <translation>Mindestens %1 Zeichen.</translation>
    </message>
    <message>
        <source>&amp;Again:</source>
        <translation>N&amp;och einmal:</translation>
    </message>
    <message>
        <source>The same once more, against slips.</source>
        <translation>Dasselbe noch einmal, gegen Tippfehler.</translation>
    </message>
    <message>
        <source>&amp;Remove Password</source>
        <translation>Passwort &amp;entfernen</translation>
    </message>
    <message>
        <source>The two are not the same.</source>
        <translation>Die beiden sind nicht gleich.</translation>
    </message>
</context>
<context>
    <name>PcapWriter</name>
    <message>
        <source>A payload of %1 octets does not fit into a datagram.</source>
        <translation>Nutzdaten von %1 Oktetten passen nicht in ein Datagramm.</translation>
    </message>
    <message>
        <source>The time stamp cannot be stored.</source>
        <translation>Der Zeitstempel kann nicht gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>PlanLayers</name>
    <message>
        <source>Maps</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Tiles</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Plots</source>
        <translation>Plots</translation>
    </message>
    <message>
        <source>Rings</source>
        <translation>Ringe</translation>
    </message>
    <message>
        <source>Compass Rose</source>
        <translation>Kompassrose</translation>
    </message>
    <message>
        <source>Scale Bar</source>
        <translation>Maßstabsleiste</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Legende</translation>
    </message>
</context>
<context>
    <name>PlanViewWindow</name>
    <message>
        <source>Plan View %1 - %2</source>
        <translation>Lagedarstellung %1 - %2</translation>
    </message>
    <message>
        <source>Plan View %1</source>
        <translation>Lagedarstellung %1</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Rotate Right</source>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>Rotate Left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Rotate North Up</source>
        <translation>Nach Norden ausrichten</translation>
    </message>
    <message>
        <source>View of the Main Window</source>
        <translation>Ausschnitt des Hauptfensters</translation>
    </message>
    <message>
        <source>Follow Selected Track</source>
        <translation>Gewähltem Track folgen</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Labels</translation>
    </message>
    <message>
        <source>Position under the pointer</source>
        <translation>Position unter dem Zeiger</translation>
    </message>
    <message>
        <source>Scale, metres per pixel</source>
        <translation>Maßstab, Meter je Pixel</translation>
    </message>
    <message>
        <source>SCL %1</source>
        <translation>MST %1</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Folgen</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Zentrieren</translation>
    </message>
    <message>
        <source>Reset Label</source>
        <translation>Label zurücksetzen</translation>
    </message>
    <message>
        <source>Explain</source>
        <translation>Erklären</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>Quittieren</translation>
    </message>
</context>
<context>
    <name>PlotSwitch</name>
    <message>
        <source>Plots are shown because %1 brings target reports but no tracks (Map, Toggle Plots).</source>
        <translation>Plots werden gezeigt, weil %1 Zielmeldungen, aber keine Tracks bringt (Karte, Plots ein/aus).</translation>
    </message>
</context>
<context>
    <name>ProbeText</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1 octets/s</source>
        <translation>%1 Oktette/s</translation>
    </message>
    <message>
        <source>%1 kB/s</source>
        <translation>%1 kB/s</translation>
    </message>
    <message>
        <source>%1 MB/s</source>
        <translation>%1 MB/s</translation>
    </message>
    <message>
        <source>%1 datagrams/s</source>
        <translation>%1 Datagramme/s</translation>
    </message>
    <message>
        <source>%1 messages/s</source>
        <translation>%1 Nachrichten/s</translation>
    </message>
    <message>
        <source>with track numbers</source>
        <translation>mit Tracknummern</translation>
    </message>
    <message>
        <source>with aircraft addresses, no track numbers</source>
        <translation>mit Luftfahrzeugadressen, ohne Tracknummern</translation>
    </message>
    <message>
        <source>no track numbers</source>
        <translation>keine Tracknummern</translation>
    </message>
    <message>
        <source>%1 messages a second</source>
        <translation>%1 Nachrichten je Sekunde</translation>
    </message>
    <message>
        <source>no reports of targets</source>
        <translation>keine Zielmeldungen</translation>
    </message>
    <message>
        <source>%1 plots a second</source>
        <translation>%1 Plots je Sekunde</translation>
    </message>
    <message>
        <source>%1 reports a second</source>
        <translation>%1 Meldungen je Sekunde</translation>
    </message>
    <message>
        <source>no positions</source>
        <translation>keine Positionen</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>%1 sources: %2</source>
        <translation>%1 Quellen: %2</translation>
    </message>
    <message>
        <source>%1 frames a second</source>
        <translation>%1 Rahmen je Sekunde</translation>
    </message>
    <message>
        <source>%1 aircraft with extended squitters</source>
        <translation>%1 Luftfahrzeuge mit Extended Squitter</translation>
    </message>
    <message>
        <source>%1 radar %2</source>
        <translation>%1 Radar %2</translation>
    </message>
    <message>
        <source>%1 track reports a second</source>
        <translation>%1 Trackmeldungen je Sekunde</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <translation>%1, in %2</translation>
    </message>
    <message>
        <source>Data arrive on %1.</source>
        <translation>Auf %1 kommen Daten an.</translation>
    </message>
    <message>
        <source>Data arrive on %1, but they are no ASTERIX, Mode S or SIR-M data; they begin with %2.</source>
        <translation>Auf %1 kommen Daten an, aber es sind keine ASTERIX-, Mode-S- oder SIR-M-Daten; sie beginnen mit %2.</translation>
    </message>
    <message>
        <source>Listening on %1. Nothing has arrived yet.</source>
        <translation>Es wird auf %1 gehört. Noch ist nichts angekommen.</translation>
    </message>
    <message>
        <source>Nothing arrives on %1, for %2 s now.</source>
        <translation>Auf %1 kommt nichts an, seit %2 s.</translation>
    </message>
    <message>
        <source>The interface %1 is switched off.</source>
        <translation>Die Schnittstelle %1 ist ausgeschaltet.</translation>
    </message>
    <message>
        <source>The interface %1 has no link: check its cable.</source>
        <translation>Die Schnittstelle %1 hat keine Verbindung: prüfen Sie ihr Kabel.</translation>
    </message>
    <message>
        <source>Is the sender running, and does it send to the group %1 and port %2?</source>
        <translation>Läuft der Sender, und sendet er an die Gruppe %1 und den Port %2?</translation>
    </message>
    <message>
        <source>Is the sender on the network of the interface %1?</source>
        <translation>Ist der Sender im Netz der Schnittstelle %1?</translation>
    </message>
    <message>
        <source>Choose the interface that the sender&apos;s network is plugged into; the system has chosen one by itself.</source>
        <translation>Wählen Sie die Schnittstelle, an der das Netz des Senders angeschlossen ist; das System hat selbst eine gewählt.</translation>
    </message>
    <message>
        <source>Does the firewall of this machine let UDP port %1 in?</source>
        <translation>Lässt die Firewall dieses Rechners den UDP-Port %1 herein?</translation>
    </message>
    <message>
        <source>Do the switches on the way pass the group on (IGMP)?</source>
        <translation>Geben die Switches unterwegs die Gruppe weiter (IGMP)?</translation>
    </message>
    <message>
        <source>this machine</source>
        <translation>diesen Rechner</translation>
    </message>
    <message>
        <source>this machine, %1,</source>
        <translation>diesen Rechner, %1,</translation>
    </message>
    <message>
        <source>Is the sender running, and does it send to %1 and port %2?</source>
        <translation>Läuft der Sender, und sendet er an %1 und den Port %2?</translation>
    </message>
    <message>
        <source>Is it multicast? Then tick Multicast and enter the group.</source>
        <translation>Ist es Multicast? Dann setzen Sie das Häkchen bei Multicast und geben Sie die Gruppe ein.</translation>
    </message>
    <message>
        <source>Is the network cable plugged in?</source>
        <translation>Ist das Netzwerkkabel eingesteckt?</translation>
    </message>
    <message>
        <source>Is the line plugged in at both ends, and is the sender running?</source>
        <translation>Ist die Leitung an beiden Enden eingesteckt, und läuft der Sender?</translation>
    </message>
    <message>
        <source>Is %1 the right device?</source>
        <translation>Ist %1 das richtige Gerät?</translation>
    </message>
    <message>
        <source>Does the line need a crossed cable (null modem)?</source>
        <translation>Braucht die Leitung ein gekreuztes Kabel (Nullmodem)?</translation>
    </message>
    <message>
        <source>Check baud rate, data bits and parity: with wrong ones the octets arrive garbled.</source>
        <translation>Prüfen Sie Baudrate, Datenbits und Parität: mit falschen kommen die Oktette verstümmelt an.</translation>
    </message>
    <message>
        <source>Does something else send to this port?</source>
        <translation>Sendet etwas anderes an diesen Port?</translation>
    </message>
    <message>
        <source>Are the data encrypted, or in another format?</source>
        <translation>Sind die Daten verschlüsselt oder in einem anderen Format?</translation>
    </message>
    <message>
        <source>polar</source>
        <translation>polar</translation>
    </message>
    <message>
        <source>Cartesian</source>
        <translation>kartesisch</translation>
    </message>
    <message>
        <source>WGS-84</source>
        <translation>WGS-84</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 Positionen</translation>
    </message>
    <message>
        <source>no table for this category</source>
        <translation>keine Tabelle für diese Kategorie</translation>
    </message>
    <message>
        <source>cannot be decoded</source>
        <translation>nicht decodierbar</translation>
    </message>
    <message>
        <source>turning once in %1 s</source>
        <translation>ein Umlauf in %1 s</translation>
    </message>
    <message>
        <source>Receiver</source>
        <translation>Empfänger</translation>
    </message>
    <message>
        <source>Radar %1</source>
        <translation>Radar %1</translation>
    </message>
    <message>
        <source>%1 /s</source>
        <translation>%1 /s</translation>
    </message>
    <message>
        <source>%1 aircraft, %2 positions</source>
        <translation>%1 Luftfahrzeuge, %2 Positionen</translation>
    </message>
    <message>
        <source>%1 plots, %2 tracks</source>
        <translation>%1 Plots, %2 Tracks</translation>
    </message>
    <message>
        <source>Opening %1 ...</source>
        <translation>%1 wird geöffnet ...</translation>
    </message>
    <message>
        <source>The input is paused.</source>
        <translation>Der Eingang ist angehalten.</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Nothing for %1 s now; before that: %2.</source>
        <translation>Seit %1 s nichts; davor: %2.</translation>
    </message>
    <message>
        <source>To be shown with the %1, as the sensor &quot;%2&quot; of the sensor file.</source>
        <translation>Zu zeigen mit: %1, als Sensor „%2“ der Sensordatei.</translation>
    </message>
    <message>
        <source>To be shown with the %1, as %2.</source>
        <translation>Zu zeigen mit: %1, als %2.</translation>
    </message>
    <message>
        <source>Location: %1.</source>
        <translation>Standort: %1.</translation>
    </message>
    <message>
        <source>Where it stands is not told by the data: enter its location.</source>
        <translation>Wo er steht, sagen die Daten nicht: geben Sie seinen Standort ein.</translation>
    </message>
    <message>
        <source>The time of one turn is not found out yet: listen for some turns more, or enter it.</source>
        <translation>Die Umlaufzeit ist noch nicht ermittelt: hören Sie noch einige Umläufe zu oder geben Sie sie ein.</translation>
    </message>
    <message>
        <source>The interface %1 is not there.</source>
        <translation>Die Schnittstelle %1 ist nicht da.</translation>
    </message>
</context>
<context>
    <name>ProbeView</name>
    <message>
        <source>What arrives, by source</source>
        <translation>Was ankommt, nach Quelle</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Edition</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>V/S</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>&amp;Use What Was Found</source>
        <translation>Ge&amp;fundenes verwenden</translation>
    </message>
    <message>
        <source>Fills the pages Processor and Sensor; nothing is applied before you say so.</source>
        <translation>Füllt die Seiten Verarbeitung und Sensor aus; nichts wird angewendet, bevor Sie es sagen.</translation>
    </message>
</context>
<context>
    <name>ProcessorConfigPage</name>
    <message>
        <source>Processor</source>
        <translation>Verarbeitung</translation>
    </message>
    <message>
        <source>&amp;Processor:</source>
        <translation>&amp;Verarbeitung:</translation>
    </message>
    <message>
        <source>What the messages of the input are: it must fit what the sensor sends.</source>
        <translation>Was die Nachrichten des Eingangs sind: es muss zu dem passen, was der Sensor sendet.</translation>
    </message>
    <message>
        <source>&amp;Format:</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>What the data blocks are wrapped in on the line.</source>
        <translation>Worin die Datenblöcke auf der Leitung verpackt sind.</translation>
    </message>
    <message>
        <source>U&amp;ser application profile:</source>
        <translation>&amp;User Application Profile:</translation>
    </message>
    <message>
        <source>The edition of the category that the sensor encodes. Automatic finds it out block by block.</source>
        <translation>Die Ausgabe der Kategorie, in der der Sensor codiert. Automatisch ermittelt sie Block für Block.</translation>
    </message>
    <message>
        <source>&amp;Drop messages with another SAC/SIC than the sensor&apos;s</source>
        <translation>Meldungen mit &amp;anderem SAC/SIC als dem des Sensors verwerfen</translation>
    </message>
    <message>
        <source>Keeps the reports of other sensors on the same line off the picture.</source>
        <translation>Hält Meldungen anderer Sensoren auf derselben Leitung vom Bild fern.</translation>
    </message>
    <message>
        <source>Ignore &amp;WGS-84 positions</source>
        <translation>&amp;WGS-84-Positionen ignorieren</translation>
    </message>
    <message>
        <source>For MLAT and SDPS sensors: places tracks by their Cartesian position.</source>
        <translation>Für MLAT- und SDPS-Sensoren: zeigt Tracks an ihrer kartesischen Position.</translation>
    </message>
    <message>
        <source>Ignore &amp;Cartesian positions</source>
        <translation>&amp;Kartesische Positionen ignorieren</translation>
    </message>
    <message>
        <source>For MLAT and SDPS sensors: places tracks by their WGS-84 position.</source>
        <translation>Für MLAT- und SDPS-Sensoren: zeigt Tracks an ihrer WGS-84-Position.</translation>
    </message>
    <message>
        <source>Correct the &amp;longitude wrap</source>
        <translation>Über&amp;lauf der Länge korrigieren</translation>
    </message>
    <message>
        <source>For SDPS sensors that let longitudes overflow: brings them back to -180° to 180°.</source>
        <translation>Für SDPS-Sensoren, deren Längen überlaufen: bringt sie auf -180° bis 180° zurück.</translation>
    </message>
    <message>
        <source>&amp;Encapsulation:</source>
        <translation>Ka&amp;pselung:</translation>
    </message>
    <message>
        <source>How the receiver hands out the frames.</source>
        <translation>Wie der Empfänger die Rahmen ausgibt.</translation>
    </message>
    <message>
        <source>&amp;Ignore the receiver&apos;s time stamps</source>
        <translation>&amp;Zeitstempel des Empfängers ignorieren</translation>
    </message>
    <message>
        <source>Dates a frame when it arrives. Right unless the receiver&apos;s clock is better than the line.</source>
        <translation>Datiert einen Rahmen auf seine Ankunft. Richtig, solange die Uhr des Empfängers nicht besser ist als die Leitung.</translation>
    </message>
    <message>
        <source>Forget a silent &amp;target after:</source>
        <translation>Stummes Z&amp;iel vergessen nach:</translation>
    </message>
    <message>
        <source>How long the decoder keeps what it knows of an aircraft that is no longer heard.</source>
        <translation>Wie lange der Decoder behält, was er von einem nicht mehr gehörten Luftfahrzeug weiß.</translation>
    </message>
    <message>
        <source>Check &amp;barometric altitudes for jumps</source>
        <translation>&amp;Barometrische Höhen auf Sprünge prüfen</translation>
    </message>
    <message>
        <source>Drops altitudes that an aircraft cannot have reached since the last one.</source>
        <translation>Verwirft Höhen, die ein Luftfahrzeug seit der letzten nicht erreicht haben kann.</translation>
    </message>
    <message>
        <source>Compare &amp;with altitudes up to:</source>
        <translation>Vergleichen mit &amp;Höhen bis:</translation>
    </message>
    <message>
        <source>The age up to which the last altitude is compared; an older one is replaced whatever comes.</source>
        <translation>Das Alter, bis zu dem die letzte Höhe verglichen wird; eine ältere wird in jedem Fall ersetzt.</translation>
    </message>
    <message>
        <source>Largest &amp;change:</source>
        <translation>&amp;Größte Änderung:</translation>
    </message>
    <message>
        <source>An altitude that differs by more from the last one is dropped.</source>
        <translation>Eine Höhe, die von der letzten um mehr abweicht, wird verworfen.</translation>
    </message>
    <message>
        <source>F&amp;ormat:</source>
        <translation>F&amp;ormat:</translation>
    </message>
    <message>
        <source>What the radar&apos;s messages are wrapped in on the line.</source>
        <translation>Worin die Nachrichten des Radars auf der Leitung verpackt sind.</translation>
    </message>
</context>
<context>
    <name>ProfileWindow</name>
    <message>
        <source>New Window With Profile</source>
        <translation>Neues Fenster mit Profil</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>For example approach</source>
        <translation>Zum Beispiel anflug</translation>
    </message>
    <message>
        <source>A profile has its own settings, layouts and windows. Choose one, or name a new one.</source>
        <translation>Ein Profil hat eigene Einstellungen, Layouts und Fenster. Wählen Sie eines oder nennen Sie ein neues.</translation>
    </message>
    <message>
        <source>&amp;Profile:</source>
        <translation>&amp;Profil:</translation>
    </message>
    <message>
        <source>Open &amp;Window</source>
        <translation>&amp;Fenster öffnen</translation>
    </message>
    <message>
        <source>A name has letters A to Z, digits and the signs - _ . only.</source>
        <translation>Ein Name besteht nur aus Buchstaben von A bis Z, Ziffern und den Zeichen - _ .</translation>
    </message>
    <message>
        <source>This window has that profile.</source>
        <translation>Dieses Fenster hat jenes Profil.</translation>
    </message>
</context>
<context>
    <name>RadarTracker</name>
    <message>
        <source>Radar Tracker: CAT001 message has no valid track number (I001/161), ignore.</source>
        <translation>Radar-Tracker: CAT001-Meldung ohne gültige Tracknummer (I001/161), ignoriert.</translation>
    </message>
    <message>
        <source>Radar Tracker: CAT048 message has neither valid track number (I048/161) nor valid Mode-S address (I048/220), ignore.</source>
        <translation>Radar-Tracker: CAT048-Meldung ohne gültige Tracknummer (I048/161) und ohne gültige Mode-S-Adresse (I048/220), ignoriert.</translation>
    </message>
    <message>
        <source>Alenia SIR-M Tracker: radar north is not synchronized.</source>
        <translation>Alenia-SIR-M-Tracker: Radar-Nord ist nicht synchronisiert.</translation>
    </message>
    <message>
        <source>Alenia SIR-M Tracker: radar north is synchronized.</source>
        <translation>Alenia-SIR-M-Tracker: Radar-Nord ist synchronisiert.</translation>
    </message>
    <message>
        <source>Alenia SIR-M Tracker: radar clock is not synchronized.</source>
        <translation>Alenia-SIR-M-Tracker: die Radaruhr ist nicht synchronisiert.</translation>
    </message>
    <message>
        <source>Alenia SIR-M Tracker: radar clock is synchronized.</source>
        <translation>Alenia-SIR-M-Tracker: die Radaruhr ist synchronisiert.</translation>
    </message>
</context>
<context>
    <name>RangeRingWindow</name>
    <message>
        <source>Range Rings</source>
        <translation>Entfernungsringe</translation>
    </message>
    <message>
        <source>&amp;Centre:</source>
        <translation>&amp;Mitte:</translation>
    </message>
    <message>
        <source>&amp;Number of rings:</source>
        <translation>&amp;Anzahl der Ringe:</translation>
    </message>
    <message>
        <source>&amp;Distance between rings:</source>
        <translation>Abstand z&amp;wischen den Ringen:</translation>
    </message>
</context>
<context>
    <name>RawBlockFraming</name>
    <message>
        <source>The file ends within a data block&apos;s header.</source>
        <translation>Die Datei endet im Kopf eines Datenblocks.</translation>
    </message>
    <message>
        <source>A data block&apos;s length field says %1.</source>
        <translation>Das Längenfeld eines Datenblocks nennt %1.</translation>
    </message>
    <message>
        <source>The file ends within a data block of %1 octets.</source>
        <translation>Die Datei endet innerhalb eines Datenblocks von %1 Oktetten.</translation>
    </message>
</context>
<context>
    <name>RawFilterBar</name>
    <message>
        <source>All categories</source>
        <translation>Alle Kategorien</translation>
    </message>
    <message>
        <source>List records of this category only</source>
        <translation>Nur Datensätze dieser Kategorie auflisten</translation>
    </message>
    <message>
        <source>All sources</source>
        <translation>Alle Quellen</translation>
    </message>
    <message>
        <source>List records of this SAC/SIC only</source>
        <translation>Nur Datensätze dieses SAC/SIC auflisten</translation>
    </message>
    <message>
        <source>Whatever became of them</source>
        <translation>Was auch aus ihnen wurde</translation>
    </message>
    <message>
        <source>List records of which this became only</source>
        <translation>Nur Datensätze auflisten, aus denen dies wurde</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Verwendet</translation>
    </message>
    <message>
        <source>Dropped</source>
        <translation>Verworfen</translation>
    </message>
    <message>
        <source>Cannot be decoded</source>
        <translation>Nicht decodierbar</translation>
    </message>
    <message>
        <source>Call sign, code, address, #track</source>
        <translation>Rufzeichen, Code, Adresse, #Track</translation>
    </message>
</context>
<context>
    <name>RawRecord</name>
    <message>
        <source>Mode S</source>
        <translation>Mode S</translation>
    </message>
    <message>
        <source>SIR-M</source>
        <translation>SIR-M</translation>
    </message>
    <message>
        <source>%1: %2, at octet %3</source>
        <translation>%1: %2, bei Oktett %3</translation>
    </message>
</context>
<context>
    <name>RawRecordModel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Octets</source>
        <translation>Oktette</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>Identität</translation>
    </message>
    <message>
        <source>Became</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Holds</source>
        <translation>Inhalt</translation>
    </message>
</context>
<context>
    <name>RawViewWindow</name>
    <message>
        <source>Raw View</source>
        <translation>Rohdaten</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>List nothing more; what arrives meanwhile is not kept</source>
        <translation>Nichts mehr auflisten; was inzwischen ankommt, wird nicht aufbewahrt</translation>
    </message>
    <message>
        <source>&amp;Follow</source>
        <translation>&amp;Folgen</translation>
    </message>
    <message>
        <source>Keep the newest record in sight</source>
        <translation>Den neuesten Datensatz im Blick behalten</translation>
    </message>
    <message>
        <source>Find a value, an item, a reason</source>
        <translation>Wert, Element oder Grund suchen</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>&amp;Vorheriges suchen</translation>
    </message>
    <message>
        <source>The next older record with that text</source>
        <translation>Der nächstältere Datensatz mit diesem Text</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Nächstes suchen</translation>
    </message>
    <message>
        <source>The next newer record with that text</source>
        <translation>Der nächstneuere Datensatz mit diesem Text</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>Save the listed records to a file</source>
        <translation>Die aufgelisteten Datensätze in eine Datei speichern</translation>
    </message>
    <message>
        <source>&amp;Diagnose...</source>
        <translation>&amp;Diagnostizieren...</translation>
    </message>
    <message>
        <source>Say in words what arrives and what is wrong with it</source>
        <translation>In Worten sagen, was ankommt und was daran falsch ist</translation>
    </message>
    <message>
        <source>Choose a record to see what it holds.</source>
        <translation>Wählen Sie einen Datensatz, um seinen Inhalt zu sehen.</translation>
    </message>
    <message>
        <source>Paused, what arrives is not kept</source>
        <translation>Angehalten, was ankommt, wird nicht aufbewahrt</translation>
    </message>
    <message>
        <source>Nothing has arrived yet</source>
        <translation>Noch nichts angekommen</translation>
    </message>
    <message>
        <source>%1 newest records</source>
        <translation>die neuesten %1 Datensätze</translation>
    </message>
    <message>
        <source>%1 of the %2 newest records</source>
        <translation>%1 der neuesten %2 Datensätze</translation>
    </message>
    <message>
        <source>%1 records/s</source>
        <translation>%1 Datensätze/s</translation>
    </message>
    <message>
        <source>%1 came too fast and were left out</source>
        <translation>%1 kamen zu schnell und wurden ausgelassen</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Suche...</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Export Records</source>
        <translation>Datensätze exportieren</translation>
    </message>
    <message>
        <source>JSON lines (*.ndjson);;Network capture (*.pcap);;Octets as text (*.txt)</source>
        <translation>JSON-Zeilen (*.ndjson);;Netzwerkmitschnitt (*.pcap);;Oktette als Text (*.txt)</translation>
    </message>
    <message>
        <source>Exporting...</source>
        <translation>Export läuft...</translation>
    </message>
    <message>
        <source>%1 records saved to %2</source>
        <translation>%1 Datensätze in %2 gespeichert</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Datensätze</translation>
    </message>
</context>
<context>
    <name>RecFile</name>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>Its contents are none of the known recording formats.</source>
        <translation>Ihr Inhalt hat keines der bekannten Aufzeichnungsformate.</translation>
    </message>
    <message>
        <source>It is no regular file.</source>
        <translation>Es ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>Network capture</source>
        <translation>Netzwerkmitschnitt</translation>
    </message>
    <message>
        <source>Network capture, next generation</source>
        <translation>Netzwerkmitschnitt, nächste Generation</translation>
    </message>
    <message>
        <source>Raw ASTERIX data blocks</source>
        <translation>Rohe ASTERIX-Datenblöcke</translation>
    </message>
    <message>
        <source>Final format recording</source>
        <translation>Aufzeichnung im Final Format</translation>
    </message>
    <message>
        <source>GPS recording</source>
        <translation>GPS-Aufzeichnung</translation>
    </message>
    <message>
        <source>Mode S recording</source>
        <translation>Mode-S-Aufzeichnung</translation>
    </message>
    <message>
        <source>Unknown recording format</source>
        <translation>Unbekanntes Aufzeichnungsformat</translation>
    </message>
    <message>
        <source>Recording files</source>
        <translation>Aufzeichnungen</translation>
    </message>
</context>
<context>
    <name>RecordText</name>
    <message>
        <source>Not decoded: %1, at octet %2.</source>
        <translation>Nicht decodiert: %1, bei Oktett %2.</translation>
    </message>
    <message>
        <source>Only the first %1 of its %2 octets are kept.</source>
        <translation>Nur die ersten %1 der %2 Oktette sind aufbewahrt.</translation>
    </message>
    <message>
        <source>There is no table that reads this.</source>
        <translation>Keine Tabelle liest dies.</translation>
    </message>
</context>
<context>
    <name>RecordTree</name>
    <message>
        <source>Item</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>Items of the record</source>
        <translation>Elemente des Datensatzes</translation>
    </message>
</context>
<context>
    <name>RecordingAnalysis</name>
    <message>
        <source>%1 (at octet %2).</source>
        <translation>%1 (bei Oktett %2).</translation>
    </message>
    <message>
        <source>The capture holds no UDP datagrams.</source>
        <translation>Der Mitschnitt enthält keine UDP-Datagramme.</translation>
    </message>
    <message>
        <source>It holds no messages.</source>
        <translation>Sie enthält keine Nachrichten.</translation>
    </message>
    <message>
        <source>It holds %1.</source>
        <translation>Sie enthält %1.</translation>
    </message>
</context>
<context>
    <name>RecordingAssessment</name>
    <message>
        <source>%1 (at octet %2)</source>
        <translation>%1 (bei Oktett %2)</translation>
    </message>
    <message>
        <source>It holds no ASTERIX data.</source>
        <translation>Sie enthält keine ASTERIX-Daten.</translation>
    </message>
</context>
<context>
    <name>RecordingInput</name>
    <message>
        <source>Open recording file: %1</source>
        <translation>Aufzeichnung wird geöffnet: %1</translation>
    </message>
    <message>
        <source>Recording file format is not supported.</source>
        <translation>Das Format der Aufzeichnung wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>Failed to crate recording file reader.</source>
        <translation>Der Leser für die Aufzeichnung konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>Failed to open recording file: %1</source>
        <translation>Die Aufzeichnung konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>%1 is no file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message>
        <source>The recording cannot be read.</source>
        <translation>Die Aufzeichnung kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Replay start time: %1</source>
        <translation>Startzeit der Wiedergabe: %1</translation>
    </message>
    <message>
        <source>Seeking replay start time.</source>
        <translation>Die Startzeit der Wiedergabe wird gesucht.</translation>
    </message>
    <message>
        <source>The recording contains no timestamp, its start time cannot be sought.</source>
        <translation>Die Aufzeichnung enthält keine Zeitstempel, ihre Startzeit kann nicht gesucht werden.</translation>
    </message>
    <message>
        <source>The recording cannot be read up to the replay start time: %1</source>
        <translation>Die Aufzeichnung kann nicht bis zur Startzeit der Wiedergabe gelesen werden: %1</translation>
    </message>
    <message>
        <source>Replay start from %1</source>
        <translation>Wiedergabe ab %1</translation>
    </message>
    <message>
        <source>Recording file contains no timestamp, replay from the beginning.</source>
        <translation>Die Aufzeichnung enthält keine Zeitstempel, Wiedergabe von Anfang an.</translation>
    </message>
    <message>
        <source>Error occured when reading recording file.</source>
        <translation>Beim Lesen der Aufzeichnung ist ein Fehler aufgetreten.</translation>
    </message>
    <message>
        <source>Reach end of recording file.</source>
        <translation>Ende der Aufzeichnung erreicht.</translation>
    </message>
    <message>
        <source>Reach end of recording file, restarting replay.</source>
        <translation>Ende der Aufzeichnung erreicht, die Wiedergabe beginnt von vorn.</translation>
    </message>
    <message>
        <source>Recording file contains no replayable data.</source>
        <translation>Die Aufzeichnung enthält nichts, was wiedergegeben werden kann.</translation>
    </message>
    <message>
        <source>%1 (at octet %2)</source>
        <translation>%1 (bei Oktett %2)</translation>
    </message>
</context>
<context>
    <name>RecordingOpener</name>
    <message>
        <source>Failed to open recording file: %1</source>
        <translation>Die Aufzeichnung konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Looking at %1 ...</source>
        <translation>%1 wird untersucht ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Open Recording</source>
        <translation>Aufzeichnung öffnen</translation>
    </message>
    <message>
        <source>Recording file format is not supported.</source>
        <translation>Das Format der Aufzeichnung wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>%1 cannot be played. %2</source>
        <translation>%1 kann nicht wiedergegeben werden. %2</translation>
    </message>
    <message>
        <source>%1 holds %2.</source>
        <translation>%1 enthält %2.</translation>
    </message>
    <message>
        <source>The recording does not tell where %1 stands: it is shown around %2 for now; give its place with --sensor, or as Location in Settings, Sensor.</source>
        <translation>Die Aufzeichnung sagt nicht, wo %1 steht: sie wird vorläufig um %2 gezeigt; geben Sie den Standort mit --sensor oder in den Einstellungen unter Sensor an.</translation>
    </message>
</context>
<context>
    <name>Reopening</name>
    <message>
        <source>The input is opened again in %1 s.</source>
        <translation>Der Eingang wird in %1 s wieder geöffnet.</translation>
    </message>
</context>
<context>
    <name>ReplayControls</name>
    <message>
        <source>Open Recording</source>
        <translation>Aufzeichnung öffnen</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Record Input</source>
        <translation>Eingang aufzeichnen</translation>
    </message>
</context>
<context>
    <name>ReplayWindow</name>
    <message>
        <source>Playback</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Ab&amp;brechen</translation>
    </message>
    <message>
        <source>&amp;Jump to:</source>
        <translation>&amp;Springen zu:</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Los</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>S&amp;tart</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>St&amp;opp</translation>
    </message>
    <message>
        <source>&amp;Live Input</source>
        <translation>Live-&amp;Eingang</translation>
    </message>
    <message>
        <source>Leave the recording and go back to the live input</source>
        <translation>Die Aufzeichnung verlassen und zum Live-Eingang zurückkehren</translation>
    </message>
    <message>
        <source>Start &amp;again at the end</source>
        <translation>Am Ende von &amp;vorn beginnen</translation>
    </message>
    <message>
        <source>S&amp;peed:</source>
        <translation>Te&amp;mpo:</translation>
    </message>
    <message>
        <source>No recording is open.</source>
        <translation>Keine Aufzeichnung ist geöffnet.</translation>
    </message>
    <message>
        <source>Open one, or drop a file onto the main window.</source>
        <translation>Öffnen Sie eine oder ziehen Sie eine Datei auf das Hauptfenster.</translation>
    </message>
    <message>
        <source>Reading the recording to find its times ...</source>
        <translation>Die Aufzeichnung wird gelesen, um ihre Zeiten zu finden ...</translation>
    </message>
    <message>
        <source>Not read to its end: its times are not known, it plays from its beginning.</source>
        <translation>Nicht bis zum Ende gelesen: die Zeiten sind nicht bekannt, sie läuft von Anfang an.</translation>
    </message>
    <message>
        <source>Cannot be read: %1</source>
        <translation>Kann nicht gelesen werden: %1</translation>
    </message>
    <message numerus="yes">
        <source>%1, %2, %n message(s)</source>
        <translation>
            <numerusform>%1, %2, %n Nachricht</numerusform>
            <numerusform>%1, %2, %n Nachrichten</numerusform>
        </translation>
    </message>
    <message>
        <source>, without time stamps: plays as fast as it can be read</source>
        <translation>, ohne Zeitstempel: läuft so schnell, wie sie gelesen werden kann</translation>
    </message>
    <message>
        <source>. Faulty: %1</source>
        <translation>. Fehlerhaft: %1</translation>
    </message>
    <message>
        <source>%1 elapsed</source>
        <translation>%1 vergangen</translation>
    </message>
    <message>
        <source>%1 remaining</source>
        <translation>%1 verbleiben</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>Fo&amp;rtsetzen</translation>
    </message>
    <message>
        <source>The times of this recording are not known</source>
        <translation>Die Zeiten dieser Aufzeichnung sind nicht bekannt</translation>
    </message>
</context>
<context>
    <name>ReportOutcome</name>
    <message>
        <source>shown as track</source>
        <translation>als Track gezeigt</translation>
    </message>
    <message>
        <source>ended a track</source>
        <translation>beendete einen Track</translation>
    </message>
    <message>
        <source>shown as plot</source>
        <translation>als Plot gezeigt</translation>
    </message>
    <message>
        <source>alert</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>radar video</source>
        <translation>Radarvideo</translation>
    </message>
    <message>
        <source>status of the source</source>
        <translation>Status der Quelle</translation>
    </message>
    <message>
        <source>another SAC/SIC than the sensor&apos;s</source>
        <translation>anderer SAC/SIC als der des Sensors</translation>
    </message>
    <message>
        <source>cannot be decoded</source>
        <translation>nicht decodierbar</translation>
    </message>
    <message>
        <source>a kind of message that is not shown</source>
        <translation>Nachrichtenart, die nicht gezeigt wird</translation>
    </message>
    <message>
        <source>not of the configured kind of sensor</source>
        <translation>nicht von der eingestellten Sensorart</translation>
    </message>
    <message>
        <source>no track number, no address</source>
        <translation>ohne Tracknummer, ohne Adresse</translation>
    </message>
    <message>
        <source>test target</source>
        <translation>Testziel</translation>
    </message>
    <message>
        <source>no position</source>
        <translation>ohne Position</translation>
    </message>
    <message>
        <source>position out of range</source>
        <translation>Position außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>no system track number free</source>
        <translation>keine System-Tracknummer frei</translation>
    </message>
    <message>
        <source>incomplete message</source>
        <translation>unvollständige Nachricht</translation>
    </message>
    <message>
        <source>unsupported form of message</source>
        <translation>nicht unterstützte Form der Nachricht</translation>
    </message>
    <message>
        <source>Mode A/C reply</source>
        <translation>Mode-A/C-Antwort</translation>
    </message>
    <message>
        <source>Mode S address not confirmed</source>
        <translation>Mode-S-Adresse nicht bestätigt</translation>
    </message>
</context>
<context>
    <name>ReportView</name>
    <message>
        <source>aircraft identification</source>
        <translation>Luftfahrzeugkennung</translation>
    </message>
    <message>
        <source>MCP/FCU selected altitude</source>
        <translation>gewählte Höhe MCP/FCU</translation>
    </message>
    <message>
        <source>FMS selected altitude</source>
        <translation>gewählte Höhe FMS</translation>
    </message>
    <message>
        <source>barometric pressure setting</source>
        <translation>barometrische Druckeinstellung</translation>
    </message>
    <message>
        <source>roll angle</source>
        <translation>Rollwinkel</translation>
    </message>
    <message>
        <source>true track angle</source>
        <translation>rechtweisender Kurs über Grund</translation>
    </message>
    <message>
        <source>ground speed</source>
        <translation>Geschwindigkeit über Grund</translation>
    </message>
    <message>
        <source>track angle rate</source>
        <translation>Änderung des Kurses über Grund</translation>
    </message>
    <message>
        <source>true airspeed</source>
        <translation>wahre Eigengeschwindigkeit</translation>
    </message>
    <message>
        <source>magnetic heading</source>
        <translation>missweisender Steuerkurs</translation>
    </message>
    <message>
        <source>indicated airspeed</source>
        <translation>angezeigte Eigengeschwindigkeit</translation>
    </message>
    <message>
        <source>Mach number</source>
        <translation>Machzahl</translation>
    </message>
    <message>
        <source>barometric altitude rate</source>
        <translation>barometrische Höhenänderung</translation>
    </message>
    <message>
        <source>inertial vertical velocity</source>
        <translation>inertiale Vertikalgeschwindigkeit</translation>
    </message>
    <message>
        <source>ASTERIX record that cannot be decoded</source>
        <translation>nicht decodierbarer ASTERIX-Datensatz</translation>
    </message>
    <message>
        <source>CAT%1, edition %2</source>
        <translation>CAT%1, Ausgabe %2</translation>
    </message>
    <message>
        <source>downlink format</source>
        <translation>Downlink-Format</translation>
    </message>
    <message>
        <source>message field</source>
        <translation>Nachrichtenfeld</translation>
    </message>
    <message>
        <source>aircraft address</source>
        <translation>Luftfahrzeugadresse</translation>
    </message>
    <message>
        <source>aircraft address, laid over the parity</source>
        <translation>Luftfahrzeugadresse, der Parität überlagert</translation>
    </message>
    <message>
        <source>flight status</source>
        <translation>Flugstatus</translation>
    </message>
    <message>
        <source>capability</source>
        <translation>Fähigkeit</translation>
    </message>
    <message>
        <source>altitude</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Mode A code</source>
        <translation>Mode-A-Code</translation>
    </message>
    <message>
        <source>type code</source>
        <translation>Typcode</translation>
    </message>
    <message>
        <source>movement</source>
        <translation>Bewegung</translation>
    </message>
    <message>
        <source>ground track</source>
        <translation>Kurs über Grund</translation>
    </message>
    <message>
        <source>emergency state</source>
        <translation>Notlage</translation>
    </message>
    <message>
        <source>height above the ellipsoid</source>
        <translation>Höhe über dem Ellipsoid</translation>
    </message>
    <message>
        <source>barometric altitude</source>
        <translation>barometrische Höhe</translation>
    </message>
    <message>
        <source>surface</source>
        <translation>am Boden</translation>
    </message>
    <message>
        <source>airborne</source>
        <translation>in der Luft</translation>
    </message>
    <message>
        <source>CPR format</source>
        <translation>CPR-Format</translation>
    </message>
    <message>
        <source>odd</source>
        <translation>ungerade</translation>
    </message>
    <message>
        <source>even</source>
        <translation>gerade</translation>
    </message>
    <message>
        <source>encoded latitude, %1</source>
        <translation>codierte Breite, %1</translation>
    </message>
    <message>
        <source>encoded longitude, %1</source>
        <translation>codierte Länge, %1</translation>
    </message>
    <message>
        <source>velocity subtype</source>
        <translation>Untertyp der Geschwindigkeit</translation>
    </message>
    <message>
        <source>ground speed, of its east and north components</source>
        <translation>Geschwindigkeit über Grund, aus Ost- und Nordanteil</translation>
    </message>
    <message>
        <source>track, of the velocity&apos;s east and north components</source>
        <translation>Kurs über Grund, aus Ost- und Nordanteil der Geschwindigkeit</translation>
    </message>
    <message>
        <source>heading</source>
        <translation>Steuerkurs</translation>
    </message>
    <message>
        <source>airspeed</source>
        <translation>Eigengeschwindigkeit</translation>
    </message>
    <message>
        <source>vertical rate</source>
        <translation>Vertikalgeschwindigkeit</translation>
    </message>
    <message>
        <source>Mode S frame that cannot be decoded</source>
        <translation>nicht decodierbarer Mode-S-Rahmen</translation>
    </message>
    <message>
        <source>, type code %1</source>
        <translation>, Typcode %1</translation>
    </message>
    <message>
        <source>track number</source>
        <translation>Tracknummer</translation>
    </message>
    <message>
        <source>velocity valid</source>
        <translation>Geschwindigkeit gültig</translation>
    </message>
    <message>
        <source>velocity present</source>
        <translation>Geschwindigkeit vorhanden</translation>
    </message>
    <message>
        <source>rate of climb valid</source>
        <translation>Steigrate gültig</translation>
    </message>
    <message>
        <source>Mode C valid</source>
        <translation>Mode C gültig</translation>
    </message>
    <message>
        <source>Mode A valid</source>
        <translation>Mode A gültig</translation>
    </message>
    <message>
        <source>vertical trend</source>
        <translation>Vertikaltendenz</translation>
    </message>
    <message>
        <source>track type</source>
        <translation>Trackart</translation>
    </message>
    <message>
        <source>coasting</source>
        <translation>extrapoliert</translation>
    </message>
    <message>
        <source>x, east</source>
        <translation>x, Osten</translation>
    </message>
    <message>
        <source>y, north</source>
        <translation>y, Norden</translation>
    </message>
    <message>
        <source>velocity east</source>
        <translation>Geschwindigkeit nach Osten</translation>
    </message>
    <message>
        <source>velocity north</source>
        <translation>Geschwindigkeit nach Norden</translation>
    </message>
    <message>
        <source>Mode C height</source>
        <translation>Mode-C-Höhe</translation>
    </message>
    <message>
        <source>rate of climb or descent</source>
        <translation>Steig- oder Sinkrate</translation>
    </message>
    <message>
        <source>track end</source>
        <translation>Trackende</translation>
    </message>
    <message>
        <source>Alenia SIR-M track record</source>
        <translation>Alenia-SIR-M-Trackdatensatz</translation>
    </message>
    <message>
        <source>plot type</source>
        <translation>Plotart</translation>
    </message>
    <message>
        <source>slant range</source>
        <translation>Schrägentfernung</translation>
    </message>
    <message>
        <source>azimuth</source>
        <translation>Azimut</translation>
    </message>
    <message>
        <source>Alenia SIR-M plot record</source>
        <translation>Alenia-SIR-M-Plotdatensatz</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>message type</source>
        <translation>Nachrichtentyp</translation>
    </message>
    <message>
        <source>radar</source>
        <translation>Radar-Nummer</translation>
    </message>
    <message>
        <source>length of the message</source>
        <translation>Länge der Nachricht</translation>
    </message>
    <message>
        <source>time of day</source>
        <translation>Tageszeit</translation>
    </message>
    <message>
        <source>north not synchronised</source>
        <translation>Norden nicht synchronisiert</translation>
    </message>
    <message>
        <source>clock not synchronised</source>
        <translation>Uhr nicht synchronisiert</translation>
    </message>
    <message>
        <source>rotation period</source>
        <translation>Umlaufzeit</translation>
    </message>
    <message>
        <source>sector valid</source>
        <translation>Sektor gültig</translation>
    </message>
    <message>
        <source>sector</source>
        <translation>Sektor</translation>
    </message>
    <message>
        <source>plot records in the message</source>
        <translation>Plot-Datensätze in der Nachricht</translation>
    </message>
    <message>
        <source>track records in the message</source>
        <translation>Track-Datensätze in der Nachricht</translation>
    </message>
    <message>
        <source>Alenia SIR-M sector without records</source>
        <translation>Alenia-SIR-M-Sektor ohne Datensätze</translation>
    </message>
    <message>
        <source>Alenia SIR-M message that cannot be decoded</source>
        <translation>Alenia-SIR-M-Nachricht, die sich nicht decodieren lässt</translation>
    </message>
    <message>
        <source>Alenia SIR-M north marker</source>
        <translation>Alenia-SIR-M-Nordmarke</translation>
    </message>
    <message>
        <source>ACAS operational</source>
        <translation>ACAS in Betrieb</translation>
    </message>
    <message>
        <source>Mode S subnetwork version</source>
        <translation>Version des Mode-S-Subnetzes</translation>
    </message>
    <message>
        <source>aircraft identification can be read</source>
        <translation>Luftfahrzeugkennung lesbar</translation>
    </message>
    <message>
        <source>surveillance identifiers are known</source>
        <translation>Überwachungskennungen bekannt</translation>
    </message>
    <message>
        <source>ACAS with hybrid surveillance</source>
        <translation>ACAS mit Hybrid-Überwachung</translation>
    </message>
    <message>
        <source>ACAS with resolution advisories</source>
        <translation>ACAS mit Ausweichempfehlungen</translation>
    </message>
    <message>
        <source>registers that are filled</source>
        <translation>gefüllte Register</translation>
    </message>
    <message>
        <source>resolution advisory</source>
        <translation>Ausweichempfehlung</translation>
    </message>
    <message>
        <source>what must not be done</source>
        <translation>was zu unterlassen ist</translation>
    </message>
    <message>
        <source>advisory has ended</source>
        <translation>Empfehlung beendet</translation>
    </message>
    <message>
        <source>several threats</source>
        <translation>mehrere Konflikte</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>corrective</source>
        <translation>korrigierend</translation>
    </message>
    <message>
        <source>preventive</source>
        <translation>vorbeugend</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>abwärts</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>aufwärts</translation>
    </message>
    <message>
        <source>climb or descend</source>
        <translation>steigen oder sinken</translation>
    </message>
    <message>
        <source>limit of vertical speed</source>
        <translation>Begrenzung der Vertikalgeschwindigkeit</translation>
    </message>
    <message>
        <source>increased rate</source>
        <translation>erhöhte Rate</translation>
    </message>
    <message>
        <source>sense reversed</source>
        <translation>Richtung umgekehrt</translation>
    </message>
    <message>
        <source>levels cross</source>
        <translation>Höhen kreuzen sich</translation>
    </message>
    <message>
        <source>do not pass below</source>
        <translation>nicht darunter hindurch</translation>
    </message>
    <message>
        <source>do not pass above</source>
        <translation>nicht darüber hinweg</translation>
    </message>
    <message>
        <source>do not turn left</source>
        <translation>nicht nach links drehen</translation>
    </message>
    <message>
        <source>do not turn right</source>
        <translation>nicht nach rechts drehen</translation>
    </message>
    <message>
        <source>threat&apos;s address</source>
        <translation>Adresse des Konfliktpartners</translation>
    </message>
    <message>
        <source>threat&apos;s altitude</source>
        <translation>Höhe des Konfliktpartners</translation>
    </message>
    <message>
        <source>threat&apos;s range</source>
        <translation>Entfernung des Konfliktpartners</translation>
    </message>
    <message>
        <source>threat&apos;s bearing</source>
        <translation>Peilung des Konfliktpartners</translation>
    </message>
</context>
<context>
    <name>RotationWindow</name>
    <message>
        <source>Rotate View</source>
        <translation>Ansicht drehen</translation>
    </message>
    <message>
        <source>Positive turns the picture clockwise</source>
        <translation>Positive Werte drehen das Bild im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>&amp;Rotation, clockwise:</source>
        <translation>D&amp;rehung, im Uhrzeigersinn:</translation>
    </message>
</context>
<context>
    <name>RunConfig</name>
    <message>
        <source>Cannot write the settings file %1</source>
        <translation>Die Einstellungsdatei %1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Changed settings are not saved: another window with the same settings was open first.</source>
        <translation>Geänderte Einstellungen werden nicht gespeichert: ein anderes Fenster mit denselben Einstellungen war zuerst offen.</translation>
    </message>
</context>
<context>
    <name>SdpsTracker</name>
    <message>
        <source>SDPS Tracker: CAT062 message has neither valid track number (I062/040) nor valid Mode-S address (I062/380/ADR), ignore.</source>
        <translation>SDPS-Tracker: CAT062-Meldung ohne gültige Tracknummer (I062/040) und ohne gültige Mode-S-Adresse (I062/380/ADR), ignoriert.</translation>
    </message>
</context>
<context>
    <name>SensorAssessor</name>
    <message>
        <source>Radar %1</source>
        <translation>Radar %1</translation>
    </message>
    <message>
        <source>It sends no plots.</source>
        <translation>Es sendet keine Plots.</translation>
    </message>
    <message>
        <source>There is nothing to compare it with: the data hold neither ADS-B reports (CAT021) nor system tracks (CAT062).</source>
        <translation>Es gibt nichts zum Vergleichen: die Daten enthalten weder ADS-B-Meldungen (CAT021) noch Systemtracks (CAT062).</translation>
    </message>
    <message>
        <source>Where the radar stands is not known: it is neither given nor sent in I034/120.</source>
        <translation>Wo das Radar steht, ist nicht bekannt: der Standort ist weder angegeben, noch wird er in I034/120 gesendet.</translation>
    </message>
    <message>
        <source>None of its plots could be matched with the reference by address or Mode 3/A code.</source>
        <translation>Keiner seiner Plots ließ sich über Adresse oder Mode-3/A-Code der Referenz zuordnen.</translation>
    </message>
    <message>
        <source>Too few plots could be matched with the reference, or they lie in too few directions.</source>
        <translation>Zu wenige Plots ließen sich der Referenz zuordnen, oder sie liegen in zu wenigen Richtungen.</translation>
    </message>
</context>
<context>
    <name>SensorCheck</name>
    <message>
        <source>Detected, %1</source>
        <translation>Erfasst, %1</translation>
    </message>
</context>
<context>
    <name>SensorCheckWindow</name>
    <message>
        <source>Detection</source>
        <translation>Erfassung</translation>
    </message>
    <message>
        <source>By Range</source>
        <translation>Nach Entfernung</translation>
    </message>
    <message>
        <source>Range Errors</source>
        <translation>Entfernungsfehler</translation>
    </message>
    <message>
        <source>Azimuth Errors</source>
        <translation>Azimutfehler</translation>
    </message>
    <message>
        <source>Antenna</source>
        <translation>Antenne</translation>
    </message>
    <message>
        <source>Sensor Check</source>
        <translation>Sensorprüfung</translation>
    </message>
    <message>
        <source>Check the input as it comes, or choose a recording.</source>
        <translation>Prüfen Sie den Eingang, wie er ankommt, oder wählen Sie eine Aufzeichnung.</translation>
    </message>
    <message>
        <source>Choose a recording.</source>
        <translation>Wählen Sie eine Aufzeichnung.</translation>
    </message>
    <message>
        <source>The input, as it comes</source>
        <translation>Der Eingang, wie er ankommt</translation>
    </message>
    <message>
        <source>A recording:</source>
        <translation>Eine Aufzeichnung:</translation>
    </message>
    <message>
        <source>Check Recording</source>
        <translation>Aufzeichnung prüfen</translation>
    </message>
    <message>
        <source>Data:</source>
        <translation>Daten:</translation>
    </message>
    <message>
        <source>Radar:</source>
        <translation>Radar:</translation>
    </message>
    <message>
        <source>Figure</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
    <message>
        <source>Show the probability of detection on the &amp;map</source>
        <translation>Entdeckungswahrscheinlichkeit auf der &amp;Karte zeigen</translation>
    </message>
    <message>
        <source>&amp;Export Report...</source>
        <translation>Bericht &amp;exportieren...</translation>
    </message>
    <message>
        <source>The input has ended; this is what came until then.</source>
        <translation>Der Eingang ist zu Ende; dies kam bis dahin.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Gestoppt.</translation>
    </message>
    <message>
        <source>No input is open: start one, or choose a recording.</source>
        <translation>Kein Eingang ist geöffnet: starten Sie einen oder wählen Sie eine Aufzeichnung.</translation>
    </message>
    <message>
        <source>Listening...</source>
        <translation>Höre zu...</translation>
    </message>
    <message>
        <source>Choose a recording first.</source>
        <translation>Wählen Sie zuerst eine Aufzeichnung.</translation>
    </message>
    <message>
        <source>Reading %1...</source>
        <translation>%1 wird gelesen...</translation>
    </message>
    <message>
        <source>The file is damaged: %1</source>
        <translation>Die Datei ist beschädigt: %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>There are no reports of radars (CAT001, CAT002, CAT034, CAT048).</source>
        <translation>Es gibt keine Meldungen von Radaren (CAT001, CAT002, CAT034, CAT048).</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>St&amp;opp</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>S&amp;tart</translation>
    </message>
    <message>
        <source>Where this radar stands is not known.</source>
        <translation>Wo dieses Radar steht, ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Export Report</source>
        <translation>Bericht exportieren</translation>
    </message>
    <message>
        <source>sensor-check.html</source>
        <translation>sensorpruefung.html</translation>
    </message>
    <message>
        <source>Web page (*.html);;Portable document (*.pdf)</source>
        <translation>Webseite (*.html);;PDF-Dokument (*.pdf)</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>In %1 geschrieben.</translation>
    </message>
</context>
<context>
    <name>SensorConfigPage</name>
    <message>
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
    <message>
        <source>From the &amp;file:</source>
        <translation>Aus de&amp;r Datei:</translation>
    </message>
    <message>
        <source>Sensor of the input</source>
        <translation>Sensor des Eingangs</translation>
    </message>
    <message>
        <source>As entered below</source>
        <translation>Wie unten eingegeben</translation>
    </message>
    <message>
        <source>The sensor file holds no sensor.</source>
        <translation>Die Sensordatei enthält keinen Sensor.</translation>
    </message>
    <message>
        <source>Fills the fields below from the sensor file.</source>
        <translation>Füllt die Felder unten aus der Sensordatei.</translation>
    </message>
</context>
<context>
    <name>SensorEditWindow</name>
    <message>
        <source>Edit Sensor</source>
        <translation>Sensor bearbeiten</translation>
    </message>
    <message>
        <source>New Sensor</source>
        <translation>Neuer Sensor</translation>
    </message>
</context>
<context>
    <name>SensorForm</name>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Typ:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;SAC:</source>
        <translation>&amp;SAC:</translation>
    </message>
    <message>
        <source>System area code, 0 to 255: whose sensor it is, as in its messages.</source>
        <translation>System Area Code, 0 bis 255: wessen Sensor es ist, wie in seinen Meldungen.</translation>
    </message>
    <message>
        <source>S&amp;IC:</source>
        <translation>S&amp;IC:</translation>
    </message>
    <message>
        <source>System identification code, 0 to 255: which of the area&apos;s sensors it is.</source>
        <translation>System Identification Code, 0 bis 255: welcher Sensor des Gebiets es ist.</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>Stand&amp;ort:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>Manu&amp;facturer:</source>
        <translation>&amp;Hersteller:</translation>
    </message>
    <message>
        <source>&amp;Model:</source>
        <translation>&amp;Modell:</translation>
    </message>
    <message>
        <source>In service since &amp;year:</source>
        <translation>In Betrieb seit &amp;Jahr:</translation>
    </message>
    <message>
        <source>not given</source>
        <translation>nicht angegeben</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>A sensor needs a name.</source>
        <translation>Ein Sensor braucht einen Namen.</translation>
    </message>
    <message>
        <source>Another sensor is named &quot;%1&quot;.</source>
        <translation>Ein anderer Sensor heißt „%1“.</translation>
    </message>
    <message>
        <source>What kind of sensor it is; the fields below depend on it.</source>
        <translation>Welche Art Sensor es ist; die Felder darunter hängen davon ab.</translation>
    </message>
    <message>
        <source>What the sensor is called on the map and in messages; no two have the same name.</source>
        <translation>Wie der Sensor auf der Karte und in Meldungen heißt; keine zwei heißen gleich.</translation>
    </message>
    <message>
        <source>Where the sensor stands (WGS-84), such as 480815N0114712E or 48.1375 11.7867.</source>
        <translation>Wo der Sensor steht (WGS-84), etwa 480815N0114712E oder 48.1375 11.7867.</translation>
    </message>
    <message>
        <source>Whatever helps to tell the sensor from others.</source>
        <translation>Was immer den Sensor von anderen unterscheiden hilft.</translation>
    </message>
    <message>
        <source>Who made the sensor; those of the other records are offered.</source>
        <translation>Wer den Sensor gebaut hat; die der anderen Datensätze werden angeboten.</translation>
    </message>
    <message>
        <source>What the maker calls it; the models of the maker&apos;s other records are offered.</source>
        <translation>Wie der Hersteller ihn nennt; die Modelle seiner anderen Datensätze werden angeboten.</translation>
    </message>
    <message>
        <source>The year in which the sensor entered service.</source>
        <translation>Das Jahr, in dem der Sensor in Betrieb ging.</translation>
    </message>
</context>
<context>
    <name>SensorList</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>SAC/SIC</source>
        <translation>SAC/SIC</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>Manufacturer, model</source>
        <translation>Hersteller, Modell</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>The sensor of the input</source>
        <translation>Der Sensor des Eingangs</translation>
    </message>
    <message>
        <source>%1, the sensor of the input</source>
        <translation>%1, der Sensor des Eingangs</translation>
    </message>
</context>
<context>
    <name>SensorManager</name>
    <message>
        <source>%1: sensor &quot;%2&quot; has a value that is not valid and takes its default: %3</source>
        <translation>%1: der Sensor „%2“ hat einen ungültigen Wert und erhält dessen Vorgabe: %3</translation>
    </message>
    <message>
        <source>%1: sensors &quot;%2&quot; and &quot;%3&quot; have the same SAC/SIC, %4/%5</source>
        <translation>%1: die Sensoren „%2“ und „%3“ haben denselben SAC/SIC, %4/%5</translation>
    </message>
    <message>
        <source>Record %1: %2</source>
        <translation>Datensatz %1: %2</translation>
    </message>
    <message>
        <source>it is no object.</source>
        <translation>es ist kein Objekt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no known type: &quot;%2&quot;.</source>
        <translation>„%1“ hat keinen bekannten Typ: „%2“.</translation>
    </message>
    <message>
        <source>it has no name.</source>
        <translation>er hat keinen Namen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no valid location: &quot;%2&quot;.</source>
        <translation>„%1“ hat keinen gültigen Standort: „%2“.</translation>
    </message>
    <message>
        <source>It is no JSON: %1, line %2.</source>
        <translation>Es ist kein JSON: %1, Zeile %2.</translation>
    </message>
    <message>
        <source>It is no JSON list of sensors.</source>
        <translation>Es ist keine JSON-Liste von Sensoren.</translation>
    </message>
</context>
<context>
    <name>SensorManagerWindow</name>
    <message>
        <source>The device reported an error while writing.</source>
        <translation>Das Gerät meldete beim Schreiben einen Fehler.</translation>
    </message>
    <message>
        <source>Sensor Manager</source>
        <translation>Sensorverwaltung</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Bearbeiten...</translation>
    </message>
    <message>
        <source>&amp;Duplicate...</source>
        <translation>&amp;Duplizieren...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Use for input</source>
        <translation>Für E&amp;ingang verwenden</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>The input is running: stop it to choose another sensor.</source>
        <translation>Der Eingang läuft: stoppen Sie ihn, um einen anderen Sensor zu wählen.</translation>
    </message>
    <message>
        <source>not saved yet</source>
        <translation>noch nicht gespeichert</translation>
    </message>
    <message>
        <source>File: %1 (changed)</source>
        <translation>Datei: %1 (geändert)</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Datei: %1</translation>
    </message>
    <message>
        <source>Open Sensor File</source>
        <translation>Sensordatei öffnen</translation>
    </message>
    <message>
        <source>Sensor files (*.json);;All files (*)</source>
        <translation>Sensordateien (*.json);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The sensor file could not be opened.</source>
        <translation>Die Sensordatei konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Save Sensor File</source>
        <translation>Sensordatei speichern</translation>
    </message>
    <message>
        <source>The sensor file could not be saved.</source>
        <translation>Die Sensordatei konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The sensors have been changed.</source>
        <translation>Die Sensoren wurden geändert.</translation>
    </message>
    <message>
        <source>Save the changes to the sensor file?</source>
        <translation>Änderungen in der Sensordatei speichern?</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Import Sensors</source>
        <translation>Sensoren importieren</translation>
    </message>
    <message>
        <source>The sensor file could not be imported.</source>
        <translation>Die Sensordatei konnte nicht importiert werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is there already: imported as &quot;%2&quot;.</source>
        <translation>„%1“ gibt es schon: als „%2“ importiert.</translation>
    </message>
    <message numerus="yes">
        <source>%n sensor(s) imported.</source>
        <translation>
            <numerusform>%n Sensor importiert.</numerusform>
            <numerusform>%n Sensoren importiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Export Sensors</source>
        <translation>Sensoren exportieren</translation>
    </message>
    <message>
        <source>The sensors could not be exported.</source>
        <translation>Die Sensoren konnten nicht exportiert werden.</translation>
    </message>
    <message>
        <source>Another program has changed the file since it was read.</source>
        <translation>Ein anderes Programm hat die Datei geändert, seit sie gelesen wurde.</translation>
    </message>
    <message>
        <source>If it is saved now, the changes of the other program are lost.
%1</source>
        <translation>Wird jetzt gespeichert, gehen die Änderungen des anderen Programms verloren.
%1</translation>
    </message>
    <message>
        <source>Save &amp;Anyway</source>
        <translation>&amp;Trotzdem speichern</translation>
    </message>
    <message>
        <source>Sensors</source>
        <translation>Sensoren</translation>
    </message>
    <message>
        <source>In the order of the file; drag a sensor, or move it with Alt+Up and Alt+Down.</source>
        <translation>In der Reihenfolge der Datei; ziehen Sie einen Sensor oder verschieben Sie ihn mit Alt+Auf und Alt+Ab.</translation>
    </message>
    <message>
        <source>Move U&amp;p</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Nach un&amp;ten</translation>
    </message>
    <message>
        <source>U&amp;ndo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>I&amp;mportieren...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>Click the header until the list is not sorted.</source>
        <translation>Klicken Sie auf die Kopfzeile, bis die Liste nicht sortiert ist.</translation>
    </message>
    <message>
        <source>These records of the file could not be read, and will not be in it when it is saved:
%1</source>
        <translation>Diese Datensätze der Datei konnten nicht gelesen werden und werden nach dem Speichern nicht mehr darin stehen:
%1</translation>
    </message>
    <message>
        <source>No sensors yet. Add one, or import a file.</source>
        <translation>Noch keine Sensoren. Fügen Sie einen hinzu oder importieren Sie eine Datei.</translation>
    </message>
    <message>
        <source>Sensor of the input: none</source>
        <translation>Sensor des Eingangs: keiner</translation>
    </message>
    <message>
        <source>Sensor of the input: %1. Its record has other values by now: use it again to take them.</source>
        <translation>Sensor des Eingangs: %1. Sein Datensatz hat inzwischen andere Werte: verwenden Sie ihn erneut, um sie zu übernehmen.</translation>
    </message>
    <message>
        <source>Sensor of the input: %1</source>
        <translation>Sensor des Eingangs: %1</translation>
    </message>
</context>
<context>
    <name>SensorSiteWindow</name>
    <message>
        <source>Where Does %1 Stand?</source>
        <translation>Wo steht %1?</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>Stand&amp;ort:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Rotation period:</source>
        <translation>&amp;Umlaufzeit:</translation>
    </message>
</context>
<context>
    <name>SensorType</name>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <source>Radar</source>
        <translation>Radar</translation>
    </message>
</context>
<context>
    <name>SensorTypeFields</name>
    <message>
        <source>not given</source>
        <translation>nicht angegeben</translation>
    </message>
    <message>
        <source>Antenna &amp;altitude:</source>
        <translation>&amp;Antennenhöhe:</translation>
    </message>
    <message>
        <source>&amp;Rotation period:</source>
        <translation>&amp;Umlaufzeit:</translation>
    </message>
    <message>
        <source>Coverage, &amp;primary:</source>
        <translation>Abdeckung, &amp;primär:</translation>
    </message>
    <message>
        <source>Coverage, se&amp;condary:</source>
        <translation>Abdeckung, s&amp;ekundär:</translation>
    </message>
    <message>
        <source>Correct s&amp;lant range</source>
        <translation>Schrägentfernung &amp;korrigieren</translation>
    </message>
    <message>
        <source>Targets whose height is known are shown at their distance over ground; the others as before.</source>
        <translation>Ziele mit bekannter Höhe werden in ihrer Entfernung über Grund gezeigt, die anderen wie bisher.</translation>
    </message>
    <message>
        <source>A radar is primary, secondary or both.</source>
        <translation>Ein Radar ist primär, sekundär oder beides.</translation>
    </message>
    <message>
        <source>Primary radar</source>
        <translation>Primärradar</translation>
    </message>
    <message>
        <source>Secondary radar</source>
        <translation>Sekundärradar</translation>
    </message>
    <message>
        <source>Mode S</source>
        <translation>Mode S</translation>
    </message>
    <message>
        <source>Co&amp;verage:</source>
        <translation>Ab&amp;deckung:</translation>
    </message>
    <message>
        <source>&amp;Update interval:</source>
        <translation>A&amp;ktualisierungsintervall:</translation>
    </message>
    <message>
        <source>such as 0, 1, 2</source>
        <translation>etwa 0, 1, 2</translation>
    </message>
    <message>
        <source>ADS-&amp;B versions:</source>
        <translation>ADS-B-&amp;Versionen:</translation>
    </message>
    <message>
        <source>Azimuth &amp;pulses:</source>
        <translation>Azimut&amp;pulse:</translation>
    </message>
    <message>
        <source>Height of the antenna above sea level.</source>
        <translation>Höhe der Antenne über dem Meeresspiegel.</translation>
    </message>
    <message>
        <source>How long the antenna takes for one turn; tracks live by it.</source>
        <translation>Wie lange die Antenne für einen Umlauf braucht; danach richtet sich die Lebensdauer der Tracks.</translation>
    </message>
    <message>
        <source>Detects whatever reflects, with or without a transponder.</source>
        <translation>Erfasst, was reflektiert, mit oder ohne Transponder.</translation>
    </message>
    <message>
        <source>How far the primary radar sees; drawn as a circle.</source>
        <translation>Wie weit das Primärradar sieht; als Kreis gezeichnet.</translation>
    </message>
    <message>
        <source>Asks transponders for code and level.</source>
        <translation>Fragt Transponder nach Code und Höhe.</translation>
    </message>
    <message>
        <source>Asks single aircraft by their address; every Mode S radar is a secondary one.</source>
        <translation>Fragt einzelne Luftfahrzeuge unter ihrer Adresse; jedes Mode-S-Radar ist auch ein Sekundärradar.</translation>
    </message>
    <message>
        <source>How far the secondary radar sees; drawn as a circle.</source>
        <translation>Wie weit das Sekundärradar sieht; als Kreis gezeichnet.</translation>
    </message>
    <message>
        <source>How far the station receives; drawn as a circle.</source>
        <translation>Wie weit die Station empfängt; als Kreis gezeichnet.</translation>
    </message>
    <message>
        <source>How often an aircraft is reported; tracks live by it.</source>
        <translation>Wie oft ein Luftfahrzeug gemeldet wird; danach richtet sich die Lebensdauer der Tracks.</translation>
    </message>
    <message>
        <source>The versions of ADS-B that the station receives, with commas between them.</source>
        <translation>Die ADS-B-Versionen, die die Station empfängt, durch Kommas getrennt.</translation>
    </message>
    <message>
        <source>How far the system locates aircraft; drawn as a circle.</source>
        <translation>Wie weit das System Luftfahrzeuge ortet; als Kreis gezeichnet.</translation>
    </message>
    <message>
        <source>How far the system&apos;s tracks reach; drawn as a circle.</source>
        <translation>Wie weit die Tracks des Systems reichen; als Kreis gezeichnet.</translation>
    </message>
    <message>
        <source>How often the system sends its tracks; tracks live by it.</source>
        <translation>Wie oft das System seine Tracks sendet; danach richtet sich die Lebensdauer der Tracks.</translation>
    </message>
    <message>
        <source>How far the radar sees; drawn as a circle.</source>
        <translation>Wie weit das Radar sieht; als Kreis gezeichnet.</translation>
    </message>
    <message>
        <source>Azimuth change pulses per revolution of the antenna.</source>
        <translation>Azimutpulse je Umlauf der Antenne.</translation>
    </message>
</context>
<context>
    <name>SerialInput</name>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Open async serial device: %1</source>
        <translation>Serielles Gerät wird geöffnet: %1</translation>
    </message>
    <message>
        <source>Device path: %1</source>
        <translation>Gerätepfad: %1</translation>
    </message>
    <message>
        <source>Description: %1</source>
        <translation>Beschreibung: %1</translation>
    </message>
    <message>
        <source>Manufacturer: %1</source>
        <translation>Hersteller: %1</translation>
    </message>
    <message>
        <source>Vendor Identifier: %1</source>
        <translation>Herstellerkennung: %1</translation>
    </message>
    <message>
        <source>Vendor Identifier: Not exist</source>
        <translation>Herstellerkennung: nicht vorhanden</translation>
    </message>
    <message>
        <source>Product Identifier: %1</source>
        <translation>Produktkennung: %1</translation>
    </message>
    <message>
        <source>Product Identifier: Not exist</source>
        <translation>Produktkennung: nicht vorhanden</translation>
    </message>
    <message>
        <source>There is no serial device %1 (present: %2).</source>
        <translation>Es gibt kein serielles Gerät %1 (vorhanden: %2).</translation>
    </message>
    <message>
        <source>Serial device not found: %1</source>
        <translation>Serielles Gerät nicht gefunden: %1</translation>
    </message>
    <message>
        <source>The serial device %1 cannot be opened: %2</source>
        <translation>Das serielle Gerät %1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Failed to open serial device: %1</source>
        <translation>Das serielle Gerät konnte nicht geöffnet werden: %1</translation>
    </message>
    <message>
        <source>The serial device refuses its %1: %2</source>
        <translation>Das serielle Gerät lehnt Folgendes ab: %1: %2</translation>
    </message>
    <message>
        <source>baud rate</source>
        <translation>Baudrate</translation>
    </message>
    <message>
        <source>data bits</source>
        <translation>Datenbits</translation>
    </message>
    <message>
        <source>parity</source>
        <translation>Parität</translation>
    </message>
    <message>
        <source>stop bits</source>
        <translation>Stoppbits</translation>
    </message>
    <message>
        <source>flow control</source>
        <translation>Flusssteuerung</translation>
    </message>
    <message>
        <source>Close async serial device</source>
        <translation>Serielles Gerät wird geschlossen</translation>
    </message>
    <message>
        <source>The serial device is gone: %1. It is opened again when it is back.</source>
        <translation>Das serielle Gerät ist verschwunden: %1. Es wird wieder geöffnet, sobald es zurück ist.</translation>
    </message>
    <message>
        <source>The serial device %1 is back.</source>
        <translation>Das serielle Gerät %1 ist wieder da.</translation>
    </message>
</context>
<context>
    <name>SetCenterWindow</name>
    <message>
        <source>Go To</source>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>choose one</source>
        <translation>bitte wählen</translation>
    </message>
    <message>
        <source>&amp;Coordinate:</source>
        <translation>&amp;Koordinate:</translation>
    </message>
    <message>
        <source>&amp;Recent:</source>
        <translation>&amp;Zuletzt:</translation>
    </message>
</context>
<context>
    <name>Setting</name>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source> NM</source>
        <translation> NM</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
    <message>
        <source> ft</source>
        <translation> ft</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> Pixel</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source> MiB</source>
        <translation> MiB</translation>
    </message>
</context>
<context>
    <name>SettingsReference</name>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>What it does</source>
        <translation>Wirkung</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Legende</translation>
    </message>
    <message>
        <source>All Settings</source>
        <translation>Alle Einstellungen</translation>
    </message>
    <message>
        <source>The fields of the settings window, page by page. &quot;Key&quot; is the name under which the settings file has a setting. A sensor that is chosen there brings settings of its own.</source>
        <translation>Die Felder des Einstellungsfensters, Seite für Seite. „Schlüssel“ ist der Name, unter dem die Einstellungsdatei eine Einstellung hat. Ein dort gewählter Sensor bringt eigene Einstellungen mit.</translation>
    </message>
</context>
<context>
    <name>Shutdown</name>
    <message>
        <source>Data engine did not confirm the input close within 10 s, forcing shutdown.</source>
        <translation>Das Schließen des Eingangs wurde nicht innerhalb von 10 s bestätigt, das Beenden wird erzwungen.</translation>
    </message>
    <message>
        <source>Data processing thread did not stop within 5 s, abandoning it.</source>
        <translation>Der Verarbeitungs-Thread hielt nicht innerhalb von 5 s an, er wird aufgegeben.</translation>
    </message>
</context>
<context>
    <name>SmrTracker</name>
    <message>
        <source>SMR Tracker: CAT010 message has no valid track number (I010/161), ignore.</source>
        <translation>SMR-Tracker: CAT010-Meldung ohne gültige Tracknummer (I010/161), ignoriert.</translation>
    </message>
</context>
<context>
    <name>SourceAdvice</name>
    <message>
        <source>All that it sends is used.</source>
        <translation>Alles, was sie sendet, wird verwendet.</translation>
    </message>
    <message>
        <source>Nothing has come for three of its periods: check the source and the line to it.</source>
        <translation>Seit dreien ihrer Perioden ist nichts gekommen: prüfen Sie die Quelle und die Leitung zu ihr.</translation>
    </message>
    <message>
        <source>The source is alive, but these reports have stopped.</source>
        <translation>Die Quelle lebt, aber diese Meldungen haben aufgehört.</translation>
    </message>
    <message>
        <source>In the last minute far fewer reports came than in the ten before: reports are lost on the way, or the source sees less.</source>
        <translation>In der letzten Minute kamen weit weniger Meldungen als in den zehn davor: unterwegs gehen Meldungen verloren, oder die Quelle sieht weniger.</translation>
    </message>
    <message>
        <source>Reports arrive %1 after their time of day.</source>
        <translation>Meldungen kommen %1 nach ihrer Tageszeit an.</translation>
    </message>
    <message>
        <source>%1 Its clock, or this computer&apos;s, is wrong.</source>
        <translation>%1 Ihre Uhr oder die dieses Rechners geht falsch.</translation>
    </message>
    <message>
        <source>%1 It is always the same: its clock and this computer&apos;s differ, or the line is slow.</source>
        <translation>%1 Es ist immer gleich: ihre Uhr und die dieses Rechners gehen verschieden, oder die Leitung ist langsam.</translation>
    </message>
    <message>
        <source>%1 It varies, up to %2: they wait somewhere on the way.</source>
        <translation>%1 Es schwankt, bis zu %2: sie warten irgendwo unterwegs.</translation>
    </message>
    <message>
        <source> The last one: %1 at octet %2.</source>
        <translation> Die letzte: %1 bei Oktett %2.</translation>
    </message>
    <message>
        <source>What cannot be decoded may be of another edition or in another envelope than the one in Settings, Processor.</source>
        <translation>Was nicht decodiert werden kann, ist vielleicht von einer anderen Ausgabe oder in einer anderen Verpackung als der unter Einstellungen, Verarbeitung.</translation>
    </message>
    <message>
        <source>Nothing here shows this kind of message of CAT%1; it is counted only.</source>
        <translation>Diese Nachrichtenart von CAT%1 wird hier nicht gezeigt, nur gezählt.</translation>
    </message>
    <message>
        <source>Nothing here shows this kind of message; it is counted only.</source>
        <translation>Diese Nachrichtenart wird hier nicht gezeigt, nur gezählt.</translation>
    </message>
    <message>
        <source>The sensor is set to %1, which does not send CAT%2.</source>
        <translation>Der Sensor ist auf %1 eingestellt, das kein CAT%2 sendet.</translation>
    </message>
    <message>
        <source>The sensor is set to %1; these are %2 reports.</source>
        <translation>Der Sensor ist auf %1 eingestellt; dies sind %2-Meldungen.</translation>
    </message>
    <message>
        <source>These messages are of aircraft whose place is not known: it takes two messages of position, and not all aircraft send them.</source>
        <translation>Diese Nachrichten sind von Luftfahrzeugen, deren Ort nicht bekannt ist: dazu gehören zwei Positionsnachrichten, und nicht alle Luftfahrzeuge senden sie.</translation>
    </message>
    <message>
        <source>These reports carry no position, and no track is known that has one.</source>
        <translation>Diese Meldungen tragen keine Position, und kein bekannter Track hat eine.</translation>
    </message>
    <message>
        <source>These reports carry neither track number nor address. The plot layer shows them.</source>
        <translation>Diese Meldungen tragen weder Tracknummer noch Adresse. Die Plot-Ebene zeigt sie.</translation>
    </message>
    <message>
        <source>This source is %1/%2, the sensor is set to %3/%4.</source>
        <translation>Diese Quelle ist %1/%2, der Sensor ist auf %3/%4 eingestellt.</translation>
    </message>
    <message>
        <source>These reports carry neither track number nor address, and no place for a plot.</source>
        <translation>Diese Meldungen tragen weder Tracknummer noch Adresse und keinen Ort für einen Plot.</translation>
    </message>
    <message>
        <source>These are targets that the source makes to test itself; they are not shown.</source>
        <translation>Dies sind Ziele, mit denen die Quelle sich selbst prüft; sie werden nicht gezeigt.</translation>
    </message>
    <message>
        <source>These positions are not on the globe or out of the sensor&apos;s reach: check its place in Settings, Sensor.</source>
        <translation>Diese Positionen liegen nicht auf der Erdkugel oder außer Reichweite des Sensors: prüfen Sie dessen Standort unter Einstellungen, Sensor.</translation>
    </message>
    <message>
        <source>All system track numbers are in use: there are more targets than this kind of sensor may have.</source>
        <translation>Alle System-Tracknummern sind vergeben: es gibt mehr Ziele, als diese Sensorart haben darf.</translation>
    </message>
    <message>
        <source>These messages lack what they need, or what must come before them has not come yet.</source>
        <translation>Diesen Nachrichten fehlt etwas Nötiges, oder was vor ihnen kommen muss, ist noch nicht gekommen.</translation>
    </message>
    <message>
        <source>These messages have a form that is not read.</source>
        <translation>Diese Nachrichten haben eine Form, die nicht gelesen wird.</translation>
    </message>
    <message>
        <source>These are replies to Mode A/C interrogations, which tell neither who nor where. Nothing is wrong.</source>
        <translation>Dies sind Antworten auf Mode-A/C-Abfragen, die weder sagen, wer, noch wo. Nichts ist falsch.</translation>
    </message>
    <message>
        <source>These are replies of aircraft of which nothing else was heard. At the rim of reception that is usual.</source>
        <translation>Dies sind Antworten von Luftfahrzeugen, von denen sonst nichts gehört wurde. Am Rand des Empfangs ist das üblich.</translation>
    </message>
    <message>
        <source>Use %1/%2</source>
        <translation>%1/%2 verwenden</translation>
    </message>
    <message>
        <source>Set the sensor to %1</source>
        <translation>Sensor auf %1 einstellen</translation>
    </message>
    <message>
        <source>Show plots</source>
        <translation>Plots zeigen</translation>
    </message>
    <message>
        <source>Nothing arrives from any source: check the sender and the line.</source>
        <translation>Von keiner Quelle kommt etwas an: Sender und Leitung prüfen.</translation>
    </message>
</context>
<context>
    <name>SourceJudge</name>
    <message>
        <source>no SAC/SIC</source>
        <translation>ohne SAC/SIC</translation>
    </message>
    <message>
        <source>SIR-M %1</source>
        <translation>SIR-M %1</translation>
    </message>
    <message>
        <source>%1 (input %2)</source>
        <translation>%1 (Eingang %2)</translation>
    </message>
    <message>
        <source>silent since %1</source>
        <translation>still seit %1</translation>
    </message>
    <message>
        <source>%1 late</source>
        <translation>%1 verspätet</translation>
    </message>
    <message>
        <source>%1/s, usually %2/s</source>
        <translation>%1/s, üblich sind %2/s</translation>
    </message>
    <message>
        <source>nothing of it is shown</source>
        <translation>nichts davon wird gezeigt</translation>
    </message>
    <message>
        <source>arrives as usual</source>
        <translation>kommt wie üblich</translation>
    </message>
    <message>
        <source>no data blocks</source>
        <translation>keine Datenblöcke</translation>
    </message>
</context>
<context>
    <name>SourceTableModel</name>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Last 10 minutes</source>
        <translation>Letzte 10 Minuten</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>Used</source>
        <translation>Verwendet</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Not used, mostly because</source>
        <translation>Nicht verwendet, meist weil</translation>
    </message>
    <message numerus="yes">
        <source>%n report(s)</source>
        <translation>
            <numerusform>%n Meldung</numerusform>
            <numerusform>%n Meldungen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SourceWatch</name>
    <message>
        <source>%1 is %2.</source>
        <translation>%1 ist %2.</translation>
    </message>
    <message>
        <source>%1 is heard again.</source>
        <translation>%1 wird wieder gehört.</translation>
    </message>
    <message>
        <source>The reports of %1 arrive %2 after their time of day.</source>
        <translation>Die Meldungen von %1 kommen %2 nach ihrer Tageszeit an.</translation>
    </message>
    <message>
        <source>NO DATA from %1 since %2</source>
        <translation>KEINE DATEN von %1 seit %2</translation>
    </message>
    <message>
        <source>Other sources go on. Check this one, and the line to it.</source>
        <translation>Andere Quellen laufen weiter. Prüfen Sie diese und die Leitung zu ihr.</translation>
    </message>
    <message>
        <source>NO DATA since %1</source>
        <translation>KEINE DATEN seit %1</translation>
    </message>
    <message>
        <source>Nothing that is shown comes from %1 any more: the picture is old.</source>
        <translation>Nichts von dem, was gezeigt wird, kommt noch von %1: das Bild ist alt.</translation>
    </message>
    <message>
        <source>DATA %1 LATE</source>
        <translation>DATEN %1 VERSPÄTET</translation>
    </message>
    <message>
        <source>Reports of %1 arrive so long after their time of day: the picture is old, or the clocks differ.</source>
        <translation>Meldungen von %1 kommen so lange nach ihrer Tageszeit an: das Bild ist alt, oder die Uhren gehen verschieden.</translation>
    </message>
    <message>
        <source>DATA LOST: %1 datagrams since %2</source>
        <translation>DATENVERLUST: %1 Datagramme seit %2</translation>
    </message>
    <message>
        <source>They found no room in the system&apos;s buffer: this computer cannot keep up with the input.</source>
        <translation>Sie fanden keinen Platz im Puffer des Systems: dieser Rechner kommt mit dem Eingang nicht mit.</translation>
    </message>
    <message>
        <source>%1 datagrams found no room in the system&apos;s buffer.</source>
        <translation>%1 Datagramme fanden keinen Platz im Puffer des Systems.</translation>
    </message>
    <message>
        <source>%1 of %2 messages could not be decoded at all: another format or processor than the one in Settings?</source>
        <translation>%1 von %2 Nachrichten konnten überhaupt nicht decodiert werden: ein anderes Format oder eine andere Verarbeitung als in den Einstellungen?</translation>
    </message>
    <message>
        <source>%1 messages have octets behind their last block: check sequences, or another envelope than the one in Settings.</source>
        <translation>%1 Nachrichten haben Oktette hinter ihrem letzten Block: Prüfsummen oder eine andere Verpackung als in den Einstellungen.</translation>
    </message>
    <message>
        <source>%1 more sources are not listed.</source>
        <translation>%1 weitere Quellen sind nicht aufgeführt.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>SourceWindow</name>
    <message>
        <source>What became of its records</source>
        <translation>Was aus ihren Datensätzen wurde</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Datensätze</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Anteil</translation>
    </message>
    <message>
        <source>Source %1</source>
        <translation>Quelle %1</translation>
    </message>
    <message>
        <source>%1 records, %2 octets</source>
        <translation>%1 Datensätze, %2 Oktette</translation>
    </message>
    <message>
        <source>%1/s over 10 s, %2/s over 60 s</source>
        <translation>%1/s über 10 s, %2/s über 60 s</translation>
    </message>
    <message>
        <source>heard from %1 to %2</source>
        <translation>gehört von %1 bis %2</translation>
    </message>
    <message>
        <source>edition %1</source>
        <translation>Ausgabe %1</translation>
    </message>
    <message>
        <source>delay %1 s, 95 % within %2 s, shortest %3 s</source>
        <translation>Verzögerung %1 s, 95 % innerhalb von %2 s, kürzeste %3 s</translation>
    </message>
    <message>
        <source>a revolution takes %1 s ± %2 s</source>
        <translation>ein Umlauf dauert %1 s ± %2 s</translation>
    </message>
    <message>
        <source>%1 sectors missing</source>
        <translation>%1 Sektoren fehlen</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>No example is kept.</source>
        <translation>Kein Beispiel ist aufbewahrt.</translation>
    </message>
</context>
<context>
    <name>SqliteConnection</name>
    <message>
        <source>Qt&apos;s driver for SQLite is not installed (package libqt6sql6-sqlite).</source>
        <translation>Qts Treiber für SQLite ist nicht installiert (Paket libqt6sql6-sqlite).</translation>
    </message>
</context>
<context>
    <name>StaticMapsDelegate</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>by the suffix</source>
        <translation>nach der Endung</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
</context>
<context>
    <name>StaticMapsModel</name>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>loading, %1 %</source>
        <translation>lädt, %1 %</translation>
    </message>
    <message>
        <source>loaded</source>
        <translation>geladen</translation>
    </message>
    <message>
        <source>failed, shown as before: %1</source>
        <translation>fehlgeschlagen, wie zuvor gezeigt: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Maps of higher priority are drawn over the others.</source>
        <translation>Karten höherer Priorität werden über die anderen gezeichnet.</translation>
    </message>
    <message>
        <source>The map is shown while one pixel stands for this many metres; empty: no limit.</source>
        <translation>Die Karte wird gezeigt, solange ein Pixel für so viele Meter steht; leer: keine Grenze.</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Min. zoom</source>
        <translation>Min. Zoom</translation>
    </message>
    <message>
        <source>Max. zoom</source>
        <translation>Max. Zoom</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>The zoom range is empty: %1 to %2.</source>
        <translation>Der Zoombereich ist leer: %1 bis %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a usable number.</source>
        <translation>„%1“ ist keine brauchbare Zahl.</translation>
    </message>
</context>
<context>
    <name>StaticMapsWindow</name>
    <message>
        <source>Maps (*.map *.xml *.mapx)</source>
        <translation>Karten (*.map *.xml *.mapx)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Static Maps</source>
        <translation>Statische Karten</translation>
    </message>
    <message>
        <source>&amp;Add...</source>
        <translation>&amp;Hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Bearbeiten...</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>&amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>S&amp;tyle Sheet...</source>
        <translation>S&amp;tildatei...</translation>
    </message>
    <message>
        <source>Cancel &amp;Loading</source>
        <translation>&amp;Laden abbrechen</translation>
    </message>
    <message>
        <source>Index: %1 (changed)</source>
        <translation>Index: %1 (geändert)</translation>
    </message>
    <message>
        <source>Index: %1</source>
        <translation>Index: %1</translation>
    </message>
    <message>
        <source>Style sheet: %1</source>
        <translation>Stildatei: %1</translation>
    </message>
    <message>
        <source>Style sheet: %1 (not usable)</source>
        <translation>Stildatei: %1 (nicht verwendbar)</translation>
    </message>
    <message>
        <source>The style sheet does not have: %1</source>
        <translation>Der Stildatei fehlt: %1</translation>
    </message>
    <message>
        <source>Add Maps</source>
        <translation>Karten hinzufügen</translation>
    </message>
    <message>
        <source>Select Map Style Sheet</source>
        <translation>Kartenstildatei wählen</translation>
    </message>
    <message>
        <source>Map Style Sheet (*.mss)</source>
        <translation>Kartenstildatei (*.mss)</translation>
    </message>
    <message>
        <source>The map index could not be saved.</source>
        <translation>Der Kartenindex konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>The list of maps has been changed.</source>
        <translation>Die Liste der Karten wurde geändert.</translation>
    </message>
    <message>
        <source>Save the changes to the map index?</source>
        <translation>Änderungen im Kartenindex speichern?</translation>
    </message>
    <message>
        <source>The file is in a format that has to be converted.</source>
        <translation>Das Format der Datei muss umgewandelt werden.</translation>
    </message>
    <message>
        <source>Converting %1</source>
        <translation>%1 wird umgewandelt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The file could not be converted.</source>
        <translation>Die Datei konnte nicht umgewandelt werden.</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Karten</translation>
    </message>
</context>
<context>
    <name>StatsWindow</name>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Data Pipeline (10 s window)</source>
        <translation>Datenweg (Fenster von 10 s)</translation>
    </message>
    <message>
        <source>Tracks in snapshot:</source>
        <translation>Tracks im Schnappschuss:</translation>
    </message>
    <message>
        <source>Alerts in snapshot:</source>
        <translation>Alarme im Schnappschuss:</translation>
    </message>
    <message>
        <source>Snapshot generation, average / maximum:</source>
        <translation>Erzeugung des Schnappschusses, mittel / maximal:</translation>
    </message>
    <message>
        <source>Input:</source>
        <translation>Eingang:</translation>
    </message>
    <message>
        <source>Video radials:</source>
        <translation>Videoradiale:</translation>
    </message>
    <message>
        <source>Weather picture interval:</source>
        <translation>Intervall der Wetterbilder:</translation>
    </message>
    <message>
        <source>Vectors of last weather picture:</source>
        <translation>Vektoren des letzten Wetterbilds:</translation>
    </message>
    <message>
        <source>Dropped before display (since start)</source>
        <translation>Vor der Anzeige verworfen (seit dem Start)</translation>
    </message>
    <message>
        <source>Snapshots:</source>
        <translation>Schnappschüsse:</translation>
    </message>
    <message>
        <source>Plots:</source>
        <translation>Plots:</translation>
    </message>
    <message>
        <source>Video batches:</source>
        <translation>Videopakete:</translation>
    </message>
    <message>
        <source>Weather pictures:</source>
        <translation>Wetterbilder:</translation>
    </message>
    <message>
        <source>Weather pictures without content:</source>
        <translation>Wetterbilder ohne Inhalt:</translation>
    </message>
    <message>
        <source>Weather pictures without the radar&apos;s place:</source>
        <translation>Wetterbilder ohne den Ort des Radars:</translation>
    </message>
    <message>
        <source>Largest video delay:</source>
        <translation>Größte Videoverzögerung:</translation>
    </message>
    <message>
        <source>Largest weather delay:</source>
        <translation>Größte Wetterverzögerung:</translation>
    </message>
    <message>
        <source>Painting (10 s window)</source>
        <translation>Zeichnen (Fenster von 10 s)</translation>
    </message>
    <message>
        <source>Frames:</source>
        <translation>Bilder:</translation>
    </message>
    <message>
        <source>Maps, average / maximum:</source>
        <translation>Karten, mittel / maximal:</translation>
    </message>
    <message>
        <source>Tracks, average / maximum:</source>
        <translation>Tracks, mittel / maximal:</translation>
    </message>
    <message>
        <source>Whole frame, average / maximum:</source>
        <translation>Ganzes Bild, mittel / maximal:</translation>
    </message>
    <message>
        <source>Map layers (last frame)</source>
        <translation>Kartenebenen (letztes Bild)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the figures to the clipboard</source>
        <translation>Die Zahlen in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>%1 / %2 ms</source>
        <translation>%1 / %2 ms</translation>
    </message>
    <message>
        <source>%1/s, %2 KB/s</source>
        <translation>%1/s, %2 KB/s</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>StatusReadOuts</name>
    <message>
        <source>Position under the pointer</source>
        <translation>Position unter dem Zeiger</translation>
    </message>
    <message>
        <source>Pointer from the sensor: true bearing and distance</source>
        <translation>Zeiger vom Sensor aus: rechtweisende Peilung und Entfernung</translation>
    </message>
    <message>
        <source>Scale, metres per pixel</source>
        <translation>Maßstab, Meter je Pixel</translation>
    </message>
    <message>
        <source>Rotation of the view, degrees clockwise</source>
        <translation>Drehung der Ansicht, Grad im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Minimum safe altitude warning</source>
        <translation>Warnung bei Unterschreiten der Mindestsicherheitshöhe (MSAW)</translation>
    </message>
    <message>
        <source>Area proximity warning</source>
        <translation>Luftraum-Annäherungswarnung (APW)</translation>
    </message>
    <message>
        <source>Short-term conflict alert</source>
        <translation>Kurzfristige Konfliktwarnung (STCA)</translation>
    </message>
    <message>
        <source>NOT HEARD</source>
        <translation>STUMM</translation>
    </message>
    <message>
        <source>%1° %2 NM</source>
        <translation>%1° %2 NM</translation>
    </message>
    <message>
        <source>SCL %1</source>
        <translation>MST %1</translation>
    </message>
    <message>
        <source>ROT %1%2</source>
        <translation>DRH %1%2</translation>
    </message>
    <message>
        <source>Local time, %1</source>
        <translation>Ortszeit, %1</translation>
    </message>
    <message>
        <source>Coordinated universal time</source>
        <translation>Koordinierte Weltzeit</translation>
    </message>
    <message>
        <source>Time of the recording, %1, coordinated universal time</source>
        <translation>Zeit der Aufzeichnung, %1, koordinierte Weltzeit</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>StreamDiagnosis</name>
    <message>
        <source>1 block</source>
        <translation>1 Block</translation>
    </message>
    <message>
        <source>%1 blocks</source>
        <translation>%1 Blöcken</translation>
    </message>
    <message>
        <source>1 message</source>
        <translation>1 Nachricht</translation>
    </message>
    <message>
        <source>%1 messages</source>
        <translation>%1 Nachrichten</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>edition %1 reads all</source>
        <translation>Ausgabe %1 liest alle</translation>
    </message>
    <message>
        <source>edition %1 reads none</source>
        <translation>Ausgabe %1 liest keinen</translation>
    </message>
    <message>
        <source>edition %1 reads %2</source>
        <translation>Ausgabe %1 liest %2</translation>
    </message>
    <message>
        <source>, and no other edition reads any</source>
        <translation>, und keine andere Ausgabe liest auch nur einen</translation>
    </message>
    <message>
        <source>; %1 of these no other edition reads</source>
        <translation>; %1 davon liest keine andere Ausgabe</translation>
    </message>
    <message>
        <source>, with implausible values in %1 of %2 records</source>
        <translation>, mit unglaubwürdigen Werten in %1 von %2 Datensätzen</translation>
    </message>
    <message>
        <source>Of 1 block that was looked at</source>
        <translation>Von 1 betrachteten Block</translation>
    </message>
    <message>
        <source>Of %1 blocks that were looked at</source>
        <translation>Von %1 betrachteten Blöcken</translation>
    </message>
    <message>
        <source>%1 comes in more than one edition: %2 of %3 records are of edition %4, the others of another one.</source>
        <translation>%1 kommt in mehr als einer Ausgabe: %2 von %3 Datensätzen sind von Ausgabe %4, die anderen von einer anderen.</translation>
    </message>
    <message>
        <source>%1 is read in edition %2, but nothing in it tells that from edition %3.</source>
        <translation>%1 wird in Ausgabe %2 gelesen, aber nichts darin unterscheidet diese von Ausgabe %3.</translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
    <message>
        <source>%1 is of edition %2.</source>
        <translation>%1 ist von Ausgabe %2.</translation>
    </message>
    <message>
        <source>In %1 of %2 records of %3 a time, a place or an aircraft identification cannot be right, or bits are set that edition %4 leaves unused.</source>
        <translation>In %1 von %2 Datensätzen von %3 kann eine Zeit, ein Ort oder eine Luftfahrzeugkennung nicht stimmen, oder es sind Bits gesetzt, die Ausgabe %4 nicht verwendet.</translation>
    </message>
    <message>
        <source>%1 is passed over: nothing here reads this category (%2, %3 octets).</source>
        <translation>%1 wird übergangen: diese Kategorie wird hier nicht gelesen (%2, %3 Oktette).</translation>
    </message>
    <message>
        <source>%1 cannot be decoded: of %2 none fits edition %3, so it is of another edition, or damaged.</source>
        <translation>%1 kann nicht decodiert werden: von %2 passt keiner zu Ausgabe %3, es ist also eine andere Ausgabe oder beschädigt.</translation>
    </message>
    <message>
        <source>%1 of %2 of %3 cannot be decoded in edition %4: damaged on the way, or of another edition.</source>
        <translation>%1 von %2 von %3 können in Ausgabe %4 nicht decodiert werden: unterwegs beschädigt oder von einer anderen Ausgabe.</translation>
    </message>
    <message>
        <source>The first fault: %1, at octet %2 of the block.</source>
        <translation>Der erste Fehler: %1, bei Oktett %2 des Blocks.</translation>
    </message>
    <message>
        <source>Nothing has come.</source>
        <translation>Nichts ist gekommen.</translation>
    </message>
    <message>
        <source>In %1 nothing makes sense as ASTERIX, Mode S or Alenia SIR-M, in whatever encapsulation.</source>
        <translation>In %1 ergibt nichts als ASTERIX, Mode S oder Alenia SIR-M einen Sinn, in welcher Kapselung auch immer.</translation>
    </message>
    <message>
        <source>The first one begins with the octets %1.</source>
        <translation>Die erste beginnt mit den Oktetten %1.</translation>
    </message>
    <message>
        <source>The stream holds %1.</source>
        <translation>Der Strom enthält %1.</translation>
    </message>
    <message>
        <source>Each message begins with %1 octets of its transport: the format is &quot;%2&quot;.</source>
        <translation>Jede Nachricht beginnt mit %1 Oktetten ihres Transports: das Format ist „%2“.</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>Several formats arrive together: beside %1 there is %2. One is shown at a time; each needs a port of its own.</source>
        <translation>Mehrere Formate kommen zusammen an: neben %1 gibt es %2. Jeweils eines wird gezeigt; jedes braucht einen eigenen Port.</translation>
    </message>
    <message>
        <source>%1 of them have that many, the others between 1 and 32.</source>
        <translation>%1 davon haben so viele, die anderen zwischen 1 und 32.</translation>
    </message>
    <message>
        <source>In %1 of %2 the last block is followed by %3 that begin no other one, as recorders and gateways append them; they are passed over.</source>
        <translation>In %1 von %2 folgen dem letzten Block %3, die keinen weiteren beginnen, wie Aufzeichner und Gateways sie anhängen; sie werden übergangen.</translation>
    </message>
    <message>
        <source>1 octet</source>
        <translation>1 Oktett</translation>
    </message>
    <message>
        <source>%1 octets</source>
        <translation>%1 Oktette</translation>
    </message>
    <message>
        <source>%1 of %2 end within a block: they are cut short, or what follows their blocks is something else.</source>
        <translation>%1 von %2 enden innerhalb eines Blocks: sie sind abgeschnitten, oder was ihren Blöcken folgt, ist etwas anderes.</translation>
    </message>
    <message>
        <source>The processor is set to &quot;%1&quot;, but what arrives is %2.</source>
        <translation>Die Verarbeitung ist auf „%1“ eingestellt, es kommt aber %2 an.</translation>
    </message>
    <message>
        <source>The processor is set to %1, but what arrives is %2.</source>
        <translation>Die Verarbeitung ist auf %1 eingestellt, es kommt aber %2 an.</translation>
    </message>
    <message>
        <source>The profile reads CAT021 in edition %1, but %2 sends edition %3: set it to automatic.</source>
        <translation>Das Profil liest CAT021 in Ausgabe %1, aber %2 sendet Ausgabe %3: stellen Sie es auf automatisch.</translation>
    </message>
    <message>
        <source>Only reports of the sensor&apos;s SAC/SIC %1/%2 are taken, but those that arrive are of %3.</source>
        <translation>Nur Meldungen mit SAC/SIC %1/%2 des Sensors werden genommen, die ankommenden sind aber von %3.</translation>
    </message>
    <message>
        <source>The sensor is set to %1, but what arrives are reports of %2.</source>
        <translation>Der Sensor ist auf %1 eingestellt, es kommen aber %2-Meldungen an.</translation>
    </message>
    <message>
        <source>It cannot be played: %1</source>
        <translation>Sie kann nicht wiedergegeben werden: %1</translation>
    </message>
    <message>
        <source>In %1 of %2 records of %3 the aircraft identification cannot be right: its callsigns are not to be relied on.</source>
        <translation>In %1 von %2 Datensätzen von %3 kann die Luftfahrzeugkennung nicht stimmen: auf die Rufzeichen ist kein Verlass.</translation>
    </message>
    <message>
        <source>Blanks stand before or between its characters, as in &quot;%1&quot;.</source>
        <translation>Leerzeichen stehen vor oder zwischen den Zeichen, wie in „%1“.</translation>
    </message>
    <message>
        <source>The file is damaged, and nothing can be played beyond that place: %1</source>
        <translation>Die Datei ist beschädigt, und jenseits jener Stelle kann nichts wiedergegeben werden: %1</translation>
    </message>
</context>
<context>
    <name>StreamFindings</name>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1 (cannot be decoded)</source>
        <translation>%1 (nicht decodierbar)</translation>
    </message>
    <message>
        <source>%1 in edition %2</source>
        <translation>%1 in Ausgabe %2</translation>
    </message>
    <message>
        <source>1 record</source>
        <translation>1 Datensatz</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 Datensätze</translation>
    </message>
    <message>
        <source>polar positions</source>
        <translation>Polarkoordinaten</translation>
    </message>
    <message>
        <source>Cartesian positions</source>
        <translation>kartesische Positionen</translation>
    </message>
    <message>
        <source>WGS-84 positions</source>
        <translation>WGS-84-Positionen</translation>
    </message>
    <message>
        <source>track numbers</source>
        <translation>Tracknummern</translation>
    </message>
    <message>
        <source>aircraft addresses</source>
        <translation>Luftfahrzeugadressen</translation>
    </message>
    <message>
        <source>no positions</source>
        <translation>keine Positionen</translation>
    </message>
    <message>
        <source>no track numbers</source>
        <translation>keine Tracknummern</translation>
    </message>
    <message>
        <source>both in %1 of %2 reports</source>
        <translation>beides in %1 von %2 Meldungen</translation>
    </message>
    <message>
        <source>turning once in %1 s</source>
        <translation>ein Umlauf in %1 s</translation>
    </message>
    <message>
        <source>around %1</source>
        <translation>um %1</translation>
    </message>
    <message>
        <source>%1 from %2 (%3)</source>
        <translation>%1 von %2 (%3)</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>%1 sources: %2</source>
        <translation>%1 Quellen: %2</translation>
    </message>
    <message>
        <source>Mode S (%1): %2 frames</source>
        <translation>Mode S (%1): %2 Rahmen</translation>
    </message>
    <message>
        <source>%1 aircraft with extended squitters</source>
        <translation>%1 Luftfahrzeuge mit Extended Squitter</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 Positionen</translation>
    </message>
    <message>
        <source>%1 Mode A/C replies</source>
        <translation>%1 Mode-A/C-Antworten</translation>
    </message>
    <message>
        <source>Alenia SIR-M radar %1: %2 tracks</source>
        <translation>Alenia-SIR-M-Radar %1: %2 Tracks</translation>
    </message>
    <message>
        <source>%1 plots</source>
        <translation>%1 Plots</translation>
    </message>
    <message>
        <source>a source without SAC/SIC</source>
        <translation>eine Quelle ohne SAC/SIC</translation>
    </message>
    <message>
        <source>ASTERIX</source>
        <translation>ASTERIX</translation>
    </message>
    <message>
        <source>ASTERIX in %1</source>
        <translation>ASTERIX in %1</translation>
    </message>
    <message>
        <source>Mode S (%1)</source>
        <translation>Mode S (%1)</translation>
    </message>
    <message>
        <source>Alenia SIR-M</source>
        <translation>Alenia SIR-M</translation>
    </message>
    <message>
        <source>Alenia SIR-M in %1</source>
        <translation>Alenia SIR-M in %1</translation>
    </message>
    <message>
        <source>%1 from %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>no ASTERIX, Mode S or SIR-M data in %1 messages</source>
        <translation>keine ASTERIX-, Mode-S- oder SIR-M-Daten in %1 Nachrichten</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <source>%1 of %2 octets cannot be decoded</source>
        <translation>%1 von %2 Oktetten können nicht decodiert werden</translation>
    </message>
</context>
<context>
    <name>StreamReader</name>
    <message>
        <source>This reader reads no network captures.</source>
        <translation>Dieser Leser liest keine Netzwerkmitschnitte.</translation>
    </message>
</context>
<context>
    <name>SymbolExplanation</name>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Alert identifier</source>
        <translation>Alarmkennung</translation>
    </message>
    <message>
        <source>Time of message</source>
        <translation>Zeit der Nachricht</translation>
    </message>
    <message>
        <source>First track number</source>
        <translation>Erste Tracknummer</translation>
    </message>
    <message>
        <source>First callsign</source>
        <translation>Erstes Rufzeichen</translation>
    </message>
    <message>
        <source>First squawk</source>
        <translation>Erster Transpondercode</translation>
    </message>
    <message>
        <source>Second track number</source>
        <translation>Zweite Tracknummer</translation>
    </message>
    <message>
        <source>Second callsign</source>
        <translation>Zweites Rufzeichen</translation>
    </message>
    <message>
        <source>Second squawk</source>
        <translation>Zweiter Transpondercode</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Gebiet</translation>
    </message>
    <message>
        <source>Time to conflict</source>
        <translation>Zeit bis zum Konflikt</translation>
    </message>
    <message>
        <source>Time to closest approach</source>
        <translation>Zeit bis zur größten Annäherung</translation>
    </message>
    <message>
        <source>Horizontal separation</source>
        <translation>Horizontaler Abstand</translation>
    </message>
    <message>
        <source>Vertical separation</source>
        <translation>Vertikaler Abstand</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Track</translation>
    </message>
    <message>
        <source>the report names no track by number or address</source>
        <translation>die Meldung nennt keinen Track mit Nummer oder Adresse</translation>
    </message>
    <message>
        <source>shown as %1, %2</source>
        <translation>gezeigt als %1, %2</translation>
    </message>
    <message>
        <source>the report is one of those that this track is made of</source>
        <translation>die Meldung ist eine von denen, aus denen dieser Track besteht</translation>
    </message>
</context>
<context>
    <name>SystemTracker</name>
    <message>
        <source>%1 Tracker: the WGS-84 and Cartesian positions of SAC/SIC %2/%3 lie %4 NM apart, see the settings &quot;Ignore WGS-84 positions&quot; and &quot;Ignore Cartesian positions&quot;.</source>
        <translation>%1-Tracker: die WGS-84- und die kartesische Position von SAC/SIC %2/%3 liegen %4 NM auseinander, siehe die Einstellungen „WGS-84-Positionen ignorieren“ und „Kartesische Positionen ignorieren“.</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>%1 at octet %2</source>
        <translation>%1 bei Oktett %2</translation>
    </message>
    <message>
        <source>it has no name</source>
        <translation>es hat keinen Namen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no setting of a theme</source>
        <translation>„%1“ ist keine Einstellung eines Designs</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be %2</source>
        <translation>„%1“ kann nicht %2 sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no colour of a part of a window</source>
        <translation>„%1“ ist keine Farbe eines Fensterteils</translation>
    </message>
    <message>
        <source>of the windows&apos; colours some are missing, so they are left out</source>
        <translation>von den Farben der Fenster fehlen einige, sie werden daher ausgelassen</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>Klassisch</translation>
    </message>
    <message>
        <source>Night</source>
        <translation>Nacht</translation>
    </message>
    <message>
        <source>Dusk</source>
        <translation>Dämmerung</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
</context>
<context>
    <name>ThemeLibrary</name>
    <message>
        <source>Theme file %1: %2</source>
        <translation>Designdatei %1: %2</translation>
    </message>
    <message>
        <source>there is a theme &quot;%1&quot; already</source>
        <translation>es gibt schon ein Design „%1“</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a theme of the program&apos;s own.</source>
        <translation>„%1“ ist ein Design des Programms selbst.</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>ThemeMenu</name>
    <message>
        <source>&amp;Undo Theme</source>
        <translation>Design &amp;rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Save as Theme...</source>
        <translation>Als Design &amp;speichern...</translation>
    </message>
    <message>
        <source>There is no theme &quot;%1&quot;.</source>
        <translation>Es gibt kein Design „%1“.</translation>
    </message>
    <message>
        <source>Save as Theme</source>
        <translation>Als Design speichern</translation>
    </message>
    <message>
        <source>Colours, fonts and map style as they are now, under the name:</source>
        <translation>Farben, Schriften und Kartenstil, wie sie jetzt sind, unter dem Namen:</translation>
    </message>
    <message>
        <source>A theme needs a name.</source>
        <translation>Ein Design braucht einen Namen.</translation>
    </message>
    <message>
        <source>Theme &quot;%1&quot; saved.</source>
        <translation>Design „%1“ gespeichert.</translation>
    </message>
</context>
<context>
    <name>TileAnswer</name>
    <message>
        <source>HTTP %1 from %2</source>
        <translation>HTTP %1 von %2</translation>
    </message>
    <message>
        <source>the connection was refused</source>
        <translation>die Verbindung wurde abgelehnt</translation>
    </message>
    <message>
        <source>the connection was closed before the answer was complete</source>
        <translation>die Verbindung wurde geschlossen, bevor die Antwort vollständig war</translation>
    </message>
    <message>
        <source>the host was not found</source>
        <translation>der Host wurde nicht gefunden</translation>
    </message>
    <message>
        <source>no answer in time</source>
        <translation>keine Antwort in der Zeit</translation>
    </message>
    <message>
        <source>no secure connection could be made</source>
        <translation>es konnte keine sichere Verbindung hergestellt werden</translation>
    </message>
    <message>
        <source>the proxy cannot be reached</source>
        <translation>der Proxy ist nicht erreichbar</translation>
    </message>
    <message>
        <source>the proxy&apos;s host was not found</source>
        <translation>der Host des Proxys wurde nicht gefunden</translation>
    </message>
    <message>
        <source>the proxy asks for another user name or password</source>
        <translation>der Proxy verlangt einen anderen Benutzernamen oder ein anderes Passwort</translation>
    </message>
    <message>
        <source>the service redirects without end</source>
        <translation>der Dienst leitet endlos weiter</translation>
    </message>
    <message>
        <source>the service redirects to an insecure address</source>
        <translation>der Dienst leitet auf eine unsichere Adresse weiter</translation>
    </message>
    <message>
        <source>error %1</source>
        <translation>Fehler %1</translation>
    </message>
    <message>
        <source>an empty answer from %1</source>
        <translation>eine leere Antwort von %1</translation>
    </message>
    <message>
        <source>an answer from %1 that is no whole image</source>
        <translation>eine Antwort von %1, die kein ganzes Bild ist</translation>
    </message>
    <message>
        <source>Request parameter error.</source>
        <translation>Fehler in den Parametern der Anfrage.</translation>
    </message>
    <message>
        <source>Tile service rejected the request (authentication failed): %1</source>
        <translation>Der Kacheldienst hat die Anfrage abgelehnt (Anmeldung fehlgeschlagen): %1</translation>
    </message>
    <message>
        <source>Tile service is rate limiting requests: %1</source>
        <translation>Der Kacheldienst begrenzt die Zahl der Anfragen: %1</translation>
    </message>
    <message>
        <source>Tile service error: %1</source>
        <translation>Fehler des Kacheldienstes: %1</translation>
    </message>
    <message>
        <source>Network error while requesting tiles: %1</source>
        <translation>Netzwerkfehler beim Anfordern von Kacheln: %1</translation>
    </message>
</context>
<context>
    <name>TileConfigPage</name>
    <message>
        <source>Map Tiles</source>
        <translation>Kartenkacheln</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>Show map &amp;tiles</source>
        <translation>Karten&amp;kacheln zeigen</translation>
    </message>
    <message>
        <source>&amp;Under the static maps:</source>
        <translation>&amp;Unter den statischen Karten:</translation>
    </message>
    <message>
        <source>A second service &amp;over the static maps</source>
        <translation>Ein zweiter Dienst ü&amp;ber den statischen Karten</translation>
    </message>
    <message>
        <source>O&amp;ver the static maps:</source>
        <translation>Über den &amp;statischen Karten:</translation>
    </message>
    <message>
        <source>&amp;Dim the lower tiles:</source>
        <translation>Untere Kacheln ab&amp;dunkeln:</translation>
    </message>
    <message>
        <source>Towards the background colour, so that traffic stays in front.</source>
        <translation>Zur Hintergrundfarbe hin, damit der Verkehr im Vordergrund bleibt.</translation>
    </message>
    <message>
        <source>Take out their &amp;colour:</source>
        <translation>Ihre &amp;Farbe zurücknehmen:</translation>
    </message>
    <message>
        <source>100 % leaves greys.</source>
        <translation>100 % lässt Grautöne übrig.</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Dienste</translation>
    </message>
    <message>
        <source>Make &amp;requests to tile services</source>
        <translation>&amp;Anfragen an Kacheldienste stellen</translation>
    </message>
    <message>
        <source>Off: only tiles that are on this machine already are shown.</source>
        <translation>Aus: nur Kacheln, die schon auf diesem Rechner sind, werden gezeigt.</translation>
    </message>
    <message>
        <source>&amp;Agreed that services learn which area is looked at</source>
        <translation>Ein&amp;verstanden, dass Dienste erfahren, welches Gebiet betrachtet wird</translation>
    </message>
    <message>
        <source>No service is asked before this has been agreed to once.</source>
        <translation>Kein Dienst wird gefragt, bevor dem einmal zugestimmt wurde.</translation>
    </message>
    <message>
        <source>Settings o&amp;f:</source>
        <translation>Einstellun&amp;gen von:</translation>
    </message>
    <message>
        <source>&amp;Imagery:</source>
        <translation>Bi&amp;ldart:</translation>
    </message>
    <message>
        <source>Aerial</source>
        <translation>Luftbild</translation>
    </message>
    <message>
        <source>Aerial with labels</source>
        <translation>Luftbild mit Beschriftung</translation>
    </message>
    <message>
        <source>Road</source>
        <translation>Straßen</translation>
    </message>
    <message>
        <source>Road, light</source>
        <translation>Straßen, hell</translation>
    </message>
    <message>
        <source>Road, grey</source>
        <translation>Straßen, grau</translation>
    </message>
    <message>
        <source>Road, dark</source>
        <translation>Straßen, dunkel</translation>
    </message>
    <message>
        <source>&amp;Language and region:</source>
        <translation>Sprache und Reg&amp;ion:</translation>
    </message>
    <message>
        <source>Such as en-US or de-DE.</source>
        <translation>Etwa en-US oder de-DE.</translation>
    </message>
    <message>
        <source>&amp;Key:</source>
        <translation>Sch&amp;lüssel:</translation>
    </message>
    <message>
        <source>From your account at the service.</source>
        <translation>Aus Ihrem Konto bei dem Dienst.</translation>
    </message>
    <message>
        <source>&amp;Map:</source>
        <translation>Kartenthe&amp;ma:</translation>
    </message>
    <message>
        <source>Roads alone</source>
        <translation>Nur Straßen</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>Gelände</translation>
    </message>
    <message>
        <source>Satellite</source>
        <translation>Satellit</translation>
    </message>
    <message>
        <source>Map with Terrain</source>
        <translation>Karte mit Gelände</translation>
    </message>
    <message>
        <source>Satellite with Road</source>
        <translation>Satellit mit Straßen</translation>
    </message>
    <message>
        <source>Terrain with Road</source>
        <translation>Gelände mit Straßen</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>Anze&amp;igesprache:</translation>
    </message>
    <message>
        <source>Such as en or de.</source>
        <translation>Etwa en oder de.</translation>
    </message>
    <message>
        <source>&amp;Country:</source>
        <translation>&amp;Land:</translation>
    </message>
    <message>
        <source>Such as us or de.</source>
        <translation>Etwa us oder de.</translation>
    </message>
    <message>
        <source>Tiles of twice the resolution</source>
        <translation>Kacheln mit doppelter Auflösung</translation>
    </message>
    <message>
        <source>Imagery</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>Vektor</translation>
    </message>
    <message>
        <source>&amp;Chart:</source>
        <translation>Kartenb&amp;latt:</translation>
    </message>
    <message>
        <source>VFR sectional</source>
        <translation>VFR Sectional</translation>
    </message>
    <message>
        <source>VFR terminal</source>
        <translation>VFR Terminal</translation>
    </message>
    <message>
        <source>IFR area, low</source>
        <translation>IFR-Gebiet, unten</translation>
    </message>
    <message>
        <source>IFR high</source>
        <translation>IFR oben</translation>
    </message>
    <message>
        <source>Select Tile File</source>
        <translation>Kacheldatei wählen</translation>
    </message>
    <message>
        <source>MBTiles (*.mbtiles);;All files (*)</source>
        <translation>MBTiles (*.mbtiles);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>A file of tiles needs no network. It goes before the address.</source>
        <translation>Eine Kacheldatei braucht kein Netz. Sie geht der Adresse vor.</translation>
    </message>
    <message>
        <source>&amp;File of tiles:</source>
        <translation>Kacheldate&amp;i:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>UR&amp;L:</translation>
    </message>
    <message>
        <source>Such as https://tiles.example/{z}/{x}/{y}.png. Placeholders: {z}, {x}, {y}, {-y} (counted from the south), {quadkey} and {s} (a, b or c).</source>
        <translation>Etwa https://tiles.example/{z}/{x}/{y}.png. Platzhalter: {z}, {x}, {y}, {-y} (von Süden gezählt), {quadkey} und {s} (a, b oder c).</translation>
    </message>
    <message>
        <source>&amp;Header:</source>
        <translation>Kopf&amp;zeile:</translation>
    </message>
    <message>
        <source>&quot;Name: value&quot;, sent with each request, for a key.</source>
        <translation>„Name: Wert“, mit jeder Anfrage gesendet, für einen Schlüssel.</translation>
    </message>
    <message>
        <source>Deepest &amp;level:</source>
        <translation>Größte Zoo&amp;mstufe:</translation>
    </message>
    <message>
        <source>&amp;Try</source>
        <translation>&amp;Probieren</translation>
    </message>
    <message>
        <source>Fetches one tile from this service with the values of this page.</source>
        <translation>Holt eine Kachel dieses Dienstes mit den Werten dieser Seite.</translation>
    </message>
    <message>
        <source>Asking %1 ...</source>
        <translation>%1 wird gefragt ...</translation>
    </message>
    <message>
        <source>Select Directory</source>
        <translation>Verzeichnis wählen</translation>
    </message>
    <message>
        <source>&amp;Keep tiles as files</source>
        <translation>Kacheln als Dateien be&amp;halten</translation>
    </message>
    <message>
        <source>Di&amp;rectory of the files:</source>
        <translation>Verzeichnis de&amp;r Dateien:</translation>
    </message>
    <message>
        <source>Files before requests</source>
        <translation>Dateien vor Anfragen</translation>
    </message>
    <message>
        <source>A tile that is there as a file is not requested.</source>
        <translation>Eine Kachel, die als Datei da ist, wird nicht angefragt.</translation>
    </message>
    <message>
        <source>Files only</source>
        <translation>Nur Dateien</translation>
    </message>
    <message>
        <source>The service is not asked.</source>
        <translation>Der Dienst wird nicht gefragt.</translation>
    </message>
    <message>
        <source>Such as https://tiles.example:8443. Empty: the service&apos;s own.</source>
        <translation>Etwa https://tiles.example:8443. Leer: der des Dienstes.</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>Directory of the cac&amp;he:</source>
        <translation>Verzeichnis des &amp;Zwischenspeichers:</translation>
    </message>
    <message>
        <source>Use a &amp;proxy</source>
        <translation>Pro&amp;xy verwenden</translation>
    </message>
    <message>
        <source>Proxy hos&amp;t:</source>
        <translation>Proxy-Hos&amp;t:</translation>
    </message>
    <message>
        <source>Proxy &amp;port:</source>
        <translation>Proxy-P&amp;ort:</translation>
    </message>
    <message>
        <source>Proxy &amp;user:</source>
        <translation>Prox&amp;y-Benutzer:</translation>
    </message>
    <message>
        <source>Proxy pass&amp;word:</source>
        <translation>Proxy-Pass&amp;wort:</translation>
    </message>
    <message>
        <source>The proxy looks up host &amp;names</source>
        <translation>Der Proxy löst Host&amp;namen auf</translation>
    </message>
    <message>
        <source>An address with http:// or https://, and {z}, {x} and {y} or {quadkey} in it.</source>
        <translation>Eine Adresse mit http:// oder https:// und {z}, {x} und {y} oder {quadkey} darin.</translation>
    </message>
    <message>
        <source>A name, a colon and a value.</source>
        <translation>Ein Name, ein Doppelpunkt und ein Wert.</translation>
    </message>
    <message>
        <source>An address with http:// or https:// and a host.</source>
        <translation>Eine Adresse mit http:// oder https:// und einem Host.</translation>
    </message>
    <message>
        <source>Draws maps or pictures of the ground from a service or a file.</source>
        <translation>Zeichnet Karten oder Bilder des Bodens von einem Dienst oder aus einer Datei.</translation>
    </message>
    <message>
        <source>Where the tiles come from that lie at the bottom of the picture.</source>
        <translation>Woher die Kacheln kommen, die im Bild zuunterst liegen.</translation>
    </message>
    <message>
        <source>For tiles that are transparent apart from names or airspaces.</source>
        <translation>Für Kacheln, die außer Namen oder Lufträumen durchsichtig sind.</translation>
    </message>
    <message>
        <source>Where the tiles come from that lie over the static maps.</source>
        <translation>Woher die Kacheln kommen, die über den statischen Karten liegen.</translation>
    </message>
    <message>
        <source>The service whose settings stand below; this chooses no service.</source>
        <translation>Der Dienst, dessen Einstellungen unten stehen; damit wird kein Dienst gewählt.</translation>
    </message>
    <message>
        <source>Which pictures of the service are shown.</source>
        <translation>Welche Bilder des Dienstes gezeigt werden.</translation>
    </message>
    <message>
        <source>Which maps of the service are shown.</source>
        <translation>Welche Karten des Dienstes gezeigt werden.</translation>
    </message>
    <message>
        <source>Sharper on fine screens, and four times as much to load.</source>
        <translation>Schärfer auf feinen Bildschirmen, und viermal so viel zu laden.</translation>
    </message>
    <message>
        <source>Which charts of the service are shown.</source>
        <translation>Welche Luftfahrtkarten des Dienstes gezeigt werden.</translation>
    </message>
    <message>
        <source>The deepest level that has tiles; closer views enlarge these.</source>
        <translation>Die größte Stufe mit Kacheln; nähere Ansichten vergrößern diese.</translation>
    </message>
    <message>
        <source>Writes each tile that is loaded to the directory below, for times without a network.</source>
        <translation>Schreibt jede geladene Kachel in das Verzeichnis unten, für Zeiten ohne Netz.</translation>
    </message>
    <message>
        <source>Where tiles are kept for good, a file each.</source>
        <translation>Wo Kacheln auf Dauer aufbewahrt werden, je eine Datei.</translation>
    </message>
    <message>
        <source>Other &amp;server:</source>
        <translation>Anderer S&amp;erver:</translation>
    </message>
    <message>
        <source>Where tiles are kept that have been loaded, up to a bound.</source>
        <translation>Wo geladene Kacheln bis zu einer Grenze aufbewahrt werden.</translation>
    </message>
    <message>
        <source>Reaches the services through a SOCKS 5 proxy.</source>
        <translation>Erreicht die Dienste über einen SOCKS-5-Proxy.</translation>
    </message>
    <message>
        <source>Name or address of the proxy.</source>
        <translation>Name oder Adresse des Proxys.</translation>
    </message>
    <message>
        <source>The TCP port of the proxy.</source>
        <translation>Der TCP-Port des Proxys.</translation>
    </message>
    <message>
        <source>Empty for a proxy that asks for no name.</source>
        <translation>Leer für einen Proxy, der keinen Namen verlangt.</translation>
    </message>
    <message>
        <source>Stands in the settings file as it is entered here.</source>
        <translation>Steht in der Einstellungsdatei so, wie es hier eingegeben wird.</translation>
    </message>
    <message>
        <source>Off: this machine looks them up itself.</source>
        <translation>Aus: dieser Rechner löst sie selbst auf.</translation>
    </message>
    <message>
        <source>The demonstration asks no tile service, only files of tiles are shown.</source>
        <translation>Die Demonstration fragt keinen Kacheldienst; nur Kacheldateien werden gezeigt.</translation>
    </message>
</context>
<context>
    <name>TileDeployment</name>
    <message>
        <source>%1 does not allow its tiles to be downloaded in bulk or kept, except under an agreement with it.</source>
        <translation>%1 erlaubt nicht, dass seine Kacheln massenhaft heruntergeladen oder aufbewahrt werden, außer nach Vereinbarung.</translation>
    </message>
    <message>
        <source>OpenAIP&apos;s data may be used with attribution and not commercially (CC BY-NC).</source>
        <translation>Die Daten von OpenAIP dürfen mit Namensnennung und nicht kommerziell verwendet werden (CC BY-NC).</translation>
    </message>
    <message>
        <source>The charts of the FAA are in the public domain.</source>
        <translation>Die Karten der FAA sind gemeinfrei.</translation>
    </message>
    <message>
        <source>Please see the terms of the service behind the address.</source>
        <translation>Bitte beachten Sie die Bedingungen des Dienstes hinter der Adresse.</translation>
    </message>
    <message>
        <source>Bing Maps</source>
        <translation>Bing Maps</translation>
    </message>
    <message>
        <source>OpenAIP</source>
        <translation>OpenAIP</translation>
    </message>
    <message>
        <source>Google Maps</source>
        <translation>Google Maps</translation>
    </message>
    <message>
        <source>Map World</source>
        <translation>Map World (Tianditu)</translation>
    </message>
    <message>
        <source>Map World Annotation</source>
        <translation>Map World (Tianditu), Beschriftung</translation>
    </message>
    <message>
        <source>FAA Charts</source>
        <translation>FAA-Karten</translation>
    </message>
    <message>
        <source>Custom Tiles</source>
        <translation>Eigene Kacheln</translation>
    </message>
    <message>
        <source>No Service</source>
        <translation>Kein Dienst</translation>
    </message>
</context>
<context>
    <name>TileDownload</name>
    <message>
        <source>The terms of %1 forbid downloading its tiles in bulk.</source>
        <translation>Die Bedingungen von %1 verbieten das massenhafte Herunterladen seiner Kacheln.</translation>
    </message>
    <message>
        <source>what came is no image</source>
        <translation>was kam, ist kein Bild</translation>
    </message>
    <message>
        <source>Download of tiles stopped: %1</source>
        <translation>Das Herunterladen von Kacheln wurde abgebrochen: %1</translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>TileDownloadWindow</name>
    <message>
        <source>Downloading</source>
        <translation>Lädt herunter</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Gestoppt</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Download Map Tiles</source>
        <translation>Kartenkacheln herunterladen</translation>
    </message>
    <message>
        <source>&amp;Service:</source>
        <translation>&amp;Dienst:</translation>
    </message>
    <message>
        <source>&amp;North-west corner:</source>
        <translation>&amp;Nordwestecke:</translation>
    </message>
    <message>
        <source>South-&amp;east corner:</source>
        <translation>Süd&amp;ostecke:</translation>
    </message>
    <message>
        <source>Area of the &amp;View</source>
        <translation>Gebiet der &amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Levels from:</source>
        <translation>St&amp;ufen von:</translation>
    </message>
    <message>
        <source>&amp;to:</source>
        <translation>&amp;bis:</translation>
    </message>
    <message>
        <source>Tile files of the service, for the map layers</source>
        <translation>Kacheldateien des Dienstes, für die Kartenebenen</translation>
    </message>
    <message>
        <source>One MBTiles file</source>
        <translation>Eine MBTiles-Datei</translation>
    </message>
    <message>
        <source>Download To</source>
        <translation>Herunterladen nach</translation>
    </message>
    <message>
        <source>MBTiles (*.mbtiles)</source>
        <translation>MBTiles (*.mbtiles)</translation>
    </message>
    <message>
        <source>I have the &amp;right to download tiles of this service in bulk</source>
        <translation>Ich habe das Recht, Kacheln dieses Dienstes in &amp;großer Menge herunterzuladen</translation>
    </message>
    <message>
        <source>&amp;Write to:</source>
        <translation>&amp;Ziel:</translation>
    </message>
    <message>
        <source>&amp;File:</source>
        <translation>Date&amp;i:</translation>
    </message>
    <message>
        <source>Amount:</source>
        <translation>Menge:</translation>
    </message>
    <message>
        <source>Terms:</source>
        <translation>Bedingungen:</translation>
    </message>
    <message>
        <source>&amp;Download</source>
        <translation>&amp;Herunterladen</translation>
    </message>
    <message>
        <source>&amp;Cancel Download</source>
        <translation>Download abbr&amp;echen</translation>
    </message>
    <message>
        <source>A download was broken off after %1 of %2 tiles. It can go on from there.</source>
        <translation>Ein Download wurde nach %1 von %2 Kacheln unterbrochen. Er kann von dort aus fortgesetzt werden.</translation>
    </message>
    <message>
        <source>none: the area or the levels are not complete</source>
        <translation>keine: Gebiet oder Stufen sind nicht vollständig</translation>
    </message>
    <message>
        <source>%1 tiles, about %2</source>
        <translation>%1 Kacheln, etwa %2</translation>
    </message>
    <message>
        <source>It has to lie south of the other.</source>
        <translation>Sie muss südlich der anderen liegen.</translation>
    </message>
    <message>
        <source>Not below the first level.</source>
        <translation>Nicht unter der ersten Stufe.</translation>
    </message>
    <message>
        <source>Without it nothing of this service is downloaded.</source>
        <translation>Ohne dies wird von diesem Dienst nichts heruntergeladen.</translation>
    </message>
    <message>
        <source>The name of a file is needed.</source>
        <translation>Der Name einer Datei fehlt.</translation>
    </message>
    <message>
        <source>This is a folder.</source>
        <translation>Das ist ein Ordner.</translation>
    </message>
    <message>
        <source>Nothing was downloaded: no service is asked before that is agreed to.</source>
        <translation>Nichts wurde heruntergeladen: kein Dienst wird gefragt, bevor dem zugestimmt wurde.</translation>
    </message>
    <message>
        <source>%1: %2 of %3 tiles, %4 fetched (%5)</source>
        <translation>%1: %2 von %3 Kacheln, %4 geholt (%5)</translation>
    </message>
    <message>
        <source>%1 the service does not have</source>
        <translation>%1 hat der Dienst nicht</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>Fo&amp;rtsetzen</translation>
    </message>
    <message>
        <source>%1 were there already</source>
        <translation>%1 waren schon da</translation>
    </message>
</context>
<context>
    <name>TileFetcher</name>
    <message>
        <source>the answer is larger than a tile can be</source>
        <translation>die Antwort ist größer, als eine Kachel sein kann</translation>
    </message>
    <message>
        <source>%1 redirects too often</source>
        <translation>%1 leitet zu oft weiter</translation>
    </message>
    <message>
        <source>%1 redirects to an insecure address</source>
        <translation>%1 leitet auf eine unsichere Adresse weiter</translation>
    </message>
    <message>
        <source>%1 redirects to another server, which must not see the key</source>
        <translation>%1 leitet auf einen anderen Server weiter, der den Schlüssel nicht sehen darf</translation>
    </message>
    <message>
        <source>Tile service connection restored.</source>
        <translation>Die Verbindung zum Kacheldienst ist wiederhergestellt.</translation>
    </message>
    <message>
        <source>%1 tiles are not available from the tile service (outside coverage or zoom limit).</source>
        <translation>%1 Kacheln sind beim Kacheldienst nicht verfügbar (außerhalb der Abdeckung oder der Zoomgrenze).</translation>
    </message>
    <message>
        <source>online maps have not been agreed to, so the service is not asked</source>
        <translation>Onlinekarten wurde nicht zugestimmt, der Dienst wird daher nicht gefragt</translation>
    </message>
</context>
<context>
    <name>TileFileStore</name>
    <message>
        <source>the file would lie outside the tile directory</source>
        <translation>die Datei läge außerhalb des Kachelverzeichnisses</translation>
    </message>
    <message>
        <source>the directory cannot be made</source>
        <translation>das Verzeichnis kann nicht angelegt werden</translation>
    </message>
</context>
<context>
    <name>TileImage</name>
    <message>
        <source>what came is no whole image</source>
        <translation>was kam, ist kein ganzes Bild</translation>
    </message>
    <message>
        <source>the image is too large: %1 x %2 pixels</source>
        <translation>das Bild ist zu groß: %1 x %2 Pixel</translation>
    </message>
    <message>
        <source>the image cannot be decoded</source>
        <translation>das Bild kann nicht decodiert werden</translation>
    </message>
</context>
<context>
    <name>TileMaps</name>
    <message>
        <source>Map Tiles</source>
        <translation>Kartenkacheln</translation>
    </message>
    <message>
        <source>The tiles come from %1, which learns by the requests which area is looked at and from where on the network.

Ask it from now on?</source>
        <translation>Die Kacheln kommen von %1. Der Dienst erfährt durch die Anfragen, welches Gebiet betrachtet wird und von wo im Netz.

Ab jetzt anfragen?</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>Map tiles: %1</source>
        <translation>Kartenkacheln: %1</translation>
    </message>
    <message>
        <source>No tile service is chosen: see Map Tiles in the settings.</source>
        <translation>Kein Kacheldienst ist gewählt: siehe Kartenkacheln in den Einstellungen.</translation>
    </message>
    <message>
        <source>The demonstration asks no tile service, only files of tiles are shown.</source>
        <translation>Die Vorführung fragt keinen Kacheldienst, nur Kacheldateien werden gezeigt.</translation>
    </message>
    <message>
        <source>No tiles are shown: no service is asked before that is agreed to.</source>
        <translation>Es werden keine Kacheln gezeigt: Ohne Zustimmung wird kein Dienst gefragt.</translation>
    </message>
</context>
<context>
    <name>TileProvider</name>
    <message>
        <source>there are no tiles for so wide a view</source>
        <translation>für einen so weiten Ausschnitt gibt es keine Kacheln</translation>
    </message>
    <message>
        <source>no tiles of this view are saved</source>
        <translation>von diesem Ausschnitt sind keine Kacheln gespeichert</translation>
    </message>
</context>
<context>
    <name>TileProviderBing</name>
    <message>
        <source>Copyright %1 Microsoft and its suppliers.</source>
        <translation>Copyright %1 Microsoft und seine Zulieferer.</translation>
    </message>
</context>
<context>
    <name>TileProviderCustom</name>
    <message>
        <source>The header of the custom tile service is not of the form &quot;Name: value&quot;.</source>
        <translation>Die Kopfzeile des eigenen Kacheldienstes hat nicht die Form „Name: Wert“.</translation>
    </message>
    <message>
        <source>The address of the custom tile service needs {z}, {x} and {y} or {-y}, or {quadkey}, after its host.</source>
        <translation>Die Adresse des eigenen Kacheldienstes braucht hinter dem Host {z}, {x} und {y} oder {-y} oder {quadkey}.</translation>
    </message>
    <message>
        <source>The address of the custom tile service is not valid.</source>
        <translation>Die Adresse des eigenen Kacheldienstes ist ungültig.</translation>
    </message>
    <message>
        <source>Neither an address nor a file of custom tiles is configured.</source>
        <translation>Weder eine Adresse noch eine Datei eigener Kacheln ist eingerichtet.</translation>
    </message>
</context>
<context>
    <name>TileProviderFaa</name>
    <message>
        <source>Copyright %1 FAA.</source>
        <translation>Copyright %1 FAA.</translation>
    </message>
</context>
<context>
    <name>TileProviderGoogle</name>
    <message>
        <source>Copyright %1 Google.</source>
        <translation>Copyright %1 Google.</translation>
    </message>
    <message>
        <source>Road</source>
        <translation>Straßen</translation>
    </message>
    <message>
        <source>Road (overlay)</source>
        <translation>Straßen (Overlay)</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>Gelände</translation>
    </message>
    <message>
        <source>Satellite</source>
        <translation>Satellit</translation>
    </message>
    <message>
        <source>Map with Terrain</source>
        <translation>Karte mit Gelände</translation>
    </message>
    <message>
        <source>Satellite with Road</source>
        <translation>Satellit mit Straßen</translation>
    </message>
    <message>
        <source>Terrain with Road</source>
        <translation>Gelände mit Straßen</translation>
    </message>
</context>
<context>
    <name>TileProviderOpenAip</name>
    <message>
        <source>OpenAIP API key is not configured.</source>
        <translation>Der API-Schlüssel für OpenAIP ist nicht eingerichtet.</translation>
    </message>
    <message>
        <source>Copyright %1 OpenAIP.</source>
        <translation>Copyright %1 OpenAIP.</translation>
    </message>
</context>
<context>
    <name>TileProviderTianditu</name>
    <message>
        <source>Map World API key is not configured.</source>
        <translation>Der API-Schlüssel für Map World ist nicht eingerichtet.</translation>
    </message>
    <message>
        <source>Vector</source>
        <translation>Vektor</translation>
    </message>
    <message>
        <source>Terrain</source>
        <translation>Gelände</translation>
    </message>
    <message>
        <source>Imagery</source>
        <translation>Bilder</translation>
    </message>
</context>
<context>
    <name>TileRequest</name>
    <message>
        <source>The address of the tile server is not valid.</source>
        <translation>Die Adresse des Kachelservers ist ungültig.</translation>
    </message>
</context>
<context>
    <name>TileStock</name>
    <message>
        <source>Tiles of %1: %2</source>
        <translation>Kacheln von %1: %2</translation>
    </message>
</context>
<context>
    <name>TileTrial</name>
    <message>
        <source>No answer came within 20 seconds.</source>
        <translation>Innerhalb von 20 Sekunden kam keine Antwort.</translation>
    </message>
    <message>
        <source>The file holds tiles of the levels %1 to %2.</source>
        <translation>Die Datei enthält Kacheln der Stufen %1 bis %2.</translation>
    </message>
    <message>
        <source>The service answers, but has no tile %1.</source>
        <translation>Der Dienst antwortet, hat aber keine Kachel %1.</translation>
    </message>
    <message>
        <source>An answer came, but it is no tile: %1</source>
        <translation>Eine Antwort kam, aber sie ist keine Kachel: %1</translation>
    </message>
    <message>
        <source>A tile of %1 x %2 pixels came after %3 s (%4).</source>
        <translation>Eine Kachel von %1 x %2 Pixeln kam nach %3 s (%4).</translation>
    </message>
</context>
<context>
    <name>TrackCommands</name>
    <message>
        <source>Explain Alert</source>
        <translation>Alarm erklären</translation>
    </message>
    <message>
        <source>Acknowledge</source>
        <translation>Quittieren</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Follow</source>
        <translation>Folgen</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Zentrieren</translation>
    </message>
    <message>
        <source>Reset Label</source>
        <translation>Label zurücksetzen</translation>
    </message>
    <message>
        <source>Explain</source>
        <translation>Erklären</translation>
    </message>
    <message>
        <source>Following %1</source>
        <translation>Es wird %1 gefolgt</translation>
    </message>
</context>
<context>
    <name>TrackConfigPage</name>
    <message>
        <source>Tracks</source>
        <translation>Tracks</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>&amp;Symbols and vectors:</source>
        <translation>&amp;Symbole und Vektoren:</translation>
    </message>
    <message>
        <source>Symbol Colour</source>
        <translation>Symbolfarbe</translation>
    </message>
    <message>
        <source>Casing ro&amp;und symbols:</source>
        <translation>&amp;Umrandung der Symbole:</translation>
    </message>
    <message>
        <source>Casing Colour</source>
        <translation>Umrandungsfarbe</translation>
    </message>
    <message>
        <source>&amp;Coasting tracks:</source>
        <translation>&amp;Extrapolierte Tracks:</translation>
    </message>
    <message>
        <source>Colour of Coasting Tracks</source>
        <translation>Farbe extrapolierter Tracks</translation>
    </message>
    <message>
        <source>&amp;Emergencies and cautions:</source>
        <translation>&amp;Notfälle und Warnungen:</translation>
    </message>
    <message>
        <source>Caution Colour</source>
        <translation>Warnfarbe</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Labels</translation>
    </message>
    <message>
        <source>La&amp;yout:</source>
        <translation>An&amp;ordnung:</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Compact</source>
        <translation>Kompakt</translation>
    </message>
    <message>
        <source>Compact leaves away what is not known and needs two lines at most.</source>
        <translation>Kompakt lässt Unbekanntes weg und braucht höchstens zwei Zeilen.</translation>
    </message>
    <message>
        <source>Arrange labels auto&amp;matically</source>
        <translation>Labels auto&amp;matisch anordnen</translation>
    </message>
    <message>
        <source>Labels keep clear of each other and of symbols. One that you have dragged stays where you put it.</source>
        <translation>Labels weichen einander und den Symbolen aus. Eines, das Sie gezogen haben, bleibt, wo es ist.</translation>
    </message>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Text:</translation>
    </message>
    <message>
        <source>Label Colour</source>
        <translation>Labelfarbe</translation>
    </message>
    <message>
        <source>&amp;Details beside the identity:</source>
        <translation>&amp;Details neben der Identität:</translation>
    </message>
    <message>
        <source>Colour of Details</source>
        <translation>Farbe der Details</translation>
    </message>
    <message>
        <source>Text of the se&amp;lected track:</source>
        <translation>Text des &amp;gewählten Tracks:</translation>
    </message>
    <message>
        <source>Colour of the Selected Label</source>
        <translation>Farbe des gewählten Labels</translation>
    </message>
    <message>
        <source>&amp;Alert:</source>
        <translation>&amp;Alarm:</translation>
    </message>
    <message>
        <source>Alert Colour</source>
        <translation>Alarmfarbe</translation>
    </message>
    <message>
        <source>Text on the ale&amp;rt colour:</source>
        <translation>Text auf der Alarm&amp;farbe:</translation>
    </message>
    <message>
        <source>Colour of Text on the Alert Colour</source>
        <translation>Farbe des Textes auf der Alarmfarbe</translation>
    </message>
    <message>
        <source>Lea&amp;der lines:</source>
        <translation>Verb&amp;indungslinien:</translation>
    </message>
    <message>
        <source>Leader Colour</source>
        <translation>Farbe der Verbindungslinien</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translation>&amp;Hintergrund:</translation>
    </message>
    <message>
        <source>Label Background Colour</source>
        <translation>Hintergrundfarbe der Labels</translation>
    </message>
    <message>
        <source>Background &amp;opacity:</source>
        <translation>Dec&amp;kkraft des Hintergrunds:</translation>
    </message>
    <message>
        <source>0 % is transparent, 100 % hides what lies under the label.</source>
        <translation>0 % ist durchsichtig, 100 % verdeckt, was unter dem Label liegt.</translation>
    </message>
    <message>
        <source>Colour of tracks that are updated as they should be.</source>
        <translation>Farbe von Tracks, die wie vorgesehen aktualisiert werden.</translation>
    </message>
    <message>
        <source>Colour of the edge that sets symbols off from whatever lies under them.</source>
        <translation>Farbe des Rands, der Symbole von dem abhebt, was unter ihnen liegt.</translation>
    </message>
    <message>
        <source>Colour of tracks without a report for too long.</source>
        <translation>Farbe von Tracks, die zu lange ohne Meldung sind.</translation>
    </message>
    <message>
        <source>Colour of emergencies and of what needs a look but is no alert.</source>
        <translation>Farbe von Notfällen und von dem, was einen Blick verlangt, aber kein Alarm ist.</translation>
    </message>
    <message>
        <source>Colour of a label&apos;s first line, which says who it is.</source>
        <translation>Farbe der ersten Zeile eines Labels, die sagt, wer es ist.</translation>
    </message>
    <message>
        <source>Colour of level, speed and all else in a label.</source>
        <translation>Farbe von Höhe, Geschwindigkeit und allem Übrigen in einem Label.</translation>
    </message>
    <message>
        <source>Colour of the label and the symbol of the track that is selected.</source>
        <translation>Farbe von Label und Symbol des gewählten Tracks.</translation>
    </message>
    <message>
        <source>Colour of tracks with an alert and of the ground behind the alert&apos;s name.</source>
        <translation>Farbe von Tracks mit Alarm und des Grundes hinter dem Namen des Alarms.</translation>
    </message>
    <message>
        <source>Colour of the alert&apos;s name in a label.</source>
        <translation>Farbe des Alarmnamens in einem Label.</translation>
    </message>
    <message>
        <source>Colour of the lines from symbols to their labels.</source>
        <translation>Farbe der Linien von Symbolen zu ihren Labels.</translation>
    </message>
    <message>
        <source>Colour of the ground behind the text of a label.</source>
        <translation>Farbe des Grundes hinter dem Text eines Labels.</translation>
    </message>
</context>
<context>
    <name>TrackExplanation</name>
    <message>
        <source>valid for %1 s</source>
        <translation>%1 s gültig</translation>
    </message>
    <message>
        <source>told before the reports that are kept</source>
        <translation>genannt vor den aufbewahrten Meldungen</translation>
    </message>
    <message>
        <source>these reports do not carry it</source>
        <translation>diese Meldungen enthalten es nicht</translation>
    </message>
    <message>
        <source>not in the last report, so the value before it is not kept</source>
        <translation>nicht in der letzten Meldung, der Wert davor wird daher nicht behalten</translation>
    </message>
    <message numerus="yes">
        <source>in none of the last %n report(s)</source>
        <translation>
            <numerusform>in der letzten Meldung nicht enthalten</numerusform>
            <numerusform>in keiner der letzten %n Meldungen</numerusform>
        </translation>
    </message>
    <message>
        <source>garbled (G)</source>
        <translation>verstümmelt (G)</translation>
    </message>
    <message>
        <source>smoothed or not extracted in the last scan (L)</source>
        <translation>geglättet oder im letzten Umlauf nicht gewonnen (L)</translation>
    </message>
    <message>
        <source>not validated (V)</source>
        <translation>nicht validiert (V)</translation>
    </message>
    <message>
        <source>by which the report finds its track</source>
        <translation>daran findet die Meldung ihren Track</translation>
    </message>
    <message>
        <source>the report arrived %1 s later</source>
        <translation>die Meldung kam %1 s später an</translation>
    </message>
    <message>
        <source>the report arrived %1 s earlier: the clocks differ</source>
        <translation>die Meldung kam %1 s früher an: die Uhren gehen verschieden</translation>
    </message>
    <message>
        <source>180° added to western longitudes, as the settings say</source>
        <translation>180° zu westlichen Längen addiert, wie eingestellt</translation>
    </message>
    <message>
        <source>WGS-84 positions are ignored, as the settings say</source>
        <translation>WGS-84-Positionen werden ignoriert, wie eingestellt</translation>
    </message>
    <message>
        <source>Cartesian positions are ignored, as the settings say</source>
        <translation>kartesische Positionen werden ignoriert, wie eingestellt</translation>
    </message>
    <message>
        <source>CPR global: this %1 position and the %2 one of %3 s before</source>
        <translation>CPR global: diese Position (%1) und die von %3 s davor (%2)</translation>
    </message>
    <message>
        <source>CPR local: the place nearest to the one before, since there is no pair of even and odd</source>
        <translation>CPR lokal: der Ort, der dem vorigen am nächsten liegt, da kein Paar aus gerade und ungerade vorliegt</translation>
    </message>
    <message>
        <source>Mode C garbled (G): the level is not taken</source>
        <translation>Mode C verstümmelt (G): die Höhe wird nicht übernommen</translation>
    </message>
    <message>
        <source>not validated (V), which is not looked at</source>
        <translation>nicht validiert (V), was nicht beachtet wird</translation>
    </message>
    <message>
        <source>the calculated altitude is corrected by QNH (I062/135/QNH), so it is no flight level</source>
        <translation>die berechnete Höhe ist mit QNH korrigiert (I062/135/QNH), also keine Flugfläche</translation>
    </message>
    <message>
        <source>no vertical rate to tell it from</source>
        <translation>ohne Vertikalgeschwindigkeit nicht zu bestimmen</translation>
    </message>
    <message>
        <source>from the vertical rate: climbing or descending beyond 200 ft/min, else level</source>
        <translation>aus der Vertikalgeschwindigkeit: über 200 ft/min steigend oder sinkend, sonst gleichbleibend</translation>
    </message>
    <message>
        <source>SDPS Mode S with aircraft-derived data (I062/380), SDPS without</source>
        <translation>SDPS Mode S mit vom Luftfahrzeug stammenden Daten (I062/380), sonst SDPS</translation>
    </message>
    <message>
        <source>every track of such reports is</source>
        <translation>jeder Track aus solchen Meldungen ist es</translation>
    </message>
    <message>
        <source>no position for %1 s</source>
        <translation>keine Position seit %1 s</translation>
    </message>
    <message>
        <source>a report without a track status confirms it</source>
        <translation>eine Meldung ohne Trackstatus bestätigt ihn</translation>
    </message>
    <message>
        <source>all that a surface movement radar sees is</source>
        <translation>alles, was ein Bodenradar sieht, ist es</translation>
    </message>
    <message>
        <source>no report says so</source>
        <translation>keine Meldung sagt das</translation>
    </message>
    <message>
        <source>by the Mode A code %1</source>
        <translation>durch den Mode-A-Code %1</translation>
    </message>
    <message>
        <source>as reported; kept for 20 s without being repeated</source>
        <translation>wie gemeldet; ohne Wiederholung 20 s lang behalten</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Tracknummer</translation>
    </message>
    <message>
        <source>given by this system</source>
        <translation>von diesem System vergeben</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>tentative</source>
        <translation>vorläufig</translation>
    </message>
    <message>
        <source>confirmed</source>
        <translation>bestätigt</translation>
    </message>
    <message>
        <source>coasting</source>
        <translation>extrapoliert</translation>
    </message>
    <message>
        <source>terminated</source>
        <translation>beendet</translation>
    </message>
    <message>
        <source>level</source>
        <translation>gleichbleibend</translation>
    </message>
    <message>
        <source>climbing</source>
        <translation>steigend</translation>
    </message>
    <message>
        <source>descending</source>
        <translation>sinkend</translation>
    </message>
    <message>
        <source>Callsign</source>
        <translation>Rufzeichen</translation>
    </message>
    <message>
        <source>Squawk</source>
        <translation>Squawk</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Sensor&apos;s track number</source>
        <translation>Tracknummer des Sensors</translation>
    </message>
    <message>
        <source>Time of day</source>
        <translation>Tageszeit</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Ground speed</source>
        <translation>Geschwindigkeit über Grund</translation>
    </message>
    <message>
        <source>Heading</source>
        <translation>Steuerkurs</translation>
    </message>
    <message>
        <source>Vertical rate</source>
        <translation>Vertikalgeschwindigkeit</translation>
    </message>
    <message>
        <source>Vertical trend</source>
        <translation>Vertikaltendenz</translation>
    </message>
    <message>
        <source>Selected altitude</source>
        <translation>Gewählte Höhe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>On ground</source>
        <translation>Am Boden</translation>
    </message>
    <message>
        <source>Emergency</source>
        <translation>Notfall</translation>
    </message>
    <message>
        <source>Special pulse</source>
        <translation>Sonderimpuls</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>x and y from the sensor, since there is no measured range and azimuth</source>
        <translation>x und y vom Sensor, da Entfernung und Azimut nicht gemessen sind</translation>
    </message>
    <message>
        <source>WGS-84, as reported</source>
        <translation>WGS-84, wie gemeldet</translation>
    </message>
    <message>
        <source>x and y from the sensor, since there is no WGS-84 position</source>
        <translation>x und y vom Sensor, da keine WGS-84-Position vorliegt</translation>
    </message>
    <message>
        <source>from the velocity&apos;s components, east and north</source>
        <translation>aus den Anteilen der Geschwindigkeit nach Osten und Norden</translation>
    </message>
    <message>
        <source>first register 4,0: MCP/FCU before FMS</source>
        <translation>erstes Register 4,0: MCP/FCU vor FMS</translation>
    </message>
    <message>
        <source>first register 6,0: barometric before inertial rate, either up to 6,000 ft/min</source>
        <translation>erstes Register 6,0: barometrische vor inertialer Rate, jeweils bis 6.000 ft/min</translation>
    </message>
    <message>
        <source>confirmed unless the sensor says that it is tentative</source>
        <translation>bestätigt, wenn der Sensor ihn nicht vorläufig nennt</translation>
    </message>
    <message>
        <source>WGS-84, as reported, since there is no high-resolution position</source>
        <translation>WGS-84, wie gemeldet, da keine hochauflösende Position vorliegt</translation>
    </message>
    <message>
        <source>the flight plan&apos;s</source>
        <translation>aus dem Flugplan</translation>
    </message>
    <message>
        <source>the aircraft&apos;s own, since there is none of a flight plan</source>
        <translation>das des Luftfahrzeugs selbst, da keines aus einem Flugplan vorliegt</translation>
    </message>
    <message>
        <source>from the squitter; from register 2,0 while no squitter has told it</source>
        <translation>aus dem Squitter; aus Register 2,0, solange kein Squitter es genannt hat</translation>
    </message>
    <message>
        <source>range and azimuth from the sensor, in metres</source>
        <translation>Entfernung und Azimut vom Sensor, in Metern</translation>
    </message>
    <message>
        <source>x and y in kilometres from the sensor</source>
        <translation>x und y in Kilometern vom Sensor</translation>
    </message>
    <message>
        <source>the measured flight level, before the calculated one</source>
        <translation>die gemessene Flugfläche, vor der berechneten</translation>
    </message>
    <message>
        <source>the calculated barometric altitude, since there is no measured flight level</source>
        <translation>die berechnete barometrische Höhe, da keine gemessene Flugfläche vorliegt</translation>
    </message>
    <message>
        <source>the magnetic heading, since there is no track angle</source>
        <translation>der missweisende Steuerkurs, da kein Kurs über Grund vorliegt</translation>
    </message>
    <message>
        <source>the geometric rate, since there is no barometric one</source>
        <translation>die geometrische Rate, da keine barometrische vorliegt</translation>
    </message>
    <message>
        <source>as reported, before that of the vertical rate</source>
        <translation>wie gemeldet, vor der aus der Vertikalgeschwindigkeit</translation>
    </message>
    <message>
        <source>as reported, 0 is a climb and 1 a descent; before that of the vertical rate</source>
        <translation>wie gemeldet, 0 ist Steigen und 1 Sinken; vor der aus der Vertikalgeschwindigkeit</translation>
    </message>
    <message>
        <source>as reported</source>
        <translation>wie gemeldet</translation>
    </message>
    <message>
        <source>the kind of detection</source>
        <translation>die Art der Erfassung</translation>
    </message>
    <message>
        <source>tentative, coasting or ended as the sensor says, else confirmed</source>
        <translation>vorläufig, extrapoliert oder beendet, wie der Sensor sagt, sonst bestätigt</translation>
    </message>
    <message>
        <source>tentative or coasting as the source says, else confirmed</source>
        <translation>vorläufig oder extrapoliert, wie die Quelle sagt, sonst bestätigt</translation>
    </message>
    <message>
        <source>the slant range is taken as the distance over ground</source>
        <translation>die Schrägentfernung gilt als Entfernung über Grund</translation>
    </message>
    <message>
        <source>the slant range is corrected by the level of this report, as the sensor&apos;s settings say</source>
        <translation>die Schrägentfernung ist mit der Höhe dieser Meldung korrigiert, wie beim Sensor eingestellt</translation>
    </message>
    <message>
        <source>the slant range is corrected by the track&apos;s level, as the sensor&apos;s settings say; this report has none</source>
        <translation>die Schrägentfernung ist mit der Höhe des Tracks korrigiert, wie beim Sensor eingestellt; diese Meldung hat keine</translation>
    </message>
    <message>
        <source>the slant range is taken as the distance over ground, since no level is known to correct it by</source>
        <translation>die Schrägentfernung gilt als Entfernung über Grund, da keine Höhe zum Korrigieren bekannt ist</translation>
    </message>
    <message>
        <source>range and azimuth from the sensor</source>
        <translation>Entfernung und Azimut vom Sensor</translation>
    </message>
</context>
<context>
    <name>TrackFormatForm</name>
    <message>
        <source>&amp;Label with</source>
        <translation>La&amp;bel mit</translation>
    </message>
    <message>
        <source>&amp;Alert indicator</source>
        <translation>&amp;Alarmanzeige</translation>
    </message>
    <message>
        <source>Track &amp;number</source>
        <translation>Track&amp;nummer</translation>
    </message>
    <message>
        <source>&amp;ICAO address</source>
        <translation>&amp;ICAO-Adresse</translation>
    </message>
    <message>
        <source>&amp;Callsign</source>
        <translation>&amp;Rufzeichen</translation>
    </message>
    <message>
        <source>S&amp;quawk</source>
        <translation>&amp;Transpondercode</translation>
    </message>
    <message>
        <source>L&amp;evel</source>
        <translation>&amp;Flugfläche</translation>
    </message>
    <message>
        <source>Selected al&amp;titude</source>
        <translation>Gewählte Höh&amp;e</translation>
    </message>
    <message>
        <source>&amp;Ground speed</source>
        <translation>Geschwindigkeit über Gr&amp;und</translation>
    </message>
    <message>
        <source>&amp;Vertical rate</source>
        <translation>&amp;Vertikalgeschwindigkeit</translation>
    </message>
    <message>
        <source>&amp;Heading</source>
        <translation>&amp;Steuerkurs</translation>
    </message>
    <message>
        <source>Appearance of the label</source>
        <translation>Aussehen des Labels</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>&amp;Background</source>
        <translation>&amp;Hintergrund</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>S&amp;chrift:</translation>
    </message>
    <message>
        <source>Font si&amp;ze:</source>
        <translation>Schrift&amp;größe:</translation>
    </message>
    <message>
        <source>&amp;Padding:</source>
        <translation>Innenabstan&amp;d:</translation>
    </message>
    <message>
        <source>Symbol</source>
        <translation>Symbol</translation>
    </message>
    <message>
        <source>Kind of surveillance</source>
        <translation>Art der Überwachung</translation>
    </message>
    <message>
        <source>Aircraft, turned to its heading</source>
        <translation>Luftfahrzeug, in Richtung des Steuerkurses</translation>
    </message>
    <message>
        <source>Sho&amp;ws:</source>
        <translation>&amp;Zeigt:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>Gr&amp;öße:</translation>
    </message>
    <message>
        <source>T&amp;rail</source>
        <translation>S&amp;pur</translation>
    </message>
    <message>
        <source>Past p&amp;ositions:</source>
        <translation>Frühere P&amp;ositionen:</translation>
    </message>
    <message>
        <source>Spee&amp;d vector</source>
        <translation>Geschwindigkeitsve&amp;ktor</translation>
    </message>
    <message>
        <source>Time of flight</source>
        <translation>Flugzeit</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Entfernung</translation>
    </message>
    <message>
        <source>Tic&amp;ks at every minute or mile</source>
        <translation>Teilstriche je &amp;Minute oder Meile</translation>
    </message>
    <message>
        <source>&amp;Measures:</source>
        <translation>&amp;Länge nach:</translation>
    </message>
    <message>
        <source>&amp;Up to:</source>
        <translation>Bis &amp;Wert:</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source> NM</source>
        <translation> NM</translation>
    </message>
</context>
<context>
    <name>TrackFormatPreview</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
</context>
<context>
    <name>TrackLabelFormatWindow</name>
    <message>
        <source>Track Label Format</source>
        <translation>Format der Track-Labels</translation>
    </message>
</context>
<context>
    <name>TrackListModel</name>
    <message>
        <source>PSR</source>
        <translation>PSR</translation>
    </message>
    <message>
        <source>SSR</source>
        <translation>SSR</translation>
    </message>
    <message>
        <source>PSR+SSR</source>
        <translation>PSR+SSR</translation>
    </message>
    <message>
        <source>Mode S</source>
        <translation>Mode S</translation>
    </message>
    <message>
        <source>Mode S+PSR</source>
        <translation>Mode S+PSR</translation>
    </message>
    <message>
        <source>ADS-B</source>
        <translation>ADS-B</translation>
    </message>
    <message>
        <source>MLAT</source>
        <translation>MLAT</translation>
    </message>
    <message>
        <source>SMR</source>
        <translation>SMR</translation>
    </message>
    <message>
        <source>SDPS Mode S</source>
        <translation>SDPS Mode S</translation>
    </message>
    <message>
        <source>SDPS</source>
        <translation>SDPS</translation>
    </message>
    <message>
        <source>Tentative</source>
        <translation>Vorläufig</translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Bestätigt</translation>
    </message>
    <message>
        <source>Coasting</source>
        <translation>Extrapoliert</translation>
    </message>
    <message>
        <source>Terminated</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>Callsign</source>
        <translation>Rufzeichen</translation>
    </message>
    <message>
        <source>Aircraft identification</source>
        <translation>Luftfahrzeugkennung</translation>
    </message>
    <message>
        <source>Reg</source>
        <translation>Reg.</translation>
    </message>
    <message>
        <source>Country of registration, by the aircraft address</source>
        <translation>Land der Registrierung, nach der Luftfahrzeugadresse</translation>
    </message>
    <message>
        <source>Squawk</source>
        <translation>Squawk</translation>
    </message>
    <message>
        <source>Mode 3/A code</source>
        <translation>Mode-3/A-Code</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Flight level and vertical trend</source>
        <translation>Flugfläche und Vertikaltendenz</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Gesch.</translation>
    </message>
    <message>
        <source>Ground speed, knots</source>
        <translation>Geschwindigkeit über Grund, Knoten</translation>
    </message>
    <message>
        <source>Hdg</source>
        <translation>Kurs</translation>
    </message>
    <message>
        <source>Track over ground, degrees</source>
        <translation>Kurs über Grund, Grad</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>V/S</translation>
    </message>
    <message>
        <source>Vertical rate, feet per minute</source>
        <translation>Vertikalgeschwindigkeit, Fuß je Minute</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>What sees the track</source>
        <translation>Was den Track sieht</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Life state</source>
        <translation>Lebenszustand</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>24-bit aircraft address</source>
        <translation>24-Bit-Luftfahrzeugadresse</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Tracknummer</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>Alarm</translation>
    </message>
    <message>
        <source>Active safety-net alerts, emergencies (HIJ, RDO, EMG) and special pulse (SPI)</source>
        <translation>Aktive Alarme der Sicherheitsnetze, Notfälle (HIJ, RDO, EMG) und Sonderimpuls (SPI)</translation>
    </message>
    <message>
        <source>Sel</source>
        <translation>Gew.</translation>
    </message>
    <message>
        <source>Selected altitude, hundreds of feet</source>
        <translation>Gewählte Höhe, Hunderte Fuß</translation>
    </message>
    <message>
        <source>Dist</source>
        <translation>Entf.</translation>
    </message>
    <message>
        <source>Distance from the sensor, nautical miles</source>
        <translation>Entfernung vom Sensor, Seemeilen</translation>
    </message>
    <message>
        <source>Brg</source>
        <translation>Peil.</translation>
    </message>
    <message>
        <source>True bearing from the sensor, degrees</source>
        <translation>Rechtweisende Peilung vom Sensor, Grad</translation>
    </message>
    <message>
        <source>Age</source>
        <translation>Alter</translation>
    </message>
    <message>
        <source>Since the last report, seconds</source>
        <translation>Seit der letzten Meldung, Sekunden</translation>
    </message>
    <message>
        <source>Sensor No.</source>
        <translation>Sensor-Nr.</translation>
    </message>
    <message>
        <source>The sensor&apos;s own track number</source>
        <translation>Die Tracknummer des Sensors selbst</translation>
    </message>
</context>
<context>
    <name>TrackSymbols</name>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>PSR</source>
        <translation>PSR</translation>
    </message>
    <message>
        <source>SSR</source>
        <translation>SSR</translation>
    </message>
    <message>
        <source>PSR + SSR</source>
        <translation>PSR + SSR</translation>
    </message>
    <message>
        <source>Mode S</source>
        <translation>Mode S</translation>
    </message>
    <message>
        <source>PSR + Mode S</source>
        <translation>PSR + Mode S</translation>
    </message>
    <message>
        <source>ADS-B</source>
        <translation>ADS-B</translation>
    </message>
    <message>
        <source>MLAT</source>
        <translation>MLAT</translation>
    </message>
    <message>
        <source>SMR</source>
        <translation>SMR</translation>
    </message>
    <message>
        <source>Aircraft</source>
        <translation>Luftfahrzeug</translation>
    </message>
    <message>
        <source>Vehicle</source>
        <translation>Fahrzeug</translation>
    </message>
    <message>
        <source>Coasting</source>
        <translation>Extrapoliert</translation>
    </message>
</context>
<context>
    <name>Tracker</name>
    <message>
        <source>All system track numbers are in use, reports of further targets are not shown.</source>
        <translation>Alle System-Tracknummern sind vergeben, Meldungen weiterer Ziele werden nicht gezeigt.</translation>
    </message>
</context>
<context>
    <name>UapProfile</name>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>CAT001 plots</source>
        <translation>CAT001-Plots</translation>
    </message>
</context>
<context>
    <name>UdpInput</name>
    <message>
        <source>UDP socket receive buffer size: %1 bytes</source>
        <translation>Größe des UDP-Empfangspuffers: %1 Bytes</translation>
    </message>
    <message>
        <source>Start UDP input :%1</source>
        <translation>UDP-Eingang wird gestartet :%1</translation>
    </message>
    <message>
        <source>UDP port %1 is in use by another program that does not share it.</source>
        <translation>Der UDP-Port %1 ist von einem anderen Programm belegt, das ihn nicht teilt.</translation>
    </message>
    <message>
        <source>There is no right to receive on UDP port %1.</source>
        <translation>Es fehlt das Recht, auf UDP-Port %1 zu empfangen.</translation>
    </message>
    <message>
        <source>UDP port %1 cannot be opened: %2</source>
        <translation>Der UDP-Port %1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Failed to bind UDP port %1.</source>
        <translation>Der UDP-Port %1 konnte nicht gebunden werden.</translation>
    </message>
    <message>
        <source>Start UDP multicast input %1:%2 on interface %3</source>
        <translation>UDP-Multicast-Eingang %1:%2 wird auf der Schnittstelle %3 gestartet</translation>
    </message>
    <message>
        <source>%1 is no multicast group.</source>
        <translation>%1 ist keine Multicast-Gruppe.</translation>
    </message>
    <message>
        <source>The multicast group %1 cannot be joined on interface %2: %3</source>
        <translation>Der Multicast-Gruppe %1 kann auf der Schnittstelle %2 nicht beigetreten werden: %3</translation>
    </message>
    <message>
        <source>Failed to join UDP multicast group %1 on interface %2</source>
        <translation>Der Beitritt zur UDP-Multicast-Gruppe %1 auf der Schnittstelle %2 ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>UDP input backlog: %1 KB pending, decoding cannot keep up, datagrams may be dropped by the OS.</source>
        <translation>Rückstau am UDP-Eingang: %1 KB warten, das Decodieren kommt nicht mit, das Betriebssystem verwirft womöglich Datagramme.</translation>
    </message>
    <message>
        <source>Stop UDP input</source>
        <translation>UDP-Eingang wird gestoppt</translation>
    </message>
    <message>
        <source>it is down</source>
        <translation>sie ist ausgeschaltet</translation>
    </message>
    <message>
        <source>The multicast group %1 has been joined again on interface %2.</source>
        <translation>Der Multicast-Gruppe %1 wurde auf der Schnittstelle %2 wieder beigetreten.</translation>
    </message>
    <message>
        <source>The network interface %1 brings nothing: %2. The multicast group %3 is joined again when it is back.</source>
        <translation>Die Netzwerkschnittstelle %1 liefert nichts: %2. Der Multicast-Gruppe %3 wird wieder beigetreten, sobald sie zurück ist.</translation>
    </message>
    <message>
        <source>The network interface %1 for the multicast group %2 is not there.</source>
        <translation>Die Netzwerkschnittstelle %1 für die Multicast-Gruppe %2 ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>The multicast group %1 cannot be joined: %2</source>
        <translation>Der Multicast-Gruppe %1 kann nicht beigetreten werden: %2</translation>
    </message>
</context>
<context>
    <name>UdpInputFields</name>
    <message>
        <source>M&amp;ulticast</source>
        <translation>M&amp;ulticast</translation>
    </message>
    <message>
        <source>&amp;Multicast</source>
        <translation>&amp;Multicast</translation>
    </message>
    <message>
        <source>The multicast group that the sensor sends to, 224.0.0.0 to 239.255.255.255.</source>
        <translation>Die Multicast-Gruppe, an die der Sensor sendet, 224.0.0.0 bis 239.255.255.255.</translation>
    </message>
    <message>
        <source>The network interface on which the group is joined.</source>
        <translation>Die Netzwerkschnittstelle, auf der der Gruppe beigetreten wird.</translation>
    </message>
    <message>
        <source>Po&amp;rt:</source>
        <translation>Po&amp;rt:</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>&amp;Port:</translation>
    </message>
    <message>
        <source>Gr&amp;oup:</source>
        <translation>Grupp&amp;e:</translation>
    </message>
    <message>
        <source>&amp;Group:</source>
        <translation>&amp;Gruppe:</translation>
    </message>
    <message>
        <source>I&amp;nterface:</source>
        <translation>Sch&amp;nittstelle:</translation>
    </message>
    <message>
        <source>&amp;Interface:</source>
        <translation>&amp;Schnittstelle:</translation>
    </message>
    <message>
        <source>Chosen by the system</source>
        <translation>Vom System gewählt</translation>
    </message>
    <message>
        <source>This is no IP address.</source>
        <translation>Das ist keine IP-Adresse.</translation>
    </message>
    <message>
        <source>A multicast group lies between 224.0.0.0 and 239.255.255.255.</source>
        <translation>Eine Multicast-Gruppe liegt zwischen 224.0.0.0 und 239.255.255.255.</translation>
    </message>
    <message>
        <source>Both inputs have the same group and port.</source>
        <translation>Beide Eingänge haben dieselbe Gruppe und denselben Port.</translation>
    </message>
    <message>
        <source>Both inputs have the same port.</source>
        <translation>Beide Eingänge haben denselben Port.</translation>
    </message>
    <message>
        <source>The UDP port that the sensor sends to.</source>
        <translation>Der UDP-Port, an den der Sensor sendet.</translation>
    </message>
    <message>
        <source>For a sensor that sends to a group of receivers instead of to this machine alone.</source>
        <translation>Für einen Sensor, der an eine Gruppe von Empfängern sendet statt nur an diesen Rechner.</translation>
    </message>
    <message>
        <source>%1 (not there)</source>
        <translation>%1 (nicht da)</translation>
    </message>
</context>
<context>
    <name>UdpPortUsers</name>
    <message>
        <source>a program of the user %1</source>
        <translation>ein Programm des Benutzers %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; (process %2, user %3)</source>
        <translation>„%1“ (Prozess %2, Benutzer %3)</translation>
    </message>
</context>
<context>
    <name>UnlockWindow</name>
    <message>
        <source>Unlock Settings</source>
        <translation>Einstellungen entsperren</translation>
    </message>
    <message>
        <source>The settings of this position are locked.</source>
        <translation>Die Einstellungen dieses Arbeitsplatzes sind gesperrt.</translation>
    </message>
    <message>
        <source>Opens the settings until they are locked again or the program ends.</source>
        <translation>Öffnet die Einstellungen, bis sie wieder gesperrt werden oder das Programm endet.</translation>
    </message>
    <message>
        <source>&amp;Password:</source>
        <translation>&amp;Passwort:</translation>
    </message>
    <message numerus="yes">
        <source>This is not the password. Try again in %n s.</source>
        <translation>
            <numerusform>Das ist nicht das Passwort. Versuchen Sie es in %n s noch einmal.</numerusform>
            <numerusform>Das ist nicht das Passwort. Versuchen Sie es in %n s noch einmal.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is not the password.</source>
        <translation>Das ist nicht das Passwort.</translation>
    </message>
</context>
<context>
    <name>VideoConfigPage</name>
    <message>
        <source>Radar Video</source>
        <translation>Radarvideo</translation>
    </message>
    <message>
        <source>0 is transparent, 255 hides what lies under the echo.</source>
        <translation>0 ist durchsichtig, 255 verdeckt, was unter dem Echo liegt.</translation>
    </message>
    <message>
        <source>Echoes</source>
        <translation>Echos</translation>
    </message>
    <message>
        <source>Show radar &amp;video</source>
        <translation>Radar&amp;video zeigen</translation>
    </message>
    <message>
        <source>&amp;Afterglow:</source>
        <translation>&amp;Nachleuchten:</translation>
    </message>
    <message>
        <source>How long an echo takes to fade away.</source>
        <translation>Wie lange ein Echo zum Verblassen braucht.</translation>
    </message>
    <message>
        <source>&amp;Threshold (0-255):</source>
        <translation>&amp;Schwelle (0-255):</translation>
    </message>
    <message>
        <source>Amplitudes up to this are not shown.</source>
        <translation>Amplituden bis zu diesem Wert werden nicht gezeigt.</translation>
    </message>
    <message>
        <source>Weak echoes</source>
        <translation>Schwache Echos</translation>
    </message>
    <message>
        <source>&amp;Colour:</source>
        <translation>&amp;Farbe:</translation>
    </message>
    <message>
        <source>Colour of Weak Echoes</source>
        <translation>Farbe schwacher Echos</translation>
    </message>
    <message>
        <source>&amp;Opacity (0-255):</source>
        <translation>&amp;Deckkraft (0-255):</translation>
    </message>
    <message>
        <source>Strong echoes</source>
        <translation>Starke Echos</translation>
    </message>
    <message>
        <source>Co&amp;lour:</source>
        <translation>F&amp;arbe:</translation>
    </message>
    <message>
        <source>Colour of Strong Echoes</source>
        <translation>Farbe starker Echos</translation>
    </message>
    <message>
        <source>O&amp;pacity (0-255):</source>
        <translation>Dec&amp;kkraft (0-255):</translation>
    </message>
    <message>
        <source>Draws the echoes as the radar&apos;s receiver has them (CAT240).</source>
        <translation>Zeichnet die Echos, wie der Empfänger des Radars sie hat (CAT240).</translation>
    </message>
    <message>
        <source>Colour of echoes just above the threshold; stronger ones go over to the other colour.</source>
        <translation>Farbe von Echos knapp über der Schwelle; stärkere gehen in die andere Farbe über.</translation>
    </message>
    <message>
        <source>Colour of echoes of full amplitude.</source>
        <translation>Farbe von Echos voller Amplitude.</translation>
    </message>
</context>
<context>
    <name>VideoProcessor</name>
    <message>
        <source>Video Processor: Unsupported video resolution or compressed video, record dropped.</source>
        <translation>Videoverarbeitung: nicht unterstützte Videoauflösung oder komprimiertes Video, Datensatz verworfen.</translation>
    </message>
    <message>
        <source>Video Processor: Video vector exceeds the amplitude buffer (%1 cells), record dropped.</source>
        <translation>Videoverarbeitung: der Videovektor überschreitet den Amplitudenpuffer (%1 Zellen), Datensatz verworfen.</translation>
    </message>
    <message>
        <source>Video Processor: Video vector error %1, record dropped.</source>
        <translation>Videoverarbeitung: Fehler %1 im Videovektor, Datensatz verworfen.</translation>
    </message>
</context>
<context>
    <name>VyxBinMapFile</name>
    <message>
        <source>Failed to parse the map file at byte %1.</source>
        <translation>Die Kartendatei kann bei Byte %1 nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>VyxXmlMapFile</name>
    <message>
        <source>Cannot write image file &quot;%1&quot;: %2.</source>
        <translation>Die Bilddatei „%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>This is not a valid VyxXML format map file.</source>
        <translation>Das ist keine gültige Kartendatei im VyxXML-Format.</translation>
    </message>
    <message>
        <source>Failed to parse the map file at line %1.</source>
        <translation>Die Kartendatei kann in Zeile %1 nicht gelesen werden.</translation>
    </message>
</context>
<context>
    <name>WeatherConfigPage</name>
    <message>
        <source>Weather</source>
        <translation>Wetter</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Show &amp;weather</source>
        <translation>&amp;Wetter zeigen</translation>
    </message>
    <message>
        <source>&amp;Keep the last picture when an empty one comes</source>
        <translation>Das &amp;letzte Bild behalten, wenn ein leeres kommt</translation>
    </message>
    <message>
        <source>Remove a picture a&amp;fter:</source>
        <translation>Ein Bild entfernen &amp;nach:</translation>
    </message>
    <message>
        <source>&amp;Make vectors as wide as they are apart</source>
        <translation>&amp;Vektoren so breit zeichnen, wie sie auseinanderliegen</translation>
    </message>
    <message>
        <source>&amp;Vector width:</source>
        <translation>Vektor&amp;breite:</translation>
    </message>
    <message>
        <source>Also used when a picture has too few vectors to tell.</source>
        <translation>Auch verwendet, wenn ein Bild dafür zu wenige Vektoren hat.</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>&amp;Opacity (0-255):</source>
        <translation>&amp;Deckkraft (0-255):</translation>
    </message>
    <message>
        <source>0 is transparent, 255 hides what lies under the weather.</source>
        <translation>0 ist durchsichtig, 255 verdeckt, was unter dem Wetter liegt.</translation>
    </message>
    <message>
        <source>Choose a scheme ...</source>
        <translation>Ein Schema wählen ...</translation>
    </message>
    <message>
        <source>&amp;Scheme:</source>
        <translation>&amp;Schema:</translation>
    </message>
    <message>
        <source>Weather Colour</source>
        <translation>Wetterfarbe</translation>
    </message>
    <message>
        <source>Level &amp;%1:</source>
        <translation>Stufe &amp;%1:</translation>
    </message>
    <message>
        <source>Draws the radar&apos;s weather pictures (CAT008).</source>
        <translation>Zeichnet die Wetterbilder des Radars (CAT008).</translation>
    </message>
    <message>
        <source>For radars that send empty pictures between full ones.</source>
        <translation>Für Radare, die zwischen vollen Bildern leere senden.</translation>
    </message>
    <message>
        <source>How long a picture is shown when no other one follows.</source>
        <translation>Wie lange ein Bild gezeigt wird, wenn kein anderes folgt.</translation>
    </message>
    <message>
        <source>Leaves no gaps between the vectors of a picture, whatever their number.</source>
        <translation>Lässt keine Lücken zwischen den Vektoren eines Bilds, wie viele es auch sind.</translation>
    </message>
    <message>
        <source>Fills in the colours of all levels; each of them can be changed afterwards.</source>
        <translation>Füllt die Farben aller Stufen aus; jede kann danach geändert werden.</translation>
    </message>
    <message>
        <source>Colour of weather of this intensity, 0 being the lightest.</source>
        <translation>Farbe von Wetter dieser Intensität; 0 ist die schwächste.</translation>
    </message>
</context>
<context>
    <name>WeatherExplanation</name>
    <message>
        <source>Intensity</source>
        <translation>Intensität</translation>
    </message>
    <message>
        <source>From range</source>
        <translation>Von Entfernung</translation>
    </message>
    <message>
        <source>To range</source>
        <translation>Bis Entfernung</translation>
    </message>
    <message>
        <source>Azimuth</source>
        <translation>Azimut</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>drawn around the place of the input&apos;s sensor</source>
        <translation>um den Standort des Eingangssensors gezeichnet</translation>
    </message>
    <message>
        <source>Scaling factor</source>
        <translation>Skalierungsfaktor</translation>
    </message>
    <message>
        <source>Time of picture</source>
        <translation>Zeit des Bilds</translation>
    </message>
    <message>
        <source>Vectors in picture</source>
        <translation>Vektoren im Bild</translation>
    </message>
    <message>
        <source>as its end announces</source>
        <translation>wie sein Ende angibt</translation>
    </message>
    <message>
        <source>its message is kept no more</source>
        <translation>seine Nachricht ist nicht mehr aufbewahrt</translation>
    </message>
    <message>
        <source>hatched, since this level is switched off (Weather Intensity)</source>
        <translation>schraffiert, da diese Stufe ausgeschaltet ist (Wetterintensität)</translation>
    </message>
    <message>
        <source>in the colour of its level, stronger over weaker</source>
        <translation>in der Farbe seiner Stufe, stärkere über schwächeren</translation>
    </message>
    <message>
        <source>scaled by the factor that an earlier picture began with</source>
        <translation>skaliert mit dem Faktor, mit dem ein früheres Bild begann</translation>
    </message>
    <message>
        <source>%1 × 2^(F − 7) NM, with the scaling factor F = %2</source>
        <translation>%1 × 2^(F − 7) NM, mit dem Skalierungsfaktor F = %2</translation>
    </message>
    <message>
        <source>drawn %1° wide, so that neighbours touch</source>
        <translation>%1° breit gezeichnet, sodass Nachbarn sich berühren</translation>
    </message>
    <message>
        <source>drawn %1° wide, as the settings say</source>
        <translation>%1° breit gezeichnet, wie eingestellt</translation>
    </message>
</context>
<context>
    <name>WeatherIntensityWindow</name>
    <message>
        <source>Weather Intensity</source>
        <translation>Wetterintensität</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keine</translation>
    </message>
    <message>
        <source>Level &amp;%1</source>
        <translation>Stufe &amp;%1</translation>
    </message>
    <message>
        <source>Vectors of this level in the picture</source>
        <translation>Vektoren dieser Stufe im Bild</translation>
    </message>
    <message>
        <source>The colour scheme has no colour for this level.</source>
        <translation>Das Farbschema hat für diese Stufe keine Farbe.</translation>
    </message>
</context>
<context>
    <name>WeatherProcessor</name>
    <message>
        <source>Weather Processor: Unsupported CAT008 message type: %1</source>
        <translation>Wetterverarbeitung: nicht unterstützte CAT008-Meldungsart: %1</translation>
    </message>
    <message>
        <source>Weather Processor: Incomplete weather picture discarded by new SOP.</source>
        <translation>Wetterverarbeitung: unvollständiges Wetterbild durch neues SOP verworfen.</translation>
    </message>
    <message>
        <source>Weather Processor: SOP received (time of day: %1, scale factor: %2).</source>
        <translation>Wetterverarbeitung: SOP empfangen (Tageszeit: %1, Skalierungsfaktor: %2).</translation>
    </message>
    <message>
        <source>Weather Processor: Polar vectors received without SOP, record dropped.</source>
        <translation>Wetterverarbeitung: Polarvektoren ohne SOP empfangen, Datensatz verworfen.</translation>
    </message>
    <message>
        <source>Weather Processor: Polar vector record incomplete, record dropped.</source>
        <translation>Wetterverarbeitung: Polarvektor-Datensatz unvollständig, Datensatz verworfen.</translation>
    </message>
    <message>
        <source>Weather Processor: Weather vectors in system coordinates are not supported, record dropped.</source>
        <translation>Wetterverarbeitung: Wettervektoren in Systemkoordinaten werden nicht unterstützt, Datensatz verworfen.</translation>
    </message>
    <message>
        <source>Weather Processor: Test or error polar vector, record dropped.</source>
        <translation>Wetterverarbeitung: Test- oder Fehler-Polarvektor, Datensatz verworfen.</translation>
    </message>
    <message>
        <source>Weather Processor: No scaling factor received, weather vectors dropped.</source>
        <translation>Wetterverarbeitung: kein Skalierungsfaktor empfangen, Wettervektoren verworfen.</translation>
    </message>
    <message>
        <source>Weather Processor: %1 polar vector(s) received (intensity %2, total %3).</source>
        <translation>Wetterverarbeitung: %1 Polarvektor(en) empfangen (Intensität %2, insgesamt %3).</translation>
    </message>
    <message>
        <source>Weather Processor: EOP received, weather picture: %1 vector(s).</source>
        <translation>Wetterverarbeitung: EOP empfangen, Wetterbild: %1 Vektor(en).</translation>
    </message>
    <message>
        <source>Weather Processor: Incomplete weather picture: %1 of %2 vectors received.</source>
        <translation>Wetterverarbeitung: unvollständiges Wetterbild: %1 von %2 Vektoren empfangen.</translation>
    </message>
    <message>
        <source>Weather Processor: EOP received, weather picture %1: %2 of %3 vector(s).</source>
        <translation>Wetterverarbeitung: EOP empfangen, Wetterbild %1: %2 von %3 Vektor(en).</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>vollständig</translation>
    </message>
    <message>
        <source>incomplete</source>
        <translation>unvollständig</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>What do you want to see?</source>
        <translation>Was möchten Sie sehen?</translation>
    </message>
    <message>
        <source>&amp;Demonstration</source>
        <translation>&amp;Vorführung</translation>
    </message>
    <message>
        <source>Made-up traffic, to look around. Your settings stay as they are; Stop ends it.</source>
        <translation>Erdachter Verkehr, um sich umzusehen. Ihre Einstellungen bleiben, wie sie sind; Stopp beendet sie.</translation>
    </message>
    <message>
        <source>Open a &amp;Recording...</source>
        <translation>&amp;Aufzeichnung öffnen...</translation>
    </message>
    <message>
        <source>A capture or a recorder&apos;s file. What it holds is found out by itself.</source>
        <translation>Ein Mitschnitt oder die Datei eines Aufzeichners. Was sie enthält, wird von selbst ermittelt.</translation>
    </message>
    <message>
        <source>&amp;Live Input...</source>
        <translation>&amp;Live-Eingang...</translation>
    </message>
    <message>
        <source>A network or a serial line. You see what arrives before anything is set.</source>
        <translation>Ein Netz oder eine serielle Leitung. Sie sehen, was ankommt, bevor etwas eingestellt wird.</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Design:</translation>
    </message>
    <message>
        <source>Esc leads to the empty scope. Help, Getting Started... brings this page back.</source>
        <translation>Esc führt zur leeren Anzeige. Hilfe, Erste Schritte... bringt diese Seite zurück.</translation>
    </message>
</context>
<context>
    <name>WindowControl</name>
    <message>
        <source>&quot;%1&quot; has to lie between %2 and %3.</source>
        <translation>„%1“ muss zwischen %2 und %3 liegen.</translation>
    </message>
    <message>
        <source>&quot;latitude&quot; and &quot;longitude&quot; belong together.</source>
        <translation>„latitude“ und „longitude“ gehören zusammen.</translation>
    </message>
    <message>
        <source>The input is open already.</source>
        <translation>Der Eingang ist schon geöffnet.</translation>
    </message>
    <message>
        <source>No input is open.</source>
        <translation>Kein Eingang ist geöffnet.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>korvane::airdb::AirDBBuilder</name>
    <message>
        <source>a region needs a code of two capitals and a name</source>
        <translation>eine Region braucht einen Code aus zwei Großbuchstaben und einen Namen</translation>
    </message>
    <message>
        <source>region %1 is there already</source>
        <translation>die Region %1 gibt es schon</translation>
    </message>
    <message>
        <source>country codes have two and three capitals</source>
        <translation>Ländercodes haben zwei und drei Großbuchstaben</translation>
    </message>
    <message>
        <source>there is no region %1</source>
        <translation>es gibt keine Region %1</translation>
    </message>
    <message>
        <source>country %1 is there already</source>
        <translation>das Land %1 gibt es schon</translation>
    </message>
    <message>
        <source>%1 to %2 are not addresses in their order</source>
        <translation>%1 bis %2 sind keine Adressen in ihrer Reihenfolge</translation>
    </message>
    <message>
        <source>the block is there already</source>
        <translation>den Block gibt es schon</translation>
    </message>
    <message>
        <source>there are too many blocks</source>
        <translation>es gibt zu viele Blöcke</translation>
    </message>
    <message>
        <source>there is no country %1</source>
        <translation>es gibt kein Land %1</translation>
    </message>
    <message>
        <source>military is 1 or empty</source>
        <translation>militärisch ist 1 oder leer</translation>
    </message>
    <message>
        <source>%1 is not a system area code</source>
        <translation>%1 ist kein System Area Code</translation>
    </message>
    <message>
        <source>system area code %1 is there already</source>
        <translation>den System Area Code %1 gibt es schon</translation>
    </message>
    <message>
        <source>%1/%2 is not a sensor</source>
        <translation>%1/%2 ist kein Sensor</translation>
    </message>
    <message>
        <source>a sensor needs a name</source>
        <translation>ein Sensor braucht einen Namen</translation>
    </message>
    <message>
        <source>sensor %1/%2 is there already</source>
        <translation>den Sensor %1/%2 gibt es schon</translation>
    </message>
    <message>
        <source>%1 is not an aircraft&apos;s address</source>
        <translation>%1 ist keine Luftfahrzeugadresse</translation>
    </message>
    <message>
        <source>an aircraft needs a registration</source>
        <translation>ein Luftfahrzeug braucht ein Kennzeichen</translation>
    </message>
    <message>
        <source>aircraft %1 is there already</source>
        <translation>das Luftfahrzeug %1 gibt es schon</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>korvane::airdb::CsvImport</name>
    <message>
        <source>there is no line with the names of the columns</source>
        <translation>es gibt keine Zeile mit den Namen der Spalten</translation>
    </message>
    <message>
        <source>there is no column &quot;%1&quot;</source>
        <translation>es gibt keine Spalte „%1“</translation>
    </message>
    <message>
        <source>a quote is not closed, or the text is not UTF-8</source>
        <translation>ein Anführungszeichen ist nicht geschlossen, oder der Text ist nicht UTF-8</translation>
    </message>
    <message>
        <source>%1 values in %2 columns</source>
        <translation>%1 Werte in %2 Spalten</translation>
    </message>
</context>
<context>
    <name>korvane::airdb::LibAirDB</name>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>not an aircraft database</source>
        <translation>keine Luftfahrzeugdatenbank</translation>
    </message>
    <message>
        <source>aircraft database of another version</source>
        <translation>Luftfahrzeugdatenbank einer anderen Version</translation>
    </message>
    <message>
        <source>damaged aircraft database</source>
        <translation>beschädigte Luftfahrzeugdatenbank</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>no screen: set DISPLAY or WAYLAND_DISPLAY, or QT_QPA_PLATFORM=offscreen to run without one</source>
        <translation>kein Bildschirm: setzen Sie DISPLAY oder WAYLAND_DISPLAY, oder QT_QPA_PLATFORM=offscreen für den Betrieb ohne</translation>
    </message>
    <message>
        <source>the program cannot be started again</source>
        <translation>das Programm kann nicht wieder gestartet werden</translation>
    </message>
</context>
</TS>
