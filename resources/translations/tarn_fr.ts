<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AdderTexts</name>
    <message>
        <source>it can&apos;t be read</source>
        <translation>elle ne peut pas être lue</translation>
    </message>
    <message>
        <source>it changed while it was read</source>
        <translation>elle a changé pendant la lecture</translation>
    </message>
</context>
<context>
    <name>CompanionDrawing</name>
    <message>
        <source>Δ flight minus reference</source>
        <translation>Δ vol moins référence</translation>
    </message>
    <message>
        <source>ref. %1</source>
        <translation>réf. %1</translation>
    </message>
</context>
<context>
    <name>CurveMenu</name>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Afficher</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Masquer</translation>
    </message>
    <message>
        <source>&amp;Only This</source>
        <translation>&amp;Seulement celle-ci</translation>
    </message>
    <message>
        <source>&amp;Color...</source>
        <translation>&amp;Couleur...</translation>
    </message>
    <message>
        <source>Show &amp;All Curves</source>
        <translation>Afficher &amp;toutes les courbes</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>Own &amp;Range...</source>
        <translation>&amp;Plage propre...</translation>
    </message>
    <message>
        <source>Au&amp;tomatic Range</source>
        <translation>Plage au&amp;tomatique</translation>
    </message>
    <message>
        <source>Color of %1</source>
        <translation>Couleur de %1</translation>
    </message>
    <message>
        <source>Range of %1</source>
        <translation>Plage de %1</translation>
    </message>
</context>
<context>
    <name>DialogAbout</name>
    <message>
        <source>About ORNA</source>
        <translation>À propos d&apos;ORNA</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Third-party notices</source>
        <translation>Composants tiers</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Fermer cette fenêtre</translation>
    </message>
    <message>
        <source>Reads engine and flight recordings of an aircraft&apos;s SD card</source>
        <translation>Lit les enregistrements moteur et de vol de la carte SD d&apos;un aéronef</translation>
    </message>
    <message>
        <source>Version %1, built %2</source>
        <translation>Version %1, compilée le %2</translation>
    </message>
</context>
<context>
    <name>DialogHelp</name>
    <message>
        <source>ORNA Help</source>
        <translation>Aide d&apos;ORNA</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Fermer cette fenêtre</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Sections of the manual</source>
        <translation>Sections du manuel</translation>
    </message>
    <message>
        <source>Search the manual</source>
        <translation>Rechercher dans le manuel</translation>
    </message>
    <message>
        <source>Words to find; Enter goes to the next place</source>
        <translation>Mots à rechercher&#xa0;; Entrée passe à l&apos;occurrence suivante</translation>
    </message>
    <message>
        <source>Previous place</source>
        <translation>Occurrence précédente</translation>
    </message>
    <message>
        <source>Next place</source>
        <translation>Occurrence suivante</translation>
    </message>
</context>
<context>
    <name>EmptyText</name>
    <message>
        <source>No profile is loaded, so nothing can be decoded and nothing was checked.
Choose one in the &lt;a href=&quot;preferences&quot;&gt;preferences&lt;/a&gt;.</source>
        <translation>Aucun profil n&apos;est chargé&#xa0;: rien ne peut être décodé et rien n&apos;a été vérifié.
Choisissez-en un dans les &lt;a href=&quot;preferences&quot;&gt;préférences&lt;/a&gt;.</translation>
    </message>
    <message>
        <source>The recording is being loaded.</source>
        <translation>L&apos;enregistrement est en cours de chargement.</translation>
    </message>
    <message>
        <source>No recording is loaded.
Open a card and pick one or more recordings in the list on the left.</source>
        <translation>Aucun enregistrement n&apos;est chargé.
Ouvrez une carte et choisissez un ou plusieurs enregistrements dans la liste de gauche.</translation>
    </message>
    <message>
        <source>The recording holds no samples, so nothing was checked.</source>
        <translation>L&apos;enregistrement ne contient aucun échantillon&#xa0;; rien n&apos;a été vérifié.</translation>
    </message>
    <message>
        <source>No parameter is selected.
Tick parameters in the list on the left and press &quot;Confirm Selection&quot;.</source>
        <translation>Aucun paramètre n&apos;est sélectionné.
Cochez des paramètres dans la liste de gauche, puis appuyez sur «&#xa0;Confirmer la sélection&#xa0;».</translation>
    </message>
</context>
<context>
    <name>EventLists</name>
    <message>
        <source>The recording holds no FLOAT message of a parameter with a threshold, so nothing was watched for limits.</source>
        <translation>L&apos;enregistrement ne contient aucun message FLOAT d&apos;un paramètre à seuil&#xa0;; aucune limite n&apos;a été surveillée.</translation>
    </message>
    <message>
        <source>No limit event in %1 samples of %2 watched parameters.</source>
        <translation>Aucun événement de limite dans %1 échantillons de %2 paramètres surveillés.</translation>
    </message>
    <message>
        <source>The recording holds no message of a warning lamp, so none was watched.</source>
        <translation>L&apos;enregistrement ne contient aucun message de voyant d&apos;alerte&#xa0;; aucun n&apos;a été surveillé.</translation>
    </message>
    <message>
        <source>No warning lamp came on in %1 samples of %2 lamps.</source>
        <translation>Aucun voyant d&apos;alerte ne s&apos;est allumé dans %1 échantillons de %2 voyants.</translation>
    </message>
    <message>
        <source>The recording holds no message of an error matrix, so none was watched.</source>
        <translation>L&apos;enregistrement ne contient aucun message d&apos;une matrice d&apos;erreurs, donc aucune n&apos;a été surveillée.</translation>
    </message>
    <message>
        <source>No error was active in %1 messages of %2 matrices.</source>
        <translation>Aucune erreur n&apos;a été active dans %1 messages de %2 matrices.</translation>
    </message>
</context>
<context>
    <name>EventMarks</name>
    <message>
        <source>%1 came</source>
        <translation>apparition de %1</translation>
    </message>
    <message>
        <source>%1 went</source>
        <translation>disparition de %1</translation>
    </message>
</context>
<context>
    <name>EventWords</name>
    <message>
        <source>Caution</source>
        <translation>Attention</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Alerte</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Défaut</translation>
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
        <translation>Impossible d&apos;écrire «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;a pas pu être écrit&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>ExportCsv</name>
    <message>
        <source>The first sample is at %1 s, the last at %2 s, the export ends at %3 s. Choose a shorter time range or a coarser resolution.</source>
        <translation>Le premier échantillon est à %1 s, le dernier à %2 s, l&apos;export se termine à %3 s. Choisissez une plage de temps plus courte ou une résolution moins fine.</translation>
    </message>
    <message>
        <source>The table would have too many rows.</source>
        <translation>Le tableau aurait trop de lignes.</translation>
    </message>
    <message>
        <source>The table would have %1 rows, about %2 MB, more than is free in &quot;%3&quot;.</source>
        <translation>Le tableau aurait %1 lignes, soit environ %2 Mo&#xa0;: plus que l&apos;espace libre dans «&#xa0;%3&#xa0;».</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2</source>
        <translation>Impossible d&apos;écrire «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be written: %2</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;a pas pu être écrit&#xa0;: %2</translation>
    </message>
    <message>
        <source>No parameter is selected, the file holds its title only.</source>
        <translation>Aucun paramètre n&apos;est sélectionné, le fichier ne contient que son titre.</translation>
    </message>
    <message>
        <source>No sample lies in the time range, the file holds its titles only.</source>
        <translation>Aucun échantillon dans la plage de temps, le fichier ne contient que ses titres.</translation>
    </message>
</context>
<context>
    <name>ExportKml</name>
    <message>
        <source>&quot;%1&quot; could not be written. Check that the folder exists, may be written to and has room.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;a pas pu être écrit. Vérifiez que le dossier existe, qu&apos;il est accessible en écriture et qu&apos;il reste de la place.</translation>
    </message>
    <message>
        <source>No position lies in the time range, the flight path is empty.</source>
        <translation>Aucune position dans la plage de temps, la trajectoire de vol est vide.</translation>
    </message>
    <message>
        <source>Left out, because no position lies in their time slot: %1 values, %2 events. A longer &quot;Timestamp every&quot; keeps them.</source>
        <translation>Écartés, faute de position dans leur intervalle de temps&#xa0;: %1 valeurs, %2 événements. Un «&#xa0;Horodatage toutes les&#xa0;» plus long les conserve.</translation>
    </message>
</context>
<context>
    <name>ExportReport</name>
    <message>
        <source>&quot;%1&quot;: a report is a web page or a PDF; end the name in .html or .pdf.</source>
        <translation>« %1 »&#xa0;: un rapport est une page web ou un PDF ; terminez le nom par .html ou .pdf.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be written: %2. Choose another folder; the old file, if there was one, is unchanged.</source>
        <translation>« %1 » ne peut pas être écrit&#xa0;: %2. Choisissez un autre dossier ; l&apos;ancien fichier, s&apos;il existait, est inchangé.</translation>
    </message>
</context>
<context>
    <name>Exporter</name>
    <message>
        <source>&quot;%1&quot; is the recording itself. Choose another name or folder.</source>
        <translation>«&#xa0;%1&#xa0;» est l&apos;enregistrement lui-même. Choisissez un autre nom ou un autre dossier.</translation>
    </message>
    <message>
        <source>There is not enough memory for this export; choose a shorter time range.</source>
        <translation>Mémoire insuffisante pour cet export&#xa0;; choisissez une plage de temps plus courte.</translation>
    </message>
</context>
<context>
    <name>FlightAdder</name>
    <message>
        <source>&quot;%1&quot; can&apos;t be read to its end</source>
        <translation>« %1 » ne peut pas être lu jusqu&apos;au bout</translation>
    </message>
    <message>
        <source>there is no sample in it</source>
        <translation>elle ne contient aucun échantillon</translation>
    </message>
    <message>
        <source>there is not enough memory for it</source>
        <translation>la mémoire ne suffit pas</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no folder</source>
        <translation>« %1 » n&apos;est pas un dossier</translation>
    </message>
</context>
<context>
    <name>FlightSummary</name>
    <message>
        <source>Duration %1</source>
        <translation>Durée %1</translation>
    </message>
    <message>
        <source>no profile, so nothing was checked</source>
        <translation>pas de profil, rien n&apos;a été vérifié</translation>
    </message>
    <message>
        <source>%1 at the limit</source>
        <translation>%1 à la limite</translation>
    </message>
    <message>
        <source>%1 in warning</source>
        <translation>%1 en alerte</translation>
    </message>
    <message>
        <source>Lamps: %1</source>
        <translation>Voyants&#xa0;: %1</translation>
    </message>
    <message>
        <source>Faults and warnings: %1</source>
        <translation>Défauts et alertes&#xa0;: %1</translation>
    </message>
    <message>
        <source>nothing out of range in %1 samples of %2 watched parameters</source>
        <translation>rien hors plage dans %1 échantillons de %2 paramètres surveillés</translation>
    </message>
    <message>
        <source>no parameter was watched for limits</source>
        <translation>aucun paramètre n&apos;a été surveillé pour les limites</translation>
    </message>
    <message>
        <source>Remarks: %1</source>
        <translation>Remarques&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>FlightTables</name>
    <message>
        <source>the logbook has no flight &quot;%1&quot;</source>
        <translation>le carnet n&apos;a pas de vol « %1 »</translation>
    </message>
</context>
<context>
    <name>GraphCaption</name>
    <message>
        <source>%1 to %2 (%3 recordings)</source>
        <translation>%1 à %2 (%3 enregistrements)</translation>
    </message>
    <message>
        <source>%1 to %2 on the recording&apos;s clock</source>
        <translation>%1 à %2 à l&apos;horloge de l&apos;enregistrement</translation>
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
        <translation>le carnet n&apos;a pas de vol « %1 »</translation>
    </message>
    <message>
        <source>the keys of several flights begin with &quot;%1&quot;</source>
        <translation>les clés de plusieurs vols commencent par « %1 »</translation>
    </message>
    <message>
        <source>the logbook has no flight of the engine &quot;%1&quot;</source>
        <translation>le carnet n&apos;a pas de vol du moteur « %1 »</translation>
    </message>
</context>
<context>
    <name>LogbookPlace</name>
    <message>
        <source>the logbook&apos;s URL is neither sqlite:PATH nor postgresql://user@host:port/database</source>
        <translation>l&apos;URL du carnet n&apos;est ni sqlite:CHEMIN ni postgresql://utilisateur@hôte:port/base</translation>
    </message>
    <message>
        <source>the logbook&apos;s URL has an option that is not understood; known are %1</source>
        <translation>l&apos;URL du carnet a une option inconnue ; sont connues %1</translation>
    </message>
    <message>
        <source>there is no home directory for a logbook; name one by its URL</source>
        <translation>il n&apos;y a pas de dossier personnel pour un carnet ; indiquez-en un par son URL</translation>
    </message>
