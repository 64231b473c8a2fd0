<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>AdderTexts</name>
    <message>
        <source>it can&apos;t be read</source>
        <translation>não pode ser lida</translation>
    </message>
    <message>
        <source>it changed while it was read</source>
        <translation>mudou durante a leitura</translation>
    </message>
</context>
<context>
    <name>CompanionDrawing</name>
    <message>
        <source>Δ flight minus reference</source>
        <translation>Δ voo menos referência</translation>
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
        <translation>&amp;Só esta</translation>
    </message>
    <message>
        <source>&amp;Color...</source>
        <translation>&amp;Cor...</translation>
    </message>
    <message>
        <source>Show &amp;All Curves</source>
        <translation>Mostrar &amp;todas as curvas</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>S&amp;ubir</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Descer</translation>
    </message>
    <message>
        <source>Own &amp;Range...</source>
        <translation>&amp;Intervalo próprio...</translation>
    </message>
    <message>
        <source>Au&amp;tomatic Range</source>
        <translation>Intervalo au&amp;tomático</translation>
    </message>
    <message>
        <source>Color of %1</source>
        <translation>Cor de %1</translation>
    </message>
    <message>
        <source>Range of %1</source>
        <translation>Intervalo de %1</translation>
    </message>
</context>
<context>
    <name>DialogAbout</name>
    <message>
        <source>About ORNA</source>
        <translation>Sobre o ORNA</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licença</translation>
    </message>
    <message>
        <source>Third-party notices</source>
        <translation>Avisos de terceiros</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Fechar esta janela</translation>
    </message>
    <message>
        <source>Reads engine and flight recordings of an aircraft&apos;s SD card</source>
        <translation>Lê gravações de motor e de voo do cartão SD de uma aeronave</translation>
    </message>
    <message>
        <source>Version %1, built %2</source>
        <translation>Versão %1, compilada em %2</translation>
    </message>
</context>
<context>
    <name>DialogHelp</name>
    <message>
        <source>ORNA Help</source>
        <translation>Ajuda do ORNA</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Fechar esta janela</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>Sections of the manual</source>
        <translation>Seções do manual</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Pesquisar no manual</translation>
    </message>
    <message>
        <source>Words to find; Enter goes to the next place</source>
        <translation>Palavras a localizar; Enter vai para a próxima ocorrência</translation>
    </message>
    <message>
        <source>Previous place</source>
        <translation>Ocorrência anterior</translation>
    </message>
    <message>
        <source>Next place</source>
        <translation>Próxima ocorrência</translation>
    </message>
</context>
<context>
    <name>EmptyText</name>
    <message>
        <source>No profile is loaded, so nothing can be decoded and nothing was checked.
Choose one in the &lt;a href=&quot;preferences&quot;&gt;preferences&lt;/a&gt;.</source>
        <translation>Nenhum perfil está carregado: nada pode ser decodificado e nada foi verificado.
Escolha um nas &lt;a href=&quot;preferences&quot;&gt;preferências&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The recording is being loaded.</source>
        <translation>A gravação está sendo carregada.</translation>
    </message>
    <message>
        <source>No recording is loaded.
Open a card and pick one or more recordings in the list on the left.</source>
        <translation>Nenhuma gravação está carregada.
Abra um cartão e escolha uma ou mais gravações na lista à esquerda.</translation>
    </message>
    <message>
        <source>The recording holds no samples, so nothing was checked.</source>
        <translation>A gravação não contém nenhuma amostra; nada foi verificado.</translation>
    </message>
    <message>
        <source>No parameter is selected.
Tick parameters in the list on the left and press &quot;Confirm Selection&quot;.</source>
        <translation>Nenhum parâmetro está selecionado.
Marque parâmetros na lista à esquerda e clique em &quot;Confirmar seleção&quot;.</translation>
    </message>
</context>
<context>
    <name>EventLists</name>
    <message>
        <source>The recording holds no FLOAT message of a parameter with a threshold, so nothing was watched for limits.</source>
        <translation>A gravação não contém nenhuma mensagem FLOAT de um parâmetro com limiar; nenhum limite foi monitorado.</translation>
    </message>
    <message>
        <source>No limit event in %1 samples of %2 watched parameters.</source>
        <translation>Nenhum evento de limite em %1 amostras de %2 parâmetros monitorados.</translation>
    </message>
    <message>
        <source>The recording holds no message of a warning lamp, so none was watched.</source>
        <translation>A gravação não contém nenhuma mensagem de luz de aviso; nenhuma foi monitorada.</translation>
    </message>
    <message>
        <source>No warning lamp came on in %1 samples of %2 lamps.</source>
        <translation>Nenhuma luz de aviso acendeu em %1 amostras de %2 luzes.</translation>
    </message>
    <message>
        <source>The recording holds no message of an error matrix, so none was watched.</source>
        <translation>A gravação não contém nenhuma mensagem de uma matriz de erros, portanto nenhuma foi vigiada.</translation>
    </message>
    <message>
        <source>No error was active in %1 messages of %2 matrices.</source>
        <translation>Nenhum erro esteve ativo em %1 mensagens de %2 matrizes.</translation>
    </message>
</context>
<context>
    <name>EventMarks</name>
    <message>
        <source>%1 came</source>
        <translation>ativação de %1</translation>
    </message>
    <message>
        <source>%1 went</source>
        <translation>desativação de %1</translation>
    </message>
</context>
<context>
    <name>EventWords</name>
    <message>
        <source>Caution</source>
        <translation>Cautela</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informação</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Falha</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
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
        <translation>Não é possível gravar &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>Não foi possível gravar &quot;%1&quot;: %2</translation>
    </message>
</context>
<context>
    <name>ExportCsv</name>
    <message>
        <source>The first sample is at %1 s, the last at %2 s, the export ends at %3 s. Choose a shorter time range or a coarser resolution.</source>
        <translation>A primeira amostra está em %1 s, a última em %2 s, a exportação termina em %3 s. Escolha um intervalo de tempo menor ou uma resolução mais grosseira.</translation>
    </message>
    <message>
        <source>The table would have too many rows.</source>
        <translation>A tabela teria linhas demais.</translation>
    </message>
    <message>
        <source>The table would have %1 rows, about %2 MB, more than is free in &quot;%3&quot;.</source>
        <translation>A tabela teria %1 linhas, cerca de %2 MB, mais do que o espaço livre em &quot;%3&quot;.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2</source>
        <translation>Não é possível gravar &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>Não foi possível gravar &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>No parameter is selected, the file holds its title only.</source>
        <translation>Nenhum parâmetro está selecionado, o arquivo contém apenas o título.</translation>
    </message>
    <message>
        <source>No sample lies in the time range, the file holds its titles only.</source>
        <translation>Nenhuma amostra está no intervalo de tempo, o arquivo contém apenas os títulos.</translation>
    </message>
</context>
<context>
    <name>ExportKml</name>
    <message>
        <source>&quot;%1&quot; could not be written. Check that the folder exists, may be written to and has room.</source>
        <translation>Não foi possível gravar &quot;%1&quot;. Verifique se a pasta existe, permite gravação e tem espaço livre.</translation>
    </message>
    <message>
        <source>No position lies in the time range, the flight path is empty.</source>
        <translation>Nenhuma posição está no intervalo de tempo, a trajetória de voo está vazia.</translation>
    </message>
    <message>
        <source>Left out, because no position lies in their time slot: %1 values, %2 events. A longer &quot;Timestamp every&quot; keeps them.</source>
        <translation>Omitidos, porque não há nenhuma posição no seu intervalo de tempo: %1 valores, %2 eventos. Um valor maior de &quot;Ponto a cada&quot; os mantém.</translation>
    </message>
</context>
<context>
    <name>ExportReport</name>
    <message>
        <source>&quot;%1&quot;: a report is a web page or a PDF; end the name in .html or .pdf.</source>
        <translation>&quot;%1&quot;: um relatório é uma página web ou um PDF; termine o nome em .html ou .pdf.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2. Choose another folder; the old file, if there was one, is unchanged.</source>
        <translation>Não é possível gravar &quot;%1&quot;: %2. Escolha outra pasta; o arquivo antigo, se existia, não mudou.</translation>
    </message>
</context>
<context>
    <name>Exporter</name>
    <message>
        <source>&quot;%1&quot; is the recording itself. Choose another name or folder.</source>
        <translation>&quot;%1&quot; é a própria gravação. Escolha outro nome ou outra pasta.</translation>
    </message>
    <message>
        <source>There is not enough memory for this export; choose a shorter time range.</source>
        <translation>Não há memória suficiente para esta exportação; escolha um intervalo de tempo menor.</translation>
    </message>
</context>
<context>
    <name>FlightAdder</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be read to its end</source>
        <translation>“%1” não pode ser lido até o fim</translation>
    </message>
    <message>
        <source>there is no sample in it</source>
        <translation>não contém nenhuma amostra</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>não há memória suficiente</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no folder</source>
        <translation>“%1” não é uma pasta</translation>
    </message>
</context>
<context>
    <name>FlightSummary</name>
    <message>
        <source>Duration %1</source>
        <translation>Duração %1</translation>
    </message>
    <message>
        <source>no profile, so nothing was checked</source>
        <translation>sem perfil, nada foi verificado</translation>
    </message>
    <message>
        <source>%1 at the limit</source>
        <translation>%1 no limite</translation>
    </message>
    <message>
        <source>%1 in warning</source>
        <translation>%1 em aviso</translation>
    </message>
    <message>
        <source>Lamps: %1</source>
        <translation>Luzes: %1</translation>
    </message>
    <message>
        <source>Faults and warnings: %1</source>
        <translation>Falhas e avisos: %1</translation>
    </message>
    <message>
        <source>nothing out of range in %1 samples of %2 watched parameters</source>
        <translation>nada fora do intervalo em %1 amostras de %2 parâmetros vigiados</translation>
    </message>
    <message>
        <source>no parameter was watched for limits</source>
        <translation>nenhum parâmetro foi vigiado quanto a limites</translation>
    </message>
    <message>
        <source>Remarks: %1</source>
        <translation>Observações: %1</translation>
    </message>
</context>
<context>
    <name>FlightTables</name>
    <message>
        <source>the logbook has no flight &quot;%1&quot;</source>
        <translation>o diário não tem nenhum voo “%1”</translation>
    </message>
</context>
<context>
    <name>GraphCaption</name>
    <message>
        <source>%1 to %2 (%3 recordings)</source>
        <translation>%1 a %2 (%3 gravações)</translation>
    </message>
    <message>
        <source>%1 to %2 on the recording&apos;s clock</source>
        <translation>%1 a %2 no relógio da gravação</translation>
    </message>
</context>
<context>
    <name>HeightDrawing</name>
    <message>
        <source>Altitude</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>Altitude [%1]</source>
        <translation>Altitude [%1]</translation>
    </message>
</context>
<context>
    <name>Logbook</name>
    <message>
        <source>the logbook has no flight &quot;%1&quot;</source>
        <translation>o diário não tem nenhum voo “%1”</translation>
    </message>
    <message>
        <source>the keys of several flights begin with &quot;%1&quot;</source>
        <translation>as chaves de vários voos começam com “%1”</translation>
    </message>
    <message>
        <source>the logbook has no flight of the engine &quot;%1&quot;</source>
        <translation>o diário não tem nenhum voo do motor “%1”</translation>
    </message>
</context>
<context>
    <name>LogbookPlace</name>
    <message>
        <source>the logbook&apos;s URL is neither sqlite:PATH nor postgresql://user@host:port/database</source>
        <translation>a URL do diário não é nem sqlite:CAMINHO nem postgresql://usuário@máquina:porta/banco</translation>
    </message>
    <message>
        <source>the logbook&apos;s URL has an option that is not understood; known are %1</source>
        <translation>a URL do diário tem uma opção desconhecida; são conhecidas %1</translation>
    </message>
    <message>
        <source>there is no home directory for a logbook; name one by its URL</source>
        <translation>não há pasta pessoal para um diário; indique um pela URL</translation>
    </message>
