<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AdderTexts</name>
    <message>
        <source>it can&apos;t be read</source>
        <translation>no se puede leer</translation>
    </message>
    <message>
        <source>it changed while it was read</source>
        <translation>cambió mientras se leía</translation>
    </message>
</context>
<context>
    <name>CompanionDrawing</name>
    <message>
        <source>Δ flight minus reference</source>
        <translation>Δ vuelo menos referencia</translation>
    </message>
    <message>
        <source>ref. %1</source>
        <translation>ref. %1</translation>
    </message>
</context>
<context>
    <name>CurveMenu</name>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Ocultar</translation>
    </message>
    <message>
        <source>&amp;Only This</source>
        <translation>&amp;Solo esta</translation>
    </message>
    <message>
        <source>&amp;Color...</source>
        <translation>&amp;Color...</translation>
    </message>
    <message>
        <source>Show &amp;All Curves</source>
        <translation>Mostrar &amp;todas las curvas</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Subir</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>Own &amp;Range...</source>
        <translation>&amp;Rango propio...</translation>
    </message>
    <message>
        <source>Au&amp;tomatic Range</source>
        <translation>Rango au&amp;tomático</translation>
    </message>
    <message>
        <source>Color of %1</source>
        <translation>Color de %1</translation>
    </message>
    <message>
        <source>Range of %1</source>
        <translation>Rango de %1</translation>
    </message>
</context>
<context>
    <name>DialogAbout</name>
    <message>
        <source>About ORNA</source>
        <translation>Acerca de ORNA</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licencia</translation>
    </message>
    <message>
        <source>Third-party notices</source>
        <translation>Avisos de terceros</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Cerrar esta ventana</translation>
    </message>
    <message>
        <source>Reads engine and flight recordings of an aircraft&apos;s SD card</source>
        <translation>Lee las grabaciones de motor y de vuelo de la tarjeta SD de una aeronave</translation>
    </message>
    <message>
        <source>Version %1, built %2</source>
        <translation>Versión %1, compilada: %2</translation>
    </message>
</context>
<context>
    <name>DialogHelp</name>
    <message>
        <source>ORNA Help</source>
        <translation>Ayuda de ORNA</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Cerrar esta ventana</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sections of the manual</source>
        <translation>Apartados del manual</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Buscar en el manual</translation>
    </message>
    <message>
        <source>Words to find; Enter goes to the next place</source>
        <translation>Palabras que buscar; Intro va a la siguiente coincidencia</translation>
    </message>
    <message>
        <source>Previous place</source>
        <translation>Coincidencia anterior</translation>
    </message>
    <message>
        <source>Next place</source>
        <translation>Coincidencia siguiente</translation>
    </message>
</context>
<context>
    <name>EmptyText</name>
    <message>
        <source>No profile is loaded, so nothing can be decoded and nothing was checked.
Choose one in the &lt;a href=&quot;preferences&quot;&gt;preferences&lt;/a&gt;.</source>
        <translation>No hay ningún perfil cargado: no se puede decodificar nada y no se ha comprobado nada.
Elija uno en las &lt;a href=&quot;preferences&quot;&gt;preferencias&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The recording is being loaded.</source>
        <translation>La grabación se está cargando.</translation>
    </message>
    <message>
        <source>No recording is loaded.
Open a card and pick one or more recordings in the list on the left.</source>
        <translation>No hay ninguna grabación cargada.
Abra una tarjeta y elija una o varias grabaciones en la lista de la izquierda.</translation>
    </message>
    <message>
        <source>The recording holds no samples, so nothing was checked.</source>
        <translation>La grabación no contiene ninguna muestra; no se ha comprobado nada.</translation>
    </message>
    <message>
        <source>No parameter is selected.
Tick parameters in the list on the left and press &quot;Confirm Selection&quot;.</source>
        <translation>No hay ningún parámetro seleccionado.
Marque parámetros en la lista de la izquierda y pulse «Confirmar selección».</translation>
    </message>
</context>
<context>
    <name>EventLists</name>
    <message>
        <source>The recording holds no FLOAT message of a parameter with a threshold, so nothing was watched for limits.</source>
        <translation>La grabación no contiene ningún mensaje FLOAT de un parámetro con umbral; no se ha vigilado ningún límite.</translation>
    </message>
    <message>
        <source>No limit event in %1 samples of %2 watched parameters.</source>
        <translation>Ningún evento de límite en %1 muestras de %2 parámetros vigilados.</translation>
    </message>
    <message>
        <source>The recording holds no message of a warning lamp, so none was watched.</source>
        <translation>La grabación no contiene ningún mensaje de una luz de aviso; no se ha vigilado ninguna.</translation>
    </message>
    <message>
        <source>No warning lamp came on in %1 samples of %2 lamps.</source>
        <translation>No se encendió ninguna luz de aviso en %1 muestras de %2 luces.</translation>
    </message>
    <message>
        <source>The recording holds no message of an error matrix, so none was watched.</source>
        <translation>La grabación no contiene ningún mensaje de una matriz de errores, por lo que no se vigiló ninguna.</translation>
    </message>
    <message>
        <source>No error was active in %1 messages of %2 matrices.</source>
        <translation>Ningún error estuvo activo en %1 mensajes de %2 matrices.</translation>
    </message>
</context>
<context>
    <name>EventMarks</name>
    <message>
        <source>%1 came</source>
        <translation>activación de %1</translation>
    </message>
    <message>
        <source>%1 went</source>
        <translation>desactivación de %1</translation>
    </message>
</context>
<context>
    <name>EventWords</name>
    <message>
        <source>Caution</source>
        <translation>Precaución</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Fallo</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Límite</translation>
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
        <translation>No se puede escribir «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>No se pudo escribir «%1»: %2</translation>
    </message>
</context>
<context>
    <name>ExportCsv</name>
    <message>
        <source>The first sample is at %1 s, the last at %2 s, the export ends at %3 s. Choose a shorter time range or a coarser resolution.</source>
        <translation>La primera muestra está en %1 s, la última en %2 s y la exportación termina en %3 s. Elija un intervalo de tiempo más corto o una resolución más gruesa.</translation>
    </message>
    <message>
        <source>The table would have too many rows.</source>
        <translation>La tabla tendría demasiadas filas.</translation>
    </message>
    <message>
        <source>The table would have %1 rows, about %2 MB, more than is free in &quot;%3&quot;.</source>
        <translation>La tabla tendría %1 filas, unos %2 MB, más que el espacio libre en «%3».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2</source>
        <translation>No se puede escribir «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>No se pudo escribir «%1»: %2</translation>
    </message>
    <message>
        <source>No parameter is selected, the file holds its title only.</source>
        <translation>No hay ningún parámetro seleccionado; el archivo solo contiene el título.</translation>
    </message>
    <message>
        <source>No sample lies in the time range, the file holds its titles only.</source>
        <translation>No hay ninguna muestra en el intervalo de tiempo; el archivo solo contiene los títulos.</translation>
    </message>
</context>
<context>
    <name>ExportKml</name>
    <message>
        <source>&quot;%1&quot; could not be written. Check that the folder exists, may be written to and has room.</source>
        <translation>No se pudo escribir «%1». Compruebe que la carpeta existe, que se puede escribir en ella y que tiene espacio.</translation>
    </message>
    <message>
        <source>No position lies in the time range, the flight path is empty.</source>
        <translation>No hay ninguna posición en el intervalo de tiempo; la trayectoria de vuelo está vacía.</translation>
    </message>
    <message>
        <source>Left out, because no position lies in their time slot: %1 values, %2 events. A longer &quot;Timestamp every&quot; keeps them.</source>
        <translation>Omitidos porque no hay ninguna posición en su intervalo de tiempo: %1 valores, %2 eventos. Un valor mayor de «Marca de tiempo cada» los conserva.</translation>
    </message>
</context>
<context>
    <name>ExportReport</name>
    <message>
        <source>&quot;%1&quot;: a report is a web page or a PDF; end the name in .html or .pdf.</source>
        <translation>«%1»: un informe es una página web o un PDF; termine el nombre en .html o .pdf.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2. Choose another folder; the old file, if there was one, is unchanged.</source>
        <translation>No se puede escribir «%1»: %2. Elija otra carpeta; el archivo anterior, si existía, no ha cambiado.</translation>
    </message>
</context>
<context>
    <name>Exporter</name>
    <message>
        <source>&quot;%1&quot; is the recording itself. Choose another name or folder.</source>
        <translation>«%1» es la propia grabación. Elija otro nombre u otra carpeta.</translation>
    </message>
    <message>
        <source>There is not enough memory for this export; choose a shorter time range.</source>
        <translation>No hay memoria suficiente para esta exportación; elija un intervalo de tiempo más corto.</translation>
    </message>
</context>
<context>
    <name>FlightAdder</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be read to its end</source>
        <translation>«%1» no se puede leer hasta el final</translation>
    </message>
    <message>
        <source>there is no sample in it</source>
        <translation>no contiene ninguna muestra</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no folder</source>
        <translation>«%1» no es una carpeta</translation>
    </message>
</context>
<context>
    <name>FlightSummary</name>
    <message>
        <source>Duration %1</source>
        <translation>Duración %1</translation>
    </message>
    <message>
        <source>no profile, so nothing was checked</source>
        <translation>sin perfil, no se comprobó nada</translation>
    </message>
    <message>
        <source>%1 at the limit</source>
        <translation>%1 en el límite</translation>
    </message>
    <message>
        <source>%1 in warning</source>
        <translation>%1 en aviso</translation>
    </message>
    <message>
        <source>Lamps: %1</source>
        <translation>Luces: %1</translation>
    </message>
    <message>
        <source>Faults and warnings: %1</source>
        <translation>Fallos y avisos: %1</translation>
    </message>
    <message>
        <source>nothing out of range in %1 samples of %2 watched parameters</source>
        <translation>nada fuera de rango en %1 muestras de %2 parámetros vigilados</translation>
    </message>
    <message>
        <source>no parameter was watched for limits</source>
        <translation>ningún parámetro se vigiló por límites</translation>
    </message>
    <message>
        <source>Remarks: %1</source>
        <translation>Observaciones: %1</translation>
    </message>
</context>
<context>
    <name>FlightTables</name>
    <message>
        <source>the logbook has no flight &quot;%1&quot;</source>
        <translation>el libro de vuelos no tiene ningún vuelo «%1»</translation>
    </message>
</context>
<context>
    <name>GraphCaption</name>
    <message>
        <source>%1 to %2 (%3 recordings)</source>
        <translation>%1 a %2 (%3 grabaciones)</translation>
    </message>
    <message>
        <source>%1 to %2 on the recording&apos;s clock</source>
        <translation>%1 a %2 en el reloj de la grabación</translation>
    </message>
</context>
<context>
    <name>HeightDrawing</name>
    <message>
        <source>Altitude</source>
        <translation>Altitud</translation>
    </message>
    <message>
        <source>Altitude [%1]</source>
        <translation>Altitud [%1]</translation>
    </message>
</context>
<context>
    <name>Logbook</name>
    <message>
        <source>the logbook has no flight &quot;%1&quot;</source>
        <translation>el libro de vuelos no tiene ningún vuelo «%1»</translation>
    </message>
    <message>
        <source>the keys of several flights begin with &quot;%1&quot;</source>
        <translation>las claves de varios vuelos empiezan por «%1»</translation>
    </message>
    <message>
        <source>the logbook has no flight of the engine &quot;%1&quot;</source>
        <translation>el libro de vuelos no tiene ningún vuelo del motor «%1»</translation>
    </message>
</context>
<context>
    <name>LogbookPlace</name>
    <message>
        <source>the logbook&apos;s URL is neither sqlite:PATH nor postgresql://user@host:port/database</source>
        <translation>la URL del libro de vuelos no es ni sqlite:RUTA ni postgresql://usuario@equipo:puerto/base</translation>
    </message>
    <message>
        <source>the logbook&apos;s URL has an option that is not understood; known are %1</source>
        <translation>la URL del libro de vuelos tiene una opción desconocida; se conocen %1</translation>
    </message>
    <message>
        <source>there is no home directory for a logbook; name one by its URL</source>
        <translation>no hay directorio personal para un libro de vuelos; indique uno por su URL</translation>
    </message>
