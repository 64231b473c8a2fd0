<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>AdderTexts</name>
    <message>
        <source>it can&apos;t be read</source>
        <translation>nelze ji přečíst</translation>
    </message>
    <message>
        <source>it changed while it was read</source>
        <translation>změnila se během čtení</translation>
    </message>
</context>
<context>
    <name>CompanionDrawing</name>
    <message>
        <source>Δ flight minus reference</source>
        <translation>Δ let minus reference</translation>
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
        <translation>&amp;Zobrazit</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Skrýt</translation>
    </message>
    <message>
        <source>&amp;Only This</source>
        <translation>&amp;Jen tuto</translation>
    </message>
    <message>
        <source>&amp;Color...</source>
        <translation>&amp;Barva...</translation>
    </message>
    <message>
        <source>Show &amp;All Curves</source>
        <translation>Zobrazit &amp;všechny křivky</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Posunout &amp;nahoru</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Posunout &amp;dolů</translation>
    </message>
    <message>
        <source>Own &amp;Range...</source>
        <translation>V&amp;lastní rozsah...</translation>
    </message>
    <message>
        <source>Au&amp;tomatic Range</source>
        <translation>Au&amp;tomatický rozsah</translation>
    </message>
    <message>
        <source>Color of %1</source>
        <translation>Barva: %1</translation>
    </message>
    <message>
        <source>Range of %1</source>
        <translation>Rozsah: %1</translation>
    </message>
</context>
<context>
    <name>DialogAbout</name>
    <message>
        <source>About ORNA</source>
        <translation>O programu ORNA</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Third-party notices</source>
        <translation>Oznámení třetích stran</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Zavřít toto okno</translation>
    </message>
    <message>
        <source>Reads engine and flight recordings of an aircraft&apos;s SD card</source>
        <translation>Čte záznamy motoru a letu z SD karty letadla</translation>
    </message>
    <message>
        <source>Version %1, built %2</source>
        <translation>Verze %1, sestaveno %2</translation>
    </message>
</context>
<context>
    <name>DialogHelp</name>
    <message>
        <source>ORNA Help</source>
        <translation>Nápověda ORNA</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Zavřít toto okno</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Příručka</translation>
    </message>
    <message>
        <source>Sections of the manual</source>
        <translation>Oddíly příručky</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Hledat v příručce</translation>
    </message>
    <message>
        <source>Words to find; Enter goes to the next place</source>
        <translation>Hledaná slova; Enter přejde na další místo</translation>
    </message>
    <message>
        <source>Previous place</source>
        <translation>Předchozí místo</translation>
    </message>
    <message>
        <source>Next place</source>
        <translation>Další místo</translation>
    </message>
</context>
<context>
    <name>EmptyText</name>
    <message>
        <source>No profile is loaded, so nothing can be decoded and nothing was checked.
Choose one in the &lt;a href=&quot;preferences&quot;&gt;preferences&lt;/a&gt;.</source>
        <translation>Není načten žádný profil, proto nelze nic dekódovat a nic nebylo zkontrolováno.
Zvolte jej v &lt;a href=&quot;preferences&quot;&gt;předvolbách&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The recording is being loaded.</source>
        <translation>Záznam se načítá.</translation>
    </message>
    <message>
        <source>No recording is loaded.
Open a card and pick one or more recordings in the list on the left.</source>
        <translation>Není načten žádný záznam.
Otevřete kartu a vyberte v seznamu vlevo jeden nebo více záznamů.</translation>
    </message>
    <message>
        <source>The recording holds no samples, so nothing was checked.</source>
        <translation>Záznam neobsahuje žádné vzorky, proto nebylo nic zkontrolováno.</translation>
    </message>
    <message>
        <source>No parameter is selected.
Tick parameters in the list on the left and press &quot;Confirm Selection&quot;.</source>
        <translation>Není vybrán žádný parametr.
Zaškrtněte parametry v seznamu vlevo a stiskněte „Potvrdit výběr“.</translation>
    </message>
</context>
<context>
    <name>EventLists</name>
    <message>
        <source>The recording holds no FLOAT message of a parameter with a threshold, so nothing was watched for limits.</source>
        <translation>Záznam neobsahuje žádnou zprávu FLOAT parametru s prahovou hodnotou, proto se žádné limity nesledovaly.</translation>
    </message>
    <message>
        <source>No limit event in %1 samples of %2 watched parameters.</source>
        <translation>Žádná limitní událost. Zkontrolované vzorky: %1, sledované parametry: %2.</translation>
    </message>
    <message>
        <source>The recording holds no message of a warning lamp, so none was watched.</source>
        <translation>Záznam neobsahuje žádnou zprávu výstražné kontrolky, proto se žádná nesledovala.</translation>
    </message>
    <message>
        <source>No warning lamp came on in %1 samples of %2 lamps.</source>
        <translation>Nerozsvítila se žádná výstražná kontrolka. Zkontrolované vzorky: %1, sledované kontrolky: %2.</translation>
    </message>
    <message>
        <source>The recording holds no message of an error matrix, so none was watched.</source>
        <translation>Záznam neobsahuje žádnou zprávu matice chyb, takže žádná nebyla sledována.</translation>
    </message>
    <message>
        <source>No error was active in %1 messages of %2 matrices.</source>
        <translation>Žádná chyba nebyla aktivní v %1 zprávách %2 matic.</translation>
    </message>
</context>
<context>
    <name>EventMarks</name>
    <message>
        <source>%1 came</source>
        <translation>vznik %1</translation>
    </message>
    <message>
        <source>%1 went</source>
        <translation>zánik %1</translation>
    </message>
</context>
<context>
    <name>EventWords</name>
    <message>
        <source>Caution</source>
        <translation>Pozor</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Varování</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informace</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Porucha</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limit</translation>
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
        <translation>Soubor „%1“ nelze zapsat: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>Soubor „%1“ se nepodařilo zapsat: %2</translation>
    </message>
</context>
<context>
    <name>ExportCsv</name>
    <message>
        <source>The first sample is at %1 s, the last at %2 s, the export ends at %3 s. Choose a shorter time range or a coarser resolution.</source>
        <translation>První vzorek je v čase %1 s, poslední v %2 s, export končí v %3 s. Zvolte kratší časový rozsah nebo hrubší rozlišení.</translation>
    </message>
    <message>
        <source>The table would have too many rows.</source>
        <translation>Tabulka by měla příliš mnoho řádků.</translation>
    </message>
    <message>
        <source>The table would have %1 rows, about %2 MB, more than is free in &quot;%3&quot;.</source>
        <translation>Tabulka by měla %1 řádků, asi %2 MB, to je víc než volné místo v „%3“.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2</source>
        <translation>Soubor „%1“ nelze zapsat: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>Soubor „%1“ se nepodařilo zapsat: %2</translation>
    </message>
    <message>
        <source>No parameter is selected, the file holds its title only.</source>
        <translation>Není vybrán žádný parametr, soubor obsahuje jen záhlaví.</translation>
    </message>
    <message>
        <source>No sample lies in the time range, the file holds its titles only.</source>
        <translation>V časovém rozsahu není žádný vzorek, soubor obsahuje jen záhlaví.</translation>
    </message>
</context>
<context>
    <name>ExportKml</name>
    <message>
        <source>&quot;%1&quot; could not be written. Check that the folder exists, may be written to and has room.</source>
        <translation>Soubor „%1“ se nepodařilo zapsat. Zkontrolujte, zda složka existuje, lze do ní zapisovat a je v ní dost místa.</translation>
    </message>
    <message>
        <source>No position lies in the time range, the flight path is empty.</source>
        <translation>V časovém rozsahu není žádná poloha, dráha letu je prázdná.</translation>
    </message>
    <message>
        <source>Left out, because no position lies in their time slot: %1 values, %2 events. A longer &quot;Timestamp every&quot; keeps them.</source>
        <translation>Vynecháno, protože v jejich časovém úseku není žádná poloha – hodnoty: %1, události: %2. S delším intervalem „Časový údaj každých“ zůstanou zachovány.</translation>
    </message>
</context>
<context>
    <name>ExportReport</name>
    <message>
        <source>&quot;%1&quot;: a report is a web page or a PDF; end the name in .html or .pdf.</source>
        <translation>„%1“: zpráva je webová stránka nebo PDF; název musí končit na .html nebo .pdf.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2. Choose another folder; the old file, if there was one, is unchanged.</source>
        <translation>„%1“ nelze zapsat: %2. Zvolte jinou složku; starý soubor, pokud existoval, zůstal beze změny.</translation>
    </message>
</context>
<context>
    <name>Exporter</name>
    <message>
        <source>&quot;%1&quot; is the recording itself. Choose another name or folder.</source>
        <translation>Soubor „%1“ je sám záznam. Zvolte jiný název nebo složku.</translation>
    </message>
    <message>
        <source>There is not enough memory for this export; choose a shorter time range.</source>
        <translation>Pro tento export není dost paměti; zvolte kratší časový rozsah.</translation>
    </message>
</context>
<context>
    <name>FlightAdder</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be read to its end</source>
        <translation>„%1“ nelze přečíst do konce</translation>
    </message>
    <message>
        <source>there is no sample in it</source>
        <translation>neobsahuje žádný vzorek</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>není na to dost paměti</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no folder</source>
        <translation>„%1“ není složka</translation>
    </message>
</context>
<context>
    <name>FlightSummary</name>
    <message>
        <source>Duration %1</source>
        <translation>Trvání %1</translation>
    </message>
    <message>
        <source>no profile, so nothing was checked</source>
        <translation>bez profilu, nic nebylo kontrolováno</translation>
    </message>
    <message>
        <source>%1 at the limit</source>
        <translation>%1 na limitu</translation>
    </message>
    <message>
        <source>%1 in warning</source>
        <translation>%1 ve varování</translation>
    </message>
    <message>
        <source>Lamps: %1</source>
        <translation>Kontrolky: %1</translation>
    </message>
    <message>
        <source>Faults and warnings: %1</source>
        <translation>Poruchy a varování: %1</translation>
    </message>
    <message>
        <source>nothing out of range in %1 samples of %2 watched parameters</source>
        <translation>nic mimo rozsah v %1 vzorcích %2 sledovaných parametrů</translation>
    </message>
    <message>
        <source>no parameter was watched for limits</source>
        <translation>žádný parametr nebyl sledován na limity</translation>
    </message>
    <message>
        <source>Remarks: %1</source>
        <translation>Poznámky: %1</translation>
    </message>
</context>
<context>
    <name>FlightTables</name>
    <message>
        <source>the logbook has no flight &quot;%1&quot;</source>
        <translation>deník nemá let „%1“</translation>
    </message>
</context>
<context>
    <name>GraphCaption</name>
    <message>
        <source>%1 to %2 (%3 recordings)</source>
        <translation>%1 až %2 (%3 záznamů)</translation>
    </message>
    <message>
        <source>%1 to %2 on the recording&apos;s clock</source>
        <translation>%1 až %2 na hodinách záznamu</translation>
    </message>
</context>
<context>
    <name>HeightDrawing</name>
    <message>
        <source>Altitude</source>
        <translation>Výška</translation>
    </message>
    <message>
        <source>Altitude [%1]</source>
        <translation>Výška [%1]</translation>
    </message>
</context>
<context>
    <name>Logbook</name>
    <message>
        <source>the logbook has no flight &quot;%1&quot;</source>
        <translation>deník nemá let „%1“</translation>
    </message>
    <message>
        <source>the keys of several flights begin with &quot;%1&quot;</source>
        <translation>klíče několika letů začínají na „%1“</translation>
    </message>
    <message>
        <source>the logbook has no flight of the engine &quot;%1&quot;</source>
        <translation>deník nemá žádný let motoru „%1“</translation>
    </message>
</context>
<context>
    <name>LogbookPlace</name>
    <message>
        <source>the logbook&apos;s URL is neither sqlite:PATH nor postgresql://user@host:port/database</source>
        <translation>URL deníku není ani sqlite:CESTA, ani postgresql://uživatel@počítač:port/databáze</translation>
    </message>
    <message>
        <source>the logbook&apos;s URL has an option that is not understood; known are %1</source>
        <translation>URL deníku má neznámou volbu; známé jsou %1</translation>
    </message>
    <message>
        <source>there is no home directory for a logbook; name one by its URL</source>
        <translation>pro deník není domovský adresář; uveďte jej jeho URL</translation>
    </message>