</context>
<context>
    <name>LogbookSchema</name>
    <message>
        <source>&quot;%1&quot; is no logbook: another program&apos;s tables are in it</source>
        <translation>« %1 » n&apos;est pas un carnet&#xa0;: il contient les tables d&apos;un autre programme</translation>
    </message>
    <message>
        <source>the logbook %1 is of version %2, this program knows versions up to %3; a newer program is needed</source>
        <translation>le carnet %1 est de la version %2, ce programme connaît les versions jusqu&apos;à %3 ; il faut un programme plus récent</translation>
    </message>
    <message>
        <source>there is no logbook in %1</source>
        <translation>il n&apos;y a pas de carnet dans %1</translation>
    </message>
</context>
<context>
    <name>LogbookSettings</name>
    <message>
        <source>Added: %1</source>
        <translation>Ajoutés&#xa0;: %1</translation>
    </message>
    <message>
        <source>known already: %1</source>
        <translation>déjà connus&#xa0;: %1</translation>
    </message>
    <message>
        <source>not looked at: %1</source>
        <translation>non examinés&#xa0;: %1</translation>
    </message>
    <message>
        <source>not added: %1 (%2)</source>
        <translation>non ajoutés&#xa0;: %1 (%2)</translation>
    </message>
</context>
<context>
    <name>MaintenanceDialog</name>
    <message>
        <source>Maintenance</source>
        <translation>Maintenance</translation>
    </message>
    <message>
        <source>What was done to engine %1? Trends compare flights only with those since the last note.</source>
        <translation>Qu&apos;a-t-on fait sur le moteur %1&#xa0;? Les tendances ne comparent les vols qu&apos;à ceux qui suivent la dernière note.</translation>
    </message>
    <message>
        <source>Flights from this moment on are behind the maintenance</source>
        <translation>Les vols à partir de cet instant sont postérieurs à la maintenance</translation>
    </message>
    <message>
        <source>Cylinder 6 replaced</source>
        <translation>Cylindre 6 remplacé</translation>
    </message>
    <message>
        <source>&amp;Date (UTC)</source>
        <translation>&amp;Date (UTC)</translation>
    </message>
    <message>
        <source>&amp;Note</source>
        <translation>&amp;Note</translation>
    </message>
    <message>
        <source>Note It</source>
        <translation>Noter</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>NotePlaces</name>
    <message>
        <source>%1 to %2, %3 s</source>
        <translation>%1 à %2, %3 s</translation>
    </message>
    <message>
        <source>%1 at its limit</source>
        <translation>%1 à sa limite</translation>
    </message>
    <message>
        <source>%1 in warning</source>
        <translation>%1 en alerte</translation>
    </message>
    <message>
        <source>, peak %1 %2 at %3</source>
        <translation>, pic %1 %2 à %3</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
</context>
<context>
    <name>OutputFile</name>
    <message>
        <source>it is no file</source>
        <translation>ce n&apos;est pas un fichier</translation>
    </message>
</context>
<context>
    <name>PositionTrack</name>
    <message>
        <source>Positions of 0/0, sent while the receiver knows none: %1</source>
        <translation>Positions 0/0, envoyées tant que le récepteur n&apos;en connaît aucune&#xa0;: %1</translation>
    </message>
    <message>
        <source>Jumps of the position faster than 500 m/s: %1, the first at %2</source>
        <translation>Sauts de la position plus rapides que 500 m/s&#xa0;: %1, le premier à %2</translation>
    </message>
</context>
<context>
    <name>Record</name>
    <message>
        <source>not enough memory for %1 samples; load fewer recordings at once</source>
        <translation>mémoire insuffisante pour %1 échantillons&#xa0;; chargez moins d&apos;enregistrements à la fois</translation>
    </message>
    <message>
        <source>could not open the recording &quot;%1&quot;; check that the card is still in place</source>
        <translation>impossible d&apos;ouvrir l&apos;enregistrement «&#xa0;%1&#xa0;»&#xa0;; vérifiez que la carte est toujours en place</translation>
    </message>
    <message>
        <source>not enough memory to read the recording; load fewer at once</source>
        <translation>mémoire insuffisante pour lire l&apos;enregistrement&#xa0;; chargez-en moins à la fois</translation>
    </message>
    <message>
        <source>could not read the recording &quot;%1&quot; to its end; check that the card is still in place</source>
        <translation>impossible de lire l&apos;enregistrement «&#xa0;%1&#xa0;» jusqu&apos;à la fin&#xa0;; vérifiez que la carte est toujours en place</translation>
    </message>
</context>
<context>
    <name>RecordText</name>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Remarque</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Start Time</source>
        <translation>Heure de début</translation>
    </message>
    <message>
        <source>Stop Time</source>
        <translation>Heure de fin</translation>
    </message>
    <message>
        <source>Bus Type</source>
        <translation>Type de bus</translation>
    </message>
    <message>
        <source>ECU Serial Number</source>
        <translation>N° de série ECU</translation>
    </message>
    <message>
        <source>Software Part Nr. A</source>
        <translation>Réf. logiciel A</translation>
    </message>
    <message>
        <source>Software Part Nr. B</source>
        <translation>Réf. logiciel B</translation>
    </message>
    <message>
        <source>ECU Type</source>
        <translation>Type d&apos;ECU</translation>
    </message>
    <message>
        <source>EMU SW Version</source>
        <translation>Version logiciel EMU</translation>
    </message>
    <message>
        <source>Engine Serial Nr.</source>
        <translation>N° de série moteur</translation>
    </message>
    <message>
        <source>Engine Type</source>
        <translation>Type de moteur</translation>
    </message>
    <message>
        <source>Samples Total</source>
        <translation>Total des échantillons</translation>
    </message>
    <message>
        <source>The file could not be opened</source>
        <translation>Le fichier n&apos;a pas pu être ouvert</translation>
    </message>
    <message>
        <source>The header is cut short, bytes missing: %1</source>
        <translation>En-tête tronqué, octets manquants&#xa0;: %1</translation>
    </message>
    <message>
        <source>Ignored at the end, bytes that are no whole sample: %1</source>
        <translation>Ignorés à la fin, octets ne formant pas un échantillon entier&#xa0;: %1</translation>
    </message>
    <message>
        <source>Samples that could not be read: %1</source>
        <translation>Échantillons qui n&apos;ont pas pu être lus&#xa0;: %1</translation>
    </message>
    <message>
        <source>Samples with an impossible time: %1, the first is number %2</source>
        <translation>Échantillons à l&apos;heure impossible&#xa0;: %1, le premier est le n°&#xa0;%2</translation>
    </message>
    <message>
        <source>Samples of channels other than 0 and 1: %1</source>
        <translation>Échantillons de canaux autres que 0 et 1&#xa0;: %1</translation>
    </message>
    <message>
        <source>Gaps of more than 10 s: %1, the longest is %2 s from %3 on</source>
        <translation>Interruptions de plus de 10 s&#xa0;: %1, la plus longue dure %2 s à partir de %3</translation>
    </message>
    <message>
        <source>The time offset could not be read: &quot;%1&quot; is damaged. Setting another offset keeps that file aside</source>
        <translation>Le décalage n&apos;a pas pu être lu&#xa0;: «&#xa0;%1&#xa0;» est endommagé. Si vous réglez un autre décalage, ce fichier est conservé à part</translation>
    </message>
    <message>
        <source>Samples Read</source>
        <translation>Échantillons lus</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 et %2</translation>
    </message>
    <message>
        <source>Files that overlap in time: %1, the first are %2. Check that they belong together</source>
        <translation>Fichiers qui se chevauchent dans le temps&#xa0;: %1, les premiers sont %2. Vérifiez qu&apos;ils vont ensemble</translation>
    </message>
    <message>
        <source>Header dates from %1 to %2, but the samples last %3 s: the files are not of one flight</source>
        <translation>Dates d&apos;en-tête de %1 à %2, mais les échantillons couvrent %3 s&#xa0;: les fichiers ne sont pas d&apos;un même vol</translation>
    </message>
</context>
<context>
    <name>RecordingFinder</name>
    <message>
        <source>Files named %1 were found, but they hold another flight.</source>
        <translation>Des fichiers nommés %1 ont été trouvés, mais ils contiennent un autre vol.</translation>
    </message>
    <message>
        <source>The files %1 were not found.</source>
        <translation>Les fichiers %1 n&apos;ont pas été trouvés.</translation>
    </message>
</context>
<context>
    <name>ReportCharts</name>
    <message>
        <source>peak %1 at %2, threshold %3</source>
        <translation>pic %1 à %2, seuil %3</translation>
    </message>
    <message>
        <source>The other parameters of %1 meanwhile</source>
        <translation>Les autres paramètres de %1 pendant ce temps</translation>
    </message>
    <message>
        <source>The worst, in two minutes each</source>
        <translation>Le pire, deux minutes chacun</translation>
    </message>
    <message>
        <source>The whole flight</source>
        <translation>Le vol entier</translation>
    </message>
    <message>
        <source>No parameter is selected.</source>
        <translation>Aucun paramètre n&apos;est sélectionné.</translation>
    </message>
    <message>
        <source>%1 to %2 on the recording&apos;s clock</source>
        <translation>%1 à %2 à l&apos;horloge de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>The reported range</source>
        <translation>La plage du rapport</translation>
    </message>
    <message>
        <source>%1 to %2 on the recording&apos;s clock; dashed: the reference</source>
        <translation>%1 à %2 à l&apos;horloge de l&apos;enregistrement&#xa0;; en tirets&#xa0;: la référence</translation>
    </message>
</context>
<context>
    <name>ReportComparison</name>
    <message>
        <source>Reference: %1, shifted by %2 s. Compared from %3 to %4, while both flights are steady.</source>
        <translation>Référence&#xa0;: %1, décalée de %2 s. Comparaison de %3 à %4, pendant que les deux vols sont stabilisés.</translation>
    </message>
    <message>
        <source>Reference: %1, shifted by %2 s. Compared from %3 to %4: there is no common steady part.</source>
        <translation>Référence&#xa0;: %1, décalée de %2 s. Comparaison de %3 à %4&#xa0;: il n&apos;y a pas de partie stabilisée commune.</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Time mean, flight</source>
        <translation>Moyenne temporelle, vol</translation>
    </message>
    <message>
        <source>Time mean, reference</source>
        <translation>Moyenne temporelle, référence</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Différence</translation>
    </message>
    <message>
        <source>Standard deviations</source>
        <translation>Écarts types</translation>
    </message>
    <message>
        <source>What changed most, in standard deviations of the reference</source>
        <translation>Ce qui a le plus changé, en écarts types de la référence</translation>
    </message>
    <message>
        <source>Compared with the reference</source>
        <translation>Comparaison avec la référence</translation>
    </message>
    <message>
        <source>Reference: %1. It has no time in common with this range.</source>
        <translation>Référence&#xa0;: %1. Elle n&apos;a pas de temps en commun avec cette plage.</translation>
    </message>
    <message>
        <source>No parameter has values in both flights there.</source>
        <translation>Aucun paramètre n&apos;y a de valeurs dans les deux vols.</translation>
    </message>
    <message>
        <source>None of %1 parameters has changed.</source>
        <translation>Aucun des %1 paramètres n&apos;a changé.</translation>
    </message>