</context>
<context>
    <name>LogbookSchema</name>
    <message>
        <source>&quot;%1&quot; is no logbook: another program&apos;s tables are in it</source>
        <translation>«%1» no es un libro de vuelos: contiene tablas de otro programa</translation>
    </message>
    <message>
        <source>the logbook %1 is of version %2, this program knows versions up to %3; a newer program is needed</source>
        <translation>el libro de vuelos %1 es de la versión %2, este programa conoce hasta la %3; hace falta un programa más nuevo</translation>
    </message>
    <message>
        <source>there is no logbook in %1</source>
        <translation>no hay ningún libro de vuelos en %1</translation>
    </message>
</context>
<context>
    <name>LogbookSettings</name>
    <message>
        <source>Added: %1</source>
        <translation>Añadidos: %1</translation>
    </message>
    <message>
        <source>known already: %1</source>
        <translation>ya conocidos: %1</translation>
    </message>
    <message>
        <source>not looked at: %1</source>
        <translation>no examinados: %1</translation>
    </message>
    <message>
        <source>not added: %1 (%2)</source>
        <translation>no añadidos: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>MaintenanceDialog</name>
    <message>
        <source>Maintenance</source>
        <translation>Mantenimiento</translation>
    </message>
    <message>
        <source>What was done to engine %1? Trends compare flights only with those since the last note.</source>
        <translation>¿Qué se hizo en el motor %1? Las tendencias comparan los vuelos solo con los posteriores a la última nota.</translation>
    </message>
    <message>
        <source>Flights from this moment on are behind the maintenance</source>
        <translation>Los vuelos a partir de este instante son posteriores al mantenimiento</translation>
    </message>
    <message>
        <source>Cylinder 6 replaced</source>
        <translation>Cilindro 6 sustituido</translation>
    </message>
    <message>
        <source>&amp;Date (UTC)</source>
        <translation>&amp;Fecha (UTC)</translation>
    </message>
    <message>
        <source>&amp;Note</source>
        <translation>&amp;Nota</translation>
    </message>
    <message>
        <source>Note It</source>
        <translation>Anotar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>NotePlaces</name>
    <message>
        <source>%1 to %2, %3 s</source>
        <translation>%1 a %2, %3 s</translation>
    </message>
    <message>
        <source>%1 at its limit</source>
        <translation>%1 en su límite</translation>
    </message>
    <message>
        <source>%1 in warning</source>
        <translation>%1 en aviso</translation>
    </message>
    <message>
        <source>, peak %1 %2 at %3</source>
        <translation>, pico %1 %2 a las %3</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
</context>
<context>
    <name>OutputFile</name>
    <message>
        <source>it is no file</source>
        <translation>no es un archivo</translation>
    </message>
</context>
<context>
    <name>PositionTrack</name>
    <message>
        <source>Positions of 0/0, sent while the receiver knows none: %1</source>
        <translation>Posiciones 0/0, enviadas mientras el receptor no conoce ninguna: %1</translation>
    </message>
    <message>
        <source>Jumps of the position faster than 500 m/s: %1, the first at %2</source>
        <translation>Saltos de la posición más rápidos que 500 m/s: %1, el primero a las %2</translation>
    </message>
</context>
<context>
    <name>Record</name>
    <message>
        <source>not enough memory for %1 samples; load fewer recordings at once</source>
        <translation>memoria insuficiente para %1 muestras; cargue menos grabaciones a la vez</translation>
    </message>
    <message>
        <source>could not open the recording &quot;%1&quot;; check that the card is still in place</source>
        <translation>no se pudo abrir la grabación «%1»; compruebe que la tarjeta sigue insertada</translation>
    </message>
    <message>
        <source>not enough memory to read the recording; load fewer at once</source>
        <translation>memoria insuficiente para leer la grabación; cargue menos a la vez</translation>
    </message>
    <message>
        <source>could not read the recording &quot;%1&quot; to its end; check that the card is still in place</source>
        <translation>no se pudo leer la grabación «%1» hasta el final; compruebe que la tarjeta sigue insertada</translation>
    </message>
</context>
<context>
    <name>RecordText</name>
    <message>
        <source>Remarks</source>
        <translation>Observaciones</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observación</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Stop Time</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Bus Type</source>
        <translation>Tipo de bus</translation>
    </message>
    <message>
        <source>ECU Serial Number</source>
        <translation>N.º de serie de la ECU</translation>
    </message>
    <message>
        <source>Software Part Nr. A</source>
        <translation>N.º de parte software A</translation>
    </message>
    <message>
        <source>Software Part Nr. B</source>
        <translation>N.º de parte software B</translation>
    </message>
    <message>
        <source>ECU Type</source>
        <translation>Tipo de ECU</translation>
    </message>
    <message>
        <source>EMU SW Version</source>
        <translation>Versión SW de la EMU</translation>
    </message>
    <message>
        <source>Engine Serial Nr.</source>
        <translation>N.º de serie del motor</translation>
    </message>
    <message>
        <source>Engine Type</source>
        <translation>Tipo de motor</translation>
    </message>
    <message>
        <source>Samples Total</source>
        <translation>Total de muestras</translation>
    </message>
    <message>
        <source>The file could not be opened</source>
        <translation>No se pudo abrir el archivo</translation>
    </message>
    <message>
        <source>The header is cut short, bytes missing: %1</source>
        <translation>Cabecera incompleta, bytes que faltan: %1</translation>
    </message>
    <message>
        <source>Ignored at the end, bytes that are no whole sample: %1</source>
        <translation>Ignorados al final, bytes que no forman una muestra completa: %1</translation>
    </message>
    <message>
        <source>Samples that could not be read: %1</source>
        <translation>Muestras que no se pudieron leer: %1</translation>
    </message>
    <message>
        <source>Samples with an impossible time: %1, the first is number %2</source>
        <translation>Muestras con un tiempo imposible: %1, la primera es la número %2</translation>
    </message>
    <message>
        <source>Samples of channels other than 0 and 1: %1</source>
        <translation>Muestras de canales distintos de 0 y 1: %1</translation>
    </message>
    <message>
        <source>Gaps of more than 10 s: %1, the longest is %2 s from %3 on</source>
        <translation>Huecos de más de 10 s: %1, el más largo es de %2 s a partir de %3</translation>
    </message>
    <message>
        <source>The time offset could not be read: &quot;%1&quot; is damaged. Setting another offset keeps that file aside</source>
        <translation>No se pudo leer el desfase de tiempo: «%1» está dañado. Al fijar otro desfase, ese archivo se conserva aparte</translation>
    </message>
    <message>
        <source>Samples Read</source>
        <translation>Muestras leídas</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 y %2</translation>
    </message>
    <message>
        <source>Files that overlap in time: %1, the first are %2. Check that they belong together</source>
        <translation>Archivos que se solapan en el tiempo: %1, los primeros son %2. Compruebe que van juntos</translation>
    </message>
    <message>
        <source>Header dates from %1 to %2, but the samples last %3 s: the files are not of one flight</source>
        <translation>Fechas de cabecera de %1 a %2, pero las muestras abarcan %3 s: los archivos no son de un mismo vuelo</translation>
    </message>
</context>
<context>
    <name>RecordingFinder</name>
    <message>
        <source>Files named %1 were found, but they hold another flight.</source>
        <translation>Se encontraron archivos con el nombre %1, pero contienen otro vuelo.</translation>
    </message>
    <message>
        <source>The files %1 were not found.</source>
        <translation>No se encontraron los archivos %1.</translation>
    </message>
</context>
<context>
    <name>ReportCharts</name>
    <message>
        <source>peak %1 at %2, threshold %3</source>
        <translation>pico %1 a las %2, umbral %3</translation>
    </message>
    <message>
        <source>The other parameters of %1 meanwhile</source>
        <translation>Los demás parámetros de %1 mientras tanto</translation>
    </message>
    <message>
        <source>The worst, in two minutes each</source>
        <translation>Lo peor, dos minutos cada uno</translation>
    </message>
    <message>
        <source>The whole flight</source>
        <translation>El vuelo completo</translation>
    </message>
    <message>
        <source>No parameter is selected.</source>
        <translation>No hay ningún parámetro seleccionado.</translation>
    </message>
    <message>
        <source>%1 to %2 on the recording&apos;s clock</source>
        <translation>%1 a %2 en el reloj de la grabación</translation>
    </message>
    <message>
        <source>The reported range</source>
        <translation>El rango del informe</translation>
    </message>
    <message>
        <source>%1 to %2 on the recording&apos;s clock; dashed: the reference</source>
        <translation>%1 a %2 en el reloj de la grabación; línea discontinua: la referencia</translation>
    </message>
</context>
<context>
    <name>ReportComparison</name>
    <message>
        <source>Reference: %1, shifted by %2 s. Compared from %3 to %4, while both flights are steady.</source>
        <translation>Referencia: %1, desplazada %2 s. Comparados de %3 a %4, mientras ambos vuelos están estabilizados.</translation>
    </message>
    <message>
        <source>Reference: %1, shifted by %2 s. Compared from %3 to %4: there is no common steady part.</source>
        <translation>Referencia: %1, desplazada %2 s. Comparados de %3 a %4: no hay ningún tramo estabilizado común.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <source>Time mean, flight</source>
        <translation>Media temporal, vuelo</translation>
    </message>
    <message>
        <source>Time mean, reference</source>
        <translation>Media temporal, referencia</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Standard deviations</source>
        <translation>Desviaciones estándar</translation>
    </message>
    <message>
        <source>What changed most, in standard deviations of the reference</source>
        <translation>Lo que más ha cambiado, en desviaciones estándar de la referencia</translation>
    </message>
    <message>
        <source>Compared with the reference</source>
        <translation>Comparación con la referencia</translation>
    </message>
    <message>
        <source>Reference: %1. It has no time in common with this range.</source>
        <translation>Referencia: %1. No tiene tiempo en común con este rango.</translation>
    </message>
    <message>
        <source>No parameter has values in both flights there.</source>
        <translation>Ningún parámetro tiene ahí valores en ambos vuelos.</translation>
    </message>
    <message>
        <source>None of %1 parameters has changed.</source>
        <translation>Ninguno de %1 parámetros ha cambiado.</translation>
    </message>
</context>
<context>
    <name>ReportHead</name>
    <message>
        <source>not recorded</source>
        <translation>no registrada</translation>
    </message>
    <message>
        <source>From, on the recording&apos;s clock</source>
        <translation>Desde, en el reloj de la grabación</translation>
    </message>
    <message>
        <source>Until, on the recording&apos;s clock</source>
        <translation>Hasta, en el reloj de la grabación</translation>
    </message>
    <message>
        <source>From, in UTC</source>
        <translation>Desde, en UTC</translation>
    </message>
    <message>
        <source>Time offset</source>
        <translation>Desfase de tiempo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Muestras</translation>
    </message>
    <message>
        <source>ECU Serial Number</source>
        <translation>N.º de serie de la ECU</translation>
    </message>
    <message>
        <source>Engine Serial Nr.</source>
        <translation>N.º de serie del motor</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Informe de vuelo</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>How pages name the language of these texts: &quot;de&quot; for German.</extracomment>
        <translation>es</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>Profile&apos;s SHA-256</source>
        <translation>SHA-256 del perfil</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>No recording was read.</source>
        <translation>No se leyó ninguna grabación.</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Qué ha pasado</translation>
    </message>
    <message>
        <source>The recording holds no samples, so nothing was checked.</source>
        <translation>La grabación no contiene ninguna muestra; no se ha comprobado nada.</translation>
    </message>
    <message>
        <source>Remarks on the recording</source>
        <translation>Observaciones sobre la grabación</translation>
    </message>
