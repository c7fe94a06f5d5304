<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About Quorlin</source>
        <translation>Über Quorlin</translation>
    </message>
    <message>
        <source>Process a whole folder of pictures in one go. Quorlin shows the result first, does the work, checks it and keeps a log.</source>
        <translation>Einen ganzen Ordner mit Bildern in einem Zug bearbeiten. Quorlin zeigt zuerst das Ergebnis, erledigt die Arbeit, prüft sie und führt ein Protokoll.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. It comes without any warranty.</source>
        <translation>Freie Software unter der GNU General Public License, Version 3 oder neuer. Es gibt keinerlei Gewährleistung.</translation>
    </message>
    <message>
        <source>Built with these libraries</source>
        <translation>Erstellt mit diesen Bibliotheken</translation>
    </message>
    <message>
        <source>Libraries with their versions and licences</source>
        <translation>Bibliotheken mit Versionen und Lizenzen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>How the processes that read pictures are confined</source>
        <translation>Wie die Prozesse abgeschirmt sind, die Bilder lesen</translation>
    </message>
    <message>
        <source>Copy Versions</source>
        <translation>Versionen kopieren</translation>
    </message>
    <message>
        <source>Copy the versions for a bug report</source>
        <translation>Die Versionen für einen Fehlerbericht kopieren</translation>
    </message>
</context>
<context>
    <name>AddFolder</name>
    <message>
        <source>Include &amp;subfolders</source>
        <translation>&amp;Unterordner einschließen</translation>
    </message>
    <message>
        <source>Fil&amp;ter…</source>
        <translation>Fil&amp;ter …</translation>
    </message>
    <message>
        <source>Add only files of a certain type, size, date or name</source>
        <translation>Nur Dateien hinzufügen, deren Typ, Größe, Datum oder Name passt</translation>
    </message>
    <message>
        <source>T&amp;ypes</source>
        <translation>T&amp;ypen</translation>
    </message>
    <message>
        <source>all, or jpg, tif</source>
        <translation>alle, oder jpg, tif</translation>
    </message>
    <message>
        <source>File types, by extension</source>
        <translation>Dateitypen, nach Endung</translation>
    </message>
    <message>
        <source>Name &amp;contains</source>
        <translation>Name &amp;enthält</translation>
    </message>
    <message>
        <source>any</source>
        <translation>beliebig</translation>
    </message>
    <message>
        <source>Part of the name</source>
        <translation>Teil des Namens</translation>
    </message>
    <message>
        <source>Si&amp;ze from</source>
        <translation>&amp;Größe von</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Size from</source>
        <translation>Größe von</translation>
    </message>
    <message>
        <source>to</source>
        <translation>bis</translation>
    </message>
    <message>
        <source>Size to</source>
        <translation>Größe bis</translation>
    </message>
    <message>
        <source>&amp;Date from</source>
        <translation>&amp;Datum von</translation>
    </message>
    <message>
        <source>The date taken, or the date changed if the file has no date taken</source>
        <translation>Das Aufnahmedatum, oder das Änderungsdatum, wenn die Datei kein Aufnahmedatum hat</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Erster Tag</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Letzter Tag</translation>
    </message>
    <message>
        <source>With 0 there is no upper limit</source>
        <translation>Bei 0 gibt es keine Obergrenze</translation>
    </message>
</context>
<context>
    <name>AddToRecipe</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Add these settings to</source>
        <translation>Diese Einstellungen hinzufügen zu</translation>
    </message>
    <message>
        <source>Recipe to add to</source>
        <translation>Rezept, zu dem hinzugefügt wird</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
</context>
<context>
    <name>BackgroundPane</name>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>What fills transparent parts</source>
        <translation>Was transparente Bereiche füllt</translation>
    </message>
    <message>
        <source>Colour for transparent parts</source>
        <translation>Farbe für transparente Bereiche</translation>
    </message>
    <message>
        <source>Pattern for transparent parts</source>
        <translation>Muster für transparente Bereiche</translation>
    </message>
    <message>
        <source>About your own patterns</source>
        <translation>Hinweise zu eigenen Mustern</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Border width</source>
        <translation>Randbreite</translation>
    </message>
    <message>
        <source>Border colour</source>
        <translation>Randfarbe</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
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
        <translation>Kamerauhren</translation>
    </message>
    <message>
        <source>Correct the dates of a camera whose clock was wrong. This affects sorting, new names and folders. No file is changed.</source>
        <translation>Korrigieren Sie die Aufnahmezeiten einer Kamera, deren Uhr falsch ging. Das wirkt auf Sortierung, neue Namen und Ordner. Keine Datei wird geändert.</translation>
    </message>
    <message>
        <source>Ca&amp;mera</source>
        <translation>Ka&amp;mera</translation>
    </message>
    <message>
        <source>Move its &amp;dates</source>
        <translation>&amp;Aufnahmezeiten verschieben</translation>
    </message>
    <message>
        <source>Later or earlier</source>
        <translation>Später oder früher</translation>
    </message>
    <message>
        <source> h</source>
        <translation> Std.</translation>
    </message>
    <message>
        <source> min</source>
        <translation> Min.</translation>
    </message>
    <message>
        <source> s</source>
        <translation> Sek.</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minuten</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Sekunden</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Alle zurücksetzen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>ContactPages</name>
    <message>
        <source>Preview of the pages</source>
        <translation>Vorschau der Seiten</translation>
    </message>
    <message>
        <source>Pages before</source>
        <translation>Vorige Seiten</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>Keine Seiten</translation>
    </message>
    <message>
        <source>Pages after</source>
        <translation>Nächste Seiten</translation>
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
        <translation>Größe</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Width of the paper</source>
        <translation>Breite des Papiers</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Height of the paper</source>
        <translation>Höhe des Papiers</translation>
    </message>
    <message>
        <source>Paper orientation</source>
        <translation>Ausrichtung des Papiers</translation>
    </message>
    <message>
        <source>Per page</source>
        <translation>Je Seite</translation>
    </message>
    <message>
        <source>Pictures across</source>
        <translation>Bilder nebeneinander</translation>
    </message>
    <message>
        <source>Pictures down</source>
        <translation>Bilder untereinander</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>How a picture fits its place</source>
        <translation>Wie ein Bild in sein Feld passt</translation>
    </message>
    <message>
        <source>Rotate pictures to fit</source>
        <translation>Bilder passend drehen</translation>
    </message>
    <message>
        <source>Fill each page with one picture</source>
        <translation>Jede Seite mit einem Bild füllen</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Gap between pictures</source>
        <translation>Abstand zwischen Bildern</translation>
    </message>
    <message>
        <source>Top, bottom</source>
        <translation>Oben, unten</translation>
    </message>
    <message>
        <source>Margin at the top</source>
        <translation>Rand oben</translation>
    </message>
    <message>
        <source>Margin at the bottom</source>
        <translation>Rand unten</translation>
    </message>
    <message>
        <source>Left, right</source>
        <translation>Links, rechts</translation>
    </message>
    <message>
        <source>Margin on the left</source>
        <translation>Rand links</translation>
    </message>
    <message>
        <source>Margin on the right</source>
        <translation>Rand rechts</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Bildtext</translation>
    </message>
    <message>
        <source>Caption below each picture</source>
        <translation>Bildtext unter jedem Bild</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <translation>Einen Platzhalter einfügen</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Text size of the captions</source>
        <translation>Schriftgröße der Bildtexte</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>Kopfzeile</translation>
    </message>
    <message>
        <source>Insert the page number</source>
        <translation>Seitenzahl einfügen</translation>
    </message>
    <message>
        <source>Position of the header</source>
        <translation>Position der Kopfzeile</translation>
    </message>
    <message>
        <source>Footer</source>
        <translation>Fußzeile</translation>
    </message>
    <message>
        <source>Position of the footer</source>
        <translation>Position der Fußzeile</translation>
    </message>
    <message>
        <source>Crop marks</source>
        <translation>Schnittmarken</translation>
    </message>
    <message>
        <source>Thin line around pictures</source>
        <translation>Feine Linie um Bilder</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Header size</source>
        <translation>Größe Kopfzeile</translation>
    </message>
    <message>
        <source>Text size of the header and footer</source>
        <translation>Schriftgröße von Kopf- und Fußzeile</translation>
    </message>
    <message>
        <source>Page colour</source>
        <translation>Seitenfarbe</translation>
    </message>
    <message>
        <source>Colour of the page</source>
        <translation>Farbe der Seite</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>Maximum number of pixels per inch of paper</source>
        <translation>Höchstzahl der Pixel pro Zoll Papier</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>%</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Quality of the pictures</source>
        <translation>Qualität der Bilder</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Colour profile of the pictures</source>
        <translation>Farbprofil der Bilder</translation>
    </message>
    <message>
        <source>More…</source>
        <translation>Mehr …</translation>
    </message>
    <message>
        <source>Show more or fewer page settings</source>
        <translation>Mehr oder weniger Einstellungen der Seiten zeigen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name of the file, without .pdf</source>
        <translation>Name der Datei, ohne .pdf</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Höhere Qualität bedeutet größere Dateien</translation>
    </message>
    <message>
        <source>Converts the colours. sRGB suits screens and most printers.</source>
        <translation>Rechnet die Farben um. sRGB eignet sich für Bildschirme und die meisten Drucker.</translation>
    </message>
    <message>
        <source>A higher resolution means larger files</source>
        <translation>Eine höhere Auflösung bedeutet größere Dateien</translation>
    </message>
</context>
<context>
    <name>ConvertPane</name>
    <message>
        <source>Convert to</source>
        <translation>Umwandeln in</translation>
    </message>
    <message>
        <source>File type of the results</source>
        <translation>Dateityp der Ergebnisse</translation>
    </message>
    <message>
        <source>File type to convert to</source>
        <translation>Dateityp, in den umgewandelt wird</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>JPEG quality, 1 to 9</source>
        <translation>JPEG-Qualität, 1 bis 9</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Höhere Qualität bedeutet größere Dateien</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
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
        <translation>Größe</translation>
    </message>
    <message>
        <source>Trim by %</source>
        <translation>Schnitt %</translation>
    </message>
    <message>
        <source>Trim by px</source>
        <translation>Schnitt px</translation>
    </message>
    <message>
        <source>How the frame is set</source>
        <translation>Wie der Ausschnitt festgelegt wird</translation>
    </message>
    <message>
        <source>Width, height</source>
        <translation>Breite, Höhe</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Breite des Ausschnitts</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Height of the frame</source>
        <translation>Höhe des Ausschnitts</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Beschneiden</translation>
    </message>
    <message>
        <source>%</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Percentage to trim from width and height</source>
        <translation>Prozentsatz, der von Breite und Höhe abgeschnitten wird</translation>
    </message>
    <message>
        <source>Pixels to trim from width and height</source>
        <translation>Pixel, die von Breite und Höhe abgeschnitten werden</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Verhältnis</translation>
    </message>
    <message>
        <source>Ratio of width to height</source>
        <translation>Verhältnis von Breite zu Höhe</translation>
    </message>
    <message>
        <source>Unit of size and offsets</source>
        <translation>Einheit für Größe und Versatz</translation>
    </message>
    <message>
        <source>Unit of size and offsets: pixels, millimetres, centimetres, inches, picas, points</source>
        <translation>Einheit für Größe und Versatz: Pixel, Millimeter, Zentimeter, Zoll, Pica, Punkt</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Position of the frame</source>
        <translation>Position des Ausschnitts</translation>
    </message>
    <message>
        <source>Offset to the right</source>
        <translation>Versatz nach rechts</translation>
    </message>
    <message>
        <source>How far the frame is moved to the right</source>
        <translation>Wie weit der Ausschnitt nach rechts rückt</translation>
    </message>
    <message>
        <source>→ </source>
        <translation>→ </translation>
    </message>
    <message>
        <source>Offset downward</source>
        <translation>Versatz nach unten</translation>
    </message>
    <message>
        <source>How far the frame is moved down</source>
        <translation>Wie weit der Ausschnitt nach unten rückt</translation>
    </message>
    <message>
        <source>↓ </source>
        <translation>↓ </translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
    <message>
        <source>Swap for portrait pictures</source>
        <translation>Bei Hochformat tauschen</translation>
    </message>
    <message>
        <source>The larger number is used for the longer side: 3:2 becomes 2:3 in portrait pictures</source>
        <translation>Die größere Zahl gilt für die längere Seite: Aus 3:2 wird bei Hochformat 2:3</translation>
    </message>
    <message>
        <source>First number of the ratio</source>
        <translation>Erste Zahl des Verhältnisses</translation>
    </message>
    <message>
        <source>Second number of the ratio</source>
        <translation>Zweite Zahl des Verhältnisses</translation>
    </message>
    <message>
        <source>Focus of attention</source>
        <translation>Blickfang</translation>
    </message>
    <message>
        <source>Finds in each picture the part that draws the eye, and places the frame there</source>
        <translation>Sucht in jedem Bild die Stelle, die den Blick anzieht, und legt den Ausschnitt dorthin</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Unit of the offsets</source>
        <translation>Einheit des Versatzes</translation>
    </message>
    <message>
        <source>Unit of the offsets: pixels, millimetres, centimetres, inches, picas, points</source>
        <translation>Einheit des Versatzes: Pixel, Millimeter, Zentimeter, Zoll, Pica, Punkt</translation>
    </message>
    <message>
        <source>Resolution used for lengths</source>
        <translation>Auflösung für Längen</translation>
    </message>
    <message>
        <source>Dots per inch used to turn lengths into pixels. A chosen resolution is also written into the file.</source>
        <translation>Punkte pro Zoll, mit denen Längen in Pixel umgerechnet werden. Eine gewählte Auflösung wird auch in die Datei geschrieben.</translation>
    </message>
    <message>
        <source>Dots per inch</source>
        <translation>Punkte pro Zoll</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>Turns lengths into pixels and is written into the file</source>
        <translation>Rechnet Längen in Pixel um und wird in die Datei geschrieben</translation>
    </message>
</context>
<context>
    <name>HandPage</name>
    <message>
        <source>Drop pictures or folders here</source>
        <translation>Bilder oder Ordner hier ablegen</translation>
    </message>
    <message>
        <source>Pictures appear one at a time; press a key to send each one to a folder.</source>
        <translation>Die Bilder erscheinen einzeln; ein Tastendruck schickt jedes in einen Ordner.</translation>
    </message>
    <message>
        <source>Add Pictures…</source>
        <translation>Bilder hinzufügen …</translation>
    </message>
    <message>
        <source>Add pictures (Ctrl+O)</source>
        <translation>Bilder hinzufügen (Strg+O)</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>Add all pictures in a folder and its subfolders (Ctrl+Shift+O)</source>
        <translation>Alle Bilder eines Ordners und seiner Unterordner hinzufügen (Strg+Umschalt+O)</translation>
    </message>
    <message>
        <source>The picture to sort</source>
        <translation>Zu sortierendes Bild</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Zurück</translation>
    </message>
    <message>
        <source>Previous picture (Left, Backspace)</source>
        <translation>Vorheriges Bild (Links, Rücktaste)</translation>
    </message>
    <message>
        <source>Skip →</source>
        <translation>Überspringen →</translation>
    </message>
    <message>
        <source>Next picture (Right)</source>
        <translation>Nächstes Bild (Rechts)</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Papierkorb</translation>
    </message>
    <message>
        <source>Move the picture to the trash (Del)</source>
        <translation>Bild in den Papierkorb legen (Entf)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Undo (Ctrl+Z)</source>
        <translation>Rückgängig (Strg+Z)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Move with Keys</source>
        <translation>Mit Tasten verschieben</translation>
    </message>
    <message>
        <source>Copy with Keys</source>
        <translation>Mit Tasten kopieren</translation>
    </message>
    <message>
        <source>Link with Keys</source>
        <translation>Mit Tasten verknüpfen</translation>
    </message>
    <message>
        <source>Actual pixels</source>
        <translation>Originalpixel</translation>
    </message>
    <message>
        <source>Switch between actual pixels and the whole picture (Ctrl+2)</source>
        <translation>Zwischen Originalpixeln und ganzem Bild wechseln (Strg+2)</translation>
    </message>
</context>
<context>
    <name>HandPane</name>
    <message>
        <source>When a key is pressed</source>
        <translation>Bei Tastendruck</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verknüpfen</translation>
    </message>
    <message>
        <source>What a key does with the picture</source>
        <translation>Was bei einem Tastendruck mit dem Bild geschieht</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Hinzufügen …</translation>
    </message>
    <message>
        <source>Choose a folder, or drop folders on the list</source>
        <translation>Einen Ordner wählen oder Ordner auf der Liste ablegen</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>Neu …</translation>
    </message>
    <message>
        <source>Create a new folder</source>
        <translation>Neuen Ordner anlegen</translation>
    </message>
    <message>
        <source>⋯</source>
        <translation>⋯</translation>
    </message>
    <message>
        <source>Folder Options</source>
        <translation>Ordneroptionen</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Name des neuen Ordners</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Do not create a folder (Esc)</source>
        <translation>Keinen Ordner anlegen (Esc)</translation>
    </message>
    <message>
        <source>Create Folder</source>
        <translation>Ordner anlegen</translation>
    </message>
    <message>
        <source>Create the folder and give it a key (Return)</source>
        <translation>Ordner anlegen und ihm eine Taste zuweisen (Eingabetaste)</translation>
    </message>
    <message>
        <source>Folders and their keys</source>
        <translation>Ordner und ihre Tasten</translation>
    </message>
    <message>
        <source>Add up to 59 folders to sort into. The first one gets key 1, and so on.</source>
        <translation>Fügen Sie bis zu 59 Zielordner hinzu. Der erste bekommt die Taste 1 und so weiter.</translation>
    </message>
</context>
<context>
    <name>Info</name>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Erklärung</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>LongWait</name>
    <message>
        <source>Still reading</source>
        <translation>Wird noch gelesen</translation>
    </message>
    <message>
        <source>A picture is taking a long time to read.</source>
        <translation>Das Lesen eines Bildes dauert lange.</translation>
    </message>
    <message>
        <source>Do Not Wait</source>
        <translation>Nicht warten</translation>
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
        <translation>Titel der Seite</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Text above the pictures</source>
        <translation>Text über den Bildern</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Reihen</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Bildgeschichte</translation>
    </message>
    <message>
        <source>Arrangement of the pictures</source>
        <translation>Anordnung der Bilder</translation>
    </message>
    <message>
        <source>Sketch of the page</source>
        <translation>Skizze der Seite</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>Bildtexte</translation>
    </message>
    <message>
        <source>Pattern for all captions</source>
        <translation>Muster aller Bildtexte</translation>
    </message>
    <message>
        <source>Insert a value</source>
        <translation>Wert einfügen</translation>
    </message>
    <message>
        <source>This picture</source>
        <translation>Dieses Bild</translation>
    </message>
    <message>
        <source>Caption of the current picture</source>
        <translation>Text des aktuellen Bildes</translation>
    </message>
    <message>
        <source>As Above</source>
        <translation>Wie oben</translation>
    </message>
    <message>
        <source>Discard the caption of this picture</source>
        <translation>Den Bildtext dieses Bildes verwerfen</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Light page colour</source>
        <translation>Helle Seitenfarbe</translation>
    </message>
    <message>
        <source>Dark page colour</source>
        <translation>Dunkle Seitenfarbe</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Colour of links</source>
        <translation>Farbe der Links</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Language of the page</source>
        <translation>Sprache der Seite</translation>
    </message>
    <message>
        <source>Writing direction</source>
        <translation>Schreibrichtung</translation>
    </message>
    <message>
        <source>Longest side</source>
        <translation>Längste Seite</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Klein</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Groß</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Three sizes</source>
        <translation>Drei Größen</translation>
    </message>
    <message>
        <source>If this is off, each picture has only a small and a large file</source>
        <translation>Sonst hat jedes Bild nur eine kleine und eine große Datei</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>File type of the pictures</source>
        <translation>Dateityp der Bilder</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Sharpen a little</source>
        <translation>Etwas schärfen</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadaten</translation>
    </message>
    <message>
        <source>Metadata of the pictures</source>
        <translation>Metadaten der Bilder</translation>
    </message>
    <message>
        <source>Include the location</source>
        <translation>Aufnahmeort angeben</translation>
    </message>
    <message>
        <source>The metadata keeps the location, and captions can contain it</source>
        <translation>Die Metadaten behalten den Aufnahmeort, und Bildtexte dürfen ihn nennen</translation>
    </message>
    <message>
        <source>Offer the pictures for download</source>
        <translation>Bilder zum Herunterladen anbieten</translation>
    </message>
    <message>
        <source>Save in</source>
        <translation>Speichern in</translation>
    </message>
    <message>
        <source>Where the page is saved</source>
        <translation>Wo die Seite gespeichert wird</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Name of the folder of the page</source>
        <translation>Name des Ordners der Seite</translation>
    </message>
    <message>
        <source>If it exists</source>
        <translation>Falls vorhanden</translation>
    </message>
    <message>
        <source>What happens if the folder exists</source>
        <translation>Was geschieht, wenn der Ordner vorhanden ist</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Vorlage</translation>
    </message>
    <message>
        <source>Template of the page</source>
        <translation>Vorlage der Seite</translation>
    </message>
    <message>
        <source>Open Preview</source>
        <translation>Vorschau öffnen</translation>
    </message>
    <message>
        <source>Shows the page with its first 12 pictures in the browser</source>
        <translation>Zeigt die Seite mit ihren ersten 12 Bildern im Browser</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Schreibrichtung</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Höhere Qualität bedeutet größere Dateien</translation>
    </message>
</context>
<context>
    <name>contact-action</name>
    <message>
        <source>Contact Sheet</source>
        <translation>Kontaktbogen</translation>
    </message>
    <message>
        <source>Making pages</source>
        <translation>Seiten erstellen</translation>
    </message>
    <message numerus="yes">
        <source>Make %n Pages</source>
        <translation>
            <numerusform>%n Seite erstellen</numerusform>
            <numerusform>%n Seiten erstellen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>contact-pane</name>
    <message>
        <source>Other…</source>
        <translation>Anderes …</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Own size</source>
        <translation>Eigene Größe</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Choose a colour profile</source>
        <translation>Ein Farbprofil wählen</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Weniger</translation>
    </message>
    <message>
        <source>More…</source>
        <translation>Mehr …</translation>
    </message>
    <message>
        <source>Pages %1–%2 of %3</source>
        <translation>Seiten %1–%2 von %3</translation>
    </message>
    <message>
        <source>Page %1 of %3</source>
        <translation>Seite %1 von %3</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>Keine Seiten</translation>
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
        <translation>Kontaktbogen, 20 je Seite</translation>
    </message>
    <message>
        <source>Contact sheet, 48 on a page</source>
        <translation>Kontaktbogen, 48 je Seite</translation>
    </message>
    <message>
        <source>Contact sheet on black</source>
        <translation>Kontaktbogen auf Schwarz</translation>
    </message>
    <message>
        <source>One on a page, with its name</source>
        <translation>Eines je Seite, mit Namen</translation>
    </message>
    <message>
        <source>Proofs, 2 on a page</source>
        <translation>Abzüge, 2 je Seite</translation>
    </message>
    <message>
        <source>Prints of 9 × 13 cm to cut</source>
        <translation>Abzüge 9 × 13 cm zum Schneiden</translation>
    </message>
</context>
<context>
    <name>contact-step</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Contact sheet</source>
        <translation>Kontaktbogen</translation>
    </message>
    <message>
        <source>%1 × %2 on a page</source>
        <translation>%1 × %2 je Seite</translation>
    </message>
</context>
<context>
    <name>crash-note</name>
    <message>
        <source>Quorlin ended unexpectedly</source>
        <translation>Quorlin wurde unerwartet beendet</translation>
    </message>
    <message>
        <source>An error in Quorlin ended the last session. Your originals are not affected.</source>
        <translation>Ein Fehler in Quorlin hat die letzte Sitzung beendet. Ihre Originale sind nicht betroffen.</translation>
    </message>
    <message>
        <source>A report was saved on this computer and not sent. It names the version, the action, the picture and the place of the error.</source>
        <translation>Ein Bericht wurde auf diesem Computer gespeichert und nicht gesendet. Er nennt Version, Aktion, Bild und Stelle des Fehlers.</translation>
    </message>
    <message>
        <source>Copy Report</source>
        <translation>Bericht kopieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>interrupted-bar</name>
    <message>
        <source>A run was interrupted</source>
        <translation>Ein Durchlauf wurde unterbrochen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsetzen</translation>
    </message>
    <message numerus="yes">
        <source>Writing metadata was interrupted: %n pictures were changed. You can revert them in the log.</source>
        <translation>
            <numerusform>Das Schreiben von Metadaten wurde unterbrochen: %n Bild wurde geändert. Im Protokoll können Sie es zurücksetzen.</numerusform>
            <numerusform>Das Schreiben von Metadaten wurde unterbrochen: %n Bilder wurden geändert. Im Protokoll können Sie sie zurücksetzen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>Search the log</source>
        <translation>Im Protokoll suchen</translation>
    </message>
    <message>
        <source>Shows entries that contain every word (Ctrl+F)</source>
        <translation>Zeigt Einträge, die jedes Wort enthalten (Strg+F)</translation>
    </message>
    <message>
        <source>Show entries with this status</source>
        <translation>Einträge mit diesem Status zeigen</translation>
    </message>
    <message>
        <source>Show entries of this kind</source>
        <translation>Einträge dieser Art zeigen</translation>
    </message>
    <message>
        <source>Show Picture</source>
        <translation>Bild zeigen</translation>
    </message>
    <message>
        <source>Show the picture large, if it still exists (Return)</source>
        <translation>Bild groß zeigen, falls es noch da ist (Eingabetaste)</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Open the folder and select the file in it</source>
        <translation>Den Ordner öffnen und die Datei darin auswählen</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Save the entries shown as a CSV file for spreadsheets</source>
        <translation>Die gezeigten Einträge als CSV-Datei für Tabellenprogramme speichern</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>Log Options</source>
        <translation>Protokolloptionen</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Durchläufe</translation>
    </message>
    <message>
        <source>Entries of the log</source>
        <translation>Einträge des Protokolls</translation>
    </message>
    <message>
        <source>Revert Comment</source>
        <translation>Kommentar zurücksetzen</translation>
    </message>
    <message>
        <source>Restore the old comments of the selected pictures</source>
        <translation>Die alten Kommentare der ausgewählten Bilder wiederherstellen</translation>
    </message>
    <message>
        <source>Undo This Run</source>
        <translation>Rückgängig machen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Search the Log</source>
        <translation>Im Protokoll suchen</translation>
    </message>
    <message>
        <source>Use These Settings</source>
        <translation>Diese Einstellungen verwenden</translation>
    </message>
    <message>
        <source>Open the action of this run with its settings</source>
        <translation>Die Aktion dieses Durchlaufs mit seinen Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Forget Old Values</source>
        <translation>Alte Werte vergessen</translation>
    </message>
    <message>
        <source>Delete the old metadata that is kept for reverting</source>
        <translation>Die alten Metadaten löschen, die zum Zurücksetzen aufbewahrt werden</translation>
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
        <translation>Bilder hinzufügen …</translation>
    </message>
    <message>
        <source>Add pictures (Ctrl+O)</source>
        <translation>Bilder hinzufügen (Strg+O)</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>Add all pictures in a folder and its subfolders (Ctrl+Shift+O)</source>
        <translation>Alle Bilder eines Ordners und seiner Unterordner hinzufügen (Strg+Umschalt+O)</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Clear the list (files are not deleted)</source>
        <translation>Die Liste leeren (Dateien werden nicht gelöscht)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>How the preview fits the view</source>
        <translation>Wie die Vorschau die Ansicht füllt</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Full screen and back (F11)</source>
        <translation>Vollbild ein und aus (F11)</translation>
    </message>
    <message>
        <source>Choose a folder for your own background patterns?</source>
        <translation>Einen Ordner für eigene Hintergrundmuster wählen?</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>No, Thanks</source>
        <translation>Nein, danke</translation>
    </message>
    <message>
        <source>You can choose it in the preferences at any time (Ctrl+,)</source>
        <translation>Er lässt sich jederzeit in den Einstellungen wählen (Strg+,)</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>Drop pictures or folders here</source>
        <translation>Bilder oder Ordner hier ablegen</translation>
    </message>
    <message>
        <source>Then choose an action on the left. Your originals stay unchanged unless you ask for it.</source>
        <translation>Wählen Sie dann links eine Aktion. Ihre Originale bleiben unverändert, sofern Sie nichts anderes verlangen.</translation>
    </message>
    <message>
        <source>Preview of the original and the result</source>
        <translation>Vorschau von Original und Ergebnis</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Dry run: move nothing</source>
        <translation>Probelauf: nichts verschieben</translation>
    </message>
    <message>
        <source>About dry runs</source>
        <translation>Hinweise zu Probeläufen</translation>
    </message>
    <message>
        <source>Resize Pictures</source>
        <translation>Bilder skalieren</translation>
    </message>
    <message>
        <source>Start (Ctrl+Return)</source>
        <translation>Starten (Strg+Eingabe)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Fortschritt des Durchlaufs</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop after the current picture (Esc)</source>
        <translation>Nach dem laufenden Bild abbrechen (Esc)</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Show Failed</source>
        <translation>Fehler zeigen</translation>
    </message>
    <message>
        <source>Retry Failed</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Save Report…</source>
        <translation>Bericht speichern …</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Recent &amp;Folders</source>
        <translation>&amp;Letzte Ordner</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Darstellung</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>D&amp;urchlauf</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Add Pictures…</source>
        <translation>Bilder &amp;hinzufügen …</translation>
    </message>
    <message>
        <source>Add &amp;Folder…</source>
        <translation>&amp;Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>Save Picture &amp;As…</source>
        <translation>Bild speichern &amp;unter …</translation>
    </message>
    <message>
        <source>&amp;Save Report…</source>
        <translation>Be&amp;richt speichern …</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Paste Pictures</source>
        <translation>Bilder &amp;einfügen</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>Aus Liste ent&amp;fernen</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>&amp;Fit Preview</source>
        <translation>Vorschau &amp;einpassen</translation>
    </message>
    <message>
        <source>F&amp;ill Preview</source>
        <translation>Vorschau &amp;füllen</translation>
    </message>
    <message>
        <source>&amp;Next Picture</source>
        <translation>&amp;Nächstes Bild</translation>
    </message>
    <message>
        <source>&amp;Previous Picture</source>
        <translation>&amp;Vorheriges Bild</translation>
    </message>
    <message>
        <source>&amp;Large Preview</source>
        <translation>&amp;Große Vorschau</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>&amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>Full &amp;Screen</source>
        <translation>Voll&amp;bild</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Starten</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>&amp;Umbenennen …</translation>
    </message>
    <message>
        <source>Show &amp;Failed Only</source>
        <translation>Nur &amp;Fehlgeschlagene zeigen</translation>
    </message>
    <message>
        <source>&amp;Retry Failed</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message>
        <source>Page Set&amp;up…</source>
        <translation>&amp;Seite einrichten …</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Drucken …</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>Check for &amp;Updates</source>
        <translation>Nach &amp;Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>&amp;About Quorlin</source>
        <translation>&amp;Über Quorlin</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>Show all rows of the list</source>
        <translation>Alle Zeilen der Liste zeigen</translation>
    </message>
    <message>
        <source>Show Them…</source>
        <translation>Anzeigen …</translation>
    </message>
    <message>
        <source>Show which files of the list this action cannot use</source>
        <translation>Zeigen, welche Dateien der Liste diese Aktion nicht verwenden kann</translation>
    </message>
    <message>
        <source>Convert Them</source>
        <translation>Umwandeln</translation>
    </message>
    <message>
        <source>Go to Convert, which can use them</source>
        <translation>Zu „Umwandeln“ wechseln, das sie verwenden kann</translation>
    </message>
    <message>
        <source>Try Sample Pictures</source>
        <translation>Beispielbilder ausprobieren</translation>
    </message>
    <message>
        <source>Copies five pictures to the folder “Quorlin Samples” in your pictures folder</source>
        <translation>Kopiert fünf Bilder in den Ordner „Quorlin Samples“ in Ihrem Bilderordner</translation>
    </message>
    <message>
        <source>&amp;Watch a Folder…</source>
        <translation>Ordner über&amp;wachen …</translation>
    </message>
    <message>
        <source>Process pictures as they arrive in a folder, with these settings</source>
        <translation>Bilder, die in einem Ordner ankommen, sofort mit diesen Einstellungen bearbeiten</translation>
    </message>
    <message>
        <source>Stop Watching</source>
        <translation>Überwachung beenden</translation>
    </message>
    <message>
        <source>Add Anyway</source>
        <translation>Trotzdem hinzufügen</translation>
    </message>
    <message>
        <source>Add results of earlier runs to the list</source>
        <translation>Ergebnisse früherer Durchläufe zur Liste hinzufügen</translation>
    </message>
    <message>
        <source>What to do when this run is finished</source>
        <translation>Was geschieht, wenn dieser Durchlauf fertig ist</translation>
    </message>
    <message>
        <source>When done</source>
        <translation>Danach</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Belassen</translation>
    </message>
    <message>
        <source>Return the finished files to their old names and folders (Ctrl+Z)</source>
        <translation>Den fertigen Dateien ihre alten Namen und Ordner zurückgeben (Strg+Z)</translation>
    </message>
    <message>
        <source>Keep what is finished. You will not be asked again.</source>
        <translation>Was fertig ist, bleibt. Sie werden nicht noch einmal gefragt.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>&amp;Tick or Untick</source>
        <translation>&amp;Häkchen setzen oder entfernen</translation>
    </message>
    <message>
        <source>A run leaves out rows that are not ticked</source>
        <translation>Ein Durchlauf lässt Zeilen ohne Häkchen aus</translation>
    </message>
    <message>
        <source>Tick A&amp;ll</source>
        <translation>A&amp;lle Häkchen setzen</translation>
    </message>
    <message>
        <source>&amp;Columns of the List</source>
        <translation>&amp;Spalten der Liste</translation>
    </message>
    <message>
        <source>&amp;Actual Pixels</source>
        <translation>&amp;Originalpixel</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Repeat the &amp;Last Run</source>
        <translation>&amp;Letzten Durchlauf wiederholen</translation>
    </message>
    <message>
        <source>Process the pictures added since the last run, with its settings</source>
        <translation>Die seit dem letzten Durchlauf hinzugefügten Bilder mit dessen Einstellungen bearbeiten</translation>
    </message>
    <message>
        <source>Camera &amp;Clocks…</source>
        <translation>Kamera&amp;uhren …</translation>
    </message>
    <message>
        <source>Correct the dates of a camera whose clock was wrong, without changing any file</source>
        <translation>Die Aufnahmezeiten einer Kamera korrigieren, deren Uhr falsch ging, ohne eine Datei zu ändern</translation>
    </message>
    <message>
        <source>Recent &amp;Destinations</source>
        <translation>Letzte &amp;Ziele</translation>
    </message>
    <message>
        <source>Recent Re&amp;cipes</source>
        <translation>Letzte Re&amp;zepte</translation>
    </message>
    <message>
        <source>&amp;Export List…</source>
        <translation>Liste &amp;exportieren …</translation>
    </message>
    <message>
        <source>Save the list with all its columns as a CSV file for spreadsheets</source>
        <translation>Die Liste mit allen Spalten als CSV-Datei für Tabellenprogramme speichern</translation>
    </message>
    <message>
        <source>&amp;Copy Files</source>
        <translation>Dateien &amp;kopieren</translation>
    </message>
    <message>
        <source>Copy the files of the selected rows, or their results (in the list: Ctrl+C)</source>
        <translation>Die Dateien der ausgewählten Zeilen oder ihre Ergebnisse kopieren (in der Liste: Strg+C)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Nach u&amp;nten</translation>
    </message>
    <message>
        <source>&amp;Write Ratings into Files…</source>
        <translation>Bewertungen in die Dateien &amp;schreiben …</translation>
    </message>
    <message>
        <source>Write the stars of the list into the files of its pictures, where other programs read them</source>
        <translation>Die Sterne der Liste in die Dateien der Bilder schreiben, wo andere Programme sie lesen</translation>
    </message>
    <message>
        <source>&amp;Properties and Filter…</source>
        <translation>&amp;Eigenschaften und Filter …</translation>
    </message>
    <message>
        <source>Show metadata as columns of the list, and only the pictures that match</source>
        <translation>Metadaten als Spalten der Liste zeigen, und nur passende Bilder</translation>
    </message>