</context>
<context>
    <name>LogbookSchema</name>
    <message>
        <source>&quot;%1&quot; is no logbook: another program&apos;s tables are in it</source>
        <translation>“%1” não é um diário: contém tabelas de outro programa</translation>
    </message>
    <message>
        <source>the logbook %1 is of version %2, this program knows versions up to %3; a newer program is needed</source>
        <translation>o diário %1 é da versão %2, este programa conhece até a %3; é preciso um programa mais novo</translation>
    </message>
    <message>
        <source>there is no logbook in %1</source>
        <translation>não há diário em %1</translation>
    </message>
</context>
<context>
    <name>LogbookSettings</name>
    <message>
        <source>Added: %1</source>
        <translation>Adicionados: %1</translation>
    </message>
    <message>
        <source>known already: %1</source>
        <translation>já conhecidos: %1</translation>
    </message>
    <message>
        <source>not looked at: %1</source>
        <translation>não examinados: %1</translation>
    </message>
    <message>
        <source>not added: %1 (%2)</source>
        <translation>não adicionados: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>MaintenanceDialog</name>
    <message>
        <source>Maintenance</source>
        <translation>Manutenção</translation>
    </message>
    <message>
        <source>What was done to engine %1? Trends compare flights only with those since the last note.</source>
        <translation>O que foi feito no motor %1? As tendências comparam os voos apenas com os posteriores à última nota.</translation>
    </message>
    <message>
        <source>Flights from this moment on are behind the maintenance</source>
        <translation>Os voos a partir deste momento são posteriores à manutenção</translation>
    </message>
    <message>
        <source>Cylinder 6 replaced</source>
        <translation>Cilindro 6 substituído</translation>
    </message>
    <message>
        <source>&amp;Date (UTC)</source>
        <translation>&amp;Data (UTC)</translation>
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
        <translation>%1 no seu limite</translation>
    </message>
    <message>
        <source>%1 in warning</source>
        <translation>%1 em aviso</translation>
    </message>
    <message>
        <source>, peak %1 %2 at %3</source>
        <translation>, pico %1 %2 às %3</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>e mais %1</translation>
    </message>
</context>
<context>
    <name>OutputFile</name>
    <message>
        <source>it is no file</source>
        <translation>não é um arquivo</translation>
    </message>
</context>
<context>
    <name>PositionTrack</name>
    <message>
        <source>Positions of 0/0, sent while the receiver knows none: %1</source>
        <translation>Posições 0/0, enviadas enquanto o receptor não conhece nenhuma: %1</translation>
    </message>
    <message>
        <source>Jumps of the position faster than 500 m/s: %1, the first at %2</source>
        <translation>Saltos da posição mais rápidos que 500 m/s: %1, o primeiro às %2</translation>
    </message>
</context>
<context>
    <name>Record</name>
    <message>
        <source>not enough memory for %1 samples; load fewer recordings at once</source>
        <translation>memória insuficiente para %1 amostras; carregue menos gravações de uma vez</translation>
    </message>
    <message>
        <source>could not open the recording &quot;%1&quot;; check that the card is still in place</source>
        <translation>não foi possível abrir a gravação &quot;%1&quot;; verifique se o cartão ainda está inserido</translation>
    </message>
    <message>
        <source>not enough memory to read the recording; load fewer at once</source>
        <translation>memória insuficiente para ler a gravação; carregue menos gravações de uma vez</translation>
    </message>
    <message>
        <source>could not read the recording &quot;%1&quot; to its end; check that the card is still in place</source>
        <translation>não foi possível ler a gravação &quot;%1&quot; até o fim; verifique se o cartão ainda está inserido</translation>
    </message>
</context>
<context>
    <name>RecordText</name>
    <message>
        <source>Remarks</source>
        <translation>Observações</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhuma</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Observação</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Tempo inicial</translation>
    </message>
    <message>
        <source>Stop Time</source>
        <translation>Tempo final</translation>
    </message>
    <message>
        <source>Bus Type</source>
        <translation>Tipo de barramento</translation>
    </message>
    <message>
        <source>ECU Serial Number</source>
        <translation>Nº de série da ECU</translation>
    </message>
    <message>
        <source>Software Part Nr. A</source>
        <translation>Nº de peça do software A</translation>
    </message>
    <message>
        <source>Software Part Nr. B</source>
        <translation>Nº de peça do software B</translation>
    </message>
    <message>
        <source>ECU Type</source>
        <translation>Tipo da ECU</translation>
    </message>
    <message>
        <source>EMU SW Version</source>
        <translation>Versão do SW da EMU</translation>
    </message>
    <message>
        <source>Engine Serial Nr.</source>
        <translation>Nº de série do motor</translation>
    </message>
    <message>
        <source>Engine Type</source>
        <translation>Tipo do motor</translation>
    </message>
    <message>
        <source>Samples Total</source>
        <translation>Total de amostras</translation>
    </message>
    <message>
        <source>The file could not be opened</source>
        <translation>Não foi possível abrir o arquivo</translation>
    </message>
    <message>
        <source>The header is cut short, bytes missing: %1</source>
        <translation>O cabeçalho está truncado, bytes em falta: %1</translation>
    </message>
    <message>
        <source>Ignored at the end, bytes that are no whole sample: %1</source>
        <translation>Ignorados no fim, bytes que não formam uma amostra inteira: %1</translation>
    </message>
    <message>
        <source>Samples that could not be read: %1</source>
        <translation>Amostras que não puderam ser lidas: %1</translation>
    </message>
    <message>
        <source>Samples with an impossible time: %1, the first is number %2</source>
        <translation>Amostras com tempo impossível: %1, a primeira é a de número %2</translation>
    </message>
    <message>
        <source>Samples of channels other than 0 and 1: %1</source>
        <translation>Amostras de canais diferentes de 0 e 1: %1</translation>
    </message>
    <message>
        <source>Gaps of more than 10 s: %1, the longest is %2 s from %3 on</source>
        <translation>Lacunas de mais de 10 s: %1, a mais longa é de %2 s a partir de %3</translation>
    </message>
    <message>
        <source>The time offset could not be read: &quot;%1&quot; is damaged. Setting another offset keeps that file aside</source>
        <translation>Não foi possível ler o offset de tempo: &quot;%1&quot; está danificado. Se outro offset for definido, esse arquivo será guardado à parte</translation>
    </message>
    <message>
        <source>Samples Read</source>
        <translation>Amostras lidas</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 e %2</translation>
    </message>
    <message>
        <source>Files that overlap in time: %1, the first are %2. Check that they belong together</source>
        <translation>Arquivos que se sobrepõem no tempo: %1, os primeiros são %2. Verifique se fazem parte do mesmo conjunto</translation>
    </message>
    <message>
        <source>Header dates from %1 to %2, but the samples last %3 s: the files are not of one flight</source>
        <translation>Datas dos cabeçalhos de %1 a %2, mas as amostras abrangem %3 s: os arquivos não são de um mesmo voo</translation>
    </message>
</context>
<context>
    <name>RecordingFinder</name>
    <message>
        <source>Files named %1 were found, but they hold another flight.</source>
        <translation>Foram encontrados arquivos com o nome %1, mas eles contêm outro voo.</translation>
    </message>
    <message>
        <source>The files %1 were not found.</source>
        <translation>Os arquivos %1 não foram encontrados.</translation>
    </message>
</context>
<context>
    <name>ReportCharts</name>
    <message>
        <source>peak %1 at %2, threshold %3</source>
        <translation>pico %1 às %2, limiar %3</translation>
    </message>
    <message>
        <source>The other parameters of %1 meanwhile</source>
        <translation>Os outros parâmetros de %1 enquanto isso</translation>
    </message>
    <message>
        <source>The worst, in two minutes each</source>
        <translation>O pior, dois minutos cada</translation>
    </message>
    <message>
        <source>The whole flight</source>
        <translation>O voo inteiro</translation>
    </message>
    <message>
        <source>No parameter is selected.</source>
        <translation>Nenhum parâmetro está selecionado.</translation>
    </message>
    <message>
        <source>%1 to %2 on the recording&apos;s clock</source>
        <translation>%1 a %2 no relógio da gravação</translation>
    </message>
    <message>
        <source>The reported range</source>
        <translation>O intervalo do relatório</translation>
    </message>
    <message>
        <source>%1 to %2 on the recording&apos;s clock; dashed: the reference</source>
        <translation>%1 a %2 no relógio da gravação; linha tracejada: a referência</translation>
    </message>
</context>
<context>
    <name>ReportComparison</name>
    <message>
        <source>Reference: %1, shifted by %2 s. Compared from %3 to %4, while both flights are steady.</source>
        <translation>Referência: %1, deslocada em %2 s. Comparação de %3 a %4, enquanto os dois voos estão estabilizados.</translation>
    </message>
    <message>
        <source>Reference: %1, shifted by %2 s. Compared from %3 to %4: there is no common steady part.</source>
        <translation>Referência: %1, deslocada em %2 s. Comparação de %3 a %4: não há nenhum trecho estabilizado em comum.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parâmetro</translation>
    </message>
    <message>
        <source>Time mean, flight</source>
        <translation>Média temporal, voo</translation>
    </message>
    <message>
        <source>Time mean, reference</source>
        <translation>Média temporal, referência</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferença</translation>
    </message>
    <message>
        <source>Standard deviations</source>
        <translation>Desvios padrão</translation>
    </message>
    <message>
        <source>What changed most, in standard deviations of the reference</source>
        <translation>O que mais mudou, em desvios padrão da referência</translation>
    </message>
    <message>
        <source>Compared with the reference</source>
        <translation>Comparação com a referência</translation>
    </message>
    <message>
        <source>Reference: %1. It has no time in common with this range.</source>
        <translation>Referência: %1. Não tem tempo em comum com esta faixa.</translation>
    </message>
    <message>
        <source>No parameter has values in both flights there.</source>
        <translation>Nenhum parâmetro tem ali valores nos dois voos.</translation>
    </message>
    <message>
        <source>None of %1 parameters has changed.</source>
        <translation>Nenhum de %1 parâmetros mudou.</translation>
    </message>
</context>
<context>
    <name>ReportHead</name>
    <message>
        <source>not recorded</source>
        <translation>não gravada</translation>
    </message>
    <message>
        <source>From, on the recording&apos;s clock</source>
        <translation>De, no relógio da gravação</translation>
    </message>
    <message>
        <source>Until, on the recording&apos;s clock</source>
        <translation>Até, no relógio da gravação</translation>
    </message>
    <message>
        <source>From, in UTC</source>
        <translation>De, em UTC</translation>
    </message>
    <message>
        <source>Time offset</source>
        <translation>Deslocamento de tempo</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Amostras</translation>
    </message>
    <message>
        <source>ECU Serial Number</source>
        <translation>Nº de série da ECU</translation>
    </message>
    <message>
        <source>Engine Serial Nr.</source>
        <translation>Nº de série do motor</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Relatório de voo</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>How pages name the language of these texts: &quot;de&quot; for German.</extracomment>
        <translation>pt-BR</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Perfil</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhuma</translation>
    </message>
    <message>
        <source>Profile&apos;s SHA-256</source>
        <translation>SHA-256 do perfil</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>No recording was read.</source>
        <translation>Nenhuma gravação foi lida.</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>O que aconteceu</translation>
    </message>
    <message>
        <source>The recording holds no samples, so nothing was checked.</source>
        <translation>A gravação não contém nenhuma amostra; nada foi verificado.</translation>
    </message>
    <message>
        <source>Remarks on the recording</source>
        <translation>Observações sobre a gravação</translation>
    </message>
