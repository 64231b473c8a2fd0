<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>DialogAbout</name>
    <message>
        <source>About ORNA</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licence</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Third-party notices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reads engine and flight recordings of an aircraft&apos;s SD card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1, built %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogHelp</name>
    <message>
        <source>ORNA Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sections of the manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Words to find; Enter goes to the next place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next place</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportCan</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportCsv</name>
    <message>
        <source>The first sample is at %1 s, the last at %2 s, the export ends at %3 s. Choose a shorter time range or a coarser resolution.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table would have too many rows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table would have %1 rows, about %2 MB, more than is free in &quot;%3&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No parameter is selected, the file holds its title only.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sample lies in the time range, the file holds its titles only.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportKml</name>
    <message>
        <source>&quot;%1&quot; could not be written. Check that the folder exists, may be written to and has room.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No position lies in the time range, the flight path is empty.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportTarget</name>
    <message>
        <source>Type a file name, without a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Choose another.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; may not be written to. Choose another.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists in this folder. Replace it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Record</name>
    <message>
        <source>not enough memory for %1 samples; load fewer recordings at once</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>could not open the recording &quot;%1&quot;; check that the card is still in place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not enough memory to read the recording; load fewer at once</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecordText</name>
    <message>
        <source>Remarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bus Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ECU Serial Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Software Part Nr. A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Software Part Nr. B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ECU Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EMU SW Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Engine Serial Nr.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Engine Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file could not be opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The header is cut short, bytes missing: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignored at the end, bytes that are no whole sample: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples that could not be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples with an impossible time: %1, the first is number %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples of channels other than 0 and 1: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gaps of more than 10 s: %1, the longest is %2 s from %3 on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The time offset could not be read: &quot;%1&quot; is damaged. Setting another offset keeps that file aside</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Samples Read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Creating Dialogs ...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogCard</name>
    <message>
        <source>No card opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder of the recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Time: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Time: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Header of the recording and what could be read of it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogData</name>
    <message>
        <source>Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit/Warning Exceed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fault Matrix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date and time of day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time on the recording&apos;s clock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seconds added to the times of units whose clock differs; kept with the card folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current time, from the recording&apos;s start to its stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current time; type a time and press Enter to go there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previous event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The offset could not be saved on the card (is it write-protected?) and holds until the program ends.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataErrorMatrix</name>
    <message>
        <source>The profile describes no error matrix.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error matrices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataGraph</name>
    <message>
        <source>%1 of %2 selected parameters shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No parameter is selected.
Tick parameters in the list on the left and press &quot;Confirm Selection&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No recording is loaded.
Open a card and pick one or more recordings in the list on the left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording holds no sample of the selected parameters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BMP File (*.bmp);;All Files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The snapshot could not be saved as
%1
Choose a folder that can be written, with enough free space, and a name that ends in .bmp, .png or .jpg.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom 1:1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom Marker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Split Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Single Graph Mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset all to default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Auto</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The graph cannot be drawn: this display offers no OpenGL.
All other views work; a graphics driver with OpenGL 2.1, or Mesa&apos;s software one, brings the graph.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The graph was cleared.
Press &quot;Confirm Selection&quot; to fill it again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataLimit</name>
    <message>
        <source>Warning/Limit Exceed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No limit exceeded in this recording.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataTable</name>
    <message>
        <source>Values of the selected parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No parameter is selected.
Tick parameters in the list on the left and press &quot;Confirm Selection&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No recording is loaded.
Open a card and pick one or more recordings in the list on the left.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The recording holds no sample of the selected parameters.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataWarning</name>
    <message>
        <source>Warning Lamps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No warning lamp came on in this recording.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogEventList</name>
    <message>
        <source>No recording is loaded.
Open a card and pick one or more recordings in the list on the left.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsv</name>
    <message>
        <source>CSV Export</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsvOptions</name>
    <message>
        <source>CSV/CAN Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select CSV/CAN Option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameter Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Semikolon ;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comma ,</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tabstop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stands between two columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time from row to row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Parameter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected Parameter only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns of the table</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsvPath</name>
    <message>
        <source>Save CSV/CAN Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV/CAN Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the output directory and file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>.CSV Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>.CAN Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A table of decoded values, or a recording that can be opened again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Filename</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKml</name>
    <message>
        <source>Google Earth KML Export</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKmlOptions</name>
    <message>
        <source> ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One point of the path for each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KML Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select KML Option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Timestamp every :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width of the flight path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Line Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line Style</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Polygon Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw Polygon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A curtain from the flight path to the ground</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polygon color</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKmlPath</name>
    <message>
        <source>Save KML Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>KML Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the output directory and file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Filename</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKmlPlacemark</name>
    <message>
        <source>KML Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select KML Placemarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> samples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points of the path from mark to mark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Placemark Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw selected parameters as placemarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Placemark every</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Placemark Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Exceedance Color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Limit exceedance / Warning Lamps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit Exceedance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exceedance Placemark Color</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogGraphSetup</name>
    <message>
        <source>Background color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cursor On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Legend On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Autoscale On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Oscilloscope Setup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, used while autoscale is off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Floating</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Center</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cursor mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background Color :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Grid On/Color :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label Color :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label Background :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cursor On/Mode :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Legend :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Y-Scale :</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogMain</name>
    <message>
        <source>Samples loaded: %L1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>[edited]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create new Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Project File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Project File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Project as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Project as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Project File as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open SD Card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Google KML File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Google Earth KML File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export CSV/CAN File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit Application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open TARN Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project Files (*.xml)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project &quot;%1&quot; could not be read.
Check that it is a project file saved by this program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recordings found: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TARN Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Project not saved !
Save it now ?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project could not be written to &quot;%1&quot;.
The old file is unchanged; save it in another folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save TARN Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exporting KML file failed !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ORNA Viewer Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exporting CSV/CAN file failed !</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; could not be loaded: no parameters can be shown. Choose another under Extras, Preferences.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Preferences Dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the Header and the Damages of the Recording</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show License Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Extras</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not everything could be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>. Remarks (see Recording Details): %1. </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough memory to show the recording; load fewer at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings could not be read, the program starts with its defaults. The damaged file is kept as &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogPreferences</name>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages of the preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ok</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close; every change holds already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a profile file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile File :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The XML file that says how the samples are decoded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language of the program from its next start on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profile</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ORNA Profile (*.xml);;All files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TARN Info</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please restart TARN to load new language !</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogProfile</name>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected Parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untick all parameters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the ticked parameters in all views</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters of the profile</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogRecordDetails</name>
    <message>
        <source>Recording Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recording details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the selected lines, or all when none is selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DialogStatusBar</name>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::DirectoryEdit</name>
    <message>
        <source>Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder of the file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::EventModel</name>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::TableModel</name>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::WidgetErrorTime</name>
    <message>
        <source>When errors were active: from the top info, warning, fault. Click to go there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fault timeline</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TARN::WidgetTimeRange</name>
    <message>
        <source>Start/Stop Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cursor Pos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start at the current time of the data window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop at the current time of the data window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop :</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The start time is after the stop time: nothing would be exported.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UnknownIdentifiers</name>
    <message>
        <source>Identifiers that the profile does not describe: %1, their samples: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WidgetGraph</name>
    <message>
        <source>Graph of the selected parameters</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