</context>
<context>
    <name>ReportHead</name>
    <message>
        <source>not recorded</source>
        <translation>non enregistrée</translation>
    </message>
    <message>
        <source>From, on the recording&apos;s clock</source>
        <translation>De, à l&apos;horloge de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Until, on the recording&apos;s clock</source>
        <translation>À, à l&apos;horloge de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>From, in UTC</source>
        <translation>De, en UTC</translation>
    </message>
    <message>
        <source>Time offset</source>
        <translation>Décalage horaire</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>From</source>
        <translation>De</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Jusqu&apos;à</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Échantillons</translation>
    </message>
    <message>
        <source>ECU Serial Number</source>
        <translation>N° de série ECU</translation>
    </message>
    <message>
        <source>Engine Serial Nr.</source>
        <translation>N° de série moteur</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Rapport de vol</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>How pages name the language of these texts: &quot;de&quot; for German.</extracomment>
        <translation>fr</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>Profile&apos;s SHA-256</source>
        <translation>SHA-256 du profil</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>No recording was read.</source>
        <translation>Aucun enregistrement n&apos;a été lu.</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Ce qui s&apos;est passé</translation>
    </message>
    <message>
        <source>The recording holds no samples, so nothing was checked.</source>
        <translation>L&apos;enregistrement ne contient aucun échantillon&#xa0;; rien n&apos;a été vérifié.</translation>
    </message>
    <message>
        <source>Remarks on the recording</source>
        <translation>Remarques sur l&apos;enregistrement</translation>
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
        <translation>Jusqu&apos;à</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Voyant</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravité</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Valeur extrême</translation>
    </message>
    <message>
        <source>Peak at</source>
        <translation>Pic à</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>The %1 worst of %2; &quot;orna-cli events --episodes&quot; lists all.</source>
        <translation>Les %1 pires sur %2 ; « orna-cli events --episodes » les donne tous.</translation>
    </message>
    <message>
        <source>Out of range</source>
        <translation>Hors plage</translation>
    </message>
    <message>
        <source>Without an event: from the first sample on, after a gap, or of a kind that is not watched</source>
        <translation>Sans événement&#xa0;: dès le premier échantillon, après une lacune, ou d&apos;un genre non surveillé</translation>
    </message>
    <message>
        <source>Warning lamps</source>
        <translation>Voyants d&apos;alerte</translation>
    </message>
    <message>
        <source>On again without an event</source>
        <translation>Rallumé sans événement</translation>
    </message>
    <message>
        <source>Error matrices</source>
        <translation>Matrices de défauts</translation>
    </message>
    <message>
        <source>None in this range; in the rest of the flight: %1.</source>
        <translation>Aucun dans cette plage ; dans le reste du vol&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>Événement</translation>
    </message>
    <message>
        <source>Nothing out of range in %1 samples of %2 watched parameters.</source>
        <translation>Rien hors plage dans %1 échantillons de %2 paramètres surveillés.</translation>
    </message>
</context>
<context>
    <name>ReportNumbers</name>
    <message>
        <source>adds up to %1</source>
        <translation>fait en tout %1</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>No parameter is selected.</source>
        <translation>Aucun paramètre n&apos;est sélectionné.</translation>
    </message>
    <message>
        <source>at</source>
        <translation>à</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Échantillons</translation>
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
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Std. Dev.</source>
        <translation>Écart type</translation>
    </message>
    <message>
        <source>Time Mean</source>
        <translation>Moyenne temporelle</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Trous</translation>
    </message>
    <message>
        <source>Besides</source>
        <translation>En outre</translation>
    </message>
</context>
<context>
    <name>ReportTrack</name>
    <message>
        <source>Where it happened</source>
        <translation>Où cela s&apos;est passé</translation>
    </message>
    <message>
        <source>The path of the flight from above, %1 to %2</source>
        <translation>La trajectoire du vol vue de dessus, de %1 à %2</translation>
    </message>
</context>
<context>
    <name>Snapshot</name>
    <message>
        <source>Save Snapshot</source>
        <translation>Enregistrer la capture</translation>
    </message>
    <message>
        <source>BMP File (*.bmp);;PNG File (*.png);;SVG File (*.svg);;All Files (*.*)</source>
        <translation>Fichier BMP (*.bmp);;Fichier PNG (*.png);;Fichier SVG (*.svg);;Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>The snapshot could not be saved as
%1
Choose a folder that can be written, with enough free space, and a name that ends in .bmp, .png, .svg or .jpg.</source>
        <translation>L&apos;image n&apos;a pas pu être enregistrée sous
%1
Choisissez un dossier accessible en écriture, avec assez d&apos;espace libre, et un nom qui se termine par .bmp, .png, .svg ou .jpg.</translation>
    </message>
</context>
<context>
    <name>SqlConnection</name>
    <message>
        <source>there is no logbook &quot;%1&quot;</source>
        <translation>il n&apos;y a pas de carnet « %1 »</translation>
    </message>
    <message>
        <source>the database driver %1 is not installed (package %2)</source>
        <translation>le pilote de base de données %1 n&apos;est pas installé (paquet %2)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no logbook: it is no database</source>
        <translation>« %1 » n&apos;est pas un carnet&#xa0;: ce n&apos;est pas une base de données</translation>
    </message>
    <message>
        <source>the logbook &quot;%1&quot; is damaged</source>
        <translation>le carnet « %1 » est endommagé</translation>
    </message>
    <message>
        <source>logbook %1: %2</source>
        <translation>carnet %1&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>StartMessages</name>
    <message>
        <source>HOME is not set: settings are kept in &quot;%1&quot;.</source>
        <translation>HOME n&apos;est pas définie&#xa0;: les réglages sont conservés dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The settings could not be read, the program starts with its defaults. The damaged file is kept as &quot;%1&quot;.</source>
        <translation>Les réglages n&apos;ont pas pu être lus, le programme démarre avec ses valeurs par défaut. Le fichier endommagé est conservé sous «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Samples loaded: %1</source>
        <translation>Échantillons chargés&#xa0;: %1</translation>
    </message>
    <message>
        <source>. Remarks: %1 (see Recording Details). </source>
        <translation>. Remarques&#xa0;: %1 (voir Détails de l&apos;enregistrement). </translation>
    </message>
    <message>
        <source>Reference: </source>
        <translation>Référence&#xa0;: </translation>
    </message>
</context>
<context>
    <name>StartUp</name>
    <message>
        <source>Creating Dialogs ...</source>
        <translation>Création des fenêtres ...</translation>
    </message>
</context>
<context>
    <name>TARN::ActivityBar</name>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>, %1 s left</source>
        <translation>, encore %1 s</translation>
    </message>
</context>
<context>
    <name>TARN::CommandSet</name>
    <message>
        <source>&amp;New Project</source>
        <translation>&amp;Nouveau projet</translation>
    </message>
    <message>
        <source>Create new Project</source>
        <translation>Créer un nouveau projet</translation>
    </message>
    <message>
        <source>&amp;Open Project</source>
        <translation>&amp;Ouvrir un projet</translation>
    </message>
    <message>
        <source>Open Project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <source>Open Project File</source>
        <translation>Ouvrir un fichier de projet</translation>
    </message>
    <message>
        <source>&amp;Save Project</source>
        <translation>&amp;Enregistrer le projet</translation>
    </message>
    <message>
        <source>Save Project</source>
        <translation>Enregistrer le projet</translation>
    </message>
    <message>
        <source>Save Project File</source>
        <translation>Enregistrer le fichier de projet</translation>
    </message>
    <message>
        <source>&amp;Save Project as</source>
        <translation>Enregistrer le projet &amp;sous</translation>
    </message>
    <message>
        <source>Save Project as</source>
        <translation>Enregistrer le projet sous</translation>
    </message>
    <message>
        <source>Save Project File as</source>
        <translation>Enregistrer le fichier de projet sous</translation>
    </message>
    <message>
        <source>&amp;Open Card</source>
        <translation>Ouvrir une &amp;carte</translation>
    </message>
    <message>
        <source>Open Card</source>
        <translation>Ouvrir une carte</translation>
    </message>
    <message>
        <source>Open SD Card</source>
        <translation>Ouvrir une carte SD</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Open Preferences Dialog</source>
        <translation>Ouvrir les préférences</translation>
    </message>
    <message>
        <source>Recording Details</source>
        <translation>Détails de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Show the Header and the Damages of the Recording</source>
        <translation>Afficher l&apos;en-tête et les anomalies de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Export Google KML File</source>
        <translation>Exporter un fichier Google KML</translation>
    </message>
    <message>
        <source>Export Google Earth KML File</source>
        <translation>Exporter un fichier KML Google Earth</translation>
    </message>
    <message>
        <source>Export CSV/CAN File</source>
        <translation>Exporter un fichier CSV/CAN</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Quit Application</source>
        <translation>Quitter l&apos;application</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Show License Information</source>
        <translation>Afficher les informations de licence</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Help Window</source>
        <translation>Fenêtre d&apos;aide</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Extras</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Main Toolbar</source>
        <translation>Barre d&apos;outils principale</translation>
    </message>
    <message>
        <source>Flight &amp;Report...</source>
        <translation>&amp;Rapport de vol...</translation>
    </message>
    <message>
        <source>Write What Happened on a Few Pages</source>
        <translation>Écrire ce qui s&apos;est passé en quelques pages</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Rapport de vol</translation>
    </message>
    <message>
        <source>&amp;Logbook...</source>
        <translation>&amp;Carnet...</translation>
    </message>
    <message>
        <source>Show the Flights That Were Kept, and What Changes from One to the Next</source>
        <translation>Afficher les vols conservés et ce qui change de l&apos;un à l&apos;autre</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Carnet</translation>
    </message>
    <message>
        <source>Export GPX File</source>
        <translation>Exporter un fichier GPX</translation>
    </message>
    <message>
        <source>Export the Track as GPX File</source>
        <translation>Exporter la trajectoire en fichier GPX</translation>
    </message>
</context>
<context>
    <name>TARN::DialogCard</name>
    <message>
        <source>No card opened</source>
        <translation>Aucune carte ouverte</translation>
    </message>
    <message>
        <source>Folder of the recordings</source>
        <translation>Dossier des enregistrements</translation>
    </message>
    <message>
        <source>Card folder</source>
        <translation>Dossier de la carte</translation>
    </message>
    <message>
        <source>Recordings</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>Start Time: </source>
        <translation>Heure de début&#xa0;: </translation>
    </message>
    <message>
        <source>Stop Time: </source>
        <translation>Heure de fin&#xa0;: </translation>
    </message>
    <message>
        <source>Recording Details</source>
        <translation>Détails de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Header of the recording and what could be read of it</source>
        <translation>En-tête de l&apos;enregistrement et ce qui a pu en être lu</translation>
    </message>
    <message>
        <source>No recordings here.
Open a card (Ctrl+C) or drop its folder on the window.</source>
        <translation>Aucun enregistrement ici.
Ouvrez une carte (Ctrl+C) ou déposez son dossier sur la fenêtre.</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Le pire</translation>
    </message>
    <message>
        <source>Exceeded</source>
        <translation>Dépassés</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Échantillons</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>%1 recordings</source>
        <translation>%1 enregistrements</translation>
    </message>
    <message>
        <source>Click to load these recordings together:</source>
        <translation>Cliquer pour charger ensemble ces enregistrements&#xa0;:</translation>
    </message>
    <message>
        <source>Not looked into: it can&apos;t be read, or is too large to be read in passing. Load it to see.</source>
        <translation>Non examiné&#xa0;: illisible, ou trop grand pour être lu en passant. Chargez-le pour voir.</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Alerte</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucune</translation>
    </message>
    <message>
        <source>At the limit: %1
In warning: %2
Lamps: %3
Faults and warnings: %4
Watched parameters: %5</source>
        <translation>À la limite&#xa0;: %1
En alerte&#xa0;: %2
Voyants&#xa0;: %3
Défauts et alertes&#xa0;: %4
Paramètres surveillés&#xa0;: %5</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA - Avertissement</translation>
    </message>
    <message>
        <source>These recordings are of %1 flights.</source>
        <translation>Ces enregistrements sont de %1 vols.</translation>
    </message>
    <message>
        <source>Laid over each other, values of one flight stand between those of another.</source>
        <translation>Superposés, les valeurs d&apos;un vol se mêlent à celles d&apos;un autre.</translation>
    </message>
    <message>
        <source>Load the First</source>
        <translation>Charger le premier</translation>
    </message>
    <message>
        <source>Lay over Each Other</source>
        <translation>Superposer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Fault</source>
        <translation>Défaut</translation>
    </message>
    <message>
        <source>Lamp</source>
        <translation>Voyant</translation>
    </message>
    <message>
        <source>Load as &amp;Reference</source>
        <translation>Charger comme &amp;référence</translation>
    </message>
    <message>
        <source>Compares the flight that is open with this one</source>
        <translation>Compare le vol ouvert à celui-ci</translation>
    </message>
</context>
<context>
    <name>TARN::DialogData</name>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Limit/Warning Exceed</source>
        <translation>Dépassements limite/alerte</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation>Voyants d&apos;alerte</translation>
    </message>
    <message>
        <source>Fault Matrix</source>
        <translation>Matrice de défauts</translation>
    </message>
    <message>
        <source>Track</source>
        <translation>Trajectoire</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataErrorMatrix</name>
    <message>
        <source>The profile describes no error matrix.</source>
        <translation>Le profil ne décrit aucune matrice de défauts.</translation>
    </message>
    <message>
        <source>Error matrices</source>
        <translation>Matrices de défauts</translation>
    </message>
    <message>
        <source>Active Errors</source>
        <translation>Erreurs actives</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataGraph</name>
    <message>
        <source>The graph cannot be drawn: this display offers no OpenGL.
All other views work; a graphics driver with OpenGL 2.1, or Mesa&apos;s software one, brings the graph.</source>
        <translation>Le graphique ne peut pas être tracé&#xa0;: cet affichage n&apos;offre pas OpenGL.
