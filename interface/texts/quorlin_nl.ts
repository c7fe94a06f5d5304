<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl_NL" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About Quorlin</source>
        <translation>Over Quorlin</translation>
    </message>
    <message>
        <source>Process a whole folder of pictures in one go. Quorlin shows the result first, does the work, checks it and keeps a log.</source>
        <translation>Een hele map met foto’s in één keer bewerken. Quorlin laat eerst het resultaat zien, doet het werk, controleert het en houdt een logboek bij.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. It comes without any warranty.</source>
        <translation>Vrije software onder de GNU General Public License, versie 3 of later. Zonder enige garantie.</translation>
    </message>
    <message>
        <source>Built with these libraries</source>
        <translation>Gemaakt met deze bibliotheken</translation>
    </message>
    <message>
        <source>Libraries with their versions and licences</source>
        <translation>Bibliotheken met hun versies en licenties</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>How the processes that read pictures are confined</source>
        <translation>Hoe de processen zijn afgeschermd die foto’s lezen</translation>
    </message>
    <message>
        <source>Copy Versions</source>
        <translation>Versies kopiëren</translation>
    </message>
    <message>
        <source>Copy the versions for a bug report</source>
        <translation>De versies kopiëren voor een foutrapport</translation>
    </message>
</context>
<context>
    <name>AddFolder</name>
    <message>
        <source>Include &amp;subfolders</source>
        <translation>&amp;Submappen meenemen</translation>
    </message>
    <message>
        <source>Fil&amp;ter…</source>
        <translation>Fil&amp;teren…</translation>
    </message>
    <message>
        <source>Add only files of a certain type, size, date or name</source>
        <translation>Alleen bestanden van een bepaald type, een bepaalde grootte, datum of naam toevoegen</translation>
    </message>
    <message>
        <source>T&amp;ypes</source>
        <translation>T&amp;ypen</translation>
    </message>
    <message>
        <source>all, or jpg, tif</source>
        <translation>alle, of jpg, tif</translation>
    </message>
    <message>
        <source>File types, by extension</source>
        <translation>Bestandstypen, op extensie</translation>
    </message>
    <message>
        <source>Name &amp;contains</source>
        <translation>Naam be&amp;vat</translation>
    </message>
    <message>
        <source>any</source>
        <translation>willekeurig</translation>
    </message>
    <message>
        <source>Part of the name</source>
        <translation>Deel van de naam</translation>
    </message>
    <message>
        <source>Si&amp;ze from</source>
        <translation>&amp;Grootte van</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Size from</source>
        <translation>Grootte van</translation>
    </message>
    <message>
        <source>to</source>
        <translation>tot</translation>
    </message>
    <message>
        <source>Size to</source>
        <translation>Grootte tot</translation>
    </message>
    <message>
        <source>&amp;Date from</source>
        <translation>&amp;Datum van</translation>
    </message>
    <message>
        <source>The date taken, or the date changed if the file has no date taken</source>
        <translation>De opnamedatum, of de wijzigingsdatum als het bestand geen opnamedatum heeft</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Eerste dag</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Laatste dag</translation>
    </message>
    <message>
        <source>With 0 there is no upper limit</source>
        <translation>Bij 0 is er geen bovengrens</translation>
    </message>
</context>
<context>
    <name>AddToRecipe</name>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Add these settings to</source>
        <translation>Deze instellingen toevoegen aan</translation>
    </message>
    <message>
        <source>Recipe to add to</source>
        <translation>Recept waaraan wordt toegevoegd</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Toevoegen</translation>
    </message>
</context>
<context>
    <name>BackgroundPane</name>
    <message>
        <source>Background</source>
        <translation>Achtergrond</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Patroon</translation>
    </message>
    <message>
        <source>What fills transparent parts</source>
        <translation>Wat transparante delen vult</translation>
    </message>
    <message>
        <source>Colour for transparent parts</source>
        <translation>Kleur voor transparante delen</translation>
    </message>
    <message>
        <source>Pattern for transparent parts</source>
        <translation>Patroon voor transparante delen</translation>
    </message>
    <message>
        <source>About your own patterns</source>
        <translation>Uitleg over eigen patronen</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Border width</source>
        <translation>Randbreedte</translation>
    </message>
    <message>
        <source>Border colour</source>
        <translation>Randkleur</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
</context>
<context>
    <name>Clocks</name>
    <message>
        <source>Camera clocks</source>
        <translation>Cameraklokken</translation>
    </message>
    <message>
        <source>Correct the dates of a camera whose clock was wrong. This affects sorting, new names and folders. No file is changed.</source>
        <translation>Corrigeer de opnametijden van een camera waarvan de klok niet goed liep. Dit werkt door in de sortering, nieuwe namen en mappen. Er wordt geen bestand gewijzigd.</translation>
    </message>
    <message>
        <source>Ca&amp;mera</source>
        <translation>Ca&amp;mera</translation>
    </message>
    <message>
        <source>Move its &amp;dates</source>
        <translation>De &amp;tijden verschuiven</translation>
    </message>
    <message>
        <source>Later or earlier</source>
        <translation>Later of vroeger</translation>
    </message>
    <message>
        <source> h</source>
        <translation> u</translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Uren</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Seconden</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Alles herstellen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>ContactPages</name>
    <message>
        <source>Preview of the pages</source>
        <translation>Voorvertoning van de pagina’s</translation>
    </message>
    <message>
        <source>Pages before</source>
        <translation>Vorige pagina’s</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>Geen pagina’s</translation>
    </message>
    <message>
        <source>Pages after</source>
        <translation>Volgende pagina’s</translation>
    </message>
</context>
<context>
    <name>ContactPane</name>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Width of the paper</source>
        <translation>Breedte van het papier</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Height of the paper</source>
        <translation>Hoogte van het papier</translation>
    </message>
    <message>
        <source>Paper orientation</source>
        <translation>Stand van het papier</translation>
    </message>
    <message>
        <source>Per page</source>
        <translation>Per pagina</translation>
    </message>
    <message>
        <source>Pictures across</source>
        <translation>Foto’s naast elkaar</translation>
    </message>
    <message>
        <source>Pictures down</source>
        <translation>Foto’s onder elkaar</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Foto’s</translation>
    </message>
    <message>
        <source>How a picture fits its place</source>
        <translation>Hoe een foto in zijn vak past</translation>
    </message>
    <message>
        <source>Rotate pictures to fit</source>
        <translation>Foto’s passend draaien</translation>
    </message>
    <message>
        <source>Fill each page with one picture</source>
        <translation>Elke pagina met één foto vullen</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Tussenruimte</translation>
    </message>
    <message>
        <source>Gap between pictures</source>
        <translation>Ruimte tussen foto’s</translation>
    </message>
    <message>
        <source>Top, bottom</source>
        <translation>Boven, onder</translation>
    </message>
    <message>
        <source>Margin at the top</source>
        <translation>Marge boven</translation>
    </message>
    <message>
        <source>Margin at the bottom</source>
        <translation>Marge onder</translation>
    </message>
    <message>
        <source>Left, right</source>
        <translation>Links, rechts</translation>
    </message>
    <message>
        <source>Margin on the left</source>
        <translation>Marge links</translation>
    </message>
    <message>
        <source>Margin on the right</source>
        <translation>Marge rechts</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Bijschrift</translation>
    </message>
    <message>
        <source>Caption below each picture</source>
        <translation>Bijschrift onder elke foto</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <translation>Een code invoegen</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tekstgrootte</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Text size of the captions</source>
        <translation>Tekstgrootte van de bijschriften</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>Koptekst</translation>
    </message>
    <message>
        <source>Insert the page number</source>
        <translation>Paginanummer invoegen</translation>
    </message>
    <message>
        <source>Position of the header</source>
        <translation>Positie van de koptekst</translation>
    </message>
    <message>
        <source>Footer</source>
        <translation>Voettekst</translation>
    </message>
    <message>
        <source>Position of the footer</source>
        <translation>Positie van de voettekst</translation>
    </message>
    <message>
        <source>Crop marks</source>
        <translation>Snijtekens</translation>
    </message>
    <message>
        <source>Thin line around pictures</source>
        <translation>Dunne lijn rond foto’s</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Lettertype</translation>
    </message>
    <message>
        <source>Header size</source>
        <translation>Grootte kop</translation>
    </message>
    <message>
        <source>Text size of the header and footer</source>
        <translation>Tekstgrootte van kop- en voettekst</translation>
    </message>
    <message>
        <source>Page colour</source>
        <translation>Paginakleur</translation>
    </message>
    <message>
        <source>Colour of the page</source>
        <translation>Kleur van de pagina</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolutie</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>Maximum number of pixels per inch of paper</source>
        <translation>Maximumaantal pixels per inch papier</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kwaliteit</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Quality of the pictures</source>
        <translation>Kwaliteit van de foto’s</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profiel</translation>
    </message>
    <message>
        <source>Colour profile of the pictures</source>
        <translation>Kleurprofiel van de foto’s</translation>
    </message>
    <message>
        <source>More…</source>
        <translation>Meer…</translation>
    </message>
    <message>
        <source>Show more or fewer page settings</source>
        <translation>Meer of minder instellingen van de pagina’s tonen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Name of the file, without .pdf</source>
        <translation>Naam van het bestand, zonder .pdf</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Hogere kwaliteit betekent grotere bestanden</translation>
    </message>
    <message>
        <source>Converts the colours. sRGB suits screens and most printers.</source>
        <translation>Rekent de kleuren om. sRGB is geschikt voor beeldschermen en de meeste printers.</translation>
    </message>
    <message>
        <source>A higher resolution means larger files</source>
        <translation>Een hogere resolutie betekent grotere bestanden</translation>
    </message>
</context>
<context>
    <name>ConvertPane</name>
    <message>
        <source>Convert to</source>
        <translation>Converteren naar</translation>
    </message>
    <message>
        <source>File type of the results</source>
        <translation>Bestandstype van de resultaten</translation>
    </message>
    <message>
        <source>File type to convert to</source>
        <translation>Bestandstype waarnaar wordt geconverteerd</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kwaliteit</translation>
    </message>
    <message>
        <source>JPEG quality, 1 to 9</source>
        <translation>JPEG-kwaliteit, 1 tot 9</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Hogere kwaliteit betekent grotere bestanden</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
</context>
<context>
    <name>CropPane</name>
    <message>
        <source>Size</source>
        <translation>Formaat</translation>
    </message>
    <message>
        <source>Trim by %</source>
        <translation>Snijden %</translation>
    </message>
    <message>
        <source>Trim by px</source>
        <translation>Snijden px</translation>
    </message>
    <message>
        <source>How the frame is set</source>
        <translation>Hoe het kader wordt bepaald</translation>
    </message>
    <message>
        <source>Width, height</source>
        <translation>Breedte, hoogte</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Breedte van het kader</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Height of the frame</source>
        <translation>Hoogte van het kader</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Afsnijden</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Percentage to trim from width and height</source>
        <translation>Percentage dat van breedte en hoogte wordt afgesneden</translation>
    </message>
    <message>
        <source>Pixels to trim from width and height</source>
        <translation>Pixels die van breedte en hoogte af gaan</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Verhouding</translation>
    </message>
    <message>
        <source>Ratio of width to height</source>
        <translation>Verhouding tussen breedte en hoogte</translation>
    </message>
    <message>
        <source>Unit of size and offsets</source>
        <translation>Eenheid van formaat en verschuiving</translation>
    </message>
    <message>
        <source>Unit of size and offsets: pixels, millimetres, centimetres, inches, picas, points</source>
        <translation>Eenheid van formaat en verschuiving: pixels, millimeters, centimeters, inches, pica’s, punten</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Positie</translation>
    </message>
    <message>
        <source>Position of the frame</source>
        <translation>Positie van het kader</translation>
    </message>
    <message>
        <source>Offset to the right</source>
        <translation>Verschuiving naar rechts</translation>
    </message>
    <message>
        <source>How far the frame is moved to the right</source>
        <translation>Hoe ver het kader naar rechts schuift</translation>
    </message>
    <message>
        <source>→ </source>
        <translation>→ </translation>
    </message>
    <message>
        <source>Offset downward</source>
        <translation>Verschuiving omlaag</translation>
    </message>
    <message>
        <source>How far the frame is moved down</source>
        <translation>Hoe ver het kader omlaag schuift</translation>
    </message>
    <message>
        <source>↓ </source>
        <translation>↓ </translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
    <message>
        <source>Swap for portrait pictures</source>
        <translation>Omwisselen bij staande foto’s</translation>
    </message>
    <message>
        <source>The larger number is used for the longer side: 3:2 becomes 2:3 in portrait pictures</source>
        <translation>Het grootste getal geldt voor de langste zijde: 3:2 wordt 2:3 bij staande foto’s</translation>
    </message>
    <message>
        <source>First number of the ratio</source>
        <translation>Eerste getal van de verhouding</translation>
    </message>
    <message>
        <source>Second number of the ratio</source>
        <translation>Tweede getal van de verhouding</translation>
    </message>
    <message>
        <source>Focus of attention</source>
        <translation>Blikvanger</translation>
    </message>
    <message>
        <source>Finds in each picture the part that draws the eye, and places the frame there</source>
        <translation>Zoekt in elke foto het deel dat het oog trekt en legt het kader daar</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolutie</translation>
    </message>
    <message>
        <source>Unit of the offsets</source>
        <translation>Eenheid van de verschuivingen</translation>
    </message>
    <message>
        <source>Unit of the offsets: pixels, millimetres, centimetres, inches, picas, points</source>
        <translation>Eenheid van de verschuivingen: pixels, millimeters, centimeters, inches, pica’s, punten</translation>
    </message>
    <message>
        <source>Resolution used for lengths</source>
        <translation>Resolutie voor lengtes</translation>
    </message>
    <message>
        <source>Dots per inch used to turn lengths into pixels. A chosen resolution is also written into the file.</source>
        <translation>Punten per inch waarmee lengtes in pixels worden omgerekend. Een gekozen resolutie komt ook in het bestand te staan.</translation>
    </message>
    <message>
        <source>Dots per inch</source>
        <translation>Punten per inch</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>Turns lengths into pixels and is written into the file</source>
        <translation>Rekent lengtes om in pixels en komt in het bestand te staan</translation>
    </message>
