<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>About</name>
    <message>
        <source>About Quorlin</source>
        <translation>À propos de Quorlin</translation>
    </message>
    <message>
        <source>Process a whole folder of pictures in one go. Quorlin shows the result first, does the work, checks it and keeps a log.</source>
        <translation>Traiter tout un dossier d’images en une seule fois. Quorlin montre d’abord le résultat, fait le travail, le vérifie et tient un journal.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later. It comes without any warranty.</source>
        <translation>Logiciel libre sous licence publique générale GNU, version 3 ou ultérieure. Il est fourni sans aucune garantie.</translation>
    </message>
    <message>
        <source>Built with these libraries</source>
        <translation>Conçu avec ces bibliothèques</translation>
    </message>
    <message>
        <source>Libraries with their versions and licences</source>
        <translation>Bibliothèques, versions et licences</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>How the processes that read pictures are confined</source>
        <translation>Comment les processus qui lisent les images sont confinés</translation>
    </message>
    <message>
        <source>Copy Versions</source>
        <translation>Copier les versions</translation>
    </message>
    <message>
        <source>Copy the versions for a bug report</source>
        <translation>Copier les versions pour un rapport d’erreur</translation>
    </message>
</context>
<context>
    <name>AddFolder</name>
    <message>
        <source>Include &amp;subfolders</source>
        <translation>Inclure les &amp;sous-dossiers</translation>
    </message>
    <message>
        <source>Fil&amp;ter…</source>
        <translation>Fil&amp;trer…</translation>
    </message>
    <message>
        <source>Add only files of a certain type, size, date or name</source>
        <translation>N’ajouter que les fichiers d’un certain type, poids, date ou nom</translation>
    </message>
    <message>
        <source>T&amp;ypes</source>
        <translation>F&amp;ormats</translation>
    </message>
    <message>
        <source>all, or jpg, tif</source>
        <translation>tous, ou jpg, tif</translation>
    </message>
    <message>
        <source>File types, by extension</source>
        <translation>Formats de fichier, par extension</translation>
    </message>
    <message>
        <source>Name &amp;contains</source>
        <translation>Le nom &amp;contient</translation>
    </message>
    <message>
        <source>any</source>
        <translation>n’importe lequel</translation>
    </message>
    <message>
        <source>Part of the name</source>
        <translation>Partie du nom</translation>
    </message>
    <message>
        <source>Si&amp;ze from</source>
        <translation>&amp;Poids de</translation>
    </message>
    <message>
        <source> MB</source>
        <translation> Mo</translation>
    </message>
    <message>
        <source>Size from</source>
        <translation>Poids de</translation>
    </message>
    <message>
        <source>to</source>
        <translation>à</translation>
    </message>
    <message>
        <source>Size to</source>
        <translation>Poids jusqu’à</translation>
    </message>
    <message>
        <source>&amp;Date from</source>
        <translation>&amp;Date du</translation>
    </message>
    <message>
        <source>The date taken, or the date changed if the file has no date taken</source>
        <translation>La date de prise de vue ou, à défaut, la date de modification</translation>
    </message>
    <message>
        <source>First day</source>
        <translation>Premier jour</translation>
    </message>
    <message>
        <source>Last day</source>
        <translation>Dernier jour</translation>
    </message>
    <message>
        <source>With 0 there is no upper limit</source>
        <translation>Avec 0, il n’y a pas de limite supérieure</translation>
    </message>
</context>
<context>
    <name>AddToRecipe</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Add these settings to</source>
        <translation>Ajouter ces réglages à</translation>
    </message>
    <message>
        <source>Recipe to add to</source>
        <translation>Recette à compléter</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
</context>
<context>
    <name>BackgroundPane</name>
    <message>
        <source>Background</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>What fills transparent parts</source>
        <translation>Ce qui remplit les parties transparentes</translation>
    </message>
    <message>
        <source>Colour for transparent parts</source>
        <translation>Couleur des parties transparentes</translation>
    </message>
    <message>
        <source>Pattern for transparent parts</source>
        <translation>Motif des parties transparentes</translation>
    </message>
    <message>
        <source>About your own patterns</source>
        <translation>À propos de vos propres motifs</translation>
    </message>
    <message>
        <source>Border</source>
        <translation>Bordure</translation>
    </message>
    <message>
        <source>Border width</source>
        <translation>Largeur de bordure</translation>
    </message>
    <message>
        <source>Border colour</source>
        <translation>Couleur de la bordure</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
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
        <translation>Horloges des appareils</translation>
    </message>
    <message>
        <source>Correct the dates of a camera whose clock was wrong. This affects sorting, new names and folders. No file is changed.</source>
        <translation>Corrigez les dates d’un appareil dont l’horloge était déréglée. Cela agit sur le tri, les nouveaux noms et les dossiers. Aucun fichier n’est modifié.</translation>
    </message>
    <message>
        <source>Ca&amp;mera</source>
        <translation>Ap&amp;pareil</translation>
    </message>
    <message>
        <source>Move its &amp;dates</source>
        <translation>Décaler ses &amp;dates</translation>
    </message>
    <message>
        <source>Later or earlier</source>
        <translation>Plus tard ou plus tôt</translation>
    </message>
    <message>
        <source> h</source>
        <translation> h</translation>
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
        <translation>Heures</translation>
    </message>
    <message>
        <source>Minutes</source>
        <translation>Minutes</translation>
    </message>
    <message>
        <source>Seconds</source>
        <translation>Secondes</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Tout rétablir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>ContactPages</name>
    <message>
        <source>Preview of the pages</source>
        <translation>Aperçu des pages</translation>
    </message>
    <message>
        <source>Pages before</source>
        <translation>Pages précédentes</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>Aucune page</translation>
    </message>
    <message>
        <source>Pages after</source>
        <translation>Pages suivantes</translation>
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
        <translation>Taille</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Width of the paper</source>
        <translation>Largeur du papier</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Height of the paper</source>
        <translation>Hauteur du papier</translation>
    </message>
    <message>
        <source>Paper orientation</source>
        <translation>Orientation du papier</translation>
    </message>
    <message>
        <source>Per page</source>
        <translation>Par page</translation>
    </message>
    <message>
        <source>Pictures across</source>
        <translation>Images en largeur</translation>
    </message>
    <message>
        <source>Pictures down</source>
        <translation>Images en hauteur</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>How a picture fits its place</source>
        <translation>Comment une image remplit sa place</translation>
    </message>
    <message>
        <source>Rotate pictures to fit</source>
        <translation>Pivoter les images pour les agrandir</translation>
    </message>
    <message>
        <source>Fill each page with one picture</source>
        <translation>Remplir chaque page avec une seule image</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Gap between pictures</source>
        <translation>Espace entre les images</translation>
    </message>
    <message>
        <source>Top, bottom</source>
        <translation>Haut, bas</translation>
    </message>
    <message>
        <source>Margin at the top</source>
        <translation>Marge du haut</translation>
    </message>
    <message>
        <source>Margin at the bottom</source>
        <translation>Marge du bas</translation>
    </message>
    <message>
        <source>Left, right</source>
        <translation>Gauche, droite</translation>
    </message>
    <message>
        <source>Margin on the left</source>
        <translation>Marge de gauche</translation>
    </message>
    <message>
        <source>Margin on the right</source>
        <translation>Marge de droite</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>Caption below each picture</source>
        <translation>Légende sous chaque image</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <translation>Insérer une variable</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Taille du texte</translation>
    </message>
    <message>
        <source> pt</source>
        <translation> pt</translation>
    </message>
    <message>
        <source>Text size of the captions</source>
        <translation>Taille du texte des légendes</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>En-tête</translation>
    </message>
    <message>
        <source>Insert the page number</source>
        <translation>Insérer le numéro de page</translation>
    </message>
    <message>
        <source>Position of the header</source>
        <translation>Position de l’en-tête</translation>
    </message>
    <message>
        <source>Footer</source>
        <translation>Pied de page</translation>
    </message>
    <message>
        <source>Position of the footer</source>
        <translation>Position du pied de page</translation>
    </message>
    <message>
        <source>Crop marks</source>
        <translation>Traits de coupe</translation>
    </message>
    <message>
        <source>Thin line around pictures</source>
        <translation>Filet autour des images</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Header size</source>
        <translation>Taille en-tête</translation>
    </message>
    <message>
        <source>Text size of the header and footer</source>
        <translation>Taille du texte de l’en-tête et du pied de page</translation>
    </message>
    <message>
        <source>Page colour</source>
        <translation>Couleur de page</translation>
    </message>
    <message>
        <source>Colour of the page</source>
        <translation>Couleur de la page</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> ppp</translation>
    </message>
    <message>
        <source>Maximum number of pixels per inch of paper</source>
        <translation>Nombre maximal de pixels par pouce de papier</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>%</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Quality of the pictures</source>
        <translation>Qualité des images</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>Colour profile of the pictures</source>
        <translation>Profil colorimétrique des images</translation>
    </message>
    <message>
        <source>More…</source>
        <translation>Plus…</translation>
    </message>
    <message>
        <source>Show more or fewer page settings</source>
        <translation>Afficher plus ou moins de réglages des pages</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name of the file, without .pdf</source>
        <translation>Nom du fichier, sans .pdf</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Plus la qualité est haute, plus le fichier est lourd</translation>
    </message>
    <message>
        <source>Converts the colours. sRGB suits screens and most printers.</source>
        <translation>Convertit les couleurs. sRGB convient aux écrans et à la plupart des imprimantes.</translation>
    </message>
    <message>
        <source>A higher resolution means larger files</source>
        <translation>Plus la résolution est haute, plus le fichier est lourd</translation>
    </message>
</context>
<context>
    <name>ConvertPane</name>
    <message>
        <source>Convert to</source>
        <translation>Convertir en</translation>
    </message>
    <message>
        <source>File type of the results</source>
        <translation>Format des résultats</translation>
    </message>
    <message>
        <source>File type to convert to</source>
        <translation>Format dans lequel convertir</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>JPEG quality, 1 to 9</source>
        <translation>Qualité JPEG, de 1 à 9</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Plus la qualité est haute, plus le fichier est lourd</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
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
        <translation>Taille</translation>
    </message>
    <message>
        <source>Trim by %</source>
        <translation>Rogner %</translation>
    </message>
    <message>
        <source>Trim by px</source>
        <translation>Rogner px</translation>
    </message>
    <message>
        <source>How the frame is set</source>
        <translation>Façon de définir le cadre</translation>
    </message>
    <message>
        <source>Width, height</source>
        <translation>Largeur, hauteur</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Width of the frame</source>
        <translation>Largeur du cadre</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Height of the frame</source>
        <translation>Hauteur du cadre</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Rogner</translation>
    </message>
    <message>
        <source>%</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Percentage to trim from width and height</source>
        <translation>Pourcentage à rogner en largeur et en hauteur</translation>
    </message>
    <message>
        <source>Pixels to trim from width and height</source>
        <translation>Pixels à rogner en largeur et en hauteur</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Ratio of width to height</source>
        <translation>Rapport entre largeur et hauteur</translation>
    </message>
    <message>
        <source>Unit of size and offsets</source>
        <translation>Unité des dimensions et des décalages</translation>
    </message>
    <message>
        <source>Unit of size and offsets: pixels, millimetres, centimetres, inches, picas, points</source>
        <translation>Unité des dimensions et des décalages : pixels, millimètres, centimètres, pouces, picas, points</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Position of the frame</source>
        <translation>Position du cadre</translation>
    </message>
    <message>
        <source>Offset to the right</source>
        <translation>Décalage vers la droite</translation>
    </message>
    <message>
        <source>How far the frame is moved to the right</source>
        <translation>Décalage du cadre vers la droite</translation>
    </message>
    <message>
        <source>→ </source>
        <translation>→ </translation>
    </message>
    <message>
        <source>Offset downward</source>
        <translation>Décalage vers le bas</translation>
    </message>
    <message>
        <source>How far the frame is moved down</source>
        <translation>Décalage du cadre vers le bas</translation>
    </message>
    <message>
        <source>↓ </source>
        <translation>↓ </translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
    <message>
        <source>Swap for portrait pictures</source>
        <translation>Inverser pour les portraits</translation>
    </message>
    <message>
        <source>The larger number is used for the longer side: 3:2 becomes 2:3 in portrait pictures</source>
        <translation>Le plus grand nombre s’applique au grand côté : 3:2 devient 2:3 pour les portraits</translation>
    </message>
    <message>
        <source>First number of the ratio</source>
        <translation>Premier nombre du rapport</translation>
    </message>
    <message>
        <source>Second number of the ratio</source>
        <translation>Second nombre du rapport</translation>
    </message>
    <message>
        <source>Focus of attention</source>
        <translation>Centre d’intérêt</translation>
    </message>
    <message>
        <source>Finds in each picture the part that draws the eye, and places the frame there</source>
        <translation>Cherche dans chaque image la partie qui attire le regard et y place le cadre</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Unit of the offsets</source>
        <translation>Unité des décalages</translation>
    </message>
    <message>
        <source>Unit of the offsets: pixels, millimetres, centimetres, inches, picas, points</source>
        <translation>Unité des décalages : pixels, millimètres, centimètres, pouces, picas, points</translation>
    </message>
    <message>
        <source>Resolution used for lengths</source>
        <translation>Résolution pour les longueurs</translation>
    </message>
    <message>
        <source>Dots per inch used to turn lengths into pixels. A chosen resolution is also written into the file.</source>
        <translation>Points par pouce servant à convertir les longueurs en pixels. Une résolution choisie est aussi écrite dans le fichier.</translation>
    </message>
    <message>
        <source>Dots per inch</source>
        <translation>Points par pouce</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> ppp</translation>
    </message>
    <message>
        <source>Turns lengths into pixels and is written into the file</source>
        <translation>Convertit les longueurs en pixels et est écrite dans le fichier</translation>
    </message>