Toutes les autres vues fonctionnent&#xa0;; un pilote graphique avec OpenGL 2.1, ou le pilote logiciel de Mesa, rend le graphique disponible.</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>&amp;Enregistrer l&apos;image...</translation>
    </message>
    <message>
        <source>Co&amp;py Picture</source>
        <translation>Co&amp;pier l&apos;image</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataLimit</name>
    <message>
        <source>Warning/Limit Exceed</source>
        <translation>Dépassements alerte/limite</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataTable</name>
    <message>
        <source>Values of the selected parameters</source>
        <translation>Valeurs des paramètres sélectionnés</translation>
    </message>
    <message>
        <source>The recording holds no sample of the selected parameters.</source>
        <translation>L&apos;enregistrement ne contient aucun échantillon des paramètres sélectionnés.</translation>
    </message>
    <message>
        <source>There is not enough memory for this table; load fewer recordings.</source>
        <translation>Mémoire insuffisante pour ce tableau&#xa0;; chargez moins d&apos;enregistrements.</translation>
    </message>
    <message>
        <source>The table is being filled.</source>
        <translation>Le tableau est en cours de remplissage.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataTrack</name>
    <message>
        <source>Show all (Home)</source>
        <translation>Tout montrer (Début)</translation>
    </message>
    <message>
        <source>Zoom in (+)</source>
        <translation>Agrandir (+)</translation>
    </message>
    <message>
        <source>Zoom out (-)</source>
        <translation>Réduire (-)</translation>
    </message>
    <message>
        <source>C&amp;olored by:</source>
        <translation>C&amp;ouleur selon&#xa0;:</translation>
    </message>
    <message>
        <source>Hei&amp;ght over:</source>
        <translation>&amp;Hauteur selon&#xa0;:</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Distance</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Rien</translation>
    </message>
    <message>
        <source>State of all parameters</source>
        <translation>État de tous les paramètres</translation>
    </message>
    <message>
        <source>There is not enough memory for the path.</source>
        <translation>La mémoire ne suffit pas pour la trajectoire.</translation>
    </message>
    <message>
        <source>The path is being found.</source>
        <translation>La trajectoire est en cours de calcul.</translation>
    </message>
    <message>
        <source>All positions of the recording are 0/0, %1 of them: the receiver did not know where it was.</source>
        <translation>Toutes les positions de l&apos;enregistrement sont 0/0, %1 en tout&#xa0;: le récepteur ne savait pas où il était.</translation>
    </message>
    <message>
        <source>The recording holds no position: no latitude with a longitude.</source>
        <translation>L&apos;enregistrement ne contient aucune position&#xa0;: aucune latitude avec une longitude.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogDataWarning</name>
    <message>
        <source>Warning Lamps</source>
        <translation>Voyants d&apos;alerte</translation>
    </message>
</context>
<context>
    <name>TARN::DialogEventList</name>
    <message>
        <source>Go to the &amp;Start</source>
        <translation>Aller au &amp;début</translation>
    </message>
    <message>
        <source>Go to the &amp;Peak</source>
        <translation>Aller au &amp;pic</translation>
    </message>
    <message>
        <source>Show in the &amp;Graph</source>
        <translation>Montrer dans le &amp;graphique</translation>
    </message>
    <message>
        <source>&amp;Copy All with Headers</source>
        <translation>Tout &amp;copier avec les en-têtes</translation>
    </message>
    <message>
        <source>Nothing in the list fits the filter.</source>
        <translation>Rien dans la liste ne correspond au filtre.</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtrer</translation>
    </message>
    <message>
        <source>There is not enough memory to look for what happened.</source>
        <translation>La mémoire ne suffit pas pour chercher ce qui s&apos;est passé.</translation>
    </message>
    <message>
        <source>What happened is being looked for.</source>
        <translation>Recherche de ce qui s&apos;est passé en cours.</translation>
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
        <translation>Visualiseur ORNA - Avertissement</translation>
    </message>
    <message>
        <source>Exporting CSV/CAN file failed !</source>
        <translation>Échec de l&apos;export du fichier CSV/CAN !</translation>
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
        <translation>Choisissez les options CSV/CAN</translation>
    </message>
    <message>
        <source>Limiter</source>
        <translation>Séparateur</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Parameter Selection</source>
        <translation>Choix des paramètres</translation>
    </message>
    <message>
        <source>Semikolon ;</source>
        <translation>Point-virgule ;</translation>
    </message>
    <message>
        <source>Comma ,</source>
        <translation>Virgule ,</translation>
    </message>
    <message>
        <source>Tabstop</source>
        <translation>Tabulation</translation>
    </message>
    <message>
        <source>Stands between two columns</source>
        <translation>Placé entre deux colonnes</translation>
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
        <translation>Temps d&apos;une ligne à l&apos;autre</translation>
    </message>
    <message>
        <source>All Parameter</source>
        <translation>Tous les paramètres</translation>
    </message>
    <message>
        <source>Selected Parameter only</source>
        <translation>Paramètres sélectionnés</translation>
    </message>
    <message>
        <source>Columns of the table</source>
        <translation>Colonnes du tableau</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportCsvPath</name>
    <message>
        <source>Save CSV/CAN Export</source>
        <translation>Enregistrer l&apos;export CSV/CAN</translation>
    </message>
    <message>
        <source>CSV/CAN Export</source>
        <translation>Export CSV/CAN</translation>
    </message>
    <message>
        <source>Select the output directory and file</source>
        <translation>Choisissez le dossier et le fichier de sortie</translation>
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
        <translation>Un tableau de valeurs décodées, ou un enregistrement qui peut être rouvert</translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation>Nom du fichier dans ce dossier</translation>
    </message>
    <message>
        <source>Export Path</source>
        <translation>Dossier d&apos;export</translation>
    </message>
    <message>
        <source>Export Type</source>
        <translation>Type d&apos;export</translation>
    </message>
    <message>
        <source>Export Filename</source>
        <translation>Nom du fichier</translation>
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
        <translation>Enregistrer l&apos;export GPX</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA - Avertissement</translation>
    </message>
    <message>
        <source>Exporting GPX file failed !</source>
        <translation>Échec de l&apos;export du fichier GPX !</translation>
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
        <translation>Un point de la trajectoire par intervalle</translation>
    </message>
    <message>
        <source>Waypoints at limits and lamps</source>
        <translation>Points de passage aux limites et voyants</translation>
    </message>
    <message>
        <source>GPX Export</source>
        <translation>Export GPX</translation>
    </message>
    <message>
        <source>Select GPX Option</source>
        <translation>Choisissez les options GPX</translation>
    </message>
    <message>
        <source>Where limits were exceeded and warning lamps came on</source>
        <translation>Là où des limites ont été dépassées et des voyants se sont allumés</translation>
    </message>
    <message>
        <source>Timestamp every :</source>
        <translation>Horodatage toutes les :</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKml</name>
    <message>
        <source>Google Earth KML Export</source>
        <translation>Export KML Google Earth</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA - Avertissement</translation>
    </message>
    <message>
        <source>Exporting KML file failed !</source>
        <translation>Échec de l&apos;export du fichier KML !</translation>
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
        <translation>Un point de la trajectoire par intervalle</translation>
    </message>
    <message>
        <source>KML Export</source>
        <translation>Export KML</translation>
    </message>
    <message>
        <source>Select KML Option</source>
        <translation>Choisissez les options KML</translation>
    </message>
    <message>
        <source>Timestamp every :</source>
        <translation>Horodatage toutes les :</translation>
    </message>
    <message>
        <source>Width of the flight path</source>
        <translation>Largeur de la trajectoire de vol</translation>
    </message>
    <message>
        <source>Select Line Color</source>
        <translation>Choisir la couleur de ligne</translation>
    </message>
    <message>
        <source>Line Style</source>
        <translation>Style de ligne</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Largeur de ligne</translation>
    </message>
    <message>
        <source>Line color</source>
        <translation>Couleur de ligne</translation>
    </message>
    <message>
        <source>Select Polygon Color</source>
        <translation>Choisir la couleur du polygone</translation>
    </message>
    <message>
        <source>Draw Polygon</source>
        <translation>Tracer le polygone</translation>
    </message>
    <message>
        <source>A curtain from the flight path to the ground</source>
        <translation>Un rideau de la trajectoire de vol jusqu&apos;au sol</translation>
    </message>
    <message>
        <source>Polygon color</source>
        <translation>Couleur du polygone</translation>
    </message>
    <message>
        <source>Timed track</source>
        <translation>Trajectoire horodatée</translation>
    </message>
    <message>
        <source>Times and the selected values at each point, so that earth viewers can play the flight; nothing is drawn over gaps</source>
        <translation>Heures et valeurs choisies à chaque point, pour que les globes virtuels puissent rejouer le vol&#xa0;; rien n&apos;est tracé sur les lacunes</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportKmlPath</name>
    <message>
        <source>Save KML Export</source>
        <translation>Enregistrer l&apos;export KML</translation>
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
        <translation>Choisissez les repères KML</translation>
    </message>
    <message>
        <source> samples</source>
        <translation> échantillons</translation>
    </message>
    <message>
        <source>Points of the path from mark to mark</source>
        <translation>Points de la trajectoire d&apos;un repère au suivant</translation>
    </message>
    <message>
        <source>Select Placemark Color</source>
        <translation>Choisir la couleur des repères</translation>
    </message>
    <message>
        <source>Draw selected parameters as placemarks</source>
        <translation>Afficher les paramètres sélectionnés en repères</translation>
    </message>
    <message>
        <source>Placemark every</source>
        <translation>Repère tous les</translation>
    </message>
    <message>
        <source>Placemark Color</source>
        <translation>Couleur des repères</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Select Exceedance Color</source>
        <translation>Choisir la couleur des dépassements</translation>
    </message>
    <message>
        <source>Show Limit exceedance / Warning Lamps</source>
        <translation>Afficher dépassements de limite / voyants d&apos;alerte</translation>
    </message>
    <message>
        <source>Limit Exceedance</source>
        <translation>Dépassements de limite</translation>
    </message>
    <message>
        <source>Warning Lamps</source>
        <translation>Voyants d&apos;alerte</translation>
    </message>
    <message>
        <source>Exceedance Placemark Color</source>
        <translation>Couleur des repères de dépassement</translation>
    </message>
</context>
<context>
    <name>TARN::DialogExportPath</name>
    <message>
        <source>Select the output directory and file</source>
        <translation>Choisissez le dossier et le fichier de sortie</translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation>Nom du fichier dans ce dossier</translation>
    </message>
    <message>
        <source>Export Path</source>
        <translation>Dossier d&apos;export</translation>
    </message>
    <message>
        <source>Export Filename</source>
        <translation>Nom du fichier</translation>
    </message>
