<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AdderTexts</name>
    <message>
        <source>it can&apos;t be read</source>
        <translation>sie ist nicht lesbar</translation>
    </message>
    <message>
        <source>it changed while it was read</source>
        <translation>sie hat sich beim Lesen geändert</translation>
    </message>
</context>
<context>
    <name>CompanionDrawing</name>
    <message>
        <source>Δ flight minus reference</source>
        <translation>Δ Flug minus Referenz</translation>
    </message>
    <message>
        <source>ref. %1</source>
        <translation>Ref. %1</translation>
    </message>
</context>
<context>
    <name>CurveMenu</name>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Anzeigen</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Ausblenden</translation>
    </message>
    <message>
        <source>&amp;Only This</source>
        <translation>&amp;Nur diese</translation>
    </message>
    <message>
        <source>&amp;Color...</source>
        <translation>&amp;Farbe...</translation>
    </message>
    <message>
        <source>Show &amp;All Curves</source>
        <translation>A&amp;lle Kurven anzeigen</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Own &amp;Range...</source>
        <translation>&amp;Eigener Bereich...</translation>
    </message>
    <message>
        <source>Au&amp;tomatic Range</source>
        <translation>Au&amp;tomatischer Bereich</translation>
    </message>
    <message>
        <source>Color of %1</source>
        <translation>Farbe von %1</translation>
    </message>
    <message>
        <source>Range of %1</source>
        <translation>Bereich von %1</translation>
    </message>
</context>
<context>
    <name>DialogAbout</name>
    <message>
        <source>About ORNA</source>
        <translation>Über ORNA</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Third-party notices</source>
        <translation>Drittanbieter-Hinweise</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Dieses Fenster schließen</translation>
    </message>
    <message>
        <source>Reads engine and flight recordings of an aircraft&apos;s SD card</source>
        <translation>Liest Triebwerks- und Flugaufzeichnungen von der SD-Karte eines Luftfahrzeugs</translation>
    </message>
    <message>
        <source>Version %1, built %2</source>
        <translation>Version %1, erstellt: %2</translation>
    </message>
</context>
<context>
    <name>DialogHelp</name>
    <message>
        <source>ORNA Help</source>
        <translation>ORNA-Hilfe</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Dieses Fenster schließen</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>Sections of the manual</source>
        <translation>Abschnitte des Handbuchs</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Handbuch durchsuchen</translation>
    </message>
    <message>
        <source>Words to find; Enter goes to the next place</source>
        <translation>Suchbegriffe; die Eingabetaste springt zur nächsten Fundstelle</translation>
    </message>
    <message>
        <source>Previous place</source>
        <translation>Vorherige Fundstelle</translation>
    </message>
    <message>
        <source>Next place</source>
        <translation>Nächste Fundstelle</translation>
    </message>
</context>
<context>
    <name>EmptyText</name>
    <message>
        <source>No profile is loaded, so nothing can be decoded and nothing was checked.
Choose one in the &lt;a href=&quot;preferences&quot;&gt;preferences&lt;/a&gt;.</source>
        <translation>Es ist kein Profil geladen, daher kann nichts dekodiert werden und es wurde nichts geprüft.
Wählen Sie eines in den &lt;a href=&quot;preferences&quot;&gt;Einstellungen&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The recording is being loaded.</source>
        <translation>Die Aufzeichnung wird geladen.</translation>
    </message>
    <message>
        <source>No recording is loaded.
Open a card and pick one or more recordings in the list on the left.</source>
        <translation>Es ist keine Aufzeichnung geladen.
Öffnen Sie eine Karte und wählen Sie links in der Liste eine oder mehrere Aufzeichnungen.</translation>
    </message>
    <message>
        <source>The recording holds no samples, so nothing was checked.</source>
        <translation>Die Aufzeichnung enthält keine Messwerte, daher wurde nichts geprüft.</translation>
    </message>
    <message>
        <source>No parameter is selected.
Tick parameters in the list on the left and press &quot;Confirm Selection&quot;.</source>
        <translation>Es ist kein Parameter ausgewählt.
Haken Sie links in der Liste Parameter an und klicken Sie auf „Auswahl bestätigen“.</translation>
    </message>
</context>
<context>
    <name>EventLists</name>
    <message>
        <source>The recording holds no FLOAT message of a parameter with a threshold, so nothing was watched for limits.</source>
        <translation>Die Aufzeichnung enthält keine FLOAT-Nachricht eines Parameters mit Schwellenwert, daher wurde nichts auf Grenzwerte überwacht.</translation>
    </message>
    <message>
        <source>No limit event in %1 samples of %2 watched parameters.</source>
        <translation>Kein Grenzwertereignis. Geprüfte Messwerte: %1, überwachte Parameter: %2.</translation>
    </message>
    <message>
        <source>The recording holds no message of a warning lamp, so none was watched.</source>
        <translation>Die Aufzeichnung enthält keine Nachricht einer Warnlampe, daher wurde keine überwacht.</translation>
    </message>
    <message>
        <source>No warning lamp came on in %1 samples of %2 lamps.</source>
        <translation>Keine Warnlampe leuchtete auf. Geprüfte Messwerte: %1, überwachte Lampen: %2.</translation>
    </message>
    <message>
        <source>The recording holds no message of an error matrix, so none was watched.</source>
        <translation>Die Aufzeichnung enthält keine Nachricht einer Fehlermatrix, daher wurde keine überwacht.</translation>
    </message>
    <message>
        <source>No error was active in %1 messages of %2 matrices.</source>
        <translation>Kein Fehler war aktiv. Geprüfte Nachrichten: %1, Matrizen: %2.</translation>
    </message>
</context>
<context>
    <name>EventMarks</name>
    <message>
        <source>%1 came</source>
        <translation>%1 gekommen</translation>
    </message>
    <message>
        <source>%1 went</source>
        <translation>%1 gegangen</translation>
    </message>
</context>
<context>
    <name>EventWords</name>
    <message>
        <source>Caution</source>
        <translation>Vorsicht</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Grenzwert</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>ExportCan</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>„%1“ konnte nicht geschrieben werden: %2</translation>
    </message>
</context>
<context>
    <name>ExportCsv</name>
    <message>
        <source>The first sample is at %1 s, the last at %2 s, the export ends at %3 s. Choose a shorter time range or a coarser resolution.</source>
        <translation>Der erste Messwert liegt bei %1 s, der letzte bei %2 s, der Export endet bei %3 s. Wählen Sie einen kürzeren Zeitbereich oder eine gröbere Auflösung.</translation>
    </message>
    <message>
        <source>The table would have too many rows.</source>
        <translation>Die Tabelle hätte zu viele Zeilen.</translation>
    </message>
    <message>
        <source>The table would have %1 rows, about %2 MB, more than is free in &quot;%3&quot;.</source>
        <translation>Die Tabelle hätte %1 Zeilen, etwa %2 MB, mehr als in „%3“ frei ist.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>„%1“ konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>No parameter is selected, the file holds its title only.</source>
        <translation>Es ist kein Parameter ausgewählt, die Datei enthält nur die Kopfzeile.</translation>
    </message>
    <message>
        <source>No sample lies in the time range, the file holds its titles only.</source>
        <translation>Im Zeitbereich liegt kein Messwert, die Datei enthält nur die Kopfzeile.</translation>
    </message>
</context>
<context>
    <name>ExportKml</name>
    <message>
        <source>&quot;%1&quot; could not be written. Check that the folder exists, may be written to and has room.</source>
        <translation>„%1“ konnte nicht geschrieben werden. Prüfen Sie, ob der Ordner existiert, beschreibbar ist und genügend Platz bietet.</translation>
    </message>
    <message>
        <source>No position lies in the time range, the flight path is empty.</source>
        <translation>Im Zeitbereich liegt keine Position, der Flugweg ist leer.</translation>
    </message>
    <message>
        <source>Left out, because no position lies in their time slot: %1 values, %2 events. A longer &quot;Timestamp every&quot; keeps them.</source>
        <translation>Weggelassen, da in ihrem Zeitabschnitt keine Position liegt – Werte: %1, Ereignisse: %2. Mit einem größeren Wert für „Zeitstempel alle“ bleiben sie erhalten.</translation>
    </message>
</context>
<context>
    <name>ExportReport</name>
    <message>
        <source>&quot;%1&quot;: a report is a web page or a PDF; end the name in .html or .pdf.</source>
        <translation>„%1“: Ein Bericht ist eine Webseite oder ein PDF; der Name muss auf .html oder .pdf enden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2. Choose another folder; the old file, if there was one, is unchanged.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2. Wählen Sie einen anderen Ordner; die alte Datei, falls es sie gab, ist unverändert.</translation>
    </message>
</context>
<context>
    <name>Exporter</name>
    <message>
        <source>&quot;%1&quot; is the recording itself. Choose another name or folder.</source>
        <translation>„%1“ ist die Aufzeichnung selbst. Wählen Sie einen anderen Namen oder Ordner.</translation>
    </message>
    <message>
        <source>There is not enough memory for this export; choose a shorter time range.</source>
        <translation>Der Speicher reicht für diesen Export nicht aus; wählen Sie einen kürzeren Zeitbereich.</translation>
    </message>
</context>
<context>
    <name>FlightAdder</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be read to its end</source>
        <translation>„%1“ ist nicht bis zum Ende lesbar</translation>
    </message>
    <message>
        <source>there is no sample in it</source>
        <translation>sie enthält keinen Messwert</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>der Speicher reicht nicht dafür</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no folder</source>
        <translation>„%1“ ist kein Ordner</translation>
    </message>
</context>
<context>
    <name>FlightSummary</name>
    <message>
        <source>Duration %1</source>
        <translation>Dauer %1</translation>
    </message>
    <message>
        <source>no profile, so nothing was checked</source>
        <translation>kein Profil, daher wurde nichts geprüft</translation>
    </message>
    <message>
        <source>%1 at the limit</source>
        <translation>%1 am Grenzwert</translation>
    </message>
    <message>
        <source>%1 in warning</source>
        <translation>%1 im Warnbereich</translation>
    </message>
    <message>
        <source>Lamps: %1</source>
        <translation>Lampen: %1</translation>
    </message>
    <message>
        <source>Faults and warnings: %1</source>
        <translation>Fehler und Warnungen: %1</translation>
    </message>
    <message>
        <source>nothing out of range in %1 samples of %2 watched parameters</source>
        <translation>nichts außerhalb des Bereichs in %1 Messwerten von %2 überwachten Parametern</translation>
    </message>
    <message>
        <source>no parameter was watched for limits</source>
        <translation>kein Parameter wurde auf Grenzwerte überwacht</translation>
    </message>
    <message>
        <source>Remarks: %1</source>
        <translation>Bemerkungen: %1</translation>
    </message>
</context>
<context>
    <name>FlightTables</name>
    <message>
        <source>the logbook has no flight &quot;%1&quot;</source>
        <translation>das Bordbuch hat keinen Flug „%1“</translation>
    </message>
</context>
<context>
    <name>GraphCaption</name>
    <message>
        <source>%1 to %2 (%3 recordings)</source>
        <translation>%1 bis %2 (%3 Aufzeichnungen)</translation>
    </message>
    <message>
        <source>%1 to %2 on the recording&apos;s clock</source>
        <translation>%1 bis %2 auf der Uhr der Aufzeichnung</translation>
    </message>
</context>
<context>
    <name>HeightDrawing</name>
    <message>
        <source>Altitude</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Altitude [%1]</source>
        <translation>Höhe [%1]</translation>
    </message>
</context>
<context>
    <name>Logbook</name>
    <message>
        <source>the logbook has no flight &quot;%1&quot;</source>
        <translation>das Bordbuch hat keinen Flug „%1“</translation>
    </message>
    <message>
        <source>the keys of several flights begin with &quot;%1&quot;</source>
        <translation>die Schlüssel mehrerer Flüge beginnen mit „%1“</translation>
    </message>
    <message>
        <source>the logbook has no flight of the engine &quot;%1&quot;</source>
        <translation>das Bordbuch hat keinen Flug des Motors „%1“</translation>
    </message>
</context>
<context>
    <name>LogbookPlace</name>
    <message>
        <source>the logbook&apos;s URL is neither sqlite:PATH nor postgresql://user@host:port/database</source>
        <translation>die URL des Bordbuchs ist weder sqlite:PFAD noch postgresql://benutzer@rechner:port/datenbank</translation>
    </message>
    <message>
        <source>the logbook&apos;s URL has an option that is not understood; known are %1</source>
        <translation>die URL des Bordbuchs hat eine unbekannte Option; bekannt sind %1</translation>
    </message>
    <message>
        <source>there is no home directory for a logbook; name one by its URL</source>
        <translation>es gibt kein Heimverzeichnis für ein Bordbuch; nennen Sie eines mit seiner URL</translation>
    </message>