</context>
<context>
    <name>HandPage</name>
    <message>
        <source>Drop pictures or folders here</source>
        <translation>Déposez ici des images ou des dossiers</translation>
    </message>
    <message>
        <source>Pictures appear one at a time; press a key to send each one to a folder.</source>
        <translation>Les images s’affichent une à une ; une touche envoie chacune dans un dossier.</translation>
    </message>
    <message>
        <source>Add Pictures…</source>
        <translation>Ajouter des images…</translation>
    </message>
    <message>
        <source>Add pictures (Ctrl+O)</source>
        <translation>Ajouter des images (Ctrl+O)</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ajouter un dossier…</translation>
    </message>
    <message>
        <source>Add all pictures in a folder and its subfolders (Ctrl+Shift+O)</source>
        <translation>Ajouter toutes les images d’un dossier et de ses sous-dossiers (Ctrl+Maj+O)</translation>
    </message>
    <message>
        <source>The picture to sort</source>
        <translation>Image à classer</translation>
    </message>
    <message>
        <source>← Back</source>
        <translation>← Retour</translation>
    </message>
    <message>
        <source>Previous picture (Left, Backspace)</source>
        <translation>Image précédente (Gauche, Retour arrière)</translation>
    </message>
    <message>
        <source>Skip →</source>
        <translation>Passer →</translation>
    </message>
    <message>
        <source>Next picture (Right)</source>
        <translation>Image suivante (Droite)</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Corbeille</translation>
    </message>
    <message>
        <source>Move the picture to the trash (Del)</source>
        <translation>Mettre l’image à la corbeille (Suppr)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Undo (Ctrl+Z)</source>
        <translation>Annuler (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Passer</translation>
    </message>
    <message>
        <source>Move with Keys</source>
        <translation>Déplacer avec les touches</translation>
    </message>
    <message>
        <source>Copy with Keys</source>
        <translation>Copier avec les touches</translation>
    </message>
    <message>
        <source>Link with Keys</source>
        <translation>Lier avec les touches</translation>
    </message>
    <message>
        <source>Actual pixels</source>
        <translation>Pixels réels</translation>
    </message>
    <message>
        <source>Switch between actual pixels and the whole picture (Ctrl+2)</source>
        <translation>Passer des pixels réels à l’image entière et inversement (Ctrl+2)</translation>
    </message>
</context>
<context>
    <name>HandPane</name>
    <message>
        <source>When a key is pressed</source>
        <translation>Quand on appuie sur une touche</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lier</translation>
    </message>
    <message>
        <source>What a key does with the picture</source>
        <translation>Ce que fait une touche de l’image</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>Add…</source>
        <translation>Ajouter…</translation>
    </message>
    <message>
        <source>Choose a folder, or drop folders on the list</source>
        <translation>Choisir un dossier, ou déposer des dossiers sur la liste</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>Nouveau…</translation>
    </message>
    <message>
        <source>Create a new folder</source>
        <translation>Créer un dossier</translation>
    </message>
    <message>
        <source>⋯</source>
        <translation>⋯</translation>
    </message>
    <message>
        <source>Folder Options</source>
        <translation>Options du dossier</translation>
    </message>
    <message>
        <source>Name of the new folder</source>
        <translation>Nom du nouveau dossier</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Do not create a folder (Esc)</source>
        <translation>Ne pas créer de dossier (Échap)</translation>
    </message>
    <message>
        <source>Create Folder</source>
        <translation>Créer</translation>
    </message>
    <message>
        <source>Create the folder and give it a key (Return)</source>
        <translation>Créer le dossier et lui donner une touche (Entrée)</translation>
    </message>
    <message>
        <source>Folders and their keys</source>
        <translation>Dossiers et leurs touches</translation>
    </message>
    <message>
        <source>Add up to 59 folders to sort into. The first one gets key 1, and so on.</source>
        <translation>Ajoutez jusqu’à 59 dossiers de destination. Le premier reçoit la touche 1, et ainsi de suite.</translation>
    </message>
</context>
<context>
    <name>Info</name>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Explication</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>LongWait</name>
    <message>
        <source>Still reading</source>
        <translation>Lecture en cours</translation>
    </message>
    <message>
        <source>A picture is taking a long time to read.</source>
        <translation>La lecture d’une image prend du temps.</translation>
    </message>
    <message>
        <source>Do Not Wait</source>
        <translation>Ne pas attendre</translation>
    </message>
</context>
<context>
    <name>WebPane</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Title of the page</source>
        <translation>Titre de la page</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Text above the pictures</source>
        <translation>Texte au-dessus des images</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Rangées</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Récit</translation>
    </message>
    <message>
        <source>Arrangement of the pictures</source>
        <translation>Disposition des images</translation>
    </message>
    <message>
        <source>Sketch of the page</source>
        <translation>Esquisse de la page</translation>
    </message>
    <message>
        <source>Captions</source>
        <translation>Légendes</translation>
    </message>
    <message>
        <source>Pattern for all captions</source>
        <translation>Modèle de toutes les légendes</translation>
    </message>
    <message>
        <source>Insert a value</source>
        <translation>Insérer une valeur</translation>
    </message>
    <message>
        <source>This picture</source>
        <translation>Cette image</translation>
    </message>
    <message>
        <source>Caption of the current picture</source>
        <translation>Légende de l’image actuelle</translation>
    </message>
    <message>
        <source>As Above</source>
        <translation>Comme ci-dessus</translation>
    </message>
    <message>
        <source>Discard the caption of this picture</source>
        <translation>Abandonner la légende de cette image</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>Light page colour</source>
        <translation>Fond clair</translation>
    </message>
    <message>
        <source>Dark page colour</source>
        <translation>Fond sombre</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <source>Colour of links</source>
        <translation>Couleur des liens</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Language of the page</source>
        <translation>Langue de la page</translation>
    </message>
    <message>
        <source>Writing direction</source>
        <translation>Sens d’écriture</translation>
    </message>
    <message>
        <source>Longest side</source>
        <translation>Grand côté</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Petit</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>Grand</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Three sizes</source>
        <translation>Trois tailles</translation>
    </message>
    <message>
        <source>If this is off, each picture has only a small and a large file</source>
        <translation>Sinon, chaque image a seulement un petit et un grand fichier</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>File type of the pictures</source>
        <translation>Format des images</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Sharpen a little</source>
        <translation>Accentuer un peu</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Métadonnées</translation>
    </message>
    <message>
        <source>Metadata of the pictures</source>
        <translation>Métadonnées des images</translation>
    </message>
    <message>
        <source>Include the location</source>
        <translation>Inclure le lieu</translation>
    </message>
    <message>
        <source>The metadata keeps the location, and captions can contain it</source>
        <translation>Les métadonnées gardent le lieu et les légendes peuvent le citer</translation>
    </message>
    <message>
        <source>Offer the pictures for download</source>
        <translation>Proposer les images au téléchargement</translation>
    </message>
    <message>
        <source>Save in</source>
        <translation>Enregistrer dans</translation>
    </message>
    <message>
        <source>Where the page is saved</source>
        <translation>Où la page est enregistrée</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Name of the folder of the page</source>
        <translation>Nom du dossier de la page</translation>
    </message>
    <message>
        <source>If it exists</source>
        <translation>S’il existe</translation>
    </message>
    <message>
        <source>What happens if the folder exists</source>
        <translation>Ce qui se passe si le dossier existe</translation>
    </message>
    <message>
        <source>Template</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Template of the page</source>
        <translation>Modèle de la page</translation>
    </message>
    <message>
        <source>Open Preview</source>
        <translation>Ouvrir l’aperçu</translation>
    </message>
    <message>
        <source>Shows the page with its first 12 pictures in the browser</source>
        <translation>Affiche la page avec ses 12 premières images dans le navigateur</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sens d’écriture</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Plus la qualité est haute, plus le fichier est lourd</translation>
    </message>
</context>
<context>
    <name>contact-action</name>
    <message>
        <source>Contact Sheet</source>
        <translation>Planche-contact</translation>
    </message>
    <message>
        <source>Making pages</source>
        <translation>Création des pages</translation>
    </message>
    <message numerus="yes">
        <source>Make %n Pages</source>
        <translation>
            <numerusform>Créer %n page</numerusform>
            <numerusform>Créer %n pages</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>contact-pane</name>
    <message>
        <source>Other…</source>
        <translation>Autre…</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Own size</source>
        <translation>Taille d’origine</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Au centre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Choose a colour profile</source>
        <translation>Choisir un profil colorimétrique</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Moins</translation>
    </message>
    <message>
        <source>More…</source>
        <translation>Plus…</translation>
    </message>
    <message>
        <source>Pages %1–%2 of %3</source>
        <translation>Pages %1–%2 sur %3</translation>
    </message>
    <message>
        <source>Page %1 of %3</source>
        <translation>Page %1 sur %3</translation>
    </message>
    <message>
        <source>No pages</source>
        <translation>Aucune page</translation>
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
        <translation>Planche-contact, 20 par page</translation>
    </message>
    <message>
        <source>Contact sheet, 48 on a page</source>
        <translation>Planche-contact, 48 par page</translation>
    </message>
    <message>
        <source>Contact sheet on black</source>
        <translation>Planche-contact sur fond noir</translation>
    </message>
    <message>
        <source>One on a page, with its name</source>
        <translation>Une par page, avec son nom</translation>
    </message>
    <message>
        <source>Proofs, 2 on a page</source>
        <translation>Épreuves, 2 par page</translation>
    </message>
    <message>
        <source>Prints of 9 × 13 cm to cut</source>
        <translation>Tirages de 9 × 13 cm à découper</translation>
    </message>
</context>
<context>
    <name>contact-step</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Contact sheet</source>
        <translation>Planche-contact</translation>
    </message>
    <message>
        <source>%1 × %2 on a page</source>
        <translation>%1 × %2 par page</translation>
    </message>
</context>
<context>
    <name>crash-note</name>
    <message>
        <source>Quorlin ended unexpectedly</source>
        <translation>Quorlin s’est arrêté de façon inattendue</translation>
    </message>
    <message>
        <source>An error in Quorlin ended the last session. Your originals are not affected.</source>
        <translation>Une erreur de Quorlin a mis fin à la dernière session. Vos originaux ne sont pas touchés.</translation>
    </message>
    <message>
        <source>A report was saved on this computer and not sent. It names the version, the action, the picture and the place of the error.</source>
        <translation>Un rapport a été enregistré sur cet ordinateur sans être envoyé. Il indique la version, l’action, l’image et l’endroit de l’erreur.</translation>
    </message>
    <message>
        <source>Copy Report</source>
        <translation>Copier le rapport</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>interrupted-bar</name>
    <message>
        <source>A run was interrupted</source>
        <translation>Un traitement a été interrompu</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message numerus="yes">
        <source>Writing metadata was interrupted: %n pictures were changed. You can revert them in the log.</source>
        <translation>
            <numerusform>L’écriture des métadonnées a été interrompue : %n image a été modifiée. Le journal permet d’annuler l’écriture.</numerusform>
            <numerusform>L’écriture des métadonnées a été interrompue : %n images ont été modifiées. Le journal permet d’annuler l’écriture.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>Search the log</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Shows entries that contain every word (Ctrl+F)</source>
        <translation>Affiche les entrées qui contiennent chaque mot (Ctrl+F)</translation>
    </message>
    <message>
        <source>Show entries with this status</source>
        <translation>Afficher les entrées de ce statut</translation>
    </message>
    <message>
        <source>Show entries of this kind</source>
        <translation>Afficher les entrées de ce genre</translation>
    </message>
    <message>
        <source>Show Picture</source>
        <translation>Voir l’image</translation>
    </message>
    <message>
        <source>Show the picture large, if it still exists (Return)</source>
        <translation>Voir l’image en grand, si elle existe encore (Entrée)</translation>
    </message>
    <message>
        <source>Show in Folder</source>
        <translation>Voir dans le dossier</translation>
    </message>
    <message>
        <source>Open the folder and select the file in it</source>
        <translation>Ouvrir le dossier et y sélectionner le fichier</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Save the entries shown as a CSV file for spreadsheets</source>
        <translation>Enregistrer les entrées affichées dans un fichier CSV pour tableurs</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>Log Options</source>
        <translation>Options du journal</translation>
    </message>
    <message>
        <source>Runs</source>
        <translation>Traitements</translation>
    </message>
    <message>
        <source>Entries of the log</source>
        <translation>Entrées du journal</translation>
    </message>
    <message>
        <source>Revert Comment</source>
        <translation>Restaurer le commentaire</translation>
    </message>
    <message>
        <source>Restore the old comments of the selected pictures</source>
        <translation>Restaurer l’ancien commentaire des images sélectionnées</translation>
    </message>
    <message>
        <source>Undo This Run</source>
        <translation>Annuler ce traitement</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Search the Log</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Use These Settings</source>
        <translation>Utiliser ces réglages</translation>
    </message>
    <message>
        <source>Open the action of this run with its settings</source>
        <translation>Ouvrir l’action de ce traitement avec ses réglages</translation>
    </message>
    <message>
        <source>Forget Old Values</source>
        <translation>Oublier les anciennes valeurs</translation>
    </message>
    <message>
        <source>Delete the old metadata that is kept for reverting</source>
        <translation>Supprimer les anciennes métadonnées gardées pour l’annulation</translation>
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
        <translation>Ajouter des images…</translation>
    </message>
    <message>
        <source>Add pictures (Ctrl+O)</source>
        <translation>Ajouter des images (Ctrl+O)</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ajouter un dossier…</translation>
    </message>
    <message>
        <source>Add all pictures in a folder and its subfolders (Ctrl+Shift+O)</source>
        <translation>Ajouter toutes les images d’un dossier et de ses sous-dossiers (Ctrl+Maj+O)</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Clear the list (files are not deleted)</source>
        <translation>Vider la liste (les fichiers ne sont pas supprimés)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>How the preview fits the view</source>
        <translation>Façon dont l’aperçu occupe la vue</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Full screen and back (F11)</source>
        <translation>Plein écran et retour (F11)</translation>
    </message>
    <message>
        <source>Choose a folder for your own background patterns?</source>
        <translation>Choisir un dossier pour vos propres motifs de fond&#x202f;?</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>No, Thanks</source>
        <translation>Non merci</translation>
    </message>
    <message>
        <source>You can choose it in the preferences at any time (Ctrl+,)</source>
        <translation>Vous pouvez le choisir à tout moment dans les préférences (Ctrl+,)</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Drop pictures or folders here</source>
        <translation>Déposez ici des images ou des dossiers</translation>
    </message>
    <message>
        <source>Then choose an action on the left. Your originals stay unchanged unless you ask for it.</source>
        <translation>Choisissez ensuite une action à gauche. Vos originaux restent inchangés, sauf si vous demandez autre chose.</translation>
    </message>
    <message>
        <source>Preview of the original and the result</source>
        <translation>Aperçu de l’original et du résultat</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Dry run: move nothing</source>
        <translation>Essai à blanc : ne rien déplacer</translation>
    </message>
    <message>
        <source>About dry runs</source>
        <translation>À propos des essais à blanc</translation>
    </message>
    <message>
        <source>Resize Pictures</source>
        <translation>Redimensionner les images</translation>
    </message>
    <message>
        <source>Start (Ctrl+Return)</source>
        <translation>Démarrer (Ctrl+Entrée)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Avancement du traitement</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stop after the current picture (Esc)</source>
        <translation>Arrêter après l’image en cours (Échap)</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Show Failed</source>
        <translation>Voir les échecs</translation>
    </message>
    <message>
        <source>Retry Failed</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Save Report…</source>
        <translation>Rapport…</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Recent &amp;Folders</source>
        <translation>Dossiers &amp;récents</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>Appare&amp;nce</translation>
    </message>
    <message>
        <source>&amp;Run</source>
        <translation>&amp;Traitement</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;Add Pictures…</source>
        <translation>&amp;Ajouter des images…</translation>
    </message>
    <message>
        <source>Add &amp;Folder…</source>
        <translation>Ajouter un &amp;dossier…</translation>
    </message>
    <message>
        <source>Save Picture &amp;As…</source>
        <translation>&amp;Enregistrer l’image sous…</translation>
    </message>
    <message>
        <source>&amp;Save Report…</source>
        <translation>Enregistrer le rapp&amp;ort…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Paste Pictures</source>
        <translation>&amp;Coller des images</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>&amp;Retirer de la liste</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vider la liste</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>&amp;Fit Preview</source>
        <translation>&amp;Ajuster l’aperçu</translation>
    </message>
    <message>
        <source>F&amp;ill Preview</source>
        <translation>&amp;Remplir l’aperçu</translation>
    </message>
    <message>
        <source>&amp;Next Picture</source>
        <translation>Image &amp;suivante</translation>
    </message>
    <message>
        <source>&amp;Previous Picture</source>
        <translation>Image &amp;précédente</translation>
    </message>
    <message>
        <source>&amp;Large Preview</source>
        <translation>&amp;Grand aperçu</translation>
    </message>
    <message>
        <source>&amp;System</source>
        <translation>S&amp;ystème</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Sombre</translation>
    </message>
    <message>
        <source>Full &amp;Screen</source>
        <translation>Plein é&amp;cran</translation>
    </message>
    <message>
        <source>&amp;Start</source>
        <translation>&amp;Démarrer</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>Re&amp;name…</source>
        <translation>Re&amp;nommer…</translation>
    </message>
    <message>
        <source>Show &amp;Failed Only</source>
        <translation>Échecs &amp;seulement</translation>
    </message>
    <message>
        <source>&amp;Retry Failed</source>
        <translation>&amp;Réessayer les échecs</translation>
    </message>
    <message>
        <source>Page Set&amp;up…</source>
        <translation>&amp;Mise en page…</translation>
    </message>
    <message>
        <source>&amp;Print…</source>
        <translation>&amp;Imprimer…</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Manuel</translation>
    </message>
    <message>
        <source>Check for &amp;Updates</source>
        <translation>Rechercher des mises à &amp;jour</translation>
    </message>
    <message>
        <source>&amp;About Quorlin</source>
        <translation>À &amp;propos de Quorlin</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Show all rows of the list</source>
        <translation>Afficher toutes les lignes de la liste</translation>
    </message>
    <message>
        <source>Show Them…</source>
        <translation>Les afficher…</translation>
    </message>
    <message>
        <source>Show which files of the list this action cannot use</source>
        <translation>Afficher les fichiers de la liste que cette action ne peut pas utiliser</translation>
    </message>
    <message>
        <source>Convert Them</source>
        <translation>Les convertir</translation>
    </message>
    <message>
        <source>Go to Convert, which can use them</source>
        <translation>Passer à « Convertir », qui peut les utiliser</translation>
    </message>
    <message>
        <source>Try Sample Pictures</source>
        <translation>Essayer avec des images d’exemple</translation>
    </message>
    <message>
        <source>Copies five pictures to the folder “Quorlin Samples” in your pictures folder</source>
        <translation>Copie cinq images dans le dossier « Quorlin Samples » de votre dossier d’images</translation>
    </message>
    <message>
        <source>&amp;Watch a Folder…</source>
        <translation>&amp;Surveiller un dossier…</translation>
    </message>
    <message>
        <source>Process pictures as they arrive in a folder, with these settings</source>
        <translation>Traiter les images dès qu’elles arrivent dans un dossier, avec ces réglages</translation>
    </message>
    <message>
        <source>Stop Watching</source>
        <translation>Arrêter la surveillance</translation>
    </message>
    <message>
        <source>Add Anyway</source>
        <translation>Les ajouter quand même</translation>
    </message>
    <message>
        <source>Add results of earlier runs to the list</source>
        <translation>Ajouter à la liste les résultats de traitements antérieurs</translation>
    </message>
    <message>
        <source>What to do when this run is finished</source>
        <translation>Que faire à la fin de ce traitement</translation>
    </message>
    <message>
        <source>When done</source>
        <translation>À la fin</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>Laisser</translation>
    </message>
    <message>
        <source>Return the finished files to their old names and folders (Ctrl+Z)</source>
        <translation>Rendre aux fichiers traités leurs anciens noms et dossiers (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Keep what is finished. You will not be asked again.</source>
        <translation>Garder ce qui est fait. La question ne sera plus posée.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>&amp;Tick or Untick</source>
        <translation>&amp;Cocher ou décocher</translation>
    </message>
    <message>
        <source>A run leaves out rows that are not ticked</source>
        <translation>Un traitement ignore les lignes non cochées</translation>
    </message>
    <message>
        <source>Tick A&amp;ll</source>
        <translation>&amp;Tout cocher</translation>
    </message>
    <message>
        <source>&amp;Columns of the List</source>
        <translation>&amp;Colonnes de la liste</translation>
    </message>
    <message>
        <source>&amp;Actual Pixels</source>
        <translation>Pixels &amp;réels</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Repeat the &amp;Last Run</source>
        <translation>Répéter le &amp;dernier traitement</translation>
    </message>
    <message>
        <source>Process the pictures added since the last run, with its settings</source>
        <translation>Traiter les images ajoutées depuis le dernier traitement, avec ses réglages</translation>
    </message>
    <message>
        <source>Camera &amp;Clocks…</source>
        <translation>&amp;Horloges des appareils…</translation>
    </message>
    <message>
        <source>Correct the dates of a camera whose clock was wrong, without changing any file</source>
        <translation>Corriger les dates d’un appareil dont l’horloge était déréglée, sans modifier de fichier</translation>
    </message>
    <message>
        <source>Recent &amp;Destinations</source>
        <translation>&amp;Destinations récentes</translation>
    </message>
    <message>
        <source>Recent Re&amp;cipes</source>
        <translation>Re&amp;cettes récentes</translation>
    </message>
    <message>
        <source>&amp;Export List…</source>
        <translation>&amp;Exporter la liste…</translation>
    </message>
    <message>
        <source>Save the list with all its columns as a CSV file for spreadsheets</source>
        <translation>Enregistrer la liste avec toutes ses colonnes dans un fichier CSV pour tableurs</translation>
    </message>
    <message>
        <source>&amp;Copy Files</source>
        <translation>&amp;Copier les fichiers</translation>
    </message>
    <message>
        <source>Copy the files of the selected rows, or their results (in the list: Ctrl+C)</source>
        <translation>Copier les fichiers des lignes sélectionnées ou leurs résultats (dans la liste : Ctrl+C)</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>&amp;Write Ratings into Files…</source>
        <translation>Écrire les &amp;notes dans les fichiers…</translation>
    </message>
    <message>
        <source>Write the stars of the list into the files of its pictures, where other programs read them</source>
        <translation>Écrire les étoiles de la liste dans les fichiers des images, où d’autres programmes les lisent</translation>
    </message>
    <message>
        <source>&amp;Properties and Filter…</source>
        <translation>&amp;Propriétés et filtre…</translation>
    </message>
    <message>
        <source>Show metadata as columns of the list, and only the pictures that match</source>
        <translation>Afficher des métadonnées en colonnes, et seulement les images qui correspondent</translation>
    </message>
</context>
<context>
    <name>Manual</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Rechercher la suite</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Back (Alt+Left)</source>
        <translation>Précédent (Alt+Gauche)</translation>
    </message>
    <message>
        <source>Forward (Alt+Right)</source>
        <translation>Suivant (Alt+Droite)</translation>
    </message>
    <message>
        <source>Find in the manual</source>
        <translation>Rechercher dans le manuel</translation>
    </message>
    <message>
        <source>Press Return for the next match (Ctrl+F, F3)</source>
        <translation>Entrée affiche l’occurrence suivante (Ctrl+F, F3)</translation>
    </message>
    <message>
        <source>Pages of the manual</source>
        <translation>Pages du manuel</translation>
    </message>
    <message>
        <source>Page of the manual</source>
        <translation>Page du manuel</translation>
    </message>
</context>
<context>
    <name>MetadataPage</name>
    <message>
        <source>Drop pictures or folders here</source>
        <translation>Déposez ici des images ou des dossiers</translation>
    </message>
    <message>
        <source>You see all properties of each picture, and can read, write and revert its comment.</source>
        <translation>Vous voyez toutes les propriétés de chaque image et pouvez lire, écrire et restaurer son commentaire.</translation>
    </message>
    <message>
        <source>Add Pictures…</source>
        <translation>Ajouter des images…</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ajouter un dossier…</translation>
    </message>
    <message>
        <source>Search Properties</source>
        <translation>Chercher une propriété</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the selected value or branch (Ctrl+C in the tree), or where the picture was taken</source>
        <translation>Copier la valeur ou la branche sélectionnée (Ctrl+C dans l’arbre), ou le lieu de prise de vue</translation>
    </message>
    <message>
        <source>Properties of the picture</source>
        <translation>Propriétés de l’image</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>User comment</source>
        <translation>Commentaire utilisateur</translation>
    </message>
    <message>
        <source>Which pictures get the comment</source>
        <translation>Images qui reçoivent le commentaire</translation>
    </message>
    <message>
        <source>Insert Token…</source>
        <translation>Insérer une variable…</translation>
    </message>
    <message>
        <source>Insert a placeholder that is filled in for each picture</source>
        <translation>Insérer une variable qui est remplacée pour chaque image</translation>
    </message>
    <message>
        <source>Metadata History</source>
        <translation>Historique des métadonnées</translation>
    </message>
    <message>
        <source>Show old and new comments, and revert them</source>
        <translation>Afficher les anciens et les nouveaux commentaires, et les restaurer</translation>
    </message>
    <message>
        <source>Progress of the comments</source>
        <translation>Avancement des commentaires</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Stop after the picture that is being written (Esc)</source>
        <translation>Arrêter après l’image en cours d’écriture (Échap)</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Restore the old comments of the last run</source>
        <translation>Restaurer les anciens commentaires du dernier traitement</translation>
    </message>
    <message>
        <source>Choose Files…</source>
        <translation>Choisir des fichiers…</translation>
    </message>
    <message>
        <source>Choose JPEG and TIFF files and write the comment into all of them</source>
        <translation>Choisir des fichiers JPEG et TIFF et écrire le commentaire dans tous</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Choose a folder and write the comment into all its JPEG and TIFF files, subfolders included</source>
        <translation>Choisir un dossier et écrire le commentaire dans tous ses fichiers JPEG et TIFF, sous-dossiers compris</translation>
    </message>
    <message>
        <source>Write into All…</source>
        <translation>Écrire dans toutes…</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Write the comment into this picture. Press Ctrl+Return to also go to the next one.</source>
        <translation>Écrire le commentaire dans cette image. Ctrl+Entrée passe ensuite à la suivante.</translation>
    </message>
    <message>
        <source>Write Comment and Go to the Next Picture</source>
        <translation>Écrire le commentaire et passer à l’image suivante</translation>
    </message>
    <message>
        <source>Edit Fields…</source>
        <translation>Modifier les champs…</translation>
    </message>
    <message>
        <source>Write titles, keywords, copyright and other fields of many pictures</source>
        <translation>Écrire titres, mots-clés, copyright et autres champs de plusieurs images</translation>
    </message>
    <message>
        <source>Search properties</source>
        <translation>Chercher une propriété</translation>
    </message>
</context>
<context>
    <name>NewVersion</name>
    <message>
        <source>New version</source>
        <translation>Nouvelle version</translation>
    </message>
    <message>
        <source>A new version of Quorlin is available</source>
        <translation>Une nouvelle version de Quorlin est disponible</translation>
    </message>
    <message>
        <source>What is new</source>
        <translation>Nouveautés</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Go to Product Page</source>
        <translation>Voir la page du produit</translation>
    </message>
</context>
<context>
    <name>OutputPane</name>
    <message>
        <source>File type</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>File type of the results</source>
        <translation>Format des résultats</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Quality, 1 to 10</source>
        <translation>Qualité, de 1 à 10</translation>
    </message>
    <message>
        <source>Save to</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Folder of the results</source>
        <translation>Dossier des résultats</translation>
    </message>
    <message>
        <source>About the folder of the results</source>
        <translation>À propos du dossier des résultats</translation>
    </message>
    <message>
        <source>If the file exists</source>
        <translation>Si le fichier existe</translation>
    </message>
    <message>
        <source>If a file with this name exists</source>
        <translation>Si un fichier de ce nom existe</translation>
    </message>
    <message>
        <source>Dry run: write nothing</source>
        <translation>Essai à blanc : ne rien écrire</translation>
    </message>
    <message>
        <source>About dry runs</source>
        <translation>À propos des essais à blanc</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Métadonnées</translation>
    </message>
    <message>
        <source>Metadata that results keep</source>
        <translation>Métadonnées gardées dans les résultats</translation>
    </message>
    <message>
        <source>Remove location</source>
        <translation>Retirer le lieu</translation>
    </message>
    <message>
        <source>Removes where the picture was taken: coordinates and place names</source>
        <translation>Retire le lieu de prise de vue : coordonnées et noms de lieux</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparence</translation>
    </message>
    <message>
        <source>Colour for transparent parts</source>
        <translation>Couleur des parties transparentes</translation>
    </message>
    <message>
        <source>Replaces transparency in file types that cannot hold it</source>
        <translation>Remplace la transparence dans les formats qui n’en ont pas</translation>
    </message>
    <message>
        <source>Folder name</source>
        <translation>Nom du dossier</translation>
    </message>
    <message>
        <source>Name of the folder next to the originals</source>
        <translation>Nom du dossier à côté des originaux</translation>
    </message>
    <message>
        <source>Keep subfolders</source>
        <translation>Garder les sous-dossiers</translation>
    </message>
    <message>
        <source>Recreates the subfolders of each added folder</source>
        <translation>Recrée les sous-dossiers de chaque dossier ajouté</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name of the results, without extension</source>
        <translation>Nom des résultats, sans extension</translation>
    </message>
    <message>
        <source>Tokens such as {name}, {taken} and {counter:001} are filled in for each picture. To write a brace, type {{.</source>
        <translation>Les variables comme {name}, {taken} et {counter:001} sont remplacées pour chaque image. Pour une accolade, tapez {{.</translation>
    </message>
    <message>
        <source>Insert a token into the name</source>
        <translation>Insérer une variable dans le nom</translation>
    </message>
    <message>
        <source>Keep the file date</source>
        <translation>Garder la date du fichier</translation>
    </message>
    <message>
        <source>Results get the modification time of their originals</source>
        <translation>Les résultats reçoivent la date de modification de leurs originaux</translation>
    </message>
    <message>
        <source>More…</source>
        <translation>Plus…</translation>
    </message>
    <message>
        <source>Show more or fewer settings</source>
        <translation>Afficher plus ou moins de réglages</translation>
    </message>
    <message>
        <source>Write All as JPEG</source>
        <translation>Tout écrire en JPEG</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Plus la qualité est haute, plus le fichier est lourd</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Support folder</source>
        <translation>Dossier d’appoint</translation>
    </message>
    <message>
        <source>None chosen yet</source>
        <translation>Pas encore choisi</translation>
    </message>
    <message>
        <source>Put your own background patterns into its subfolder Patterns. They then appear in Background &amp; Border.</source>
        <translation>Placez vos propres motifs dans son sous-dossier Patterns. Ils apparaissent ensuite dans Fond et bordure.</translation>
    </message>
    <message>
        <source>Change…</source>
        <translation>Changer…</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Takes effect after a restart.</source>
        <translation>Prend effet après un redémarrage.</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>If the file exists</source>
        <translation>Si le fichier existe</translation>
    </message>
    <message>
        <source>What new actions do if the file exists</source>
        <translation>Ce que font les nouvelles actions si le fichier existe</translation>
    </message>
    <message>
        <source>Default for actions you have not used yet.</source>
        <translation>Valeur par défaut des actions pas encore utilisées.</translation>
    </message>
    <message>
        <source>Keep log entries for</source>
        <translation>Garder dans le journal</translation>
    </message>
    <message>
        <source>How many log entries to keep</source>
        <translation>Nombre d’entrées à garder dans le journal</translation>
    </message>
    <message>
        <source>Check for updates at startup</source>
        <translation>Rechercher les mises à jour au démarrage</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Processors</source>
        <translation>Processeurs</translation>
    </message>
    <message>
        <source>How many processors runs may use</source>
        <translation>Nombre de processeurs utilisés par les traitements</translation>
    </message>
    <message>
        <source>Applies to all windows at once.</source>
        <translation>S’applique aussitôt à toutes les fenêtres.</translation>
    </message>
    <message>
        <source>Save results to</source>
        <translation>Enregistrer les résultats dans</translation>
    </message>
    <message>
        <source>Where new actions save their results</source>
        <translation>Où les nouvelles actions enregistrent leurs résultats</translation>
    </message>
    <message>
        <source>Older entries are deleted for good.</source>
        <translation>Les entrées plus anciennes sont supprimées définitivement.</translation>
    </message>
    <message>
        <source>Use fewer to keep other programs fast. The results are the same.</source>
        <translation>En utiliser moins laisse plus de puissance aux autres programmes. Les résultats sont les mêmes.</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Mémoire</translation>
    </message>
    <message>
        <source>How much memory runs may use</source>
        <translation>Mémoire que les traitements peuvent utiliser</translation>
    </message>
    <message>
        <source>If large pictures need more, fewer are processed at a time.</source>
        <translation>Si de grandes images en demandent plus, moins d’images sont traitées à la fois.</translation>
    </message>
    <message>
        <source>Quorlin only asks for the version number. It downloads and installs nothing.</source>
        <translation>Quorlin ne demande que le numéro de version. Il ne télécharge et n’installe rien.</translation>
    </message>
    <message>
        <source>Share thumbnails with other programs</source>
        <translation>Partager les vignettes avec les autres programmes</translation>
    </message>
    <message>
        <source>Lists of pictures appear sooner. Thumbnails of encrypted and removable disks are never kept.</source>
        <translation>Les listes d’images s’affichent plus vite. Les vignettes des images de disques chiffrés ou amovibles ne sont jamais conservées.</translation>
    </message>
    <message>
        <source>Bring the list back at startup</source>
        <translation>Rétablir la liste au démarrage</translation>
    </message>
    <message>
        <source>Otherwise it is empty. After a crash or an interrupted run it always comes back.</source>
        <translation>Sinon, elle est vide. Après un plantage ou un traitement interrompu, elle revient toujours.</translation>
    </message>
</context>
<context>
    <name>PresetPane</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>Save, rename, delete, export or import presets</source>
        <translation>Enregistrer, renommer, supprimer, exporter ou importer des préréglages</translation>
    </message>
    <message>
        <source>About presets</source>
        <translation>À propos des préréglages</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Nom du préréglage</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>Print</name>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Pictures prepared for printing</source>
        <translation>Images préparées pour l’impression</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Imprimer…</translation>
    </message>
</context>
<context>
    <name>QAbstractFileIconProvider</name>
    <message>
        <source>Drive</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Inconnu</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Supported files</source>
        <translation>Fichiers pris en charge</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Tout enregistrer</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesDialog</name>
    <message>
        <source>Printer Properties</source>
        <translation>Propriétés de l’imprimante</translation>
    </message>
</context>
<context>
    <name>QPrintPropertiesWidget</name>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
</context>
<context>
    <name>QPrintSettingsOutput</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Double Sided Printing</source>
        <translation>Recto verso</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Long side binding</source>
        <translation>Reliure grand côté</translation>
    </message>
    <message>
        <source>Short side binding</source>
        <translation>Reliure petit côté</translation>
    </message>
</context>
<context>
    <name>RecipeCard</name>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Dupliquer</translation>
    </message>
    <message>
        <source>Move this card (arrow keys)</source>
        <translation>Déplacer cette carte (flèches)</translation>
    </message>
    <message>
        <source>Drag to another place, or Alt+Up and Alt+Down</source>
        <translation>Glisser à une autre place, ou Alt+Haut et Alt+Bas</translation>
    </message>
    <message>
        <source>Use this operation</source>
        <translation>Utiliser cette opération</translation>
    </message>
    <message>
        <source>Show or hide its settings</source>
        <translation>Afficher ou masquer ses réglages</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Show this output in the preview</source>
        <translation>Afficher cette sortie dans l’aperçu</translation>
    </message>
    <message>
        <source>Remove this card</source>
        <translation>Retirer cette carte</translation>
    </message>
    <message>
        <source>Remove this card (Ctrl+Del)</source>
        <translation>Retirer cette carte (Ctrl+Suppr)</translation>
    </message>
    <message>
        <source>+ Add Operation for This Output…</source>
        <translation>+ Opération pour cette sortie…</translation>
    </message>
    <message>
        <source>The picture after this operation</source>
        <translation>L’image après cette opération</translation>
    </message>
</context>
<context>
    <name>RecipeField</name>
    <message>
        <source>Insert a token</source>
        <translation>Insérer une variable</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
</context>
<context>
    <name>RecipePane</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Recette</translation>
    </message>
    <message>
        <source>Create, save, rename, delete, export or import recipes</source>
        <translation>Créer, enregistrer, renommer, supprimer, exporter ou importer des recettes</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name of the recipe</source>
        <translation>Nom de la recette</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>This recipe uses files outside the folders of the pictures</source>
        <translation>Cette recette utilise des fichiers hors des dossiers des images</translation>
    </message>
    <message>
        <source>Allow</source>
        <translation>Autoriser</translation>
    </message>
    <message>
        <source>Nothing has been read or written there so far.</source>
        <translation>Rien n’y a encore été lu ni écrit.</translation>
    </message>
    <message>
        <source>No operations yet: pictures stay unchanged.</source>
        <translation>Pas encore d’opération : les images restent inchangées.</translation>
    </message>
    <message>
        <source>+ Add Operation…</source>
        <translation>+ Ajouter une opération…</translation>
    </message>
    <message>
        <source>Add an operation (Ctrl+Shift+A)</source>
        <translation>Ajouter une opération (Ctrl+Maj+A)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>+ Add Output</source>
        <translation>+ Ajouter une sortie</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Folders in</source>
        <translation>Dossiers dans</translation>
    </message>
    <message>
        <source>Where the folders of the outputs are created</source>
        <translation>Où les dossiers des sorties sont créés</translation>
    </message>
    <message>
        <source>Keep subfolders</source>
        <translation>Garder les sous-dossiers</translation>
    </message>
    <message>
        <source>Recreates the subfolders of each added folder</source>
        <translation>Recrée les sous-dossiers de chaque dossier ajouté</translation>
    </message>
</context>
<context>
    <name>RenameCard</name>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Move this step (arrow keys)</source>
        <translation>Déplacer cette étape (touches fléchées)</translation>
    </message>
    <message>
        <source>Drag to another place, or Alt+Up and Alt+Down</source>
        <translation>Glisser à une autre place, ou Alt+Haut et Alt+Bas</translation>
    </message>
    <message>
        <source>Use this step</source>
        <translation>Utiliser cette étape</translation>
    </message>
    <message>
        <source>Show or hide its settings</source>
        <translation>Afficher ou masquer ses réglages</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Remove this step</source>
        <translation>Retirer cette étape</translation>
    </message>
    <message>
        <source>Remove this step (Ctrl+Del)</source>
        <translation>Retirer cette étape (Ctrl+Suppr)</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <translation>Insérer une variable</translation>
    </message>
    <message>
        <source>With</source>
        <translation>Par</translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Casse</translation>
    </message>
    <message>
        <source>How many</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Works on</source>
        <translation>Agit sur</translation>
    </message>
</context>
<context>
    <name>RenamePane</name>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>What to rename</source>
        <translation>Ce qui est renommé</translation>
    </message>
    <message>
        <source>No steps yet: names stay unchanged. Add a step or choose a preset.</source>
        <translation>Pas encore d’étape : les noms restent inchangés. Ajoutez une étape ou choisissez un préréglage.</translation>
    </message>
    <message>
        <source>+ Add Step…</source>
        <translation>+ Ajouter une étape…</translation>
    </message>
    <message>
        <source>Add a step (Ctrl+Shift+A)</source>
        <translation>Ajouter une étape (Ctrl+Maj+A)</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>Example</source>
        <translation>Exemple</translation>
    </message>
    <message>
        <source>Include sidecar files (.xmp …)</source>
        <translation>Inclure les fichiers annexes (.xmp…)</translation>
    </message>
    <message>
        <source>Files with the name of a picture from other programs are renamed with it</source>
        <translation>Les fichiers d’autres programmes qui portent le nom d’une image sont renommés avec elle</translation>
    </message>
    <message>
        <source>Adds leading zeros so that names sort in order</source>
        <translation>Ajoute des zéros en tête pour que les noms se classent dans l’ordre</translation>
    </message>
</context>
<context>
    <name>ResizePane</name>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Longest side</source>
        <translation>Grand côté</translation>
    </message>
    <message>
        <source>%</source>
        <translation>%</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>How the new size is set</source>
        <translation>Façon de définir les nouvelles dimensions</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>Nouvelles dimensions</translation>
    </message>
    <message>
        <source>Width of the box</source>
        <translation>Largeur du cadre</translation>
    </message>
    <message>
        <source>×</source>
        <translation>×</translation>
    </message>
    <message>
        <source>Height of the box</source>
        <translation>Hauteur du cadre</translation>
    </message>
    <message>
        <source>Unit of the size</source>
        <translation>Unité des dimensions</translation>
    </message>
    <message>
        <source>Unit of the size: pixels, millimetres, centimetres, inches, picas, points</source>
        <translation>Unité des dimensions : pixels, millimètres, centimètres, pouces, picas, points</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustement</translation>
    </message>
    <message>
        <source>How the picture fits the box</source>
        <translation>Façon dont l’image occupe le cadre</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>–</source>
        <translation>–</translation>
    </message>
    <message>
        <source>Never enlarge</source>
        <translation>Ne jamais agrandir</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Resolution used for lengths</source>
        <translation>Résolution pour les longueurs</translation>
    </message>
    <message>
        <source>Dots per inch used to turn lengths into pixels. A chosen resolution is also written into the file.</source>
        <translation>Points par pouce servant à convertir les longueurs en pixels. Une résolution choisie est aussi écrite dans le fichier.</translation>
    </message>
    <message>
        <source>Dots per inch</source>
        <translation>Points par pouce</translation>
    </message>
    <message>
        <source>Padding</source>
        <translation>Remplissage</translation>
    </message>
    <message>
        <source>Colour around the picture</source>
        <translation>Couleur autour de l’image</translation>
    </message>
    <message>
        <source> dpi</source>
        <translation> ppp</translation>
    </message>
    <message>
        <source>Turns lengths into pixels and is written into the file</source>
        <translation>Convertit les longueurs en pixels et est écrite dans le fichier</translation>
    </message>
</context>
<context>
    <name>RoundPane</name>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cercle</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Shape to cut out</source>
        <translation>Forme à découper</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Radius of the corners</source>
        <translation>Rayon des coins</translation>
    </message>
    <message>
        <source>Fill colour</source>
        <translation>Couleur de remplissage</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Border width</source>
        <translation>Largeur de bordure</translation>
    </message>
    <message>
        <source>Width of the border inside the picture</source>
        <translation>Largeur de la bordure à l’intérieur de l’image</translation>
    </message>
    <message>
        <source>Border inside the picture; 0 means none</source>
        <translation>Bordure à l’intérieur de l’image ; 0 : aucune</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
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
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>&amp;Quality</source>
        <translation>&amp;Qualité</translation>
    </message>
    <message>
        <source>JPEG quality, 1 to 9</source>
        <translation>Qualité JPEG, de 1 à 9</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>Estimated file size</source>
        <translation>Poids estimé du fichier</translation>
    </message>
    <message>
        <source>Preview of the original and the saved picture</source>
        <translation>Aperçu de l’original et de l’image enregistrée</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Plus la qualité est haute, plus le fichier est lourd</translation>
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
        <translation>Premier niveau de dossiers</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>Niveau 2</translation>
    </message>
    <message>
        <source>Second level of folders</source>
        <translation>Deuxième niveau de dossiers</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>Niveau 3</translation>
    </message>
    <message>
        <source>Third level of folders</source>
        <translation>Troisième niveau de dossiers</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <source>Folder pattern</source>
        <translation>Modèle de dossiers</translation>
    </message>
    <message>
        <source>Text and tokens in braces, with “/” between folder levels</source>
        <translation>Texte et variables entre accolades, avec « / » entre les niveaux de dossiers</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <translation>Insérer une variable</translation>
    </message>
    <message>
        <source>No date taken</source>
        <translation>Sans date de prise de vue</translation>
    </message>
    <message>
        <source>What to do with files that have no date taken</source>
        <translation>Que faire des fichiers sans date de prise de vue</translation>
    </message>
    <message>
        <source>Folder name for files without a date taken</source>
        <translation>Nom du dossier des fichiers sans date de prise de vue</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Move, copy or link</source>
        <translation>Déplacer, copier ou lier</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>Destination</translation>
    </message>
    <message>
        <source>Where the folders are created</source>
        <translation>Où les dossiers sont créés</translation>
    </message>
    <message>
        <source>If the file exists</source>
        <translation>Si le fichier existe</translation>
    </message>
</context>
<context>
    <name>SortTree</name>
    <message>
        <source>Resulting folders</source>
        <translation>Dossiers obtenus</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Show all files in the list</source>
        <translation>Afficher tous les fichiers de la liste</translation>
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
        <translation>Pivoter de 90° dans le sens antihoraire</translation>
    </message>
    <message>
        <source>90° anticlockwise</source>
        <translation>90° dans le sens antihoraire</translation>
    </message>
    <message>
        <source>Rotate 90° clockwise</source>
        <translation>Pivoter de 90° dans le sens horaire</translation>
    </message>
    <message>
        <source>90° clockwise</source>
        <translation>90° dans le sens horaire</translation>
    </message>
    <message>
        <source>180°</source>
        <translation>180°</translation>
    </message>
    <message>
        <source>Rotate 180°</source>
        <translation>Pivoter de 180°</translation>
    </message>
    <message>
        <source>Half a turn</source>
        <translation>Demi-tour</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Angle, anticlockwise</source>
        <translation>Angle, sens antihoraire</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Angle in degrees, anticlockwise</source>
        <translation>Angle en degrés, sens antihoraire</translation>
    </message>
    <message>
        <source>anticlockwise</source>
        <translation>sens antihoraire</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Miroir</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Flip horizontally: swap left and right</source>
        <translation>Miroir horizontal : échanger gauche et droite</translation>
    </message>
    <message>
        <source>Swap left and right</source>
        <translation>Échanger gauche et droite</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Flip vertically: swap top and bottom</source>
        <translation>Miroir vertical : échanger haut et bas</translation>
    </message>
    <message>
        <source>Swap top and bottom</source>
        <translation>Échanger haut et bas</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Reset rotation and flip</source>
        <translation>Réinitialiser la rotation et le miroir</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
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
        <translation>Filigrane</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>What the watermark consists of</source>
        <translation>Ce dont le filigrane est fait</translation>
    </message>
    <message>
        <source>Text of the watermark</source>
        <translation>Texte du filigrane</translation>
    </message>
    <message>
        <source>Insert a token</source>
        <translation>Insérer une variable</translation>
    </message>
    <message>
        <source>Picture used as the watermark</source>
        <translation>Image qui sert de filigrane</translation>
    </message>
    <message>
        <source>About your own watermarks</source>
        <translation>À propos de vos propres filigranes</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Colour of the text</source>
        <translation>Couleur du texte</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>%</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Text size, in % of the picture height</source>
        <translation>Taille du texte, en % de la hauteur de l’image</translation>
    </message>
    <message>
        <source>of the height</source>
        <translation>de la hauteur</translation>
    </message>
    <message>
        <source>Watermark width, in % of the picture width</source>
        <translation>Largeur du filigrane, en % de la largeur de l’image</translation>
    </message>
    <message>
        <source>of the width</source>
        <translation>de la largeur</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Position of the watermark</source>
        <translation>Position du filigrane</translation>
    </message>
    <message>
        <source>Tiled</source>
        <translation>En mosaïque</translation>
    </message>
    <message>
        <source>Repeats the watermark over the whole picture</source>
        <translation>Répète le filigrane sur toute l’image</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>Margin, in % of the shorter side</source>
        <translation>Marge, en % du petit côté</translation>
    </message>
    <message>
        <source>In % of the shorter side of the picture</source>
        <translation>En % du petit côté de l’image</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Angle, anticlockwise</source>
        <translation>Angle, sens antihoraire</translation>
    </message>
    <message>
        <source>Anticlockwise</source>
        <translation>Sens antihoraire</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
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
        <translation>Aucun processus de lecture d’images n’est actif.</translation>
    </message>
    <message>
        <source>no new privileges</source>
        <translation>pas de nouveaux privilèges</translation>
    </message>
    <message>
        <source>file access rules (Landlock)</source>
        <translation>règles d’accès aux fichiers (Landlock)</translation>
    </message>
    <message>
        <source>system call filter (seccomp)</source>
        <translation>filtre d’appels système (seccomp)</translation>
    </message>
    <message>
        <source>Processes that read pictures are confined by: %1.</source>
        <translation>Les processus qui lisent les images sont confinés par : %1.</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>Not available on this system: %1.</source>
        <translation>Non disponible sur ce système : %1.</translation>
    </message>
</context>
<context>
    <name>action-page</name>
    <message>
        <source>Add to a Recipe…</source>
        <translation>Ajouter à une recette…</translation>
    </message>
    <message>
        <source>Added. The recipe is not saved yet.</source>
        <translation>Ajouté. La recette n’est pas encore enregistrée.</translation>
    </message>
</context>
<context>
    <name>actions</name>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
</context>
<context>
    <name>add-to-recipe</name>
    <message>
        <source>A new recipe</source>
        <translation>Une nouvelle recette</translation>
    </message>
</context>
<context>
    <name>background-action</name>
    <message>
        <source>Background &amp; Border</source>
        <translation>Fond et bordure</translation>
    </message>
    <message>
        <source>Adding background and border</source>
        <translation>L’ajout de fond et de bordure</translation>
    </message>
    <message numerus="yes">
        <source>Add Background to %n Pictures</source>
        <translation>
            <numerusform>Ajouter un fond à %n image</numerusform>
            <numerusform>Ajouter un fond à %n images</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Add Border to %n Pictures</source>
        <translation>
            <numerusform>Ajouter une bordure à %n image</numerusform>
            <numerusform>Ajouter une bordure à %n images</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>background-pane</name>
    <message>
        <source>Checks</source>
        <translation>Damier</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Lignes</translation>
    </message>
    <message>
        <source>Dots</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Linen</source>
        <translation>Lin</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>White, 10 pixels on all sides</source>
        <translation>Blanche, 10 pixels de chaque côté</translation>
    </message>
    <message>
        <source>Border inside the picture</source>
        <translation>Bordure dans l’image</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose a pattern</source>
        <translation>Choisir un motif</translation>
    </message>
</context>
<context>
    <name>background-presets</name>
    <message>
        <source>White background</source>
        <translation>Fond blanc</translation>
    </message>
    <message>
        <source>White border</source>
        <translation>Bordure blanche</translation>
    </message>
    <message>
        <source>Black border</source>
        <translation>Bordure noire</translation>
    </message>
    <message>
        <source>Ivory mount</source>
        <translation>Passe-partout ivoire</translation>
    </message>
    <message>
        <source>On paper</source>
        <translation>Sur papier</translation>
    </message>
</context>
<context>
    <name>background-step</name>
    <message>
        <source>Framed</source>
        <translation>Encadrées</translation>
    </message>
    <message>
        <source>on %1</source>
        <translation>sur %1</translation>
    </message>
    <message>
        <source>on pattern %1</source>
        <translation>sur le motif %1</translation>
    </message>
    <message>
        <source>white border</source>
        <translation>bordure blanche</translation>
    </message>
    <message>
        <source>border of %1 px in %2</source>
        <translation>bordure de %1 px en %2</translation>
    </message>
    <message>
        <source>Choose a pattern.</source>
        <translation>Choisissez un motif.</translation>
    </message>
    <message>
        <source>Enter a border width from 1 to %1.</source>
        <translation>Saisissez une largeur de bordure de 1 à %1.</translation>
    </message>
    <message>
        <source>the border would cover the whole picture</source>
        <translation>la bordure couvrirait toute l’image</translation>
    </message>
    <message>
        <source>%1 pictures have no transparent parts, so a background would not be visible.</source>
        <translation>Les images %1 n’ont pas de parties transparentes ; un fond ne serait donc pas visible.</translation>
    </message>
    <message>
        <source>“%1” cannot be read as a picture.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être lu comme une image.</translation>
    </message>
</context>
<context>
    <name>by-recipe</name>
    <message>
        <source>preview of %1</source>
        <translation>aperçu de %1</translation>
    </message>
    <message numerus="yes">
        <source>%n more pictures left out</source>
        <translation>
            <numerusform>%n autre image laissée de côté</numerusform>
            <numerusform>%n autres images laissées de côté</numerusform>
        </translation>
    </message>
    <message>
        <source>smaller than asked for</source>
        <translation>plus petit que demandé</translation>
    </message>
    <message>
        <source>The frame extends past the edge of the picture</source>
        <translation>Le cadre dépasse le bord de l’image</translation>
    </message>
</context>
<context>
    <name>clocks</name>
    <message>
        <source>Unknown camera</source>
        <translation>Appareil inconnu</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>forward by</source>
        <translation>avancer de</translation>
    </message>
    <message>
        <source>back by</source>
        <translation>reculer de</translation>
    </message>
</context>
<context>
    <name>comment-job</name>
    <message>
        <source>Write comment, keep only the first page</source>
        <translation>Écrire le commentaire, ne garder que la première page</translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n problème</numerusform>
            <numerusform>%n problèmes</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped:</source>
        <translation>Arrêté&#x202f;:</translation>
    </message>
    <message numerus="yes">
        <source>%n comments written</source>
        <translation>
            <numerusform>%n commentaire écrit</numerusform>
            <numerusform>%n commentaires écrits</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n comments reverted</source>
        <translation>
            <numerusform>%n commentaire restauré</numerusform>
            <numerusform>%n commentaires restaurés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>comment-questions</name>
    <message numerus="yes">
        <source>%n more pages</source>
        <translation>
            <numerusform>%n autre page</numerusform>
            <numerusform>%n autres pages</numerusform>
        </translation>
    </message>
    <message>
        <source>This file has %1. Only the first page is kept; this cannot be undone.</source>
        <translation>Ce fichier a %1. Seule la première page est gardée ; cela ne peut pas être annulé.</translation>
    </message>
    <message numerus="yes">
        <source>%n files with several pages are left out, since writing would remove %1: %2.</source>
        <translation>
            <numerusform>%n fichier à plusieurs pages est laissé de côté, car l’écriture retirerait %1 : %2.</numerusform>
            <numerusform>%n fichiers à plusieurs pages sont laissés de côté, car l’écriture retirerait %1 : %2.</numerusform>
        </translation>
    </message>
    <message>
        <source>This changes the metadata inside your originals. Their pictures are not touched.</source>
        <translation>Cela modifie les métadonnées dans vos originaux. Les images elles-mêmes ne sont pas touchées.</translation>
    </message>
    <message numerus="yes">
        <source>%n files have types that cannot hold a comment and stay unchanged.</source>
        <translation>
            <numerusform>%n fichier est d’un format sans commentaire et reste inchangé.</numerusform>
            <numerusform>%n fichiers sont de formats sans commentaire et restent inchangés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Write comment</source>
        <translation>Écrire le commentaire</translation>
    </message>
    <message numerus="yes">
        <source>Clear the comments of %n pictures?</source>
        <translation>
            <numerusform>Vider le commentaire de cette image&#x202f;?</numerusform>
            <numerusform>Vider le commentaire de %n images&#x202f;?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write the comment into %n pictures?</source>
        <translation>
            <numerusform>Écrire le commentaire dans cette image&#x202f;?</numerusform>
            <numerusform>Écrire le commentaire dans %n images&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Write and Remove Pages</source>
        <translation>Écrire et retirer les pages</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Écrire</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Write into these too, keeping only their first page</source>
        <translation>Écrire aussi dans ceux-ci et ne garder que leur première page</translation>
    </message>
    <message>
        <source>Comment not written</source>
        <translation>Commentaire non écrit</translation>
    </message>
    <message>
        <source>Write your changes to %1?</source>
        <translation>Écrire vos modifications dans %1 ?</translation>
    </message>
    <message>
        <source>The comment has not been written yet.</source>
        <translation>Le commentaire n’est pas encore écrit.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>Continuer la modification</translation>
    </message>
</context>
<context>
    <name>comment-run</name>
    <message>
        <source>The file does not contain what was written.</source>
        <translation>Le fichier ne contient pas ce qui a été écrit.</translation>
    </message>
    <message numerus="yes">
        <source>%n more pages were removed. This cannot be undone.</source>
        <translation>
            <numerusform>%n autre page a été retirée. Cela ne peut pas être annulé.</numerusform>
            <numerusform>%n autres pages ont été retirées. Cela ne peut pas être annulé.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>It has %n more pages, which would be lost.</source>
        <translation>
            <numerusform>Il a %n autre page, qui serait perdue.</numerusform>
            <numerusform>Il a %n autres pages, qui seraient perdues.</numerusform>
        </translation>
    </message>
    <message>
        <source>The file no longer exists.</source>
        <translation>Le fichier n’existe plus.</translation>
    </message>
    <message>
        <source>It already has its old comment.</source>
        <translation>L’ancien commentaire y est déjà.</translation>
    </message>
    <message>
        <source>The comment has been changed since and is kept: “%1”</source>
        <translation>Le commentaire a été modifié depuis et reste&#x202f;: «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message numerus="yes">
        <source>%n more files</source>
        <translation>
            <numerusform>%n autre fichier</numerusform>
            <numerusform>%n autres fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” was written</source>
        <translation>«&#x202f;%1&#x202f;» a été écrit</translation>
    </message>
    <message>
        <source>“%1” was cleared</source>
        <translation>« %1 » a été effacé</translation>
    </message>
    <message>
        <source>“%1” became “%2”</source>
        <translation>«&#x202f;%1&#x202f;» est devenu «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Métadonnées</translation>
    </message>
</context>
<context>
    <name>convert-action</name>
    <message>
        <source>Convert</source>
        <translation>Convertir</translation>
    </message>
    <message numerus="yes">
        <source>Convert %n Pictures</source>
        <translation>
            <numerusform>Convertir %n image</numerusform>
            <numerusform>Convertir %n images</numerusform>
        </translation>
    </message>
    <message>
        <source>Converting</source>
        <translation>La conversion</translation>
    </message>
</context>
<context>
    <name>convert-presets</name>
    <message>
        <source>JPEG for everyone</source>
        <translation>JPEG pour tous</translation>
    </message>
    <message>
        <source>Small JPEG</source>
        <translation>Petit JPEG</translation>
    </message>
    <message>
        <source>PNG with all metadata</source>
        <translation>PNG avec toutes les métadonnées</translation>
    </message>
    <message>
        <source>TIFF for printing</source>
        <translation>TIFF pour l’impression</translation>
    </message>
    <message>
        <source>PDF pages</source>
        <translation>Pages PDF</translation>
    </message>
</context>
<context>
    <name>convert-step</name>
    <message>
        <source>Converted</source>
        <translation>Converties</translation>
    </message>
    <message>
        <source>to %1, quality %2</source>
        <translation>en %1, qualité %2</translation>
    </message>
    <message>
        <source>to %1</source>
        <translation>en %1</translation>
    </message>
    <message>
        <source>Choose what to convert to.</source>
        <translation>Choisissez un format.</translation>
    </message>
    <message>
        <source>Choose a quality from 1 to 9.</source>
        <translation>Choisissez une qualité de 1 à 9.</translation>
    </message>
</context>
<context>
    <name>crop-action</name>
    <message>
        <source>Crop</source>
        <translation>Recadrer</translation>
    </message>
    <message numerus="yes">
        <source>Crop %n Pictures</source>
        <translation>
            <numerusform>Recadrer %n image</numerusform>
            <numerusform>Recadrer %n images</numerusform>
        </translation>
    </message>
    <message>
        <source>Cropping</source>
        <translation>Le recadrage</translation>
    </message>
</context>
<context>
    <name>crop-pane</name>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Trim by px</source>
        <translation>Rogner px</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Au centre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Libre</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
    <message>
        <source>%1 × %2 px at %3, %4</source>
        <translation>%1 × %2 px à %3, %4</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>Trim by %</source>
        <translation>Rogner %</translation>
    </message>
</context>
<context>
    <name>crop-presets</name>
    <message>
        <source>Centre square 1080</source>
        <translation>Carré central 1080</translation>
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
        <translation>Rogner 5 %</translation>
    </message>
</context>
<context>
    <name>crop-step</name>
    <message>
        <source>Cropped</source>
        <translation>Recadrées</translation>
    </message>
    <message>
        <source>trim %1%</source>
        <translation>rogner %1 %</translation>
    </message>
    <message numerus="yes">
        <source>trim %n pixels</source>
        <translation>
            <numerusform>rogner %n pixel</numerusform>
            <numerusform>rogner %n pixels</numerusform>
        </translation>
    </message>
    <message>
        <source>moved %1, %2 %3</source>
        <translation>décalé de %1, %2 %3</translation>
    </message>
    <message>
        <source>position %1</source>
        <translation>position %1</translation>
    </message>
    <message>
        <source>Enter a whole number from 0 to 99.</source>
        <translation>Saisissez un nombre entier de 0 à 99.</translation>
    </message>
    <message>
        <source>Enter a whole number from 0 to %1.</source>
        <translation>Saisissez un nombre entier de 0 à %1.</translation>
    </message>
    <message>
        <source>Enter a width and a height.</source>
        <translation>Saisissez une largeur et une hauteur.</translation>
    </message>
    <message>
        <source>Choose one of the nine positions.</source>
        <translation>Choisissez l’une des neuf positions.</translation>
    </message>
    <message>
        <source>Enter offsets from %1 to %2.</source>
        <translation>Saisissez des décalages de %1 à %2.</translation>
    </message>
    <message>
        <source>ratio %1</source>
        <translation>rapport %1</translation>
    </message>
    <message>
        <source>not swapped</source>
        <translation>non inversé</translation>
    </message>
    <message>
        <source>at the focus of attention</source>
        <translation>au centre d’intérêt</translation>
    </message>
    <message>
        <source>Enter two numbers above 0 for the ratio.</source>
        <translation>Saisissez deux nombres supérieurs à 0 pour le rapport.</translation>
    </message>
</context>
<context>
    <name>field-kinds</name>
    <message>
        <source>Focus of attention</source>
        <translation>Centre d’intérêt</translation>
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
        <translation>Lecture de %1 impossible&#x202f;: ce n’est pas du texte UTF-8</translation>
    </message>
    <message>
        <source>%1 stays unchanged: %2</source>
        <translation>%1 reste inchangé : %2</translation>
    </message>
    <message>
        <source>A part of %1 could not be removed</source>
        <translation>Une partie de %1 n’a pas pu être supprimée et est toujours là</translation>
    </message>
    <message>
        <source>%1; a copy is at %2</source>
        <translation>%1 ; une copie se trouve dans %2</translation>
    </message>
    <message>
        <source>%1 no longer exists; its partial copy is at %2</source>
        <translation>%1 n’existe plus ; une copie partielle se trouve dans %2</translation>
    </message>
    <message>
        <source>%1 could not be moved aside</source>
        <translation>%1 n’a pas pu être mis de côté</translation>
    </message>
    <message>
        <source>%1 is also at %2</source>
        <translation>%1 se trouve aussi dans %2</translation>
    </message>
    <message>
        <source>%1 was left with a temporary name and is now called %2</source>
        <translation>%1 n’avait plus que son nom temporaire et s’appelle maintenant %2</translation>
    </message>
    <message>
        <source>The journal of this run is damaged: %1</source>
        <translation>Le journal de ce traitement est endommagé : %1</translation>
    </message>
    <message>
        <source>The name %1 is now in use; the item is called %2</source>
        <translation>Le nom %1 est maintenant utilisé ; l’élément s’appelle %2</translation>
    </message>
    <message>
        <source>The run was interrupted</source>
        <translation>Le traitement a été interrompu</translation>
    </message>
    <message>
        <source>There is no record of this run</source>
        <translation>Il n’y a pas de trace de ce traitement</translation>
    </message>
    <message>
        <source>This run is still in progress</source>
        <translation>Ce traitement est encore en cours</translation>
    </message>
    <message>
        <source>Nothing was done in this run</source>
        <translation>Rien n’a été fait dans ce traitement</translation>
    </message>
    <message>
        <source>This run has already been undone</source>
        <translation>Ce traitement a déjà été annulé</translation>
    </message>
    <message>
        <source>Nothing in this run can be undone any more</source>
        <translation>Plus rien de ce traitement ne peut être annulé</translation>
    </message>
    <message>
        <source>%1 could not be copied correctly</source>
        <translation>%1 n’a pas pu être copié correctement</translation>
    </message>
    <message>
        <source>The name %1 cannot be used on this disk</source>
        <translation>Le nom %1 n’est pas possible sur ce disque</translation>
    </message>
    <message>
        <source>The name %1 is too long for this disk</source>
        <translation>Le nom %1 est trop long pour ce disque</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 n’existe plus</translation>
    </message>
    <message>
        <source>The name %1 is already in use</source>
        <translation>Le nom %1 est déjà utilisé</translation>
    </message>
    <message>
        <source>The folder %1 cannot be moved into itself</source>
        <translation>Le dossier %1 ne peut pas être déplacé dans lui-même</translation>
    </message>
    <message>
        <source>You are not allowed to change %1 or its folder</source>
        <translation>Vous n’avez pas le droit de modifier %1 ou son dossier</translation>
    </message>
    <message>
        <source>%1 keeps its name, and so does its sidecar file</source>
        <translation>%1 garde son nom, et son fichier annexe aussi</translation>
    </message>
    <message>
        <source>%1 was changed or replaced in the meantime</source>
        <translation>%1 a été modifié ou remplacé entre-temps</translation>
    </message>
    <message>
        <source>There is no space left on the disk for %1</source>
        <translation>Il n’y a plus de place sur le disque pour %1</translation>
    </message>
    <message>
        <source>%1 is now the original itself, not a copy of it</source>
        <translation>%1 est désormais l’original lui-même et non une copie</translation>
    </message>
    <message>
        <source>%1 could not be renamed, and other files need its old name</source>
        <translation>%1 n’a pas pu être renommé, et d’autres fichiers attendent son ancien nom</translation>
    </message>
</context>
<context>
    <name>files::FileService</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Écriture de %1 impossible&#x202f;: %2</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created</source>
        <translation>Le dossier %1 ne peut pas être créé</translation>
    </message>
</context>
<context>
    <name>files::MoveService</name>
    <message>
        <source>This run is not open</source>
        <translation>Ce traitement n’est pas ouvert</translation>
    </message>
    <message>
        <source>Copying or moving a file</source>
        <translation>Copie ou déplacement d’un fichier</translation>
    </message>
    <message>
        <source>%1 had been moved aside and has been restored</source>
        <translation>%1 avait été mis de côté et a été rétabli</translation>
    </message>
</context>
<context>
    <name>hand-action</name>
    <message>
        <source>Sort by Hand</source>
        <translation>Classer à la main</translation>
    </message>
</context>
<context>
    <name>hand-page</name>
    <message>
        <source>In the trash</source>
        <translation>À la corbeille</translation>
    </message>
    <message>
        <source>%1 × %2 px</source>
        <translation>%1 × %2 px</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>file dated %1</source>
        <translation>fichier du %1</translation>
    </message>
    <message>
        <source>Undo (Ctrl+Z)</source>
        <translation>Annuler (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Undo: %1 (Ctrl+Z)</source>
        <translation>Annuler&#x202f;: %1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Keys now move pictures.</source>
        <translation>Les touches déplacent maintenant les images.</translation>
    </message>
    <message>
        <source>Keys now copy pictures.</source>
        <translation>Les touches copient maintenant les images.</translation>
    </message>
    <message>
        <source>Keys now link pictures.</source>
        <translation>Les touches lient maintenant les images.</translation>
    </message>
    <message>
        <source>%1: %2. The picture stays where it is.</source>
        <translation>%1&#x202f;: %2. L’image reste où elle est.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#x202f;: %2</translation>
    </message>
    <message>
        <source>That was the last picture. All of them are sorted.</source>
        <translation>C’était la dernière image. Toutes sont classées.</translation>
    </message>
    <message>
        <source>That was the last picture. %1</source>
        <translation>C’était la dernière image. %1</translation>
    </message>
    <message numerus="yes">
        <source>%n were skipped.</source>
        <translation>
            <numerusform>%n a été passée.</numerusform>
            <numerusform>%n ont été passées.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>hand-pane</name>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lier</translation>
    </message>
    <message>
        <source>Moves the picture to the folder. (Alt+1)</source>
        <translation>Déplace l’image vers le dossier. (Alt+1)</translation>
    </message>
    <message>
        <source>Copies the picture to the folder. (Alt+2)</source>
        <translation>Copie l’image dans le dossier. (Alt+2)</translation>
    </message>
    <message>
        <source>Puts a link to the picture into the folder. (Alt+3)</source>
        <translation>Place dans le dossier un lien vers l’image. (Alt+3)</translation>
    </message>
    <message>
        <source>Rename Label</source>
        <translation>Modifier le libellé</translation>
    </message>
    <message>
        <source>Show Folder</source>
        <translation>Voir le dossier</translation>
    </message>
    <message>
        <source>Move Up</source>
        <translation>Monter</translation>
    </message>
    <message>
        <source>Move Down</source>
        <translation>Descendre</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>Retirer de la liste</translation>
    </message>
    <message>
        <source>Remove All…</source>
        <translation>Tout retirer…</translation>
    </message>
    <message>
        <source>Remove all folders</source>
        <translation>Retirer tous les dossiers</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %n folders from the list?</source>
        <translation>
            <numerusform>Retirer le dossier de la liste&#x202f;?</numerusform>
            <numerusform>Retirer les %n dossiers de la liste&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>The folders and your presets are not changed.</source>
        <translation>Les dossiers et vos préréglages ne sont pas modifiés.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Choose a folder to sort into</source>
        <translation>Choisir un dossier où classer</translation>
    </message>
    <message numerus="yes">
        <source>%n folders are already in the list.</source>
        <translation>
            <numerusform>%n dossier est déjà dans la liste.</numerusform>
            <numerusform>%n dossiers sont déjà dans la liste.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Only %n folders can have a key.</source>
        <translation>
            <numerusform>Seul %n dossier peut avoir une touche.</numerusform>
            <numerusform>Seuls %n dossiers peuvent avoir une touche.</numerusform>
        </translation>
    </message>
    <message>
        <source>This is not a valid folder name.</source>
        <translation>Ce n’est pas un nom de dossier valide.</translation>
    </message>
    <message>
        <source>This name is already in use.</source>
        <translation>Ce nom est déjà utilisé.</translation>
    </message>
    <message>
        <source>In %1</source>
        <translation>Dans %1</translation>
    </message>
</context>
<context>
    <name>hand-slots</name>
    <message>
        <source>not found</source>
        <translation>introuvable</translation>
    </message>
    <message>
        <source>not a folder</source>
        <translation>pas un dossier</translation>
    </message>
    <message>
        <source>read-only</source>
        <translation>en lecture seule</translation>
    </message>
</context>
<context>
    <name>hand-sorting</name>
    <message>
        <source>Moved to %1</source>
        <translation>Déplacée vers %1</translation>
    </message>
    <message>
        <source>Copied to %1</source>
        <translation>Copiée vers %1</translation>
    </message>
    <message>
        <source>Linked in %1</source>
        <translation>Liée dans %1</translation>
    </message>
    <message>
        <source>In the trash</source>
        <translation>À la corbeille</translation>
    </message>
    <message>
        <source>Move to %1</source>
        <translation>Déplacer vers %1</translation>
    </message>
    <message>
        <source>Copy to %1</source>
        <translation>Copier vers %1</translation>
    </message>
    <message>
        <source>Link in %1</source>
        <translation>Lier dans %1</translation>
    </message>
    <message>
        <source>Trash</source>
        <translation>Corbeille</translation>
    </message>
    <message>
        <source>This picture is in the trash. Use Undo to restore it.</source>
        <translation>Cette image est à la corbeille. «&#x202f;Annuler&#x202f;» la restaure.</translation>
    </message>
    <message>
        <source>This picture is already in %1.</source>
        <translation>Cette image est déjà dans %1.</translation>
    </message>
    <message>
        <source>This picture is already in the trash.</source>
        <translation>Cette image est déjà à la corbeille.</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Annuler&#x202f;: %1</translation>
    </message>
    <message>
        <source>There is nothing left to undo.</source>
        <translation>Il n’y a plus rien à annuler.</translation>
    </message>
    <message>
        <source>Sort by Hand</source>
        <translation>Classer à la main</translation>
    </message>
</context>
<context>
    <name>hand-step</name>
    <message>
        <source>move</source>
        <translation>déplacer</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>copier</translation>
    </message>
    <message>
        <source>link</source>
        <translation>lier</translation>
    </message>
</context>
<context>
    <name>help</name>
    <message>
        <source>The manual is not installed.</source>
        <translation>Le manuel n’est pas installé.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>Quorlin is up to date.</source>
        <translation>Quorlin est à jour.</translation>
    </message>
    <message>
        <source>Could not reach the update server.</source>
        <translation>Le serveur de mises à jour n’a pas pu être joint.</translation>
    </message>
    <message>
        <source>No update server is set in this installation.</source>
        <translation>Aucun serveur de mises à jour n’est défini dans cette installation.</translation>
    </message>
</context>
<context>
    <name>history</name>
    <message numerus="yes">
        <source>Undo Adding %n Files</source>
        <translation>
            <numerusform>Annuler l’ajout de %n fichier</numerusform>
            <numerusform>Annuler l’ajout de %n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo Adding %n Files</source>
        <translation>
            <numerusform>Rétablir l’ajout de %n fichier</numerusform>
            <numerusform>Rétablir l’ajout de %n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undo Removing %n Files</source>
        <translation>
            <numerusform>Annuler le retrait de %n fichier</numerusform>
            <numerusform>Annuler le retrait de %n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo Removing %n Files</source>
        <translation>
            <numerusform>Rétablir le retrait de %n fichier</numerusform>
            <numerusform>Rétablir le retrait de %n fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo Clear List</source>
        <translation>Annuler le vidage de la liste</translation>
    </message>
    <message>
        <source>Redo Clear List</source>
        <translation>Rétablir le vidage de la liste</translation>
    </message>
    <message numerus="yes">
        <source>Undo %1 of %n Files</source>
        <translation>
            <numerusform>Annuler « %1 » de %n fichier</numerusform>
            <numerusform>Annuler « %1 » de %n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo %1 of %n Files</source>
        <translation>
            <numerusform>Rétablir « %1 » de %n fichier</numerusform>
            <numerusform>Rétablir « %1 » de %n fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo an earlier run</source>
        <translation>Annuler un traitement précédent</translation>
    </message>
    <message numerus="yes">
        <source>%1 (%n files) belongs to an earlier session. Undo it?</source>
        <translation>
            <numerusform>«&#x202f;%1&#x202f;» (%n fichier) date d’une session précédente. L’annuler&#x202f;?</numerusform>
            <numerusform>«&#x202f;%1&#x202f;» (%n fichiers) date d’une session précédente. L’annuler&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Undo It</source>
        <translation>Annuler le traitement</translation>
    </message>
    <message>
        <source>Leave It</source>
        <translation>Laisser tel quel</translation>
    </message>
    <message numerus="yes">
        <source>Undo Moving %n Rows</source>
        <translation>
            <numerusform>Annuler le déplacement de %n ligne</numerusform>
            <numerusform>Annuler le déplacement de %n lignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Redo Moving %n Rows</source>
        <translation>
            <numerusform>Rétablir le déplacement de %n ligne</numerusform>
            <numerusform>Rétablir le déplacement de %n lignes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undo Writing %n Ratings</source>
        <translation>
            <numerusform>Annuler l’écriture de %n note</numerusform>
            <numerusform>Annuler l’écriture de %n notes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>image::PictureService</name>
    <message>
        <source>not a readable picture</source>
        <translation>image illisible</translation>
    </message>
    <message>
        <source>the pattern cannot be read</source>
        <translation>le motif ne peut pas être lu</translation>
    </message>
    <message>
        <source>this type cannot be written</source>
        <translation>ce format ne peut pas être écrit</translation>
    </message>
</context>
<context>
    <name>input</name>
    <message>
        <source>%1 added</source>
        <translation>Ajout de %1</translation>
    </message>
    <message numerus="yes">
        <source>%n already in the list</source>
        <translation>
            <numerusform>%n déjà dans la liste</numerusform>
            <numerusform>%n déjà dans la liste</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar files</source>
        <translation>
            <numerusform>%n fichier annexe</numerusform>
            <numerusform>%n fichiers annexes</numerusform>
        </translation>
    </message>
    <message>
        <source>+ %1</source>
        <translation>+ %1</translation>
    </message>
    <message>
        <source>Add all pictures of a folder</source>
        <translation>Ajouter toutes les images d’un dossier</translation>
    </message>
    <message>
        <source>Add all files of a folder</source>
        <translation>Ajouter tous les fichiers d’un dossier</translation>
    </message>
    <message>
        <source>Add a folder</source>
        <translation>Ajouter un dossier</translation>
    </message>
    <message>
        <source>There are no files on the clipboard</source>
        <translation>Il n’y a pas de fichiers dans le presse-papiers</translation>
    </message>
    <message>
        <source>Not shown</source>
        <translation>Non affichés</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The sample pictures could not be copied to your pictures folder</source>
        <translation>Les images d’exemple n’ont pas pu être copiées dans votre dossier d’images</translation>
    </message>
    <message>
        <source>Recipe opened. Nothing has been run.</source>
        <translation>Recette ouverte. Rien n’a été exécuté.</translation>
    </message>
    <message numerus="yes">
        <source>%n do not match the filter</source>
        <translation>
            <numerusform>%n ne correspond pas au filtre</numerusform>
            <numerusform>%n ne correspondent pas au filtre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Reading %n files…</source>
        <translation>
            <numerusform>Lecture de %n fichier…</numerusform>
            <numerusform>Lecture de %n fichiers…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>input-words</name>
    <message>
        <source>No pictures yet</source>
        <translation>Pas encore d’images</translation>
    </message>
    <message>
        <source>No pictures found</source>
        <translation>Aucune image trouvée</translation>
    </message>
    <message>
        <source>Add Pictures…</source>
        <translation>Ajouter des images…</translation>
    </message>
    <message>
        <source>Drop pictures or folders here</source>
        <translation>Déposez ici des images ou des dossiers</translation>
    </message>
    <message>
        <source>Then choose an action on the left. Your originals stay unchanged unless you ask for it.</source>
        <translation>Choisissez ensuite une action à gauche. Vos originaux restent inchangés, sauf si vous demandez autre chose.</translation>
    </message>
    <message>
        <source>“%1” was not added: it is not a supported picture.</source>
        <translation>« %1 » n’a pas été ajouté : ce n’est pas une image prise en charge.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were not added: they are not supported pictures.</source>
        <translation>
            <numerusform>%n fichier n’a pas été ajouté : ce n’est pas une image prise en charge.</numerusform>
            <numerusform>%n fichiers n’ont pas été ajoutés : ce ne sont pas des images prises en charge.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files are not shown because %1 cannot use them.</source>
        <translation>
            <numerusform>%n fichier n’est pas affiché, car « %1 » ne peut pas l’utiliser.</numerusform>
            <numerusform>%n fichiers ne sont pas affichés, car « %1 » ne peut pas les utiliser.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Pas encore de fichiers</translation>
    </message>
    <message>
        <source>No files found</source>
        <translation>Aucun fichier trouvé</translation>
    </message>
    <message>
        <source>Add Files…</source>
        <translation>Ajouter des fichiers…</translation>
    </message>
    <message>
        <source>Drop files or folders here</source>
        <translation>Déposez ici des fichiers ou des dossiers</translation>
    </message>
    <message>
        <source>Then set up the action on the right. You see every result before it is written.</source>
        <translation>Réglez ensuite l’action à droite. Vous voyez chaque résultat avant qu’il ne soit écrit.</translation>
    </message>
    <message>
        <source>“%1” was not added: it is not a file.</source>
        <translation>« %1 » n’a pas été ajouté : ce n’est pas un fichier.</translation>
    </message>
    <message numerus="yes">
        <source>%n items were not added: they are not files.</source>
        <translation>
            <numerusform>%n élément n’a pas été ajouté : ce n’est pas un fichier.</numerusform>
            <numerusform>%n éléments n’ont pas été ajoutés : ce ne sont pas des fichiers.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders are not shown because %1 cannot use them.</source>
        <translation>
            <numerusform>%n dossier n’est pas affiché, car « %1 » ne peut pas l’utiliser.</numerusform>
            <numerusform>%n dossiers ne sont pas affichés, car « %1 » ne peut pas les utiliser.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n dossier</numerusform>
            <numerusform>%n dossiers</numerusform>
        </translation>
    </message>
    <message>
        <source>No folders yet</source>
        <translation>Pas encore de dossiers</translation>
    </message>
    <message>
        <source>No folders found</source>
        <translation>Aucun dossier trouvé</translation>
    </message>
    <message>
        <source>Add Folder…</source>
        <translation>Ajouter un dossier…</translation>
    </message>
    <message>
        <source>Drop folders here</source>
        <translation>Déposez ici des dossiers</translation>
    </message>
    <message>
        <source>The folders themselves are renamed. What is in them does not change.</source>
        <translation>Les dossiers eux-mêmes sont renommés. Leur contenu ne change pas.</translation>
    </message>
    <message>
        <source>“%1” was not added: it is not a folder.</source>
        <translation>« %1 » n’a pas été ajouté : ce n’est pas un dossier.</translation>
    </message>
    <message numerus="yes">
        <source>%n files were not added: they are not folders.</source>
        <translation>
            <numerusform>%n fichier n’a pas été ajouté : ce n’est pas un dossier.</numerusform>
            <numerusform>%n fichiers n’ont pas été ajoutés : ce ne sont pas des dossiers.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files are not shown because folders are being renamed.</source>
        <translation>
            <numerusform>%n fichier n’est pas affiché, car des dossiers sont renommés.</numerusform>
            <numerusform>%n fichiers ne sont pas affichés, car des dossiers sont renommés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>interrupted</name>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
    <message numerus="yes">
        <source>%1 was interrupted: %2 of %3 pictures are done.</source>
        <translation>
            <numerusform>%1 n’a pas pu se terminer : %2 image sur %3 est faite.</numerusform>
            <numerusform>%1 n’a pas pu se terminer : %2 images sur %3 sont faites.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Undoing “%1” was interrupted: %2 of %3 files are done.</source>
        <translation>
            <numerusform>L’annulation de « %1 » a été interrompue : %2 fichier sur %3 est fait.</numerusform>
            <numerusform>L’annulation de « %1 » a été interrompue : %2 fichiers sur %3 sont faits.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 was interrupted: %2 of %3 files have their new names.</source>
        <translation>
            <numerusform>%1 n’a pas pu se terminer : %2 fichier sur %3 a son nouveau nom.</numerusform>
            <numerusform>%1 n’a pas pu se terminer : %2 fichiers sur %3 ont leur nouveau nom.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 was interrupted: %2 of %3 files are done.</source>
        <translation>
            <numerusform>%1 n’a pas pu se terminer : %2 fichier sur %3 est fait.</numerusform>
            <numerusform>%1 n’a pas pu se terminer : %2 fichiers sur %3 sont faits.</numerusform>
        </translation>
    </message>
    <message>
        <source>Rename the Rest</source>
        <translation>Renommer le reste</translation>
    </message>
    <message>
        <source>interrupted</source>
        <translation>interrompu</translation>
    </message>
</context>
<context>
    <name>job</name>
    <message>
        <source>the folder is read-only</source>
        <translation>le dossier est en lecture seule</translation>
    </message>
    <message>
        <source>file already exists</source>
        <translation>le fichier existe déjà</translation>
    </message>
    <message>
        <source>no free name found</source>
        <translation>aucun nom libre n’a été trouvé</translation>
    </message>
</context>
<context>
    <name>jobs</name>
    <message>
        <source>%1 has been changed since.</source>
        <translation>%1 a été modifié depuis.</translation>
    </message>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 ne peut pas être écrit.</translation>
    </message>
</context>
<context>
    <name>kept-list</name>
    <message>
        <source>The list of the last session was restored.</source>
        <translation>La liste de la dernière session a été rétablie.</translation>
    </message>
</context>
<context>
    <name>list-estimate</name>
    <message>
        <source>about %1 in total</source>
        <translation>environ %1 au total</translation>
    </message>
</context>
<context>
    <name>list-rows</name>
    <message>
        <source>left out</source>
        <translation>laissé de côté</translation>
    </message>
</context>
<context>
    <name>list-tools</name>
    <message>
        <source>Export the list</source>
        <translation>Exporter la liste</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Exporting the list…</source>
        <translation>Exportation de la liste…</translation>
    </message>
    <message>
        <source>The list was exported to %1</source>
        <translation>La liste a été exportée vers %1</translation>
    </message>
    <message numerus="yes">
        <source>%n files copied</source>
        <translation>
            <numerusform>%n fichier copié</numerusform>
            <numerusform>%n fichiers copiés</numerusform>
        </translation>
    </message>
    <message>
        <source>Reading properties: %1 of %2</source>
        <translation>Lecture des propriétés : %1 sur %2</translation>
    </message>
</context>
<context>
    <name>log-action</name>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
</context>
<context>
    <name>log-page</name>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Old comment</source>
        <translation>Ancien commentaire</translation>
    </message>
    <message>
        <source>New comment</source>
        <translation>Nouveau commentaire</translation>
    </message>
    <message>
        <source>All runs</source>
        <translation>Tous les traitements</translation>
    </message>
    <message>
        <source>Undo of %1</source>
        <translation>Annulation&#x202f;: %1</translation>
    </message>
    <message>
        <source>Redo of %1</source>
        <translation>Rétablissement&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 (run of %2)</source>
        <translation>%1 (traitement du %2)</translation>
    </message>
    <message>
        <source>All actions</source>
        <translation>Toutes les actions</translation>
    </message>
    <message>
        <source>Comments only</source>
        <translation>Commentaires seuls</translation>
    </message>
    <message>
        <source>All statuses</source>
        <translation>Tous les statuts</translation>
    </message>
    <message>
        <source>A run is being undone. Stop it first, or wait.</source>
        <translation>L’annulation d’un traitement est en cours. Arrêtez-la d’abord, ou attendez.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation>
            <numerusform>%Ln entrée</numerusform>
            <numerusform>%Ln entrées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %Ln entries</source>
        <translation>
            <numerusform>%1 sur %Ln entrée</numerusform>
            <numerusform>%1 sur %Ln entrées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Copy %n Rows</source>
        <translation>
            <numerusform>Copier la ligne</numerusform>
            <numerusform>Copier %n lignes</numerusform>
        </translation>
    </message>
    <message>
        <source>Clear Log…</source>
        <translation>Vider le journal…</translation>
    </message>
    <message numerus="yes">
        <source>Revert %n Comments</source>
        <translation>
            <numerusform>Restaurer le commentaire</numerusform>
            <numerusform>Restaurer %n commentaires</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n comments selected</source>
        <translation>
            <numerusform>%n commentaire sélectionné</numerusform>
            <numerusform>%n commentaires sélectionnés</numerusform>
        </translation>
    </message>
    <message>
        <source>No entry matches.</source>
        <translation>Aucune entrée ne correspond.</translation>
    </message>
    <message numerus="yes">
        <source>No entries yet. Each run is recorded here, and the last %Ln entries are kept.</source>
        <translation>
            <numerusform>Pas encore d’entrée. Chaque traitement est consigné ici ; la dernière entrée est gardée.</numerusform>
            <numerusform>Pas encore d’entrée. Chaque traitement est consigné ici ; les %Ln dernières entrées sont gardées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n problème</numerusform>
            <numerusform>%n problèmes</numerusform>
        </translation>
    </message>
    <message>
        <source>Export the log</source>
        <translation>Exporter le journal</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Log saved as %1</source>
        <translation>Journal enregistré sous %1</translation>
    </message>
    <message>
        <source>Clear log</source>
        <translation>Vider le journal</translation>
    </message>
    <message numerus="yes">
        <source>Remove all %Ln entries from the log?</source>
        <translation>
            <numerusform>Retirer la seule entrée du journal&#x202f;?</numerusform>
            <numerusform>Retirer les %Ln entrées du journal&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>Your files are not changed. Runs can then no longer be undone from here.</source>
        <translation>Vos fichiers ne sont pas modifiés. Les traitements ne pourront plus être annulés d’ici.</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Revert comment</source>
        <translation>Restaurer le commentaire</translation>
    </message>
    <message>
        <source>Reverting: %1 of %2</source>
        <translation>Restauration&#x202f;: %1 sur %2</translation>
    </message>
    <message>
        <source>Undoing: %1 of %2</source>
        <translation>Annulation&#x202f;: %1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files restored</source>
        <translation>
            <numerusform>%n fichier rétabli</numerusform>
            <numerusform>%n fichiers rétablis</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped:</source>
        <translation>Arrêté&#x202f;:</translation>
    </message>
    <message>
        <source>A run is in progress. Its entries appear here when it is finished.</source>
        <translation>Un traitement est en cours. Ses entrées apparaîtront ici une fois qu’il sera terminé.</translation>
    </message>
    <message>
        <source>These settings cannot be used now.</source>
        <translation>Ces réglages ne peuvent pas être utilisés maintenant.</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Something went wrong</source>
        <translation>Un problème est survenu</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
</context>
<context>
    <name>main-window</name>
    <message>
        <source>Drop to add pictures and folders</source>
        <translation>Déposez pour ajouter images et dossiers</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>A run is in progress</source>
        <translation>Un traitement est en cours</translation>
    </message>
    <message>
        <source>Stop the run and close the window?</source>
        <translation>Arrêter le traitement et fermer la fenêtre&#x202f;?</translation>
    </message>
    <message>
        <source>Finished pictures are kept. No half-written file is left behind.</source>
        <translation>Les images terminées sont gardées. Aucun fichier à moitié écrit ne reste.</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Arrêter et fermer</translation>
    </message>
    <message>
        <source>Keep Running</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>No file manager could open the folder. It is %1</source>
        <translation>Aucun gestionnaire de fichiers n’a pu ouvrir le dossier. C’est %1</translation>
    </message>
    <message numerus="yes">
        <source>Opened %1, which contains the %n folders</source>
        <translation>
            <numerusform>%1 est ouvert ; il contient le dossier</numerusform>
            <numerusform>%1 est ouvert ; il contient les %n dossiers</numerusform>
        </translation>
    </message>
    <message>
        <source>What you add now is not part of this run.</source>
        <translation>Ce que vous ajoutez maintenant ne fait pas partie de ce traitement.</translation>
    </message>
</context>
<context>
    <name>manual</name>
    <message>
        <source>“%1” was not found in the manual.</source>
        <translation>« %1 » est introuvable dans le manuel.</translation>
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
        <translation>po</translation>
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
        <translation> à %1 ppp</translation>
    </message>
    <message>
        <source>Enter a resolution from 1 to %1 dpi.</source>
        <translation>Saisissez une résolution de 1 à %1 ppp.</translation>
    </message>
</context>
<context>
    <name>meta</name>
    <message>
        <source>"%1" cannot be the value of the field %2</source>
        <translation>« %1 » ne peut pas être la valeur du champ %2</translation>
    </message>
    <message>
        <source>there is no field %1</source>
        <translation>il n’y a pas de champ %1</translation>
    </message>
    <message>
        <source>private data is not removed from files of this type</source>
        <translation>les données privées ne sont pas retirées des fichiers de ce type</translation>
    </message>
    <message>
        <source>no change is given for the field %1</source>
        <translation>aucune modification n’est indiquée pour le champ %1</translation>
    </message>
    <message>
        <source>"%1" is not a time zone</source>
        <translation>« %1 » n’est pas un fuseau horaire</translation>
    </message>
    <message>
        <source>there is no group %1</source>
        <translation>il n’y a pas de groupe %1</translation>
    </message>
    <message>
        <source>%1 is too large</source>
        <translation>%1 est trop grand</translation>
    </message>
</context>
<context>
    <name>metadata-action</name>
    <message>
        <source>Metadata</source>
        <translation>Métadonnées</translation>
    </message>
</context>
<context>
    <name>metadata-page</name>
    <message>
        <source>This Picture</source>
        <translation>Cette image</translation>
    </message>
    <message>
        <source>Many Pictures</source>
        <translation>Plusieurs images</translation>
    </message>
    <message>
        <source>Search values</source>
        <translation>Chercher une valeur</translation>
    </message>
    <message>
        <source>Comments are being written. Cancel this first, or wait.</source>
        <translation>L’écriture des commentaires est en cours. Arrêtez-la d’abord, ou attendez.</translation>
    </message>
    <message>
        <source>This file is not a picture that can be read.</source>
        <translation>Ce fichier n’est pas une image lisible.</translation>
    </message>
    <message>
        <source>Copy Value or Branch</source>
        <translation>Copier la valeur ou la branche</translation>
    </message>
    <message>
        <source>Copy Location in Degrees, 48.85840, 2.29450</source>
        <translation>Copier le lieu en degrés, 48.85840, 2.29450</translation>
    </message>
    <message>
        <source>Copy Location in Minutes, 48° 51′ 30″ N</source>
        <translation>Copier le lieu en minutes, 48° 51′ 30″ N</translation>
    </message>
    <message numerus="yes">
        <source>%n lines copied</source>
        <translation>
            <numerusform>%n ligne copiée</numerusform>
            <numerusform>%n lignes copiées</numerusform>
        </translation>
    </message>
    <message>
        <source>Select a property to copy first.</source>
        <translation>Sélectionnez d’abord une propriété à copier.</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Copié&#x202f;: %1</translation>
    </message>
    <message>
        <source>Files of this type cannot hold a comment.</source>
        <translation>Les fichiers de ce format ne peuvent pas contenir de commentaire.</translation>
    </message>
    <message>
        <source>Tokens such as {name}, {date} and {counter} are filled in for each picture. To write a brace, type {{.</source>
        <translation>Les variables comme {name}, {date} et {counter} sont remplacées pour chaque image. Pour une accolade, tapez {{.</translation>
    </message>
    <message>
        <source>For example %1: “%2”</source>
        <translation>Par exemple %1&#x202f;: «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%n properties</source>
        <translation>
            <numerusform>%n propriété</numerusform>
            <numerusform>%n propriétés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Revert %n</source>
        <translation>
            <numerusform>Restaurer</numerusform>
            <numerusform>Restaurer (%n)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Write into All %n…</source>
        <translation>
            <numerusform>Écrire dans %n…</numerusform>
            <numerusform>Écrire dans les %n…</numerusform>
        </translation>
    </message>
    <message>
        <source>Write comment</source>
        <translation>Écrire le commentaire</translation>
    </message>
    <message>
        <source>Write the comment into pictures</source>
        <translation>Écrire le commentaire dans des images</translation>
    </message>
    <message>
        <source>Write the comment into all pictures of a folder</source>
        <translation>Écrire le commentaire dans toutes les images d’un dossier</translation>
    </message>
    <message>
        <source>Revert comment</source>
        <translation>Restaurer le commentaire</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures, differences: %1</source>
        <translation>
            <numerusform>%n image, différences : %1</numerusform>
            <numerusform>%n images, différences : %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>move-run</name>
    <message>
        <source>Not enough space</source>
        <translation>Pas assez de place</translation>
    </message>
    <message>
        <source>Files that do not fit stay where they are.</source>
        <translation>Les fichiers qui ne tiennent pas restent où ils sont.</translation>
    </message>
    <message>
        <source>Start Anyway</source>
        <translation>Démarrer quand même</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cancelled before the first file. Nothing was moved.</source>
        <translation>Arrêté avant le premier fichier. Rien n’a été déplacé.</translation>
    </message>
    <message>
        <source>There is nothing to do.</source>
        <translation>Il n’y a rien à faire.</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was moved.</source>
        <translation>Annulé. Rien n’a été déplacé.</translation>
    </message>
    <message>
        <source>Dry run: %1</source>
        <translation>Essai à blanc : %1</translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>exclus&#x202f;: %1</translation>
    </message>
    <message>
        <source>nothing was moved</source>
        <translation>rien n’a été déplacé</translation>
    </message>
    <message>
        <source>done</source>
        <translation>fait</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>arrêté</translation>
    </message>
    <message>
        <source>Cancelled:</source>
        <translation>Arrêté&#x202f;:</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Last run: %1, %2</source>
        <translation>Dernier traitement&#x202f;: %1, %2</translation>
    </message>
    <message>
        <source>Finished files are kept.</source>
        <translation>Les fichiers terminés sont gardés.</translation>
    </message>
</context>
<context>
    <name>move-words</name>
    <message>
        <source>the name is empty</source>
        <translation>le nom est vide</translation>
    </message>
    <message>
        <source>a name cannot contain “/” or be “.” or “..”</source>
        <translation>un nom ne peut ni contenir «&#x202f;/&#x202f;» ni être «&#x202f;.&#x202f;» ou «&#x202f;..&#x202f;»</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>le nom est trop long</translation>
    </message>
    <message>
        <source>the file no longer exists</source>
        <translation>le fichier n’existe plus</translation>
    </message>
    <message>
        <source>same new name as %1</source>
        <translation>même nouveau nom que %1</translation>
    </message>
    <message>
        <source>name in use by %1, which keeps its name</source>
        <translation>nom utilisé par %1, qui le garde</translation>
    </message>
    <message>
        <source>name in use by a file that is not in this list</source>
        <translation>nom utilisé par un fichier hors de cette liste</translation>
    </message>
    <message>
        <source>differs only by case or accents from %1</source>
        <translation>ne diffère de %1 que par la casse ou les accents</translation>
    </message>
    <message>
        <source>a folder cannot be moved into itself</source>
        <translation>un dossier ne peut pas être déplacé dans lui-même</translation>
    </message>
    <message>
        <source>the folder is read-only</source>
        <translation>le dossier est en lecture seule</translation>
    </message>
    <message>
        <source>the picture of this sidecar file stays</source>
        <translation>l’image de ce fichier annexe reste</translation>
    </message>
    <message>
        <source>a sidecar file cannot be moved: its name is in use by %1</source>
        <translation>un fichier annexe ne peut pas être déplacé : son nom est utilisé par %1</translation>
    </message>
    <message>
        <source>a sidecar file cannot be moved</source>
        <translation>un fichier annexe ne peut pas être déplacé</translation>
    </message>
    <message>
        <source>not possible</source>
        <translation>impossible</translation>
    </message>
    <message>
        <source>swaps names with %1</source>
        <translation>échange son nom avec %1</translation>
    </message>
    <message>
        <source>ready, with its %1</source>
        <translation>prêt, avec son %1</translation>
    </message>
    <message>
        <source>ready, numbered because the file exists</source>
        <translation>prêt, numéroté car le fichier existe</translation>
    </message>
    <message>
        <source>ready, to another disk</source>
        <translation>prêt, vers un autre disque</translation>
    </message>
    <message>
        <source>ready, only the case changes</source>
        <translation>prêt, seule la casse change</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>prêt</translation>
    </message>
    <message>
        <source>Includes its %1.</source>
        <translation>Avec son %1.</translation>
    </message>
    <message>
        <source>ready, but %1</source>
        <translation>prêt, mais %1</translation>
    </message>
    <message>
        <source>stays: %1 gets this name</source>
        <translation>reste&#x202f;: %1 prend ce nom</translation>
    </message>
    <message>
        <source>stays: file already exists</source>
        <translation>reste : le fichier existe déjà</translation>
    </message>
    <message>
        <source>Existing file: %1</source>
        <translation>Fichier existant : %1</translation>
    </message>
    <message>
        <source>sidecar file of %1</source>
        <translation>fichier annexe de %1</translation>
    </message>
    <message>
        <source>unchanged</source>
        <translation>inchangé</translation>
    </message>
</context>
<context>
    <name>moves</name>
    <message>
        <source>Dry Run: %1</source>
        <translation>Essai à blanc : %1</translation>
    </message>
    <message>
        <source>Planning: %1 of %2…</source>
        <translation>Préparation : %1 sur %2…</translation>
    </message>
    <message>
        <source>%1 ready</source>
        <translation>Prêts&#x202f;: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n need attention</source>
        <translation>
            <numerusform>%n à vérifier</numerusform>
            <numerusform>%n à vérifier</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unchanged</source>
        <translation>
            <numerusform>%n inchangé</numerusform>
            <numerusform>%n inchangés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar files</source>
        <translation>
            <numerusform>%n fichier annexe</numerusform>
            <numerusform>%n fichiers annexes</numerusform>
        </translation>
    </message>
    <message>
        <source>can be undone</source>
        <translation>annulable</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Nom actuel</translation>
    </message>
    <message>
        <source>Dry run: move nothing</source>
        <translation>Essai à blanc : ne rien déplacer</translation>
    </message>
</context>
<context>
    <name>name-steps</name>
    <message>
        <source>Enter a text.</source>
        <translation>Saisissez un texte.</translation>
    </message>
    <message>
        <source>Enter piece numbers separated by commas, such as 2,1. Use -1 for the last piece.</source>
        <translation>Saisissez des numéros de morceaux séparés par des virgules, comme 2,1. Utilisez -1 pour le dernier.</translation>
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
        <translation>pouces</translation>
    </message>
    <message>
        <source>points</source>
        <translation>points</translation>
    </message>
    <message>
        <source>picas</source>
        <translation>picas</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>At a chosen resolution</source>
        <translation>Avec une résolution choisie</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Fit inside</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Fill (crops)</source>
        <translation>Remplir (rogne)</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Étirer</translation>
    </message>
    <message>
        <source>Fit and pad</source>
        <translation>Ajuster et compléter</translation>
    </message>
    <message>
        <source>Longest side</source>
        <translation>Grand côté</translation>
    </message>
    <message>
        <source>Shortest side</source>
        <translation>Petit côté</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Pourcentage</translation>
    </message>
    <message>
        <source>Megapixels</source>
        <translation>Mégapixels</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>By</source>
        <translation>Selon</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Enlarge small pictures too</source>
        <translation>Agrandir aussi les petites images</translation>
    </message>
    <message>
        <source>Ratio</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Larger number for the longer side</source>
        <translation>Plus grand nombre pour le grand côté</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Rogner</translation>
    </message>
    <message>
        <source>Width and height</source>
        <translation>Largeur et hauteur</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Offset to the right</source>
        <translation>Décalage vers la droite</translation>
    </message>
    <message>
        <source>Offset downward</source>
        <translation>Décalage vers le bas</translation>
    </message>
    <message>
        <source>Offset from there</source>
        <translation>Décalée de là</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Fill new corners</source>
        <translation>Remplir les nouveaux coins</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Rayon</translation>
    </message>
    <message>
        <source>Border width</source>
        <translation>Largeur de bordure</translation>
    </message>
    <message>
        <source>Border colour</source>
        <translation>Couleur de la bordure</translation>
    </message>
    <message>
        <source>Shape</source>
        <translation>Forme</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cercle</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Fill colour</source>
        <translation>Couleur de remplissage</translation>
    </message>
    <message>
        <source>Border inside the picture</source>
        <translation>Bordure dans l’image</translation>
    </message>
    <message>
        <source>Under the picture</source>
        <translation>Sous l’image</translation>
    </message>
    <message>
        <source>A colour</source>
        <translation>Une couleur</translation>
    </message>
    <message>
        <source>A pattern</source>
        <translation>Un motif</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>Motif</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Filigrane</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Marge</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Opacité</translation>
    </message>
    <message>
        <source>Over the whole picture</source>
        <translation>Sur toute l’image</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Intensité</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Forte</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>A profile file</source>
        <translation>Un fichier de profil</translation>
    </message>
    <message>
        <source>Profile</source>
        <translation>Profil</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Gauche et droite</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>Haut et bas</translation>
    </message>
    <message>
        <source>Converts the colours. sRGB suits screens and the web.</source>
        <translation>Convertit les couleurs. sRGB convient aux écrans et au web.</translation>
    </message>
    <message>
        <source>A colour profile with the extension .icc or .icm</source>
        <translation>Un profil colorimétrique d’extension .icc ou .icm</translation>
    </message>
    <message>
        <source>Dots per inch used to turn lengths into pixels</source>
        <translation>Points par pouce servant à convertir les longueurs en pixels</translation>
    </message>
    <message>
        <source>dpi</source>
        <translation>ppp</translation>
    </message>
    <message>
        <source>MP</source>
        <translation>Mpx</translation>
    </message>
    <message>
        <source>Otherwise lengths use the resolution of each picture</source>
        <translation>Sinon, les longueurs utilisent la résolution de chaque image</translation>
    </message>
</context>
<context>
    <name>output-fields</name>
    <message>
        <source>Original file type</source>
        <translation>Format d’origine</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Lossless if the type allows it</source>
        <translation>Sans perte, si le type le permet</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sans perte</translation>
    </message>
    <message>
        <source>Choose the quality</source>
        <translation>Choisir la qualité</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Limit the file size</source>
        <translation>Limiter le poids du fichier</translation>
    </message>
    <message>
        <source>At most</source>
        <translation>Au plus</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Métadonnées</translation>
    </message>
    <message>
        <source>Keep all</source>
        <translation>Tout garder</translation>
    </message>
    <message>
        <source>Keep copyright only</source>
        <translation>Garder le copyright seul</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Tout retirer</translation>
    </message>
    <message>
        <source>Remove location</source>
        <translation>Retirer le lieu</translation>
    </message>
    <message>
        <source>If the file exists</source>
        <translation>Si le fichier existe</translation>
    </message>
    <message>
        <source>Keep both (add a number)</source>
        <translation>Garder les deux (numéroter)</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Set the resolution</source>
        <translation>Fixer la résolution</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparence</translation>
    </message>
    <message>
        <source>Keep the file date</source>
        <translation>Garder la date du fichier</translation>
    </message>
    <message>
        <source>Skip if up to date</source>
        <translation>Ignorer si à jour</translation>
    </message>
    <message>
        <source>Higher quality means larger files</source>
        <translation>Plus la qualité est haute, plus le fichier est lourd</translation>
    </message>
    <message>
        <source>Keeps every pixel exactly; the files are larger</source>
        <translation>Conserve chaque pixel à l’identique ; les fichiers sont plus lourds</translation>
    </message>
    <message>
        <source>Otherwise JPEG files keep their quality, and other types get %1</source>
        <translation>Sinon, les fichiers JPEG gardent leur qualité et les autres types prennent %1</translation>
    </message>
    <message>
        <source>Otherwise the quality is %1</source>
        <translation>Sinon, la qualité est de %1</translation>
    </message>
    <message>
        <source>Dots per inch written into the file; its pixels do not change</source>
        <translation>Points par pouce écrits dans le fichier ; ses pixels ne changent pas</translation>
    </message>
    <message>
        <source>For printing and layout programs; no pixel changes</source>
        <translation>Pour l’impression et la mise en page ; aucun pixel ne change</translation>
    </message>
    <message>
        <source>Replaces transparency in file types that cannot hold it</source>
        <translation>Remplace la transparence dans les formats qui n’en ont pas</translation>
    </message>
    <message>
        <source>kB</source>
        <translation>ko</translation>
    </message>
</context>
<context>
    <name>output-pane</name>
    <message>
        <source>Keep both (add a number)</source>
        <translation>Garder les deux (numéroter)</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Demander</translation>
    </message>
    <message>
        <source>Original file type</source>
        <translation>Format d’origine</translation>
    </message>
    <message>
        <source>Next to each picture</source>
        <translation>Dossier à côté de l’image</translation>
    </message>
    <message>
        <source>Folder of the original</source>
        <translation>Dossier de l’original</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Save results to</source>
        <translation>Enregistrer les résultats dans</translation>
    </message>
    <message>
        <source>Keep all</source>
        <translation>Tout garder</translation>
    </message>
    <message>
        <source>Keep copyright only</source>
        <translation>Garder le copyright seul</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Tout retirer</translation>
    </message>
    <message>
        <source>Less</source>
        <translation>Moins</translation>
    </message>
    <message>
        <source>More…</source>
        <translation>Plus…</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures have a type that cannot be written.</source>
        <translation>
            <numerusform>%n image est d’un format qui ne peut pas être écrit.</numerusform>
            <numerusform>%n images sont d’un format qui ne peut pas être écrit.</numerusform>
        </translation>
    </message>
    <message>
        <source>Same as the picture</source>
        <translation>Comme l’image</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Skip if up to date</source>
        <translation>Ignorer si à jour</translation>
    </message>
</context>
<context>
    <name>own-results</name>
    <message numerus="yes">
        <source>%n results of earlier runs not added</source>
        <translation>
            <numerusform>%n résultat de traitements antérieurs n’a pas été ajouté</numerusform>
            <numerusform>%n résultats de traitements antérieurs n’ont pas été ajoutés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>pages</name>
    <message>
        <source>Pages have no setting “%1”.</source>
        <translation>Les pages n’ont pas de réglage «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>Enter a paper width and height from 20 to 2000 mm.</source>
        <translation>Saisissez une largeur et une hauteur de papier de 20 à 2000 mm.</translation>
    </message>
    <message>
        <source>Enter margins from 0 mm.</source>
        <translation>Saisissez des marges à partir de 0 mm.</translation>
    </message>
    <message>
        <source>Enter a gap from 0 mm.</source>
        <translation>Saisissez un espace à partir de 0 mm.</translation>
    </message>
    <message>
        <source>Enter 1 to 20 rows and columns.</source>
        <translation>Saisissez de 1 à 20 lignes et colonnes.</translation>
    </message>
    <message>
        <source>Enter text sizes from 3 to 72 points.</source>
        <translation>Saisissez des tailles de texte de 3 à 72 points.</translation>
    </message>
    <message>
        <source>Enter a resolution from 36 to 1200 pixels per inch.</source>
        <translation>Saisissez une résolution de 36 à 1200 pixels par pouce.</translation>
    </message>
    <message>
        <source>Enter a quality from 1 to 100.</source>
        <translation>Saisissez une qualité de 1 à 100.</translation>
    </message>
    <message>
        <source>There is no room for pictures. Use fewer rows or columns, or smaller margins or gaps.</source>
        <translation>Il n’y a pas de place pour les images. Choisissez moins de lignes ou de colonnes, ou des marges ou des espaces plus petits.</translation>
    </message>
    <message>
        <source>The pages could not be created.</source>
        <translation>Les pages n’ont pas pu être créées.</translation>
    </message>
    <message>
        <source>The PDF cannot be written: %1</source>
        <translation>Le PDF ne peut pas être écrit : %1</translation>
    </message>
    <message>
        <source>The picture could not be prepared for the page.</source>
        <translation>L’image n’a pas pu être préparée pour la page.</translation>
    </message>
</context>
<context>
    <name>pane</name>
    <message>
        <source> at %1 dpi</source>
        <translation> à %1 ppp</translation>
    </message>
</context>
<context>
    <name>plan</name>
    <message>
        <source>cancelled</source>
        <translation>arrêté</translation>
    </message>
    <message>
        <source>another picture in this run has the same new name</source>
        <translation>une autre image de ce traitement a le même nouveau nom</translation>
    </message>
    <message>
        <source>file already exists</source>
        <translation>le fichier existe déjà</translation>
    </message>
    <message>
        <source>the destination folder has no name</source>
        <translation>le dossier de destination n’a pas de nom</translation>
    </message>
    <message>
        <source>the picture no longer exists</source>
        <translation>l’image n’existe plus</translation>
    </message>
    <message>
        <source>up to date</source>
        <translation>à jour</translation>
    </message>
</context>
<context>
    <name>platform</name>
    <message>
        <source>The tags of %1 could not be written</source>
        <translation>Les étiquettes de %1 n’ont pas pu être écrites</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash</source>
        <translation>Impossible de mettre %1 à la corbeille</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash: no such file</source>
        <translation>Impossible de mettre %1 à la corbeille : ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>Cannot move %1 to the trash: %2</source>
        <translation>Impossible de mettre %1 à la corbeille&#x202f;: %2</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>Lecture de %1 impossible&#x202f;: %2</translation>
    </message>
    <message>
        <source>this is not an ordinary file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Écriture de %1 impossible&#x202f;: %2</translation>
    </message>
    <message>
        <source>KB</source>
        <translation>Ko</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>TB</source>
        <translation>To</translation>
    </message>
    <message>
        <source>PB</source>
        <translation>Po</translation>
    </message>
    <message>
        <source>EB</source>
        <translation>Eo</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n octet</numerusform>
            <numerusform>%n octets</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 needs about %2 of memory, %3 is free</source>
        <translation>%1 demande environ %2 de mémoire, %3 sont libres</translation>
    </message>
    <message>
        <source>needs about %1 of memory, %2 is free</source>
        <translation>demande environ %1 de mémoire, %2 sont libres</translation>
    </message>
    <message>
        <source>There is no picture to draw</source>
        <translation>Il n’y a pas d’image à dessiner</translation>
    </message>
    <message>
        <source>The picture is too large</source>
        <translation>L’image est trop grande</translation>
    </message>
    <message>
        <source>There is nothing to draw</source>
        <translation>Il n’y a rien à dessiner</translation>
    </message>
    <message>
        <source>A picture of %1 × %2 pixels cannot be made</source>
        <translation>Une image de %1 × %2 pixels est impossible</translation>
    </message>
    <message>
        <source>Reading the picture</source>
        <translation>La lecture de l’image</translation>
    </message>
    <message>
        <source>The picture</source>
        <translation>L’image</translation>
    </message>
    <message>
        <source>There is no picture to scale</source>
        <translation>Il n’y a pas d’image à redimensionner</translation>
    </message>
    <message>
        <source>There is no picture to rotate</source>
        <translation>Il n’y a pas d’image à pivoter</translation>
    </message>
    <message>
        <source>A picture cannot be rotated by that angle</source>
        <translation>Une image ne peut pas être pivotée de cet angle</translation>
    </message>
    <message>
        <source>the file is damaged</source>
        <translation>le fichier est endommagé</translation>
    </message>
    <message>
        <source>the comment is too long</source>
        <translation>le commentaire est trop long</translation>
    </message>
    <message>
        <source>There is no picture to write</source>
        <translation>Il n’y a pas d’image à écrire</translation>
    </message>
    <message>
        <source>The page could not be created: %1</source>
        <translation>La page n’a pas pu être créée&#x202f;: %1</translation>
    </message>
    <message>
        <source>The JPEG could not be created: %1</source>
        <translation>Le JPEG n’a pas pu être créé&#x202f;: %1</translation>
    </message>
    <message>
        <source>Writing the picture</source>
        <translation>L’écriture de l’image</translation>
    </message>
    <message>
        <source>The picture could not be encoded: %1</source>
        <translation>L’image n’a pas pu être encodée&#x202f;: %1</translation>
    </message>
    <message>
        <source>The file is neither JPEG nor TIFF</source>
        <translation>Le fichier n’est ni JPEG ni TIFF</translation>
    </message>
    <message>
        <source>This is not a property list with a dictionary</source>
        <translation>Ce n’est pas une liste de propriétés composée de clés et de valeurs</translation>
    </message>
    <message>
        <source>A property list cannot hold the value of %1</source>
        <translation>La valeur de %1 ne peut pas être enregistrée dans une liste de propriétés</translation>
    </message>
    <message>
        <source>the file is write-protected</source>
        <translation>le fichier est protégé en écriture</translation>
    </message>
    <message>
        <source>this type of file cannot hold metadata of its own</source>
        <translation>les métadonnées ne sont pas écrites dans les fichiers de ce type</translation>
    </message>
    <message>
        <source>its metadata is damaged</source>
        <translation>ses métadonnées sont endommagées</translation>
    </message>
    <message>
        <source>there is not enough room for the metadata</source>
        <translation>il n’y a pas assez de place pour les métadonnées</translation>
    </message>
    <message>
        <source>this is not a picture</source>
        <translation>ce n’est pas une image</translation>
    </message>
    <message>
        <source>this type of file cannot hold a comment</source>
        <translation>ce type de fichier ne peut pas contenir de commentaire</translation>
    </message>
    <message>
        <source>Cannot write the comment into %1: %2</source>
        <translation>Le commentaire ne peut pas être écrit dans %1 : %2</translation>
    </message>
    <message>
        <source>the picture could not be read afterwards</source>
        <translation>l’image n’a pas pu être lue ensuite</translation>
    </message>
    <message>
        <source>the comment could not be read afterwards</source>
        <translation>le commentaire n’a pas pu être lu ensuite</translation>
    </message>
    <message>
        <source>a comment ends where it has a null character</source>
        <translation>un commentaire s’arrête à son premier caractère nul</translation>
    </message>
    <message>
        <source>Cannot change the metadata of %1: %2</source>
        <translation>Les métadonnées de %1 ne peuvent pas être modifiées : %2</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>le fichier ne peut pas être lu</translation>
    </message>
    <message>
        <source>the metadata could not be read afterwards</source>
        <translation>les métadonnées n’ont pas pu être lues ensuite</translation>
    </message>
    <message>
        <source>it was changed since</source>
        <translation>le fichier a été modifié depuis</translation>
    </message>
    <message>
        <source>its sidecar is damaged</source>
        <translation>son fichier annexe est endommagé</translation>
    </message>
    <message>
        <source>Cannot read %1: %2 x %3 pixels are more than the memory allows</source>
        <translation>%1 ne peut pas être lu : %2 × %3 pixels dépassent la mémoire disponible</translation>
    </message>
    <message>
        <source>its header is damaged</source>
        <translation>son en-tête est endommagé</translation>
    </message>
    <message>
        <source>no permission</source>
        <translation>accès refusé</translation>
    </message>
    <message>
        <source>the file is cut short</source>
        <translation>le fichier est incomplet</translation>
    </message>
    <message>
        <source>There is no image %1</source>
        <translation>Il n’y a pas d’image %1</translation>
    </message>
    <message>
        <source>There is nothing of the picture in that part</source>
        <translation>Cette partie ne contient rien de l’image</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>fichier introuvable</translation>
    </message>
    <message>
        <source>%1 files can have at most %2 pixels on a side, not %3</source>
        <translation>Les fichiers %1 peuvent avoir au plus %2 pixels par côté, et non %3</translation>
    </message>
    <message>
        <source>The text is too large to be drawn</source>
        <translation>Le texte est trop grand pour être dessiné</translation>
    </message>
    <message>
        <source>No font is installed, so no text can be drawn</source>
        <translation>Aucune police n’est installée, aucun texte ne peut donc être dessiné</translation>
    </message>
</context>
<context>
    <name>preferences</name>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Keep both (add a number)</source>
        <translation>Garder les deux (numéroter)</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Ask</source>
        <translation>Demander</translation>
    </message>
    <message>
        <source>the last 1,000 files</source>
        <translation>les 1&#x202f;000 derniers fichiers</translation>
    </message>
    <message>
        <source>the last 10,000 files</source>
        <translation>les 10&#x202f;000 derniers fichiers</translation>
    </message>
    <message>
        <source>the last 100,000 files</source>
        <translation>les 100&#x202f;000 derniers fichiers</translation>
    </message>
    <message>
        <source>all %1 processors</source>
        <translation>les %1 processeurs</translation>
    </message>
    <message>
        <source>%1 of %2 processors</source>
        <translation>%1 processeurs sur %2</translation>
    </message>
    <message>
        <source>A folder next to the originals</source>
        <translation>Un dossier à côté des originaux</translation>
    </message>
    <message>
        <source>The folder of the originals</source>
        <translation>Le dossier des originaux</translation>
    </message>
    <message>
        <source>all free memory</source>
        <translation>toute la mémoire libre</translation>
    </message>
    <message>
        <source>%1 GB at most</source>
        <translation>%1 Go au plus</translation>
    </message>
    <message>
        <source>Skip if up to date</source>
        <translation>Ignorer si à jour</translation>
    </message>
</context>
<context>
    <name>preset-pane</name>
    <message>
        <source>%1 (newer version)</source>
        <translation>%1 (version plus récente)</translation>
    </message>
    <message>
        <source>%1 (unknown)</source>
        <translation>%1 (inconnu)</translation>
    </message>
    <message>
        <source>%1 (damaged)</source>
        <translation>%1 (endommagé)</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, modifié</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modifié</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renommer…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Supprimer…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>My preset</source>
        <translation>Mon préréglage</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Supprimer le préréglage</translation>
    </message>
    <message>
        <source>Delete the preset “%1”?</source>
        <translation>Supprimer le préréglage «&#x202f;%1&#x202f;»&#x202f;?</translation>
    </message>
    <message>
        <source>Your current settings are kept.</source>
        <translation>Vos réglages actuels sont gardés.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Export the preset</source>
        <translation>Exporter le préréglage</translation>
    </message>
    <message>
        <source>Preset exported as %1</source>
        <translation>Préréglage exporté sous %1</translation>
    </message>
    <message>
        <source>Import presets</source>
        <translation>Importer des préréglages</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Lecture de %1 impossible.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n presets imported</source>
        <translation>
            <numerusform>%1 préréglage sur %n importé</numerusform>
            <numerusform>%1 préréglages sur %n importés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n presets imported</source>
        <translation>
            <numerusform>%n préréglage importé</numerusform>
            <numerusform>%n préréglages importés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n renamed because their names were in use</source>
        <translation>
            <numerusform>%n renommé, car son nom était utilisé</numerusform>
            <numerusform>%n renommés, car leurs noms étaient utilisés</numerusform>
        </translation>
    </message>
    <message>
        <source>none for this action</source>
        <translation>aucun pour cette action</translation>
    </message>
    <message>
        <source>This name is in use. The preset will be called “%1”.</source>
        <translation>Ce nom est déjà utilisé. Le préréglage s’appellera «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>No preset</source>
        <translation>Aucun préréglage</translation>
    </message>
</context>
<context>
    <name>preset-store</name>
    <message>
        <source>The presets database was empty. It was renamed to %1, and a new one was created.</source>
        <translation>La base de données des préréglages était vide. Elle a été renommée en %1, et une nouvelle a été créée.</translation>
    </message>
    <message>
        <source>Presets cannot be saved: the database could not be created.</source>
        <translation>Les préréglages ne peuvent pas être gardés&#x202f;: leur base de données ne peut pas être créée.</translation>
    </message>
    <message>
        <source>The presets database cannot be read.</source>
        <translation>La base de données des préréglages ne peut pas être lue.</translation>
    </message>
    <message>
        <source>The presets database is damaged. It was not changed.</source>
        <translation>La base de données des préréglages est endommagée. Elle n’a pas été modifiée.</translation>
    </message>
    <message>
        <source>The presets database has no table for presets. It was not changed.</source>
        <translation>La base de données des préréglages n’a pas de table de préréglages. Elle n’a pas été modifiée.</translation>
    </message>
    <message>
        <source>The presets database is in use by another program or damaged. It was not changed.</source>
        <translation>La base de données des préréglages est utilisée par un autre programme ou endommagée. Elle n’a pas été modifiée.</translation>
    </message>
    <message>
        <source>The presets database is read-only. It was not changed.</source>
        <translation>La base de données des préréglages est en lecture seule. Elle n’a pas été modifiée.</translation>
    </message>
    <message>
        <source>The presets database is in use by another program, or the disk is full. It was not changed.</source>
        <translation>La base de données des préréglages est utilisée par un autre programme, ou le disque est plein. Elle n’a pas été modifiée.</translation>
    </message>
</context>
<context>
    <name>presets</name>
    <message>
        <source>This preset was not made by Quorlin. It was not changed.</source>
        <translation>Ce préréglage n’a pas été créé par Quorlin. Il n’a pas été modifié.</translation>
    </message>
    <message>
        <source>This preset was made by a newer version of Quorlin. It was not changed.</source>
        <translation>Ce préréglage a été créé par une version plus récente de Quorlin. Il n’a pas été modifié.</translation>
    </message>
    <message>
        <source>This preset is damaged and cannot be used.</source>
        <translation>Ce préréglage est endommagé et inutilisable.</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Saisissez un nom.</translation>
    </message>
    <message>
        <source>A name cannot contain line breaks or control characters.</source>
        <translation>Un nom ne peut contenir ni saut de ligne ni caractère de contrôle.</translation>
    </message>
    <message numerus="yes">
        <source>A name can have up to %n characters.</source>
        <translation>
            <numerusform>Un nom peut avoir jusqu’à %n caractère.</numerusform>
            <numerusform>Un nom peut avoir jusqu’à %n caractères.</numerusform>
        </translation>
    </message>
    <message>
        <source>A preset named %1 already exists.</source>
        <translation>Il y a déjà un préréglage nommé %1.</translation>
    </message>
    <message>
        <source>This file contains no presets.</source>
        <translation>Ce fichier ne contient pas de préréglages.</translation>
    </message>
    <message>
        <source>This file was made by a newer version of Quorlin.</source>
        <translation>Ce fichier a été créé par une version plus récente de Quorlin.</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n presets in this file cannot be used.</source>
        <translation>
            <numerusform>%1 préréglage de ce fichier sur %n est inutilisable.</numerusform>
            <numerusform>%1 préréglages de ce fichier sur %n sont inutilisables.</numerusform>
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
        <translation>qualité %1</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>Large preview</source>
        <translation>Grand aperçu</translation>
    </message>
    <message>
        <source>%1: the result. Hold F to see the original.</source>
        <translation>%1 : le résultat. Maintenez F pour voir l’original.</translation>
    </message>
</context>
<context>
    <name>print</name>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Printing: %1</source>
        <translation>Impression : %1</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Le fichier n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was printed.</source>
        <translation>Arrêté. Rien n’a été imprimé.</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures could not be read</source>
        <translation>
            <numerusform>%n image n’a pas pu être lue</numerusform>
            <numerusform>%n images n’ont pas pu être lues</numerusform>
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
        <translation>%1 IL</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>à l’endroit</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>en miroir</translation>
    </message>
    <message>
        <source>upside down</source>
        <translation>tête en bas</translation>
    </message>
    <message>
        <source>upside down, mirrored</source>
        <translation>tête en bas, en miroir</translation>
    </message>
    <message>
        <source>on its left side, mirrored</source>
        <translation>couchée à gauche, en miroir</translation>
    </message>
    <message>
        <source>turn right to see it upright</source>
        <translation>à pivoter vers la droite pour la voir à l’endroit</translation>
    </message>
    <message>
        <source>on its right side, mirrored</source>
        <translation>couchée à droite, en miroir</translation>
    </message>
    <message>
        <source>turn left to see it upright</source>
        <translation>à pivoter vers la gauche pour la voir à l’endroit</translation>
    </message>
    <message>
        <source>fired</source>
        <translation>déclenché</translation>
    </message>
    <message>
        <source>did not fire</source>
        <translation>non déclenché</translation>
    </message>
    <message>
        <source>manual</source>
        <translation>manuel</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>automatique</translation>
    </message>
    <message>
        <source>aperture priority</source>
        <translation>priorité à l’ouverture</translation>
    </message>
    <message>
        <source>shutter priority</source>
        <translation>priorité à la vitesse</translation>
    </message>
    <message>
        <source>creative</source>
        <translation>créatif</translation>
    </message>
    <message>
        <source>action</source>
        <translation>action</translation>
    </message>
    <message>
        <source>portrait</source>
        <translation>portrait</translation>
    </message>
    <message>
        <source>landscape</source>
        <translation>paysage</translation>
    </message>
    <message>
        <source>average</source>
        <translation>moyenne</translation>
    </message>
    <message>
        <source>centre-weighted</source>
        <translation>pondérée au centre</translation>
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
        <translation>multizone</translation>
    </message>
    <message>
        <source>part of the picture</source>
        <translation>partielle</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>standard</translation>
    </message>
    <message>
        <source>night</source>
        <translation>nuit</translation>
    </message>
    <message>
        <source>bracketing</source>
        <translation>bracketing</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>pouce</translation>
    </message>
    <message>
        <source>centimetre</source>
        <translation>centimètre</translation>
    </message>
    <message>
        <source>not sRGB</source>
        <translation>autre que sRGB</translation>
    </message>
    <message>
        <source>above sea level</source>
        <translation>au-dessus du niveau de la mer</translation>
    </message>
    <message>
        <source>below sea level</source>
        <translation>sous le niveau de la mer</translation>
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
            <numerusform>%Ln octet</numerusform>
            <numerusform>%Ln octets</numerusform>
        </translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>Acceleration</source>
        <translation>Accélération</translation>
    </message>
    <message>
        <source>Action advised</source>
        <translation>Action conseillée</translation>
    </message>
    <message>
        <source>Altitude</source>
        <translation>Altitude</translation>
    </message>
    <message>
        <source>Altitude reference</source>
        <translation>Référence d’altitude</translation>
    </message>
    <message>
        <source>Aperture value</source>
        <translation>Valeur d’ouverture</translation>
    </message>
    <message>
        <source>Area information</source>
        <translation>Informations de zone</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artiste</translation>
    </message>
    <message>
        <source>Audio duration</source>
        <translation>Durée audio</translation>
    </message>
    <message>
        <source>Audio outcue</source>
        <translation>Fin de l’audio</translation>
    </message>
    <message>
        <source>Audio rate</source>
        <translation>Échantillonnage audio</translation>
    </message>
    <message>
        <source>Audio resolution</source>
        <translation>Résolution audio</translation>
    </message>
    <message>
        <source>Audio type</source>
        <translation>Type audio</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Battery level</source>
        <translation>Niveau de la batterie</translation>
    </message>
    <message>
        <source>Body serial number</source>
        <translation>Numéro de série du boîtier</translation>
    </message>
    <message>
        <source>Brightness value</source>
        <translation>Valeur de luminosité</translation>
    </message>
    <message>
        <source>By-line</source>
        <translation>Signature</translation>
    </message>
    <message>
        <source>By-line title</source>
        <translation>Titre du signataire</translation>
    </message>
    <message>
        <source>CFA pattern</source>
        <translation>Motif CFA</translation>
    </message>
    <message>
        <source>CFA repeat pattern size</source>
        <translation>Taille du motif CFA</translation>
    </message>
    <message>
        <source>Camera elevation angle</source>
        <translation>Angle d’élévation de l’appareil</translation>
    </message>
    <message>
        <source>Camera owner name</source>
        <translation>Propriétaire de l’appareil</translation>
    </message>
    <message>
        <source>Caption or abstract</source>
        <translation>Légende ou résumé</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Chromaticities</source>
        <translation>Chromaticités</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ville</translation>
    </message>
    <message>
        <source>Colour model</source>
        <translation>Modèle colorimétrique</translation>
    </message>
    <message>
        <source>Colour space</source>
        <translation>Espace colorimétrique</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <source>Components configuration</source>
        <translation>Configuration des composantes</translation>
    </message>
    <message>
        <source>Composite image</source>
        <translation>Image composite</translation>
    </message>
    <message>
        <source>Compressed bits per pixel</source>
        <translation>Bits compressés par pixel</translation>
    </message>
    <message>
        <source>Compression</source>
        <translation>Compression</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contact</translation>
    </message>
    <message>
        <source>Content location code</source>
        <translation>Code du lieu du contenu</translation>
    </message>
    <message>
        <source>Content location name</source>
        <translation>Nom du lieu du contenu</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Contraste</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>Mention de copyright</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>Code du pays</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Creation time</source>
        <translation>Date et heure de création</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Crédit</translation>
    </message>
    <message>
        <source>Custom rendered</source>
        <translation>Rendu personnalisé</translation>
    </message>
    <message>
        <source>Dilution of precision</source>
        <translation>Dilution de la précision</translation>
    </message>
    <message>
        <source>DPI height</source>
        <translation>Résolution verticale (ppp)</translation>
    </message>
    <message>
        <source>DPI width</source>
        <translation>Résolution horizontale (ppp)</translation>
    </message>
    <message>
        <source>Date created</source>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>Date (UTC)</source>
        <translation>Date (UTC)</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Date and time, digitized</source>
        <translation>Date et heure de numérisation</translation>
    </message>
    <message>
        <source>Date and time, original</source>
        <translation>Date et heure de prise de vue</translation>
    </message>
    <message>
        <source>Delay time</source>
        <translation>Délai entre images</translation>
    </message>
    <message>
        <source>Density unit</source>
        <translation>Unité de densité</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Profondeur</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Destination bearing</source>
        <translation>Relèvement de la destination</translation>
    </message>
    <message>
        <source>Destination bearing reference</source>
        <translation>Référence du relèvement de la destination</translation>
    </message>
    <message>
        <source>Destination distance</source>
        <translation>Distance de la destination</translation>
    </message>
    <message>
        <source>Destination distance reference</source>
        <translation>Référence de la distance de la destination</translation>
    </message>
    <message>
        <source>Destination latitude</source>
        <translation>Latitude de la destination</translation>
    </message>
    <message>
        <source>Destination latitude reference</source>
        <translation>Référence de la latitude de la destination</translation>
    </message>
    <message>
        <source>Destination longitude</source>
        <translation>Longitude de la destination</translation>
    </message>
    <message>
        <source>Destination longitude reference</source>
        <translation>Référence de la longitude de la destination</translation>
    </message>
    <message>
        <source>Device setting description</source>
        <translation>Réglages de l’appareil</translation>
    </message>
    <message>
        <source>Differential</source>
        <translation>Correction différentielle</translation>
    </message>
    <message>
        <source>Digital creation date</source>
        <translation>Date de numérisation</translation>
    </message>
    <message>
        <source>Digital creation time</source>
        <translation>Heure de numérisation</translation>
    </message>
    <message>
        <source>Digital zoom ratio</source>
        <translation>Zoom numérique</translation>
    </message>
    <message>
        <source>Disclaimer</source>
        <translation>Clause de non-responsabilité</translation>
    </message>
    <message>
        <source>Document name</source>
        <translation>Nom du document</translation>
    </message>
    <message>
        <source>Edit status</source>
        <translation>État de l’édition</translation>
    </message>
    <message>
        <source>Editorial update</source>
        <translation>Mise à jour éditoriale</translation>
    </message>
    <message>
        <source>Exif version</source>
        <translation>Version Exif</translation>
    </message>
    <message>
        <source>Expiration date</source>
        <translation>Date d’expiration</translation>
    </message>
    <message>
        <source>Expiration time</source>
        <translation>Heure d’expiration</translation>
    </message>
    <message>
        <source>Exposure bias value</source>
        <translation>Correction d’exposition</translation>
    </message>
    <message>
        <source>Exposure index</source>
        <translation>Indice d’exposition</translation>
    </message>
    <message>
        <source>Exposure mode</source>
        <translation>Mode d’exposition</translation>
    </message>
    <message>
        <source>Exposure program</source>
        <translation>Programme d’exposition</translation>
    </message>
    <message>
        <source>Exposure time</source>
        <translation>Temps de pose</translation>
    </message>
    <message>
        <source>F-number</source>
        <translation>Ouverture</translation>
    </message>
    <message>
        <source>File source</source>
        <translation>Source du fichier</translation>
    </message>
    <message>
        <source>Fixture identifier</source>
        <translation>Identifiant de rubrique</translation>
    </message>
    <message>
        <source>Flash</source>
        <translation>Flash</translation>
    </message>
    <message>
        <source>Flash energy</source>
        <translation>Énergie du flash</translation>
    </message>
    <message>
        <source>FlashPix version</source>
        <translation>Version FlashPix</translation>
    </message>
    <message>
        <source>Focal length in 35 mm film</source>
        <translation>Focale équivalente 35 mm</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Focale</translation>
    </message>
    <message>
        <source>Focal plane resolution unit</source>
        <translation>Unité de résolution du plan focal</translation>
    </message>
    <message>
        <source>Focal plane X resolution</source>
        <translation>Résolution X du plan focal</translation>
    </message>
    <message>
        <source>Focal plane Y resolution</source>
        <translation>Résolution Y du plan focal</translation>
    </message>
    <message>
        <source>GPS version</source>
        <translation>Version GPS</translation>
    </message>
    <message>
        <source>Gain control</source>
        <translation>Contrôle du gain</translation>
    </message>
    <message>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <source>Horizontal positioning error</source>
        <translation>Erreur de position horizontale</translation>
    </message>
    <message>
        <source>Has alpha</source>
        <translation>Couche alpha</translation>
    </message>
    <message>
        <source>Has global colour map</source>
        <translation>Palette globale</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>En-tête</translation>
    </message>
    <message>
        <source>Host computer</source>
        <translation>Ordinateur hôte</translation>
    </message>
    <message>
        <source>Humidity</source>
        <translation>Humidité</translation>
    </message>
    <message>
        <source>ISO speed</source>
        <translation>Vitesse ISO</translation>
    </message>
    <message>
        <source>ISO speed latitude yyy</source>
        <translation>Latitude ISO yyy</translation>
    </message>
    <message>
        <source>ISO speed latitude zzz</source>
        <translation>Latitude ISO zzz</translation>
    </message>
    <message>
        <source>ISO speed ratings</source>
        <translation>Sensibilité ISO</translation>
    </message>
    <message>
        <source>Image description</source>
        <translation>Description de l’image</translation>
    </message>
    <message>
        <source>Image history</source>
        <translation>Historique de l’image</translation>
    </message>
    <message>
        <source>Image ID</source>
        <translation>Identifiant de l’image</translation>
    </message>
    <message>
        <source>Image height</source>
        <translation>Hauteur de l’image</translation>
    </message>
    <message>
        <source>Image number</source>
        <translation>Numéro de l’image</translation>
    </message>
    <message>
        <source>Image orientation</source>
        <translation>Orientation de l’image</translation>
    </message>
    <message>
        <source>Image type</source>
        <translation>Type d’image</translation>
    </message>
    <message>
        <source>Unique image ID</source>
        <translation>Identifiant unique de l’image</translation>
    </message>
    <message>
        <source>Image width</source>
        <translation>Largeur de l’image</translation>
    </message>
    <message>
        <source>Image direction</source>
        <translation>Direction de prise de vue</translation>
    </message>
    <message>
        <source>Image direction reference</source>
        <translation>Référence de la direction de prise de vue</translation>
    </message>
    <message>
        <source>Interlace</source>
        <translation>Entrelacement</translation>
    </message>
    <message>
        <source>Interlace type</source>
        <translation>Type d’entrelacement</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Is progressive</source>
        <translation>Progressif</translation>
    </message>
    <message>
        <source>JFIF version</source>
        <translation>Version JFIF</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Language identifier</source>
        <translation>Identifiant de langue</translation>
    </message>
    <message>
        <source>Latitude</source>
        <translation>Latitude</translation>
    </message>
    <message>
        <source>Latitude reference</source>
        <translation>Référence de latitude</translation>
    </message>
    <message>
        <source>Lens make</source>
        <translation>Marque de l’objectif</translation>
    </message>
    <message>
        <source>Lens model</source>
        <translation>Modèle de l’objectif</translation>
    </message>
    <message>
        <source>Lens serial number</source>
        <translation>Numéro de série de l’objectif</translation>
    </message>
    <message>
        <source>Lens range</source>
        <translation>Plage de l’objectif</translation>
    </message>
    <message>
        <source>Light source</source>
        <translation>Source lumineuse</translation>
    </message>
    <message>
        <source>Longitude</source>
        <translation>Longitude</translation>
    </message>
    <message>
        <source>Longitude reference</source>
        <translation>Référence de longitude</translation>
    </message>
    <message>
        <source>Loop count</source>
        <translation>Nombre de boucles</translation>
    </message>
    <message>
        <source>Camera make</source>
        <translation>Marque de l’appareil</translation>
    </message>
    <message>
        <source>Maker note</source>
        <translation>Données du fabricant</translation>
    </message>
    <message>
        <source>Map datum</source>
        <translation>Système géodésique</translation>
    </message>
    <message>
        <source>Largest aperture value</source>
        <translation>Ouverture maximale</translation>
    </message>
    <message>
        <source>Measure mode</source>
        <translation>Mode de mesure GPS</translation>
    </message>
    <message>
        <source>Metering mode</source>
        <translation>Mode de mesure</translation>
    </message>
    <message>
        <source>Camera model</source>
        <translation>Modèle de l’appareil</translation>
    </message>
    <message>
        <source>Noise</source>
        <translation>Bruit</translation>
    </message>
    <message>
        <source>Opto-electric conversion function</source>
        <translation>Fonction de conversion optoélectronique</translation>
    </message>
    <message>
        <source>Object attribute reference</source>
        <translation>Référence d’attribut de l’objet</translation>
    </message>
    <message>
        <source>Object cycle</source>
        <translation>Cycle de l’objet</translation>
    </message>
    <message>
        <source>Object name</source>
        <translation>Nom de l’objet</translation>
    </message>
    <message>
        <source>Object type reference</source>
        <translation>Référence de type de l’objet</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Fuseau horaire</translation>
    </message>
    <message>
        <source>Time zone, digitized</source>
        <translation>Fuseau horaire, numérisation</translation>
    </message>
    <message>
        <source>Time zone, original</source>
        <translation>Fuseau horaire, prise de vue</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Original transmission reference</source>
        <translation>Référence de transmission d’origine</translation>
    </message>
    <message>
        <source>Originating program</source>
        <translation>Programme d’origine</translation>
    </message>
    <message>
        <source>Page name</source>
        <translation>Nom de la page</translation>
    </message>
    <message>
        <source>Page number</source>
        <translation>Numéro de page</translation>
    </message>
    <message>
        <source>Photometric interpretation</source>
        <translation>Interprétation photométrique</translation>
    </message>
    <message>
        <source>Pixel height</source>
        <translation>Hauteur en pixels</translation>
    </message>
    <message>
        <source>Pixel width</source>
        <translation>Largeur en pixels</translation>
    </message>
    <message>
        <source>Pixel X dimension</source>
        <translation>Dimension X en pixels</translation>
    </message>
    <message>
        <source>Pixel Y dimension</source>
        <translation>Dimension Y en pixels</translation>
    </message>
    <message>
        <source>Pressure</source>
        <translation>Pression</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Preview format</source>
        <translation>Format de l’aperçu</translation>
    </message>
    <message>
        <source>Preview version</source>
        <translation>Version de l’aperçu</translation>
    </message>
    <message>
        <source>Primary chromaticities</source>
        <translation>Chromaticités primaires</translation>
    </message>
    <message>
        <source>Processing method</source>
        <translation>Méthode de traitement</translation>
    </message>
    <message>
        <source>Processing software</source>
        <translation>Logiciel de traitement</translation>
    </message>
    <message>
        <source>Profile name</source>
        <translation>Nom du profil</translation>
    </message>
    <message>
        <source>Program version</source>
        <translation>Version du programme</translation>
    </message>
    <message>
        <source>Province or state</source>
        <translation>Région ou État</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Rating in %</source>
        <translation>Note en %</translation>
    </message>
    <message>
        <source>Recommended exposure index</source>
        <translation>Indice d’exposition recommandé</translation>
    </message>
    <message>
        <source>Reference black and white</source>
        <translation>Noir et blanc de référence</translation>
    </message>
    <message>
        <source>Reference date</source>
        <translation>Date de référence</translation>
    </message>
    <message>
        <source>Reference number</source>
        <translation>Numéro de référence</translation>
    </message>
    <message>
        <source>Reference service</source>
        <translation>Service de référence</translation>
    </message>
    <message>
        <source>Related sound file</source>
        <translation>Fichier audio associé</translation>
    </message>
    <message>
        <source>Release date</source>
        <translation>Date de publication</translation>
    </message>
    <message>
        <source>Release time</source>
        <translation>Heure de publication</translation>
    </message>
    <message>
        <source>Resolution unit</source>
        <translation>Unité de résolution</translation>
    </message>
    <message>
        <source>Satellites</source>
        <translation>Satellites</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Saturation</translation>
    </message>
    <message>
        <source>Scene capture type</source>
        <translation>Type de prise de vue</translation>
    </message>
    <message>
        <source>Scene type</source>
        <translation>Type de scène</translation>
    </message>
    <message>
        <source>Security classification</source>
        <translation>Niveau de confidentialité</translation>
    </message>
    <message>
        <source>Self-timer mode</source>
        <translation>Mode retardateur</translation>
    </message>
    <message>
        <source>Sensing method</source>
        <translation>Type de capteur</translation>
    </message>
    <message>
        <source>Sensitivity type</source>
        <translation>Type de sensibilité</translation>
    </message>
    <message>
        <source>Sharpness</source>
        <translation>Netteté</translation>
    </message>
    <message>
        <source>Shutter speed value</source>
        <translation>Vitesse d’obturation</translation>
    </message>
    <message>
        <source>Software</source>
        <translation>Logiciel</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Source exposure times of composite image</source>
        <translation>Temps de pose des images sources du composite</translation>
    </message>
    <message>
        <source>Source image number of composite image</source>
        <translation>Nombre d’images sources du composite</translation>
    </message>
    <message>
        <source>Spatial frequency response</source>
        <translation>Réponse en fréquence spatiale</translation>
    </message>
    <message>
        <source>Special instructions</source>
        <translation>Instructions particulières</translation>
    </message>
    <message>
        <source>Spectral sensitivity</source>
        <translation>Sensibilité spectrale</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Vitesse</translation>
    </message>
    <message>
        <source>Speed reference</source>
        <translation>Référence de vitesse</translation>
    </message>
    <message>
        <source>Standard output sensitivity</source>
        <translation>Sensibilité de sortie standard</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Sub-location</source>
        <translation>Lieu précis</translation>
    </message>
    <message>
        <source>Subject area</source>
        <translation>Zone du sujet</translation>
    </message>
    <message>
        <source>Subject distance range</source>
        <translation>Plage de distance du sujet</translation>
    </message>
    <message>
        <source>Subject distance</source>
        <translation>Distance du sujet</translation>
    </message>
    <message>
        <source>Subject location</source>
        <translation>Emplacement du sujet</translation>
    </message>
    <message>
        <source>Subject reference</source>
        <translation>Référence du sujet</translation>
    </message>
    <message>
        <source>Fraction of the second</source>
        <translation>Fraction de seconde</translation>
    </message>
    <message>
        <source>Fraction of the second, digitized</source>
        <translation>Fraction de seconde, numérisation</translation>
    </message>
    <message>
        <source>Fraction of the second, original</source>
        <translation>Fraction de seconde, prise de vue</translation>
    </message>
    <message>
        <source>Supplemental category</source>
        <translation>Catégorie supplémentaire</translation>
    </message>
    <message>
        <source>TIFF/EP standard ID</source>
        <translation>Identifiant de norme TIFF/EP</translation>
    </message>
    <message>
        <source>Target printer</source>
        <translation>Imprimante cible</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>Température</translation>
    </message>
    <message>
        <source>Time created</source>
        <translation>Heure de création</translation>
    </message>
    <message>
        <source>Time (UTC)</source>
        <translation>Heure (UTC)</translation>
    </message>
    <message>
        <source>Time zone offset</source>
        <translation>Décalage horaire</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Direction of movement</source>
        <translation>Direction du déplacement</translation>
    </message>
    <message>
        <source>Direction of movement reference</source>
        <translation>Référence de la direction du déplacement</translation>
    </message>
    <message>
        <source>Transfer function</source>
        <translation>Fonction de transfert</translation>
    </message>
    <message>
        <source>Urgency</source>
        <translation>Urgence</translation>
    </message>
    <message>
        <source>User comment</source>
        <translation>Commentaire utilisateur</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Water depth</source>
        <translation>Profondeur d’eau</translation>
    </message>
    <message>
        <source>White balance</source>
        <translation>Balance des blancs</translation>
    </message>
    <message>
        <source>White point</source>
        <translation>Point blanc</translation>
    </message>
    <message>
        <source>Writer or editor</source>
        <translation>Rédacteur ou éditeur</translation>
    </message>
    <message>
        <source>X density</source>
        <translation>Densité X</translation>
    </message>
    <message>
        <source>Author (Windows)</source>
        <translation>Auteur (Windows)</translation>
    </message>
    <message>
        <source>Comment (Windows)</source>
        <translation>Commentaire (Windows)</translation>
    </message>
    <message>
        <source>Keywords (Windows)</source>
        <translation>Mots-clés (Windows)</translation>
    </message>
    <message>
        <source>Subject (Windows)</source>
        <translation>Objet (Windows)</translation>
    </message>
    <message>
        <source>Title (Windows)</source>
        <translation>Titre (Windows)</translation>
    </message>
    <message>
        <source>X pixels per metre</source>
        <translation>Pixels par mètre en X</translation>
    </message>
    <message>
        <source>X position</source>
        <translation>Position X</translation>
    </message>
    <message>
        <source>X resolution</source>
        <translation>Résolution X</translation>
    </message>
    <message>
        <source>YCbCr coefficients</source>
        <translation>Coefficients YCbCr</translation>
    </message>
    <message>
        <source>YCbCr positioning</source>
        <translation>Positionnement YCbCr</translation>
    </message>
    <message>
        <source>YCbCr subsampling</source>
        <translation>Sous-échantillonnage YCbCr</translation>
    </message>
    <message>
        <source>Y density</source>
        <translation>Densité Y</translation>
    </message>
    <message>
        <source>Y pixels per metre</source>
        <translation>Pixels par mètre en Y</translation>
    </message>
    <message>
        <source>Y position</source>
        <translation>Position Y</translation>
    </message>
    <message>
        <source>Y resolution</source>
        <translation>Résolution Y</translation>
    </message>
    <message>
        <source>Firmware</source>
        <translation>Micrologiciel</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>Lens info</source>
        <translation>Informations sur l’objectif</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Contributor</source>
        <translation>Contributeur</translation>
    </message>
    <message>
        <source>Coverage</source>
        <translation>Couverture</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Créateur</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Éditeur</translation>
    </message>
    <message>
        <source>Relation</source>
        <translation>Relation</translation>
    </message>
    <message>
        <source>Rights</source>
        <translation>Droits</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Author&apos;s position</source>
        <translation>Fonction de l’auteur</translation>
    </message>
    <message>
        <source>Caption writer</source>
        <translation>Auteur de la légende</translation>
    </message>
    <message>
        <source>Colour mode</source>
        <translation>Mode colorimétrique</translation>
    </message>
    <message>
        <source>ICC profile</source>
        <translation>Profil ICC</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instructions</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Région ou État</translation>
    </message>
    <message>
        <source>Supplemental categories</source>
        <translation>Catégories supplémentaires</translation>
    </message>
    <message>
        <source>Transmission reference</source>
        <translation>Référence de transmission</translation>
    </message>
    <message>
        <source>sRGB intent</source>
        <translation>Intention de rendu sRGB</translation>
    </message>
    <message>
        <source>Create date</source>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>Creator tool</source>
        <translation>Outil de création</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Libellé</translation>
    </message>
    <message>
        <source>Metadata date</source>
        <translation>Date des métadonnées</translation>
    </message>
    <message>
        <source>Modify date</source>
        <translation>Date de modification</translation>
    </message>
    <message>
        <source>Nickname</source>
        <translation>Surnom</translation>
    </message>
    <message>
        <source>Document ID</source>
        <translation>Identifiant du document</translation>
    </message>
    <message>
        <source>Instance ID</source>
        <translation>Identifiant d’instance</translation>
    </message>
    <message>
        <source>Original document ID</source>
        <translation>Identifiant du document d’origine</translation>
    </message>
    <message>
        <source>Rights marked</source>
        <translation>Droits réservés</translation>
    </message>
    <message>
        <source>Rights owner</source>
        <translation>Détenteur des droits</translation>
    </message>
    <message>
        <source>Rights usage terms</source>
        <translation>Conditions d’utilisation</translation>
    </message>
    <message>
        <source>Rights web statement</source>
        <translation>Page web des droits</translation>
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
        <translation>Vider le menu</translation>
    </message>
    <message>
        <source>%1 no longer exists</source>
        <translation>%1 n’existe plus</translation>
    </message>
</context>
<context>
    <name>recipe</name>
    <message>
        <source>%1 has no transparency: transparent parts become %2</source>
        <translation>%1 n’a pas de transparence : les parties transparentes deviennent %2</translation>
    </message>
    <message>
        <source>%1 has 8 bits per channel, the picture has more</source>
        <translation>%1 a 8 bits par canal, l’image en a plus</translation>
    </message>
    <message>
        <source>%1 cannot hold the colour profile: colours become sRGB</source>
        <translation>%1 ne peut pas contenir le profil colorimétrique&#x202f;: les couleurs passent en sRGB</translation>
    </message>
    <message>
        <source>%1 has at most 256 colours</source>
        <translation>%1 a 256 couleurs au plus</translation>
    </message>
    <message>
        <source>Only the first picture is kept</source>
        <translation>Seule la première image est gardée</translation>
    </message>
    <message>
        <source>The gain map is left out</source>
        <translation>La carte de gain est laissée de côté</translation>
    </message>
    <message>
        <source>The motion picture is left out</source>
        <translation>La vidéo associée à l’image est laissée de côté</translation>
    </message>
    <message>
        <source>XMP beyond the first 64 KB is left out</source>
        <translation>Le XMP au-delà des 64 premiers Ko est omis</translation>
    </message>
    <message>
        <source>Signed content credentials are left out, since they do not match a changed file</source>
        <translation>Les certificats d’origine signés sont laissés de côté, car ils ne correspondent pas à un fichier modifié</translation>
    </message>
    <message>
        <source>Data after the end of the picture is left out</source>
        <translation>Les données situées après la fin de l’image sont laissées de côté</translation>
    </message>
    <message>
        <source>%1 holds metadata as XMP only, without maker notes</source>
        <translation>%1 contient les métadonnées en XMP seulement, sans notes du fabricant</translation>
    </message>
    <message>
        <source>%1 cannot hold metadata</source>
        <translation>%1 ne peut pas contenir de métadonnées</translation>
    </message>
    <message>
        <source>Other pictures in the file that are left out: %1</source>
        <translation>Autres images du fichier laissées de côté&#x202f;: %1</translation>
    </message>
    <message>
        <source>Pictures of this type can be read but not written; choose another type</source>
        <translation>Les images de ce format peuvent être lues mais pas écrites ; choisissez un autre format</translation>
    </message>
    <message>
        <source>A picture of %1 × %2 pixels cannot be made</source>
        <translation>Une image de %1 × %2 pixels est impossible</translation>
    </message>
    <message>
        <source>Nothing of the picture is left</source>
        <translation>Il ne reste rien de l’image</translation>
    </message>
    <message>
        <source>Data that the camera maker or a program keeps outside EXIF is left out</source>
        <translation>Les données que le fabricant de l’appareil ou un programme garde hors d’EXIF sont laissées de côté</translation>
    </message>
    <message>
        <source>a number above %1, to %2</source>
        <translation>un nombre supérieur à %1, jusqu’à %2</translation>
    </message>
    <message>
        <source>a whole number from %1 to %2</source>
        <translation>un nombre entier de %1 à %2</translation>
    </message>
    <message>
        <source>a number from %1 to %2</source>
        <translation>un nombre de %1 à %2</translation>
    </message>
    <message>
        <source>%1, not %2</source>
        <translation>%1, pas %2</translation>
    </message>
    <message>
        <source>a list of %1 numbers</source>
        <translation>une liste de %1 nombres</translation>
    </message>
    <message>
        <source>text</source>
        <translation>un texte</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true ou false</translation>
    </message>
    <message>
        <source>a colour such as #ff8000 or #ff800080</source>
        <translation>une couleur comme #ff8000 ou #ff800080</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>une liste</translation>
    </message>
    <message>
        <source>an object</source>
        <translation>un objet</translation>
    </message>
    <message>
        <source>it cannot be used together with %1</source>
        <translation>incompatible avec %1</translation>
    </message>
    <message>
        <source>one of %1 is missing</source>
        <translation>il manque l’un de %1</translation>
    </message>
    <message>
        <source>unknown key</source>
        <translation>clé inconnue</translation>
    </message>
    <message>
        <source>it applies only if &quot;fit&quot; is &quot;fill&quot; or &quot;pad&quot;</source>
        <translation>elle ne s’applique qu’avec «&#x202f;fit&#x202f;» égal à «&#x202f;fill&#x202f;» ou «&#x202f;pad&#x202f;»</translation>
    </message>
    <message>
        <source>it applies only if &quot;fit&quot; is &quot;pad&quot;</source>
        <translation>elle ne s’applique qu’avec «&#x202f;fit&#x202f;» égal à «&#x202f;pad&#x202f;»</translation>
    </message>
    <message>
        <source>it applies only with &quot;box&quot;</source>
        <translation>elle ne s’applique qu’avec «&#x202f;box&#x202f;»</translation>
    </message>
    <message>
        <source>two numbers separated by a colon such as 3:2, not "%1"</source>
        <translation>deux nombres séparés par un deux-points comme 3:2, pas « %1 »</translation>
    </message>
    <message>
        <source>it is required with %1</source>
        <translation>requis avec %1</translation>
    </message>
    <message>
        <source>it applies only with &quot;ratio&quot;</source>
        <translation>elle ne s’applique qu’avec «&#x202f;ratio&#x202f;»</translation>
    </message>
    <message>
        <source>it is missing</source>
        <translation>manque</translation>
    </message>
    <message>
        <source>it applies only with a rectangle</source>
        <translation>elle ne s’applique qu’à un rectangle</translation>
    </message>
    <message>
        <source>there is no picture "%1"</source>
        <translation>il n’y a pas d’image « %1 »</translation>
    </message>
    <message>
        <source>a text that is not empty</source>
        <translation>un texte non vide</translation>
    </message>
    <message>
        <source>there is no font "%1"</source>
        <translation>il n’y a pas de police « %1 »</translation>
    </message>
    <message>
        <source>it applies only with a text</source>
        <translation>elle ne s’applique qu’à un texte</translation>
    </message>
    <message>
        <source>sRGB, Display P3, Adobe RGB, gray or the path of an ICC file, not "%1"</source>
        <translation>sRGB, Display P3, Adobe RGB, gray ou le chemin d’un fichier ICC, pas « %1 »</translation>
    </message>
    <message>
        <source>The pixels cannot stay as they are</source>
        <translation>Les pixels ne peuvent pas rester tels quels</translation>
    </message>
    <message>
        <source>It does not fit into %1 bytes</source>
        <translation>Elle ne tient pas dans %1 octets</translation>
    </message>
    <message>
        <source>this type has no quality</source>
        <translation>ce type n’a pas de qualité</translation>
    </message>
    <message>
        <source>this type has no lossless option</source>
        <translation>ce format n’a pas d’option sans perte</translation>
    </message>
    <message>
        <source>a name that is not empty</source>
        <translation>un nom non vide</translation>
    </message>
    <message>
        <source>a name without &quot;/&quot;; for folders, use &quot;folder&quot;</source>
        <translation>un nom sans «&#x202f;/&#x202f;»&#x202f;; pour les dossiers, utilisez «&#x202f;folder&#x202f;»</translation>
    </message>
    <message>
        <source>the version of the recipe is missing</source>
        <translation>la version de la recette manque</translation>
    </message>
    <message>
        <source>this recipe has version %1, but this program supports versions up to %2 only</source>
        <translation>cette recette est de version %1, mais ce programme ne gère que les versions jusqu’à %2</translation>
    </message>
    <message>
        <source>at least one output</source>
        <translation>au moins une sortie</translation>
    </message>
    <message>
        <source>the list of outputs is missing</source>
        <translation>la liste des sorties manque</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>a recipe must be a JSON object</source>
        <translation>une recette doit être un objet JSON</translation>
    </message>
    <message>
        <source>a recipe cannot be larger than 4 MB</source>
        <translation>une recette ne dépasse pas 4 Mo</translation>
    </message>
    <message>
        <source>%1 is read-only</source>
        <translation>%1 est en lecture seule</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossible d’écrire %1 : %2</translation>
    </message>
    <message>
        <source>no free name found</source>
        <translation>aucun nom libre n’a été trouvé</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>not an ordinary file</source>
        <translation>pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>file already exists</source>
        <translation>le fichier existe déjà</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>illisible</translation>
    </message>
    <message>
        <source>not enough memory to show it</source>
        <translation>mémoire insuffisante pour l’afficher</translation>
    </message>
    <message>
        <source>no result</source>
        <translation>aucun résultat</translation>
    </message>
    <message>
        <source>outputs: exactly one</source>
        <translation>outputs : une seule</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>Impossible de lancer %1 : %2</translation>
    </message>
    <message>
        <source>a worker process ended while starting</source>
        <translation>un processus de travail s’est arrêté au démarrage</translation>
    </message>
    <message>
        <source>it took longer than %1 seconds</source>
        <translation>cela a pris plus de %1 secondes</translation>
    </message>
    <message>
        <source>it needs more than %1 MB of memory</source>
        <translation>il faut plus de %1 Mo de mémoire</translation>
    </message>
    <message>
        <source>its reader crashed</source>
        <translation>son lecteur a planté</translation>
    </message>
    <message>
        <source>the recipe cannot be run</source>
        <translation>la recette ne peut pas être exécutée</translation>
    </message>
    <message>
        <source>%1 with %2 megapixels needs more than 1.5 GB of memory; use at most %3, or choose another type</source>
        <translation>Un %1 de %2 mégapixels demande plus de 1,5 Go de mémoire ; utilisez au plus %3, ou choisissez un autre format</translation>
    </message>
    <message>
        <source>it is up to date</source>
        <translation>elle est à jour</translation>
    </message>
    <message>
        <source>reading was stopped because it took too long</source>
        <translation>la lecture a été arrêtée car elle durait trop longtemps</translation>
    </message>
    <message>
        <source>writing was stopped because it took too long</source>
        <translation>l’écriture a été arrêtée car elle durait trop longtemps</translation>
    </message>
    <message>
        <source>it contains half a character, %1</source>
        <translation>contient une moitié de caractère, %1</translation>
    </message>
    <message>
        <source>it is there twice</source>
        <translation>figure deux fois</translation>
    </message>
    <message>
        <source>Metadata of its sidecar file is left out, since the file is copied</source>
        <translation>Les métadonnées du fichier annexe sont omises, car le fichier est copié</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become white</source>
        <translation>%1 n’a pas de transparence : les parties transparentes deviennent blanches</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become black</source>
        <translation>%1 n’a pas de transparence : les parties transparentes deviennent noires</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become grey</source>
        <translation>%1 n’a pas de transparence : les parties transparentes deviennent grises</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become red</source>
        <translation>%1 n’a pas de transparence : les parties transparentes deviennent rouges</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become green</source>
        <translation>%1 n’a pas de transparence : les parties transparentes deviennent vertes</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become blue</source>
        <translation>%1 n’a pas de transparence : les parties transparentes deviennent bleues</translation>
    </message>
    <message>
        <source>%1 has no transparency: transparent parts become yellow</source>
        <translation>%1 n’a pas de transparence : les parties transparentes deviennent jaunes</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 n’est pas un dossier</translation>
    </message>
    <message>
        <source>Its pixels are compressed in a way that is not supported</source>
        <translation>Ses pixels sont compressés d’une manière non prise en charge</translation>
    </message>
    <message>
        <source>no font is installed, so no text can be drawn</source>
        <translation>aucune police n’est installée, aucun texte ne peut donc être dessiné</translation>
    </message>
</context>
<context>
    <name>recipe-action</name>
    <message>
        <source>Recipe</source>
        <translation>Recette</translation>
    </message>
    <message numerus="yes">
        <source>Run Recipe on %n Pictures</source>
        <translation>
            <numerusform>Appliquer la recette à %n image</numerusform>
            <numerusform>Appliquer la recette à %n images</numerusform>
        </translation>
    </message>
    <message>
        <source>Work on the recipe</source>
        <translation>L’application de la recette</translation>
    </message>
</context>
<context>
    <name>recipe-base</name>
    <message>
        <source>Folder of each picture</source>
        <translation>Dossier de l’image</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Save results to</source>
        <translation>Enregistrer les résultats dans</translation>
    </message>
</context>
<context>
    <name>recipe-field</name>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Au centre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Save results to</source>
        <translation>Enregistrer les résultats dans</translation>
    </message>
</context>
<context>
    <name>recipe-files</name>
    <message>
        <source>Archive as lossless JPEG 2000</source>
        <translation>Archive en JPEG 2000 sans perte</translation>
    </message>
    <message>
        <source>Copyright watermark</source>
        <translation>Filigrane de copyright</translation>
    </message>
    <message>
        <source>Mail under 1 MB</source>
        <translation>E-mail de moins de 1 Mo</translation>
    </message>
    <message>
        <source>Print 10 × 15 at 300 dpi</source>
        <translation>Tirage 10 × 15 à 300 ppp</translation>
    </message>
    <message>
        <source>Square on white</source>
        <translation>Carré sur blanc</translation>
    </message>
    <message>
        <source>Web gallery</source>
        <translation>Galerie web</translation>
    </message>
    <message>
        <source>Enter a name.</source>
        <translation>Saisissez un nom.</translation>
    </message>
    <message>
        <source>A name cannot contain a slash or begin with a dot.</source>
        <translation>Un nom ne peut ni contenir de barre oblique ni commencer par un point.</translation>
    </message>
    <message>
        <source>A recipe named “%1” already exists.</source>
        <translation>Il y a déjà une recette « %1 ».</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>Lecture de %1 impossible.</translation>
    </message>
    <message>
        <source>%1 is not a recipe: %2</source>
        <translation>%1 n’est pas une recette : %2</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash.</source>
        <translation>%1 n’a pas pu être mis à la corbeille.</translation>
    </message>
</context>
<context>
    <name>recipe-head</name>
    <message>
        <source>New recipe</source>
        <translation>Nouvelle recette</translation>
    </message>
    <message>
        <source>%1, changed</source>
        <translation>%1, modifiée</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modifiée</translation>
    </message>
    <message>
        <source>Opened from %1</source>
        <translation>Ouverte depuis %1</translation>
    </message>
    <message>
        <source>New Recipe</source>
        <translation>Nouvelle recette</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>Renommer…</translation>
    </message>
    <message>
        <source>Delete…</source>
        <translation>Supprimer…</translation>
    </message>
    <message>
        <source>Restore Unsaved Changes</source>
        <translation>Restaurer les modifications non enregistrées</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>The changes to “%1” were not saved. Its menu can restore them.</source>
        <translation>Les modifications de «&#x202f;%1&#x202f;» n’ont pas été enregistrées. Le menu de la recette les restaure.</translation>
    </message>
    <message>
        <source>My recipe</source>
        <translation>Ma recette</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Delete recipe</source>
        <translation>Supprimer la recette</translation>
    </message>
    <message>
        <source>Move the recipe “%1” to the trash?</source>
        <translation>Mettre la recette « %1 » à la corbeille ?</translation>
    </message>
    <message>
        <source>Your current settings are kept.</source>
        <translation>Vos réglages actuels sont gardés.</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>Export the recipe</source>
        <translation>Exporter la recette</translation>
    </message>
    <message>
        <source>Recipe exported as %1</source>
        <translation>Recette exportée sous %1</translation>
    </message>
    <message>
        <source>Import a recipe</source>
        <translation>Importer une recette</translation>
    </message>
</context>
<context>
    <name>recipe-pane</name>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Recipe</source>
        <translation>Recette</translation>
    </message>
    <message>
        <source>Search operations</source>
        <translation>Rechercher une opération</translation>
    </message>
    <message>
        <source>It reads:</source>
        <translation>Elle lit :</translation>
    </message>
    <message>
        <source>It writes to:</source>
        <translation>Elle écrit dans :</translation>
    </message>
</context>
<context>
    <name>recipe-plan</name>
    <message>
        <source>%1 of %2 files: %3</source>
        <translation>%1 fichiers sur %2 : %3</translation>
    </message>
    <message>
        <source>replaces original</source>
        <translation>remplace l’original</translation>
    </message>
    <message>
        <source>replaces %1</source>
        <translation>remplace %1</translation>
    </message>
    <message>
        <source>would be written</source>
        <translation>serait écrit</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>prêt</translation>
    </message>
    <message>
        <source>check the recipe</source>
        <translation>vérifier la recette</translation>
    </message>
    <message>
        <source>not a readable picture</source>
        <translation>image illisible</translation>
    </message>
</context>
<context>
    <name>recipe-run</name>
    <message numerus="yes">
        <source>Dry run: %n files would be written</source>
        <translation>
            <numerusform>Essai à blanc : %n fichier serait écrit</numerusform>
            <numerusform>Essai à blanc : %n fichiers seraient écrits</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>rien n’a été écrit</translation>
    </message>
    <message>
        <source>%1 of %2 files: %3</source>
        <translation>%1 fichiers sur %2 : %3</translation>
    </message>
    <message numerus="yes">
        <source>%n files made</source>
        <translation>
            <numerusform>%n fichier créé</numerusform>
            <numerusform>%n fichiers créés</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>échecs&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 not supported</source>
        <translation>non prises en charge&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>ignorées&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 écrits</translation>
    </message>
    <message>
        <source>Cancelled:</source>
        <translation>Arrêté&#x202f;:</translation>
    </message>
</context>
<context>
    <name>recipe-step</name>
    <message>
        <source>Check what this recipe reads and writes, and allow it first.</source>
        <translation>Vérifiez d’abord ce que cette recette lit et écrit, puis autorisez-la.</translation>
    </message>
</context>
<context>
    <name>recipe-words</name>
    <message>
        <source>Resize</source>
        <translation>Redimensionner</translation>
    </message>
    <message>
        <source>To a side, a percentage, megapixels or a box</source>
        <translation>Selon un côté, un pourcentage, des mégapixels ou un cadre</translation>
    </message>
    <message>
        <source>scale small large pixels size</source>
        <translation>échelle petit grand pixels taille</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recadrer</translation>
    </message>
    <message>
        <source>To a ratio or size, or trim the edges</source>
        <translation>Selon un rapport ou des dimensions, ou rogner les bords</translation>
    </message>
    <message>
        <source>cut trim ratio</source>
        <translation>couper rogner rapport</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Pivoter</translation>
    </message>
    <message>
        <source>By any angle, clockwise</source>
        <translation>D’un angle quelconque, sens horaire</translation>
    </message>
    <message>
        <source>turn angle straighten</source>
        <translation>tourner angle redresser</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Miroir</translation>
    </message>
    <message>
        <source>Horizontally or vertically</source>
        <translation>Horizontalement ou verticalement</translation>
    </message>
    <message>
        <source>mirror</source>
        <translation>miroir</translation>
    </message>
    <message>
        <source>Round corners</source>
        <translation>Arrondir les coins</translation>
    </message>
    <message>
        <source>Rectangle, circle or ellipse, with a border</source>
        <translation>Rectangle, cercle ou ellipse, avec bordure</translation>
    </message>
    <message>
        <source>radius circle</source>
        <translation>rayon cercle</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Fond</translation>
    </message>
    <message>
        <source>Fills transparent parts</source>
        <translation>Remplit les parties transparentes</translation>
    </message>
    <message>
        <source>colour pattern transparent</source>
        <translation>couleur motif transparent</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Encadrement</translation>
    </message>
    <message>
        <source>Around the picture on all sides</source>
        <translation>Autour de l’image, de tous les côtés</translation>
    </message>
    <message>
        <source>border edge</source>
        <translation>bordure bord</translation>
    </message>
    <message>
        <source>Watermark</source>
        <translation>Filigrane</translation>
    </message>
    <message>
        <source>A text or a picture over the picture</source>
        <translation>Un texte ou une image sur l’image</translation>
    </message>
    <message>
        <source>copyright logo text stamp</source>
        <translation>copyright logo texte tampon</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Accentuer</translation>
    </message>
    <message>
        <source>For the size at that point</source>
        <translation>Pour les dimensions à ce stade</translation>
    </message>
    <message>
        <source>crisp unsharp</source>
        <translation>netteté flou</translation>
    </message>
    <message>
        <source>Colour profile</source>
        <translation>Profil colorimétrique</translation>
    </message>
    <message>
        <source>Convert colours to sRGB, Display P3 or another</source>
        <translation>Convertir les couleurs en sRGB, Display P3 ou autre</translation>
    </message>
    <message>
        <source>icc grey convert</source>
        <translation>icc gris convertir</translation>
    </message>
    <message>
        <source>Width %1</source>
        <translation>Largeur %1</translation>
    </message>
    <message>
        <source>Height %1</source>
        <translation>Hauteur %1</translation>
    </message>
    <message>
        <source>Longest side %1</source>
        <translation>Grand côté %1</translation>
    </message>
    <message>
        <source>Shortest side %1</source>
        <translation>Petit côté %1</translation>
    </message>
    <message>
        <source>Box %1</source>
        <translation>Cadre %1</translation>
    </message>
    <message>
        <source>Trim %1%</source>
        <translation>Rogner %1 %</translation>
    </message>
    <message>
        <source>Trim %1 px</source>
        <translation>Rogner %1 px</translation>
    </message>
    <message>
        <source>at the focus of attention</source>
        <translation>au centre d’intérêt</translation>
    </message>
    <message>
        <source>no file chosen</source>
        <translation>aucun fichier choisi</translation>
    </message>
    <message>
        <source>Top and bottom</source>
        <translation>Haut et bas</translation>
    </message>
    <message>
        <source>Left and right</source>
        <translation>Gauche et droite</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cercle</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Radius %1</source>
        <translation>Rayon %1</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Forte</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>lossless</source>
        <translation>sans perte</translation>
    </message>
    <message>
        <source>quality %1</source>
        <translation>qualité %1</translation>
    </message>
    <message>
        <source>at most %1 kB</source>
        <translation>au plus %1 Ko</translation>
    </message>
    <message>
        <source>Output %1: %2</source>
        <translation>Sortie %1 : %2</translation>
    </message>
</context>
<context>
    <name>recipes</name>
    <message>
        <source>Dry Run: %1</source>
        <translation>Essai à blanc : %1</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n Originals</source>
        <translation>
            <numerusform>remplacer %n original</numerusform>
            <numerusform>remplacer %n originaux</numerusform>
        </translation>
    </message>
    <message>
        <source>Originals are replaced by their results.</source>
        <translation>Les originaux sont remplacés par leurs résultats.</translation>
    </message>
    <message numerus="yes">
        <source>%n files are replaced.</source>
        <translation>
            <numerusform>%n fichier est remplacé.</numerusform>
            <numerusform>%n fichiers sont remplacés.</numerusform>
        </translation>
    </message>
    <message>
        <source>New names</source>
        <translation>Nouveaux noms</translation>
    </message>
    <message>
        <source>New sizes</source>
        <translation>Nouvelles dimensions</translation>
    </message>
</context>
<context>
    <name>recovered</name>
    <message numerus="yes">
        <source>%n files have their new names</source>
        <translation>
            <numerusform>%n fichier a son nouveau nom</numerusform>
            <numerusform>%n fichiers ont leur nouveau nom</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files restored</source>
        <translation>
            <numerusform>%n fichier rétabli</numerusform>
            <numerusform>%n fichiers rétablis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files not started</source>
        <translation>
            <numerusform>%n fichier non commencé</numerusform>
            <numerusform>%n fichiers non commencés</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was interrupted and has been cleaned up</source>
        <translation>« %1 » a été interrompu et a été nettoyé</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>rename-action</name>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message numerus="yes">
        <source>Rename %n Folders</source>
        <translation>
            <numerusform>Renommer %n dossier</numerusform>
            <numerusform>Renommer %n dossiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rename %n Files</source>
        <translation>
            <numerusform>Renommer %n fichier</numerusform>
            <numerusform>Renommer %n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders renamed</source>
        <translation>
            <numerusform>%n dossier renommé</numerusform>
            <numerusform>%n dossiers renommés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files renamed</source>
        <translation>
            <numerusform>%n fichier renommé</numerusform>
            <numerusform>%n fichiers renommés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n names restored</source>
        <translation>
            <numerusform>%n nom rétabli</numerusform>
            <numerusform>%n noms rétablis</numerusform>
        </translation>
    </message>
    <message>
        <source>Renaming</source>
        <translation>Le renommage</translation>
    </message>
</context>
<context>
    <name>rename-card</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Increment</source>
        <translation>Pas</translation>
    </message>
    <message>
        <source>Restart counter</source>
        <translation>Redémarrer le compteur</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>For each folder</source>
        <translation>Pour chaque dossier</translation>
    </message>
    <message>
        <source>For each date taken</source>
        <translation>Pour chaque date de prise de vue</translation>
    </message>
    <message>
        <source>Case</source>
        <translation>Casse</translation>
    </message>
    <message>
        <source>lower case</source>
        <translation>minuscules</translation>
    </message>
    <message>
        <source>UPPER CASE</source>
        <translation>MAJUSCULES</translation>
    </message>
    <message>
        <source>Words With Capitals</source>
        <translation>Initiales Majuscules</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>With</source>
        <translation>Par</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Insérer</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Après</translation>
    </message>
    <message>
        <source>Characters</source>
        <translation>Caractères</translation>
    </message>
    <message>
        <source>from the start</source>
        <translation>depuis le début</translation>
    </message>
    <message>
        <source>from the end</source>
        <translation>depuis la fin</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>From</source>
        <translation>Depuis</translation>
    </message>
    <message>
        <source>the left</source>
        <translation>la gauche</translation>
    </message>
    <message>
        <source>the right</source>
        <translation>la droite</translation>
    </message>
    <message>
        <source>From the</source>
        <translation>À partir du</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Séparateur</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Morceaux</translation>
    </message>
    <message>
        <source>Join with</source>
        <translation>Réunir avec</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>letters and digits</source>
        <translation>lettres et chiffres</translation>
    </message>
    <message>
        <source>letters only</source>
        <translation>lettres seules</translation>
    </message>
    <message>
        <source>Others</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>Accents</source>
        <translation>Accents</translation>
    </message>
    <message>
        <source>as one letter (NFC)</source>
        <translation>en une seule lettre (NFC)</translation>
    </message>
    <message>
        <source>as separate marks (NFD)</source>
        <translation>en signes séparés (NFD)</translation>
    </message>
    <message>
        <source>Names that</source>
        <translation>Noms qui</translation>
    </message>
    <message>
        <source>contain</source>
        <translation>contiennent</translation>
    </message>
    <message>
        <source>begin with</source>
        <translation>commencent par</translation>
    </message>
    <message>
        <source>end with</source>
        <translation>finissent par</translation>
    </message>
    <message>
        <source>all, or 2,1 or -1</source>
        <translation>tous, ou 2,1 ou -1</translation>
    </message>
    <message>
        <source>{taken} lake {counter:001}</source>
        <translation>{taken} lac {counter:001}</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Extension</translation>
    </message>
    <message>
        <source>Name and extension</source>
        <translation>Nom et extension</translation>
    </message>
    <message numerus="yes">
        <source>%n names are too short and stay unchanged.</source>
        <translation>
            <numerusform>%n nom est trop court et reste inchangé.</numerusform>
            <numerusform>%n noms sont trop courts et restent inchangés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>rename-pane</name>
    <message>
        <source>Holiday 2026</source>
        <translation>Vacances 2026</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>Search steps</source>
        <translation>Chercher une étape</translation>
    </message>
    <message>
        <source>Search values</source>
        <translation>Chercher une valeur</translation>
    </message>
    <message>
        <source>You can use up to 30 steps.</source>
        <translation>Vous pouvez utiliser jusqu’à 30 étapes.</translation>
    </message>
    <message>
        <source>Fix the marked step to see the new names.</source>
        <translation>Corrigez l’étape signalée pour voir les nouveaux noms.</translation>
    </message>
    <message numerus="yes">
        <source>The counter needs more digits: the last number has %n.</source>
        <translation>
            <numerusform>Le compteur demande plus de chiffres : le dernier numéro en a %n.</numerusform>
            <numerusform>Le compteur demande plus de chiffres : le dernier numéro en a %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Use %n Digits</source>
        <translation>
            <numerusform>Utiliser %n chiffre</numerusform>
            <numerusform>Utiliser %n chiffres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>rename-presets</name>
    <message>
        <source>Date and place</source>
        <translation>Date et lieu</translation>
    </message>
    <message>
        <source>place</source>
        <translation>lieu</translation>
    </message>
    <message>
        <source>Clean for the web</source>
        <translation>Propre pour le web</translation>
    </message>
    <message>
        <source>Lower-case extensions</source>
        <translation>Extensions en minuscules</translation>
    </message>
    <message>
        <source>Date prefix</source>
        <translation>Date en préfixe</translation>
    </message>
    <message>
        <source>Number suffix</source>
        <translation>Numéro en suffixe</translation>
    </message>
</context>
<context>
    <name>rename-step</name>
    <message>
        <source>files: %1</source>
        <translation>fichiers&#x202f;: %1</translation>
    </message>
    <message>
        <source>folders: %1</source>
        <translation>dossiers&#x202f;: %1</translation>
    </message>
    <message>
        <source>no date taken</source>
        <translation>sans date de prise de vue</translation>
    </message>
    <message>
        <source>no date created</source>
        <translation>sans date de création</translation>
    </message>
    <message>
        <source>no date changed</source>
        <translation>sans date de modification</translation>
    </message>
    <message>
        <source>no value for “%1”</source>
        <translation>pas de valeur pour «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>undated</source>
        <translation>sans date</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
    <message>
        <source>%1: “%2”</source>
        <translation>%1&#x202f;: «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>separates a letter from its accent</source>
        <translation>sépare une lettre de son accent</translation>
    </message>
    <message>
        <source>would split a character</source>
        <translation>couperait un caractère en deux</translation>
    </message>
</context>
<context>
    <name>replacing</name>
    <message>
        <source>Replaced</source>
        <translation>Remplacés</translation>
    </message>
</context>
<context>
    <name>resize-action</name>
    <message>
        <source>Resize</source>
        <translation>Redimensionner</translation>
    </message>
    <message numerus="yes">
        <source>Resize %n Pictures</source>
        <translation>
            <numerusform>Redimensionner %n image</numerusform>
            <numerusform>Redimensionner %n images</numerusform>
        </translation>
    </message>
    <message>
        <source>Resizing</source>
        <translation>Le redimensionnement</translation>
    </message>
</context>
<context>
    <name>resize-pane</name>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Longest side</source>
        <translation>Grand côté</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>Fill (crops)</source>
        <translation>Remplir (rogne)</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Étirer</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>Pourcentage</translation>
    </message>
    <message>
        <source>Fit inside</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Pad</source>
        <translation>Compléter</translation>
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
        <translation>Carré 1080</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Carré</translation>
    </message>
    <message>
        <source>Print 15 × 10 cm, 300 dpi</source>
        <translation>Tirage 15 × 10 cm, 300 ppp</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Tirages</translation>
    </message>
    <message>
        <source>Print 10 × 15 cm, 300 dpi</source>
        <translation>Tirage 10 × 15 cm, 300 ppp</translation>
    </message>
    <message>
        <source>Contact thumbnails</source>
        <translation>Vignettes pour planche-contact</translation>
    </message>
    <message>
        <source>Thumbnails</source>
        <translation>Vignettes</translation>
    </message>
</context>
<context>
    <name>resize-step</name>
    <message>
        <source>Resized</source>
        <translation>Redimensionnées</translation>
    </message>
    <message>
        <source>width %1</source>
        <translation>largeur %1</translation>
    </message>
    <message>
        <source>height %1</source>
        <translation>hauteur %1</translation>
    </message>
    <message>
        <source>longest side %1</source>
        <translation>grand côté %1</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>à %1 %</translation>
    </message>
    <message>
        <source>box %1</source>
        <translation>cadre %1</translation>
    </message>
    <message>
        <source>Enter a whole number from 1 to %1.</source>
        <translation>Saisissez un nombre entier de 1 à %1.</translation>
    </message>
    <message>
        <source>Enter a number above 0, up to %1.</source>
        <translation>Saisissez un nombre supérieur à 0, jusqu’à %1.</translation>
    </message>
</context>
<context>
    <name>resolution-row</name>
    <message>
        <source>Same as the picture</source>
        <translation>Comme l’image</translation>
    </message>
    <message>
        <source>300 dpi</source>
        <translation>300 ppp</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
    <message>
        <source>dpi</source>
        <translation>ppp</translation>
    </message>
</context>
<context>
    <name>risky-names</name>
    <message>
        <source>other systems reserve the name %1</source>
        <translation>d’autres systèmes se réservent le nom %1</translation>
    </message>
    <message>
        <source>other systems do not allow %1</source>
        <translation>d’autres systèmes n’acceptent pas %1</translation>
    </message>
    <message>
        <source>contains a control character</source>
        <translation>contient un caractère de contrôle</translation>
    </message>
    <message>
        <source>starts with a space</source>
        <translation>commence par un espace</translation>
    </message>
    <message>
        <source>other systems do not allow a trailing space or dot</source>
        <translation>d’autres systèmes n’acceptent ni espace ni point à la fin</translation>
    </message>
</context>
<context>
    <name>room</name>
    <message>
        <source>The files need %1, but %3 has only %2 free.</source>
        <translation>Les fichiers demandent %1, mais il ne reste que %2 dans %3.</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 libres</translation>
    </message>
    <message>
        <source>%1 to be written</source>
        <translation>%1 à écrire</translation>
    </message>
    <message>
        <source>not enough space (needs %1, %2 free)</source>
        <translation>pas assez de place (il faut %1, %2 libres)</translation>
    </message>
    <message>
        <source>This run needs about %1, but %3 has only %2 free.</source>
        <translation>Ce traitement demande environ %1, mais %3 n’a plus que %2 de libres.</translation>
    </message>
    <message>
        <source>the disk of the trash</source>
        <translation>le disque de la corbeille</translation>
    </message>
</context>
<context>
    <name>round-action</name>
    <message>
        <source>Round Corners</source>
        <translation>Arrondir les coins</translation>
    </message>
    <message>
        <source>Rounding corners</source>
        <translation>L’arrondi des coins</translation>
    </message>
    <message numerus="yes">
        <source>Round the Corners of %n Pictures</source>
        <translation>
            <numerusform>Arrondir les coins de %n image</numerusform>
            <numerusform>Arrondir les coins de %n images</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>round-pane</name>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cercle</translation>
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
        <translation>Coins adoucis</translation>
    </message>
    <message>
        <source>Round corners on white</source>
        <translation>Coins ronds sur blanc</translation>
    </message>
    <message>
        <source>Circle portrait</source>
        <translation>Portrait en cercle</translation>
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
        <translation>Arrondies</translation>
    </message>
    <message>
        <source>corners of %1 px</source>
        <translation>coins de %1 px</translation>
    </message>
    <message>
        <source>circle</source>
        <translation>cercle</translation>
    </message>
    <message>
        <source>ellipse</source>
        <translation>ellipse</translation>
    </message>
    <message>
        <source>on %1</source>
        <translation>sur %1</translation>
    </message>
    <message>
        <source>border of %1 px</source>
        <translation>bordure de %1 px</translation>
    </message>
    <message>
        <source>Enter a radius from 0 to %1.</source>
        <translation>Saisissez un rayon de 0 à %1.</translation>
    </message>
    <message>
        <source>Enter a border width from 0 to %1.</source>
        <translation>Saisissez une largeur de bordure de 0 à %1.</translation>
    </message>
    <message>
        <source>the border would cover the whole picture</source>
        <translation>la bordure couvrirait toute l’image</translation>
    </message>
    <message>
        <source>The circle is cut from the square in the middle.</source>
        <translation>Le cercle est découpé dans le carré du milieu.</translation>
    </message>
</context>
<context>
    <name>run-base</name>
    <message>
        <source>Planning…</source>
        <translation>Préparation…</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>reste %1</translation>
    </message>
    <message>
        <source>paused</source>
        <translation>en pause</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Save the report</source>
        <translation>Enregistrer le rapport</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Report saved as %1</source>
        <translation>Rapport enregistré sous %1</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>arrêt en cours</translation>
    </message>
</context>
<context>
    <name>run-signs</name>
    <message>
        <source>When done: nothing</source>
        <translation>À la fin : rien</translation>
    </message>
    <message>
        <source>When done: open folder</source>
        <translation>À la fin : ouvrir le dossier</translation>
    </message>
    <message>
        <source>When done: close</source>
        <translation>À la fin : fermer</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1: started</source>
        <translation>%1 : commencé</translation>
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
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Choose a picture to save.</source>
        <translation>Choisissez une image à enregistrer.</translation>
    </message>
    <message>
        <source>Saved %1, %2</source>
        <translation>%1 enregistré, %2</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>“%1” could not be written.</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas pu être écrit.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Wait until the picture has been saved.</source>
        <translation>Attendez que l’image soit enregistrée.</translation>
    </message>
    <message>
        <source>Saving %1…</source>
        <translation>Enregistrement de %1…</translation>
    </message>
    <message>
        <source>Save Picture As</source>
        <translation>Enregistrer l’image sous</translation>
    </message>
</context>
<context>
    <name>script::ScriptEngine</name>
    <message>
        <source>Cannot read %1: no such file</source>
        <translation>Lecture de %1 impossible&#x202f;: ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>This is not a function of a script</source>
        <translation>Ce n’est pas une fonction d’un script</translation>
    </message>
</context>
<context>
    <name>settings-watch</name>
    <message>
        <source>Settings cannot be saved. Your changes apply until you quit.</source>
        <translation>Les réglages ne peuvent pas être enregistrés. Vos changements valent jusqu’à la fermeture.</translation>
    </message>
</context>
<context>
    <name>sheet-plan</name>
    <message>
        <source>not a readable picture</source>
        <translation>image illisible</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>prêt</translation>
    </message>
</context>
<context>
    <name>sheet-run</name>
    <message>
        <source>Cancelled before the first page. Nothing was written.</source>
        <translation>Arrêté avant la première page. Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>Dry run: %1 would be written</source>
        <translation>Essai à blanc : %1 serait écrit</translation>
    </message>
    <message numerus="yes">
        <source>%n pages</source>
        <translation>
            <numerusform>%n page</numerusform>
            <numerusform>%n pages</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>rien n’a été écrit</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en attente</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>arrêté</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was written.</source>
        <translation>Annulé. Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 en échec</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 écrits</translation>
    </message>
</context>
<context>
    <name>sheets</name>
    <message>
        <source>Dry Run: %1</source>
        <translation>Essai à blanc : %1</translation>
    </message>
    <message>
        <source>%1 is replaced.</source>
        <translation>%1 est remplacé.</translation>
    </message>
    <message>
        <source>As %1</source>
        <translation>Sous le nom %1</translation>
    </message>
    <message>
        <source>Dry run: write nothing</source>
        <translation>Essai à blanc : ne rien écrire</translation>
    </message>
</context>
<context>
    <name>site-run</name>
    <message>
        <source>done, waiting for the page</source>
        <translation>terminé, attend la page</translation>
    </message>
    <message>
        <source>not on the page</source>
        <translation>pas sur la page</translation>
    </message>
    <message>
        <source>no picture could be processed</source>
        <translation>aucune image n’a pu être traitée</translation>
    </message>
    <message>
        <source>cancelled, the page was not made</source>
        <translation>arrêté, la page n’a pas été créée</translation>
    </message>
    <message>
        <source>the page was not made: %1</source>
        <translation>la page n’a pas été créée : %1</translation>
    </message>
    <message>
        <source>The page was not made: %1</source>
        <translation>La page n’a pas été créée : %1</translation>
    </message>
</context>
<context>
    <name>sites</name>
    <message>
        <source>The page that Quorlin made in this folder is updated.</source>
        <translation>La page créée par Quorlin dans ce dossier est mise à jour.</translation>
    </message>
</context>
<context>
    <name>sort-action</name>
    <message numerus="yes">
        <source>Sort %n Files into Folders</source>
        <translation>
            <numerusform>Classer %n fichier en dossiers</numerusform>
            <numerusform>Classer %n fichiers en dossiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Copy %n Files into Folders</source>
        <translation>
            <numerusform>Copier %n fichier dans des dossiers</numerusform>
            <numerusform>Copier %n fichiers dans des dossiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Link %n Files into Folders</source>
        <translation>
            <numerusform>Lier %n fichier dans des dossiers</numerusform>
            <numerusform>Lier %n fichiers dans des dossiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files sorted</source>
        <translation>
            <numerusform>%n fichier classé</numerusform>
            <numerusform>%n fichiers classés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files copied</source>
        <translation>
            <numerusform>%n fichier copié</numerusform>
            <numerusform>%n fichiers copiés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n links created</source>
        <translation>
            <numerusform>%n lien créé</numerusform>
            <numerusform>%n liens créés</numerusform>
        </translation>
    </message>
    <message>
        <source>Sort into Folders</source>
        <translation>Classer en dossiers</translation>
    </message>
    <message numerus="yes">
        <source>%n files restored</source>
        <translation>
            <numerusform>%n fichier rétabli</numerusform>
            <numerusform>%n fichiers rétablis</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files moved</source>
        <translation>
            <numerusform>%n fichier déplacé</numerusform>
            <numerusform>%n fichiers déplacés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n files linked</source>
        <translation>
            <numerusform>%n fichier lié</numerusform>
            <numerusform>%n fichiers liés</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 into %2</source>
        <translation>%1 dans %2</translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n dossier</numerusform>
            <numerusform>%n dossiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders made</source>
        <translation>
            <numerusform>%n dossier créé</numerusform>
            <numerusform>%n dossiers créés</numerusform>
        </translation>
    </message>
    <message>
        <source>Sorting</source>
        <translation>Le classement</translation>
    </message>
    <message>
        <source>Into</source>
        <translation>Vers</translation>
    </message>
</context>
<context>
    <name>sort-pane</name>
    <message>
        <source>Put in folder</source>
        <translation>Mettre dans le dossier</translation>
    </message>
    <message>
        <source>Use date created</source>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>Use date changed</source>
        <translation>Date de modification</translation>
    </message>
    <message>
        <source>Do not move</source>
        <translation>Ne pas déplacer</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Déplacer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lier</translation>
    </message>
    <message>
        <source>Keep both (add a number)</source>
        <translation>Garder les deux (numéroter)</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>The originals stay where they are.</source>
        <translation>Les originaux restent où ils sont.</translation>
    </message>
    <message>
        <source>Links point to the files where they are now.</source>
        <translation>Les liens mènent aux fichiers là où ils sont.</translation>
    </message>
    <message>
        <source>Custom pattern</source>
        <translation>Modèle personnel</translation>
    </message>
    <message>
        <source>No more folders</source>
        <translation>Pas d’autre dossier</translation>
    </message>
    <message>
        <source>Folder of each picture</source>
        <translation>Dossier de chaque image</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Sort into</source>
        <translation>Classer dans</translation>
    </message>
    <message>
        <source>%1 has no date and stays.</source>
        <translation>%1 n’a pas de date et reste.</translation>
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
        <translation>Par année et jour de prise de vue</translation>
    </message>
    <message>
        <source>By year and month taken</source>
        <translation>Par année et mois de prise de vue</translation>
    </message>
    <message>
        <source>By day changed</source>
        <translation>Par jour de modification</translation>
    </message>
    <message>
        <source>By camera and day taken</source>
        <translation>Par appareil et jour de prise de vue</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Par format</translation>
    </message>
    <message>
        <source>By orientation</source>
        <translation>Par orientation</translation>
    </message>
    <message>
        <source>By file size</source>
        <translation>Par poids du fichier</translation>
    </message>
    <message>
        <source>By start of name</source>
        <translation>Par début du nom</translation>
    </message>
</context>
<context>
    <name>sort-step</name>
    <message>
        <source>Undated</source>
        <translation>Sans date</translation>
    </message>
    <message>
        <source>move into %1</source>
        <translation>déplacer dans %1</translation>
    </message>
    <message>
        <source>copy into %1</source>
        <translation>copier dans %1</translation>
    </message>
    <message>
        <source>link into %1</source>
        <translation>lier dans %1</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 sous %2</translation>
    </message>
    <message>
        <source>Choose a folder to sort into.</source>
        <translation>Choisissez un dossier où classer.</translation>
    </message>
    <message>
        <source>no date taken</source>
        <translation>sans date de prise de vue</translation>
    </message>
    <message>
        <source>by date created</source>
        <translation>date de création</translation>
    </message>
    <message>
        <source>by date changed</source>
        <translation>date de modification</translation>
    </message>
    <message>
        <source>no date taken: not moved</source>
        <translation>sans date de prise de vue : non déplacé</translation>
    </message>
    <message>
        <source>a file already has this folder name: %1</source>
        <translation>un fichier porte déjà le nom du dossier : %1</translation>
    </message>
    <message>
        <source>The file has no date taken.</source>
        <translation>Le fichier n’a pas de date de prise de vue.</translation>
    </message>
    <message>
        <source>It is already in a folder with the right name.</source>
        <translation>Le fichier est déjà dans un dossier du bon nom.</translation>
    </message>
</context>
<context>
    <name>sort-tree</name>
    <message>
        <source>No file will be moved.</source>
        <translation>Aucun fichier ne sera déplacé.</translation>
    </message>
    <message>
        <source>%1 into %2</source>
        <translation>%1 dans %2</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n folders</source>
        <translation>
            <numerusform>%n dossier</numerusform>
            <numerusform>%n dossiers</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message numerus="yes">
        <source>%n folders will be made, counting parents</source>
        <translation>
            <numerusform>%n dossier sera créé, parents compris</numerusform>
            <numerusform>%n dossiers seront créés, parents compris</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>sorting</name>
    <message>
        <source>Year taken</source>
        <translation>Année de prise de vue</translation>
    </message>
    <message>
        <source>Month taken</source>
        <translation>Mois de prise de vue</translation>
    </message>
    <message>
        <source>Day taken</source>
        <translation>Jour de prise de vue</translation>
    </message>
    <message>
        <source>Year created</source>
        <translation>Année de création</translation>
    </message>
    <message>
        <source>Month created</source>
        <translation>Mois de création</translation>
    </message>
    <message>
        <source>Day created</source>
        <translation>Jour de création</translation>
    </message>
    <message>
        <source>Year changed</source>
        <translation>Année de modification</translation>
    </message>
    <message>
        <source>Month changed</source>
        <translation>Mois de modification</translation>
    </message>
    <message>
        <source>Day changed</source>
        <translation>Jour de modification</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Format de fichier</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Poids du fichier</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil photo</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>Name up to the first digit</source>
        <translation>Nom jusqu’au premier chiffre</translation>
    </message>
    <message>
        <source>First letter</source>
        <translation>Première lettre</translation>
    </message>
    <message>
        <source>First 3 letters</source>
        <translation>3 premières lettres</translation>
    </message>
    <message>
        <source>Choose a rule, or write a pattern of folders.</source>
        <translation>Choisissez une règle, ou écrivez un modèle de dossiers.</translation>
    </message>
    <message>
        <source>A folder cannot be called “.” or “..”.</source>
        <translation>Un dossier ne peut pas s’appeler «&#x202f;.&#x202f;» ou «&#x202f;..&#x202f;».</translation>
    </message>
    <message>
        <source>A folder name cannot consist of spaces only.</source>
        <translation>Le nom d’un dossier ne peut pas se composer uniquement d’espaces.</translation>
    </message>
    <message>
        <source>A folder name is too long.</source>
        <translation>Le nom d’un dossier est trop long.</translation>
    </message>
    <message>
        <source>A pattern cannot contain control characters.</source>
        <translation>Un modèle ne peut pas contenir de caractères de contrôle.</translation>
    </message>
    <message>
        <source>Enter a folder name for pictures without a date.</source>
        <translation>Saisissez un nom pour le dossier des images sans date.</translation>
    </message>
    <message>
        <source>“%1” is not a valid folder name.</source>
        <translation>« %1 » n’est pas un nom de dossier valide.</translation>
    </message>
    <message>
        <source>Undated</source>
        <translation>Sans date</translation>
    </message>
    <message>
        <source>Unknown camera</source>
        <translation>Appareil inconnu</translation>
    </message>
    <message>
        <source>Unknown lens</source>
        <translation>Objectif inconnu</translation>
    </message>
    <message>
        <source>Unknown size</source>
        <translation>Poids inconnu</translation>
    </message>
    <message>
        <source>Unknown type</source>
        <translation>Format inconnu</translation>
    </message>
    <message>
        <source>Unknown orientation</source>
        <translation>Orientation inconnue</translation>
    </message>
    <message>
        <source>Without extension</source>
        <translation>Sans extension</translation>
    </message>
    <message>
        <source>Other names</source>
        <translation>Autres noms</translation>
    </message>
    <message>
        <source>Other folders</source>
        <translation>Autres dossiers</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>Not rated</source>
        <translation>Sans note</translation>
    </message>
</context>
<context>
    <name>status-bar</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message numerus="yes">
        <source>Only failed pictures are shown: %n</source>
        <translation>
            <numerusform>Seules les images en échec sont affichées : %n</numerusform>
            <numerusform>Seules les images en échec sont affichées : %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>%1 laissées de côté</translation>
    </message>
    <message>
        <source>Only pictures with %1 are processed: %2</source>
        <translation>Seules les images avec %1 sont traitées&#x202f;: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n stars or more</source>
        <translation>
            <numerusform>%n étoile ou plus</numerusform>
            <numerusform>%n étoiles ou plus</numerusform>
        </translation>
    </message>
    <message>
        <source>Only pictures that match the filter are processed: %1</source>
        <translation>Seules les images qui correspondent au filtre sont traitées : %1</translation>
    </message>
</context>
<context>
    <name>step-words</name>
    <message>
        <source>New text</source>
        <translation>Nouveau texte</translation>
    </message>
    <message>
        <source>Text with dates, counters and other values</source>
        <translation>Texte avec dates, compteur et autres valeurs</translation>
    </message>
    <message>
        <source>token pattern write template</source>
        <translation>variable modèle écrire</translation>
    </message>
    <message>
        <source>Change case</source>
        <translation>Changer la casse</translation>
    </message>
    <message>
        <source>lower case, UPPER CASE, Words</source>
        <translation>minuscules, MAJUSCULES, Initiales</translation>
    </message>
    <message>
        <source>capital small letters</source>
        <translation>capitales majuscules minuscules lettres</translation>
    </message>
    <message>
        <source>Replace text</source>
        <translation>Remplacer un texte</translation>
    </message>
    <message>
        <source>Replaces a text everywhere in the name</source>
        <translation>Remplace un texte partout dans le nom</translation>
    </message>
    <message>
        <source>search find substitute delete</source>
        <translation>chercher trouver substituer supprimer</translation>
    </message>
    <message>
        <source>Insert text</source>
        <translation>Insérer un texte</translation>
    </message>
    <message>
        <source>At a position counted from the start or the end</source>
        <translation>À une position comptée depuis le début ou la fin</translation>
    </message>
    <message>
        <source>add position</source>
        <translation>ajouter position</translation>
    </message>
    <message>
        <source>Add before and after</source>
        <translation>Ajouter avant et après</translation>
    </message>
    <message>
        <source>Text before and after the name</source>
        <translation>Du texte devant le nom et derrière</translation>
    </message>
    <message>
        <source>prefix suffix append join concatenate</source>
        <translation>préfixe suffixe joindre concaténer</translation>
    </message>
    <message>
        <source>Remove characters</source>
        <translation>Supprimer des caractères</translation>
    </message>
    <message>
        <source>A number of characters from the left or the right</source>
        <translation>Un certain nombre, à gauche ou à droite</translation>
    </message>
    <message>
        <source>strip cut trim shorten</source>
        <translation>enlever supprimer couper raccourcir</translation>
    </message>
    <message>
        <source>Keep a section</source>
        <translation>Garder un extrait</translation>
    </message>
    <message>
        <source>Only the characters at certain positions</source>
        <translation>Seulement les caractères à certaines places</translation>
    </message>
    <message>
        <source>part substring range middle</source>
        <translation>partie section intervalle milieu</translation>
    </message>
    <message>
        <source>Split and join</source>
        <translation>Couper et réunir</translation>
    </message>
    <message>
        <source>Take pieces between separators, in any order</source>
        <translation>Prendre des morceaux entre séparateurs, dans l’ordre voulu</translation>
    </message>
    <message>
        <source>pieces rearrange swap</source>
        <translation>morceaux réordonner échanger diviser joindre</translation>
    </message>
    <message>
        <source>Keep letters and digits</source>
        <translation>Garder lettres et chiffres</translation>
    </message>
    <message>
        <source>Removes all other characters</source>
        <translation>Supprime tous les autres caractères</translation>
    </message>
    <message>
        <source>remove signs non-letters clean punctuation digits</source>
        <translation>nettoyer ponctuation chiffres enlever supprimer</translation>
    </message>
    <message>
        <source>Remove spaces</source>
        <translation>Supprimer les espaces</translation>
    </message>
    <message>
        <source>All spaces, also between words</source>
        <translation>Tous les espaces, même entre les mots</translation>
    </message>
    <message>
        <source>blanks whitespace</source>
        <translation>blancs espaces enlever supprimer</translation>
    </message>
    <message>
        <source>Remove accents (é → e)</source>
        <translation>Supprimer les accents (é → e)</translation>
    </message>
    <message>
        <source>é becomes e</source>
        <translation>é devient e</translation>
    </message>
    <message>
        <source>fold ascii umlaut diacritics plain</source>
        <translation>ascii tréma diacritiques simple enlever supprimer</translation>
    </message>
    <message>
        <source>Normalise accents</source>
        <translation>Normaliser les accents</translation>
    </message>
    <message>
        <source>For names that come from another system</source>
        <translation>Pour les noms venus d’un autre système</translation>
    </message>
    <message>
        <source>unicode utf-8 normalise nfc nfd repair</source>
        <translation>unicode utf-8 normaliser nfc nfd réparer</translation>
    </message>
    <message>
        <source>Only some names</source>
        <translation>Certains noms seulement</translation>
    </message>
    <message>
        <source>The steps below apply only to matching names</source>
        <translation>Les étapes suivantes ne s’appliquent qu’aux noms concernés</translation>
    </message>
    <message>
        <source>filter condition contains begins ends if</source>
        <translation>filtre condition contient commence finit si</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Compteur</translation>
    </message>
    <message>
        <source>001, 002, 003 after the name</source>
        <translation>001, 002, 003 après le nom</translation>
    </message>
    <message>
        <source>number sequence</source>
        <translation>numéro suite séquence</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Date de prise de vue</translation>
    </message>
    <message>
        <source>Before the name</source>
        <translation>Devant le nom</translation>
    </message>
    <message>
        <source>exif time shot</source>
        <translation>exif heure photo</translation>
    </message>
    <message>
        <source>Date changed or created</source>
        <translation>Date de modification ou de création</translation>
    </message>
    <message>
        <source>modified file time</source>
        <translation>modifié fichier heure</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil photo</translation>
    </message>
    <message>
        <source>After the name</source>
        <translation>Après le nom</translation>
    </message>
    <message>
        <source>model lens</source>
        <translation>modèle objectif</translation>
    </message>
    <message>
        <source>Size in pixels</source>
        <translation>Dimensions en pixels</translation>
    </message>
    <message>
        <source>width height resolution</source>
        <translation>largeur hauteur résolution dimensions</translation>
    </message>
    <message>
        <source>Name of the folder</source>
        <translation>Nom du dossier</translation>
    </message>
    <message>
        <source>directory parent</source>
        <translation>répertoire parent</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
    <message>
        <source>extension</source>
        <translation>extension</translation>
    </message>
    <message>
        <source>name and extension</source>
        <translation>nom et extension</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>%1 to lower case</source>
        <translation>%1 en minuscules</translation>
    </message>
    <message>
        <source>%1 to UPPER CASE</source>
        <translation>%1 en MAJUSCULES</translation>
    </message>
    <message>
        <source>%1 to Words With Capitals</source>
        <translation>%1 en Initiales Majuscules</translation>
    </message>
    <message>
        <source>%1 becomes %2</source>
        <translation>%1 devient %2</translation>
    </message>
    <message>
        <source>%1, %2 from the end</source>
        <translation>%1, à %2 de la fin</translation>
    </message>
    <message>
        <source>%1, %2 from the start</source>
        <translation>%1, à %2 du début</translation>
    </message>
    <message>
        <source>%1 before, %2 after</source>
        <translation>%1 avant, %2 après</translation>
    </message>
    <message>
        <source>%1 from the left</source>
        <translation>%1 depuis la gauche</translation>
    </message>
    <message>
        <source>%1 from the right</source>
        <translation>%1 depuis la droite</translation>
    </message>
    <message numerus="yes">
        <source>%n characters from the %1.</source>
        <translation>
            <numerusform>%n caractère à partir du %1.</numerusform>
            <numerusform>%n caractères à partir du %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>at %1, joined by %2</source>
        <translation>à %1, réunis par %2</translation>
    </message>
    <message>
        <source>at %1, pieces %3, joined by %2</source>
        <translation>à %1, morceaux %3, réunis par %2</translation>
    </message>
    <message>
        <source>only letters are kept</source>
        <translation>seules les lettres restent</translation>
    </message>
    <message>
        <source>only letters and digits are kept</source>
        <translation>seuls les lettres et les chiffres restent</translation>
    </message>
    <message>
        <source>all spaces are removed</source>
        <translation>tous les espaces sont supprimés</translation>
    </message>
    <message>
        <source>é becomes e, others %1</source>
        <translation>é devient e, autres %1</translation>
    </message>
    <message>
        <source>accents as separate marks (NFD)</source>
        <translation>accents séparés (NFD)</translation>
    </message>
    <message>
        <source>accents and letters as one (NFC)</source>
        <translation>accents unis aux lettres (NFC)</translation>
    </message>
    <message>
        <source>that contain %1</source>
        <translation>qui contiennent %1</translation>
    </message>
    <message>
        <source>that begin with %1</source>
        <translation>qui commencent par %1</translation>
    </message>
    <message>
        <source>that end with %1</source>
        <translation>qui finissent par %1</translation>
    </message>
</context>
<context>
    <name>targets</name>
    <message>
        <source>The first page is rendered at 72 pixels per inch.</source>
        <translation>La première page est rendue à 72 pixels par pouce.</translation>
    </message>
    <message>
        <source>Layers are merged into one picture.</source>
        <translation>Les calques sont fusionnés en une seule image.</translation>
    </message>
    <message>
        <source>Small files for sharing. The lower the quality, the more detail is lost. Transparent parts get a colour and 16 bits become 8. Colour profile and metadata are kept.</source>
        <translation>Petits fichiers à partager. Plus la qualité est basse, plus les détails se perdent. Les parties transparentes reçoivent une couleur et les 16 bits sont réduits à 8. Profil colorimétrique et métadonnées sont conservés.</translation>
    </message>
    <message>
        <source>Nothing is lost: pixels, transparency, 16 bits, colour profile and metadata are kept.</source>
        <translation>Aucune perte&#x202f;: pixels, transparence, 16 bits, profil colorimétrique et métadonnées sont conservés.</translation>
    </message>
    <message>
        <source>Nothing is lost: pixels, transparency, 16 bits, CMYK, colour profile and metadata are kept. Large files.</source>
        <translation>Aucune perte&#x202f;: pixels, transparence, 16 bits, CMJN, profil colorimétrique et métadonnées sont conservés. Gros fichiers.</translation>
    </message>
    <message>
        <source>One page of the size of the picture. A JPEG is included unchanged, other types without loss. Metadata is kept as far as XMP can hold it.</source>
        <translation>Une page aux dimensions de l’image. Un JPEG est repris tel quel, les autres formats sans perte. Les métadonnées sont gardées dans la mesure où XMP peut les contenir.</translation>
    </message>
    <message>
        <source>Visually lossless. Transparency, 16 bits and metadata are kept, and most colour profiles. Few programs can open it.</source>
        <translation>Sans perte visible. Transparence, 16 bits, métadonnées et la plupart des profils colorimétriques sont conservés. Peu de programmes peuvent ouvrir ce format.</translation>
    </message>
    <message>
        <source>At most 256 colours. A pixel is either transparent or not. Colours become sRGB. Metadata is kept as far as XMP can hold it.</source>
        <translation>256 couleurs au plus. Un pixel est transparent ou ne l’est pas. Les couleurs passent en sRGB. Les métadonnées sont gardées dans la mesure où XMP peut les contenir.</translation>
    </message>
    <message>
        <source>Large files with pixels and resolution only. Colours become sRGB, transparent parts get a colour and 16 bits become 8.</source>
        <translation>Gros fichiers avec pixels et résolution seulement. Les couleurs passent en sRGB, les parties transparentes reçoivent une couleur et les 16 bits sont réduits à 8.</translation>
    </message>
    <message>
        <source>Already %1: no pixel changes.</source>
        <translation>Déjà au format %1 : aucun pixel ne change.</translation>
    </message>
    <message>
        <source>Already %1: it will be encoded again.</source>
        <translation>Déjà au format %1 : l’image sera encodée de nouveau.</translation>
    </message>
    <message>
        <source>1 – smallest file</source>
        <translation>1 – fichier le plus léger</translation>
    </message>
    <message>
        <source>9 – best</source>
        <translation>9 – meilleure qualité</translation>
    </message>
    <message>
        <source>Small files for web pages. The lower the quality, the more detail is lost. 16 bits become 8. Transparency, colour profile and metadata are kept.</source>
        <translation>Petits fichiers pour les pages web. Plus la qualité est basse, plus les détails se perdent. Les 16 bits sont réduits à 8. Transparence, profil colorimétrique et métadonnées sont conservés.</translation>
    </message>
    <message>
        <source>Very small files for web pages, which take the longest to write. The lower the quality, the more detail is lost. 16 bits become 8. Transparency, colour profile and metadata are kept.</source>
        <translation>Très petits fichiers pour les pages web. C’est le type le plus long à écrire. Plus la qualité est basse, plus les détails se perdent. Les 16 bits sont réduits à 8. Transparence, profil colorimétrique et métadonnées sont conservés.</translation>
    </message>
    <message>
        <source>Small files for archives. The lower the quality, the more detail is lost. Transparency, 16 bits, colour profile and metadata are kept. Few programs can open them.</source>
        <translation>Petits fichiers pour les archives. Plus la qualité est basse, plus les détails se perdent. Transparence, 16 bits, profil colorimétrique et métadonnées sont conservés. Peu de programmes peuvent les ouvrir.</translation>
    </message>
</context>
<context>
    <name>text</name>
    <message>
        <source>Name without extension</source>
        <translation>Nom sans extension</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Extension</translation>
    </message>
    <message>
        <source>Date taken, otherwise date changed</source>
        <translation>Date de prise de vue, sinon de modification</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Date de prise de vue</translation>
    </message>
    <message>
        <source>Date created</source>
        <translation>Date de création</translation>
    </message>
    <message>
        <source>Date changed</source>
        <translation>Date de modification</translation>
    </message>
    <message>
        <source>Counter</source>
        <translation>Compteur</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil photo</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>Width in pixels</source>
        <translation>Largeur en pixels</translation>
    </message>
    <message>
        <source>Height in pixels</source>
        <translation>Hauteur en pixels</translation>
    </message>
    <message>
        <source>File size</source>
        <translation>Poids du fichier</translation>
    </message>
    <message>
        <source>File type</source>
        <translation>Format de fichier</translation>
    </message>
    <message>
        <source>Landscape, portrait or square</source>
        <translation>Paysage, portrait ou carré</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Paysage</translation>
    </message>
    <message>
        <source>Name of the folder</source>
        <translation>Nom de son dossier</translation>
    </message>
    <message>
        <source>Holiday</source>
        <translation>Vacances</translation>
    </message>
    <message>
        <source>“%1” is not a valid date format; use yyyy, yy, MM, MMM, dd, EEE, HH, mm, ss</source>
        <translation>« %1 » n’est pas un format de date valide&#x202f;; utilisez yyyy, yy, MM, MMM, dd, EEE, HH, mm, ss</translation>
    </message>
    <message>
        <source>“%1” is not a valid start number</source>
        <translation>« %1 » n’est pas un numéro de départ valide</translation>
    </message>
    <message>
        <source>“%1” does not select part of a name; use a number of characters, “word”, or “~” and words separated by commas</source>
        <translation>« %1 » ne sélectionne aucune partie d’un nom&#x202f;; utilisez un nombre de caractères, « word », ou « ~ » et des mots séparés par des virgules</translation>
    </message>
    <message>
        <source>“%1” is not a valid size format; use “class” or “MB”</source>
        <translation>« %1 » n’est pas un format de poids valide&#x202f;; utilisez « class » ou « MB »</translation>
    </message>
    <message>
        <source>{%1} takes no format; remove the colon and what follows it</source>
        <translation>{%1} n’accepte pas de format&#x202f;; supprimez les deux-points et ce qui suit</translation>
    </message>
    <message>
        <source>There is no token between the braces; to write a brace, type {{</source>
        <translation>Il n’y a pas de variable entre les accolades&#x202f;; pour une accolade, tapez {{</translation>
    </message>
    <message>
        <source>There is no token {%1}</source>
        <translation>La variable {%1} n’existe pas</translation>
    </message>
    <message>
        <source>A brace is not closed; to write a brace, type {{</source>
        <translation>Une accolade n’est pas fermée&#x202f;; pour une accolade, tapez {{</translation>
    </message>
    <message>
        <source>Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec</source>
        <translation>janv févr mars avr mai juin juil août sept oct nov déc</translation>
    </message>
    <message>
        <source>Sun Mon Tue Wed Thu Fri Sat</source>
        <translation>dim lun mar mer jeu ven sam</translation>
    </message>
    <message>
        <source>Under 1 MB</source>
        <translation>Moins de 1 Mo</translation>
    </message>
    <message>
        <source>1 to 5 MB</source>
        <translation>1 à 5 Mo</translation>
    </message>
    <message>
        <source>5 to 20 MB</source>
        <translation>5 à 20 Mo</translation>
    </message>
    <message>
        <source>20 MB and more</source>
        <translation>20 Mo et plus</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>Carré</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Portrait</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>Titre court</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Copyright notice</source>
        <translation>Mention de copyright</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <translation>Lieu précis</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ville</translation>
    </message>
    <message>
        <source>State or province</source>
        <translation>État ou province</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>Coordonnées</translation>
    </message>
    <message>
        <source>{%1} contains the location. Include the location first, or remove the token.</source>
        <translation>{%1} contient le lieu. Incluez d’abord le lieu ou retirez la variable.</translation>
    </message>
    <message>
        <source>Rating, 1 to 5</source>
        <translation>Note, de 1 à 5</translation>
    </message>
</context>
<context>
    <name>text::PageTemplate</name>
    <message>
        <source>a picture has no files</source>
        <translation>une image n’a pas de fichiers</translation>
    </message>
    <message>
        <source>{{#%1}} is not closed</source>
        <translation>{{#%1}} n’est pas fermé</translation>
    </message>
    <message>
        <source>a field is not closed</source>
        <translation>un champ n’est pas fermé</translation>
    </message>
    <message>
        <source>there is no field {{%1}}</source>
        <translation>il n’y a pas de champ {{%1}}</translation>
    </message>
    <message>
        <source>{{%1}} must be inside {{#pictures}}</source>
        <translation>{{%1}} doit se trouver dans {{#pictures}}</translation>
    </message>
    <message>
        <source>{{pictures}} must be {{#pictures}}</source>
        <translation>{{pictures}} doit s’écrire {{#pictures}}</translation>
    </message>
    <message>
        <source>{{%1}} cannot be used in a &lt;%2&gt;</source>
        <translation>{{%1}} n’est pas permis dans un &lt;%2&gt;</translation>
    </message>
    <message>
        <source>{{#pictures}} cannot be used here</source>
        <translation>{{#pictures}} n’est pas permis ici</translation>
    </message>
    <message>
        <source>{{/%1}} closes nothing</source>
        <translation>{{/%1}} ne ferme rien</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
</context>
<context>
    <name>token-menu</name>
    <message>
        <source>Search values</source>
        <translation>Chercher une valeur</translation>
    </message>
</context>
<context>
    <name>turn-action</name>
    <message>
        <source>Rotate &amp; Flip</source>
        <translation>Rotation et miroir</translation>
    </message>
    <message>
        <source>Rotating</source>
        <translation>La rotation</translation>
    </message>
    <message numerus="yes">
        <source>Rotate and Flip %n Pictures</source>
        <translation>
            <numerusform>Pivoter et retourner %n image</numerusform>
            <numerusform>Pivoter et retourner %n images</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Flip %n Pictures</source>
        <translation>
            <numerusform>Retourner %n image</numerusform>
            <numerusform>Retourner %n images</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Rotate %n Pictures</source>
        <translation>
            <numerusform>Pivoter %n image</numerusform>
            <numerusform>Pivoter %n images</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing to do</source>
        <translation>Rien à faire</translation>
    </message>
</context>
<context>
    <name>turn-pane</name>
    <message>
        <source>No rotation</source>
        <translation>Pas de rotation</translation>
    </message>
    <message>
        <source>↺ anticlockwise</source>
        <translation>↺ sens antihoraire</translation>
    </message>
    <message>
        <source>↻ clockwise</source>
        <translation>↻ sens horaire</translation>
    </message>
</context>
<context>
    <name>turn-presets</name>
    <message>
        <source>90° anticlockwise</source>
        <translation>90° sens antihoraire</translation>
    </message>
    <message>
        <source>90° clockwise</source>
        <translation>90° sens horaire</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>Tête en bas</translation>
    </message>
    <message>
        <source>Mirrored</source>
        <translation>En miroir</translation>
    </message>
</context>
<context>
    <name>turn-step</name>
    <message>
        <source>Rotated</source>
        <translation>Pivotées</translation>
    </message>
    <message>
        <source>rotate %1°</source>
        <translation>pivoter de %1°</translation>
    </message>
    <message>
        <source>flip horizontally</source>
        <translation>miroir horizontal</translation>
    </message>
    <message>
        <source>flip vertically</source>
        <translation>miroir vertical</translation>
    </message>
    <message>
        <source>Enter an angle from −180 to 180 degrees.</source>
        <translation>Saisissez un angle de −180 à 180 degrés.</translation>
    </message>
    <message>
        <source>Choose an angle or a flip.</source>
        <translation>Choisissez un angle ou un miroir.</translation>
    </message>
    <message>
        <source>Rotated without loss.</source>
        <translation>Rotation sans perte.</translation>
    </message>
    <message>
        <source>The canvas grows so that the corners fit.</source>
        <translation>La surface s’agrandit pour que les coins tiennent.</translation>
    </message>
    <message>
        <source>The canvas grows so that the corners fit. The new corners become white.</source>
        <translation>La surface s’agrandit pour que les coins tiennent. Les nouveaux coins deviennent blancs.</translation>
    </message>
</context>
<context>
    <name>undo-run</name>
    <message>
        <source>Undo This Run</source>
        <translation>Annuler ce traitement</translation>
    </message>
    <message>
        <source>This run wrote new files and moved none. To undo it, delete its results.</source>
        <translation>Ce traitement a écrit de nouveaux fichiers et n’en a déplacé aucun. Pour l’annuler, supprimez ses résultats.</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message numerus="yes">
        <source>%n files can be restored.</source>
        <translation>
            <numerusform>%n fichier peut être rétabli.</numerusform>
            <numerusform>%n fichiers peuvent être rétablis.</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert This Run</source>
        <translation>Tout restaurer</translation>
    </message>
    <message>
        <source>No comment was changed.</source>
        <translation>Aucun commentaire n’a été modifié.</translation>
    </message>
    <message>
        <source>All its comments have already been reverted.</source>
        <translation>Tous ses commentaires ont déjà été restaurés.</translation>
    </message>
    <message numerus="yes">
        <source>%n comments can be reverted.</source>
        <translation>
            <numerusform>%n commentaire peut être restauré.</numerusform>
            <numerusform>%n commentaires peuvent être restaurés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n have already been reverted.</source>
        <translation>
            <numerusform>%n a déjà été restauré.</numerusform>
            <numerusform>%n ont déjà été restaurés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>watching</name>
    <message>
        <source>Pictures in a watched folder are written at once: turn the dry run off first.</source>
        <translation>Les images d’un dossier surveillé sont écrites aussitôt : désactivez d’abord l’essai à blanc.</translation>
    </message>
    <message>
        <source>A watched folder cannot ask: choose to keep both or to skip existing files.</source>
        <translation>Un dossier surveillé ne peut rien demander : choisissez de garder les deux ou d’ignorer les fichiers existants.</translation>
    </message>
    <message>
        <source>Watch a folder</source>
        <translation>Surveiller un dossier</translation>
    </message>
    <message>
        <source>This folder does not exist.</source>
        <translation>Ce dossier n’existe pas.</translation>
    </message>
    <message>
        <source>Another window or program is already watching this folder for the same purpose.</source>
        <translation>Une autre fenêtre ou un autre programme surveille déjà ce dossier dans le même but.</translation>
    </message>
    <message>
        <source>The folder cannot be watched: %1</source>
        <translation>Le dossier ne peut pas être surveillé : %1</translation>
    </message>
    <message>
        <source>The folder “%1” no longer exists and is no longer watched.</source>
        <translation>Le dossier « %1 » a disparu et n’est plus surveillé.</translation>
    </message>
    <message>
        <source>Watching “%1”</source>
        <translation>Surveillance de « %1 »</translation>
    </message>
    <message>
        <source>%1 done</source>
        <translation>%1 terminées</translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>%1 en échec</translation>
    </message>
</context>
<context>
    <name>watermark-action</name>
    <message>
        <source>Watermark</source>
        <translation>Filigrane</translation>
    </message>
    <message numerus="yes">
        <source>Watermark %n Pictures</source>
        <translation>
            <numerusform>Filigraner %n image</numerusform>
            <numerusform>Filigraner %n images</numerusform>
        </translation>
    </message>
    <message>
        <source>Watermarking</source>
        <translation>L’ajout de filigranes</translation>
    </message>
</context>
<context>
    <name>watermark-pane</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Au centre</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En bas</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Choisir…</translation>
    </message>
    <message>
        <source>Choose a picture</source>
        <translation>Choisir une image</translation>
    </message>
</context>
<context>
    <name>watermark-presets</name>
    <message>
        <source>Copyright, bottom right</source>
        <translation>Copyright, en bas à droite</translation>
    </message>
    <message>
        <source>Copyright, dark</source>
        <translation>Copyright, foncé</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Tiled draft</source>
        <translation>Épreuve, en mosaïque</translation>
    </message>
    <message>
        <source>DRAFT</source>
        <translation>ÉPREUVE</translation>
    </message>
</context>
<context>
    <name>watermark-step</name>
    <message>
        <source>Watermarked</source>
        <translation>Filigranées</translation>
    </message>
    <message>
        <source>text “%1”</source>
        <translation>texte «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>picture %1</source>
        <translation>image %1</translation>
    </message>
    <message>
        <source>tiled</source>
        <translation>en mosaïque</translation>
    </message>
    <message>
        <source>Enter a text.</source>
        <translation>Saisissez un texte.</translation>
    </message>
    <message>
        <source>A watermark cannot contain {counter}.</source>
        <translation>Un filigrane ne peut pas contenir {counter}.</translation>
    </message>
    <message>
        <source>There is no font “%1” on this computer. Choose another.</source>
        <translation>La police «&#x202f;%1&#x202f;» n’existe pas sur cet ordinateur. Choisissez-en une autre.</translation>
    </message>
    <message>
        <source>Choose a picture.</source>
        <translation>Choisissez une image.</translation>
    </message>
    <message>
        <source>The picture “%1” no longer exists.</source>
        <translation>L’image « %1 » n’existe plus.</translation>
    </message>
    <message>
        <source>“%1” cannot be read as a picture.</source>
        <translation>«&#x202f;%1&#x202f;» ne peut pas être lu comme une image.</translation>
    </message>
    <message>
        <source>Enter a size from 0.1% to 100%.</source>
        <translation>Saisissez une taille de 0,1 % à 100 %.</translation>
    </message>
    <message>
        <source>Enter a margin from 0% to 100%.</source>
        <translation>Saisissez une marge de 0 % à 100 %.</translation>
    </message>
    <message>
        <source>Enter an opacity from 1% to 100%.</source>
        <translation>Saisissez une opacité de 1 % à 100 %.</translation>
    </message>
    <message>
        <source>Enter an angle from −180 to 180 degrees.</source>
        <translation>Saisissez un angle de −180 à 180 degrés.</translation>
    </message>
</context>
<context>
    <name>web-action</name>
    <message>
        <source>Web Page</source>
        <translation>Page web</translation>
    </message>
    <message>
        <source>Making a web page</source>
        <translation>Création d’une page web</translation>
    </message>
    <message numerus="yes">
        <source>Make Page of %n Pictures</source>
        <translation>
            <numerusform>Créer une page de %n image</numerusform>
            <numerusform>Créer une page de %n images</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>web-folder</name>
    <message>
        <source>The folder %1 cannot be written.</source>
        <translation>Impossible d’écrire dans le dossier %1.</translation>
    </message>
    <message>
        <source>%1 was not made by Quorlin and stays unchanged.</source>
        <translation>%1 n’a pas été créé par Quorlin et reste inchangé.</translation>
    </message>
    <message>
        <source>%1 has been changed since by someone else and stays unchanged.</source>
        <translation>%1 a été modifié entre-temps par quelqu’un d’autre et reste tel quel.</translation>
    </message>
    <message>
        <source>The page could not be written.</source>
        <translation>La page n’a pas pu être écrite.</translation>
    </message>
    <message>
        <source>The saved page differs from what was written.</source>
        <translation>La page enregistrée diffère de ce qui a été écrit.</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>no free name was found</source>
        <translation>aucun nom libre n’a été trouvé</translation>
    </message>
    <message>
        <source>Something else is now at %1.</source>
        <translation>Autre chose se trouve maintenant à %1.</translation>
    </message>
</context>
<context>
    <name>web-making</name>
    <message>
        <source>Template, %1</source>
        <translation>Modèle, %1</translation>
    </message>
</context>
<context>
    <name>web-pane</name>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Rangées</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Récit</translation>
    </message>
    <message>
        <source>Same as Quorlin</source>
        <translation>Comme dans Quorlin</translation>
    </message>
    <message>
        <source>By language</source>
        <translation>Selon la langue</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>De gauche à droite</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>De droite à gauche</translation>
    </message>
    <message>
        <source>Keep copyright only</source>
        <translation>Garder le copyright seul</translation>
    </message>
    <message>
        <source>Keep all</source>
        <translation>Tout garder</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Tout retirer</translation>
    </message>
    <message>
        <source>Number the new folder</source>
        <translation>Numéroter le nouveau dossier</translation>
    </message>
    <message>
        <source>Update the page in it</source>
        <translation>Mettre à jour la page qu’il contient</translation>
    </message>
    <message>
        <source>Folder of the first picture</source>
        <translation>Dossier de la première image</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Choose File…</source>
        <translation>Choisir un fichier…</translation>
    </message>
    <message>
        <source>Save a Copy…</source>
        <translation>Enregistrer une copie…</translation>
    </message>
    <message>
        <source>Save the page in</source>
        <translation>Enregistrer la page dans</translation>
    </message>
    <message>
        <source>Choose a template</source>
        <translation>Choisir un modèle</translation>
    </message>
    <message>
        <source>Save a copy of the template</source>
        <translation>Enregistrer une copie du modèle</translation>
    </message>
    <message>
        <source>Template saved as %1</source>
        <translation>Modèle enregistré sous %1</translation>
    </message>
    <message>
        <source>Add pictures first.</source>
        <translation>Ajoutez d’abord des images.</translation>
    </message>
    <message>
        <source>Correct the settings first.</source>
        <translation>Corrigez d’abord les réglages.</translation>
    </message>
</context>
<context>
    <name>web-presets</name>
    <message>
        <source>Rows with captions</source>
        <translation>Rangées avec légendes</translation>
    </message>
    <message>
        <source>Grid of squares</source>
        <translation>Grille de carrés</translation>
    </message>
    <message>
        <source>Story on warm paper</source>
        <translation>Récit sur fond chaud</translation>
    </message>
    <message>
        <source>For clients, with download</source>
        <translation>Clients, avec téléchargement</translation>
    </message>
</context>
<context>
    <name>web-preview</name>
    <message>
        <source>Making the preview…</source>
        <translation>Création de l’aperçu…</translation>
    </message>
    <message>
        <source>no picture could be processed</source>
        <translation>aucune image n’a pu être traitée</translation>
    </message>
    <message>
        <source>The page could not be opened in a browser.</source>
        <translation>La page n’a pas pu être ouverte dans un navigateur.</translation>
    </message>
</context>
<context>
    <name>web-step</name>
    <message>
        <source>Web Page</source>
        <translation>Page web</translation>
    </message>
    <message>
        <source>The template %1 cannot be read.</source>
        <translation>Le modèle %1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The folder name cannot contain “/”.</source>
        <translation>Le nom du dossier ne peut pas contenir «&#x202f;/&#x202f;».</translation>
    </message>
    <message>
        <source>Sizes are whole numbers from %1 to %2, each larger than the one before.</source>
        <translation>Les tailles sont des nombres entiers de %1 à %2, chacune plus grande que la précédente.</translation>
    </message>
    <message>
        <source>The quality is a whole number from 1 to 100.</source>
        <translation>La qualité est un nombre entier de 1 à 100.</translation>
    </message>
    <message>
        <source>%1 is not a valid language code.</source>
        <translation>%1 n’est pas un code de langue valide.</translation>
    </message>
    <message>
        <source>Template, %1</source>
        <translation>Modèle, %1</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Rangées</translation>
    </message>
    <message>
        <source>Story</source>
        <translation>Récit</translation>
    </message>
</context>
<context>
    <name>window</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
</context>
<context>
    <name>window::ComparePreview</name>
    <message>
        <source>Not a readable picture</source>
        <translation>Image illisible</translation>
    </message>
    <message>
        <source>This picture cannot be shown</source>
        <translation>Cette image ne peut pas être affichée</translation>
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
        <translation>Cadre de recadrage</translation>
    </message>
    <message>
        <source>%1 × %2 pixels, %3 from the left, %4 from the top</source>
        <translation>%1 × %2 pixels, à %3 de la gauche, à %4 du haut</translation>
    </message>
</context>
<context>
    <name>window::DesktopSigns</name>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
</context>
<context>
    <name>window::FolderTree</name>
    <message>
        <source>new</source>
        <translation>nouveau</translation>
    </message>
    <message>
        <source>exists</source>
        <translation>existe</translation>
    </message>
    <message numerus="yes">
        <source>%Ln files</source>
        <translation>
            <numerusform>%Ln fichier</numerusform>
            <numerusform>%Ln fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, new folder, %2</source>
        <translation>%1, nouveau dossier, %2</translation>
    </message>
    <message>
        <source>%1, existing folder, %2</source>
        <translation>%1, dossier existant, %2</translation>
    </message>
</context>
<context>
    <name>window::KeyHeader</name>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Left and Right choose a column, Space sorts by it</source>
        <translation>Gauche et Droite choisissent une colonne, Espace trie selon elle</translation>
    </message>
</context>
<context>
    <name>window::ManualView</name>
    <message>
        <source>This page of the manual is missing.</source>
        <translation>Cette page du manuel est absente.</translation>
    </message>
    <message>
        <source>Show large</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Picture of the manual</source>
        <translation>Image du manuel</translation>
    </message>
</context>
<context>
    <name>window::PictureModel</name>
    <message>
        <source>Thumbnail of %1</source>
        <translation>Vignette de %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Poids</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>New name</source>
        <translation>Nouveau nom</translation>
    </message>
    <message>
        <source>New size</source>
        <translation>Nouvelles dimensions</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Prise de vue</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Thumbnail of %1, left out of the run</source>
        <translation>Vignette de %1, laissée de côté</translation>
    </message>
    <message>
        <source>%1 according to the camera clock</source>
        <translation>%1 selon l’horloge de l’appareil</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Note</translation>
    </message>
    <message numerus="yes">
        <source>%n stars</source>
        <translation>
            <numerusform>%n étoile</numerusform>
            <numerusform>%n étoiles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::PictureTable</name>
    <message>
        <source>Reset Columns</source>
        <translation>Réinitialiser les colonnes</translation>
    </message>
    <message>
        <source>Show All Ratings</source>
        <translation>Afficher toutes les notes</translation>
    </message>
    <message numerus="yes">
        <source>Only %n stars or more</source>
        <translation>
            <numerusform>Seulement %n étoile ou plus</numerusform>
            <numerusform>Seulement %n étoiles ou plus</numerusform>
        </translation>
    </message>
    <message>
        <source>Properties and Filter…</source>
        <translation>Propriétés et filtre…</translation>
    </message>
</context>
<context>
    <name>window::ProgramDesk</name>
    <message>
        <source>The lp command of the print system is missing.</source>
        <translation>La commande lp du système d’impression manque.</translation>
    </message>
    <message>
        <source>The print system did not accept the pages: %1</source>
        <translation>Le système d’impression n’a pas accepté les pages : %1</translation>
    </message>
</context>
<context>
    <name>window::PropertyTree</name>
    <message>
        <source>Property</source>
        <translation>Propriété</translation>
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
        <source>Copy Location in Degrees</source>
        <translation>Copier le lieu en degrés</translation>
    </message>
    <message>
        <source>Copy Location in Minutes</source>
        <translation>Copier le lieu en minutes</translation>
    </message>
</context>
<context>
    <name>window::RunRows</name>
    <message numerus="yes">
        <source>%Ln entries</source>
        <translation>
            <numerusform>%Ln entrée</numerusform>
            <numerusform>%Ln entrées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln problems</source>
        <translation>
            <numerusform>%Ln problème</numerusform>
            <numerusform>%Ln problèmes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::SaveDialog</name>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Save in:</source>
        <translation>Enregistrer dans&#x202f;:</translation>
    </message>
    <message>
        <source>Ta&amp;gs:</source>
        <translation>Étiq&amp;uettes&#x202f;:</translation>
    </message>
    <message>
        <source>separated by commas</source>
        <translation>séparées par des virgules</translation>
    </message>
    <message>
        <source>Tags, separated by commas</source>
        <translation>Étiquettes, séparées par des virgules</translation>
    </message>
    <message>
        <source>“%1” already exists. Replace it?</source>
        <translation>«&#x202f;%1&#x202f;» existe déjà. Le remplacer&#x202f;?</translation>
    </message>
</context>
<context>
    <name>window::SlotRows</name>
    <message>
        <source>%1: %2</source>
        <translation>%1&#x202f;: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>window::StartUp</name>
    <message>
        <source>Quorlin cannot start: a script of its interface failed.</source>
        <translation>Quorlin ne peut pas démarrer : un script de son interface a échoué.</translation>
    </message>
</context>
<context>
    <name>wording</name>
    <message numerus="yes">
        <source>%n pictures</source>
        <translation>
            <numerusform>%n image</numerusform>
            <numerusform>%n images</numerusform>
        </translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Not Supported</source>
        <translation>Non pris en charge</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Ignoré</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#x202f;: %2</translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n problème</numerusform>
            <numerusform>%n problèmes</numerusform>
        </translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>no problems</source>
        <translation>aucun problème</translation>
    </message>
</context>
<context>
    <name>worker-job</name>
    <message>
        <source>the picture no longer exists</source>
        <translation>l’image n’existe plus</translation>
    </message>
    <message>
        <source>the result is %1 instead of %2</source>
        <translation>le résultat fait %1 au lieu de %2</translation>
    </message>
</context>
<context>
    <name>write-plan</name>
    <message>
        <source>file exists: will ask</source>
        <translation>le fichier existe : question à venir</translation>
    </message>
    <message>
        <source>replaces original</source>
        <translation>remplace l’original</translation>
    </message>
    <message>
        <source>replaces %1</source>
        <translation>remplace %1</translation>
    </message>
    <message>
        <source>would be written</source>
        <translation>serait écrit</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>prêt</translation>
    </message>
</context>
<context>
    <name>write-run</name>
    <message>
        <source>File exists</source>
        <translation>Le fichier existe</translation>
    </message>
    <message>
        <source>“%1” already exists in this folder.</source>
        <translation>« %1 » existe déjà dans ce dossier.</translation>
    </message>
    <message>
        <source>Keep Both</source>
        <translation>Garder les deux</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Cancel Run</source>
        <translation>Arrêter le traitement</translation>
    </message>
    <message>
        <source>Do this for all</source>
        <translation>Faire de même pour tous</translation>
    </message>
    <message>
        <source>Replace originals</source>
        <translation>Remplacer les originaux</translation>
    </message>
    <message numerus="yes">
        <source>%n originals will be replaced by their results.</source>
        <translation>
            <numerusform>%n original sera remplacé par son résultat.</numerusform>
            <numerusform>%n originaux seront remplacés par leurs résultats.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cancelled before the first picture. Nothing was written.</source>
        <translation>Arrêté avant la première image. Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was written.</source>
        <translation>Annulé. Rien n’a été écrit.</translation>
    </message>
    <message numerus="yes">
        <source>Dry run: %n pictures would be written</source>
        <translation>
            <numerusform>Essai à blanc : %n image serait écrite</numerusform>
            <numerusform>Essai à blanc : %n images seraient écrites</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 left out</source>
        <translation>exclues&#x202f;: %1</translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>rien n’a été écrit</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en attente</translation>
    </message>
    <message>
        <source>working…</source>
        <translation>en cours…</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>arrêté</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures done</source>
        <translation>
            <numerusform>%n image traitée</numerusform>
            <numerusform>%n images traitées</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 failed</source>
        <translation>échecs&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 not supported</source>
        <translation>non prises en charge&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 skipped</source>
        <translation>ignorées&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 written</source>
        <translation>%1 écrits</translation>
    </message>
    <message>
        <source>Cancelled:</source>
        <translation>Arrêté&#x202f;:</translation>
    </message>
    <message>
        <source>stopping after the current pictures</source>
        <translation>arrêt après les images en cours</translation>
    </message>
    <message>
        <source>pausing after the current pictures</source>
        <translation>pause après les images en cours</translation>
    </message>
    <message>
        <source>The replaced files (%1) go to the trash. Undo brings them back.</source>
        <translation>Les fichiers remplacés (%1) vont à la corbeille. «&#x202f;Annuler&#x202f;» les restaure.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>On a disk without a trash they are kept in the folder “%1”.</source>
        <translation>Sur un disque sans corbeille, ils sont conservés dans le dossier «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>Finished pictures are kept.</source>
        <translation>Les images terminées sont gardées.</translation>
    </message>
</context>
<context>
    <name>writes</name>
    <message>
        <source>Dry Run: %1</source>
        <translation>Essai à blanc : %1</translation>
    </message>
    <message numerus="yes">
        <source>Replace %n Originals</source>
        <translation>
            <numerusform>remplacer %n original</numerusform>
            <numerusform>remplacer %n originaux</numerusform>
        </translation>
    </message>
    <message>
        <source>Originals are replaced by their results.</source>
        <translation>Les originaux sont remplacés par leurs résultats.</translation>
    </message>
    <message numerus="yes">
        <source>%n files are replaced.</source>
        <translation>
            <numerusform>%n fichier est remplacé.</numerusform>
            <numerusform>%n fichiers sont remplacés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Dry run: write nothing</source>
        <translation>Essai à blanc : ne rien écrire</translation>
    </message>
</context>
<context>
    <name>written</name>
    <message>
        <source>Choose a folder to save to.</source>
        <translation>Choisissez un dossier de destination.</translation>
    </message>
    <message>
        <source>“%1” is not a valid folder name.</source>
        <translation>« %1 » n’est pas un nom de dossier valide.</translation>
    </message>
    <message>
        <source>%1 cannot be written, choose another file type</source>
        <translation>%1 ne peut pas être écrit, choisissez un autre format</translation>
    </message>
    <message>
        <source>not a readable picture</source>
        <translation>image illisible</translation>
    </message>
    <message>
        <source>this type cannot be written</source>
        <translation>ce format ne peut pas être écrit</translation>
    </message>
    <message>
        <source>the file could not be written</source>
        <translation>le fichier n’a pas pu être écrit</translation>
    </message>
    <message>
        <source>the result is %1 instead of %2</source>
        <translation>le résultat fait %1 au lieu de %2</translation>
    </message>
    <message>
        <source>Enter a name for the results.</source>
        <translation>Saisissez un nom pour les résultats.</translation>
    </message>
    <message>
        <source>A name cannot contain “/”.</source>
        <translation>Un nom ne peut pas contenir «&#x202f;/&#x202f;».</translation>
    </message>
</context>
<context>
    <name>log-fields</name>
    <message>
        <source>Forget old values</source>
        <translation>Oublier les anciennes valeurs</translation>
    </message>
    <message>
        <source>Delete the old metadata of this run (%1) for good?</source>
        <translation>Supprimer définitivement les anciennes métadonnées de ce traitement (%1)&#x202f;?</translation>
    </message>
    <message>
        <source>The pictures are not changed. The run can then no longer be reverted.</source>
        <translation>Les images ne changent pas. Le traitement ne pourra plus être annulé.</translation>
    </message>
    <message>
        <source>Forget Old Values</source>
        <translation>Oublier les anciennes valeurs</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>The old values were deleted.</source>
        <translation>Les anciennes valeurs ont été supprimées.</translation>
    </message>
    <message numerus="yes">
        <source>Reverting: %n pictures so far</source>
        <translation>
            <numerusform>Annulation : %n image jusqu’ici</numerusform>
            <numerusform>Annulation : %n images jusqu’ici</numerusform>
        </translation>
    </message>
    <message>
        <source>Stopped:</source>
        <translation>Arrêté :</translation>
    </message>
</context>
<context>
    <name>field-run</name>
    <message>
        <source>Stopped:</source>
        <translation>Arrêté :</translation>
    </message>
    <message>
        <source>Cancelled before the first picture. Nothing was written.</source>
        <translation>Arrêté avant la première image. Rien n’a été écrit.</translation>
    </message>
    <message numerus="yes">
        <source>Dry run: %n pictures would be changed</source>
        <translation>
            <numerusform>Essai à blanc : %n image serait modifiée</numerusform>
            <numerusform>Essai à blanc : %n images seraient modifiées</numerusform>
        </translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>rien n’a été écrit</translation>
    </message>
    <message>
        <source>Cancelled. Nothing was written.</source>
        <translation>Annulé. Rien n’a été écrit.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Write metadata</source>
        <translation>Écrire les métadonnées</translation>
    </message>
    <message numerus="yes">
        <source>Write metadata into %n pictures?</source>
        <translation>
            <numerusform>Écrire les métadonnées dans %n image&#x202f;?</numerusform>
            <numerusform>Écrire les métadonnées dans %n images&#x202f;?</numerusform>
        </translation>
    </message>
    <message>
        <source>This changes the metadata inside your originals. Their pictures are not touched.</source>
        <translation>Cela modifie les métadonnées de vos originaux. Les images elles-mêmes ne changent pas.</translation>
    </message>
    <message numerus="yes">
        <source>For %n of them, it is written into a sidecar file.</source>
        <translation>
            <numerusform>%n d’entre elles les reçoit dans un fichier annexe.</numerusform>
            <numerusform>%n d’entre elles les reçoivent dans un fichier annexe.</numerusform>
        </translation>
    </message>
    <message>
        <source>EXIF, IPTC and XMP disagree:</source>
        <translation>EXIF, IPTC et XMP se contredisent :</translation>
    </message>
    <message numerus="yes">
        <source>%n more pictures: see their rows in the list.</source>
        <translation>
            <numerusform>%n autre image : voir sa ligne dans la liste.</numerusform>
            <numerusform>%n autres images : voir leurs lignes dans la liste.</numerusform>
        </translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Écrire</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en attente</translation>
    </message>
    <message>
        <source>already has these values</source>
        <translation>a déjà ces valeurs</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>dans %1</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures changed</source>
        <translation>
            <numerusform>%n image modifiée</numerusform>
            <numerusform>%n images modifiées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n unchanged</source>
        <translation>
            <numerusform>%n inchangée</numerusform>
            <numerusform>%n inchangées</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Annuler l’écriture</translation>
    </message>
    <message>
        <source>reverted</source>
        <translation>rétablie</translation>
    </message>
</context>
<context>
    <name>field-plan</name>
    <message>
        <source>EXIF, IPTC and XMP disagree</source>
        <translation>EXIF, IPTC et XMP se contredisent</translation>
    </message>
    <message>
        <source>in a sidecar file</source>
        <translation>dans un fichier annexe</translation>
    </message>
    <message>
        <source>private data stays in files of this type</source>
        <translation>les données privées restent dans ce type de fichier</translation>
    </message>
    <message>
        <source>ready</source>
        <translation>prêt</translation>
    </message>
    <message>
        <source>no change</source>
        <translation>aucun changement</translation>
    </message>
    <message>
        <source>not selected</source>
        <translation>non sélectionnée</translation>
    </message>
    <message>
        <source>not a readable picture</source>
        <translation>pas une image lisible</translation>
    </message>
</context>
<context>
    <name>field-reverting</name>
    <message>
        <source>Revert metadata</source>
        <translation>Annuler les métadonnées</translation>
    </message>
    <message>
        <source>Revert This Run</source>
        <translation>Annuler ce traitement</translation>
    </message>
    <message>
        <source>No old values of this run are kept.</source>
        <translation>Aucune ancienne valeur n’est gardée pour ce traitement.</translation>
    </message>
    <message>
        <source>Old values: %1.</source>
        <translation>Anciennes valeurs : %1.</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures can be reverted.</source>
        <translation>
            <numerusform>%n image peut être rétablie.</numerusform>
            <numerusform>%n images peuvent être rétablies.</numerusform>
        </translation>
    </message>
    <message>
        <source>All its pictures have already been reverted.</source>
        <translation>Toutes ses images ont déjà été rétablies.</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Métadonnées</translation>
    </message>
    <message numerus="yes">
        <source>%n pictures reverted</source>
        <translation>
            <numerusform>%n image rétablie</numerusform>
            <numerusform>%n images rétablies</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n problems</source>
        <translation>
            <numerusform>%n problème</numerusform>
            <numerusform>%n problèmes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>fields</name>
    <message>
        <source>Dry Run: %1</source>
        <translation>Essai à blanc : %1</translation>
    </message>
    <message numerus="yes">
        <source>%n with conflicting values</source>
        <translation>
            <numerusform>%n avec des valeurs contradictoires</numerusform>
            <numerusform>%n avec des valeurs contradictoires</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n sidecar files</source>
        <translation>
            <numerusform>%n fichier annexe</numerusform>
            <numerusform>%n fichiers annexes</numerusform>
        </translation>
    </message>
    <message>
        <source>originals are changed, can be reverted</source>
        <translation>les originaux changent, annulation possible</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Changement</translation>
    </message>
    <message>
        <source>Dry run: write nothing</source>
        <translation>Essai à blanc : ne rien écrire</translation>
    </message>
</context>
<context>
    <name>metadata-fields-action</name>
    <message>
        <source>Metadata</source>
        <translation>Métadonnées</translation>
    </message>
    <message>
        <source>Writing metadata</source>
        <translation>Écriture des métadonnées</translation>
    </message>
    <message numerus="yes">
        <source>Write Metadata into %n Pictures</source>
        <translation>
            <numerusform>Écrire les métadonnées dans %n image</numerusform>
            <numerusform>Écrire les métadonnées dans %n images</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>metadata-fields-words</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>Titre court</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Fonction</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Usage terms</source>
        <translation>Conditions</translation>
    </message>
    <message>
        <source>Credit line</source>
        <translation>Crédit</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instructions</translation>
    </message>
    <message>
        <source>Job identifier</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <translation>Lieu précis</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ville</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Région</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>Code du pays</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Prise de vue</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Colour label</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Lieux</translation>
    </message>
    <message>
        <source>Serial numbers</source>
        <translation>Numéros de série</translation>
    </message>
    <message>
        <source>Owner and computer names</source>
        <translation>Noms du propriétaire et de l’ordinateur</translation>
    </message>
    <message>
        <source>Face regions</source>
        <translation>Zones de visages</translation>
    </message>
    <message>
        <source>Maker notes</source>
        <translation>Notes du fabricant</translation>
    </message>
    <message>
        <source>Embedded thumbnails</source>
        <translation>Vignettes intégrées</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rouge</translation>
    </message>
    <message>
        <source>Yellow</source>
        <translation>Jaune</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Vert</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Bleu</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Violet</translation>
    </message>
    <message>
        <source>Rejected</source>
        <translation>Rejetée</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1: “%2”</source>
        <translation>%1 : «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>%1: “%2” → “%3”</source>
        <translation>%1 : «&#x202f;%2&#x202f;» → «&#x202f;%3&#x202f;»</translation>
    </message>
    <message>
        <source>%1: cleared, was “%2”</source>
        <translation>%1 : effacé, était «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>%1: EXIF %2, IPTC %3, XMP %4</source>
        <translation>%1 : EXIF %2, IPTC %3, XMP %4</translation>
    </message>
    <message numerus="yes">
        <source>%n stars</source>
        <translation>
            <numerusform>%n étoile</numerusform>
            <numerusform>%n étoiles</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FieldsPane</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Headline</source>
        <translation>Titre court</translation>
    </message>
    <message>
        <source>Caption</source>
        <translation>Légende</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Job title</source>
        <translation>Fonction</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Site web</translation>
    </message>
    <message>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <source>Usage terms</source>
        <translation>Conditions</translation>
    </message>
    <message>
        <source>Credit line</source>
        <translation>Crédit</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Instructions</source>
        <translation>Instructions</translation>
    </message>
    <message>
        <source>Job identifier</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>Sublocation</source>
        <translation>Lieu précis</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ville</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Région</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
    <message>
        <source>Country code</source>
        <translation>Code du pays</translation>
    </message>
    <message>
        <source>Date taken</source>
        <translation>Prise de vue</translation>
    </message>
    <message>
        <source>Rating</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Colour label</source>
        <translation>Étiquette</translation>
    </message>
    <message>
        <source>Places</source>
        <translation>Lieux</translation>
    </message>
    <message>
        <source>Serial numbers</source>
        <translation>Numéros de série</translation>
    </message>
    <message>
        <source>Owner and computer names</source>
        <translation>Noms du propriétaire et de l’ordinateur</translation>
    </message>
    <message>
        <source>Face regions</source>
        <translation>Zones de visages</translation>
    </message>
    <message>
        <source>Maker notes</source>
        <translation>Notes du fabricant</translation>
    </message>
    <message>
        <source>Embedded thumbnails</source>
        <translation>Vignettes intégrées</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Creator and Rights</source>
        <translation>Auteur et droits</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Date and Rating</source>
        <translation>Date et note</translation>
    </message>
    <message>
        <source>Remove Private Data</source>
        <translation>Supprimer les données privées</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Ajoutés</translation>
    </message>
    <message>
        <source>All there are</source>
        <translation>Les seuls</translation>
    </message>
    <message>
        <source>Clear the title</source>
        <translation>Effacer le titre</translation>
    </message>
    <message>
        <source>Clear the headline</source>
        <translation>Effacer le titre court</translation>
    </message>
    <message>
        <source>Clear the caption</source>
        <translation>Effacer la légende</translation>
    </message>
    <message>
        <source>Clear all keywords</source>
        <translation>Effacer tous les mots-clés</translation>
    </message>
    <message>
        <source>Clear the creator</source>
        <translation>Effacer l’auteur</translation>
    </message>
    <message>
        <source>Clear the job title</source>
        <translation>Effacer la fonction</translation>
    </message>
    <message>
        <source>Clear the address</source>
        <translation>Effacer l’adresse</translation>
    </message>
    <message>
        <source>Clear the phone number</source>
        <translation>Effacer le téléphone</translation>
    </message>
    <message>
        <source>Clear the email address</source>
        <translation>Effacer l’adresse e-mail</translation>
    </message>
    <message>
        <source>Clear the website</source>
        <translation>Effacer le site web</translation>
    </message>
    <message>
        <source>Clear the copyright</source>
        <translation>Effacer le copyright</translation>
    </message>
    <message>
        <source>Clear the usage terms</source>
        <translation>Effacer les conditions</translation>
    </message>
    <message>
        <source>Clear the credit line</source>
        <translation>Effacer le crédit</translation>
    </message>
    <message>
        <source>Clear the source</source>
        <translation>Effacer la source</translation>
    </message>
    <message>
        <source>Clear the instructions</source>
        <translation>Effacer les instructions</translation>
    </message>
    <message>
        <source>Clear the job identifier</source>
        <translation>Effacer la référence</translation>
    </message>
    <message>
        <source>Clear the sublocation</source>
        <translation>Effacer le lieu précis</translation>
    </message>
    <message>
        <source>Clear the city</source>
        <translation>Effacer la ville</translation>
    </message>
    <message>
        <source>Clear the state</source>
        <translation>Effacer la région</translation>
    </message>
    <message>
        <source>Clear the country</source>
        <translation>Effacer le pays</translation>
    </message>
    <message>
        <source>Clear the country code</source>
        <translation>Effacer le code du pays</translation>
    </message>
    <message>
        <source>Clear the date taken</source>
        <translation>Effacer la date de prise de vue</translation>
    </message>
    <message>
        <source>Clear this field</source>
        <translation>Effacer ce champ</translation>
    </message>
    <message>
        <source>Properties and Comments…</source>
        <translation>Propriétés et commentaires…</translation>
    </message>
    <message>
        <source>Show all properties of the current picture, and write comments</source>
        <translation>Montrer toutes les propriétés de l’image actuelle et écrire des commentaires</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Pictures whose metadata is written</source>
        <translation>Images dont les métadonnées sont écrites</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Valeurs</translation>
    </message>
    <message>
        <source>Insert Value…</source>
        <translation>Insérer une valeur…</translation>
    </message>
    <message>
        <source>Insert a value that differs from picture to picture, such as the date</source>
        <translation>Insérer ce qui change d’une image à l’autre, comme la date</translation>
    </message>
    <message>
        <source>Separated by commas</source>
        <translation>Séparés par des virgules</translation>
    </message>
    <message>
        <source>These are</source>
        <translation>Ils sont</translation>
    </message>
    <message>
        <source>Whether keywords are added or replace all others</source>
        <translation>Si les mots-clés s’ajoutent ou remplacent tous les autres</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Keywords to remove, separated by commas</source>
        <translation>Mots-clés à retirer, séparés par des virgules</translation>
    </message>
    <message>
        <source>Several names are separated by semicolons</source>
        <translation>Séparer plusieurs noms par des points-virgules</translation>
    </message>
    <message>
        <source>2026-08-14 10:20:30+02:00</source>
        <translation>2026-08-14 10:20:30+02:00</translation>
    </message>
    <message>
        <source>Shift by</source>
        <translation>Décaler de</translation>
    </message>
    <message>
        <source>Hours and minutes, such as +1:00 or −0:05:30</source>
        <translation>Heures et minutes, comme +1:00 ou −0:05:30</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Fuseau horaire</translation>
    </message>
    <message>
        <source>Hours and minutes from Greenwich, such as +02:00</source>
        <translation>Heures et minutes depuis Greenwich, comme +02:00</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Keyword List</source>
        <translation>Liste de mots-clés</translation>
    </message>
    <message>
        <source>The keywords that are offered while you type</source>
        <translation>Les mots-clés proposés pendant la saisie</translation>
    </message>
</context>
<context>
    <name>metadata-fields-pane</name>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Creator and Rights</source>
        <translation>Auteur et droits</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lieu</translation>
    </message>
    <message>
        <source>Date and Rating</source>
        <translation>Date et note</translation>
    </message>
    <message>
        <source>Remove Private Data</source>
        <translation>Supprimer les données privées</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Added</source>
        <translation>Ajoutés</translation>
    </message>
    <message>
        <source>All there are</source>
        <translation>Les seuls</translation>
    </message>
    <message numerus="yes">
        <source>%1, %n used</source>
        <translation>
            <numerusform>%1, %n utilisé</numerusform>
            <numerusform>%1, %n utilisés</numerusform>
        </translation>
    </message>
    <message>
        <source>(cleared)</source>
        <translation>(effacé)</translation>
    </message>
    <message>
        <source>(several values)</source>
        <translation>(plusieurs valeurs)</translation>
    </message>
    <message>
        <source>Leave as it is</source>
        <translation>Laisser tel quel</translation>
    </message>
    <message>
        <source>Leave: %1</source>
        <translation>Laisser : %1</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>EXIF, IPTC and XMP of %1 disagree. What is written makes them agree.</source>
        <translation>EXIF, IPTC et XMP de %1 se contredisent. Ce qui est écrit les met d’accord.</translation>
    </message>
    <message>
        <source>Import…</source>
        <translation>Importer…</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Clear List…</source>
        <translation>Vider la liste…</translation>
    </message>
    <message>
        <source>Import keywords</source>
        <translation>Importer des mots-clés</translation>
    </message>
    <message>
        <source>Export keywords</source>
        <translation>Exporter les mots-clés</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>%1 cannot be read.</source>
        <translation>%1 ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Clear keyword list</source>
        <translation>Vider la liste de mots-clés</translation>
    </message>
    <message>
        <source>Remove all keywords from the list?</source>
        <translation>Retirer tous les mots-clés de la liste&#x202f;?</translation>
    </message>
    <message>
        <source>Your pictures are not changed.</source>
        <translation>Vos images ne changent pas.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message numerus="yes">
        <source>%n keywords imported</source>
        <translation>
            <numerusform>%n mot-clé importé</numerusform>
            <numerusform>%n mots-clés importés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n keywords exported</source>
        <translation>
            <numerusform>%n mot-clé exporté</numerusform>
            <numerusform>%n mots-clés exportés</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>metadata-fields-step</name>
    <message>
        <source>%1 cleared</source>
        <translation>%1 effacé</translation>
    </message>
    <message>
        <source>%1 removed</source>
        <translation>%1 supprimé</translation>
    </message>
    <message>
        <source>without %1</source>
        <translation>sans %1</translation>
    </message>
    <message>
        <source>Date taken: write it as 2026-08-14, 2026-08-14 10:20:30 or 2026-08-14 10:20:30+02:00.</source>
        <translation>Prise de vue : écrivez 2026-08-14, 2026-08-14 10:20:30 ou 2026-08-14 10:20:30+02:00.</translation>
    </message>
    <message>
        <source>Shift: write hours and minutes, such as +1:00 or −0:05:30.</source>
        <translation>Décalage : écrivez heures et minutes, comme +1:00 ou −0:05:30.</translation>
    </message>
    <message>
        <source>Time zone: write it as +02:00.</source>
        <translation>Fuseau horaire : écrivez +02:00.</translation>
    </message>
    <message>
        <source>A date taken that you set is not shifted: add its time zone at the end.</source>
        <translation>Une date fixée n’est pas décalée : écrivez son fuseau horaire à la suite.</translation>
    </message>
    <message>
        <source>Country code: two or three letters, such as PT or PRT.</source>
        <translation>Code du pays : deux ou trois lettres, comme PT ou PRT.</translation>
    </message>
</context>
<context>
    <name>metadata-fields-presets</name>
    <message>
        <source>Copyright with the year</source>
        <translation>Copyright avec l’année</translation>
    </message>
    <message>
        <source>Headline from the folder name</source>
        <translation>Titre tiré du nom du dossier</translation>
    </message>
    <message>
        <source>Remove private data</source>
        <translation>Supprimer les données privées</translation>
    </message>
</context>
<context>
    <name>script::ProgramFiles</name>
    <message>
        <source>%1 cannot be written.</source>
        <translation>%1 ne peut pas être écrit.</translation>
    </message>
    <message>
        <source>%1 cannot be removed.</source>
        <translation>%1 ne peut pas être supprimé.</translation>
    </message>
</context>
<context>
    <name>ratings</name>
    <message numerus="yes">
        <source>Write the ratings of %n pictures into their files?</source>
        <translation>
            <numerusform>Écrire la note de %n image dans son fichier&#x202f;?</numerusform>
            <numerusform>Écrire les notes de %n images dans leurs fichiers&#x202f;?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n ratings written</source>
        <translation>
            <numerusform>%n note écrite</numerusform>
            <numerusform>%n notes écrites</numerusform>
        </translation>
    </message>
    <message>
        <source>Write ratings</source>
        <translation>Écrire les notes</translation>
    </message>
    <message>
        <source>This changes the XMP rating inside your originals, and nothing else. Files that cannot hold it get a sidecar file. You can revert it in the log.</source>
        <translation>Cela modifie la note XMP dans vos originaux, et rien d’autre. Les fichiers qui ne peuvent pas la contenir reçoivent un fichier annexe. Vous pouvez revenir en arrière dans le journal.</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>Écrire</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>All ratings are in their files already.</source>
        <translation>Toutes les notes sont déjà dans leurs fichiers.</translation>
    </message>
    <message>
        <source>Ratings: %1 done</source>
        <translation>Notes : %1 faites</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>Métadonnées</translation>
    </message>
</context>
<context>
    <name>recipe-making</name>
    <message>
        <source>the picture no longer exists</source>
        <translation>l’image n’existe plus</translation>
    </message>
</context>
<context>
    <name>list-properties</name>
    <message>
        <source>is</source>
        <translation>est</translation>
    </message>
    <message>
        <source>is not</source>
        <translation>n’est pas</translation>
    </message>
    <message>
        <source>contains</source>
        <translation>contient</translation>
    </message>
    <message>
        <source>above</source>
        <translation>supérieur à</translation>
    </message>
    <message>
        <source>below</source>
        <translation>inférieur à</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>est vide</translation>
    </message>
    <message>
        <source>is not empty</source>
        <translation>n’est pas vide</translation>
    </message>
    <message>
        <source>All conditions apply</source>
        <translation>Toutes les conditions sont remplies</translation>
    </message>
    <message>
        <source>At least one condition applies</source>
        <translation>Au moins une condition est remplie</translation>
    </message>
    <message>
        <source>Search properties</source>
        <translation>Rechercher une propriété</translation>
    </message>
    <message>
        <source>Choose Property…</source>
        <translation>Choisir une propriété…</translation>
    </message>
    <message>
        <source>No columns</source>
        <translation>Aucune colonne</translation>
    </message>
    <message>
        <source>No filter</source>
        <translation>Aucun filtre</translation>
    </message>
    <message>
        <source>Shown: %1</source>
        <translation>Affichées : %1</translation>
    </message>
    <message>
        <source>All pictures are shown</source>
        <translation>Toutes les images sont affichées</translation>
    </message>
</context>
<context>
    <name>ListProperties</name>
    <message>
        <source>Properties and filter</source>
        <translation>Propriétés et filtre</translation>
    </message>
    <message>
        <source>Sa&amp;ved filter</source>
        <translation>Filtre &amp;enregistré</translation>
    </message>
    <message>
        <source>Name of the filter</source>
        <translation>Nom du filtre</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save the conditions below under this name</source>
        <translation>Enregistrer les conditions ci-dessous sous ce nom</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>Part of a name or a value</source>
        <translation>Partie d’un nom ou d’une valeur</translation>
    </message>
    <message>
        <source>S&amp;how</source>
        <translation>A&amp;fficher si</translation>
    </message>
    <message>
        <source>Choose the property</source>
        <translation>Choisir la propriété</translation>
    </message>
    <message>
        <source>Comparison</source>
        <translation>Comparaison</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove this condition</source>
        <translation>Retirer cette condition</translation>
    </message>
    <message>
        <source>Add Condition</source>
        <translation>Ajouter une condition</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Add &amp;Column…</source>
        <translation>Ajouter une &amp;colonne…</translation>
    </message>
    <message>
        <source>Remove All</source>
        <translation>Tout retirer</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Tout afficher</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>field-work</name>
    <message>
        <source>its old values cannot be kept: %1</source>
        <translation>ses anciennes valeurs ne peuvent pas être conservées : %1</translation>
    </message>
</context>
<context>
    <name>full-disk</name>
    <message>
        <source>The disk is full</source>
        <translation>Le disque est plein</translation>
    </message>
    <message>
        <source>There is no space left in %1.</source>
        <translation>Il n’y a plus de place dans %1.</translation>
    </message>
    <message>
        <source>Free some space and try again, or choose another folder.</source>
        <translation>Libérez de la place et réessayez, ou choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Free some space and try again.</source>
        <translation>Libérez de la place et réessayez.</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>Choose Folder…</source>
        <translation>Choisir un dossier…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save the rest to</source>
        <translation>Enregistrer le reste dans</translation>
    </message>
</context>
<context>
    <name>window::DialogPanels</name>
    <message>
        <source>Folder:</source>
        <translation>Dossier :</translation>
    </message>
</context>
</TS>