</context>
<context>
    <name>TARN::DialogGraphSetup</name>
    <message>
        <source>Background color</source>
        <translation>Couleur du fond</translation>
    </message>
    <message>
        <source>Grid On</source>
        <translation>Afficher la grille</translation>
    </message>
    <message>
        <source>Grid color</source>
        <translation>Couleur de la grille</translation>
    </message>
    <message>
        <source>Label color</source>
        <translation>Couleur des libellés</translation>
    </message>
    <message>
        <source>Label background</source>
        <translation>Fond des libellés</translation>
    </message>
    <message>
        <source>Cursor On</source>
        <translation>Afficher le curseur</translation>
    </message>
    <message>
        <source>Legend On</source>
        <translation>Afficher la légende</translation>
    </message>
    <message>
        <source>Autoscale On</source>
        <translation>Échelle automatique</translation>
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
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Oscilloscope Setup</source>
        <translation>Réglages de l&apos;oscilloscope</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>%1, used while autoscale is off</source>
        <translation>%1, utilisé quand l&apos;échelle automatique est désactivée</translation>
    </message>
    <message>
        <source>Floating</source>
        <translation>Flottant</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Centré</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Cursor mode</source>
        <translation>Mode du curseur</translation>
    </message>
    <message>
        <source>Background Color :</source>
        <translation>Couleur du fond :</translation>
    </message>
    <message>
        <source>Grid On/Color :</source>
        <translation>Grille/Couleur :</translation>
    </message>
    <message>
        <source>Label Color :</source>
        <translation>Couleur des libellés :</translation>
    </message>
    <message>
        <source>Label Background :</source>
        <translation>Fond des libellés :</translation>
    </message>
    <message>
        <source>Cursor On/Mode :</source>
        <translation>Curseur/Mode :</translation>
    </message>
    <message>
        <source>Legend :</source>
        <translation>Légende :</translation>
    </message>
    <message>
        <source>Y-Scale :</source>
        <translation>Échelle Y :</translation>
    </message>
    <message>
        <source>Colors of the plot</source>
        <translation>Couleurs du tracé</translation>
    </message>
    <message>
        <source>Colors of pictures</source>
        <translation>Couleurs des images</translation>
    </message>
    <message>
        <source>Colors/Of Pictures :</source>
        <translation>Couleurs/des images&#xa0;:</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>As the graph</source>
        <translation>Comme le graphique</translation>
    </message>
    <message>
        <source>Thresholds :</source>
        <translation>Seuils&#xa0;:</translation>
    </message>
    <message>
        <source>Thresholds On</source>
        <translation>Seuils affichés</translation>
    </message>
    <message>
        <source>Lines and bands at the values where a range begins; a name stands on the color of the range that its value is in</source>
        <translation>Lignes et bandes aux valeurs où commence une plage ; un nom apparaît sur la couleur de la plage où se trouve sa valeur</translation>
    </message>
    <message>
        <source>Events :</source>
        <translation>Événements&#xa0;:</translation>
    </message>
    <message>
        <source>Events On</source>
        <translation>Événements affichés</translation>
    </message>
    <message>
        <source>Ticks over the plot for limits, lamps and faults, bars for as long as a limit was exceeded</source>
        <translation>Marques au-dessus du tracé pour limites, voyants et défauts, barres pour la durée d&apos;un dépassement</translation>
    </message>
    <message>
        <source>Error Lanes :</source>
        <translation>Bandes d&apos;erreurs&#xa0;:</translation>
    </message>
    <message>
        <source>Error Lanes On</source>
        <translation>Bandes d&apos;erreurs affichées</translation>
    </message>
    <message>
        <source>The active errors of each error matrix below the curves</source>
        <translation>Les erreurs actives de chaque matrice de défauts sous les courbes</translation>
    </message>
    <message>
        <source>States :</source>
        <translation>États&#xa0;:</translation>
    </message>
    <message>
        <source>States in Words</source>
        <translation>États en toutes lettres</translation>
    </message>
    <message>
        <source>Names of states beside their numbers</source>
        <translation>Noms des états à côté de leurs numéros</translation>
    </message>
</context>
<context>
    <name>TARN::DialogLogbook</name>
    <message>
        <source>Stop adding; what was added stays</source>
        <translation>Arrêter l&apos;ajout&#xa0;; ce qui a été ajouté reste</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Carnet</translation>
    </message>
    <message>
        <source>Reading the logbook...</source>
        <translation>Lecture du carnet...</translation>
    </message>
    <message>
        <source>Add every flight that you open to this logbook? Only statistics and events are kept. You can change that under Extras, Preferences.</source>
        <translation>Ajouter à ce carnet chaque vol que vous ouvrez&#xa0;? Seuls sont conservés les statistiques et les événements. Vous pouvez changer cela sous Outils, Préférences.</translation>
    </message>
    <message>
        <source>&amp;Yes, Add Them</source>
        <translation>&amp;Oui, les ajouter</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>&amp;Add Folder...</source>
        <translation>&amp;Ajouter un dossier...</translation>
    </message>
    <message>
        <source>Add the flights of a folder and of all folders in it</source>
        <translation>Ajouter les vols d&apos;un dossier et de tous les dossiers qu&apos;il contient</translation>
    </message>
    <message>
        <source>&amp;Maintenance...</source>
        <translation>&amp;Maintenance...</translation>
    </message>
    <message>
        <source>Note that something was done to the engine: trends begin anew</source>
        <translation>Noter une intervention sur le moteur&#xa0;: les tendances repartent de zéro</translation>
    </message>
    <message>
        <source>Every flight that you open is added from now on.</source>
        <translation>Chaque vol que vous ouvrez est désormais ajouté.</translation>
    </message>
    <message>
        <source>The logbook is empty.
&lt;a href=&quot;add&quot;&gt;Add a folder&lt;/a&gt; of recordings; the folders in it are looked through too.</source>
        <translation>Le carnet est vide.