</context>
<context>
    <name>LogbookSchema</name>
    <message>
        <source>&quot;%1&quot; is no logbook: another program&apos;s tables are in it</source>
        <translation>„%1“ ist kein Bordbuch: Es enthält Tabellen eines anderen Programms</translation>
    </message>
    <message>
        <source>the logbook %1 is of version %2, this program knows versions up to %3; a newer program is needed</source>
        <translation>das Bordbuch %1 ist von Version %2, dieses Programm kennt Versionen bis %3; ein neueres Programm ist nötig</translation>
    </message>
    <message>
        <source>there is no logbook in %1</source>
        <translation>in %1 ist kein Bordbuch</translation>
    </message>
</context>
<context>
    <name>LogbookSettings</name>
    <message>
        <source>Added: %1</source>
        <translation>Hinzugefügt: %1</translation>
    </message>
    <message>
        <source>known already: %1</source>
        <translation>bereits bekannt: %1</translation>
    </message>
    <message>
        <source>not looked at: %1</source>
        <translation>nicht angesehen: %1</translation>
    </message>
    <message>
        <source>not added: %1 (%2)</source>
        <translation>nicht hinzugefügt: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>MaintenanceDialog</name>
    <message>
        <source>Maintenance</source>
        <translation>Wartung</translation>
    </message>
    <message>
        <source>What was done to engine %1? Trends compare flights only with those since the last note.</source>
        <translation>Was wurde am Triebwerk %1 gemacht? Trends vergleichen Flüge nur mit denen seit dem letzten Vermerk.</translation>
    </message>
    <message>
        <source>Flights from this moment on are behind the maintenance</source>
        <translation>Flüge ab diesem Zeitpunkt liegen nach der Wartung</translation>
    </message>
    <message>
        <source>Cylinder 6 replaced</source>
        <translation>Zylinder 6 ersetzt</translation>
    </message>
    <message>
        <source>&amp;Date (UTC)</source>
        <translation>&amp;Datum (UTC)</translation>
    </message>
    <message>
        <source>&amp;Note</source>
        <translation>&amp;Vermerk</translation>
    </message>
    <message>
        <source>Note It</source>
        <translation>Vermerken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>NotePlaces</name>
    <message>
        <source>%1 to %2, %3 s</source>
        <translation>%1 bis %2, %3 s</translation>
    </message>
    <message>
        <source>%1 at its limit</source>
        <translation>%1 am Grenzwert</translation>
    </message>
    <message>
        <source>%1 in warning</source>
        <translation>%1 im Warnbereich</translation>
    </message>
    <message>
        <source>, peak %1 %2 at %3</source>
        <translation>, Spitze %1 %2 um %3</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
</context>
<context>
    <name>OutputFile</name>
    <message>
        <source>it is no file</source>
        <translation>das ist keine Datei</translation>
    </message>
</context>
<context>
    <name>PositionTrack</name>
    <message>
        <source>Positions of 0/0, sent while the receiver knows none: %1</source>
        <translation>Positionen 0/0, gesendet, während der Empfänger keine kennt: %1</translation>
    </message>
    <message>
        <source>Jumps of the position faster than 500 m/s: %1, the first at %2</source>
        <translation>Sprünge der Position schneller als 500 m/s: %1, der erste um %2</translation>
    </message>
</context>
<context>
    <name>Record</name>
    <message>
        <source>not enough memory for %1 samples; load fewer recordings at once</source>
        <translation>zu wenig Speicher für %1 Messwerte; laden Sie weniger Aufzeichnungen auf einmal</translation>
    </message>
    <message>
        <source>could not open the recording &quot;%1&quot;; check that the card is still in place</source>
        <translation>die Aufzeichnung „%1“ konnte nicht geöffnet werden; prüfen Sie, ob die Karte noch eingelegt ist</translation>
    </message>
    <message>
        <source>not enough memory to read the recording; load fewer at once</source>
        <translation>zu wenig Speicher zum Lesen der Aufzeichnung; laden Sie weniger auf einmal</translation>
    </message>
    <message>
        <source>could not read the recording &quot;%1&quot; to its end; check that the card is still in place</source>
        <translation>die Aufzeichnung „%1“ konnte nicht bis zum Ende gelesen werden; prüfen Sie, ob die Karte noch eingelegt ist</translation>
    </message>
</context>
<context>
    <name>RecordText</name>
    <message>
        <source>Remarks</source>
        <translation>Anmerkungen</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Anmerkung</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Startzeit</translation>
    </message>
    <message>
        <source>Stop Time</source>
        <translation>Stoppzeit</translation>
    </message>
    <message>
        <source>Bus Type</source>
        <translation>Bustyp</translation>
    </message>
    <message>
        <source>ECU Serial Number</source>
        <translation>ECU-Seriennummer</translation>
    </message>
    <message>
        <source>Software Part Nr. A</source>
        <translation>Software-Teilenr. A</translation>
    </message>
    <message>
        <source>Software Part Nr. B</source>
        <translation>Software-Teilenr. B</translation>
    </message>
    <message>
        <source>ECU Type</source>
        <translation>ECU-Typ</translation>
    </message>
    <message>
        <source>EMU SW Version</source>
        <translation>EMU-SW-Version</translation>
    </message>
    <message>
        <source>Engine Serial Nr.</source>
        <translation>Triebwerks-Seriennr.</translation>
    </message>
    <message>
        <source>Engine Type</source>
        <translation>Triebwerkstyp</translation>
    </message>
    <message>
        <source>Samples Total</source>
        <translation>Messwerte gesamt</translation>
    </message>
    <message>
        <source>The file could not be opened</source>
        <translation>Die Datei konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>The header is cut short, bytes missing: %1</source>
        <translation>Der Dateikopf ist unvollständig, fehlende Bytes: %1</translation>
    </message>
    <message>
        <source>Ignored at the end, bytes that are no whole sample: %1</source>
        <translation>Am Ende ignoriert, Bytes ohne vollständigen Messwert: %1</translation>
    </message>
    <message>
        <source>Samples that could not be read: %1</source>
        <translation>Messwerte, die nicht gelesen werden konnten: %1</translation>
    </message>
    <message>
        <source>Samples with an impossible time: %1, the first is number %2</source>
        <translation>Messwerte mit unmöglicher Zeit: %1, der erste ist Nummer %2</translation>
    </message>
    <message>
        <source>Samples of channels other than 0 and 1: %1</source>
        <translation>Messwerte anderer Kanäle als 0 und 1: %1</translation>
    </message>
    <message>
        <source>Gaps of more than 10 s: %1, the longest is %2 s from %3 on</source>
        <translation>Lücken von mehr als 10 s: %1, die längste dauert %2 s ab %3</translation>
    </message>
    <message>
        <source>The time offset could not be read: &quot;%1&quot; is damaged. Setting another offset keeps that file aside</source>
        <translation>Der Zeitoffset konnte nicht gelesen werden: „%1“ ist beschädigt. Beim Einstellen eines anderen Offsets wird diese Datei umbenannt aufbewahrt</translation>
    </message>
    <message>
        <source>Samples Read</source>
        <translation>Messwerte gelesen</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>Files that overlap in time: %1, the first are %2. Check that they belong together</source>
        <translation>Dateien, die sich zeitlich überschneiden: %1, die ersten sind %2. Prüfen Sie, ob sie zusammengehören</translation>
    </message>
    <message>
        <source>Header dates from %1 to %2, but the samples last %3 s: the files are not of one flight</source>
        <translation>Datumsangaben der Dateiköpfe von %1 bis %2, die Messwerte umfassen aber nur %3 s: Die Dateien stammen nicht von einem Flug</translation>
    </message>
</context>
<context>
    <name>RecordingFinder</name>
    <message>
        <source>Files named %1 were found, but they hold another flight.</source>
        <translation>Dateien namens %1 wurden gefunden, sie enthalten aber einen anderen Flug.</translation>
    </message>
    <message>
        <source>The files %1 were not found.</source>
        <translation>Die Dateien %1 wurden nicht gefunden.</translation>
    </message>
</context>
<context>
    <name>ReportCharts</name>
    <message>
        <source>peak %1 at %2, threshold %3</source>
        <translation>Spitze %1 um %2, Schwelle %3</translation>
    </message>
    <message>
        <source>The other parameters of %1 meanwhile</source>
        <translation>Die anderen Parameter von %1 währenddessen</translation>
    </message>
    <message>
        <source>The worst, in two minutes each</source>
        <translation>Das Schlimmste, je zwei Minuten</translation>
    </message>
    <message>
        <source>The whole flight</source>
        <translation>Der ganze Flug</translation>
    </message>
    <message>
        <source>No parameter is selected.</source>
        <translation>Kein Parameter ist ausgewählt.</translation>
    </message>
    <message>
        <source>%1 to %2 on the recording&apos;s clock</source>
        <translation>%1 bis %2 auf der Uhr der Aufzeichnung</translation>
    </message>
    <message>
        <source>The reported range</source>
        <translation>Der berichtete Bereich</translation>
    </message>
    <message>
        <source>%1 to %2 on the recording&apos;s clock; dashed: the reference</source>
        <translation>%1 bis %2 auf der Uhr der Aufzeichnung; gestrichelt: die Referenz</translation>
    </message>
</context>
<context>
    <name>ReportComparison</name>
    <message>
        <source>Reference: %1, shifted by %2 s. Compared from %3 to %4, while both flights are steady.</source>
        <translation>Referenz: %1, um %2 s verschoben. Verglichen von %3 bis %4, solange beide Flüge stationär sind.</translation>
    </message>
    <message>
        <source>Reference: %1, shifted by %2 s. Compared from %3 to %4: there is no common steady part.</source>
        <translation>Referenz: %1, um %2 s verschoben. Verglichen von %3 bis %4: Es gibt keinen gemeinsamen stationären Abschnitt.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Time mean, flight</source>
        <translation>Zeitmittel, Flug</translation>
    </message>
    <message>
        <source>Time mean, reference</source>
        <translation>Zeitmittel, Referenz</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Standard deviations</source>
        <translation>Standardabweichungen</translation>
    </message>
    <message>
        <source>What changed most, in standard deviations of the reference</source>
        <translation>Was sich am meisten geändert hat, in Standardabweichungen der Referenz</translation>
    </message>
    <message>
        <source>Compared with the reference</source>
        <translation>Vergleich mit der Referenz</translation>
    </message>
    <message>
        <source>Reference: %1. It has no time in common with this range.</source>
        <translation>Referenz: %1. Sie hat mit diesem Bereich keine Zeit gemeinsam.</translation>
    </message>
    <message>
        <source>No parameter has values in both flights there.</source>
        <translation>Kein Parameter hat dort in beiden Flügen Werte.</translation>
    </message>
    <message>
        <source>None of %1 parameters has changed.</source>
        <translation>Keiner von %1 Parametern hat sich geändert.</translation>
    </message>
</context>
<context>
    <name>ReportHead</name>
    <message>
        <source>not recorded</source>
        <translation>nicht aufgezeichnet</translation>
    </message>
    <message>
        <source>From, on the recording&apos;s clock</source>
        <translation>Von, auf der Uhr der Aufzeichnung</translation>
    </message>
    <message>
        <source>Until, on the recording&apos;s clock</source>
        <translation>Bis, auf der Uhr der Aufzeichnung</translation>
    </message>
    <message>
        <source>From, in UTC</source>
        <translation>Von, in UTC</translation>
    </message>
    <message>
        <source>Time offset</source>
        <translation>Zeitversatz</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Messwerte</translation>
    </message>
    <message>
        <source>ECU Serial Number</source>
        <translation>ECU-Seriennummer</translation>
    </message>
    <message>
        <source>Engine Serial Nr.</source>
        <translation>Triebwerks-Seriennr.</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Flugbericht</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>How pages name the language of these texts: &quot;de&quot; for German.</extracomment>
        <translation>de</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>Profile&apos;s SHA-256</source>
        <translation>SHA-256 des Profils</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>No recording was read.</source>
        <translation>Keine Aufzeichnung wurde gelesen.</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Was geschehen ist</translation>
    </message>
    <message>
        <source>The recording holds no samples, so nothing was checked.</source>
        <translation>Die Aufzeichnung enthält keine Messwerte, daher wurde nichts geprüft.</translation>
    </message>
    <message>
        <source>Remarks on the recording</source>
        <translation>Bemerkungen zur Aufzeichnung</translation>
    </message>