</context>
<context>
    <name>Manual</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Back (Alt+Left)</source>
        <translation>Zurück (Alt+Links)</translation>
    </message>
    <message>
        <source>Forward (Alt+Right)</source>
        <translation>Vor (Alt+Rechts)</translation>
    </message>
    <message>
        <source>Find in the manual</source>
        <translation>Im Handbuch suchen</translation>
    </message>
    <message>
        <source>Press Return for the next match (Ctrl+F, F3)</source>
        <translation>Die Eingabetaste zeigt die nächste Fundstelle (Strg+F, F3)</translation>
    </message>
    <message>
        <source>Pages of the manual</source>
        <translation>Seiten des Handbuchs</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Seite des Handbuchs</translation>
    </message>
</context>
<context>
    <name>MetadataPage</name>
    <message>
        <source>Drop pictures or folders here</source>
        <translation>Bilder oder Ordner hier ablegen</translation>
    </message>
    <message>
        <source>You see all properties of each picture, and can read, write and revert its comment.</source>
        <translation>Sie sehen alle Eigenschaften jedes Bildes und können seinen Kommentar lesen, schreiben und zurücksetzen.</translation>
    </message>
    <message>
        <source>Add Pictures…</source>
        <translation>Bilder hinzufügen …</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>Search Properties</source>
        <translation>Eigenschaften suchen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected value or branch (Ctrl+C in the tree), or where the picture was taken</source>
        <translation>Den ausgewählten Wert oder Zweig (Strg+C im Baum) oder den Aufnahmeort kopieren</translation>
    </message>
    <message>
        <source>Properties of the picture</source>
        <translation>Eigenschaften des Bildes</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>Das Bild</translation>
    </message>
    <message>
        <source>User comment</source>
        <translation>Benutzerkommentar</translation>
    </message>
    <message>
        <source>Which pictures get the comment</source>
        <translation>Welche Bilder den Kommentar bekommen</translation>
    </message>
    <message>
        <source>Insert Token…</source>
        <translation>Platzhalter einfügen …</translation>
    </message>
    <message>
        <source>Insert a placeholder that is filled in for each picture</source>
        <translation>Einen Platzhalter einfügen, der für jedes Bild ausgefüllt wird</translation>
    </message>
    <message>
        <source>Metadata History</source>
        <translation>Metadatenverlauf</translation>
    </message>
    <message>
        <source>Show old and new comments, and revert them</source>
        <translation>Alte und neue Kommentare zeigen und zurücksetzen</translation>
    </message>
    <message>
        <source>Progress of the comments</source>
        <translation>Fortschritt der Kommentare</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stop after the picture that is being written (Esc)</source>
        <translation>Nach dem Bild anhalten, das gerade geschrieben wird (Esc)</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Restore the old comments of the last run</source>
        <translation>Die alten Kommentare des letzten Durchlaufs wiederherstellen</translation>
    </message>
    <message>
        <source>Choose Files…</source>
        <translation>Dateien wählen …</translation>
    </message>
    <message>
        <source>Choose JPEG and TIFF files and write the comment into all of them</source>
        <translation>JPEG- und TIFF-Dateien wählen und den Kommentar in alle schreiben</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>Choose a folder and write the comment into all its JPEG and TIFF files, subfolders included</source>
        <translation>Einen Ordner wählen und den Kommentar in alle JPEG- und TIFF-Dateien schreiben, auch in Unterordnern</translation>
    </message>
    <message>
        <source>Write into All…</source>
        <translation>In alle schreiben …</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Write the comment into this picture. Press Ctrl+Return to also go to the next one.</source>
        <translation>Den Kommentar in dieses Bild schreiben. Strg+Eingabe geht danach zum nächsten.</translation>
    </message>
    <message>
        <source>Write Comment and Go to the Next Picture</source>
        <translation>Kommentar schreiben und zum nächsten Bild</translation>
    </message>
    <message>
        <source>Edit Fields…</source>
        <translation>Felder bearbeiten …</translation>
    </message>
    <message>
        <source>Write titles, keywords, copyright and other fields of many pictures</source>
        <translation>Titel, Stichwörter, Copyright und andere Felder vieler Bilder schreiben</translation>
    </message>
    <message>
        <source>Search properties</source>
        <translation>Eigenschaften suchen</translation>
    </message>
</context>
<context>
    <name>NewVersion</name>
    <message>
        <source>New version</source>
        <translation>Neue Version</translation>
    </message>
    <message>
        <source>A new version of Quorlin is available</source>
        <translation>Eine neue Version von Quorlin ist verfügbar</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Was ist neu</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Go to Product Page</source>
        <translation>Zur Produktseite</translation>
    </message>