</context>
<context>
    <name>ReportLists</name>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parâmetro</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Luz</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravidade</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Valor extremo</translation>
    </message>
    <message>
        <source>Peak at</source>
        <translation>Pico às</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Limiar</translation>
    </message>
    <message>
        <source>The %1 worst of %2; &quot;orna-cli events --episodes&quot; lists all.</source>
        <translation>Os %1 piores de %2; &quot;orna-cli events --episodes&quot; lista todos.</translation>
    </message>
    <message>
        <source>Out of range</source>
        <translation>Fora da faixa</translation>
    </message>
    <message>
        <source>Without an event: from the first sample on, after a gap, or of a kind that is not watched</source>
        <translation>Sem evento: desde a primeira amostra, após uma lacuna, ou de um tipo que não é vigiado</translation>
    </message>
    <message>
        <source>Warning lamps</source>
        <translation>Luzes de aviso</translation>
    </message>
    <message>
        <source>On again without an event</source>
        <translation>Acesa de novo sem evento</translation>
    </message>
    <message>
        <source>Error matrices</source>
        <translation>Matrizes de falhas</translation>
    </message>
    <message>
        <source>None in this range; in the rest of the flight: %1.</source>
        <translation>Nenhum neste intervalo; no resto do voo: %1.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Evento</translation>
    </message>
    <message>
        <source>Nothing out of range in %1 samples of %2 watched parameters.</source>
        <translation>Nada fora da faixa em %1 amostras de %2 parâmetros vigiados.</translation>
    </message>
</context>
<context>
    <name>ReportNumbers</name>
    <message>
        <source>adds up to %1</source>
        <translation>soma %1</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estatísticas</translation>
    </message>
    <message>
        <source>No parameter is selected.</source>
        <translation>Nenhum parâmetro está selecionado.</translation>
    </message>
    <message>
        <source>at</source>
        <translation>às</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parâmetro</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Amostras</translation>
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
        <translation>Média</translation>
    </message>
    <message>
        <source>Std. Dev.</source>
        <translation>Desv. padrão</translation>
    </message>
    <message>
        <source>Time Mean</source>
        <translation>Média temporal</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Lacunas</translation>
    </message>
    <message>
        <source>Besides</source>
        <translation>Além disso</translation>
    </message>
</context>
<context>
    <name>ReportTrack</name>
    <message>
        <source>Where it happened</source>
        <translation>Onde aconteceu</translation>
    </message>
    <message>
        <source>The path of the flight from above, %1 to %2</source>
        <translation>A trajetória do voo vista de cima, de %1 a %2</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>Save Snapshot</source>
        <translation>Salvar captura</translation>
    </message>
    <message>
        <source>BMP File (*.bmp);;PNG File (*.png);;SVG File (*.svg);;All Files (*.*)</source>
        <translation>Arquivo BMP (*.bmp);;Arquivo PNG (*.png);;Arquivo SVG (*.svg);;Todos os arquivos (*.*)</translation>
    </message>
    <message>
        <source>The snapshot could not be saved as
%1
Choose a folder that can be written, with enough free space, and a name that ends in .bmp, .png, .svg or .jpg.</source>
        <translation>Não foi possível salvar a imagem como
%1
Escolha uma pasta em que se possa escrever, com espaço livre suficiente, e um nome que termine em .bmp, .png, .svg ou .jpg.</translation>
    </message>