</context>
<context>
    <name>ReportLists</name>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampe</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Schwere</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Extremwert</translation>
    </message>
    <message>
        <source>Peak at</source>
        <translation>Spitze um</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwellenwert</translation>
    </message>
    <message>
        <source>The %1 worst of %2; &quot;orna-cli events --episodes&quot; lists all.</source>
        <translation>Die %1 schlimmsten von %2; „orna-cli events --episodes“ listet alle.</translation>
    </message>
    <message>
        <source>Out of range</source>
        <translation>Außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>Without an event: from the first sample on, after a gap, or of a kind that is not watched</source>
        <translation>Ohne Ereignis: vom ersten Messwert an, nach einer Lücke oder von einer Art, die nicht überwacht wird</translation>
    </message>
    <message>
        <source>Warning lamps</source>
        <translation>Warnlampen</translation>
    </message>
    <message>
        <source>On again without an event</source>
        <translation>Wieder an ohne Ereignis</translation>
    </message>
    <message>
        <source>Error matrices</source>
        <translation>Fehlermatrizen</translation>
    </message>
    <message>
        <source>None in this range; in the rest of the flight: %1.</source>
        <translation>Keine in diesem Bereich; im übrigen Flug: %1.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Ereignis</translation>
    </message>
    <message>
        <source>Nothing out of range in %1 samples of %2 watched parameters.</source>
        <translation>Nichts außerhalb des Bereichs in %1 Messwerten von %2 überwachten Parametern.</translation>
    </message>
</context>
<context>
    <name>ReportNumbers</name>
    <message>
        <source>adds up to %1</source>
        <translation>ergibt %1</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>No parameter is selected.</source>
        <translation>Kein Parameter ist ausgewählt.</translation>
    </message>
    <message>
        <source>at</source>
        <translation>um</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Messwerte</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Std. Dev.</source>
        <translation>Std.-Abw.</translation>
    </message>
    <message>
        <source>Time Mean</source>
        <translation>Zeitmittel</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Lücken</translation>
    </message>
    <message>
        <source>Besides</source>
        <translation>Außerdem</translation>
    </message>
</context>
<context>
    <name>ReportTrack</name>
    <message>
        <source>Where it happened</source>
        <translation>Wo es geschah</translation>
    </message>
    <message>
        <source>The path of the flight from above, %1 to %2</source>
        <translation>Der Flugweg von oben, %1 bis %2</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>Save Snapshot</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>BMP File (*.bmp);;PNG File (*.png);;SVG File (*.svg);;All Files (*.*)</source>
        <translation>BMP-Datei (*.bmp);;PNG-Datei (*.png);;SVG-Datei (*.svg);;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>The snapshot could not be saved as
%1
Choose a folder that can be written, with enough free space, and a name that ends in .bmp, .png, .svg or .jpg.</source>
        <translation>Das Bild konnte nicht gespeichert werden als
%1
Wählen Sie einen beschreibbaren Ordner mit genügend freiem Platz und einen Namen, der auf .bmp, .png, .svg oder .jpg endet.</translation>
    </message>