&lt;a href=&quot;add&quot;&gt;Ajoutez un dossier&lt;/a&gt; d&apos;enregistrements&#xa0;; les dossiers qu&apos;il contient sont parcourus aussi.</translation>
    </message>
    <message>
        <source>There is no profile by which recordings could be understood. Choose one under Extras, Preferences.</source>
        <translation>Il n&apos;y a pas de profil permettant de décoder les enregistrements. Choisissez-en un sous Outils, Préférences.</translation>
    </message>
    <message>
        <source>Add a Folder to the Logbook</source>
        <translation>Ajouter un dossier au carnet</translation>
    </message>
    <message>
        <source>Adding</source>
        <translation>Ajout</translation>
    </message>
    <message>
        <source>Choose a flight of the engine first.</source>
        <translation>Choisissez d&apos;abord un vol du moteur.</translation>
    </message>
    <message>
        <source>Remove the flight of %1 from the logbook?</source>
        <translation>Retirer du carnet le vol du %1&#xa0;?</translation>
    </message>
    <message>
        <source>Its recordings stay where they are and can be added again.</source>
        <translation>Ses enregistrements restent où ils sont et peuvent être ajoutés de nouveau.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Looking for its recordings...</source>
        <translation>Recherche de ses enregistrements...</translation>
    </message>
    <message>
        <source>Opened: %1</source>
        <translation>Ouvert&#xa0;: %1</translation>
    </message>
    <message>
        <source>Where are the recordings of the flight of %1? The folders in the one that you choose are looked through too.</source>
        <translation>Où sont les enregistrements du vol du %1&#xa0;? Les dossiers que contient celui que vous choisissez sont parcourus aussi.</translation>
    </message>
    <message>
        <source>Choose Folder...</source>
        <translation>Choisir un dossier...</translation>
    </message>
    <message>
        <source>Find Recordings</source>
        <translation>Rechercher les enregistrements</translation>
    </message>
    <message>
        <source>F5 tries it again; Extras, Preferences tells which logbook it is.</source>
        <translation>F5 réessaie ; Outils, Préférences dit de quel carnet il s&apos;agit.</translation>
    </message>
    <message>
        <source>Flights are being added already. Wait for the end, or cancel it.</source>
        <translation>Des vols sont déjà en cours d&apos;ajout. Attendez la fin ou annulez.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogMain</name>
    <message>
        <source>[edited]</source>
        <translation>[modifié]</translation>
    </message>
    <message>
        <source>Open SD Card</source>
        <translation>Ouvrir une carte SD</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA - Avertissement</translation>
    </message>
    <message>
        <source>Recordings found: %1</source>
        <translation>Enregistrements trouvés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The profile &quot;%1&quot; could not be loaded: no parameters can be shown. Choose another under Extras, Preferences.</source>
        <translation>Le profil «&#xa0;%1&#xa0;» n&apos;a pas pu être chargé&#xa0;: aucun paramètre ne peut être affiché. Choisissez-en un autre sous Outils, Préférences.</translation>
    </message>
    <message>
        <source>No recording is listed. Open a card first.</source>
        <translation>Aucun enregistrement dans la liste. Ouvrez d&apos;abord une carte.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is neither a project nor a profile.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est ni un projet ni un profil.</translation>
    </message>
    <message>
        <source>The offset could not be saved on the card (is it write-protected?) and holds until the program ends.</source>
        <translation>Le décalage n&apos;a pas pu être enregistré sur la carte (est-elle protégée en écriture&#xa0;?) et reste valable jusqu&apos;à la fermeture du programme.</translation>
    </message>
    <message>
        <source>Loading</source>
        <translation>Chargement</translation>
    </message>
    <message>
        <source>%1 samples/s</source>
        <translation>%1 échantillons/s</translation>
    </message>
    <message>
        <source>Loading was cancelled.</source>
        <translation>Le chargement a été annulé.</translation>
    </message>
    <message>
        <source>Not loaded: %1</source>
        <translation>Échec du chargement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Exporting %1</source>
        <translation>Export de %1</translation>
    </message>
    <message>
        <source>An export is running.
Wait until it is complete, or stop it? A stopped export leaves the old file.</source>
        <translation>Un export est en cours.
Attendre qu&apos;il soit terminé, ou l&apos;arrêter&#xa0;? Un export arrêté laisse l&apos;ancien fichier en place.</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>Attendre</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Loading the reference</source>
        <translation>Chargement de la référence</translation>
    </message>
    <message>
        <source>Loading the reference was cancelled.</source>
        <translation>Le chargement de la référence a été annulé.</translation>
    </message>
    <message>
        <source>No reference was loaded: %1</source>
        <translation>Aucune référence chargée&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>TARN::DialogPreferences</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Pages of the preferences</source>
        <translation>Pages des préférences</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close; every change holds already</source>
        <translation>Fermer&#xa0;; chaque modification est déjà appliquée</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose a profile file</source>
        <translation>Choisir un fichier de profil</translation>
    </message>
    <message>
        <source>Profile File :</source>
        <translation>Fichier de profil :</translation>
    </message>
    <message>
        <source>Language :</source>
        <translation>Langue :</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Application</translation>
    </message>
    <message>
        <source>The XML file that says how the samples are decoded</source>
        <translation>Le fichier XML qui indique comment décoder les échantillons</translation>
    </message>
    <message>
        <source>Profile file</source>
        <translation>Fichier de profil</translation>
    </message>
    <message>
        <source>Language of the program from its next start on</source>
        <translation>Langue du programme à partir du prochain démarrage</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>ORNA Profile (*.xml);;All files (*.*)</source>
        <translation>Profil ORNA (*.xml);;Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>TARN Info</source>
        <translation>TARN - Information</translation>
    </message>
    <message>
        <source>Please restart TARN to load new language !</source>
        <translation>Veuillez redémarrer TARN pour charger la nouvelle langue !</translation>
    </message>
    <message>
        <source>All recorded digits</source>
        <translation>Tous les chiffres enregistrés</translation>
    </message>
    <message>
        <source>Numbers on the screen with all the digits that were recorded, instead of the fewest that read back as the same number; exports have them always</source>
        <translation>Nombres à l&apos;écran avec tous les chiffres enregistrés, au lieu du minimum qui redonne le même nombre&#xa0;; les exports les contiennent toujours</translation>
    </message>
    <message>
        <source>Add every flight that I open</source>
        <translation>Ajouter chaque vol que j&apos;ouvre</translation>
    </message>
    <message>
        <source>Logbook :</source>
        <translation>Carnet&#xa0;:</translation>
    </message>
    <message>
        <source>a file of the program&apos;s own</source>
        <translation>un fichier propre au programme</translation>
    </message>
    <message>
        <source>Where flights are kept: empty for this machine alone, &quot;postgresql://user@host/database&quot; for a team. A password is taken from PGPASSWORD or ~/.pgpass and never kept</source>
        <translation>Où les vols sont conservés&#xa0;: vide pour cet ordinateur seul, «&#xa0;postgresql://utilisateur@hôte/base&#xa0;» pour une équipe. Le mot de passe est pris dans PGPASSWORD ou ~/.pgpass et n&apos;est jamais conservé</translation>
    </message>
    <message>
        <source>Logbook</source>
        <translation>Carnet</translation>
    </message>
    <message>
        <source>Keeps statistics and events of every flight in the logbook, not its samples</source>
        <translation>Conserve dans le carnet les statistiques et les événements de chaque vol, pas ses échantillons</translation>
    </message>
</context>
<context>
    <name>TARN::DialogProfile</name>
    <message>
        <source>Clear</source>
        <translation>Décocher</translation>
    </message>
    <message>
        <source>Confirm Selection</source>
        <translation>Confirmer la sélection</translation>
    </message>
    <message>
        <source>Selected Parameters</source>
        <translation>Paramètres sélectionnés</translation>
    </message>
    <message>
        <source>Untick all parameters</source>
        <translation>Décocher tous les paramètres</translation>
    </message>
    <message>
        <source>Show the ticked parameters in all views</source>
        <translation>Afficher les paramètres cochés dans toutes les vues</translation>
    </message>
    <message>
        <source>Parameters of the profile</source>
        <translation>Paramètres du profil</translation>
    </message>
    <message>
        <source>Not in this profile</source>
        <translation>Absents de ce profil</translation>
    </message>
    <message>
        <source>The project selects these too; they are kept in its file</source>
        <translation>Le projet les sélectionne aussi&#xa0;; ils sont conservés dans son fichier</translation>
    </message>
</context>
<context>
    <name>TARN::DialogRecordDetails</name>
    <message>
        <source>Recording Details</source>
        <translation>Détails de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Recording details</source>
        <translation>Détails de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the selected lines, or all when none is selected</source>
        <translation>Copier les lignes sélectionnées, ou toutes si aucune ne l&apos;est</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close this window</source>
        <translation>Fermer cette fenêtre</translation>
    </message>
</context>
<context>
    <name>TARN::DialogReport</name>
    <message>
        <source>Folder of the Report</source>
        <translation>Dossier du rapport</translation>
    </message>
    <message>
        <source>&amp;Open it when it is written</source>
        <translation>L&apos;&amp;ouvrir ensuite</translation>
    </message>
    <message>
        <source>Flight Report</source>
        <translation>Rapport de vol</translation>
    </message>
    <message>
        <source>Name of the file in this folder</source>
        <translation>Nom du fichier dans ce dossier</translation>
    </message>
    <message>
        <source>Web page (HTML)</source>
        <translation>Page web (HTML)</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Size of the paper that it is printed on</source>
        <translation>Format du papier d&apos;impression</translation>
    </message>
    <message>
        <source>A range is marked in the graph</source>
        <translation>Une plage se marque dans le graphique</translation>
    </message>
    <message>
        <source>&amp;Folder</source>
        <translation>&amp;Dossier</translation>
    </message>
    <message>
        <source>File &amp;Name</source>
        <translation>&amp;Nom du fichier</translation>
    </message>
    <message>
        <source>&amp;Kind</source>
        <translation>&amp;Genre</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>&amp;Papier</translation>
    </message>
    <message>
        <source>&amp;Range</source>
        <translation>&amp;Plage</translation>
    </message>
    <message>
        <source>Write Report</source>
        <translation>Écrire le rapport</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Whole flight, %1 to %2</source>
        <translation>Vol entier, %1 à %2</translation>
    </message>
    <message>
        <source>Marked range, %1 to %2</source>
        <translation>Plage marquée, %1 à %2</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA - Avertissement</translation>
    </message>
    <message>
        <source>The flight report could not be written.</source>
        <translation>Le rapport de vol n&apos;a pas pu être écrit.</translation>
    </message>
</context>
<context>
    <name>TARN::DialogStatusBar</name>
    <message>
        <source>Stop loading (Escape)</source>
        <translation>Arrêter le chargement (Échap)</translation>
    </message>
    <message>
        <source>Stop the export</source>
        <translation>Arrêter l&apos;export</translation>
    </message>
    <message>
        <source>Stop loading the reference (Escape)</source>
        <translation>Arrêter le chargement de la référence (Échap)</translation>
    </message>
</context>
<context>
    <name>TARN::DirectoryEdit</name>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Folder of the file</source>
        <translation>Dossier du fichier</translation>
    </message>
</context>
<context>
    <name>TARN::EventFilter</name>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>Filtre (Ctrl+F)</translation>
    </message>
    <message>
        <source>Show only lines that hold this text</source>
        <translation>Ne montrer que les lignes qui contiennent ce texte</translation>
    </message>
    <message>
        <source>Filter text</source>
        <translation>Texte du filtre</translation>
    </message>
    <message>
        <source>Show only lines of this severity</source>
        <translation>Ne montrer que les lignes de cette gravité</translation>
    </message>
    <message>
        <source>Filter severity</source>
        <translation>Gravité du filtre</translation>
    </message>
    <message>
        <source>Every severity</source>
        <translation>Toute gravité</translation>
    </message>
</context>
<context>
    <name>TARN::EventModel</name>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Out of range without an event</source>
        <translation>Hors plage sans événement</translation>
    </message>
    <message>
        <source>at its limit</source>
        <translation>en limite</translation>
    </message>
    <message>
        <source>in warning</source>
        <translation>en alerte</translation>
    </message>
    <message>
        <source>Until</source>
        <translation>Jusqu&apos;à</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Peak</source>
        <translation>Valeur extrême</translation>
    </message>
    <message>
        <source>Threshold</source>
        <translation>Seuil</translation>
    </message>
    <message>
        <source>%1 on</source>
        <translation>%1 allumé</translation>
    </message>
    <message>
        <source>On without an event</source>
        <translation>Allumé sans événement</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravité</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Référence&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>TARN::ExportRunner</name>
    <message>
        <source>Written: %1</source>
        <translation>Écrit&#xa0;: %1</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>The export was stopped; the old file, if there was one, is unchanged.</source>
        <translation>L&apos;export a été arrêté&#xa0;; l&apos;ancien fichier, s&apos;il y en avait un, est inchangé.</translation>
    </message>
</context>
<context>
    <name>TARN::FlightBar</name>
    <message>
        <source>What happened</source>
        <translation>Ce qui s&apos;est passé</translation>
    </message>
    <message>
        <source>Click a part to go to the first of its kind</source>
        <translation>Cliquer sur une partie pour aller au premier de son genre</translation>
    </message>
</context>
<context>
    <name>TARN::FlightList</name>
    <message>
        <source>Show the flights of this engine only</source>
        <translation>N&apos;afficher que les vols de ce moteur</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Moteur</translation>
    </message>
    <message>
        <source>Filter (Ctrl+F)</source>
        <translation>Filtre (Ctrl+F)</translation>
    </message>
    <message>
        <source>Show only flights that hold this text</source>
        <translation>N&apos;afficher que les vols qui contiennent ce texte</translation>
    </message>
    <message>
        <source>Filter text</source>
        <translation>Texte du filtre</translation>
    </message>
    <message>
        <source>Flights</source>
        <translation>Vols</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Open as &amp;Reference</source>
        <translation>Ouvrir comme &amp;référence</translation>
    </message>
    <message>
        <source>&amp;Remove from the Logbook...</source>
        <translation>Re&amp;tirer du carnet...</translation>
    </message>
    <message>
        <source>All engines (%1)</source>
        <translation>Tous les moteurs (%1)</translation>
    </message>
    <message>
        <source>No flight of %1 holds &quot;%2&quot;.</source>
        <translation>Aucun vol sur %1 ne contient «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
<context>
    <name>TARN::FlightListModel</name>
    <message>
        <source>without number</source>
        <translation>sans numéro</translation>
    </message>
    <message>
        <source>by the UTC in its data</source>
        <translation>d&apos;après l&apos;UTC de ses données</translation>
    </message>
    <message>
        <source>by its header, in whatever zone</source>
        <translation>d&apos;après son en-tête, dans un fuseau inconnu</translation>
    </message>
    <message>
        <source>nothing tells when it was</source>
        <translation>rien n&apos;indique quand c&apos;était</translation>
    </message>
    <message>
        <source>Flight %1, %2.
Engine %3 %4, profile %5.
Double-click: open it; with Shift: open it as the reference.</source>
        <translation>Vol %1, %2.
Moteur %3 %4, profil %5.
Double clic&#xa0;: l&apos;ouvrir&#xa0;; avec Maj&#xa0;: l&apos;ouvrir comme référence.</translation>
    </message>
    <message>
        <source>Start (UTC)</source>
        <translation>Début (UTC)</translation>
    </message>
    <message>
        <source>When the flight began; slanted: by the header&apos;s clock, whose zone is not known</source>
        <translation>Quand le vol a commencé&#xa0;; en italique&#xa0;: d&apos;après l&apos;horloge de l&apos;en-tête, dont le fuseau n&apos;est pas connu</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>From the first sample to the last</source>
        <translation>Du premier échantillon au dernier</translation>
    </message>
    <message>
        <source>Engine</source>
        <translation>Moteur</translation>
    </message>
    <message>
        <source>Serial number of the engine</source>
        <translation>Numéro de série du moteur</translation>
    </message>
    <message>
        <source>Worst</source>
        <translation>Le pire</translation>
    </message>
    <message>
        <source>The worst that happened</source>
        <translation>Le pire de ce qui s&apos;est passé</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limites</translation>
    </message>
    <message>
        <source>Times out of range that reached a limit</source>
        <translation>Nombre de fois hors plage où une limite a été atteinte</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Alertes</translation>
    </message>
    <message>
        <source>Times out of range that did not reach a limit</source>
        <translation>Nombre de fois hors plage où aucune limite n&apos;a été atteinte</translation>
    </message>
    <message>
        <source>Lamps</source>
        <translation>Voyants</translation>
    </message>
    <message>
        <source>Times that a warning lamp was on</source>
        <translation>Nombre de fois qu&apos;un voyant d&apos;alerte a été allumé</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>Défauts</translation>
    </message>
    <message>
        <source>Warnings and faults that the matrices told of</source>
        <translation>Alertes et défauts signalés par les matrices</translation>
    </message>
    <message>
        <source>Remarks</source>
        <translation>Remarques</translation>
    </message>
    <message>
        <source>What is to be said about the recordings themselves</source>
        <translation>Ce qu&apos;il y a à dire des enregistrements eux-mêmes</translation>
    </message>
</context>
<context>
    <name>TARN::FlightLoader</name>
    <message>
        <source>There is not enough memory for the recording; load fewer at once.</source>
        <translation>Mémoire insuffisante pour l&apos;enregistrement&#xa0;; chargez-en moins à la fois.</translation>
    </message>
    <message>
        <source>There is not enough memory to show the recording; load fewer at once.</source>
        <translation>Mémoire insuffisante pour afficher l&apos;enregistrement&#xa0;; chargez-en moins à la fois.</translation>
    </message>
    <message>
        <source>Looking for events</source>
        <translation>Recherche des événements</translation>
    </message>
</context>
<context>
    <name>TARN::GraphButtons</name>
    <message>
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Zoom 1:1</source>
        <translation>Zoom 1:1</translation>
    </message>
    <message>
        <source>Zoom Marker</source>
        <translation>Zoom marqueurs</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Clear All</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>Automatic Mode</source>
        <translation>Mode automatique</translation>
    </message>
    <message>
        <source>Split Mode</source>
        <translation>Mode séparé</translation>
    </message>
    <message>
        <source>Single Graph Mode</source>
        <translation>Mode graphique unique</translation>
    </message>
    <message>
        <source>Reset all to default</source>
        <translation>Tout réinitialiser</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>Capture</translation>
    </message>
    <message>
        <source>Auto</source>
        <translation>Auto</translation>
    </message>
    <message>
        <source>Measuring Panel</source>
        <translation>Panneau de mesure</translation>
    </message>
</context>
<context>
    <name>TARN::LogbookAccess</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire ne suffit pas.</translation>
    </message>
    <message>
        <source>%1 of %2 flights</source>
        <translation>%1 sur %2 vols</translation>
    </message>
    <message>
        <source>Trying again: %1</source>
        <translation>Nouvel essai&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>TARN::LogbookKeeper</name>
    <message>
        <source>Added to the logbook.</source>
        <translation>Ajouté au carnet.</translation>
    </message>
    <message>
        <source>Not added to the logbook: %1</source>
        <translation>Pas d&apos;ajout au carnet&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>TARN::MeasureModel</name>
    <message>
        <source>Of them without a number: %1</source>
        <translation>Dont sans nombre&#xa0;: %1</translation>
    </message>
    <message>
        <source>Steps of more than %1 s, together %2 s</source>
        <translation>Pas de plus de %1 s, au total %2 s</translation>
    </message>
    <message>
        <source>Sent only when something changes</source>
        <translation>Envoyé seulement quand quelque chose change</translation>
    </message>
    <message>
        <source>Click to go there</source>
        <translation>Cliquer pour y aller</translation>
    </message>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Curves of the graph, in their order</source>
        <translation>Courbes du graphique, dans leur ordre</translation>
    </message>
    <message>
        <source>Value at A</source>
        <translation>Valeur en A</translation>
    </message>
    <message>
        <source>Value at B</source>
        <translation>Valeur en B</translation>
    </message>
    <message>
        <source>Difference of the values at A and B</source>
        <translation>Différence des valeurs en A et B</translation>
    </message>
    <message>
        <source>per s</source>
        <translation>par s</translation>
    </message>
    <message>
        <source>Difference a second from A to B</source>
        <translation>Différence par seconde de A à B</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Smallest value from A to B</source>
        <translation>Plus petite valeur de A à B</translation>
    </message>
    <message>
        <source>Min at</source>
        <translation>Min à</translation>
    </message>
    <message>
        <source>When it stands first, recording clock</source>
        <translation>Quand elle apparaît d&apos;abord, horloge de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Greatest value from A to B</source>
        <translation>Plus grande valeur de A à B</translation>
    </message>
    <message>
        <source>Max at</source>
        <translation>Max à</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Mean of the values from A to B</source>
        <translation>Moyenne des valeurs de A à B</translation>
    </message>
    <message>
        <source>Time mean</source>
        <translation>Moyenne temporelle</translation>
    </message>
    <message>
        <source>Mean of the values, each weighed with the time that it holds</source>
        <translation>Moyenne des valeurs, chacune pondérée par sa durée</translation>
    </message>
    <message>
        <source>Std. dev.</source>
        <translation>Écart type</translation>
    </message>
    <message>
        <source>Standard deviation of the values from A to B</source>
        <translation>Écart type des valeurs de A à B</translation>
    </message>
    <message>
        <source>Integral</source>
        <translation>Intégrale</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Échantillons</translation>
    </message>
    <message>
        <source>Samples from A to B</source>
        <translation>Échantillons de A à B</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Trous</translation>
    </message>
    <message>
        <source>Stretches from A to B in which the parameter was not heard</source>
        <translation>Intervalles de A à B où le paramètre n&apos;a pas été reçu</translation>
    </message>
    <message>
        <source>Above thresholds</source>
        <translation>Au-dessus des seuils</translation>
    </message>
    <message>
        <source>For each threshold the seconds that the value was not below</source>
        <translation>Pour chaque seuil, les secondes où la valeur n&apos;était pas au-dessous</translation>
    </message>
    <message>
        <source>Area below the curve from A to B: of litres an hour the litres</source>
        <translation>Aire sous la courbe de A à B&#xa0;: de litres par heure, les litres</translation>
    </message>
    <message>
        <source>Δ time mean</source>
        <translation>Δ moy. temporelle</translation>
    </message>
    <message>
        <source>Flight minus reference: mean from A to B, each difference weighed with the time that it holds</source>
        <translation>Vol moins référence&#xa0;: moyenne de A à B, chaque différence pondérée par sa durée</translation>
    </message>
    <message>
        <source>Δ A</source>
        <translation>Δ A</translation>
    </message>
    <message>
        <source>Flight minus reference at A</source>
        <translation>Vol moins référence en A</translation>
    </message>
    <message>
        <source>Δ B</source>
        <translation>Δ B</translation>
    </message>
    <message>
        <source>Flight minus reference at B</source>
        <translation>Vol moins référence en B</translation>
    </message>
    <message>
        <source>Δ min</source>
        <translation>Δ min</translation>
    </message>
    <message>
        <source>Smallest difference of flight and reference from A to B</source>
        <translation>Plus petite différence entre vol et référence de A à B</translation>
    </message>
    <message>
        <source>Δ max</source>
        <translation>Δ max</translation>
    </message>
    <message>
        <source>Greatest difference of flight and reference from A to B</source>
        <translation>Plus grande différence entre vol et référence de A à B</translation>
    </message>
    <message>
        <source>Ref. time mean</source>
        <translation>Réf. moy. temporelle</translation>
    </message>
    <message>
        <source>Time mean of the reference from A to B</source>
        <translation>Moyenne temporelle de la référence de A à B</translation>
    </message>
    <message>
        <source>Ref. A</source>
        <translation>Réf. A</translation>
    </message>
    <message>
        <source>Value of the reference at A</source>
        <translation>Valeur de la référence en A</translation>
    </message>
    <message>
        <source>Ref. B</source>
        <translation>Réf. B</translation>
    </message>
    <message>
        <source>Value of the reference at B</source>
        <translation>Valeur de la référence en B</translation>
    </message>
    <message>
        <source>Ref. min</source>
        <translation>Réf. min</translation>
    </message>
    <message>
        <source>Smallest value of the reference from A to B</source>
        <translation>Plus petite valeur de la référence de A à B</translation>
    </message>
    <message>
        <source>Ref. max</source>
        <translation>Réf. max</translation>
    </message>
    <message>
        <source>Greatest value of the reference from A to B</source>
        <translation>Plus grande valeur de la référence de A à B</translation>
    </message>
</context>
<context>
    <name>TARN::MeasurePanel</name>
    <message>
        <source>Time of A, recording clock</source>
        <translation>Heure de A, horloge de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Time of B, recording clock</source>
        <translation>Heure de B, horloge de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Close the measuring panel</source>
        <translation>Fermer le panneau de mesure</translation>
    </message>
    <message>
        <source>What is measured of the curves</source>
        <translation>Ce qui est mesuré sur les courbes</translation>
    </message>
    <message>
        <source>Copy with Headers</source>
        <translation>Copier avec les en-têtes</translation>
    </message>
    <message>
        <source>B − A: %1 s</source>
        <translation>B − A&#xa0;: %1 s</translation>
    </message>
    <message>
        <source>Nothing is marked: the whole flight</source>
        <translation>Rien n&apos;est marqué&#xa0;: le vol entier</translation>
    </message>
    <message>
        <source>Sort as the Curves</source>
        <translation>Trier comme les courbes</translation>
    </message>
</context>
<context>
    <name>TARN::ProjectKeeper</name>
    <message>
        <source>Open TARN Project</source>
        <translation>Ouvrir un projet TARN</translation>
    </message>
    <message>
        <source>Project Files (*.xml)</source>
        <translation>Fichiers de projet (*.xml)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no project that can be read; the selection stays as it is.
Open a project file saved by this program.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas un projet lisible&#xa0;; la sélection reste inchangée.
Ouvrez un fichier de projet enregistré par ce programme.</translation>
    </message>
    <message>
        <source>TARN Warning</source>
        <translation>TARN - Avertissement</translation>
    </message>
    <message>
        <source>Current Project not saved !
Save it now ?</source>
        <translation>Le projet en cours n&apos;est pas enregistré !
L&apos;enregistrer maintenant ?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>The project was not saved: no profile is loaded, so its parameters are not known.
Choose a profile under Extras, Preferences.</source>
        <translation>Le projet n&apos;a pas été enregistré&#xa0;: aucun profil n&apos;est chargé, ses paramètres ne sont donc pas connus.
Choisissez un profil sous Outils, Préférences.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no project and is not replaced.
Choose another name for the project.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas un projet et n&apos;est pas remplacé.
Choisissez un autre nom pour le projet.</translation>
    </message>
    <message>
        <source>The project could not be written to &quot;%1&quot;.
The old file is unchanged; save it in another folder.</source>
        <translation>Le projet n&apos;a pas pu être écrit dans «&#xa0;%1&#xa0;».
L&apos;ancien fichier est inchangé&#xa0;; enregistrez le projet dans un autre dossier.</translation>
    </message>
    <message>
        <source>Project saved: %1</source>
        <translation>Projet enregistré&#xa0;: %1</translation>
    </message>
    <message>
        <source>Save TARN Project</source>
        <translation>Enregistrer le projet TARN</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists in this folder. Replace it?</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà dans ce dossier. Le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA - Avertissement</translation>
    </message>
</context>
<context>
    <name>TARN::RangeDialog</name>
    <message>
        <source>Highest value :</source>
        <translation>Valeur maximale&#xa0;:</translation>
    </message>
    <message>
        <source>Lowest value :</source>
        <translation>Valeur minimale&#xa0;:</translation>
    </message>
</context>
<context>
    <name>TARN::ReferenceBar</name>
    <message>
        <source>Curves</source>
        <translation>Courbes</translation>
    </message>
    <message>
        <source>Show the reference&apos;s curves (B in the graph)</source>
        <translation>Afficher les courbes de la référence (B dans le graphique)</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Différence</translation>
    </message>
    <message>
        <source>Show flight minus reference in strips of their own (D in the graph)</source>
        <translation>Afficher vol moins référence dans des bandes à part (D dans le graphique)</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Show the reference&apos;s values in the table</source>
        <translation>Afficher les valeurs de la référence dans le tableau</translation>
    </message>
    <message>
        <source>Take the reference flight away</source>
        <translation>Retirer le vol de référence</translation>
    </message>
    <message>
        <source>Clock</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Moment</source>
        <translation>Instant</translation>
    </message>
    <message>
        <source>Passing</source>
        <translation>Passage</translation>
    </message>
    <message>
        <source>What is laid on what: times of day, the first samples, a moment picked in both, or when a parameter first passes a value</source>
        <translation>Ce que l&apos;on fait coïncider&#xa0;: les heures du jour, les premiers échantillons, un instant choisi dans les deux vols, ou le premier passage d&apos;un paramètre par une valeur</translation>
    </message>
    <message>
        <source>Alignment</source>
        <translation>Alignement</translation>
    </message>
    <message>
        <source>Parameter that passes the value</source>
        <translation>Paramètre qui passe par la valeur</translation>
    </message>
    <message>
        <source>Value that is passed</source>
        <translation>Valeur de passage</translation>
    </message>
    <message>
        <source>Shift of the reference</source>
        <translation>Décalage de la référence</translation>
    </message>
    <message>
        <source>Seconds by which the reference is shifted; Alt and a drag in the graph shift it too</source>
        <translation>Secondes dont la référence est décalée&#xa0;; glisser avec Alt dans le graphique la décale aussi</translation>
    </message>
    <message>
        <source>A&amp;lign:</source>
        <translation>A&amp;ligner&#xa0;:</translation>
    </message>
    <message>
        <source>Sh&amp;ift:</source>
        <translation>&amp;Décaler&#xa0;:</translation>
    </message>
    <message>
        <source>Flight: %1</source>
        <translation>Vol&#xa0;: %1</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Référence&#xa0;: %1</translation>
    </message>
    <message>
        <source>Align Here</source>
        <translation>Aligner ici</translation>
    </message>
    <message>
        <source>Pick Moment</source>
        <translation>Choisir l&apos;instant</translation>
    </message>
    <message>
        <source>Lays the reference&apos;s value at the cursor on the moment picked</source>
        <translation>Place la valeur de la référence au curseur sur l&apos;instant choisi</translation>
    </message>
    <message>
        <source>Takes the cursor&apos;s time as the moment of the flight</source>
        <translation>Prend l&apos;heure du curseur comme instant du vol</translation>
    </message>
    <message>
        <source>The reference holds no sample of: %1</source>
        <translation>La référence ne contient aucun échantillon de&#xa0;: %1</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> et %1 de plus</translation>
    </message>
    <message>
        <source>Moment of the flight: %1. Go to where the reference&apos;s curve shows the same moment, then press Align Here.</source>
        <translation>Instant du vol&#xa0;: %1. Allez là où la courbe de la référence montre le même instant, puis appuyez sur «&#xa0;Aligner ici&#xa0;».</translation>
    </message>
    <message>
        <source>One of the flights does not pass this value: the shift is the one before.</source>
        <translation>L&apos;un des vols ne passe pas par cette valeur&#xa0;: le décalage précédent est conservé.</translation>
    </message>
    <message>
        <source>The flights have no time in common: align them by their start, or shift the reference.</source>
        <translation>Les vols n&apos;ont aucun temps en commun&#xa0;: alignez-les par leur début, ou décalez la référence.</translation>
    </message>
    <message>
        <source>The flights are being aligned.</source>
        <translation>Les vols sont en cours d&apos;alignement.</translation>
    </message>
    <message>
        <source>There is not enough memory to compare everything; select fewer parameters.</source>
        <translation>La mémoire ne suffit pas pour tout comparer ; sélectionnez moins de paramètres.</translation>
    </message>
</context>
<context>
    <name>TARN::ReferenceGraph</name>
    <message>
        <source>Show &amp;Reference</source>
        <translation>Afficher la &amp;référence</translation>
    </message>
    <message>
        <source>Show &amp;Difference</source>
        <translation>Afficher la di&amp;fférence</translation>
    </message>
    <message>
        <source>There is not enough memory for the reference&apos;s curves; select fewer parameters.</source>
        <translation>Mémoire insuffisante pour les courbes de la référence&#xa0;; sélectionnez moins de paramètres.</translation>
    </message>
</context>
<context>
    <name>TARN::ReferenceLoader</name>
    <message>
        <source>There is not enough memory for a reference beside the flight.</source>
        <translation>Mémoire insuffisante pour une référence à côté du vol.</translation>
    </message>
    <message>
        <source>Looking for events</source>
        <translation>Recherche des événements</translation>
    </message>
</context>
<context>
    <name>TARN::SessionGraph</name>
    <message>
        <source>There is not enough memory for these curves; select fewer parameters.</source>
        <translation>Mémoire insuffisante pour ces courbes&#xa0;; sélectionnez moins de paramètres.</translation>
    </message>
    <message>
        <source>%1 of %2 selected parameters shown</source>
        <translation>%1 paramètres affichés sur %2 sélectionnés</translation>
    </message>
    <message>
        <source>Left out of the graph, because their time falls: %1 samples</source>
        <translation>Écartés du graphique, car leur heure recule&#xa0;: %1 échantillons</translation>
    </message>
    <message>
        <source>The graph was cleared.
Press &quot;Confirm Selection&quot; to fill it again.</source>
        <translation>Le graphique a été effacé.
Appuyez sur «&#xa0;Confirmer la sélection&#xa0;» pour le remplir à nouveau.</translation>
    </message>
    <message>
        <source>The graph is being filled.</source>
        <translation>Le graphique est en cours de remplissage.</translation>
    </message>
    <message>
        <source>The recording holds no sample of the selected parameters.</source>
        <translation>L&apos;enregistrement ne contient aucun échantillon des paramètres sélectionnés.</translation>
    </message>
</context>
<context>
    <name>TARN::TableModel</name>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Reference: %1</source>
        <translation>Référence&#xa0;: %1</translation>
    </message>
    <message>
        <source>ref. %1</source>
        <translation>réf. %1</translation>
    </message>
</context>
<context>
    <name>TARN::TimeControls</name>
    <message>
        <source>Date and time of day in UTC</source>
        <translation>Date et heure du jour en UTC</translation>
    </message>
    <message>
        <source>Time on the recording&apos;s clock</source>
        <translation>Heure à l&apos;horloge de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Décalage&#xa0;:</translation>
    </message>
    <message>
        <source>UTC</source>
        <translation>UTC</translation>
    </message>
    <message>
        <source>Recording clock</source>
        <translation>Horloge de l&apos;enregistrement</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Seconds added to the times of units whose clock differs; kept with the card folder</source>
        <translation>Secondes ajoutées aux heures des boîtiers dont l&apos;horloge diffère&#xa0;; conservées avec le dossier de la carte</translation>
    </message>
    <message>
        <source>Current time, from the recording&apos;s start to its stop</source>
        <translation>Instant courant, du début à la fin de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Current time</source>
        <translation>Instant courant</translation>
    </message>
    <message>
        <source>Current time on the recording&apos;s clock; type a time and press Enter to go there</source>
        <translation>Instant courant à l&apos;horloge de l&apos;enregistrement&#xa0;; saisissez une heure et appuyez sur Entrée pour y aller</translation>
    </message>
    <message>
        <source>Go to time</source>
        <translation>Aller à l&apos;heure</translation>
    </message>
    <message>
        <source>Previous event</source>
        <translation>Événement précédent</translation>
    </message>
    <message>
        <source>Next event</source>
        <translation>Événement suivant</translation>
    </message>
</context>
<context>
    <name>TARN::TrendListModel</name>
    <message>
        <source>Parameter</source>
        <translation>Paramètre</translation>
    </message>
    <message>
        <source>Device, parameter and unit</source>
        <translation>Équipement, paramètre et unité</translation>
    </message>
    <message>
        <source>Away</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>How far the latest flight lies from the median, in robust standard deviations; red where it is marked</source>
        <translation>De combien le dernier vol est éloigné de la médiane, en écarts types robustes&#xa0;; en rouge là où il est marqué</translation>
    </message>
    <message>
        <source>Marked</source>
        <translation>Marqués</translation>
    </message>
    <message>
        <source>Number of flights that leave the band</source>
        <translation>Nombre de vols qui sortent de la bande</translation>
    </message>
    <message>
        <source>Latest</source>
        <translation>Dernier</translation>
    </message>
    <message>
        <source>In the latest flight that has a value</source>
        <translation>Dans le dernier vol qui a une valeur</translation>
    </message>
    <message>
        <source>Median</source>
        <translation>Médiane</translation>
    </message>
    <message>
        <source>Of the other flights since the last maintenance</source>
        <translation>Des autres vols depuis la dernière maintenance</translation>
    </message>
</context>
<context>
    <name>TARN::TrendPanel</name>
    <message>
        <source>Time mean when steady</source>
        <translation>Moyenne temporelle stabilisée</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Seconds above WARNING</source>
        <translation>Secondes au-dessus de WARNING</translation>
    </message>
    <message>
        <source>Times out of range</source>
        <translation>Nombre de fois hors plage</translation>
    </message>
    <message>
        <source>What is compared from flight to flight</source>
        <translation>Ce que l&apos;on compare d&apos;un vol à l&apos;autre</translation>
    </message>
    <message>
        <source>Figure</source>
        <translation>Indicateur</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Show only parameters that hold this text</source>
        <translation>N&apos;afficher que les paramètres qui contiennent ce texte</translation>
    </message>
    <message>
        <source>Filter of the parameters</source>
        <translation>Filtre des paramètres</translation>
    </message>
    <message>
        <source>Parameters</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>No parameter holds this text.</source>
        <translation>Aucun paramètre ne contient ce texte.</translation>
    </message>
    <message>
        <source>No flight of this engine has a steady stretch of three minutes. What is steady is told by parameters that the profile marks with &quot;steady&quot;.</source>
        <translation>Aucun vol de ce moteur n&apos;a de partie stabilisée de trois minutes. Ce qui est stabilisé est déterminé par les paramètres que le profil marque par «&#xa0;steady&#xa0;».</translation>
    </message>
    <message>
        <source>No flight of this engine has this figure.</source>
        <translation>Aucun vol de ce moteur n&apos;a cet indicateur.</translation>
    </message>
    <message>
        <source>Engine %1: a band needs five other flights since the last maintenance.</source>
        <translation>Moteur %1&#xa0;: une bande demande cinq autres vols depuis la dernière maintenance.</translation>
    </message>
    <message>
        <source>Engine %1: %2 of %3 parameters leave their band in their latest flight.</source>
        <translation>Moteur %1&#xa0;: %2 sur %3 paramètres hors de leur bande dans leur dernier vol.</translation>
    </message>
    <message>
        <source>%1%2, %3: %4 of %5 flights leave the band</source>
        <translation>%1%2, %3&#xa0;: %4 sur %5 vols hors de la bande</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetErrorTime</name>
    <message>
        <source>When errors were active: from the top info, warning, fault. Click to go there.</source>
        <translation>Périodes où des erreurs étaient actives, de haut en bas&#xa0;: information, alerte, défaut. Cliquez pour y aller.</translation>
    </message>
    <message>
        <source>Fault timeline</source>
        <translation>Chronologie des défauts</translation>
    </message>
    <message>
        <source>The recording holds no message of this matrix.</source>
        <translation>L&apos;enregistrement ne contient aucun message de cette matrice.</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetTimeRange</name>
    <message>
        <source>Start time</source>
        <translation>Heure de début</translation>
    </message>
    <message>
        <source>Stop time</source>
        <translation>Heure de fin</translation>
    </message>
    <message>
        <source>Cursor Pos</source>
        <translation>Pos. curseur</translation>
    </message>
    <message>
        <source>Start at the current time of the data window</source>
        <translation>Commencer à l&apos;instant courant de la fenêtre de données</translation>
    </message>
    <message>
        <source>Stop at the current time of the data window</source>
        <translation>Finir à l&apos;instant courant de la fenêtre de données</translation>
    </message>
    <message>
        <source>Start :</source>
        <translation>Début :</translation>
    </message>
    <message>
        <source>Stop :</source>
        <translation>Fin :</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA - Avertissement</translation>
    </message>
    <message>
        <source>The start time is after the stop time: nothing would be exported.</source>
        <translation>L&apos;heure de début est postérieure à l&apos;heure de fin&#xa0;: rien ne serait exporté.</translation>
    </message>
    <message>
        <source>Start/Stop Time (recording clock)</source>
        <translation>Heure de début/fin (horloge de l&apos;enregistrement)</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetTrack</name>
    <message>
        <source>Track</source>
        <translation>Trajectoire</translation>
    </message>
    <message>
        <source>The path of the flight from above, and its height below</source>
        <translation>La trajectoire du vol vue de dessus, et sa hauteur dessous</translation>
    </message>
</context>
<context>
    <name>TARN::WidgetTrend</name>
    <message>
        <source>Trend</source>
        <translation>Tendance</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>pas de valeur</translation>
    </message>
    <message>
        <source>Median of the others %1, sigma %2</source>
        <translation>Médiane des autres %1, sigma %2</translation>
    </message>
    <message>
        <source>It leaves the band.</source>
        <translation>Il sort de la bande.</translation>
    </message>
    <message>
        <source>Click: open the flight; with Shift: as the reference.</source>
        <translation>Clic&#xa0;: ouvrir le vol&#xa0;; avec Maj&#xa0;: comme référence.</translation>
    </message>
</context>
<context>
    <name>TargetQuestion</name>
    <message>
        <source>Type a file name, without a folder.</source>
        <translation>Saisissez un nom de fichier, sans dossier.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; does not exist. Choose another.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n&apos;existe pas. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>The folder &quot;%1&quot; may not be written to. Choose another.</source>
        <translation>Le dossier «&#xa0;%1&#xa0;» n&apos;est pas accessible en écriture. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>ORNA Warning</source>
        <translation>ORNA - Avertissement</translation>
    </message>
    <message>
        <source>&quot;%1&quot; exists in this folder. Replace it?</source>
        <translation>«&#xa0;%1&#xa0;» existe déjà dans ce dossier. Le remplacer&#xa0;?</translation>
    </message>
</context>
<context>
    <name>TimedKml</name>
    <message>
        <source>The recording tells no date: no times can be given. Export the path without them.</source>
        <translation>L&apos;enregistrement n&apos;indique aucune date&#xa0;: aucune heure ne peut être donnée. Exportez la trajectoire sans elles.</translation>
    </message>
</context>
<context>
    <name>TrackColors</name>
    <message>
        <source>All parameters</source>
        <translation>Tous les paramètres</translation>
    </message>
    <message>
        <source>in range</source>
        <translation>dans la plage</translation>
    </message>
    <message>
        <source>no value</source>
        <translation>pas de valeur</translation>
    </message>
</context>
<context>
    <name>TrackDrawing</name>
    <message>
        <source>No position at %1; shown is the last one, of %2</source>
        <translation>Aucune position à %1 ; la dernière, de %2, est montrée</translation>
    </message>
    <message>
        <source>No position at %1 or before</source>
        <translation>Aucune position à %1 ni avant</translation>
    </message>
</context>
<context>
    <name>TrackHits</name>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
</context>
<context>
    <name>TrackMarks</name>
    <message>
        <source>peak %1 at %2, threshold %3</source>
        <translation>pic %1 à %2, seuil %3</translation>
    </message>
</context>
<context>
    <name>TrackNote</name>
    <message>
        <source>The recording tells no UTC: times are counted from the date of its header, whose time zone is not known, as if that were UTC.</source>
        <translation>L&apos;enregistrement n&apos;indique pas l&apos;UTC&#xa0;: les heures sont comptées depuis la date de son en-tête, dont le fuseau est inconnu, comme si c&apos;était l&apos;UTC.</translation>
    </message>
    <message>
        <source>The recording tells no date: the track is without times.</source>
        <translation>L&apos;enregistrement n&apos;indique aucune date&#xa0;: la trajectoire est sans heures.</translation>
    </message>
    <message>
        <source>The unit &quot;%1&quot; of the altitude is not known, its numbers were taken for metres.</source>
        <translation>L&apos;unité &quot;%1&quot; de l&apos;altitude est inconnue, ses nombres ont été pris pour des mètres.</translation>
    </message>
    <message>
        <source>Times are UTC as the recording&apos;s own messages tell it.</source>
        <translation>Les heures sont l&apos;UTC que donnent les messages de l&apos;enregistrement.</translation>
    </message>
    <message>
        <source>Altitudes are metres, converted from %1.</source>
        <translation>Les altitudes sont en mètres, converties depuis %1.</translation>
    </message>
    <message>
        <source>Left out: %1 positions at 0/0 or incomplete, %2 that nothing flies to, %3 events without a position.</source>
        <translation>Omis&#xa0;: %1 positions à 0/0 ou incomplètes, %2 où rien ne vole, %3 événements sans position.</translation>
    </message>
</context>
<context>
    <name>TrackSymbols</name>
    <message>
        <source>out of range</source>
        <translation>hors de la plage</translation>
    </message>
    <message>
        <source>warning lamp</source>
        <translation>voyant d&apos;alerte</translation>
    </message>
    <message>
        <source>fault or warning</source>
        <translation>défaut ou alerte</translation>
    </message>
    <message>
        <source>Events without a position: %1</source>
        <translation>Événements sans position&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>UnknownIdentifiers</name>
    <message>
        <source>Identifiers that the profile does not describe: %1, their samples: %2</source>
        <translation>Identifiants que le profil ne décrit pas&#xa0;: %1, leurs échantillons&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>WidgetGraph</name>
    <message>
        <source>Graph of the selected parameters</source>
        <translation>Graphique des paramètres sélectionnés</translation>
    </message>
    <message>
        <source>Click to show the curve</source>
        <translation>Cliquer pour afficher la courbe</translation>
    </message>
    <message>
        <source>Click to hide the curve, drag to move it, right click for more</source>
        <translation>Cliquer pour masquer la courbe, glisser pour la déplacer, clic droit pour plus</translation>
    </message>
</context>
</TS>