</context>
<context>
    <name>SqlConnection</name>
    <message>
        <source>there is no logbook &quot;%1&quot;</source>
        <translation>não existe o diário “%1”</translation>
    </message>
    <message>
        <source>the database driver %1 is not installed (package %2)</source>
        <translation>o driver de banco de dados %1 não está instalado (pacote %2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no logbook: it is no database</source>
        <translation>“%1” não é um diário: não é um banco de dados</translation>
    </message>
    <message>
        <source>the logbook &quot;%1&quot; is damaged</source>
        <translation>o diário “%1” está danificado</translation>
    </message>
    <message>
        <source>logbook %1: %2</source>
        <translation>diário %1: %2</translation>
    </message>
</context>
<context>
    <name>StartMessages</name>
    <message>
        <source>HOME is not set: settings are kept in &quot;%1&quot;.</source>
        <translation>HOME não está definida: as configurações são salvas em &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The settings could not be read, the program starts with its defaults. The damaged file is kept as &quot;%1&quot;.</source>
        <translation>Não foi possível ler as configurações; o programa inicia com os valores padrão. O arquivo danificado é mantido como &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Samples loaded: %1</source>
        <translation>Amostras carregadas: %1</translation>
    </message>
    <message>
        <source>. Remarks: %1 (see Recording Details). </source>
        <translation>. Observações: %1 (ver Detalhes da gravação). </translation>
    </message>
    <message>
        <source>Reference: </source>
        <translation>Referência: </translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Creating Dialogs ...</source>
        <translation>Criando janelas ...</translation>
    </message>
</context>
<context>
    <name>TARN::ActivityBar</name>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>, %1 s left</source>
        <translation>, faltam %1 s</translation>
    </message>
</context>
<context>
    <name>TARN::CommandSet</name>
    <message>
        <source>&amp;New Project</source>
        <translation>&amp;Novo projeto</translation>
    </message>
    <message>
        <source>Create new Project</source>
        <translation>Criar um novo projeto</translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation>&amp;Abrir projeto</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Abrir projeto</translation>
    </message>
    <message>
        <source>Open Project File</source>
        <translation>Abrir arquivo de projeto</translation>
    </message>
    <message>
        <source>&amp;Save Project</source>
        <translation>&amp;Salvar projeto</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Salvar projeto</translation>
    </message>
    <message>
        <source>Save Project File</source>
        <translation>Salvar arquivo de projeto</translation>
    </message>
    <message>
        <source>&amp;Save Project as</source>
        <translation>Salvar projeto &amp;como</translation>
    </message>
    <message>
        <source>Save Project as</source>
        <translation>Salvar projeto como</translation>
    </message>
    <message>
        <source>Save Project File as</source>
        <translation>Salvar arquivo de projeto como</translation>
    </message>
    <message>
        <source>&amp;Open Card</source>
        <translation>Abrir car&amp;tão</translation>
    </message>
    <message>
        <source>Open Card</source>
        <translation>Abrir cartão</translation>
    </message>
    <message>
        <source>Open SD Card</source>
        <translation>Abrir cartão SD</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Open Preferences Dialog</source>
        <translation>Abrir a janela de preferências</translation>
    </message>
    <message>
        <source>Recording Details</source>
        <translation>Detalhes da gravação</translation>
    </message>
    <message>
        <source>Show the Header and the Damages of the Recording</source>
        <translation>Mostrar o cabeçalho e os danos da gravação</translation>
    </message>
    <message>
        <source>Export Google KML File</source>
        <translation>Exportar arquivo Google KML</translation>
    </message>
    <message>
        <source>Export Google Earth KML File</source>
        <translation>Exportar arquivo KML do Google Earth</translation>
    </message>
    <message>
        <source>Export CSV/CAN File</source>
        <translation>Exportar arquivo CSV/CAN</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Sa&amp;ir</translation>
    </message>
    <message>
        <source>Quit Application</source>
        <translation>Sair do programa</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Show License Information</source>
        <translation>Mostrar informações de licença</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Help Window</source>
        <translation>Janela de ajuda</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Extras</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <translation>Barra de ferramentas principal</translation>
    </message>
    <message>
        <source>Flight &amp;Report...</source>
        <translation>&amp;Relatório de voo...</translation>
    </message>
    <message>
        <source>Write What Happened on a Few Pages</source>
        <translation>Escrever o que aconteceu em poucas páginas</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Relatório de voo</translation>
    </message>
    <message>
        <source>&amp;Logbook...</source>
        <translation>&amp;Diário...</translation>
    </message>
    <message>
        <source>Show the Flights That Were Kept, and What Changes from One to the Next</source>
        <translation>Mostrar os voos guardados e o que muda de um para o outro</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Diário</translation>
    </message>
    <message>
        <source>Export GPX File</source>
        <translation>Exportar arquivo GPX</translation>
    </message>
    <message>
        <source>Export the Track as GPX File</source>
        <translation>Exportar a trajetória como arquivo GPX</translation>
    </message>
</context>
<context>
    <name>TARN::DialogCard</name>
    <message>
        <source>No card opened</source>
        <translation>Nenhum cartão aberto</translation>
    </message>
    <message>
        <source>Folder of the recordings</source>
        <translation>Pasta das gravações</translation>
    </message>
    <message>
        <source>Card folder</source>
        <translation>Pasta do cartão</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Gravações</translation>
    </message>
    <message>
        <source>Start Time: </source>
        <translation>Tempo inicial: </translation>
    </message>
    <message>
        <source>Stop Time: </source>
        <translation>Tempo final: </translation>
    </message>
    <message>
        <source>Recording Details</source>
        <translation>Detalhes da gravação</translation>
    </message>
    <message>
        <source>Header of the recording and what could be read of it</source>
        <translation>Cabeçalho da gravação e o que foi possível ler dela</translation>
    </message>
    <message>
        <source>No recordings here.
Open a card (Ctrl+C) or drop its folder on the window.</source>
        <translation>Não há gravações aqui.
Abra um cartão (Ctrl+C) ou solte a pasta dele na janela.</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Gravação</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>O pior</translation>
    </message>
    <message>
        <source>Exceeded</source>
        <translation>Excedidos</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Amostras</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Observações</translation>
    </message>
    <message>
        <source>%1 recordings</source>
        <translation>%1 gravações</translation>
    </message>
    <message>
        <source>Click to load these recordings together:</source>
        <translation>Clique para carregar juntas estas gravações:</translation>
    </message>
    <message>
        <source>Not looked into: it can&apos;t be read, or is too large to be read in passing. Load it to see.</source>
        <translation>Não examinada: não pode ser lida ou é grande demais para ser lida de passagem. Carregue-a para ver.</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhuma</translation>
    </message>
    <message>
        <source>At the limit: %1
In warning: %2
Lamps: %3
Faults and warnings: %4
Watched parameters: %5</source>
        <translation>No limite: %1
Em aviso: %2
Luzes: %3
Falhas e avisos: %4
Parâmetros vigiados: %5</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso do ORNA</translation>
    </message>
    <message>
        <source>These recordings are of %1 flights.</source>
        <translation>Estas gravações são de %1 voos.</translation>
    </message>
    <message>
        <source>Laid over each other, values of one flight stand between those of another.</source>
        <translation>Sobrepostas, os valores de um voo ficam entre os de outro.</translation>
    </message>
    <message>
        <source>Load the First</source>
        <translation>Carregar o primeiro</translation>
    </message>
    <message>
        <source>Lay over Each Other</source>
        <translation>Sobrepor</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Falha</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Luz</translation>
    </message>
    <message>
        <source>Load as &amp;Reference</source>
        <translation>Carregar como &amp;referência</translation>
    </message>
    <message>
        <source>Compares the flight that is open with this one</source>
        <translation>Compara o voo aberto com este</translation>
    </message>
</context>
<context>
    <name>TARN::DialogData</name>
    <message>
        <source>Data</source>
        <translation>Dados</translation>
    </message>
    <message>
        <source>Limit/Warning Exceed</source>
        <translation>Limite/aviso excedido</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Gráfico</translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation>Luzes de aviso</translation>
    </message>
    <message>
        <source>Fault Matrix</source>
        <translation>Matriz de falhas</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Trajetória</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataErrorMatrix</name>
    <message>
        <source>The profile describes no error matrix.</source>
        <translation>O perfil não descreve nenhuma matriz de falhas.</translation>
    </message>
    <message>
        <source>Error matrices</source>
        <translation>Matrizes de falhas</translation>
    </message>
    <message>
        <source>Active Errors</source>
        <translation>Erros ativos</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataGraph</name>
    <message>
        <source>The graph cannot be drawn: this display offers no OpenGL.
All other views work; a graphics driver with OpenGL 2.1, or Mesa&apos;s software one, brings the graph.</source>
        <translation>Não é possível desenhar o gráfico: esta tela não oferece OpenGL.
Todas as outras visualizações funcionam; um driver gráfico com OpenGL 2.1, ou o do Mesa por software, possibilita o gráfico.</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>&amp;Salvar imagem...</translation>
    </message>
    <message>
        <source>Co&amp;py Picture</source>
        <translation>Co&amp;piar imagem</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataLimit</name>
    <message>
        <source>Warning/Limit Exceed</source>
        <translation>Aviso/limite excedido</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataTable</name>
    <message>
        <source>Values of the selected parameters</source>
        <translation>Valores dos parâmetros selecionados</translation>
    </message>
    <message>
        <source>The recording holds no sample of the selected parameters.</source>
        <translation>A gravação não contém nenhuma amostra dos parâmetros selecionados.</translation>
    </message>
    <message>
        <source>There is not enough memory for this table; load fewer recordings.</source>
        <translation>Memória insuficiente para esta tabela; carregue menos gravações.</translation>
    </message>
    <message>
        <source>The table is being filled.</source>
        <translation>A tabela está sendo preenchida.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataTrack</name>
    <message>
        <source>Show all (Home)</source>
        <translation>Mostrar tudo (Home)</translation>
    </message>
    <message>
        <source>Zoom in (+)</source>
        <translation>Ampliar (+)</translation>
    </message>
    <message>
        <source>Zoom out (-)</source>
        <translation>Reduzir (-)</translation>
    </message>
    <message>
        <source>C&amp;olored by:</source>
        <translation>C&amp;or conforme:</translation>
    </message>
    <message>
        <source>Hei&amp;ght over:</source>
        <translation>Al&amp;tura sobre:</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distância</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nada</translation>
    </message>
    <message>
        <source>State of all parameters</source>
        <translation>Estado de todos os parâmetros</translation>
    </message>
    <message>
        <source>There is not enough memory for the path.</source>
        <translation>Não há memória suficiente para a trajetória.</translation>
    </message>
    <message>
        <source>The path is being found.</source>
        <translation>A trajetória está sendo determinada.</translation>
    </message>
    <message>
        <source>All positions of the recording are 0/0, %1 of them: the receiver did not know where it was.</source>
        <translation>Todas as posições da gravação são 0/0, %1 ao todo: o receptor não sabia onde estava.</translation>
    </message>
    <message>
        <source>The recording holds no position: no latitude with a longitude.</source>
        <translation>A gravação não contém nenhuma posição: nenhuma latitude com uma longitude.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataWarning</name>
    <message>
        <source>Warning Lamps</source>
        <translation>Luzes de aviso</translation>
    </message>
</context>
<context>
    <name>TARN::DialogEventList</name>
    <message>
        <source>Go to the &amp;Start</source>
        <translation>Ir para o &amp;início</translation>
    </message>
    <message>
        <source>Go to the &amp;Peak</source>
        <translation>Ir para o &amp;pico</translation>
    </message>
    <message>
        <source>Show in the &amp;Graph</source>
        <translation>Mostrar no &amp;gráfico</translation>
    </message>
    <message>
        <source>&amp;Copy All with Headers</source>
        <translation>&amp;Copiar tudo com cabeçalhos</translation>
    </message>
    <message>
        <source>Nothing in the list fits the filter.</source>
        <translation>Nada na lista corresponde ao filtro.</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtrar</translation>
    </message>
    <message>
        <source>There is not enough memory to look for what happened.</source>
        <translation>Não há memória suficiente para procurar o que aconteceu.</translation>
    </message>
    <message>
        <source>What happened is being looked for.</source>
        <translation>Procurando o que aconteceu.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsv</name>
    <message>
        <source>CSV Export</source>
        <translation>Exportação CSV</translation>
    </message>
    <message>
        <source>ORNA Viewer Warning</source>
        <translation>Aviso do ORNA Viewer</translation>
    </message>
    <message>
        <source>Exporting CSV/CAN file failed !</source>
        <translation>A exportação do arquivo CSV/CAN falhou !</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsvOptions</name>
    <message>
        <source>CSV/CAN Export</source>
        <translation>Exportação CSV/CAN</translation>
    </message>
    <message>
        <source>Select CSV/CAN Option</source>
        <translation>Escolher opções de CSV/CAN</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Separador</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>Parameter Selection</source>
        <translation>Seleção de parâmetros</translation>
    </message>
    <message>
        <source>Semikolon ;</source>
        <translation>Ponto e vírgula ;</translation>
    </message>
    <message>
        <source>Comma ,</source>
        <translation>Vírgula ,</translation>
    </message>
    <message>
        <source>Tabstop</source>
        <translation>Tabulação</translation>
    </message>
    <message>
        <source>Stands between two columns</source>
        <translation>Fica entre duas colunas</translation>
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
        <translation>Tempo de uma linha à seguinte</translation>
    </message>
    <message>
        <source>All Parameter</source>
        <translation>Todos os parâmetros</translation>
    </message>
    <message>
        <source>Selected Parameter only</source>
        <translation>Só parâmetros selecionados</translation>
    </message>
    <message>
        <source>Columns of the table</source>
        <translation>Colunas da tabela</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsvPath</name>
    <message>
        <source>Save CSV/CAN Export</source>
        <translation>Salvar exportação CSV/CAN</translation>
    </message>
    <message>
        <source>CSV/CAN Export</source>
        <translation>Exportação CSV/CAN</translation>
    </message>
    <message>
        <source>Select the output directory and file</source>
        <translation>Escolher a pasta e o arquivo de saída</translation>
    </message>
    <message>
        <source>.CSV Export</source>
        <translation>Exportação .CSV</translation>
    </message>
    <message>
        <source>.CAN Export</source>
        <translation>Exportação .CAN</translation>
    </message>
    <message>
        <source>A table of decoded values, or a recording that can be opened again</source>
        <translation>Uma tabela de valores decodificados ou uma gravação que pode ser aberta de novo</translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation>Nome do arquivo nesta pasta</translation>
    </message>
    <message>
        <source>Export Path</source>
        <translation>Pasta de destino</translation>
    </message>
    <message>
        <source>Export Type</source>
        <translation>Tipo de exportação</translation>
    </message>
    <message>
        <source>Export Filename</source>
        <translation>Nome do arquivo</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportGpx</name>
    <message>
        <source>GPX Export</source>
        <translation>Exportação GPX</translation>
    </message>
    <message>
        <source>Save GPX Export</source>
        <translation>Salvar exportação GPX</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso do ORNA</translation>
    </message>
    <message>
        <source>Exporting GPX file failed !</source>
        <translation>A exportação do arquivo GPX falhou !</translation>
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
        <translation>Um ponto da trajetória para cada intervalo</translation>
    </message>
    <message>
        <source>Waypoints at limits and lamps</source>
        <translation>Pontos de passagem em limites e luzes</translation>
    </message>
    <message>
        <source>GPX Export</source>
        <translation>Exportação GPX</translation>
    </message>
    <message>
        <source>Select GPX Option</source>
        <translation>Escolher opções de GPX</translation>
    </message>
    <message>
        <source>Where limits were exceeded and warning lamps came on</source>
        <translation>Onde limites foram excedidos e luzes de aviso acenderam</translation>
    </message>
    <message>
        <source>Timestamp every :</source>
        <translation>Ponto a cada :</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKml</name>
    <message>
        <source>Google Earth KML Export</source>
        <translation>Exportação KML do Google Earth</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso do ORNA</translation>
    </message>
    <message>
        <source>Exporting KML file failed !</source>
        <translation>A exportação do arquivo KML falhou !</translation>
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
        <translation>Um ponto da trajetória a cada intervalo</translation>
    </message>
    <message>
        <source>KML Export</source>
        <translation>Exportação KML</translation>
    </message>
    <message>
        <source>Select KML Option</source>
        <translation>Escolher opções de KML</translation>
    </message>
    <message>
        <source>Timestamp every :</source>
        <translation>Ponto a cada :</translation>
    </message>
    <message>
        <source>Width of the flight path</source>
        <translation>Espessura da trajetória de voo</translation>
    </message>
    <message>
        <source>Select Line Color</source>
        <translation>Escolher cor da linha</translation>
    </message>
    <message>
        <source>Line Style</source>
        <translation>Estilo da linha</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Espessura da linha</translation>
    </message>
    <message>
        <source>Line color</source>
        <translation>Cor da linha</translation>
    </message>
    <message>
        <source>Select Polygon Color</source>
        <translation>Escolher cor do polígono</translation>
    </message>
    <message>
        <source>Draw Polygon</source>
        <translation>Desenhar polígono</translation>
    </message>
    <message>
        <source>A curtain from the flight path to the ground</source>
        <translation>Uma cortina da trajetória de voo até o solo</translation>
    </message>
    <message>
        <source>Polygon color</source>
        <translation>Cor do polígono</translation>
    </message>
    <message>
        <source>Timed track</source>
        <translation>Trajetória com tempos</translation>
    </message>
    <message>
        <source>Times and the selected values at each point, so that earth viewers can play the flight; nothing is drawn over gaps</source>
        <translation>Tempos e valores selecionados em cada ponto, para que visualizadores da Terra possam reproduzir o voo; nada é desenhado sobre lacunas</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKmlPath</name>
    <message>
        <source>Save KML Export</source>
        <translation>Salvar exportação KML</translation>
    </message>
    <message>
        <source>KML Export</source>
        <translation>Exportação KML</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKmlPlacemark</name>
    <message>
        <source>KML Export</source>
        <translation>Exportação KML</translation>
    </message>
    <message>
        <source>Select KML Placemarks</source>
        <translation>Escolher marcas de local do KML</translation>
    </message>
    <message>
        <source> samples</source>
        <translation> amostras</translation>
    </message>
    <message>
        <source>Points of the path from mark to mark</source>
        <translation>Pontos da trajetória de uma marca à seguinte</translation>
    </message>
    <message>
        <source>Select Placemark Color</source>
        <translation>Escolher cor da marca de local</translation>
    </message>
    <message>
        <source>Draw selected parameters as placemarks</source>
        <translation>Parâmetros selecionados como marcas de local</translation>
    </message>
    <message>
        <source>Placemark every</source>
        <translation>Marca de local a cada</translation>
    </message>
    <message>
        <source>Placemark Color</source>
        <translation>Cor da marca de local</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Select Exceedance Color</source>
        <translation>Escolher cor da excedência</translation>
    </message>
    <message>
        <source>Show Limit exceedance / Warning Lamps</source>
        <translation>Mostrar excedências de limite / luzes de aviso</translation>
    </message>
    <message>
        <source>Limit Exceedance</source>
        <translation>Excedência de limite</translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation>Luzes de aviso</translation>
    </message>
    <message>
        <source>Exceedance Placemark Color</source>
        <translation>Cor da marca de excedência</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportPath</name>
    <message>
        <source>Select the output directory and file</source>
        <translation>Escolher a pasta e o arquivo de saída</translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation>Nome do arquivo nesta pasta</translation>
    </message>
    <message>
        <source>Export Path</source>
        <translation>Pasta de destino</translation>
    </message>
    <message>
        <source>Export Filename</source>
        <translation>Nome do arquivo</translation>
    </message>
</context>
<context>
    <name>TARN::DialogGraphSetup</name>
    <message>
        <source>Background color</source>
        <translation>Cor de fundo</translation>
    </message>
    <message>
        <source>Grid On</source>
        <translation>Grade ativa</translation>
    </message>
    <message>
        <source>Grid color</source>
        <translation>Cor da grade</translation>
    </message>
    <message>
        <source>Label color</source>
        <translation>Cor dos rótulos</translation>
    </message>
    <message>
        <source>Label background</source>
        <translation>Fundo dos rótulos</translation>
    </message>
    <message>
        <source>Cursor On</source>
        <translation>Cursor ativo</translation>
    </message>
    <message>
        <source>Legend On</source>
        <translation>Legenda ativa</translation>
    </message>
    <message>
        <source>Autoscale On</source>
        <translation>Autoescala ativa</translation>
    </message>
    <message>
        <source>Y minimum</source>
        <translation>Y mínimo</translation>
    </message>
    <message>
        <source>Y maximum</source>
        <translation>Y máximo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Oscilloscope Setup</source>
        <translation>Configuração do osciloscópio</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Escolher</translation>
    </message>
    <message>
        <source>%1, used while autoscale is off</source>
        <translation>%1, usado quando a autoescala está desativada</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>Flutuante</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>Cursor mode</source>
        <translation>Modo do cursor</translation>
    </message>
    <message>
        <source>Background Color :</source>
        <translation>Cor de fundo :</translation>
    </message>
    <message>
        <source>Grid On/Color :</source>
        <translation>Grade ativa/cor :</translation>
    </message>
    <message>
        <source>Label Color :</source>
        <translation>Cor dos rótulos :</translation>
    </message>
    <message>
        <source>Label Background :</source>
        <translation>Fundo dos rótulos :</translation>
    </message>
    <message>
        <source>Cursor On/Mode :</source>
        <translation>Cursor ativo/modo :</translation>
    </message>
    <message>
        <source>Legend :</source>
        <translation>Legenda :</translation>
    </message>
    <message>
        <source>Y-Scale :</source>
        <translation>Escala Y :</translation>
    </message>
    <message>
        <source>Colors of the plot</source>
        <translation>Cores do gráfico</translation>
    </message>
    <message>
        <source>Colors of pictures</source>
        <translation>Cores das imagens</translation>
    </message>
    <message>
        <source>Colors/Of Pictures :</source>
        <translation>Cores/de imagens :</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Como a área de trabalho</translation>
    </message>
    <message>
        <source>As the graph</source>
        <translation>Como o gráfico</translation>
    </message>
    <message>
        <source>Thresholds :</source>
        <translation>Limiares :</translation>
    </message>
    <message>
        <source>Thresholds On</source>
        <translation>Limiares ativados</translation>
    </message>
    <message>
        <source>Lines and bands at the values where a range begins; a name stands on the color of the range that its value is in</source>
        <translation>Linhas e faixas nos valores em que começa um intervalo; um nome aparece sobre a cor do intervalo em que está o seu valor</translation>
    </message>
    <message>
        <source>Events :</source>
        <translation>Eventos :</translation>
    </message>
    <message>
        <source>Events On</source>
        <translation>Eventos ativados</translation>
    </message>
    <message>
        <source>Ticks over the plot for limits, lamps and faults, bars for as long as a limit was exceeded</source>
        <translation>Marcas sobre o gráfico para limites, luzes e falhas; barras enquanto um limite foi excedido</translation>
    </message>
    <message>
        <source>Error Lanes :</source>
        <translation>Faixas de erros :</translation>
    </message>
    <message>
        <source>Error Lanes On</source>
        <translation>Faixas de erros ativadas</translation>
    </message>
    <message>
        <source>The active errors of each error matrix below the curves</source>
        <translation>Os erros ativos de cada matriz de falhas sob as curvas</translation>
    </message>
    <message>
        <source>States :</source>
        <translation>Estados :</translation>
    </message>
    <message>
        <source>States in Words</source>
        <translation>Estados por palavras</translation>
    </message>
    <message>
        <source>Names of states beside their numbers</source>
        <translation>Nomes dos estados ao lado dos seus números</translation>
    </message>
</context>
<context>
    <name>TARN::DialogLogbook</name>
    <message>
        <source>Stop adding; what was added stays</source>
        <translation>Interromper a adição; o que foi adicionado permanece</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Diário</translation>
    </message>
    <message>
        <source>Reading the logbook...</source>
        <translation>Lendo o diário...</translation>
    </message>
    <message>
        <source>Add every flight that you open to this logbook? Only statistics and events are kept. You can change that under Extras, Preferences.</source>
        <translation>Adicionar a este diário cada voo que abrir? Apenas estatísticas e eventos são guardados. Isso pode ser alterado em Extras, Preferências.</translation>
    </message>
    <message>
        <source>&amp;Yes, Add Them</source>
        <translation>&amp;Sim, adicionar</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>&amp;Add Folder...</source>
        <translation>&amp;Adicionar pasta...</translation>
    </message>
    <message>
        <source>Add the flights of a folder and of all folders in it</source>
        <translation>Adicionar os voos de uma pasta e de todas as pastas dentro dela</translation>
    </message>
    <message>
        <source>&amp;Maintenance...</source>
        <translation>&amp;Manutenção...</translation>
    </message>
    <message>
        <source>Note that something was done to the engine: trends begin anew</source>
        <translation>Anotar que algo foi feito no motor: as tendências recomeçam</translation>
    </message>
    <message>
        <source>Every flight that you open is added from now on.</source>
        <translation>A partir de agora, cada voo que abrir é adicionado.</translation>
    </message>
    <message>
        <source>The logbook is empty.
&lt;a href=&quot;add&quot;&gt;Add a folder&lt;/a&gt; of recordings; the folders in it are looked through too.</source>
        <translation>O diário está vazio.
&lt;a href=&quot;add&quot;&gt;Adicione uma pasta&lt;/a&gt; de gravações; as pastas dentro dela também são examinadas.</translation>
    </message>
    <message>
        <source>There is no profile by which recordings could be understood. Choose one under Extras, Preferences.</source>
        <translation>Não há nenhum perfil com o qual decodificar as gravações. Escolha um em Extras, Preferências.</translation>
    </message>
    <message>
        <source>Add a Folder to the Logbook</source>
        <translation>Adicionar uma pasta ao diário</translation>
    </message>
    <message>
        <source>Adding</source>
        <translation>Adicionando</translation>
    </message>
    <message>
        <source>Choose a flight of the engine first.</source>
        <translation>Escolha primeiro um voo do motor.</translation>
    </message>
    <message>
        <source>Remove the flight of %1 from the logbook?</source>
        <translation>Remover do diário o voo de %1?</translation>
    </message>
    <message>
        <source>Its recordings stay where they are and can be added again.</source>
        <translation>As gravações dele ficam onde estão e podem ser adicionadas de novo.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Looking for its recordings...</source>
        <translation>Procurando as gravações dele...</translation>
    </message>
    <message>
        <source>Opened: %1</source>
        <translation>Aberto: %1</translation>
    </message>
    <message>
        <source>Where are the recordings of the flight of %1? The folders in the one that you choose are looked through too.</source>
        <translation>Onde estão as gravações do voo de %1? As pastas dentro da que escolher também são examinadas.</translation>
    </message>
    <message>
        <source>Choose Folder...</source>
        <translation>Escolher pasta...</translation>
    </message>
    <message>
        <source>Find Recordings</source>
        <translation>Procurar gravações</translation>
    </message>
    <message>
        <source>F5 tries it again; Extras, Preferences tells which logbook it is.</source>
        <translation>F5 tenta de novo; Extras, Preferências informa qual é o diário.</translation>
    </message>
    <message>
        <source>Flights are being added already. Wait for the end, or cancel it.</source>
        <translation>Já há voos sendo adicionados. Aguarde o fim ou cancele.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogMain</name>
    <message>
        <source>[edited]</source>
        <translation>[alterado]</translation>
    </message>
    <message>
        <source>Open SD Card</source>
        <translation>Abrir cartão SD</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso do ORNA</translation>
    </message>
    <message>
        <source>Recordings found: %1</source>
        <translation>Gravações encontradas: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; could not be loaded: no parameters can be shown. Choose another under Extras, Preferences.</source>
        <translation>Não foi possível carregar o perfil &quot;%1&quot;: nenhum parâmetro pode ser mostrado. Escolha outro em Extras, Preferências.</translation>
    </message>
    <message>
        <source>No recording is listed. Open a card first.</source>
        <translation>Não há gravação na lista. Abra primeiro um cartão.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a project nor a profile.</source>
        <translation>&quot;%1&quot; não é um projeto nem um perfil.</translation>
    </message>
    <message>
        <source>The offset could not be saved on the card (is it write-protected?) and holds until the program ends.</source>
        <translation>Não foi possível salvar o offset no cartão (está protegido contra gravação?); ele vale até o programa ser encerrado.</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Carregando</translation>
    </message>
    <message>
        <source>%1 samples/s</source>
        <translation>%1 amostras/s</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>O carregamento foi cancelado.</translation>
    </message>
    <message>
        <source>Not loaded: %1</source>
        <translation>Não foi possível carregar: %1</translation>
    </message>
    <message>
        <source>Exporting %1</source>
        <translation>Exportando %1</translation>
    </message>
    <message>
        <source>An export is running.
Wait until it is complete, or stop it? A stopped export leaves the old file.</source>
        <translation>Uma exportação está em andamento.
Aguardar a conclusão ou interrompê-la? Se for interrompida, o arquivo antigo é mantido.</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Aguardar</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Interromper</translation>
    </message>
    <message>
        <source>Loading the reference</source>
        <translation>Carregando a referência</translation>
    </message>
    <message>
        <source>Loading the reference was cancelled.</source>
        <translation>O carregamento da referência foi cancelado.</translation>
    </message>
    <message>
        <source>No reference was loaded: %1</source>
        <translation>Nenhuma referência foi carregada: %1</translation>
    </message>
</context>
<context>
    <name>TARN::DialogPreferences</name>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Pages of the preferences</source>
        <translation>Páginas das preferências</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close; every change holds already</source>
        <translation>Fechar; todas as alterações já estão em vigor</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose a profile file</source>
        <translation>Escolher um arquivo de perfil</translation>
    </message>
    <message>
        <source>Profile File :</source>
        <translation>Arquivo de perfil :</translation>
    </message>
    <message>
        <source>Language :</source>
        <translation>Idioma :</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Aplicativo</translation>
    </message>
    <message>
        <source>The XML file that says how the samples are decoded</source>
        <translation>O arquivo XML que define como as amostras são decodificadas</translation>
    </message>
    <message>
        <source>Profile file</source>
        <translation>Arquivo de perfil</translation>
    </message>
    <message>
        <source>Language of the program from its next start on</source>
        <translation>Idioma do programa a partir da próxima inicialização</translation>
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
        <translation>Perfil ORNA (*.xml);;Todos os arquivos (*.*)</translation>
    </message>
    <message>
        <source>TARN Info</source>
        <translation>Informações do TARN</translation>
    </message>
    <message>
        <source>Please restart TARN to load new language !</source>
        <translation>Reinicie o TARN para carregar o novo idioma !</translation>
    </message>
    <message>
        <source>All recorded digits</source>
        <translation>Todos os dígitos gravados</translation>
    </message>
    <message>
        <source>Numbers on the screen with all the digits that were recorded, instead of the fewest that read back as the same number; exports have them always</source>
        <translation>Números na tela com todos os dígitos gravados, em vez do mínimo que representa o mesmo número; as exportações sempre os contêm</translation>
    </message>
    <message>
        <source>Add every flight that I open</source>
        <translation>Adicionar cada voo que eu abrir</translation>
    </message>
    <message>
        <source>Logbook :</source>
        <translation>Diário :</translation>
    </message>
    <message>
        <source>a file of the program&apos;s own</source>
        <translation>um arquivo próprio do programa</translation>
    </message>
    <message>
        <source>Where flights are kept: empty for this machine alone, &quot;postgresql://user@host/database&quot; for a team. A password is taken from PGPASSWORD or ~/.pgpass and never kept</source>
        <translation>Onde os voos são guardados: vazio só para esta máquina, “postgresql://usuário@máquina/banco” para uma equipe. A senha é lida de PGPASSWORD ou de ~/.pgpass e nunca é guardada</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Diário</translation>
    </message>
    <message>
        <source>Keeps statistics and events of every flight in the logbook, not its samples</source>
        <translation>Guarda no diário as estatísticas e os eventos de cada voo, não as suas amostras</translation>
    </message>
</context>
<context>
    <name>TARN::DialogProfile</name>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Confirm Selection</source>
        <translation>Confirmar seleção</translation>
    </message>
    <message>
        <source>Selected Parameters</source>
        <translation>Parâmetros selecionados</translation>
    </message>
    <message>
        <source>Untick all parameters</source>
        <translation>Desmarcar todos os parâmetros</translation>
    </message>
    <message>
        <source>Show the ticked parameters in all views</source>
        <translation>Mostrar os parâmetros marcados em todas as visualizações</translation>
    </message>
    <message>
        <source>Parameters of the profile</source>
        <translation>Parâmetros do perfil</translation>
    </message>
    <message>
        <source>Not in this profile</source>
        <translation>Ausentes deste perfil</translation>
    </message>
    <message>
        <source>The project selects these too; they are kept in its file</source>
        <translation>O projeto também os seleciona; eles são mantidos no arquivo do projeto</translation>
    </message>
</context>
<context>
    <name>TARN::DialogRecordDetails</name>
    <message>
        <source>Recording Details</source>
        <translation>Detalhes da gravação</translation>
    </message>
    <message>
        <source>Recording details</source>
        <translation>Detalhes da gravação</translation>
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
        <translation>Copiar as linhas selecionadas, ou todas se nenhuma estiver selecionada</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Fechar esta janela</translation>
    </message>
</context>
<context>
    <name>TARN::DialogReport</name>
    <message>
        <source>Folder of the Report</source>
        <translation>Pasta do relatório</translation>
    </message>
    <message>
        <source>&amp;Open it when it is written</source>
        <translation>&amp;Abrir ao terminar</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Relatório de voo</translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation>Nome do arquivo nesta pasta</translation>
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
        <translation>Tamanho do papel em que é impresso</translation>
    </message>
    <message>
        <source>A range is marked in the graph</source>
        <translation>Um intervalo é marcado no gráfico</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>&amp;Pasta</translation>
    </message>
    <message>
        <source>File &amp;Name</source>
        <translation>&amp;Nome do arquivo</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Tipo</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>Pap&amp;el</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>&amp;Intervalo</translation>
    </message>
    <message>
        <source>Write Report</source>
        <translation>Gravar relatório</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Whole flight, %1 to %2</source>
        <translation>Voo inteiro, %1 a %2</translation>
    </message>
    <message>
        <source>Marked range, %1 to %2</source>
        <translation>Intervalo marcado, %1 a %2</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso do ORNA</translation>
    </message>
    <message>
        <source>The flight report could not be written.</source>
        <translation>O relatório de voo não pôde ser gravado.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogStatusBar</name>
    <message>
        <source>Stop loading (Escape)</source>
        <translation>Interromper o carregamento (Esc)</translation>
    </message>
    <message>
        <source>Stop the export</source>
        <translation>Interromper a exportação</translation>
    </message>
    <message>
        <source>Stop loading the reference (Escape)</source>
        <translation>Interromper o carregamento da referência (Esc)</translation>
    </message>
</context>
<context>
    <name>TARN::DirectoryEdit</name>
    <message>
        <source>Browse...</source>
        <translation>Procurar...</translation>
    </message>
    <message>
        <source>Folder of the file</source>
        <translation>Pasta do arquivo</translation>
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
        <translation>Mostrar só as linhas que contêm este texto</translation>
    </message>
    <message>
        <source>Filter text</source>
        <translation>Texto do filtro</translation>
    </message>
    <message>
        <source>Show only lines of this severity</source>
        <translation>Mostrar só as linhas desta gravidade</translation>
    </message>
    <message>
        <source>Filter severity</source>
        <translation>Gravidade do filtro</translation>
    </message>
    <message>
        <source>Every severity</source>
        <translation>Toda gravidade</translation>
    </message>
</context>
<context>
    <name>TARN::EventModel</name>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Out of range without an event</source>
        <translation>Fora da faixa sem evento</translation>
    </message>
    <message>
        <source>at its limit</source>
        <translation>no limite</translation>
    </message>
    <message>
        <source>in warning</source>
        <translation>em aviso</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Até</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Valor extremo</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Limiar</translation>
    </message>
    <message>
        <source>%1 on</source>
        <translation>%1 acesa</translation>
    </message>
    <message>
        <source>On without an event</source>
        <translation>Acesa sem evento</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravidade</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Referência: %1</translation>
    </message>
</context>
<context>
    <name>TARN::ExportRunner</name>
    <message>
        <source>Written: %1</source>
        <translation>Gravado: %1</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The export was stopped; the old file, if there was one, is unchanged.</source>
        <translation>A exportação foi interrompida; o arquivo antigo, se havia um, permanece inalterado.</translation>
    </message>
</context>
<context>
    <name>TARN::FlightBar</name>
    <message>
        <source>What happened</source>
        <translation>O que aconteceu</translation>
    </message>
    <message>
        <source>Click a part to go to the first of its kind</source>
        <translation>Clique em uma parte para ir ao primeiro do seu tipo</translation>
    </message>
</context>
<context>
    <name>TARN::FlightList</name>
    <message>
        <source>Show the flights of this engine only</source>
        <translation>Mostrar só os voos deste motor</translation>
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
        <translation>Mostrar só os voos que contêm este texto</translation>
    </message>
    <message>
        <source>Filter text</source>
        <translation>Texto do filtro</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Voos</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>Open as &amp;Reference</source>
        <translation>Abrir como &amp;referência</translation>
    </message>
    <message>
        <source>&amp;Remove from the Logbook...</source>
        <translation>Re&amp;mover do diário...</translation>
    </message>
    <message>
        <source>All engines (%1)</source>
        <translation>Todos os motores (%1)</translation>
    </message>
    <message>
        <source>No flight of %1 holds &quot;%2&quot;.</source>
        <translation>Nenhum de %1 voos contém “%2”.</translation>
    </message>
</context>
<context>
    <name>TARN::FlightListModel</name>
    <message>
        <source>without number</source>
        <translation>sem número</translation>
    </message>
    <message>
        <source>by the UTC in its data</source>
        <translation>pelo UTC dos seus dados</translation>
    </message>
    <message>
        <source>by its header, in whatever zone</source>
        <translation>pelo seu cabeçalho, em fuso horário desconhecido</translation>
    </message>
    <message>
        <source>nothing tells when it was</source>
        <translation>nada indica quando foi</translation>
    </message>
    <message>
        <source>Flight %1, %2.
Engine %3 %4, profile %5.
Double-click: open it; with Shift: open it as the reference.</source>
        <translation>Voo %1, %2.
Motor %3 %4, perfil %5.
Clique duplo: abrir; com Shift: abrir como referência.</translation>
    </message>
    <message>
        <source>Start (UTC)</source>
        <translation>Início (UTC)</translation>
    </message>
    <message>
        <source>When the flight began; slanted: by the header&apos;s clock, whose zone is not known</source>
        <translation>Quando o voo começou; em itálico: pelo relógio do cabeçalho, cujo fuso horário não é conhecido</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>From the first sample to the last</source>
        <translation>Da primeira amostra à última</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Motor</translation>
    </message>
    <message>
        <source>Serial number of the engine</source>
        <translation>Número de série do motor</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>O pior</translation>
    </message>
    <message>
        <source>The worst that happened</source>
        <translation>O pior que aconteceu</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limites</translation>
    </message>
    <message>
        <source>Times out of range that reached a limit</source>
        <translation>Vezes fora da faixa em que um limite foi atingido</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avisos</translation>
    </message>
    <message>
        <source>Times out of range that did not reach a limit</source>
        <translation>Vezes fora da faixa em que nenhum limite foi atingido</translation>
    </message>
    <message>
        <source>Lamps</source>
        <translation>Luzes</translation>
    </message>
    <message>
        <source>Times that a warning lamp was on</source>
        <translation>Vezes que uma luz de aviso esteve acesa</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Falhas</translation>
    </message>
    <message>
        <source>Warnings and faults that the matrices told of</source>
        <translation>Avisos e falhas informados pelas matrizes</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Observações</translation>
    </message>
    <message>
        <source>What is to be said about the recordings themselves</source>
        <translation>O que há a dizer sobre as próprias gravações</translation>
    </message>
</context>
<context>
    <name>TARN::FlightLoader</name>
    <message>
        <source>There is not enough memory for the recording; load fewer at once.</source>
        <translation>Memória insuficiente para a gravação; carregue menos gravações de uma vez.</translation>
    </message>
    <message>
        <source>There is not enough memory to show the recording; load fewer at once.</source>
        <translation>Memória insuficiente para mostrar a gravação; carregue menos gravações de uma vez.</translation>
    </message>
    <message>
        <source>Looking for events</source>
        <translation>Procurando eventos</translation>
    </message>
</context>
<context>
    <name>TARN::GraphButtons</name>
    <message>
        <source>Zoom In</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>Zoom 1:1</source>
        <translation>Zoom 1:1</translation>
    </message>
    <message>
        <source>Zoom Marker</source>
        <translation>Zoom na marcação</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Mostrar tudo</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Limpar tudo</translation>
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
        <translation>Modo gráfico único</translation>
    </message>
    <message>
        <source>Reset all to default</source>
        <translation>Restaurar tudo ao padrão</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Configuração</translation>
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
        <translation>Painel de medição</translation>
    </message>
</context>
<context>
    <name>TARN::LogbookAccess</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Não há memória suficiente.</translation>
    </message>
    <message>
        <source>%1 of %2 flights</source>
        <translation>%1 de %2 voos</translation>
    </message>
    <message>
        <source>Trying again: %1</source>
        <translation>Nova tentativa: %1</translation>
    </message>
</context>
<context>
    <name>TARN::LogbookKeeper</name>
    <message>
        <source>Added to the logbook.</source>
        <translation>Adicionado ao diário.</translation>
    </message>
    <message>
        <source>Not added to the logbook: %1</source>
        <translation>Não adicionado ao diário: %1</translation>
    </message>
</context>
<context>
    <name>TARN::MeasureModel</name>
    <message>
        <source>Of them without a number: %1</source>
        <translation>Das quais sem número: %1</translation>
    </message>
    <message>
        <source>Steps of more than %1 s, together %2 s</source>
        <translation>Passos de mais de %1 s, no total %2 s</translation>
    </message>
    <message>
        <source>Sent only when something changes</source>
        <translation>Só é enviado quando algo muda</translation>
    </message>
    <message>
        <source>Click to go there</source>
        <translation>Clique para ir até lá</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Parâmetro</translation>
    </message>
    <message>
        <source>Curves of the graph, in their order</source>
        <translation>Curvas do gráfico, na sua ordem</translation>
    </message>
    <message>
        <source>Value at A</source>
        <translation>Valor em A</translation>
    </message>
    <message>
        <source>Value at B</source>
        <translation>Valor em B</translation>
    </message>
    <message>
        <source>Difference of the values at A and B</source>
        <translation>Diferença dos valores em A e B</translation>
    </message>
    <message>
        <source>per s</source>
        <translation>por s</translation>
    </message>
    <message>
        <source>Difference a second from A to B</source>
        <translation>Diferença por segundo de A a B</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Mín</translation>
    </message>
    <message>
        <source>Smallest value from A to B</source>
        <translation>Menor valor de A a B</translation>
    </message>
    <message>
        <source>Min at</source>
        <translation>Mín às</translation>
    </message>
    <message>
        <source>When it stands first, recording clock</source>
        <translation>Quando aparece primeiro, relógio da gravação</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Máx</translation>
    </message>
    <message>
        <source>Greatest value from A to B</source>
        <translation>Maior valor de A a B</translation>
    </message>
    <message>
        <source>Max at</source>
        <translation>Máx às</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Média</translation>
    </message>
    <message>
        <source>Mean of the values from A to B</source>
        <translation>Média dos valores de A a B</translation>
    </message>
    <message>
        <source>Time mean</source>
        <translation>Média temporal</translation>
    </message>
    <message>
        <source>Mean of the values, each weighed with the time that it holds</source>
        <translation>Média dos valores, cada um ponderado com o tempo que vale</translation>
    </message>
    <message>
        <source>Std. dev.</source>
        <translation>Desvio p.</translation>
    </message>
    <message>
        <source>Standard deviation of the values from A to B</source>
        <translation>Desvio padrão dos valores de A a B</translation>
    </message>
    <message>
        <source>Integral</source>
        <translation>Integral</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Amostras</translation>
    </message>
    <message>
        <source>Samples from A to B</source>
        <translation>Amostras de A a B</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Lacunas</translation>
    </message>
    <message>
        <source>Stretches from A to B in which the parameter was not heard</source>
        <translation>Trechos de A a B em que o parâmetro não foi recebido</translation>
    </message>
    <message>
        <source>Above thresholds</source>
        <translation>Acima dos limiares</translation>
    </message>
    <message>
        <source>For each threshold the seconds that the value was not below</source>
        <translation>Para cada limiar, os segundos em que o valor não esteve abaixo</translation>
    </message>
    <message>
        <source>Area below the curve from A to B: of litres an hour the litres</source>
        <translation>Área sob a curva de A a B: de litros por hora, os litros</translation>
    </message>
    <message>
        <source>Δ time mean</source>
        <translation>Δ média temporal</translation>
    </message>
    <message>
        <source>Flight minus reference: mean from A to B, each difference weighed with the time that it holds</source>
        <translation>Voo menos referência: média de A a B, cada diferença ponderada com o tempo que vale</translation>
    </message>
    <message>
        <source>Δ A</source>
        <translation>Δ A</translation>
    </message>
    <message>
        <source>Flight minus reference at A</source>
        <translation>Voo menos referência em A</translation>
    </message>
    <message>
        <source>Δ B</source>
        <translation>Δ B</translation>
    </message>
    <message>
        <source>Flight minus reference at B</source>
        <translation>Voo menos referência em B</translation>
    </message>
    <message>
        <source>Δ min</source>
        <translation>Δ mín</translation>
    </message>
    <message>
        <source>Smallest difference of flight and reference from A to B</source>
        <translation>Menor diferença entre voo e referência de A a B</translation>
    </message>
    <message>
        <source>Δ max</source>
        <translation>Δ máx</translation>
    </message>
    <message>
        <source>Greatest difference of flight and reference from A to B</source>
        <translation>Maior diferença entre voo e referência de A a B</translation>
    </message>
    <message>
        <source>Ref. time mean</source>
        <translation>Ref. média temporal</translation>
    </message>
    <message>
        <source>Time mean of the reference from A to B</source>
        <translation>Média temporal da referência de A a B</translation>
    </message>
    <message>
        <source>Ref. A</source>
        <translation>Ref. A</translation>
    </message>
    <message>
        <source>Value of the reference at A</source>
        <translation>Valor da referência em A</translation>
    </message>
    <message>
        <source>Ref. B</source>
        <translation>Ref. B</translation>
    </message>
    <message>
        <source>Value of the reference at B</source>
        <translation>Valor da referência em B</translation>
    </message>
    <message>
        <source>Ref. min</source>
        <translation>Ref. mín</translation>
    </message>
    <message>
        <source>Smallest value of the reference from A to B</source>
        <translation>Menor valor da referência de A a B</translation>
    </message>
    <message>
        <source>Ref. max</source>
        <translation>Ref. máx</translation>
    </message>
    <message>
        <source>Greatest value of the reference from A to B</source>
        <translation>Maior valor da referência de A a B</translation>
    </message>
</context>
<context>
    <name>TARN::MeasurePanel</name>
    <message>
        <source>Time of A, recording clock</source>
        <translation>Hora de A, relógio da gravação</translation>
    </message>
    <message>
        <source>Time of B, recording clock</source>
        <translation>Hora de B, relógio da gravação</translation>
    </message>
    <message>
        <source>Close the measuring panel</source>
        <translation>Fechar o painel de medição</translation>
    </message>
    <message>
        <source>What is measured of the curves</source>
        <translation>O que é medido das curvas</translation>
    </message>
    <message>
        <source>Copy with Headers</source>
        <translation>Copiar com cabeçalhos</translation>
    </message>
    <message>
        <source>B − A: %1 s</source>
        <translation>B − A: %1 s</translation>
    </message>
    <message>
        <source>Nothing is marked: the whole flight</source>
        <translation>Nada está marcado: o voo inteiro</translation>
    </message>
    <message>
        <source>Sort as the Curves</source>
        <translation>Ordenar como as curvas</translation>
    </message>
</context>
<context>
    <name>TARN::ProjectKeeper</name>
    <message>
        <source>Open TARN Project</source>
        <translation>Abrir projeto TARN</translation>
    </message>
    <message>
        <source>Project Files (*.xml)</source>
        <translation>Arquivos de projeto (*.xml)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no project that can be read; the selection stays as it is.
Open a project file saved by this program.</source>
        <translation>&quot;%1&quot; não é um projeto que possa ser lido; a seleção permanece inalterada.
Abra um arquivo de projeto salvo por este programa.</translation>
    </message>
    <message>
        <source>TARN Warning</source>
        <translation>Aviso do TARN</translation>
    </message>
    <message>
        <source>Current Project not saved !
Save it now ?</source>
        <translation>O projeto atual não foi salvo !
Salvar agora ?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The project was not saved: no profile is loaded, so its parameters are not known.
Choose a profile under Extras, Preferences.</source>
        <translation>O projeto não foi salvo: nenhum perfil está carregado e seus parâmetros não são conhecidos.
Escolha um perfil em Extras, Preferências.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no project and is not replaced.
Choose another name for the project.</source>
        <translation>&quot;%1&quot; não é um projeto e não é substituído.
Escolha outro nome para o projeto.</translation>
    </message>
    <message>
        <source>The project could not be written to &quot;%1&quot;.
The old file is unchanged; save it in another folder.</source>
        <translation>Não foi possível gravar o projeto em &quot;%1&quot;.
O arquivo antigo permanece inalterado; salve o projeto em outra pasta.</translation>
    </message>
    <message>
        <source>Project saved: %1</source>
        <translation>Projeto salvo: %1</translation>
    </message>
    <message>
        <source>Save TARN Project</source>
        <translation>Salvar projeto TARN</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists in this folder. Replace it?</source>
        <translation>&quot;%1&quot; já existe nesta pasta. Substituir?</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso do ORNA</translation>
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
        <translation>Mostrar as curvas da referência (B no gráfico)</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Diferença</translation>
    </message>
    <message>
        <source>Show flight minus reference in strips of their own (D in the graph)</source>
        <translation>Mostrar voo menos referência em faixas próprias (D no gráfico)</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colunas</translation>
    </message>
    <message>
        <source>Show the reference&apos;s values in the table</source>
        <translation>Mostrar os valores da referência na tabela</translation>
    </message>
    <message>
        <source>Take the reference flight away</source>
        <translation>Remover o voo de referência</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Hora</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Moment</source>
        <translation>Momento</translation>
    </message>
    <message>
        <source>Passing</source>
        <translation>Passagem</translation>
    </message>
    <message>
        <source>What is laid on what: times of day, the first samples, a moment picked in both, or when a parameter first passes a value</source>
        <translation>O que se faz coincidir: as horas do dia, as primeiras amostras, um momento escolhido em ambos ou a primeira vez que um parâmetro passa por um valor</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alinhamento</translation>
    </message>
    <message>
        <source>Parameter that passes the value</source>
        <translation>Parâmetro que passa pelo valor</translation>
    </message>
    <message>
        <source>Value that is passed</source>
        <translation>Valor da passagem</translation>
    </message>
    <message>
        <source>Shift of the reference</source>
        <translation>Deslocamento da referência</translation>
    </message>
    <message>
        <source>Seconds by which the reference is shifted; Alt and a drag in the graph shift it too</source>
        <translation>Segundos de deslocamento da referência; arrastar com Alt no gráfico também a desloca</translation>
    </message>
    <message>
        <source>A&amp;lign:</source>
        <translation>A&amp;linhar:</translation>
    </message>
    <message>
        <source>Sh&amp;ift:</source>
        <translation>&amp;Deslocar:</translation>
    </message>
    <message>
        <source>Flight: %1</source>
        <translation>Voo: %1</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Referência: %1</translation>
    </message>
    <message>
        <source>Align Here</source>
        <translation>Alinhar aqui</translation>
    </message>
    <message>
        <source>Pick Moment</source>
        <translation>Escolher momento</translation>
    </message>
    <message>
        <source>Lays the reference&apos;s value at the cursor on the moment picked</source>
        <translation>Coloca o valor da referência no cursor sobre o momento escolhido</translation>
    </message>
    <message>
        <source>Takes the cursor&apos;s time as the moment of the flight</source>
        <translation>Usa o tempo do cursor como momento do voo</translation>
    </message>
    <message>
        <source>The reference holds no sample of: %1</source>
        <translation>A referência não contém nenhuma amostra de: %1</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> e mais %1</translation>
    </message>
    <message>
        <source>Moment of the flight: %1. Go to where the reference&apos;s curve shows the same moment, then press Align Here.</source>
        <translation>Momento do voo: %1. Vá até onde a curva da referência mostra o mesmo momento e clique em &quot;Alinhar aqui&quot;.</translation>
    </message>
    <message>
        <source>One of the flights does not pass this value: the shift is the one before.</source>
        <translation>Um dos voos não passa por este valor: o deslocamento anterior é mantido.</translation>
    </message>
    <message>
        <source>The flights have no time in common: align them by their start, or shift the reference.</source>
        <translation>Os voos não têm nenhum tempo em comum: alinhe-os pelo início ou desloque a referência.</translation>
    </message>
    <message>
        <source>The flights are being aligned.</source>
        <translation>Os voos estão sendo alinhados.</translation>
    </message>
    <message>
        <source>There is not enough memory to compare everything; select fewer parameters.</source>
        <translation>Não há memória suficiente para comparar tudo; selecione menos parâmetros.</translation>
    </message>
</context>
<context>
    <name>TARN::ReferenceGraph</name>
    <message>
        <source>Show &amp;Reference</source>
        <translation>Mostrar &amp;referência</translation>
    </message>
    <message>
        <source>Show &amp;Difference</source>
        <translation>Mostrar di&amp;ferença</translation>
    </message>
    <message>
        <source>There is not enough memory for the reference&apos;s curves; select fewer parameters.</source>
        <translation>Memória insuficiente para as curvas da referência; selecione menos parâmetros.</translation>
    </message>
</context>
<context>
    <name>TARN::ReferenceLoader</name>
    <message>
        <source>There is not enough memory for a reference beside the flight.</source>
        <translation>Memória insuficiente para uma referência ao lado do voo.</translation>
    </message>
    <message>
        <source>Looking for events</source>
        <translation>Procurando eventos</translation>
    </message>
</context>
<context>
    <name>TARN::SessionGraph</name>
    <message>
        <source>There is not enough memory for these curves; select fewer parameters.</source>
        <translation>Memória insuficiente para estas curvas; selecione menos parâmetros.</translation>
    </message>
    <message>
        <source>%1 of %2 selected parameters shown</source>
        <translation>%1 de %2 parâmetros selecionados são mostrados</translation>
    </message>
    <message>
        <source>Left out of the graph, because their time falls: %1 samples</source>
        <translation>Omitidas do gráfico, porque o seu tempo retrocede: %1 amostras</translation>
    </message>
    <message>
        <source>The graph was cleared.
Press &quot;Confirm Selection&quot; to fill it again.</source>
        <translation>O gráfico foi limpo.
Clique em &quot;Confirmar seleção&quot; para preenchê-lo de novo.</translation>
    </message>
    <message>
        <source>The graph is being filled.</source>
        <translation>O gráfico está sendo preenchido.</translation>
    </message>
    <message>
        <source>The recording holds no sample of the selected parameters.</source>
        <translation>A gravação não contém nenhuma amostra dos parâmetros selecionados.</translation>
    </message>
</context>
<context>
    <name>TARN::TableModel</name>
    <message>
        <source>Time</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Referência: %1</translation>
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
        <translation>Data e hora do dia em UTC</translation>
    </message>
    <message>
        <source>Time on the recording&apos;s clock</source>
        <translation>Tempo no relógio da gravação</translation>
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
        <translation>Relógio da gravação</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Seconds added to the times of units whose clock differs; kept with the card folder</source>
        <translation>Segundos somados aos tempos das unidades cujo relógio difere; salvos com a pasta do cartão</translation>
    </message>
    <message>
        <source>Current time, from the recording&apos;s start to its stop</source>
        <translation>Instante atual, do início ao fim da gravação</translation>
    </message>
    <message>
        <source>Current time</source>
        <translation>Instante atual</translation>
    </message>
    <message>
        <source>Current time on the recording&apos;s clock; type a time and press Enter to go there</source>
        <translation>Instante atual no relógio da gravação; digite um tempo e pressione Enter para ir até ele</translation>
    </message>
    <message>
        <source>Go to time</source>
        <translation>Ir para o instante</translation>
    </message>
    <message>
        <source>Previous event</source>
        <translation>Evento anterior</translation>
    </message>
    <message>
        <source>Next event</source>
        <translation>Próximo evento</translation>
    </message>
</context>
<context>
    <name>TARN::TrendListModel</name>
    <message>
        <source>Parameter</source>
        <translation>Parâmetro</translation>
    </message>
    <message>
        <source>Device, parameter and unit</source>
        <translation>Dispositivo, parâmetro e unidade</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Desvio</translation>
    </message>
    <message>
        <source>How far the latest flight lies from the median, in robust standard deviations; red where it is marked</source>
        <translation>A que distância da mediana está o último voo, em desvios padrão robustos; em vermelho onde está marcado</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>Marcados</translation>
    </message>
    <message>
        <source>Number of flights that leave the band</source>
        <translation>Número de voos que saem da banda</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>Último</translation>
    </message>
    <message>
        <source>In the latest flight that has a value</source>
        <translation>No último voo que tem um valor</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Mediana</translation>
    </message>
    <message>
        <source>Of the other flights since the last maintenance</source>
        <translation>Dos outros voos desde a última manutenção</translation>
    </message>
</context>
<context>
    <name>TARN::TrendPanel</name>
    <message>
        <source>Time mean when steady</source>
        <translation>Média temporal estabilizada</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Seconds above WARNING</source>
        <translation>Segundos acima de WARNING</translation>
    </message>
    <message>
        <source>Times out of range</source>
        <translation>Vezes fora da faixa</translation>
    </message>
    <message>
        <source>What is compared from flight to flight</source>
        <translation>O que se compara de um voo para outro</translation>
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
        <translation>Mostrar só os parâmetros que contêm este texto</translation>
    </message>
    <message>
        <source>Filter of the parameters</source>
        <translation>Filtro dos parâmetros</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Parâmetros</translation>
    </message>
    <message>
        <source>No parameter holds this text.</source>
        <translation>Nenhum parâmetro contém este texto.</translation>
    </message>
    <message>
        <source>No flight of this engine has a steady stretch of three minutes. What is steady is told by parameters that the profile marks with &quot;steady&quot;.</source>
        <translation>Nenhum voo deste motor tem um trecho estabilizado de três minutos. O que é estabilizado é determinado pelos parâmetros que o perfil marca com “steady”.</translation>
    </message>
    <message>
        <source>No flight of this engine has this figure.</source>
        <translation>Nenhum voo deste motor tem este indicador.</translation>
    </message>
    <message>
        <source>Engine %1: a band needs five other flights since the last maintenance.</source>
        <translation>Motor %1: uma banda precisa de outros cinco voos desde a última manutenção.</translation>
    </message>
    <message>
        <source>Engine %1: %2 of %3 parameters leave their band in their latest flight.</source>
        <translation>Motor %1: %2 de %3 parâmetros fora da sua banda no seu último voo.</translation>
    </message>
    <message>
        <source>%1%2, %3: %4 of %5 flights leave the band</source>
        <translation>%1%2, %3: %4 de %5 voos fora da banda</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetErrorTime</name>
    <message>
        <source>When errors were active: from the top info, warning, fault. Click to go there.</source>
        <translation>Quando houve erros ativos: de cima para baixo, informação, aviso, falha. Clique para ir até lá.</translation>
    </message>
    <message>
        <source>Fault timeline</source>
        <translation>Linha do tempo das falhas</translation>
    </message>
    <message>
        <source>The recording holds no message of this matrix.</source>
        <translation>A gravação não contém nenhuma mensagem desta matriz.</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetTimeRange</name>
    <message>
        <source>Start time</source>
        <translation>Tempo inicial</translation>
    </message>
    <message>
        <source>Stop time</source>
        <translation>Tempo final</translation>
    </message>
    <message>
        <source>Cursor Pos</source>
        <translation>Pos. cursor</translation>
    </message>
    <message>
        <source>Start at the current time of the data window</source>
        <translation>Começar no instante atual da janela de dados</translation>
    </message>
    <message>
        <source>Stop at the current time of the data window</source>
        <translation>Terminar no instante atual da janela de dados</translation>
    </message>
    <message>
        <source>Start :</source>
        <translation>Início :</translation>
    </message>
    <message>
        <source>Stop :</source>
        <translation>Fim :</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso do ORNA</translation>
    </message>
    <message>
        <source>The start time is after the stop time: nothing would be exported.</source>
        <translation>O tempo inicial é posterior ao tempo final: nada seria exportado.</translation>
    </message>
    <message>
        <source>Start/Stop Time (recording clock)</source>
        <translation>Tempo inicial/final (relógio da gravação)</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetTrack</name>
    <message>
        <source>Track</source>
        <translation>Trajetória</translation>
    </message>
    <message>
        <source>The path of the flight from above, and its height below</source>
        <translation>A trajetória do voo vista de cima e, abaixo, sua altura</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetTrend</name>
    <message>
        <source>Trend</source>
        <translation>Tendência</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>sem valor</translation>
    </message>
    <message>
        <source>Median of the others %1, sigma %2</source>
        <translation>Mediana dos outros %1, sigma %2</translation>
    </message>
    <message>
        <source>It leaves the band.</source>
        <translation>Sai da banda.</translation>
    </message>
    <message>
        <source>Click: open the flight; with Shift: as the reference.</source>
        <translation>Clique: abrir o voo; com Shift: como referência.</translation>
    </message>
</context>
<context>
    <name>TargetQuestion</name>
    <message>
        <source>Type a file name, without a folder.</source>
        <translation>Digite um nome de arquivo, sem pasta.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Choose another.</source>
        <translation>A pasta &quot;%1&quot; não existe. Escolha outra.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; may not be written to. Choose another.</source>
        <translation>A pasta &quot;%1&quot; não permite gravação. Escolha outra.</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>Aviso do ORNA</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists in this folder. Replace it?</source>
        <translation>&quot;%1&quot; já existe nesta pasta. Substituir?</translation>
    </message>
</context>
<context>
    <name>TimedKml</name>
    <message>
        <source>The recording tells no date: no times can be given. Export the path without them.</source>
        <translation>A gravação não indica data: não é possível informar tempos. Exporte a trajetória sem eles.</translation>
    </message>
</context>
<context>
    <name>TrackColors</name>
    <message>
        <source>All parameters</source>
        <translation>Todos os parâmetros</translation>
    </message>
    <message>
        <source>in range</source>
        <translation>na faixa</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>sem valor</translation>
    </message>
</context>
<context>
    <name>TrackDrawing</name>
    <message>
        <source>No position at %1; shown is the last one, of %2</source>
        <translation>Sem posição às %1; mostra-se a última, das %2</translation>
    </message>
    <message>
        <source>No position at %1 or before</source>
        <translation>Sem posição às %1 nem antes</translation>
    </message>
</context>
<context>
    <name>TrackHits</name>
    <message>
        <source>and %1 more</source>
        <translation>e mais %1</translation>
    </message>
</context>
<context>
    <name>TrackMarks</name>
    <message>
        <source>peak %1 at %2, threshold %3</source>
        <translation>pico %1 às %2, limiar %3</translation>
    </message>
</context>
<context>
    <name>TrackNote</name>
    <message>
        <source>The recording tells no UTC: times are counted from the date of its header, whose time zone is not known, as if that were UTC.</source>
        <translation>A gravação não indica UTC: os tempos são contados a partir da data do cabeçalho, cujo fuso horário não é conhecido, como se fosse UTC.</translation>
    </message>
    <message>
        <source>The recording tells no date: the track is without times.</source>
        <translation>A gravação não indica data: a trajetória não tem tempos.</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; of the altitude is not known, its numbers were taken for metres.</source>
        <translation>A unidade &quot;%1&quot; da altitude não é conhecida; seus números foram tomados como metros.</translation>
    </message>
    <message>
        <source>Times are UTC as the recording&apos;s own messages tell it.</source>
        <translation>Os tempos são UTC conforme as próprias mensagens da gravação.</translation>
    </message>
    <message>
        <source>Altitudes are metres, converted from %1.</source>
        <translation>As altitudes estão em metros, convertidas de %1.</translation>
    </message>
    <message>
        <source>Left out: %1 positions at 0/0 or incomplete, %2 that nothing flies to, %3 events without a position.</source>
        <translation>Omitidos: %1 posições em 0/0 ou incompletas, %2 às quais nada voa, %3 eventos sem posição.</translation>
    </message>
</context>
<context>
    <name>TrackSymbols</name>
    <message>
        <source>out of range</source>
        <translation>fora da faixa</translation>
    </message>
    <message>
        <source>warning lamp</source>
        <translation>luz de aviso</translation>
    </message>
    <message>
        <source>fault or warning</source>
        <translation>falha ou aviso</translation>
    </message>
    <message>
        <source>Events without a position: %1</source>
        <translation>Eventos sem posição: %1</translation>
    </message>
</context>
<context>
    <name>UnknownIdentifiers</name>
    <message>
        <source>Identifiers that the profile does not describe: %1, their samples: %2</source>
        <translation>Identificadores que o perfil não descreve: %1, amostras deles: %2</translation>
    </message>
</context>
<context>
    <name>WidgetGraph</name>
    <message>
        <source>Graph of the selected parameters</source>
        <translation>Gráfico dos parâmetros selecionados</translation>
    </message>
    <message>
        <source>Click to show the curve</source>
        <translation>Clique para mostrar a curva</translation>
    </message>
    <message>
        <source>Click to hide the curve, drag to move it, right click for more</source>
        <translation>Clique para ocultar a curva, arraste para a mover, clique direito para mais</translation>
    </message>
</context>
</TS>