</context>
<context>
    <name>SqlConnection</name>
    <message>
        <source>there is no logbook &quot;%1&quot;</source>
        <translation>es gibt kein Bordbuch „%1“</translation>
    </message>
    <message>
        <source>the database driver %1 is not installed (package %2)</source>
        <translation>der Datenbanktreiber %1 ist nicht installiert (Paket %2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no logbook: it is no database</source>
        <translation>„%1“ ist kein Bordbuch: Es ist keine Datenbank</translation>
    </message>
    <message>
        <source>the logbook &quot;%1&quot; is damaged</source>
        <translation>das Bordbuch „%1“ ist beschädigt</translation>
    </message>
    <message>
        <source>logbook %1: %2</source>
        <translation>Bordbuch %1: %2</translation>
    </message>
</context>
<context>
    <name>StartMessages</name>
    <message>
        <source>HOME is not set: settings are kept in &quot;%1&quot;.</source>
        <translation>HOME ist nicht gesetzt: Die Einstellungen werden in „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>The settings could not be read, the program starts with its defaults. The damaged file is kept as &quot;%1&quot;.</source>
        <translation>Die Einstellungen konnten nicht gelesen werden, das Programm startet mit den Standardwerten. Die beschädigte Datei bleibt als „%1“ erhalten.</translation>
    </message>
    <message>
        <source>Samples loaded: %1</source>
        <translation>Geladene Messwerte: %1</translation>
    </message>
    <message>
        <source>. Remarks: %1 (see Recording Details). </source>
        <translation>. Anmerkungen: %1 (siehe Aufzeichnungsdetails). </translation>
    </message>
    <message>
        <source>Reference: </source>
        <translation>Referenz: </translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Creating Dialogs ...</source>
        <translation>Dialoge werden erstellt ...</translation>
    </message>
</context>
<context>
    <name>TARN::ActivityBar</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>, %1 s left</source>
        <translation>, noch %1 s</translation>
    </message>
</context>
<context>
    <name>TARN::CommandSet</name>
    <message>
        <source>&amp;New Project</source>
        <translation>&amp;Neues Projekt</translation>
    </message>
    <message>
        <source>Create new Project</source>
        <translation>Neues Projekt anlegen</translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation>Projekt ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Open Project File</source>
        <translation>Projektdatei öffnen</translation>
    </message>
    <message>
        <source>&amp;Save Project</source>
        <translation>Projekt &amp;speichern</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>Save Project File</source>
        <translation>Projektdatei speichern</translation>
    </message>
    <message>
        <source>&amp;Save Project as</source>
        <translation>Projekt speichern &amp;unter</translation>
    </message>
    <message>
        <source>Save Project as</source>
        <translation>Projekt speichern unter</translation>
    </message>
    <message>
        <source>Save Project File as</source>
        <translation>Projektdatei speichern unter</translation>
    </message>
    <message>
        <source>&amp;Open Card</source>
        <translation>&amp;Karte öffnen</translation>
    </message>
    <message>
        <source>Open Card</source>
        <translation>Karte öffnen</translation>
    </message>
    <message>
        <source>Open SD Card</source>
        <translation>SD-Karte öffnen</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Open Preferences Dialog</source>
        <translation>Einstellungsdialog öffnen</translation>
    </message>
    <message>
        <source>Recording Details</source>
        <translation>Aufzeichnungsdetails</translation>
    </message>
    <message>
        <source>Show the Header and the Damages of the Recording</source>
        <translation>Dateikopf und Schäden der Aufzeichnung anzeigen</translation>
    </message>
    <message>
        <source>Export Google KML File</source>
        <translation>Google-KML-Datei exportieren</translation>
    </message>
    <message>
        <source>Export Google Earth KML File</source>
        <translation>Google-Earth-KML-Datei exportieren</translation>
    </message>
    <message>
        <source>Export CSV/CAN File</source>
        <translation>CSV/CAN-Datei exportieren</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Quit Application</source>
        <translation>Programm beenden</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über ORNA</translation>
    </message>
    <message>
        <source>Show License Information</source>
        <translation>Lizenzinformationen anzeigen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Help Window</source>
        <translation>Hilfefenster</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Extras</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <translation>Hauptsymbolleiste</translation>
    </message>
    <message>
        <source>Flight &amp;Report...</source>
        <translation>Flug&amp;bericht …</translation>
    </message>
    <message>
        <source>Write What Happened on a Few Pages</source>
        <translation>Schreiben, was geschah, auf wenigen Seiten</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Flugbericht</translation>
    </message>
    <message>
        <source>&amp;Logbook...</source>
        <translation>&amp;Bordbuch...</translation>
    </message>
    <message>
        <source>Show the Flights That Were Kept, and What Changes from One to the Next</source>
        <translation>Gespeicherte Flüge anzeigen und was sich von einem zum nächsten ändert</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Bordbuch</translation>
    </message>
    <message>
        <source>Export GPX File</source>
        <translation>GPX-Datei exportieren</translation>
    </message>
    <message>
        <source>Export the Track as GPX File</source>
        <translation>Flugweg als GPX-Datei exportieren</translation>
    </message>
</context>
<context>
    <name>TARN::DialogCard</name>
    <message>
        <source>No card opened</source>
        <translation>Keine Karte geöffnet</translation>
    </message>
    <message>
        <source>Folder of the recordings</source>
        <translation>Ordner der Aufzeichnungen</translation>
    </message>
    <message>
        <source>Card folder</source>
        <translation>Kartenordner</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Aufzeichnungen</translation>
    </message>
    <message>
        <source>Start Time: </source>
        <translation>Startzeit: </translation>
    </message>
    <message>
        <source>Stop Time: </source>
        <translation>Stoppzeit: </translation>
    </message>
    <message>
        <source>Recording Details</source>
        <translation>Aufzeichnungsdetails</translation>
    </message>
    <message>
        <source>Header of the recording and what could be read of it</source>
        <translation>Dateikopf der Aufzeichnung und was aus ihr gelesen werden konnte</translation>
    </message>
    <message>
        <source>No recordings here.
Open a card (Ctrl+C) or drop its folder on the window.</source>
        <translation>Hier sind keine Aufzeichnungen.
Öffnen Sie eine Karte (Strg+C) oder ziehen Sie ihren Ordner auf das Fenster.</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufzeichnung</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Schlimmstes</translation>
    </message>
    <message>
        <source>Exceeded</source>
        <translation>Überschritten</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Messwerte</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Anmerkungen</translation>
    </message>
    <message>
        <source>%1 recordings</source>
        <translation>%1 Aufzeichnungen</translation>
    </message>
    <message>
        <source>Click to load these recordings together:</source>
        <translation>Klicken lädt diese Aufzeichnungen zusammen:</translation>
    </message>
    <message>
        <source>Not looked into: it can&apos;t be read, or is too large to be read in passing. Load it to see.</source>
        <translation>Nicht angesehen: nicht lesbar oder zu groß, um nebenbei gelesen zu werden. Laden Sie sie, um es zu sehen.</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Grenzwert</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>At the limit: %1
In warning: %2
Lamps: %3
Faults and warnings: %4
Watched parameters: %5</source>
        <translation>Am Grenzwert: %1
Im Warnbereich: %2
Lampen: %3
Fehler und Warnungen: %4
Überwachte Parameter: %5</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA-Warnung</translation>
    </message>
    <message>
        <source>These recordings are of %1 flights.</source>
        <translation>Diese Aufzeichnungen sind von %1 Flügen.</translation>
    </message>
    <message>
        <source>Laid over each other, values of one flight stand between those of another.</source>
        <translation>Übereinandergelegt stehen Werte des einen Fluges zwischen denen des anderen.</translation>
    </message>
    <message>
        <source>Load the First</source>
        <translation>Den ersten laden</translation>
    </message>
    <message>
        <source>Lay over Each Other</source>
        <translation>Übereinanderlegen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Lampe</translation>
    </message>
    <message>
        <source>Load as &amp;Reference</source>
        <translation>Als &amp;Referenz laden</translation>
    </message>
    <message>
        <source>Compares the flight that is open with this one</source>
        <translation>Vergleicht den geöffneten Flug mit diesem</translation>
    </message>
</context>
<context>
    <name>TARN::DialogData</name>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Limit/Warning Exceed</source>
        <translation>Grenz-/Warnwertverletzung</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation>Warnlampen</translation>
    </message>
    <message>
        <source>Fault Matrix</source>
        <translation>Fehlermatrix</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Flugweg</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataErrorMatrix</name>
    <message>
        <source>The profile describes no error matrix.</source>
        <translation>Das Profil beschreibt keine Fehlermatrix.</translation>
    </message>
    <message>
        <source>Error matrices</source>
        <translation>Fehlermatrizen</translation>
    </message>
    <message>
        <source>Active Errors</source>
        <translation>Aktive Fehler</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataGraph</name>
    <message>
        <source>The graph cannot be drawn: this display offers no OpenGL.
All other views work; a graphics driver with OpenGL 2.1, or Mesa&apos;s software one, brings the graph.</source>
        <translation>Das Diagramm kann nicht gezeichnet werden: Diese Anzeige bietet kein OpenGL.
Alle anderen Ansichten funktionieren; mit einem Grafiktreiber für OpenGL 2.1 oder dem Softwaretreiber von Mesa erscheint auch das Diagramm.</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>Bild &amp;speichern...</translation>
    </message>
    <message>
        <source>Co&amp;py Picture</source>
        <translation>Bild &amp;kopieren</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataLimit</name>
    <message>
        <source>Warning/Limit Exceed</source>
        <translation>Warn-/Grenzwertverletzung</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataTable</name>
    <message>
        <source>Values of the selected parameters</source>
        <translation>Werte der ausgewählten Parameter</translation>
    </message>
    <message>
        <source>The recording holds no sample of the selected parameters.</source>
        <translation>Die Aufzeichnung enthält keinen Messwert der ausgewählten Parameter.</translation>
    </message>
    <message>
        <source>There is not enough memory for this table; load fewer recordings.</source>
        <translation>Zu wenig Speicher für diese Tabelle; laden Sie weniger Aufzeichnungen.</translation>
    </message>
    <message>
        <source>The table is being filled.</source>
        <translation>Die Tabelle wird gefüllt.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataTrack</name>
    <message>
        <source>Show all (Home)</source>
        <translation>Alles zeigen (Pos1)</translation>
    </message>
    <message>
        <source>Zoom in (+)</source>
        <translation>Vergrößern (+)</translation>
    </message>
    <message>
        <source>Zoom out (-)</source>
        <translation>Verkleinern (-)</translation>
    </message>
    <message>
        <source>C&amp;olored by:</source>
        <translation>Farbe &amp;nach:</translation>
    </message>
    <message>
        <source>Hei&amp;ght over:</source>
        <translation>Höhe ü&amp;ber:</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Strecke</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>State of all parameters</source>
        <translation>Zustand aller Parameter</translation>
    </message>
    <message>
        <source>There is not enough memory for the path.</source>
        <translation>Der Speicher reicht für den Flugweg nicht aus.</translation>
    </message>
    <message>
        <source>The path is being found.</source>
        <translation>Der Flugweg wird ermittelt.</translation>
    </message>
    <message>
        <source>All positions of the recording are 0/0, %1 of them: the receiver did not know where it was.</source>
        <translation>Alle Positionen der Aufzeichnung sind 0/0, insgesamt %1: Der Empfänger wusste nicht, wo er war.</translation>
    </message>
    <message>
        <source>The recording holds no position: no latitude with a longitude.</source>
        <translation>Die Aufzeichnung enthält keine Position: keine Breite mit einer Länge.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataWarning</name>
    <message>
        <source>Warning Lamps</source>
        <translation>Warnlampen</translation>
    </message>
</context>
<context>
    <name>TARN::DialogEventList</name>
    <message>
        <source>Go to the &amp;Start</source>
        <translation>Zum &amp;Anfang</translation>
    </message>
    <message>
        <source>Go to the &amp;Peak</source>
        <translation>Zur &amp;Spitze</translation>
    </message>
    <message>
        <source>Show in the &amp;Graph</source>
        <translation>Im &amp;Diagramm zeigen</translation>
    </message>
    <message>
        <source>&amp;Copy All with Headers</source>
        <translation>Alles mit Überschriften &amp;kopieren</translation>
    </message>
    <message>
        <source>Nothing in the list fits the filter.</source>
        <translation>Nichts in der Liste passt zum Filter.</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtern</translation>
    </message>
    <message>
        <source>There is not enough memory to look for what happened.</source>
        <translation>Der Speicher reicht nicht, um nachzusehen, was geschah.</translation>
    </message>
    <message>
        <source>What happened is being looked for.</source>
        <translation>Es wird nachgesehen, was geschah.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsv</name>
    <message>
        <source>CSV Export</source>
        <translation>CSV-Export</translation>
    </message>
    <message>
        <source>ORNA Viewer Warning</source>
        <translation>ORNA-Viewer-Warnung</translation>
    </message>
    <message>
        <source>Exporting CSV/CAN file failed !</source>
        <translation>Export der CSV/CAN-Datei fehlgeschlagen !</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsvOptions</name>
    <message>
        <source>CSV/CAN Export</source>
        <translation>CSV/CAN-Export</translation>
    </message>
    <message>
        <source>Select CSV/CAN Option</source>
        <translation>CSV/CAN-Optionen wählen</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Trennzeichen</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Parameter Selection</source>
        <translation>Parameterauswahl</translation>
    </message>
    <message>
        <source>Semikolon ;</source>
        <translation>Semikolon ;</translation>
    </message>
    <message>
        <source>Comma ,</source>
        <translation>Komma ,</translation>
    </message>
    <message>
        <source>Tabstop</source>
        <translation>Tabulator</translation>
    </message>
    <message>
        <source>Stands between two columns</source>
        <translation>Steht zwischen zwei Spalten</translation>
    </message>
    <message>
        <source>100 ms</source>
        <translation>100 ms</translation>
    </message>
    <message>
        <source>10 ms</source>
        <translation>10 ms</translation>
    </message>
    <message>
        <source>1 ms</source>
        <translation>1 ms</translation>
    </message>
    <message>
        <source>Time from row to row</source>
        <translation>Zeit von Zeile zu Zeile</translation>
    </message>
    <message>
        <source>All Parameter</source>
        <translation>Alle Parameter</translation>
    </message>
    <message>
        <source>Selected Parameter only</source>
        <translation>Nur ausgewählte Parameter</translation>
    </message>
    <message>
        <source>Columns of the table</source>
        <translation>Spalten der Tabelle</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsvPath</name>
    <message>
        <source>Save CSV/CAN Export</source>
        <translation>CSV/CAN-Export speichern</translation>
    </message>
    <message>
        <source>CSV/CAN Export</source>
        <translation>CSV/CAN-Export</translation>
    </message>
    <message>
        <source>Select the output directory and file</source>
        <translation>Ausgabeordner und Datei wählen</translation>
    </message>
    <message>
        <source>.CSV Export</source>
        <translation>.CSV-Export</translation>
    </message>
    <message>
        <source>.CAN Export</source>
        <translation>.CAN-Export</translation>
    </message>
    <message>
        <source>A table of decoded values, or a recording that can be opened again</source>
        <translation>Eine Tabelle dekodierter Werte oder eine Aufzeichnung, die sich wieder öffnen lässt</translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation>Name der Datei in diesem Ordner</translation>
    </message>
    <message>
        <source>Export Path</source>
        <translation>Exportpfad</translation>
    </message>
    <message>
        <source>Export Type</source>
        <translation>Exporttyp</translation>
    </message>
    <message>
        <source>Export Filename</source>
        <translation>Exportdateiname</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportGpx</name>
    <message>
        <source>GPX Export</source>
        <translation>GPX-Export</translation>
    </message>
    <message>
        <source>Save GPX Export</source>
        <translation>GPX-Export speichern</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA-Warnung</translation>
    </message>
    <message>
        <source>Exporting GPX file failed !</source>
        <translation>Export der GPX-Datei fehlgeschlagen !</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportGpxOptions</name>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>One point of the track for each</source>
        <translation>Ein Punkt des Flugwegs für jeden solchen Abschnitt</translation>
    </message>
    <message>
        <source>Waypoints at limits and lamps</source>
        <translation>Wegpunkte bei Grenzwerten und Lampen</translation>
    </message>
    <message>
        <source>GPX Export</source>
        <translation>GPX-Export</translation>
    </message>
    <message>
        <source>Select GPX Option</source>
        <translation>GPX-Optionen wählen</translation>
    </message>
    <message>
        <source>Where limits were exceeded and warning lamps came on</source>
        <translation>Wo Grenzwerte überschritten wurden und Warnlampen angingen</translation>
    </message>
    <message>
        <source>Timestamp every :</source>
        <translation>Zeitstempel alle :</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKml</name>
    <message>
        <source>Google Earth KML Export</source>
        <translation>Google-Earth-KML-Export</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA-Warnung</translation>
    </message>
    <message>
        <source>Exporting KML file failed !</source>
        <translation>Export der KML-Datei fehlgeschlagen !</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKmlOptions</name>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>One point of the path for each</source>
        <translation>Zeitabstand der Punkte des Flugwegs</translation>
    </message>
    <message>
        <source>KML Export</source>
        <translation>KML-Export</translation>
    </message>
    <message>
        <source>Select KML Option</source>
        <translation>KML-Optionen wählen</translation>
    </message>
    <message>
        <source>Timestamp every :</source>
        <translation>Zeitstempel alle :</translation>
    </message>
    <message>
        <source>Width of the flight path</source>
        <translation>Breite des Flugwegs</translation>
    </message>
    <message>
        <source>Select Line Color</source>
        <translation>Linienfarbe wählen</translation>
    </message>
    <message>
        <source>Line Style</source>
        <translation>Linienstil</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Linienbreite</translation>
    </message>
    <message>
        <source>Line color</source>
        <translation>Linienfarbe</translation>
    </message>
    <message>
        <source>Select Polygon Color</source>
        <translation>Polygonfarbe wählen</translation>
    </message>
    <message>
        <source>Draw Polygon</source>
        <translation>Polygon zeichnen</translation>
    </message>
    <message>
        <source>A curtain from the flight path to the ground</source>
        <translation>Ein Vorhang vom Flugweg bis zum Boden</translation>
    </message>
    <message>
        <source>Polygon color</source>
        <translation>Polygonfarbe</translation>
    </message>
    <message>
        <source>Timed track</source>
        <translation>Flugweg mit Zeiten</translation>
    </message>
    <message>
        <source>Times and the selected values at each point, so that earth viewers can play the flight; nothing is drawn over gaps</source>
        <translation>Zeiten und die gewählten Werte an jedem Punkt, damit Globus-Programme den Flug abspielen können; über Lücken wird nichts gezeichnet</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKmlPath</name>
    <message>
        <source>Save KML Export</source>
        <translation>KML-Export speichern</translation>
    </message>
    <message>
        <source>KML Export</source>
        <translation>KML-Export</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKmlPlacemark</name>
    <message>
        <source>KML Export</source>
        <translation>KML-Export</translation>
    </message>
    <message>
        <source>Select KML Placemarks</source>
        <translation>KML-Ortsmarken wählen</translation>
    </message>
    <message>
        <source> samples</source>
        <translation> Punkte</translation>
    </message>
    <message>
        <source>Points of the path from mark to mark</source>
        <translation>Punkte des Flugwegs von Ortsmarke zu Ortsmarke</translation>
    </message>
    <message>
        <source>Select Placemark Color</source>
        <translation>Ortsmarkenfarbe wählen</translation>
    </message>
    <message>
        <source>Draw selected parameters as placemarks</source>
        <translation>Ausgewählte Parameter als Ortsmarken zeichnen</translation>
    </message>
    <message>
        <source>Placemark every</source>
        <translation>Ortsmarke alle</translation>
    </message>
    <message>
        <source>Placemark Color</source>
        <translation>Ortsmarkenfarbe</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Select Exceedance Color</source>
        <translation>Farbe Grenzwertverletzung wählen</translation>
    </message>
    <message>
        <source>Show Limit exceedance / Warning Lamps</source>
        <translation>Grenzwertverletzungen / Warnlampen anzeigen</translation>
    </message>
    <message>
        <source>Limit Exceedance</source>
        <translation>Grenzwertverletzung</translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation>Warnlampen</translation>
    </message>
    <message>
        <source>Exceedance Placemark Color</source>
        <translation>Farbe Grenzwertverletzung</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportPath</name>
    <message>
        <source>Select the output directory and file</source>
        <translation>Ausgabeordner und Datei wählen</translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation>Name der Datei in diesem Ordner</translation>
    </message>
    <message>
        <source>Export Path</source>
        <translation>Exportpfad</translation>
    </message>
    <message>
        <source>Export Filename</source>
        <translation>Exportdateiname</translation>
    </message>
</context>
<context>
    <name>TARN::DialogGraphSetup</name>
    <message>
        <source>Background color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Grid On</source>
        <translation>Gitter an</translation>
    </message>
    <message>
        <source>Grid color</source>
        <translation>Gitterfarbe</translation>
    </message>
    <message>
        <source>Label color</source>
        <translation>Schriftfarbe</translation>
    </message>
    <message>
        <source>Label background</source>
        <translation>Schrifthintergrund</translation>
    </message>
    <message>
        <source>Cursor On</source>
        <translation>Cursor an</translation>
    </message>
    <message>
        <source>Legend On</source>
        <translation>Legende an</translation>
    </message>
    <message>
        <source>Autoscale On</source>
        <translation>Autoskalierung an</translation>
    </message>
    <message>
        <source>Y minimum</source>
        <translation>Y-Minimum</translation>
    </message>
    <message>
        <source>Y maximum</source>
        <translation>Y-Maximum</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Oscilloscope Setup</source>
        <translation>Oszilloskop einrichten</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>%1, used while autoscale is off</source>
        <translation>%1, gilt bei ausgeschalteter Autoskalierung</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>Gleitend</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Cursor mode</source>
        <translation>Cursormodus</translation>
    </message>
    <message>
        <source>Background Color :</source>
        <translation>Hintergrundfarbe :</translation>
    </message>
    <message>
        <source>Grid On/Color :</source>
        <translation>Gitter an/Farbe :</translation>
    </message>
    <message>
        <source>Label Color :</source>
        <translation>Schriftfarbe :</translation>
    </message>
    <message>
        <source>Label Background :</source>
        <translation>Schrifthintergrund :</translation>
    </message>
    <message>
        <source>Cursor On/Mode :</source>
        <translation>Cursor an/Modus :</translation>
    </message>
    <message>
        <source>Legend :</source>
        <translation>Legende :</translation>
    </message>
    <message>
        <source>Y-Scale :</source>
        <translation>Y-Skala :</translation>
    </message>
    <message>
        <source>Colors of the plot</source>
        <translation>Farben der Zeichenfläche</translation>
    </message>
    <message>
        <source>Colors of pictures</source>
        <translation>Farben von Bildern</translation>
    </message>
    <message>
        <source>Colors/Of Pictures :</source>
        <translation>Farben/von Bildern :</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>As the graph</source>
        <translation>Wie das Diagramm</translation>
    </message>
    <message>
        <source>Thresholds :</source>
        <translation>Schwellen :</translation>
    </message>
    <message>
        <source>Thresholds On</source>
        <translation>Schwellen an</translation>
    </message>
    <message>
        <source>Lines and bands at the values where a range begins; a name stands on the color of the range that its value is in</source>
        <translation>Linien und Bänder an den Werten, bei denen ein Bereich beginnt; ein Name steht auf der Farbe des Bereichs, in dem sein Wert liegt</translation>
    </message>
    <message>
        <source>Events :</source>
        <translation>Ereignisse :</translation>
    </message>
    <message>
        <source>Events On</source>
        <translation>Ereignisse an</translation>
    </message>
    <message>
        <source>Ticks over the plot for limits, lamps and faults, bars for as long as a limit was exceeded</source>
        <translation>Marken über der Zeichenfläche für Grenzwerte, Lampen und Fehler, Balken für die Dauer einer Überschreitung</translation>
    </message>
    <message>
        <source>Error Lanes :</source>
        <translation>Fehlerspuren :</translation>
    </message>
    <message>
        <source>Error Lanes On</source>
        <translation>Fehlerspuren an</translation>
    </message>
    <message>
        <source>The active errors of each error matrix below the curves</source>
        <translation>Die aktiven Fehler jeder Fehlermatrix unter den Kurven</translation>
    </message>
    <message>
        <source>States :</source>
        <translation>Zustände :</translation>
    </message>
    <message>
        <source>States in Words</source>
        <translation>Zustände in Worten</translation>
    </message>
    <message>
        <source>Names of states beside their numbers</source>
        <translation>Namen der Zustände neben ihren Zahlen</translation>
    </message>
</context>
<context>
    <name>TARN::DialogLogbook</name>
    <message>
        <source>Stop adding; what was added stays</source>
        <translation>Hinzufügen stoppen; was hinzugefügt wurde, bleibt</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Bordbuch</translation>
    </message>
    <message>
        <source>Reading the logbook...</source>
        <translation>Bordbuch wird gelesen...</translation>
    </message>
    <message>
        <source>Add every flight that you open to this logbook? Only statistics and events are kept. You can change that under Extras, Preferences.</source>
        <translation>Jeden Flug, den Sie öffnen, diesem Bordbuch hinzufügen? Gespeichert werden nur Statistiken und Ereignisse. Sie können das unter Extras, Einstellungen ändern.</translation>
    </message>
    <message>
        <source>&amp;Yes, Add Them</source>
        <translation>&amp;Ja, hinzufügen</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>&amp;Add Folder...</source>
        <translation>&amp;Ordner hinzufügen...</translation>
    </message>
    <message>
        <source>Add the flights of a folder and of all folders in it</source>
        <translation>Flüge eines Ordners und aller Ordner darin hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Maintenance...</source>
        <translation>&amp;Wartung...</translation>
    </message>
    <message>
        <source>Note that something was done to the engine: trends begin anew</source>
        <translation>Vermerken, dass am Triebwerk etwas gemacht wurde: Trends beginnen von vorn</translation>
    </message>
    <message>
        <source>Every flight that you open is added from now on.</source>
        <translation>Jeder Flug, den Sie öffnen, wird ab jetzt hinzugefügt.</translation>
    </message>
    <message>
        <source>The logbook is empty.
&lt;a href=&quot;add&quot;&gt;Add a folder&lt;/a&gt; of recordings; the folders in it are looked through too.</source>
        <translation>Das Bordbuch ist leer.
Fügen Sie einen &lt;a href=&quot;add&quot;&gt;Ordner mit Aufzeichnungen&lt;/a&gt; hinzu; die Ordner darin werden auch durchsucht.</translation>
    </message>
    <message>
        <source>There is no profile by which recordings could be understood. Choose one under Extras, Preferences.</source>
        <translation>Es gibt kein Profil, mit dem sich Aufzeichnungen dekodieren lassen. Wählen Sie eines unter Extras, Einstellungen.</translation>
    </message>
    <message>
        <source>Add a Folder to the Logbook</source>
        <translation>Ordner zum Bordbuch hinzufügen</translation>
    </message>
    <message>
        <source>Adding</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Choose a flight of the engine first.</source>
        <translation>Wählen Sie zuerst einen Flug des Triebwerks.</translation>
    </message>
    <message>
        <source>Remove the flight of %1 from the logbook?</source>
        <translation>Den Flug vom %1 aus dem Bordbuch entfernen?</translation>
    </message>
    <message>
        <source>Its recordings stay where they are and can be added again.</source>
        <translation>Seine Aufzeichnungen bleiben, wo sie sind, und können wieder hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Looking for its recordings...</source>
        <translation>Suche nach seinen Aufzeichnungen...</translation>
    </message>
    <message>
        <source>Opened: %1</source>
        <translation>Geöffnet: %1</translation>
    </message>
    <message>
        <source>Where are the recordings of the flight of %1? The folders in the one that you choose are looked through too.</source>
        <translation>Wo sind die Aufzeichnungen des Flugs vom %1? Auch die Ordner in dem, den Sie wählen, werden durchsucht.</translation>
    </message>
    <message>
        <source>Choose Folder...</source>
        <translation>Ordner wählen...</translation>
    </message>
    <message>
        <source>Find Recordings</source>
        <translation>Aufzeichnungen suchen</translation>
    </message>
    <message>
        <source>F5 tries it again; Extras, Preferences tells which logbook it is.</source>
        <translation>F5 versucht es erneut; welches Bordbuch es ist, steht unter Extras, Einstellungen.</translation>
    </message>
    <message>
        <source>Flights are being added already. Wait for the end, or cancel it.</source>
        <translation>Es werden schon Flüge hinzugefügt. Warten Sie das Ende ab oder brechen Sie es ab.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogMain</name>
    <message>
        <source>[edited]</source>
        <translation>[geändert]</translation>
    </message>
    <message>
        <source>Open SD Card</source>
        <translation>SD-Karte öffnen</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA-Warnung</translation>
    </message>
    <message>
        <source>Recordings found: %1</source>
        <translation>Gefundene Aufzeichnungen: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; could not be loaded: no parameters can be shown. Choose another under Extras, Preferences.</source>
        <translation>Das Profil „%1“ konnte nicht geladen werden: Es können keine Parameter angezeigt werden. Wählen Sie ein anderes unter Extras, Einstellungen.</translation>
    </message>
    <message>
        <source>No recording is listed. Open a card first.</source>
        <translation>Es ist keine Aufzeichnung aufgeführt. Öffnen Sie zuerst eine Karte.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a project nor a profile.</source>
        <translation>„%1“ ist weder ein Projekt noch ein Profil.</translation>
    </message>
    <message>
        <source>The offset could not be saved on the card (is it write-protected?) and holds until the program ends.</source>
        <translation>Der Offset konnte nicht auf der Karte gespeichert werden (ist sie schreibgeschützt?) und gilt nur bis zum Programmende.</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Laden</translation>
    </message>
    <message>
        <source>%1 samples/s</source>
        <translation>%1 Messwerte/s</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>Das Laden wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Not loaded: %1</source>
        <translation>Nicht geladen: %1</translation>
    </message>
    <message>
        <source>Exporting %1</source>
        <translation>Export von %1</translation>
    </message>
    <message>
        <source>An export is running.
Wait until it is complete, or stop it? A stopped export leaves the old file.</source>
        <translation>Ein Export läuft.
Warten, bis er abgeschlossen ist, oder ihn stoppen? Ein gestoppter Export lässt die alte Datei unverändert.</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Warten</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Loading the reference</source>
        <translation>Laden der Referenz</translation>
    </message>
    <message>
        <source>Loading the reference was cancelled.</source>
        <translation>Das Laden der Referenz wurde abgebrochen.</translation>
    </message>
    <message>
        <source>No reference was loaded: %1</source>
        <translation>Keine Referenz geladen: %1</translation>
    </message>
</context>
<context>
    <name>TARN::DialogPreferences</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Pages of the preferences</source>
        <translation>Seiten der Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close; every change holds already</source>
        <translation>Schließen; alle Änderungen gelten bereits</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose a profile file</source>
        <translation>Profildatei wählen</translation>
    </message>
    <message>
        <source>Profile File :</source>
        <translation>Profildatei :</translation>
    </message>
    <message>
        <source>Language :</source>
        <translation>Sprache :</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>The XML file that says how the samples are decoded</source>
        <translation>XML-Datei, die festlegt, wie die Messwerte dekodiert werden</translation>
    </message>
    <message>
        <source>Profile file</source>
        <translation>Profildatei</translation>
    </message>
    <message>
        <source>Language of the program from its next start on</source>
        <translation>Sprache des Programms ab dem nächsten Start</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>ORNA Profile (*.xml);;All files (*.*)</source>
        <translation>ORNA-Profil (*.xml);;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>TARN Info</source>
        <translation>TARN-Info</translation>
    </message>
    <message>
        <source>Please restart TARN to load new language !</source>
        <translation>Bitte starten Sie TARN neu, um die neue Sprache zu laden !</translation>
    </message>
    <message>
        <source>All recorded digits</source>
        <translation>Alle aufgezeichneten Stellen</translation>
    </message>
    <message>
        <source>Numbers on the screen with all the digits that were recorded, instead of the fewest that read back as the same number; exports have them always</source>
        <translation>Zahlen auf dem Bildschirm mit allen aufgezeichneten Stellen statt mit den wenigsten, aus denen sich dieselbe Zahl ergibt; Exporte enthalten immer alle</translation>
    </message>
    <message>
        <source>Add every flight that I open</source>
        <translation>Jeden Flug hinzufügen, den ich öffne</translation>
    </message>
    <message>
        <source>Logbook :</source>
        <translation>Bordbuch :</translation>
    </message>
    <message>
        <source>a file of the program&apos;s own</source>
        <translation>eine eigene Datei des Programms</translation>
    </message>
    <message>
        <source>Where flights are kept: empty for this machine alone, &quot;postgresql://user@host/database&quot; for a team. A password is taken from PGPASSWORD or ~/.pgpass and never kept</source>
        <translation>Wo Flüge gespeichert werden: leer nur für diesen Rechner, „postgresql://benutzer@rechner/datenbank“ für ein Team. Ein Passwort wird aus PGPASSWORD oder ~/.pgpass genommen und nie gespeichert</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Bordbuch</translation>
    </message>
    <message>
        <source>Keeps statistics and events of every flight in the logbook, not its samples</source>
        <translation>Speichert Statistiken und Ereignisse jedes Flugs im Bordbuch, nicht seine Messwerte</translation>
    </message>
</context>
<context>
    <name>TARN::DialogProfile</name>
    <message>
        <source>Clear</source>
        <translation>Abwählen</translation>
    </message>
    <message>
        <source>Confirm Selection</source>
        <translation>Auswahl bestätigen</translation>
    </message>
    <message>
        <source>Selected Parameters</source>
        <translation>Ausgewählte Parameter</translation>
    </message>
    <message>
        <source>Untick all parameters</source>
        <translation>Häkchen bei allen Parametern entfernen</translation>
    </message>
    <message>
        <source>Show the ticked parameters in all views</source>
        <translation>Die angehakten Parameter in allen Ansichten anzeigen</translation>
    </message>
    <message>
        <source>Parameters of the profile</source>
        <translation>Parameter des Profils</translation>
    </message>
    <message>
        <source>Not in this profile</source>
        <translation>Nicht in diesem Profil</translation>
    </message>
    <message>
        <source>The project selects these too; they are kept in its file</source>
        <translation>Das Projekt wählt auch diese aus; sie bleiben in seiner Datei erhalten</translation>
    </message>
</context>
<context>
    <name>TARN::DialogRecordDetails</name>
    <message>
        <source>Recording Details</source>
        <translation>Aufzeichnungsdetails</translation>
    </message>
    <message>
        <source>Recording details</source>
        <translation>Aufzeichnungsdetails</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected lines, or all when none is selected</source>
        <translation>Kopiert die ausgewählten Zeilen oder alle, wenn keine ausgewählt ist</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Dieses Fenster schließen</translation>
    </message>
</context>
<context>
    <name>TARN::DialogReport</name>
    <message>
        <source>Folder of the Report</source>
        <translation>Ordner des Berichts</translation>
    </message>
    <message>
        <source>&amp;Open it when it is written</source>
        <translation>Danach ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Flugbericht</translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation>Name der Datei in diesem Ordner</translation>
    </message>
    <message>
        <source>Web page (HTML)</source>
        <translation>Webseite (HTML)</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Size of the paper that it is printed on</source>
        <translation>Größe des Papiers, auf das gedruckt wird</translation>
    </message>
    <message>
        <source>A range is marked in the graph</source>
        <translation>Ein Bereich wird im Diagramm markiert</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>&amp;Ordner</translation>
    </message>
    <message>
        <source>File &amp;Name</source>
        <translation>Datei&amp;name</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Art</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>&amp;Papier</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>&amp;Bereich</translation>
    </message>
    <message>
        <source>Write Report</source>
        <translation>Bericht schreiben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Whole flight, %1 to %2</source>
        <translation>Ganzer Flug, %1 bis %2</translation>
    </message>
    <message>
        <source>Marked range, %1 to %2</source>
        <translation>Markierter Bereich, %1 bis %2</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA-Warnung</translation>
    </message>
    <message>
        <source>The flight report could not be written.</source>
        <translation>Der Flugbericht konnte nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogStatusBar</name>
    <message>
        <source>Stop loading (Escape)</source>
        <translation>Laden abbrechen (Esc)</translation>
    </message>
    <message>
        <source>Stop the export</source>
        <translation>Export stoppen</translation>
    </message>
    <message>
        <source>Stop loading the reference (Escape)</source>
        <translation>Laden der Referenz abbrechen (Esc)</translation>
    </message>
</context>
<context>
    <name>TARN::DirectoryEdit</name>
    <message>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <source>Folder of the file</source>
        <translation>Ordner der Datei</translation>
    </message>
</context>
<context>
    <name>TARN::EventFilter</name>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>Filter (Strg+F)</translation>
    </message>
    <message>
        <source>Show only lines that hold this text</source>
        <translation>Nur Zeilen zeigen, die diesen Text enthalten</translation>
    </message>
    <message>
        <source>Filter text</source>
        <translation>Filtertext</translation>
    </message>
    <message>
        <source>Show only lines of this severity</source>
        <translation>Nur Zeilen dieser Schwere zeigen</translation>
    </message>
    <message>
        <source>Filter severity</source>
        <translation>Schwere des Filters</translation>
    </message>
    <message>
        <source>Every severity</source>
        <translation>Jede Schwere</translation>
    </message>
</context>
<context>
    <name>TARN::EventModel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Out of range without an event</source>
        <translation>Außerhalb des Bereichs ohne Ereignis</translation>
    </message>
    <message>
        <source>at its limit</source>
        <translation>im Grenzbereich</translation>
    </message>
    <message>
        <source>in warning</source>
        <translation>im Warnbereich</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Extremwert</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Schwellenwert</translation>
    </message>
    <message>
        <source>%1 on</source>
        <translation>%1 an</translation>
    </message>
    <message>
        <source>On without an event</source>
        <translation>An ohne Ereignis</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Schwere</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Referenz: %1</translation>
    </message>
</context>
<context>
    <name>TARN::ExportRunner</name>
    <message>
        <source>Written: %1</source>
        <translation>Geschrieben: %1</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The export was stopped; the old file, if there was one, is unchanged.</source>
        <translation>Der Export wurde gestoppt; die alte Datei, falls vorhanden, ist unverändert.</translation>
    </message>
</context>
<context>
    <name>TARN::FlightBar</name>
    <message>
        <source>What happened</source>
        <translation>Was geschehen ist</translation>
    </message>
    <message>
        <source>Click a part to go to the first of its kind</source>
        <translation>Klicken Sie auf einen Teil, um zum ersten seiner Art zu gehen</translation>
    </message>
</context>
<context>
    <name>TARN::FlightList</name>
    <message>
        <source>Show the flights of this engine only</source>
        <translation>Nur die Flüge dieses Triebwerks anzeigen</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Triebwerk</translation>
    </message>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>Filter (Strg+F)</translation>
    </message>
    <message>
        <source>Show only flights that hold this text</source>
        <translation>Nur Flüge anzeigen, die diesen Text enthalten</translation>
    </message>
    <message>
        <source>Filter text</source>
        <translation>Filtertext</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Flüge</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open as &amp;Reference</source>
        <translation>Als &amp;Referenz öffnen</translation>
    </message>
    <message>
        <source>&amp;Remove from the Logbook...</source>
        <translation>Aus dem Bordbuch &amp;entfernen...</translation>
    </message>
    <message>
        <source>All engines (%1)</source>
        <translation>Alle Triebwerke (%1)</translation>
    </message>
    <message>
        <source>No flight of %1 holds &quot;%2&quot;.</source>
        <translation>Keiner von %1 Flügen enthält „%2“.</translation>
    </message>
</context>
<context>
    <name>TARN::FlightListModel</name>
    <message>
        <source>without number</source>
        <translation>ohne Nummer</translation>
    </message>
    <message>
        <source>by the UTC in its data</source>
        <translation>nach der UTC in seinen Daten</translation>
    </message>
    <message>
        <source>by its header, in whatever zone</source>
        <translation>nach seinem Dateikopf, in unbekannter Zeitzone</translation>
    </message>
    <message>
        <source>nothing tells when it was</source>
        <translation>nichts sagt, wann er war</translation>
    </message>
    <message>
        <source>Flight %1, %2.
Engine %3 %4, profile %5.
Double-click: open it; with Shift: open it as the reference.</source>
        <translation>Flug %1, %2.
Triebwerk %3 %4, Profil %5.
Doppelklick: öffnen; mit Umschalt: als Referenz öffnen.</translation>
    </message>
    <message>
        <source>Start (UTC)</source>
        <translation>Anfang (UTC)</translation>
    </message>
    <message>
        <source>When the flight began; slanted: by the header&apos;s clock, whose zone is not known</source>
        <translation>Wann der Flug begann; kursiv: nach der Uhr des Dateikopfs, deren Zeitzone nicht bekannt ist</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>From the first sample to the last</source>
        <translation>Vom ersten Messwert bis zum letzten</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Triebwerk</translation>
    </message>
    <message>
        <source>Serial number of the engine</source>
        <translation>Seriennummer des Triebwerks</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Schlimmstes</translation>
    </message>
    <message>
        <source>The worst that happened</source>
        <translation>Das Schlimmste, was geschah</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Grenzwerte</translation>
    </message>
    <message>
        <source>Times out of range that reached a limit</source>
        <translation>Wie oft der Bereich verlassen und dabei ein Grenzwert erreicht wurde</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Times out of range that did not reach a limit</source>
        <translation>Wie oft der Bereich verlassen, aber kein Grenzwert erreicht wurde</translation>
    </message>
    <message>
        <source>Lamps</source>
        <translation>Lampen</translation>
    </message>
    <message>
        <source>Times that a warning lamp was on</source>
        <translation>Wie oft eine Warnlampe leuchtete</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warnings and faults that the matrices told of</source>
        <translation>Warnungen und Fehler, die die Matrizen meldeten</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Anmerkungen</translation>
    </message>
    <message>
        <source>What is to be said about the recordings themselves</source>
        <translation>Was zu den Aufzeichnungen selbst zu sagen ist</translation>
    </message>
</context>
<context>
    <name>TARN::FlightLoader</name>
    <message>
        <source>There is not enough memory for the recording; load fewer at once.</source>
        <translation>Zu wenig Speicher für die Aufzeichnung; laden Sie weniger auf einmal.</translation>
    </message>
    <message>
        <source>There is not enough memory to show the recording; load fewer at once.</source>
        <translation>Zu wenig Speicher zum Anzeigen der Aufzeichnung; laden Sie weniger auf einmal.</translation>
    </message>
    <message>
        <source>Looking for events</source>
        <translation>Suche nach Ereignissen</translation>
    </message>
</context>
<context>
    <name>TARN::GraphButtons</name>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom 1:1</source>
        <translation>Zoom 1:1</translation>
    </message>
    <message>
        <source>Zoom Marker</source>
        <translation>Zoom auf Marker</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alles anzeigen</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Alles leeren</translation>
    </message>
    <message>
        <source>Automatic Mode</source>
        <translation>Automatikmodus</translation>
    </message>
    <message>
        <source>Split Mode</source>
        <translation>Geteiltes Diagramm</translation>
    </message>
    <message>
        <source>Single Graph Mode</source>
        <translation>Gemeinsames Diagramm</translation>
    </message>
    <message>
        <source>Reset all to default</source>
        <translation>Alles auf Standard zurücksetzen</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Einrichten</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Measuring Panel</source>
        <translation>Messfeld</translation>
    </message>
</context>
<context>
    <name>TARN::LogbookAccess</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Speicher reicht nicht aus.</translation>
    </message>
    <message>
        <source>%1 of %2 flights</source>
        <translation>%1 von %2 Flügen</translation>
    </message>
    <message>
        <source>Trying again: %1</source>
        <translation>Neuer Versuch: %1</translation>
    </message>
</context>
<context>
    <name>TARN::LogbookKeeper</name>
    <message>
        <source>Added to the logbook.</source>
        <translation>Zum Bordbuch hinzugefügt.</translation>
    </message>
    <message>
        <source>Not added to the logbook: %1</source>
        <translation>Nicht zum Bordbuch hinzugefügt: %1</translation>
    </message>
</context>
<context>
    <name>TARN::MeasureModel</name>
    <message>
        <source>Of them without a number: %1</source>
        <translation>Davon ohne Zahl: %1</translation>
    </message>
    <message>
        <source>Steps of more than %1 s, together %2 s</source>
        <translation>Schritte von mehr als %1 s, zusammen %2 s</translation>
    </message>
    <message>
        <source>Sent only when something changes</source>
        <translation>Wird nur gesendet, wenn sich etwas ändert</translation>
    </message>
    <message>
        <source>Click to go there</source>
        <translation>Klicken, um dorthin zu gehen</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Curves of the graph, in their order</source>
        <translation>Kurven des Diagramms in ihrer Reihenfolge</translation>
    </message>
    <message>
        <source>Value at A</source>
        <translation>Wert bei A</translation>
    </message>
    <message>
        <source>Value at B</source>
        <translation>Wert bei B</translation>
    </message>
    <message>
        <source>Difference of the values at A and B</source>
        <translation>Differenz der Werte bei A und B</translation>
    </message>
    <message>
        <source>per s</source>
        <translation>je s</translation>
    </message>
    <message>
        <source>Difference a second from A to B</source>
        <translation>Differenz je Sekunde von A bis B</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Smallest value from A to B</source>
        <translation>Kleinster Wert von A bis B</translation>
    </message>
    <message>
        <source>Min at</source>
        <translation>Min um</translation>
    </message>
    <message>
        <source>When it stands first, recording clock</source>
        <translation>Wann er zuerst auftritt, Uhr der Aufzeichnung</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Greatest value from A to B</source>
        <translation>Größter Wert von A bis B</translation>
    </message>
    <message>
        <source>Max at</source>
        <translation>Max um</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Mean of the values from A to B</source>
        <translation>Mittelwert der Werte von A bis B</translation>
    </message>
    <message>
        <source>Time mean</source>
        <translation>Zeitmittel</translation>
    </message>
    <message>
        <source>Mean of the values, each weighed with the time that it holds</source>
        <translation>Mittelwert der Werte, jeder gewichtet mit der Zeit, die er gilt</translation>
    </message>
    <message>
        <source>Std. dev.</source>
        <translation>Std.-Abw.</translation>
    </message>
    <message>
        <source>Standard deviation of the values from A to B</source>
        <translation>Standardabweichung der Werte von A bis B</translation>
    </message>
    <message>
        <source>Integral</source>
        <translation>Integral</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Messwerte</translation>
    </message>
    <message>
        <source>Samples from A to B</source>
        <translation>Messwerte von A bis B</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Lücken</translation>
    </message>
    <message>
        <source>Stretches from A to B in which the parameter was not heard</source>
        <translation>Strecken von A bis B, in denen der Parameter nicht zu hören war</translation>
    </message>
    <message>
        <source>Above thresholds</source>
        <translation>Über Schwellen</translation>
    </message>
    <message>
        <source>For each threshold the seconds that the value was not below</source>
        <translation>Für jede Schwelle die Sekunden, in denen der Wert nicht darunter lag</translation>
    </message>
    <message>
        <source>Area below the curve from A to B: of litres an hour the litres</source>
        <translation>Fläche unter der Kurve von A bis B: bei Litern je Stunde die Liter</translation>
    </message>
    <message>
        <source>Δ time mean</source>
        <translation>Δ Zeitmittel</translation>
    </message>
    <message>
        <source>Flight minus reference: mean from A to B, each difference weighed with the time that it holds</source>
        <translation>Flug minus Referenz: Mittelwert von A bis B, jede Differenz gewichtet mit der Zeit, die sie gilt</translation>
    </message>
    <message>
        <source>Δ A</source>
        <translation>Δ A</translation>
    </message>
    <message>
        <source>Flight minus reference at A</source>
        <translation>Flug minus Referenz bei A</translation>
    </message>
    <message>
        <source>Δ B</source>
        <translation>Δ B</translation>
    </message>
    <message>
        <source>Flight minus reference at B</source>
        <translation>Flug minus Referenz bei B</translation>
    </message>
    <message>
        <source>Δ min</source>
        <translation>Δ Min</translation>
    </message>
    <message>
        <source>Smallest difference of flight and reference from A to B</source>
        <translation>Kleinste Differenz von Flug und Referenz von A bis B</translation>
    </message>
    <message>
        <source>Δ max</source>
        <translation>Δ Max</translation>
    </message>
    <message>
        <source>Greatest difference of flight and reference from A to B</source>
        <translation>Größte Differenz von Flug und Referenz von A bis B</translation>
    </message>
    <message>
        <source>Ref. time mean</source>
        <translation>Ref. Zeitmittel</translation>
    </message>
    <message>
        <source>Time mean of the reference from A to B</source>
        <translation>Zeitmittel der Referenz von A bis B</translation>
    </message>
    <message>
        <source>Ref. A</source>
        <translation>Ref. A</translation>
    </message>
    <message>
        <source>Value of the reference at A</source>
        <translation>Wert der Referenz bei A</translation>
    </message>
    <message>
        <source>Ref. B</source>
        <translation>Ref. B</translation>
    </message>
    <message>
        <source>Value of the reference at B</source>
        <translation>Wert der Referenz bei B</translation>
    </message>
    <message>
        <source>Ref. min</source>
        <translation>Ref. Min</translation>
    </message>
    <message>
        <source>Smallest value of the reference from A to B</source>
        <translation>Kleinster Wert der Referenz von A bis B</translation>
    </message>
    <message>
        <source>Ref. max</source>
        <translation>Ref. Max</translation>
    </message>
    <message>
        <source>Greatest value of the reference from A to B</source>
        <translation>Größter Wert der Referenz von A bis B</translation>
    </message>
</context>
<context>
    <name>TARN::MeasurePanel</name>
    <message>
        <source>Time of A, recording clock</source>
        <translation>Zeit von A, Uhr der Aufzeichnung</translation>
    </message>
    <message>
        <source>Time of B, recording clock</source>
        <translation>Zeit von B, Uhr der Aufzeichnung</translation>
    </message>
    <message>
        <source>Close the measuring panel</source>
        <translation>Messfeld schließen</translation>
    </message>
    <message>
        <source>What is measured of the curves</source>
        <translation>Was an den Kurven gemessen wird</translation>
    </message>
    <message>
        <source>Copy with Headers</source>
        <translation>Mit Überschriften kopieren</translation>
    </message>
    <message>
        <source>B − A: %1 s</source>
        <translation>B − A: %1 s</translation>
    </message>
    <message>
        <source>Nothing is marked: the whole flight</source>
        <translation>Nichts ist markiert: der ganze Flug</translation>
    </message>
    <message>
        <source>Sort as the Curves</source>
        <translation>Wie die Kurven sortieren</translation>
    </message>
</context>
<context>
    <name>TARN::ProjectKeeper</name>
    <message>
        <source>Open TARN Project</source>
        <translation>TARN-Projekt öffnen</translation>
    </message>
    <message>
        <source>Project Files (*.xml)</source>
        <translation>Projektdateien (*.xml)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no project that can be read; the selection stays as it is.
Open a project file saved by this program.</source>
        <translation>„%1“ ist kein lesbares Projekt; die Auswahl bleibt, wie sie ist.
Öffnen Sie eine mit diesem Programm gespeicherte Projektdatei.</translation>
    </message>
    <message>
        <source>TARN Warning</source>
        <translation>TARN-Warnung</translation>
    </message>
    <message>
        <source>Current Project not saved !
Save it now ?</source>
        <translation>Aktuelles Projekt nicht gespeichert !
Jetzt speichern ?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The project was not saved: no profile is loaded, so its parameters are not known.
Choose a profile under Extras, Preferences.</source>
        <translation>Das Projekt wurde nicht gespeichert: Es ist kein Profil geladen, seine Parameter sind daher nicht bekannt.
Wählen Sie ein Profil unter Extras, Einstellungen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no project and is not replaced.
Choose another name for the project.</source>
        <translation>„%1“ ist kein Projekt und wird nicht ersetzt.
Wählen Sie einen anderen Namen für das Projekt.</translation>
    </message>
    <message>
        <source>The project could not be written to &quot;%1&quot;.
The old file is unchanged; save it in another folder.</source>
        <translation>Das Projekt konnte nicht nach „%1“ geschrieben werden.
Die alte Datei ist unverändert; speichern Sie das Projekt in einem anderen Ordner.</translation>
    </message>
    <message>
        <source>Project saved: %1</source>
        <translation>Projekt gespeichert: %1</translation>
    </message>
    <message>
        <source>Save TARN Project</source>
        <translation>TARN-Projekt speichern</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists in this folder. Replace it?</source>
        <translation>„%1“ ist in diesem Ordner bereits vorhanden. Ersetzen?</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA-Warnung</translation>
    </message>
</context>
<context>
    <name>TARN::RangeDialog</name>
    <message>
        <source>Highest value :</source>
        <translation>Höchster Wert :</translation>
    </message>
    <message>
        <source>Lowest value :</source>
        <translation>Niedrigster Wert :</translation>
    </message>
</context>
<context>
    <name>TARN::ReferenceBar</name>
    <message>
        <source>Curves</source>
        <translation>Kurven</translation>
    </message>
    <message>
        <source>Show the reference&apos;s curves (B in the graph)</source>
        <translation>Kurven der Referenz zeigen (B im Diagramm)</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Show flight minus reference in strips of their own (D in the graph)</source>
        <translation>Flug minus Referenz in eigenen Streifen zeigen (D im Diagramm)</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Show the reference&apos;s values in the table</source>
        <translation>Werte der Referenz in der Tabelle zeigen</translation>
    </message>
    <message>
        <source>Take the reference flight away</source>
        <translation>Referenzflug entfernen</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Moment</source>
        <translation>Moment</translation>
    </message>
    <message>
        <source>Passing</source>
        <translation>Durchgang</translation>
    </message>
    <message>
        <source>What is laid on what: times of day, the first samples, a moment picked in both, or when a parameter first passes a value</source>
        <translation>Was aufeinandergelegt wird: die Uhrzeiten, die ersten Messwerte, ein in beiden gewählter Moment oder das erste Mal, dass ein Parameter einen Wert durchläuft</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Parameter that passes the value</source>
        <translation>Parameter, der den Wert durchläuft</translation>
    </message>
    <message>
        <source>Value that is passed</source>
        <translation>Wert, der durchlaufen wird</translation>
    </message>
    <message>
        <source>Shift of the reference</source>
        <translation>Verschiebung der Referenz</translation>
    </message>
    <message>
        <source>Seconds by which the reference is shifted; Alt and a drag in the graph shift it too</source>
        <translation>Sekunden, um die die Referenz verschoben ist; Ziehen mit Alt im Diagramm verschiebt sie auch</translation>
    </message>
    <message>
        <source>A&amp;lign:</source>
        <translation>Aus&amp;richten:</translation>
    </message>
    <message>
        <source>Sh&amp;ift:</source>
        <translation>&amp;Verschieben:</translation>
    </message>
    <message>
        <source>Flight: %1</source>
        <translation>Flug: %1</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Referenz: %1</translation>
    </message>
    <message>
        <source>Align Here</source>
        <translation>Hier ausrichten</translation>
    </message>
    <message>
        <source>Pick Moment</source>
        <translation>Moment wählen</translation>
    </message>
    <message>
        <source>Lays the reference&apos;s value at the cursor on the moment picked</source>
        <translation>Legt den Wert der Referenz am Cursor auf den gewählten Moment</translation>
    </message>
    <message>
        <source>Takes the cursor&apos;s time as the moment of the flight</source>
        <translation>Nimmt die Zeit des Cursors als Moment des Flugs</translation>
    </message>
    <message>
        <source>The reference holds no sample of: %1</source>
        <translation>Die Referenz enthält keinen Messwert von: %1</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> und %1 mehr</translation>
    </message>
    <message>
        <source>Moment of the flight: %1. Go to where the reference&apos;s curve shows the same moment, then press Align Here.</source>
        <translation>Moment des Flugs: %1. Gehen Sie dorthin, wo die Kurve der Referenz denselben Moment zeigt, und klicken Sie dann auf „Hier ausrichten“.</translation>
    </message>
    <message>
        <source>One of the flights does not pass this value: the shift is the one before.</source>
        <translation>Einer der Flüge durchläuft diesen Wert nicht: Es bleibt bei der bisherigen Verschiebung.</translation>
    </message>
    <message>
        <source>The flights have no time in common: align them by their start, or shift the reference.</source>
        <translation>Die Flüge haben keine gemeinsame Zeit: Richten Sie sie am Anfang aus oder verschieben Sie die Referenz.</translation>
    </message>
    <message>
        <source>The flights are being aligned.</source>
        <translation>Die Flüge werden ausgerichtet.</translation>
    </message>
    <message>
        <source>There is not enough memory to compare everything; select fewer parameters.</source>
        <translation>Der Speicher reicht nicht, um alles zu vergleichen; wählen Sie weniger Parameter aus.</translation>
    </message>
</context>
<context>
    <name>TARN::ReferenceGraph</name>
    <message>
        <source>Show &amp;Reference</source>
        <translation>&amp;Referenz anzeigen</translation>
    </message>
    <message>
        <source>Show &amp;Difference</source>
        <translation>&amp;Differenz anzeigen</translation>
    </message>
    <message>
        <source>There is not enough memory for the reference&apos;s curves; select fewer parameters.</source>
        <translation>Zu wenig Speicher für die Kurven der Referenz; wählen Sie weniger Parameter aus.</translation>
    </message>
</context>
<context>
    <name>TARN::ReferenceLoader</name>
    <message>
        <source>There is not enough memory for a reference beside the flight.</source>
        <translation>Zu wenig Speicher für eine Referenz neben dem Flug.</translation>
    </message>
    <message>
        <source>Looking for events</source>
        <translation>Suche nach Ereignissen</translation>
    </message>
</context>
<context>
    <name>TARN::SessionGraph</name>
    <message>
        <source>There is not enough memory for these curves; select fewer parameters.</source>
        <translation>Zu wenig Speicher für diese Kurven; wählen Sie weniger Parameter aus.</translation>
    </message>
    <message>
        <source>%1 of %2 selected parameters shown</source>
        <translation>%1 von %2 ausgewählten Parametern dargestellt</translation>
    </message>
    <message>
        <source>Left out of the graph, because their time falls: %1 samples</source>
        <translation>Messwerte, die wegen rückläufiger Zeit im Diagramm fehlen: %1</translation>
    </message>
    <message>
        <source>The graph was cleared.
Press &quot;Confirm Selection&quot; to fill it again.</source>
        <translation>Das Diagramm wurde geleert.
Klicken Sie auf „Auswahl bestätigen“, um es wieder zu füllen.</translation>
    </message>
    <message>
        <source>The graph is being filled.</source>
        <translation>Das Diagramm wird gefüllt.</translation>
    </message>
    <message>
        <source>The recording holds no sample of the selected parameters.</source>
        <translation>Die Aufzeichnung enthält keinen Messwert der ausgewählten Parameter.</translation>
    </message>
</context>
<context>
    <name>TARN::TableModel</name>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Referenz: %1</translation>
    </message>
    <message>
        <source>ref. %1</source>
        <translation>Ref. %1</translation>
    </message>
</context>
<context>
    <name>TARN::TimeControls</name>
    <message>
        <source>Date and time of day in UTC</source>
        <translation>Datum und Uhrzeit in UTC</translation>
    </message>
    <message>
        <source>Time on the recording&apos;s clock</source>
        <translation>Zeit auf der Uhr der Aufzeichnung</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Offset:</translation>
    </message>
    <message>
        <source>UTC</source>
        <translation>UTC</translation>
    </message>
    <message>
        <source>Recording clock</source>
        <translation>Uhr der Aufzeichnung</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Seconds added to the times of units whose clock differs; kept with the card folder</source>
        <translation>Sekunden, die zu den Zeiten von Geräten mit abweichender Uhr addiert werden; im Kartenordner gespeichert</translation>
    </message>
    <message>
        <source>Current time, from the recording&apos;s start to its stop</source>
        <translation>Aktuelle Zeit, vom Start bis zum Stopp der Aufzeichnung</translation>
    </message>
    <message>
        <source>Current time</source>
        <translation>Aktuelle Zeit</translation>
    </message>
    <message>
        <source>Current time on the recording&apos;s clock; type a time and press Enter to go there</source>
        <translation>Aktuelle Zeit auf der Uhr der Aufzeichnung; geben Sie eine Zeit ein und drücken Sie die Eingabetaste, um dorthin zu springen</translation>
    </message>
    <message>
        <source>Go to time</source>
        <translation>Zu Zeit springen</translation>
    </message>
    <message>
        <source>Previous event</source>
        <translation>Vorheriges Ereignis</translation>
    </message>
    <message>
        <source>Next event</source>
        <translation>Nächstes Ereignis</translation>
    </message>
</context>
<context>
    <name>TARN::TrendListModel</name>
    <message>
        <source>Parameter</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>Device, parameter and unit</source>
        <translation>Gerät, Parameter und Einheit</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>How far the latest flight lies from the median, in robust standard deviations; red where it is marked</source>
        <translation>Wie weit der letzte Flug vom Median entfernt liegt, in robusten Standardabweichungen; rot, wo er markiert ist</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>Markiert</translation>
    </message>
    <message>
        <source>Number of flights that leave the band</source>
        <translation>Zahl der Flüge, die das Band verlassen</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>Letzter</translation>
    </message>
    <message>
        <source>In the latest flight that has a value</source>
        <translation>Im letzten Flug, der einen Wert hat</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Median</translation>
    </message>
    <message>
        <source>Of the other flights since the last maintenance</source>
        <translation>Der anderen Flüge seit der letzten Wartung</translation>
    </message>
</context>
<context>
    <name>TARN::TrendPanel</name>
    <message>
        <source>Time mean when steady</source>
        <translation>Zeitmittel, stationär</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Seconds above WARNING</source>
        <translation>Sekunden über WARNING</translation>
    </message>
    <message>
        <source>Times out of range</source>
        <translation>Wie oft außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>What is compared from flight to flight</source>
        <translation>Was von Flug zu Flug verglichen wird</translation>
    </message>
    <message>
        <source>Figure</source>
        <translation>Kennzahl</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Show only parameters that hold this text</source>
        <translation>Nur Parameter anzeigen, die diesen Text enthalten</translation>
    </message>
    <message>
        <source>Filter of the parameters</source>
        <translation>Filter der Parameter</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parameter</translation>
    </message>
    <message>
        <source>No parameter holds this text.</source>
        <translation>Kein Parameter enthält diesen Text.</translation>
    </message>
    <message>
        <source>No flight of this engine has a steady stretch of three minutes. What is steady is told by parameters that the profile marks with &quot;steady&quot;.</source>
        <translation>Kein Flug dieses Triebwerks hat einen stationären Abschnitt von drei Minuten. Was stationär ist, bestimmen die Parameter, die das Profil mit „steady“ kennzeichnet.</translation>
    </message>
    <message>
        <source>No flight of this engine has this figure.</source>
        <translation>Kein Flug dieses Triebwerks hat diese Kennzahl.</translation>
    </message>
    <message>
        <source>Engine %1: a band needs five other flights since the last maintenance.</source>
        <translation>Triebwerk %1: Ein Band braucht fünf andere Flüge seit der letzten Wartung.</translation>
    </message>
    <message>
        <source>Engine %1: %2 of %3 parameters leave their band in their latest flight.</source>
        <translation>Triebwerk %1: %2 von %3 Parametern in ihrem letzten Flug außerhalb ihres Bands.</translation>
    </message>
    <message>
        <source>%1%2, %3: %4 of %5 flights leave the band</source>
        <translation>%1%2, %3: %4 von %5 Flügen außerhalb des Bands</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetErrorTime</name>
    <message>
        <source>When errors were active: from the top info, warning, fault. Click to go there.</source>
        <translation>Wann Einträge der Fehlermatrix aktiv waren; von oben: Information, Warnung, Fehler. Klicken Sie, um dorthin zu springen.</translation>
    </message>
    <message>
        <source>Fault timeline</source>
        <translation>Fehler-Zeitleiste</translation>
    </message>
    <message>
        <source>The recording holds no message of this matrix.</source>
        <translation>Die Aufzeichnung enthält keine Nachricht dieser Matrix.</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetTimeRange</name>
    <message>
        <source>Start time</source>
        <translation>Startzeit</translation>
    </message>
    <message>
        <source>Stop time</source>
        <translation>Stoppzeit</translation>
    </message>
    <message>
        <source>Cursor Pos</source>
        <translation>Cursorpos.</translation>
    </message>
    <message>
        <source>Start at the current time of the data window</source>
        <translation>Start bei der aktuellen Zeit des Datenfensters</translation>
    </message>
    <message>
        <source>Stop at the current time of the data window</source>
        <translation>Stopp bei der aktuellen Zeit des Datenfensters</translation>
    </message>
    <message>
        <source>Start :</source>
        <translation>Start :</translation>
    </message>
    <message>
        <source>Stop :</source>
        <translation>Stopp :</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA-Warnung</translation>
    </message>
    <message>
        <source>The start time is after the stop time: nothing would be exported.</source>
        <translation>Die Startzeit liegt nach der Stoppzeit: Es würde nichts exportiert.</translation>
    </message>
    <message>
        <source>Start/Stop Time (recording clock)</source>
        <translation>Start-/Stoppzeit (Uhr der Aufzeichnung)</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetTrack</name>
    <message>
        <source>Track</source>
        <translation>Flugweg</translation>
    </message>
    <message>
        <source>The path of the flight from above, and its height below</source>
        <translation>Der Flugweg von oben, darunter die Höhe</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetTrend</name>
    <message>
        <source>Trend</source>
        <translation>Trend</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>Median of the others %1, sigma %2</source>
        <translation>Median der anderen %1, Sigma %2</translation>
    </message>
    <message>
        <source>It leaves the band.</source>
        <translation>Er verlässt das Band.</translation>
    </message>
    <message>
        <source>Click: open the flight; with Shift: as the reference.</source>
        <translation>Klick: Flug öffnen; mit Umschalt: als Referenz.</translation>
    </message>
</context>
<context>
    <name>TargetQuestion</name>
    <message>
        <source>Type a file name, without a folder.</source>
        <translation>Geben Sie einen Dateinamen ohne Ordner ein.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Choose another.</source>
        <translation>Der Ordner „%1“ existiert nicht. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; may not be written to. Choose another.</source>
        <translation>Der Ordner „%1“ ist nicht beschreibbar. Wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA-Warnung</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists in this folder. Replace it?</source>
        <translation>„%1“ ist in diesem Ordner bereits vorhanden. Ersetzen?</translation>
    </message>
</context>
<context>
    <name>TimedKml</name>
    <message>
        <source>The recording tells no date: no times can be given. Export the path without them.</source>
        <translation>Die Aufzeichnung nennt kein Datum: Zeiten können nicht angegeben werden. Exportieren Sie den Flugweg ohne sie.</translation>
    </message>
</context>
<context>
    <name>TrackColors</name>
    <message>
        <source>All parameters</source>
        <translation>Alle Parameter</translation>
    </message>
    <message>
        <source>in range</source>
        <translation>im Bereich</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>kein Wert</translation>
    </message>
</context>
<context>
    <name>TrackDrawing</name>
    <message>
        <source>No position at %1; shown is the last one, of %2</source>
        <translation>Um %1 keine Position; gezeigt wird die letzte, von %2</translation>
    </message>
    <message>
        <source>No position at %1 or before</source>
        <translation>Um %1 und davor keine Position</translation>
    </message>
</context>
<context>
    <name>TrackHits</name>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
</context>
<context>
    <name>TrackMarks</name>
    <message>
        <source>peak %1 at %2, threshold %3</source>
        <translation>Spitze %1 um %2, Schwelle %3</translation>
    </message>
</context>
<context>
    <name>TrackNote</name>
    <message>
        <source>The recording tells no UTC: times are counted from the date of its header, whose time zone is not known, as if that were UTC.</source>
        <translation>Die Aufzeichnung nennt kein UTC: Die Zeiten zählen ab dem Datum ihres Kopfes, dessen Zeitzone nicht bekannt ist, als wäre es UTC.</translation>
    </message>
    <message>
        <source>The recording tells no date: the track is without times.</source>
        <translation>Die Aufzeichnung nennt kein Datum: Der Flugweg ist ohne Zeiten.</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; of the altitude is not known, its numbers were taken for metres.</source>
        <translation>Die Einheit &quot;%1&quot; der Höhe ist nicht bekannt, ihre Zahlen wurden als Meter genommen.</translation>
    </message>
    <message>
        <source>Times are UTC as the recording&apos;s own messages tell it.</source>
        <translation>Die Zeiten sind UTC, wie es die Meldungen der Aufzeichnung selbst nennen.</translation>
    </message>
    <message>
        <source>Altitudes are metres, converted from %1.</source>
        <translation>Höhen sind in Metern, umgerechnet aus %1.</translation>
    </message>
    <message>
        <source>Left out: %1 positions at 0/0 or incomplete, %2 that nothing flies to, %3 events without a position.</source>
        <translation>Weggelassen: %1 Positionen bei 0/0 oder unvollständig, %2, zu denen nichts fliegt, %3 Ereignisse ohne Position.</translation>
    </message>
</context>
<context>
    <name>TrackSymbols</name>
    <message>
        <source>out of range</source>
        <translation>außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>warning lamp</source>
        <translation>Warnlampe</translation>
    </message>
    <message>
        <source>fault or warning</source>
        <translation>Fehler oder Warnung</translation>
    </message>
    <message>
        <source>Events without a position: %1</source>
        <translation>Ereignisse ohne Position: %1</translation>
    </message>
</context>
<context>
    <name>UnknownIdentifiers</name>
    <message>
        <source>Identifiers that the profile does not describe: %1, their samples: %2</source>
        <translation>Kennungen, die das Profil nicht beschreibt: %1, zugehörige Messwerte: %2</translation>
    </message>
</context>
<context>
    <name>WidgetGraph</name>
    <message>
        <source>Graph of the selected parameters</source>
        <translation>Diagramm der ausgewählten Parameter</translation>
    </message>
    <message>
        <source>Click to show the curve</source>
        <translation>Klicken, um die Kurve anzuzeigen</translation>
    </message>
    <message>
        <source>Click to hide the curve, drag to move it, right click for more</source>
        <translation>Klicken blendet die Kurve aus, Ziehen verschiebt sie, Rechtsklick für mehr</translation>
    </message>
</context>
</TS>