</context>
<context>
    <name>ReportLists</name>
    <message>
        <source>From</source>
        <translation>Desde</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Luz</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravedad</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Valor extremo</translation>
    </message>
    <message>
        <source>Peak at</source>
        <translation>Pico a las</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Umbral</translation>
    </message>
    <message>
        <source>The %1 worst of %2; &quot;orna-cli events --episodes&quot; lists all.</source>
        <translation>Los %1 peores de %2; «orna-cli events --episodes» los enumera todos.</translation>
    </message>
    <message>
        <source>Out of range</source>
        <translation>Fuera de rango</translation>
    </message>
    <message>
        <source>Without an event: from the first sample on, after a gap, or of a kind that is not watched</source>
        <translation>Sin evento: desde la primera muestra, tras un hueco, o de un tipo que no se vigila</translation>
    </message>
    <message>
        <source>Warning lamps</source>
        <translation>Luces de aviso</translation>
    </message>
    <message>
        <source>On again without an event</source>
        <translation>Encendida de nuevo sin evento</translation>
    </message>
    <message>
        <source>Error matrices</source>
        <translation>Matrices de fallos</translation>
    </message>
    <message>
        <source>None in this range; in the rest of the flight: %1.</source>
        <translation>Ninguno en este rango; en el resto del vuelo: %1.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Nothing out of range in %1 samples of %2 watched parameters.</source>
        <translation>Nada fuera de rango en %1 muestras de %2 parámetros vigilados.</translation>
    </message>
</context>
<context>
    <name>ReportNumbers</name>
    <message>
        <source>adds up to %1</source>
        <translation>suma %1</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>No parameter is selected.</source>
        <translation>No hay ningún parámetro seleccionado.</translation>
    </message>
    <message>
        <source>at</source>
        <translation>a las</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Muestras</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Mín</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Máx</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Std. Dev.</source>
        <translation>Desv. est.</translation>
    </message>
    <message>
        <source>Time Mean</source>
        <translation>Media temporal</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Huecos</translation>
    </message>
    <message>
        <source>Besides</source>
        <translation>Además</translation>
    </message>
</context>
<context>
    <name>ReportTrack</name>
    <message>
        <source>Where it happened</source>
        <translation>Dónde ocurrió</translation>
    </message>
    <message>
        <source>The path of the flight from above, %1 to %2</source>
        <translation>La trayectoria del vuelo desde arriba, de %1 a %2</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>Save Snapshot</source>
        <translation>Guardar captura</translation>
    </message>
    <message>
        <source>BMP File (*.bmp);;PNG File (*.png);;SVG File (*.svg);;All Files (*.*)</source>
        <translation>Archivo BMP (*.bmp);;Archivo PNG (*.png);;Archivo SVG (*.svg);;Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>The snapshot could not be saved as
%1
Choose a folder that can be written, with enough free space, and a name that ends in .bmp, .png, .svg or .jpg.</source>
        <translation>La imagen no se pudo guardar como
%1
Elija una carpeta en la que se pueda escribir, con espacio libre suficiente, y un nombre que termine en .bmp, .png, .svg o .jpg.</translation>
    </message>