</context>
<context>
    <name>LogbookSchema</name>
    <message>
        <source>&quot;%1&quot; is no logbook: another program&apos;s tables are in it</source>
        <translation>„%1“ není deník: obsahuje tabulky jiného programu</translation>
    </message>
    <message>
        <source>the logbook %1 is of version %2, this program knows versions up to %3; a newer program is needed</source>
        <translation>deník %1 má verzi %2, tento program zná verze do %3; je třeba novější program</translation>
    </message>
    <message>
        <source>there is no logbook in %1</source>
        <translation>v %1 není deník</translation>
    </message>
</context>
<context>
    <name>LogbookSettings</name>
    <message>
        <source>Added: %1</source>
        <translation>Přidáno: %1</translation>
    </message>
    <message>
        <source>known already: %1</source>
        <translation>již známo: %1</translation>
    </message>
    <message>
        <source>not looked at: %1</source>
        <translation>neprohlédnuto: %1</translation>
    </message>
    <message>
        <source>not added: %1 (%2)</source>
        <translation>nepřidáno: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>MaintenanceDialog</name>
    <message>
        <source>Maintenance</source>
        <translation>Údržba</translation>
    </message>
    <message>
        <source>What was done to engine %1? Trends compare flights only with those since the last note.</source>
        <translation>Co se na motoru %1 udělalo? Trendy porovnávají lety jen s těmi od posledního zápisu.</translation>
    </message>
    <message>
        <source>Flights from this moment on are behind the maintenance</source>
        <translation>Lety od tohoto okamžiku jsou po údržbě</translation>
    </message>
    <message>
        <source>Cylinder 6 replaced</source>
        <translation>Vyměněn válec 6</translation>
    </message>
    <message>
        <source>&amp;Date (UTC)</source>
        <translation>&amp;Datum (UTC)</translation>
    </message>
    <message>
        <source>&amp;Note</source>
        <translation>&amp;Zápis</translation>
    </message>
    <message>
        <source>Note It</source>
        <translation>Zapsat</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>NotePlaces</name>
    <message>
        <source>%1 to %2, %3 s</source>
        <translation>%1 až %2, %3 s</translation>
    </message>
    <message>
        <source>%1 at its limit</source>
        <translation>%1 na limitu</translation>
    </message>
    <message>
        <source>%1 in warning</source>
        <translation>%1 ve varování</translation>
    </message>
    <message>
        <source>, peak %1 %2 at %3</source>
        <translation>, vrchol %1 %2 v %3</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>a dalších %1</translation>
    </message>
</context>
<context>
    <name>OutputFile</name>
    <message>
        <source>it is no file</source>
        <translation>není to běžný soubor</translation>
    </message>
</context>
<context>
    <name>PositionTrack</name>
    <message>
        <source>Positions of 0/0, sent while the receiver knows none: %1</source>
        <translation>Polohy 0/0, vysílané, dokud přijímač žádnou nezná: %1</translation>
    </message>
    <message>
        <source>Jumps of the position faster than 500 m/s: %1, the first at %2</source>
        <translation>Skoky polohy rychlejší než 500 m/s: %1, první v %2</translation>
    </message>
</context>
<context>
    <name>Record</name>
    <message>
        <source>not enough memory for %1 samples; load fewer recordings at once</source>
        <translation>nedostatek paměti pro %1 vzorků; načtěte méně záznamů najednou</translation>
    </message>
    <message>
        <source>could not open the recording &quot;%1&quot;; check that the card is still in place</source>
        <translation>záznam „%1“ se nepodařilo otevřít; zkontrolujte, zda je karta stále vložena</translation>
    </message>
    <message>
        <source>not enough memory to read the recording; load fewer at once</source>
        <translation>nedostatek paměti pro načtení záznamu; načtěte méně záznamů najednou</translation>
    </message>
    <message>
        <source>could not read the recording &quot;%1&quot; to its end; check that the card is still in place</source>
        <translation>záznam „%1“ se nepodařilo přečíst do konce; zkontrolujte, zda je karta stále vložena</translation>
    </message>
</context>
<context>
    <name>RecordText</name>
    <message>
        <source>Remarks</source>
        <translation>Poznámky</translation>
    </message>
    <message>
        <source>none</source>
        <translation>žádné</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Poznámka</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Čas začátku</translation>
    </message>
    <message>
        <source>Stop Time</source>
        <translation>Čas konce</translation>
    </message>
    <message>
        <source>Bus Type</source>
        <translation>Typ sběrnice</translation>
    </message>
    <message>
        <source>ECU Serial Number</source>
        <translation>Výrobní č. ECU</translation>
    </message>
    <message>
        <source>Software Part Nr. A</source>
        <translation>Č. dílu softwaru A</translation>
    </message>
    <message>
        <source>Software Part Nr. B</source>
        <translation>Č. dílu softwaru B</translation>
    </message>
    <message>
        <source>ECU Type</source>
        <translation>Typ ECU</translation>
    </message>
    <message>
        <source>EMU SW Version</source>
        <translation>Verze SW EMU</translation>
    </message>
    <message>
        <source>Engine Serial Nr.</source>
        <translation>Výrobní č. motoru</translation>
    </message>
    <message>
        <source>Engine Type</source>
        <translation>Typ motoru</translation>
    </message>
    <message>
        <source>Samples Total</source>
        <translation>Vzorků celkem</translation>
    </message>
    <message>
        <source>The file could not be opened</source>
        <translation>Soubor se nepodařilo otevřít</translation>
    </message>
    <message>
        <source>The header is cut short, bytes missing: %1</source>
        <translation>Hlavička je neúplná, chybějící bajty: %1</translation>
    </message>
    <message>
        <source>Ignored at the end, bytes that are no whole sample: %1</source>
        <translation>Na konci vynechány bajty, které netvoří celý vzorek: %1</translation>
    </message>
    <message>
        <source>Samples that could not be read: %1</source>
        <translation>Vzorky, které se nepodařilo přečíst: %1</translation>
    </message>
    <message>
        <source>Samples with an impossible time: %1, the first is number %2</source>
        <translation>Vzorky s nemožným časem: %1, první má pořadové číslo %2</translation>
    </message>
    <message>
        <source>Samples of channels other than 0 and 1: %1</source>
        <translation>Vzorky z jiných kanálů než 0 a 1: %1</translation>
    </message>
    <message>
        <source>Gaps of more than 10 s: %1, the longest is %2 s from %3 on</source>
        <translation>Mezery delší než 10 s: %1, nejdelší trvá %2 s od %3</translation>
    </message>
    <message>
        <source>The time offset could not be read: &quot;%1&quot; is damaged. Setting another offset keeps that file aside</source>
        <translation>Časový posun se nepodařilo přečíst: soubor „%1“ je poškozen. Při nastavení jiného posunu se tento soubor uschová stranou</translation>
    </message>
    <message>
        <source>Samples Read</source>
        <translation>Přečteno vzorků</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Záznam</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Soubory</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>Files that overlap in time: %1, the first are %2. Check that they belong together</source>
        <translation>Soubory, které se časově překrývají: %1, první jsou %2. Ověřte, zda patří k sobě</translation>
    </message>
    <message>
        <source>Header dates from %1 to %2, but the samples last %3 s: the files are not of one flight</source>
        <translation>Datum v hlavičkách od %1 do %2, vzorky však pokrývají jen %3 s: soubory nejsou z jednoho letu</translation>
    </message>
</context>
<context>
    <name>RecordingFinder</name>
    <message>
        <source>Files named %1 were found, but they hold another flight.</source>
        <translation>Soubory s názvem %1 byly nalezeny, ale obsahují jiný let.</translation>
    </message>
    <message>
        <source>The files %1 were not found.</source>
        <translation>Soubory %1 nebyly nalezeny.</translation>
    </message>
</context>
<context>
    <name>ReportCharts</name>
    <message>
        <source>peak %1 at %2, threshold %3</source>
        <translation>vrchol %1 v %2, práh %3</translation>
    </message>
    <message>
        <source>The other parameters of %1 meanwhile</source>
        <translation>Ostatní parametry %1 v té době</translation>
    </message>
    <message>
        <source>The worst, in two minutes each</source>
        <translation>Nejhorší, po dvou minutách</translation>
    </message>
    <message>
        <source>The whole flight</source>
        <translation>Celý let</translation>
    </message>
    <message>
        <source>No parameter is selected.</source>
        <translation>Není vybrán žádný parametr.</translation>
    </message>
    <message>
        <source>%1 to %2 on the recording&apos;s clock</source>
        <translation>%1 až %2 na hodinách záznamu</translation>
    </message>
    <message>
        <source>The reported range</source>
        <translation>Rozsah zprávy</translation>
    </message>
    <message>
        <source>%1 to %2 on the recording&apos;s clock; dashed: the reference</source>
        <translation>%1 až %2 na hodinách záznamu; čárkovaně: reference</translation>
    </message>
</context>
<context>
    <name>ReportComparison</name>
    <message>
        <source>Reference: %1, shifted by %2 s. Compared from %3 to %4, while both flights are steady.</source>
        <translation>Reference: %1, posunutá o %2 s. Porovnáno od %3 do %4, kdy jsou oba lety ustálené.</translation>
    </message>
    <message>
        <source>Reference: %1, shifted by %2 s. Compared from %3 to %4: there is no common steady part.</source>
        <translation>Reference: %1, posunutá o %2 s. Porovnáno od %3 do %4: společný ustálený úsek neexistuje.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parametr</translation>
    </message>
    <message>
        <source>Time mean, flight</source>
        <translation>Časový průměr, let</translation>
    </message>
    <message>
        <source>Time mean, reference</source>
        <translation>Časový průměr, reference</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Rozdíl</translation>
    </message>
    <message>
        <source>Standard deviations</source>
        <translation>Směrodatné odchylky</translation>
    </message>
    <message>
        <source>What changed most, in standard deviations of the reference</source>
        <translation>Co se změnilo nejvíce, ve směrodatných odchylkách reference</translation>
    </message>
    <message>
        <source>Compared with the reference</source>
        <translation>Porovnání s referencí</translation>
    </message>
    <message>
        <source>Reference: %1. It has no time in common with this range.</source>
        <translation>Reference: %1. S tímto rozsahem nemá žádný společný čas.</translation>
    </message>
    <message>
        <source>No parameter has values in both flights there.</source>
        <translation>Žádný parametr tam nemá hodnoty v obou letech.</translation>
    </message>
    <message>
        <source>None of %1 parameters has changed.</source>
        <translation>Žádný z %1 parametrů se nezměnil.</translation>
    </message>
</context>
<context>
    <name>ReportHead</name>
    <message>
        <source>not recorded</source>
        <translation>nezaznamenáno</translation>
    </message>
    <message>
        <source>From, on the recording&apos;s clock</source>
        <translation>Od, podle hodin záznamu</translation>
    </message>
    <message>
        <source>Until, on the recording&apos;s clock</source>
        <translation>Do, podle hodin záznamu</translation>
    </message>
    <message>
        <source>From, in UTC</source>
        <translation>Od, v UTC</translation>
    </message>
    <message>
        <source>Time offset</source>
        <translation>Časový posun</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Vzorky</translation>
    </message>
    <message>
        <source>ECU Serial Number</source>
        <translation>Výrobní č. ECU</translation>
    </message>
    <message>
        <source>Engine Serial Nr.</source>
        <translation>Výrobní č. motoru</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Zpráva o letu</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>How pages name the language of these texts: &quot;de&quot; for German.</extracomment>
        <translation>cs</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>none</source>
        <translation>žádné</translation>
    </message>
    <message>
        <source>Profile&apos;s SHA-256</source>
        <translation>SHA-256 profilu</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>No recording was read.</source>
        <translation>Nebyl přečten žádný záznam.</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Co se stalo</translation>
    </message>
    <message>
        <source>The recording holds no samples, so nothing was checked.</source>
        <translation>Záznam neobsahuje žádné vzorky, proto nebylo nic zkontrolováno.</translation>
    </message>
    <message>
        <source>Remarks on the recording</source>
        <translation>Poznámky k záznamu</translation>
    </message>