</context>
<context>
    <name>OutputPane</name>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>File type of the results</source>
        <translation>Dateityp der Ergebnisse</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Quality, 1 to 10</source>
        <translation>Qualität, 1 bis 10</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>Speichern in</translation>
    </message>
    <message>
        <source>Folder of the results</source>
        <translation>Ordner der Ergebnisse</translation>
    </message>
    <message>
        <source>About the folder of the results</source>
        <translation>Hinweise zum Ordner der Ergebnisse</translation>
    </message>
    <message>
        <source>If the file exists</source>
        <translation>Falls vorhanden</translation>
    </message>
    <message>
        <source>If a file with this name exists</source>
        <translation>Wenn eine Datei mit diesem Namen vorhanden ist</translation>
    </message>
    <message>
        <source>Dry run: write nothing</source>
        <translation>Probelauf: nichts schreiben</translation>
    </message>
    <message>
        <source>About dry runs</source>
        <translation>Hinweise zu Probeläufen</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadaten</translation>
    </message>
    <message>
        <source>Metadata that results keep</source>
        <translation>Metadaten, die die Ergebnisse behalten</translation>
    </message>
    <message>
        <source>Remove location</source>
        <translation>Aufnahmeort entfernen</translation>
    </message>
    <message>
        <source>Removes where the picture was taken: coordinates and place names</source>
        <translation>Entfernt, wo das Bild aufgenommen wurde: Koordinaten und Ortsnamen</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Colour for transparent parts</source>
        <translation>Farbe für transparente Bereiche</translation>
    </message>
    <message>
        <source>Replaces transparency in file types that cannot hold it</source>
        <translation>Ersetzt Transparenz in Dateitypen, die keine kennen</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Ordnername</translation>
    </message>
    <message>
        <source>Name of the folder next to the originals</source>
        <translation>Name des Ordners neben den Originalen</translation>
    </message>
    <message>
        <source>Keep subfolders</source>
        <translation>Unterordner beibehalten</translation>
    </message>
    <message>
        <source>Recreates the subfolders of each added folder</source>
        <translation>Legt die Unterordner jedes hinzugefügten Ordners wieder an</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name of the results, without extension</source>
        <translation>Name der Ergebnisse, ohne Endung</translation>
    </message>
    <message>
        <source>Tokens such as {name}, {taken} and {counter:001} are filled in for each picture. To write a brace, type {{.</source>
        <translation>Platzhalter wie {name}, {taken} und {counter:001} werden für jedes Bild ausgefüllt. Für eine geschweifte Klammer tippen Sie {{.</translation>
    </message>
    <message>
        <source>Insert a token into the name</source>
        <translation>Einen Platzhalter in den Namen einfügen</translation>
    </message>
    <message>
        <source>Keep the file date</source>
        <translation>Dateidatum behalten</translation>
    </message>
    <message>
        <source>Results get the modification time of their originals</source>
        <translation>Ergebnisse bekommen die Änderungszeit ihrer Originale</translation>
    </message>
    <message>
        <source>More…</source>
        <translation>Mehr …</translation>
    </message>
    <message>
        <source>Show more or fewer settings</source>
        <translation>Mehr oder weniger Einstellungen zeigen</translation>
    </message>
    <message>
        <source>Write All as JPEG</source>
        <translation>Alle als JPEG schreiben</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Höhere Qualität bedeutet größere Dateien</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Support folder</source>
        <translation>Hilfsordner</translation>
    </message>
    <message>
        <source>None chosen yet</source>
        <translation>Noch keiner gewählt</translation>
    </message>
    <message>
        <source>Put your own background patterns into its subfolder Patterns. They then appear in Background &amp; Border.</source>
        <translation>Legen Sie eigene Hintergrundmuster in den Unterordner Patterns. Sie erscheinen dann in Hintergrund &amp; Rand.</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Ändern …</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Takes effect after a restart.</source>
        <translation>Wirkt nach einem Neustart.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>If the file exists</source>
        <translation>Falls vorhanden</translation>
    </message>
    <message>
        <source>What new actions do if the file exists</source>
        <translation>Was neue Aktionen tun, falls die Datei vorhanden ist</translation>
    </message>
    <message>
        <source>Default for actions you have not used yet.</source>
        <translation>Vorgabewert für Aktionen, die Sie noch nicht benutzt haben.</translation>
    </message>
    <message>
        <source>Keep log entries for</source>
        <translation>Protokolleinträge behalten für</translation>
    </message>
    <message>
        <source>How many log entries to keep</source>
        <translation>Wie viele Protokolleinträge bleiben</translation>
    </message>
    <message>
        <source>Check for updates at startup</source>
        <translation>Beim Start nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>Prozessoren</translation>
    </message>
    <message>
        <source>How many processors runs may use</source>
        <translation>Wie viele Prozessoren Durchläufe benutzen dürfen</translation>
    </message>
    <message>
        <source>Applies to all windows at once.</source>
        <translation>Gilt sofort für alle Fenster.</translation>
    </message>
    <message>
        <source>Save results to</source>
        <translation>Ergebnisse speichern in</translation>
    </message>
    <message>
        <source>Where new actions save their results</source>
        <translation>Wo neue Aktionen ihre Ergebnisse speichern</translation>
    </message>
    <message>
        <source>Older entries are deleted for good.</source>
        <translation>Ältere Einträge werden endgültig gelöscht.</translation>
    </message>
    <message>
        <source>Use fewer to keep other programs fast. The results are the same.</source>
        <translation>Weniger Prozessoren lassen andere Programme schneller laufen. Die Ergebnisse sind gleich.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Arbeitsspeicher</translation>
    </message>
    <message>
        <source>How much memory runs may use</source>
        <translation>Wie viel Arbeitsspeicher Durchläufe benutzen dürfen</translation>
    </message>
    <message>
        <source>If large pictures need more, fewer are processed at a time.</source>
        <translation>Brauchen große Bilder mehr, werden weniger zugleich bearbeitet.</translation>
    </message>
    <message>
        <source>Quorlin only asks for the version number. It downloads and installs nothing.</source>
        <translation>Quorlin fragt nur nach der Versionsnummer. Es lädt und installiert nichts.</translation>
    </message>
    <message>
        <source>Share thumbnails with other programs</source>
        <translation>Vorschaubilder mit anderen Programmen teilen</translation>
    </message>
    <message>
        <source>Lists of pictures appear sooner. Thumbnails of encrypted and removable disks are never kept.</source>
        <translation>Bildlisten erscheinen schneller. Von verschlüsselten und entfernbaren Datenträgern werden nie Vorschaubilder aufbewahrt.</translation>
    </message>
    <message>
        <source>Bring the list back at startup</source>
        <translation>Liste beim Start wiederherstellen</translation>
    </message>
    <message>
        <source>Otherwise it is empty. After a crash or an interrupted run it always comes back.</source>
        <translation>Sonst ist sie leer. Nach einem Absturz oder einem unterbrochenen Durchlauf kommt sie immer zurück.</translation>
    </message>
</context>
<context>
    <name>PresetPane</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Save, rename, delete, export or import presets</source>
        <translation>Vorgaben speichern, umbenennen, löschen, exportieren oder importieren</translation>
    </message>
    <message>
        <source>About presets</source>
        <translation>Hinweise zu Vorgaben</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Name der Vorgabe</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>Print</name>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Pictures prepared for printing</source>
        <translation>Für den Druck vorbereitete Bilder</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Drucken …</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Unbekannt</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Supported files</source>
        <translation>Unterstützte Dateien</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Alle speichern</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesDialog</name>
    <message>
        <source>Printer Properties</source>
        <translation>Eigenschaften des Druckers</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesWidget</name>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Double Sided Printing</source>
        <translation>Beidseitig</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Bindung an langer Seite</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Bindung an kurzer Seite</translation>
    </message>
</context>
<context>
    <name>RecipeCard</name>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Move this card (arrow keys)</source>
        <translation>Diese Karte verschieben (Pfeiltasten)</translation>
    </message>
    <message>
        <source>Drag to another place, or Alt+Up and Alt+Down</source>
        <translation>An einen anderen Platz ziehen oder Alt+Hoch und Alt+Runter</translation>
    </message>
    <message>
        <source>Use this operation</source>
        <translation>Diese Bearbeitung anwenden</translation>
    </message>
    <message>
        <source>Show or hide its settings</source>
        <translation>Einstellungen ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>Show this output in the preview</source>
        <translation>Diese Ausgabe in der Vorschau zeigen</translation>
    </message>
    <message>
        <source>Remove this card</source>
        <translation>Diese Karte entfernen</translation>
    </message>
    <message>
        <source>Remove this card (Ctrl+Del)</source>
        <translation>Diese Karte entfernen (Strg+Entf)</translation>
    </message>
    <message>
        <source>+ Add Operation for This Output…</source>
        <translation>+ Bearbeitung für diese Ausgabe …</translation>
    </message>
    <message>
        <source>The picture after this operation</source>
        <translation>Das Bild nach dieser Bearbeitung</translation>
    </message>
</context>
<context>
    <name>RecipeField</name>
    <message>
        <source>Insert a token</source>
        <translation>Platzhalter einfügen</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
</context>
<context>
    <name>RecipePane</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Rezept</translation>
    </message>
    <message>
        <source>Create, save, rename, delete, export or import recipes</source>
        <translation>Rezepte anlegen, speichern, umbenennen, löschen, exportieren oder importieren</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name of the recipe</source>
        <translation>Name des Rezepts</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>This recipe uses files outside the folders of the pictures</source>
        <translation>Dieses Rezept benutzt Dateien außerhalb der Ordner der Bilder</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Erlauben</translation>
    </message>
    <message>
        <source>Nothing has been read or written there so far.</source>
        <translation>Bisher wurde dort nichts gelesen oder geschrieben.</translation>
    </message>
    <message>
        <source>No operations yet: pictures stay unchanged.</source>
        <translation>Noch keine Bearbeitungen: Bilder bleiben unverändert.</translation>
    </message>
    <message>
        <source>+ Add Operation…</source>
        <translation>+ Bearbeitung hinzufügen …</translation>
    </message>
    <message>
        <source>Add an operation (Ctrl+Shift+A)</source>
        <translation>Eine Bearbeitung hinzufügen (Strg+Umschalt+A)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>+ Add Output</source>
        <translation>+ Ausgabe hinzufügen</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Folders in</source>
        <translation>Ordner in</translation>
    </message>
    <message>
        <source>Where the folders of the outputs are created</source>
        <translation>Wo die Ordner der Ausgaben angelegt werden</translation>
    </message>
    <message>
        <source>Keep subfolders</source>
        <translation>Unterordner beibehalten</translation>
    </message>
    <message>
        <source>Recreates the subfolders of each added folder</source>
        <translation>Legt die Unterordner jedes hinzugefügten Ordners wieder an</translation>
    </message>
</context>
<context>
    <name>RenameCard</name>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Move this step (arrow keys)</source>
        <translation>Schritt verschieben (Pfeiltasten)</translation>
    </message>
    <message>
        <source>Drag to another place, or Alt+Up and Alt+Down</source>
        <translation>An einen anderen Platz ziehen oder Alt+Hoch und Alt+Runter</translation>
    </message>
    <message>
        <source>Use this step</source>
        <translation>Schritt verwenden</translation>
    </message>
    <message>
        <source>Show or hide its settings</source>
        <translation>Einstellungen ein- oder ausblenden</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Remove this step</source>
        <translation>Schritt entfernen</translation>
    </message>
    <message>
        <source>Remove this step (Ctrl+Del)</source>
        <translation>Schritt entfernen (Strg+Entf)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <translation>Platzhalter einfügen</translation>
    </message>
    <message>
        <source>With</source>
        <translation>Durch</translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Schreibweise</translation>
    </message>
    <message>
        <source>How many</source>
        <translation>Wie viele</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Works on</source>
        <translation>Wirkt auf</translation>
    </message>
</context>
<context>
    <name>RenamePane</name>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>What to rename</source>
        <translation>Was umbenannt wird</translation>
    </message>
    <message>
        <source>No steps yet: names stay unchanged. Add a step or choose a preset.</source>
        <translation>Noch keine Schritte: Namen bleiben unverändert. Fügen Sie einen Schritt hinzu oder wählen Sie eine Vorgabe.</translation>
    </message>
    <message>
        <source>+ Add Step…</source>
        <translation>+ Schritt hinzufügen …</translation>
    </message>
    <message>
        <source>Add a step (Ctrl+Shift+A)</source>
        <translation>Schritt hinzufügen (Strg+Umschalt+A)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Beispiel</translation>
    </message>
    <message>
        <source>Include sidecar files (.xmp …)</source>
        <translation>Begleitdateien einschließen (.xmp …)</translation>
    </message>
    <message>
        <source>Files with the name of a picture from other programs are renamed with it</source>
        <translation>Dateien anderer Programme mit dem Namen eines Bildes werden mit ihm umbenannt</translation>
    </message>
    <message>
        <source>Adds leading zeros so that names sort in order</source>
        <translation>Ergänzt führende Nullen, damit sich die Namen richtig ordnen</translation>
    </message>
</context>
<context>
    <name>ResizePane</name>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Longest side</source>
        <translation>Längste Seite</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>How the new size is set</source>
        <translation>Wie die neue Größe festgelegt wird</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>Neue Größe</translation>
    </message>
    <message>
        <source>Width of the box</source>
        <translation>Breite des Rahmens</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Height of the box</source>
        <translation>Höhe des Rahmens</translation>
    </message>
    <message>
        <source>Unit of the size</source>
        <translation>Einheit der Größe</translation>
    </message>
    <message>
        <source>Unit of the size: pixels, millimetres, centimetres, inches, picas, points</source>
        <translation>Einheit der Größe: Pixel, Millimeter, Zentimeter, Zoll, Pica, Punkt</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Anpassung</translation>
    </message>
    <message>
        <source>How the picture fits the box</source>
        <translation>Wie das Bild in den Rahmen passt</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
    <message>
        <source>Never enlarge</source>
        <translation>Nie vergrößern</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Resolution used for lengths</source>
        <translation>Auflösung für Längen</translation>
    </message>
    <message>
        <source>Dots per inch used to turn lengths into pixels. A chosen resolution is also written into the file.</source>
        <translation>Punkte pro Zoll, mit denen Längen in Pixel umgerechnet werden. Eine gewählte Auflösung wird auch in die Datei geschrieben.</translation>
    </message>
    <message>
        <source>Dots per inch</source>
        <translation>Punkte pro Zoll</translation>
    </message>
    <message>
        <source>Padding</source>
        <translation>Auffüllung</translation>
    </message>
    <message>
        <source>Colour around the picture</source>
        <translation>Farbe um das Bild</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> dpi</translation>
    </message>
    <message>
        <source>Turns lengths into pixels and is written into the file</source>
        <translation>Rechnet Längen in Pixel um und wird in die Datei geschrieben</translation>
    </message>
</context>
<context>
    <name>RoundPane</name>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Shape to cut out</source>
        <translation>Auszuschneidende Form</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Radius of the corners</source>
        <translation>Radius der Ecken</translation>
    </message>
    <message>
        <source>Fill colour</source>
        <translation>Füllfarbe</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Border width</source>
        <translation>Randbreite</translation>
    </message>
    <message>
        <source>Width of the border inside the picture</source>
        <translation>Breite des Rands innerhalb des Bildes</translation>
    </message>
    <message>
        <source>Border inside the picture; 0 means none</source>
        <translation>Rand innerhalb des Bildes; 0 bedeutet keiner</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
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
        <translation>Datei&amp;typ</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>&amp;Qualität</translation>
    </message>
    <message>
        <source>JPEG quality, 1 to 9</source>
        <translation>JPEG-Qualität, 1 bis 9</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dateigröße</translation>
    </message>
    <message>
        <source>Estimated file size</source>
        <translation>Geschätzte Dateigröße</translation>
    </message>
    <message>
        <source>Preview of the original and the saved picture</source>
        <translation>Vorschau von Original und gespeichertem Bild</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Höhere Qualität bedeutet größere Dateien</translation>
    </message>
</context>
<context>
    <name>SortPane</name>
    <message>
        <source>Level 1</source>
        <translation>Ebene 1</translation>
    </message>
    <message>
        <source>First level of folders</source>
        <translation>Erste Ordnerebene</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>Ebene 2</translation>
    </message>
    <message>
        <source>Second level of folders</source>
        <translation>Zweite Ordnerebene</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>Ebene 3</translation>
    </message>
    <message>
        <source>Third level of folders</source>
        <translation>Dritte Ordnerebene</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Folder pattern</source>
        <translation>Ordnermuster</translation>
    </message>
    <message>
        <source>Text and tokens in braces, with “/” between folder levels</source>
        <translation>Text und Platzhalter in geschweiften Klammern, mit „/“ zwischen den Ordnerebenen</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <translation>Platzhalter einfügen</translation>
    </message>
    <message>
        <source>No date taken</source>
        <translation>Kein Aufnahmedatum</translation>
    </message>
    <message>
        <source>What to do with files that have no date taken</source>
        <translation>Was mit Dateien ohne Aufnahmedatum geschieht</translation>
    </message>
    <message>
        <source>Folder name for files without a date taken</source>
        <translation>Ordnername für Dateien ohne Aufnahmedatum</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Move, copy or link</source>
        <translation>Verschieben, kopieren oder verknüpfen</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Where the folders are created</source>
        <translation>Wo die Ordner angelegt werden</translation>
    </message>
    <message>
        <source>If the file exists</source>
        <translation>Falls vorhanden</translation>
    </message>
</context>
<context>
    <name>SortTree</name>
    <message>
        <source>Resulting folders</source>
        <translation>Entstehende Ordner</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>Show all files in the list</source>
        <translation>Alle Dateien in der Liste zeigen</translation>
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
        <translation>Um 90° gegen den Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>90° anticlockwise</source>
        <translation>90° gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Rotate 90° clockwise</source>
        <translation>Um 90° im Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <source>90° clockwise</source>
        <translation>90° im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>180°</source>
        <translation>180°</translation>
    </message>
    <message>
        <source>Rotate 180°</source>
        <translation>Um 180° drehen</translation>
    </message>
    <message>
        <source>Half a turn</source>
        <translation>Halbe Drehung</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Angle, anticlockwise</source>
        <translation>Winkel, gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Angle in degrees, anticlockwise</source>
        <translation>Winkel in Grad, gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>anticlockwise</source>
        <translation>gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Flip horizontally: swap left and right</source>
        <translation>Horizontal spiegeln: links und rechts vertauschen</translation>
    </message>
    <message>
        <source>Swap left and right</source>
        <translation>Links und rechts vertauschen</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Flip vertically: swap top and bottom</source>
        <translation>Vertikal spiegeln: oben und unten vertauschen</translation>
    </message>
    <message>
        <source>Swap top and bottom</source>
        <translation>Oben und unten vertauschen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Reset rotation and flip</source>
        <translation>Drehung und Spiegelung zurücksetzen</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
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
        <translation>Wasserzeichen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>What the watermark consists of</source>
        <translation>Woraus das Wasserzeichen besteht</translation>
    </message>
    <message>
        <source>Text of the watermark</source>
        <translation>Text des Wasserzeichens</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <translation>Platzhalter einfügen</translation>
    </message>
    <message>
        <source>Picture used as the watermark</source>
        <translation>Bild, das als Wasserzeichen dient</translation>
    </message>
    <message>
        <source>About your own watermarks</source>
        <translation>Hinweise zu eigenen Wasserzeichen</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Colour of the text</source>
        <translation>Farbe des Textes</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>%</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Text size, in % of the picture height</source>
        <translation>Textgröße, in % der Bildhöhe</translation>
    </message>
    <message>
        <source>of the height</source>
        <translation>der Bildhöhe</translation>
    </message>
    <message>
        <source>Watermark width, in % of the picture width</source>
        <translation>Breite des Wasserzeichens, in % der Bildbreite</translation>
    </message>
    <message>
        <source>of the width</source>
        <translation>der Bildbreite</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Position of the watermark</source>
        <translation>Position des Wasserzeichens</translation>
    </message>
    <message>
        <source>Tiled</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Repeats the watermark over the whole picture</source>
        <translation>Wiederholt das Wasserzeichen über das ganze Bild</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Margin, in % of the shorter side</source>
        <translation>Abstand vom Rand, in % der kürzeren Seite</translation>
    </message>
    <message>
        <source>In % of the shorter side of the picture</source>
        <translation>In % der kürzeren Bildseite</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Angle, anticlockwise</source>
        <translation>Winkel, gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Anticlockwise</source>
        <translation>Gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
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
        <translation>Es läuft gerade kein Prozess, der Bilder liest.</translation>
    </message>
    <message>
        <source>no new privileges</source>
        <translation>keine neuen Rechte</translation>
    </message>
    <message>
        <source>file access rules (Landlock)</source>
        <translation>Regeln für Dateizugriffe (Landlock)</translation>
    </message>
    <message>
        <source>system call filter (seccomp)</source>
        <translation>Filter für Systemaufrufe (seccomp)</translation>
    </message>
    <message>
        <source>Processes that read pictures are confined by: %1.</source>
        <translation>Prozesse, die Bilder lesen, sind abgeschirmt durch: %1.</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>Not available on this system: %1.</source>
        <translation>Auf diesem System nicht verfügbar: %1.</translation>
    </message>
</context>
<context>
    <name>action-page</name>
    <message>
        <source>Add to a Recipe…</source>
        <translation>Zu einem Rezept hinzufügen …</translation>
    </message>
    <message>
        <source>Added. The recipe is not saved yet.</source>
        <translation>Hinzugefügt. Das Rezept ist noch nicht gespeichert.</translation>
    </message>
</context>
<context>
    <name>actions</name>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
</context>
<context>
    <name>add-to-recipe</name>
    <message>
        <source>A new recipe</source>
        <translation>Ein neues Rezept</translation>
    </message>
</context>
<context>
    <name>background-action</name>
    <message>
        <source>Background &amp; Border</source>
        <translation>Hintergrund &amp; Rand</translation>
    </message>
    <message>
        <source>Adding background and border</source>
        <translation>Das Hinzufügen von Hintergrund und Rand</translation>
    </message>
    <message numerus="yes">
        <source>Add Background to %n Pictures</source>
        <translation>
            <numerusform>%n Bild mit Hintergrund versehen</numerusform>
            <numerusform>%n Bilder mit Hintergrund versehen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add Border to %n Pictures</source>
        <translation>
            <numerusform>%n Bild mit Rand versehen</numerusform>
            <numerusform>%n Bilder mit Rand versehen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>background-pane</name>
    <message>
        <source>Checks</source>
        <translation>Karos</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Leinen</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>White, 10 pixels on all sides</source>
        <translation>Weiß, 10 Pixel an allen Seiten</translation>
    </message>
    <message>
        <source>Border inside the picture</source>
        <translation>Rand innerhalb des Bildes</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Choose a pattern</source>
        <translation>Muster wählen</translation>
    </message>
</context>
<context>
    <name>background-presets</name>
    <message>
        <source>White background</source>
        <translation>Weißer Hintergrund</translation>
    </message>
    <message>
        <source>White border</source>
        <translation>Weißer Rand</translation>
    </message>
    <message>
        <source>Black border</source>
        <translation>Schwarzer Rand</translation>
    </message>
    <message>
        <source>Ivory mount</source>
        <translation>Passepartout Elfenbein</translation>
    </message>
    <message>
        <source>On paper</source>
        <translation>Auf Papier</translation>
    </message>
</context>
<context>
    <name>background-step</name>
    <message>
        <source>Framed</source>
        <translation>Gerahmt</translation>
    </message>
    <message>
        <source>on %1</source>
        <translation>auf %1</translation>
    </message>
    <message>
        <source>on pattern %1</source>
        <translation>auf Muster %1</translation>
    </message>
    <message>
        <source>white border</source>
        <translation>weißer Rand</translation>
    </message>
    <message>
        <source>border of %1 px in %2</source>
        <translation>Rand von %1 px in %2</translation>
    </message>
    <message>
        <source>Choose a pattern.</source>
        <translation>Wählen Sie ein Muster.</translation>
    </message>
    <message>
        <source>Enter a border width from 1 to %1.</source>
        <translation>Geben Sie eine Randbreite von 1 bis %1 ein.</translation>
    </message>
    <message>
        <source>the border would cover the whole picture</source>
        <translation>der Rand würde das ganze Bild bedecken</translation>
    </message>
    <message>
        <source>%1 pictures have no transparent parts, so a background would not be visible.</source>
        <translation>%1-Bilder haben keine transparenten Bereiche; ein Hintergrund wäre also nicht zu sehen.</translation>
    </message>
    <message>
        <source>“%1” cannot be read as a picture.</source>
        <translation>„%1“ kann nicht als Bild gelesen werden.</translation>
    </message>
</context>
<context>
    <name>by-recipe</name>
    <message>
        <source>preview of %1</source>
        <translation>Vorschau von %1</translation>
    </message>
    <message numerus="yes">
        <source>%n more pictures left out</source>
        <translation>
            <numerusform>%n weiteres Bild ausgelassen</numerusform>
            <numerusform>%n weitere Bilder ausgelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>smaller than asked for</source>
        <translation>kleiner als verlangt</translation>
    </message>
    <message>
        <source>The frame extends past the edge of the picture</source>
        <translation>Der Ausschnitt reicht über den Bildrand hinaus</translation>
    </message>
</context>
<context>
    <name>clocks</name>
    <message>
        <source>Unknown camera</source>
        <translation>Unbekannte Kamera</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>forward by</source>
        <translation>vor um</translation>
    </message>
    <message>
        <source>back by</source>
        <translation>zurück um</translation>
    </message>
</context>
<context>
    <name>comment-job</name>
    <message>
        <source>Write comment, keep only the first page</source>
        <translation>Kommentar schreiben, nur die erste Seite behalten</translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n Problem</numerusform>
            <numerusform>%n Probleme</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped:</source>
        <translation>Gestoppt:</translation>
    </message>
    <message numerus="yes">
        <source>%n comments written</source>
        <translation>
            <numerusform>%n Kommentar geschrieben</numerusform>
            <numerusform>%n Kommentare geschrieben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n comments reverted</source>
        <translation>
            <numerusform>%n Kommentar zurückgesetzt</numerusform>
            <numerusform>%n Kommentare zurückgesetzt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>comment-questions</name>
    <message numerus="yes">
        <source>%n more pages</source>
        <translation>
            <numerusform>%n weitere Seite</numerusform>
            <numerusform>%n weitere Seiten</numerusform>
        </translation>
    </message>
    <message>
        <source>This file has %1. Only the first page is kept; this cannot be undone.</source>
        <translation>Diese Datei hat %1. Nur die erste Seite bleibt erhalten; das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message numerus="yes">
        <source>%n files with several pages are left out, since writing would remove %1: %2.</source>
        <translation>
            <numerusform>%n Datei mit mehreren Seiten wird ausgelassen, da das Schreiben %1 entfernen würde: %2.</numerusform>
            <numerusform>%n Dateien mit mehreren Seiten werden ausgelassen, da das Schreiben %1 entfernen würde: %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>This changes the metadata inside your originals. Their pictures are not touched.</source>
        <translation>Dies ändert die Metadaten in Ihren Originalen. Die Bilder selbst bleiben unangetastet.</translation>
    </message>
    <message numerus="yes">
        <source>%n files have types that cannot hold a comment and stay unchanged.</source>
        <translation>
            <numerusform>%n Datei hat einen Typ ohne Kommentare und bleibt unverändert.</numerusform>
            <numerusform>%n Dateien haben Typen ohne Kommentare und bleiben unverändert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Write comment</source>
        <translation>Kommentar schreiben</translation>
    </message>
    <message numerus="yes">
        <source>Clear the comments of %n pictures?</source>
        <translation>
            <numerusform>Den Kommentar dieses Bildes leeren?</numerusform>
            <numerusform>Die Kommentare von %n Bildern leeren?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write the comment into %n pictures?</source>
        <translation>
            <numerusform>Den Kommentar in dieses Bild schreiben?</numerusform>
            <numerusform>Den Kommentar in %n Bilder schreiben?</numerusform>
        </translation>
    </message>
    <message>
        <source>Write and Remove Pages</source>
        <translation>Schreiben und Seiten entfernen</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Write into these too, keeping only their first page</source>
        <translation>Auch in diese schreiben und nur die erste Seite behalten</translation>
    </message>
    <message>
        <source>Comment not written</source>
        <translation>Kommentar nicht geschrieben</translation>
    </message>
    <message>
        <source>Write your changes to %1?</source>
        <translation>Ihre Änderungen in %1 schreiben?</translation>
    </message>
    <message>
        <source>The comment has not been written yet.</source>
        <translation>Der Kommentar ist noch nicht geschrieben.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>Weiter bearbeiten</translation>
    </message>
</context>
<context>
    <name>comment-run</name>
    <message>
        <source>The file does not contain what was written.</source>
        <translation>Die Datei enthält nicht, was geschrieben wurde.</translation>
    </message>
    <message numerus="yes">
        <source>%n more pages were removed. This cannot be undone.</source>
        <translation>
            <numerusform>%n weitere Seite wurde entfernt. Das lässt sich nicht rückgängig machen.</numerusform>
            <numerusform>%n weitere Seiten wurden entfernt. Das lässt sich nicht rückgängig machen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It has %n more pages, which would be lost.</source>
        <translation>
            <numerusform>Die Datei hat %n weitere Seite, die verloren gehen würde.</numerusform>
            <numerusform>Die Datei hat %n weitere Seiten, die verloren gehen würden.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file no longer exists.</source>
        <translation>Die Datei ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>It already has its old comment.</source>
        <translation>Es hat seinen alten Kommentar schon.</translation>
    </message>
    <message>
        <source>The comment has been changed since and is kept: “%1”</source>
        <translation>Der Kommentar wurde seitdem geändert und bleibt: „%1“</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message numerus="yes">
        <source>%n more files</source>
        <translation>
            <numerusform>%n weitere Datei</numerusform>
            <numerusform>%n weitere Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” was written</source>
        <translation>„%1“ wurde geschrieben</translation>
    </message>
    <message>
        <source>“%1” was cleared</source>
        <translation>„%1“ wurde geleert</translation>
    </message>
    <message>
        <source>“%1” became “%2”</source>
        <translation>aus „%1“ wurde „%2“</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadaten</translation>
    </message>
</context>
<context>
    <name>convert-action</name>
    <message>
        <source>Convert</source>
        <translation>Umwandeln</translation>
    </message>
    <message numerus="yes">
        <source>Convert %n Pictures</source>
        <translation>
            <numerusform>%n Bild umwandeln</numerusform>
            <numerusform>%n Bilder umwandeln</numerusform>
        </translation>
    </message>
    <message>
        <source>Converting</source>
        <translation>Das Umwandeln</translation>
    </message>
</context>
<context>
    <name>convert-presets</name>
    <message>
        <source>JPEG for everyone</source>
        <translation>JPEG für alle</translation>
    </message>
    <message>
        <source>Small JPEG</source>
        <translation>Kleines JPEG</translation>
    </message>
    <message>
        <source>PNG with all metadata</source>
        <translation>PNG mit allen Metadaten</translation>
    </message>
    <message>
        <source>TIFF for printing</source>
        <translation>TIFF für den Druck</translation>
    </message>
    <message>
        <source>PDF pages</source>
        <translation>PDF-Seiten</translation>
    </message>
</context>
<context>
    <name>convert-step</name>
    <message>
        <source>Converted</source>
        <translation>Umgewandelt</translation>
    </message>
    <message>
        <source>to %1, quality %2</source>
        <translation>in %1, Qualität %2</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <source>Choose what to convert to.</source>
        <translation>Wählen Sie, worin umgewandelt wird.</translation>
    </message>
    <message>
        <source>Choose a quality from 1 to 9.</source>
        <translation>Wählen Sie eine Qualität von 1 bis 9.</translation>
    </message>
</context>
<context>
    <name>crop-action</name>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message numerus="yes">
        <source>Crop %n Pictures</source>
        <translation>
            <numerusform>%n Bild zuschneiden</numerusform>
            <numerusform>%n Bilder zuschneiden</numerusform>
        </translation>
    </message>
    <message>
        <source>Cropping</source>
        <translation>Das Zuschneiden</translation>
    </message>
</context>
<context>
    <name>crop-pane</name>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Trim by px</source>
        <translation>Schnitt px</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Frei</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Verhältnis</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Anderes</translation>
    </message>
    <message>
        <source>%1 × %2 px at %3, %4</source>
        <translation>%1 × %2 px bei %3, %4</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Trim by %</source>
        <translation>Schnitt %</translation>
    </message>
</context>
<context>
    <name>crop-presets</name>
    <message>
        <source>Centre square 1080</source>
        <translation>Quadrat aus der Mitte 1080</translation>
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
        <translation>5 % beschneiden</translation>
    </message>
</context>
<context>
    <name>crop-step</name>
    <message>
        <source>Cropped</source>
        <translation>Zugeschnitten</translation>
    </message>
    <message>
        <source>trim %1%</source>
        <translation>%1 % beschneiden</translation>
    </message>
    <message numerus="yes">
        <source>trim %n pixels</source>
        <translation>
            <numerusform>%n Pixel beschneiden</numerusform>
            <numerusform>%n Pixel beschneiden</numerusform>
        </translation>
    </message>
    <message>
        <source>moved %1, %2 %3</source>
        <translation>versetzt %1, %2 %3</translation>
    </message>
    <message>
        <source>position %1</source>
        <translation>Position %1</translation>
    </message>
    <message>
        <source>Enter a whole number from 0 to 99.</source>
        <translation>Geben Sie eine ganze Zahl von 0 bis 99 ein.</translation>
    </message>
    <message>
        <source>Enter a whole number from 0 to %1.</source>
        <translation>Geben Sie eine ganze Zahl von 0 bis %1 ein.</translation>
    </message>
    <message>
        <source>Enter a width and a height.</source>
        <translation>Geben Sie Breite und Höhe ein.</translation>
    </message>
    <message>
        <source>Choose one of the nine positions.</source>
        <translation>Wählen Sie eine der neun Positionen.</translation>
    </message>
    <message>
        <source>Enter offsets from %1 to %2.</source>
        <translation>Geben Sie für den Versatz Werte von %1 bis %2 ein.</translation>
    </message>
    <message>
        <source>ratio %1</source>
        <translation>Verhältnis %1</translation>
    </message>
    <message>
        <source>not swapped</source>
        <translation>nicht getauscht</translation>
    </message>
    <message>
        <source>at the focus of attention</source>
        <translation>am Blickfang</translation>
    </message>
    <message>
        <source>Enter two numbers above 0 for the ratio.</source>
        <translation>Geben Sie zwei Zahlen über 0 für das Verhältnis ein.</translation>
    </message>
</context>
<context>
    <name>field-kinds</name>
    <message>
        <source>Focus of attention</source>
        <translation>Blickfang</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
</context>
<context>
    <name>files</name>
    <message>
        <source>Cannot read %1: it is not UTF-8 text</source>
        <translation>%1 kann nicht gelesen werden: kein Text in UTF-8</translation>
    </message>
    <message>
        <source>%1 stays unchanged: %2</source>
        <translation>%1 bleibt unverändert: %2</translation>
    </message>
    <message>
        <source>A part of %1 could not be removed</source>
        <translation>Ein Teil von %1 konnte nicht entfernt werden und ist noch da</translation>
    </message>
    <message>
        <source>%1; a copy is at %2</source>
        <translation>%1; eine Kopie liegt unter %2</translation>
    </message>
    <message>
        <source>%1 no longer exists; its partial copy is at %2</source>
        <translation>%1 ist nicht mehr vorhanden; eine unvollständige Kopie liegt unter %2</translation>
    </message>
    <message>
        <source>%1 could not be moved aside</source>
        <translation>%1 konnte nicht beiseitegelegt werden</translation>
    </message>
    <message>
        <source>%1 is also at %2</source>
        <translation>%1 liegt auch unter %2</translation>
    </message>
    <message>
        <source>%1 was left with a temporary name and is now called %2</source>
        <translation>%1 hatte nur noch seinen vorläufigen Namen und heißt jetzt %2</translation>
    </message>
    <message>
        <source>The journal of this run is damaged: %1</source>
        <translation>Das Protokoll dieses Durchlaufs ist beschädigt: %1</translation>
    </message>
    <message>
        <source>The name %1 is now in use; the item is called %2</source>
        <translation>Der Name %1 ist inzwischen belegt; das Element heißt %2</translation>
    </message>
    <message>
        <source>The run was interrupted</source>
        <translation>Der Durchlauf wurde unterbrochen</translation>
    </message>
    <message>
        <source>There is no record of this run</source>
        <translation>Über diesen Durchlauf gibt es keine Aufzeichnung</translation>
    </message>
    <message>
        <source>This run is still in progress</source>
        <translation>Dieser Durchlauf läuft noch</translation>
    </message>
    <message>
        <source>Nothing was done in this run</source>
        <translation>In diesem Durchlauf wurde nichts getan</translation>
    </message>
    <message>
        <source>This run has already been undone</source>
        <translation>Dieser Durchlauf wurde schon rückgängig gemacht</translation>
    </message>
    <message>
        <source>Nothing in this run can be undone any more</source>
        <translation>Von diesem Durchlauf lässt sich nichts mehr rückgängig machen</translation>
    </message>
    <message>
        <source>%1 could not be copied correctly</source>
        <translation>%1 konnte nicht richtig kopiert werden</translation>
    </message>
    <message>
        <source>The name %1 cannot be used on this disk</source>
        <translation>Der Name %1 ist auf diesem Datenträger nicht möglich</translation>
    </message>
    <message>
        <source>The name %1 is too long for this disk</source>
        <translation>Der Name %1 ist für diesen Datenträger zu lang</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>The name %1 is already in use</source>
        <translation>Der Name %1 ist schon belegt</translation>
    </message>
    <message>
        <source>The folder %1 cannot be moved into itself</source>
        <translation>Der Ordner %1 kann nicht in sich selbst verschoben werden</translation>
    </message>
    <message>
        <source>You are not allowed to change %1 or its folder</source>
        <translation>Sie dürfen %1 oder seinen Ordner nicht ändern</translation>
    </message>
    <message>
        <source>%1 keeps its name, and so does its sidecar file</source>
        <translation>%1 behält den Namen und die Begleitdatei damit auch</translation>
    </message>
    <message>
        <source>%1 was changed or replaced in the meantime</source>
        <translation>%1 wurde inzwischen geändert oder ersetzt</translation>
    </message>
    <message>
        <source>There is no space left on the disk for %1</source>
        <translation>Auf dem Datenträger ist kein Platz mehr für %1</translation>
    </message>
    <message>
        <source>%1 is now the original itself, not a copy of it</source>
        <translation>%1 ist inzwischen das Original selbst und keine Kopie davon</translation>
    </message>
    <message>
        <source>%1 could not be renamed, and other files need its old name</source>
        <translation>%1 konnte nicht umbenannt werden, und andere Dateien brauchen seinen alten Namen</translation>
    </message>
</context>
<context>
    <name>files::FileService</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created</source>
        <translation>Der Ordner %1 kann nicht angelegt werden</translation>
    </message>
</context>
<context>
    <name>files::MoveService</name>
    <message>
        <source>This run is not open</source>
        <translation>Dieser Durchlauf ist nicht offen</translation>
    </message>
    <message>
        <source>Copying or moving a file</source>
        <translation>Kopieren oder Verschieben einer Datei</translation>
    </message>
    <message>
        <source>%1 had been moved aside and has been restored</source>
        <translation>%1 war beiseitegelegt und wurde wiederhergestellt</translation>
    </message>
</context>
<context>
    <name>hand-action</name>
    <message>
        <source>Sort by Hand</source>
        <translation>Von Hand sortieren</translation>
    </message>
</context>
<context>
    <name>hand-page</name>
    <message>
        <source>In the trash</source>
        <translation>Im Papierkorb</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>file dated %1</source>
        <translation>Datei vom %1</translation>
    </message>
    <message>
        <source>Undo (Ctrl+Z)</source>
        <translation>Rückgängig (Strg+Z)</translation>
    </message>
    <message>
        <source>Undo: %1 (Ctrl+Z)</source>
        <translation>Rückgängig: %1 (Strg+Z)</translation>
    </message>
    <message>
        <source>Keys now move pictures.</source>
        <translation>Die Tasten verschieben jetzt Bilder.</translation>
    </message>
    <message>
        <source>Keys now copy pictures.</source>
        <translation>Die Tasten kopieren jetzt Bilder.</translation>
    </message>
    <message>
        <source>Keys now link pictures.</source>
        <translation>Die Tasten verknüpfen jetzt Bilder.</translation>
    </message>
    <message>
        <source>%1: %2. The picture stays where it is.</source>
        <translation>%1: %2. Das Bild bleibt, wo es ist.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>That was the last picture. All of them are sorted.</source>
        <translation>Das war das letzte Bild. Alle sind sortiert.</translation>
    </message>
    <message>
        <source>That was the last picture. %1</source>
        <translation>Das war das letzte Bild. %1</translation>
    </message>
    <message numerus="yes">
        <source>%n were skipped.</source>
        <translation>
            <numerusform>%n wurde übersprungen.</numerusform>
            <numerusform>%n wurden übersprungen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>hand-pane</name>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verknüpfen</translation>
    </message>
    <message>
        <source>Moves the picture to the folder. (Alt+1)</source>
        <translation>Verschiebt das Bild in den Ordner. (Alt+1)</translation>
    </message>
    <message>
        <source>Copies the picture to the folder. (Alt+2)</source>
        <translation>Kopiert das Bild in den Ordner. (Alt+2)</translation>
    </message>
    <message>
        <source>Puts a link to the picture into the folder. (Alt+3)</source>
        <translation>Legt im Ordner eine Verknüpfung zum Bild an. (Alt+3)</translation>
    </message>
    <message>
        <source>Rename Label</source>
        <translation>Bezeichnung ändern</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Ordner zeigen</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>Aus Liste entfernen</translation>
    </message>
    <message>
        <source>Remove All…</source>
        <translation>Alle entfernen …</translation>
    </message>
    <message>
        <source>Remove all folders</source>
        <translation>Alle Ordner entfernen</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n folders from the list?</source>
        <translation>
            <numerusform>Den Ordner aus der Liste nehmen?</numerusform>
            <numerusform>Alle %n Ordner aus der Liste nehmen?</numerusform>
        </translation>
    </message>
    <message>
        <source>The folders and your presets are not changed.</source>
        <translation>Die Ordner und Ihre Vorgaben werden nicht verändert.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Choose a folder to sort into</source>
        <translation>Zielordner wählen</translation>
    </message>
    <message numerus="yes">
        <source>%n folders are already in the list.</source>
        <translation>
            <numerusform>%n Ordner ist schon in der Liste.</numerusform>
            <numerusform>%n Ordner sind schon in der Liste.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Only %n folders can have a key.</source>
        <translation>
            <numerusform>Nur %n Ordner kann eine Taste haben.</numerusform>
            <numerusform>Nur %n Ordner können eine Taste haben.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is not a valid folder name.</source>
        <translation>Dies ist kein gültiger Ordnername.</translation>
    </message>
    <message>
        <source>This name is already in use.</source>
        <translation>Dieser Name ist schon belegt.</translation>
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
        <translation>nicht gefunden</translation>
    </message>
    <message>
        <source>not a folder</source>
        <translation>kein Ordner</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>schreibgeschützt</translation>
    </message>
</context>
<context>
    <name>hand-sorting</name>
    <message>
        <source>Moved to %1</source>
        <translation>Verschoben nach %1</translation>
    </message>
    <message>
        <source>Copied to %1</source>
        <translation>Kopiert nach %1</translation>
    </message>
    <message>
        <source>Linked in %1</source>
        <translation>Verknüpft in %1</translation>
    </message>
    <message>
        <source>In the trash</source>
        <translation>Im Papierkorb</translation>
    </message>
    <message>
        <source>Move to %1</source>
        <translation>Verschieben nach %1</translation>
    </message>
    <message>
        <source>Copy to %1</source>
        <translation>Kopieren nach %1</translation>
    </message>
    <message>
        <source>Link in %1</source>
        <translation>Verknüpfen in %1</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>This picture is in the trash. Use Undo to restore it.</source>
        <translation>Dieses Bild ist im Papierkorb. „Rückgängig“ holt es zurück.</translation>
    </message>
    <message>
        <source>This picture is already in %1.</source>
        <translation>Dieses Bild ist schon in %1.</translation>
    </message>
    <message>
        <source>This picture is already in the trash.</source>
        <translation>Dieses Bild ist schon im Papierkorb.</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>There is nothing left to undo.</source>
        <translation>Es gibt nichts mehr rückgängig zu machen.</translation>
    </message>
    <message>
        <source>Sort by Hand</source>
        <translation>Von Hand sortieren</translation>
    </message>
</context>
<context>
    <name>hand-step</name>
    <message>
        <source>move</source>
        <translation>verschieben</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>kopieren</translation>
    </message>
    <message>
        <source>link</source>
        <translation>verknüpfen</translation>
    </message>
</context>
<context>
    <name>help</name>
    <message>
        <source>The manual is not installed.</source>
        <translation>Das Handbuch ist nicht installiert.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Es wird nach Aktualisierungen gesucht …</translation>
    </message>
    <message>
        <source>Quorlin is up to date.</source>
        <translation>Quorlin ist auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>Could not reach the update server.</source>
        <translation>Der Aktualisierungsserver ist nicht erreichbar.</translation>
    </message>
    <message>
        <source>No update server is set in this installation.</source>
        <translation>In dieser Installation ist kein Aktualisierungsserver eingestellt.</translation>
    </message>
</context>
<context>
    <name>history</name>
    <message numerus="yes">
        <source>Undo Adding %n Files</source>
        <translation>
            <numerusform>Hinzufügen von %n Datei rückgängig machen</numerusform>
            <numerusform>Hinzufügen von %n Dateien rückgängig machen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo Adding %n Files</source>
        <translation>
            <numerusform>Hinzufügen von %n Datei wiederholen</numerusform>
            <numerusform>Hinzufügen von %n Dateien wiederholen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undo Removing %n Files</source>
        <translation>
            <numerusform>Entfernen von %n Datei rückgängig machen</numerusform>
            <numerusform>Entfernen von %n Dateien rückgängig machen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo Removing %n Files</source>
        <translation>
            <numerusform>Entfernen von %n Datei wiederholen</numerusform>
            <numerusform>Entfernen von %n Dateien wiederholen</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo Clear List</source>
        <translation>Leeren der Liste rückgängig machen</translation>
    </message>
    <message>
        <source>Redo Clear List</source>
        <translation>Leeren der Liste wiederholen</translation>
    </message>
    <message numerus="yes">
        <source>Undo %1 of %n Files</source>
        <translation>
            <numerusform>%1 von %n Datei rückgängig machen</numerusform>
            <numerusform>%1 von %n Dateien rückgängig machen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo %1 of %n Files</source>
        <translation>
            <numerusform>%1 von %n Datei wiederholen</numerusform>
            <numerusform>%1 von %n Dateien wiederholen</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo an earlier run</source>
        <translation>Einen früheren Durchlauf rückgängig machen</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n files) belongs to an earlier session. Undo it?</source>
        <translation>
            <numerusform>„%1“ (%n Datei) stammt aus einer früheren Sitzung. Rückgängig machen?</numerusform>
            <numerusform>„%1“ (%n Dateien) stammt aus einer früheren Sitzung. Rückgängig machen?</numerusform>
        </translation>
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
        <source>Undo It</source>
        <translation>Rückgängig machen</translation>
    </message>
    <message>
        <source>Leave It</source>
        <translation>So lassen</translation>
    </message>
    <message numerus="yes">
        <source>Undo Moving %n Rows</source>
        <translation>
            <numerusform>Verschieben von %n Zeile rückgängig machen</numerusform>
            <numerusform>Verschieben von %n Zeilen rückgängig machen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo Moving %n Rows</source>
        <translation>
            <numerusform>Verschieben von %n Zeile wiederholen</numerusform>
            <numerusform>Verschieben von %n Zeilen wiederholen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undo Writing %n Ratings</source>
        <translation>
            <numerusform>Schreiben von %n Bewertung rückgängig</numerusform>
            <numerusform>Schreiben von %n Bewertungen rückgängig</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>image::PictureService</name>
    <message>
        <source>not a readable picture</source>
        <translation>kein lesbares Bild</translation>
    </message>
    <message>
        <source>the pattern cannot be read</source>
        <translation>das Muster kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>this type cannot be written</source>
        <translation>dieser Typ kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>input</name>
    <message>
        <source>%1 added</source>
        <translation>%1 hinzugefügt</translation>
    </message>
    <message numerus="yes">
        <source>%n already in the list</source>
        <translation>
            <numerusform>%n schon in der Liste</numerusform>
            <numerusform>%n schon in der Liste</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar files</source>
        <translation>
            <numerusform>%n Begleitdatei</numerusform>
            <numerusform>%n Begleitdateien</numerusform>
        </translation>
    </message>
    <message>
        <source>+ %1</source>
        <translation>+ %1</translation>
    </message>
    <message>
        <source>Add all pictures of a folder</source>
        <translation>Alle Bilder eines Ordners hinzufügen</translation>
    </message>
    <message>
        <source>Add all files of a folder</source>
        <translation>Alle Dateien eines Ordners hinzufügen</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <source>There are no files on the clipboard</source>
        <translation>In der Zwischenablage sind keine Dateien</translation>
    </message>
    <message>
        <source>Not shown</source>
        <translation>Nicht gezeigt</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weitere</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The sample pictures could not be copied to your pictures folder</source>
        <translation>Die Beispielbilder konnten nicht in Ihren Bilderordner kopiert werden</translation>
    </message>
    <message>
        <source>Recipe opened. Nothing has been run.</source>
        <translation>Rezept geöffnet. Nichts wurde ausgeführt.</translation>
    </message>
    <message numerus="yes">
        <source>%n do not match the filter</source>
        <translation>
            <numerusform>%n passt nicht zum Filter</numerusform>
            <numerusform>%n passen nicht zum Filter</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n files…</source>
        <translation>
            <numerusform>%n Datei wird gelesen …</numerusform>
            <numerusform>%n Dateien werden gelesen …</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>input-words</name>
    <message>
        <source>No pictures yet</source>
        <translation>Noch keine Bilder</translation>
    </message>
    <message>
        <source>No pictures found</source>
        <translation>Keine Bilder gefunden</translation>
    </message>
    <message>
        <source>Add Pictures…</source>
        <translation>Bilder hinzufügen …</translation>
    </message>
    <message>
        <source>Drop pictures or folders here</source>
        <translation>Bilder oder Ordner hier ablegen</translation>
    </message>
    <message>
        <source>Then choose an action on the left. Your originals stay unchanged unless you ask for it.</source>
        <translation>Wählen Sie dann links eine Aktion. Ihre Originale bleiben unverändert, sofern Sie nichts anderes verlangen.</translation>
    </message>
    <message>
        <source>“%1” was not added: it is not a supported picture.</source>
        <translation>„%1“ wurde nicht hinzugefügt: Das ist kein unterstütztes Bild.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were not added: they are not supported pictures.</source>
        <translation>
            <numerusform>%n Datei wurde nicht hinzugefügt: Das ist kein unterstütztes Bild.</numerusform>
            <numerusform>%n Dateien wurden nicht hinzugefügt: Das sind keine unterstützten Bilder.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files are not shown because %1 cannot use them.</source>
        <translation>
            <numerusform>%n Datei wird nicht gezeigt, weil „%1“ sie nicht verwenden kann.</numerusform>
            <numerusform>%n Dateien werden nicht gezeigt, weil „%1“ sie nicht verwenden kann.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Noch keine Dateien</translation>
    </message>
    <message>
        <source>No files found</source>
        <translation>Keine Dateien gefunden</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Dateien hinzufügen …</translation>
    </message>
    <message>
        <source>Drop files or folders here</source>
        <translation>Dateien oder Ordner hier ablegen</translation>
    </message>
    <message>
        <source>Then set up the action on the right. You see every result before it is written.</source>
        <translation>Stellen Sie dann rechts die Aktion ein. Sie sehen jedes Ergebnis, bevor es geschrieben wird.</translation>
    </message>
    <message>
        <source>“%1” was not added: it is not a file.</source>
        <translation>„%1“ wurde nicht hinzugefügt: Das ist keine Datei.</translation>
    </message>
    <message numerus="yes">
        <source>%n items were not added: they are not files.</source>
        <translation>
            <numerusform>%n Element wurde nicht hinzugefügt: Das ist keine Datei.</numerusform>
            <numerusform>%n Elemente wurden nicht hinzugefügt: Das sind keine Dateien.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders are not shown because %1 cannot use them.</source>
        <translation>
            <numerusform>%n Ordner wird nicht gezeigt, weil „%1“ ihn nicht verwenden kann.</numerusform>
            <numerusform>%n Ordner werden nicht gezeigt, weil „%1“ sie nicht verwenden kann.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n Ordner</numerusform>
            <numerusform>%n Ordner</numerusform>
        </translation>
    </message>
    <message>
        <source>No folders yet</source>
        <translation>Noch keine Ordner</translation>
    </message>
    <message>
        <source>No folders found</source>
        <translation>Keine Ordner gefunden</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ordner hinzufügen …</translation>
    </message>
    <message>
        <source>Drop folders here</source>
        <translation>Ordner hier ablegen</translation>
    </message>
    <message>
        <source>The folders themselves are renamed. What is in them does not change.</source>
        <translation>Umbenannt werden die Ordner selbst. Ihr Inhalt ändert sich nicht.</translation>
    </message>
    <message>
        <source>“%1” was not added: it is not a folder.</source>
        <translation>„%1“ wurde nicht hinzugefügt: Das ist kein Ordner.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were not added: they are not folders.</source>
        <translation>
            <numerusform>%n Datei wurde nicht hinzugefügt: Das ist kein Ordner.</numerusform>
            <numerusform>%n Dateien wurden nicht hinzugefügt: Das sind keine Ordner.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files are not shown because folders are being renamed.</source>
        <translation>
            <numerusform>%n Datei wird nicht gezeigt, weil Ordner umbenannt werden.</numerusform>
            <numerusform>%n Dateien werden nicht gezeigt, weil Ordner umbenannt werden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>interrupted</name>
    <message numerus="yes">
        <source>%1 was interrupted: %2 of %3 pictures are done.</source>
        <translation>
            <numerusform>%1 wurde unterbrochen: %2 von %3 Bildern ist fertig.</numerusform>
            <numerusform>%1 wurde unterbrochen: %2 von %3 Bildern sind fertig.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undoing “%1” was interrupted: %2 of %3 files are done.</source>
        <translation>
            <numerusform>Das Rückgängigmachen von „%1“ wurde unterbrochen: %2 von %3 Dateien ist fertig.</numerusform>
            <numerusform>Das Rückgängigmachen von „%1“ wurde unterbrochen: %2 von %3 Dateien sind fertig.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 was interrupted: %2 of %3 files have their new names.</source>
        <translation>
            <numerusform>%1 wurde unterbrochen: %2 von %3 Dateien hat ihren neuen Namen.</numerusform>
            <numerusform>%1 wurde unterbrochen: %2 von %3 Dateien haben ihre neuen Namen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 was interrupted: %2 of %3 files are done.</source>
        <translation>
            <numerusform>%1 wurde unterbrochen: %2 von %3 Dateien ist fertig.</numerusform>
            <numerusform>%1 wurde unterbrochen: %2 von %3 Dateien sind fertig.</numerusform>
        </translation>
    </message>
    <message>
        <source>Rename the Rest</source>
        <translation>Den Rest umbenennen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>unterbrochen</translation>
    </message>
</context>
<context>
    <name>job</name>
    <message>
        <source>the folder is read-only</source>
        <translation>der Ordner ist schreibgeschützt</translation>
    </message>
    <message>
        <source>file already exists</source>
        <translation>Datei ist schon vorhanden</translation>
    </message>
    <message>
        <source>no free name found</source>
        <translation>kein freier Name gefunden</translation>
    </message>
</context>
<context>
    <name>jobs</name>
    <message>
        <source>%1 has been changed since.</source>
        <translation>%1 wurde seitdem geändert.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 lässt sich nicht schreiben.</translation>
    </message>
</context>
<context>
    <name>kept-list</name>
    <message>
        <source>The list of the last session was restored.</source>
        <translation>Die Liste der letzten Sitzung wurde wiederhergestellt.</translation>
    </message>
</context>
<context>
    <name>list-estimate</name>
    <message>
        <source>about %1 in total</source>
        <translation>insgesamt etwa %1</translation>
    </message>
</context>
<context>
    <name>list-rows</name>
    <message>
        <source>left out</source>
        <translation>ausgelassen</translation>
    </message>
</context>
<context>
    <name>list-tools</name>
    <message>
        <source>Export the list</source>
        <translation>Liste exportieren</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Exporting the list…</source>
        <translation>Liste wird exportiert …</translation>
    </message>
    <message>
        <source>The list was exported to %1</source>
        <translation>Die Liste wurde exportiert nach %1</translation>
    </message>
    <message numerus="yes">
        <source>%n files copied</source>
        <translation>
            <numerusform>%n Datei kopiert</numerusform>
            <numerusform>%n Dateien kopiert</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading properties: %1 of %2</source>
        <translation>Eigenschaften werden gelesen: %1 von %2</translation>
    </message>
</context>
<context>
    <name>log-action</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
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
        <translation>Aktion</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Old comment</source>
        <translation>Alter Kommentar</translation>
    </message>
    <message>
        <source>New comment</source>
        <translation>Neuer Kommentar</translation>
    </message>
    <message>
        <source>All runs</source>
        <translation>Alle Durchläufe</translation>
    </message>
    <message>
        <source>Undo of %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo of %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message>
        <source>%1 (run of %2)</source>
        <translation>%1 (Durchlauf vom %2)</translation>
    </message>
    <message>
        <source>All actions</source>
        <translation>Alle Aktionen</translation>
    </message>
    <message>
        <source>Comments only</source>
        <translation>Nur Kommentare</translation>
    </message>
    <message>
        <source>All statuses</source>
        <translation>Alle Status</translation>
    </message>
    <message>
        <source>A run is being undone. Stop it first, or wait.</source>
        <translation>Ein Durchlauf wird gerade rückgängig gemacht. Stoppen Sie das zuerst oder warten Sie.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation>
            <numerusform>%Ln Eintrag</numerusform>
            <numerusform>%Ln Einträge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln entries</source>
        <translation>
            <numerusform>%1 von %Ln Eintrag</numerusform>
            <numerusform>%1 von %Ln Einträgen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Copy %n Rows</source>
        <translation>
            <numerusform>Zeile kopieren</numerusform>
            <numerusform>%n Zeilen kopieren</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear Log…</source>
        <translation>Protokoll leeren …</translation>
    </message>
    <message numerus="yes">
        <source>Revert %n Comments</source>
        <translation>
            <numerusform>Kommentar zurücksetzen</numerusform>
            <numerusform>%n Kommentare zurücksetzen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n comments selected</source>
        <translation>
            <numerusform>%n Kommentar ausgewählt</numerusform>
            <numerusform>%n Kommentare ausgewählt</numerusform>
        </translation>
    </message>
    <message>
        <source>No entry matches.</source>
        <translation>Kein Eintrag passt.</translation>
    </message>
    <message numerus="yes">
        <source>No entries yet. Each run is recorded here, and the last %Ln entries are kept.</source>
        <translation>
            <numerusform>Noch keine Einträge. Jeder Durchlauf wird hier festgehalten; der letzte Eintrag bleibt erhalten.</numerusform>
            <numerusform>Noch keine Einträge. Jeder Durchlauf wird hier festgehalten; die letzten %Ln Einträge bleiben erhalten.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n Problem</numerusform>
            <numerusform>%n Probleme</numerusform>
        </translation>
    </message>
    <message>
        <source>Export the log</source>
        <translation>Protokoll exportieren</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Log saved as %1</source>
        <translation>Protokoll gespeichert als %1</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Protokoll leeren</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln entries from the log?</source>
        <translation>
            <numerusform>Den einzigen Eintrag aus dem Protokoll entfernen?</numerusform>
            <numerusform>Alle %Ln Einträge aus dem Protokoll entfernen?</numerusform>
        </translation>
    </message>
    <message>
        <source>Your files are not changed. Runs can then no longer be undone from here.</source>
        <translation>Ihre Dateien werden nicht verändert. Durchläufe lassen sich danach hier nicht mehr rückgängig machen.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Revert comment</source>
        <translation>Kommentar zurücksetzen</translation>
    </message>
    <message>
        <source>Reverting: %1 of %2</source>
        <translation>Zurücksetzen: %1 von %2</translation>
    </message>
    <message>
        <source>Undoing: %1 of %2</source>
        <translation>Rückgängig machen: %1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files restored</source>
        <translation>
            <numerusform>%n Datei wiederhergestellt</numerusform>
            <numerusform>%n Dateien wiederhergestellt</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped:</source>
        <translation>Gestoppt:</translation>
    </message>
    <message>
        <source>A run is in progress. Its entries appear here when it is finished.</source>
        <translation>Ein Durchlauf ist im Gange. Seine Einträge erscheinen hier, wenn er fertig ist.</translation>
    </message>
    <message>
        <source>These settings cannot be used now.</source>
        <translation>Diese Einstellungen lassen sich jetzt nicht verwenden.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Something went wrong</source>
        <translation>Etwas ist schiefgegangen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortsetzen</translation>
    </message>
</context>
<context>
    <name>main-window</name>
    <message>
        <source>Drop to add pictures and folders</source>
        <translation>Hier ablegen, um Bilder und Ordner hinzuzufügen</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>A run is in progress</source>
        <translation>Ein Durchlauf ist im Gange</translation>
    </message>
    <message>
        <source>Stop the run and close the window?</source>
        <translation>Den Durchlauf abbrechen und das Fenster schließen?</translation>
    </message>
    <message>
        <source>Finished pictures are kept. No half-written file is left behind.</source>
        <translation>Fertige Bilder bleiben erhalten. Keine halb geschriebene Datei bleibt zurück.</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Abbrechen und schließen</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>Weiterlaufen lassen</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>No file manager could open the folder. It is %1</source>
        <translation>Kein Dateimanager konnte den Ordner öffnen. Er ist %1</translation>
    </message>
    <message numerus="yes">
        <source>Opened %1, which contains the %n folders</source>
        <translation>
            <numerusform>%1 geöffnet, das den Ordner enthält</numerusform>
            <numerusform>%1 geöffnet, das die %n Ordner enthält</numerusform>
        </translation>
    </message>
    <message>
        <source>What you add now is not part of this run.</source>
        <translation>Was Sie jetzt hinzufügen, gehört nicht zu diesem Durchlauf.</translation>
    </message>
</context>
<context>
    <name>manual</name>
    <message>
        <source>“%1” was not found in the manual.</source>
        <translation>„%1“ wurde im Handbuch nicht gefunden.</translation>
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
        <translation>Zoll</translation>
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
        <translation> bei %1 dpi</translation>
    </message>
    <message>
        <source>Enter a resolution from 1 to %1 dpi.</source>
        <translation>Geben Sie eine Auflösung von 1 bis %1 dpi ein.</translation>
    </message>
</context>
<context>
    <name>meta</name>
    <message>
        <source>"%1" cannot be the value of the field %2</source>
        <translation>„%1“ kann nicht der Wert des Feldes %2 sein</translation>
    </message>
    <message>
        <source>there is no field %1</source>
        <translation>es gibt kein Feld %1</translation>
    </message>
    <message>
        <source>private data is not removed from files of this type</source>
        <translation>aus Dateien dieser Art werden private Daten nicht entfernt</translation>
    </message>
    <message>
        <source>no change is given for the field %1</source>
        <translation>für das Feld %1 ist keine Änderung angegeben</translation>
    </message>
    <message>
        <source>"%1" is not a time zone</source>
        <translation>„%1“ ist keine Zeitzone</translation>
    </message>
    <message>
        <source>there is no group %1</source>
        <translation>es gibt keine Gruppe %1</translation>
    </message>
    <message>
        <source>%1 is too large</source>
        <translation>%1 ist zu groß</translation>
    </message>
</context>
<context>
    <name>metadata-action</name>
    <message>
        <source>Metadata</source>
        <translation>Metadaten</translation>
    </message>
</context>
<context>
    <name>metadata-page</name>
    <message>
        <source>This Picture</source>
        <translation>Dieses Bild</translation>
    </message>
    <message>
        <source>Many Pictures</source>
        <translation>Viele Bilder</translation>
    </message>
    <message>
        <source>Search values</source>
        <translation>Werte suchen</translation>
    </message>
    <message>
        <source>Comments are being written. Cancel this first, or wait.</source>
        <translation>Kommentare werden gerade geschrieben. Brechen Sie das zuerst ab oder warten Sie.</translation>
    </message>
    <message>
        <source>This file is not a picture that can be read.</source>
        <translation>Diese Datei ist kein lesbares Bild.</translation>
    </message>
    <message>
        <source>Copy Value or Branch</source>
        <translation>Wert oder Zweig kopieren</translation>
    </message>
    <message>
        <source>Copy Location in Degrees, 48.85840, 2.29450</source>
        <translation>Aufnahmeort in Grad kopieren, 48.85840, 2.29450</translation>
    </message>
    <message>
        <source>Copy Location in Minutes, 48° 51′ 30″ N</source>
        <translation>Aufnahmeort in Minuten kopieren, 48° 51′ 30″ N</translation>
    </message>
    <message numerus="yes">
        <source>%n lines copied</source>
        <translation>
            <numerusform>%n Zeile kopiert</numerusform>
            <numerusform>%n Zeilen kopiert</numerusform>
        </translation>
    </message>
    <message>
        <source>Select a property to copy first.</source>
        <translation>Wählen Sie zuerst eine Eigenschaft aus.</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Kopiert: %1</translation>
    </message>
    <message>
        <source>Files of this type cannot hold a comment.</source>
        <translation>Dateien dieses Typs können keinen Kommentar enthalten.</translation>
    </message>
    <message>
        <source>Tokens such as {name}, {date} and {counter} are filled in for each picture. To write a brace, type {{.</source>
        <translation>Platzhalter wie {name}, {date} und {counter} werden für jedes Bild ausgefüllt. Für eine geschweifte Klammer tippen Sie {{.</translation>
    </message>
    <message>
        <source>For example %1: “%2”</source>
        <translation>Zum Beispiel %1: „%2“</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%n properties</source>
        <translation>
            <numerusform>%n Eigenschaft</numerusform>
            <numerusform>%n Eigenschaften</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Revert %n</source>
        <translation>
            <numerusform>Zurücksetzen</numerusform>
            <numerusform>%n zurücksetzen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write into All %n…</source>
        <translation>
            <numerusform>In %n schreiben …</numerusform>
            <numerusform>In alle %n schreiben …</numerusform>
        </translation>
    </message>
    <message>
        <source>Write comment</source>
        <translation>Kommentar schreiben</translation>
    </message>
    <message>
        <source>Write the comment into pictures</source>
        <translation>Kommentar in Bilder schreiben</translation>
    </message>
    <message>
        <source>Write the comment into all pictures of a folder</source>
        <translation>Kommentar in alle Bilder eines Ordners schreiben</translation>
    </message>
    <message>
        <source>Revert comment</source>
        <translation>Kommentar zurücksetzen</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures, differences: %1</source>
        <translation>
            <numerusform>%n Bild, Unterschiede: %1</numerusform>
            <numerusform>%n Bilder, Unterschiede: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>move-run</name>
    <message>
        <source>Not enough space</source>
        <translation>Nicht genug Platz</translation>
    </message>
    <message>
        <source>Files that do not fit stay where they are.</source>
        <translation>Dateien, die nicht passen, bleiben, wo sie sind.</translation>
    </message>
    <message>
        <source>Start Anyway</source>
        <translation>Trotzdem starten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancelled before the first file. Nothing was moved.</source>
        <translation>Vor der ersten Datei abgebrochen. Nichts wurde verschoben.</translation>
    </message>
    <message>
        <source>There is nothing to do.</source>
        <translation>Es gibt nichts zu tun.</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was moved.</source>
        <translation>Abgebrochen. Es wurde nichts verschoben.</translation>
    </message>
    <message>
        <source>Dry run: %1</source>
        <translation>Probelauf: %1</translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>%1 ausgelassen</translation>
    </message>
    <message>
        <source>nothing was moved</source>
        <translation>nichts wurde verschoben</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fertig</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>Cancelled:</source>
        <translation>Abgebrochen:</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Last run: %1, %2</source>
        <translation>Letzter Durchlauf: %1, %2</translation>
    </message>
    <message>
        <source>Finished files are kept.</source>
        <translation>Fertige Dateien bleiben erhalten.</translation>
    </message>
</context>
<context>
    <name>move-words</name>
    <message>
        <source>the name is empty</source>
        <translation>der Name ist leer</translation>
    </message>
    <message>
        <source>a name cannot contain “/” or be “.” or “..”</source>
        <translation>ein Name darf kein „/“ enthalten und nicht „.“ oder „..“ sein</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>der Name ist zu lang</translation>
    </message>
    <message>
        <source>the file no longer exists</source>
        <translation>die Datei ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>same new name as %1</source>
        <translation>gleicher neuer Name wie %1</translation>
    </message>
    <message>
        <source>name in use by %1, which keeps its name</source>
        <translation>Name belegt durch %1, das ihn behält</translation>
    </message>
    <message>
        <source>name in use by a file that is not in this list</source>
        <translation>Name durch eine Datei außerhalb der Liste belegt</translation>
    </message>
    <message>
        <source>differs only by case or accents from %1</source>
        <translation>unterscheidet sich nur in Großschreibung oder Akzenten von %1</translation>
    </message>
    <message>
        <source>a folder cannot be moved into itself</source>
        <translation>ein Ordner kann nicht in sich selbst verschoben werden</translation>
    </message>
    <message>
        <source>the folder is read-only</source>
        <translation>der Ordner ist schreibgeschützt</translation>
    </message>
    <message>
        <source>the picture of this sidecar file stays</source>
        <translation>das Bild zu dieser Begleitdatei bleibt</translation>
    </message>
    <message>
        <source>a sidecar file cannot be moved: its name is in use by %1</source>
        <translation>eine Begleitdatei lässt sich nicht verschieben: %1 belegt ihren Namen</translation>
    </message>
    <message>
        <source>a sidecar file cannot be moved</source>
        <translation>eine Begleitdatei lässt sich nicht verschieben</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>nicht möglich</translation>
    </message>
    <message>
        <source>swaps names with %1</source>
        <translation>tauscht den Namen mit %1</translation>
    </message>
    <message>
        <source>ready, with its %1</source>
        <translation>bereit, mit %1</translation>
    </message>
    <message>
        <source>ready, numbered because the file exists</source>
        <translation>bereit, nummeriert, da die Datei vorhanden ist</translation>
    </message>
    <message>
        <source>ready, to another disk</source>
        <translation>bereit, auf anderen Datenträger</translation>
    </message>
    <message>
        <source>ready, only the case changes</source>
        <translation>bereit, nur Groß-/Kleinschreibung ändert sich</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>Includes its %1.</source>
        <translation>Mit %1.</translation>
    </message>
    <message>
        <source>ready, but %1</source>
        <translation>bereit, aber %1</translation>
    </message>
    <message>
        <source>stays: %1 gets this name</source>
        <translation>bleibt: %1 bekommt diesen Namen</translation>
    </message>
    <message>
        <source>stays: file already exists</source>
        <translation>bleibt: Datei ist schon vorhanden</translation>
    </message>
    <message>
        <source>Existing file: %1</source>
        <translation>Vorhandene Datei: %1</translation>
    </message>
    <message>
        <source>sidecar file of %1</source>
        <translation>Begleitdatei von %1</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>unverändert</translation>
    </message>
</context>
<context>
    <name>moves</name>
    <message>
        <source>Dry Run: %1</source>
        <translation>Probelauf: %1</translation>
    </message>
    <message>
        <source>Planning: %1 of %2…</source>
        <translation>Wird geplant: %1 von %2 …</translation>
    </message>
    <message>
        <source>%1 ready</source>
        <translation>%1 bereit</translation>
    </message>
    <message numerus="yes">
        <source>%n need attention</source>
        <translation>
            <numerusform>%n zu prüfen</numerusform>
            <numerusform>%n zu prüfen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unchanged</source>
        <translation>
            <numerusform>%n unverändert</numerusform>
            <numerusform>%n unverändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar files</source>
        <translation>
            <numerusform>%n Begleitdatei</numerusform>
            <numerusform>%n Begleitdateien</numerusform>
        </translation>
    </message>
    <message>
        <source>can be undone</source>
        <translation>lässt sich rückgängig machen</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Dry run: move nothing</source>
        <translation>Probelauf: nichts verschieben</translation>
    </message>
</context>
<context>
    <name>name-steps</name>
    <message>
        <source>Enter a text.</source>
        <translation>Geben Sie einen Text ein.</translation>
    </message>
    <message>
        <source>Enter piece numbers separated by commas, such as 2,1. Use -1 for the last piece.</source>
        <translation>Geben Sie Teilnummern durch Kommas getrennt ein, etwa 2,1. Mit -1 wählen Sie das letzte Teil.</translation>
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
        <translation>Pixel</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>points</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>picas</source>
        <translation>Pica</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>At a chosen resolution</source>
        <translation>Mit gewählter Auflösung</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Fit inside</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Fill (crops)</source>
        <translation>Füllen (beschneidet)</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Strecken</translation>
    </message>
    <message>
        <source>Fit and pad</source>
        <translation>Einpassen und auffüllen</translation>
    </message>
    <message>
        <source>Longest side</source>
        <translation>Längste Seite</translation>
    </message>
    <message>
        <source>Shortest side</source>
        <translation>Kürzeste Seite</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Prozentsatz</translation>
    </message>
    <message>
        <source>Megapixels</source>
        <translation>Megapixel</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Nach</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Enlarge small pictures too</source>
        <translation>Auch kleine Bilder vergrößern</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Verhältnis</translation>
    </message>
    <message>
        <source>Larger number for the longer side</source>
        <translation>Größere Zahl für die längere Seite</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Beschneiden</translation>
    </message>
    <message>
        <source>Width and height</source>
        <translation>Breite und Höhe</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Offset to the right</source>
        <translation>Versatz nach rechts</translation>
    </message>
    <message>
        <source>Offset downward</source>
        <translation>Versatz nach unten</translation>
    </message>
    <message>
        <source>Offset from there</source>
        <translation>Von dort versetzt</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Fill new corners</source>
        <translation>Neue Ecken füllen</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Border width</source>
        <translation>Randbreite</translation>
    </message>
    <message>
        <source>Border colour</source>
        <translation>Randfarbe</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Fill colour</source>
        <translation>Füllfarbe</translation>
    </message>
    <message>
        <source>Border inside the picture</source>
        <translation>Rand innerhalb des Bildes</translation>
    </message>
    <message>
        <source>Under the picture</source>
        <translation>Unter dem Bild</translation>
    </message>
    <message>
        <source>A colour</source>
        <translation>Eine Farbe</translation>
    </message>
    <message>
        <source>A pattern</source>
        <translation>Ein Muster</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Muster</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Wasserzeichen</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Over the whole picture</source>
        <translation>Über das ganze Bild</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Stärke</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Gering</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>A profile file</source>
        <translation>Eine Profildatei</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Links und rechts</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>Oben und unten</translation>
    </message>
    <message>
        <source>Converts the colours. sRGB suits screens and the web.</source>
        <translation>Rechnet die Farben um. sRGB eignet sich für Bildschirme und das Web.</translation>
    </message>
    <message>
        <source>A colour profile with the extension .icc or .icm</source>
        <translation>Ein Farbprofil mit der Endung .icc oder .icm</translation>
    </message>
    <message>
        <source>Dots per inch used to turn lengths into pixels</source>
        <translation>Punkte pro Zoll, mit denen Längen in Pixel umgerechnet werden</translation>
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
        <translation>Sonst gilt für Längen die Auflösung des jeweiligen Bildes</translation>
    </message>
</context>
<context>
    <name>output-fields</name>
    <message>
        <source>Original file type</source>
        <translation>Typ des Originals</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>Lossless if the type allows it</source>
        <translation>Verlustfrei, wenn der Typ es erlaubt</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Verlustfrei</translation>
    </message>
    <message>
        <source>Choose the quality</source>
        <translation>Qualität wählen</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Limit the file size</source>
        <translation>Dateigröße begrenzen</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>Höchstens</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadaten</translation>
    </message>
    <message>
        <source>Keep all</source>
        <translation>Alle behalten</translation>
    </message>
    <message>
        <source>Keep copyright only</source>
        <translation>Nur Copyright behalten</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Remove location</source>
        <translation>Aufnahmeort entfernen</translation>
    </message>
    <message>
        <source>If the file exists</source>
        <translation>Falls vorhanden</translation>
    </message>
    <message>
        <source>Keep both (add a number)</source>
        <translation>Beide behalten (mit Nummer)</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Set the resolution</source>
        <translation>Auflösung setzen</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Keep the file date</source>
        <translation>Dateidatum behalten</translation>
    </message>
    <message>
        <source>Skip if up to date</source>
        <translation>Überspringen, wenn aktuell</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Höhere Qualität bedeutet größere Dateien</translation>
    </message>
    <message>
        <source>Keeps every pixel exactly; the files are larger</source>
        <translation>Erhält jeden Pixel genau; die Dateien werden größer</translation>
    </message>
    <message>
        <source>Otherwise JPEG files keep their quality, and other types get %1</source>
        <translation>Sonst behalten JPEG-Dateien ihre Qualität und andere Typen erhalten %1</translation>
    </message>
    <message>
        <source>Otherwise the quality is %1</source>
        <translation>Sonst ist die Qualität %1</translation>
    </message>
    <message>
        <source>Dots per inch written into the file; its pixels do not change</source>
        <translation>Punkte pro Zoll, die in die Datei geschrieben werden; ihre Pixel ändern sich nicht</translation>
    </message>
    <message>
        <source>For printing and layout programs; no pixel changes</source>
        <translation>Für Druck- und Layoutprogramme; kein Pixel ändert sich</translation>
    </message>
    <message>
        <source>Replaces transparency in file types that cannot hold it</source>
        <translation>Ersetzt Transparenz in Dateitypen, die keine kennen</translation>
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
        <translation>Beide behalten (mit Nummer)</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Fragen</translation>
    </message>
    <message>
        <source>Original file type</source>
        <translation>Typ des Originals</translation>
    </message>
    <message>
        <source>Next to each picture</source>
        <translation>Ordner neben jedem Bild</translation>
    </message>
    <message>
        <source>Folder of the original</source>
        <translation>Ordner des Originals</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>Save results to</source>
        <translation>Ergebnisse speichern in</translation>
    </message>
    <message>
        <source>Keep all</source>
        <translation>Alle behalten</translation>
    </message>
    <message>
        <source>Keep copyright only</source>
        <translation>Nur Copyright behalten</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Weniger</translation>
    </message>
    <message>
        <source>More…</source>
        <translation>Mehr …</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures have a type that cannot be written.</source>
        <translation>
            <numerusform>%n Bild hat einen Typ, der nicht geschrieben werden kann.</numerusform>
            <numerusform>%n Bilder haben einen Typ, der nicht geschrieben werden kann.</numerusform>
        </translation>
    </message>
    <message>
        <source>Same as the picture</source>
        <translation>Wie im Bild</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Skip if up to date</source>
        <translation>Überspringen, wenn aktuell</translation>
    </message>
</context>
<context>
    <name>own-results</name>
    <message numerus="yes">
        <source>%n results of earlier runs not added</source>
        <translation>
            <numerusform>%n Ergebnis früherer Durchläufe nicht hinzugefügt</numerusform>
            <numerusform>%n Ergebnisse früherer Durchläufe nicht hinzugefügt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>pages</name>
    <message>
        <source>Pages have no setting “%1”.</source>
        <translation>Seiten haben keine Einstellung „%1“.</translation>
    </message>
    <message>
        <source>Enter a paper width and height from 20 to 2000 mm.</source>
        <translation>Geben Sie Breite und Höhe des Papiers von 20 bis 2000 mm ein.</translation>
    </message>
    <message>
        <source>Enter margins from 0 mm.</source>
        <translation>Geben Sie Ränder ab 0 mm ein.</translation>
    </message>
    <message>
        <source>Enter a gap from 0 mm.</source>
        <translation>Geben Sie einen Abstand ab 0 mm ein.</translation>
    </message>
    <message>
        <source>Enter 1 to 20 rows and columns.</source>
        <translation>Geben Sie 1 bis 20 Zeilen und Spalten ein.</translation>
    </message>
    <message>
        <source>Enter text sizes from 3 to 72 points.</source>
        <translation>Geben Sie Textgrößen von 3 bis 72 Punkt ein.</translation>
    </message>
    <message>
        <source>Enter a resolution from 36 to 1200 pixels per inch.</source>
        <translation>Geben Sie eine Auflösung von 36 bis 1200 Pixel pro Zoll ein.</translation>
    </message>
    <message>
        <source>Enter a quality from 1 to 100.</source>
        <translation>Geben Sie eine Qualität von 1 bis 100 ein.</translation>
    </message>
    <message>
        <source>There is no room for pictures. Use fewer rows or columns, or smaller margins or gaps.</source>
        <translation>Für Bilder bleibt kein Platz. Wählen Sie weniger Zeilen oder Spalten oder kleinere Ränder oder Abstände.</translation>
    </message>
    <message>
        <source>The pages could not be created.</source>
        <translation>Die Seiten konnten nicht erstellt werden.</translation>
    </message>
    <message>
        <source>The PDF cannot be written: %1</source>
        <translation>Das PDF kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>The picture could not be prepared for the page.</source>
        <translation>Das Bild konnte nicht für die Seite vorbereitet werden.</translation>
    </message>
</context>
<context>
    <name>pane</name>
    <message>
        <source> at %1 dpi</source>
        <translation> bei %1 dpi</translation>
    </message>
</context>
<context>
    <name>plan</name>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>another picture in this run has the same new name</source>
        <translation>ein anderes Bild dieses Durchlaufs hat denselben neuen Namen</translation>
    </message>
    <message>
        <source>file already exists</source>
        <translation>Datei ist schon vorhanden</translation>
    </message>
    <message>
        <source>the destination folder has no name</source>
        <translation>der Zielordner hat keinen Namen</translation>
    </message>
    <message>
        <source>the picture no longer exists</source>
        <translation>das Bild ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>up to date</source>
        <translation>ist aktuell</translation>
    </message>
</context>
<context>
    <name>platform</name>
    <message>
        <source>The tags of %1 could not be written</source>
        <translation>Die Schlagwörter von %1 konnten nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash</source>
        <translation>%1 kann nicht in den Papierkorb verschoben werden</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash: no such file</source>
        <translation>%1 kann nicht in den Papierkorb verschoben werden: keine solche Datei</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash: %2</source>
        <translation>%1 kann nicht in den Papierkorb verschoben werden: %2</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>this is not an ordinary file</source>
        <translation>dies ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>KB</translation>
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
            <numerusform>%n Byte</numerusform>
            <numerusform>%n Byte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 needs about %2 of memory, %3 is free</source>
        <translation>%1 braucht etwa %2 Speicher, frei sind %3</translation>
    </message>
    <message>
        <source>needs about %1 of memory, %2 is free</source>
        <translation>braucht etwa %1 Speicher, frei sind %2</translation>
    </message>
    <message>
        <source>There is no picture to draw</source>
        <translation>Es gibt kein Bild zum Zeichnen</translation>
    </message>
    <message>
        <source>The picture is too large</source>
        <translation>Das Bild ist zu groß</translation>
    </message>
    <message>
        <source>There is nothing to draw</source>
        <translation>Es gibt nichts zu zeichnen</translation>
    </message>
    <message>
        <source>A picture of %1 × %2 pixels cannot be made</source>
        <translation>Ein Bild von %1 × %2 Pixeln ist nicht möglich</translation>
    </message>
    <message>
        <source>Reading the picture</source>
        <translation>Das Lesen des Bildes</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>Das Bild</translation>
    </message>
    <message>
        <source>There is no picture to scale</source>
        <translation>Es gibt kein Bild zum Skalieren</translation>
    </message>
    <message>
        <source>There is no picture to rotate</source>
        <translation>Es gibt kein Bild zum Drehen</translation>
    </message>
    <message>
        <source>A picture cannot be rotated by that angle</source>
        <translation>Um diesen Winkel lässt sich kein Bild drehen</translation>
    </message>
    <message>
        <source>the file is damaged</source>
        <translation>die Datei ist beschädigt</translation>
    </message>
    <message>
        <source>the comment is too long</source>
        <translation>der Kommentar ist zu lang</translation>
    </message>
    <message>
        <source>There is no picture to write</source>
        <translation>Es gibt kein Bild zum Schreiben</translation>
    </message>
    <message>
        <source>The page could not be created: %1</source>
        <translation>Die Seite konnte nicht erzeugt werden: %1</translation>
    </message>
    <message>
        <source>The JPEG could not be created: %1</source>
        <translation>Das JPEG konnte nicht erzeugt werden: %1</translation>
    </message>
    <message>
        <source>Writing the picture</source>
        <translation>Das Schreiben des Bildes</translation>
    </message>
    <message>
        <source>The picture could not be encoded: %1</source>
        <translation>Das Bild konnte nicht codiert werden: %1</translation>
    </message>
    <message>
        <source>The file is neither JPEG nor TIFF</source>
        <translation>Die Datei ist weder JPEG noch TIFF</translation>
    </message>
    <message>
        <source>This is not a property list with a dictionary</source>
        <translation>Dies ist keine Eigenschaftsliste mit Schlüsseln und Werten</translation>
    </message>
    <message>
        <source>A property list cannot hold the value of %1</source>
        <translation>Der Wert von %1 passt nicht in eine Eigenschaftsliste</translation>
    </message>
    <message>
        <source>the file is write-protected</source>
        <translation>die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>this type of file cannot hold metadata of its own</source>
        <translation>Dateien dieser Art können keine eigenen Metadaten aufnehmen</translation>
    </message>
    <message>
        <source>its metadata is damaged</source>
        <translation>ihre Metadaten sind beschädigt</translation>
    </message>
    <message>
        <source>there is not enough room for the metadata</source>
        <translation>für die Metadaten ist nicht genug Platz</translation>
    </message>
    <message>
        <source>this is not a picture</source>
        <translation>dies ist kein Bild</translation>
    </message>
    <message>
        <source>this type of file cannot hold a comment</source>
        <translation>dieser Dateityp kann keinen Kommentar enthalten</translation>
    </message>
    <message>
        <source>Cannot write the comment into %1: %2</source>
        <translation>Der Kommentar kann nicht in %1 geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the picture could not be read afterwards</source>
        <translation>das Bild konnte danach nicht gelesen werden</translation>
    </message>
    <message>
        <source>the comment could not be read afterwards</source>
        <translation>der Kommentar konnte danach nicht gelesen werden</translation>
    </message>
    <message>
        <source>a comment ends where it has a null character</source>
        <translation>ein Kommentar endet, wo er ein Nullzeichen hat</translation>
    </message>
    <message>
        <source>Cannot change the metadata of %1: %2</source>
        <translation>Die Metadaten von %1 können nicht geändert werden: %2</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>die Datei kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the metadata could not be read afterwards</source>
        <translation>die Metadaten konnten danach nicht gelesen werden</translation>
    </message>
    <message>
        <source>it was changed since</source>
        <translation>die Datei wurde seitdem geändert</translation>
    </message>
    <message>
        <source>its sidecar is damaged</source>
        <translation>die Begleitdatei ist beschädigt</translation>
    </message>
    <message>
        <source>Cannot read %1: %2 x %3 pixels are more than the memory allows</source>
        <translation>%1 kann nicht gelesen werden: %2 × %3 Pixel sind mehr, als der Arbeitsspeicher erlaubt</translation>
    </message>
    <message>
        <source>its header is damaged</source>
        <translation>der Dateikopf ist beschädigt</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>the file is cut short</source>
        <translation>die Datei ist unvollständig</translation>
    </message>
    <message>
        <source>There is no image %1</source>
        <translation>Es gibt kein Bild %1</translation>
    </message>
    <message>
        <source>There is nothing of the picture in that part</source>
        <translation>In diesem Teil liegt nichts vom Bild</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>keine solche Datei</translation>
    </message>
    <message>
        <source>%1 files can have at most %2 pixels on a side, not %3</source>
        <translation>%1-Dateien fassen höchstens %2 Pixel je Seite, nicht %3</translation>
    </message>
    <message>
        <source>The text is too large to be drawn</source>
        <translation>Der Text ist zu groß, um gezeichnet zu werden</translation>
    </message>
    <message>
        <source>No font is installed, so no text can be drawn</source>
        <translation>Es ist keine Schrift installiert, daher kann kein Text gezeichnet werden</translation>
    </message>
</context>
<context>
    <name>preferences</name>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Keep both (add a number)</source>
        <translation>Beide behalten (mit Nummer)</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Fragen</translation>
    </message>
    <message>
        <source>the last 1,000 files</source>
        <translation>die letzten 1.000 Dateien</translation>
    </message>
    <message>
        <source>the last 10,000 files</source>
        <translation>die letzten 10.000 Dateien</translation>
    </message>
    <message>
        <source>the last 100,000 files</source>
        <translation>die letzten 100.000 Dateien</translation>
    </message>
    <message>
        <source>all %1 processors</source>
        <translation>alle %1 Prozessoren</translation>
    </message>
    <message>
        <source>%1 of %2 processors</source>
        <translation>%1 von %2 Prozessoren</translation>
    </message>
    <message>
        <source>A folder next to the originals</source>
        <translation>Ordner neben den Originalen</translation>
    </message>
    <message>
        <source>The folder of the originals</source>
        <translation>Ordner der Originale</translation>
    </message>
    <message>
        <source>all free memory</source>
        <translation>der ganze freie Speicher</translation>
    </message>
    <message>
        <source>%1 GB at most</source>
        <translation>höchstens %1 GB</translation>
    </message>
    <message>
        <source>Skip if up to date</source>
        <translation>Überspringen, wenn aktuell</translation>
    </message>
</context>
<context>
    <name>preset-pane</name>
    <message>
        <source>%1 (newer version)</source>
        <translation>%1 (neuere Version)</translation>
    </message>
    <message>
        <source>%1 (unknown)</source>
        <translation>%1 (unbekannt)</translation>
    </message>
    <message>
        <source>%1 (damaged)</source>
        <translation>%1 (beschädigt)</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, geändert</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen …</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Löschen …</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>My preset</source>
        <translation>Meine Vorgabe</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Vorgabe löschen</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>Die Vorgabe „%1“ löschen?</translation>
    </message>
    <message>
        <source>Your current settings are kept.</source>
        <translation>Ihre aktuellen Einstellungen bleiben erhalten.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Export the preset</source>
        <translation>Vorgabe exportieren</translation>
    </message>
    <message>
        <source>Preset exported as %1</source>
        <translation>Vorgabe exportiert als %1</translation>
    </message>
    <message>
        <source>Import presets</source>
        <translation>Vorgaben importieren</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n presets imported</source>
        <translation>
            <numerusform>%1 von %n Vorgabe importiert</numerusform>
            <numerusform>%1 von %n Vorgaben importiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n presets imported</source>
        <translation>
            <numerusform>%n Vorgabe importiert</numerusform>
            <numerusform>%n Vorgaben importiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n renamed because their names were in use</source>
        <translation>
            <numerusform>%n umbenannt, da der Name schon belegt war</numerusform>
            <numerusform>%n umbenannt, da die Namen schon belegt waren</numerusform>
        </translation>
    </message>
    <message>
        <source>none for this action</source>
        <translation>keine für diese Aktion</translation>
    </message>
    <message>
        <source>This name is in use. The preset will be called “%1”.</source>
        <translation>Dieser Name ist vergeben. Die Vorgabe heißt dann „%1“.</translation>
    </message>
    <message>
        <source>No preset</source>
        <translation>Keine Vorgabe</translation>
    </message>
</context>
<context>
    <name>preset-store</name>
    <message>
        <source>The presets database was empty. It was renamed to %1, and a new one was created.</source>
        <translation>Die Datenbank der Vorgaben war leer. Sie wurde in %1 umbenannt, und eine neue wurde angelegt.</translation>
    </message>
    <message>
        <source>Presets cannot be saved: the database could not be created.</source>
        <translation>Vorgaben können nicht gespeichert werden: Ihre Datenbank lässt sich nicht anlegen.</translation>
    </message>
    <message>
        <source>The presets database cannot be read.</source>
        <translation>Die Datenbank der Vorgaben kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The presets database is damaged. It was not changed.</source>
        <translation>Die Datenbank der Vorgaben ist beschädigt. Sie wurde nicht verändert.</translation>
    </message>
    <message>
        <source>The presets database has no table for presets. It was not changed.</source>
        <translation>Die Datenbank der Vorgaben hat keine Tabelle für Vorgaben. Sie wurde nicht verändert.</translation>
    </message>
    <message>
        <source>The presets database is in use by another program or damaged. It was not changed.</source>
        <translation>Die Datenbank der Vorgaben wird von einem anderen Programm benutzt oder ist beschädigt. Sie wurde nicht verändert.</translation>
    </message>
    <message>
        <source>The presets database is read-only. It was not changed.</source>
        <translation>Die Datenbank der Vorgaben ist schreibgeschützt. Sie wurde nicht verändert.</translation>
    </message>
    <message>
        <source>The presets database is in use by another program, or the disk is full. It was not changed.</source>
        <translation>Die Datenbank der Vorgaben wird von einem anderen Programm benutzt, oder der Datenträger ist voll. Sie wurde nicht verändert.</translation>
    </message>
</context>
<context>
    <name>presets</name>
    <message>
        <source>This preset was not made by Quorlin. It was not changed.</source>
        <translation>Diese Vorgabe stammt nicht von Quorlin. Sie wurde nicht verändert.</translation>
    </message>
    <message>
        <source>This preset was made by a newer version of Quorlin. It was not changed.</source>
        <translation>Diese Vorgabe stammt von einer neueren Version von Quorlin. Sie wurde nicht verändert.</translation>
    </message>
    <message>
        <source>This preset is damaged and cannot be used.</source>
        <translation>Diese Vorgabe ist beschädigt und nicht verwendbar.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Geben Sie einen Namen ein.</translation>
    </message>
    <message>
        <source>A name cannot contain line breaks or control characters.</source>
        <translation>Ein Name darf keine Zeilenumbrüche oder Steuerzeichen enthalten.</translation>
    </message>
    <message numerus="yes">
        <source>A name can have up to %n characters.</source>
        <translation>
            <numerusform>Ein Name darf höchstens %n Zeichen haben.</numerusform>
            <numerusform>Ein Name darf höchstens %n Zeichen haben.</numerusform>
        </translation>
    </message>
    <message>
        <source>A preset named %1 already exists.</source>
        <translation>Eine Vorgabe namens %1 gibt es schon.</translation>
    </message>
    <message>
        <source>This file contains no presets.</source>
        <translation>Diese Datei enthält keine Vorgaben.</translation>
    </message>
    <message>
        <source>This file was made by a newer version of Quorlin.</source>
        <translation>Diese Datei stammt von einer neueren Version von Quorlin.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n presets in this file cannot be used.</source>
        <translation>
            <numerusform>%1 von %n Vorgabe in dieser Datei ist nicht verwendbar.</numerusform>
            <numerusform>%1 von %n Vorgaben in dieser Datei sind nicht verwendbar.</numerusform>
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
        <translation>Qualität %1</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>Large preview</source>
        <translation>Große Vorschau</translation>
    </message>
    <message>
        <source>%1: the result. Hold F to see the original.</source>
        <translation>%1: das Ergebnis. F gedrückt halten zeigt das Original.</translation>
    </message>
</context>
<context>
    <name>print</name>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Printing: %1</source>
        <translation>Wird gedruckt: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n Seite</numerusform>
            <numerusform>%n Seiten</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Die Datei konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was printed.</source>
        <translation>Abgebrochen. Es wurde nichts gedruckt.</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures could not be read</source>
        <translation>
            <numerusform>%n Bild konnte nicht gelesen werden</numerusform>
            <numerusform>%n Bilder konnten nicht gelesen werden</numerusform>
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
        <translation>aufrecht</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>gespiegelt</translation>
    </message>
    <message>
        <source>upside down</source>
        <translation>kopfüber</translation>
    </message>
    <message>
        <source>upside down, mirrored</source>
        <translation>kopfüber, gespiegelt</translation>
    </message>
    <message>
        <source>on its left side, mirrored</source>
        <translation>auf der linken Seite, gespiegelt</translation>
    </message>
    <message>
        <source>turn right to see it upright</source>
        <translation>nach rechts drehen, um es aufrecht zu sehen</translation>
    </message>
    <message>
        <source>on its right side, mirrored</source>
        <translation>auf der rechten Seite, gespiegelt</translation>
    </message>
    <message>
        <source>turn left to see it upright</source>
        <translation>nach links drehen, um es aufrecht zu sehen</translation>
    </message>
    <message>
        <source>fired</source>
        <translation>ausgelöst</translation>
    </message>
    <message>
        <source>did not fire</source>
        <translation>nicht ausgelöst</translation>
    </message>
    <message>
        <source>manual</source>
        <translation>manuell</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatisch</translation>
    </message>
    <message>
        <source>aperture priority</source>
        <translation>Blendenvorwahl</translation>
    </message>
    <message>
        <source>shutter priority</source>
        <translation>Zeitvorwahl</translation>
    </message>
    <message>
        <source>creative</source>
        <translation>kreativ</translation>
    </message>
    <message>
        <source>action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>Porträt</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>Landschaft</translation>
    </message>
    <message>
        <source>average</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>centre-weighted</source>
        <translation>mittenbetont</translation>
    </message>
    <message>
        <source>spot</source>
        <translation>Spot</translation>
    </message>
    <message>
        <source>several spots</source>
        <translation>Mehrfachspot</translation>
    </message>
    <message>
        <source>several fields</source>
        <translation>Mehrfeld</translation>
    </message>
    <message>
        <source>part of the picture</source>
        <translation>Teilbild</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>night</source>
        <translation>Nacht</translation>
    </message>
    <message>
        <source>bracketing</source>
        <translation>Belichtungsreihe</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>centimetre</source>
        <translation>Zentimeter</translation>
    </message>
    <message>
        <source>not sRGB</source>
        <translation>nicht sRGB</translation>
    </message>
    <message>
        <source>above sea level</source>
        <translation>über dem Meeresspiegel</translation>
    </message>
    <message>
        <source>below sea level</source>
        <translation>unter dem Meeresspiegel</translation>
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
            <numerusform>%Ln Pixel</numerusform>
            <numerusform>%Ln Pixel</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bits</source>
        <translation>
            <numerusform>%Ln Bit</numerusform>
            <numerusform>%Ln Bit</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln bytes</source>
        <translation>
            <numerusform>%Ln Byte</numerusform>
            <numerusform>%Ln Byte</numerusform>
        </translation>
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
        <source>Acceleration</source>
        <translation>Beschleunigung</translation>
    </message>
    <message>
        <source>Action advised</source>
        <translation>Empfohlene Maßnahme</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Altitude reference</source>
        <translation>Höhe (Bezug)</translation>
    </message>
    <message>
        <source>Aperture value</source>
        <translation>Blendenwert</translation>
    </message>
    <message>
        <source>Area information</source>
        <translation>Gebietsangabe</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Fotograf</translation>
    </message>
    <message>
        <source>Audio duration</source>
        <translation>Audiodauer</translation>
    </message>
    <message>
        <source>Audio outcue</source>
        <translation>Audio-Schlussworte</translation>
    </message>
    <message>
        <source>Audio rate</source>
        <translation>Audio-Abtastrate</translation>
    </message>
    <message>
        <source>Audio resolution</source>
        <translation>Audio-Auflösung</translation>
    </message>
    <message>
        <source>Audio type</source>
        <translation>Audiotyp</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Battery level</source>
        <translation>Akkustand</translation>
    </message>
    <message>
        <source>Body serial number</source>
        <translation>Seriennummer des Gehäuses</translation>
    </message>
    <message>
        <source>Brightness value</source>
        <translation>Helligkeitswert</translation>
    </message>
    <message>
        <source>By-line</source>
        <translation>Urheber</translation>
    </message>
    <message>
        <source>By-line title</source>
        <translation>Position des Urhebers</translation>
    </message>
    <message>
        <source>CFA pattern</source>
        <translation>CFA-Muster</translation>
    </message>
    <message>
        <source>CFA repeat pattern size</source>
        <translation>CFA-Mustergröße</translation>
    </message>
    <message>
        <source>Camera elevation angle</source>
        <translation>Kameraneigung</translation>
    </message>
    <message>
        <source>Camera owner name</source>
        <translation>Kamerabesitzer</translation>
    </message>
    <message>
        <source>Caption or abstract</source>
        <translation>Bildunterschrift</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Chromaticities</source>
        <translation>Farbwertanteile</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Stadt</translation>
    </message>
    <message>
        <source>Colour model</source>
        <translation>Farbmodell</translation>
    </message>
    <message>
        <source>Colour space</source>
        <translation>Farbraum</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Components configuration</source>
        <translation>Komponentenanordnung</translation>
    </message>
    <message>
        <source>Composite image</source>
        <translation>Zusammengesetztes Bild</translation>
    </message>
    <message>
        <source>Compressed bits per pixel</source>
        <translation>Komprimierte Bits pro Pixel</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Komprimierung</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>Content location code</source>
        <translation>Ortscode des Inhalts</translation>
    </message>
    <message>
        <source>Content location name</source>
        <translation>Ortsname des Inhalts</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>Copyright-Vermerk</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>Ländercode</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Erstellungszeit</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Bildnachweis</translation>
    </message>
    <message>
        <source>Custom rendered</source>
        <translation>Besondere Bildverarbeitung</translation>
    </message>
    <message>
        <source>Dilution of precision</source>
        <translation>Messgenauigkeit (DOP)</translation>
    </message>
    <message>
        <source>DPI height</source>
        <translation>DPI in der Höhe</translation>
    </message>
    <message>
        <source>DPI width</source>
        <translation>DPI in der Breite</translation>
    </message>
    <message>
        <source>Date created</source>
        <translation>Erstelldatum</translation>
    </message>
    <message>
        <source>Date (UTC)</source>
        <translation>Datum (UTC)</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Date and time, digitized</source>
        <translation>Datum und Uhrzeit, digitalisiert</translation>
    </message>
    <message>
        <source>Date and time, original</source>
        <translation>Datum und Uhrzeit, Aufnahme</translation>
    </message>
    <message>
        <source>Delay time</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source>Density unit</source>
        <translation>Einheit der Dichte</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Farbtiefe</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Destination bearing</source>
        <translation>Richtung zum Ziel</translation>
    </message>
    <message>
        <source>Destination bearing reference</source>
        <translation>Richtung zum Ziel (Bezug)</translation>
    </message>
    <message>
        <source>Destination distance</source>
        <translation>Entfernung zum Ziel</translation>
    </message>
    <message>
        <source>Destination distance reference</source>
        <translation>Entfernung zum Ziel (Bezug)</translation>
    </message>
    <message>
        <source>Destination latitude</source>
        <translation>Breitengrad des Ziels</translation>
    </message>
    <message>
        <source>Destination latitude reference</source>
        <translation>Breitengrad des Ziels (Bezug)</translation>
    </message>
    <message>
        <source>Destination longitude</source>
        <translation>Längengrad des Ziels</translation>
    </message>
    <message>
        <source>Destination longitude reference</source>
        <translation>Längengrad des Ziels (Bezug)</translation>
    </message>
    <message>
        <source>Device setting description</source>
        <translation>Geräteeinstellungen</translation>
    </message>
    <message>
        <source>Differential</source>
        <translation>Differenzialkorrektur</translation>
    </message>
    <message>
        <source>Digital creation date</source>
        <translation>Digitales Erstelldatum</translation>
    </message>
    <message>
        <source>Digital creation time</source>
        <translation>Digitale Erstellungszeit</translation>
    </message>
    <message>
        <source>Digital zoom ratio</source>
        <translation>Digitalzoom-Faktor</translation>
    </message>
    <message>
        <source>Disclaimer</source>
        <translation>Haftungsausschluss</translation>
    </message>
    <message>
        <source>Document name</source>
        <translation>Dokumentname</translation>
    </message>
    <message>
        <source>Edit status</source>
        <translation>Bearbeitungsstatus</translation>
    </message>
    <message>
        <source>Editorial update</source>
        <translation>Redaktionelle Aktualisierung</translation>
    </message>
    <message>
        <source>Exif version</source>
        <translation>Exif-Version</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Ablaufdatum</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Ablaufzeit</translation>
    </message>
    <message>
        <source>Exposure bias value</source>
        <translation>Belichtungskorrektur</translation>
    </message>
    <message>
        <source>Exposure index</source>
        <translation>Belichtungsindex</translation>
    </message>
    <message>
        <source>Exposure mode</source>
        <translation>Belichtungsmodus</translation>
    </message>
    <message>
        <source>Exposure program</source>
        <translation>Belichtungsprogramm</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>Belichtungszeit</translation>
    </message>
    <message>
        <source>F-number</source>
        <translation>Blendenzahl</translation>
    </message>
    <message>
        <source>File source</source>
        <translation>Dateiquelle</translation>
    </message>
    <message>
        <source>Fixture identifier</source>
        <translation>Kennung der Serie</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Blitz</translation>
    </message>
    <message>
        <source>Flash energy</source>
        <translation>Blitzenergie</translation>
    </message>
    <message>
        <source>FlashPix version</source>
        <translation>FlashPix-Version</translation>
    </message>
    <message>
        <source>Focal length in 35 mm film</source>
        <translation>Brennweite (Kleinbild)</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Brennweite</translation>
    </message>
    <message>
        <source>Focal plane resolution unit</source>
        <translation>Einheit der Sensorauflösung</translation>
    </message>
    <message>
        <source>Focal plane X resolution</source>
        <translation>Sensorauflösung X</translation>
    </message>
    <message>
        <source>Focal plane Y resolution</source>
        <translation>Sensorauflösung Y</translation>
    </message>
    <message>
        <source>GPS version</source>
        <translation>GPS-Version</translation>
    </message>
    <message>
        <source>Gain control</source>
        <translation>Verstärkung</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Horizontal positioning error</source>
        <translation>Horizontaler Ortungsfehler</translation>
    </message>
    <message>
        <source>Has alpha</source>
        <translation>Alphakanal</translation>
    </message>
    <message>
        <source>Has global colour map</source>
        <translation>Globale Farbtabelle</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>Überschrift</translation>
    </message>
    <message>
        <source>Host computer</source>
        <translation>Computer</translation>
    </message>
    <message>
        <source>Humidity</source>
        <translation>Luftfeuchtigkeit</translation>
    </message>
    <message>
        <source>ISO speed</source>
        <translation>ISO-Wert</translation>
    </message>
    <message>
        <source>ISO speed latitude yyy</source>
        <translation>ISO-Spielraum yyy</translation>
    </message>
    <message>
        <source>ISO speed latitude zzz</source>
        <translation>ISO-Spielraum zzz</translation>
    </message>
    <message>
        <source>ISO speed ratings</source>
        <translation>ISO-Empfindlichkeit</translation>
    </message>
    <message>
        <source>Image description</source>
        <translation>Bildbeschreibung</translation>
    </message>
    <message>
        <source>Image history</source>
        <translation>Bildgeschichte</translation>
    </message>
    <message>
        <source>Image ID</source>
        <translation>Bild-ID</translation>
    </message>
    <message>
        <source>Image height</source>
        <translation>Bildhöhe</translation>
    </message>
    <message>
        <source>Image number</source>
        <translation>Bildnummer</translation>
    </message>
    <message>
        <source>Image orientation</source>
        <translation>Bildausrichtung</translation>
    </message>
    <message>
        <source>Image type</source>
        <translation>Bildtyp</translation>
    </message>
    <message>
        <source>Unique image ID</source>
        <translation>Eindeutige Bild-ID</translation>
    </message>
    <message>
        <source>Image width</source>
        <translation>Bildbreite</translation>
    </message>
    <message>
        <source>Image direction</source>
        <translation>Blickrichtung</translation>
    </message>
    <message>
        <source>Image direction reference</source>
        <translation>Blickrichtung (Bezug)</translation>
    </message>
    <message>
        <source>Interlace</source>
        <translation>Interlace</translation>
    </message>
    <message>
        <source>Interlace type</source>
        <translation>Interlace-Typ</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Is progressive</source>
        <translation>Progressiv</translation>
    </message>
    <message>
        <source>JFIF version</source>
        <translation>JFIF-Version</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Language identifier</source>
        <translation>Sprachkennung</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Breitengrad</translation>
    </message>
    <message>
        <source>Latitude reference</source>
        <translation>Breitengrad (Bezug)</translation>
    </message>
    <message>
        <source>Lens make</source>
        <translation>Objektivhersteller</translation>
    </message>
    <message>
        <source>Lens model</source>
        <translation>Objektivmodell</translation>
    </message>
    <message>
        <source>Lens serial number</source>
        <translation>Seriennummer des Objektivs</translation>
    </message>
    <message>
        <source>Lens range</source>
        <translation>Objektivbereich</translation>
    </message>
    <message>
        <source>Light source</source>
        <translation>Lichtquelle</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Längengrad</translation>
    </message>
    <message>
        <source>Longitude reference</source>
        <translation>Längengrad (Bezug)</translation>
    </message>
    <message>
        <source>Loop count</source>
        <translation>Wiederholungen</translation>
    </message>
    <message>
        <source>Camera make</source>
        <translation>Kamerahersteller</translation>
    </message>
    <message>
        <source>Maker note</source>
        <translation>Herstellernotiz</translation>
    </message>
    <message>
        <source>Map datum</source>
        <translation>Geodätisches Datum</translation>
    </message>
    <message>
        <source>Largest aperture value</source>
        <translation>Größte Blende</translation>
    </message>
    <message>
        <source>Measure mode</source>
        <translation>Messmodus</translation>
    </message>
    <message>
        <source>Metering mode</source>
        <translation>Messmethode</translation>
    </message>
    <message>
        <source>Camera model</source>
        <translation>Kameramodell</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Rauschen</translation>
    </message>
    <message>
        <source>Opto-electric conversion function</source>
        <translation>Opto-elektronische Umwandlungsfunktion</translation>
    </message>
    <message>
        <source>Object attribute reference</source>
        <translation>Objektattribut</translation>
    </message>
    <message>
        <source>Object cycle</source>
        <translation>Objektzyklus</translation>
    </message>
    <message>
        <source>Object name</source>
        <translation>Objektname</translation>
    </message>
    <message>
        <source>Object type reference</source>
        <translation>Objekttyp</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>Time zone, digitized</source>
        <translation>Zeitzone, digitalisiert</translation>
    </message>
    <message>
        <source>Time zone, original</source>
        <translation>Zeitzone, Aufnahme</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Original transmission reference</source>
        <translation>Ursprüngliche Auftragskennung</translation>
    </message>
    <message>
        <source>Originating program</source>
        <translation>Erzeugendes Programm</translation>
    </message>
    <message>
        <source>Page name</source>
        <translation>Seitenname</translation>
    </message>
    <message>
        <source>Page number</source>
        <translation>Seitennummer</translation>
    </message>
    <message>
        <source>Photometric interpretation</source>
        <translation>Fotometrische Interpretation</translation>
    </message>
    <message>
        <source>Pixel height</source>
        <translation>Höhe in Pixeln</translation>
    </message>
    <message>
        <source>Pixel width</source>
        <translation>Breite in Pixeln</translation>
    </message>
    <message>
        <source>Pixel X dimension</source>
        <translation>Pixelmaß X</translation>
    </message>
    <message>
        <source>Pixel Y dimension</source>
        <translation>Pixelmaß Y</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Luftdruck</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Preview format</source>
        <translation>Vorschauformat</translation>
    </message>
    <message>
        <source>Preview version</source>
        <translation>Vorschauversion</translation>
    </message>
    <message>
        <source>Primary chromaticities</source>
        <translation>Farbwertanteile der Primärfarben</translation>
    </message>
    <message>
        <source>Processing method</source>
        <translation>Ortungsverfahren</translation>
    </message>
    <message>
        <source>Processing software</source>
        <translation>Bearbeitungssoftware</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>Profilname</translation>
    </message>
    <message>
        <source>Program version</source>
        <translation>Programmversion</translation>
    </message>
    <message>
        <source>Province or state</source>
        <translation>Bundesland oder Provinz</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Bewertung</translation>
    </message>
    <message>
        <source>Rating in %</source>
        <translation>Bewertung in %</translation>
    </message>
    <message>
        <source>Recommended exposure index</source>
        <translation>Empfohlener Belichtungsindex</translation>
    </message>
    <message>
        <source>Reference black and white</source>
        <translation>Schwarz- und Weißreferenz</translation>
    </message>
    <message>
        <source>Reference date</source>
        <translation>Referenzdatum</translation>
    </message>
    <message>
        <source>Reference number</source>
        <translation>Referenznummer</translation>
    </message>
    <message>
        <source>Reference service</source>
        <translation>Referenzdienst</translation>
    </message>
    <message>
        <source>Related sound file</source>
        <translation>Zugehörige Tondatei</translation>
    </message>
    <message>
        <source>Release date</source>
        <translation>Freigabedatum</translation>
    </message>
    <message>
        <source>Release time</source>
        <translation>Freigabezeit</translation>
    </message>
    <message>
        <source>Resolution unit</source>
        <translation>Einheit der Auflösung</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Satelliten</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Scene capture type</source>
        <translation>Aufnahmeart</translation>
    </message>
    <message>
        <source>Scene type</source>
        <translation>Szenentyp</translation>
    </message>
    <message>
        <source>Security classification</source>
        <translation>Geheimhaltungsstufe</translation>
    </message>
    <message>
        <source>Self-timer mode</source>
        <translation>Selbstauslöser</translation>
    </message>
    <message>
        <source>Sensing method</source>
        <translation>Sensortyp</translation>
    </message>
    <message>
        <source>Sensitivity type</source>
        <translation>Art der Empfindlichkeit</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Schärfe</translation>
    </message>
    <message>
        <source>Shutter speed value</source>
        <translation>Verschlusszeit</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Source exposure times of composite image</source>
        <translation>Belichtungszeiten der Quellbilder</translation>
    </message>
    <message>
        <source>Source image number of composite image</source>
        <translation>Anzahl der Quellbilder</translation>
    </message>
    <message>
        <source>Spatial frequency response</source>
        <translation>Ortsfrequenzgang</translation>
    </message>
    <message>
        <source>Special instructions</source>
        <translation>Besondere Anweisungen</translation>
    </message>
    <message>
        <source>Spectral sensitivity</source>
        <translation>Spektrale Empfindlichkeit</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Speed reference</source>
        <translation>Geschwindigkeit (Bezug)</translation>
    </message>
    <message>
        <source>Standard output sensitivity</source>
        <translation>Standard-Ausgabeempfindlichkeit</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Sub-location</source>
        <translation>Ortsteil</translation>
    </message>
    <message>
        <source>Subject area</source>
        <translation>Motivbereich</translation>
    </message>
    <message>
        <source>Subject distance range</source>
        <translation>Bereich des Motivabstands</translation>
    </message>
    <message>
        <source>Subject distance</source>
        <translation>Motivabstand</translation>
    </message>
    <message>
        <source>Subject location</source>
        <translation>Motivposition</translation>
    </message>
    <message>
        <source>Subject reference</source>
        <translation>Themenreferenz</translation>
    </message>
    <message>
        <source>Fraction of the second</source>
        <translation>Sekundenbruchteil</translation>
    </message>
    <message>
        <source>Fraction of the second, digitized</source>
        <translation>Sekundenbruchteil, digitalisiert</translation>
    </message>
    <message>
        <source>Fraction of the second, original</source>
        <translation>Sekundenbruchteil, Aufnahme</translation>
    </message>
    <message>
        <source>Supplemental category</source>
        <translation>Zusatzkategorie</translation>
    </message>
    <message>
        <source>TIFF/EP standard ID</source>
        <translation>TIFF/EP-Standard-ID</translation>
    </message>
    <message>
        <source>Target printer</source>
        <translation>Zieldrucker</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <source>Time created</source>
        <translation>Erstellungszeit</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Uhrzeit (UTC)</translation>
    </message>
    <message>
        <source>Time zone offset</source>
        <translation>Zeitzonenversatz</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Direction of movement</source>
        <translation>Bewegungsrichtung</translation>
    </message>
    <message>
        <source>Direction of movement reference</source>
        <translation>Bewegungsrichtung (Bezug)</translation>
    </message>
    <message>
        <source>Transfer function</source>
        <translation>Übertragungsfunktion</translation>
    </message>
    <message>
        <source>Urgency</source>
        <translation>Dringlichkeit</translation>
    </message>
    <message>
        <source>User comment</source>
        <translation>Benutzerkommentar</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Water depth</source>
        <translation>Wassertiefe</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Weißabgleich</translation>
    </message>
    <message>
        <source>White point</source>
        <translation>Weißpunkt</translation>
    </message>
    <message>
        <source>Writer or editor</source>
        <translation>Texter oder Redakteur</translation>
    </message>
    <message>
        <source>X density</source>
        <translation>Dichte X</translation>
    </message>
    <message>
        <source>Author (Windows)</source>
        <translation>Autor (Windows)</translation>
    </message>
    <message>
        <source>Comment (Windows)</source>
        <translation>Kommentar (Windows)</translation>
    </message>
    <message>
        <source>Keywords (Windows)</source>
        <translation>Stichwörter (Windows)</translation>
    </message>
    <message>
        <source>Subject (Windows)</source>
        <translation>Thema (Windows)</translation>
    </message>
    <message>
        <source>Title (Windows)</source>
        <translation>Titel (Windows)</translation>
    </message>
    <message>
        <source>X pixels per metre</source>
        <translation>Pixel pro Meter X</translation>
    </message>
    <message>
        <source>X position</source>
        <translation>Position X</translation>
    </message>
    <message>
        <source>X resolution</source>
        <translation>Auflösung X</translation>
    </message>
    <message>
        <source>YCbCr coefficients</source>
        <translation>YCbCr-Koeffizienten</translation>
    </message>
    <message>
        <source>YCbCr positioning</source>
        <translation>YCbCr-Positionierung</translation>
    </message>
    <message>
        <source>YCbCr subsampling</source>
        <translation>YCbCr-Unterabtastung</translation>
    </message>
    <message>
        <source>Y density</source>
        <translation>Dichte Y</translation>
    </message>
    <message>
        <source>Y pixels per metre</source>
        <translation>Pixel pro Meter Y</translation>
    </message>
    <message>
        <source>Y position</source>
        <translation>Position Y</translation>
    </message>
    <message>
        <source>Y resolution</source>
        <translation>Auflösung Y</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Firmware</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <source>Lens info</source>
        <translation>Objektivdaten</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Contributor</source>
        <translation>Mitwirkende</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Geltungsbereich</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Ersteller</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Herausgeber</translation>
    </message>
    <message>
        <source>Relation</source>
        <translation>Beziehung</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Rechte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Author&apos;s position</source>
        <translation>Position des Autors</translation>
    </message>
    <message>
        <source>Caption writer</source>
        <translation>Verfasser der Bildunterschrift</translation>
    </message>
    <message>
        <source>Colour mode</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>ICC profile</source>
        <translation>ICC-Profil</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Anweisungen</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Bundesland</translation>
    </message>
    <message>
        <source>Supplemental categories</source>
        <translation>Zusatzkategorien</translation>
    </message>
    <message>
        <source>Transmission reference</source>
        <translation>Auftragskennung</translation>
    </message>
    <message>
        <source>sRGB intent</source>
        <translation>sRGB-Renderpriorität</translation>
    </message>
    <message>
        <source>Create date</source>
        <translation>Erstellt am</translation>
    </message>
    <message>
        <source>Creator tool</source>
        <translation>Erstellt mit</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etikett</translation>
    </message>
    <message>
        <source>Metadata date</source>
        <translation>Metadaten geändert am</translation>
    </message>
    <message>
        <source>Modify date</source>
        <translation>Geändert am</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Kurzname</translation>
    </message>
    <message>
        <source>Document ID</source>
        <translation>Dokument-ID</translation>
    </message>
    <message>
        <source>Instance ID</source>
        <translation>Instanz-ID</translation>
    </message>
    <message>
        <source>Original document ID</source>
        <translation>ID des Originaldokuments</translation>
    </message>
    <message>
        <source>Rights marked</source>
        <translation>Urheberrechtlich geschützt</translation>
    </message>
    <message>
        <source>Rights owner</source>
        <translation>Rechteinhaber</translation>
    </message>
    <message>
        <source>Rights usage terms</source>
        <translation>Nutzungsbedingungen</translation>
    </message>
    <message>
        <source>Rights web statement</source>
        <translation>Rechteangabe im Web</translation>
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
        <translation>Menü leeren</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 ist nicht mehr vorhanden</translation>
    </message>
</context>
<context>
    <name>recipe</name>
    <message>
        <source>%1 has no transparency: transparent parts become %2</source>
        <translation>%1 kennt keine Transparenz: Transparente Bereiche werden %2</translation>
    </message>
    <message>
        <source>%1 has 8 bits per channel, the picture has more</source>
        <translation>%1 hat 8 Bit pro Kanal, das Bild mehr</translation>
    </message>
    <message>
        <source>%1 cannot hold the colour profile: colours become sRGB</source>
        <translation>%1 kann das Farbprofil nicht aufnehmen: Farben werden sRGB</translation>
    </message>
    <message>
        <source>%1 has at most 256 colours</source>
        <translation>%1 hat höchstens 256 Farben</translation>
    </message>
    <message>
        <source>Only the first picture is kept</source>
        <translation>Nur das erste Bild bleibt erhalten</translation>
    </message>
    <message>
        <source>The gain map is left out</source>
        <translation>Die Gain Map fällt weg</translation>
    </message>
    <message>
        <source>The motion picture is left out</source>
        <translation>Der Bewegtbildteil fällt weg</translation>
    </message>
    <message>
        <source>XMP beyond the first 64 KB is left out</source>
        <translation>XMP über die ersten 64 KB hinaus fällt weg</translation>
    </message>
    <message>
        <source>Signed content credentials are left out, since they do not match a changed file</source>
        <translation>Signierte Herkunftsnachweise fallen weg, da sie zu einer geänderten Datei nicht passen</translation>
    </message>
    <message>
        <source>Data after the end of the picture is left out</source>
        <translation>Daten hinter dem Ende des Bildes fallen weg</translation>
    </message>
    <message>
        <source>%1 holds metadata as XMP only, without maker notes</source>
        <translation>%1 nimmt Metadaten nur als XMP auf, ohne Herstellernotizen</translation>
    </message>
    <message>
        <source>%1 cannot hold metadata</source>
        <translation>%1 kann keine Metadaten aufnehmen</translation>
    </message>
    <message>
        <source>Other pictures in the file that are left out: %1</source>
        <translation>Weitere Bilder der Datei, die wegfallen: %1</translation>
    </message>
    <message>
        <source>Pictures of this type can be read but not written; choose another type</source>
        <translation>Bilder dieses Typs können gelesen, aber nicht geschrieben werden; wählen Sie einen anderen Typ</translation>
    </message>
    <message>
        <source>A picture of %1 × %2 pixels cannot be made</source>
        <translation>Ein Bild von %1 × %2 Pixeln ist nicht möglich</translation>
    </message>
    <message>
        <source>Nothing of the picture is left</source>
        <translation>Vom Bild bleibt nichts übrig</translation>
    </message>
    <message>
        <source>Data that the camera maker or a program keeps outside EXIF is left out</source>
        <translation>Daten des Kameraherstellers oder eines Programms, die nicht in EXIF stehen, fallen weg</translation>
    </message>
    <message>
        <source>a number above %1, to %2</source>
        <translation>eine Zahl über %1, bis %2</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>eine ganze Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>eine Zahl von %1 bis %2</translation>
    </message>
    <message>
        <source>%1, not %2</source>
        <translation>%1, nicht %2</translation>
    </message>
    <message>
        <source>a list of %1 numbers</source>
        <translation>eine Liste von %1 Zahlen</translation>
    </message>
    <message>
        <source>text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>a colour such as #ff8000 or #ff800080</source>
        <translation>eine Farbe wie #ff8000 oder #ff800080</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>ein Objekt</translation>
    </message>
    <message>
        <source>it cannot be used together with %1</source>
        <translation>es kann nicht zusammen mit %1 verwendet werden</translation>
    </message>
    <message>
        <source>one of %1 is missing</source>
        <translation>eines von %1 fehlt</translation>
    </message>
    <message>
        <source>unknown key</source>
        <translation>unbekannter Schlüssel</translation>
    </message>
    <message>
        <source>it applies only if &quot;fit&quot; is &quot;fill&quot; or &quot;pad&quot;</source>
        <translation>dies gilt nur mit „fit“ gleich „fill“ oder „pad“</translation>
    </message>
    <message>
        <source>it applies only if &quot;fit&quot; is &quot;pad&quot;</source>
        <translation>dies gilt nur mit „fit“ gleich „pad“</translation>
    </message>
    <message>
        <source>it applies only with &quot;box&quot;</source>
        <translation>dies gilt nur mit „box“</translation>
    </message>
    <message>
        <source>two numbers separated by a colon such as 3:2, not "%1"</source>
        <translation>zwei durch Doppelpunkt getrennte Zahlen wie 3:2, nicht „%1“</translation>
    </message>
    <message>
        <source>it is required with %1</source>
        <translation>es ist mit %1 erforderlich</translation>
    </message>
    <message>
        <source>it applies only with &quot;ratio&quot;</source>
        <translation>dies gilt nur mit „ratio“</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>es fehlt</translation>
    </message>
    <message>
        <source>it applies only with a rectangle</source>
        <translation>dies gilt nur mit einem Rechteck</translation>
    </message>
    <message>
        <source>there is no picture "%1"</source>
        <translation>es gibt kein Bild „%1“</translation>
    </message>
    <message>
        <source>a text that is not empty</source>
        <translation>ein Text, der nicht leer ist</translation>
    </message>
    <message>
        <source>there is no font "%1"</source>
        <translation>es gibt keine Schrift „%1“</translation>
    </message>
    <message>
        <source>it applies only with a text</source>
        <translation>dies gilt nur mit einem Text</translation>
    </message>
    <message>
        <source>sRGB, Display P3, Adobe RGB, gray or the path of an ICC file, not "%1"</source>
        <translation>sRGB, Display P3, Adobe RGB, gray oder der Pfad einer ICC-Datei, nicht „%1“</translation>
    </message>
    <message>
        <source>The pixels cannot stay as they are</source>
        <translation>Die Pixel können nicht bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>It does not fit into %1 bytes</source>
        <translation>Es passt nicht in %1 Byte</translation>
    </message>
    <message>
        <source>this type has no quality</source>
        <translation>dieser Typ hat keine Qualität</translation>
    </message>
    <message>
        <source>this type has no lossless option</source>
        <translation>diesen Typ gibt es nicht verlustfrei</translation>
    </message>
    <message>
        <source>a name that is not empty</source>
        <translation>ein Name, der nicht leer ist</translation>
    </message>
    <message>
        <source>a name without &quot;/&quot;; for folders, use &quot;folder&quot;</source>
        <translation>ein Name ohne „/“; für Ordner dient „folder“</translation>
    </message>
    <message>
        <source>the version of the recipe is missing</source>
        <translation>die Version des Rezepts fehlt</translation>
    </message>
    <message>
        <source>this recipe has version %1, but this program supports versions up to %2 only</source>
        <translation>dieses Rezept hat Version %1, dieses Programm unterstützt nur Versionen bis %2</translation>
    </message>
    <message>
        <source>at least one output</source>
        <translation>mindestens eine Ausgabe</translation>
    </message>
    <message>
        <source>the list of outputs is missing</source>
        <translation>die Liste der Ausgaben fehlt</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>a recipe must be a JSON object</source>
        <translation>ein Rezept muss ein JSON-Objekt sein</translation>
    </message>
    <message>
        <source>a recipe cannot be larger than 4 MB</source>
        <translation>ein Rezept kann nicht größer als 4 MB sein</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 ist schreibgeschützt</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>no free name found</source>
        <translation>kein freier Name gefunden</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>keine solche Datei</translation>
    </message>
    <message>
        <source>not an ordinary file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>file already exists</source>
        <translation>Datei ist schon vorhanden</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>es kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>not enough memory to show it</source>
        <translation>nicht genug Speicher, um es zu zeigen</translation>
    </message>
    <message>
        <source>no result</source>
        <translation>kein Ergebnis</translation>
    </message>
    <message>
        <source>outputs: exactly one</source>
        <translation>outputs: genau eine</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1 kann nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>a worker process ended while starting</source>
        <translation>ein Arbeitsprozess endete beim Start</translation>
    </message>
    <message>
        <source>it took longer than %1 seconds</source>
        <translation>es dauerte länger als %1 Sekunden</translation>
    </message>
    <message>
        <source>it needs more than %1 MB of memory</source>
        <translation>es braucht mehr als %1 MB Speicher</translation>
    </message>
    <message>
        <source>its reader crashed</source>
        <translation>sein Leseprogramm ist abgestürzt</translation>
    </message>
    <message>
        <source>the recipe cannot be run</source>
        <translation>das Rezept kann nicht ausgeführt werden</translation>
    </message>
    <message>
        <source>%1 with %2 megapixels needs more than 1.5 GB of memory; use at most %3, or choose another type</source>
        <translation>%1 mit %2 Megapixeln braucht mehr als 1,5 GB Speicher; verwenden Sie höchstens %3 oder einen anderen Typ</translation>
    </message>
    <message>
        <source>it is up to date</source>
        <translation>sie ist aktuell</translation>
    </message>
    <message>
        <source>reading was stopped because it took too long</source>
        <translation>das Lesen dauerte zu lange und wurde abgebrochen</translation>
    </message>
    <message>
        <source>writing was stopped because it took too long</source>
        <translation>das Schreiben dauerte zu lange und wurde abgebrochen</translation>
    </message>
    <message>
        <source>it contains half a character, %1</source>
        <translation>enthält ein halbes Zeichen, %1</translation>
    </message>
    <message>
        <source>it is there twice</source>
        <translation>steht zweimal da</translation>
    </message>
    <message>
        <source>Metadata of its sidecar file is left out, since the file is copied</source>
        <translation>Die Metadaten der Begleitdatei fehlen, da die Datei kopiert wird</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become white</source>
        <translation>%1 kennt keine Transparenz: Transparente Bereiche werden weiß</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become black</source>
        <translation>%1 kennt keine Transparenz: Transparente Bereiche werden schwarz</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become grey</source>
        <translation>%1 kennt keine Transparenz: Transparente Bereiche werden grau</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become red</source>
        <translation>%1 kennt keine Transparenz: Transparente Bereiche werden rot</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become green</source>
        <translation>%1 kennt keine Transparenz: Transparente Bereiche werden grün</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become blue</source>
        <translation>%1 kennt keine Transparenz: Transparente Bereiche werden blau</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become yellow</source>
        <translation>%1 kennt keine Transparenz: Transparente Bereiche werden gelb</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 ist kein Ordner</translation>
    </message>
    <message>
        <source>Its pixels are compressed in a way that is not supported</source>
        <translation>Die Pixel sind auf eine Weise komprimiert, die nicht unterstützt wird</translation>
    </message>
    <message>
        <source>no font is installed, so no text can be drawn</source>
        <translation>es ist keine Schrift installiert, daher kann kein Text gezeichnet werden</translation>
    </message>
</context>
<context>
    <name>recipe-action</name>
    <message>
        <source>Recipe</source>
        <translation>Rezept</translation>
    </message>
    <message numerus="yes">
        <source>Run Recipe on %n Pictures</source>
        <translation>
            <numerusform>Rezept auf %n Bild anwenden</numerusform>
            <numerusform>Rezept auf %n Bilder anwenden</numerusform>
        </translation>
    </message>
    <message>
        <source>Work on the recipe</source>
        <translation>Die Arbeit nach dem Rezept</translation>
    </message>
</context>
<context>
    <name>recipe-base</name>
    <message>
        <source>Folder of each picture</source>
        <translation>Ordner jedes Bildes</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>Save results to</source>
        <translation>Ergebnisse speichern in</translation>
    </message>
</context>
<context>
    <name>recipe-field</name>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Save results to</source>
        <translation>Ergebnisse speichern in</translation>
    </message>
</context>
<context>
    <name>recipe-files</name>
    <message>
        <source>Archive as lossless JPEG 2000</source>
        <translation>Archiv als verlustfreies JPEG 2000</translation>
    </message>
    <message>
        <source>Copyright watermark</source>
        <translation>Copyright-Wasserzeichen</translation>
    </message>
    <message>
        <source>Mail under 1 MB</source>
        <translation>E-Mail unter 1 MB</translation>
    </message>
    <message>
        <source>Print 10 × 15 at 300 dpi</source>
        <translation>Druck 10 × 15 mit 300 dpi</translation>
    </message>
    <message>
        <source>Square on white</source>
        <translation>Quadrat auf Weiß</translation>
    </message>
    <message>
        <source>Web gallery</source>
        <translation>Web-Galerie</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Geben Sie einen Namen ein.</translation>
    </message>
    <message>
        <source>A name cannot contain a slash or begin with a dot.</source>
        <translation>Ein Name darf keinen Schrägstrich enthalten und nicht mit einem Punkt beginnen.</translation>
    </message>
    <message>
        <source>A recipe named “%1” already exists.</source>
        <translation>Es gibt schon ein Rezept „%1“.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 is not a recipe: %2</source>
        <translation>%1 ist kein Rezept: %2</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash.</source>
        <translation>%1 konnte nicht in den Papierkorb verschoben werden.</translation>
    </message>
</context>
<context>
    <name>recipe-head</name>
    <message>
        <source>New recipe</source>
        <translation>Neues Rezept</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, geändert</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>Opened from %1</source>
        <translation>Geöffnet aus %1</translation>
    </message>
    <message>
        <source>New Recipe</source>
        <translation>Neues Rezept</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Speichern unter …</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Umbenennen …</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Löschen …</translation>
    </message>
    <message>
        <source>Restore Unsaved Changes</source>
        <translation>Nicht gespeicherte Änderungen wiederherstellen</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>The changes to “%1” were not saved. Its menu can restore them.</source>
        <translation>Die Änderungen an „%1“ wurden nicht gespeichert. Das Menü des Rezepts stellt sie wieder her.</translation>
    </message>
    <message>
        <source>My recipe</source>
        <translation>Mein Rezept</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Delete recipe</source>
        <translation>Rezept löschen</translation>
    </message>
    <message>
        <source>Move the recipe “%1” to the trash?</source>
        <translation>Das Rezept „%1“ in den Papierkorb verschieben?</translation>
    </message>
    <message>
        <source>Your current settings are kept.</source>
        <translation>Ihre aktuellen Einstellungen bleiben erhalten.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Export the recipe</source>
        <translation>Das Rezept exportieren</translation>
    </message>
    <message>
        <source>Recipe exported as %1</source>
        <translation>Rezept exportiert als %1</translation>
    </message>
    <message>
        <source>Import a recipe</source>
        <translation>Ein Rezept importieren</translation>
    </message>
</context>
<context>
    <name>recipe-pane</name>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Rezept</translation>
    </message>
    <message>
        <source>Search operations</source>
        <translation>Bearbeitungen suchen</translation>
    </message>
    <message>
        <source>It reads:</source>
        <translation>Es liest:</translation>
    </message>
    <message>
        <source>It writes to:</source>
        <translation>Es schreibt nach:</translation>
    </message>
</context>
<context>
    <name>recipe-plan</name>
    <message>
        <source>%1 of %2 files: %3</source>
        <translation>%1 von %2 Dateien: %3</translation>
    </message>
    <message>
        <source>replaces original</source>
        <translation>ersetzt Original</translation>
    </message>
    <message>
        <source>replaces %1</source>
        <translation>ersetzt %1</translation>
    </message>
    <message>
        <source>would be written</source>
        <translation>würde geschrieben</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>check the recipe</source>
        <translation>Rezept prüfen</translation>
    </message>
    <message>
        <source>not a readable picture</source>
        <translation>kein lesbares Bild</translation>
    </message>
</context>
<context>
    <name>recipe-run</name>
    <message numerus="yes">
        <source>Dry run: %n files would be written</source>
        <translation>
            <numerusform>Probelauf: %n Datei würde geschrieben</numerusform>
            <numerusform>Probelauf: %n Dateien würden geschrieben</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>nichts wurde geschrieben</translation>
    </message>
    <message>
        <source>%1 of %2 files: %3</source>
        <translation>%1 von %2 Dateien: %3</translation>
    </message>
    <message numerus="yes">
        <source>%n files made</source>
        <translation>
            <numerusform>%n Datei erstellt</numerusform>
            <numerusform>%n Dateien erstellt</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 not supported</source>
        <translation>%1 nicht unterstützt</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>%1 übersprungen</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 geschrieben</translation>
    </message>
    <message>
        <source>Cancelled:</source>
        <translation>Abgebrochen:</translation>
    </message>
</context>
<context>
    <name>recipe-step</name>
    <message>
        <source>Check what this recipe reads and writes, and allow it first.</source>
        <translation>Prüfen Sie zuerst, was dieses Rezept liest und schreibt, und erlauben Sie es.</translation>
    </message>
</context>
<context>
    <name>recipe-words</name>
    <message>
        <source>Resize</source>
        <translation>Skalieren</translation>
    </message>
    <message>
        <source>To a side, a percentage, megapixels or a box</source>
        <translation>Auf Seitenlänge, Prozentsatz, Megapixel oder einen Rahmen</translation>
    </message>
    <message>
        <source>scale small large pixels size</source>
        <translation>skalieren klein groß pixel größe</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>To a ratio or size, or trim the edges</source>
        <translation>Auf Verhältnis oder Größe, oder Ränder beschneiden</translation>
    </message>
    <message>
        <source>cut trim ratio</source>
        <translation>schneiden zuschneiden verhältnis</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>By any angle, clockwise</source>
        <translation>Um einen Winkel, im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>turn angle straighten</source>
        <translation>drehen winkel begradigen</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Horizontally or vertically</source>
        <translation>Horizontal oder vertikal</translation>
    </message>
    <message>
        <source>mirror</source>
        <translation>spiegeln</translation>
    </message>
    <message>
        <source>Round corners</source>
        <translation>Ecken abrunden</translation>
    </message>
    <message>
        <source>Rectangle, circle or ellipse, with a border</source>
        <translation>Rechteck, Kreis oder Ellipse, mit Rand</translation>
    </message>
    <message>
        <source>radius circle</source>
        <translation>radius kreis</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Fills transparent parts</source>
        <translation>Füllt transparente Bereiche</translation>
    </message>
    <message>
        <source>colour pattern transparent</source>
        <translation>farbe muster durchsichtig</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Umrandung</translation>
    </message>
    <message>
        <source>Around the picture on all sides</source>
        <translation>Um das Bild, auf allen Seiten</translation>
    </message>
    <message>
        <source>border edge</source>
        <translation>rand kante</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Wasserzeichen</translation>
    </message>
    <message>
        <source>A text or a picture over the picture</source>
        <translation>Ein Text oder ein Bild über dem Bild</translation>
    </message>
    <message>
        <source>copyright logo text stamp</source>
        <translation>copyright logo text stempel</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Schärfen</translation>
    </message>
    <message>
        <source>For the size at that point</source>
        <translation>Für die Größe an dieser Stelle</translation>
    </message>
    <message>
        <source>crisp unsharp</source>
        <translation>scharf unscharf</translation>
    </message>
    <message>
        <source>Colour profile</source>
        <translation>Farbprofil</translation>
    </message>
    <message>
        <source>Convert colours to sRGB, Display P3 or another</source>
        <translation>Farben nach sRGB, Display P3 oder anderem umwandeln</translation>
    </message>
    <message>
        <source>icc grey convert</source>
        <translation>icc grau umwandeln</translation>
    </message>
    <message>
        <source>Width %1</source>
        <translation>Breite %1</translation>
    </message>
    <message>
        <source>Height %1</source>
        <translation>Höhe %1</translation>
    </message>
    <message>
        <source>Longest side %1</source>
        <translation>Längste Seite %1</translation>
    </message>
    <message>
        <source>Shortest side %1</source>
        <translation>Kürzeste Seite %1</translation>
    </message>
    <message>
        <source>Box %1</source>
        <translation>Rahmen %1</translation>
    </message>
    <message>
        <source>Trim %1%</source>
        <translation>%1 % beschneiden</translation>
    </message>
    <message>
        <source>Trim %1 px</source>
        <translation>%1 px beschneiden</translation>
    </message>
    <message>
        <source>at the focus of attention</source>
        <translation>am Blickfang</translation>
    </message>
    <message>
        <source>no file chosen</source>
        <translation>keine Datei gewählt</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>Oben und unten</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Links und rechts</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Radius %1</source>
        <translation>Radius %1</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Gering</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>lossless</source>
        <translation>verlustfrei</translation>
    </message>
    <message>
        <source>quality %1</source>
        <translation>Qualität %1</translation>
    </message>
    <message>
        <source>at most %1 kB</source>
        <translation>höchstens %1 kB</translation>
    </message>
    <message>
        <source>Output %1: %2</source>
        <translation>Ausgabe %1: %2</translation>
    </message>
</context>
<context>
    <name>recipes</name>
    <message>
        <source>Dry Run: %1</source>
        <translation>Probelauf: %1</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n Originals</source>
        <translation>
            <numerusform>%n Original ersetzen</numerusform>
            <numerusform>%n Originale ersetzen</numerusform>
        </translation>
    </message>
    <message>
        <source>Originals are replaced by their results.</source>
        <translation>Originale werden durch ihre Ergebnisse ersetzt.</translation>
    </message>
    <message numerus="yes">
        <source>%n files are replaced.</source>
        <translation>
            <numerusform>%n Datei wird ersetzt.</numerusform>
            <numerusform>%n Dateien werden ersetzt.</numerusform>
        </translation>
    </message>
    <message>
        <source>New names</source>
        <translation>Neue Namen</translation>
    </message>
    <message>
        <source>New sizes</source>
        <translation>Neue Größen</translation>
    </message>
</context>
<context>
    <name>recovered</name>
    <message numerus="yes">
        <source>%n files have their new names</source>
        <translation>
            <numerusform>%n Datei hat ihren neuen Namen</numerusform>
            <numerusform>%n Dateien haben ihre neuen Namen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files restored</source>
        <translation>
            <numerusform>%n Datei wiederhergestellt</numerusform>
            <numerusform>%n Dateien wiederhergestellt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files not started</source>
        <translation>
            <numerusform>%n Datei nicht begonnen</numerusform>
            <numerusform>%n Dateien nicht begonnen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was interrupted and has been cleaned up</source>
        <translation>„%1“ wurde unterbrochen und ist bereinigt</translation>
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
        <translation>Umbenennen</translation>
    </message>
    <message numerus="yes">
        <source>Rename %n Folders</source>
        <translation>
            <numerusform>%n Ordner umbenennen</numerusform>
            <numerusform>%n Ordner umbenennen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rename %n Files</source>
        <translation>
            <numerusform>%n Datei umbenennen</numerusform>
            <numerusform>%n Dateien umbenennen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders renamed</source>
        <translation>
            <numerusform>%n Ordner umbenannt</numerusform>
            <numerusform>%n Ordner umbenannt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files renamed</source>
        <translation>
            <numerusform>%n Datei umbenannt</numerusform>
            <numerusform>%n Dateien umbenannt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n names restored</source>
        <translation>
            <numerusform>%n Name wiederhergestellt</numerusform>
            <numerusform>%n Namen wiederhergestellt</numerusform>
        </translation>
    </message>
    <message>
        <source>Renaming</source>
        <translation>Das Umbenennen</translation>
    </message>
</context>
<context>
    <name>rename-card</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Increment</source>
        <translation>Schrittweite</translation>
    </message>
    <message>
        <source>Restart counter</source>
        <translation>Zähler neu starten</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>For each folder</source>
        <translation>Für jeden Ordner</translation>
    </message>
    <message>
        <source>For each date taken</source>
        <translation>Für jeden Aufnahmetag</translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Schreibweise</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>kleinbuchstaben</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>GROSSBUCHSTABEN</translation>
    </message>
    <message>
        <source>Words With Capitals</source>
        <translation>Wörter Groß Beginnen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>With</source>
        <translation>Durch</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Dahinter</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>from the start</source>
        <translation>vom Anfang</translation>
    </message>
    <message>
        <source>from the end</source>
        <translation>vom Ende</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Davor</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Von</translation>
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
        <translation>Ab dem</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Trennzeichen</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>Join with</source>
        <translation>Verbinden mit</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>letters and digits</source>
        <translation>Buchstaben und Ziffern</translation>
    </message>
    <message>
        <source>letters only</source>
        <translation>nur Buchstaben</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Accents</source>
        <translation>Akzente</translation>
    </message>
    <message>
        <source>as one letter (NFC)</source>
        <translation>als ein Zeichen (NFC)</translation>
    </message>
    <message>
        <source>as separate marks (NFD)</source>
        <translation>als eigenes Zeichen (NFD)</translation>
    </message>
    <message>
        <source>Names that</source>
        <translation>Namen, die</translation>
    </message>
    <message>
        <source>contain</source>
        <translation>enthalten</translation>
    </message>
    <message>
        <source>begin with</source>
        <translation>beginnen mit</translation>
    </message>
    <message>
        <source>end with</source>
        <translation>enden mit</translation>
    </message>
    <message>
        <source>all, or 2,1 or -1</source>
        <translation>alle oder 2,1 oder -1</translation>
    </message>
    <message>
        <source>{taken} lake {counter:001}</source>
        <translation>{taken} See {counter:001}</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Endung</translation>
    </message>
    <message>
        <source>Name and extension</source>
        <translation>Name und Endung</translation>
    </message>
    <message numerus="yes">
        <source>%n names are too short and stay unchanged.</source>
        <translation>
            <numerusform>%n Name ist zu kurz und bleibt unverändert.</numerusform>
            <numerusform>%n Namen sind zu kurz und bleiben unverändert.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>rename-pane</name>
    <message>
        <source>Holiday 2026</source>
        <translation>Urlaub 2026</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Search steps</source>
        <translation>Schritte suchen</translation>
    </message>
    <message>
        <source>Search values</source>
        <translation>Werte suchen</translation>
    </message>
    <message>
        <source>You can use up to 30 steps.</source>
        <translation>Sie können bis zu 30 Schritte verwenden.</translation>
    </message>
    <message>
        <source>Fix the marked step to see the new names.</source>
        <translation>Korrigieren Sie den markierten Schritt, um die neuen Namen zu sehen.</translation>
    </message>
    <message numerus="yes">
        <source>The counter needs more digits: the last number has %n.</source>
        <translation>
            <numerusform>Der Zähler braucht mehr Stellen: die letzte Zahl hat %n.</numerusform>
            <numerusform>Der Zähler braucht mehr Stellen: die letzte Zahl hat %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use %n Digits</source>
        <translation>
            <numerusform>%n Stelle verwenden</numerusform>
            <numerusform>%n Stellen verwenden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>rename-presets</name>
    <message>
        <source>Date and place</source>
        <translation>Datum und Ort</translation>
    </message>
    <message>
        <source>place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Clean for the web</source>
        <translation>Webtauglich</translation>
    </message>
    <message>
        <source>Lower-case extensions</source>
        <translation>Endungen klein</translation>
    </message>
    <message>
        <source>Date prefix</source>
        <translation>Datum als Präfix</translation>
    </message>
    <message>
        <source>Number suffix</source>
        <translation>Nummer als Suffix</translation>
    </message>
</context>
<context>
    <name>rename-step</name>
    <message>
        <source>files: %1</source>
        <translation>Dateien: %1</translation>
    </message>
    <message>
        <source>folders: %1</source>
        <translation>Ordner: %1</translation>
    </message>
    <message>
        <source>no date taken</source>
        <translation>kein Aufnahmedatum</translation>
    </message>
    <message>
        <source>no date created</source>
        <translation>kein Erstelldatum</translation>
    </message>
    <message>
        <source>no date changed</source>
        <translation>kein Änderungsdatum</translation>
    </message>
    <message>
        <source>no value for “%1”</source>
        <translation>kein Wert für „%1“</translation>
    </message>
    <message>
        <source>undated</source>
        <translation>undatiert</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>%1: “%2”</source>
        <translation>%1: „%2“</translation>
    </message>
    <message>
        <source>separates a letter from its accent</source>
        <translation>trennt einen Buchstaben von seinem Akzent</translation>
    </message>
    <message>
        <source>would split a character</source>
        <translation>würde ein Zeichen zerteilen</translation>
    </message>
</context>
<context>
    <name>replacing</name>
    <message>
        <source>Replaced</source>
        <translation>Ersetzt</translation>
    </message>
</context>
<context>
    <name>resize-action</name>
    <message>
        <source>Resize</source>
        <translation>Skalieren</translation>
    </message>
    <message numerus="yes">
        <source>Resize %n Pictures</source>
        <translation>
            <numerusform>%n Bild skalieren</numerusform>
            <numerusform>%n Bilder skalieren</numerusform>
        </translation>
    </message>
    <message>
        <source>Resizing</source>
        <translation>Das Skalieren</translation>
    </message>
</context>
<context>
    <name>resize-pane</name>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Longest side</source>
        <translation>Längste Seite</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Fill (crops)</source>
        <translation>Füllen (beschneidet)</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Strecken</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Prozentsatz</translation>
    </message>
    <message>
        <source>Fit inside</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Pad</source>
        <translation>Auffüllen</translation>
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
        <translation>Mail 1024</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>Mail</translation>
    </message>
    <message>
        <source>Square 1080</source>
        <translation>Quadrat 1080</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>Print 15 × 10 cm, 300 dpi</source>
        <translation>Druck 15 × 10 cm, 300 dpi</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Druck</translation>
    </message>
    <message>
        <source>Print 10 × 15 cm, 300 dpi</source>
        <translation>Druck 10 × 15 cm, 300 dpi</translation>
    </message>
    <message>
        <source>Contact thumbnails</source>
        <translation>Vorschaubilder für Kontaktbogen</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Vorschaubilder</translation>
    </message>
</context>
<context>
    <name>resize-step</name>
    <message>
        <source>Resized</source>
        <translation>Skaliert</translation>
    </message>
    <message>
        <source>width %1</source>
        <translation>Breite %1</translation>
    </message>
    <message>
        <source>height %1</source>
        <translation>Höhe %1</translation>
    </message>
    <message>
        <source>longest side %1</source>
        <translation>längste Seite %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>box %1</source>
        <translation>Rahmen %1</translation>
    </message>
    <message>
        <source>Enter a whole number from 1 to %1.</source>
        <translation>Geben Sie eine ganze Zahl von 1 bis %1 ein.</translation>
    </message>
    <message>
        <source>Enter a number above 0, up to %1.</source>
        <translation>Geben Sie eine Zahl über 0 bis %1 ein.</translation>
    </message>
</context>
<context>
    <name>resolution-row</name>
    <message>
        <source>Same as the picture</source>
        <translation>Wie im Bild</translation>
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
        <translation>andere Systeme behalten sich den Namen %1 vor</translation>
    </message>
    <message>
        <source>other systems do not allow %1</source>
        <translation>andere Systeme erlauben kein %1</translation>
    </message>
    <message>
        <source>contains a control character</source>
        <translation>enthält ein Steuerzeichen</translation>
    </message>
    <message>
        <source>starts with a space</source>
        <translation>beginnt mit einem Leerzeichen</translation>
    </message>
    <message>
        <source>other systems do not allow a trailing space or dot</source>
        <translation>andere Systeme erlauben kein Leerzeichen und keinen Punkt am Ende</translation>
    </message>
</context>
<context>
    <name>room</name>
    <message>
        <source>The files need %1, but %3 has only %2 free.</source>
        <translation>Die Dateien brauchen %1, aber %3 hat nur %2 frei.</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 frei</translation>
    </message>
    <message>
        <source>%1 to be written</source>
        <translation>%1 zu schreiben</translation>
    </message>
    <message>
        <source>not enough space (needs %1, %2 free)</source>
        <translation>nicht genug Platz (braucht %1, frei %2)</translation>
    </message>
    <message>
        <source>This run needs about %1, but %3 has only %2 free.</source>
        <translation>Dieser Durchlauf braucht etwa %1, aber %3 hat nur %2 frei.</translation>
    </message>
    <message>
        <source>the disk of the trash</source>
        <translation>der Datenträger des Papierkorbs</translation>
    </message>
</context>
<context>
    <name>round-action</name>
    <message>
        <source>Round Corners</source>
        <translation>Ecken abrunden</translation>
    </message>
    <message>
        <source>Rounding corners</source>
        <translation>Das Abrunden der Ecken</translation>
    </message>
    <message numerus="yes">
        <source>Round the Corners of %n Pictures</source>
        <translation>
            <numerusform>Ecken von %n Bild abrunden</numerusform>
            <numerusform>Ecken von %n Bildern abrunden</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>round-pane</name>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
</context>
<context>
    <name>round-presets</name>
    <message>
        <source>Soft corners</source>
        <translation>Weiche Ecken</translation>
    </message>
    <message>
        <source>Round corners on white</source>
        <translation>Runde Ecken auf Weiß</translation>
    </message>
    <message>
        <source>Circle portrait</source>
        <translation>Rundes Porträt</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
</context>
<context>
    <name>round-step</name>
    <message>
        <source>Rounded</source>
        <translation>Abgerundet</translation>
    </message>
    <message>
        <source>corners of %1 px</source>
        <translation>Ecken von %1 px</translation>
    </message>
    <message>
        <source>circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>on %1</source>
        <translation>auf %1</translation>
    </message>
    <message>
        <source>border of %1 px</source>
        <translation>Rand von %1 px</translation>
    </message>
    <message>
        <source>Enter a radius from 0 to %1.</source>
        <translation>Geben Sie einen Radius von 0 bis %1 ein.</translation>
    </message>
    <message>
        <source>Enter a border width from 0 to %1.</source>
        <translation>Geben Sie eine Randbreite von 0 bis %1 ein.</translation>
    </message>
    <message>
        <source>the border would cover the whole picture</source>
        <translation>der Rand würde das ganze Bild bedecken</translation>
    </message>
    <message>
        <source>The circle is cut from the square in the middle.</source>
        <translation>Der Kreis wird aus dem Quadrat in der Mitte geschnitten.</translation>
    </message>
</context>
<context>
    <name>run-base</name>
    <message>
        <source>Planning…</source>
        <translation>Wird geplant …</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>angehalten</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>Bericht speichern</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Report saved as %1</source>
        <translation>Bericht gespeichert als %1</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>wird angehalten</translation>
    </message>
</context>
<context>
    <name>run-signs</name>
    <message>
        <source>When done: nothing</source>
        <translation>Danach: nichts</translation>
    </message>
    <message>
        <source>When done: open folder</source>
        <translation>Danach: Ordner öffnen</translation>
    </message>
    <message>
        <source>When done: close</source>
        <translation>Danach: schließen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: started</source>
        <translation>%1: gestartet</translation>
    </message>
</context>
<context>
    <name>save-as</name>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Choose a picture to save.</source>
        <translation>Wählen Sie ein Bild zum Speichern.</translation>
    </message>
    <message>
        <source>Saved %1, %2</source>
        <translation>%1 gespeichert, %2</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>“%1” could not be written.</source>
        <translation>„%1“ konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Wait until the picture has been saved.</source>
        <translation>Warten Sie, bis das Bild gespeichert ist.</translation>
    </message>
    <message>
        <source>Saving %1…</source>
        <translation>%1 wird gespeichert …</translation>
    </message>
    <message>
        <source>Save Picture As</source>
        <translation>Bild speichern unter</translation>
    </message>
</context>
<context>
    <name>script::ScriptEngine</name>
    <message>
        <source>Cannot read %1: no such file</source>
        <translation>%1 kann nicht gelesen werden: keine solche Datei</translation>
    </message>
    <message>
        <source>This is not a function of a script</source>
        <translation>Das ist keine Funktion eines Skripts</translation>
    </message>
</context>
<context>
    <name>settings-watch</name>
    <message>
        <source>Settings cannot be saved. Your changes apply until you quit.</source>
        <translation>Einstellungen können nicht gespeichert werden. Ihre Änderungen gelten bis zum Beenden.</translation>
    </message>
</context>
<context>
    <name>sheet-plan</name>
    <message>
        <source>not a readable picture</source>
        <translation>kein lesbares Bild</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>bereit</translation>
    </message>
</context>
<context>
    <name>sheet-run</name>
    <message>
        <source>Cancelled before the first page. Nothing was written.</source>
        <translation>Vor der ersten Seite abgebrochen. Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>Dry run: %1 would be written</source>
        <translation>Probelauf: %1 würde geschrieben</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n Seite</numerusform>
            <numerusform>%n Seiten</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was written.</source>
        <translation>Abgebrochen. Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 geschrieben</translation>
    </message>
</context>
<context>
    <name>sheets</name>
    <message>
        <source>Dry Run: %1</source>
        <translation>Probelauf: %1</translation>
    </message>
    <message>
        <source>%1 is replaced.</source>
        <translation>%1 wird ersetzt.</translation>
    </message>
    <message>
        <source>As %1</source>
        <translation>Als %1</translation>
    </message>
    <message>
        <source>Dry run: write nothing</source>
        <translation>Probelauf: nichts schreiben</translation>
    </message>
</context>
<context>
    <name>site-run</name>
    <message>
        <source>done, waiting for the page</source>
        <translation>fertig, wartet auf die Seite</translation>
    </message>
    <message>
        <source>not on the page</source>
        <translation>nicht auf der Seite</translation>
    </message>
    <message>
        <source>no picture could be processed</source>
        <translation>es konnte kein Bild verarbeitet werden</translation>
    </message>
    <message>
        <source>cancelled, the page was not made</source>
        <translation>abgebrochen, die Seite wurde nicht erzeugt</translation>
    </message>
    <message>
        <source>the page was not made: %1</source>
        <translation>die Seite wurde nicht erzeugt: %1</translation>
    </message>
    <message>
        <source>The page was not made: %1</source>
        <translation>Die Seite wurde nicht erzeugt: %1</translation>
    </message>
</context>
<context>
    <name>sites</name>
    <message>
        <source>The page that Quorlin made in this folder is updated.</source>
        <translation>Die Seite von Quorlin in diesem Ordner wird aktualisiert.</translation>
    </message>
</context>
<context>
    <name>sort-action</name>
    <message numerus="yes">
        <source>Sort %n Files into Folders</source>
        <translation>
            <numerusform>%n Datei in Ordner sortieren</numerusform>
            <numerusform>%n Dateien in Ordner sortieren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Copy %n Files into Folders</source>
        <translation>
            <numerusform>%n Datei in Ordner kopieren</numerusform>
            <numerusform>%n Dateien in Ordner kopieren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Link %n Files into Folders</source>
        <translation>
            <numerusform>%n Verknüpfung in Ordnern anlegen</numerusform>
            <numerusform>%n Verknüpfungen in Ordnern anlegen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files sorted</source>
        <translation>
            <numerusform>%n Datei sortiert</numerusform>
            <numerusform>%n Dateien sortiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files copied</source>
        <translation>
            <numerusform>%n Datei kopiert</numerusform>
            <numerusform>%n Dateien kopiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n links created</source>
        <translation>
            <numerusform>%n Verknüpfung angelegt</numerusform>
            <numerusform>%n Verknüpfungen angelegt</numerusform>
        </translation>
    </message>
    <message>
        <source>Sort into Folders</source>
        <translation>In Ordner sortieren</translation>
    </message>
    <message numerus="yes">
        <source>%n files restored</source>
        <translation>
            <numerusform>%n Datei wiederhergestellt</numerusform>
            <numerusform>%n Dateien wiederhergestellt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files moved</source>
        <translation>
            <numerusform>%n Datei verschoben</numerusform>
            <numerusform>%n Dateien verschoben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files linked</source>
        <translation>
            <numerusform>%n Datei verknüpft</numerusform>
            <numerusform>%n Dateien verknüpft</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 into %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n Ordner</numerusform>
            <numerusform>%n Ordner</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders made</source>
        <translation>
            <numerusform>%n Ordner angelegt</numerusform>
            <numerusform>%n Ordner angelegt</numerusform>
        </translation>
    </message>
    <message>
        <source>Sorting</source>
        <translation>Das Einsortieren</translation>
    </message>
    <message>
        <source>Into</source>
        <translation>Ziel</translation>
    </message>
</context>
<context>
    <name>sort-pane</name>
    <message>
        <source>Put in folder</source>
        <translation>In Ordner legen</translation>
    </message>
    <message>
        <source>Use date created</source>
        <translation>Erstelldatum nehmen</translation>
    </message>
    <message>
        <source>Use date changed</source>
        <translation>Änderungsdatum nehmen</translation>
    </message>
    <message>
        <source>Do not move</source>
        <translation>Nicht verschieben</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verknüpfen</translation>
    </message>
    <message>
        <source>Keep both (add a number)</source>
        <translation>Beide behalten (mit Nummer)</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>The originals stay where they are.</source>
        <translation>Die Originale bleiben, wo sie sind.</translation>
    </message>
    <message>
        <source>Links point to the files where they are now.</source>
        <translation>Verknüpfungen verweisen auf den jetzigen Ort der Dateien.</translation>
    </message>
    <message>
        <source>Custom pattern</source>
        <translation>Eigenes Muster</translation>
    </message>
    <message>
        <source>No more folders</source>
        <translation>Keine weiteren Ordner</translation>
    </message>
    <message>
        <source>Folder of each picture</source>
        <translation>Ordner jedes Bildes</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>Sort into</source>
        <translation>Sortieren in</translation>
    </message>
    <message>
        <source>%1 has no date and stays.</source>
        <translation>%1 hat kein Datum und bleibt.</translation>
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
        <translation>Nach Aufnahmejahr und -tag</translation>
    </message>
    <message>
        <source>By year and month taken</source>
        <translation>Nach Aufnahmejahr und -monat</translation>
    </message>
    <message>
        <source>By day changed</source>
        <translation>Nach Tag der Änderung</translation>
    </message>
    <message>
        <source>By camera and day taken</source>
        <translation>Nach Kamera und Aufnahmetag</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Nach Typ</translation>
    </message>
    <message>
        <source>By orientation</source>
        <translation>Nach Ausrichtung</translation>
    </message>
    <message>
        <source>By file size</source>
        <translation>Nach Dateigröße</translation>
    </message>
    <message>
        <source>By start of name</source>
        <translation>Nach Namensanfang</translation>
    </message>
</context>
<context>
    <name>sort-step</name>
    <message>
        <source>Undated</source>
        <translation>Ohne Datum</translation>
    </message>
    <message>
        <source>move into %1</source>
        <translation>verschieben nach %1</translation>
    </message>
    <message>
        <source>copy into %1</source>
        <translation>kopieren nach %1</translation>
    </message>
    <message>
        <source>link into %1</source>
        <translation>verknüpfen in %1</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>Choose a folder to sort into.</source>
        <translation>Wählen Sie einen Ordner, in den sortiert wird.</translation>
    </message>
    <message>
        <source>no date taken</source>
        <translation>kein Aufnahmedatum</translation>
    </message>
    <message>
        <source>by date created</source>
        <translation>nach Erstelldatum</translation>
    </message>
    <message>
        <source>by date changed</source>
        <translation>nach Änderungsdatum</translation>
    </message>
    <message>
        <source>no date taken: not moved</source>
        <translation>kein Aufnahmedatum: nicht verschoben</translation>
    </message>
    <message>
        <source>a file already has this folder name: %1</source>
        <translation>eine Datei heißt schon so wie der Ordner: %1</translation>
    </message>
    <message>
        <source>The file has no date taken.</source>
        <translation>Die Datei hat kein Aufnahmedatum.</translation>
    </message>
    <message>
        <source>It is already in a folder with the right name.</source>
        <translation>Die Datei ist schon in einem Ordner mit dem richtigen Namen.</translation>
    </message>
</context>
<context>
    <name>sort-tree</name>
    <message>
        <source>No file will be moved.</source>
        <translation>Keine Datei wird verschoben.</translation>
    </message>
    <message>
        <source>%1 into %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n Ordner</numerusform>
            <numerusform>%n Ordner</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message numerus="yes">
        <source>%n folders will be made, counting parents</source>
        <translation>
            <numerusform>%n Ordner wird angelegt, übergeordnete mitgezählt</numerusform>
            <numerusform>%n Ordner werden angelegt, übergeordnete mitgezählt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>sorting</name>
    <message>
        <source>Year taken</source>
        <translation>Jahr der Aufnahme</translation>
    </message>
    <message>
        <source>Month taken</source>
        <translation>Monat der Aufnahme</translation>
    </message>
    <message>
        <source>Day taken</source>
        <translation>Tag der Aufnahme</translation>
    </message>
    <message>
        <source>Year created</source>
        <translation>Jahr der Erstellung</translation>
    </message>
    <message>
        <source>Month created</source>
        <translation>Monat der Erstellung</translation>
    </message>
    <message>
        <source>Day created</source>
        <translation>Tag der Erstellung</translation>
    </message>
    <message>
        <source>Year changed</source>
        <translation>Jahr der Änderung</translation>
    </message>
    <message>
        <source>Month changed</source>
        <translation>Monat der Änderung</translation>
    </message>
    <message>
        <source>Day changed</source>
        <translation>Tag der Änderung</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Dateigröße</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <source>Name up to the first digit</source>
        <translation>Name bis zur ersten Ziffer</translation>
    </message>
    <message>
        <source>First letter</source>
        <translation>Erster Buchstabe</translation>
    </message>
    <message>
        <source>First 3 letters</source>
        <translation>Erste 3 Buchstaben</translation>
    </message>
    <message>
        <source>Choose a rule, or write a pattern of folders.</source>
        <translation>Wählen Sie eine Regel oder schreiben Sie ein Ordnermuster.</translation>
    </message>
    <message>
        <source>A folder cannot be called “.” or “..”.</source>
        <translation>Ein Ordner kann nicht „.“ oder „..“ heißen.</translation>
    </message>
    <message>
        <source>A folder name cannot consist of spaces only.</source>
        <translation>Ein Ordnername kann nicht nur aus Leerzeichen bestehen.</translation>
    </message>
    <message>
        <source>A folder name is too long.</source>
        <translation>Ein Ordnername ist zu lang.</translation>
    </message>
    <message>
        <source>A pattern cannot contain control characters.</source>
        <translation>Ein Muster darf keine Steuerzeichen enthalten.</translation>
    </message>
    <message>
        <source>Enter a folder name for pictures without a date.</source>
        <translation>Geben Sie einen Namen für den Ordner der Bilder ohne Datum ein.</translation>
    </message>
    <message>
        <source>“%1” is not a valid folder name.</source>
        <translation>„%1“ ist kein gültiger Ordnername.</translation>
    </message>
    <message>
        <source>Undated</source>
        <translation>Ohne Datum</translation>
    </message>
    <message>
        <source>Unknown camera</source>
        <translation>Unbekannte Kamera</translation>
    </message>
    <message>
        <source>Unknown lens</source>
        <translation>Unbekanntes Objektiv</translation>
    </message>
    <message>
        <source>Unknown size</source>
        <translation>Unbekannte Größe</translation>
    </message>
    <message>
        <source>Unknown type</source>
        <translation>Unbekannter Typ</translation>
    </message>
    <message>
        <source>Unknown orientation</source>
        <translation>Unbekannte Ausrichtung</translation>
    </message>
    <message>
        <source>Without extension</source>
        <translation>Ohne Endung</translation>
    </message>
    <message>
        <source>Other names</source>
        <translation>Andere Namen</translation>
    </message>
    <message>
        <source>Other folders</source>
        <translation>Andere Ordner</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Not rated</source>
        <translation>Nicht bewertet</translation>
    </message>
</context>
<context>
    <name>status-bar</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message numerus="yes">
        <source>Only failed pictures are shown: %n</source>
        <translation>
            <numerusform>Nur fehlgeschlagene Bilder werden gezeigt: %n</numerusform>
            <numerusform>Nur fehlgeschlagene Bilder werden gezeigt: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>%1 ausgelassen</translation>
    </message>
    <message>
        <source>Only pictures with %1 are processed: %2</source>
        <translation>Nur Bilder mit %1 werden verarbeitet: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n stars or more</source>
        <translation>
            <numerusform>%n Stern oder mehr</numerusform>
            <numerusform>%n Sternen oder mehr</numerusform>
        </translation>
    </message>
    <message>
        <source>Only pictures that match the filter are processed: %1</source>
        <translation>Nur Bilder, die dem Filter entsprechen, werden bearbeitet: %1</translation>
    </message>
</context>
<context>
    <name>step-words</name>
    <message>
        <source>New text</source>
        <translation>Neuer Text</translation>
    </message>
    <message>
        <source>Text with dates, counters and other values</source>
        <translation>Text mit Datum, Zähler und anderen Werten</translation>
    </message>
    <message>
        <source>token pattern write template</source>
        <translation>platzhalter muster schreiben schablone</translation>
    </message>
    <message>
        <source>Change case</source>
        <translation>Groß-/Kleinschreibung</translation>
    </message>
    <message>
        <source>lower case, UPPER CASE, Words</source>
        <translation>klein, GROSS, Wörter</translation>
    </message>
    <message>
        <source>capital small letters</source>
        <translation>großbuchstaben kleinbuchstaben großschreibung kleinschreibung</translation>
    </message>
    <message>
        <source>Replace text</source>
        <translation>Text ersetzen</translation>
    </message>
    <message>
        <source>Replaces a text everywhere in the name</source>
        <translation>Ersetzt einen Text überall im Namen</translation>
    </message>
    <message>
        <source>search find substitute delete</source>
        <translation>suchen finden austauschen löschen</translation>
    </message>
    <message>
        <source>Insert text</source>
        <translation>Text einfügen</translation>
    </message>
    <message>
        <source>At a position counted from the start or the end</source>
        <translation>An einer Position, vom Anfang oder Ende gezählt</translation>
    </message>
    <message>
        <source>add position</source>
        <translation>hinzufügen position stelle</translation>
    </message>
    <message>
        <source>Add before and after</source>
        <translation>Davor und dahinter</translation>
    </message>
    <message>
        <source>Text before and after the name</source>
        <translation>Text vor und hinter dem Namen</translation>
    </message>
    <message>
        <source>prefix suffix append join concatenate</source>
        <translation>präfix suffix anhängen voranstellen hinzufügen</translation>
    </message>
    <message>
        <source>Remove characters</source>
        <translation>Zeichen entfernen</translation>
    </message>
    <message>
        <source>A number of characters from the left or the right</source>
        <translation>Eine Anzahl Zeichen von links oder rechts</translation>
    </message>
    <message>
        <source>strip cut trim shorten</source>
        <translation>entfernen kürzen abschneiden weg</translation>
    </message>
    <message>
        <source>Keep a section</source>
        <translation>Abschnitt behalten</translation>
    </message>
    <message>
        <source>Only the characters at certain positions</source>
        <translation>Nur die Zeichen an bestimmten Stellen</translation>
    </message>
    <message>
        <source>part substring range middle</source>
        <translation>teil ausschnitt bereich mitte</translation>
    </message>
    <message>
        <source>Split and join</source>
        <translation>Teilen und verbinden</translation>
    </message>
    <message>
        <source>Take pieces between separators, in any order</source>
        <translation>Teile zwischen Trennzeichen nehmen, in beliebiger Folge</translation>
    </message>
    <message>
        <source>pieces rearrange swap</source>
        <translation>stücke umstellen tauschen</translation>
    </message>
    <message>
        <source>Keep letters and digits</source>
        <translation>Buchstaben und Ziffern behalten</translation>
    </message>
    <message>
        <source>Removes all other characters</source>
        <translation>Entfernt alle anderen Zeichen</translation>
    </message>
    <message>
        <source>remove signs non-letters clean punctuation digits</source>
        <translation>satzzeichen säubern bereinigen ziffern</translation>
    </message>
    <message>
        <source>Remove spaces</source>
        <translation>Leerzeichen entfernen</translation>
    </message>
    <message>
        <source>All spaces, also between words</source>
        <translation>Alle, auch zwischen Wörtern</translation>
    </message>
    <message>
        <source>blanks whitespace</source>
        <translation>leerraum lücken blanks</translation>
    </message>
    <message>
        <source>Remove accents (é → e)</source>
        <translation>Akzente entfernen (é → e)</translation>
    </message>
    <message>
        <source>é becomes e</source>
        <translation>é wird zu e</translation>
    </message>
    <message>
        <source>fold ascii umlaut diacritics plain</source>
        <translation>ascii umlaut diakritische einfach</translation>
    </message>
    <message>
        <source>Normalise accents</source>
        <translation>Akzente vereinheitlichen</translation>
    </message>
    <message>
        <source>For names that come from another system</source>
        <translation>Für Namen von anderen Systemen</translation>
    </message>
    <message>
        <source>unicode utf-8 normalise nfc nfd repair</source>
        <translation>unicode utf-8 normalisieren nfc nfd reparieren</translation>
    </message>
    <message>
        <source>Only some names</source>
        <translation>Nur manche Namen</translation>
    </message>
    <message>
        <source>The steps below apply only to matching names</source>
        <translation>Die Schritte darunter gelten für passende Namen</translation>
    </message>
    <message>
        <source>filter condition contains begins ends if</source>
        <translation>filter bedingung enthält beginnt endet wenn</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>001, 002, 003 after the name</source>
        <translation>001, 002, 003 nach dem Namen</translation>
    </message>
    <message>
        <source>number sequence</source>
        <translation>nummer laufend folge</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Aufnahmedatum</translation>
    </message>
    <message>
        <source>Before the name</source>
        <translation>Vor dem Namen</translation>
    </message>
    <message>
        <source>exif time shot</source>
        <translation>exif zeit aufgenommen fotografiert</translation>
    </message>
    <message>
        <source>Date changed or created</source>
        <translation>Änderungs- oder Erstelldatum</translation>
    </message>
    <message>
        <source>modified file time</source>
        <translation>geändert datei zeit</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>After the name</source>
        <translation>Nach dem Namen</translation>
    </message>
    <message>
        <source>model lens</source>
        <translation>modell objektiv</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>Größe in Pixeln</translation>
    </message>
    <message>
        <source>width height resolution</source>
        <translation>breite höhe auflösung</translation>
    </message>
    <message>
        <source>Name of the folder</source>
        <translation>Name des Ordners</translation>
    </message>
    <message>
        <source>directory parent</source>
        <translation>verzeichnis übergeordnet</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>extension</source>
        <translation>Endung</translation>
    </message>
    <message>
        <source>name and extension</source>
        <translation>Name und Endung</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
    <message>
        <source>%1 to lower case</source>
        <translation>%1 in Kleinbuchstaben</translation>
    </message>
    <message>
        <source>%1 to UPPER CASE</source>
        <translation>%1 in GROSSBUCHSTABEN</translation>
    </message>
    <message>
        <source>%1 to Words With Capitals</source>
        <translation>%1: Wörter Groß Beginnen</translation>
    </message>
    <message>
        <source>%1 becomes %2</source>
        <translation>%1 wird zu %2</translation>
    </message>
    <message>
        <source>%1, %2 from the end</source>
        <translation>%1, %2 vom Ende</translation>
    </message>
    <message>
        <source>%1, %2 from the start</source>
        <translation>%1, %2 vom Anfang</translation>
    </message>
    <message>
        <source>%1 before, %2 after</source>
        <translation>%1 davor, %2 dahinter</translation>
    </message>
    <message>
        <source>%1 from the left</source>
        <translation>%1 von links</translation>
    </message>
    <message>
        <source>%1 from the right</source>
        <translation>%1 von rechts</translation>
    </message>
    <message numerus="yes">
        <source>%n characters from the %1.</source>
        <translation>
            <numerusform>%n Zeichen ab dem %1.</numerusform>
            <numerusform>%n Zeichen ab dem %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>at %1, joined by %2</source>
        <translation>bei %1, verbunden mit %2</translation>
    </message>
    <message>
        <source>at %1, pieces %3, joined by %2</source>
        <translation>bei %1, Teile %3, verbunden mit %2</translation>
    </message>
    <message>
        <source>only letters are kept</source>
        <translation>nur Buchstaben bleiben</translation>
    </message>
    <message>
        <source>only letters and digits are kept</source>
        <translation>nur Buchstaben und Ziffern bleiben</translation>
    </message>
    <message>
        <source>all spaces are removed</source>
        <translation>alle Leerzeichen werden entfernt</translation>
    </message>
    <message>
        <source>é becomes e, others %1</source>
        <translation>é wird zu e, andere zu %1</translation>
    </message>
    <message>
        <source>accents as separate marks (NFD)</source>
        <translation>Akzente als eigene Zeichen (NFD)</translation>
    </message>
    <message>
        <source>accents and letters as one (NFC)</source>
        <translation>Akzent und Buchstabe als ein Zeichen (NFC)</translation>
    </message>
    <message>
        <source>that contain %1</source>
        <translation>die %1 enthalten</translation>
    </message>
    <message>
        <source>that begin with %1</source>
        <translation>die mit %1 beginnen</translation>
    </message>
    <message>
        <source>that end with %1</source>
        <translation>die mit %1 enden</translation>
    </message>
</context>
<context>
    <name>targets</name>
    <message>
        <source>The first page is rendered at 72 pixels per inch.</source>
        <translation>Die erste Seite wird mit 72 Pixeln pro Zoll gerendert.</translation>
    </message>
    <message>
        <source>Layers are merged into one picture.</source>
        <translation>Ebenen werden zu einem Bild vereint.</translation>
    </message>
    <message>
        <source>Small files for sharing. The lower the quality, the more detail is lost. Transparent parts get a colour and 16 bits become 8. Colour profile and metadata are kept.</source>
        <translation>Kleine Dateien zum Weitergeben. Je niedriger die Qualität, desto mehr Details gehen verloren. Transparente Bereiche bekommen eine Farbe, aus 16 Bit werden 8. Farbprofil und Metadaten bleiben erhalten.</translation>
    </message>
    <message>
        <source>Nothing is lost: pixels, transparency, 16 bits, colour profile and metadata are kept.</source>
        <translation>Nichts geht verloren: Pixel, Transparenz, 16 Bit, Farbprofil und Metadaten bleiben erhalten.</translation>
    </message>
    <message>
        <source>Nothing is lost: pixels, transparency, 16 bits, CMYK, colour profile and metadata are kept. Large files.</source>
        <translation>Nichts geht verloren: Pixel, Transparenz, 16 Bit, CMYK, Farbprofil und Metadaten bleiben erhalten. Große Dateien.</translation>
    </message>
    <message>
        <source>One page of the size of the picture. A JPEG is included unchanged, other types without loss. Metadata is kept as far as XMP can hold it.</source>
        <translation>Eine Seite in der Größe des Bildes. Ein JPEG wird unverändert übernommen, andere Typen verlustfrei. Metadaten bleiben erhalten, soweit XMP sie aufnimmt.</translation>
    </message>
    <message>
        <source>Visually lossless. Transparency, 16 bits and metadata are kept, and most colour profiles. Few programs can open it.</source>
        <translation>Ohne sichtbaren Verlust. Transparenz, 16 Bit, Metadaten und die meisten Farbprofile bleiben erhalten. Nur wenige Programme können die Dateien öffnen.</translation>
    </message>
    <message>
        <source>At most 256 colours. A pixel is either transparent or not. Colours become sRGB. Metadata is kept as far as XMP can hold it.</source>
        <translation>Höchstens 256 Farben. Ein Pixel ist entweder transparent oder nicht. Farben werden zu sRGB. Metadaten bleiben erhalten, soweit XMP sie aufnimmt.</translation>
    </message>
    <message>
        <source>Large files with pixels and resolution only. Colours become sRGB, transparent parts get a colour and 16 bits become 8.</source>
        <translation>Große Dateien nur mit Pixeln und Auflösung. Farben werden zu sRGB, transparente Bereiche bekommen eine Farbe, aus 16 Bit werden 8.</translation>
    </message>
    <message>
        <source>Already %1: no pixel changes.</source>
        <translation>Schon %1: Kein Pixel ändert sich.</translation>
    </message>
    <message>
        <source>Already %1: it will be encoded again.</source>
        <translation>Schon %1: wird neu codiert.</translation>
    </message>
    <message>
        <source>1 – smallest file</source>
        <translation>1 – kleinste Datei</translation>
    </message>
    <message>
        <source>9 – best</source>
        <translation>9 – beste Qualität</translation>
    </message>
    <message>
        <source>Small files for web pages. The lower the quality, the more detail is lost. 16 bits become 8. Transparency, colour profile and metadata are kept.</source>
        <translation>Kleine Dateien für Webseiten. Je niedriger die Qualität, desto mehr Details gehen verloren. Aus 16 Bit werden 8. Transparenz, Farbprofil und Metadaten bleiben erhalten.</translation>
    </message>
    <message>
        <source>Very small files for web pages, which take the longest to write. The lower the quality, the more detail is lost. 16 bits become 8. Transparency, colour profile and metadata are kept.</source>
        <translation>Sehr kleine Dateien für Webseiten, deren Schreiben am längsten dauert. Je niedriger die Qualität, desto mehr Details gehen verloren. Aus 16 Bit werden 8. Transparenz, Farbprofil und Metadaten bleiben erhalten.</translation>
    </message>
    <message>
        <source>Small files for archives. The lower the quality, the more detail is lost. Transparency, 16 bits, colour profile and metadata are kept. Few programs can open them.</source>
        <translation>Kleine Dateien für Archive. Je niedriger die Qualität, desto mehr Details gehen verloren. Transparenz, 16 Bit, Farbprofil und Metadaten bleiben erhalten. Nur wenige Programme können sie öffnen.</translation>
    </message>
</context>
<context>
    <name>text</name>
    <message>
        <source>Name without extension</source>
        <translation>Name ohne Endung</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Endung</translation>
    </message>
    <message>
        <source>Date taken, otherwise date changed</source>
        <translation>Aufnahmedatum, sonst Änderungsdatum</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Aufnahmedatum</translation>
    </message>
    <message>
        <source>Date created</source>
        <translation>Erstelldatum</translation>
    </message>
    <message>
        <source>Date changed</source>
        <translation>Änderungsdatum</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Breite in Pixeln</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>Höhe in Pixeln</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Dateigröße</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Dateityp</translation>
    </message>
    <message>
        <source>Landscape, portrait or square</source>
        <translation>Quer, hoch oder quadratisch</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Querformat</translation>
    </message>
    <message>
        <source>Name of the folder</source>
        <translation>Name des Ordners</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Urlaub</translation>
    </message>
    <message>
        <source>“%1” is not a valid date format; use yyyy, yy, MM, MMM, dd, EEE, HH, mm, ss</source>
        <translation>„%1“ ist kein gültiges Datumsformat; verwenden Sie yyyy, yy, MM, MMM, dd, EEE, HH, mm, ss</translation>
    </message>
    <message>
        <source>“%1” is not a valid start number</source>
        <translation>„%1“ ist keine gültige Startzahl</translation>
    </message>
    <message>
        <source>“%1” does not select part of a name; use a number of characters, “word”, or “~” and words separated by commas</source>
        <translation>„%1“ wählt keinen Teil eines Namens aus; verwenden Sie eine Anzahl Zeichen, „word“ oder „~“ und Wörter mit Kommas dazwischen</translation>
    </message>
    <message>
        <source>“%1” is not a valid size format; use “class” or “MB”</source>
        <translation>„%1“ ist kein gültiges Größenformat; verwenden Sie „class“ oder „MB“</translation>
    </message>
    <message>
        <source>{%1} takes no format; remove the colon and what follows it</source>
        <translation>{%1} kann kein Format haben; entfernen Sie den Doppelpunkt und was darauf folgt</translation>
    </message>
    <message>
        <source>There is no token between the braces; to write a brace, type {{</source>
        <translation>Zwischen den geschweiften Klammern fehlt der Platzhalter; für eine Klammer tippen Sie {{</translation>
    </message>
    <message>
        <source>There is no token {%1}</source>
        <translation>Einen Platzhalter {%1} gibt es nicht</translation>
    </message>
    <message>
        <source>A brace is not closed; to write a brace, type {{</source>
        <translation>Eine geschweifte Klammer ist nicht geschlossen; für eine Klammer tippen Sie {{</translation>
    </message>
    <message>
        <source>Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec</source>
        <translation>Jan Feb Mrz Apr Mai Jun Jul Aug Sep Okt Nov Dez</translation>
    </message>
    <message>
        <source>Sun Mon Tue Wed Thu Fri Sat</source>
        <translation>So Mo Di Mi Do Fr Sa</translation>
    </message>
    <message>
        <source>Under 1 MB</source>
        <translation>Unter 1 MB</translation>
    </message>
    <message>
        <source>1 to 5 MB</source>
        <translation>1 bis 5 MB</translation>
    </message>
    <message>
        <source>5 to 20 MB</source>
        <translation>5 bis 20 MB</translation>
    </message>
    <message>
        <source>20 MB and more</source>
        <translation>20 MB und mehr</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Quadrat</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Hochformat</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>Überschrift</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Bildbeschreibung</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Urheber</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>Copyright-Vermerk</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <translation>Ortsteil</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Stadt</translation>
    </message>
    <message>
        <source>State or province</source>
        <translation>Bundesland oder Provinz</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Koordinaten</translation>
    </message>
    <message>
        <source>{%1} contains the location. Include the location first, or remove the token.</source>
        <translation>{%1} enthält den Aufnahmeort. Geben Sie zuerst den Aufnahmeort an, oder entfernen Sie den Platzhalter.</translation>
    </message>
    <message>
        <source>Rating, 1 to 5</source>
        <translation>Bewertung, 1 bis 5</translation>
    </message>
</context>
<context>
    <name>text::PageTemplate</name>
    <message>
        <source>a picture has no files</source>
        <translation>ein Bild hat keine Dateien</translation>
    </message>
    <message>
        <source>{{#%1}} is not closed</source>
        <translation>{{#%1}} wird nicht geschlossen</translation>
    </message>
    <message>
        <source>a field is not closed</source>
        <translation>ein Feld wird nicht geschlossen</translation>
    </message>
    <message>
        <source>there is no field {{%1}}</source>
        <translation>es gibt kein Feld {{%1}}</translation>
    </message>
    <message>
        <source>{{%1}} must be inside {{#pictures}}</source>
        <translation>{{%1}} muss innerhalb von {{#pictures}} stehen</translation>
    </message>
    <message>
        <source>{{pictures}} must be {{#pictures}}</source>
        <translation>{{pictures}} muss {{#pictures}} heißen</translation>
    </message>
    <message>
        <source>{{%1}} cannot be used in a &lt;%2&gt;</source>
        <translation>{{%1}} ist in einem &lt;%2&gt; nicht erlaubt</translation>
    </message>
    <message>
        <source>{{#pictures}} cannot be used here</source>
        <translation>{{#pictures}} ist hier nicht erlaubt</translation>
    </message>
    <message>
        <source>{{/%1}} closes nothing</source>
        <translation>{{/%1}} schließt nichts</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>token-menu</name>
    <message>
        <source>Search values</source>
        <translation>Werte suchen</translation>
    </message>
</context>
<context>
    <name>turn-action</name>
    <message>
        <source>Rotate &amp; Flip</source>
        <translation>Drehen &amp; Spiegeln</translation>
    </message>
    <message>
        <source>Rotating</source>
        <translation>Das Drehen</translation>
    </message>
    <message numerus="yes">
        <source>Rotate and Flip %n Pictures</source>
        <translation>
            <numerusform>%n Bild drehen und spiegeln</numerusform>
            <numerusform>%n Bilder drehen und spiegeln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Flip %n Pictures</source>
        <translation>
            <numerusform>%n Bild spiegeln</numerusform>
            <numerusform>%n Bilder spiegeln</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rotate %n Pictures</source>
        <translation>
            <numerusform>%n Bild drehen</numerusform>
            <numerusform>%n Bilder drehen</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to do</source>
        <translation>Nichts zu tun</translation>
    </message>
</context>
<context>
    <name>turn-pane</name>
    <message>
        <source>No rotation</source>
        <translation>Keine Drehung</translation>
    </message>
    <message>
        <source>↺ anticlockwise</source>
        <translation>↺ gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>↻ clockwise</source>
        <translation>↻ im Uhrzeigersinn</translation>
    </message>
</context>
<context>
    <name>turn-presets</name>
    <message>
        <source>90° anticlockwise</source>
        <translation>90° gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>90° clockwise</source>
        <translation>90° im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Kopfüber</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>Gespiegelt</translation>
    </message>
</context>
<context>
    <name>turn-step</name>
    <message>
        <source>Rotated</source>
        <translation>Gedreht</translation>
    </message>
    <message>
        <source>rotate %1°</source>
        <translation>%1° drehen</translation>
    </message>
    <message>
        <source>flip horizontally</source>
        <translation>horizontal spiegeln</translation>
    </message>
    <message>
        <source>flip vertically</source>
        <translation>vertikal spiegeln</translation>
    </message>
    <message>
        <source>Enter an angle from −180 to 180 degrees.</source>
        <translation>Geben Sie einen Winkel von −180 bis 180 Grad ein.</translation>
    </message>
    <message>
        <source>Choose an angle or a flip.</source>
        <translation>Wählen Sie einen Winkel oder eine Spiegelung.</translation>
    </message>
    <message>
        <source>Rotated without loss.</source>
        <translation>Verlustfrei gedreht.</translation>
    </message>
    <message>
        <source>The canvas grows so that the corners fit.</source>
        <translation>Die Bildfläche wächst, damit die Ecken Platz haben.</translation>
    </message>
    <message>
        <source>The canvas grows so that the corners fit. The new corners become white.</source>
        <translation>Die Bildfläche wächst, damit die Ecken Platz haben. Die neuen Ecken werden weiß.</translation>
    </message>
</context>
<context>
    <name>undo-run</name>
    <message>
        <source>Undo This Run</source>
        <translation>Rückgängig machen</translation>
    </message>
    <message>
        <source>This run wrote new files and moved none. To undo it, delete its results.</source>
        <translation>Dieser Durchlauf hat neue Dateien geschrieben und keine verschoben. Löschen Sie seine Ergebnisse, um ihn rückgängig zu machen.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message numerus="yes">
        <source>%n files can be restored.</source>
        <translation>
            <numerusform>%n Datei kann wiederhergestellt werden.</numerusform>
            <numerusform>%n Dateien können wiederhergestellt werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert This Run</source>
        <translation>Durchlauf zurücksetzen</translation>
    </message>
    <message>
        <source>No comment was changed.</source>
        <translation>Kein Kommentar wurde geändert.</translation>
    </message>
    <message>
        <source>All its comments have already been reverted.</source>
        <translation>Alle seine Kommentare wurden schon zurückgesetzt.</translation>
    </message>
    <message numerus="yes">
        <source>%n comments can be reverted.</source>
        <translation>
            <numerusform>%n Kommentar kann zurückgesetzt werden.</numerusform>
            <numerusform>%n Kommentare können zurückgesetzt werden.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n have already been reverted.</source>
        <translation>
            <numerusform>%n wurde schon zurückgesetzt.</numerusform>
            <numerusform>%n wurden schon zurückgesetzt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
</context>
<context>
    <name>watching</name>
    <message>
        <source>Pictures in a watched folder are written at once: turn the dry run off first.</source>
        <translation>Bilder eines überwachten Ordners werden sofort geschrieben: Schalten Sie zuerst den Probelauf aus.</translation>
    </message>
    <message>
        <source>A watched folder cannot ask: choose to keep both or to skip existing files.</source>
        <translation>Ein überwachter Ordner kann nicht nachfragen: Wählen Sie für vorhandene Dateien beide behalten oder überspringen.</translation>
    </message>
    <message>
        <source>Watch a folder</source>
        <translation>Einen Ordner überwachen</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>Diesen Ordner gibt es nicht.</translation>
    </message>
    <message>
        <source>Another window or program is already watching this folder for the same purpose.</source>
        <translation>Ein anderes Fenster oder Programm überwacht diesen Ordner schon für denselben Zweck.</translation>
    </message>
    <message>
        <source>The folder cannot be watched: %1</source>
        <translation>Der Ordner kann nicht überwacht werden: %1</translation>
    </message>
    <message>
        <source>The folder “%1” no longer exists and is no longer watched.</source>
        <translation>Den Ordner „%1“ gibt es nicht mehr; er wird nicht weiter überwacht.</translation>
    </message>
    <message>
        <source>Watching “%1”</source>
        <translation>„%1“ wird überwacht</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>%1 fertig</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>watermark-action</name>
    <message>
        <source>Watermark</source>
        <translation>Wasserzeichen</translation>
    </message>
    <message numerus="yes">
        <source>Watermark %n Pictures</source>
        <translation>
            <numerusform>%n Bild mit Wasserzeichen versehen</numerusform>
            <numerusform>%n Bilder mit Wasserzeichen versehen</numerusform>
        </translation>
    </message>
    <message>
        <source>Watermarking</source>
        <translation>Das Einfügen von Wasserzeichen</translation>
    </message>
</context>
<context>
    <name>watermark-pane</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keines</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Wählen …</translation>
    </message>
    <message>
        <source>Choose a picture</source>
        <translation>Bild wählen</translation>
    </message>
</context>
<context>
    <name>watermark-presets</name>
    <message>
        <source>Copyright, bottom right</source>
        <translation>Copyright, unten rechts</translation>
    </message>
    <message>
        <source>Copyright, dark</source>
        <translation>Copyright, dunkel</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Tiled draft</source>
        <translation>Entwurf, gekachelt</translation>
    </message>
    <message>
        <source>DRAFT</source>
        <translation>ENTWURF</translation>
    </message>
</context>
<context>
    <name>watermark-step</name>
    <message>
        <source>Watermarked</source>
        <translation>Mit Wasserzeichen</translation>
    </message>
    <message>
        <source>text “%1”</source>
        <translation>Text „%1“</translation>
    </message>
    <message>
        <source>picture %1</source>
        <translation>Bild %1</translation>
    </message>
    <message>
        <source>tiled</source>
        <translation>gekachelt</translation>
    </message>
    <message>
        <source>Enter a text.</source>
        <translation>Geben Sie einen Text ein.</translation>
    </message>
    <message>
        <source>A watermark cannot contain {counter}.</source>
        <translation>Ein Wasserzeichen kann {counter} nicht enthalten.</translation>
    </message>
    <message>
        <source>There is no font “%1” on this computer. Choose another.</source>
        <translation>Die Schrift „%1“ gibt es auf diesem Computer nicht. Wählen Sie eine andere.</translation>
    </message>
    <message>
        <source>Choose a picture.</source>
        <translation>Wählen Sie ein Bild.</translation>
    </message>
    <message>
        <source>The picture “%1” no longer exists.</source>
        <translation>Das Bild „%1“ ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>“%1” cannot be read as a picture.</source>
        <translation>„%1“ kann nicht als Bild gelesen werden.</translation>
    </message>
    <message>
        <source>Enter a size from 0.1% to 100%.</source>
        <translation>Geben Sie eine Größe von 0,1 % bis 100 % ein.</translation>
    </message>
    <message>
        <source>Enter a margin from 0% to 100%.</source>
        <translation>Geben Sie einen Abstand von 0 % bis 100 % ein.</translation>
    </message>
    <message>
        <source>Enter an opacity from 1% to 100%.</source>
        <translation>Geben Sie eine Deckkraft von 1 % bis 100 % ein.</translation>
    </message>
    <message>
        <source>Enter an angle from −180 to 180 degrees.</source>
        <translation>Geben Sie einen Winkel von −180 bis 180 Grad ein.</translation>
    </message>
</context>
<context>
    <name>web-action</name>
    <message>
        <source>Web Page</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>Making a web page</source>
        <translation>Webseite wird erstellt</translation>
    </message>
    <message numerus="yes">
        <source>Make Page of %n Pictures</source>
        <translation>
            <numerusform>Seite mit %n Bild erstellen</numerusform>
            <numerusform>Seite mit %n Bildern erstellen</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>web-folder</name>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 was not made by Quorlin and stays unchanged.</source>
        <translation>%1 stammt nicht von Quorlin und bleibt unverändert.</translation>
    </message>
    <message>
        <source>%1 has been changed since by someone else and stays unchanged.</source>
        <translation>%1 wurde inzwischen von jemand anderem geändert und bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>The page could not be written.</source>
        <translation>Die Seite konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The saved page differs from what was written.</source>
        <translation>Die gespeicherte Seite weicht von der geschriebenen ab.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>no free name was found</source>
        <translation>es wurde kein freier Name gefunden</translation>
    </message>
    <message>
        <source>Something else is now at %1.</source>
        <translation>An der Stelle von %1 ist jetzt etwas anderes.</translation>
    </message>
</context>
<context>
    <name>web-making</name>
    <message>
        <source>Template, %1</source>
        <translation>Vorlage, %1</translation>
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
        <translation>Reihen</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Bildgeschichte</translation>
    </message>
    <message>
        <source>Same as Quorlin</source>
        <translation>Wie in Quorlin</translation>
    </message>
    <message>
        <source>By language</source>
        <translation>Nach Sprache</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>Von links nach rechts</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Von rechts nach links</translation>
    </message>
    <message>
        <source>Keep copyright only</source>
        <translation>Nur Copyright behalten</translation>
    </message>
    <message>
        <source>Keep all</source>
        <translation>Alle behalten</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Number the new folder</source>
        <translation>Neuen Ordner nummerieren</translation>
    </message>
    <message>
        <source>Update the page in it</source>
        <translation>Seite darin aktualisieren</translation>
    </message>
    <message>
        <source>Folder of the first picture</source>
        <translation>Ordner des ersten Bildes</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>Datei wählen …</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>Kopie speichern …</translation>
    </message>
    <message>
        <source>Save the page in</source>
        <translation>Seite speichern in</translation>
    </message>
    <message>
        <source>Choose a template</source>
        <translation>Vorlage wählen</translation>
    </message>
    <message>
        <source>Save a copy of the template</source>
        <translation>Kopie der Vorlage speichern</translation>
    </message>
    <message>
        <source>Template saved as %1</source>
        <translation>Vorlage gespeichert als %1</translation>
    </message>
    <message>
        <source>Add pictures first.</source>
        <translation>Fügen Sie zuerst Bilder hinzu.</translation>
    </message>
    <message>
        <source>Correct the settings first.</source>
        <translation>Korrigieren Sie zuerst die Einstellungen.</translation>
    </message>
</context>
<context>
    <name>web-presets</name>
    <message>
        <source>Rows with captions</source>
        <translation>Reihen mit Bildtexten</translation>
    </message>
    <message>
        <source>Grid of squares</source>
        <translation>Raster aus Quadraten</translation>
    </message>
    <message>
        <source>Story on warm paper</source>
        <translation>Geschichte auf warmem Papier</translation>
    </message>
    <message>
        <source>For clients, with download</source>
        <translation>Für Kunden, mit Download</translation>
    </message>
</context>
<context>
    <name>web-preview</name>
    <message>
        <source>Making the preview…</source>
        <translation>Vorschau wird erstellt …</translation>
    </message>
    <message>
        <source>no picture could be processed</source>
        <translation>es konnte kein Bild verarbeitet werden</translation>
    </message>
    <message>
        <source>The page could not be opened in a browser.</source>
        <translation>Die Seite konnte nicht in einem Browser geöffnet werden.</translation>
    </message>
</context>
<context>
    <name>web-step</name>
    <message>
        <source>Web Page</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>The template %1 cannot be read.</source>
        <translation>Die Vorlage %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The folder name cannot contain “/”.</source>
        <translation>Der Ordnername darf kein „/“ enthalten.</translation>
    </message>
    <message>
        <source>Sizes are whole numbers from %1 to %2, each larger than the one before.</source>
        <translation>Größen sind ganze Zahlen von %1 bis %2, jede größer als die vorige.</translation>
    </message>
    <message>
        <source>The quality is a whole number from 1 to 100.</source>
        <translation>Die Qualität ist eine ganze Zahl von 1 bis 100.</translation>
    </message>
    <message>
        <source>%1 is not a valid language code.</source>
        <translation>%1 ist kein gültiger Sprachcode.</translation>
    </message>
    <message>
        <source>Template, %1</source>
        <translation>Vorlage, %1</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Reihen</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Bildgeschichte</translation>
    </message>
</context>
<context>
    <name>window</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
</context>
<context>
    <name>window::ComparePreview</name>
    <message>
        <source>Not a readable picture</source>
        <translation>Kein lesbares Bild</translation>
    </message>
    <message>
        <source>This picture cannot be shown</source>
        <translation>Dieses Bild kann nicht gezeigt werden</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>window::CropFrameEditor</name>
    <message>
        <source>Crop frame</source>
        <translation>Ausschnitt</translation>
    </message>
    <message>
        <source>%1 × %2 pixels, %3 from the left, %4 from the top</source>
        <translation>%1 × %2 Pixel, %3 von links, %4 von oben</translation>
    </message>
</context>
<context>
    <name>window::DesktopSigns</name>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
</context>
<context>
    <name>window::FolderTree</name>
    <message>
        <source>new</source>
        <translation>neu</translation>
    </message>
    <message>
        <source>exists</source>
        <translation>vorhanden</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln Datei</numerusform>
            <numerusform>%Ln Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, new folder, %2</source>
        <translation>%1, neuer Ordner, %2</translation>
    </message>
    <message>
        <source>%1, existing folder, %2</source>
        <translation>%1, vorhandener Ordner, %2</translation>
    </message>
</context>
<context>
    <name>window::KeyHeader</name>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Left and Right choose a column, Space sorts by it</source>
        <translation>Links und Rechts wählen eine Spalte, die Leertaste sortiert danach</translation>
    </message>
</context>
<context>
    <name>window::ManualView</name>
    <message>
        <source>This page of the manual is missing.</source>
        <translation>Diese Seite des Handbuchs fehlt.</translation>
    </message>
    <message>
        <source>Show large</source>
        <translation>Groß zeigen</translation>
    </message>
    <message>
        <source>Picture of the manual</source>
        <translation>Bild des Handbuchs</translation>
    </message>
</context>
<context>
    <name>window::PictureModel</name>
    <message>
        <source>Thumbnail of %1</source>
        <translation>Vorschaubild von %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Neuer Name</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>Neue Größe</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Aufnahmedatum</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Thumbnail of %1, left out of the run</source>
        <translation>Vorschaubild von %1, vom Durchlauf ausgelassen</translation>
    </message>
    <message>
        <source>%1 according to the camera clock</source>
        <translation>%1 nach der Uhr der Kamera</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Bewertung</translation>
    </message>
    <message numerus="yes">
        <source>%n stars</source>
        <translation>
            <numerusform>%n Stern</numerusform>
            <numerusform>%n Sterne</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::PictureTable</name>
    <message>
        <source>Reset Columns</source>
        <translation>Spalten zurücksetzen</translation>
    </message>
    <message>
        <source>Show All Ratings</source>
        <translation>Alle Bewertungen zeigen</translation>
    </message>
    <message numerus="yes">
        <source>Only %n stars or more</source>
        <translation>
            <numerusform>Nur %n Stern oder mehr</numerusform>
            <numerusform>Nur %n Sterne oder mehr</numerusform>
        </translation>
    </message>
    <message>
        <source>Properties and Filter…</source>
        <translation>Eigenschaften und Filter …</translation>
    </message>
</context>
<context>
    <name>window::ProgramDesk</name>
    <message>
        <source>The lp command of the print system is missing.</source>
        <translation>Der Befehl lp des Drucksystems fehlt.</translation>
    </message>
    <message>
        <source>The print system did not accept the pages: %1</source>
        <translation>Das Drucksystem hat die Seiten nicht angenommen: %1</translation>
    </message>
</context>
<context>
    <name>window::PropertyTree</name>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
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
        <source>Copy Location in Degrees</source>
        <translation>Aufnahmeort in Grad kopieren</translation>
    </message>
    <message>
        <source>Copy Location in Minutes</source>
        <translation>Aufnahmeort in Minuten kopieren</translation>
    </message>
</context>
<context>
    <name>window::RunRows</name>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation>
            <numerusform>%Ln Eintrag</numerusform>
            <numerusform>%Ln Einträge</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln problems</source>
        <translation>
            <numerusform>%Ln Problem</numerusform>
            <numerusform>%Ln Probleme</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::SaveDialog</name>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Save in:</source>
        <translation>Speichern in:</translation>
    </message>
    <message>
        <source>Ta&amp;gs:</source>
        <translation>Schla&amp;gwörter:</translation>
    </message>
    <message>
        <source>separated by commas</source>
        <translation>durch Kommas getrennt</translation>
    </message>
    <message>
        <source>Tags, separated by commas</source>
        <translation>Schlagwörter, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>“%1” already exists. Replace it?</source>
        <translation>„%1“ ist schon vorhanden. Ersetzen?</translation>
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
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::StartUp</name>
    <message>
        <source>Quorlin cannot start: a script of its interface failed.</source>
        <translation>Quorlin kann nicht starten: Ein Skript der Oberfläche ist fehlgeschlagen.</translation>
    </message>
</context>
<context>
    <name>wording</name>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n Bild</numerusform>
            <numerusform>%n Bilder</numerusform>
        </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Not Supported</source>
        <translation>Nicht unterstützt</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Übersprungen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n Problem</numerusform>
            <numerusform>%n Probleme</numerusform>
        </translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>no problems</source>
        <translation>keine Probleme</translation>
    </message>
</context>
<context>
    <name>worker-job</name>
    <message>
        <source>the picture no longer exists</source>
        <translation>das Bild ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>the result is %1 instead of %2</source>
        <translation>das Ergebnis ist %1 statt %2</translation>
    </message>
</context>
<context>
    <name>write-plan</name>
    <message>
        <source>file exists: will ask</source>
        <translation>Datei vorhanden: fragt nach</translation>
    </message>
    <message>
        <source>replaces original</source>
        <translation>ersetzt Original</translation>
    </message>
    <message>
        <source>replaces %1</source>
        <translation>ersetzt %1</translation>
    </message>
    <message>
        <source>would be written</source>
        <translation>würde geschrieben</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>bereit</translation>
    </message>
</context>
<context>
    <name>write-run</name>
    <message>
        <source>File exists</source>
        <translation>Datei vorhanden</translation>
    </message>
    <message>
        <source>“%1” already exists in this folder.</source>
        <translation>„%1“ ist in diesem Ordner schon vorhanden.</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Beide behalten</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Überspringen</translation>
    </message>
    <message>
        <source>Cancel Run</source>
        <translation>Durchlauf abbrechen</translation>
    </message>
    <message>
        <source>Do this for all</source>
        <translation>Auf alle anwenden</translation>
    </message>
    <message>
        <source>Replace originals</source>
        <translation>Originale ersetzen</translation>
    </message>
    <message numerus="yes">
        <source>%n originals will be replaced by their results.</source>
        <translation>
            <numerusform>%n Original wird durch sein Ergebnis ersetzt.</numerusform>
            <numerusform>%n Originale werden durch ihre Ergebnisse ersetzt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancelled before the first picture. Nothing was written.</source>
        <translation>Vor dem ersten Bild abgebrochen. Nichts wurde geschrieben.</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was written.</source>
        <translation>Abgebrochen. Es wurde nichts geschrieben.</translation>
    </message>
    <message numerus="yes">
        <source>Dry run: %n pictures would be written</source>
        <translation>
            <numerusform>Probelauf: %n Bild würde geschrieben</numerusform>
            <numerusform>Probelauf: %n Bilder würden geschrieben</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>%1 ausgelassen</translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>nichts wurde geschrieben</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>in Arbeit …</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures done</source>
        <translation>
            <numerusform>%n Bild fertig</numerusform>
            <numerusform>%n Bilder fertig</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 not supported</source>
        <translation>%1 nicht unterstützt</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>%1 übersprungen</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 geschrieben</translation>
    </message>
    <message>
        <source>Cancelled:</source>
        <translation>Abgebrochen:</translation>
    </message>
    <message>
        <source>stopping after the current pictures</source>
        <translation>bricht nach den laufenden Bildern ab</translation>
    </message>
    <message>
        <source>pausing after the current pictures</source>
        <translation>hält nach den laufenden Bildern an</translation>
    </message>
    <message>
        <source>The replaced files (%1) go to the trash. Undo brings them back.</source>
        <translation>Die ersetzten Dateien (%1) kommen in den Papierkorb. „Rückgängig“ holt sie zurück.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>On a disk without a trash they are kept in the folder “%1”.</source>
        <translation>Auf Datenträgern ohne Papierkorb bleiben sie im Ordner „%1“ erhalten.</translation>
    </message>
    <message>
        <source>Finished pictures are kept.</source>
        <translation>Fertige Bilder bleiben erhalten.</translation>
    </message>
</context>
<context>
    <name>writes</name>
    <message>
        <source>Dry Run: %1</source>
        <translation>Probelauf: %1</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n Originals</source>
        <translation>
            <numerusform>%n Original ersetzen</numerusform>
            <numerusform>%n Originale ersetzen</numerusform>
        </translation>
    </message>
    <message>
        <source>Originals are replaced by their results.</source>
        <translation>Originale werden durch ihre Ergebnisse ersetzt.</translation>
    </message>
    <message numerus="yes">
        <source>%n files are replaced.</source>
        <translation>
            <numerusform>%n Datei wird ersetzt.</numerusform>
            <numerusform>%n Dateien werden ersetzt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Dry run: write nothing</source>
        <translation>Probelauf: nichts schreiben</translation>
    </message>
</context>
<context>
    <name>written</name>
    <message>
        <source>Choose a folder to save to.</source>
        <translation>Wählen Sie einen Ordner zum Speichern.</translation>
    </message>
    <message>
        <source>“%1” is not a valid folder name.</source>
        <translation>„%1“ ist kein gültiger Ordnername.</translation>
    </message>
    <message>
        <source>%1 cannot be written, choose another file type</source>
        <translation>%1 kann nicht geschrieben werden, wählen Sie einen anderen Dateityp</translation>
    </message>
    <message>
        <source>not a readable picture</source>
        <translation>kein lesbares Bild</translation>
    </message>
    <message>
        <source>this type cannot be written</source>
        <translation>dieser Typ kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the file could not be written</source>
        <translation>die Datei konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the result is %1 instead of %2</source>
        <translation>das Ergebnis ist %1 statt %2</translation>
    </message>
    <message>
        <source>Enter a name for the results.</source>
        <translation>Geben Sie einen Namen für die Ergebnisse ein.</translation>
    </message>
    <message>
        <source>A name cannot contain “/”.</source>
        <translation>Ein Name darf kein „/“ enthalten.</translation>
    </message>
</context>
<context>
    <name>log-fields</name>
    <message>
        <source>Forget old values</source>
        <translation>Alte Werte vergessen</translation>
    </message>
    <message>
        <source>Delete the old metadata of this run (%1) for good?</source>
        <translation>Die alten Metadaten dieses Durchlaufs (%1) endgültig löschen?</translation>
    </message>
    <message>
        <source>The pictures are not changed. The run can then no longer be reverted.</source>
        <translation>Die Bilder bleiben unverändert. Der Durchlauf kann danach nicht mehr zurückgesetzt werden.</translation>
    </message>
    <message>
        <source>Forget Old Values</source>
        <translation>Alte Werte vergessen</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>The old values were deleted.</source>
        <translation>Die alten Werte wurden gelöscht.</translation>
    </message>
    <message numerus="yes">
        <source>Reverting: %n pictures so far</source>
        <translation>
            <numerusform>Zurücksetzen: bisher %n Bild</numerusform>
            <numerusform>Zurücksetzen: bisher %n Bilder</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped:</source>
        <translation>Gestoppt:</translation>
    </message>
</context>
<context>
    <name>field-run</name>
    <message>
        <source>Stopped:</source>
        <translation>Gestoppt:</translation>
    </message>
    <message>
        <source>Cancelled before the first picture. Nothing was written.</source>
        <translation>Vor dem ersten Bild abgebrochen. Nichts wurde geschrieben.</translation>
    </message>
    <message numerus="yes">
        <source>Dry run: %n pictures would be changed</source>
        <translation>
            <numerusform>Probelauf: %n Bild würde geändert</numerusform>
            <numerusform>Probelauf: %n Bilder würden geändert</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>nichts wurde geschrieben</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was written.</source>
        <translation>Abgebrochen. Es wurde nichts geschrieben.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Write metadata</source>
        <translation>Metadaten schreiben</translation>
    </message>
    <message numerus="yes">
        <source>Write metadata into %n pictures?</source>
        <translation>
            <numerusform>Metadaten in %n Bild schreiben?</numerusform>
            <numerusform>Metadaten in %n Bilder schreiben?</numerusform>
        </translation>
    </message>
    <message>
        <source>This changes the metadata inside your originals. Their pictures are not touched.</source>
        <translation>Das ändert die Metadaten in Ihren Originalen. Die Bilder selbst bleiben unberührt.</translation>
    </message>
    <message numerus="yes">
        <source>For %n of them, it is written into a sidecar file.</source>
        <translation>
            <numerusform>%n davon erhält sie in einer Begleitdatei daneben.</numerusform>
            <numerusform>%n davon erhalten sie in einer Begleitdatei daneben.</numerusform>
        </translation>
    </message>
    <message>
        <source>EXIF, IPTC and XMP disagree:</source>
        <translation>EXIF, IPTC und XMP widersprechen sich:</translation>
    </message>
    <message numerus="yes">
        <source>%n more pictures: see their rows in the list.</source>
        <translation>
            <numerusform>%n weiteres Bild: siehe die Zeile in der Liste.</numerusform>
            <numerusform>%n weitere Bilder: siehe ihre Zeilen in der Liste.</numerusform>
        </translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>already has these values</source>
        <translation>hat diese Werte schon</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures changed</source>
        <translation>
            <numerusform>%n Bild geändert</numerusform>
            <numerusform>%n Bilder geändert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unchanged</source>
        <translation>
            <numerusform>%n unverändert</numerusform>
            <numerusform>%n unverändert</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>reverted</source>
        <translation>zurückgesetzt</translation>
    </message>
</context>
<context>
    <name>field-plan</name>
    <message>
        <source>EXIF, IPTC and XMP disagree</source>
        <translation>EXIF, IPTC und XMP widersprechen sich</translation>
    </message>
    <message>
        <source>in a sidecar file</source>
        <translation>in einer Begleitdatei</translation>
    </message>
    <message>
        <source>private data stays in files of this type</source>
        <translation>private Daten bleiben in Dateien dieser Art</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>bereit</translation>
    </message>
    <message>
        <source>no change</source>
        <translation>keine Änderung</translation>
    </message>
    <message>
        <source>not selected</source>
        <translation>nicht ausgewählt</translation>
    </message>
    <message>
        <source>not a readable picture</source>
        <translation>kein lesbares Bild</translation>
    </message>
</context>
<context>
    <name>field-reverting</name>
    <message>
        <source>Revert metadata</source>
        <translation>Metadaten zurücksetzen</translation>
    </message>
    <message>
        <source>Revert This Run</source>
        <translation>Durchlauf zurücksetzen</translation>
    </message>
    <message>
        <source>No old values of this run are kept.</source>
        <translation>Von diesem Durchlauf sind keine alten Werte aufbewahrt.</translation>
    </message>
    <message>
        <source>Old values: %1.</source>
        <translation>Alte Werte: %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures can be reverted.</source>
        <translation>
            <numerusform>%n Bild kann zurückgesetzt werden.</numerusform>
            <numerusform>%n Bilder können zurückgesetzt werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>All its pictures have already been reverted.</source>
        <translation>Alle Bilder sind bereits zurückgesetzt.</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadaten</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures reverted</source>
        <translation>
            <numerusform>%n Bild zurückgesetzt</numerusform>
            <numerusform>%n Bilder zurückgesetzt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n Problem</numerusform>
            <numerusform>%n Probleme</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>fields</name>
    <message>
        <source>Dry Run: %1</source>
        <translation>Probelauf: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n with conflicting values</source>
        <translation>
            <numerusform>%n mit widersprüchlichen Werten</numerusform>
            <numerusform>%n mit widersprüchlichen Werten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar files</source>
        <translation>
            <numerusform>%n Begleitdatei</numerusform>
            <numerusform>%n Begleitdateien</numerusform>
        </translation>
    </message>
    <message>
        <source>originals are changed, can be reverted</source>
        <translation>Originale werden geändert, lässt sich zurücksetzen</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Dry run: write nothing</source>
        <translation>Probelauf: nichts schreiben</translation>
    </message>
</context>
<context>
    <name>metadata-fields-action</name>
    <message>
        <source>Metadata</source>
        <translation>Metadaten</translation>
    </message>
    <message>
        <source>Writing metadata</source>
        <translation>Metadaten schreiben</translation>
    </message>
    <message numerus="yes">
        <source>Write Metadata into %n Pictures</source>
        <translation>
            <numerusform>Metadaten in %n Bild schreiben</numerusform>
            <numerusform>Metadaten in %n Bilder schreiben</numerusform>
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
        <translation>Überschrift</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Urheber</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Berufsbezeichnung</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Anschrift</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
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
        <translation>Nutzungsrechte</translation>
    </message>
    <message>
        <source>Credit line</source>
        <translation>Bildnachweis</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Anweisungen</translation>
    </message>
    <message>
        <source>Job identifier</source>
        <translation>Auftragsnummer</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <translation>Ortsteil</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Stadt</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Bundesland</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>Ländercode</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Aufnahmedatum</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Bewertung</translation>
    </message>
    <message>
        <source>Colour label</source>
        <translation>Farbetikett</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Orte</translation>
    </message>
    <message>
        <source>Serial numbers</source>
        <translation>Seriennummern</translation>
    </message>
    <message>
        <source>Owner and computer names</source>
        <translation>Namen von Besitzer und Computer</translation>
    </message>
    <message>
        <source>Face regions</source>
        <translation>Gesichtsbereiche</translation>
    </message>
    <message>
        <source>Maker notes</source>
        <translation>Herstellernotizen</translation>
    </message>
    <message>
        <source>Embedded thumbnails</source>
        <translation>Eingebettete Vorschaubilder</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Rejected</source>
        <translation>Abgelehnt</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: “%2”</source>
        <translation>%1: „%2“</translation>
    </message>
    <message>
        <source>%1: “%2” → “%3”</source>
        <translation>%1: „%2“ → „%3“</translation>
    </message>
    <message>
        <source>%1: cleared, was “%2”</source>
        <translation>%1: geleert, war „%2“</translation>
    </message>
    <message>
        <source>%1: EXIF %2, IPTC %3, XMP %4</source>
        <translation>%1: EXIF %2, IPTC %3, XMP %4</translation>
    </message>
    <message numerus="yes">
        <source>%n stars</source>
        <translation>
            <numerusform>%n Stern</numerusform>
            <numerusform>%n Sterne</numerusform>
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
        <translation>Überschrift</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Urheber</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Berufsbezeichnung</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Anschrift</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
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
        <translation>Nutzungsrechte</translation>
    </message>
    <message>
        <source>Credit line</source>
        <translation>Bildnachweis</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Anweisungen</translation>
    </message>
    <message>
        <source>Job identifier</source>
        <translation>Auftragsnummer</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <translation>Ortsteil</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Stadt</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Bundesland</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>Ländercode</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Aufnahmedatum</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Bewertung</translation>
    </message>
    <message>
        <source>Colour label</source>
        <translation>Farbetikett</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Orte</translation>
    </message>
    <message>
        <source>Serial numbers</source>
        <translation>Seriennummern</translation>
    </message>
    <message>
        <source>Owner and computer names</source>
        <translation>Namen von Besitzer und Computer</translation>
    </message>
    <message>
        <source>Face regions</source>
        <translation>Gesichtsbereiche</translation>
    </message>
    <message>
        <source>Maker notes</source>
        <translation>Herstellernotizen</translation>
    </message>
    <message>
        <source>Embedded thumbnails</source>
        <translation>Eingebettete Vorschaubilder</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Creator and Rights</source>
        <translation>Urheber und Rechte</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Date and Rating</source>
        <translation>Datum und Bewertung</translation>
    </message>
    <message>
        <source>Remove Private Data</source>
        <translation>Private Daten entfernen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Ausgewählte</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Hinzugefügt</translation>
    </message>
    <message>
        <source>All there are</source>
        <translation>Die einzigen</translation>
    </message>
    <message>
        <source>Clear the title</source>
        <translation>Titel leeren</translation>
    </message>
    <message>
        <source>Clear the headline</source>
        <translation>Überschrift leeren</translation>
    </message>
    <message>
        <source>Clear the caption</source>
        <translation>Beschreibung leeren</translation>
    </message>
    <message>
        <source>Clear all keywords</source>
        <translation>Alle Stichwörter leeren</translation>
    </message>
    <message>
        <source>Clear the creator</source>
        <translation>Urheber leeren</translation>
    </message>
    <message>
        <source>Clear the job title</source>
        <translation>Berufsbezeichnung leeren</translation>
    </message>
    <message>
        <source>Clear the address</source>
        <translation>Anschrift leeren</translation>
    </message>
    <message>
        <source>Clear the phone number</source>
        <translation>Telefonnummer leeren</translation>
    </message>
    <message>
        <source>Clear the email address</source>
        <translation>E-Mail-Adresse leeren</translation>
    </message>
    <message>
        <source>Clear the website</source>
        <translation>Website leeren</translation>
    </message>
    <message>
        <source>Clear the copyright</source>
        <translation>Copyright leeren</translation>
    </message>
    <message>
        <source>Clear the usage terms</source>
        <translation>Nutzungsrechte leeren</translation>
    </message>
    <message>
        <source>Clear the credit line</source>
        <translation>Bildnachweis leeren</translation>
    </message>
    <message>
        <source>Clear the source</source>
        <translation>Quelle leeren</translation>
    </message>
    <message>
        <source>Clear the instructions</source>
        <translation>Anweisungen leeren</translation>
    </message>
    <message>
        <source>Clear the job identifier</source>
        <translation>Auftragsnummer leeren</translation>
    </message>
    <message>
        <source>Clear the sublocation</source>
        <translation>Ortsteil leeren</translation>
    </message>
    <message>
        <source>Clear the city</source>
        <translation>Stadt leeren</translation>
    </message>
    <message>
        <source>Clear the state</source>
        <translation>Bundesland leeren</translation>
    </message>
    <message>
        <source>Clear the country</source>
        <translation>Land leeren</translation>
    </message>
    <message>
        <source>Clear the country code</source>
        <translation>Ländercode leeren</translation>
    </message>
    <message>
        <source>Clear the date taken</source>
        <translation>Aufnahmedatum leeren</translation>
    </message>
    <message>
        <source>Clear this field</source>
        <translation>Dieses Feld leeren</translation>
    </message>
    <message>
        <source>Properties and Comments…</source>
        <translation>Eigenschaften und Kommentare …</translation>
    </message>
    <message>
        <source>Show all properties of the current picture, and write comments</source>
        <translation>Alle Eigenschaften des aktuellen Bildes zeigen und Kommentare schreiben</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Pictures whose metadata is written</source>
        <translation>Bilder, deren Metadaten geschrieben werden</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Insert Value…</source>
        <translation>Wert einfügen …</translation>
    </message>
    <message>
        <source>Insert a value that differs from picture to picture, such as the date</source>
        <translation>Etwas einfügen, das von Bild zu Bild anders ist, etwa das Datum</translation>
    </message>
    <message>
        <source>Separated by commas</source>
        <translation>Durch Kommas getrennt</translation>
    </message>
    <message>
        <source>These are</source>
        <translation>Diese sind</translation>
    </message>
    <message>
        <source>Whether keywords are added or replace all others</source>
        <translation>Ob Stichwörter hinzukommen oder alle anderen ersetzen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Keywords to remove, separated by commas</source>
        <translation>Stichwörter, die entfernt werden, durch Kommas getrennt</translation>
    </message>
    <message>
        <source>Several names are separated by semicolons</source>
        <translation>Mehrere Namen durch Semikolons trennen</translation>
    </message>
    <message>
        <source>2026-08-14 10:20:30+02:00</source>
        <translation>2026-08-14 10:20:30+02:00</translation>
    </message>
    <message>
        <source>Shift by</source>
        <translation>Verschieben um</translation>
    </message>
    <message>
        <source>Hours and minutes, such as +1:00 or −0:05:30</source>
        <translation>Stunden und Minuten, etwa +1:00 oder −0:05:30</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Zeitzone</translation>
    </message>
    <message>
        <source>Hours and minutes from Greenwich, such as +02:00</source>
        <translation>Stunden und Minuten ab Greenwich, etwa +02:00</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Keyword List</source>
        <translation>Stichwortliste</translation>
    </message>
    <message>
        <source>The keywords that are offered while you type</source>
        <translation>Die Stichwörter, die beim Tippen angeboten werden</translation>
    </message>
</context>
<context>
    <name>metadata-fields-pane</name>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Creator and Rights</source>
        <translation>Urheber und Rechte</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Date and Rating</source>
        <translation>Datum und Bewertung</translation>
    </message>
    <message>
        <source>Remove Private Data</source>
        <translation>Private Daten entfernen</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Ausgewählte</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Hinzugefügt</translation>
    </message>
    <message>
        <source>All there are</source>
        <translation>Die einzigen</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n used</source>
        <translation>
            <numerusform>%1, %n verwendet</numerusform>
            <numerusform>%1, %n verwendet</numerusform>
        </translation>
    </message>
    <message>
        <source>(cleared)</source>
        <translation>(geleert)</translation>
    </message>
    <message>
        <source>(several values)</source>
        <translation>(mehrere Werte)</translation>
    </message>
    <message>
        <source>Leave as it is</source>
        <translation>So lassen</translation>
    </message>
    <message>
        <source>Leave: %1</source>
        <translation>Lassen: %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>EXIF, IPTC and XMP of %1 disagree. What is written makes them agree.</source>
        <translation>EXIF, IPTC und XMP von %1 widersprechen sich. Was Sie schreiben, steht danach überall gleich.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importieren …</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Clear List…</source>
        <translation>Liste leeren …</translation>
    </message>
    <message>
        <source>Import keywords</source>
        <translation>Stichwörter importieren</translation>
    </message>
    <message>
        <source>Export keywords</source>
        <translation>Stichwörter exportieren</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Clear keyword list</source>
        <translation>Stichwortliste leeren</translation>
    </message>
    <message>
        <source>Remove all keywords from the list?</source>
        <translation>Alle Stichwörter aus der Liste entfernen?</translation>
    </message>
    <message>
        <source>Your pictures are not changed.</source>
        <translation>Ihre Bilder werden nicht geändert.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message numerus="yes">
        <source>%n keywords imported</source>
        <translation>
            <numerusform>%n Stichwort importiert</numerusform>
            <numerusform>%n Stichwörter importiert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n keywords exported</source>
        <translation>
            <numerusform>%n Stichwort exportiert</numerusform>
            <numerusform>%n Stichwörter exportiert</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>metadata-fields-step</name>
    <message>
        <source>%1 cleared</source>
        <translation>%1 geleert</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 entfernt</translation>
    </message>
    <message>
        <source>without %1</source>
        <translation>ohne %1</translation>
    </message>
    <message>
        <source>Date taken: write it as 2026-08-14, 2026-08-14 10:20:30 or 2026-08-14 10:20:30+02:00.</source>
        <translation>Aufnahmedatum: als 2026-08-14, 2026-08-14 10:20:30 oder 2026-08-14 10:20:30+02:00 schreiben.</translation>
    </message>
    <message>
        <source>Shift: write hours and minutes, such as +1:00 or −0:05:30.</source>
        <translation>Verschieben: Stunden und Minuten schreiben, etwa +1:00 oder −0:05:30.</translation>
    </message>
    <message>
        <source>Time zone: write it as +02:00.</source>
        <translation>Zeitzone: als +02:00 schreiben.</translation>
    </message>
    <message>
        <source>A date taken that you set is not shifted: add its time zone at the end.</source>
        <translation>Ein gesetztes Aufnahmedatum wird nicht verschoben: Schreiben Sie die Zeitzone dahinter.</translation>
    </message>
    <message>
        <source>Country code: two or three letters, such as PT or PRT.</source>
        <translation>Ländercode: zwei oder drei Buchstaben, etwa PT oder PRT.</translation>
    </message>
</context>
<context>
    <name>metadata-fields-presets</name>
    <message>
        <source>Copyright with the year</source>
        <translation>Copyright mit Aufnahmejahr</translation>
    </message>
    <message>
        <source>Headline from the folder name</source>
        <translation>Überschrift aus Ordnername</translation>
    </message>
    <message>
        <source>Remove private data</source>
        <translation>Private Daten entfernen</translation>
    </message>
</context>
<context>
    <name>script::ProgramFiles</name>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 cannot be removed.</source>
        <translation>%1 kann nicht entfernt werden.</translation>
    </message>
</context>
<context>
    <name>ratings</name>
    <message numerus="yes">
        <source>Write the ratings of %n pictures into their files?</source>
        <translation>
            <numerusform>Die Bewertung von %n Bild in seine Datei schreiben?</numerusform>
            <numerusform>Die Bewertungen von %n Bildern in ihre Dateien schreiben?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ratings written</source>
        <translation>
            <numerusform>%n Bewertung geschrieben</numerusform>
            <numerusform>%n Bewertungen geschrieben</numerusform>
        </translation>
    </message>
    <message>
        <source>Write ratings</source>
        <translation>Bewertungen schreiben</translation>
    </message>
    <message>
        <source>This changes the XMP rating inside your originals, and nothing else. Files that cannot hold it get a sidecar file. You can revert it in the log.</source>
        <translation>Dies ändert die XMP-Bewertung in Ihren Originalen und sonst nichts. Dateien, die sie nicht aufnehmen können, erhalten eine Begleitdatei. Im Protokoll lässt es sich rückgängig machen.</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Schreiben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>All ratings are in their files already.</source>
        <translation>Alle Bewertungen stehen schon in ihren Dateien.</translation>
    </message>
    <message>
        <source>Ratings: %1 done</source>
        <translation>Bewertungen: %1 fertig</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Metadaten</translation>
    </message>
</context>
<context>
    <name>recipe-making</name>
    <message>
        <source>the picture no longer exists</source>
        <translation>das Bild ist nicht mehr vorhanden</translation>
    </message>
</context>
<context>
    <name>list-properties</name>
    <message>
        <source>is</source>
        <translation>ist</translation>
    </message>
    <message>
        <source>is not</source>
        <translation>ist nicht</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>enthält</translation>
    </message>
    <message>
        <source>above</source>
        <translation>größer als</translation>
    </message>
    <message>
        <source>below</source>
        <translation>kleiner als</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>is not empty</source>
        <translation>ist nicht leer</translation>
    </message>
    <message>
        <source>All conditions apply</source>
        <translation>Alle Bedingungen treffen zu</translation>
    </message>
    <message>
        <source>At least one condition applies</source>
        <translation>Mindestens eine Bedingung trifft zu</translation>
    </message>
    <message>
        <source>Search properties</source>
        <translation>Eigenschaften suchen</translation>
    </message>
    <message>
        <source>Choose Property…</source>
        <translation>Eigenschaft wählen …</translation>
    </message>
    <message>
        <source>No columns</source>
        <translation>Keine Spalten</translation>
    </message>
    <message>
        <source>No filter</source>
        <translation>Kein Filter</translation>
    </message>
    <message>
        <source>Shown: %1</source>
        <translation>Angezeigt: %1</translation>
    </message>
    <message>
        <source>All pictures are shown</source>
        <translation>Alle Bilder werden angezeigt</translation>
    </message>
</context>
<context>
    <name>ListProperties</name>
    <message>
        <source>Properties and filter</source>
        <translation>Eigenschaften und Filter</translation>
    </message>
    <message>
        <source>Sa&amp;ved filter</source>
        <translation>&amp;Gespeicherter Filter</translation>
    </message>
    <message>
        <source>Name of the filter</source>
        <translation>Name des Filters</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save the conditions below under this name</source>
        <translation>Die Bedingungen darunter unter diesem Namen speichern</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Part of a name or a value</source>
        <translation>Teil eines Namens oder Werts</translation>
    </message>
    <message>
        <source>S&amp;how</source>
        <translation>&amp;Anzeigen, wenn</translation>
    </message>
    <message>
        <source>Choose the property</source>
        <translation>Eigenschaft wählen</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Vergleich</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove this condition</source>
        <translation>Diese Bedingung entfernen</translation>
    </message>
    <message>
        <source>Add Condition</source>
        <translation>Bedingung hinzufügen</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Add &amp;Column…</source>
        <translation>S&amp;palte hinzufügen …</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Alle zeigen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>field-work</name>
    <message>
        <source>its old values cannot be kept: %1</source>
        <translation>die alten Werte können nicht aufbewahrt werden: %1</translation>
    </message>
</context>
<context>
    <name>full-disk</name>
    <message>
        <source>The disk is full</source>
        <translation>Der Datenträger ist voll</translation>
    </message>
    <message>
        <source>There is no space left in %1.</source>
        <translation>In %1 ist kein Platz mehr.</translation>
    </message>
    <message>
        <source>Free some space and try again, or choose another folder.</source>
        <translation>Schaffen Sie Platz und versuchen Sie es erneut, oder wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Free some space and try again.</source>
        <translation>Schaffen Sie Platz und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Erneut versuchen</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Ordner wählen …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save the rest to</source>
        <translation>Den Rest speichern in</translation>
    </message>
</context>
<context>
    <name>window::DialogPanels</name>
    <message>
        <source>Folder:</source>
        <translation>Ordner:</translation>
    </message>
</context>
</TS>