</context>
<context>
    <name>SqlConnection</name>
    <message>
        <source>there is no logbook &quot;%1&quot;</source>
        <translation>no existe el libro de vuelos «%1»</translation>
    </message>
    <message>
        <source>the database driver %1 is not installed (package %2)</source>
        <translation>el controlador de base de datos %1 no está instalado (paquete %2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no logbook: it is no database</source>
        <translation>«%1» no es un libro de vuelos: no es una base de datos</translation>
    </message>
    <message>
        <source>the logbook &quot;%1&quot; is damaged</source>
        <translation>el libro de vuelos «%1» está dañado</translation>
    </message>
    <message>
        <source>logbook %1: %2</source>
        <translation>libro de vuelos %1: %2</translation>
    </message>
</context>
<context>
    <name>StartMessages</name>
    <message>
        <source>HOME is not set: settings are kept in &quot;%1&quot;.</source>
        <translation>HOME no está definida: los ajustes se guardan en «%1».</translation>
    </message>
    <message>
        <source>The settings could not be read, the program starts with its defaults. The damaged file is kept as &quot;%1&quot;.</source>
        <translation>No se pudieron leer los ajustes; el programa arranca con los valores predeterminados. El archivo dañado se conserva como «%1».</translation>
    </message>
    <message>
        <source>Samples loaded: %1</source>
        <translation>Muestras cargadas: %1</translation>
    </message>
    <message>
        <source>. Remarks: %1 (see Recording Details). </source>
        <translation>. Observaciones: %1 (véase Detalles de la grabación). </translation>
    </message>
    <message>
        <source>Reference: </source>
        <translation>Referencia: </translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Creating Dialogs ...</source>
        <translation>Creando ventanas ...</translation>
    </message>
</context>
<context>
    <name>TARN::ActivityBar</name>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>, %1 s left</source>
        <translation>, quedan %1 s</translation>
    </message>
</context>
<context>
    <name>TARN::CommandSet</name>
    <message>
        <source>&amp;New Project</source>
        <translation>&amp;Nuevo proyecto</translation>
    </message>
    <message>
        <source>Create new Project</source>
        <translation>Crear un proyecto nuevo</translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation>&amp;Abrir proyecto</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>Open Project File</source>
        <translation>Abrir archivo de proyecto</translation>
    </message>
    <message>
        <source>&amp;Save Project</source>
        <translation>&amp;Guardar proyecto</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Guardar proyecto</translation>
    </message>
    <message>
        <source>Save Project File</source>
        <translation>Guardar archivo de proyecto</translation>
    </message>
    <message>
        <source>&amp;Save Project as</source>
        <translation>Guardar proyecto &amp;como</translation>
    </message>
    <message>
        <source>Save Project as</source>
        <translation>Guardar proyecto como</translation>
    </message>
    <message>
        <source>Save Project File as</source>
        <translation>Guardar archivo de proyecto como</translation>
    </message>
    <message>
        <source>&amp;Open Card</source>
        <translation>Abrir &amp;tarjeta</translation>
    </message>
    <message>
        <source>Open Card</source>
        <translation>Abrir tarjeta</translation>
    </message>
    <message>
        <source>Open SD Card</source>
        <translation>Abrir tarjeta SD</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Open Preferences Dialog</source>
        <translation>Abrir la ventana de preferencias</translation>
    </message>
    <message>
        <source>Recording Details</source>
        <translation>Detalles de la grabación</translation>
    </message>
    <message>
        <source>Show the Header and the Damages of the Recording</source>
        <translation>Mostrar la cabecera y los daños de la grabación</translation>
    </message>
    <message>
        <source>Export Google KML File</source>
        <translation>Exportar archivo KML de Google</translation>
    </message>
    <message>
        <source>Export Google Earth KML File</source>
        <translation>Exportar archivo KML de Google Earth</translation>
    </message>
    <message>
        <source>Export CSV/CAN File</source>
        <translation>Exportar archivo CSV/CAN</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Quit Application</source>
        <translation>Salir de la aplicación</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Show License Information</source>
        <translation>Mostrar información de licencia</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Help Window</source>
        <translation>Ventana de ayuda</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Extras</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <translation>Barra principal</translation>
    </message>
    <message>
        <source>Flight &amp;Report...</source>
        <translation>&amp;Informe de vuelo...</translation>
    </message>
    <message>
        <source>Write What Happened on a Few Pages</source>
        <translation>Escribir lo que pasó en pocas páginas</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Informe de vuelo</translation>
    </message>
    <message>
        <source>&amp;Logbook...</source>
        <translation>&amp;Libro de vuelos...</translation>
    </message>
    <message>
        <source>Show the Flights That Were Kept, and What Changes from One to the Next</source>
        <translation>Mostrar los vuelos guardados y lo que cambia de uno al siguiente</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Libro de vuelos</translation>
    </message>
    <message>
        <source>Export GPX File</source>
        <translation>Exportar archivo GPX</translation>
    </message>
    <message>
        <source>Export the Track as GPX File</source>
        <translation>Exportar la trayectoria como archivo GPX</translation>
    </message>
</context>
<context>
    <name>TARN::DialogCard</name>
    <message>
        <source>No card opened</source>
        <translation>Ninguna tarjeta abierta</translation>
    </message>
    <message>
        <source>Folder of the recordings</source>
        <translation>Carpeta de las grabaciones</translation>
    </message>
    <message>
        <source>Card folder</source>
        <translation>Carpeta de la tarjeta</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Grabaciones</translation>
    </message>
    <message>
        <source>Start Time: </source>
        <translation>Inicio: </translation>
    </message>
    <message>
        <source>Stop Time: </source>
        <translation>Fin: </translation>
    </message>
    <message>
        <source>Recording Details</source>
        <translation>Detalles de la grabación</translation>
    </message>
    <message>
        <source>Header of the recording and what could be read of it</source>
        <translation>Cabecera de la grabación y lo que se pudo leer de ella</translation>
    </message>
    <message>
        <source>No recordings here.
Open a card (Ctrl+C) or drop its folder on the window.</source>
        <translation>No hay grabaciones aquí.
Abra una tarjeta (Ctrl+C) o suelte su carpeta en la ventana.</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Grabación</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Lo peor</translation>
    </message>
    <message>
        <source>Exceeded</source>
        <translation>Superados</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Muestras</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Observaciones</translation>
    </message>
    <message>
        <source>%1 recordings</source>
        <translation>%1 grabaciones</translation>
    </message>
    <message>
        <source>Click to load these recordings together:</source>
        <translation>Clic para cargar juntas estas grabaciones:</translation>
    </message>
    <message>
        <source>Not looked into: it can&apos;t be read, or is too large to be read in passing. Load it to see.</source>
        <translation>No examinada: no se puede leer o es demasiado grande para leerla de paso. Cárguela para verla.</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Límite</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguna</translation>
    </message>
    <message>
        <source>At the limit: %1
In warning: %2
Lamps: %3
Faults and warnings: %4
Watched parameters: %5</source>
        <translation>En el límite: %1
En aviso: %2
Luces: %3
Fallos y avisos: %4
Parámetros vigilados: %5</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso de ORNA</translation>
    </message>
    <message>
        <source>These recordings are of %1 flights.</source>
        <translation>Estas grabaciones son de %1 vuelos.</translation>
    </message>
    <message>
        <source>Laid over each other, values of one flight stand between those of another.</source>
        <translation>Superpuestas, los valores de un vuelo quedan entre los de otro.</translation>
    </message>
    <message>
        <source>Load the First</source>
        <translation>Cargar el primero</translation>
    </message>
    <message>
        <source>Lay over Each Other</source>
        <translation>Superponer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Fallo</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Luz</translation>
    </message>
    <message>
        <source>Load as &amp;Reference</source>
        <translation>Cargar como &amp;referencia</translation>
    </message>
    <message>
        <source>Compares the flight that is open with this one</source>
        <translation>Compara el vuelo abierto con este</translation>
    </message>
</context>
<context>
    <name>TARN::DialogData</name>
    <message>
        <source>Data</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>Limit/Warning Exceed</source>
        <translation>Límites/avisos superados</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Gráfica</translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation>Luces de aviso</translation>
    </message>
    <message>
        <source>Fault Matrix</source>
        <translation>Matriz de fallos</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Trayectoria</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataErrorMatrix</name>
    <message>
        <source>The profile describes no error matrix.</source>
        <translation>El perfil no describe ninguna matriz de fallos.</translation>
    </message>
    <message>
        <source>Error matrices</source>
        <translation>Matrices de fallos</translation>
    </message>
    <message>
        <source>Active Errors</source>
        <translation>Errores activos</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataGraph</name>
    <message>
        <source>The graph cannot be drawn: this display offers no OpenGL.
All other views work; a graphics driver with OpenGL 2.1, or Mesa&apos;s software one, brings the graph.</source>
        <translation>No se puede dibujar la gráfica: esta pantalla no ofrece OpenGL.
Las demás vistas funcionan; la gráfica requiere un controlador gráfico con OpenGL 2.1, o el de software de Mesa.</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>&amp;Guardar imagen...</translation>
    </message>
    <message>
        <source>Co&amp;py Picture</source>
        <translation>Co&amp;piar imagen</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataLimit</name>
    <message>
        <source>Warning/Limit Exceed</source>
        <translation>Avisos/límites superados</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataTable</name>
    <message>
        <source>Values of the selected parameters</source>
        <translation>Valores de los parámetros seleccionados</translation>
    </message>
    <message>
        <source>The recording holds no sample of the selected parameters.</source>
        <translation>La grabación no contiene ninguna muestra de los parámetros seleccionados.</translation>
    </message>
    <message>
        <source>There is not enough memory for this table; load fewer recordings.</source>
        <translation>No hay memoria suficiente para esta tabla; cargue menos grabaciones.</translation>
    </message>
    <message>
        <source>The table is being filled.</source>
        <translation>La tabla se está llenando.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataTrack</name>
    <message>
        <source>Show all (Home)</source>
        <translation>Mostrar todo (Inicio)</translation>
    </message>
    <message>
        <source>Zoom in (+)</source>
        <translation>Acercar (+)</translation>
    </message>
    <message>
        <source>Zoom out (-)</source>
        <translation>Alejar (-)</translation>
    </message>
    <message>
        <source>C&amp;olored by:</source>
        <translation>C&amp;olor según:</translation>
    </message>
    <message>
        <source>Hei&amp;ght over:</source>
        <translation>Al&amp;tura sobre:</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distancia</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>State of all parameters</source>
        <translation>Estado de todos los parámetros</translation>
    </message>
    <message>
        <source>There is not enough memory for the path.</source>
        <translation>No hay memoria suficiente para la trayectoria.</translation>
    </message>
    <message>
        <source>The path is being found.</source>
        <translation>Se está determinando la trayectoria.</translation>
    </message>
    <message>
        <source>All positions of the recording are 0/0, %1 of them: the receiver did not know where it was.</source>
        <translation>Todas las posiciones de la grabación son 0/0, %1 en total: el receptor no sabía dónde estaba.</translation>
    </message>
    <message>
        <source>The recording holds no position: no latitude with a longitude.</source>
        <translation>La grabación no contiene ninguna posición: ninguna latitud con una longitud.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataWarning</name>
    <message>
        <source>Warning Lamps</source>
        <translation>Luces de aviso</translation>
    </message>
</context>
<context>
    <name>TARN::DialogEventList</name>
    <message>
        <source>Go to the &amp;Start</source>
        <translation>Ir al &amp;inicio</translation>
    </message>
    <message>
        <source>Go to the &amp;Peak</source>
        <translation>Ir al &amp;pico</translation>
    </message>
    <message>
        <source>Show in the &amp;Graph</source>
        <translation>Mostrar en el &amp;gráfico</translation>
    </message>
    <message>
        <source>&amp;Copy All with Headers</source>
        <translation>&amp;Copiar todo con encabezados</translation>
    </message>
    <message>
        <source>Nothing in the list fits the filter.</source>
        <translation>Nada en la lista coincide con el filtro.</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtrar</translation>
    </message>
    <message>
        <source>There is not enough memory to look for what happened.</source>
        <translation>No hay memoria suficiente para buscar lo que pasó.</translation>
    </message>
    <message>
        <source>What happened is being looked for.</source>
        <translation>Se está buscando lo que pasó.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsv</name>
    <message>
        <source>CSV Export</source>
        <translation>Exportación CSV</translation>
    </message>
    <message>
        <source>ORNA Viewer Warning</source>
        <translation>Aviso de ORNA Viewer</translation>
    </message>
    <message>
        <source>Exporting CSV/CAN file failed !</source>
        <translation>¡Error al exportar el archivo CSV/CAN!</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsvOptions</name>
    <message>
        <source>CSV/CAN Export</source>
        <translation>Exportación CSV/CAN</translation>
    </message>
    <message>
        <source>Select CSV/CAN Option</source>
        <translation>Elija las opciones CSV/CAN</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Separador</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Parameter Selection</source>
        <translation>Selección de parámetros</translation>
    </message>
    <message>
        <source>Semikolon ;</source>
        <translation>Punto y coma ;</translation>
    </message>
    <message>
        <source>Comma ,</source>
        <translation>Coma ,</translation>
    </message>
    <message>
        <source>Tabstop</source>
        <translation>Tabulador</translation>
    </message>
    <message>
        <source>Stands between two columns</source>
        <translation>Va entre dos columnas</translation>
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
        <translation>Tiempo entre una fila y la siguiente</translation>
    </message>
    <message>
        <source>All Parameter</source>
        <translation>Todos los parámetros</translation>
    </message>
    <message>
        <source>Selected Parameter only</source>
        <translation>Solo los seleccionados</translation>
    </message>
    <message>
        <source>Columns of the table</source>
        <translation>Columnas de la tabla</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsvPath</name>
    <message>
        <source>Save CSV/CAN Export</source>
        <translation>Guardar exportación CSV/CAN</translation>
    </message>
    <message>
        <source>CSV/CAN Export</source>
        <translation>Exportación CSV/CAN</translation>
    </message>
    <message>
        <source>Select the output directory and file</source>
        <translation>Elija la carpeta y el archivo de destino</translation>
    </message>
    <message>
        <source>.CSV Export</source>
        <translation>Exportación .CSV</translation>
    </message>
    <message>
        <source>.CAN Export</source>
        <translation>Exportación .CAN</translation>
    </message>
    <message>
        <source>A table of decoded values, or a recording that can be opened again</source>
        <translation>Una tabla de valores decodificados o una grabación que se puede volver a abrir</translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation>Nombre del archivo en esta carpeta</translation>
    </message>
    <message>
        <source>Export Path</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Export Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Export Filename</source>
        <translation>Nombre de archivo</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportGpx</name>
    <message>
        <source>GPX Export</source>
        <translation>Exportación GPX</translation>
    </message>
    <message>
        <source>Save GPX Export</source>
        <translation>Guardar exportación GPX</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso de ORNA</translation>
    </message>
    <message>
        <source>Exporting GPX file failed !</source>
        <translation>¡Error al exportar el archivo GPX!</translation>
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
        <translation>Un punto de la trayectoria por cada intervalo</translation>
    </message>
    <message>
        <source>Waypoints at limits and lamps</source>
        <translation>Puntos de paso en límites y luces</translation>
    </message>
    <message>
        <source>GPX Export</source>
        <translation>Exportación GPX</translation>
    </message>
    <message>
        <source>Select GPX Option</source>
        <translation>Elija las opciones GPX</translation>
    </message>
    <message>
        <source>Where limits were exceeded and warning lamps came on</source>
        <translation>Donde se superaron límites y se encendieron luces de aviso</translation>
    </message>
    <message>
        <source>Timestamp every :</source>
        <translation>Marca de tiempo cada :</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKml</name>
    <message>
        <source>Google Earth KML Export</source>
        <translation>Exportación KML de Google Earth</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso de ORNA</translation>
    </message>
    <message>
        <source>Exporting KML file failed !</source>
        <translation>¡Error al exportar el archivo KML!</translation>
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
        <translation>Intervalo entre puntos de la trayectoria</translation>
    </message>
    <message>
        <source>KML Export</source>
        <translation>Exportación KML</translation>
    </message>
    <message>
        <source>Select KML Option</source>
        <translation>Elija las opciones KML</translation>
    </message>
    <message>
        <source>Timestamp every :</source>
        <translation>Marca de tiempo cada :</translation>
    </message>
    <message>
        <source>Width of the flight path</source>
        <translation>Ancho de la trayectoria de vuelo</translation>
    </message>
    <message>
        <source>Select Line Color</source>
        <translation>Elegir color de línea</translation>
    </message>
    <message>
        <source>Line Style</source>
        <translation>Estilo de línea</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Ancho de línea</translation>
    </message>
    <message>
        <source>Line color</source>
        <translation>Color de línea</translation>
    </message>
    <message>
        <source>Select Polygon Color</source>
        <translation>Elegir color de polígono</translation>
    </message>
    <message>
        <source>Draw Polygon</source>
        <translation>Dibujar polígono</translation>
    </message>
    <message>
        <source>A curtain from the flight path to the ground</source>
        <translation>Una cortina desde la trayectoria de vuelo hasta el suelo</translation>
    </message>
    <message>
        <source>Polygon color</source>
        <translation>Color de polígono</translation>
    </message>
    <message>
        <source>Timed track</source>
        <translation>Trayectoria con tiempos</translation>
    </message>
    <message>
        <source>Times and the selected values at each point, so that earth viewers can play the flight; nothing is drawn over gaps</source>
        <translation>Tiempos y valores seleccionados en cada punto, para que los visores terrestres puedan reproducir el vuelo; no se dibuja nada sobre los huecos</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKmlPath</name>
    <message>
        <source>Save KML Export</source>
        <translation>Guardar exportación KML</translation>
    </message>
    <message>
        <source>KML Export</source>
        <translation>Exportación KML</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKmlPlacemark</name>
    <message>
        <source>KML Export</source>
        <translation>Exportación KML</translation>
    </message>
    <message>
        <source>Select KML Placemarks</source>
        <translation>Elija las marcas de posición KML</translation>
    </message>
    <message>
        <source> samples</source>
        <translation> puntos</translation>
    </message>
    <message>
        <source>Points of the path from mark to mark</source>
        <translation>Puntos de la trayectoria entre una marca y la siguiente</translation>
    </message>
    <message>
        <source>Select Placemark Color</source>
        <translation>Elegir color de marca</translation>
    </message>
    <message>
        <source>Draw selected parameters as placemarks</source>
        <translation>Parámetros seleccionados como marcas de posición</translation>
    </message>
    <message>
        <source>Placemark every</source>
        <translation>Marca de posición cada</translation>
    </message>
    <message>
        <source>Placemark Color</source>
        <translation>Color de marca</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Select Exceedance Color</source>
        <translation>Elegir color de superación</translation>
    </message>
    <message>
        <source>Show Limit exceedance / Warning Lamps</source>
        <translation>Mostrar superación de límites / luces de aviso</translation>
    </message>
    <message>
        <source>Limit Exceedance</source>
        <translation>Superación de límites</translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation>Luces de aviso</translation>
    </message>
    <message>
        <source>Exceedance Placemark Color</source>
        <translation>Color de marca de superación</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportPath</name>
    <message>
        <source>Select the output directory and file</source>
        <translation>Elija la carpeta y el archivo de destino</translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation>Nombre del archivo en esta carpeta</translation>
    </message>
    <message>
        <source>Export Path</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>Export Filename</source>
        <translation>Nombre de archivo</translation>
    </message>
</context>
<context>
    <name>TARN::DialogGraphSetup</name>
    <message>
        <source>Background color</source>
        <translation>Color de fondo</translation>
    </message>
    <message>
        <source>Grid On</source>
        <translation>Ver rejilla</translation>
    </message>
    <message>
        <source>Grid color</source>
        <translation>Color de rejilla</translation>
    </message>
    <message>
        <source>Label color</source>
        <translation>Color de etiquetas</translation>
    </message>
    <message>
        <source>Label background</source>
        <translation>Fondo de etiquetas</translation>
    </message>
    <message>
        <source>Cursor On</source>
        <translation>Ver cursor</translation>
    </message>
    <message>
        <source>Legend On</source>
        <translation>Ver leyenda</translation>
    </message>
    <message>
        <source>Autoscale On</source>
        <translation>Autoescala</translation>
    </message>
    <message>
        <source>Y minimum</source>
        <translation>Mínimo de Y</translation>
    </message>
    <message>
        <source>Y maximum</source>
        <translation>Máximo de Y</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Oscilloscope Setup</source>
        <translation>Ajustes del osciloscopio</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Elegir</translation>
    </message>
    <message>
        <source>%1, used while autoscale is off</source>
        <translation>%1, con la autoescala desactivada</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>Flotante</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Final</translation>
    </message>
    <message>
        <source>Cursor mode</source>
        <translation>Modo del cursor</translation>
    </message>
    <message>
        <source>Background Color :</source>
        <translation>Color de fondo :</translation>
    </message>
    <message>
        <source>Grid On/Color :</source>
        <translation>Rejilla/color :</translation>
    </message>
    <message>
        <source>Label Color :</source>
        <translation>Color de etiquetas :</translation>
    </message>
    <message>
        <source>Label Background :</source>
        <translation>Fondo de etiquetas :</translation>
    </message>
    <message>
        <source>Cursor On/Mode :</source>
        <translation>Cursor/modo :</translation>
    </message>
    <message>
        <source>Legend :</source>
        <translation>Leyenda :</translation>
    </message>
    <message>
        <source>Y-Scale :</source>
        <translation>Escala Y :</translation>
    </message>
    <message>
        <source>Colors of the plot</source>
        <translation>Colores del gráfico</translation>
    </message>
    <message>
        <source>Colors of pictures</source>
        <translation>Colores de las imágenes</translation>
    </message>
    <message>
        <source>Colors/Of Pictures :</source>
        <translation>Colores/de imágenes :</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>As the graph</source>
        <translation>Como el gráfico</translation>
    </message>
    <message>
        <source>Thresholds :</source>
        <translation>Umbrales :</translation>
    </message>
    <message>
        <source>Thresholds On</source>
        <translation>Umbrales activados</translation>
    </message>
    <message>
        <source>Lines and bands at the values where a range begins; a name stands on the color of the range that its value is in</source>
        <translation>Líneas y bandas en los valores donde empieza un rango; un nombre aparece sobre el color del rango en que está su valor</translation>
    </message>
    <message>
        <source>Events :</source>
        <translation>Eventos :</translation>
    </message>
    <message>
        <source>Events On</source>
        <translation>Eventos activados</translation>
    </message>
    <message>
        <source>Ticks over the plot for limits, lamps and faults, bars for as long as a limit was exceeded</source>
        <translation>Marcas sobre el gráfico para límites, luces y fallos; barras mientras se superó un límite</translation>
    </message>
    <message>
        <source>Error Lanes :</source>
        <translation>Bandas de errores :</translation>
    </message>
    <message>
        <source>Error Lanes On</source>
        <translation>Bandas de errores activadas</translation>
    </message>
    <message>
        <source>The active errors of each error matrix below the curves</source>
        <translation>Los errores activos de cada matriz de fallos bajo las curvas</translation>
    </message>
    <message>
        <source>States :</source>
        <translation>Estados :</translation>
    </message>
    <message>
        <source>States in Words</source>
        <translation>Estados en palabras</translation>
    </message>
    <message>
        <source>Names of states beside their numbers</source>
        <translation>Nombres de los estados junto a sus números</translation>
    </message>
</context>
<context>
    <name>TARN::DialogLogbook</name>
    <message>
        <source>Stop adding; what was added stays</source>
        <translation>Dejar de añadir; lo añadido se conserva</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Libro de vuelos</translation>
    </message>
    <message>
        <source>Reading the logbook...</source>
        <translation>Leyendo el libro de vuelos...</translation>
    </message>
    <message>
        <source>Add every flight that you open to this logbook? Only statistics and events are kept. You can change that under Extras, Preferences.</source>
        <translation>¿Añadir a este libro de vuelos cada vuelo que abra? Solo se guardan estadísticas y eventos. Puede cambiarlo en Extras, Preferencias.</translation>
    </message>
    <message>
        <source>&amp;Yes, Add Them</source>
        <translation>&amp;Sí, añadirlos</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>&amp;Add Folder...</source>
        <translation>&amp;Añadir carpeta...</translation>
    </message>
    <message>
        <source>Add the flights of a folder and of all folders in it</source>
        <translation>Añadir los vuelos de una carpeta y de todas las carpetas que contiene</translation>
    </message>
    <message>
        <source>&amp;Maintenance...</source>
        <translation>&amp;Mantenimiento...</translation>
    </message>
    <message>
        <source>Note that something was done to the engine: trends begin anew</source>
        <translation>Anotar que se hizo algo en el motor: las tendencias empiezan de nuevo</translation>
    </message>
    <message>
        <source>Every flight that you open is added from now on.</source>
        <translation>A partir de ahora se añade cada vuelo que abra.</translation>
    </message>
    <message>
        <source>The logbook is empty.
&lt;a href=&quot;add&quot;&gt;Add a folder&lt;/a&gt; of recordings; the folders in it are looked through too.</source>
        <translation>El libro de vuelos está vacío.
&lt;a href=&quot;add&quot;&gt;Añada una carpeta&lt;/a&gt; de grabaciones; también se examinan las carpetas que contiene.</translation>
    </message>
    <message>
        <source>There is no profile by which recordings could be understood. Choose one under Extras, Preferences.</source>
        <translation>No hay ningún perfil con el que decodificar las grabaciones. Elija uno en Extras, Preferencias.</translation>
    </message>
    <message>
        <source>Add a Folder to the Logbook</source>
        <translation>Añadir una carpeta al libro de vuelos</translation>
    </message>
    <message>
        <source>Adding</source>
        <translation>Añadiendo</translation>
    </message>
    <message>
        <source>Choose a flight of the engine first.</source>
        <translation>Elija primero un vuelo del motor.</translation>
    </message>
    <message>
        <source>Remove the flight of %1 from the logbook?</source>
        <translation>¿Quitar del libro de vuelos el vuelo del %1?</translation>
    </message>
    <message>
        <source>Its recordings stay where they are and can be added again.</source>
        <translation>Sus grabaciones se quedan donde están y se pueden volver a añadir.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Looking for its recordings...</source>
        <translation>Buscando sus grabaciones...</translation>
    </message>
    <message>
        <source>Opened: %1</source>
        <translation>Abierto: %1</translation>
    </message>
    <message>
        <source>Where are the recordings of the flight of %1? The folders in the one that you choose are looked through too.</source>
        <translation>¿Dónde están las grabaciones del vuelo del %1? También se examinan las carpetas que contiene la que elija.</translation>
    </message>
    <message>
        <source>Choose Folder...</source>
        <translation>Elegir carpeta...</translation>
    </message>
    <message>
        <source>Find Recordings</source>
        <translation>Buscar grabaciones</translation>
    </message>
    <message>
        <source>F5 tries it again; Extras, Preferences tells which logbook it is.</source>
        <translation>F5 lo intenta de nuevo; en Extras, Preferencias se indica qué libro de vuelos es.</translation>
    </message>
    <message>
        <source>Flights are being added already. Wait for the end, or cancel it.</source>
        <translation>Ya se están añadiendo vuelos. Espere al final o cancélelo.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogMain</name>
    <message>
        <source>[edited]</source>
        <translation>[modificado]</translation>
    </message>
    <message>
        <source>Open SD Card</source>
        <translation>Abrir tarjeta SD</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso de ORNA</translation>
    </message>
    <message>
        <source>Recordings found: %1</source>
        <translation>Grabaciones encontradas: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; could not be loaded: no parameters can be shown. Choose another under Extras, Preferences.</source>
        <translation>No se pudo cargar el perfil «%1»: no se puede mostrar ningún parámetro. Elija otro en Extras, Preferencias.</translation>
    </message>
    <message>
        <source>No recording is listed. Open a card first.</source>
        <translation>No hay ninguna grabación en la lista. Abra primero una tarjeta.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a project nor a profile.</source>
        <translation>«%1» no es un proyecto ni un perfil.</translation>
    </message>
    <message>
        <source>The offset could not be saved on the card (is it write-protected?) and holds until the program ends.</source>
        <translation>No se pudo guardar el desfase en la tarjeta (¿está protegida contra escritura?); es válido hasta que se cierre el programa.</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Cargando</translation>
    </message>
    <message>
        <source>%1 samples/s</source>
        <translation>%1 muestras/s</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>La carga se ha cancelado.</translation>
    </message>
    <message>
        <source>Not loaded: %1</source>
        <translation>No se pudo cargar: %1</translation>
    </message>
    <message>
        <source>Exporting %1</source>
        <translation>Exportando %1</translation>
    </message>
    <message>
        <source>An export is running.
Wait until it is complete, or stop it? A stopped export leaves the old file.</source>
        <translation>Hay una exportación en curso.
¿Esperar a que termine o detenerla? Si se detiene, se conserva el archivo anterior.</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Esperar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Loading the reference</source>
        <translation>Cargando la referencia</translation>
    </message>
    <message>
        <source>Loading the reference was cancelled.</source>
        <translation>La carga de la referencia se ha cancelado.</translation>
    </message>
    <message>
        <source>No reference was loaded: %1</source>
        <translation>No se cargó ninguna referencia: %1</translation>
    </message>
</context>
<context>
    <name>TARN::DialogPreferences</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Pages of the preferences</source>
        <translation>Páginas de las preferencias</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Close; every change holds already</source>
        <translation>Cerrar; los cambios ya están aplicados</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose a profile file</source>
        <translation>Elegir un archivo de perfil</translation>
    </message>
    <message>
        <source>Profile File :</source>
        <translation>Archivo de perfil :</translation>
    </message>
    <message>
        <source>Language :</source>
        <translation>Idioma :</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Aplicación</translation>
    </message>
    <message>
        <source>The XML file that says how the samples are decoded</source>
        <translation>El archivo XML que indica cómo se decodifican las muestras</translation>
    </message>
    <message>
        <source>Profile file</source>
        <translation>Archivo de perfil</translation>
    </message>
    <message>
        <source>Language of the program from its next start on</source>
        <translation>Idioma del programa a partir del próximo inicio</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>ORNA Profile (*.xml);;All files (*.*)</source>
        <translation>Perfil ORNA (*.xml);;Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>TARN Info</source>
        <translation>Información de TARN</translation>
    </message>
    <message>
        <source>Please restart TARN to load new language !</source>
        <translation>¡Reinicie TARN para cargar el nuevo idioma!</translation>
    </message>
    <message>
        <source>All recorded digits</source>
        <translation>Todos los dígitos grabados</translation>
    </message>
    <message>
        <source>Numbers on the screen with all the digits that were recorded, instead of the fewest that read back as the same number; exports have them always</source>
        <translation>Números en pantalla con todos los dígitos grabados, en lugar de los mínimos que representan el mismo número; las exportaciones los incluyen siempre</translation>
    </message>
    <message>
        <source>Add every flight that I open</source>
        <translation>Añadir cada vuelo que abro</translation>
    </message>
    <message>
        <source>Logbook :</source>
        <translation>Libro de vuelos :</translation>
    </message>
    <message>
        <source>a file of the program&apos;s own</source>
        <translation>un archivo propio del programa</translation>
    </message>
    <message>
        <source>Where flights are kept: empty for this machine alone, &quot;postgresql://user@host/database&quot; for a team. A password is taken from PGPASSWORD or ~/.pgpass and never kept</source>
        <translation>Dónde se guardan los vuelos: vacío solo para este ordenador, «postgresql://usuario@equipo/base» para un grupo de trabajo. La contraseña se toma de PGPASSWORD o de ~/.pgpass y no se guarda nunca</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Libro de vuelos</translation>
    </message>
    <message>
        <source>Keeps statistics and events of every flight in the logbook, not its samples</source>
        <translation>Guarda en el libro de vuelos las estadísticas y los eventos de cada vuelo, no sus muestras</translation>
    </message>
</context>
<context>
    <name>TARN::DialogProfile</name>
    <message>
        <source>Clear</source>
        <translation>Limpiar</translation>
    </message>
    <message>
        <source>Confirm Selection</source>
        <translation>Confirmar selección</translation>
    </message>
    <message>
        <source>Selected Parameters</source>
        <translation>Parámetros seleccionados</translation>
    </message>
    <message>
        <source>Untick all parameters</source>
        <translation>Desmarcar todos los parámetros</translation>
    </message>
    <message>
        <source>Show the ticked parameters in all views</source>
        <translation>Mostrar los parámetros marcados en todas las vistas</translation>
    </message>
    <message>
        <source>Parameters of the profile</source>
        <translation>Parámetros del perfil</translation>
    </message>
    <message>
        <source>Not in this profile</source>
        <translation>No incluidos en este perfil</translation>
    </message>
    <message>
        <source>The project selects these too; they are kept in its file</source>
        <translation>El proyecto también selecciona estos; se conservan en su archivo</translation>
    </message>
</context>
<context>
    <name>TARN::DialogRecordDetails</name>
    <message>
        <source>Recording Details</source>
        <translation>Detalles de la grabación</translation>
    </message>
    <message>
        <source>Recording details</source>
        <translation>Detalles de la grabación</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the selected lines, or all when none is selected</source>
        <translation>Copiar las líneas seleccionadas, o todas si no hay ninguna seleccionada</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Cerrar esta ventana</translation>
    </message>
</context>
<context>
    <name>TARN::DialogReport</name>
    <message>
        <source>Folder of the Report</source>
        <translation>Carpeta del informe</translation>
    </message>
    <message>
        <source>&amp;Open it when it is written</source>
        <translation>&amp;Abrir al terminar</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Informe de vuelo</translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation>Nombre del archivo en esta carpeta</translation>
    </message>
    <message>
        <source>Web page (HTML)</source>
        <translation>Página web (HTML)</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Size of the paper that it is printed on</source>
        <translation>Tamaño del papel en que se imprime</translation>
    </message>
    <message>
        <source>A range is marked in the graph</source>
        <translation>Un rango se marca en el gráfico</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>&amp;Carpeta</translation>
    </message>
    <message>
        <source>File &amp;Name</source>
        <translation>&amp;Nombre del archivo</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Tipo</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>&amp;Papel</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>&amp;Rango</translation>
    </message>
    <message>
        <source>Write Report</source>
        <translation>Escribir informe</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Whole flight, %1 to %2</source>
        <translation>Vuelo completo, %1 a %2</translation>
    </message>
    <message>
        <source>Marked range, %1 to %2</source>
        <translation>Rango marcado, %1 a %2</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso de ORNA</translation>
    </message>
    <message>
        <source>The flight report could not be written.</source>
        <translation>No se pudo escribir el informe de vuelo.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogStatusBar</name>
    <message>
        <source>Stop loading (Escape)</source>
        <translation>Detener la carga (Esc)</translation>
    </message>
    <message>
        <source>Stop the export</source>
        <translation>Detener la exportación</translation>
    </message>
    <message>
        <source>Stop loading the reference (Escape)</source>
        <translation>Detener la carga de la referencia (Esc)</translation>
    </message>
</context>
<context>
    <name>TARN::DirectoryEdit</name>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Folder of the file</source>
        <translation>Carpeta del archivo</translation>
    </message>
</context>
<context>
    <name>TARN::EventFilter</name>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>Filtro (Ctrl+F)</translation>
    </message>
    <message>
        <source>Show only lines that hold this text</source>
        <translation>Mostrar solo las líneas que contienen este texto</translation>
    </message>
    <message>
        <source>Filter text</source>
        <translation>Texto del filtro</translation>
    </message>
    <message>
        <source>Show only lines of this severity</source>
        <translation>Mostrar solo las líneas de esta gravedad</translation>
    </message>
    <message>
        <source>Filter severity</source>
        <translation>Gravedad del filtro</translation>
    </message>
    <message>
        <source>Every severity</source>
        <translation>Toda gravedad</translation>
    </message>
</context>
<context>
    <name>TARN::EventModel</name>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Out of range without an event</source>
        <translation>Fuera de rango sin evento</translation>
    </message>
    <message>
        <source>at its limit</source>
        <translation>en el límite</translation>
    </message>
    <message>
        <source>in warning</source>
        <translation>en aviso</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Hasta</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Valor extremo</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Umbral</translation>
    </message>
    <message>
        <source>%1 on</source>
        <translation>%1 encendida</translation>
    </message>
    <message>
        <source>On without an event</source>
        <translation>Encendida sin evento</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravedad</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Referencia: %1</translation>
    </message>
</context>
<context>
    <name>TARN::ExportRunner</name>
    <message>
        <source>Written: %1</source>
        <translation>Escrito: %1</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>The export was stopped; the old file, if there was one, is unchanged.</source>
        <translation>La exportación se ha detenido; el archivo anterior, si lo había, no ha cambiado.</translation>
    </message>
</context>
<context>
    <name>TARN::FlightBar</name>
    <message>
        <source>What happened</source>
        <translation>Qué ha pasado</translation>
    </message>
    <message>
        <source>Click a part to go to the first of its kind</source>
        <translation>Clic en una parte para ir al primero de su tipo</translation>
    </message>
</context>
<context>
    <name>TARN::FlightList</name>
    <message>
        <source>Show the flights of this engine only</source>
        <translation>Mostrar solo los vuelos de este motor</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Motor</translation>
    </message>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>Filtro (Ctrl+F)</translation>
    </message>
    <message>
        <source>Show only flights that hold this text</source>
        <translation>Mostrar solo los vuelos que contienen este texto</translation>
    </message>
    <message>
        <source>Filter text</source>
        <translation>Texto del filtro</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vuelos</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Open as &amp;Reference</source>
        <translation>Abrir como &amp;referencia</translation>
    </message>
    <message>
        <source>&amp;Remove from the Logbook...</source>
        <translation>&amp;Quitar del libro de vuelos...</translation>
    </message>
    <message>
        <source>All engines (%1)</source>
        <translation>Todos los motores (%1)</translation>
    </message>
    <message>
        <source>No flight of %1 holds &quot;%2&quot;.</source>
        <translation>Ninguno de %1 vuelos contiene «%2».</translation>
    </message>
</context>
<context>
    <name>TARN::FlightListModel</name>
    <message>
        <source>without number</source>
        <translation>sin número</translation>
    </message>
    <message>
        <source>by the UTC in its data</source>
        <translation>según la UTC de sus datos</translation>
    </message>
    <message>
        <source>by its header, in whatever zone</source>
        <translation>según su cabecera, en una zona horaria desconocida</translation>
    </message>
    <message>
        <source>nothing tells when it was</source>
        <translation>nada indica cuándo fue</translation>
    </message>
    <message>
        <source>Flight %1, %2.
Engine %3 %4, profile %5.
Double-click: open it; with Shift: open it as the reference.</source>
        <translation>Vuelo %1, %2.
Motor %3 %4, perfil %5.
Doble clic: abrirlo; con Mayús: abrirlo como referencia.</translation>
    </message>
    <message>
        <source>Start (UTC)</source>
        <translation>Inicio (UTC)</translation>
    </message>
    <message>
        <source>When the flight began; slanted: by the header&apos;s clock, whose zone is not known</source>
        <translation>Cuándo empezó el vuelo; en cursiva: según el reloj de la cabecera, cuya zona horaria no se conoce</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>From the first sample to the last</source>
        <translation>De la primera muestra a la última</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Motor</translation>
    </message>
    <message>
        <source>Serial number of the engine</source>
        <translation>Número de serie del motor</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Lo peor</translation>
    </message>
    <message>
        <source>The worst that happened</source>
        <translation>Lo peor que pasó</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Límites</translation>
    </message>
    <message>
        <source>Times out of range that reached a limit</source>
        <translation>Veces fuera de rango en que se alcanzó un límite</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avisos</translation>
    </message>
    <message>
        <source>Times out of range that did not reach a limit</source>
        <translation>Veces fuera de rango en que no se alcanzó ningún límite</translation>
    </message>
    <message>
        <source>Lamps</source>
        <translation>Luces</translation>
    </message>
    <message>
        <source>Times that a warning lamp was on</source>
        <translation>Veces que estuvo encendida una luz de aviso</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Fallos</translation>
    </message>
    <message>
        <source>Warnings and faults that the matrices told of</source>
        <translation>Avisos y fallos que comunicaron las matrices</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Observaciones</translation>
    </message>
    <message>
        <source>What is to be said about the recordings themselves</source>
        <translation>Lo que hay que decir de las propias grabaciones</translation>
    </message>
</context>
<context>
    <name>TARN::FlightLoader</name>
    <message>
        <source>There is not enough memory for the recording; load fewer at once.</source>
        <translation>No hay memoria suficiente para la grabación; cargue menos a la vez.</translation>
    </message>
    <message>
        <source>There is not enough memory to show the recording; load fewer at once.</source>
        <translation>No hay memoria suficiente para mostrar la grabación; cargue menos a la vez.</translation>
    </message>
    <message>
        <source>Looking for events</source>
        <translation>Buscando eventos</translation>
    </message>
</context>
<context>
    <name>TARN::GraphButtons</name>
    <message>
        <source>Zoom In</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Zoom 1:1</source>
        <translation>Zoom 1:1</translation>
    </message>
    <message>
        <source>Zoom Marker</source>
        <translation>Zoom a marcadores</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar todo</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Vaciar todo</translation>
    </message>
    <message>
        <source>Automatic Mode</source>
        <translation>Modo automático</translation>
    </message>
    <message>
        <source>Split Mode</source>
        <translation>Modo dividido</translation>
    </message>
    <message>
        <source>Single Graph Mode</source>
        <translation>Modo de gráfica única</translation>
    </message>
    <message>
        <source>Reset all to default</source>
        <translation>Restablecer todo</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Measuring Panel</source>
        <translation>Panel de medición</translation>
    </message>
</context>
<context>
    <name>TARN::LogbookAccess</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>%1 of %2 flights</source>
        <translation>%1 de %2 vuelos</translation>
    </message>
    <message>
        <source>Trying again: %1</source>
        <translation>Nuevo intento: %1</translation>
    </message>
</context>
<context>
    <name>TARN::LogbookKeeper</name>
    <message>
        <source>Added to the logbook.</source>
        <translation>Añadido al libro de vuelos.</translation>
    </message>
    <message>
        <source>Not added to the logbook: %1</source>
        <translation>No se añadió al libro de vuelos: %1</translation>
    </message>
</context>
<context>
    <name>TARN::MeasureModel</name>
    <message>
        <source>Of them without a number: %1</source>
        <translation>De ellas sin número: %1</translation>
    </message>
    <message>
        <source>Steps of more than %1 s, together %2 s</source>
        <translation>Pasos de más de %1 s, en total %2 s</translation>
    </message>
    <message>
        <source>Sent only when something changes</source>
        <translation>Solo se envía cuando algo cambia</translation>
    </message>
    <message>
        <source>Click to go there</source>
        <translation>Clic para ir allí</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <source>Curves of the graph, in their order</source>
        <translation>Curvas del gráfico, en su orden</translation>
    </message>
    <message>
        <source>Value at A</source>
        <translation>Valor en A</translation>
    </message>
    <message>
        <source>Value at B</source>
        <translation>Valor en B</translation>
    </message>
    <message>
        <source>Difference of the values at A and B</source>
        <translation>Diferencia de los valores en A y B</translation>
    </message>
    <message>
        <source>per s</source>
        <translation>por s</translation>
    </message>
    <message>
        <source>Difference a second from A to B</source>
        <translation>Diferencia por segundo de A a B</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Mín</translation>
    </message>
    <message>
        <source>Smallest value from A to B</source>
        <translation>Valor mínimo de A a B</translation>
    </message>
    <message>
        <source>Min at</source>
        <translation>Mín a las</translation>
    </message>
    <message>
        <source>When it stands first, recording clock</source>
        <translation>Cuándo aparece por primera vez, reloj de la grabación</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Máx</translation>
    </message>
    <message>
        <source>Greatest value from A to B</source>
        <translation>Valor máximo de A a B</translation>
    </message>
    <message>
        <source>Max at</source>
        <translation>Máx a las</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>Mean of the values from A to B</source>
        <translation>Media de los valores de A a B</translation>
    </message>
    <message>
        <source>Time mean</source>
        <translation>Media temporal</translation>
    </message>
    <message>
        <source>Mean of the values, each weighed with the time that it holds</source>
        <translation>Media de los valores, cada uno ponderado con el tiempo que vale</translation>
    </message>
    <message>
        <source>Std. dev.</source>
        <translation>Desv. est.</translation>
    </message>
    <message>
        <source>Standard deviation of the values from A to B</source>
        <translation>Desviación estándar de los valores de A a B</translation>
    </message>
    <message>
        <source>Integral</source>
        <translation>Integral</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Muestras</translation>
    </message>
    <message>
        <source>Samples from A to B</source>
        <translation>Muestras de A a B</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Huecos</translation>
    </message>
    <message>
        <source>Stretches from A to B in which the parameter was not heard</source>
        <translation>Tramos de A a B en los que no se recibió el parámetro</translation>
    </message>
    <message>
        <source>Above thresholds</source>
        <translation>Sobre umbrales</translation>
    </message>
    <message>
        <source>For each threshold the seconds that the value was not below</source>
        <translation>Para cada umbral, los segundos en que el valor no estuvo por debajo</translation>
    </message>
    <message>
        <source>Area below the curve from A to B: of litres an hour the litres</source>
        <translation>Área bajo la curva de A a B: de litros por hora, los litros</translation>
    </message>
    <message>
        <source>Δ time mean</source>
        <translation>Δ media temporal</translation>
    </message>
    <message>
        <source>Flight minus reference: mean from A to B, each difference weighed with the time that it holds</source>
        <translation>Vuelo menos referencia: media de A a B, cada diferencia ponderada con el tiempo que vale</translation>
    </message>
    <message>
        <source>Δ A</source>
        <translation>Δ A</translation>
    </message>
    <message>
        <source>Flight minus reference at A</source>
        <translation>Vuelo menos referencia en A</translation>
    </message>
    <message>
        <source>Δ B</source>
        <translation>Δ B</translation>
    </message>
    <message>
        <source>Flight minus reference at B</source>
        <translation>Vuelo menos referencia en B</translation>
    </message>
    <message>
        <source>Δ min</source>
        <translation>Δ mín</translation>
    </message>
    <message>
        <source>Smallest difference of flight and reference from A to B</source>
        <translation>Diferencia mínima entre vuelo y referencia de A a B</translation>
    </message>
    <message>
        <source>Δ max</source>
        <translation>Δ máx</translation>
    </message>
    <message>
        <source>Greatest difference of flight and reference from A to B</source>
        <translation>Diferencia máxima entre vuelo y referencia de A a B</translation>
    </message>
    <message>
        <source>Ref. time mean</source>
        <translation>Ref. media temporal</translation>
    </message>
    <message>
        <source>Time mean of the reference from A to B</source>
        <translation>Media temporal de la referencia de A a B</translation>
    </message>
    <message>
        <source>Ref. A</source>
        <translation>Ref. A</translation>
    </message>
    <message>
        <source>Value of the reference at A</source>
        <translation>Valor de la referencia en A</translation>
    </message>
    <message>
        <source>Ref. B</source>
        <translation>Ref. B</translation>
    </message>
    <message>
        <source>Value of the reference at B</source>
        <translation>Valor de la referencia en B</translation>
    </message>
    <message>
        <source>Ref. min</source>
        <translation>Ref. mín</translation>
    </message>
    <message>
        <source>Smallest value of the reference from A to B</source>
        <translation>Valor mínimo de la referencia de A a B</translation>
    </message>
    <message>
        <source>Ref. max</source>
        <translation>Ref. máx</translation>
    </message>
    <message>
        <source>Greatest value of the reference from A to B</source>
        <translation>Valor máximo de la referencia de A a B</translation>
    </message>
</context>
<context>
    <name>TARN::MeasurePanel</name>
    <message>
        <source>Time of A, recording clock</source>
        <translation>Hora de A, reloj de la grabación</translation>
    </message>
    <message>
        <source>Time of B, recording clock</source>
        <translation>Hora de B, reloj de la grabación</translation>
    </message>
    <message>
        <source>Close the measuring panel</source>
        <translation>Cerrar el panel de medición</translation>
    </message>
    <message>
        <source>What is measured of the curves</source>
        <translation>Lo que se mide de las curvas</translation>
    </message>
    <message>
        <source>Copy with Headers</source>
        <translation>Copiar con encabezados</translation>
    </message>
    <message>
        <source>B − A: %1 s</source>
        <translation>B − A: %1 s</translation>
    </message>
    <message>
        <source>Nothing is marked: the whole flight</source>
        <translation>Nada está marcado: el vuelo entero</translation>
    </message>
    <message>
        <source>Sort as the Curves</source>
        <translation>Ordenar como las curvas</translation>
    </message>
</context>
<context>
    <name>TARN::ProjectKeeper</name>
    <message>
        <source>Open TARN Project</source>
        <translation>Abrir proyecto TARN</translation>
    </message>
    <message>
        <source>Project Files (*.xml)</source>
        <translation>Archivos de proyecto (*.xml)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no project that can be read; the selection stays as it is.
Open a project file saved by this program.</source>
        <translation>«%1» no es un proyecto que se pueda leer; la selección no cambia.
Abra un archivo de proyecto guardado por este programa.</translation>
    </message>
    <message>
        <source>TARN Warning</source>
        <translation>Aviso de TARN</translation>
    </message>
    <message>
        <source>Current Project not saved !
Save it now ?</source>
        <translation>¡El proyecto actual no está guardado!
¿Guardarlo ahora?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The project was not saved: no profile is loaded, so its parameters are not known.
Choose a profile under Extras, Preferences.</source>
        <translation>El proyecto no se guardó: no hay ningún perfil cargado y no se conocen sus parámetros.
Elija un perfil en Extras, Preferencias.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no project and is not replaced.
Choose another name for the project.</source>
        <translation>«%1» no es un proyecto y no se reemplaza.
Elija otro nombre para el proyecto.</translation>
    </message>
    <message>
        <source>The project could not be written to &quot;%1&quot;.
The old file is unchanged; save it in another folder.</source>
        <translation>No se pudo escribir el proyecto en «%1».
El archivo anterior no ha cambiado; guárdelo en otra carpeta.</translation>
    </message>
    <message>
        <source>Project saved: %1</source>
        <translation>Proyecto guardado: %1</translation>
    </message>
    <message>
        <source>Save TARN Project</source>
        <translation>Guardar proyecto TARN</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists in this folder. Replace it?</source>
        <translation>«%1» ya existe en esta carpeta. ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso de ORNA</translation>
    </message>
</context>
<context>
    <name>TARN::RangeDialog</name>
    <message>
        <source>Highest value :</source>
        <translation>Valor máximo :</translation>
    </message>
    <message>
        <source>Lowest value :</source>
        <translation>Valor mínimo :</translation>
    </message>
</context>
<context>
    <name>TARN::ReferenceBar</name>
    <message>
        <source>Curves</source>
        <translation>Curvas</translation>
    </message>
    <message>
        <source>Show the reference&apos;s curves (B in the graph)</source>
        <translation>Mostrar las curvas de la referencia (B en la gráfica)</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferencia</translation>
    </message>
    <message>
        <source>Show flight minus reference in strips of their own (D in the graph)</source>
        <translation>Mostrar vuelo menos referencia en franjas propias (D en la gráfica)</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
    <message>
        <source>Show the reference&apos;s values in the table</source>
        <translation>Mostrar los valores de la referencia en la tabla</translation>
    </message>
    <message>
        <source>Take the reference flight away</source>
        <translation>Quitar el vuelo de referencia</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Moment</source>
        <translation>Instante</translation>
    </message>
    <message>
        <source>Passing</source>
        <translation>Cruce</translation>
    </message>
    <message>
        <source>What is laid on what: times of day, the first samples, a moment picked in both, or when a parameter first passes a value</source>
        <translation>Qué se hace coincidir: las horas del día, las primeras muestras, un instante elegido en ambos o la primera vez que un parámetro cruza un valor</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alineación</translation>
    </message>
    <message>
        <source>Parameter that passes the value</source>
        <translation>Parámetro que cruza el valor</translation>
    </message>
    <message>
        <source>Value that is passed</source>
        <translation>Valor que se cruza</translation>
    </message>
    <message>
        <source>Shift of the reference</source>
        <translation>Desplazamiento de la referencia</translation>
    </message>
    <message>
        <source>Seconds by which the reference is shifted; Alt and a drag in the graph shift it too</source>
        <translation>Segundos que se desplaza la referencia; un arrastre con Alt en la gráfica también la desplaza</translation>
    </message>
    <message>
        <source>A&amp;lign:</source>
        <translation>A&amp;linear:</translation>
    </message>
    <message>
        <source>Sh&amp;ift:</source>
        <translation>&amp;Desplazar:</translation>
    </message>
    <message>
        <source>Flight: %1</source>
        <translation>Vuelo: %1</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Referencia: %1</translation>
    </message>
    <message>
        <source>Align Here</source>
        <translation>Alinear aquí</translation>
    </message>
    <message>
        <source>Pick Moment</source>
        <translation>Elegir instante</translation>
    </message>
    <message>
        <source>Lays the reference&apos;s value at the cursor on the moment picked</source>
        <translation>Coloca el valor de la referencia en el cursor sobre el instante elegido</translation>
    </message>
    <message>
        <source>Takes the cursor&apos;s time as the moment of the flight</source>
        <translation>Toma el tiempo del cursor como instante del vuelo</translation>
    </message>
    <message>
        <source>The reference holds no sample of: %1</source>
        <translation>La referencia no contiene ninguna muestra de: %1</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> y %1 más</translation>
    </message>
    <message>
        <source>Moment of the flight: %1. Go to where the reference&apos;s curve shows the same moment, then press Align Here.</source>
        <translation>Instante del vuelo: %1. Vaya a donde la curva de la referencia muestra el mismo instante y pulse «Alinear aquí».</translation>
    </message>
    <message>
        <source>One of the flights does not pass this value: the shift is the one before.</source>
        <translation>Uno de los vuelos no cruza este valor: se mantiene el desplazamiento anterior.</translation>
    </message>
    <message>
        <source>The flights have no time in common: align them by their start, or shift the reference.</source>
        <translation>Los vuelos no tienen ningún tiempo en común: alinéelos por su inicio o desplace la referencia.</translation>
    </message>
    <message>
        <source>The flights are being aligned.</source>
        <translation>Los vuelos se están alineando.</translation>
    </message>
    <message>
        <source>There is not enough memory to compare everything; select fewer parameters.</source>
        <translation>No hay memoria suficiente para comparar todo; seleccione menos parámetros.</translation>
    </message>
</context>
<context>
    <name>TARN::ReferenceGraph</name>
    <message>
        <source>Show &amp;Reference</source>
        <translation>Mostrar re&amp;ferencia</translation>
    </message>
    <message>
        <source>Show &amp;Difference</source>
        <translation>Mostrar &amp;diferencia</translation>
    </message>
    <message>
        <source>There is not enough memory for the reference&apos;s curves; select fewer parameters.</source>
        <translation>No hay memoria suficiente para las curvas de la referencia; seleccione menos parámetros.</translation>
    </message>
</context>
<context>
    <name>TARN::ReferenceLoader</name>
    <message>
        <source>There is not enough memory for a reference beside the flight.</source>
        <translation>No hay memoria suficiente para una referencia junto al vuelo.</translation>
    </message>
    <message>
        <source>Looking for events</source>
        <translation>Buscando eventos</translation>
    </message>
</context>
<context>
    <name>TARN::SessionGraph</name>
    <message>
        <source>There is not enough memory for these curves; select fewer parameters.</source>
        <translation>No hay memoria suficiente para estas curvas; seleccione menos parámetros.</translation>
    </message>
    <message>
        <source>%1 of %2 selected parameters shown</source>
        <translation>Se muestran %1 de %2 parámetros seleccionados</translation>
    </message>
    <message>
        <source>Left out of the graph, because their time falls: %1 samples</source>
        <translation>Omitidas de la gráfica porque su tiempo retrocede: %1 muestras</translation>
    </message>
    <message>
        <source>The graph was cleared.
Press &quot;Confirm Selection&quot; to fill it again.</source>
        <translation>Se ha vaciado la gráfica.
Pulse «Confirmar selección» para volver a llenarla.</translation>
    </message>
    <message>
        <source>The graph is being filled.</source>
        <translation>La gráfica se está llenando.</translation>
    </message>
    <message>
        <source>The recording holds no sample of the selected parameters.</source>
        <translation>La grabación no contiene ninguna muestra de los parámetros seleccionados.</translation>
    </message>
</context>
<context>
    <name>TARN::TableModel</name>
    <message>
        <source>Time</source>
        <translation>Tiempo</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Referencia: %1</translation>
    </message>
    <message>
        <source>ref. %1</source>
        <translation>ref. %1</translation>
    </message>
</context>
<context>
    <name>TARN::TimeControls</name>
    <message>
        <source>Date and time of day in UTC</source>
        <translation>Fecha y hora del día en UTC</translation>
    </message>
    <message>
        <source>Time on the recording&apos;s clock</source>
        <translation>Tiempo del reloj de la grabación</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Desfase:</translation>
    </message>
    <message>
        <source>UTC</source>
        <translation>UTC</translation>
    </message>
    <message>
        <source>Recording clock</source>
        <translation>Reloj de la grabación</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Seconds added to the times of units whose clock differs; kept with the card folder</source>
        <translation>Segundos que se suman a los tiempos de las unidades cuyo reloj difiere; se guardan con la carpeta de la tarjeta</translation>
    </message>
    <message>
        <source>Current time, from the recording&apos;s start to its stop</source>
        <translation>Instante actual, desde el inicio hasta el fin de la grabación</translation>
    </message>
    <message>
        <source>Current time</source>
        <translation>Instante actual</translation>
    </message>
    <message>
        <source>Current time on the recording&apos;s clock; type a time and press Enter to go there</source>
        <translation>Instante actual en el reloj de la grabación; escriba un tiempo y pulse Intro para ir a él</translation>
    </message>
    <message>
        <source>Go to time</source>
        <translation>Ir al instante</translation>
    </message>
    <message>
        <source>Previous event</source>
        <translation>Evento anterior</translation>
    </message>
    <message>
        <source>Next event</source>
        <translation>Evento siguiente</translation>
    </message>
</context>
<context>
    <name>TARN::TrendListModel</name>
    <message>
        <source>Parameter</source>
        <translation>Parámetro</translation>
    </message>
    <message>
        <source>Device, parameter and unit</source>
        <translation>Dispositivo, parámetro y unidad</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Desvío</translation>
    </message>
    <message>
        <source>How far the latest flight lies from the median, in robust standard deviations; red where it is marked</source>
        <translation>A qué distancia de la mediana está el último vuelo, en desviaciones estándar robustas; en rojo donde está marcado</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>Marcados</translation>
    </message>
    <message>
        <source>Number of flights that leave the band</source>
        <translation>Número de vuelos que salen de la banda</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>Último</translation>
    </message>
    <message>
        <source>In the latest flight that has a value</source>
        <translation>En el último vuelo que tiene un valor</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Mediana</translation>
    </message>
    <message>
        <source>Of the other flights since the last maintenance</source>
        <translation>De los demás vuelos desde el último mantenimiento</translation>
    </message>
</context>
<context>
    <name>TARN::TrendPanel</name>
    <message>
        <source>Time mean when steady</source>
        <translation>Media temporal estabilizada</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Seconds above WARNING</source>
        <translation>Segundos por encima de WARNING</translation>
    </message>
    <message>
        <source>Times out of range</source>
        <translation>Veces fuera de rango</translation>
    </message>
    <message>
        <source>What is compared from flight to flight</source>
        <translation>Lo que se compara de un vuelo a otro</translation>
    </message>
    <message>
        <source>Figure</source>
        <translation>Indicador</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Show only parameters that hold this text</source>
        <translation>Mostrar solo los parámetros que contienen este texto</translation>
    </message>
    <message>
        <source>Filter of the parameters</source>
        <translation>Filtro de los parámetros</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parámetros</translation>
    </message>
    <message>
        <source>No parameter holds this text.</source>
        <translation>Ningún parámetro contiene este texto.</translation>
    </message>
    <message>
        <source>No flight of this engine has a steady stretch of three minutes. What is steady is told by parameters that the profile marks with &quot;steady&quot;.</source>
        <translation>Ningún vuelo de este motor tiene un tramo estabilizado de tres minutos. Qué es estabilizado lo determinan los parámetros que el perfil marca con «steady».</translation>
    </message>
    <message>
        <source>No flight of this engine has this figure.</source>
        <translation>Ningún vuelo de este motor tiene este indicador.</translation>
    </message>
    <message>
        <source>Engine %1: a band needs five other flights since the last maintenance.</source>
        <translation>Motor %1: una banda necesita otros cinco vuelos desde el último mantenimiento.</translation>
    </message>
    <message>
        <source>Engine %1: %2 of %3 parameters leave their band in their latest flight.</source>
        <translation>Motor %1: %2 de %3 parámetros fuera de su banda en su último vuelo.</translation>
    </message>
    <message>
        <source>%1%2, %3: %4 of %5 flights leave the band</source>
        <translation>%1%2, %3: %4 de %5 vuelos fuera de la banda</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetErrorTime</name>
    <message>
        <source>When errors were active: from the top info, warning, fault. Click to go there.</source>
        <translation>Cuándo hubo errores activos; de arriba abajo: información, aviso, fallo. Haga clic para ir a ese instante.</translation>
    </message>
    <message>
        <source>Fault timeline</source>
        <translation>Cronología de fallos</translation>
    </message>
    <message>
        <source>The recording holds no message of this matrix.</source>
        <translation>La grabación no contiene ningún mensaje de esta matriz.</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetTimeRange</name>
    <message>
        <source>Start time</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Stop time</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Cursor Pos</source>
        <translation>Pos. cursor</translation>
    </message>
    <message>
        <source>Start at the current time of the data window</source>
        <translation>Empezar en el instante actual de la ventana de datos</translation>
    </message>
    <message>
        <source>Stop at the current time of the data window</source>
        <translation>Terminar en el instante actual de la ventana de datos</translation>
    </message>
    <message>
        <source>Start :</source>
        <translation>Inicio :</translation>
    </message>
    <message>
        <source>Stop :</source>
        <translation>Fin :</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso de ORNA</translation>
    </message>
    <message>
        <source>The start time is after the stop time: nothing would be exported.</source>
        <translation>El inicio es posterior al fin: no se exportaría nada.</translation>
    </message>
    <message>
        <source>Start/Stop Time (recording clock)</source>
        <translation>Inicio/fin (reloj de la grabación)</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetTrack</name>
    <message>
        <source>Track</source>
        <translation>Trayectoria</translation>
    </message>
    <message>
        <source>The path of the flight from above, and its height below</source>
        <translation>La trayectoria del vuelo desde arriba y, debajo, su altura</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetTrend</name>
    <message>
        <source>Trend</source>
        <translation>Tendencia</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>sin valor</translation>
    </message>
    <message>
        <source>Median of the others %1, sigma %2</source>
        <translation>Mediana de los demás %1, sigma %2</translation>
    </message>
    <message>
        <source>It leaves the band.</source>
        <translation>Sale de la banda.</translation>
    </message>
    <message>
        <source>Click: open the flight; with Shift: as the reference.</source>
        <translation>Clic: abrir el vuelo; con Mayús: como referencia.</translation>
    </message>
</context>
<context>
    <name>TargetQuestion</name>
    <message>
        <source>Type a file name, without a folder.</source>
        <translation>Escriba un nombre de archivo, sin carpeta.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Choose another.</source>
        <translation>La carpeta «%1» no existe. Elija otra.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; may not be written to. Choose another.</source>
        <translation>No se permite escribir en la carpeta «%1». Elija otra.</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso de ORNA</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists in this folder. Replace it?</source>
        <translation>«%1» ya existe en esta carpeta. ¿Reemplazarlo?</translation>
    </message>
</context>
<context>
    <name>TimedKml</name>
    <message>
        <source>The recording tells no date: no times can be given. Export the path without them.</source>
        <translation>La grabación no indica ninguna fecha: no se pueden dar tiempos. Exporte la trayectoria sin ellos.</translation>
    </message>
</context>
<context>
    <name>TrackColors</name>
    <message>
        <source>All parameters</source>
        <translation>Todos los parámetros</translation>
    </message>
    <message>
        <source>in range</source>
        <translation>en rango</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>sin valor</translation>
    </message>
</context>
<context>
    <name>TrackDrawing</name>
    <message>
        <source>No position at %1; shown is the last one, of %2</source>
        <translation>Sin posición a las %1; se muestra la última, de las %2</translation>
    </message>
    <message>
        <source>No position at %1 or before</source>
        <translation>Sin posición a las %1 ni antes</translation>
    </message>
</context>
<context>
    <name>TrackHits</name>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
</context>
<context>
    <name>TrackMarks</name>
    <message>
        <source>peak %1 at %2, threshold %3</source>
        <translation>pico %1 a las %2, umbral %3</translation>
    </message>
</context>
<context>
    <name>TrackNote</name>
    <message>
        <source>The recording tells no UTC: times are counted from the date of its header, whose time zone is not known, as if that were UTC.</source>
        <translation>La grabación no indica UTC: los tiempos se cuentan desde la fecha de su cabecera, cuya zona horaria no se conoce, como si fuera UTC.</translation>
    </message>
    <message>
        <source>The recording tells no date: the track is without times.</source>
        <translation>La grabación no indica ninguna fecha: la trayectoria no lleva tiempos.</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; of the altitude is not known, its numbers were taken for metres.</source>
        <translation>La unidad &quot;%1&quot; de la altitud no se conoce; sus números se tomaron por metros.</translation>
    </message>
    <message>
        <source>Times are UTC as the recording&apos;s own messages tell it.</source>
        <translation>Los tiempos son UTC según los propios mensajes de la grabación.</translation>
    </message>
    <message>
        <source>Altitudes are metres, converted from %1.</source>
        <translation>Las altitudes están en metros, convertidas de %1.</translation>
    </message>
    <message>
        <source>Left out: %1 positions at 0/0 or incomplete, %2 that nothing flies to, %3 events without a position.</source>
        <translation>Omitidos: %1 posiciones en 0/0 o incompletas, %2 a las que nada vuela, %3 eventos sin posición.</translation>
    </message>
</context>
<context>
    <name>TrackSymbols</name>
    <message>
        <source>out of range</source>
        <translation>fuera de rango</translation>
    </message>
    <message>
        <source>warning lamp</source>
        <translation>luz de aviso</translation>
    </message>
    <message>
        <source>fault or warning</source>
        <translation>fallo o aviso</translation>
    </message>
    <message>
        <source>Events without a position: %1</source>
        <translation>Eventos sin posición: %1</translation>
    </message>
</context>
<context>
    <name>UnknownIdentifiers</name>
    <message>
        <source>Identifiers that the profile does not describe: %1, their samples: %2</source>
        <translation>Identificadores que el perfil no describe: %1, sus muestras: %2</translation>
    </message>
</context>
<context>
    <name>WidgetGraph</name>
    <message>
        <source>Graph of the selected parameters</source>
        <translation>Gráfica de los parámetros seleccionados</translation>
    </message>
    <message>
        <source>Click to show the curve</source>
        <translation>Clic para mostrar la curva</translation>
    </message>
    <message>
        <source>Click to hide the curve, drag to move it, right click for more</source>
        <translation>Clic para ocultar la curva, arrastrar para moverla, clic derecho para más</translation>
    </message>
</context>
</TS>