</context>
<context>
    <name>ReportLists</name>
    <message>
        <source>From</source>
        <translation>Od</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trvání</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parametr</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Kontrolka</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Chyba</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Závažnost</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Krajní hodnota</translation>
    </message>
    <message>
        <source>Peak at</source>
        <translation>Vrchol v</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Prahová hodnota</translation>
    </message>
    <message>
        <source>The %1 worst of %2; &quot;orna-cli events --episodes&quot; lists all.</source>
        <translation>%1 nejhorších z %2; „orna-cli events --episodes“ vypíše všechny.</translation>
    </message>
    <message>
        <source>Out of range</source>
        <translation>Mimo rozsah</translation>
    </message>
    <message>
        <source>Without an event: from the first sample on, after a gap, or of a kind that is not watched</source>
        <translation>Bez události: od prvního vzorku, po mezeře nebo druhu, který se nesleduje</translation>
    </message>
    <message>
        <source>Warning lamps</source>
        <translation>Výstražné kontrolky</translation>
    </message>
    <message>
        <source>On again without an event</source>
        <translation>Opět svítí bez události</translation>
    </message>
    <message>
        <source>Error matrices</source>
        <translation>Matice poruch</translation>
    </message>
    <message>
        <source>None in this range; in the rest of the flight: %1.</source>
        <translation>V tomto rozsahu žádné; ve zbytku letu: %1.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Událost</translation>
    </message>
    <message>
        <source>Nothing out of range in %1 samples of %2 watched parameters.</source>
        <translation>Nic mimo rozsah v %1 vzorcích %2 sledovaných parametrů.</translation>
    </message>
</context>
<context>
    <name>ReportNumbers</name>
    <message>
        <source>adds up to %1</source>
        <translation>celkem %1</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistika</translation>
    </message>
    <message>
        <source>No parameter is selected.</source>
        <translation>Není vybrán žádný parametr.</translation>
    </message>
    <message>
        <source>at</source>
        <translation>v</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parametr</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Vzorky</translation>
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
        <translation>Průměr</translation>
    </message>
    <message>
        <source>Std. Dev.</source>
        <translation>Směr. odch.</translation>
    </message>
    <message>
        <source>Time Mean</source>
        <translation>Časový průměr</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Mezery</translation>
    </message>
    <message>
        <source>Besides</source>
        <translation>Dále</translation>
    </message>
</context>
<context>
    <name>ReportTrack</name>
    <message>
        <source>Where it happened</source>
        <translation>Kde se to stalo</translation>
    </message>
    <message>
        <source>The path of the flight from above, %1 to %2</source>
        <translation>Dráha letu shora, od %1 do %2</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>Save Snapshot</source>
        <translation>Uložit snímek</translation>
    </message>
    <message>
        <source>BMP File (*.bmp);;PNG File (*.png);;SVG File (*.svg);;All Files (*.*)</source>
        <translation>Soubor BMP (*.bmp);;Soubor PNG (*.png);;Soubor SVG (*.svg);;Všechny soubory (*.*)</translation>
    </message>
    <message>
        <source>The snapshot could not be saved as
%1
Choose a folder that can be written, with enough free space, and a name that ends in .bmp, .png, .svg or .jpg.</source>
        <translation>Snímek nebylo možné uložit jako
%1
Zvolte složku, do které lze zapisovat, s dostatkem volného místa, a název končící na .bmp, .png, .svg nebo .jpg.</translation>
    </message>