</context>
<context>
    <name>HandPage</name>
    <message>
        <source>Drop pictures or folders here</source>
        <translation>Sleep foto’s of mappen hierheen</translation>
    </message>
    <message>
        <source>Pictures appear one at a time; press a key to send each one to a folder.</source>
        <translation>Foto’s verschijnen een voor een; met één toets gaat elke foto naar een map.</translation>
    </message>
    <message>
        <source>Add Pictures…</source>
        <translation>Foto’s toevoegen…</translation>
    </message>
    <message>
        <source>Add pictures (Ctrl+O)</source>
        <translation>Foto’s toevoegen (Ctrl+O)</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Map toevoegen…</translation>
    </message>
    <message>
        <source>Add all pictures in a folder and its subfolders (Ctrl+Shift+O)</source>
        <translation>Alle foto’s in een map en de submappen toevoegen (Ctrl+Shift+O)</translation>
    </message>
    <message>
        <source>The picture to sort</source>
        <translation>De te sorteren foto</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Terug</translation>
    </message>
    <message>
        <source>Previous picture (Left, Backspace)</source>
        <translation>Vorige foto (Links, Backspace)</translation>
    </message>
    <message>
        <source>Skip →</source>
        <translation>Overslaan →</translation>
    </message>
    <message>
        <source>Next picture (Right)</source>
        <translation>Volgende foto (Rechts)</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Prullenbak</translation>
    </message>
    <message>
        <source>Move the picture to the trash (Del)</source>
        <translation>Foto naar de prullenbak verplaatsen (Del)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Undo (Ctrl+Z)</source>
        <translation>Ongedaan maken (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Overslaan</translation>
    </message>
    <message>
        <source>Move with Keys</source>
        <translation>Verplaatsen met toetsen</translation>
    </message>
    <message>
        <source>Copy with Keys</source>
        <translation>Kopiëren met toetsen</translation>
    </message>
    <message>
        <source>Link with Keys</source>
        <translation>Linken met toetsen</translation>
    </message>
    <message>
        <source>Actual pixels</source>
        <translation>Werkelijke pixels</translation>
    </message>
    <message>
        <source>Switch between actual pixels and the whole picture (Ctrl+2)</source>
        <translation>Wisselen tussen werkelijke pixels en de hele foto (Ctrl+2)</translation>
    </message>
</context>
<context>
    <name>HandPane</name>
    <message>
        <source>When a key is pressed</source>
        <translation>Bij een druk op een toets</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verplaatsen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Linken</translation>
    </message>
    <message>
        <source>What a key does with the picture</source>
        <translation>Wat een toets met de foto doet</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappen</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Toevoegen…</translation>
    </message>
    <message>
        <source>Choose a folder, or drop folders on the list</source>
        <translation>Een map kiezen, of mappen naar de lijst slepen</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>Nieuw…</translation>
    </message>
    <message>
        <source>Create a new folder</source>
        <translation>Een nieuwe map maken</translation>
    </message>
    <message>
        <source>⋯</source>
        <translation>⋯</translation>
    </message>
    <message>
        <source>Folder Options</source>
        <translation>Mapopties</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Naam van de nieuwe map</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Do not create a folder (Esc)</source>
        <translation>Geen map maken (Esc)</translation>
    </message>
    <message>
        <source>Create Folder</source>
        <translation>Map maken</translation>
    </message>
    <message>
        <source>Create the folder and give it a key (Return)</source>
        <translation>De map maken en een toets geven (Enter)</translation>
    </message>
    <message>
        <source>Folders and their keys</source>
        <translation>Mappen en hun toetsen</translation>
    </message>
    <message>
        <source>Add up to 59 folders to sort into. The first one gets key 1, and so on.</source>
        <translation>Voeg tot 59 mappen toe om in te sorteren. De eerste krijgt toets 1, enzovoort.</translation>
    </message>
</context>
<context>
    <name>Info</name>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Uitleg</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>LongWait</name>
    <message>
        <source>Still reading</source>
        <translation>Nog aan het lezen</translation>
    </message>
    <message>
        <source>A picture is taking a long time to read.</source>
        <translation>Het lezen van een foto duurt lang.</translation>
    </message>
    <message>
        <source>Do Not Wait</source>
        <translation>Niet wachten</translation>
    </message>
</context>
<context>
    <name>WebPane</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Title of the page</source>
        <translation>Titel van de pagina</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Text above the pictures</source>
        <translation>Tekst boven de foto’s</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stijl</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Rijen</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Verhaal</translation>
    </message>
    <message>
        <source>Arrangement of the pictures</source>
        <translation>Indeling van de foto’s</translation>
    </message>
    <message>
        <source>Sketch of the page</source>
        <translation>Schets van de pagina</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>Bijschriften</translation>
    </message>
    <message>
        <source>Pattern for all captions</source>
        <translation>Patroon van alle bijschriften</translation>
    </message>
    <message>
        <source>Insert a value</source>
        <translation>Waarde invoegen</translation>
    </message>
    <message>
        <source>This picture</source>
        <translation>Deze foto</translation>
    </message>
    <message>
        <source>Caption of the current picture</source>
        <translation>Bijschrift van de huidige foto</translation>
    </message>
    <message>
        <source>As Above</source>
        <translation>Zoals hierboven</translation>
    </message>
    <message>
        <source>Discard the caption of this picture</source>
        <translation>Het bijschrift van deze foto wissen</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Kleuren</translation>
    </message>
    <message>
        <source>Light page colour</source>
        <translation>Lichte paginakleur</translation>
    </message>
    <message>
        <source>Dark page colour</source>
        <translation>Donkere paginakleur</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Colour of links</source>
        <translation>Kleur van links</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Language of the page</source>
        <translation>Taal van de pagina</translation>
    </message>
    <message>
        <source>Writing direction</source>
        <translation>Schrijfrichting</translation>
    </message>
    <message>
        <source>Longest side</source>
        <translation>Langste zijde</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Middelgroot</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groot</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Three sizes</source>
        <translation>Drie formaten</translation>
    </message>
    <message>
        <source>If this is off, each picture has only a small and a large file</source>
        <translation>Anders heeft elke foto alleen een klein en een groot bestand</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Bestandstype</translation>
    </message>
    <message>
        <source>File type of the pictures</source>
        <translation>Bestandstype van de foto’s</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kwaliteit</translation>
    </message>
    <message>
        <source>Sharpen a little</source>
        <translation>Een beetje verscherpen</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadata</translation>
    </message>
    <message>
        <source>Metadata of the pictures</source>
        <translation>Metadata van de foto’s</translation>
    </message>
    <message>
        <source>Include the location</source>
        <translation>Locatie vermelden</translation>
    </message>
    <message>
        <source>The metadata keeps the location, and captions can contain it</source>
        <translation>De metadata behoudt de locatie en bijschriften mogen die noemen</translation>
    </message>
    <message>
        <source>Offer the pictures for download</source>
        <translation>Foto’s aanbieden om te downloaden</translation>
    </message>
    <message>
        <source>Save in</source>
        <translation>Bewaren in</translation>
    </message>
    <message>
        <source>Where the page is saved</source>
        <translation>Waar de pagina wordt bewaard</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Name of the folder of the page</source>
        <translation>Naam van de map van de pagina</translation>
    </message>
    <message>
        <source>If it exists</source>
        <translation>Als die bestaat</translation>
    </message>
    <message>
        <source>What happens if the folder exists</source>
        <translation>Wat gebeurt als de map bestaat</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Sjabloon</translation>
    </message>
    <message>
        <source>Template of the page</source>
        <translation>Sjabloon van de pagina</translation>
    </message>
    <message>
        <source>Open Preview</source>
        <translation>Voorvertoning openen</translation>
    </message>
    <message>
        <source>Shows the page with its first 12 pictures in the browser</source>
        <translation>Toont de pagina met de eerste 12 foto’s in de browser</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Schrijfrichting</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Hogere kwaliteit betekent grotere bestanden</translation>
    </message>
</context>
<context>
    <name>contact-action</name>
    <message>
        <source>Contact Sheet</source>
        <translation>Contactvel</translation>
    </message>
    <message>
        <source>Making pages</source>
        <translation>Pagina’s maken</translation>
    </message>
    <message numerus="yes">
        <source>Make %n Pages</source>
        <translation>
            <numerusform>%n pagina maken</numerusform>
            <numerusform>%n pagina’s maken</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>contact-pane</name>
    <message>
        <source>Other…</source>
        <translation>Ander…</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Staand</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Liggend</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Passend</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Vullend</translation>
    </message>
    <message>
        <source>Own size</source>
        <translation>Oorspronkelijke maat</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Midden</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Choose a colour profile</source>
        <translation>Een kleurprofiel kiezen</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grijs</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Kiezen…</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standaard</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Minder</translation>
    </message>
    <message>
        <source>More…</source>
        <translation>Meer…</translation>
    </message>
    <message>
        <source>Pages %1–%2 of %3</source>
        <translation>Pagina’s %1–%2 van %3</translation>
    </message>
    <message>
        <source>Page %1 of %3</source>
        <translation>Pagina %1 van %3</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>Geen pagina’s</translation>
    </message>
    <message>
        <source>Letter</source>
        <translation>US Letter</translation>
    </message>
    <message>
        <source>Legal</source>
        <translation>US Legal</translation>
    </message>
    <message>
        <source>Tabloid</source>
        <translation>US Tabloid</translation>
    </message>
</context>
<context>
    <name>contact-presets</name>
    <message>
        <source>Contact sheet, 20 on a page</source>
        <translation>Contactvel, 20 per pagina</translation>
    </message>
    <message>
        <source>Contact sheet, 48 on a page</source>
        <translation>Contactvel, 48 per pagina</translation>
    </message>
    <message>
        <source>Contact sheet on black</source>
        <translation>Contactvel op zwart</translation>
    </message>
    <message>
        <source>One on a page, with its name</source>
        <translation>Eén per pagina, met naam</translation>
    </message>
    <message>
        <source>Proofs, 2 on a page</source>
        <translation>Proeven, 2 per pagina</translation>
    </message>
    <message>
        <source>Prints of 9 × 13 cm to cut</source>
        <translation>Afdrukken 9 × 13 cm, snijden</translation>
    </message>
</context>
<context>
    <name>contact-step</name>
    <message>
        <source>Pages</source>
        <translation>Pagina’s</translation>
    </message>
    <message>
        <source>Contact sheet</source>
        <translation>Contactvel</translation>
    </message>
    <message>
        <source>%1 × %2 on a page</source>
        <translation>%1 × %2 per pagina</translation>
    </message>
</context>
<context>
    <name>crash-note</name>
    <message>
        <source>Quorlin ended unexpectedly</source>
        <translation>Quorlin is onverwacht gestopt</translation>
    </message>
    <message>
        <source>An error in Quorlin ended the last session. Your originals are not affected.</source>
        <translation>Door een fout in Quorlin is de vorige sessie gestopt. Uw originelen zijn niet geraakt.</translation>
    </message>
    <message>
        <source>A report was saved on this computer and not sent. It names the version, the action, the picture and the place of the error.</source>
        <translation>Er is een rapport op deze computer bewaard en niet verstuurd. Het noemt de versie, de actie, de foto en de plaats van de fout.</translation>
    </message>
    <message>
        <source>Copy Report</source>
        <translation>Rapport kopiëren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>interrupted-bar</name>
    <message>
        <source>A run was interrupted</source>
        <translation>Een opdracht is onderbroken</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message numerus="yes">
        <source>Writing metadata was interrupted: %n pictures were changed. You can revert them in the log.</source>
        <translation>
            <numerusform>Het schrijven van metadata is onderbroken: %n foto is gewijzigd. U kunt dit in het logboek terugdraaien.</numerusform>
            <numerusform>Het schrijven van metadata is onderbroken: %n foto’s zijn gewijzigd. U kunt dit in het logboek terugdraaien.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>Search the log</source>
        <translation>Logboek doorzoeken</translation>
    </message>
    <message>
        <source>Shows entries that contain every word (Ctrl+F)</source>
        <translation>Toont regels die elk woord bevatten (Ctrl+F)</translation>
    </message>
    <message>
        <source>Show entries with this status</source>
        <translation>Regels met deze status tonen</translation>
    </message>
    <message>
        <source>Show entries of this kind</source>
        <translation>Regels van deze soort tonen</translation>
    </message>
    <message>
        <source>Show Picture</source>
        <translation>Foto tonen</translation>
    </message>
    <message>
        <source>Show the picture large, if it still exists (Return)</source>
        <translation>De foto groot tonen, als die er nog is (Enter)</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>In map tonen</translation>
    </message>
    <message>
        <source>Open the folder and select the file in it</source>
        <translation>De map openen en het bestand daarin selecteren</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporteren…</translation>
    </message>
    <message>
        <source>Save the entries shown as a CSV file for spreadsheets</source>
        <translation>De getoonde rijen bewaren als CSV-bestand voor spreadsheets</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Meer</translation>
    </message>
    <message>
        <source>Log Options</source>
        <translation>Logboekopties</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Opdrachten</translation>
    </message>
    <message>
        <source>Entries of the log</source>
        <translation>Regels van het logboek</translation>
    </message>
    <message>
        <source>Revert Comment</source>
        <translation>Opmerking terugzetten</translation>
    </message>
    <message>
        <source>Restore the old comments of the selected pictures</source>
        <translation>De oude opmerkingen van de geselecteerde foto’s terugzetten</translation>
    </message>
    <message>
        <source>Undo This Run</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stoppen</translation>
    </message>
    <message>
        <source>Search the Log</source>
        <translation>Logboek doorzoeken</translation>
    </message>
    <message>
        <source>Use These Settings</source>
        <translation>Deze instellingen gebruiken</translation>
    </message>
    <message>
        <source>Open the action of this run with its settings</source>
        <translation>De actie van deze opdracht openen met de instellingen ervan</translation>
    </message>
    <message>
        <source>Forget Old Values</source>
        <translation>Oude waarden vergeten</translation>
    </message>
    <message>
        <source>Delete the old metadata that is kept for reverting</source>
        <translation>De oude metadata wissen die voor het terugdraaien wordt bewaard</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Quorlin</source>
        <translation>Quorlin</translation>
    </message>
    <message>
        <source>Add Pictures…</source>
        <translation>Foto’s toevoegen…</translation>
    </message>
    <message>
        <source>Add pictures (Ctrl+O)</source>
        <translation>Foto’s toevoegen (Ctrl+O)</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Map toevoegen…</translation>
    </message>
    <message>
        <source>Add all pictures in a folder and its subfolders (Ctrl+Shift+O)</source>
        <translation>Alle foto’s in een map en de submappen toevoegen (Ctrl+Shift+O)</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leegmaken</translation>
    </message>
    <message>
        <source>Clear the list (files are not deleted)</source>
        <translation>De lijst leegmaken (bestanden worden niet gewist)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Passend</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Vullend</translation>
    </message>
    <message>
        <source>How the preview fits the view</source>
        <translation>Hoe de voorvertoning de weergave vult</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Volledig scherm</translation>
    </message>
    <message>
        <source>Full screen and back (F11)</source>
        <translation>Volledig scherm aan en uit (F11)</translation>
    </message>
    <message>
        <source>Choose a folder for your own background patterns?</source>
        <translation>Een map voor uw eigen achtergrondpatronen kiezen?</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Map kiezen…</translation>
    </message>
    <message>
        <source>No, Thanks</source>
        <translation>Nee, bedankt</translation>
    </message>
    <message>
        <source>You can choose it in the preferences at any time (Ctrl+,)</source>
        <translation>U kunt de map ook later kiezen in de voorkeuren (Ctrl+,)</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Acties</translation>
    </message>
    <message>
        <source>Drop pictures or folders here</source>
        <translation>Sleep foto’s of mappen hierheen</translation>
    </message>
    <message>
        <source>Then choose an action on the left. Your originals stay unchanged unless you ask for it.</source>
        <translation>Kies daarna links een actie. Uw originelen blijven ongewijzigd, tenzij u erom vraagt.</translation>
    </message>
    <message>
        <source>Preview of the original and the result</source>
        <translation>Voorvertoning van het origineel en het resultaat</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Foto’s</translation>
    </message>
    <message>
        <source>Dry run: move nothing</source>
        <translation>Proefrun: niets verplaatsen</translation>
    </message>
    <message>
        <source>About dry runs</source>
        <translation>Uitleg over proefruns</translation>
    </message>
    <message>
        <source>Resize Pictures</source>
        <translation>Foto’s schalen</translation>
    </message>
    <message>
        <source>Start (Ctrl+Return)</source>
        <translation>Starten (Ctrl+Enter)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Voortgang van de opdracht</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Stop after the current picture (Esc)</source>
        <translation>Stoppen na de huidige foto (Esc)</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>Show Failed</source>
        <translation>Mislukte tonen</translation>
    </message>
    <message>
        <source>Retry Failed</source>
        <translation>Mislukte opnieuw</translation>
    </message>
    <message>
        <source>Save Report…</source>
        <translation>Rapport bewaren…</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Bestand</translation>
    </message>
    <message>
        <source>Recent &amp;Folders</source>
        <translation>Recen&amp;te mappen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Be&amp;werken</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>Bee&amp;ld</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Uiterlijk</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Opdracht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;Add Pictures…</source>
        <translation>&amp;Foto’s toevoegen…</translation>
    </message>
    <message>
        <source>Add &amp;Folder…</source>
        <translation>&amp;Map toevoegen…</translation>
    </message>
    <message>
        <source>Save Picture &amp;As…</source>
        <translation>Foto bewaren &amp;als…</translation>
    </message>
    <message>
        <source>&amp;Save Report…</source>
        <translation>&amp;Rapport bewaren…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Af&amp;sluiten</translation>
    </message>
    <message>
        <source>&amp;Paste Pictures</source>
        <translation>Foto’s &amp;plakken</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>Uit lijst &amp;verwijderen</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Lijst &amp;leegmaken</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles selecteren</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Voorkeuren…</translation>
    </message>
    <message>
        <source>&amp;Fit Preview</source>
        <translation>Voorvertoning &amp;passend</translation>
    </message>
    <message>
        <source>F&amp;ill Preview</source>
        <translation>Voorvertoning &amp;vullend</translation>
    </message>
    <message>
        <source>&amp;Next Picture</source>
        <translation>Volgende &amp;foto</translation>
    </message>
    <message>
        <source>&amp;Previous Picture</source>
        <translation>V&amp;orige foto</translation>
    </message>
    <message>
        <source>&amp;Large Preview</source>
        <translation>&amp;Grote voorvertoning</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;Systeem</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Licht</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Donker</translation>
    </message>
    <message>
        <source>Full &amp;Screen</source>
        <translation>Volledig &amp;scherm</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pauzeren</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuleren</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>&amp;Hernoemen…</translation>
    </message>
    <message>
        <source>Show &amp;Failed Only</source>
        <translation>Alleen m&amp;islukte tonen</translation>
    </message>
    <message>
        <source>&amp;Retry Failed</source>
        <translation>&amp;Mislukte opnieuw</translation>
    </message>
    <message>
        <source>Page Set&amp;up…</source>
        <translation>&amp;Pagina-instelling…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>Af&amp;drukken…</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handleiding</translation>
    </message>
    <message>
        <source>Check for &amp;Updates</source>
        <translation>Op &amp;updates controleren</translation>
    </message>
    <message>
        <source>&amp;About Quorlin</source>
        <translation>&amp;Over Quorlin</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opnieuw uitvoeren</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Alles tonen</translation>
    </message>
    <message>
        <source>Show all rows of the list</source>
        <translation>Alle rijen van de lijst tonen</translation>
    </message>
    <message>
        <source>Show Them…</source>
        <translation>Tonen…</translation>
    </message>
    <message>
        <source>Show which files of the list this action cannot use</source>
        <translation>Tonen welke bestanden in de lijst deze actie niet kan gebruiken</translation>
    </message>
    <message>
        <source>Convert Them</source>
        <translation>Converteren</translation>
    </message>
    <message>
        <source>Go to Convert, which can use them</source>
        <translation>Naar Converteren gaan, dat ze wel kan gebruiken</translation>
    </message>
    <message>
        <source>Try Sample Pictures</source>
        <translation>Voorbeeldfoto’s proberen</translation>
    </message>
    <message>
        <source>Copies five pictures to the folder “Quorlin Samples” in your pictures folder</source>
        <translation>Kopieert vijf foto’s naar de map “Quorlin Samples” in uw map met afbeeldingen</translation>
    </message>
    <message>
        <source>&amp;Watch a Folder…</source>
        <translation>Map be&amp;waken…</translation>
    </message>
    <message>
        <source>Process pictures as they arrive in a folder, with these settings</source>
        <translation>Foto’s die in een map aankomen meteen met deze instellingen bewerken</translation>
    </message>
    <message>
        <source>Stop Watching</source>
        <translation>Stoppen met bewaken</translation>
    </message>
    <message>
        <source>Add Anyway</source>
        <translation>Toch toevoegen</translation>
    </message>
    <message>
        <source>Add results of earlier runs to the list</source>
        <translation>Resultaten van eerdere opdrachten aan de lijst toevoegen</translation>
    </message>
    <message>
        <source>What to do when this run is finished</source>
        <translation>Wat er gebeurt als deze opdracht klaar is</translation>
    </message>
    <message>
        <source>When done</source>
        <translation>Na afloop</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Laten</translation>
    </message>
    <message>
        <source>Return the finished files to their old names and folders (Ctrl+Z)</source>
        <translation>De verwerkte bestanden hun oude namen en mappen teruggeven (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Keep what is finished. You will not be asked again.</source>
        <translation>Wat klaar is, blijft. U krijgt deze vraag niet nog eens.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message>
        <source>&amp;Tick or Untick</source>
        <translation>&amp;Aanvinken of uitvinken</translation>
    </message>
    <message>
        <source>A run leaves out rows that are not ticked</source>
        <translation>Een opdracht slaat rijen zonder vinkje over</translation>
    </message>
    <message>
        <source>Tick A&amp;ll</source>
        <translation>A&amp;lles aanvinken</translation>
    </message>
    <message>
        <source>&amp;Columns of the List</source>
        <translation>&amp;Kolommen van de lijst</translation>
    </message>
    <message>
        <source>&amp;Actual Pixels</source>
        <translation>&amp;Werkelijke pixels</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Repeat the &amp;Last Run</source>
        <translation>&amp;Laatste opdracht herhalen</translation>
    </message>
    <message>
        <source>Process the pictures added since the last run, with its settings</source>
        <translation>De foto’s bewerken die sinds de laatste opdracht zijn toegevoegd, met de instellingen ervan</translation>
    </message>
    <message>
        <source>Camera &amp;Clocks…</source>
        <translation>Camera&amp;klokken…</translation>
    </message>
    <message>
        <source>Correct the dates of a camera whose clock was wrong, without changing any file</source>
        <translation>De opnametijden corrigeren van een camera waarvan de klok niet goed liep, zonder bestanden te wijzigen</translation>
    </message>
    <message>
        <source>Recent &amp;Destinations</source>
        <translation>Recente &amp;bestemmingen</translation>
    </message>
    <message>
        <source>Recent Re&amp;cipes</source>
        <translation>Recente re&amp;cepten</translation>
    </message>
    <message>
        <source>&amp;Export List…</source>
        <translation>Lijst &amp;exporteren…</translation>
    </message>
    <message>
        <source>Save the list with all its columns as a CSV file for spreadsheets</source>
        <translation>De lijst met alle kolommen bewaren als CSV-bestand voor spreadsheets</translation>
    </message>
    <message>
        <source>&amp;Copy Files</source>
        <translation>Bestanden &amp;kopiëren</translation>
    </message>
    <message>
        <source>Copy the files of the selected rows, or their results (in the list: Ctrl+C)</source>
        <translation>De bestanden van de geselecteerde rijen kopiëren, of hun resultaten (in de lijst: Ctrl+C)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Om&amp;hoog</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Om&amp;laag</translation>
    </message>
    <message>
        <source>&amp;Write Ratings into Files…</source>
        <translation>Beoordelingen in bestanden &amp;schrijven…</translation>
    </message>
    <message>
        <source>Write the stars of the list into the files of its pictures, where other programs read them</source>
        <translation>De sterren van de lijst in de bestanden van de foto’s schrijven, waar andere programma’s ze lezen</translation>
    </message>
    <message>
        <source>&amp;Properties and Filter…</source>
        <translation>&amp;Eigenschappen en filter…</translation>
    </message>
    <message>
        <source>Show metadata as columns of the list, and only the pictures that match</source>
        <translation>Metadata als kolommen van de lijst tonen, en alleen passende foto’s</translation>
    </message>
</context>
<context>
    <name>Manual</name>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vooruit</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Volgende zoeken</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Back (Alt+Left)</source>
        <translation>Terug (Alt+Links)</translation>
    </message>
    <message>
        <source>Forward (Alt+Right)</source>
        <translation>Vooruit (Alt+Rechts)</translation>
    </message>
    <message>
        <source>Find in the manual</source>
        <translation>Zoeken in de handleiding</translation>
    </message>
    <message>
        <source>Press Return for the next match (Ctrl+F, F3)</source>
        <translation>Enter toont de volgende vindplaats (Ctrl+F, F3)</translation>
    </message>
    <message>
        <source>Pages of the manual</source>
        <translation>Pagina’s van de handleiding</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Pagina van de handleiding</translation>
    </message>
</context>
<context>
    <name>MetadataPage</name>
    <message>
        <source>Drop pictures or folders here</source>
        <translation>Sleep foto’s of mappen hierheen</translation>
    </message>
    <message>
        <source>You see all properties of each picture, and can read, write and revert its comment.</source>
        <translation>U ziet alle eigenschappen van elke foto en kunt de opmerking lezen, schrijven en terugzetten.</translation>
    </message>
    <message>
        <source>Add Pictures…</source>
        <translation>Foto’s toevoegen…</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Map toevoegen…</translation>
    </message>
    <message>
        <source>Search Properties</source>
        <translation>Eigenschappen zoeken</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Copy the selected value or branch (Ctrl+C in the tree), or where the picture was taken</source>
        <translation>De geselecteerde waarde of tak kopiëren (Ctrl+C in de boom), of de plaats van opname</translation>
    </message>
    <message>
        <source>Properties of the picture</source>
        <translation>Eigenschappen van de foto</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>De foto</translation>
    </message>
    <message>
        <source>User comment</source>
        <translation>Gebruikersopmerking</translation>
    </message>
    <message>
        <source>Which pictures get the comment</source>
        <translation>Welke foto’s de opmerking krijgen</translation>
    </message>
    <message>
        <source>Insert Token…</source>
        <translation>Code invoegen…</translation>
    </message>
    <message>
        <source>Insert a placeholder that is filled in for each picture</source>
        <translation>Een code invoegen die voor elke foto wordt ingevuld</translation>
    </message>
    <message>
        <source>Metadata History</source>
        <translation>Metadatageschiedenis</translation>
    </message>
    <message>
        <source>Show old and new comments, and revert them</source>
        <translation>Oude en nieuwe opmerkingen tonen, en ze terugzetten</translation>
    </message>
    <message>
        <source>Progress of the comments</source>
        <translation>Voortgang van de opmerkingen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Stop after the picture that is being written (Esc)</source>
        <translation>Stoppen na de foto die nu wordt geschreven (Esc)</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Terugzetten</translation>
    </message>
    <message>
        <source>Restore the old comments of the last run</source>
        <translation>De oude opmerkingen van de laatste opdracht terugzetten</translation>
    </message>
    <message>
        <source>Choose Files…</source>
        <translation>Bestanden kiezen…</translation>
    </message>
    <message>
        <source>Choose JPEG and TIFF files and write the comment into all of them</source>
        <translation>JPEG- en TIFF-bestanden kiezen en de opmerking in alle schrijven</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Map kiezen…</translation>
    </message>
    <message>
        <source>Choose a folder and write the comment into all its JPEG and TIFF files, subfolders included</source>
        <translation>Een map kiezen en de opmerking in alle JPEG- en TIFF-bestanden schrijven, ook in submappen</translation>
    </message>
    <message>
        <source>Write into All…</source>
        <translation>In alle schrijven…</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Write the comment into this picture. Press Ctrl+Return to also go to the next one.</source>
        <translation>De opmerking in deze foto schrijven. Ctrl+Enter gaat daarna naar de volgende.</translation>
    </message>
    <message>
        <source>Write Comment and Go to the Next Picture</source>
        <translation>Opmerking schrijven en naar de volgende foto</translation>
    </message>
    <message>
        <source>Edit Fields…</source>
        <translation>Velden bewerken…</translation>
    </message>
    <message>
        <source>Write titles, keywords, copyright and other fields of many pictures</source>
        <translation>Titels, trefwoorden, copyright en andere velden van veel foto’s schrijven</translation>
    </message>
    <message>
        <source>Search properties</source>
        <translation>Eigenschappen zoeken</translation>
    </message>
</context>
<context>
    <name>NewVersion</name>
    <message>
        <source>New version</source>
        <translation>Nieuwe versie</translation>
    </message>
    <message>
        <source>A new version of Quorlin is available</source>
        <translation>Er is een nieuwe versie van Quorlin</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Wat er nieuw is</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>Go to Product Page</source>
        <translation>Naar productpagina</translation>
    </message>
</context>
<context>
    <name>OutputPane</name>
    <message>
        <source>File type</source>
        <translation>Bestandstype</translation>
    </message>
    <message>
        <source>File type of the results</source>
        <translation>Bestandstype van de resultaten</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kwaliteit</translation>
    </message>
    <message>
        <source>Quality, 1 to 10</source>
        <translation>Kwaliteit, 1 tot 10</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>Bewaren in</translation>
    </message>
    <message>
        <source>Folder of the results</source>
        <translation>Map van de resultaten</translation>
    </message>
    <message>
        <source>About the folder of the results</source>
        <translation>Uitleg over de map van de resultaten</translation>
    </message>
    <message>
        <source>If the file exists</source>
        <translation>Als het bestand bestaat</translation>
    </message>
    <message>
        <source>If a file with this name exists</source>
        <translation>Als er een bestand met deze naam bestaat</translation>
    </message>
    <message>
        <source>Dry run: write nothing</source>
        <translation>Proefrun: niets schrijven</translation>
    </message>
    <message>
        <source>About dry runs</source>
        <translation>Uitleg over proefruns</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadata</translation>
    </message>
    <message>
        <source>Metadata that results keep</source>
        <translation>Metadata die de resultaten behouden</translation>
    </message>
    <message>
        <source>Remove location</source>
        <translation>Locatie verwijderen</translation>
    </message>
    <message>
        <source>Removes where the picture was taken: coordinates and place names</source>
        <translation>Verwijdert waar de foto is gemaakt: coördinaten en plaatsnamen</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparantie</translation>
    </message>
    <message>
        <source>Colour for transparent parts</source>
        <translation>Kleur voor transparante delen</translation>
    </message>
    <message>
        <source>Replaces transparency in file types that cannot hold it</source>
        <translation>Vervangt transparantie in bestandstypen die dat niet kennen</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Mapnaam</translation>
    </message>
    <message>
        <source>Name of the folder next to the originals</source>
        <translation>Naam van de map naast de originelen</translation>
    </message>
    <message>
        <source>Keep subfolders</source>
        <translation>Submappen behouden</translation>
    </message>
    <message>
        <source>Recreates the subfolders of each added folder</source>
        <translation>Maakt de submappen van elke toegevoegde map opnieuw</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Name of the results, without extension</source>
        <translation>Naam van de resultaten, zonder extensie</translation>
    </message>
    <message>
        <source>Tokens such as {name}, {taken} and {counter:001} are filled in for each picture. To write a brace, type {{.</source>
        <translation>Codes zoals {name}, {taken} en {counter:001} worden voor elke foto ingevuld. Typ {{ voor een accolade.</translation>
    </message>
    <message>
        <source>Insert a token into the name</source>
        <translation>Een code in de naam invoegen</translation>
    </message>
    <message>
        <source>Keep the file date</source>
        <translation>Datum van het bestand behouden</translation>
    </message>
    <message>
        <source>Results get the modification time of their originals</source>
        <translation>Resultaten krijgen de wijzigingstijd van hun originelen</translation>
    </message>
    <message>
        <source>More…</source>
        <translation>Meer…</translation>
    </message>
    <message>
        <source>Show more or fewer settings</source>
        <translation>Meer of minder instellingen tonen</translation>
    </message>
    <message>
        <source>Write All as JPEG</source>
        <translation>Alles als JPEG schrijven</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Hogere kwaliteit betekent grotere bestanden</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Voorkeuren</translation>
    </message>
    <message>
        <source>Support folder</source>
        <translation>Hulpmap</translation>
    </message>
    <message>
        <source>None chosen yet</source>
        <translation>Nog geen gekozen</translation>
    </message>
    <message>
        <source>Put your own background patterns into its subfolder Patterns. They then appear in Background &amp; Border.</source>
        <translation>Zet uw eigen achtergrondpatronen in de submap Patterns. Ze verschijnen dan in Achtergrond en rand.</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Wijzigen…</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Takes effect after a restart.</source>
        <translation>Werkt na opnieuw starten.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Uiterlijk</translation>
    </message>
    <message>
        <source>If the file exists</source>
        <translation>Als het bestand bestaat</translation>
    </message>
    <message>
        <source>What new actions do if the file exists</source>
        <translation>Wat nieuwe acties doen als het bestand bestaat</translation>
    </message>
    <message>
        <source>Default for actions you have not used yet.</source>
        <translation>Standaard voor acties die u nog niet hebt gebruikt.</translation>
    </message>
    <message>
        <source>Keep log entries for</source>
        <translation>In het logboek bewaren</translation>
    </message>
    <message>
        <source>How many log entries to keep</source>
        <translation>Hoeveel logboekregels bewaard blijven</translation>
    </message>
    <message>
        <source>Check for updates at startup</source>
        <translation>Bij het starten op updates controleren</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>Processors</translation>
    </message>
    <message>
        <source>How many processors runs may use</source>
        <translation>Hoeveel processors opdrachten mogen gebruiken</translation>
    </message>
    <message>
        <source>Applies to all windows at once.</source>
        <translation>Geldt meteen voor alle vensters.</translation>
    </message>
    <message>
        <source>Save results to</source>
        <translation>Resultaten bewaren in</translation>
    </message>
    <message>
        <source>Where new actions save their results</source>
        <translation>Waar nieuwe acties hun resultaten bewaren</translation>
    </message>
    <message>
        <source>Older entries are deleted for good.</source>
        <translation>Oudere regels worden voorgoed verwijderd.</translation>
    </message>
    <message>
        <source>Use fewer to keep other programs fast. The results are the same.</source>
        <translation>Met minder processors blijven andere programma’s snel. De resultaten zijn hetzelfde.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Geheugen</translation>
    </message>
    <message>
        <source>How much memory runs may use</source>
        <translation>Hoeveel geheugen opdrachten mogen gebruiken</translation>
    </message>
    <message>
        <source>If large pictures need more, fewer are processed at a time.</source>
        <translation>Als grote foto’s meer nodig hebben, worden er minder tegelijk bewerkt.</translation>
    </message>
    <message>
        <source>Quorlin only asks for the version number. It downloads and installs nothing.</source>
        <translation>Quorlin vraagt alleen het versienummer. Het downloadt en installeert niets.</translation>
    </message>
    <message>
        <source>Share thumbnails with other programs</source>
        <translation>Miniaturen delen met andere programma’s</translation>
    </message>
    <message>
        <source>Lists of pictures appear sooner. Thumbnails of encrypted and removable disks are never kept.</source>
        <translation>Lijsten met foto’s verschijnen sneller. Van versleutelde en verwisselbare schijven worden nooit miniaturen bewaard.</translation>
    </message>
    <message>
        <source>Bring the list back at startup</source>
        <translation>Lijst bij het starten herstellen</translation>
    </message>
    <message>
        <source>Otherwise it is empty. After a crash or an interrupted run it always comes back.</source>
        <translation>Anders is de lijst leeg. Na een crash of een onderbroken opdracht komt hij altijd terug.</translation>
    </message>
</context>
<context>
    <name>PresetPane</name>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Voorinstelling</translation>
    </message>
    <message>
        <source>Save, rename, delete, export or import presets</source>
        <translation>Voorinstellingen bewaren, hernoemen, verwijderen, exporteren of importeren</translation>
    </message>
    <message>
        <source>About presets</source>
        <translation>Uitleg over voorinstellingen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Naam van de voorinstelling</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Bewaren</translation>
    </message>
</context>
<context>
    <name>Print</name>
    <message>
        <source>Print</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>Pictures prepared for printing</source>
        <translation>Foto’s gereedgemaakt voor het afdrukken</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Afdrukken…</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Station</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Onbekend</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Save As</source>
        <translation>Bewaren als</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Bewaren</translation>
    </message>
    <message>
        <source>Supported files</source>
        <translation>Ondersteunde bestanden</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Save</source>
        <translation>Bewaren</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Alles bewaren</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesDialog</name>
    <message>
        <source>Printer Properties</source>
        <translation>Eigenschappen van de printer</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesWidget</name>
    <message>
        <source>Advanced</source>
        <translation>Geavanceerd</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Pages</source>
        <translation>Pagina’s</translation>
    </message>
    <message>
        <source>Double Sided Printing</source>
        <translation>Dubbelzijdig</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Uit</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Binden aan lange zijde</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Binden aan korte zijde</translation>
    </message>
</context>
<context>
    <name>RecipeCard</name>
    <message>
        <source>Move Up</source>
        <translation>Omhoog</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Omlaag</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliceren</translation>
    </message>
    <message>
        <source>Move this card (arrow keys)</source>
        <translation>Deze kaart verplaatsen (pijltoetsen)</translation>
    </message>
    <message>
        <source>Drag to another place, or Alt+Up and Alt+Down</source>
        <translation>Sleep naar een andere plaats, of Alt+Omhoog en Alt+Omlaag</translation>
    </message>
    <message>
        <source>Use this operation</source>
        <translation>Deze bewerking gebruiken</translation>
    </message>
    <message>
        <source>Show or hide its settings</source>
        <translation>Instellingen tonen of verbergen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Tonen</translation>
    </message>
    <message>
        <source>Show this output in the preview</source>
        <translation>Deze uitvoer in de voorvertoning tonen</translation>
    </message>
    <message>
        <source>Remove this card</source>
        <translation>Deze kaart verwijderen</translation>
    </message>
    <message>
        <source>Remove this card (Ctrl+Del)</source>
        <translation>Deze kaart verwijderen (Ctrl+Del)</translation>
    </message>
    <message>
        <source>+ Add Operation for This Output…</source>
        <translation>+ Bewerking voor deze uitvoer…</translation>
    </message>
    <message>
        <source>The picture after this operation</source>
        <translation>De foto na deze bewerking</translation>
    </message>
</context>
<context>
    <name>RecipeField</name>
    <message>
        <source>Insert a token</source>
        <translation>Code invoegen</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Kiezen…</translation>
    </message>
</context>
<context>
    <name>RecipePane</name>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Recept</translation>
    </message>
    <message>
        <source>Create, save, rename, delete, export or import recipes</source>
        <translation>Recepten maken, bewaren, hernoemen, verwijderen, exporteren of importeren</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Name of the recipe</source>
        <translation>Naam van het recept</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Bewaren</translation>
    </message>
    <message>
        <source>This recipe uses files outside the folders of the pictures</source>
        <translation>Dit recept gebruikt bestanden buiten de mappen van de foto’s</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Toestaan</translation>
    </message>
    <message>
        <source>Nothing has been read or written there so far.</source>
        <translation>Daar is tot nu toe niets gelezen of geschreven.</translation>
    </message>
    <message>
        <source>No operations yet: pictures stay unchanged.</source>
        <translation>Nog geen bewerkingen: foto’s blijven ongewijzigd.</translation>
    </message>
    <message>
        <source>+ Add Operation…</source>
        <translation>+ Bewerking toevoegen…</translation>
    </message>
    <message>
        <source>Add an operation (Ctrl+Shift+A)</source>
        <translation>Een bewerking toevoegen (Ctrl+Shift+A)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>+ Add Output</source>
        <translation>+ Uitvoer toevoegen</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>Folders in</source>
        <translation>Mappen in</translation>
    </message>
    <message>
        <source>Where the folders of the outputs are created</source>
        <translation>Waar de mappen van de uitvoer worden gemaakt</translation>
    </message>
    <message>
        <source>Keep subfolders</source>
        <translation>Submappen behouden</translation>
    </message>
    <message>
        <source>Recreates the subfolders of each added folder</source>
        <translation>Maakt de mappen onder elke toegevoegde map opnieuw aan</translation>
    </message>
</context>
<context>
    <name>RenameCard</name>
    <message>
        <source>Move Up</source>
        <translation>Omhoog</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Omlaag</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Move this step (arrow keys)</source>
        <translation>Deze stap verplaatsen (pijltoetsen)</translation>
    </message>
    <message>
        <source>Drag to another place, or Alt+Up and Alt+Down</source>
        <translation>Sleep naar een andere plaats, of Alt+Omhoog en Alt+Omlaag</translation>
    </message>
    <message>
        <source>Use this step</source>
        <translation>Deze stap gebruiken</translation>
    </message>
    <message>
        <source>Show or hide its settings</source>
        <translation>Instellingen tonen of verbergen</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Remove this step</source>
        <translation>Deze stap verwijderen</translation>
    </message>
    <message>
        <source>Remove this step (Ctrl+Del)</source>
        <translation>Deze stap verwijderen (Ctrl+Del)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <translation>Code invoegen</translation>
    </message>
    <message>
        <source>With</source>
        <translation>Door</translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Schrijfwijze</translation>
    </message>
    <message>
        <source>How many</source>
        <translation>Hoeveel</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lengte</translation>
    </message>
    <message>
        <source>Works on</source>
        <translation>Werkt op</translation>
    </message>
</context>
<context>
    <name>RenamePane</name>
    <message>
        <source>Rename</source>
        <translation>Hernoemen</translation>
    </message>
    <message>
        <source>What to rename</source>
        <translation>Wat wordt hernoemd</translation>
    </message>
    <message>
        <source>No steps yet: names stay unchanged. Add a step or choose a preset.</source>
        <translation>Nog geen stappen: namen blijven ongewijzigd. Voeg een stap toe of kies een voorinstelling.</translation>
    </message>
    <message>
        <source>+ Add Step…</source>
        <translation>+ Stap toevoegen…</translation>
    </message>
    <message>
        <source>Add a step (Ctrl+Shift+A)</source>
        <translation>Een stap toevoegen (Ctrl+Shift+A)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>Include sidecar files (.xmp …)</source>
        <translation>Sidecarbestanden meenemen (.xmp …)</translation>
    </message>
    <message>
        <source>Files with the name of a picture from other programs are renamed with it</source>
        <translation>Bestanden van andere programma’s met de naam van een foto worden mee hernoemd</translation>
    </message>
    <message>
        <source>Adds leading zeros so that names sort in order</source>
        <translation>Zet nullen vooraan zodat namen op volgorde staan</translation>
    </message>
</context>
<context>
    <name>ResizePane</name>
    <message>
        <source>Width</source>
        <translation>Breedte</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hoogte</translation>
    </message>
    <message>
        <source>Longest side</source>
        <translation>Langste zijde</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Vak</translation>
    </message>
    <message>
        <source>How the new size is set</source>
        <translation>Hoe de nieuwe afmetingen worden bepaald</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>Nieuwe afmetingen</translation>
    </message>
    <message>
        <source>Width of the box</source>
        <translation>Breedte van het vak</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Height of the box</source>
        <translation>Hoogte van het vak</translation>
    </message>
    <message>
        <source>Unit of the size</source>
        <translation>Eenheid van de afmetingen</translation>
    </message>
    <message>
        <source>Unit of the size: pixels, millimetres, centimetres, inches, picas, points</source>
        <translation>Eenheid van de afmetingen: pixels, millimeters, centimeters, inches, pica’s, punten</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Passen</translation>
    </message>
    <message>
        <source>How the picture fits the box</source>
        <translation>Hoe de foto in het vak past</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
    <message>
        <source>Never enlarge</source>
        <translation>Nooit vergroten</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolutie</translation>
    </message>
    <message>
        <source>Resolution used for lengths</source>
        <translation>Resolutie voor lengtes</translation>
    </message>
    <message>
        <source>Dots per inch used to turn lengths into pixels. A chosen resolution is also written into the file.</source>
        <translation>Punten per inch waarmee lengtes in pixels worden omgerekend. Een gekozen resolutie komt ook in het bestand te staan.</translation>
    </message>
    <message>
        <source>Dots per inch</source>
        <translation>Punten per inch</translation>
    </message>
    <message>
        <source>Padding</source>
        <translation>Opvulling</translation>
    </message>
    <message>
        <source>Colour around the picture</source>
        <translation>Kleur rond de foto</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>Turns lengths into pixels and is written into the file</source>
        <translation>Rekent lengtes om in pixels en komt in het bestand te staan</translation>
    </message>
</context>
<context>
    <name>RoundPane</name>
    <message>
        <source>Rectangle</source>
        <translation>Rechthoek</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cirkel</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellips</translation>
    </message>
    <message>
        <source>Shape to cut out</source>
        <translation>Uit te snijden vorm</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Straal</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Radius of the corners</source>
        <translation>Straal van de hoeken</translation>
    </message>
    <message>
        <source>Fill colour</source>
        <translation>Vulkleur</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>Border width</source>
        <translation>Randbreedte</translation>
    </message>
    <message>
        <source>Width of the border inside the picture</source>
        <translation>Breedte van de rand binnen de foto</translation>
    </message>
    <message>
        <source>Border inside the picture; 0 means none</source>
        <translation>Rand binnen de foto; 0 betekent geen</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
</context>
<context>
    <name>SaveAs</name>
    <message>
        <source>File &amp;type</source>
        <translation>Bestands&amp;type</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Bestandstype</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>&amp;Kwaliteit</translation>
    </message>
    <message>
        <source>JPEG quality, 1 to 9</source>
        <translation>JPEG-kwaliteit, 1 tot 9</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Estimated file size</source>
        <translation>Geschatte bestandsgrootte</translation>
    </message>
    <message>
        <source>Preview of the original and the saved picture</source>
        <translation>Voorvertoning van het origineel en de bewaarde foto</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Hogere kwaliteit betekent grotere bestanden</translation>
    </message>
</context>
<context>
    <name>SortPane</name>
    <message>
        <source>Level 1</source>
        <translation>Niveau 1</translation>
    </message>
    <message>
        <source>First level of folders</source>
        <translation>Eerste niveau van mappen</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>Niveau 2</translation>
    </message>
    <message>
        <source>Second level of folders</source>
        <translation>Tweede niveau van mappen</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>Niveau 3</translation>
    </message>
    <message>
        <source>Third level of folders</source>
        <translation>Derde niveau van mappen</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Patroon</translation>
    </message>
    <message>
        <source>Folder pattern</source>
        <translation>Mappatroon</translation>
    </message>
    <message>
        <source>Text and tokens in braces, with “/” between folder levels</source>
        <translation>Tekst en codes tussen accolades, met “/” tussen de mapniveaus</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <translation>Code invoegen</translation>
    </message>
    <message>
        <source>No date taken</source>
        <translation>Geen opnamedatum</translation>
    </message>
    <message>
        <source>What to do with files that have no date taken</source>
        <translation>Wat er met bestanden zonder opnamedatum gebeurt</translation>
    </message>
    <message>
        <source>Folder name for files without a date taken</source>
        <translation>Mapnaam voor bestanden zonder opnamedatum</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Move, copy or link</source>
        <translation>Verplaatsen, kopiëren of linken</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Bestemming</translation>
    </message>
    <message>
        <source>Where the folders are created</source>
        <translation>Waar de mappen worden gemaakt</translation>
    </message>
    <message>
        <source>If the file exists</source>
        <translation>Als het bestand bestaat</translation>
    </message>
</context>
<context>
    <name>SortTree</name>
    <message>
        <source>Resulting folders</source>
        <translation>Doelmappen</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Alles tonen</translation>
    </message>
    <message>
        <source>Show all files in the list</source>
        <translation>Alle bestanden in de lijst tonen</translation>
    </message>
</context>
<context>
    <name>TurnPane</name>
    <message>
        <source>90°</source>
        <translation>90°</translation>
    </message>
    <message>
        <source>Rotate 90° anticlockwise</source>
        <translation>90° linksom draaien</translation>
    </message>
    <message>
        <source>90° anticlockwise</source>
        <translation>90° linksom</translation>
    </message>
    <message>
        <source>Rotate 90° clockwise</source>
        <translation>90° rechtsom draaien</translation>
    </message>
    <message>
        <source>90° clockwise</source>
        <translation>90° rechtsom</translation>
    </message>
    <message>
        <source>180°</source>
        <translation>180°</translation>
    </message>
    <message>
        <source>Rotate 180°</source>
        <translation>180° draaien</translation>
    </message>
    <message>
        <source>Half a turn</source>
        <translation>Een halve slag</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Hoek</translation>
    </message>
    <message>
        <source>Angle, anticlockwise</source>
        <translation>Hoek, linksom</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Angle in degrees, anticlockwise</source>
        <translation>Hoek in graden, linksom</translation>
    </message>
    <message>
        <source>anticlockwise</source>
        <translation>linksom</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Spiegelen</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontaal</translation>
    </message>
    <message>
        <source>Flip horizontally: swap left and right</source>
        <translation>Horizontaal spiegelen: links en rechts wisselen</translation>
    </message>
    <message>
        <source>Swap left and right</source>
        <translation>Links en rechts wisselen</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Verticaal</translation>
    </message>
    <message>
        <source>Flip vertically: swap top and bottom</source>
        <translation>Verticaal spiegelen: boven en onder wisselen</translation>
    </message>
    <message>
        <source>Swap top and bottom</source>
        <translation>Boven en onder wisselen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Reset rotation and flip</source>
        <translation>Draaiing en spiegeling herstellen</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
</context>
<context>
    <name>WatermarkPane</name>
    <message>
        <source>Watermark</source>
        <translation>Watermerk</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Afbeelding</translation>
    </message>
    <message>
        <source>What the watermark consists of</source>
        <translation>Waar het watermerk uit bestaat</translation>
    </message>
    <message>
        <source>Text of the watermark</source>
        <translation>Tekst van het watermerk</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <translation>Code invoegen</translation>
    </message>
    <message>
        <source>Picture used as the watermark</source>
        <translation>Afbeelding die als watermerk dient</translation>
    </message>
    <message>
        <source>About your own watermarks</source>
        <translation>Uitleg over eigen watermerken</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Lettertype</translation>
    </message>
    <message>
        <source>Colour of the text</source>
        <translation>Kleur van de tekst</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Text size, in % of the picture height</source>
        <translation>Tekstgrootte, in % van de hoogte van de foto</translation>
    </message>
    <message>
        <source>of the height</source>
        <translation>van de hoogte</translation>
    </message>
    <message>
        <source>Watermark width, in % of the picture width</source>
        <translation>Breedte van het watermerk, in % van de breedte van de foto</translation>
    </message>
    <message>
        <source>of the width</source>
        <translation>van de breedte</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Positie</translation>
    </message>
    <message>
        <source>Position of the watermark</source>
        <translation>Positie van het watermerk</translation>
    </message>
    <message>
        <source>Tiled</source>
        <translation>Herhaald</translation>
    </message>
    <message>
        <source>Repeats the watermark over the whole picture</source>
        <translation>Herhaalt het watermerk over de hele foto</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>Margin, in % of the shorter side</source>
        <translation>Marge, in % van de kortste zijde</translation>
    </message>
    <message>
        <source>In % of the shorter side of the picture</source>
        <translation>In % van de kortste zijde van de foto</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Hoek</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Angle, anticlockwise</source>
        <translation>Hoek, linksom</translation>
    </message>
    <message>
        <source>Anticlockwise</source>
        <translation>Linksom</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Dekking</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
</context>
<context>
    <name>about</name>
    <message>
        <source>Quorlin %1</source>
        <translation>Quorlin %1</translation>
    </message>
    <message>
        <source>No process that reads pictures is running.</source>
        <translation>Er loopt nu geen proces dat foto’s leest.</translation>
    </message>
    <message>
        <source>no new privileges</source>
        <translation>geen nieuwe rechten</translation>
    </message>
    <message>
        <source>file access rules (Landlock)</source>
        <translation>regels voor bestandstoegang (Landlock)</translation>
    </message>
    <message>
        <source>system call filter (seccomp)</source>
        <translation>filter voor systeemaanroepen (seccomp)</translation>
    </message>
    <message>
        <source>Processes that read pictures are confined by: %1.</source>
        <translation>Processen die foto’s lezen zijn afgeschermd door: %1.</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>niets</translation>
    </message>
    <message>
        <source>Not available on this system: %1.</source>
        <translation>Niet beschikbaar op dit systeem: %1.</translation>
    </message>
</context>
<context>
    <name>action-page</name>
    <message>
        <source>Add to a Recipe…</source>
        <translation>Aan een recept toevoegen…</translation>
    </message>
    <message>
        <source>Added. The recipe is not saved yet.</source>
        <translation>Toegevoegd. Het recept is nog niet bewaard.</translation>
    </message>
</context>
<context>
    <name>actions</name>
    <message>
        <source>Pictures</source>
        <translation>Foto’s</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informatie</translation>
    </message>
</context>
<context>
    <name>add-to-recipe</name>
    <message>
        <source>A new recipe</source>
        <translation>Een nieuw recept</translation>
    </message>
</context>
<context>
    <name>background-action</name>
    <message>
        <source>Background &amp; Border</source>
        <translation>Achtergrond en rand</translation>
    </message>
    <message>
        <source>Adding background and border</source>
        <translation>Het toevoegen van achtergrond en rand</translation>
    </message>
    <message numerus="yes">
        <source>Add Background to %n Pictures</source>
        <translation>
            <numerusform>Achtergrond aan %n foto toevoegen</numerusform>
            <numerusform>Achtergrond aan %n foto’s toevoegen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add Border to %n Pictures</source>
        <translation>
            <numerusform>Rand aan %n foto toevoegen</numerusform>
            <numerusform>Rand aan %n foto’s toevoegen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>background-pane</name>
    <message>
        <source>Checks</source>
        <translation>Ruiten</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lijnen</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Stippen</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Linnen</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Patroon</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>White, 10 pixels on all sides</source>
        <translation>Wit, 10 pixels aan alle kanten</translation>
    </message>
    <message>
        <source>Border inside the picture</source>
        <translation>Rand binnen de foto</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Kiezen…</translation>
    </message>
    <message>
        <source>Choose a pattern</source>
        <translation>Patroon kiezen</translation>
    </message>
</context>
<context>
    <name>background-presets</name>
    <message>
        <source>White background</source>
        <translation>Witte achtergrond</translation>
    </message>
    <message>
        <source>White border</source>
        <translation>Witte rand</translation>
    </message>
    <message>
        <source>Black border</source>
        <translation>Zwarte rand</translation>
    </message>
    <message>
        <source>Ivory mount</source>
        <translation>Ivoren passe-partout</translation>
    </message>
    <message>
        <source>On paper</source>
        <translation>Op papier</translation>
    </message>
</context>
<context>
    <name>background-step</name>
    <message>
        <source>Framed</source>
        <translation>Ingelijst</translation>
    </message>
    <message>
        <source>on %1</source>
        <translation>op %1</translation>
    </message>
    <message>
        <source>on pattern %1</source>
        <translation>op patroon %1</translation>
    </message>
    <message>
        <source>white border</source>
        <translation>witte rand</translation>
    </message>
    <message>
        <source>border of %1 px in %2</source>
        <translation>rand van %1 px in %2</translation>
    </message>
    <message>
        <source>Choose a pattern.</source>
        <translation>Kies een patroon.</translation>
    </message>
    <message>
        <source>Enter a border width from 1 to %1.</source>
        <translation>Geef een randbreedte op van 1 tot %1.</translation>
    </message>
    <message>
        <source>the border would cover the whole picture</source>
        <translation>de rand zou de hele foto bedekken</translation>
    </message>
    <message>
        <source>%1 pictures have no transparent parts, so a background would not be visible.</source>
        <translation>%1-foto’s hebben geen transparante delen; een achtergrond zou dus niet te zien zijn.</translation>
    </message>
    <message>
        <source>“%1” cannot be read as a picture.</source>
        <translation>“%1” kan niet als afbeelding worden gelezen.</translation>
    </message>
</context>
<context>
    <name>by-recipe</name>
    <message>
        <source>preview of %1</source>
        <translation>voorvertoning van %1</translation>
    </message>
    <message numerus="yes">
        <source>%n more pictures left out</source>
        <translation>
            <numerusform>nog %n foto weggelaten</numerusform>
            <numerusform>nog %n foto’s weggelaten</numerusform>
        </translation>
    </message>
    <message>
        <source>smaller than asked for</source>
        <translation>kleiner dan gevraagd</translation>
    </message>
    <message>
        <source>The frame extends past the edge of the picture</source>
        <translation>Het kader valt deels buiten de foto</translation>
    </message>
</context>
<context>
    <name>clocks</name>
    <message>
        <source>Unknown camera</source>
        <translation>Onbekende camera</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>forward by</source>
        <translation>vooruit met</translation>
    </message>
    <message>
        <source>back by</source>
        <translation>terug met</translation>
    </message>
</context>
<context>
    <name>comment-job</name>
    <message>
        <source>Write comment, keep only the first page</source>
        <translation>Opmerking schrijven, alleen de eerste pagina houden</translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n probleem</numerusform>
            <numerusform>%n problemen</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped:</source>
        <translation>Gestopt:</translation>
    </message>
    <message numerus="yes">
        <source>%n comments written</source>
        <translation>
            <numerusform>%n opmerking geschreven</numerusform>
            <numerusform>%n opmerkingen geschreven</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n comments reverted</source>
        <translation>
            <numerusform>%n opmerking teruggezet</numerusform>
            <numerusform>%n opmerkingen teruggezet</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>comment-questions</name>
    <message numerus="yes">
        <source>%n more pages</source>
        <translation>
            <numerusform>nog %n pagina</numerusform>
            <numerusform>nog %n pagina’s</numerusform>
        </translation>
    </message>
    <message>
        <source>This file has %1. Only the first page is kept; this cannot be undone.</source>
        <translation>Dit bestand heeft %1. Alleen de eerste pagina blijft; dat is niet ongedaan te maken.</translation>
    </message>
    <message numerus="yes">
        <source>%n files with several pages are left out, since writing would remove %1: %2.</source>
        <translation>
            <numerusform>%n bestand met meer pagina’s wordt overgeslagen, omdat schrijven %1 zou verwijderen: %2.</numerusform>
            <numerusform>%n bestanden met meer pagina’s worden overgeslagen, omdat schrijven %1 zou verwijderen: %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>This changes the metadata inside your originals. Their pictures are not touched.</source>
        <translation>Dit wijzigt de metadata in uw originelen. De foto’s zelf blijven ongemoeid.</translation>
    </message>
    <message numerus="yes">
        <source>%n files have types that cannot hold a comment and stay unchanged.</source>
        <translation>
            <numerusform>%n bestand heeft een type zonder opmerkingen en blijft ongewijzigd.</numerusform>
            <numerusform>%n bestanden hebben typen zonder opmerkingen en blijven ongewijzigd.</numerusform>
        </translation>
    </message>
    <message>
        <source>Write comment</source>
        <translation>Opmerking schrijven</translation>
    </message>
    <message numerus="yes">
        <source>Clear the comments of %n pictures?</source>
        <translation>
            <numerusform>De opmerking van deze foto leegmaken?</numerusform>
            <numerusform>De opmerking van %n foto’s leegmaken?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write the comment into %n pictures?</source>
        <translation>
            <numerusform>De opmerking in deze foto schrijven?</numerusform>
            <numerusform>De opmerking in %n foto’s schrijven?</numerusform>
        </translation>
    </message>
    <message>
        <source>Write and Remove Pages</source>
        <translation>Schrijven en pagina’s verwijderen</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schrijven</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Write into these too, keeping only their first page</source>
        <translation>Ook in deze schrijven en alleen de eerste pagina houden</translation>
    </message>
    <message>
        <source>Comment not written</source>
        <translation>Opmerking niet geschreven</translation>
    </message>
    <message>
        <source>Write your changes to %1?</source>
        <translation>Uw wijzigingen in %1 schrijven?</translation>
    </message>
    <message>
        <source>The comment has not been written yet.</source>
        <translation>De opmerking is nog niet geschreven.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Weggooien</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>Verder bewerken</translation>
    </message>
</context>
<context>
    <name>comment-run</name>
    <message>
        <source>The file does not contain what was written.</source>
        <translation>Het bestand bevat niet wat is geschreven.</translation>
    </message>
    <message numerus="yes">
        <source>%n more pages were removed. This cannot be undone.</source>
        <translation>
            <numerusform>Nog %n pagina is verwijderd. Dat is niet ongedaan te maken.</numerusform>
            <numerusform>Nog %n pagina’s zijn verwijderd. Dat is niet ongedaan te maken.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It has %n more pages, which would be lost.</source>
        <translation>
            <numerusform>Het heeft nog %n pagina, die verloren zou gaan.</numerusform>
            <numerusform>Het heeft nog %n pagina’s, die verloren zouden gaan.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file no longer exists.</source>
        <translation>Het bestand bestaat niet meer.</translation>
    </message>
    <message>
        <source>It already has its old comment.</source>
        <translation>De foto heeft de oude opmerking al.</translation>
    </message>
    <message>
        <source>The comment has been changed since and is kept: “%1”</source>
        <translation>De opmerking is sindsdien gewijzigd en blijft: “%1”</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message numerus="yes">
        <source>%n more files</source>
        <translation>
            <numerusform>nog %n bestand</numerusform>
            <numerusform>nog %n bestanden</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” was written</source>
        <translation>“%1” is geschreven</translation>
    </message>
    <message>
        <source>“%1” was cleared</source>
        <translation>“%1” is gewist</translation>
    </message>
    <message>
        <source>“%1” became “%2”</source>
        <translation>“%1” werd “%2”</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadata</translation>
    </message>
</context>
<context>
    <name>convert-action</name>
    <message>
        <source>Convert</source>
        <translation>Converteren</translation>
    </message>
    <message numerus="yes">
        <source>Convert %n Pictures</source>
        <translation>
            <numerusform>%n foto converteren</numerusform>
            <numerusform>%n foto’s converteren</numerusform>
        </translation>
    </message>
    <message>
        <source>Converting</source>
        <translation>Het converteren</translation>
    </message>
</context>
<context>
    <name>convert-presets</name>
    <message>
        <source>JPEG for everyone</source>
        <translation>JPEG voor iedereen</translation>
    </message>
    <message>
        <source>Small JPEG</source>
        <translation>Kleine JPEG</translation>
    </message>
    <message>
        <source>PNG with all metadata</source>
        <translation>PNG met alle metadata</translation>
    </message>
    <message>
        <source>TIFF for printing</source>
        <translation>TIFF voor drukwerk</translation>
    </message>
    <message>
        <source>PDF pages</source>
        <translation>PDF-pagina’s</translation>
    </message>
</context>
<context>
    <name>convert-step</name>
    <message>
        <source>Converted</source>
        <translation>Geconverteerd</translation>
    </message>
    <message>
        <source>to %1, quality %2</source>
        <translation>naar %1, kwaliteit %2</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>naar %1</translation>
    </message>
    <message>
        <source>Choose what to convert to.</source>
        <translation>Kies waarnaar u wilt converteren.</translation>
    </message>
    <message>
        <source>Choose a quality from 1 to 9.</source>
        <translation>Kies een kwaliteit van 1 tot 9.</translation>
    </message>
</context>
<context>
    <name>crop-action</name>
    <message>
        <source>Crop</source>
        <translation>Bijsnijden</translation>
    </message>
    <message numerus="yes">
        <source>Crop %n Pictures</source>
        <translation>
            <numerusform>%n foto bijsnijden</numerusform>
            <numerusform>%n foto’s bijsnijden</numerusform>
        </translation>
    </message>
    <message>
        <source>Cropping</source>
        <translation>Het bijsnijden</translation>
    </message>
</context>
<context>
    <name>crop-pane</name>
    <message>
        <source>Size</source>
        <translation>Formaat</translation>
    </message>
    <message>
        <source>Trim by px</source>
        <translation>Snijden px</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Linksboven</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Boven</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Rechtsboven</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Midden</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Linksonder</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Onder</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Rechtsonder</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Vrij</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Origineel</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Verhouding</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>%1 × %2 px at %3, %4</source>
        <translation>%1 × %2 px op %3, %4</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Trim by %</source>
        <translation>Snijden %</translation>
    </message>
</context>
<context>
    <name>crop-presets</name>
    <message>
        <source>Centre square 1080</source>
        <translation>Vierkant uit het midden 1080</translation>
    </message>
    <message>
        <source>3:2, 1800 × 1200</source>
        <translation>3:2, 1800 × 1200</translation>
    </message>
    <message>
        <source>4:3, 1600 × 1200</source>
        <translation>4:3, 1600 × 1200</translation>
    </message>
    <message>
        <source>16:9, 1920 × 1080</source>
        <translation>16:9, 1920 × 1080</translation>
    </message>
    <message>
        <source>Trim 5%</source>
        <translation>Randen 5% afsnijden</translation>
    </message>
</context>
<context>
    <name>crop-step</name>
    <message>
        <source>Cropped</source>
        <translation>Bijgesneden</translation>
    </message>
    <message>
        <source>trim %1%</source>
        <translation>%1% afsnijden</translation>
    </message>
    <message numerus="yes">
        <source>trim %n pixels</source>
        <translation>
            <numerusform>%n pixel afsnijden</numerusform>
            <numerusform>%n pixels afsnijden</numerusform>
        </translation>
    </message>
    <message>
        <source>moved %1, %2 %3</source>
        <translation>verschoven %1, %2 %3</translation>
    </message>
    <message>
        <source>position %1</source>
        <translation>positie %1</translation>
    </message>
    <message>
        <source>Enter a whole number from 0 to 99.</source>
        <translation>Geef een geheel getal op van 0 tot 99.</translation>
    </message>
    <message>
        <source>Enter a whole number from 0 to %1.</source>
        <translation>Geef een geheel getal op van 0 tot %1.</translation>
    </message>
    <message>
        <source>Enter a width and a height.</source>
        <translation>Geef een breedte en een hoogte op.</translation>
    </message>
    <message>
        <source>Choose one of the nine positions.</source>
        <translation>Kies een van de negen posities.</translation>
    </message>
    <message>
        <source>Enter offsets from %1 to %2.</source>
        <translation>Geef verschuivingen op van %1 tot %2.</translation>
    </message>
    <message>
        <source>ratio %1</source>
        <translation>verhouding %1</translation>
    </message>
    <message>
        <source>not swapped</source>
        <translation>niet omgekeerd</translation>
    </message>
    <message>
        <source>at the focus of attention</source>
        <translation>rond het opvallendste deel</translation>
    </message>
    <message>
        <source>Enter two numbers above 0 for the ratio.</source>
        <translation>Geef voor de verhouding twee getallen boven 0 op.</translation>
    </message>
</context>
<context>
    <name>field-kinds</name>
    <message>
        <source>Focus of attention</source>
        <translation>Blikvanger</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Positie</translation>
    </message>
</context>
<context>
    <name>files</name>
    <message>
        <source>Cannot read %1: it is not UTF-8 text</source>
        <translation>Kan %1 niet lezen: het is geen UTF-8-tekst</translation>
    </message>
    <message>
        <source>%1 stays unchanged: %2</source>
        <translation>%1 blijft ongewijzigd: %2</translation>
    </message>
    <message>
        <source>A part of %1 could not be removed</source>
        <translation>Een deel van %1 kon niet worden verwijderd en is er nog</translation>
    </message>
    <message>
        <source>%1; a copy is at %2</source>
        <translation>%1; een kopie staat in %2</translation>
    </message>
    <message>
        <source>%1 no longer exists; its partial copy is at %2</source>
        <translation>%1 bestaat niet meer; een gedeeltelijke kopie staat in %2</translation>
    </message>
    <message>
        <source>%1 could not be moved aside</source>
        <translation>%1 kon niet opzij worden gezet</translation>
    </message>
    <message>
        <source>%1 is also at %2</source>
        <translation>%1 staat ook in %2</translation>
    </message>
    <message>
        <source>%1 was left with a temporary name and is now called %2</source>
        <translation>%1 had alleen nog zijn tijdelijke naam en heet nu %2</translation>
    </message>
    <message>
        <source>The journal of this run is damaged: %1</source>
        <translation>Het logboek van deze opdracht is beschadigd: %1</translation>
    </message>
    <message>
        <source>The name %1 is now in use; the item is called %2</source>
        <translation>De naam %1 is nu in gebruik; het onderdeel heet %2</translation>
    </message>
    <message>
        <source>The run was interrupted</source>
        <translation>De opdracht is onderbroken</translation>
    </message>
    <message>
        <source>There is no record of this run</source>
        <translation>Er is niets vastgelegd over deze opdracht</translation>
    </message>
    <message>
        <source>This run is still in progress</source>
        <translation>Deze opdracht is nog bezig</translation>
    </message>
    <message>
        <source>Nothing was done in this run</source>
        <translation>In deze opdracht is niets gedaan</translation>
    </message>
    <message>
        <source>This run has already been undone</source>
        <translation>Deze opdracht is al ongedaan gemaakt</translation>
    </message>
    <message>
        <source>Nothing in this run can be undone any more</source>
        <translation>Van deze opdracht kan niets meer ongedaan gemaakt worden</translation>
    </message>
    <message>
        <source>%1 could not be copied correctly</source>
        <translation>%1 kon niet goed gekopieerd worden</translation>
    </message>
    <message>
        <source>The name %1 cannot be used on this disk</source>
        <translation>De naam %1 kan op deze schijf niet worden gebruikt</translation>
    </message>
    <message>
        <source>The name %1 is too long for this disk</source>
        <translation>De naam %1 is te lang voor deze schijf</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 bestaat niet meer</translation>
    </message>
    <message>
        <source>The name %1 is already in use</source>
        <translation>De naam %1 is al in gebruik</translation>
    </message>
    <message>
        <source>The folder %1 cannot be moved into itself</source>
        <translation>De map %1 kan niet naar zichzelf worden verplaatst</translation>
    </message>
    <message>
        <source>You are not allowed to change %1 or its folder</source>
        <translation>U mag %1 of de map ervan niet wijzigen</translation>
    </message>
    <message>
        <source>%1 keeps its name, and so does its sidecar file</source>
        <translation>%1 houdt zijn naam, en het sidecarbestand dus ook</translation>
    </message>
    <message>
        <source>%1 was changed or replaced in the meantime</source>
        <translation>%1 is intussen gewijzigd of vervangen</translation>
    </message>
    <message>
        <source>There is no space left on the disk for %1</source>
        <translation>Er is op de schijf geen ruimte meer voor %1</translation>
    </message>
    <message>
        <source>%1 is now the original itself, not a copy of it</source>
        <translation>%1 is intussen het origineel zelf en geen kopie ervan</translation>
    </message>
    <message>
        <source>%1 could not be renamed, and other files need its old name</source>
        <translation>%1 kon niet worden hernoemd, en andere bestanden moeten de oude naam ervan krijgen</translation>
    </message>
</context>
<context>
    <name>files::FileService</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kan niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created</source>
        <translation>De map %1 kan niet worden gemaakt</translation>
    </message>
</context>
<context>
    <name>files::MoveService</name>
    <message>
        <source>This run is not open</source>
        <translation>Deze opdracht is niet geopend</translation>
    </message>
    <message>
        <source>Copying or moving a file</source>
        <translation>Een bestand kopiëren of verplaatsen</translation>
    </message>
    <message>
        <source>%1 had been moved aside and has been restored</source>
        <translation>%1 was opzijgezet en is hersteld</translation>
    </message>
</context>
<context>
    <name>hand-action</name>
    <message>
        <source>Sort by Hand</source>
        <translation>Handmatig sorteren</translation>
    </message>
</context>
<context>
    <name>hand-page</name>
    <message>
        <source>In the trash</source>
        <translation>In de prullenbak</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>file dated %1</source>
        <translation>bestand %1</translation>
    </message>
    <message>
        <source>Undo (Ctrl+Z)</source>
        <translation>Ongedaan maken (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Undo: %1 (Ctrl+Z)</source>
        <translation>Ongedaan maken: %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Keys now move pictures.</source>
        <translation>Toetsen verplaatsen nu foto’s.</translation>
    </message>
    <message>
        <source>Keys now copy pictures.</source>
        <translation>Toetsen kopiëren nu foto’s.</translation>
    </message>
    <message>
        <source>Keys now link pictures.</source>
        <translation>Toetsen linken nu foto’s.</translation>
    </message>
    <message>
        <source>%1: %2. The picture stays where it is.</source>
        <translation>%1: %2. De foto blijft waar die is.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>That was the last picture. All of them are sorted.</source>
        <translation>Dat was de laatste foto. Ze zijn allemaal gesorteerd.</translation>
    </message>
    <message>
        <source>That was the last picture. %1</source>
        <translation>Dat was de laatste foto. %1</translation>
    </message>
    <message numerus="yes">
        <source>%n were skipped.</source>
        <translation>
            <numerusform>%n is overgeslagen.</numerusform>
            <numerusform>%n zijn overgeslagen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>hand-pane</name>
    <message>
        <source>Move</source>
        <translation>Verplaatsen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Linken</translation>
    </message>
    <message>
        <source>Moves the picture to the folder. (Alt+1)</source>
        <translation>Verplaatst de foto naar de map. (Alt+1)</translation>
    </message>
    <message>
        <source>Copies the picture to the folder. (Alt+2)</source>
        <translation>Kopieert de foto naar de map. (Alt+2)</translation>
    </message>
    <message>
        <source>Puts a link to the picture into the folder. (Alt+3)</source>
        <translation>Zet in de map een link naar de foto. (Alt+3)</translation>
    </message>
    <message>
        <source>Rename Label</source>
        <translation>Label wijzigen</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Map tonen</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Omhoog</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Omlaag</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>Uit lijst verwijderen</translation>
    </message>
    <message>
        <source>Remove All…</source>
        <translation>Alle verwijderen…</translation>
    </message>
    <message>
        <source>Remove all folders</source>
        <translation>Alle mappen verwijderen</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n folders from the list?</source>
        <translation>
            <numerusform>De map uit de lijst halen?</numerusform>
            <numerusform>Alle %n mappen uit de lijst halen?</numerusform>
        </translation>
    </message>
    <message>
        <source>The folders and your presets are not changed.</source>
        <translation>De mappen en uw voorinstellingen blijven ongewijzigd.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behouden</translation>
    </message>
    <message>
        <source>Choose a folder to sort into</source>
        <translation>Map kiezen om in te sorteren</translation>
    </message>
    <message numerus="yes">
        <source>%n folders are already in the list.</source>
        <translation>
            <numerusform>%n map staat al in de lijst.</numerusform>
            <numerusform>%n mappen staan al in de lijst.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Only %n folders can have a key.</source>
        <translation>
            <numerusform>Maar %n map kan een toets hebben.</numerusform>
            <numerusform>Maar %n mappen kunnen een toets hebben.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is not a valid folder name.</source>
        <translation>Dit is geen geldige mapnaam.</translation>
    </message>
    <message>
        <source>This name is already in use.</source>
        <translation>Deze naam is al in gebruik.</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>In %1</translation>
    </message>
</context>
<context>
    <name>hand-slots</name>
    <message>
        <source>not found</source>
        <translation>niet gevonden</translation>
    </message>
    <message>
        <source>not a folder</source>
        <translation>geen map</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>alleen-lezen</translation>
    </message>
</context>
<context>
    <name>hand-sorting</name>
    <message>
        <source>Moved to %1</source>
        <translation>Verplaatst naar %1</translation>
    </message>
    <message>
        <source>Copied to %1</source>
        <translation>Gekopieerd naar %1</translation>
    </message>
    <message>
        <source>Linked in %1</source>
        <translation>Gelinkt in %1</translation>
    </message>
    <message>
        <source>In the trash</source>
        <translation>In de prullenbak</translation>
    </message>
    <message>
        <source>Move to %1</source>
        <translation>Naar %1 verplaatsen</translation>
    </message>
    <message>
        <source>Copy to %1</source>
        <translation>Naar %1 kopiëren</translation>
    </message>
    <message>
        <source>Link in %1</source>
        <translation>In %1 linken</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Naar de prullenbak</translation>
    </message>
    <message>
        <source>This picture is in the trash. Use Undo to restore it.</source>
        <translation>Deze foto ligt in de prullenbak. Met Ongedaan maken komt de foto terug.</translation>
    </message>
    <message>
        <source>This picture is already in %1.</source>
        <translation>Deze foto staat al in %1.</translation>
    </message>
    <message>
        <source>This picture is already in the trash.</source>
        <translation>Deze foto ligt al in de prullenbak.</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Ongedaan maken: %1</translation>
    </message>
    <message>
        <source>There is nothing left to undo.</source>
        <translation>Er valt niets meer ongedaan te maken.</translation>
    </message>
    <message>
        <source>Sort by Hand</source>
        <translation>Handmatig sorteren</translation>
    </message>
</context>
<context>
    <name>hand-step</name>
    <message>
        <source>move</source>
        <translation>verplaatsen</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>kopiëren</translation>
    </message>
    <message>
        <source>link</source>
        <translation>linken</translation>
    </message>
</context>
<context>
    <name>help</name>
    <message>
        <source>The manual is not installed.</source>
        <translation>De handleiding is niet geïnstalleerd.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Er wordt op updates gecontroleerd…</translation>
    </message>
    <message>
        <source>Quorlin is up to date.</source>
        <translation>Quorlin is up-to-date.</translation>
    </message>
    <message>
        <source>Could not reach the update server.</source>
        <translation>De updateserver is niet bereikbaar.</translation>
    </message>
    <message>
        <source>No update server is set in this installation.</source>
        <translation>In deze installatie is geen updateserver ingesteld.</translation>
    </message>
</context>
<context>
    <name>history</name>
    <message numerus="yes">
        <source>Undo Adding %n Files</source>
        <translation>
            <numerusform>Toevoegen van %n bestand ongedaan maken</numerusform>
            <numerusform>Toevoegen van %n bestanden ongedaan maken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo Adding %n Files</source>
        <translation>
            <numerusform>Toevoegen van %n bestand opnieuw uitvoeren</numerusform>
            <numerusform>Toevoegen van %n bestanden opnieuw uitvoeren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undo Removing %n Files</source>
        <translation>
            <numerusform>Verwijderen van %n bestand ongedaan maken</numerusform>
            <numerusform>Verwijderen van %n bestanden ongedaan maken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo Removing %n Files</source>
        <translation>
            <numerusform>Verwijderen van %n bestand opnieuw uitvoeren</numerusform>
            <numerusform>Verwijderen van %n bestanden opnieuw uitvoeren</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo Clear List</source>
        <translation>Leegmaken van de lijst ongedaan maken</translation>
    </message>
    <message>
        <source>Redo Clear List</source>
        <translation>Leegmaken van de lijst opnieuw uitvoeren</translation>
    </message>
    <message numerus="yes">
        <source>Undo %1 of %n Files</source>
        <translation>
            <numerusform>%1 van %n bestand ongedaan maken</numerusform>
            <numerusform>%1 van %n bestanden ongedaan maken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo %1 of %n Files</source>
        <translation>
            <numerusform>%1 van %n bestand opnieuw uitvoeren</numerusform>
            <numerusform>%1 van %n bestanden opnieuw uitvoeren</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo an earlier run</source>
        <translation>Een eerdere opdracht ongedaan maken</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n files) belongs to an earlier session. Undo it?</source>
        <translation>
            <numerusform>“%1” (%n bestand) is van een eerdere sessie. Ongedaan maken?</numerusform>
            <numerusform>“%1” (%n bestanden) is van een eerdere sessie. Ongedaan maken?</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opnieuw uitvoeren</translation>
    </message>
    <message>
        <source>Undo It</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Leave It</source>
        <translation>Zo laten</translation>
    </message>
    <message numerus="yes">
        <source>Undo Moving %n Rows</source>
        <translation>
            <numerusform>Verplaatsen van %n rij ongedaan maken</numerusform>
            <numerusform>Verplaatsen van %n rijen ongedaan maken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo Moving %n Rows</source>
        <translation>
            <numerusform>Verplaatsen van %n rij opnieuw uitvoeren</numerusform>
            <numerusform>Verplaatsen van %n rijen opnieuw uitvoeren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undo Writing %n Ratings</source>
        <translation>
            <numerusform>Schrijven van %n beoordeling ongedaan maken</numerusform>
            <numerusform>Schrijven van %n beoordelingen ongedaan maken</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>image::PictureService</name>
    <message>
        <source>not a readable picture</source>
        <translation>geen leesbare foto</translation>
    </message>
    <message>
        <source>the pattern cannot be read</source>
        <translation>het patroon kan niet worden gelezen</translation>
    </message>
    <message>
        <source>this type cannot be written</source>
        <translation>dit type kan niet worden geschreven</translation>
    </message>
</context>
<context>
    <name>input</name>
    <message>
        <source>%1 added</source>
        <translation>%1 toegevoegd</translation>
    </message>
    <message numerus="yes">
        <source>%n already in the list</source>
        <translation>
            <numerusform>%n al in de lijst</numerusform>
            <numerusform>%n al in de lijst</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar files</source>
        <translation>
            <numerusform>%n sidecarbestand</numerusform>
            <numerusform>%n sidecarbestanden</numerusform>
        </translation>
    </message>
    <message>
        <source>+ %1</source>
        <translation>+ %1</translation>
    </message>
    <message>
        <source>Add all pictures of a folder</source>
        <translation>Alle foto’s van een map toevoegen</translation>
    </message>
    <message>
        <source>Add all files of a folder</source>
        <translation>Alle bestanden van een map toevoegen</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Een map toevoegen</translation>
    </message>
    <message>
        <source>There are no files on the clipboard</source>
        <translation>Er staan geen bestanden op het klembord</translation>
    </message>
    <message>
        <source>Not shown</source>
        <translation>Niet getoond</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>en nog %n</numerusform>
            <numerusform>en nog %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>The sample pictures could not be copied to your pictures folder</source>
        <translation>De voorbeeldfoto’s konden niet naar uw map met afbeeldingen worden gekopieerd</translation>
    </message>
    <message>
        <source>Recipe opened. Nothing has been run.</source>
        <translation>Recept geopend. Er is niets uitgevoerd.</translation>
    </message>
    <message numerus="yes">
        <source>%n do not match the filter</source>
        <translation>
            <numerusform>%n past niet bij het filter</numerusform>
            <numerusform>%n passen niet bij het filter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n files…</source>
        <translation>
            <numerusform>%n bestand wordt gelezen…</numerusform>
            <numerusform>%n bestanden worden gelezen…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>input-words</name>
    <message>
        <source>No pictures yet</source>
        <translation>Nog geen foto’s</translation>
    </message>
    <message>
        <source>No pictures found</source>
        <translation>Geen foto’s gevonden</translation>
    </message>
    <message>
        <source>Add Pictures…</source>
        <translation>Foto’s toevoegen…</translation>
    </message>
    <message>
        <source>Drop pictures or folders here</source>
        <translation>Sleep foto’s of mappen hierheen</translation>
    </message>
    <message>
        <source>Then choose an action on the left. Your originals stay unchanged unless you ask for it.</source>
        <translation>Kies daarna links een actie. Uw originelen blijven ongewijzigd, tenzij u erom vraagt.</translation>
    </message>
    <message>
        <source>“%1” was not added: it is not a supported picture.</source>
        <translation>“%1” is niet toegevoegd: het is geen ondersteunde foto.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were not added: they are not supported pictures.</source>
        <translation>
            <numerusform>%n bestand is niet toegevoegd: het is geen ondersteunde foto.</numerusform>
            <numerusform>%n bestanden zijn niet toegevoegd: het zijn geen ondersteunde foto’s.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files are not shown because %1 cannot use them.</source>
        <translation>
            <numerusform>%n bestand wordt niet getoond, omdat “%1” het niet kan gebruiken.</numerusform>
            <numerusform>%n bestanden worden niet getoond, omdat “%1” ze niet kan gebruiken.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n bestand</numerusform>
            <numerusform>%n bestanden</numerusform>
        </translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Nog geen bestanden</translation>
    </message>
    <message>
        <source>No files found</source>
        <translation>Geen bestanden gevonden</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Bestanden toevoegen…</translation>
    </message>
    <message>
        <source>Drop files or folders here</source>
        <translation>Sleep bestanden of mappen hierheen</translation>
    </message>
    <message>
        <source>Then set up the action on the right. You see every result before it is written.</source>
        <translation>Stel daarna rechts de actie in. U ziet elk resultaat voordat het wordt geschreven.</translation>
    </message>
    <message>
        <source>“%1” was not added: it is not a file.</source>
        <translation>“%1” is niet toegevoegd: het is geen bestand.</translation>
    </message>
    <message numerus="yes">
        <source>%n items were not added: they are not files.</source>
        <translation>
            <numerusform>%n item is niet toegevoegd: het is geen bestand.</numerusform>
            <numerusform>%n items zijn niet toegevoegd: het zijn geen bestanden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders are not shown because %1 cannot use them.</source>
        <translation>
            <numerusform>%n map wordt niet getoond, omdat “%1” die niet kan gebruiken.</numerusform>
            <numerusform>%n mappen worden niet getoond, omdat “%1” ze niet kan gebruiken.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n map</numerusform>
            <numerusform>%n mappen</numerusform>
        </translation>
    </message>
    <message>
        <source>No folders yet</source>
        <translation>Nog geen mappen</translation>
    </message>
    <message>
        <source>No folders found</source>
        <translation>Geen mappen gevonden</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Map toevoegen…</translation>
    </message>
    <message>
        <source>Drop folders here</source>
        <translation>Sleep mappen hierheen</translation>
    </message>
    <message>
        <source>The folders themselves are renamed. What is in them does not change.</source>
        <translation>De mappen zelf worden hernoemd. De inhoud verandert niet.</translation>
    </message>
    <message>
        <source>“%1” was not added: it is not a folder.</source>
        <translation>“%1” is niet toegevoegd: het is geen map.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were not added: they are not folders.</source>
        <translation>
            <numerusform>%n bestand is niet toegevoegd: het is geen map.</numerusform>
            <numerusform>%n bestanden zijn niet toegevoegd: het zijn geen mappen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files are not shown because folders are being renamed.</source>
        <translation>
            <numerusform>%n bestand wordt niet getoond, omdat er mappen worden hernoemd.</numerusform>
            <numerusform>%n bestanden worden niet getoond, omdat er mappen worden hernoemd.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>interrupted</name>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
    <message numerus="yes">
        <source>%1 was interrupted: %2 of %3 pictures are done.</source>
        <translation>
            <numerusform>%1 is onderbroken: %2 van %3 foto’s is klaar.</numerusform>
            <numerusform>%1 is onderbroken: %2 van %3 foto’s zijn klaar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undoing “%1” was interrupted: %2 of %3 files are done.</source>
        <translation>
            <numerusform>Het ongedaan maken van “%1” is onderbroken: %2 van %3 bestanden is klaar.</numerusform>
            <numerusform>Het ongedaan maken van “%1” is onderbroken: %2 van %3 bestanden zijn klaar.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 was interrupted: %2 of %3 files have their new names.</source>
        <translation>
            <numerusform>%1 is onderbroken: %2 van %3 bestanden heeft zijn nieuwe naam.</numerusform>
            <numerusform>%1 is onderbroken: %2 van %3 bestanden hebben hun nieuwe naam.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 was interrupted: %2 of %3 files are done.</source>
        <translation>
            <numerusform>%1 is onderbroken: %2 van %3 bestanden is klaar.</numerusform>
            <numerusform>%1 is onderbroken: %2 van %3 bestanden zijn klaar.</numerusform>
        </translation>
    </message>
    <message>
        <source>Rename the Rest</source>
        <translation>De rest hernoemen</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>onderbroken</translation>
    </message>
</context>
<context>
    <name>job</name>
    <message>
        <source>the folder is read-only</source>
        <translation>de map is alleen-lezen</translation>
    </message>
    <message>
        <source>file already exists</source>
        <translation>bestand bestaat al</translation>
    </message>
    <message>
        <source>no free name found</source>
        <translation>geen vrije naam gevonden</translation>
    </message>
</context>
<context>
    <name>jobs</name>
    <message>
        <source>%1 has been changed since.</source>
        <translation>%1 is sindsdien gewijzigd.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 kan niet worden geschreven.</translation>
    </message>
</context>
<context>
    <name>kept-list</name>
    <message>
        <source>The list of the last session was restored.</source>
        <translation>De lijst van de vorige sessie is hersteld.</translation>
    </message>
</context>
<context>
    <name>list-estimate</name>
    <message>
        <source>about %1 in total</source>
        <translation>ongeveer %1 in totaal</translation>
    </message>
</context>
<context>
    <name>list-rows</name>
    <message>
        <source>left out</source>
        <translation>weggelaten</translation>
    </message>
</context>
<context>
    <name>list-tools</name>
    <message>
        <source>Export the list</source>
        <translation>Lijst exporteren</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lijst</translation>
    </message>
    <message>
        <source>Exporting the list…</source>
        <translation>Lijst wordt geëxporteerd…</translation>
    </message>
    <message>
        <source>The list was exported to %1</source>
        <translation>De lijst is geëxporteerd naar %1</translation>
    </message>
    <message numerus="yes">
        <source>%n files copied</source>
        <translation>
            <numerusform>%n bestand gekopieerd</numerusform>
            <numerusform>%n bestanden gekopieerd</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading properties: %1 of %2</source>
        <translation>Eigenschappen lezen: %1 van %2</translation>
    </message>
</context>
<context>
    <name>log-action</name>
    <message>
        <source>Log</source>
        <translation>Logboek</translation>
    </message>
</context>
<context>
    <name>log-page</name>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Actie</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Old comment</source>
        <translation>Oude opmerking</translation>
    </message>
    <message>
        <source>New comment</source>
        <translation>Nieuwe opmerking</translation>
    </message>
    <message>
        <source>All runs</source>
        <translation>Alle opdrachten</translation>
    </message>
    <message>
        <source>Undo of %1</source>
        <translation>Ongedaan: %1</translation>
    </message>
    <message>
        <source>Redo of %1</source>
        <translation>Opnieuw uitgevoerd: %1</translation>
    </message>
    <message>
        <source>%1 (run of %2)</source>
        <translation>%1 (opdracht van %2)</translation>
    </message>
    <message>
        <source>All actions</source>
        <translation>Alle acties</translation>
    </message>
    <message>
        <source>Comments only</source>
        <translation>Alleen opmerkingen</translation>
    </message>
    <message>
        <source>All statuses</source>
        <translation>Alle statussen</translation>
    </message>
    <message>
        <source>A run is being undone. Stop it first, or wait.</source>
        <translation>Een opdracht wordt ongedaan gemaakt. Stop dat eerst, of wacht.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation>
            <numerusform>%Ln regel</numerusform>
            <numerusform>%Ln regels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln entries</source>
        <translation>
            <numerusform>%1 van %Ln regel</numerusform>
            <numerusform>%1 van %Ln regels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Copy %n Rows</source>
        <translation>
            <numerusform>Regel kopiëren</numerusform>
            <numerusform>%n regels kopiëren</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear Log…</source>
        <translation>Logboek leegmaken…</translation>
    </message>
    <message numerus="yes">
        <source>Revert %n Comments</source>
        <translation>
            <numerusform>Opmerking terugzetten</numerusform>
            <numerusform>%n opmerkingen terugzetten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n comments selected</source>
        <translation>
            <numerusform>%n opmerking geselecteerd</numerusform>
            <numerusform>%n opmerkingen geselecteerd</numerusform>
        </translation>
    </message>
    <message>
        <source>No entry matches.</source>
        <translation>Geen regel voldoet.</translation>
    </message>
    <message numerus="yes">
        <source>No entries yet. Each run is recorded here, and the last %Ln entries are kept.</source>
        <translation>
            <numerusform>Nog geen regels. Elke opdracht wordt hier vastgelegd; de laatste regel blijft bewaard.</numerusform>
            <numerusform>Nog geen regels. Elke opdracht wordt hier vastgelegd; de laatste %Ln regels blijven bewaard.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n probleem</numerusform>
            <numerusform>%n problemen</numerusform>
        </translation>
    </message>
    <message>
        <source>Export the log</source>
        <translation>Logboek exporteren</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Logboek</translation>
    </message>
    <message>
        <source>Log saved as %1</source>
        <translation>Logboek bewaard als %1</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Logboek leegmaken</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln entries from the log?</source>
        <translation>
            <numerusform>De enige regel uit het logboek verwijderen?</numerusform>
            <numerusform>Alle %Ln regels uit het logboek verwijderen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Your files are not changed. Runs can then no longer be undone from here.</source>
        <translation>Uw bestanden blijven ongewijzigd. Opdrachten kunnen daarna hier niet meer ongedaan worden gemaakt.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leegmaken</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behouden</translation>
    </message>
    <message>
        <source>Revert comment</source>
        <translation>Opmerking terugzetten</translation>
    </message>
    <message>
        <source>Reverting: %1 of %2</source>
        <translation>Terugzetten: %1 van %2</translation>
    </message>
    <message>
        <source>Undoing: %1 of %2</source>
        <translation>Ongedaan maken: %1 van %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files restored</source>
        <translation>
            <numerusform>%n bestand hersteld</numerusform>
            <numerusform>%n bestanden hersteld</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped:</source>
        <translation>Gestopt:</translation>
    </message>
    <message>
        <source>A run is in progress. Its entries appear here when it is finished.</source>
        <translation>Er loopt een opdracht. De regels verschijnen hier als die klaar is.</translation>
    </message>
    <message>
        <source>These settings cannot be used now.</source>
        <translation>Deze instellingen kunnen nu niet worden gebruikt.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Something went wrong</source>
        <translation>Er ging iets mis</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
</context>
<context>
    <name>main-window</name>
    <message>
        <source>Drop to add pictures and folders</source>
        <translation>Laat los om foto’s en mappen toe te voegen</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Passend</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Vullend</translation>
    </message>
    <message>
        <source>A run is in progress</source>
        <translation>Er loopt een opdracht</translation>
    </message>
    <message>
        <source>Stop the run and close the window?</source>
        <translation>De opdracht stoppen en het venster sluiten?</translation>
    </message>
    <message>
        <source>Finished pictures are kept. No half-written file is left behind.</source>
        <translation>Foto’s die klaar zijn, blijven bewaard. Er blijft geen half geschreven bestand achter.</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Stoppen en sluiten</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>Laten doorgaan</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>No file manager could open the folder. It is %1</source>
        <translation>Geen bestandsbeheerder kon de map openen. Het is %1</translation>
    </message>
    <message numerus="yes">
        <source>Opened %1, which contains the %n folders</source>
        <translation>
            <numerusform>%1 geopend, waarin de map staat</numerusform>
            <numerusform>%1 geopend, waarin de %n mappen staan</numerusform>
        </translation>
    </message>
    <message>
        <source>What you add now is not part of this run.</source>
        <translation>Wat u nu toevoegt, hoort niet bij deze opdracht.</translation>
    </message>
</context>
<context>
    <name>manual</name>
    <message>
        <source>“%1” was not found in the manual.</source>
        <translation>“%1” is niet gevonden in de handleiding.</translation>
    </message>
</context>
<context>
    <name>measure</name>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>cm</source>
        <translation>cm</translation>
    </message>
    <message>
        <source>in</source>
        <translation>in</translation>
    </message>
    <message>
        <source>pc</source>
        <translation>pc</translation>
    </message>
    <message>
        <source>pt</source>
        <translation>pt</translation>
    </message>
    <message>
        <source> at %1 dpi</source>
        <translation> bij %1 dpi</translation>
    </message>
    <message>
        <source>Enter a resolution from 1 to %1 dpi.</source>
        <translation>Geef een resolutie op van 1 tot %1 dpi.</translation>
    </message>
</context>
<context>
    <name>meta</name>
    <message>
        <source>"%1" cannot be the value of the field %2</source>
        <translation>“%1” kan niet de waarde van het veld %2 zijn</translation>
    </message>
    <message>
        <source>there is no field %1</source>
        <translation>er is geen veld %1</translation>
    </message>
    <message>
        <source>private data is not removed from files of this type</source>
        <translation>uit bestanden van dit type worden geen privégegevens verwijderd</translation>
    </message>
    <message>
        <source>no change is given for the field %1</source>
        <translation>er is geen wijziging opgegeven voor het veld %1</translation>
    </message>
    <message>
        <source>"%1" is not a time zone</source>
        <translation>“%1” is geen tijdzone</translation>
    </message>
    <message>
        <source>there is no group %1</source>
        <translation>er is geen groep %1</translation>
    </message>
    <message>
        <source>%1 is too large</source>
        <translation>%1 is te groot</translation>
    </message>
</context>
<context>
    <name>metadata-action</name>
    <message>
        <source>Metadata</source>
        <translation>Metadata</translation>
    </message>
</context>
<context>
    <name>metadata-page</name>
    <message>
        <source>This Picture</source>
        <translation>Deze foto</translation>
    </message>
    <message>
        <source>Many Pictures</source>
        <translation>Meerdere foto’s</translation>
    </message>
    <message>
        <source>Search values</source>
        <translation>Waarden zoeken</translation>
    </message>
    <message>
        <source>Comments are being written. Cancel this first, or wait.</source>
        <translation>Er worden opmerkingen geschreven. Annuleer dat eerst, of wacht.</translation>
    </message>
    <message>
        <source>This file is not a picture that can be read.</source>
        <translation>Dit bestand is geen leesbare foto.</translation>
    </message>
    <message>
        <source>Copy Value or Branch</source>
        <translation>Waarde of tak kopiëren</translation>
    </message>
    <message>
        <source>Copy Location in Degrees, 48.85840, 2.29450</source>
        <translation>Locatie kopiëren in graden, 48.85840, 2.29450</translation>
    </message>
    <message>
        <source>Copy Location in Minutes, 48° 51′ 30″ N</source>
        <translation>Locatie kopiëren in minuten, 48° 51′ 30″ N</translation>
    </message>
    <message numerus="yes">
        <source>%n lines copied</source>
        <translation>
            <numerusform>%n regel gekopieerd</numerusform>
            <numerusform>%n regels gekopieerd</numerusform>
        </translation>
    </message>
    <message>
        <source>Select a property to copy first.</source>
        <translation>Selecteer eerst een eigenschap om te kopiëren.</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Gekopieerd: %1</translation>
    </message>
    <message>
        <source>Files of this type cannot hold a comment.</source>
        <translation>Bestanden van dit type kunnen geen opmerking bevatten.</translation>
    </message>
    <message>
        <source>Tokens such as {name}, {date} and {counter} are filled in for each picture. To write a brace, type {{.</source>
        <translation>Codes zoals {name}, {date} en {counter} worden voor elke foto ingevuld. Typ {{ voor een accolade.</translation>
    </message>
    <message>
        <source>For example %1: “%2”</source>
        <translation>Bijvoorbeeld %1: “%2”</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message numerus="yes">
        <source>%n properties</source>
        <translation>
            <numerusform>%n eigenschap</numerusform>
            <numerusform>%n eigenschappen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Revert %n</source>
        <translation>
            <numerusform>Terugzetten</numerusform>
            <numerusform>%n terugzetten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write into All %n…</source>
        <translation>
            <numerusform>In %n schrijven…</numerusform>
            <numerusform>In alle %n schrijven…</numerusform>
        </translation>
    </message>
    <message>
        <source>Write comment</source>
        <translation>Opmerking schrijven</translation>
    </message>
    <message>
        <source>Write the comment into pictures</source>
        <translation>De opmerking in foto’s schrijven</translation>
    </message>
    <message>
        <source>Write the comment into all pictures of a folder</source>
        <translation>De opmerking in alle foto’s van een map schrijven</translation>
    </message>
    <message>
        <source>Revert comment</source>
        <translation>Opmerking terugzetten</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures, differences: %1</source>
        <translation>
            <numerusform>%n foto, verschillen: %1</numerusform>
            <numerusform>%n foto’s, verschillen: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>move-run</name>
    <message>
        <source>Not enough space</source>
        <translation>Te weinig ruimte</translation>
    </message>
    <message>
        <source>Files that do not fit stay where they are.</source>
        <translation>Bestanden die niet passen, blijven waar ze zijn.</translation>
    </message>
    <message>
        <source>Start Anyway</source>
        <translation>Toch starten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Cancelled before the first file. Nothing was moved.</source>
        <translation>Geannuleerd vóór het eerste bestand. Er is niets verplaatst.</translation>
    </message>
    <message>
        <source>There is nothing to do.</source>
        <translation>Er is niets te doen.</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was moved.</source>
        <translation>Geannuleerd. Er is niets verplaatst.</translation>
    </message>
    <message>
        <source>Dry run: %1</source>
        <translation>Proefrun: %1</translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>%1 niet meegenomen</translation>
    </message>
    <message>
        <source>nothing was moved</source>
        <translation>er is niets verplaatst</translation>
    </message>
    <message>
        <source>done</source>
        <translation>gedaan</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>geannuleerd</translation>
    </message>
    <message>
        <source>Cancelled:</source>
        <translation>Geannuleerd:</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opnieuw uitvoeren</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n bestand</numerusform>
            <numerusform>%n bestanden</numerusform>
        </translation>
    </message>
    <message>
        <source>Last run: %1, %2</source>
        <translation>Laatste opdracht: %1, %2</translation>
    </message>
    <message>
        <source>Finished files are kept.</source>
        <translation>Bestanden die klaar zijn, blijven bewaard.</translation>
    </message>
</context>
<context>
    <name>move-words</name>
    <message>
        <source>the name is empty</source>
        <translation>de naam is leeg</translation>
    </message>
    <message>
        <source>a name cannot contain “/” or be “.” or “..”</source>
        <translation>een naam mag geen “/” bevatten en niet “.” of “..” zijn</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>de naam is te lang</translation>
    </message>
    <message>
        <source>the file no longer exists</source>
        <translation>het bestand bestaat niet meer</translation>
    </message>
    <message>
        <source>same new name as %1</source>
        <translation>zelfde nieuwe naam als %1</translation>
    </message>
    <message>
        <source>name in use by %1, which keeps its name</source>
        <translation>naam in gebruik door %1, dat zijn naam behoudt</translation>
    </message>
    <message>
        <source>name in use by a file that is not in this list</source>
        <translation>naam in gebruik door een bestand buiten deze lijst</translation>
    </message>
    <message>
        <source>differs only by case or accents from %1</source>
        <translation>verschilt alleen in hoofdletters of accenten van %1</translation>
    </message>
    <message>
        <source>a folder cannot be moved into itself</source>
        <translation>een map kan niet naar zichzelf worden verplaatst</translation>
    </message>
    <message>
        <source>the folder is read-only</source>
        <translation>de map is alleen-lezen</translation>
    </message>
    <message>
        <source>the picture of this sidecar file stays</source>
        <translation>de foto bij dit sidecarbestand blijft</translation>
    </message>
    <message>
        <source>a sidecar file cannot be moved: its name is in use by %1</source>
        <translation>sidecarbestand kan niet worden verplaatst: die naam is in gebruik door %1</translation>
    </message>
    <message>
        <source>a sidecar file cannot be moved</source>
        <translation>een sidecarbestand kan niet worden verplaatst</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>niet mogelijk</translation>
    </message>
    <message>
        <source>swaps names with %1</source>
        <translation>wisselt van naam met %1</translation>
    </message>
    <message>
        <source>ready, with its %1</source>
        <translation>gereed, met %1</translation>
    </message>
    <message>
        <source>ready, numbered because the file exists</source>
        <translation>gereed, genummerd omdat het bestand bestaat</translation>
    </message>
    <message>
        <source>ready, to another disk</source>
        <translation>gereed, naar een andere schijf</translation>
    </message>
    <message>
        <source>ready, only the case changes</source>
        <translation>gereed, alleen hoofdletters veranderen</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>gereed</translation>
    </message>
    <message>
        <source>Includes its %1.</source>
        <translation>Met %1.</translation>
    </message>
    <message>
        <source>ready, but %1</source>
        <translation>gereed, maar %1</translation>
    </message>
    <message>
        <source>stays: %1 gets this name</source>
        <translation>blijft: %1 krijgt deze naam</translation>
    </message>
    <message>
        <source>stays: file already exists</source>
        <translation>blijft: bestand bestaat al</translation>
    </message>
    <message>
        <source>Existing file: %1</source>
        <translation>Bestaand bestand: %1</translation>
    </message>
    <message>
        <source>sidecar file of %1</source>
        <translation>sidecarbestand van %1</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>ongewijzigd</translation>
    </message>
</context>
<context>
    <name>moves</name>
    <message>
        <source>Dry Run: %1</source>
        <translation>Proefrun: %1</translation>
    </message>
    <message>
        <source>Planning: %1 of %2…</source>
        <translation>Bezig met plannen: %1 van %2…</translation>
    </message>
    <message>
        <source>%1 ready</source>
        <translation>%1 gereed</translation>
    </message>
    <message numerus="yes">
        <source>%n need attention</source>
        <translation>
            <numerusform>%n vraagt aandacht</numerusform>
            <numerusform>%n vragen aandacht</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unchanged</source>
        <translation>
            <numerusform>%n ongewijzigd</numerusform>
            <numerusform>%n ongewijzigd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar files</source>
        <translation>
            <numerusform>%n sidecarbestand</numerusform>
            <numerusform>%n sidecarbestanden</numerusform>
        </translation>
    </message>
    <message>
        <source>can be undone</source>
        <translation>ongedaan te maken</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nu</translation>
    </message>
    <message>
        <source>Dry run: move nothing</source>
        <translation>Proefrun: niets verplaatsen</translation>
    </message>
</context>
<context>
    <name>name-steps</name>
    <message>
        <source>Enter a text.</source>
        <translation>Geef een tekst op.</translation>
    </message>
    <message>
        <source>Enter piece numbers separated by commas, such as 2,1. Use -1 for the last piece.</source>
        <translation>Geef deelnummers op met komma’s ertussen, zoals 2,1. Gebruik -1 voor het laatste deel.</translation>
    </message>
</context>
<context>
    <name>new-version</name>
    <message>
        <source>Quorlin</source>
        <translation>Quorlin</translation>
    </message>
</context>
<context>
    <name>operation-fields</name>
    <message>
        <source>pixels</source>
        <translation>pixels</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>inch</translation>
    </message>
    <message>
        <source>points</source>
        <translation>punten</translation>
    </message>
    <message>
        <source>picas</source>
        <translation>pica’s</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Eenheid</translation>
    </message>
    <message>
        <source>At a chosen resolution</source>
        <translation>Met een gekozen resolutie</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolutie</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Positie</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Kleur</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breedte</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hoogte</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Fit inside</source>
        <translation>Passend maken</translation>
    </message>
    <message>
        <source>Fill (crops)</source>
        <translation>Vullen (snijdt bij)</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Uitrekken</translation>
    </message>
    <message>
        <source>Fit and pad</source>
        <translation>Passend maken en aanvullen</translation>
    </message>
    <message>
        <source>Longest side</source>
        <translation>Langste zijde</translation>
    </message>
    <message>
        <source>Shortest side</source>
        <translation>Kortste zijde</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Percentage</translation>
    </message>
    <message>
        <source>Megapixels</source>
        <translation>Megapixels</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Vak</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Afmetingen</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Op</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lengte</translation>
    </message>
    <message>
        <source>Enlarge small pictures too</source>
        <translation>Ook kleine foto’s vergroten</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Verhouding</translation>
    </message>
    <message>
        <source>Larger number for the longer side</source>
        <translation>Grootste getal voor de langste zijde</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Afsnijden</translation>
    </message>
    <message>
        <source>Width and height</source>
        <translation>Breedte en hoogte</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Offset to the right</source>
        <translation>Verschuiving naar rechts</translation>
    </message>
    <message>
        <source>Offset downward</source>
        <translation>Verschuiving omlaag</translation>
    </message>
    <message>
        <source>Offset from there</source>
        <translation>Van daar verschoven</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Hoek</translation>
    </message>
    <message>
        <source>Fill new corners</source>
        <translation>Nieuwe hoeken vullen</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Straal</translation>
    </message>
    <message>
        <source>Border width</source>
        <translation>Randbreedte</translation>
    </message>
    <message>
        <source>Border colour</source>
        <translation>Randkleur</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Vorm</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechthoek</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cirkel</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellips</translation>
    </message>
    <message>
        <source>Fill colour</source>
        <translation>Vulkleur</translation>
    </message>
    <message>
        <source>Border inside the picture</source>
        <translation>Rand binnen de foto</translation>
    </message>
    <message>
        <source>Under the picture</source>
        <translation>Onder de foto</translation>
    </message>
    <message>
        <source>A colour</source>
        <translation>Een kleur</translation>
    </message>
    <message>
        <source>A pattern</source>
        <translation>Een patroon</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Patroon</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standaard</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Lettertype</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Watermerk</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Dekking</translation>
    </message>
    <message>
        <source>Over the whole picture</source>
        <translation>Over de hele foto</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Sterkte</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Laag</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoog</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grijs</translation>
    </message>
    <message>
        <source>A profile file</source>
        <translation>Een profielbestand</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profiel</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richting</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Links en rechts</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>Boven en onder</translation>
    </message>
    <message>
        <source>Converts the colours. sRGB suits screens and the web.</source>
        <translation>Rekent de kleuren om. sRGB is geschikt voor beeldschermen en het web.</translation>
    </message>
    <message>
        <source>A colour profile with the extension .icc or .icm</source>
        <translation>Een kleurprofiel met de extensie .icc of .icm</translation>
    </message>
    <message>
        <source>Dots per inch used to turn lengths into pixels</source>
        <translation>Punten per inch waarmee lengtes in pixels worden omgerekend</translation>
    </message>
    <message>
        <source>dpi</source>
        <translation>dpi</translation>
    </message>
    <message>
        <source>MP</source>
        <translation>MP</translation>
    </message>
    <message>
        <source>Otherwise lengths use the resolution of each picture</source>
        <translation>Anders gebruiken lengtes de resolutie van elke foto</translation>
    </message>
</context>
<context>
    <name>output-fields</name>
    <message>
        <source>Original file type</source>
        <translation>Type van het origineel</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Bestandstype</translation>
    </message>
    <message>
        <source>Lossless if the type allows it</source>
        <translation>Verliesvrij, waar het type dat kan</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Verliesvrij</translation>
    </message>
    <message>
        <source>Choose the quality</source>
        <translation>Kwaliteit kiezen</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Kwaliteit</translation>
    </message>
    <message>
        <source>Limit the file size</source>
        <translation>Bestandsgrootte begrenzen</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>Hoogstens</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadata</translation>
    </message>
    <message>
        <source>Keep all</source>
        <translation>Alles behouden</translation>
    </message>
    <message>
        <source>Keep copyright only</source>
        <translation>Alleen copyright behouden</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alles verwijderen</translation>
    </message>
    <message>
        <source>Remove location</source>
        <translation>Locatie verwijderen</translation>
    </message>
    <message>
        <source>If the file exists</source>
        <translation>Als het bestand bestaat</translation>
    </message>
    <message>
        <source>Keep both (add a number)</source>
        <translation>Beide behouden (met nummer)</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Vervangen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Overslaan</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behouden</translation>
    </message>
    <message>
        <source>Set the resolution</source>
        <translation>Resolutie instellen</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparantie</translation>
    </message>
    <message>
        <source>Keep the file date</source>
        <translation>Datum van het bestand behouden</translation>
    </message>
    <message>
        <source>Skip if up to date</source>
        <translation>Overslaan indien actueel</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Hogere kwaliteit betekent grotere bestanden</translation>
    </message>
    <message>
        <source>Keeps every pixel exactly; the files are larger</source>
        <translation>Behoudt elke pixel precies; de bestanden worden groter</translation>
    </message>
    <message>
        <source>Otherwise JPEG files keep their quality, and other types get %1</source>
        <translation>Anders houden JPEG-bestanden hun kwaliteit en krijgen andere typen %1</translation>
    </message>
    <message>
        <source>Otherwise the quality is %1</source>
        <translation>Anders is de kwaliteit %1</translation>
    </message>
    <message>
        <source>Dots per inch written into the file; its pixels do not change</source>
        <translation>Punten per inch die in het bestand komen te staan; de pixels veranderen niet</translation>
    </message>
    <message>
        <source>For printing and layout programs; no pixel changes</source>
        <translation>Voor afdrukken en opmaken; geen pixel verandert</translation>
    </message>
    <message>
        <source>Replaces transparency in file types that cannot hold it</source>
        <translation>Vervangt transparantie in bestandstypen die dat niet kennen</translation>
    </message>
    <message>
        <source>kB</source>
        <translation>kB</translation>
    </message>
</context>
<context>
    <name>output-pane</name>
    <message>
        <source>Keep both (add a number)</source>
        <translation>Beide behouden (met nummer)</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Vervangen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Overslaan</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Vragen</translation>
    </message>
    <message>
        <source>Original file type</source>
        <translation>Type van het origineel</translation>
    </message>
    <message>
        <source>Next to each picture</source>
        <translation>Map naast elke foto</translation>
    </message>
    <message>
        <source>Folder of the original</source>
        <translation>Map van het origineel</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Map kiezen…</translation>
    </message>
    <message>
        <source>Save results to</source>
        <translation>Resultaten bewaren in</translation>
    </message>
    <message>
        <source>Keep all</source>
        <translation>Alles behouden</translation>
    </message>
    <message>
        <source>Keep copyright only</source>
        <translation>Alleen copyright behouden</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alles verwijderen</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Minder</translation>
    </message>
    <message>
        <source>More…</source>
        <translation>Meer…</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures have a type that cannot be written.</source>
        <translation>
            <numerusform>%n foto heeft een type dat niet kan worden geschreven.</numerusform>
            <numerusform>%n foto’s hebben een type dat niet kan worden geschreven.</numerusform>
        </translation>
    </message>
    <message>
        <source>Same as the picture</source>
        <translation>Zoals de foto</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standaard</translation>
    </message>
    <message>
        <source>Skip if up to date</source>
        <translation>Overslaan indien actueel</translation>
    </message>
</context>
<context>
    <name>own-results</name>
    <message numerus="yes">
        <source>%n results of earlier runs not added</source>
        <translation>
            <numerusform>%n resultaat van eerdere opdrachten niet toegevoegd</numerusform>
            <numerusform>%n resultaten van eerdere opdrachten niet toegevoegd</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>pages</name>
    <message>
        <source>Pages have no setting “%1”.</source>
        <translation>Pagina’s hebben geen instelling “%1”.</translation>
    </message>
    <message>
        <source>Enter a paper width and height from 20 to 2000 mm.</source>
        <translation>Geef een breedte en hoogte van het papier op van 20 tot 2000 mm.</translation>
    </message>
    <message>
        <source>Enter margins from 0 mm.</source>
        <translation>Geef marges vanaf 0 mm op.</translation>
    </message>
    <message>
        <source>Enter a gap from 0 mm.</source>
        <translation>Geef een tussenruimte vanaf 0 mm op.</translation>
    </message>
    <message>
        <source>Enter 1 to 20 rows and columns.</source>
        <translation>Geef 1 tot 20 rijen en kolommen op.</translation>
    </message>
    <message>
        <source>Enter text sizes from 3 to 72 points.</source>
        <translation>Geef tekstgroottes van 3 tot 72 punten op.</translation>
    </message>
    <message>
        <source>Enter a resolution from 36 to 1200 pixels per inch.</source>
        <translation>Geef een resolutie van 36 tot 1200 pixels per inch op.</translation>
    </message>
    <message>
        <source>Enter a quality from 1 to 100.</source>
        <translation>Geef een kwaliteit van 1 tot 100 op.</translation>
    </message>
    <message>
        <source>There is no room for pictures. Use fewer rows or columns, or smaller margins or gaps.</source>
        <translation>Er is geen ruimte voor foto’s. Kies minder rijen of kolommen, of kleinere marges of tussenruimten.</translation>
    </message>
    <message>
        <source>The pages could not be created.</source>
        <translation>De pagina’s konden niet worden gemaakt.</translation>
    </message>
    <message>
        <source>The PDF cannot be written: %1</source>
        <translation>De PDF kan niet worden geschreven: %1</translation>
    </message>
    <message>
        <source>The picture could not be prepared for the page.</source>
        <translation>De foto kon niet voor de pagina worden voorbereid.</translation>
    </message>
</context>
<context>
    <name>pane</name>
    <message>
        <source> at %1 dpi</source>
        <translation> bij %1 dpi</translation>
    </message>
</context>
<context>
    <name>plan</name>
    <message>
        <source>cancelled</source>
        <translation>geannuleerd</translation>
    </message>
    <message>
        <source>another picture in this run has the same new name</source>
        <translation>een andere foto in deze opdracht heeft dezelfde nieuwe naam</translation>
    </message>
    <message>
        <source>file already exists</source>
        <translation>bestand bestaat al</translation>
    </message>
    <message>
        <source>the destination folder has no name</source>
        <translation>de doelmap heeft geen naam</translation>
    </message>
    <message>
        <source>the picture no longer exists</source>
        <translation>de foto bestaat niet meer</translation>
    </message>
    <message>
        <source>up to date</source>
        <translation>is actueel</translation>
    </message>
</context>
<context>
    <name>platform</name>
    <message>
        <source>The tags of %1 could not be written</source>
        <translation>De tags van %1 konden niet worden geschreven</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash</source>
        <translation>Kan %1 niet naar de prullenbak verplaatsen</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash: no such file</source>
        <translation>Kan %1 niet naar de prullenbak verplaatsen: dat bestand bestaat niet</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash: %2</source>
        <translation>Kan %1 niet naar de prullenbak verplaatsen: %2</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>Kan %1 niet lezen: %2</translation>
    </message>
    <message>
        <source>this is not an ordinary file</source>
        <translation>dit is geen gewoon bestand</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Kan %1 niet schrijven: %2</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>kB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>TB</translation>
    </message>
    <message>
        <source>PB</source>
        <translation>PB</translation>
    </message>
    <message>
        <source>EB</source>
        <translation>EB</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n byte</numerusform>
            <numerusform>%n bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 needs about %2 of memory, %3 is free</source>
        <translation>%1 heeft ongeveer %2 geheugen nodig, %3 is vrij</translation>
    </message>
    <message>
        <source>needs about %1 of memory, %2 is free</source>
        <translation>heeft ongeveer %1 geheugen nodig, %2 is vrij</translation>
    </message>
    <message>
        <source>There is no picture to draw</source>
        <translation>Er is geen foto om te tekenen</translation>
    </message>
    <message>
        <source>The picture is too large</source>
        <translation>De foto is te groot</translation>
    </message>
    <message>
        <source>There is nothing to draw</source>
        <translation>Er is niets om te tekenen</translation>
    </message>
    <message>
        <source>A picture of %1 × %2 pixels cannot be made</source>
        <translation>Een foto van %1 × %2 pixels is niet mogelijk</translation>
    </message>
    <message>
        <source>Reading the picture</source>
        <translation>Het lezen van de foto</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>De foto</translation>
    </message>
    <message>
        <source>There is no picture to scale</source>
        <translation>Er is geen foto om te schalen</translation>
    </message>
    <message>
        <source>There is no picture to rotate</source>
        <translation>Er is geen foto om te draaien</translation>
    </message>
    <message>
        <source>A picture cannot be rotated by that angle</source>
        <translation>Een foto kan niet over die hoek worden gedraaid</translation>
    </message>
    <message>
        <source>the file is damaged</source>
        <translation>het bestand is beschadigd</translation>
    </message>
    <message>
        <source>the comment is too long</source>
        <translation>de opmerking is te lang</translation>
    </message>
    <message>
        <source>There is no picture to write</source>
        <translation>Er is geen foto om te schrijven</translation>
    </message>
    <message>
        <source>The page could not be created: %1</source>
        <translation>De pagina kon niet worden gemaakt: %1</translation>
    </message>
    <message>
        <source>The JPEG could not be created: %1</source>
        <translation>De JPEG kon niet worden gemaakt: %1</translation>
    </message>
    <message>
        <source>Writing the picture</source>
        <translation>Het schrijven van de foto</translation>
    </message>
    <message>
        <source>The picture could not be encoded: %1</source>
        <translation>De foto kon niet worden gecodeerd: %1</translation>
    </message>
    <message>
        <source>The file is neither JPEG nor TIFF</source>
        <translation>Het bestand is geen JPEG of TIFF</translation>
    </message>
    <message>
        <source>This is not a property list with a dictionary</source>
        <translation>Dit is geen eigenschappenlijst met sleutels en waarden</translation>
    </message>
    <message>
        <source>A property list cannot hold the value of %1</source>
        <translation>De waarde van %1 past niet in een eigenschappenlijst</translation>
    </message>
    <message>
        <source>the file is write-protected</source>
        <translation>het bestand is beveiligd tegen schrijven</translation>
    </message>
    <message>
        <source>this type of file cannot hold metadata of its own</source>
        <translation>in bestanden van dit type worden geen metadata geschreven</translation>
    </message>
    <message>
        <source>its metadata is damaged</source>
        <translation>de metadata zijn beschadigd</translation>
    </message>
    <message>
        <source>there is not enough room for the metadata</source>
        <translation>er is niet genoeg ruimte voor de metadata</translation>
    </message>
    <message>
        <source>this is not a picture</source>
        <translation>dit is geen foto</translation>
    </message>
    <message>
        <source>this type of file cannot hold a comment</source>
        <translation>dit bestandstype kan geen opmerking bevatten</translation>
    </message>
    <message>
        <source>Cannot write the comment into %1: %2</source>
        <translation>De opmerking kan niet in %1 worden geschreven: %2</translation>
    </message>
    <message>
        <source>the picture could not be read afterwards</source>
        <translation>de foto kon daarna niet worden gelezen</translation>
    </message>
    <message>
        <source>the comment could not be read afterwards</source>
        <translation>de opmerking kon daarna niet worden gelezen</translation>
    </message>
    <message>
        <source>a comment ends where it has a null character</source>
        <translation>een opmerking eindigt bij een nulteken</translation>
    </message>
    <message>
        <source>Cannot change the metadata of %1: %2</source>
        <translation>De metadata van %1 kunnen niet worden gewijzigd: %2</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>het bestand kan niet worden gelezen</translation>
    </message>
    <message>
        <source>the metadata could not be read afterwards</source>
        <translation>de metadata konden daarna niet worden gelezen</translation>
    </message>
    <message>
        <source>it was changed since</source>
        <translation>het bestand is sindsdien gewijzigd</translation>
    </message>
    <message>
        <source>its sidecar is damaged</source>
        <translation>het sidecarbestand is beschadigd</translation>
    </message>
    <message>
        <source>Cannot read %1: %2 x %3 pixels are more than the memory allows</source>
        <translation>%1 kan niet worden gelezen: %2 × %3 pixels zijn meer dan het geheugen toelaat</translation>
    </message>
    <message>
        <source>its header is damaged</source>
        <translation>de bestandskop is beschadigd</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>geen toestemming</translation>
    </message>
    <message>
        <source>the file is cut short</source>
        <translation>het bestand is onvolledig</translation>
    </message>
    <message>
        <source>There is no image %1</source>
        <translation>Er is geen foto %1</translation>
    </message>
    <message>
        <source>There is nothing of the picture in that part</source>
        <translation>In dat deel ligt niets van de foto</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>bestand niet gevonden</translation>
    </message>
    <message>
        <source>%1 files can have at most %2 pixels on a side, not %3</source>
        <translation>%1-bestanden kunnen hoogstens %2 pixels per zijde hebben, niet %3</translation>
    </message>
    <message>
        <source>The text is too large to be drawn</source>
        <translation>De tekst is te groot om te worden getekend</translation>
    </message>
    <message>
        <source>No font is installed, so no text can be drawn</source>
        <translation>Er is geen lettertype geïnstalleerd, dus kan er geen tekst worden getekend</translation>
    </message>
</context>
<context>
    <name>preferences</name>
    <message>
        <source>System</source>
        <translation>Systeem</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Donker</translation>
    </message>
    <message>
        <source>Keep both (add a number)</source>
        <translation>Beide behouden (met nummer)</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Vervangen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Overslaan</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Vragen</translation>
    </message>
    <message>
        <source>the last 1,000 files</source>
        <translation>de laatste 1.000 bestanden</translation>
    </message>
    <message>
        <source>the last 10,000 files</source>
        <translation>de laatste 10.000 bestanden</translation>
    </message>
    <message>
        <source>the last 100,000 files</source>
        <translation>de laatste 100.000 bestanden</translation>
    </message>
    <message>
        <source>all %1 processors</source>
        <translation>alle %1 processors</translation>
    </message>
    <message>
        <source>%1 of %2 processors</source>
        <translation>%1 van %2 processors</translation>
    </message>
    <message>
        <source>A folder next to the originals</source>
        <translation>Een map naast de originelen</translation>
    </message>
    <message>
        <source>The folder of the originals</source>
        <translation>De map van de originelen</translation>
    </message>
    <message>
        <source>all free memory</source>
        <translation>al het vrije geheugen</translation>
    </message>
    <message>
        <source>%1 GB at most</source>
        <translation>hoogstens %1 GB</translation>
    </message>
    <message>
        <source>Skip if up to date</source>
        <translation>Overslaan indien actueel</translation>
    </message>
</context>
<context>
    <name>preset-pane</name>
    <message>
        <source>%1 (newer version)</source>
        <translation>%1 (nieuwere versie)</translation>
    </message>
    <message>
        <source>%1 (unknown)</source>
        <translation>%1 (onbekend)</translation>
    </message>
    <message>
        <source>%1 (damaged)</source>
        <translation>%1 (beschadigd)</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, gewijzigd</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>gewijzigd</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Bewaren</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Bewaren als…</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Hernoemen…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Verwijderen…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporteren…</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importeren…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>My preset</source>
        <translation>Mijn voorinstelling</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Hernoemen</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Voorinstelling verwijderen</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>De voorinstelling “%1” verwijderen?</translation>
    </message>
    <message>
        <source>Your current settings are kept.</source>
        <translation>Uw huidige instellingen blijven behouden.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behouden</translation>
    </message>
    <message>
        <source>Export the preset</source>
        <translation>Voorinstelling exporteren</translation>
    </message>
    <message>
        <source>Preset exported as %1</source>
        <translation>Voorinstelling geëxporteerd als %1</translation>
    </message>
    <message>
        <source>Import presets</source>
        <translation>Voorinstellingen importeren</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kan niet worden gelezen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n presets imported</source>
        <translation>
            <numerusform>%1 van %n voorinstelling geïmporteerd</numerusform>
            <numerusform>%1 van %n voorinstellingen geïmporteerd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n presets imported</source>
        <translation>
            <numerusform>%n voorinstelling geïmporteerd</numerusform>
            <numerusform>%n voorinstellingen geïmporteerd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n renamed because their names were in use</source>
        <translation>
            <numerusform>%n hernoemd, omdat de naam in gebruik was</numerusform>
            <numerusform>%n hernoemd, omdat de namen in gebruik waren</numerusform>
        </translation>
    </message>
    <message>
        <source>none for this action</source>
        <translation>geen voor deze actie</translation>
    </message>
    <message>
        <source>This name is in use. The preset will be called “%1”.</source>
        <translation>Deze naam is in gebruik. De voorinstelling heet dan “%1”.</translation>
    </message>
    <message>
        <source>No preset</source>
        <translation>Geen voorinstelling</translation>
    </message>
</context>
<context>
    <name>preset-store</name>
    <message>
        <source>The presets database was empty. It was renamed to %1, and a new one was created.</source>
        <translation>De database met voorinstellingen was leeg. Die is hernoemd tot %1, en er is een nieuwe gemaakt.</translation>
    </message>
    <message>
        <source>Presets cannot be saved: the database could not be created.</source>
        <translation>Voorinstellingen kunnen niet worden bewaard: hun database kan niet worden gemaakt.</translation>
    </message>
    <message>
        <source>The presets database cannot be read.</source>
        <translation>De database met voorinstellingen kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>The presets database is damaged. It was not changed.</source>
        <translation>De database met voorinstellingen is beschadigd. Die is niet gewijzigd.</translation>
    </message>
    <message>
        <source>The presets database has no table for presets. It was not changed.</source>
        <translation>De database met voorinstellingen heeft geen tabel voor voorinstellingen. De database is niet gewijzigd.</translation>
    </message>
    <message>
        <source>The presets database is in use by another program or damaged. It was not changed.</source>
        <translation>De database met voorinstellingen is in gebruik door een ander programma of beschadigd. Die is niet gewijzigd.</translation>
    </message>
    <message>
        <source>The presets database is read-only. It was not changed.</source>
        <translation>De database met voorinstellingen is alleen-lezen. Die is niet gewijzigd.</translation>
    </message>
    <message>
        <source>The presets database is in use by another program, or the disk is full. It was not changed.</source>
        <translation>De database met voorinstellingen is in gebruik door een ander programma, of de schijf is vol. De database is niet gewijzigd.</translation>
    </message>
</context>
<context>
    <name>presets</name>
    <message>
        <source>This preset was not made by Quorlin. It was not changed.</source>
        <translation>Deze voorinstelling is niet met Quorlin gemaakt. Die is niet gewijzigd.</translation>
    </message>
    <message>
        <source>This preset was made by a newer version of Quorlin. It was not changed.</source>
        <translation>Deze voorinstelling is gemaakt met een nieuwere versie van Quorlin. Die is niet gewijzigd.</translation>
    </message>
    <message>
        <source>This preset is damaged and cannot be used.</source>
        <translation>Deze voorinstelling is beschadigd en niet bruikbaar.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Geef een naam op.</translation>
    </message>
    <message>
        <source>A name cannot contain line breaks or control characters.</source>
        <translation>Een naam mag geen regeleinden of stuurtekens bevatten.</translation>
    </message>
    <message numerus="yes">
        <source>A name can have up to %n characters.</source>
        <translation>
            <numerusform>Een naam mag hoogstens %n teken hebben.</numerusform>
            <numerusform>Een naam mag hoogstens %n tekens hebben.</numerusform>
        </translation>
    </message>
    <message>
        <source>A preset named %1 already exists.</source>
        <translation>Er is al een voorinstelling met de naam %1.</translation>
    </message>
    <message>
        <source>This file contains no presets.</source>
        <translation>Dit bestand bevat geen voorinstellingen.</translation>
    </message>
    <message>
        <source>This file was made by a newer version of Quorlin.</source>
        <translation>Dit bestand is gemaakt met een nieuwere versie van Quorlin.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n presets in this file cannot be used.</source>
        <translation>
            <numerusform>%1 van %n voorinstelling in dit bestand is niet bruikbaar.</numerusform>
            <numerusform>%1 van %n voorinstellingen in dit bestand zijn niet bruikbaar.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>preview-side</name>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>quality %1</source>
        <translation>kwaliteit %1</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Origineel</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Resultaat</translation>
    </message>
    <message>
        <source>Large preview</source>
        <translation>Grote voorvertoning</translation>
    </message>
    <message>
        <source>%1: the result. Hold F to see the original.</source>
        <translation>%1: het resultaat. Houd F ingedrukt om het origineel te zien.</translation>
    </message>
</context>
<context>
    <name>print</name>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n foto</numerusform>
            <numerusform>%n foto’s</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Printing: %1</source>
        <translation>Wordt afgedrukt: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n pagina</numerusform>
            <numerusform>%n pagina’s</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Het bestand kon niet worden geschreven.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was printed.</source>
        <translation>Geannuleerd. Er is niets afgedrukt.</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures could not be read</source>
        <translation>
            <numerusform>%n foto kon niet worden gelezen</numerusform>
            <numerusform>%n foto’s konden niet worden gelezen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>properties</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 EV</source>
        <translation>%1 EV</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>rechtop</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>gespiegeld</translation>
    </message>
    <message>
        <source>upside down</source>
        <translation>ondersteboven</translation>
    </message>
    <message>
        <source>upside down, mirrored</source>
        <translation>ondersteboven, gespiegeld</translation>
    </message>
    <message>
        <source>on its left side, mirrored</source>
        <translation>op de linkerzijde, gespiegeld</translation>
    </message>
    <message>
        <source>turn right to see it upright</source>
        <translation>rechtsom draaien om rechtop te zien</translation>
    </message>
    <message>
        <source>on its right side, mirrored</source>
        <translation>op de rechterzijde, gespiegeld</translation>
    </message>
    <message>
        <source>turn left to see it upright</source>
        <translation>linksom draaien om rechtop te zien</translation>
    </message>
    <message>
        <source>fired</source>
        <translation>geflitst</translation>
    </message>
    <message>
        <source>did not fire</source>
        <translation>niet geflitst</translation>
    </message>
    <message>
        <source>manual</source>
        <translation>handmatig</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>aperture priority</source>
        <translation>diafragmavoorkeuze</translation>
    </message>
    <message>
        <source>shutter priority</source>
        <translation>sluitertijdvoorkeuze</translation>
    </message>
    <message>
        <source>creative</source>
        <translation>creatief</translation>
    </message>
    <message>
        <source>action</source>
        <translation>actie</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>portret</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>landschap</translation>
    </message>
    <message>
        <source>average</source>
        <translation>gemiddeld</translation>
    </message>
    <message>
        <source>centre-weighted</source>
        <translation>centrumgericht</translation>
    </message>
    <message>
        <source>spot</source>
        <translation>spot</translation>
    </message>
    <message>
        <source>several spots</source>
        <translation>multispot</translation>
    </message>
    <message>
        <source>several fields</source>
        <translation>meervelds</translation>
    </message>
    <message>
        <source>part of the picture</source>
        <translation>deel van het beeld</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>standaard</translation>
    </message>
    <message>
        <source>night</source>
        <translation>nacht</translation>
    </message>
    <message>
        <source>bracketing</source>
        <translation>bracketing</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>inch</translation>
    </message>
    <message>
        <source>centimetre</source>
        <translation>centimeter</translation>
    </message>
    <message>
        <source>not sRGB</source>
        <translation>geen sRGB</translation>
    </message>
    <message>
        <source>above sea level</source>
        <translation>boven zeeniveau</translation>
    </message>
    <message>
        <source>below sea level</source>
        <translation>onder zeeniveau</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 m</source>
        <translation>%1 m</translation>
    </message>
    <message numerus="yes">
        <source>%Ln pixels</source>
        <translation>
            <numerusform>%Ln pixel</numerusform>
            <numerusform>%Ln pixels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bits</source>
        <translation>
            <numerusform>%Ln bit</numerusform>
            <numerusform>%Ln bits</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln byte</numerusform>
            <numerusform>%Ln bytes</numerusform>
        </translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nee</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Versnelling</translation>
    </message>
    <message>
        <source>Action advised</source>
        <translation>Aanbevolen actie</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Hoogte</translation>
    </message>
    <message>
        <source>Altitude reference</source>
        <translation>Hoogtereferentie</translation>
    </message>
    <message>
        <source>Aperture value</source>
        <translation>Diafragmawaarde</translation>
    </message>
    <message>
        <source>Area information</source>
        <translation>Gebiedsinformatie</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Fotograaf</translation>
    </message>
    <message>
        <source>Audio duration</source>
        <translation>Audioduur</translation>
    </message>
    <message>
        <source>Audio outcue</source>
        <translation>Slotwoorden audio</translation>
    </message>
    <message>
        <source>Audio rate</source>
        <translation>Audiobemonstering</translation>
    </message>
    <message>
        <source>Audio resolution</source>
        <translation>Audioresolutie</translation>
    </message>
    <message>
        <source>Audio type</source>
        <translation>Audiotype</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Battery level</source>
        <translation>Batterijniveau</translation>
    </message>
    <message>
        <source>Body serial number</source>
        <translation>Serienummer body</translation>
    </message>
    <message>
        <source>Brightness value</source>
        <translation>Helderheidswaarde</translation>
    </message>
    <message>
        <source>By-line</source>
        <translation>Naamsvermelding</translation>
    </message>
    <message>
        <source>By-line title</source>
        <translation>Functie bij naamsvermelding</translation>
    </message>
    <message>
        <source>CFA pattern</source>
        <translation>CFA-patroon</translation>
    </message>
    <message>
        <source>CFA repeat pattern size</source>
        <translation>Grootte CFA-patroon</translation>
    </message>
    <message>
        <source>Camera elevation angle</source>
        <translation>Hellingshoek camera</translation>
    </message>
    <message>
        <source>Camera owner name</source>
        <translation>Eigenaar camera</translation>
    </message>
    <message>
        <source>Caption or abstract</source>
        <translation>Bijschrift of samenvatting</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categorie</translation>
    </message>
    <message>
        <source>Chromaticities</source>
        <translation>Chromaticiteiten</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Plaats</translation>
    </message>
    <message>
        <source>Colour model</source>
        <translation>Kleurmodel</translation>
    </message>
    <message>
        <source>Colour space</source>
        <translation>Kleurruimte</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Opmerking</translation>
    </message>
    <message>
        <source>Components configuration</source>
        <translation>Componentenconfiguratie</translation>
    </message>
    <message>
        <source>Composite image</source>
        <translation>Samengestelde opname</translation>
    </message>
    <message>
        <source>Compressed bits per pixel</source>
        <translation>Gecomprimeerde bits per pixel</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compressie</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contact</translation>
    </message>
    <message>
        <source>Content location code</source>
        <translation>Locatiecode inhoud</translation>
    </message>
    <message>
        <source>Content location name</source>
        <translation>Locatienaam inhoud</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contrast</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>Copyrightvermelding</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>Landcode</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Aanmaaktijd</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Bronvermelding</translation>
    </message>
    <message>
        <source>Custom rendered</source>
        <translation>Aangepaste verwerking</translation>
    </message>
    <message>
        <source>Dilution of precision</source>
        <translation>Meetnauwkeurigheid (DOP)</translation>
    </message>
    <message>
        <source>DPI height</source>
        <translation>Verticale dpi</translation>
    </message>
    <message>
        <source>DPI width</source>
        <translation>Horizontale dpi</translation>
    </message>
    <message>
        <source>Date created</source>
        <translation>Aanmaakdatum</translation>
    </message>
    <message>
        <source>Date (UTC)</source>
        <translation>Datum (UTC)</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum en tijd</translation>
    </message>
    <message>
        <source>Date and time, digitized</source>
        <translation>Datum en tijd, digitalisering</translation>
    </message>
    <message>
        <source>Date and time, original</source>
        <translation>Datum en tijd, opname</translation>
    </message>
    <message>
        <source>Delay time</source>
        <translation>Vertraging</translation>
    </message>
    <message>
        <source>Density unit</source>
        <translation>Dichtheidseenheid</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Diepte</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschrijving</translation>
    </message>
    <message>
        <source>Destination bearing</source>
        <translation>Peiling bestemming</translation>
    </message>
    <message>
        <source>Destination bearing reference</source>
        <translation>Referentie peiling bestemming</translation>
    </message>
    <message>
        <source>Destination distance</source>
        <translation>Afstand tot bestemming</translation>
    </message>
    <message>
        <source>Destination distance reference</source>
        <translation>Referentie afstand tot bestemming</translation>
    </message>
    <message>
        <source>Destination latitude</source>
        <translation>Breedtegraad bestemming</translation>
    </message>
    <message>
        <source>Destination latitude reference</source>
        <translation>Referentie breedtegraad bestemming</translation>
    </message>
    <message>
        <source>Destination longitude</source>
        <translation>Lengtegraad bestemming</translation>
    </message>
    <message>
        <source>Destination longitude reference</source>
        <translation>Referentie lengtegraad bestemming</translation>
    </message>
    <message>
        <source>Device setting description</source>
        <translation>Beschrijving apparaatinstellingen</translation>
    </message>
    <message>
        <source>Differential</source>
        <translation>Differentieel</translation>
    </message>
    <message>
        <source>Digital creation date</source>
        <translation>Datum digitalisering</translation>
    </message>
    <message>
        <source>Digital creation time</source>
        <translation>Tijd digitalisering</translation>
    </message>
    <message>
        <source>Digital zoom ratio</source>
        <translation>Digitale zoomfactor</translation>
    </message>
    <message>
        <source>Disclaimer</source>
        <translation>Disclaimer</translation>
    </message>
    <message>
        <source>Document name</source>
        <translation>Documentnaam</translation>
    </message>
    <message>
        <source>Edit status</source>
        <translation>Bewerkingsstatus</translation>
    </message>
    <message>
        <source>Editorial update</source>
        <translation>Redactionele bijwerking</translation>
    </message>
    <message>
        <source>Exif version</source>
        <translation>Exif-versie</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Vervaldatum</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Vervaltijd</translation>
    </message>
    <message>
        <source>Exposure bias value</source>
        <translation>Belichtingscorrectie</translation>
    </message>
    <message>
        <source>Exposure index</source>
        <translation>Belichtingsindex</translation>
    </message>
    <message>
        <source>Exposure mode</source>
        <translation>Belichtingsmodus</translation>
    </message>
    <message>
        <source>Exposure program</source>
        <translation>Belichtingsprogramma</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>Belichtingstijd</translation>
    </message>
    <message>
        <source>F-number</source>
        <translation>F-getal</translation>
    </message>
    <message>
        <source>File source</source>
        <translation>Bestandsbron</translation>
    </message>
    <message>
        <source>Fixture identifier</source>
        <translation>Vaste identificatie</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Flitser</translation>
    </message>
    <message>
        <source>Flash energy</source>
        <translation>Flitsenergie</translation>
    </message>
    <message>
        <source>FlashPix version</source>
        <translation>FlashPix-versie</translation>
    </message>
    <message>
        <source>Focal length in 35 mm film</source>
        <translation>Brandpuntsafstand bij 35 mm</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Brandpuntsafstand</translation>
    </message>
    <message>
        <source>Focal plane resolution unit</source>
        <translation>Eenheid brandvlakresolutie</translation>
    </message>
    <message>
        <source>Focal plane X resolution</source>
        <translation>X-resolutie brandvlak</translation>
    </message>
    <message>
        <source>Focal plane Y resolution</source>
        <translation>Y-resolutie brandvlak</translation>
    </message>
    <message>
        <source>GPS version</source>
        <translation>GPS-versie</translation>
    </message>
    <message>
        <source>Gain control</source>
        <translation>Versterkingsregeling</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Horizontal positioning error</source>
        <translation>Horizontale positiefout</translation>
    </message>
    <message>
        <source>Has alpha</source>
        <translation>Heeft alfakanaal</translation>
    </message>
    <message>
        <source>Has global colour map</source>
        <translation>Globale kleurentabel</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>Kop</translation>
    </message>
    <message>
        <source>Host computer</source>
        <translation>Hostcomputer</translation>
    </message>
    <message>
        <source>Humidity</source>
        <translation>Luchtvochtigheid</translation>
    </message>
    <message>
        <source>ISO speed</source>
        <translation>ISO-waarde</translation>
    </message>
    <message>
        <source>ISO speed latitude yyy</source>
        <translation>ISO-speelruimte yyy</translation>
    </message>
    <message>
        <source>ISO speed latitude zzz</source>
        <translation>ISO-speelruimte zzz</translation>
    </message>
    <message>
        <source>ISO speed ratings</source>
        <translation>ISO-gevoeligheid</translation>
    </message>
    <message>
        <source>Image description</source>
        <translation>Afbeeldingsbeschrijving</translation>
    </message>
    <message>
        <source>Image history</source>
        <translation>Afbeeldingsgeschiedenis</translation>
    </message>
    <message>
        <source>Image ID</source>
        <translation>Afbeeldings-ID</translation>
    </message>
    <message>
        <source>Image height</source>
        <translation>Afbeeldingshoogte</translation>
    </message>
    <message>
        <source>Image number</source>
        <translation>Afbeeldingsnummer</translation>
    </message>
    <message>
        <source>Image orientation</source>
        <translation>Afbeeldingsstand</translation>
    </message>
    <message>
        <source>Image type</source>
        <translation>Afbeeldingstype</translation>
    </message>
    <message>
        <source>Unique image ID</source>
        <translation>Unieke afbeeldings-ID</translation>
    </message>
    <message>
        <source>Image width</source>
        <translation>Afbeeldingsbreedte</translation>
    </message>
    <message>
        <source>Image direction</source>
        <translation>Opnamerichting</translation>
    </message>
    <message>
        <source>Image direction reference</source>
        <translation>Referentie opnamerichting</translation>
    </message>
    <message>
        <source>Interlace</source>
        <translation>Interliniëring</translation>
    </message>
    <message>
        <source>Interlace type</source>
        <translation>Type interliniëring</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Locatie</translation>
    </message>
    <message>
        <source>Is progressive</source>
        <translation>Is progressief</translation>
    </message>
    <message>
        <source>JFIF version</source>
        <translation>JFIF-versie</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Trefwoorden</translation>
    </message>
    <message>
        <source>Language identifier</source>
        <translation>Taalcode</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breedtegraad</translation>
    </message>
    <message>
        <source>Latitude reference</source>
        <translation>Referentie breedtegraad</translation>
    </message>
    <message>
        <source>Lens make</source>
        <translation>Lensfabrikant</translation>
    </message>
    <message>
        <source>Lens model</source>
        <translation>Lensmodel</translation>
    </message>
    <message>
        <source>Lens serial number</source>
        <translation>Serienummer lens</translation>
    </message>
    <message>
        <source>Lens range</source>
        <translation>Lensbereik</translation>
    </message>
    <message>
        <source>Light source</source>
        <translation>Lichtbron</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Lengtegraad</translation>
    </message>
    <message>
        <source>Longitude reference</source>
        <translation>Referentie lengtegraad</translation>
    </message>
    <message>
        <source>Loop count</source>
        <translation>Aantal herhalingen</translation>
    </message>
    <message>
        <source>Camera make</source>
        <translation>Camerafabrikant</translation>
    </message>
    <message>
        <source>Maker note</source>
        <translation>Fabrikantnotitie</translation>
    </message>
    <message>
        <source>Map datum</source>
        <translation>Geodetisch datum</translation>
    </message>
    <message>
        <source>Largest aperture value</source>
        <translation>Grootste diafragmaopening</translation>
    </message>
    <message>
        <source>Measure mode</source>
        <translation>GPS-meetmodus</translation>
    </message>
    <message>
        <source>Metering mode</source>
        <translation>Lichtmeetmethode</translation>
    </message>
    <message>
        <source>Camera model</source>
        <translation>Cameramodel</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Ruis</translation>
    </message>
    <message>
        <source>Opto-electric conversion function</source>
        <translation>Opto-elektrische omzettingsfunctie</translation>
    </message>
    <message>
        <source>Object attribute reference</source>
        <translation>Referentie objectkenmerk</translation>
    </message>
    <message>
        <source>Object cycle</source>
        <translation>Objectcyclus</translation>
    </message>
    <message>
        <source>Object name</source>
        <translation>Objectnaam</translation>
    </message>
    <message>
        <source>Object type reference</source>
        <translation>Referentie objecttype</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Tijdzone</translation>
    </message>
    <message>
        <source>Time zone, digitized</source>
        <translation>Tijdzone, digitalisering</translation>
    </message>
    <message>
        <source>Time zone, original</source>
        <translation>Tijdzone, opname</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>Original transmission reference</source>
        <translation>Oorspronkelijke transmissiereferentie</translation>
    </message>
    <message>
        <source>Originating program</source>
        <translation>Oorspronkelijk programma</translation>
    </message>
    <message>
        <source>Page name</source>
        <translation>Paginanaam</translation>
    </message>
    <message>
        <source>Page number</source>
        <translation>Paginanummer</translation>
    </message>
    <message>
        <source>Photometric interpretation</source>
        <translation>Fotometrische interpretatie</translation>
    </message>
    <message>
        <source>Pixel height</source>
        <translation>Hoogte in pixels</translation>
    </message>
    <message>
        <source>Pixel width</source>
        <translation>Breedte in pixels</translation>
    </message>
    <message>
        <source>Pixel X dimension</source>
        <translation>Pixelmaat X</translation>
    </message>
    <message>
        <source>Pixel Y dimension</source>
        <translation>Pixelmaat Y</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Luchtdruk</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Voorvertoning</translation>
    </message>
    <message>
        <source>Preview format</source>
        <translation>Indeling van de voorvertoning</translation>
    </message>
    <message>
        <source>Preview version</source>
        <translation>Versie van de voorvertoning</translation>
    </message>
    <message>
        <source>Primary chromaticities</source>
        <translation>Primaire chromaticiteiten</translation>
    </message>
    <message>
        <source>Processing method</source>
        <translation>Verwerkingsmethode</translation>
    </message>
    <message>
        <source>Processing software</source>
        <translation>Verwerkingssoftware</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>Profielnaam</translation>
    </message>
    <message>
        <source>Program version</source>
        <translation>Programmaversie</translation>
    </message>
    <message>
        <source>Province or state</source>
        <translation>Provincie of staat</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Waardering</translation>
    </message>
    <message>
        <source>Rating in %</source>
        <translation>Beoordeling in %</translation>
    </message>
    <message>
        <source>Recommended exposure index</source>
        <translation>Aanbevolen belichtingsindex</translation>
    </message>
    <message>
        <source>Reference black and white</source>
        <translation>Referentie zwart en wit</translation>
    </message>
    <message>
        <source>Reference date</source>
        <translation>Referentiedatum</translation>
    </message>
    <message>
        <source>Reference number</source>
        <translation>Referentienummer</translation>
    </message>
    <message>
        <source>Reference service</source>
        <translation>Referentiedienst</translation>
    </message>
    <message>
        <source>Related sound file</source>
        <translation>Bijbehorend geluidsbestand</translation>
    </message>
    <message>
        <source>Release date</source>
        <translation>Vrijgavedatum</translation>
    </message>
    <message>
        <source>Release time</source>
        <translation>Vrijgavetijd</translation>
    </message>
    <message>
        <source>Resolution unit</source>
        <translation>Resolutie-eenheid</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Satellieten</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Verzadiging</translation>
    </message>
    <message>
        <source>Scene capture type</source>
        <translation>Soort opname</translation>
    </message>
    <message>
        <source>Scene type</source>
        <translation>Soort scène</translation>
    </message>
    <message>
        <source>Security classification</source>
        <translation>Beveiligingsklasse</translation>
    </message>
    <message>
        <source>Self-timer mode</source>
        <translation>Zelfontspannermodus</translation>
    </message>
    <message>
        <source>Sensing method</source>
        <translation>Sensormethode</translation>
    </message>
    <message>
        <source>Sensitivity type</source>
        <translation>Gevoeligheidstype</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Scherpte</translation>
    </message>
    <message>
        <source>Shutter speed value</source>
        <translation>Sluitertijd</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Bron</translation>
    </message>
    <message>
        <source>Source exposure times of composite image</source>
        <translation>Belichtingstijden van samengestelde opname</translation>
    </message>
    <message>
        <source>Source image number of composite image</source>
        <translation>Aantal beelden van samengestelde opname</translation>
    </message>
    <message>
        <source>Spatial frequency response</source>
        <translation>Ruimtelijke frequentierespons</translation>
    </message>
    <message>
        <source>Special instructions</source>
        <translation>Speciale instructies</translation>
    </message>
    <message>
        <source>Spectral sensitivity</source>
        <translation>Spectrale gevoeligheid</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Snelheid</translation>
    </message>
    <message>
        <source>Speed reference</source>
        <translation>Snelheidsreferentie</translation>
    </message>
    <message>
        <source>Standard output sensitivity</source>
        <translation>Standaarduitvoergevoeligheid</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Sub-location</source>
        <translation>Sublocatie</translation>
    </message>
    <message>
        <source>Subject area</source>
        <translation>Onderwerpgebied</translation>
    </message>
    <message>
        <source>Subject distance range</source>
        <translation>Afstandsbereik onderwerp</translation>
    </message>
    <message>
        <source>Subject distance</source>
        <translation>Onderwerpsafstand</translation>
    </message>
    <message>
        <source>Subject location</source>
        <translation>Onderwerppositie</translation>
    </message>
    <message>
        <source>Subject reference</source>
        <translation>Onderwerpreferentie</translation>
    </message>
    <message>
        <source>Fraction of the second</source>
        <translation>Secondefractie</translation>
    </message>
    <message>
        <source>Fraction of the second, digitized</source>
        <translation>Secondefractie, digitalisering</translation>
    </message>
    <message>
        <source>Fraction of the second, original</source>
        <translation>Secondefractie, opname</translation>
    </message>
    <message>
        <source>Supplemental category</source>
        <translation>Aanvullende categorie</translation>
    </message>
    <message>
        <source>TIFF/EP standard ID</source>
        <translation>TIFF/EP-standaard-ID</translation>
    </message>
    <message>
        <source>Target printer</source>
        <translation>Doelprinter</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatuur</translation>
    </message>
    <message>
        <source>Time created</source>
        <translation>Aanmaaktijdstip</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Tijd (UTC)</translation>
    </message>
    <message>
        <source>Time zone offset</source>
        <translation>Tijdzoneverschil</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Direction of movement</source>
        <translation>Bewegingsrichting</translation>
    </message>
    <message>
        <source>Direction of movement reference</source>
        <translation>Referentie bewegingsrichting</translation>
    </message>
    <message>
        <source>Transfer function</source>
        <translation>Overdrachtsfunctie</translation>
    </message>
    <message>
        <source>Urgency</source>
        <translation>Urgentie</translation>
    </message>
    <message>
        <source>User comment</source>
        <translation>Gebruikersopmerking</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Waarschuwing</translation>
    </message>
    <message>
        <source>Water depth</source>
        <translation>Waterdiepte</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Witbalans</translation>
    </message>
    <message>
        <source>White point</source>
        <translation>Witpunt</translation>
    </message>
    <message>
        <source>Writer or editor</source>
        <translation>Schrijver of redacteur</translation>
    </message>
    <message>
        <source>X density</source>
        <translation>X-dichtheid</translation>
    </message>
    <message>
        <source>Author (Windows)</source>
        <translation>Auteur (Windows)</translation>
    </message>
    <message>
        <source>Comment (Windows)</source>
        <translation>Opmerking (Windows)</translation>
    </message>
    <message>
        <source>Keywords (Windows)</source>
        <translation>Trefwoorden (Windows)</translation>
    </message>
    <message>
        <source>Subject (Windows)</source>
        <translation>Onderwerp (Windows)</translation>
    </message>
    <message>
        <source>Title (Windows)</source>
        <translation>Titel (Windows)</translation>
    </message>
    <message>
        <source>X pixels per metre</source>
        <translation>X-pixels per meter</translation>
    </message>
    <message>
        <source>X position</source>
        <translation>X-positie</translation>
    </message>
    <message>
        <source>X resolution</source>
        <translation>X-resolutie</translation>
    </message>
    <message>
        <source>YCbCr coefficients</source>
        <translation>YCbCr-coëfficiënten</translation>
    </message>
    <message>
        <source>YCbCr positioning</source>
        <translation>YCbCr-positionering</translation>
    </message>
    <message>
        <source>YCbCr subsampling</source>
        <translation>YCbCr-subsampling</translation>
    </message>
    <message>
        <source>Y density</source>
        <translation>Y-dichtheid</translation>
    </message>
    <message>
        <source>Y pixels per metre</source>
        <translation>Y-pixels per meter</translation>
    </message>
    <message>
        <source>Y position</source>
        <translation>Y-positie</translation>
    </message>
    <message>
        <source>Y resolution</source>
        <translation>Y-resolutie</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Lens</translation>
    </message>
    <message>
        <source>Lens info</source>
        <translation>Lensinformatie</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Serienummer</translation>
    </message>
    <message>
        <source>Contributor</source>
        <translation>Medewerker</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Dekking</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Maker</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Indeling</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identificatie</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Taal</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Uitgever</translation>
    </message>
    <message>
        <source>Relation</source>
        <translation>Relatie</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Rechten</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Author&apos;s position</source>
        <translation>Functie van auteur</translation>
    </message>
    <message>
        <source>Caption writer</source>
        <translation>Schrijver van bijschrift</translation>
    </message>
    <message>
        <source>Colour mode</source>
        <translation>Kleurmodus</translation>
    </message>
    <message>
        <source>ICC profile</source>
        <translation>ICC-profiel</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instructies</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Staat</translation>
    </message>
    <message>
        <source>Supplemental categories</source>
        <translation>Aanvullende categorieën</translation>
    </message>
    <message>
        <source>Transmission reference</source>
        <translation>Transmissiereferentie</translation>
    </message>
    <message>
        <source>sRGB intent</source>
        <translation>sRGB-weergavemethode</translation>
    </message>
    <message>
        <source>Create date</source>
        <translation>Gemaakt op</translation>
    </message>
    <message>
        <source>Creator tool</source>
        <translation>Gemaakt met</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Metadata date</source>
        <translation>Metadatadatum</translation>
    </message>
    <message>
        <source>Modify date</source>
        <translation>Gewijzigd op</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Bijnaam</translation>
    </message>
    <message>
        <source>Document ID</source>
        <translation>Document-ID</translation>
    </message>
    <message>
        <source>Instance ID</source>
        <translation>Exemplaar-ID</translation>
    </message>
    <message>
        <source>Original document ID</source>
        <translation>Oorspronkelijke document-ID</translation>
    </message>
    <message>
        <source>Rights marked</source>
        <translation>Auteursrecht gemarkeerd</translation>
    </message>
    <message>
        <source>Rights owner</source>
        <translation>Rechthebbende</translation>
    </message>
    <message>
        <source>Rights usage terms</source>
        <translation>Gebruiksvoorwaarden</translation>
    </message>
    <message>
        <source>Rights web statement</source>
        <translation>Webverklaring rechten</translation>
    </message>
    <message>
        <source>Exif</source>
        <translation>Exif</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>GPS</source>
        <translation>GPS</translation>
    </message>
    <message>
        <source>IPTC</source>
        <translation>IPTC</translation>
    </message>
    <message>
        <source>JFIF</source>
        <translation>JFIF</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>XMP</source>
        <translation>XMP</translation>
    </message>
</context>
<context>
    <name>recent</name>
    <message>
        <source>Clear Menu</source>
        <translation>Menu wissen</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 bestaat niet meer</translation>
    </message>
</context>
<context>
    <name>recipe</name>
    <message>
        <source>%1 has no transparency: transparent parts become %2</source>
        <translation>%1 kent geen transparantie: transparante delen worden %2</translation>
    </message>
    <message>
        <source>%1 has 8 bits per channel, the picture has more</source>
        <translation>%1 heeft 8 bits per kanaal, de foto meer</translation>
    </message>
    <message>
        <source>%1 cannot hold the colour profile: colours become sRGB</source>
        <translation>%1 kan het kleurprofiel niet bevatten: kleuren worden sRGB</translation>
    </message>
    <message>
        <source>%1 has at most 256 colours</source>
        <translation>%1 heeft hoogstens 256 kleuren</translation>
    </message>
    <message>
        <source>Only the first picture is kept</source>
        <translation>Alleen de eerste foto blijft behouden</translation>
    </message>
    <message>
        <source>The gain map is left out</source>
        <translation>De gain map wordt weggelaten</translation>
    </message>
    <message>
        <source>The motion picture is left out</source>
        <translation>Het bewegende beeld wordt weggelaten</translation>
    </message>
    <message>
        <source>XMP beyond the first 64 KB is left out</source>
        <translation>XMP voorbij de eerste 64 kB vervalt</translation>
    </message>
    <message>
        <source>Signed content credentials are left out, since they do not match a changed file</source>
        <translation>Ondertekende herkomstgegevens vervallen, omdat ze niet bij een gewijzigd bestand passen</translation>
    </message>
    <message>
        <source>Data after the end of the picture is left out</source>
        <translation>Gegevens na het einde van de foto vervallen</translation>
    </message>
    <message>
        <source>%1 holds metadata as XMP only, without maker notes</source>
        <translation>%1 bevat metadata alleen als XMP, zonder notities van de fabrikant</translation>
    </message>
    <message>
        <source>%1 cannot hold metadata</source>
        <translation>%1 kan geen metadata bevatten</translation>
    </message>
    <message>
        <source>Other pictures in the file that are left out: %1</source>
        <translation>Verdere foto’s van het bestand die worden weggelaten: %1</translation>
    </message>
    <message>
        <source>Pictures of this type can be read but not written; choose another type</source>
        <translation>Foto’s van dit type kunnen worden gelezen maar niet geschreven; kies een ander type</translation>
    </message>
    <message>
        <source>A picture of %1 × %2 pixels cannot be made</source>
        <translation>Een foto van %1 × %2 pixels is niet mogelijk</translation>
    </message>
    <message>
        <source>Nothing of the picture is left</source>
        <translation>Er blijft niets van de foto over</translation>
    </message>
    <message>
        <source>Data that the camera maker or a program keeps outside EXIF is left out</source>
        <translation>Gegevens die de camerafabrikant of een programma buiten EXIF bewaart, vervallen</translation>
    </message>
    <message>
        <source>a number above %1, to %2</source>
        <translation>een getal boven %1, tot %2</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>een geheel getal van %1 tot %2</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>een getal van %1 tot %2</translation>
    </message>
    <message>
        <source>%1, not %2</source>
        <translation>%1, niet %2</translation>
    </message>
    <message>
        <source>a list of %1 numbers</source>
        <translation>een lijst van %1 getallen</translation>
    </message>
    <message>
        <source>text</source>
        <translation>tekst</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true of false</translation>
    </message>
    <message>
        <source>a colour such as #ff8000 or #ff800080</source>
        <translation>een kleur zoals #ff8000 of #ff800080</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>een lijst</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>een object</translation>
    </message>
    <message>
        <source>it cannot be used together with %1</source>
        <translation>het kan niet samen met %1 worden gebruikt</translation>
    </message>
    <message>
        <source>one of %1 is missing</source>
        <translation>een van %1 ontbreekt</translation>
    </message>
    <message>
        <source>unknown key</source>
        <translation>onbekende sleutel</translation>
    </message>
    <message>
        <source>it applies only if &quot;fit&quot; is &quot;fill&quot; or &quot;pad&quot;</source>
        <translation>deze sleutel geldt alleen met “fit” gelijk aan “fill” of “pad”</translation>
    </message>
    <message>
        <source>it applies only if &quot;fit&quot; is &quot;pad&quot;</source>
        <translation>deze sleutel geldt alleen met “fit” gelijk aan “pad”</translation>
    </message>
    <message>
        <source>it applies only with &quot;box&quot;</source>
        <translation>deze sleutel geldt alleen met “box”</translation>
    </message>
    <message>
        <source>two numbers separated by a colon such as 3:2, not "%1"</source>
        <translation>twee getallen met een dubbele punt ertussen zoals 3:2, niet “%1”</translation>
    </message>
    <message>
        <source>it is required with %1</source>
        <translation>het is verplicht bij %1</translation>
    </message>
    <message>
        <source>it applies only with &quot;ratio&quot;</source>
        <translation>deze sleutel geldt alleen met “ratio”</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>het ontbreekt</translation>
    </message>
    <message>
        <source>it applies only with a rectangle</source>
        <translation>deze sleutel geldt alleen voor een rechthoek</translation>
    </message>
    <message>
        <source>there is no picture "%1"</source>
        <translation>er is geen afbeelding “%1”</translation>
    </message>
    <message>
        <source>a text that is not empty</source>
        <translation>een tekst die niet leeg is</translation>
    </message>
    <message>
        <source>there is no font "%1"</source>
        <translation>er is geen lettertype “%1”</translation>
    </message>
    <message>
        <source>it applies only with a text</source>
        <translation>deze sleutel geldt alleen voor een tekst</translation>
    </message>
    <message>
        <source>sRGB, Display P3, Adobe RGB, gray or the path of an ICC file, not "%1"</source>
        <translation>sRGB, Display P3, Adobe RGB, gray of het pad van een ICC-bestand, niet “%1”</translation>
    </message>
    <message>
        <source>The pixels cannot stay as they are</source>
        <translation>De pixels kunnen niet blijven zoals ze zijn</translation>
    </message>
    <message>
        <source>It does not fit into %1 bytes</source>
        <translation>Het past niet in %1 bytes</translation>
    </message>
    <message>
        <source>this type has no quality</source>
        <translation>dit type heeft geen kwaliteit</translation>
    </message>
    <message>
        <source>this type has no lossless option</source>
        <translation>dit type heeft geen keuze voor verliesvrij</translation>
    </message>
    <message>
        <source>a name that is not empty</source>
        <translation>een naam die niet leeg is</translation>
    </message>
    <message>
        <source>a name without &quot;/&quot;; for folders, use &quot;folder&quot;</source>
        <translation>een naam zonder “/”; gebruik “folder” voor mappen</translation>
    </message>
    <message>
        <source>the version of the recipe is missing</source>
        <translation>de versie van het recept ontbreekt</translation>
    </message>
    <message>
        <source>this recipe has version %1, but this program supports versions up to %2 only</source>
        <translation>dit recept heeft versie %1, maar dit programma ondersteunt alleen versies tot %2</translation>
    </message>
    <message>
        <source>at least one output</source>
        <translation>ten minste één uitvoer</translation>
    </message>
    <message>
        <source>the list of outputs is missing</source>
        <translation>de lijst van uitvoer ontbreekt</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>regel %1: %2</translation>
    </message>
    <message>
        <source>a recipe must be a JSON object</source>
        <translation>een recept moet een JSON-object zijn</translation>
    </message>
    <message>
        <source>a recipe cannot be larger than 4 MB</source>
        <translation>een recept kan niet groter zijn dan 4 MB</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 is alleen-lezen</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kan niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>no free name found</source>
        <translation>geen vrije naam gevonden</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>dat bestand bestaat niet</translation>
    </message>
    <message>
        <source>not an ordinary file</source>
        <translation>geen gewoon bestand</translation>
    </message>
    <message>
        <source>file already exists</source>
        <translation>bestand bestaat al</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>het kan niet worden gelezen</translation>
    </message>
    <message>
        <source>not enough memory to show it</source>
        <translation>niet genoeg geheugen om het te tonen</translation>
    </message>
    <message>
        <source>no result</source>
        <translation>geen resultaat</translation>
    </message>
    <message>
        <source>outputs: exactly one</source>
        <translation>outputs: precies één</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1 kan niet worden gestart: %2</translation>
    </message>
    <message>
        <source>a worker process ended while starting</source>
        <translation>een werkproces stopte bij het starten</translation>
    </message>
    <message>
        <source>it took longer than %1 seconds</source>
        <translation>het duurde langer dan %1 seconden</translation>
    </message>
    <message>
        <source>it needs more than %1 MB of memory</source>
        <translation>het vraagt meer dan %1 MB geheugen</translation>
    </message>
    <message>
        <source>its reader crashed</source>
        <translation>het leesprogramma is vastgelopen</translation>
    </message>
    <message>
        <source>the recipe cannot be run</source>
        <translation>het recept kan niet worden uitgevoerd</translation>
    </message>
    <message>
        <source>%1 with %2 megapixels needs more than 1.5 GB of memory; use at most %3, or choose another type</source>
        <translation>%1 met %2 megapixels heeft meer dan 1,5 GB geheugen nodig; gebruik hoogstens %3 of kies een ander type</translation>
    </message>
    <message>
        <source>it is up to date</source>
        <translation>het is actueel</translation>
    </message>
    <message>
        <source>reading was stopped because it took too long</source>
        <translation>het lezen duurde te lang en is gestopt</translation>
    </message>
    <message>
        <source>writing was stopped because it took too long</source>
        <translation>het schrijven duurde te lang en is gestopt</translation>
    </message>
    <message>
        <source>it contains half a character, %1</source>
        <translation>bevat een half teken, %1</translation>
    </message>
    <message>
        <source>it is there twice</source>
        <translation>staat er twee keer</translation>
    </message>
    <message>
        <source>Metadata of its sidecar file is left out, since the file is copied</source>
        <translation>Metadata van het sidecarbestand ontbreekt, omdat het bestand wordt gekopieerd</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become white</source>
        <translation>%1 kent geen transparantie: transparante delen worden wit</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become black</source>
        <translation>%1 kent geen transparantie: transparante delen worden zwart</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become grey</source>
        <translation>%1 kent geen transparantie: transparante delen worden grijs</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become red</source>
        <translation>%1 kent geen transparantie: transparante delen worden rood</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become green</source>
        <translation>%1 kent geen transparantie: transparante delen worden groen</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become blue</source>
        <translation>%1 kent geen transparantie: transparante delen worden blauw</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become yellow</source>
        <translation>%1 kent geen transparantie: transparante delen worden geel</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 is geen map</translation>
    </message>
    <message>
        <source>Its pixels are compressed in a way that is not supported</source>
        <translation>De pixels zijn gecomprimeerd op een manier die niet wordt ondersteund</translation>
    </message>
    <message>
        <source>no font is installed, so no text can be drawn</source>
        <translation>er is geen lettertype geïnstalleerd, dus kan er geen tekst worden getekend</translation>
    </message>
</context>
<context>
    <name>recipe-action</name>
    <message>
        <source>Recipe</source>
        <translation>Recept</translation>
    </message>
    <message numerus="yes">
        <source>Run Recipe on %n Pictures</source>
        <translation>
            <numerusform>Recept op %n foto toepassen</numerusform>
            <numerusform>Recept op %n foto’s toepassen</numerusform>
        </translation>
    </message>
    <message>
        <source>Work on the recipe</source>
        <translation>Het werk volgens het recept</translation>
    </message>
</context>
<context>
    <name>recipe-base</name>
    <message>
        <source>Folder of each picture</source>
        <translation>Map van elke foto</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Map kiezen…</translation>
    </message>
    <message>
        <source>Save results to</source>
        <translation>Resultaten bewaren in</translation>
    </message>
</context>
<context>
    <name>recipe-field</name>
    <message>
        <source>Top left</source>
        <translation>Linksboven</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Boven</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Rechtsboven</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Midden</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Linksonder</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Onder</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Rechtsonder</translation>
    </message>
    <message>
        <source>Save results to</source>
        <translation>Resultaten bewaren in</translation>
    </message>
</context>
<context>
    <name>recipe-files</name>
    <message>
        <source>Archive as lossless JPEG 2000</source>
        <translation>Archief als verliesvrije JPEG 2000</translation>
    </message>
    <message>
        <source>Copyright watermark</source>
        <translation>Copyright-watermerk</translation>
    </message>
    <message>
        <source>Mail under 1 MB</source>
        <translation>E-mail onder 1 MB</translation>
    </message>
    <message>
        <source>Print 10 × 15 at 300 dpi</source>
        <translation>Afdruk 10 × 15 op 300 dpi</translation>
    </message>
    <message>
        <source>Square on white</source>
        <translation>Vierkant op wit</translation>
    </message>
    <message>
        <source>Web gallery</source>
        <translation>Webgalerie</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Geef een naam op.</translation>
    </message>
    <message>
        <source>A name cannot contain a slash or begin with a dot.</source>
        <translation>Een naam mag geen schuine streep bevatten en niet met een punt beginnen.</translation>
    </message>
    <message>
        <source>A recipe named “%1” already exists.</source>
        <translation>Er is al een recept “%1”.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>%1 is not a recipe: %2</source>
        <translation>%1 is geen recept: %2</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash.</source>
        <translation>%1 kon niet naar de prullenbak worden verplaatst.</translation>
    </message>
</context>
<context>
    <name>recipe-head</name>
    <message>
        <source>New recipe</source>
        <translation>Nieuw recept</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, gewijzigd</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>gewijzigd</translation>
    </message>
    <message>
        <source>Opened from %1</source>
        <translation>Geopend uit %1</translation>
    </message>
    <message>
        <source>New Recipe</source>
        <translation>Nieuw recept</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Bewaren</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Bewaren als…</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Hernoemen…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Verwijderen…</translation>
    </message>
    <message>
        <source>Restore Unsaved Changes</source>
        <translation>Niet-bewaarde wijzigingen terugzetten</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporteren…</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importeren…</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultaten</translation>
    </message>
    <message>
        <source>The changes to “%1” were not saved. Its menu can restore them.</source>
        <translation>De wijzigingen in “%1” zijn niet bewaard. Het menu van het recept zet ze terug.</translation>
    </message>
    <message>
        <source>My recipe</source>
        <translation>Mijn recept</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Hernoemen</translation>
    </message>
    <message>
        <source>Delete recipe</source>
        <translation>Recept verwijderen</translation>
    </message>
    <message>
        <source>Move the recipe “%1” to the trash?</source>
        <translation>Het recept “%1” naar de prullenbak verplaatsen?</translation>
    </message>
    <message>
        <source>Your current settings are kept.</source>
        <translation>Uw huidige instellingen blijven behouden.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behouden</translation>
    </message>
    <message>
        <source>Export the recipe</source>
        <translation>Het recept exporteren</translation>
    </message>
    <message>
        <source>Recipe exported as %1</source>
        <translation>Recept geëxporteerd als %1</translation>
    </message>
    <message>
        <source>Import a recipe</source>
        <translation>Een recept importeren</translation>
    </message>
</context>
<context>
    <name>recipe-pane</name>
    <message>
        <source>Results</source>
        <translation>Resultaten</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Recept</translation>
    </message>
    <message>
        <source>Search operations</source>
        <translation>Bewerkingen zoeken</translation>
    </message>
    <message>
        <source>It reads:</source>
        <translation>Het leest:</translation>
    </message>
    <message>
        <source>It writes to:</source>
        <translation>Het schrijft naar:</translation>
    </message>
</context>
<context>
    <name>recipe-plan</name>
    <message>
        <source>%1 of %2 files: %3</source>
        <translation>%1 van %2 bestanden: %3</translation>
    </message>
    <message>
        <source>replaces original</source>
        <translation>vervangt origineel</translation>
    </message>
    <message>
        <source>replaces %1</source>
        <translation>vervangt %1</translation>
    </message>
    <message>
        <source>would be written</source>
        <translation>zou worden geschreven</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>gereed</translation>
    </message>
    <message>
        <source>check the recipe</source>
        <translation>controleer het recept</translation>
    </message>
    <message>
        <source>not a readable picture</source>
        <translation>geen leesbare foto</translation>
    </message>
</context>
<context>
    <name>recipe-run</name>
    <message numerus="yes">
        <source>Dry run: %n files would be written</source>
        <translation>
            <numerusform>Proefrun: %n bestand zou worden geschreven</numerusform>
            <numerusform>Proefrun: %n bestanden zouden worden geschreven</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>er is niets geschreven</translation>
    </message>
    <message>
        <source>%1 of %2 files: %3</source>
        <translation>%1 van %2 bestanden: %3</translation>
    </message>
    <message numerus="yes">
        <source>%n files made</source>
        <translation>
            <numerusform>%n bestand gemaakt</numerusform>
            <numerusform>%n bestanden gemaakt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 mislukt</translation>
    </message>
    <message>
        <source>%1 not supported</source>
        <translation>%1 niet ondersteund</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>%1 overgeslagen</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 geschreven</translation>
    </message>
    <message>
        <source>Cancelled:</source>
        <translation>Geannuleerd:</translation>
    </message>
</context>
<context>
    <name>recipe-step</name>
    <message>
        <source>Check what this recipe reads and writes, and allow it first.</source>
        <translation>Controleer eerst wat dit recept leest en schrijft, en sta het daarna toe.</translation>
    </message>
</context>
<context>
    <name>recipe-words</name>
    <message>
        <source>Resize</source>
        <translation>Schalen</translation>
    </message>
    <message>
        <source>To a side, a percentage, megapixels or a box</source>
        <translation>Naar zijde, percentage, megapixels of een vak</translation>
    </message>
    <message>
        <source>scale small large pixels size</source>
        <translation>schalen klein groot pixels formaat</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Bijsnijden</translation>
    </message>
    <message>
        <source>To a ratio or size, or trim the edges</source>
        <translation>Naar verhouding of afmetingen, of randen afsnijden</translation>
    </message>
    <message>
        <source>cut trim ratio</source>
        <translation>snijden bijsnijden verhouding</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Draaien</translation>
    </message>
    <message>
        <source>By any angle, clockwise</source>
        <translation>Over elke hoek, rechtsom</translation>
    </message>
    <message>
        <source>turn angle straighten</source>
        <translation>draaien hoek rechtzetten</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Spiegelen</translation>
    </message>
    <message>
        <source>Horizontally or vertically</source>
        <translation>Horizontaal of verticaal</translation>
    </message>
    <message>
        <source>mirror</source>
        <translation>spiegelen</translation>
    </message>
    <message>
        <source>Round corners</source>
        <translation>Hoeken afronden</translation>
    </message>
    <message>
        <source>Rectangle, circle or ellipse, with a border</source>
        <translation>Rechthoek, cirkel of ellips, met rand</translation>
    </message>
    <message>
        <source>radius circle</source>
        <translation>straal cirkel</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Achtergrond</translation>
    </message>
    <message>
        <source>Fills transparent parts</source>
        <translation>Vult transparante delen</translation>
    </message>
    <message>
        <source>colour pattern transparent</source>
        <translation>kleur patroon doorzichtig</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Omlijsting</translation>
    </message>
    <message>
        <source>Around the picture on all sides</source>
        <translation>Rond de foto, aan alle kanten</translation>
    </message>
    <message>
        <source>border edge</source>
        <translation>rand kant</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Watermerk</translation>
    </message>
    <message>
        <source>A text or a picture over the picture</source>
        <translation>Een tekst of een afbeelding over de foto</translation>
    </message>
    <message>
        <source>copyright logo text stamp</source>
        <translation>copyright logo tekst stempel</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Verscherpen</translation>
    </message>
    <message>
        <source>For the size at that point</source>
        <translation>Voor de afmetingen op dat punt</translation>
    </message>
    <message>
        <source>crisp unsharp</source>
        <translation>scherp onscherp</translation>
    </message>
    <message>
        <source>Colour profile</source>
        <translation>Kleurprofiel</translation>
    </message>
    <message>
        <source>Convert colours to sRGB, Display P3 or another</source>
        <translation>Kleuren omzetten naar sRGB, Display P3 of een ander</translation>
    </message>
    <message>
        <source>icc grey convert</source>
        <translation>icc grijs omzetten</translation>
    </message>
    <message>
        <source>Width %1</source>
        <translation>Breedte %1</translation>
    </message>
    <message>
        <source>Height %1</source>
        <translation>Hoogte %1</translation>
    </message>
    <message>
        <source>Longest side %1</source>
        <translation>Langste zijde %1</translation>
    </message>
    <message>
        <source>Shortest side %1</source>
        <translation>Kortste zijde %1</translation>
    </message>
    <message>
        <source>Box %1</source>
        <translation>Vak %1</translation>
    </message>
    <message>
        <source>Trim %1%</source>
        <translation>%1% afsnijden</translation>
    </message>
    <message>
        <source>Trim %1 px</source>
        <translation>%1 px afsnijden</translation>
    </message>
    <message>
        <source>at the focus of attention</source>
        <translation>rond het opvallendste deel</translation>
    </message>
    <message>
        <source>no file chosen</source>
        <translation>geen bestand gekozen</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>Boven en onder</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Links en rechts</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cirkel</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellips</translation>
    </message>
    <message>
        <source>Radius %1</source>
        <translation>Straal %1</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Laag</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoog</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standaard</translation>
    </message>
    <message>
        <source>lossless</source>
        <translation>verliesvrij</translation>
    </message>
    <message>
        <source>quality %1</source>
        <translation>kwaliteit %1</translation>
    </message>
    <message>
        <source>at most %1 kB</source>
        <translation>hoogstens %1 kB</translation>
    </message>
    <message>
        <source>Output %1: %2</source>
        <translation>Uitvoer %1: %2</translation>
    </message>
</context>
<context>
    <name>recipes</name>
    <message>
        <source>Dry Run: %1</source>
        <translation>Proefrun: %1</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n Originals</source>
        <translation>
            <numerusform>%n origineel vervangen</numerusform>
            <numerusform>%n originelen vervangen</numerusform>
        </translation>
    </message>
    <message>
        <source>Originals are replaced by their results.</source>
        <translation>Originelen worden vervangen door hun resultaat.</translation>
    </message>
    <message numerus="yes">
        <source>%n files are replaced.</source>
        <translation>
            <numerusform>%n bestand wordt vervangen.</numerusform>
            <numerusform>%n bestanden worden vervangen.</numerusform>
        </translation>
    </message>
    <message>
        <source>New names</source>
        <translation>Nieuwe namen</translation>
    </message>
    <message>
        <source>New sizes</source>
        <translation>Nieuwe afmetingen</translation>
    </message>
</context>
<context>
    <name>recovered</name>
    <message numerus="yes">
        <source>%n files have their new names</source>
        <translation>
            <numerusform>%n bestand heeft de nieuwe naam</numerusform>
            <numerusform>%n bestanden hebben hun nieuwe naam</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files restored</source>
        <translation>
            <numerusform>%n bestand hersteld</numerusform>
            <numerusform>%n bestanden hersteld</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files not started</source>
        <translation>
            <numerusform>%n bestand niet begonnen</numerusform>
            <numerusform>%n bestanden niet begonnen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was interrupted and has been cleaned up</source>
        <translation>“%1” is onderbroken en opgeruimd</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>rename-action</name>
    <message>
        <source>Rename</source>
        <translation>Hernoemen</translation>
    </message>
    <message numerus="yes">
        <source>Rename %n Folders</source>
        <translation>
            <numerusform>%n map hernoemen</numerusform>
            <numerusform>%n mappen hernoemen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rename %n Files</source>
        <translation>
            <numerusform>%n bestand hernoemen</numerusform>
            <numerusform>%n bestanden hernoemen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders renamed</source>
        <translation>
            <numerusform>%n map hernoemd</numerusform>
            <numerusform>%n mappen hernoemd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files renamed</source>
        <translation>
            <numerusform>%n bestand hernoemd</numerusform>
            <numerusform>%n bestanden hernoemd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n names restored</source>
        <translation>
            <numerusform>%n naam hersteld</numerusform>
            <numerusform>%n namen hersteld</numerusform>
        </translation>
    </message>
    <message>
        <source>Renaming</source>
        <translation>Het hernoemen</translation>
    </message>
</context>
<context>
    <name>rename-card</name>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Increment</source>
        <translation>Stapgrootte</translation>
    </message>
    <message>
        <source>Restart counter</source>
        <translation>Teller opnieuw starten</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nooit</translation>
    </message>
    <message>
        <source>For each folder</source>
        <translation>Voor elke map</translation>
    </message>
    <message>
        <source>For each date taken</source>
        <translation>Voor elke opnamedatum</translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Schrijfwijze</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>kleine letters</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>HOOFDLETTERS</translation>
    </message>
    <message>
        <source>Words With Capitals</source>
        <translation>Woorden Met Hoofdletter</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Vervangen</translation>
    </message>
    <message>
        <source>With</source>
        <translation>Door</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Invoegen</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Erachter</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Tekens</translation>
    </message>
    <message>
        <source>from the start</source>
        <translation>vanaf het begin</translation>
    </message>
    <message>
        <source>from the end</source>
        <translation>vanaf het einde</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Ervoor</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Van</translation>
    </message>
    <message>
        <source>the left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>the right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>From the</source>
        <translation>Vanaf teken</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Scheidingsteken</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Delen</translation>
    </message>
    <message>
        <source>Join with</source>
        <translation>Verbinden met</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behouden</translation>
    </message>
    <message>
        <source>letters and digits</source>
        <translation>letters en cijfers</translation>
    </message>
    <message>
        <source>letters only</source>
        <translation>alleen letters</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Overige</translation>
    </message>
    <message>
        <source>Accents</source>
        <translation>Accenten</translation>
    </message>
    <message>
        <source>as one letter (NFC)</source>
        <translation>als één letter (NFC)</translation>
    </message>
    <message>
        <source>as separate marks (NFD)</source>
        <translation>als apart teken (NFD)</translation>
    </message>
    <message>
        <source>Names that</source>
        <translation>Namen die</translation>
    </message>
    <message>
        <source>contain</source>
        <translation>bevatten</translation>
    </message>
    <message>
        <source>begin with</source>
        <translation>beginnen met</translation>
    </message>
    <message>
        <source>end with</source>
        <translation>eindigen op</translation>
    </message>
    <message>
        <source>all, or 2,1 or -1</source>
        <translation>alle, of 2,1 of -1</translation>
    </message>
    <message>
        <source>{taken} lake {counter:001}</source>
        <translation>{taken} meer {counter:001}</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Extensie</translation>
    </message>
    <message>
        <source>Name and extension</source>
        <translation>Naam en extensie</translation>
    </message>
    <message numerus="yes">
        <source>%n names are too short and stay unchanged.</source>
        <translation>
            <numerusform>%n naam is te kort en blijft ongewijzigd.</numerusform>
            <numerusform>%n namen zijn te kort en blijven ongewijzigd.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>rename-pane</name>
    <message>
        <source>Holiday 2026</source>
        <translation>Vakantie 2026</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Mappen</translation>
    </message>
    <message>
        <source>Search steps</source>
        <translation>Stappen zoeken</translation>
    </message>
    <message>
        <source>Search values</source>
        <translation>Waarden zoeken</translation>
    </message>
    <message>
        <source>You can use up to 30 steps.</source>
        <translation>U kunt tot 30 stappen gebruiken.</translation>
    </message>
    <message>
        <source>Fix the marked step to see the new names.</source>
        <translation>Corrigeer de gemarkeerde stap om de nieuwe namen te zien.</translation>
    </message>
    <message numerus="yes">
        <source>The counter needs more digits: the last number has %n.</source>
        <translation>
            <numerusform>De teller heeft meer cijfers nodig: het laatste nummer heeft er %n.</numerusform>
            <numerusform>De teller heeft meer cijfers nodig: het laatste nummer heeft er %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use %n Digits</source>
        <translation>
            <numerusform>%n cijfer gebruiken</numerusform>
            <numerusform>%n cijfers gebruiken</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>rename-presets</name>
    <message>
        <source>Date and place</source>
        <translation>Datum en plaats</translation>
    </message>
    <message>
        <source>place</source>
        <translation>plaats</translation>
    </message>
    <message>
        <source>Clean for the web</source>
        <translation>Geschikt voor het web</translation>
    </message>
    <message>
        <source>Lower-case extensions</source>
        <translation>Extensies in kleine letters</translation>
    </message>
    <message>
        <source>Date prefix</source>
        <translation>Datum als voorvoegsel</translation>
    </message>
    <message>
        <source>Number suffix</source>
        <translation>Nummer als achtervoegsel</translation>
    </message>
</context>
<context>
    <name>rename-step</name>
    <message>
        <source>files: %1</source>
        <translation>bestanden: %1</translation>
    </message>
    <message>
        <source>folders: %1</source>
        <translation>mappen: %1</translation>
    </message>
    <message>
        <source>no date taken</source>
        <translation>geen opnamedatum</translation>
    </message>
    <message>
        <source>no date created</source>
        <translation>geen aanmaakdatum</translation>
    </message>
    <message>
        <source>no date changed</source>
        <translation>geen wijzigingsdatum</translation>
    </message>
    <message>
        <source>no value for “%1”</source>
        <translation>geen waarde voor “%1”</translation>
    </message>
    <message>
        <source>undated</source>
        <translation>zonder datum</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>onbekend</translation>
    </message>
    <message>
        <source>%1: “%2”</source>
        <translation>%1: “%2”</translation>
    </message>
    <message>
        <source>separates a letter from its accent</source>
        <translation>scheidt een letter van het accent</translation>
    </message>
    <message>
        <source>would split a character</source>
        <translation>zou een teken splitsen</translation>
    </message>
</context>
<context>
    <name>replacing</name>
    <message>
        <source>Replaced</source>
        <translation>Vervangen</translation>
    </message>
</context>
<context>
    <name>resize-action</name>
    <message>
        <source>Resize</source>
        <translation>Schalen</translation>
    </message>
    <message numerus="yes">
        <source>Resize %n Pictures</source>
        <translation>
            <numerusform>%n foto schalen</numerusform>
            <numerusform>%n foto’s schalen</numerusform>
        </translation>
    </message>
    <message>
        <source>Resizing</source>
        <translation>Het schalen</translation>
    </message>
</context>
<context>
    <name>resize-pane</name>
    <message>
        <source>Width</source>
        <translation>Breedte</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hoogte</translation>
    </message>
    <message>
        <source>Longest side</source>
        <translation>Langste zijde</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Vak</translation>
    </message>
    <message>
        <source>Fill (crops)</source>
        <translation>Vullen (snijdt bij)</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Uitrekken</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Percentage</translation>
    </message>
    <message>
        <source>Fit inside</source>
        <translation>Passend maken</translation>
    </message>
    <message>
        <source>Pad</source>
        <translation>Aanvullen</translation>
    </message>
</context>
<context>
    <name>resize-presets</name>
    <message>
        <source>Web 1600</source>
        <translation>Web 1600</translation>
    </message>
    <message>
        <source>Web</source>
        <translation>Web</translation>
    </message>
    <message>
        <source>Mail 1024</source>
        <translation>E-mail 1024</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Square 1080</source>
        <translation>Vierkant 1080</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Vierkant</translation>
    </message>
    <message>
        <source>Print 15 × 10 cm, 300 dpi</source>
        <translation>Afdruk 15 × 10 cm, 300 dpi</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>Print 10 × 15 cm, 300 dpi</source>
        <translation>Afdruk 10 × 15 cm, 300 dpi</translation>
    </message>
    <message>
        <source>Contact thumbnails</source>
        <translation>Miniaturen voor contactvel</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Miniaturen</translation>
    </message>
</context>
<context>
    <name>resize-step</name>
    <message>
        <source>Resized</source>
        <translation>Geschaald</translation>
    </message>
    <message>
        <source>width %1</source>
        <translation>breedte %1</translation>
    </message>
    <message>
        <source>height %1</source>
        <translation>hoogte %1</translation>
    </message>
    <message>
        <source>longest side %1</source>
        <translation>langste zijde %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>box %1</source>
        <translation>vak %1</translation>
    </message>
    <message>
        <source>Enter a whole number from 1 to %1.</source>
        <translation>Geef een geheel getal op van 1 tot %1.</translation>
    </message>
    <message>
        <source>Enter a number above 0, up to %1.</source>
        <translation>Geef een getal op groter dan 0, tot %1.</translation>
    </message>
</context>
<context>
    <name>resolution-row</name>
    <message>
        <source>Same as the picture</source>
        <translation>Zoals de foto</translation>
    </message>
    <message>
        <source>300 dpi</source>
        <translation>300 dpi</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>dpi</source>
        <translation>dpi</translation>
    </message>
</context>
<context>
    <name>risky-names</name>
    <message>
        <source>other systems reserve the name %1</source>
        <translation>andere systemen reserveren de naam %1</translation>
    </message>
    <message>
        <source>other systems do not allow %1</source>
        <translation>andere systemen staan %1 niet toe</translation>
    </message>
    <message>
        <source>contains a control character</source>
        <translation>bevat een stuurteken</translation>
    </message>
    <message>
        <source>starts with a space</source>
        <translation>begint met een spatie</translation>
    </message>
    <message>
        <source>other systems do not allow a trailing space or dot</source>
        <translation>andere systemen staan geen spatie of punt aan het einde toe</translation>
    </message>
</context>
<context>
    <name>room</name>
    <message>
        <source>The files need %1, but %3 has only %2 free.</source>
        <translation>De bestanden hebben %1 nodig, maar op %3 is slechts %2 vrij.</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 vrij</translation>
    </message>
    <message>
        <source>%1 to be written</source>
        <translation>%1 te schrijven</translation>
    </message>
    <message>
        <source>not enough space (needs %1, %2 free)</source>
        <translation>te weinig ruimte (nodig %1, vrij %2)</translation>
    </message>
    <message>
        <source>This run needs about %1, but %3 has only %2 free.</source>
        <translation>Deze uitvoering heeft ongeveer %1 nodig, maar op %3 is slechts %2 vrij.</translation>
    </message>
    <message>
        <source>the disk of the trash</source>
        <translation>de schijf van de prullenbak</translation>
    </message>
</context>
<context>
    <name>round-action</name>
    <message>
        <source>Round Corners</source>
        <translation>Hoeken afronden</translation>
    </message>
    <message>
        <source>Rounding corners</source>
        <translation>Het afronden van hoeken</translation>
    </message>
    <message numerus="yes">
        <source>Round the Corners of %n Pictures</source>
        <translation>
            <numerusform>Hoeken van %n foto afronden</numerusform>
            <numerusform>Hoeken van %n foto’s afronden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>round-pane</name>
    <message>
        <source>Rectangle</source>
        <translation>Rechthoek</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cirkel</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellips</translation>
    </message>
</context>
<context>
    <name>round-presets</name>
    <message>
        <source>Soft corners</source>
        <translation>Zachte hoeken</translation>
    </message>
    <message>
        <source>Round corners on white</source>
        <translation>Ronde hoeken op wit</translation>
    </message>
    <message>
        <source>Circle portrait</source>
        <translation>Rond portret</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellips</translation>
    </message>
</context>
<context>
    <name>round-step</name>
    <message>
        <source>Rounded</source>
        <translation>Afgerond</translation>
    </message>
    <message>
        <source>corners of %1 px</source>
        <translation>hoeken van %1 px</translation>
    </message>
    <message>
        <source>circle</source>
        <translation>cirkel</translation>
    </message>
    <message>
        <source>ellipse</source>
        <translation>ellips</translation>
    </message>
    <message>
        <source>on %1</source>
        <translation>op %1</translation>
    </message>
    <message>
        <source>border of %1 px</source>
        <translation>rand van %1 px</translation>
    </message>
    <message>
        <source>Enter a radius from 0 to %1.</source>
        <translation>Geef een straal op van 0 tot %1.</translation>
    </message>
    <message>
        <source>Enter a border width from 0 to %1.</source>
        <translation>Geef een randbreedte op van 0 tot %1.</translation>
    </message>
    <message>
        <source>the border would cover the whole picture</source>
        <translation>de rand zou de hele foto bedekken</translation>
    </message>
    <message>
        <source>The circle is cut from the square in the middle.</source>
        <translation>De cirkel wordt uit het vierkant in het midden gesneden.</translation>
    </message>
</context>
<context>
    <name>run-base</name>
    <message>
        <source>Planning…</source>
        <translation>Bezig met plannen…</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>nog %1</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>gepauzeerd</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>Rapport bewaren</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Report saved as %1</source>
        <translation>Rapport bewaard als %1</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>wordt gestopt</translation>
    </message>
</context>
<context>
    <name>run-signs</name>
    <message>
        <source>When done: nothing</source>
        <translation>Na afloop: niets</translation>
    </message>
    <message>
        <source>When done: open folder</source>
        <translation>Na afloop: map openen</translation>
    </message>
    <message>
        <source>When done: close</source>
        <translation>Na afloop: sluiten</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: started</source>
        <translation>%1: begonnen</translation>
    </message>
</context>
<context>
    <name>save-as</name>
    <message>
        <source>Original</source>
        <translation>Origineel</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Bewaard</translation>
    </message>
    <message>
        <source>Choose a picture to save.</source>
        <translation>Kies een foto om te bewaren.</translation>
    </message>
    <message>
        <source>Saved %1, %2</source>
        <translation>%1 bewaard, %2</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Niet bewaard</translation>
    </message>
    <message>
        <source>“%1” could not be written.</source>
        <translation>“%1” kon niet worden geschreven.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>Wait until the picture has been saved.</source>
        <translation>Wacht tot de foto bewaard is.</translation>
    </message>
    <message>
        <source>Saving %1…</source>
        <translation>%1 wordt bewaard…</translation>
    </message>
    <message>
        <source>Save Picture As</source>
        <translation>Foto bewaren als</translation>
    </message>
</context>
<context>
    <name>script::ScriptEngine</name>
    <message>
        <source>Cannot read %1: no such file</source>
        <translation>Kan %1 niet lezen: dat bestand bestaat niet</translation>
    </message>
    <message>
        <source>This is not a function of a script</source>
        <translation>Dit is geen functie van een script</translation>
    </message>
</context>
<context>
    <name>settings-watch</name>
    <message>
        <source>Settings cannot be saved. Your changes apply until you quit.</source>
        <translation>De instellingen kunnen niet worden bewaard. Wijzigingen gelden tot u Quorlin afsluit.</translation>
    </message>
</context>
<context>
    <name>sheet-plan</name>
    <message>
        <source>not a readable picture</source>
        <translation>geen leesbare foto</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>gereed</translation>
    </message>
</context>
<context>
    <name>sheet-run</name>
    <message>
        <source>Cancelled before the first page. Nothing was written.</source>
        <translation>Geannuleerd vóór de eerste pagina. Er is niets geschreven.</translation>
    </message>
    <message>
        <source>Dry run: %1 would be written</source>
        <translation>Proefrun: %1 zou worden geschreven</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n pagina</numerusform>
            <numerusform>%n pagina’s</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>er is niets geschreven</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wacht</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>geannuleerd</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was written.</source>
        <translation>Geannuleerd. Er is niets geschreven.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 mislukt</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 geschreven</translation>
    </message>
</context>
<context>
    <name>sheets</name>
    <message>
        <source>Dry Run: %1</source>
        <translation>Proefrun: %1</translation>
    </message>
    <message>
        <source>%1 is replaced.</source>
        <translation>%1 wordt vervangen.</translation>
    </message>
    <message>
        <source>As %1</source>
        <translation>Als %1</translation>
    </message>
    <message>
        <source>Dry run: write nothing</source>
        <translation>Proefrun: niets schrijven</translation>
    </message>
</context>
<context>
    <name>site-run</name>
    <message>
        <source>done, waiting for the page</source>
        <translation>klaar, wacht op de pagina</translation>
    </message>
    <message>
        <source>not on the page</source>
        <translation>niet op de pagina</translation>
    </message>
    <message>
        <source>no picture could be processed</source>
        <translation>geen enkele foto kon worden verwerkt</translation>
    </message>
    <message>
        <source>cancelled, the page was not made</source>
        <translation>geannuleerd, de pagina is niet gemaakt</translation>
    </message>
    <message>
        <source>the page was not made: %1</source>
        <translation>de pagina is niet gemaakt: %1</translation>
    </message>
    <message>
        <source>The page was not made: %1</source>
        <translation>De pagina is niet gemaakt: %1</translation>
    </message>
</context>
<context>
    <name>sites</name>
    <message>
        <source>The page that Quorlin made in this folder is updated.</source>
        <translation>De pagina van Quorlin in deze map wordt bijgewerkt.</translation>
    </message>
</context>
<context>
    <name>sort-action</name>
    <message numerus="yes">
        <source>Sort %n Files into Folders</source>
        <translation>
            <numerusform>%n bestand in mappen sorteren</numerusform>
            <numerusform>%n bestanden in mappen sorteren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Copy %n Files into Folders</source>
        <translation>
            <numerusform>%n bestand naar mappen kopiëren</numerusform>
            <numerusform>%n bestanden naar mappen kopiëren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Link %n Files into Folders</source>
        <translation>
            <numerusform>%n bestand in mappen linken</numerusform>
            <numerusform>%n bestanden in mappen linken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files sorted</source>
        <translation>
            <numerusform>%n bestand gesorteerd</numerusform>
            <numerusform>%n bestanden gesorteerd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files copied</source>
        <translation>
            <numerusform>%n bestand gekopieerd</numerusform>
            <numerusform>%n bestanden gekopieerd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n links created</source>
        <translation>
            <numerusform>%n link gemaakt</numerusform>
            <numerusform>%n links gemaakt</numerusform>
        </translation>
    </message>
    <message>
        <source>Sort into Folders</source>
        <translation>In mappen sorteren</translation>
    </message>
    <message numerus="yes">
        <source>%n files restored</source>
        <translation>
            <numerusform>%n bestand hersteld</numerusform>
            <numerusform>%n bestanden hersteld</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files moved</source>
        <translation>
            <numerusform>%n bestand verplaatst</numerusform>
            <numerusform>%n bestanden verplaatst</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files linked</source>
        <translation>
            <numerusform>%n bestand gelinkt</numerusform>
            <numerusform>%n bestanden gelinkt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 into %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n map</numerusform>
            <numerusform>%n mappen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders made</source>
        <translation>
            <numerusform>%n map gemaakt</numerusform>
            <numerusform>%n mappen gemaakt</numerusform>
        </translation>
    </message>
    <message>
        <source>Sorting</source>
        <translation>Het sorteren</translation>
    </message>
    <message>
        <source>Into</source>
        <translation>Naar</translation>
    </message>
</context>
<context>
    <name>sort-pane</name>
    <message>
        <source>Put in folder</source>
        <translation>In map zetten</translation>
    </message>
    <message>
        <source>Use date created</source>
        <translation>Aanmaakdatum gebruiken</translation>
    </message>
    <message>
        <source>Use date changed</source>
        <translation>Wijzigingsdatum gebruiken</translation>
    </message>
    <message>
        <source>Do not move</source>
        <translation>Niet verplaatsen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verplaatsen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Linken</translation>
    </message>
    <message>
        <source>Keep both (add a number)</source>
        <translation>Beide behouden (met nummer)</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Overslaan</translation>
    </message>
    <message>
        <source>The originals stay where they are.</source>
        <translation>De originelen blijven waar ze zijn.</translation>
    </message>
    <message>
        <source>Links point to the files where they are now.</source>
        <translation>Een link verwijst naar de plaats waar het bestand nu staat.</translation>
    </message>
    <message>
        <source>Custom pattern</source>
        <translation>Eigen patroon</translation>
    </message>
    <message>
        <source>No more folders</source>
        <translation>Geen verdere mappen</translation>
    </message>
    <message>
        <source>Folder of each picture</source>
        <translation>Map van elke foto</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Map kiezen…</translation>
    </message>
    <message>
        <source>Sort into</source>
        <translation>Sorteren in</translation>
    </message>
    <message>
        <source>%1 has no date and stays.</source>
        <translation>%1 heeft geen datum en blijft.</translation>
    </message>
    <message>
        <source>%1 → %2</source>
        <translation>%1 → %2</translation>
    </message>
</context>
<context>
    <name>sort-presets</name>
    <message>
        <source>By year and day taken</source>
        <translation>Op opnamejaar en -dag</translation>
    </message>
    <message>
        <source>By year and month taken</source>
        <translation>Op opnamejaar en -maand</translation>
    </message>
    <message>
        <source>By day changed</source>
        <translation>Op wijzigingsdag</translation>
    </message>
    <message>
        <source>By camera and day taken</source>
        <translation>Op camera en opnamedag</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Op type</translation>
    </message>
    <message>
        <source>By orientation</source>
        <translation>Op liggend of staand</translation>
    </message>
    <message>
        <source>By file size</source>
        <translation>Op bestandsgrootte</translation>
    </message>
    <message>
        <source>By start of name</source>
        <translation>Op begin van de naam</translation>
    </message>
</context>
<context>
    <name>sort-step</name>
    <message>
        <source>Undated</source>
        <translation>Zonder datum</translation>
    </message>
    <message>
        <source>move into %1</source>
        <translation>verplaatsen naar %1</translation>
    </message>
    <message>
        <source>copy into %1</source>
        <translation>kopiëren naar %1</translation>
    </message>
    <message>
        <source>link into %1</source>
        <translation>linken in %1</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>Choose a folder to sort into.</source>
        <translation>Kies een map om in te sorteren.</translation>
    </message>
    <message>
        <source>no date taken</source>
        <translation>geen opnamedatum</translation>
    </message>
    <message>
        <source>by date created</source>
        <translation>op aanmaakdatum</translation>
    </message>
    <message>
        <source>by date changed</source>
        <translation>op wijzigingsdatum</translation>
    </message>
    <message>
        <source>no date taken: not moved</source>
        <translation>geen opnamedatum: niet verplaatst</translation>
    </message>
    <message>
        <source>a file already has this folder name: %1</source>
        <translation>een bestand heeft al de naam van de map: %1</translation>
    </message>
    <message>
        <source>The file has no date taken.</source>
        <translation>Het bestand heeft geen opnamedatum.</translation>
    </message>
    <message>
        <source>It is already in a folder with the right name.</source>
        <translation>Het bestand staat al in een map met de juiste naam.</translation>
    </message>
</context>
<context>
    <name>sort-tree</name>
    <message>
        <source>No file will be moved.</source>
        <translation>Er wordt geen bestand verplaatst.</translation>
    </message>
    <message>
        <source>%1 into %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n bestand</numerusform>
            <numerusform>%n bestanden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n map</numerusform>
            <numerusform>%n mappen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message numerus="yes">
        <source>%n folders will be made, counting parents</source>
        <translation>
            <numerusform>%n map wordt gemaakt, bovenliggende meegeteld</numerusform>
            <numerusform>%n mappen worden gemaakt, bovenliggende meegeteld</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>sorting</name>
    <message>
        <source>Year taken</source>
        <translation>Opnamejaar</translation>
    </message>
    <message>
        <source>Month taken</source>
        <translation>Opnamemaand</translation>
    </message>
    <message>
        <source>Day taken</source>
        <translation>Opnamedag</translation>
    </message>
    <message>
        <source>Year created</source>
        <translation>Aanmaakjaar</translation>
    </message>
    <message>
        <source>Month created</source>
        <translation>Aanmaakmaand</translation>
    </message>
    <message>
        <source>Day created</source>
        <translation>Aanmaakdag</translation>
    </message>
    <message>
        <source>Year changed</source>
        <translation>Wijzigingsjaar</translation>
    </message>
    <message>
        <source>Month changed</source>
        <translation>Wijzigingsmaand</translation>
    </message>
    <message>
        <source>Day changed</source>
        <translation>Wijzigingsdag</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Bestandstype</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Bestandsgrootte</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Lens</translation>
    </message>
    <message>
        <source>Name up to the first digit</source>
        <translation>Naam tot het eerste cijfer</translation>
    </message>
    <message>
        <source>First letter</source>
        <translation>Eerste letter</translation>
    </message>
    <message>
        <source>First 3 letters</source>
        <translation>Eerste 3 letters</translation>
    </message>
    <message>
        <source>Choose a rule, or write a pattern of folders.</source>
        <translation>Kies een regel of schrijf een patroon van mappen.</translation>
    </message>
    <message>
        <source>A folder cannot be called “.” or “..”.</source>
        <translation>Een map kan niet “.” of “..” heten.</translation>
    </message>
    <message>
        <source>A folder name cannot consist of spaces only.</source>
        <translation>De naam van een map kan niet alleen uit spaties bestaan.</translation>
    </message>
    <message>
        <source>A folder name is too long.</source>
        <translation>De naam van een map is te lang.</translation>
    </message>
    <message>
        <source>A pattern cannot contain control characters.</source>
        <translation>Een patroon mag geen stuurtekens bevatten.</translation>
    </message>
    <message>
        <source>Enter a folder name for pictures without a date.</source>
        <translation>Geef een naam op voor de map met foto’s zonder datum.</translation>
    </message>
    <message>
        <source>“%1” is not a valid folder name.</source>
        <translation>“%1” is geen geldige mapnaam.</translation>
    </message>
    <message>
        <source>Undated</source>
        <translation>Zonder datum</translation>
    </message>
    <message>
        <source>Unknown camera</source>
        <translation>Onbekende camera</translation>
    </message>
    <message>
        <source>Unknown lens</source>
        <translation>Onbekende lens</translation>
    </message>
    <message>
        <source>Unknown size</source>
        <translation>Onbekende grootte</translation>
    </message>
    <message>
        <source>Unknown type</source>
        <translation>Onbekend type</translation>
    </message>
    <message>
        <source>Unknown orientation</source>
        <translation>Onbekende stand</translation>
    </message>
    <message>
        <source>Without extension</source>
        <translation>Zonder extensie</translation>
    </message>
    <message>
        <source>Other names</source>
        <translation>Overige namen</translation>
    </message>
    <message>
        <source>Other folders</source>
        <translation>Overige mappen</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Overige</translation>
    </message>
    <message>
        <source>Not rated</source>
        <translation>Niet beoordeeld</translation>
    </message>
</context>
<context>
    <name>status-bar</name>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Hervatten</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pauzeren</translation>
    </message>
    <message numerus="yes">
        <source>Only failed pictures are shown: %n</source>
        <translation>
            <numerusform>Alleen mislukte foto’s worden getoond: %n</numerusform>
            <numerusform>Alleen mislukte foto’s worden getoond: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>%1 weggelaten</translation>
    </message>
    <message>
        <source>Only pictures with %1 are processed: %2</source>
        <translation>Alleen foto’s met %1 worden verwerkt: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n stars or more</source>
        <translation>
            <numerusform>%n ster of meer</numerusform>
            <numerusform>%n sterren of meer</numerusform>
        </translation>
    </message>
    <message>
        <source>Only pictures that match the filter are processed: %1</source>
        <translation>Alleen foto’s die bij het filter passen, worden verwerkt: %1</translation>
    </message>
</context>
<context>
    <name>step-words</name>
    <message>
        <source>New text</source>
        <translation>Nieuwe tekst</translation>
    </message>
    <message>
        <source>Text with dates, counters and other values</source>
        <translation>Tekst met datums, tellers en andere waarden</translation>
    </message>
    <message>
        <source>token pattern write template</source>
        <translation>code patroon schrijven sjabloon</translation>
    </message>
    <message>
        <source>Change case</source>
        <translation>Schrijfwijze wijzigen</translation>
    </message>
    <message>
        <source>lower case, UPPER CASE, Words</source>
        <translation>kleine letters, HOOFDLETTERS, Woorden</translation>
    </message>
    <message>
        <source>capital small letters</source>
        <translation>hoofdletters kleine letters kapitalen</translation>
    </message>
    <message>
        <source>Replace text</source>
        <translation>Tekst vervangen</translation>
    </message>
    <message>
        <source>Replaces a text everywhere in the name</source>
        <translation>Vervangt een tekst overal in de naam</translation>
    </message>
    <message>
        <source>search find substitute delete</source>
        <translation>zoeken vinden wissen verwijderen</translation>
    </message>
    <message>
        <source>Insert text</source>
        <translation>Tekst invoegen</translation>
    </message>
    <message>
        <source>At a position counted from the start or the end</source>
        <translation>Op een plaats geteld vanaf het begin of het einde</translation>
    </message>
    <message>
        <source>add position</source>
        <translation>toevoegen positie</translation>
    </message>
    <message>
        <source>Add before and after</source>
        <translation>Ervoor en erachter toevoegen</translation>
    </message>
    <message>
        <source>Text before and after the name</source>
        <translation>Tekst voor en achter de naam</translation>
    </message>
    <message>
        <source>prefix suffix append join concatenate</source>
        <translation>voorvoegsel achtervoegsel aanvullen plakken</translation>
    </message>
    <message>
        <source>Remove characters</source>
        <translation>Tekens verwijderen</translation>
    </message>
    <message>
        <source>A number of characters from the left or the right</source>
        <translation>Een aantal tekens van links of van rechts</translation>
    </message>
    <message>
        <source>strip cut trim shorten</source>
        <translation>verwijderen afknippen inkorten</translation>
    </message>
    <message>
        <source>Keep a section</source>
        <translation>Deel behouden</translation>
    </message>
    <message>
        <source>Only the characters at certain positions</source>
        <translation>Alleen de tekens op bepaalde plaatsen</translation>
    </message>
    <message>
        <source>part substring range middle</source>
        <translation>gedeelte bereik midden</translation>
    </message>
    <message>
        <source>Split and join</source>
        <translation>Splitsen en verbinden</translation>
    </message>
    <message>
        <source>Take pieces between separators, in any order</source>
        <translation>Delen tussen scheidingstekens, in elke volgorde</translation>
    </message>
    <message>
        <source>pieces rearrange swap</source>
        <translation>delen omwisselen volgorde</translation>
    </message>
    <message>
        <source>Keep letters and digits</source>
        <translation>Letters en cijfers behouden</translation>
    </message>
    <message>
        <source>Removes all other characters</source>
        <translation>Verwijdert alle andere tekens</translation>
    </message>
    <message>
        <source>remove signs non-letters clean punctuation digits</source>
        <translation>tekens opschonen interpunctie cijfers</translation>
    </message>
    <message>
        <source>Remove spaces</source>
        <translation>Spaties verwijderen</translation>
    </message>
    <message>
        <source>All spaces, also between words</source>
        <translation>Alle spaties, ook tussen woorden</translation>
    </message>
    <message>
        <source>blanks whitespace</source>
        <translation>witruimte blanco</translation>
    </message>
    <message>
        <source>Remove accents (é → e)</source>
        <translation>Accenten verwijderen (é → e)</translation>
    </message>
    <message>
        <source>é becomes e</source>
        <translation>é wordt e</translation>
    </message>
    <message>
        <source>fold ascii umlaut diacritics plain</source>
        <translation>ascii umlaut trema diakritisch gewoon</translation>
    </message>
    <message>
        <source>Normalise accents</source>
        <translation>Accenten normaliseren</translation>
    </message>
    <message>
        <source>For names that come from another system</source>
        <translation>Voor namen die van een ander systeem komen</translation>
    </message>
    <message>
        <source>unicode utf-8 normalise nfc nfd repair</source>
        <translation>unicode utf-8 normaliseren nfc nfd herstellen</translation>
    </message>
    <message>
        <source>Only some names</source>
        <translation>Alleen sommige namen</translation>
    </message>
    <message>
        <source>The steps below apply only to matching names</source>
        <translation>De stappen hieronder gelden voor namen die voldoen</translation>
    </message>
    <message>
        <source>filter condition contains begins ends if</source>
        <translation>filter voorwaarde bevat begint eindigt als</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Teller</translation>
    </message>
    <message>
        <source>001, 002, 003 after the name</source>
        <translation>001, 002, 003 na de naam</translation>
    </message>
    <message>
        <source>number sequence</source>
        <translation>nummer volgnummer reeks</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Opnamedatum</translation>
    </message>
    <message>
        <source>Before the name</source>
        <translation>Voor de naam</translation>
    </message>
    <message>
        <source>exif time shot</source>
        <translation>exif tijd gemaakt</translation>
    </message>
    <message>
        <source>Date changed or created</source>
        <translation>Wijzigings- of aanmaakdatum</translation>
    </message>
    <message>
        <source>modified file time</source>
        <translation>gewijzigd bestand tijd</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>After the name</source>
        <translation>Na de naam</translation>
    </message>
    <message>
        <source>model lens</source>
        <translation>model toestel lens</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>Afmetingen in pixels</translation>
    </message>
    <message>
        <source>width height resolution</source>
        <translation>breedte hoogte resolutie</translation>
    </message>
    <message>
        <source>Name of the folder</source>
        <translation>Naam van de map</translation>
    </message>
    <message>
        <source>directory parent</source>
        <translation>directory bovenliggende</translation>
    </message>
    <message>
        <source>name</source>
        <translation>naam</translation>
    </message>
    <message>
        <source>extension</source>
        <translation>extensie</translation>
    </message>
    <message>
        <source>name and extension</source>
        <translation>naam en extensie</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>niets</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
    <message>
        <source>%1 to lower case</source>
        <translation>%1 in kleine letters</translation>
    </message>
    <message>
        <source>%1 to UPPER CASE</source>
        <translation>%1 in HOOFDLETTERS</translation>
    </message>
    <message>
        <source>%1 to Words With Capitals</source>
        <translation>%1 in Woorden Met Hoofdletter</translation>
    </message>
    <message>
        <source>%1 becomes %2</source>
        <translation>%1 wordt %2</translation>
    </message>
    <message>
        <source>%1, %2 from the end</source>
        <translation>%1, %2 vanaf het einde</translation>
    </message>
    <message>
        <source>%1, %2 from the start</source>
        <translation>%1, %2 vanaf het begin</translation>
    </message>
    <message>
        <source>%1 before, %2 after</source>
        <translation>%1 ervoor, %2 erachter</translation>
    </message>
    <message>
        <source>%1 from the left</source>
        <translation>%1 van links</translation>
    </message>
    <message>
        <source>%1 from the right</source>
        <translation>%1 van rechts</translation>
    </message>
    <message numerus="yes">
        <source>%n characters from the %1.</source>
        <translation>
            <numerusform>%n teken vanaf teken %1</numerusform>
            <numerusform>%n tekens vanaf teken %1</numerusform>
        </translation>
    </message>
    <message>
        <source>at %1, joined by %2</source>
        <translation>bij %1, verbonden met %2</translation>
    </message>
    <message>
        <source>at %1, pieces %3, joined by %2</source>
        <translation>bij %1, delen %3, verbonden met %2</translation>
    </message>
    <message>
        <source>only letters are kept</source>
        <translation>alleen letters blijven</translation>
    </message>
    <message>
        <source>only letters and digits are kept</source>
        <translation>alleen letters en cijfers blijven</translation>
    </message>
    <message>
        <source>all spaces are removed</source>
        <translation>alle spaties worden verwijderd</translation>
    </message>
    <message>
        <source>é becomes e, others %1</source>
        <translation>é wordt e, overige %1</translation>
    </message>
    <message>
        <source>accents as separate marks (NFD)</source>
        <translation>accenten als aparte tekens (NFD)</translation>
    </message>
    <message>
        <source>accents and letters as one (NFC)</source>
        <translation>accenten en letters als één teken (NFC)</translation>
    </message>
    <message>
        <source>that contain %1</source>
        <translation>die %1 bevatten</translation>
    </message>
    <message>
        <source>that begin with %1</source>
        <translation>die beginnen met %1</translation>
    </message>
    <message>
        <source>that end with %1</source>
        <translation>die eindigen op %1</translation>
    </message>
</context>
<context>
    <name>targets</name>
    <message>
        <source>The first page is rendered at 72 pixels per inch.</source>
        <translation>De eerste pagina wordt weergegeven met 72 pixels per inch.</translation>
    </message>
    <message>
        <source>Layers are merged into one picture.</source>
        <translation>Lagen worden samengevoegd tot één foto.</translation>
    </message>
    <message>
        <source>Small files for sharing. The lower the quality, the more detail is lost. Transparent parts get a colour and 16 bits become 8. Colour profile and metadata are kept.</source>
        <translation>Kleine bestanden om te delen. Hoe lager de kwaliteit, hoe meer detail verloren gaat. Transparante delen krijgen een kleur en 16 bits worden 8. Kleurprofiel en metadata blijven behouden.</translation>
    </message>
    <message>
        <source>Nothing is lost: pixels, transparency, 16 bits, colour profile and metadata are kept.</source>
        <translation>Er gaat niets verloren: pixels, transparantie, 16 bits, kleurprofiel en metadata blijven behouden.</translation>
    </message>
    <message>
        <source>Nothing is lost: pixels, transparency, 16 bits, CMYK, colour profile and metadata are kept. Large files.</source>
        <translation>Er gaat niets verloren: pixels, transparantie, 16 bits, CMYK, kleurprofiel en metadata blijven behouden. Grote bestanden.</translation>
    </message>
    <message>
        <source>One page of the size of the picture. A JPEG is included unchanged, other types without loss. Metadata is kept as far as XMP can hold it.</source>
        <translation>Eén pagina zo groot als de foto. Een JPEG wordt ongewijzigd overgenomen, andere typen zonder verlies. Metadata blijft behouden voor zover XMP die kan bevatten.</translation>
    </message>
    <message>
        <source>Visually lossless. Transparency, 16 bits and metadata are kept, and most colour profiles. Few programs can open it.</source>
        <translation>Zonder zichtbaar verlies. Transparantie, 16 bits, metadata en de meeste kleurprofielen blijven behouden. Weinig programma’s kunnen dit type openen.</translation>
    </message>
    <message>
        <source>At most 256 colours. A pixel is either transparent or not. Colours become sRGB. Metadata is kept as far as XMP can hold it.</source>
        <translation>Hoogstens 256 kleuren. Een pixel is transparant of niet. Kleuren worden sRGB. Metadata blijft behouden voor zover XMP die kan bevatten.</translation>
    </message>
    <message>
        <source>Large files with pixels and resolution only. Colours become sRGB, transparent parts get a colour and 16 bits become 8.</source>
        <translation>Grote bestanden met alleen pixels en resolutie. Kleuren worden sRGB, transparante delen krijgen een kleur en 16 bits worden 8.</translation>
    </message>
    <message>
        <source>Already %1: no pixel changes.</source>
        <translation>Al %1: er verandert geen pixel.</translation>
    </message>
    <message>
        <source>Already %1: it will be encoded again.</source>
        <translation>Al %1: wordt opnieuw gecodeerd.</translation>
    </message>
    <message>
        <source>1 – smallest file</source>
        <translation>1 – kleinste bestand</translation>
    </message>
    <message>
        <source>9 – best</source>
        <translation>9 – beste</translation>
    </message>
    <message>
        <source>Small files for web pages. The lower the quality, the more detail is lost. 16 bits become 8. Transparency, colour profile and metadata are kept.</source>
        <translation>Kleine bestanden voor webpagina’s. Hoe lager de kwaliteit, hoe meer detail verloren gaat. 16 bits worden 8. Transparantie, kleurprofiel en metadata blijven behouden.</translation>
    </message>
    <message>
        <source>Very small files for web pages, which take the longest to write. The lower the quality, the more detail is lost. 16 bits become 8. Transparency, colour profile and metadata are kept.</source>
        <translation>Zeer kleine bestanden voor webpagina’s, die het langst duren om te schrijven. Hoe lager de kwaliteit, hoe meer detail verloren gaat. 16 bits worden 8. Transparantie, kleurprofiel en metadata blijven behouden.</translation>
    </message>
    <message>
        <source>Small files for archives. The lower the quality, the more detail is lost. Transparency, 16 bits, colour profile and metadata are kept. Few programs can open them.</source>
        <translation>Kleine bestanden voor archieven. Hoe lager de kwaliteit, hoe meer detail verloren gaat. Transparantie, 16 bits, kleurprofiel en metadata blijven behouden. Weinig programma’s kunnen ze openen.</translation>
    </message>
</context>
<context>
    <name>text</name>
    <message>
        <source>Name without extension</source>
        <translation>Naam zonder extensie</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Extensie</translation>
    </message>
    <message>
        <source>Date taken, otherwise date changed</source>
        <translation>Opnamedatum, anders wijzigingsdatum</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Opnamedatum</translation>
    </message>
    <message>
        <source>Date created</source>
        <translation>Aanmaakdatum</translation>
    </message>
    <message>
        <source>Date changed</source>
        <translation>Wijzigingsdatum</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Teller</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Lens</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Breedte in pixels</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>Hoogte in pixels</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Bestandsgrootte</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Bestandstype</translation>
    </message>
    <message>
        <source>Landscape, portrait or square</source>
        <translation>Liggend, staand of vierkant</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Liggend</translation>
    </message>
    <message>
        <source>Name of the folder</source>
        <translation>Naam van de map</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Vakantie</translation>
    </message>
    <message>
        <source>“%1” is not a valid date format; use yyyy, yy, MM, MMM, dd, EEE, HH, mm, ss</source>
        <translation>“%1” is geen geldige datumnotatie; gebruik yyyy, yy, MM, MMM, dd, EEE, HH, mm, ss</translation>
    </message>
    <message>
        <source>“%1” is not a valid start number</source>
        <translation>“%1” is geen geldig startnummer</translation>
    </message>
    <message>
        <source>“%1” does not select part of a name; use a number of characters, “word”, or “~” and words separated by commas</source>
        <translation>“%1” selecteert geen deel van een naam; gebruik een aantal tekens, “word”, of “~” en woorden met komma’s ertussen</translation>
    </message>
    <message>
        <source>“%1” is not a valid size format; use “class” or “MB”</source>
        <translation>“%1” is geen geldige notatie voor grootte; gebruik “class” of “MB”</translation>
    </message>
    <message>
        <source>{%1} takes no format; remove the colon and what follows it</source>
        <translation>{%1} kan geen notatie krijgen; verwijder de dubbele punt en wat erna komt</translation>
    </message>
    <message>
        <source>There is no token between the braces; to write a brace, type {{</source>
        <translation>Er staat geen code tussen de accolades; typ {{ voor een accolade</translation>
    </message>
    <message>
        <source>There is no token {%1}</source>
        <translation>Er is geen code {%1}</translation>
    </message>
    <message>
        <source>A brace is not closed; to write a brace, type {{</source>
        <translation>Een accolade is niet gesloten; typ {{ voor een accolade</translation>
    </message>
    <message>
        <source>Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec</source>
        <translation>jan feb mrt apr mei jun jul aug sep okt nov dec</translation>
    </message>
    <message>
        <source>Sun Mon Tue Wed Thu Fri Sat</source>
        <translation>zo ma di wo do vr za</translation>
    </message>
    <message>
        <source>Under 1 MB</source>
        <translation>Minder dan 1 MB</translation>
    </message>
    <message>
        <source>1 to 5 MB</source>
        <translation>1 tot 5 MB</translation>
    </message>
    <message>
        <source>5 to 20 MB</source>
        <translation>5 tot 20 MB</translation>
    </message>
    <message>
        <source>20 MB and more</source>
        <translation>20 MB en meer</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Vierkant</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Staand</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>Kop</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Bijschrift</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Maker</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>Copyrightvermelding</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Trefwoorden</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <translation>Sublocatie</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Plaats</translation>
    </message>
    <message>
        <source>State or province</source>
        <translation>Staat of provincie</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coördinaten</translation>
    </message>
    <message>
        <source>{%1} contains the location. Include the location first, or remove the token.</source>
        <translation>{%1} bevat de locatie. Vermeld eerst de locatie of verwijder de code.</translation>
    </message>
    <message>
        <source>Rating, 1 to 5</source>
        <translation>Waardering, 1 tot 5</translation>
    </message>
</context>
<context>
    <name>text::PageTemplate</name>
    <message>
        <source>a picture has no files</source>
        <translation>een foto heeft geen bestanden</translation>
    </message>
    <message>
        <source>{{#%1}} is not closed</source>
        <translation>{{#%1}} wordt niet gesloten</translation>
    </message>
    <message>
        <source>a field is not closed</source>
        <translation>een veld wordt niet gesloten</translation>
    </message>
    <message>
        <source>there is no field {{%1}}</source>
        <translation>er is geen veld {{%1}}</translation>
    </message>
    <message>
        <source>{{%1}} must be inside {{#pictures}}</source>
        <translation>{{%1}} moet binnen {{#pictures}} staan</translation>
    </message>
    <message>
        <source>{{pictures}} must be {{#pictures}}</source>
        <translation>{{pictures}} moet {{#pictures}} zijn</translation>
    </message>
    <message>
        <source>{{%1}} cannot be used in a &lt;%2&gt;</source>
        <translation>{{%1}} is niet toegestaan in een &lt;%2&gt;</translation>
    </message>
    <message>
        <source>{{#pictures}} cannot be used here</source>
        <translation>{{#pictures}} is hier niet toegestaan</translation>
    </message>
    <message>
        <source>{{/%1}} closes nothing</source>
        <translation>{{/%1}} sluit niets</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>regel %1: %2</translation>
    </message>
</context>
<context>
    <name>token-menu</name>
    <message>
        <source>Search values</source>
        <translation>Waarden zoeken</translation>
    </message>
</context>
<context>
    <name>turn-action</name>
    <message>
        <source>Rotate &amp; Flip</source>
        <translation>Draaien en spiegelen</translation>
    </message>
    <message>
        <source>Rotating</source>
        <translation>Het draaien</translation>
    </message>
    <message numerus="yes">
        <source>Rotate and Flip %n Pictures</source>
        <translation>
            <numerusform>%n foto draaien en spiegelen</numerusform>
            <numerusform>%n foto’s draaien en spiegelen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Flip %n Pictures</source>
        <translation>
            <numerusform>%n foto spiegelen</numerusform>
            <numerusform>%n foto’s spiegelen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rotate %n Pictures</source>
        <translation>
            <numerusform>%n foto draaien</numerusform>
            <numerusform>%n foto’s draaien</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to do</source>
        <translation>Niets te doen</translation>
    </message>
</context>
<context>
    <name>turn-pane</name>
    <message>
        <source>No rotation</source>
        <translation>Geen draaiing</translation>
    </message>
    <message>
        <source>↺ anticlockwise</source>
        <translation>↺ linksom</translation>
    </message>
    <message>
        <source>↻ clockwise</source>
        <translation>↻ rechtsom</translation>
    </message>
</context>
<context>
    <name>turn-presets</name>
    <message>
        <source>90° anticlockwise</source>
        <translation>90° linksom</translation>
    </message>
    <message>
        <source>90° clockwise</source>
        <translation>90° rechtsom</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Ondersteboven</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Gespiegeld</translation>
    </message>
</context>
<context>
    <name>turn-step</name>
    <message>
        <source>Rotated</source>
        <translation>Gedraaid</translation>
    </message>
    <message>
        <source>rotate %1°</source>
        <translation>%1° draaien</translation>
    </message>
    <message>
        <source>flip horizontally</source>
        <translation>horizontaal spiegelen</translation>
    </message>
    <message>
        <source>flip vertically</source>
        <translation>verticaal spiegelen</translation>
    </message>
    <message>
        <source>Enter an angle from −180 to 180 degrees.</source>
        <translation>Geef een hoek op van −180 tot 180 graden.</translation>
    </message>
    <message>
        <source>Choose an angle or a flip.</source>
        <translation>Kies een draaihoek of een spiegeling.</translation>
    </message>
    <message>
        <source>Rotated without loss.</source>
        <translation>Zonder verlies gedraaid.</translation>
    </message>
    <message>
        <source>The canvas grows so that the corners fit.</source>
        <translation>Het canvas groeit zodat de hoeken passen.</translation>
    </message>
    <message>
        <source>The canvas grows so that the corners fit. The new corners become white.</source>
        <translation>Het canvas groeit zodat de hoeken passen. De nieuwe hoeken worden wit.</translation>
    </message>
</context>
<context>
    <name>undo-run</name>
    <message>
        <source>Undo This Run</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>This run wrote new files and moved none. To undo it, delete its results.</source>
        <translation>Deze opdracht schreef nieuwe bestanden en verplaatste er geen. Verwijder de resultaten om die ongedaan te maken.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opnieuw uitvoeren</translation>
    </message>
    <message numerus="yes">
        <source>%n files can be restored.</source>
        <translation>
            <numerusform>%n bestand kan worden hersteld.</numerusform>
            <numerusform>%n bestanden kunnen worden hersteld.</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert This Run</source>
        <translation>Deze opdracht terugzetten</translation>
    </message>
    <message>
        <source>No comment was changed.</source>
        <translation>Er is geen opmerking gewijzigd.</translation>
    </message>
    <message>
        <source>All its comments have already been reverted.</source>
        <translation>Alle opmerkingen zijn al teruggezet.</translation>
    </message>
    <message numerus="yes">
        <source>%n comments can be reverted.</source>
        <translation>
            <numerusform>%n opmerking kan worden teruggezet.</numerusform>
            <numerusform>%n opmerkingen kunnen worden teruggezet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n have already been reverted.</source>
        <translation>
            <numerusform>%n opmerking is al teruggezet.</numerusform>
            <numerusform>%n opmerkingen zijn al teruggezet.</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
</context>
<context>
    <name>watching</name>
    <message>
        <source>Pictures in a watched folder are written at once: turn the dry run off first.</source>
        <translation>Foto’s in een bewaakte map worden meteen geschreven: zet eerst de proefrun uit.</translation>
    </message>
    <message>
        <source>A watched folder cannot ask: choose to keep both or to skip existing files.</source>
        <translation>Een bewaakte map kan niets vragen: kies beide behouden of overslaan voor bestaande bestanden.</translation>
    </message>
    <message>
        <source>Watch a folder</source>
        <translation>Een map bewaken</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>Deze map bestaat niet.</translation>
    </message>
    <message>
        <source>Another window or program is already watching this folder for the same purpose.</source>
        <translation>Een ander venster of programma bewaakt deze map al voor hetzelfde doel.</translation>
    </message>
    <message>
        <source>The folder cannot be watched: %1</source>
        <translation>De map kan niet worden bewaakt: %1</translation>
    </message>
    <message>
        <source>The folder “%1” no longer exists and is no longer watched.</source>
        <translation>De map “%1” bestaat niet meer en wordt niet langer bewaakt.</translation>
    </message>
    <message>
        <source>Watching “%1”</source>
        <translation>“%1” wordt bewaakt</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>%1 klaar</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 mislukt</translation>
    </message>
</context>
<context>
    <name>watermark-action</name>
    <message>
        <source>Watermark</source>
        <translation>Watermerk</translation>
    </message>
    <message numerus="yes">
        <source>Watermark %n Pictures</source>
        <translation>
            <numerusform>Watermerk op %n foto zetten</numerusform>
            <numerusform>Watermerk op %n foto’s zetten</numerusform>
        </translation>
    </message>
    <message>
        <source>Watermarking</source>
        <translation>Het aanbrengen van watermerken</translation>
    </message>
</context>
<context>
    <name>watermark-pane</name>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Afbeelding</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Linksboven</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Boven</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Rechtsboven</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Midden</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Linksonder</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Onder</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Rechtsonder</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standaard</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Geen</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Kiezen…</translation>
    </message>
    <message>
        <source>Choose a picture</source>
        <translation>Afbeelding kiezen</translation>
    </message>
</context>
<context>
    <name>watermark-presets</name>
    <message>
        <source>Copyright, bottom right</source>
        <translation>Copyright, rechtsonder</translation>
    </message>
    <message>
        <source>Copyright, dark</source>
        <translation>Copyright, donker</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Bestandsnaam</translation>
    </message>
    <message>
        <source>Tiled draft</source>
        <translation>Concept, herhaald</translation>
    </message>
    <message>
        <source>DRAFT</source>
        <translation>CONCEPT</translation>
    </message>
</context>
<context>
    <name>watermark-step</name>
    <message>
        <source>Watermarked</source>
        <translation>Met watermerk</translation>
    </message>
    <message>
        <source>text “%1”</source>
        <translation>tekst “%1”</translation>
    </message>
    <message>
        <source>picture %1</source>
        <translation>afbeelding %1</translation>
    </message>
    <message>
        <source>tiled</source>
        <translation>herhaald</translation>
    </message>
    <message>
        <source>Enter a text.</source>
        <translation>Geef een tekst op.</translation>
    </message>
    <message>
        <source>A watermark cannot contain {counter}.</source>
        <translation>Een watermerk kan {counter} niet bevatten.</translation>
    </message>
    <message>
        <source>There is no font “%1” on this computer. Choose another.</source>
        <translation>Het lettertype “%1” staat niet op deze computer. Kies een ander.</translation>
    </message>
    <message>
        <source>Choose a picture.</source>
        <translation>Kies een afbeelding.</translation>
    </message>
    <message>
        <source>The picture “%1” no longer exists.</source>
        <translation>De afbeelding “%1” bestaat niet meer.</translation>
    </message>
    <message>
        <source>“%1” cannot be read as a picture.</source>
        <translation>“%1” kan niet als afbeelding worden gelezen.</translation>
    </message>
    <message>
        <source>Enter a size from 0.1% to 100%.</source>
        <translation>Geef een grootte op van 0,1% tot 100%.</translation>
    </message>
    <message>
        <source>Enter a margin from 0% to 100%.</source>
        <translation>Geef een marge op van 0% tot 100%.</translation>
    </message>
    <message>
        <source>Enter an opacity from 1% to 100%.</source>
        <translation>Geef een dekking op van 1% tot 100%.</translation>
    </message>
    <message>
        <source>Enter an angle from −180 to 180 degrees.</source>
        <translation>Geef een hoek op van −180 tot 180 graden.</translation>
    </message>
</context>
<context>
    <name>web-action</name>
    <message>
        <source>Web Page</source>
        <translation>Webpagina</translation>
    </message>
    <message>
        <source>Making a web page</source>
        <translation>Webpagina maken</translation>
    </message>
    <message numerus="yes">
        <source>Make Page of %n Pictures</source>
        <translation>
            <numerusform>Pagina van %n foto maken</numerusform>
            <numerusform>Pagina van %n foto’s maken</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>web-folder</name>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>In de map %1 kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>%1 was not made by Quorlin and stays unchanged.</source>
        <translation>%1 is niet door Quorlin gemaakt en blijft ongewijzigd.</translation>
    </message>
    <message>
        <source>%1 has been changed since by someone else and stays unchanged.</source>
        <translation>%1 is intussen door iemand anders gewijzigd en blijft zoals het is.</translation>
    </message>
    <message>
        <source>The page could not be written.</source>
        <translation>De pagina kon niet worden geschreven.</translation>
    </message>
    <message>
        <source>The saved page differs from what was written.</source>
        <translation>De bewaarde pagina wijkt af van wat is geschreven.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>no free name was found</source>
        <translation>er is geen vrije naam gevonden</translation>
    </message>
    <message>
        <source>Something else is now at %1.</source>
        <translation>Op %1 staat nu iets anders.</translation>
    </message>
</context>
<context>
    <name>web-making</name>
    <message>
        <source>Template, %1</source>
        <translation>Sjabloon, %1</translation>
    </message>
</context>
<context>
    <name>web-pane</name>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Rijen</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Verhaal</translation>
    </message>
    <message>
        <source>Same as Quorlin</source>
        <translation>Zoals in Quorlin</translation>
    </message>
    <message>
        <source>By language</source>
        <translation>Volgens taal</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Van links naar rechts</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Van rechts naar links</translation>
    </message>
    <message>
        <source>Keep copyright only</source>
        <translation>Alleen copyright behouden</translation>
    </message>
    <message>
        <source>Keep all</source>
        <translation>Alles behouden</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alles verwijderen</translation>
    </message>
    <message>
        <source>Number the new folder</source>
        <translation>De nieuwe map nummeren</translation>
    </message>
    <message>
        <source>Update the page in it</source>
        <translation>De pagina erin bijwerken</translation>
    </message>
    <message>
        <source>Folder of the first picture</source>
        <translation>Map van de eerste foto</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Map kiezen…</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standaard</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>Bestand kiezen…</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>Kopie bewaren…</translation>
    </message>
    <message>
        <source>Save the page in</source>
        <translation>Pagina bewaren in</translation>
    </message>
    <message>
        <source>Choose a template</source>
        <translation>Sjabloon kiezen</translation>
    </message>
    <message>
        <source>Save a copy of the template</source>
        <translation>Kopie van het sjabloon bewaren</translation>
    </message>
    <message>
        <source>Template saved as %1</source>
        <translation>Sjabloon bewaard als %1</translation>
    </message>
    <message>
        <source>Add pictures first.</source>
        <translation>Voeg eerst foto’s toe.</translation>
    </message>
    <message>
        <source>Correct the settings first.</source>
        <translation>Corrigeer eerst de instellingen.</translation>
    </message>
</context>
<context>
    <name>web-presets</name>
    <message>
        <source>Rows with captions</source>
        <translation>Rijen met bijschriften</translation>
    </message>
    <message>
        <source>Grid of squares</source>
        <translation>Raster van vierkanten</translation>
    </message>
    <message>
        <source>Story on warm paper</source>
        <translation>Verhaal op warme achtergrond</translation>
    </message>
    <message>
        <source>For clients, with download</source>
        <translation>Voor klanten, met download</translation>
    </message>
</context>
<context>
    <name>web-preview</name>
    <message>
        <source>Making the preview…</source>
        <translation>Voorvertoning maken…</translation>
    </message>
    <message>
        <source>no picture could be processed</source>
        <translation>geen enkele foto kon worden verwerkt</translation>
    </message>
    <message>
        <source>The page could not be opened in a browser.</source>
        <translation>De pagina kon niet in een browser worden geopend.</translation>
    </message>
</context>
<context>
    <name>web-step</name>
    <message>
        <source>Web Page</source>
        <translation>Webpagina</translation>
    </message>
    <message>
        <source>The template %1 cannot be read.</source>
        <translation>Het sjabloon %1 kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>The folder name cannot contain “/”.</source>
        <translation>De mapnaam mag geen “/” bevatten.</translation>
    </message>
    <message>
        <source>Sizes are whole numbers from %1 to %2, each larger than the one before.</source>
        <translation>Formaten zijn gehele getallen van %1 tot %2, elk groter dan het vorige.</translation>
    </message>
    <message>
        <source>The quality is a whole number from 1 to 100.</source>
        <translation>De kwaliteit is een geheel getal van 1 tot 100.</translation>
    </message>
    <message>
        <source>%1 is not a valid language code.</source>
        <translation>%1 is geen geldige taalcode.</translation>
    </message>
    <message>
        <source>Template, %1</source>
        <translation>Sjabloon, %1</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Rijen</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Verhaal</translation>
    </message>
</context>
<context>
    <name>window</name>
    <message>
        <source>Text</source>
        <translation>Tekst</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
</context>
<context>
    <name>window::ComparePreview</name>
    <message>
        <source>Not a readable picture</source>
        <translation>Geen leesbare foto</translation>
    </message>
    <message>
        <source>This picture cannot be shown</source>
        <translation>Deze foto kan niet worden getoond</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
</context>
<context>
    <name>window::CropFrameEditor</name>
    <message>
        <source>Crop frame</source>
        <translation>Bijsnijdkader</translation>
    </message>
    <message>
        <source>%1 × %2 pixels, %3 from the left, %4 from the top</source>
        <translation>%1 × %2 pixels, %3 van links, %4 van boven</translation>
    </message>
</context>
<context>
    <name>window::DesktopSigns</name>
    <message>
        <source>Show</source>
        <translation>Tonen</translation>
    </message>
</context>
<context>
    <name>window::FolderTree</name>
    <message>
        <source>new</source>
        <translation>nieuw</translation>
    </message>
    <message>
        <source>exists</source>
        <translation>bestaat</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln bestand</numerusform>
            <numerusform>%Ln bestanden</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, new folder, %2</source>
        <translation>%1, nieuwe map, %2</translation>
    </message>
    <message>
        <source>%1, existing folder, %2</source>
        <translation>%1, bestaande map, %2</translation>
    </message>
</context>
<context>
    <name>window::KeyHeader</name>
    <message>
        <source>Columns</source>
        <translation>Kolommen</translation>
    </message>
    <message>
        <source>Left and Right choose a column, Space sorts by it</source>
        <translation>Links en Rechts kiezen een kolom, de spatiebalk sorteert erop</translation>
    </message>
</context>
<context>
    <name>window::ManualView</name>
    <message>
        <source>This page of the manual is missing.</source>
        <translation>Deze pagina van de handleiding ontbreekt.</translation>
    </message>
    <message>
        <source>Show large</source>
        <translation>Groot tonen</translation>
    </message>
    <message>
        <source>Picture of the manual</source>
        <translation>Afbeelding uit de handleiding</translation>
    </message>
</context>
<context>
    <name>window::PictureModel</name>
    <message>
        <source>Thumbnail of %1</source>
        <translation>Miniatuur van %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nieuwe naam</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>Nieuwe afmetingen</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Opnamedatum</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Thumbnail of %1, left out of the run</source>
        <translation>Miniatuur van %1, niet in de opdracht</translation>
    </message>
    <message>
        <source>%1 according to the camera clock</source>
        <translation>%1 volgens de klok van de camera</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Waardering</translation>
    </message>
    <message numerus="yes">
        <source>%n stars</source>
        <translation>
            <numerusform>%n ster</numerusform>
            <numerusform>%n sterren</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::PictureTable</name>
    <message>
        <source>Reset Columns</source>
        <translation>Kolommen herstellen</translation>
    </message>
    <message>
        <source>Show All Ratings</source>
        <translation>Alle waarderingen tonen</translation>
    </message>
    <message numerus="yes">
        <source>Only %n stars or more</source>
        <translation>
            <numerusform>Alleen %n ster of meer</numerusform>
            <numerusform>Alleen %n sterren of meer</numerusform>
        </translation>
    </message>
    <message>
        <source>Properties and Filter…</source>
        <translation>Eigenschappen en filter…</translation>
    </message>
</context>
<context>
    <name>window::ProgramDesk</name>
    <message>
        <source>The lp command of the print system is missing.</source>
        <translation>De opdracht lp van het afdruksysteem ontbreekt.</translation>
    </message>
    <message>
        <source>The print system did not accept the pages: %1</source>
        <translation>Het afdruksysteem heeft de pagina’s niet aangenomen: %1</translation>
    </message>
</context>
<context>
    <name>window::PropertyTree</name>
    <message>
        <source>Property</source>
        <translation>Eigenschap</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopiëren</translation>
    </message>
    <message>
        <source>Copy Location in Degrees</source>
        <translation>Locatie kopiëren in graden</translation>
    </message>
    <message>
        <source>Copy Location in Minutes</source>
        <translation>Locatie kopiëren in minuten</translation>
    </message>
</context>
<context>
    <name>window::RunRows</name>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation>
            <numerusform>%Ln regel</numerusform>
            <numerusform>%Ln regels</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln problems</source>
        <translation>
            <numerusform>%Ln probleem</numerusform>
            <numerusform>%Ln problemen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::SaveDialog</name>
    <message>
        <source>Save As</source>
        <translation>Bewaren als</translation>
    </message>
    <message>
        <source>Save in:</source>
        <translation>Bewaren in:</translation>
    </message>
    <message>
        <source>Ta&amp;gs:</source>
        <translation>Ta&amp;gs:</translation>
    </message>
    <message>
        <source>separated by commas</source>
        <translation>gescheiden door komma’s</translation>
    </message>
    <message>
        <source>Tags, separated by commas</source>
        <translation>Tags, gescheiden door komma’s</translation>
    </message>
    <message>
        <source>“%1” already exists. Replace it?</source>
        <translation>“%1” bestaat al. Vervangen?</translation>
    </message>
</context>
<context>
    <name>window::SlotRows</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n foto</numerusform>
            <numerusform>%n foto’s</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::StartUp</name>
    <message>
        <source>Quorlin cannot start: a script of its interface failed.</source>
        <translation>Quorlin kan niet starten: een script van de interface is mislukt.</translation>
    </message>
</context>
<context>
    <name>wording</name>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n foto</numerusform>
            <numerusform>%n foto’s</numerusform>
        </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>Not Supported</source>
        <translation>Niet ondersteund</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Overgeslagen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n probleem</numerusform>
            <numerusform>%n problemen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>no problems</source>
        <translation>geen problemen</translation>
    </message>
</context>
<context>
    <name>worker-job</name>
    <message>
        <source>the picture no longer exists</source>
        <translation>de foto bestaat niet meer</translation>
    </message>
    <message>
        <source>the result is %1 instead of %2</source>
        <translation>het resultaat is %1 in plaats van %2</translation>
    </message>
</context>
<context>
    <name>write-plan</name>
    <message>
        <source>file exists: will ask</source>
        <translation>bestand bestaat: wordt gevraagd</translation>
    </message>
    <message>
        <source>replaces original</source>
        <translation>vervangt origineel</translation>
    </message>
    <message>
        <source>replaces %1</source>
        <translation>vervangt %1</translation>
    </message>
    <message>
        <source>would be written</source>
        <translation>zou worden geschreven</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>gereed</translation>
    </message>
</context>
<context>
    <name>write-run</name>
    <message>
        <source>File exists</source>
        <translation>Bestand bestaat</translation>
    </message>
    <message>
        <source>“%1” already exists in this folder.</source>
        <translation>“%1” bestaat al in deze map.</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Beide behouden</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Vervangen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Overslaan</translation>
    </message>
    <message>
        <source>Cancel Run</source>
        <translation>Opdracht annuleren</translation>
    </message>
    <message>
        <source>Do this for all</source>
        <translation>Voor alle toepassen</translation>
    </message>
    <message>
        <source>Replace originals</source>
        <translation>Originelen vervangen</translation>
    </message>
    <message numerus="yes">
        <source>%n originals will be replaced by their results.</source>
        <translation>
            <numerusform>%n origineel wordt vervangen door zijn resultaat.</numerusform>
            <numerusform>%n originelen worden vervangen door hun resultaat.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Cancelled before the first picture. Nothing was written.</source>
        <translation>Geannuleerd vóór de eerste foto. Er is niets geschreven.</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was written.</source>
        <translation>Geannuleerd. Er is niets geschreven.</translation>
    </message>
    <message numerus="yes">
        <source>Dry run: %n pictures would be written</source>
        <translation>
            <numerusform>Proefrun: %n foto zou worden geschreven</numerusform>
            <numerusform>Proefrun: %n foto’s zouden worden geschreven</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>%1 niet meegenomen</translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>er is niets geschreven</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wacht</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>bezig…</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>geannuleerd</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures done</source>
        <translation>
            <numerusform>%n foto verwerkt</numerusform>
            <numerusform>%n foto’s verwerkt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 mislukt</translation>
    </message>
    <message>
        <source>%1 not supported</source>
        <translation>%1 niet ondersteund</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>%1 overgeslagen</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 geschreven</translation>
    </message>
    <message>
        <source>Cancelled:</source>
        <translation>Geannuleerd:</translation>
    </message>
    <message>
        <source>stopping after the current pictures</source>
        <translation>stopt na de huidige foto’s</translation>
    </message>
    <message>
        <source>pausing after the current pictures</source>
        <translation>pauzeert na de huidige foto’s</translation>
    </message>
    <message>
        <source>The replaced files (%1) go to the trash. Undo brings them back.</source>
        <translation>De vervangen bestanden (%1) gaan naar de prullenbak. Met Ongedaan maken komen ze terug.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>On a disk without a trash they are kept in the folder “%1”.</source>
        <translation>Op een schijf zonder prullenbak blijven ze bewaard in de map “%1”.</translation>
    </message>
    <message>
        <source>Finished pictures are kept.</source>
        <translation>Foto’s die klaar zijn, blijven bewaard.</translation>
    </message>
</context>
<context>
    <name>writes</name>
    <message>
        <source>Dry Run: %1</source>
        <translation>Proefrun: %1</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n Originals</source>
        <translation>
            <numerusform>%n origineel vervangen</numerusform>
            <numerusform>%n originelen vervangen</numerusform>
        </translation>
    </message>
    <message>
        <source>Originals are replaced by their results.</source>
        <translation>Originelen worden vervangen door hun resultaat.</translation>
    </message>
    <message numerus="yes">
        <source>%n files are replaced.</source>
        <translation>
            <numerusform>%n bestand wordt vervangen.</numerusform>
            <numerusform>%n bestanden worden vervangen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Dry run: write nothing</source>
        <translation>Proefrun: niets schrijven</translation>
    </message>
</context>
<context>
    <name>written</name>
    <message>
        <source>Choose a folder to save to.</source>
        <translation>Kies een map om in te bewaren.</translation>
    </message>
    <message>
        <source>“%1” is not a valid folder name.</source>
        <translation>“%1” is geen geldige mapnaam.</translation>
    </message>
    <message>
        <source>%1 cannot be written, choose another file type</source>
        <translation>%1 kan niet worden geschreven, kies een ander bestandstype</translation>
    </message>
    <message>
        <source>not a readable picture</source>
        <translation>geen leesbare foto</translation>
    </message>
    <message>
        <source>this type cannot be written</source>
        <translation>dit type kan niet worden geschreven</translation>
    </message>
    <message>
        <source>the file could not be written</source>
        <translation>het bestand kon niet worden geschreven</translation>
    </message>
    <message>
        <source>the result is %1 instead of %2</source>
        <translation>het resultaat is %1 in plaats van %2</translation>
    </message>
    <message>
        <source>Enter a name for the results.</source>
        <translation>Geef een naam voor de resultaten op.</translation>
    </message>
    <message>
        <source>A name cannot contain “/”.</source>
        <translation>Een naam mag geen “/” bevatten.</translation>
    </message>
</context>
<context>
    <name>log-fields</name>
    <message>
        <source>Forget old values</source>
        <translation>Oude waarden vergeten</translation>
    </message>
    <message>
        <source>Delete the old metadata of this run (%1) for good?</source>
        <translation>De oude metadata van deze opdracht (%1) definitief wissen?</translation>
    </message>
    <message>
        <source>The pictures are not changed. The run can then no longer be reverted.</source>
        <translation>De foto’s veranderen niet. De opdracht kan daarna niet meer worden teruggedraaid.</translation>
    </message>
    <message>
        <source>Forget Old Values</source>
        <translation>Oude waarden vergeten</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behouden</translation>
    </message>
    <message>
        <source>The old values were deleted.</source>
        <translation>De oude waarden zijn gewist.</translation>
    </message>
    <message numerus="yes">
        <source>Reverting: %n pictures so far</source>
        <translation>
            <numerusform>Terugdraaien: %n foto tot nu toe</numerusform>
            <numerusform>Terugdraaien: %n foto’s tot nu toe</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped:</source>
        <translation>Gestopt:</translation>
    </message>
</context>
<context>
    <name>field-run</name>
    <message>
        <source>Stopped:</source>
        <translation>Gestopt:</translation>
    </message>
    <message>
        <source>Cancelled before the first picture. Nothing was written.</source>
        <translation>Geannuleerd vóór de eerste foto. Er is niets geschreven.</translation>
    </message>
    <message numerus="yes">
        <source>Dry run: %n pictures would be changed</source>
        <translation>
            <numerusform>Proefrun: %n foto zou worden gewijzigd</numerusform>
            <numerusform>Proefrun: %n foto’s zouden worden gewijzigd</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>er is niets geschreven</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was written.</source>
        <translation>Geannuleerd. Er is niets geschreven.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Write metadata</source>
        <translation>Metadata schrijven</translation>
    </message>
    <message numerus="yes">
        <source>Write metadata into %n pictures?</source>
        <translation>
            <numerusform>Metadata in %n foto schrijven?</numerusform>
            <numerusform>Metadata in %n foto’s schrijven?</numerusform>
        </translation>
    </message>
    <message>
        <source>This changes the metadata inside your originals. Their pictures are not touched.</source>
        <translation>Dit wijzigt de metadata in uw originelen. De beelden zelf blijven onaangeroerd.</translation>
    </message>
    <message numerus="yes">
        <source>For %n of them, it is written into a sidecar file.</source>
        <translation>
            <numerusform>%n daarvan krijgt ze in een sidecarbestand ernaast.</numerusform>
            <numerusform>%n daarvan krijgen ze in een sidecarbestand ernaast.</numerusform>
        </translation>
    </message>
    <message>
        <source>EXIF, IPTC and XMP disagree:</source>
        <translation>EXIF, IPTC en XMP spreken elkaar tegen:</translation>
    </message>
    <message numerus="yes">
        <source>%n more pictures: see their rows in the list.</source>
        <translation>
            <numerusform>Nog %n foto: zie de rij in de lijst.</numerusform>
            <numerusform>Nog %n foto’s: zie hun rijen in de lijst.</numerusform>
        </translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schrijven</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wacht</translation>
    </message>
    <message>
        <source>already has these values</source>
        <translation>heeft deze waarden al</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures changed</source>
        <translation>
            <numerusform>%n foto gewijzigd</numerusform>
            <numerusform>%n foto’s gewijzigd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unchanged</source>
        <translation>
            <numerusform>%n ongewijzigd</numerusform>
            <numerusform>%n ongewijzigd</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Terugdraaien</translation>
    </message>
    <message>
        <source>reverted</source>
        <translation>teruggedraaid</translation>
    </message>
</context>
<context>
    <name>field-plan</name>
    <message>
        <source>EXIF, IPTC and XMP disagree</source>
        <translation>EXIF, IPTC en XMP spreken elkaar tegen</translation>
    </message>
    <message>
        <source>in a sidecar file</source>
        <translation>in een sidecarbestand</translation>
    </message>
    <message>
        <source>private data stays in files of this type</source>
        <translation>privégegevens blijven in bestanden van dit type</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>gereed</translation>
    </message>
    <message>
        <source>no change</source>
        <translation>geen wijziging</translation>
    </message>
    <message>
        <source>not selected</source>
        <translation>niet geselecteerd</translation>
    </message>
    <message>
        <source>not a readable picture</source>
        <translation>geen leesbare foto</translation>
    </message>
</context>
<context>
    <name>field-reverting</name>
    <message>
        <source>Revert metadata</source>
        <translation>Metadata terugdraaien</translation>
    </message>
    <message>
        <source>Revert This Run</source>
        <translation>Opdracht terugdraaien</translation>
    </message>
    <message>
        <source>No old values of this run are kept.</source>
        <translation>Van deze opdracht zijn geen oude waarden bewaard.</translation>
    </message>
    <message>
        <source>Old values: %1.</source>
        <translation>Oude waarden: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures can be reverted.</source>
        <translation>
            <numerusform>%n foto kan worden teruggedraaid.</numerusform>
            <numerusform>%n foto’s kunnen worden teruggedraaid.</numerusform>
        </translation>
    </message>
    <message>
        <source>All its pictures have already been reverted.</source>
        <translation>Alle foto’s zijn al teruggezet.</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadata</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures reverted</source>
        <translation>
            <numerusform>%n foto teruggedraaid</numerusform>
            <numerusform>%n foto’s teruggedraaid</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n probleem</numerusform>
            <numerusform>%n problemen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>fields</name>
    <message>
        <source>Dry Run: %1</source>
        <translation>Proefrun: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n with conflicting values</source>
        <translation>
            <numerusform>%n met tegenstrijdige waarden</numerusform>
            <numerusform>%n met tegenstrijdige waarden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar files</source>
        <translation>
            <numerusform>%n sidecarbestand</numerusform>
            <numerusform>%n sidecarbestanden</numerusform>
        </translation>
    </message>
    <message>
        <source>originals are changed, can be reverted</source>
        <translation>originelen worden gewijzigd, is terug te draaien</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Wijziging</translation>
    </message>
    <message>
        <source>Dry run: write nothing</source>
        <translation>Proefrun: niets schrijven</translation>
    </message>
</context>
<context>
    <name>metadata-fields-action</name>
    <message>
        <source>Metadata</source>
        <translation>Metadata</translation>
    </message>
    <message>
        <source>Writing metadata</source>
        <translation>Metadata schrijven</translation>
    </message>
    <message numerus="yes">
        <source>Write Metadata into %n Pictures</source>
        <translation>
            <numerusform>Metadata in %n foto schrijven</numerusform>
            <numerusform>Metadata in %n foto’s schrijven</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>metadata-fields-words</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>Kop</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Bijschrift</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Trefwoorden</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Maker</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Functie</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefoon</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Usage terms</source>
        <translation>Gebruiksrechten</translation>
    </message>
    <message>
        <source>Credit line</source>
        <translation>Fotocredit</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Bron</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instructies</translation>
    </message>
    <message>
        <source>Job identifier</source>
        <translation>Opdrachtcode</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <translation>Sublocatie</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Plaats</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Provincie</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>Landcode</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Opnamedatum</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Waardering</translation>
    </message>
    <message>
        <source>Colour label</source>
        <translation>Kleurlabel</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Plaatsen</translation>
    </message>
    <message>
        <source>Serial numbers</source>
        <translation>Serienummers</translation>
    </message>
    <message>
        <source>Owner and computer names</source>
        <translation>Namen van eigenaar en computer</translation>
    </message>
    <message>
        <source>Face regions</source>
        <translation>Gezichtsgebieden</translation>
    </message>
    <message>
        <source>Maker notes</source>
        <translation>Fabrikantnotities</translation>
    </message>
    <message>
        <source>Embedded thumbnails</source>
        <translation>Ingesloten miniaturen</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rood</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Geel</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Groen</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blauw</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Paars</translation>
    </message>
    <message>
        <source>Rejected</source>
        <translation>Afgewezen</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>niets</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: “%2”</source>
        <translation>%1: ‘%2’</translation>
    </message>
    <message>
        <source>%1: “%2” → “%3”</source>
        <translation>%1: “%2” → “%3”</translation>
    </message>
    <message>
        <source>%1: cleared, was “%2”</source>
        <translation>%1: leeggemaakt, was ‘%2’</translation>
    </message>
    <message>
        <source>%1: EXIF %2, IPTC %3, XMP %4</source>
        <translation>%1: EXIF %2, IPTC %3, XMP %4</translation>
    </message>
    <message numerus="yes">
        <source>%n stars</source>
        <translation>
            <numerusform>%n ster</numerusform>
            <numerusform>%n sterren</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FieldsPane</name>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>Kop</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Bijschrift</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Trefwoorden</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Maker</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Functie</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adres</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefoon</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Usage terms</source>
        <translation>Gebruiksrechten</translation>
    </message>
    <message>
        <source>Credit line</source>
        <translation>Fotocredit</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Bron</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instructies</translation>
    </message>
    <message>
        <source>Job identifier</source>
        <translation>Opdrachtcode</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <translation>Sublocatie</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Plaats</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Provincie</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>Landcode</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Opnamedatum</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Waardering</translation>
    </message>
    <message>
        <source>Colour label</source>
        <translation>Kleurlabel</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Plaatsen</translation>
    </message>
    <message>
        <source>Serial numbers</source>
        <translation>Serienummers</translation>
    </message>
    <message>
        <source>Owner and computer names</source>
        <translation>Namen van eigenaar en computer</translation>
    </message>
    <message>
        <source>Face regions</source>
        <translation>Gezichtsgebieden</translation>
    </message>
    <message>
        <source>Maker notes</source>
        <translation>Fabrikantnotities</translation>
    </message>
    <message>
        <source>Embedded thumbnails</source>
        <translation>Ingesloten miniaturen</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschrijving</translation>
    </message>
    <message>
        <source>Creator and Rights</source>
        <translation>Maker en rechten</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Plaats</translation>
    </message>
    <message>
        <source>Date and Rating</source>
        <translation>Datum en waardering</translation>
    </message>
    <message>
        <source>Remove Private Data</source>
        <translation>Privégegevens verwijderen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Geselecteerd</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Toegevoegd</translation>
    </message>
    <message>
        <source>All there are</source>
        <translation>De enige</translation>
    </message>
    <message>
        <source>Clear the title</source>
        <translation>Titel leegmaken</translation>
    </message>
    <message>
        <source>Clear the headline</source>
        <translation>Kop leegmaken</translation>
    </message>
    <message>
        <source>Clear the caption</source>
        <translation>Bijschrift leegmaken</translation>
    </message>
    <message>
        <source>Clear all keywords</source>
        <translation>Alle trefwoorden leegmaken</translation>
    </message>
    <message>
        <source>Clear the creator</source>
        <translation>Maker leegmaken</translation>
    </message>
    <message>
        <source>Clear the job title</source>
        <translation>Functie leegmaken</translation>
    </message>
    <message>
        <source>Clear the address</source>
        <translation>Adres leegmaken</translation>
    </message>
    <message>
        <source>Clear the phone number</source>
        <translation>Telefoonnummer leegmaken</translation>
    </message>
    <message>
        <source>Clear the email address</source>
        <translation>E-mailadres leegmaken</translation>
    </message>
    <message>
        <source>Clear the website</source>
        <translation>Website leegmaken</translation>
    </message>
    <message>
        <source>Clear the copyright</source>
        <translation>Copyright leegmaken</translation>
    </message>
    <message>
        <source>Clear the usage terms</source>
        <translation>Gebruiksrechten leegmaken</translation>
    </message>
    <message>
        <source>Clear the credit line</source>
        <translation>Fotocredit leegmaken</translation>
    </message>
    <message>
        <source>Clear the source</source>
        <translation>Bron leegmaken</translation>
    </message>
    <message>
        <source>Clear the instructions</source>
        <translation>Instructies leegmaken</translation>
    </message>
    <message>
        <source>Clear the job identifier</source>
        <translation>Opdrachtcode leegmaken</translation>
    </message>
    <message>
        <source>Clear the sublocation</source>
        <translation>Sublocatie leegmaken</translation>
    </message>
    <message>
        <source>Clear the city</source>
        <translation>Plaats leegmaken</translation>
    </message>
    <message>
        <source>Clear the state</source>
        <translation>Provincie leegmaken</translation>
    </message>
    <message>
        <source>Clear the country</source>
        <translation>Land leegmaken</translation>
    </message>
    <message>
        <source>Clear the country code</source>
        <translation>Landcode leegmaken</translation>
    </message>
    <message>
        <source>Clear the date taken</source>
        <translation>Opnamedatum leegmaken</translation>
    </message>
    <message>
        <source>Clear this field</source>
        <translation>Dit veld leegmaken</translation>
    </message>
    <message>
        <source>Properties and Comments…</source>
        <translation>Eigenschappen en opmerkingen…</translation>
    </message>
    <message>
        <source>Show all properties of the current picture, and write comments</source>
        <translation>Alle eigenschappen van de huidige foto tonen en opmerkingen schrijven</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Foto’s</translation>
    </message>
    <message>
        <source>Pictures whose metadata is written</source>
        <translation>Foto’s waarvan de metadata wordt geschreven</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Waarden</translation>
    </message>
    <message>
        <source>Insert Value…</source>
        <translation>Waarde invoegen…</translation>
    </message>
    <message>
        <source>Insert a value that differs from picture to picture, such as the date</source>
        <translation>Iets invoegen dat per foto verschilt, zoals de datum</translation>
    </message>
    <message>
        <source>Separated by commas</source>
        <translation>Gescheiden door komma’s</translation>
    </message>
    <message>
        <source>These are</source>
        <translation>Deze zijn</translation>
    </message>
    <message>
        <source>Whether keywords are added or replace all others</source>
        <translation>Of trefwoorden worden toegevoegd of alle andere vervangen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Keywords to remove, separated by commas</source>
        <translation>Trefwoorden die worden verwijderd, gescheiden door komma’s</translation>
    </message>
    <message>
        <source>Several names are separated by semicolons</source>
        <translation>Meerdere namen met puntkomma’s scheiden</translation>
    </message>
    <message>
        <source>2026-08-14 10:20:30+02:00</source>
        <translation>2026-08-14 10:20:30+02:00</translation>
    </message>
    <message>
        <source>Shift by</source>
        <translation>Verschuiven met</translation>
    </message>
    <message>
        <source>Hours and minutes, such as +1:00 or −0:05:30</source>
        <translation>Uren en minuten, zoals +1:00 of −0:05:30</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Tijdzone</translation>
    </message>
    <message>
        <source>Hours and minutes from Greenwich, such as +02:00</source>
        <translation>Uren en minuten vanaf Greenwich, zoals +02:00</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lijst</translation>
    </message>
    <message>
        <source>Keyword List</source>
        <translation>Trefwoordenlijst</translation>
    </message>
    <message>
        <source>The keywords that are offered while you type</source>
        <translation>De trefwoorden die tijdens het typen worden aangeboden</translation>
    </message>
</context>
<context>
    <name>metadata-fields-pane</name>
    <message>
        <source>Description</source>
        <translation>Beschrijving</translation>
    </message>
    <message>
        <source>Creator and Rights</source>
        <translation>Maker en rechten</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Plaats</translation>
    </message>
    <message>
        <source>Date and Rating</source>
        <translation>Datum en waardering</translation>
    </message>
    <message>
        <source>Remove Private Data</source>
        <translation>Privégegevens verwijderen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Geselecteerd</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Toegevoegd</translation>
    </message>
    <message>
        <source>All there are</source>
        <translation>De enige</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n used</source>
        <translation>
            <numerusform>%1, %n gebruikt</numerusform>
            <numerusform>%1, %n gebruikt</numerusform>
        </translation>
    </message>
    <message>
        <source>(cleared)</source>
        <translation>(leeg)</translation>
    </message>
    <message>
        <source>(several values)</source>
        <translation>(verschillend)</translation>
    </message>
    <message>
        <source>Leave as it is</source>
        <translation>Zo laten</translation>
    </message>
    <message>
        <source>Leave: %1</source>
        <translation>Laten: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leegmaken</translation>
    </message>
    <message>
        <source>EXIF, IPTC and XMP of %1 disagree. What is written makes them agree.</source>
        <translation>EXIF, IPTC en XMP van %1 spreken elkaar tegen. Wat u schrijft, is daarna overal gelijk.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importeren…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporteren…</translation>
    </message>
    <message>
        <source>Clear List…</source>
        <translation>Lijst leegmaken…</translation>
    </message>
    <message>
        <source>Import keywords</source>
        <translation>Trefwoorden importeren</translation>
    </message>
    <message>
        <source>Export keywords</source>
        <translation>Trefwoorden exporteren</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Trefwoorden</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>Clear keyword list</source>
        <translation>Trefwoordenlijst leegmaken</translation>
    </message>
    <message>
        <source>Remove all keywords from the list?</source>
        <translation>Alle trefwoorden uit de lijst verwijderen?</translation>
    </message>
    <message>
        <source>Your pictures are not changed.</source>
        <translation>Uw foto’s worden niet gewijzigd.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behouden</translation>
    </message>
    <message numerus="yes">
        <source>%n keywords imported</source>
        <translation>
            <numerusform>%n trefwoord geïmporteerd</numerusform>
            <numerusform>%n trefwoorden geïmporteerd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n keywords exported</source>
        <translation>
            <numerusform>%n trefwoord geëxporteerd</numerusform>
            <numerusform>%n trefwoorden geëxporteerd</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>metadata-fields-step</name>
    <message>
        <source>%1 cleared</source>
        <translation>%1 leeggemaakt</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 verwijderd</translation>
    </message>
    <message>
        <source>without %1</source>
        <translation>zonder %1</translation>
    </message>
    <message>
        <source>Date taken: write it as 2026-08-14, 2026-08-14 10:20:30 or 2026-08-14 10:20:30+02:00.</source>
        <translation>Opnamedatum: schrijf 2026-08-14, 2026-08-14 10:20:30 of 2026-08-14 10:20:30+02:00.</translation>
    </message>
    <message>
        <source>Shift: write hours and minutes, such as +1:00 or −0:05:30.</source>
        <translation>Verschuiving: schrijf uren en minuten, zoals +1:00 of −0:05:30.</translation>
    </message>
    <message>
        <source>Time zone: write it as +02:00.</source>
        <translation>Tijdzone: schrijf +02:00.</translation>
    </message>
    <message>
        <source>A date taken that you set is not shifted: add its time zone at the end.</source>
        <translation>Een ingestelde opnamedatum wordt niet verschoven: schrijf de tijdzone erachter.</translation>
    </message>
    <message>
        <source>Country code: two or three letters, such as PT or PRT.</source>
        <translation>Landcode: twee of drie letters, zoals PT of PRT.</translation>
    </message>
</context>
<context>
    <name>metadata-fields-presets</name>
    <message>
        <source>Copyright with the year</source>
        <translation>Copyright met het jaar</translation>
    </message>
    <message>
        <source>Headline from the folder name</source>
        <translation>Kop uit de naam van de map</translation>
    </message>
    <message>
        <source>Remove private data</source>
        <translation>Privégegevens verwijderen</translation>
    </message>
</context>
<context>
    <name>script::ProgramFiles</name>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>%1 cannot be removed.</source>
        <translation>%1 kan niet worden verwijderd.</translation>
    </message>
</context>
<context>
    <name>ratings</name>
    <message numerus="yes">
        <source>Write the ratings of %n pictures into their files?</source>
        <translation>
            <numerusform>De beoordeling van %n foto in het bestand schrijven?</numerusform>
            <numerusform>De beoordelingen van %n foto’s in de bestanden schrijven?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ratings written</source>
        <translation>
            <numerusform>%n beoordeling geschreven</numerusform>
            <numerusform>%n beoordelingen geschreven</numerusform>
        </translation>
    </message>
    <message>
        <source>Write ratings</source>
        <translation>Beoordelingen schrijven</translation>
    </message>
    <message>
        <source>This changes the XMP rating inside your originals, and nothing else. Files that cannot hold it get a sidecar file. You can revert it in the log.</source>
        <translation>Dit wijzigt de XMP-beoordeling in uw originelen en verder niets. Bestanden die haar niet kunnen bevatten, krijgen een sidecarbestand. In het logboek kunt u het ongedaan maken.</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schrijven</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>All ratings are in their files already.</source>
        <translation>Alle beoordelingen staan al in hun bestanden.</translation>
    </message>
    <message>
        <source>Ratings: %1 done</source>
        <translation>Beoordelingen: %1 klaar</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadata</translation>
    </message>
</context>
<context>
    <name>recipe-making</name>
    <message>
        <source>the picture no longer exists</source>
        <translation>de foto bestaat niet meer</translation>
    </message>
</context>
<context>
    <name>list-properties</name>
    <message>
        <source>is</source>
        <translation>is</translation>
    </message>
    <message>
        <source>is not</source>
        <translation>is niet</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>bevat</translation>
    </message>
    <message>
        <source>above</source>
        <translation>hoger dan</translation>
    </message>
    <message>
        <source>below</source>
        <translation>lager dan</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>is leeg</translation>
    </message>
    <message>
        <source>is not empty</source>
        <translation>is niet leeg</translation>
    </message>
    <message>
        <source>All conditions apply</source>
        <translation>Alle voorwaarden kloppen</translation>
    </message>
    <message>
        <source>At least one condition applies</source>
        <translation>Minstens één voorwaarde klopt</translation>
    </message>
    <message>
        <source>Search properties</source>
        <translation>Eigenschappen zoeken</translation>
    </message>
    <message>
        <source>Choose Property…</source>
        <translation>Eigenschap kiezen…</translation>
    </message>
    <message>
        <source>No columns</source>
        <translation>Geen kolommen</translation>
    </message>
    <message>
        <source>No filter</source>
        <translation>Geen filter</translation>
    </message>
    <message>
        <source>Shown: %1</source>
        <translation>Getoond: %1</translation>
    </message>
    <message>
        <source>All pictures are shown</source>
        <translation>Alle foto’s worden getoond</translation>
    </message>
</context>
<context>
    <name>ListProperties</name>
    <message>
        <source>Properties and filter</source>
        <translation>Eigenschappen en filter</translation>
    </message>
    <message>
        <source>Sa&amp;ved filter</source>
        <translation>&amp;Bewaard filter</translation>
    </message>
    <message>
        <source>Name of the filter</source>
        <translation>Naam van het filter</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Bewaren</translation>
    </message>
    <message>
        <source>Save the conditions below under this name</source>
        <translation>De voorwaarden hieronder onder deze naam bewaren</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Zoeken</translation>
    </message>
    <message>
        <source>Part of a name or a value</source>
        <translation>Deel van een naam of waarde</translation>
    </message>
    <message>
        <source>S&amp;how</source>
        <translation>&amp;Tonen als</translation>
    </message>
    <message>
        <source>Choose the property</source>
        <translation>Eigenschap kiezen</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Vergelijking</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Weghalen</translation>
    </message>
    <message>
        <source>Remove this condition</source>
        <translation>Deze voorwaarde weghalen</translation>
    </message>
    <message>
        <source>Add Condition</source>
        <translation>Voorwaarde toevoegen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Kolommen</translation>
    </message>
    <message>
        <source>Add &amp;Column…</source>
        <translation>&amp;Kolom toevoegen…</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Alles weghalen</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Alles tonen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
</context>
<context>
    <name>field-work</name>
    <message>
        <source>its old values cannot be kept: %1</source>
        <translation>de oude waarden kunnen niet worden bewaard: %1</translation>
    </message>
</context>
<context>
    <name>full-disk</name>
    <message>
        <source>The disk is full</source>
        <translation>De schijf is vol</translation>
    </message>
    <message>
        <source>There is no space left in %1.</source>
        <translation>Er is geen ruimte meer in %1.</translation>
    </message>
    <message>
        <source>Free some space and try again, or choose another folder.</source>
        <translation>Maak ruimte vrij en probeer opnieuw, of kies een andere map.</translation>
    </message>
    <message>
        <source>Free some space and try again.</source>
        <translation>Maak ruimte vrij en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Opnieuw proberen</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Map kiezen…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Save the rest to</source>
        <translation>De rest bewaren in</translation>
    </message>
</context>
<context>
    <name>window::DialogPanels</name>
    <message>
        <source>Folder:</source>
        <translation>Map:</translation>
    </message>
</context>
</TS>