</context>
<context>
    <name>SqlConnection</name>
    <message>
        <source>there is no logbook &quot;%1&quot;</source>
        <translation>deník „%1“ neexistuje</translation>
    </message>
    <message>
        <source>the database driver %1 is not installed (package %2)</source>
        <translation>databázový ovladač %1 není nainstalován (balík %2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no logbook: it is no database</source>
        <translation>„%1“ není deník: není to databáze</translation>
    </message>
    <message>
        <source>the logbook &quot;%1&quot; is damaged</source>
        <translation>deník „%1“ je poškozen</translation>
    </message>
    <message>
        <source>logbook %1: %2</source>
        <translation>deník %1: %2</translation>
    </message>
</context>
<context>
    <name>StartMessages</name>
    <message>
        <source>HOME is not set: settings are kept in &quot;%1&quot;.</source>
        <translation>Proměnná HOME není definována: nastavení se ukládá do složky „%1“.</translation>
    </message>
    <message>
        <source>The settings could not be read, the program starts with its defaults. The damaged file is kept as &quot;%1&quot;.</source>
        <translation>Nastavení se nepodařilo přečíst, program se spouští s výchozími hodnotami. Poškozený soubor je uschován jako „%1“.</translation>
    </message>
    <message>
        <source>Samples loaded: %1</source>
        <translation>Načteno vzorků: %1</translation>
    </message>
    <message>
        <source>. Remarks: %1 (see Recording Details). </source>
        <translation>. Poznámky: %1 (viz Podrobnosti záznamu). </translation>
    </message>
    <message>
        <source>Reference: </source>
        <translation>Reference: </translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Creating Dialogs ...</source>
        <translation>Vytváření oken ...</translation>
    </message>
</context>
<context>
    <name>TARN::ActivityBar</name>
    <message>
        <source>Progress</source>
        <translation>Průběh</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>, %1 s left</source>
        <translation>, zbývá %1 s</translation>
    </message>
</context>
<context>
    <name>TARN::CommandSet</name>
    <message>
        <source>&amp;New Project</source>
        <translation>&amp;Nový projekt</translation>
    </message>
    <message>
        <source>Create new Project</source>
        <translation>Vytvořit nový projekt</translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation>&amp;Otevřít projekt</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Otevřít projekt</translation>
    </message>
    <message>
        <source>Open Project File</source>
        <translation>Otevřít soubor projektu</translation>
    </message>
    <message>
        <source>&amp;Save Project</source>
        <translation>&amp;Uložit projekt</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Uložit projekt</translation>
    </message>
    <message>
        <source>Save Project File</source>
        <translation>Uložit soubor projektu</translation>
    </message>
    <message>
        <source>&amp;Save Project as</source>
        <translation>Uložit projekt &amp;jako</translation>
    </message>
    <message>
        <source>Save Project as</source>
        <translation>Uložit projekt jako</translation>
    </message>
    <message>
        <source>Save Project File as</source>
        <translation>Uložit soubor projektu jako</translation>
    </message>
    <message>
        <source>&amp;Open Card</source>
        <translation>Otevřít k&amp;artu</translation>
    </message>
    <message>
        <source>Open Card</source>
        <translation>Otevřít kartu</translation>
    </message>
    <message>
        <source>Open SD Card</source>
        <translation>Otevřít SD kartu</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Předvolby</translation>
    </message>
    <message>
        <source>Open Preferences Dialog</source>
        <translation>Otevřít okno předvoleb</translation>
    </message>
    <message>
        <source>Recording Details</source>
        <translation>Podrobnosti záznamu</translation>
    </message>
    <message>
        <source>Show the Header and the Damages of the Recording</source>
        <translation>Zobrazit hlavičku a poškození záznamu</translation>
    </message>
    <message>
        <source>Export Google KML File</source>
        <translation>Exportovat soubor Google KML</translation>
    </message>
    <message>
        <source>Export Google Earth KML File</source>
        <translation>Exportovat soubor Google Earth KML</translation>
    </message>
    <message>
        <source>Export CSV/CAN File</source>
        <translation>Exportovat soubor CSV/CAN</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>U&amp;končit</translation>
    </message>
    <message>
        <source>Quit Application</source>
        <translation>Ukončit aplikaci</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programu</translation>
    </message>
    <message>
        <source>Show License Information</source>
        <translation>Zobrazit informace o licenci</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message>
        <source>Help Window</source>
        <translation>Okno nápovědy</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Soubor</translation>
    </message>
    <message>
        <source>&amp;Extras</source>
        <translation>&amp;Nástroje</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ná&amp;pověda</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <translation>Hlavní panel nástrojů</translation>
    </message>
    <message>
        <source>Flight &amp;Report...</source>
        <translation>Z&amp;práva o letu...</translation>
    </message>
    <message>
        <source>Write What Happened on a Few Pages</source>
        <translation>Zapsat na pár stránek, co se stalo</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Zpráva o letu</translation>
    </message>
    <message>
        <source>&amp;Logbook...</source>
        <translation>&amp;Deník...</translation>
    </message>
    <message>
        <source>Show the Flights That Were Kept, and What Changes from One to the Next</source>
        <translation>Zobrazit uložené lety a to, co se mezi nimi mění</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Deník</translation>
    </message>
    <message>
        <source>Export GPX File</source>
        <translation>Exportovat soubor GPX</translation>
    </message>
    <message>
        <source>Export the Track as GPX File</source>
        <translation>Exportovat dráhu letu jako soubor GPX</translation>
    </message>
</context>
<context>
    <name>TARN::DialogCard</name>
    <message>
        <source>No card opened</source>
        <translation>Není otevřena žádná karta</translation>
    </message>
    <message>
        <source>Folder of the recordings</source>
        <translation>Složka se záznamy</translation>
    </message>
    <message>
        <source>Card folder</source>
        <translation>Složka karty</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Záznamy</translation>
    </message>
    <message>
        <source>Start Time: </source>
        <translation>Čas začátku: </translation>
    </message>
    <message>
        <source>Stop Time: </source>
        <translation>Čas konce: </translation>
    </message>
    <message>
        <source>Recording Details</source>
        <translation>Podrobnosti záznamu</translation>
    </message>
    <message>
        <source>Header of the recording and what could be read of it</source>
        <translation>Hlavička záznamu a co se z něj podařilo přečíst</translation>
    </message>
    <message>
        <source>No recordings here.
Open a card (Ctrl+C) or drop its folder on the window.</source>
        <translation>Nejsou zde žádné záznamy.
Otevřete kartu (Ctrl+C) nebo přetáhněte její složku do okna.</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Záznam</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Nejhorší</translation>
    </message>
    <message>
        <source>Exceeded</source>
        <translation>Překročeno</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trvání</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Vzorky</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Poznámky</translation>
    </message>
    <message>
        <source>%1 recordings</source>
        <translation>Záznamů: %1</translation>
    </message>
    <message>
        <source>Click to load these recordings together:</source>
        <translation>Kliknutím načtete tyto záznamy společně:</translation>
    </message>
    <message>
        <source>Not looked into: it can&apos;t be read, or is too large to be read in passing. Load it to see.</source>
        <translation>Neprohlédnuto: nelze přečíst, nebo je příliš velký na čtení na pozadí. Načtěte jej.</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limit</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Varování</translation>
    </message>
    <message>
        <source>none</source>
        <translation>žádné</translation>
    </message>
    <message>
        <source>At the limit: %1
In warning: %2
Lamps: %3
Faults and warnings: %4
Watched parameters: %5</source>
        <translation>Na limitu: %1
Ve varování: %2
Kontrolky: %3
Poruchy a varování: %4
Sledované parametry: %5</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA – upozornění</translation>
    </message>
    <message>
        <source>These recordings are of %1 flights.</source>
        <translation>Tyto záznamy jsou z letů: %1.</translation>
    </message>
    <message>
        <source>Laid over each other, values of one flight stand between those of another.</source>
        <translation>Při překrytí leží hodnoty jednoho letu mezi hodnotami druhého.</translation>
    </message>
    <message>
        <source>Load the First</source>
        <translation>Načíst první</translation>
    </message>
    <message>
        <source>Lay over Each Other</source>
        <translation>Překrýt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Porucha</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Kontrolka</translation>
    </message>
    <message>
        <source>Load as &amp;Reference</source>
        <translation>Načíst jako &amp;referenci</translation>
    </message>
    <message>
        <source>Compares the flight that is open with this one</source>
        <translation>Porovná otevřený let s tímto</translation>
    </message>
</context>
<context>
    <name>TARN::DialogData</name>
    <message>
        <source>Data</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Limit/Warning Exceed</source>
        <translation>Překročení limitů/výstrah</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Graf</translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation>Výstražné kontrolky</translation>
    </message>
    <message>
        <source>Fault Matrix</source>
        <translation>Matice poruch</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Dráha</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataErrorMatrix</name>
    <message>
        <source>The profile describes no error matrix.</source>
        <translation>Profil nepopisuje žádnou matici poruch.</translation>
    </message>
    <message>
        <source>Error matrices</source>
        <translation>Matice poruch</translation>
    </message>
    <message>
        <source>Active Errors</source>
        <translation>Aktivní chyby</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataGraph</name>
    <message>
        <source>The graph cannot be drawn: this display offers no OpenGL.
All other views work; a graphics driver with OpenGL 2.1, or Mesa&apos;s software one, brings the graph.</source>
        <translation>Graf nelze vykreslit: tento displej nepodporuje OpenGL.
Všechny ostatní pohledy fungují; graf zpřístupní ovladač grafiky s OpenGL 2.1 nebo softwarový ovladač Mesa.</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>&amp;Uložit obrázek...</translation>
    </message>
    <message>
        <source>Co&amp;py Picture</source>
        <translation>&amp;Kopírovat obrázek</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataLimit</name>
    <message>
        <source>Warning/Limit Exceed</source>
        <translation>Překročení výstrah/limitů</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataTable</name>
    <message>
        <source>Values of the selected parameters</source>
        <translation>Hodnoty vybraných parametrů</translation>
    </message>
    <message>
        <source>The recording holds no sample of the selected parameters.</source>
        <translation>Záznam neobsahuje žádný vzorek vybraných parametrů.</translation>
    </message>
    <message>
        <source>There is not enough memory for this table; load fewer recordings.</source>
        <translation>Pro tuto tabulku není dost paměti; načtěte méně záznamů.</translation>
    </message>
    <message>
        <source>The table is being filled.</source>
        <translation>Tabulka se naplňuje.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataTrack</name>
    <message>
        <source>Show all (Home)</source>
        <translation>Zobrazit vše (Home)</translation>
    </message>
    <message>
        <source>Zoom in (+)</source>
        <translation>Přiblížit (+)</translation>
    </message>
    <message>
        <source>Zoom out (-)</source>
        <translation>Oddálit (-)</translation>
    </message>
    <message>
        <source>C&amp;olored by:</source>
        <translation>&amp;Barva podle:</translation>
    </message>
    <message>
        <source>Hei&amp;ght over:</source>
        <translation>&amp;Výška podle:</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Vzdálenost</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nic</translation>
    </message>
    <message>
        <source>State of all parameters</source>
        <translation>Stav všech parametrů</translation>
    </message>
    <message>
        <source>There is not enough memory for the path.</source>
        <translation>Pro dráhu není dost paměti.</translation>
    </message>
    <message>
        <source>The path is being found.</source>
        <translation>Dráha se zjišťuje.</translation>
    </message>
    <message>
        <source>All positions of the recording are 0/0, %1 of them: the receiver did not know where it was.</source>
        <translation>Všechny polohy záznamu jsou 0/0, celkem %1: přijímač nevěděl, kde je.</translation>
    </message>
    <message>
        <source>The recording holds no position: no latitude with a longitude.</source>
        <translation>Záznam neobsahuje žádnou polohu: žádnou šířku s délkou.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataWarning</name>
    <message>
        <source>Warning Lamps</source>
        <translation>Výstražné kontrolky</translation>
    </message>
</context>
<context>
    <name>TARN::DialogEventList</name>
    <message>
        <source>Go to the &amp;Start</source>
        <translation>Přejít na &amp;začátek</translation>
    </message>
    <message>
        <source>Go to the &amp;Peak</source>
        <translation>Přejít na &amp;vrchol</translation>
    </message>
    <message>
        <source>Show in the &amp;Graph</source>
        <translation>Zobrazit v &amp;grafu</translation>
    </message>
    <message>
        <source>&amp;Copy All with Headers</source>
        <translation>&amp;Kopírovat vše se záhlavím</translation>
    </message>
    <message>
        <source>Nothing in the list fits the filter.</source>
        <translation>Filtru neodpovídá nic v seznamu.</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtrovat</translation>
    </message>
    <message>
        <source>There is not enough memory to look for what happened.</source>
        <translation>Není dost paměti na zjištění, co se stalo.</translation>
    </message>
    <message>
        <source>What happened is being looked for.</source>
        <translation>Zjišťuje se, co se stalo.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsv</name>
    <message>
        <source>CSV Export</source>
        <translation>Export CSV</translation>
    </message>
    <message>
        <source>ORNA Viewer Warning</source>
        <translation>Prohlížeč ORNA – upozornění</translation>
    </message>
    <message>
        <source>Exporting CSV/CAN file failed !</source>
        <translation>Export souboru CSV/CAN se nezdařil !</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsvOptions</name>
    <message>
        <source>CSV/CAN Export</source>
        <translation>Export CSV/CAN</translation>
    </message>
    <message>
        <source>Select CSV/CAN Option</source>
        <translation>Zvolte možnosti CSV/CAN</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Oddělovač</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Rozlišení</translation>
    </message>
    <message>
        <source>Parameter Selection</source>
        <translation>Výběr parametrů</translation>
    </message>
    <message>
        <source>Semikolon ;</source>
        <translation>Středník ;</translation>
    </message>
    <message>
        <source>Comma ,</source>
        <translation>Čárka ,</translation>
    </message>
    <message>
        <source>Tabstop</source>
        <translation>Tabulátor</translation>
    </message>
    <message>
        <source>Stands between two columns</source>
        <translation>Znak mezi dvěma sloupci</translation>
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
        <translation>Čas od řádku k řádku</translation>
    </message>
    <message>
        <source>All Parameter</source>
        <translation>Všechny parametry</translation>
    </message>
    <message>
        <source>Selected Parameter only</source>
        <translation>Jen vybrané parametry</translation>
    </message>
    <message>
        <source>Columns of the table</source>
        <translation>Sloupce tabulky</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsvPath</name>
    <message>
        <source>Save CSV/CAN Export</source>
        <translation>Uložit export CSV/CAN</translation>
    </message>
    <message>
        <source>CSV/CAN Export</source>
        <translation>Export CSV/CAN</translation>
    </message>
    <message>
        <source>Select the output directory and file</source>
        <translation>Zvolte výstupní složku a soubor</translation>
    </message>
    <message>
        <source>.CSV Export</source>
        <translation>Export .CSV</translation>
    </message>
    <message>
        <source>.CAN Export</source>
        <translation>Export .CAN</translation>
    </message>
    <message>
        <source>A table of decoded values, or a recording that can be opened again</source>
        <translation>Tabulka dekódovaných hodnot, nebo záznam, který lze znovu otevřít</translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation>Název souboru v této složce</translation>
    </message>
    <message>
        <source>Export Path</source>
        <translation>Cílová složka</translation>
    </message>
    <message>
        <source>Export Type</source>
        <translation>Typ exportu</translation>
    </message>
    <message>
        <source>Export Filename</source>
        <translation>Název souboru</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportGpx</name>
    <message>
        <source>GPX Export</source>
        <translation>Export GPX</translation>
    </message>
    <message>
        <source>Save GPX Export</source>
        <translation>Uložit export GPX</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA – upozornění</translation>
    </message>
    <message>
        <source>Exporting GPX file failed !</source>
        <translation>Export souboru GPX se nezdařil !</translation>
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
        <translation>Jeden bod dráhy na každý takový úsek</translation>
    </message>
    <message>
        <source>Waypoints at limits and lamps</source>
        <translation>Body trasy u mezí a kontrolek</translation>
    </message>
    <message>
        <source>GPX Export</source>
        <translation>Export GPX</translation>
    </message>
    <message>
        <source>Select GPX Option</source>
        <translation>Zvolte možnosti GPX</translation>
    </message>
    <message>
        <source>Where limits were exceeded and warning lamps came on</source>
        <translation>Kde byly překročeny meze a rozsvítily se výstražné kontrolky</translation>
    </message>
    <message>
        <source>Timestamp every :</source>
        <translation>Časový údaj každých :</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKml</name>
    <message>
        <source>Google Earth KML Export</source>
        <translation>Export Google Earth KML</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA – upozornění</translation>
    </message>
    <message>
        <source>Exporting KML file failed !</source>
        <translation>Export souboru KML se nezdařil !</translation>
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
        <translation>Jeden bod dráhy za každých</translation>
    </message>
    <message>
        <source>KML Export</source>
        <translation>Export KML</translation>
    </message>
    <message>
        <source>Select KML Option</source>
        <translation>Zvolte možnosti KML</translation>
    </message>
    <message>
        <source>Timestamp every :</source>
        <translation>Časový údaj každých :</translation>
    </message>
    <message>
        <source>Width of the flight path</source>
        <translation>Šířka dráhy letu</translation>
    </message>
    <message>
        <source>Select Line Color</source>
        <translation>Vybrat barvu čáry</translation>
    </message>
    <message>
        <source>Line Style</source>
        <translation>Styl čáry</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Šířka čáry</translation>
    </message>
    <message>
        <source>Line color</source>
        <translation>Barva čáry</translation>
    </message>
    <message>
        <source>Select Polygon Color</source>
        <translation>Vybrat barvu polygonu</translation>
    </message>
    <message>
        <source>Draw Polygon</source>
        <translation>Kreslit polygon</translation>
    </message>
    <message>
        <source>A curtain from the flight path to the ground</source>
        <translation>Svislá stěna od dráhy letu k zemi</translation>
    </message>
    <message>
        <source>Polygon color</source>
        <translation>Barva polygonu</translation>
    </message>
    <message>
        <source>Timed track</source>
        <translation>Dráha s časy</translation>
    </message>
    <message>
        <source>Times and the selected values at each point, so that earth viewers can play the flight; nothing is drawn over gaps</source>
        <translation>Časy a vybrané hodnoty v každém bodě, aby prohlížeče Země mohly let přehrát; přes mezery se nic nekreslí</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKmlPath</name>
    <message>
        <source>Save KML Export</source>
        <translation>Uložit export KML</translation>
    </message>
    <message>
        <source>KML Export</source>
        <translation>Export KML</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKmlPlacemark</name>
    <message>
        <source>KML Export</source>
        <translation>Export KML</translation>
    </message>
    <message>
        <source>Select KML Placemarks</source>
        <translation>Zvolte značky míst KML</translation>
    </message>
    <message>
        <source> samples</source>
        <translation> vzorků</translation>
    </message>
    <message>
        <source>Points of the path from mark to mark</source>
        <translation>Body dráhy od značky ke značce</translation>
    </message>
    <message>
        <source>Select Placemark Color</source>
        <translation>Vybrat barvu značek míst</translation>
    </message>
    <message>
        <source>Draw selected parameters as placemarks</source>
        <translation>Kreslit vybrané parametry jako značky míst</translation>
    </message>
    <message>
        <source>Placemark every</source>
        <translation>Značka místa každých</translation>
    </message>
    <message>
        <source>Placemark Color</source>
        <translation>Barva značek míst</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zobrazit</translation>
    </message>
    <message>
        <source>Select Exceedance Color</source>
        <translation>Vybrat barvu překročení</translation>
    </message>
    <message>
        <source>Show Limit exceedance / Warning Lamps</source>
        <translation>Zobrazit překročení limitů / výstražné kontrolky</translation>
    </message>
    <message>
        <source>Limit Exceedance</source>
        <translation>Překročení limitů</translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation>Výstražné kontrolky</translation>
    </message>
    <message>
        <source>Exceedance Placemark Color</source>
        <translation>Barva značek překročení</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportPath</name>
    <message>
        <source>Select the output directory and file</source>
        <translation>Zvolte výstupní složku a soubor</translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation>Název souboru v této složce</translation>
    </message>
    <message>
        <source>Export Path</source>
        <translation>Cílová složka</translation>
    </message>
    <message>
        <source>Export Filename</source>
        <translation>Název souboru</translation>
    </message>
</context>
<context>
    <name>TARN::DialogGraphSetup</name>
    <message>
        <source>Background color</source>
        <translation>Barva pozadí</translation>
    </message>
    <message>
        <source>Grid On</source>
        <translation>Mřížka</translation>
    </message>
    <message>
        <source>Grid color</source>
        <translation>Barva mřížky</translation>
    </message>
    <message>
        <source>Label color</source>
        <translation>Barva popisků</translation>
    </message>
    <message>
        <source>Label background</source>
        <translation>Pozadí popisků</translation>
    </message>
    <message>
        <source>Cursor On</source>
        <translation>Kurzor</translation>
    </message>
    <message>
        <source>Legend On</source>
        <translation>Legenda</translation>
    </message>
    <message>
        <source>Autoscale On</source>
        <translation>Autom. měřítko</translation>
    </message>
    <message>
        <source>Y minimum</source>
        <translation>Minimum Y</translation>
    </message>
    <message>
        <source>Y maximum</source>
        <translation>Maximum Y</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Oscilloscope Setup</source>
        <translation>Nastavení osciloskopu</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Vybrat</translation>
    </message>
    <message>
        <source>%1, used while autoscale is off</source>
        <translation>%1, platí při vypnutém automatickém měřítku</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>Plovoucí</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Střed</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Konec</translation>
    </message>
    <message>
        <source>Cursor mode</source>
        <translation>Režim kurzoru</translation>
    </message>
    <message>
        <source>Background Color :</source>
        <translation>Barva pozadí :</translation>
    </message>
    <message>
        <source>Grid On/Color :</source>
        <translation>Mřížka/barva :</translation>
    </message>
    <message>
        <source>Label Color :</source>
        <translation>Barva popisků :</translation>
    </message>
    <message>
        <source>Label Background :</source>
        <translation>Pozadí popisků :</translation>
    </message>
    <message>
        <source>Cursor On/Mode :</source>
        <translation>Kurzor/režim :</translation>
    </message>
    <message>
        <source>Legend :</source>
        <translation>Legenda :</translation>
    </message>
    <message>
        <source>Y-Scale :</source>
        <translation>Měřítko Y :</translation>
    </message>
    <message>
        <source>Colors of the plot</source>
        <translation>Barvy plochy grafu</translation>
    </message>
    <message>
        <source>Colors of pictures</source>
        <translation>Barvy obrázků</translation>
    </message>
    <message>
        <source>Colors/Of Pictures :</source>
        <translation>Barvy/obrázků :</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Tmavé</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Světlé</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Jako plocha systému</translation>
    </message>
    <message>
        <source>As the graph</source>
        <translation>Jako graf</translation>
    </message>
    <message>
        <source>Thresholds :</source>
        <translation>Prahy :</translation>
    </message>
    <message>
        <source>Thresholds On</source>
        <translation>Prahy zapnuty</translation>
    </message>
    <message>
        <source>Lines and bands at the values where a range begins; a name stands on the color of the range that its value is in</source>
        <translation>Čáry a pásy u hodnot, kde začíná rozsah; název stojí na barvě rozsahu, ve kterém je jeho hodnota</translation>
    </message>
    <message>
        <source>Events :</source>
        <translation>Události :</translation>
    </message>
    <message>
        <source>Events On</source>
        <translation>Události zapnuty</translation>
    </message>
    <message>
        <source>Ticks over the plot for limits, lamps and faults, bars for as long as a limit was exceeded</source>
        <translation>Značky nad grafem pro limity, kontrolky a závady, pruhy po dobu překročení limitu</translation>
    </message>
    <message>
        <source>Error Lanes :</source>
        <translation>Pruhy chyb :</translation>
    </message>
    <message>
        <source>Error Lanes On</source>
        <translation>Pruhy chyb zapnuty</translation>
    </message>
    <message>
        <source>The active errors of each error matrix below the curves</source>
        <translation>Aktivní chyby každé matice poruch pod křivkami</translation>
    </message>
    <message>
        <source>States :</source>
        <translation>Stavy :</translation>
    </message>
    <message>
        <source>States in Words</source>
        <translation>Stavy slovy</translation>
    </message>
    <message>
        <source>Names of states beside their numbers</source>
        <translation>Názvy stavů vedle jejich čísel</translation>
    </message>
</context>
<context>
    <name>TARN::DialogLogbook</name>
    <message>
        <source>Stop adding; what was added stays</source>
        <translation>Zastavit přidávání; co bylo přidáno, zůstane</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Deník</translation>
    </message>
    <message>
        <source>Reading the logbook...</source>
        <translation>Čtení deníku...</translation>
    </message>
    <message>
        <source>Add every flight that you open to this logbook? Only statistics and events are kept. You can change that under Extras, Preferences.</source>
        <translation>Přidávat do tohoto deníku každý let, který otevřete? Ukládají se jen statistiky a události. Změnit to můžete v nabídce Nástroje, Předvolby.</translation>
    </message>
    <message>
        <source>&amp;Yes, Add Them</source>
        <translation>&amp;Ano, přidávat</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ne</translation>
    </message>
    <message>
        <source>&amp;Add Folder...</source>
        <translation>&amp;Přidat složku...</translation>
    </message>
    <message>
        <source>Add the flights of a folder and of all folders in it</source>
        <translation>Přidat lety ze složky a ze všech složek v ní</translation>
    </message>
    <message>
        <source>&amp;Maintenance...</source>
        <translation>Ú&amp;držba...</translation>
    </message>
    <message>
        <source>Note that something was done to the engine: trends begin anew</source>
        <translation>Zapsat, že se na motoru něco udělalo: trendy začínají znovu</translation>
    </message>
    <message>
        <source>Every flight that you open is added from now on.</source>
        <translation>Každý let, který otevřete, se od nynějška přidává.</translation>
    </message>
    <message>
        <source>The logbook is empty.
&lt;a href=&quot;add&quot;&gt;Add a folder&lt;/a&gt; of recordings; the folders in it are looked through too.</source>
        <translation>Deník je prázdný.
&lt;a href=&quot;add&quot;&gt;Přidejte složku&lt;/a&gt; se záznamy; prohledají se i složky v ní.</translation>
    </message>
    <message>
        <source>There is no profile by which recordings could be understood. Choose one under Extras, Preferences.</source>
        <translation>Není k dispozici žádný profil, podle kterého by šlo záznamy dekódovat. Zvolte jej v nabídce Nástroje, Předvolby.</translation>
    </message>
    <message>
        <source>Add a Folder to the Logbook</source>
        <translation>Přidat složku do deníku</translation>
    </message>
    <message>
        <source>Adding</source>
        <translation>Přidávání</translation>
    </message>
    <message>
        <source>Choose a flight of the engine first.</source>
        <translation>Nejprve zvolte let motoru.</translation>
    </message>
    <message>
        <source>Remove the flight of %1 from the logbook?</source>
        <translation>Odebrat z deníku let z %1?</translation>
    </message>
    <message>
        <source>Its recordings stay where they are and can be added again.</source>
        <translation>Jeho záznamy zůstanou, kde jsou, a lze je přidat znovu.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Looking for its recordings...</source>
        <translation>Hledání jeho záznamů...</translation>
    </message>
    <message>
        <source>Opened: %1</source>
        <translation>Otevřeno: %1</translation>
    </message>
    <message>
        <source>Where are the recordings of the flight of %1? The folders in the one that you choose are looked through too.</source>
        <translation>Kde jsou záznamy letu z %1? Prohledají se i složky v té, kterou zvolíte.</translation>
    </message>
    <message>
        <source>Choose Folder...</source>
        <translation>Zvolit složku...</translation>
    </message>
    <message>
        <source>Find Recordings</source>
        <translation>Najít záznamy</translation>
    </message>
    <message>
        <source>F5 tries it again; Extras, Preferences tells which logbook it is.</source>
        <translation>F5 to zkusí znovu; o který deník jde, je uvedeno v nabídce Nástroje, Předvolby.</translation>
    </message>
    <message>
        <source>Flights are being added already. Wait for the end, or cancel it.</source>
        <translation>Lety se již přidávají. Počkejte na konec, nebo to zrušte.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogMain</name>
    <message>
        <source>[edited]</source>
        <translation>[změněno]</translation>
    </message>
    <message>
        <source>Open SD Card</source>
        <translation>Otevřít SD kartu</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA – upozornění</translation>
    </message>
    <message>
        <source>Recordings found: %1</source>
        <translation>Nalezeno záznamů: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; could not be loaded: no parameters can be shown. Choose another under Extras, Preferences.</source>
        <translation>Profil „%1“ se nepodařilo načíst: nelze zobrazit žádné parametry. Zvolte jiný v nabídce Nástroje, Předvolby.</translation>
    </message>
    <message>
        <source>No recording is listed. Open a card first.</source>
        <translation>V seznamu není žádný záznam. Nejprve otevřete kartu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a project nor a profile.</source>
        <translation>Soubor „%1“ není projekt ani profil.</translation>
    </message>
    <message>
        <source>The offset could not be saved on the card (is it write-protected?) and holds until the program ends.</source>
        <translation>Posun se nepodařilo uložit na kartu (není chráněna proti zápisu?) a platí do ukončení programu.</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Načítání</translation>
    </message>
    <message>
        <source>%1 samples/s</source>
        <translation>%1 vzorků/s</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>Načítání bylo zrušeno.</translation>
    </message>
    <message>
        <source>Not loaded: %1</source>
        <translation>Nenačteno: %1</translation>
    </message>
    <message>
        <source>Exporting %1</source>
        <translation>Export %1</translation>
    </message>
    <message>
        <source>An export is running.
Wait until it is complete, or stop it? A stopped export leaves the old file.</source>
        <translation>Probíhá export.
Počkat na jeho dokončení, nebo jej zastavit? Zastavený export ponechá původní soubor beze změny.</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Počkat</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Zastavit</translation>
    </message>
    <message>
        <source>Loading the reference</source>
        <translation>Načítání reference</translation>
    </message>
    <message>
        <source>Loading the reference was cancelled.</source>
        <translation>Načítání reference bylo zrušeno.</translation>
    </message>
    <message>
        <source>No reference was loaded: %1</source>
        <translation>Reference nebyla načtena: %1</translation>
    </message>
</context>
<context>
    <name>TARN::DialogPreferences</name>
    <message>
        <source>Preferences</source>
        <translation>Předvolby</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Stránky</translation>
    </message>
    <message>
        <source>Pages of the preferences</source>
        <translation>Stránky předvoleb</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Obecné</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close; every change holds already</source>
        <translation>Zavřít; všechny změny již platí</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose a profile file</source>
        <translation>Zvolit soubor profilu</translation>
    </message>
    <message>
        <source>Profile File :</source>
        <translation>Soubor profilu :</translation>
    </message>
    <message>
        <source>Language :</source>
        <translation>Jazyk :</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Aplikace</translation>
    </message>
    <message>
        <source>The XML file that says how the samples are decoded</source>
        <translation>Soubor XML, který určuje, jak se vzorky dekódují</translation>
    </message>
    <message>
        <source>Profile file</source>
        <translation>Soubor profilu</translation>
    </message>
    <message>
        <source>Language of the program from its next start on</source>
        <translation>Jazyk programu od příštího spuštění</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Jazyk</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>ORNA Profile (*.xml);;All files (*.*)</source>
        <translation>Profil ORNA (*.xml);;Všechny soubory (*.*)</translation>
    </message>
    <message>
        <source>TARN Info</source>
        <translation>TARN – informace</translation>
    </message>
    <message>
        <source>Please restart TARN to load new language !</source>
        <translation>Pro načtení nového jazyka restartujte TARN !</translation>
    </message>
    <message>
        <source>All recorded digits</source>
        <translation>Všechny zaznamenané číslice</translation>
    </message>
    <message>
        <source>Numbers on the screen with all the digits that were recorded, instead of the fewest that read back as the same number; exports have them always</source>
        <translation>Čísla na obrazovce se všemi zaznamenanými číslicemi místo nejmenšího počtu, který určuje totéž číslo; exporty je obsahují vždy</translation>
    </message>
    <message>
        <source>Add every flight that I open</source>
        <translation>Přidávat každý let, který otevřu</translation>
    </message>
    <message>
        <source>Logbook :</source>
        <translation>Deník :</translation>
    </message>
    <message>
        <source>a file of the program&apos;s own</source>
        <translation>vlastní soubor programu</translation>
    </message>
    <message>
        <source>Where flights are kept: empty for this machine alone, &quot;postgresql://user@host/database&quot; for a team. A password is taken from PGPASSWORD or ~/.pgpass and never kept</source>
        <translation>Kde se lety ukládají: prázdné jen pro tento počítač, „postgresql://uživatel@počítač/databáze“ pro tým. Heslo se bere z PGPASSWORD nebo ~/.pgpass a nikdy se neukládá</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Deník</translation>
    </message>
    <message>
        <source>Keeps statistics and events of every flight in the logbook, not its samples</source>
        <translation>Ukládá do deníku statistiky a události každého letu, nikoli jeho vzorky</translation>
    </message>
</context>
<context>
    <name>TARN::DialogProfile</name>
    <message>
        <source>Clear</source>
        <translation>Odznačit vše</translation>
    </message>
    <message>
        <source>Confirm Selection</source>
        <translation>Potvrdit výběr</translation>
    </message>
    <message>
        <source>Selected Parameters</source>
        <translation>Vybrané parametry</translation>
    </message>
    <message>
        <source>Untick all parameters</source>
        <translation>Zrušit zaškrtnutí všech parametrů</translation>
    </message>
    <message>
        <source>Show the ticked parameters in all views</source>
        <translation>Zobrazit zaškrtnuté parametry ve všech pohledech</translation>
    </message>
    <message>
        <source>Parameters of the profile</source>
        <translation>Parametry profilu</translation>
    </message>
    <message>
        <source>Not in this profile</source>
        <translation>Chybí v tomto profilu</translation>
    </message>
    <message>
        <source>The project selects these too; they are kept in its file</source>
        <translation>Projekt vybírá i tyto parametry; v jeho souboru zůstávají zachovány</translation>
    </message>
</context>
<context>
    <name>TARN::DialogRecordDetails</name>
    <message>
        <source>Recording Details</source>
        <translation>Podrobnosti záznamu</translation>
    </message>
    <message>
        <source>Recording details</source>
        <translation>Podrobnosti záznamu</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Pole</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hodnota</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopírovat</translation>
    </message>
    <message>
        <source>Copy the selected lines, or all when none is selected</source>
        <translation>Kopírovat vybrané řádky, nebo všechny, není-li vybrán žádný</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Zavřít toto okno</translation>
    </message>
</context>
<context>
    <name>TARN::DialogReport</name>
    <message>
        <source>Folder of the Report</source>
        <translation>Složka zprávy</translation>
    </message>
    <message>
        <source>&amp;Open it when it is written</source>
        <translation>Poté &amp;otevřít</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Zpráva o letu</translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation>Název souboru v této složce</translation>
    </message>
    <message>
        <source>Web page (HTML)</source>
        <translation>Webová stránka (HTML)</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Size of the paper that it is printed on</source>
        <translation>Velikost papíru pro tisk</translation>
    </message>
    <message>
        <source>A range is marked in the graph</source>
        <translation>Rozsah se vyznačuje v grafu</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>S&amp;ložka</translation>
    </message>
    <message>
        <source>File &amp;Name</source>
        <translation>&amp;Název souboru</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Druh</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>&amp;Papír</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>&amp;Rozsah</translation>
    </message>
    <message>
        <source>Write Report</source>
        <translation>Zapsat zprávu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>Whole flight, %1 to %2</source>
        <translation>Celý let, %1 až %2</translation>
    </message>
    <message>
        <source>Marked range, %1 to %2</source>
        <translation>Vyznačený rozsah, %1 až %2</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA – upozornění</translation>
    </message>
    <message>
        <source>The flight report could not be written.</source>
        <translation>Zprávu o letu se nepodařilo zapsat.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogStatusBar</name>
    <message>
        <source>Stop loading (Escape)</source>
        <translation>Zrušit načítání (Esc)</translation>
    </message>
    <message>
        <source>Stop the export</source>
        <translation>Zastavit export</translation>
    </message>
    <message>
        <source>Stop loading the reference (Escape)</source>
        <translation>Zrušit načítání reference (Esc)</translation>
    </message>
</context>
<context>
    <name>TARN::DirectoryEdit</name>
    <message>
        <source>Browse...</source>
        <translation>Procházet...</translation>
    </message>
    <message>
        <source>Folder of the file</source>
        <translation>Složka souboru</translation>
    </message>
</context>
<context>
    <name>TARN::EventFilter</name>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>Filtr (Ctrl+F)</translation>
    </message>
    <message>
        <source>Show only lines that hold this text</source>
        <translation>Zobrazit jen řádky s tímto textem</translation>
    </message>
    <message>
        <source>Filter text</source>
        <translation>Text filtru</translation>
    </message>
    <message>
        <source>Show only lines of this severity</source>
        <translation>Zobrazit jen řádky této závažnosti</translation>
    </message>
    <message>
        <source>Filter severity</source>
        <translation>Závažnost filtru</translation>
    </message>
    <message>
        <source>Every severity</source>
        <translation>Každá závažnost</translation>
    </message>
</context>
<context>
    <name>TARN::EventModel</name>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Out of range without an event</source>
        <translation>Mimo rozsah bez události</translation>
    </message>
    <message>
        <source>at its limit</source>
        <translation>v pásmu limitu</translation>
    </message>
    <message>
        <source>in warning</source>
        <translation>v pásmu výstrahy</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Do</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trvání</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Krajní hodnota</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Prahová hodnota</translation>
    </message>
    <message>
        <source>%1 on</source>
        <translation>%1 svítí</translation>
    </message>
    <message>
        <source>On without an event</source>
        <translation>Svítí bez události</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Závažnost</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Reference: %1</translation>
    </message>
</context>
<context>
    <name>TARN::ExportRunner</name>
    <message>
        <source>Written: %1</source>
        <translation>Zapsáno: %1</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The export was stopped; the old file, if there was one, is unchanged.</source>
        <translation>Export byl zastaven; původní soubor, pokud existoval, zůstal beze změny.</translation>
    </message>
</context>
<context>
    <name>TARN::FlightBar</name>
    <message>
        <source>What happened</source>
        <translation>Co se stalo</translation>
    </message>
    <message>
        <source>Click a part to go to the first of its kind</source>
        <translation>Kliknutím na část přejdete k prvnímu svého druhu</translation>
    </message>
</context>
<context>
    <name>TARN::FlightList</name>
    <message>
        <source>Show the flights of this engine only</source>
        <translation>Zobrazit jen lety tohoto motoru</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Motor</translation>
    </message>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>Filtr (Ctrl+F)</translation>
    </message>
    <message>
        <source>Show only flights that hold this text</source>
        <translation>Zobrazit jen lety, které obsahují tento text</translation>
    </message>
    <message>
        <source>Filter text</source>
        <translation>Text filtru</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Lety</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Otevřít</translation>
    </message>
    <message>
        <source>Open as &amp;Reference</source>
        <translation>Otevřít jako &amp;referenci</translation>
    </message>
    <message>
        <source>&amp;Remove from the Logbook...</source>
        <translation>Odebrat z &amp;deníku...</translation>
    </message>
    <message>
        <source>All engines (%1)</source>
        <translation>Všechny motory (%1)</translation>
    </message>
    <message>
        <source>No flight of %1 holds &quot;%2&quot;.</source>
        <translation>Žádný let z %1 neobsahuje „%2“.</translation>
    </message>
</context>
<context>
    <name>TARN::FlightListModel</name>
    <message>
        <source>without number</source>
        <translation>bez čísla</translation>
    </message>
    <message>
        <source>by the UTC in its data</source>
        <translation>podle UTC v jeho datech</translation>
    </message>
    <message>
        <source>by its header, in whatever zone</source>
        <translation>podle jeho hlavičky, v neznámém časovém pásmu</translation>
    </message>
    <message>
        <source>nothing tells when it was</source>
        <translation>nic neříká, kdy to bylo</translation>
    </message>
    <message>
        <source>Flight %1, %2.
Engine %3 %4, profile %5.
Double-click: open it; with Shift: open it as the reference.</source>
        <translation>Let %1, %2.
Motor %3 %4, profil %5.
Dvojité kliknutí: otevřít; s klávesou Shift: otevřít jako referenci.</translation>
    </message>
    <message>
        <source>Start (UTC)</source>
        <translation>Začátek (UTC)</translation>
    </message>
    <message>
        <source>When the flight began; slanted: by the header&apos;s clock, whose zone is not known</source>
        <translation>Kdy let začal; kurzívou: podle hodin hlavičky, jejichž časové pásmo není známo</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Trvání</translation>
    </message>
    <message>
        <source>From the first sample to the last</source>
        <translation>Od prvního vzorku do posledního</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Motor</translation>
    </message>
    <message>
        <source>Serial number of the engine</source>
        <translation>Výrobní číslo motoru</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Nejhorší</translation>
    </message>
    <message>
        <source>The worst that happened</source>
        <translation>To nejhorší, co se stalo</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limity</translation>
    </message>
    <message>
        <source>Times out of range that reached a limit</source>
        <translation>Kolikrát byl opuštěn rozsah a dosažen limit</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Varování</translation>
    </message>
    <message>
        <source>Times out of range that did not reach a limit</source>
        <translation>Kolikrát byl opuštěn rozsah, aniž byl dosažen limit</translation>
    </message>
    <message>
        <source>Lamps</source>
        <translation>Kontrolky</translation>
    </message>
    <message>
        <source>Times that a warning lamp was on</source>
        <translation>Kolikrát svítila výstražná kontrolka</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Poruchy</translation>
    </message>
    <message>
        <source>Warnings and faults that the matrices told of</source>
        <translation>Varování a poruchy, které hlásily matice</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Poznámky</translation>
    </message>
    <message>
        <source>What is to be said about the recordings themselves</source>
        <translation>Co je třeba říci o samotných záznamech</translation>
    </message>
</context>
<context>
    <name>TARN::FlightLoader</name>
    <message>
        <source>There is not enough memory for the recording; load fewer at once.</source>
        <translation>Pro záznam není dost paměti; načtěte méně záznamů najednou.</translation>
    </message>
    <message>
        <source>There is not enough memory to show the recording; load fewer at once.</source>
        <translation>K zobrazení záznamu není dost paměti; načtěte méně záznamů najednou.</translation>
    </message>
    <message>
        <source>Looking for events</source>
        <translation>Hledání událostí</translation>
    </message>
</context>
<context>
    <name>TARN::GraphButtons</name>
    <message>
        <source>Zoom In</source>
        <translation>Přiblížit</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Oddálit</translation>
    </message>
    <message>
        <source>Zoom 1:1</source>
        <translation>Zoom 1:1</translation>
    </message>
    <message>
        <source>Zoom Marker</source>
        <translation>Zoom na značky</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Zobrazit vše</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Vymazat vše</translation>
    </message>
    <message>
        <source>Automatic Mode</source>
        <translation>Automatický režim</translation>
    </message>
    <message>
        <source>Split Mode</source>
        <translation>Dělený režim</translation>
    </message>
    <message>
        <source>Single Graph Mode</source>
        <translation>Režim jednoho grafu</translation>
    </message>
    <message>
        <source>Reset all to default</source>
        <translation>Obnovit výchozí stav</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Nastavení</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Snímek</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Measuring Panel</source>
        <translation>Měřicí panel</translation>
    </message>
</context>
<context>
    <name>TARN::LogbookAccess</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Není dost paměti.</translation>
    </message>
    <message>
        <source>%1 of %2 flights</source>
        <translation>%1 z %2 letů</translation>
    </message>
    <message>
        <source>Trying again: %1</source>
        <translation>Další pokus: %1</translation>
    </message>
</context>
<context>
    <name>TARN::LogbookKeeper</name>
    <message>
        <source>Added to the logbook.</source>
        <translation>Přidáno do deníku.</translation>
    </message>
    <message>
        <source>Not added to the logbook: %1</source>
        <translation>Nepřidáno do deníku: %1</translation>
    </message>
</context>
<context>
    <name>TARN::MeasureModel</name>
    <message>
        <source>Of them without a number: %1</source>
        <translation>Z toho bez čísla: %1</translation>
    </message>
    <message>
        <source>Steps of more than %1 s, together %2 s</source>
        <translation>Kroky delší než %1 s, celkem %2 s</translation>
    </message>
    <message>
        <source>Sent only when something changes</source>
        <translation>Posílá se, jen když se něco změní</translation>
    </message>
    <message>
        <source>Click to go there</source>
        <translation>Kliknutím tam přejdete</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parametr</translation>
    </message>
    <message>
        <source>Curves of the graph, in their order</source>
        <translation>Křivky grafu v jejich pořadí</translation>
    </message>
    <message>
        <source>Value at A</source>
        <translation>Hodnota v A</translation>
    </message>
    <message>
        <source>Value at B</source>
        <translation>Hodnota v B</translation>
    </message>
    <message>
        <source>Difference of the values at A and B</source>
        <translation>Rozdíl hodnot v A a B</translation>
    </message>
    <message>
        <source>per s</source>
        <translation>za s</translation>
    </message>
    <message>
        <source>Difference a second from A to B</source>
        <translation>Rozdíl za sekundu od A do B</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Smallest value from A to B</source>
        <translation>Nejmenší hodnota od A do B</translation>
    </message>
    <message>
        <source>Min at</source>
        <translation>Min v</translation>
    </message>
    <message>
        <source>When it stands first, recording clock</source>
        <translation>Kdy nastává poprvé, hodiny záznamu</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Greatest value from A to B</source>
        <translation>Největší hodnota od A do B</translation>
    </message>
    <message>
        <source>Max at</source>
        <translation>Max v</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Průměr</translation>
    </message>
    <message>
        <source>Mean of the values from A to B</source>
        <translation>Průměr hodnot od A do B</translation>
    </message>
    <message>
        <source>Time mean</source>
        <translation>Časový průměr</translation>
    </message>
    <message>
        <source>Mean of the values, each weighed with the time that it holds</source>
        <translation>Průměr hodnot, každá vážená dobou, po kterou platí</translation>
    </message>
    <message>
        <source>Std. dev.</source>
        <translation>Směr. odch.</translation>
    </message>
    <message>
        <source>Standard deviation of the values from A to B</source>
        <translation>Směrodatná odchylka hodnot od A do B</translation>
    </message>
    <message>
        <source>Integral</source>
        <translation>Integrál</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Vzorky</translation>
    </message>
    <message>
        <source>Samples from A to B</source>
        <translation>Vzorky od A do B</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Mezery</translation>
    </message>
    <message>
        <source>Stretches from A to B in which the parameter was not heard</source>
        <translation>Úseky od A do B, ve kterých nebyl parametr přijímán</translation>
    </message>
    <message>
        <source>Above thresholds</source>
        <translation>Nad prahy</translation>
    </message>
    <message>
        <source>For each threshold the seconds that the value was not below</source>
        <translation>Pro každý práh sekundy, kdy hodnota nebyla pod ním</translation>
    </message>
    <message>
        <source>Area below the curve from A to B: of litres an hour the litres</source>
        <translation>Plocha pod křivkou od A do B: z litrů za hodinu litry</translation>
    </message>
    <message>
        <source>Δ time mean</source>
        <translation>Δ časový průměr</translation>
    </message>
    <message>
        <source>Flight minus reference: mean from A to B, each difference weighed with the time that it holds</source>
        <translation>Let minus reference: průměr od A do B, každý rozdíl vážený dobou, po kterou platí</translation>
    </message>
    <message>
        <source>Δ A</source>
        <translation>Δ A</translation>
    </message>
    <message>
        <source>Flight minus reference at A</source>
        <translation>Let minus reference v A</translation>
    </message>
    <message>
        <source>Δ B</source>
        <translation>Δ B</translation>
    </message>
    <message>
        <source>Flight minus reference at B</source>
        <translation>Let minus reference v B</translation>
    </message>
    <message>
        <source>Δ min</source>
        <translation>Δ min</translation>
    </message>
    <message>
        <source>Smallest difference of flight and reference from A to B</source>
        <translation>Nejmenší rozdíl letu a reference od A do B</translation>
    </message>
    <message>
        <source>Δ max</source>
        <translation>Δ max</translation>
    </message>
    <message>
        <source>Greatest difference of flight and reference from A to B</source>
        <translation>Největší rozdíl letu a reference od A do B</translation>
    </message>
    <message>
        <source>Ref. time mean</source>
        <translation>Ref. časový průměr</translation>
    </message>
    <message>
        <source>Time mean of the reference from A to B</source>
        <translation>Časový průměr reference od A do B</translation>
    </message>
    <message>
        <source>Ref. A</source>
        <translation>Ref. A</translation>
    </message>
    <message>
        <source>Value of the reference at A</source>
        <translation>Hodnota reference v A</translation>
    </message>
    <message>
        <source>Ref. B</source>
        <translation>Ref. B</translation>
    </message>
    <message>
        <source>Value of the reference at B</source>
        <translation>Hodnota reference v B</translation>
    </message>
    <message>
        <source>Ref. min</source>
        <translation>Ref. min</translation>
    </message>
    <message>
        <source>Smallest value of the reference from A to B</source>
        <translation>Nejmenší hodnota reference od A do B</translation>
    </message>
    <message>
        <source>Ref. max</source>
        <translation>Ref. max</translation>
    </message>
    <message>
        <source>Greatest value of the reference from A to B</source>
        <translation>Největší hodnota reference od A do B</translation>
    </message>
</context>
<context>
    <name>TARN::MeasurePanel</name>
    <message>
        <source>Time of A, recording clock</source>
        <translation>Čas A, hodiny záznamu</translation>
    </message>
    <message>
        <source>Time of B, recording clock</source>
        <translation>Čas B, hodiny záznamu</translation>
    </message>
    <message>
        <source>Close the measuring panel</source>
        <translation>Zavřít měřicí panel</translation>
    </message>
    <message>
        <source>What is measured of the curves</source>
        <translation>Co se měří na křivkách</translation>
    </message>
    <message>
        <source>Copy with Headers</source>
        <translation>Kopírovat se záhlavím</translation>
    </message>
    <message>
        <source>B − A: %1 s</source>
        <translation>B − A: %1 s</translation>
    </message>
    <message>
        <source>Nothing is marked: the whole flight</source>
        <translation>Nic není označeno: celý let</translation>
    </message>
    <message>
        <source>Sort as the Curves</source>
        <translation>Seřadit jako křivky</translation>
    </message>
</context>
<context>
    <name>TARN::ProjectKeeper</name>
    <message>
        <source>Open TARN Project</source>
        <translation>Otevřít projekt TARN</translation>
    </message>
    <message>
        <source>Project Files (*.xml)</source>
        <translation>Soubory projektů (*.xml)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no project that can be read; the selection stays as it is.
Open a project file saved by this program.</source>
        <translation>Soubor „%1“ není čitelný projekt; výběr zůstává beze změny.
Otevřete soubor projektu uložený tímto programem.</translation>
    </message>
    <message>
        <source>TARN Warning</source>
        <translation>TARN – upozornění</translation>
    </message>
    <message>
        <source>Current Project not saved !
Save it now ?</source>
        <translation>Aktuální projekt není uložen !
Uložit nyní ?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ano</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Ne</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>The project was not saved: no profile is loaded, so its parameters are not known.
Choose a profile under Extras, Preferences.</source>
        <translation>Projekt nebyl uložen: není načten žádný profil, a jeho parametry proto nejsou známy.
Zvolte profil v nabídce Nástroje, Předvolby.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no project and is not replaced.
Choose another name for the project.</source>
        <translation>Soubor „%1“ není projekt a nebude nahrazen.
Zvolte pro projekt jiný název.</translation>
    </message>
    <message>
        <source>The project could not be written to &quot;%1&quot;.
The old file is unchanged; save it in another folder.</source>
        <translation>Projekt se nepodařilo zapsat do „%1“.
Původní soubor zůstal beze změny; uložte projekt do jiné složky.</translation>
    </message>
    <message>
        <source>Project saved: %1</source>
        <translation>Projekt uložen: %1</translation>
    </message>
    <message>
        <source>Save TARN Project</source>
        <translation>Uložit projekt TARN</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists in this folder. Replace it?</source>
        <translation>Soubor „%1“ v této složce již existuje. Nahradit?</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA – upozornění</translation>
    </message>
</context>
<context>
    <name>TARN::RangeDialog</name>
    <message>
        <source>Highest value :</source>
        <translation>Nejvyšší hodnota :</translation>
    </message>
    <message>
        <source>Lowest value :</source>
        <translation>Nejnižší hodnota :</translation>
    </message>
</context>
<context>
    <name>TARN::ReferenceBar</name>
    <message>
        <source>Curves</source>
        <translation>Křivky</translation>
    </message>
    <message>
        <source>Show the reference&apos;s curves (B in the graph)</source>
        <translation>Zobrazit křivky reference (B v grafu)</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Rozdíl</translation>
    </message>
    <message>
        <source>Show flight minus reference in strips of their own (D in the graph)</source>
        <translation>Zobrazit let minus reference v samostatných pruzích (D v grafu)</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Sloupce</translation>
    </message>
    <message>
        <source>Show the reference&apos;s values in the table</source>
        <translation>Zobrazit hodnoty reference v tabulce</translation>
    </message>
    <message>
        <source>Take the reference flight away</source>
        <translation>Odebrat referenční let</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Hodiny</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Začátek</translation>
    </message>
    <message>
        <source>Moment</source>
        <translation>Okamžik</translation>
    </message>
    <message>
        <source>Passing</source>
        <translation>Průchod</translation>
    </message>
    <message>
        <source>What is laid on what: times of day, the first samples, a moment picked in both, or when a parameter first passes a value</source>
        <translation>Co se položí na sebe: denní časy, první vzorky, okamžik vybraný v obou letech, nebo kdy parametr poprvé projde hodnotou</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Zarovnání</translation>
    </message>
    <message>
        <source>Parameter that passes the value</source>
        <translation>Parametr, který projde hodnotou</translation>
    </message>
    <message>
        <source>Value that is passed</source>
        <translation>Hodnota, kterou parametr projde</translation>
    </message>
    <message>
        <source>Shift of the reference</source>
        <translation>Posunutí reference</translation>
    </message>
    <message>
        <source>Seconds by which the reference is shifted; Alt and a drag in the graph shift it too</source>
        <translation>O kolik sekund je reference posunuta; posune ji i tažení s klávesou Alt v grafu</translation>
    </message>
    <message>
        <source>A&amp;lign:</source>
        <translation>Za&amp;rovnat:</translation>
    </message>
    <message>
        <source>Sh&amp;ift:</source>
        <translation>Pos&amp;unout:</translation>
    </message>
    <message>
        <source>Flight: %1</source>
        <translation>Let: %1</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Reference: %1</translation>
    </message>
    <message>
        <source>Align Here</source>
        <translation>Zarovnat sem</translation>
    </message>
    <message>
        <source>Pick Moment</source>
        <translation>Vybrat okamžik</translation>
    </message>
    <message>
        <source>Lays the reference&apos;s value at the cursor on the moment picked</source>
        <translation>Položí hodnotu reference u kurzoru na vybraný okamžik</translation>
    </message>
    <message>
        <source>Takes the cursor&apos;s time as the moment of the flight</source>
        <translation>Převezme čas kurzoru jako okamžik letu</translation>
    </message>
    <message>
        <source>The reference holds no sample of: %1</source>
        <translation>Reference neobsahuje žádný vzorek parametrů: %1</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> a další (%1)</translation>
    </message>
    <message>
        <source>Moment of the flight: %1. Go to where the reference&apos;s curve shows the same moment, then press Align Here.</source>
        <translation>Okamžik letu: %1. Přejděte tam, kde křivka reference ukazuje tentýž okamžik, a stiskněte „Zarovnat sem“.</translation>
    </message>
    <message>
        <source>One of the flights does not pass this value: the shift is the one before.</source>
        <translation>Jeden z letů touto hodnotou neprojde: zůstává předchozí posunutí.</translation>
    </message>
    <message>
        <source>The flights have no time in common: align them by their start, or shift the reference.</source>
        <translation>Lety nemají žádný společný čas: zarovnejte je podle začátku, nebo posuňte referenci.</translation>
    </message>
    <message>
        <source>The flights are being aligned.</source>
        <translation>Lety se zarovnávají.</translation>
    </message>
    <message>
        <source>There is not enough memory to compare everything; select fewer parameters.</source>
        <translation>Na porovnání všeho není dost paměti; vyberte méně parametrů.</translation>
    </message>
</context>
<context>
    <name>TARN::ReferenceGraph</name>
    <message>
        <source>Show &amp;Reference</source>
        <translation>Zobrazit &amp;referenci</translation>
    </message>
    <message>
        <source>Show &amp;Difference</source>
        <translation>Zobrazit r&amp;ozdíl</translation>
    </message>
    <message>
        <source>There is not enough memory for the reference&apos;s curves; select fewer parameters.</source>
        <translation>Pro křivky reference není dost paměti; vyberte méně parametrů.</translation>
    </message>
</context>
<context>
    <name>TARN::ReferenceLoader</name>
    <message>
        <source>There is not enough memory for a reference beside the flight.</source>
        <translation>Pro referenci vedle letu není dost paměti.</translation>
    </message>
    <message>
        <source>Looking for events</source>
        <translation>Hledání událostí</translation>
    </message>
</context>
<context>
    <name>TARN::SessionGraph</name>
    <message>
        <source>There is not enough memory for these curves; select fewer parameters.</source>
        <translation>Pro tyto křivky není dost paměti; vyberte méně parametrů.</translation>
    </message>
    <message>
        <source>%1 of %2 selected parameters shown</source>
        <translation>Zobrazené parametry: %1 z %2 vybraných</translation>
    </message>
    <message>
        <source>Left out of the graph, because their time falls: %1 samples</source>
        <translation>Vzorky vynechané z grafu, protože jejich čas jde zpět: %1</translation>
    </message>
    <message>
        <source>The graph was cleared.
Press &quot;Confirm Selection&quot; to fill it again.</source>
        <translation>Graf byl vymazán.
Stisknutím „Potvrdit výběr“ jej znovu naplníte.</translation>
    </message>
    <message>
        <source>The graph is being filled.</source>
        <translation>Graf se naplňuje.</translation>
    </message>
    <message>
        <source>The recording holds no sample of the selected parameters.</source>
        <translation>Záznam neobsahuje žádný vzorek vybraných parametrů.</translation>
    </message>
</context>
<context>
    <name>TARN::TableModel</name>
    <message>
        <source>Time</source>
        <translation>Čas</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Reference: %1</translation>
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
        <translation>Datum a denní čas v UTC</translation>
    </message>
    <message>
        <source>Time on the recording&apos;s clock</source>
        <translation>Čas podle hodin záznamu</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Posun:</translation>
    </message>
    <message>
        <source>UTC</source>
        <translation>UTC</translation>
    </message>
    <message>
        <source>Recording clock</source>
        <translation>Hodiny záznamu</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Seconds added to the times of units whose clock differs; kept with the card folder</source>
        <translation>Sekundy přičítané k časům jednotek, jejichž hodiny jdou jinak; ukládají se do složky karty</translation>
    </message>
    <message>
        <source>Current time, from the recording&apos;s start to its stop</source>
        <translation>Aktuální čas, od začátku do konce záznamu</translation>
    </message>
    <message>
        <source>Current time</source>
        <translation>Aktuální čas</translation>
    </message>
    <message>
        <source>Current time on the recording&apos;s clock; type a time and press Enter to go there</source>
        <translation>Aktuální čas podle hodin záznamu; zadejte čas a stisknutím Enter na něj přejdete</translation>
    </message>
    <message>
        <source>Go to time</source>
        <translation>Přejít na čas</translation>
    </message>
    <message>
        <source>Previous event</source>
        <translation>Předchozí událost</translation>
    </message>
    <message>
        <source>Next event</source>
        <translation>Další událost</translation>
    </message>
</context>
<context>
    <name>TARN::TrendListModel</name>
    <message>
        <source>Parameter</source>
        <translation>Parametr</translation>
    </message>
    <message>
        <source>Device, parameter and unit</source>
        <translation>Zařízení, parametr a jednotka</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Odchylka</translation>
    </message>
    <message>
        <source>How far the latest flight lies from the median, in robust standard deviations; red where it is marked</source>
        <translation>Jak daleko leží poslední let od mediánu, v robustních směrodatných odchylkách; červeně tam, kde je označen</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>Označeno</translation>
    </message>
    <message>
        <source>Number of flights that leave the band</source>
        <translation>Počet letů, které opouštějí pásmo</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>Poslední</translation>
    </message>
    <message>
        <source>In the latest flight that has a value</source>
        <translation>V posledním letu, který má hodnotu</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Medián</translation>
    </message>
    <message>
        <source>Of the other flights since the last maintenance</source>
        <translation>Ostatních letů od poslední údržby</translation>
    </message>
</context>
<context>
    <name>TARN::TrendPanel</name>
    <message>
        <source>Time mean when steady</source>
        <translation>Časový průměr při ustálení</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Seconds above WARNING</source>
        <translation>Sekundy nad WARNING</translation>
    </message>
    <message>
        <source>Times out of range</source>
        <translation>Kolikrát mimo rozsah</translation>
    </message>
    <message>
        <source>What is compared from flight to flight</source>
        <translation>Co se mezi lety porovnává</translation>
    </message>
    <message>
        <source>Figure</source>
        <translation>Ukazatel</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtr</translation>
    </message>
    <message>
        <source>Show only parameters that hold this text</source>
        <translation>Zobrazit jen parametry, které obsahují tento text</translation>
    </message>
    <message>
        <source>Filter of the parameters</source>
        <translation>Filtr parametrů</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parametry</translation>
    </message>
    <message>
        <source>No parameter holds this text.</source>
        <translation>Žádný parametr neobsahuje tento text.</translation>
    </message>
    <message>
        <source>No flight of this engine has a steady stretch of three minutes. What is steady is told by parameters that the profile marks with &quot;steady&quot;.</source>
        <translation>Žádný let tohoto motoru nemá ustálený úsek dlouhý tři minuty. Co je ustálené, určují parametry, které profil označuje atributem „steady“.</translation>
    </message>
    <message>
        <source>No flight of this engine has this figure.</source>
        <translation>Žádný let tohoto motoru nemá tento ukazatel.</translation>
    </message>
    <message>
        <source>Engine %1: a band needs five other flights since the last maintenance.</source>
        <translation>Motor %1: pásmo potřebuje pět dalších letů od poslední údržby.</translation>
    </message>
    <message>
        <source>Engine %1: %2 of %3 parameters leave their band in their latest flight.</source>
        <translation>Motor %1: %2 z %3 parametrů ve svém posledním letu mimo své pásmo.</translation>
    </message>
    <message>
        <source>%1%2, %3: %4 of %5 flights leave the band</source>
        <translation>%1%2, %3: %4 z %5 letů mimo pásmo</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetErrorTime</name>
    <message>
        <source>When errors were active: from the top info, warning, fault. Click to go there.</source>
        <translation>Kdy byla hlášení aktivní: shora informace, výstraha, porucha. Kliknutím tam přejdete.</translation>
    </message>
    <message>
        <source>Fault timeline</source>
        <translation>Časová osa poruch</translation>
    </message>
    <message>
        <source>The recording holds no message of this matrix.</source>
        <translation>Záznam neobsahuje žádnou zprávu této matice.</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetTimeRange</name>
    <message>
        <source>Start time</source>
        <translation>Čas začátku</translation>
    </message>
    <message>
        <source>Stop time</source>
        <translation>Čas konce</translation>
    </message>
    <message>
        <source>Cursor Pos</source>
        <translation>Poz. kurzoru</translation>
    </message>
    <message>
        <source>Start at the current time of the data window</source>
        <translation>Začátek v aktuálním čase okna s daty</translation>
    </message>
    <message>
        <source>Stop at the current time of the data window</source>
        <translation>Konec v aktuálním čase okna s daty</translation>
    </message>
    <message>
        <source>Start :</source>
        <translation>Začátek :</translation>
    </message>
    <message>
        <source>Stop :</source>
        <translation>Konec :</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA – upozornění</translation>
    </message>
    <message>
        <source>The start time is after the stop time: nothing would be exported.</source>
        <translation>Čas začátku je až za časem konce: nic by se neexportovalo.</translation>
    </message>
    <message>
        <source>Start/Stop Time (recording clock)</source>
        <translation>Čas začátku/konce (hodiny záznamu)</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetTrack</name>
    <message>
        <source>Track</source>
        <translation>Dráha</translation>
    </message>
    <message>
        <source>The path of the flight from above, and its height below</source>
        <translation>Dráha letu shora a pod ní jeho výška</translation>
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
        <translation>žádná hodnota</translation>
    </message>
    <message>
        <source>Median of the others %1, sigma %2</source>
        <translation>Medián ostatních %1, sigma %2</translation>
    </message>
    <message>
        <source>It leaves the band.</source>
        <translation>Opouští pásmo.</translation>
    </message>
    <message>
        <source>Click: open the flight; with Shift: as the reference.</source>
        <translation>Kliknutí: otevřít let; s klávesou Shift: jako referenci.</translation>
    </message>
</context>
<context>
    <name>TargetQuestion</name>
    <message>
        <source>Type a file name, without a folder.</source>
        <translation>Zadejte název souboru bez složky.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Choose another.</source>
        <translation>Složka „%1“ neexistuje. Zvolte jinou.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; may not be written to. Choose another.</source>
        <translation>Do složky „%1“ nelze zapisovat. Zvolte jinou.</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA – upozornění</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists in this folder. Replace it?</source>
        <translation>Soubor „%1“ v této složce již existuje. Nahradit?</translation>
    </message>
</context>
<context>
    <name>TimedKml</name>
    <message>
        <source>The recording tells no date: no times can be given. Export the path without them.</source>
        <translation>Záznam neuvádí datum: časy nelze udat. Exportujte dráhu bez nich.</translation>
    </message>
</context>
<context>
    <name>TrackColors</name>
    <message>
        <source>All parameters</source>
        <translation>Všechny parametry</translation>
    </message>
    <message>
        <source>in range</source>
        <translation>v rozsahu</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>žádná hodnota</translation>
    </message>
</context>
<context>
    <name>TrackDrawing</name>
    <message>
        <source>No position at %1; shown is the last one, of %2</source>
        <translation>V %1 žádná poloha; zobrazena je poslední, z %2</translation>
    </message>
    <message>
        <source>No position at %1 or before</source>
        <translation>V %1 ani předtím žádná poloha</translation>
    </message>
</context>
<context>
    <name>TrackHits</name>
    <message>
        <source>and %1 more</source>
        <translation>a dalších %1</translation>
    </message>
</context>
<context>
    <name>TrackMarks</name>
    <message>
        <source>peak %1 at %2, threshold %3</source>
        <translation>vrchol %1 v %2, práh %3</translation>
    </message>
</context>
<context>
    <name>TrackNote</name>
    <message>
        <source>The recording tells no UTC: times are counted from the date of its header, whose time zone is not known, as if that were UTC.</source>
        <translation>Záznam neuvádí UTC: časy se počítají od data v jeho hlavičce, jejíž časové pásmo není známo, jako by to bylo UTC.</translation>
    </message>
    <message>
        <source>The recording tells no date: the track is without times.</source>
        <translation>Záznam neuvádí datum: dráha je bez časů.</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; of the altitude is not known, its numbers were taken for metres.</source>
        <translation>Jednotka výšky &quot;%1&quot; není známa, její čísla byla vzata jako metry.</translation>
    </message>
    <message>
        <source>Times are UTC as the recording&apos;s own messages tell it.</source>
        <translation>Časy jsou UTC podle vlastních zpráv záznamu.</translation>
    </message>
    <message>
        <source>Altitudes are metres, converted from %1.</source>
        <translation>Výšky jsou v metrech, převedené z %1.</translation>
    </message>
    <message>
        <source>Left out: %1 positions at 0/0 or incomplete, %2 that nothing flies to, %3 events without a position.</source>
        <translation>Vynecháno: %1 poloh v 0/0 nebo neúplných, %2, kam nic nedoletí, %3 událostí bez polohy.</translation>
    </message>
</context>
<context>
    <name>TrackSymbols</name>
    <message>
        <source>out of range</source>
        <translation>mimo rozsah</translation>
    </message>
    <message>
        <source>warning lamp</source>
        <translation>výstražná kontrolka</translation>
    </message>
    <message>
        <source>fault or warning</source>
        <translation>porucha nebo varování</translation>
    </message>
    <message>
        <source>Events without a position: %1</source>
        <translation>Události bez polohy: %1</translation>
    </message>
</context>
<context>
    <name>UnknownIdentifiers</name>
    <message>
        <source>Identifiers that the profile does not describe: %1, their samples: %2</source>
        <translation>Identifikátory, které profil nepopisuje: %1, jejich vzorky: %2</translation>
    </message>
</context>
<context>
    <name>WidgetGraph</name>
    <message>
        <source>Graph of the selected parameters</source>
        <translation>Graf vybraných parametrů</translation>
    </message>
    <message>
        <source>Click to show the curve</source>
        <translation>Kliknutím křivku zobrazíte</translation>
    </message>
    <message>
        <source>Click to hide the curve, drag to move it, right click for more</source>
        <translation>Kliknutím křivku skryjete, tažením přesunete, pravým tlačítkem další možnosti</translation>
    </message>
</context>
</TS>
