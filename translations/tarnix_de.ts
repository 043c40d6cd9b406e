<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>inch</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>in²</source>
        <translation>in²</translation>
    </message>
    <message>
        <source>cm²</source>
        <translation>cm²</translation>
    </message>
    <message>
        <source>in³</source>
        <translation>in³</translation>
    </message>
    <message>
        <source>cm³</source>
        <translation>cm³</translation>
    </message>
    <message>
        <source>kg</source>
        <translation>kg</translation>
    </message>
    <message>
        <source>g</source>
        <translation>g</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>fett</translation>
    </message>
    <message>
        <source>italic</source>
        <translation>kursiv</translation>
    </message>
</context>
<context>
    <name>commands.Add.Box</name>
    <message>
        <source>Box</source>
        <comment>title</comment>
        <translation>Quader</translation>
    </message>
    <message>
        <source>Add a box of given width, depth and height.</source>
        <comment>tooltip</comment>
        <translation>Fügt einen Quader von gegebener Breite, Tiefe und Höhe hinzu.</translation>
    </message>
    <message>
        <source>Add a box</source>
        <comment>statustip</comment>
        <translation>Einen Quader hinzufügen</translation>
    </message>
</context>
<context>
    <name>commands.Add.Cone</name>
    <message>
        <source>Cone</source>
        <comment>title</comment>
        <translation>Kegel</translation>
    </message>
    <message>
        <source>Add a cone, pointed or blunt.</source>
        <comment>tooltip</comment>
        <translation>Fügt einen Kegel hinzu, spitz oder stumpf.</translation>
    </message>
    <message>
        <source>Add a cone</source>
        <comment>statustip</comment>
        <translation>Einen Kegel hinzufügen</translation>
    </message>
</context>
<context>
    <name>commands.Add.Cylinder</name>
    <message>
        <source>Cylinder</source>
        <comment>title</comment>
        <translation>Zylinder</translation>
    </message>
    <message>
        <source>Add a cylinder of given diameter and height.</source>
        <comment>tooltip</comment>
        <translation>Fügt einen Zylinder von gegebenem Durchmesser und gegebener Höhe hinzu.</translation>
    </message>
    <message>
        <source>Add a cylinder</source>
        <comment>statustip</comment>
        <translation>Einen Zylinder hinzufügen</translation>
    </message>
</context>
<context>
    <name>commands.Add.Prism</name>
    <message>
        <source>Prism</source>
        <comment>title</comment>
        <translation>Prisma</translation>
    </message>
    <message>
        <source>Add a prism over a regular polygon.</source>
        <comment>tooltip</comment>
        <translation>Fügt ein Prisma über einem regelmäßigen Vieleck hinzu.</translation>
    </message>
    <message>
        <source>Add a prism</source>
        <comment>statustip</comment>
        <translation>Ein Prisma hinzufügen</translation>
    </message>
</context>
<context>
    <name>commands.Add.Sphere</name>
    <message>
        <source>Sphere</source>
        <comment>title</comment>
        <translation>Kugel</translation>
    </message>
    <message>
        <source>Add a sphere of given diameter.</source>
        <comment>tooltip</comment>
        <translation>Fügt eine Kugel von gegebenem Durchmesser hinzu.</translation>
    </message>
    <message>
        <source>Add a sphere</source>
        <comment>statustip</comment>
        <translation>Eine Kugel hinzufügen</translation>
    </message>
</context>
<context>
    <name>commands.Add.Torus</name>
    <message>
        <source>Ring</source>
        <comment>title</comment>
        <translation>Ring</translation>
    </message>
    <message>
        <source>Add a ring with a round section.</source>
        <comment>tooltip</comment>
        <translation>Fügt einen Ring mit rundem Querschnitt hinzu.</translation>
    </message>
    <message>
        <source>Add a ring</source>
        <comment>statustip</comment>
        <translation>Einen Ring hinzufügen</translation>
    </message>
</context>
<context>
    <name>commands.Align.Back</name>
    <message>
        <source>Align Back</source>
        <comment>title</comment>
        <translation>Hinten ausrichten</translation>
    </message>
    <message>
        <source>Bring the back sides of the selected parts in line with the first one.</source>
        <comment>tooltip</comment>
        <translation>Richtet die Rückseiten der ausgewählten Teile am ersten aus.</translation>
    </message>
    <message>
        <source>Align back sides</source>
        <comment>statustip</comment>
        <translation>Rückseiten ausrichten</translation>
    </message>
</context>
<context>
    <name>commands.Align.Bottom</name>
    <message>
        <source>Align Bottom</source>
        <comment>title</comment>
        <translation>Unten ausrichten</translation>
    </message>
    <message>
        <source>Bring the bottoms of the selected parts to one height.</source>
        <comment>tooltip</comment>
        <translation>Bringt die Unterseiten der ausgewählten Teile auf eine Höhe.</translation>
    </message>
    <message>
        <source>Align bottoms</source>
        <comment>statustip</comment>
        <translation>Unterseiten ausrichten</translation>
    </message>
</context>
<context>
    <name>commands.Align.CenterX</name>
    <message>
        <source>Align Middle X</source>
        <comment>title</comment>
        <translation>Mitten in X ausrichten</translation>
    </message>
    <message>
        <source>Bring the middles of the selected parts in line with the first one along x.</source>
        <comment>tooltip</comment>
        <translation>Richtet die Mitten der ausgewählten Teile entlang x am ersten aus.</translation>
    </message>
    <message>
        <source>Align middles along x</source>
        <comment>statustip</comment>
        <translation>Mitten entlang x ausrichten</translation>
    </message>
</context>
<context>
    <name>commands.Align.CenterY</name>
    <message>
        <source>Align Middle Y</source>
        <comment>title</comment>
        <translation>Mitten in Y ausrichten</translation>
    </message>
    <message>
        <source>Bring the middles of the selected parts in line with the first one along y.</source>
        <comment>tooltip</comment>
        <translation>Richtet die Mitten der ausgewählten Teile entlang y am ersten aus.</translation>
    </message>
    <message>
        <source>Align middles along y</source>
        <comment>statustip</comment>
        <translation>Mitten entlang y ausrichten</translation>
    </message>
</context>
<context>
    <name>commands.Align.Front</name>
    <message>
        <source>Align Front</source>
        <comment>title</comment>
        <translation>Vorn ausrichten</translation>
    </message>
    <message>
        <source>Bring the front sides of the selected parts in line with the first one.</source>
        <comment>tooltip</comment>
        <translation>Richtet die Vorderseiten der ausgewählten Teile am ersten aus.</translation>
    </message>
    <message>
        <source>Align front sides</source>
        <comment>statustip</comment>
        <translation>Vorderseiten ausrichten</translation>
    </message>
</context>
<context>
    <name>commands.Align.Left</name>
    <message>
        <source>Align Left</source>
        <comment>title</comment>
        <translation>Links ausrichten</translation>
    </message>
    <message>
        <source>Bring the left sides of the selected parts in line with the first one.</source>
        <comment>tooltip</comment>
        <translation>Richtet die linken Seiten der ausgewählten Teile am ersten aus.</translation>
    </message>
    <message>
        <source>Align left sides</source>
        <comment>statustip</comment>
        <translation>Linke Seiten ausrichten</translation>
    </message>
</context>
<context>
    <name>commands.Align.Right</name>
    <message>
        <source>Align Right</source>
        <comment>title</comment>
        <translation>Rechts ausrichten</translation>
    </message>
    <message>
        <source>Bring the right sides of the selected parts in line with the first one.</source>
        <comment>tooltip</comment>
        <translation>Richtet die rechten Seiten der ausgewählten Teile am ersten aus.</translation>
    </message>
    <message>
        <source>Align right sides</source>
        <comment>statustip</comment>
        <translation>Rechte Seiten ausrichten</translation>
    </message>
</context>
<context>
    <name>commands.Align.SpreadX</name>
    <message>
        <source>Spread X</source>
        <comment>title</comment>
        <translation>In X verteilen</translation>
    </message>
    <message>
        <source>Make the spaces between the selected parts equal along x.</source>
        <comment>tooltip</comment>
        <translation>Macht die Abstände zwischen den ausgewählten Teilen entlang x gleich.</translation>
    </message>
    <message>
        <source>Equal spaces along x</source>
        <comment>statustip</comment>
        <translation>Gleiche Abstände entlang x</translation>
    </message>
</context>
<context>
    <name>commands.Align.SpreadY</name>
    <message>
        <source>Spread Y</source>
        <comment>title</comment>
        <translation>In Y verteilen</translation>
    </message>
    <message>
        <source>Make the spaces between the selected parts equal along y.</source>
        <comment>tooltip</comment>
        <translation>Macht die Abstände zwischen den ausgewählten Teilen entlang y gleich.</translation>
    </message>
    <message>
        <source>Equal spaces along y</source>
        <comment>statustip</comment>
        <translation>Gleiche Abstände entlang y</translation>
    </message>
</context>
<context>
    <name>commands.Align.Top</name>
    <message>
        <source>Align Top</source>
        <comment>title</comment>
        <translation>Oben ausrichten</translation>
    </message>
    <message>
        <source>Bring the tops of the selected parts to one height.</source>
        <comment>tooltip</comment>
        <translation>Bringt die Oberseiten der ausgewählten Teile auf eine Höhe.</translation>
    </message>
    <message>
        <source>Align tops</source>
        <comment>statustip</comment>
        <translation>Oberseiten ausrichten</translation>
    </message>
</context>
<context>
    <name>commands.Check.BackFaces</name>
    <message>
        <source>Show Inside</source>
        <comment>title</comment>
        <translation>Innenseiten zeigen</translation>
    </message>
    <message>
        <source>Paint the inside of surfaces red.</source>
        <comment>tooltip</comment>
        <translation>Malt die Innenseiten der Oberflächen rot.</translation>
    </message>
    <message>
        <source>Paint the inside of surfaces red</source>
        <comment>statustip</comment>
        <translation>Die Innenseiten der Oberflächen rot malen</translation>
    </message>
</context>
<context>
    <name>commands.Check.CenterOfMass</name>
    <message>
        <source>Show Centre of Mass</source>
        <comment>title</comment>
        <translation>Schwerpunkt zeigen</translation>
    </message>
    <message>
        <source>Mark the centre of mass of the selected parts.</source>
        <comment>tooltip</comment>
        <translation>Markiert den Schwerpunkt der ausgewählten Teile.</translation>
    </message>
    <message>
        <source>Mark the centre of mass</source>
        <comment>statustip</comment>
        <translation>Den Schwerpunkt markieren</translation>
    </message>
</context>
<context>
    <name>commands.Check.Copy</name>
    <message>
        <source>Copy Report</source>
        <comment>title</comment>
        <translation>Bericht kopieren</translation>
    </message>
    <message>
        <source>Copy the figures and the findings of the build to the clipboard as text.</source>
        <comment>tooltip</comment>
        <translation>Kopiert die Kennzahlen und Befunde des Projekts als Text in die Zwischenablage.</translation>
    </message>
    <message>
        <source>Copy the build report as text</source>
        <comment>statustip</comment>
        <translation>Den Bericht des Projekts als Text kopieren</translation>
    </message>
</context>
<context>
    <name>commands.Check.OpenEdges</name>
    <message>
        <source>Show Open Edges</source>
        <comment>title</comment>
        <translation>Offene Kanten zeigen</translation>
    </message>
    <message>
        <source>Mark the edges at which the surface is open.</source>
        <comment>tooltip</comment>
        <translation>Markiert die Kanten, an denen die Oberfläche offen ist.</translation>
    </message>
    <message>
        <source>Mark open edges</source>
        <comment>statustip</comment>
        <translation>Offene Kanten markieren</translation>
    </message>
</context>
<context>
    <name>commands.Check.Overhang</name>
    <message>
        <source>Show Overhangs</source>
        <comment>title</comment>
        <translation>Überhänge zeigen</translation>
    </message>
    <message>
        <source>Colour surfaces that lean out too far to print without support.</source>
        <comment>tooltip</comment>
        <translation>Färbt Flächen, die zu weit überhängen, um ohne Stütze gedruckt zu werden.</translation>
    </message>
    <message>
        <source>Colour overhanging surfaces</source>
        <comment>statustip</comment>
        <translation>Überhängende Flächen färben</translation>
    </message>
</context>
<context>
    <name>commands.Check.OverhangLess</name>
    <message>
        <source>Flatter Limit</source>
        <comment>title</comment>
        <translation>Flachere Grenze</translation>
    </message>
    <message>
        <source>Lower the overhang limit by 5 degrees.</source>
        <comment>tooltip</comment>
        <translation>Senkt die Grenze für Überhänge um 5 Grad.</translation>
    </message>
    <message>
        <source>Lower the overhang limit</source>
        <comment>statustip</comment>
        <translation>Die Grenze für Überhänge senken</translation>
    </message>
</context>
<context>
    <name>commands.Check.OverhangMore</name>
    <message>
        <source>Steeper Limit</source>
        <comment>title</comment>
        <translation>Steilere Grenze</translation>
    </message>
    <message>
        <source>Raise the overhang limit by 5 degrees.</source>
        <comment>tooltip</comment>
        <translation>Hebt die Grenze für Überhänge um 5 Grad an.</translation>
    </message>
    <message>
        <source>Raise the overhang limit</source>
        <comment>statustip</comment>
        <translation>Die Grenze für Überhänge anheben</translation>
    </message>
</context>
<context>
    <name>commands.Check.Run</name>
    <message>
        <source>Check Build</source>
        <comment>title</comment>
        <translation>Projekt prüfen</translation>
    </message>
    <message>
        <source>Look at every part for open surfaces, wrong places, collisions and overhangs.</source>
        <comment>tooltip</comment>
        <translation>Untersucht jedes Teil auf offene Oberflächen, falsche Lage, Kollisionen und Überhänge.</translation>
    </message>
    <message>
        <source>Check the build</source>
        <comment>statustip</comment>
        <translation>Das Projekt prüfen</translation>
    </message>
</context>
<context>
    <name>commands.Check.SelectNext</name>
    <message>
        <source>Go to Finding</source>
        <comment>title</comment>
        <translation>Zum Befund</translation>
    </message>
    <message>
        <source>Select and show the part of the next finding.</source>
        <comment>tooltip</comment>
        <translation>Wählt das Teil des nächsten Befunds aus und zeigt es.</translation>
    </message>
    <message>
        <source>Show the part of the next finding</source>
        <comment>statustip</comment>
        <translation>Das Teil des nächsten Befunds zeigen</translation>
    </message>
</context>
<context>
    <name>commands.Display.Boxes</name>
    <message>
        <source>Boxes</source>
        <comment>title</comment>
        <translation>Quader</translation>
    </message>
    <message>
        <source>Draw only the boxes about parts; the fastest way.</source>
        <comment>tooltip</comment>
        <translation>Zeichnet nur die Quader um die Teile; so geht es am schnellsten.</translation>
    </message>
    <message>
        <source>Draw boxes only</source>
        <comment>statustip</comment>
        <translation>Nur Quader zeichnen</translation>
    </message>
</context>
<context>
    <name>commands.Display.Edges</name>
    <message>
        <source>Shaded with Edges</source>
        <comment>title</comment>
        <translation>Schattiert mit Kanten</translation>
    </message>
    <message>
        <source>Draw parts as solid surfaces with their edges.</source>
        <comment>tooltip</comment>
        <translation>Zeichnet Teile als feste Oberflächen mit ihren Kanten.</translation>
    </message>
    <message>
        <source>Draw surfaces with edges</source>
        <comment>statustip</comment>
        <translation>Oberflächen mit Kanten zeichnen</translation>
    </message>
</context>
<context>
    <name>commands.Display.Shaded</name>
    <message>
        <source>Shaded</source>
        <comment>title</comment>
        <translation>Schattiert</translation>
    </message>
    <message>
        <source>Draw parts as solid surfaces.</source>
        <comment>tooltip</comment>
        <translation>Zeichnet Teile als feste Oberflächen.</translation>
    </message>
    <message>
        <source>Draw solid surfaces</source>
        <comment>statustip</comment>
        <translation>Feste Oberflächen zeichnen</translation>
    </message>
</context>
<context>
    <name>commands.Display.Transparent</name>
    <message>
        <source>Transparent</source>
        <comment>title</comment>
        <translation>Durchsichtig</translation>
    </message>
    <message>
        <source>Draw parts as if they were of glass.</source>
        <comment>tooltip</comment>
        <translation>Zeichnet Teile, als wären sie aus Glas.</translation>
    </message>
    <message>
        <source>Draw transparent surfaces</source>
        <comment>statustip</comment>
        <translation>Durchsichtige Oberflächen zeichnen</translation>
    </message>
</context>
<context>
    <name>commands.Display.Triangles</name>
    <message>
        <source>Triangles</source>
        <comment>title</comment>
        <translation>Dreiecke</translation>
    </message>
    <message>
        <source>Draw parts as solid surfaces with all their triangles.</source>
        <comment>tooltip</comment>
        <translation>Zeichnet Teile als feste Oberflächen mit allen Dreiecken.</translation>
    </message>
    <message>
        <source>Draw surfaces with all triangles</source>
        <comment>statustip</comment>
        <translation>Oberflächen mit allen Dreiecken zeichnen</translation>
    </message>
</context>
<context>
    <name>commands.Display.Wireframe</name>
    <message>
        <source>Wireframe</source>
        <comment>title</comment>
        <translation>Drahtgitter</translation>
    </message>
    <message>
        <source>Draw the edges of parts only.</source>
        <comment>tooltip</comment>
        <translation>Zeichnet nur die Kanten der Teile.</translation>
    </message>
    <message>
        <source>Draw edges only</source>
        <comment>statustip</comment>
        <translation>Nur Kanten zeichnen</translation>
    </message>
</context>
<context>
    <name>commands.Edit.Copy</name>
    <message>
        <source>Copy</source>
        <comment>title</comment>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy the selected parts to the clipboard.</source>
        <comment>tooltip</comment>
        <translation>Kopiert die ausgewählten Teile in die Zwischenablage.</translation>
    </message>
    <message>
        <source>Copy the selected parts</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile kopieren</translation>
    </message>
</context>
<context>
    <name>commands.Edit.CustomizeUI</name>
    <message>
        <source>Customize</source>
        <comment>title</comment>
        <translation>Anpassen</translation>
    </message>
    <message>
        <source>Change the ribbon, the quick access bar, menus, tool bars, keys and panels.</source>
        <comment>tooltip</comment>
        <translation>Ändert Menüband, Schnellzugriffsleiste, Menüs, Symbolleisten, Tasten und Bereiche.</translation>
    </message>
    <message>
        <source>Customize the user interface</source>
        <comment>statustip</comment>
        <translation>Die Oberfläche anpassen</translation>
    </message>
</context>
<context>
    <name>commands.Edit.Cut</name>
    <message>
        <source>Cut</source>
        <comment>title</comment>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Cut the selected parts to the clipboard.</source>
        <comment>tooltip</comment>
        <translation>Schneidet die ausgewählten Teile aus und legt sie in die Zwischenablage.</translation>
    </message>
    <message>
        <source>Cut the selected parts</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile ausschneiden</translation>
    </message>
</context>
<context>
    <name>commands.Edit.Delete</name>
    <message>
        <source>Delete</source>
        <comment>title</comment>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Delete the selected parts.</source>
        <comment>tooltip</comment>
        <translation>Löscht die ausgewählten Teile.</translation>
    </message>
    <message>
        <source>Delete the selected parts</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile löschen</translation>
    </message>
</context>
<context>
    <name>commands.Edit.Duplicate</name>
    <message>
        <source>Duplicate</source>
        <comment>title</comment>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Put a copy of the selected parts beside them.</source>
        <comment>tooltip</comment>
        <translation>Stellt eine Kopie der ausgewählten Teile daneben.</translation>
    </message>
    <message>
        <source>Duplicate the selected parts</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile duplizieren</translation>
    </message>
</context>
<context>
    <name>commands.Edit.Grid</name>
    <message>
        <source>Grid of Copies</source>
        <comment>title</comment>
        <translation>Raster von Kopien</translation>
    </message>
    <message>
        <source>Fill a grid of rows and columns with copies of the selected part.</source>
        <comment>tooltip</comment>
        <translation>Füllt ein Raster aus Zeilen und Spalten mit Kopien des ausgewählten Teils.</translation>
    </message>
    <message>
        <source>Make a grid of copies</source>
        <comment>statustip</comment>
        <translation>Ein Raster von Kopien anlegen</translation>
    </message>
</context>
<context>
    <name>commands.Edit.Paste</name>
    <message>
        <source>Paste</source>
        <comment>title</comment>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Paste parts from the clipboard beside the plate&apos;s middle.</source>
        <comment>tooltip</comment>
        <translation>Fügt Teile aus der Zwischenablage neben der Mitte der Platte ein.</translation>
    </message>
    <message>
        <source>Paste parts from the clipboard</source>
        <comment>statustip</comment>
        <translation>Teile aus der Zwischenablage einfügen</translation>
    </message>
</context>
<context>
    <name>commands.Edit.Preferences</name>
    <message>
        <source>Options</source>
        <comment>title</comment>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Choose units, steps, colours and the build volume.</source>
        <comment>tooltip</comment>
        <translation>Legt Einheiten, Schrittweiten, Farben und den Bauraum fest.</translation>
    </message>
    <message>
        <source>Open the options</source>
        <comment>statustip</comment>
        <translation>Die Optionen öffnen</translation>
    </message>
</context>
<context>
    <name>commands.Edit.Recolor</name>
    <message>
        <source>Part Colour</source>
        <comment>title</comment>
        <translation>Teilefarbe</translation>
    </message>
    <message>
        <source>Give the selected parts another colour.</source>
        <comment>tooltip</comment>
        <translation>Gibt den ausgewählten Teilen eine andere Farbe.</translation>
    </message>
    <message>
        <source>Change the colour of the selected parts</source>
        <comment>statustip</comment>
        <translation>Die Farbe der ausgewählten Teile ändern</translation>
    </message>
</context>
<context>
    <name>commands.Edit.Redo</name>
    <message>
        <source>Redo</source>
        <comment>title</comment>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Do the step again that was taken back last.</source>
        <comment>tooltip</comment>
        <translation>Führt den zuletzt zurückgenommenen Schritt noch einmal aus.</translation>
    </message>
    <message>
        <source>Do the last undone step again</source>
        <comment>statustip</comment>
        <translation>Den zuletzt zurückgenommenen Schritt wiederholen</translation>
    </message>
</context>
<context>
    <name>commands.Edit.Rename</name>
    <message>
        <source>Rename</source>
        <comment>title</comment>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Give the selected part another name.</source>
        <comment>tooltip</comment>
        <translation>Gibt dem ausgewählten Teil einen anderen Namen.</translation>
    </message>
    <message>
        <source>Rename the selected part</source>
        <comment>statustip</comment>
        <translation>Das ausgewählte Teil umbenennen</translation>
    </message>
</context>
<context>
    <name>commands.Edit.Row</name>
    <message>
        <source>Row of Copies</source>
        <comment>title</comment>
        <translation>Reihe von Kopien</translation>
    </message>
    <message>
        <source>Make a row of copies of the selected part, in any direction.</source>
        <comment>tooltip</comment>
        <translation>Legt eine Reihe von Kopien des ausgewählten Teils an, in beliebiger Richtung.</translation>
    </message>
    <message>
        <source>Make a row of copies</source>
        <comment>statustip</comment>
        <translation>Eine Reihe von Kopien anlegen</translation>
    </message>
</context>
<context>
    <name>commands.Edit.Undo</name>
    <message>
        <source>Undo</source>
        <comment>title</comment>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Take the last step back.</source>
        <comment>tooltip</comment>
        <translation>Nimmt den letzten Schritt zurück.</translation>
    </message>
    <message>
        <source>Take the last step back</source>
        <comment>statustip</comment>
        <translation>Den letzten Schritt zurücknehmen</translation>
    </message>
</context>
<context>
    <name>commands.File.Bracket</name>
    <message>
        <source>Bracket</source>
        <comment>title</comment>
        <translation>Lagerbock</translation>
    </message>
    <message>
        <source>Add the sample bracket: a bearing block with a bore.</source>
        <comment>tooltip</comment>
        <translation>Fügt den Lagerbock hinzu, ein Beispielteil mit einer Bohrung.</translation>
    </message>
    <message>
        <source>Add the sample bracket</source>
        <comment>statustip</comment>
        <translation>Den Lagerbock als Beispiel hinzufügen</translation>
    </message>
</context>
<context>
    <name>commands.File.ClearRecent</name>
    <message>
        <source>Clear Recent Files</source>
        <comment>title</comment>
        <translation>Zuletzt verwendete vergessen</translation>
    </message>
    <message>
        <source>Forget the list of recent files.</source>
        <comment>tooltip</comment>
        <translation>Leert die Liste der zuletzt verwendeten Dateien.</translation>
    </message>
    <message>
        <source>Forget the list of recent files</source>
        <comment>statustip</comment>
        <translation>Die Liste der zuletzt verwendeten Dateien leeren</translation>
    </message>
</context>
<context>
    <name>commands.File.CopyPicture</name>
    <message>
        <source>Copy Picture</source>
        <comment>title</comment>
        <translation>Bild kopieren</translation>
    </message>
    <message>
        <source>Copy the view to the clipboard as a picture.</source>
        <comment>tooltip</comment>
        <translation>Kopiert die Ansicht als Bild in die Zwischenablage.</translation>
    </message>
    <message>
        <source>Copy the view as a picture</source>
        <comment>statustip</comment>
        <translation>Die Ansicht als Bild kopieren</translation>
    </message>
</context>
<context>
    <name>commands.File.Exit</name>
    <message>
        <source>Exit</source>
        <comment>title</comment>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Leave the program; an unsaved build is asked about.</source>
        <comment>tooltip</comment>
        <translation>Verlässt das Programm; nach einem ungespeicherten Projekt wird gefragt.</translation>
    </message>
    <message>
        <source>Leave the program</source>
        <comment>statustip</comment>
        <translation>Das Programm verlassen</translation>
    </message>
</context>
<context>
    <name>commands.File.ExportAscii</name>
    <message>
        <source>Export as Text</source>
        <comment>title</comment>
        <translation>Als Text exportieren</translation>
    </message>
    <message>
        <source>Export the selected parts, as placed, into one ASCII STL file.</source>
        <comment>tooltip</comment>
        <translation>Exportiert die ausgewählten Teile, wie sie platziert sind, in eine STL-Textdatei.</translation>
    </message>
    <message>
        <source>Export the selected parts as ASCII STL</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile als STL-Text exportieren</translation>
    </message>
</context>
<context>
    <name>commands.File.ExportEach</name>
    <message>
        <source>Export Each Part</source>
        <comment>title</comment>
        <translation>Teile einzeln exportieren</translation>
    </message>
    <message>
        <source>Export every part into a file of its own in a folder.</source>
        <comment>tooltip</comment>
        <translation>Exportiert jedes Teil in eine eigene Datei eines Ordners.</translation>
    </message>
    <message>
        <source>Export all parts into a folder</source>
        <comment>statustip</comment>
        <translation>Alle Teile in einen Ordner exportieren</translation>
    </message>
</context>
<context>
    <name>commands.File.ExportPicture</name>
    <message>
        <source>Save Picture</source>
        <comment>title</comment>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Save the view as a picture.</source>
        <comment>tooltip</comment>
        <translation>Speichert die Ansicht als Bild.</translation>
    </message>
    <message>
        <source>Save the view as a PNG picture</source>
        <comment>statustip</comment>
        <translation>Die Ansicht als PNG-Bild speichern</translation>
    </message>
</context>
<context>
    <name>commands.File.ExportStl</name>
    <message>
        <source>Export STL</source>
        <comment>title</comment>
        <translation>STL exportieren</translation>
    </message>
    <message>
        <source>Export the selected parts, as placed, into one binary STL file.</source>
        <comment>tooltip</comment>
        <translation>Exportiert die ausgewählten Teile, wie sie platziert sind, in eine binäre STL-Datei.</translation>
    </message>
    <message>
        <source>Export the selected parts as binary STL</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile als binäres STL exportieren</translation>
    </message>
</context>
<context>
    <name>commands.File.Gear</name>
    <message>
        <source>Gear Wheel</source>
        <comment>title</comment>
        <translation>Zahnrad</translation>
    </message>
    <message>
        <source>Add the sample gear wheel.</source>
        <comment>tooltip</comment>
        <translation>Fügt das Zahnrad hinzu, ein Beispielteil.</translation>
    </message>
    <message>
        <source>Add the sample gear wheel</source>
        <comment>statustip</comment>
        <translation>Das Zahnrad als Beispiel hinzufügen</translation>
    </message>
</context>
<context>
    <name>commands.File.Import</name>
    <message>
        <source>Add Parts</source>
        <comment>title</comment>
        <translation>Teile hinzufügen</translation>
    </message>
    <message>
        <source>Add STL files, binary or ASCII, to the plate.</source>
        <comment>tooltip</comment>
        <translation>Fügt der Platte STL-Dateien hinzu, binär oder als Text.</translation>
    </message>
    <message>
        <source>Add parts from STL files</source>
        <comment>statustip</comment>
        <translation>Teile aus STL-Dateien hinzufügen</translation>
    </message>
</context>
<context>
    <name>commands.File.New</name>
    <message>
        <source>New Build</source>
        <comment>title</comment>
        <translation>Neues Projekt</translation>
    </message>
    <message>
        <source>Clear the plate and start a new build.</source>
        <comment>tooltip</comment>
        <translation>Räumt die Platte und beginnt ein neues Projekt.</translation>
    </message>
    <message>
        <source>Start a new, empty build</source>
        <comment>statustip</comment>
        <translation>Ein neues, leeres Projekt beginnen</translation>
    </message>
</context>
<context>
    <name>commands.File.Open</name>
    <message>
        <source>Open Build</source>
        <comment>title</comment>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Open a saved build, or STL files as a new build.</source>
        <comment>tooltip</comment>
        <translation>Öffnet ein gespeichertes Projekt oder STL-Dateien als neues Projekt.</translation>
    </message>
    <message>
        <source>Open a build or parts in place of the present ones</source>
        <comment>statustip</comment>
        <translation>Ein Projekt oder Teile anstelle der vorhandenen öffnen</translation>
    </message>
</context>
<context>
    <name>commands.File.PrintReport</name>
    <message>
        <source>Print Report</source>
        <comment>title</comment>
        <translation>Bericht ausgeben</translation>
    </message>
    <message>
        <source>Print the build as a PDF: a picture, the figures of each part and all findings.</source>
        <comment>tooltip</comment>
        <translation>Gibt das Projekt als PDF aus: ein Bild, die Kennzahlen jedes Teils und alle Befunde.</translation>
    </message>
    <message>
        <source>Write a PDF report of the build</source>
        <comment>statustip</comment>
        <translation>Einen PDF-Bericht des Projekts schreiben</translation>
    </message>
</context>
<context>
    <name>commands.File.Reload</name>
    <message>
        <source>Reload</source>
        <comment>title</comment>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Read the selected parts from their files again; their placement stays.</source>
        <comment>tooltip</comment>
        <translation>Liest die ausgewählten Teile noch einmal aus ihren Dateien; ihre Platzierung bleibt.</translation>
    </message>
    <message>
        <source>Read the selected parts again</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile noch einmal lesen</translation>
    </message>
</context>
<context>
    <name>commands.File.Save</name>
    <message>
        <source>Save Build</source>
        <comment>title</comment>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>Save the build with all its parts in one file.</source>
        <comment>tooltip</comment>
        <translation>Speichert das Projekt mit allen Teilen in einer Datei.</translation>
    </message>
    <message>
        <source>Save the build</source>
        <comment>statustip</comment>
        <translation>Das Projekt speichern</translation>
    </message>
</context>
<context>
    <name>commands.File.SaveAs</name>
    <message>
        <source>Save Build As</source>
        <comment>title</comment>
        <translation>Projekt speichern unter</translation>
    </message>
    <message>
        <source>Save the build under another name.</source>
        <comment>tooltip</comment>
        <translation>Speichert das Projekt unter einem anderen Namen.</translation>
    </message>
    <message>
        <source>Save the build under another name</source>
        <comment>statustip</comment>
        <translation>Das Projekt unter einem anderen Namen speichern</translation>
    </message>
</context>
<context>
    <name>commands.File.Vase</name>
    <message>
        <source>Vase</source>
        <comment>title</comment>
        <translation>Vase</translation>
    </message>
    <message>
        <source>Add the sample vase: fluted, twisted and thin-walled.</source>
        <comment>tooltip</comment>
        <translation>Fügt die Vase hinzu, ein Beispielteil: geriffelt, verdreht und dünnwandig.</translation>
    </message>
    <message>
        <source>Add the sample vase</source>
        <comment>statustip</comment>
        <translation>Die Vase als Beispiel hinzufügen</translation>
    </message>
</context>
<context>
    <name>commands.Help.About</name>
    <message>
        <source>About</source>
        <comment>title</comment>
        <translation>Info</translation>
    </message>
    <message>
        <source>Show the version of the program.</source>
        <comment>tooltip</comment>
        <translation>Zeigt die Version des Programms.</translation>
    </message>
    <message>
        <source>Show the version</source>
        <comment>statustip</comment>
        <translation>Die Version zeigen</translation>
    </message>
</context>
<context>
    <name>commands.Help.CopyInfo</name>
    <message>
        <source>Copy Version</source>
        <comment>title</comment>
        <translation>Version kopieren</translation>
    </message>
    <message>
        <source>Copy the version of the program and its parts, for a report.</source>
        <comment>tooltip</comment>
        <translation>Kopiert die Version des Programms und seiner Bestandteile, etwa für eine Fehlermeldung.</translation>
    </message>
    <message>
        <source>Copy version information</source>
        <comment>statustip</comment>
        <translation>Angaben zur Version kopieren</translation>
    </message>
</context>
<context>
    <name>commands.Help.Keys</name>
    <message>
        <source>Keys</source>
        <comment>title</comment>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Show all keys of the present layout.</source>
        <comment>tooltip</comment>
        <translation>Zeigt alle Tasten des aktuellen Arbeitsbereichs.</translation>
    </message>
    <message>
        <source>Show the keys of this layout</source>
        <comment>statustip</comment>
        <translation>Die Tasten dieses Arbeitsbereichs zeigen</translation>
    </message>
</context>
<context>
    <name>commands.Help.Service</name>
    <message>
        <source>Help</source>
        <comment>title</comment>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Open a page that tells how the program is used.</source>
        <comment>tooltip</comment>
        <translation>Öffnet eine Seite, die erklärt, wie das Programm bedient wird.</translation>
    </message>
    <message>
        <source>Show how the program is used</source>
        <comment>statustip</comment>
        <translation>Zeigen, wie das Programm bedient wird</translation>
    </message>
</context>
<context>
    <name>commands.Layout.Inspect</name>
    <message>
        <source>Inspect</source>
        <comment>title</comment>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Work in the layout in which parts are measured and checked.</source>
        <comment>tooltip</comment>
        <translation>Wechselt in den Arbeitsbereich, in dem Teile gemessen und geprüft werden.</translation>
    </message>
    <message>
        <source>Switch to the layout Inspect</source>
        <comment>statustip</comment>
        <translation>In den Arbeitsbereich Prüfen wechseln</translation>
    </message>
</context>
<context>
    <name>commands.Layout.Prepare</name>
    <message>
        <source>Prepare</source>
        <comment>title</comment>
        <translation>Vorbereiten</translation>
    </message>
    <message>
        <source>Work in the layout in which parts are placed and repaired.</source>
        <comment>tooltip</comment>
        <translation>Wechselt in den Arbeitsbereich, in dem Teile platziert und repariert werden.</translation>
    </message>
    <message>
        <source>Switch to the layout Prepare</source>
        <comment>statustip</comment>
        <translation>In den Arbeitsbereich Vorbereiten wechseln</translation>
    </message>
</context>
<context>
    <name>commands.Layout.Slice</name>
    <message>
        <source>Slice</source>
        <comment>title</comment>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>Work in the layout in which parts are cut into layers.</source>
        <comment>tooltip</comment>
        <translation>Wechselt in den Arbeitsbereich, in dem Teile in Schichten zerlegt werden.</translation>
    </message>
    <message>
        <source>Switch to the layout Slice</source>
        <comment>statustip</comment>
        <translation>In den Arbeitsbereich Schichten wechseln</translation>
    </message>
</context>
<context>
    <name>commands.Measure.Angle</name>
    <message>
        <source>Angle</source>
        <comment>title</comment>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Pick three points and read the angle at the second one.</source>
        <comment>tooltip</comment>
        <translation>Zeigt den Winkel am zweiten von drei Punkten, die Sie anklicken.</translation>
    </message>
    <message>
        <source>Measure an angle</source>
        <comment>statustip</comment>
        <translation>Einen Winkel messen</translation>
    </message>
</context>
<context>
    <name>commands.Measure.Clear</name>
    <message>
        <source>Clear All</source>
        <comment>title</comment>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Remove all measurements.</source>
        <comment>tooltip</comment>
        <translation>Entfernt alle Messungen.</translation>
    </message>
    <message>
        <source>Remove all measurements</source>
        <comment>statustip</comment>
        <translation>Alle Messungen entfernen</translation>
    </message>
</context>
<context>
    <name>commands.Measure.Copy</name>
    <message>
        <source>Copy Results</source>
        <comment>title</comment>
        <translation>Ergebnisse kopieren</translation>
    </message>
    <message>
        <source>Copy all measurements to the clipboard as text.</source>
        <comment>tooltip</comment>
        <translation>Kopiert alle Messungen als Text in die Zwischenablage.</translation>
    </message>
    <message>
        <source>Copy the measurements as text</source>
        <comment>statustip</comment>
        <translation>Die Messungen als Text kopieren</translation>
    </message>
</context>
<context>
    <name>commands.Measure.Distance</name>
    <message>
        <source>Distance</source>
        <comment>title</comment>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Pick two points and read their distance.</source>
        <comment>tooltip</comment>
        <translation>Zeigt den Abstand zweier Punkte, die Sie anklicken.</translation>
    </message>
    <message>
        <source>Measure the distance of two points</source>
        <comment>statustip</comment>
        <translation>Den Abstand zweier Punkte messen</translation>
    </message>
</context>
<context>
    <name>commands.Measure.Gap</name>
    <message>
        <source>Gap</source>
        <comment>title</comment>
        <translation>Lücke</translation>
    </message>
    <message>
        <source>Measure the gap between the boxes of two selected parts.</source>
        <comment>tooltip</comment>
        <translation>Misst die Lücke zwischen den Quadern zweier ausgewählter Teile.</translation>
    </message>
    <message>
        <source>Measure the gap between two parts</source>
        <comment>statustip</comment>
        <translation>Die Lücke zwischen zwei Teilen messen</translation>
    </message>
</context>
<context>
    <name>commands.Measure.Point</name>
    <message>
        <source>Coordinates</source>
        <comment>title</comment>
        <translation>Koordinaten</translation>
    </message>
    <message>
        <source>Pick a point on a part and read where it is.</source>
        <comment>tooltip</comment>
        <translation>Zeigt, wo ein Punkt liegt, den Sie auf einem Teil anklicken.</translation>
    </message>
    <message>
        <source>Measure a point</source>
        <comment>statustip</comment>
        <translation>Einen Punkt messen</translation>
    </message>
</context>
<context>
    <name>commands.Measure.Radius</name>
    <message>
        <source>Radius</source>
        <comment>title</comment>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Pick three points on a curve and read its radius.</source>
        <comment>tooltip</comment>
        <translation>Zeigt den Radius einer Rundung, auf der Sie drei Punkte anklicken.</translation>
    </message>
    <message>
        <source>Measure the radius of a curve</source>
        <comment>statustip</comment>
        <translation>Den Radius einer Rundung messen</translation>
    </message>
</context>
<context>
    <name>commands.Measure.RemoveLast</name>
    <message>
        <source>Remove Last</source>
        <comment>title</comment>
        <translation>Letzte entfernen</translation>
    </message>
    <message>
        <source>Remove the last measurement.</source>
        <comment>tooltip</comment>
        <translation>Entfernt die letzte Messung.</translation>
    </message>
    <message>
        <source>Remove the last measurement</source>
        <comment>statustip</comment>
        <translation>Die letzte Messung entfernen</translation>
    </message>
</context>
<context>
    <name>commands.Measure.Size</name>
    <message>
        <source>Size</source>
        <comment>title</comment>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Measure the box about the selected parts.</source>
        <comment>tooltip</comment>
        <translation>Misst den Quader um die ausgewählten Teile.</translation>
    </message>
    <message>
        <source>Measure the size of the selected parts</source>
        <comment>statustip</comment>
        <translation>Die Größe der ausgewählten Teile messen</translation>
    </message>
</context>
<context>
    <name>commands.Measure.SnapEdge</name>
    <message>
        <source>Snap to Edges</source>
        <comment>title</comment>
        <translation>An Kanten fangen</translation>
    </message>
    <message>
        <source>Pick the nearest place on an edge of the surface.</source>
        <comment>tooltip</comment>
        <translation>Nimmt die nächste Stelle auf einer Kante der Oberfläche.</translation>
    </message>
    <message>
        <source>Snap picks to edges</source>
        <comment>statustip</comment>
        <translation>Klicks an Kanten fangen</translation>
    </message>
</context>
<context>
    <name>commands.Measure.SnapPoint</name>
    <message>
        <source>Snap to Points</source>
        <comment>title</comment>
        <translation>An Punkten fangen</translation>
    </message>
    <message>
        <source>Pick the nearest corner of the surface instead of the exact place.</source>
        <comment>tooltip</comment>
        <translation>Nimmt die nächste Ecke der Oberfläche statt der genauen Stelle.</translation>
    </message>
    <message>
        <source>Snap picks to corners</source>
        <comment>statustip</comment>
        <translation>Klicks an Ecken fangen</translation>
    </message>
</context>
<context>
    <name>commands.Measure.Stop</name>
    <message>
        <source>Stop Measuring</source>
        <comment>title</comment>
        <translation>Messen beenden</translation>
    </message>
    <message>
        <source>Leave measuring and select parts again.</source>
        <comment>tooltip</comment>
        <translation>Beendet das Messen; Klicks wählen wieder Teile aus.</translation>
    </message>
    <message>
        <source>Leave measuring</source>
        <comment>statustip</comment>
        <translation>Das Messen beenden</translation>
    </message>
</context>
<context>
    <name>commands.Mesh.CutAbove</name>
    <message>
        <source>Keep Above</source>
        <comment>title</comment>
        <translation>Oberes behalten</translation>
    </message>
    <message>
        <source>Cut the selected parts at the section plane and keep what lies above.</source>
        <comment>tooltip</comment>
        <translation>Schneidet die ausgewählten Teile an der Schnittebene und behält, was darüber liegt.</translation>
    </message>
    <message>
        <source>Cut at the section and keep the upper side</source>
        <comment>statustip</comment>
        <translation>Am Schnitt trennen und die obere Seite behalten</translation>
    </message>
</context>
<context>
    <name>commands.Mesh.CutApart</name>
    <message>
        <source>Cut Apart</source>
        <comment>title</comment>
        <translation>Durchschneiden</translation>
    </message>
    <message>
        <source>Cut the selected parts at the section plane and keep both sides.</source>
        <comment>tooltip</comment>
        <translation>Schneidet die ausgewählten Teile an der Schnittebene und behält beide Seiten.</translation>
    </message>
    <message>
        <source>Cut at the section and keep both sides</source>
        <comment>statustip</comment>
        <translation>Am Schnitt trennen und beide Seiten behalten</translation>
    </message>
</context>
<context>
    <name>commands.Mesh.CutBelow</name>
    <message>
        <source>Keep Below</source>
        <comment>title</comment>
        <translation>Unteres behalten</translation>
    </message>
    <message>
        <source>Cut the selected parts at the section plane and keep what lies below.</source>
        <comment>tooltip</comment>
        <translation>Schneidet die ausgewählten Teile an der Schnittebene und behält, was darunter liegt.</translation>
    </message>
    <message>
        <source>Cut at the section and keep the lower side</source>
        <comment>statustip</comment>
        <translation>Am Schnitt trennen und die untere Seite behalten</translation>
    </message>
</context>
<context>
    <name>commands.Mesh.Simplify</name>
    <message>
        <source>Simplify</source>
        <comment>title</comment>
        <translation>Vereinfachen</translation>
    </message>
    <message>
        <source>Make the selected parts of fewer triangles by a given fineness.</source>
        <comment>tooltip</comment>
        <translation>Baut die ausgewählten Teile mit gegebener Feinheit aus weniger Dreiecken.</translation>
    </message>
    <message>
        <source>Reduce the number of triangles</source>
        <comment>statustip</comment>
        <translation>Die Zahl der Dreiecke verringern</translation>
    </message>
</context>
<context>
    <name>commands.Mesh.Smooth</name>
    <message>
        <source>Smooth</source>
        <comment>title</comment>
        <translation>Glätten</translation>
    </message>
    <message>
        <source>Smooth the surface of the selected parts without shrinking them.</source>
        <comment>tooltip</comment>
        <translation>Glättet die Oberfläche der ausgewählten Teile, ohne sie zu schrumpfen.</translation>
    </message>
    <message>
        <source>Smooth the surface</source>
        <comment>statustip</comment>
        <translation>Die Oberfläche glätten</translation>
    </message>
</context>
<context>
    <name>commands.Mesh.Subdivide</name>
    <message>
        <source>Refine</source>
        <comment>title</comment>
        <translation>Verfeinern</translation>
    </message>
    <message>
        <source>Cut every triangle of the selected parts into four.</source>
        <comment>tooltip</comment>
        <translation>Teilt jedes Dreieck der ausgewählten Teile in vier.</translation>
    </message>
    <message>
        <source>Cut triangles into four</source>
        <comment>statustip</comment>
        <translation>Dreiecke in vier teilen</translation>
    </message>
</context>
<context>
    <name>commands.Mirror.X</name>
    <message>
        <source>Mirror X</source>
        <comment>title</comment>
        <translation>An X spiegeln</translation>
    </message>
    <message>
        <source>Mirror the selected parts left to right.</source>
        <comment>tooltip</comment>
        <translation>Spiegelt die ausgewählten Teile von links nach rechts.</translation>
    </message>
    <message>
        <source>Mirror along x</source>
        <comment>statustip</comment>
        <translation>Entlang x spiegeln</translation>
    </message>
</context>
<context>
    <name>commands.Mirror.Y</name>
    <message>
        <source>Mirror Y</source>
        <comment>title</comment>
        <translation>An Y spiegeln</translation>
    </message>
    <message>
        <source>Mirror the selected parts front to back.</source>
        <comment>tooltip</comment>
        <translation>Spiegelt die ausgewählten Teile von vorn nach hinten.</translation>
    </message>
    <message>
        <source>Mirror along y</source>
        <comment>statustip</comment>
        <translation>Entlang y spiegeln</translation>
    </message>
</context>
<context>
    <name>commands.Mirror.Z</name>
    <message>
        <source>Mirror Z</source>
        <comment>title</comment>
        <translation>An Z spiegeln</translation>
    </message>
    <message>
        <source>Mirror the selected parts top to bottom.</source>
        <comment>tooltip</comment>
        <translation>Spiegelt die ausgewählten Teile von oben nach unten.</translation>
    </message>
    <message>
        <source>Mirror along z</source>
        <comment>statustip</comment>
        <translation>Entlang z spiegeln</translation>
    </message>
</context>
<context>
    <name>commands.Move.Arrange</name>
    <message>
        <source>Arrange</source>
        <comment>title</comment>
        <translation>Anordnen</translation>
    </message>
    <message>
        <source>Place all parts on the plate in rows with a gap between them.</source>
        <comment>tooltip</comment>
        <translation>Ordnet alle Teile in Reihen mit Abstand auf der Platte an.</translation>
    </message>
    <message>
        <source>Arrange all parts on the plate</source>
        <comment>statustip</comment>
        <translation>Alle Teile auf der Platte anordnen</translation>
    </message>
</context>
<context>
    <name>commands.Move.Back</name>
    <message>
        <source>Backward</source>
        <comment>title</comment>
        <translation>Nach hinten</translation>
    </message>
    <message>
        <source>Move the selected parts towards the back by the step of the options.</source>
        <comment>tooltip</comment>
        <translation>Verschiebt die ausgewählten Teile um die Schrittweite der Optionen nach hinten.</translation>
    </message>
    <message>
        <source>Move to the back by one step</source>
        <comment>statustip</comment>
        <translation>Um einen Schritt nach hinten</translation>
    </message>
</context>
<context>
    <name>commands.Move.Bake</name>
    <message>
        <source>Work In</source>
        <comment>title</comment>
        <translation>Einarbeiten</translation>
    </message>
    <message>
        <source>Work the placement into the shape, so that the part counts as unturned and unscaled.</source>
        <comment>tooltip</comment>
        <translation>Arbeitet die Platzierung in die Form ein, sodass das Teil als ungedreht und unskaliert gilt.</translation>
    </message>
    <message>
        <source>Work the placement into the shape</source>
        <comment>statustip</comment>
        <translation>Die Platzierung in die Form einarbeiten</translation>
    </message>
</context>
<context>
    <name>commands.Move.By</name>
    <message>
        <source>Move By</source>
        <comment>title</comment>
        <translation>Verschieben um</translation>
    </message>
    <message>
        <source>Move the selected parts by given lengths.</source>
        <comment>tooltip</comment>
        <translation>Verschiebt die ausgewählten Teile um gegebene Längen.</translation>
    </message>
    <message>
        <source>Move by given lengths</source>
        <comment>statustip</comment>
        <translation>Um gegebene Längen verschieben</translation>
    </message>
</context>
<context>
    <name>commands.Move.CopyPlacement</name>
    <message>
        <source>Copy Placement</source>
        <comment>title</comment>
        <translation>Platzierung kopieren</translation>
    </message>
    <message>
        <source>Remember where the selected part stands and how it is turned and scaled.</source>
        <comment>tooltip</comment>
        <translation>Merkt sich, wo das ausgewählte Teil steht und wie es gedreht und skaliert ist.</translation>
    </message>
    <message>
        <source>Copy the placement of the selected part</source>
        <comment>statustip</comment>
        <translation>Die Platzierung des ausgewählten Teils kopieren</translation>
    </message>
</context>
<context>
    <name>commands.Move.Down</name>
    <message>
        <source>Down</source>
        <comment>title</comment>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Lower the selected parts by the step of the options.</source>
        <comment>tooltip</comment>
        <translation>Senkt die ausgewählten Teile um die Schrittweite der Optionen ab.</translation>
    </message>
    <message>
        <source>Lower by one step</source>
        <comment>statustip</comment>
        <translation>Um einen Schritt absenken</translation>
    </message>
</context>
<context>
    <name>commands.Move.Front</name>
    <message>
        <source>Forward</source>
        <comment>title</comment>
        <translation>Nach vorn</translation>
    </message>
    <message>
        <source>Move the selected parts towards the front by the step of the options.</source>
        <comment>tooltip</comment>
        <translation>Verschiebt die ausgewählten Teile um die Schrittweite der Optionen nach vorn.</translation>
    </message>
    <message>
        <source>Move to the front by one step</source>
        <comment>statustip</comment>
        <translation>Um einen Schritt nach vorn</translation>
    </message>
</context>
<context>
    <name>commands.Move.Left</name>
    <message>
        <source>Left</source>
        <comment>title</comment>
        <translation>Nach links</translation>
    </message>
    <message>
        <source>Move the selected parts to the left by the step of the options.</source>
        <comment>tooltip</comment>
        <translation>Verschiebt die ausgewählten Teile um die Schrittweite der Optionen nach links.</translation>
    </message>
    <message>
        <source>Move left by one step</source>
        <comment>statustip</comment>
        <translation>Um einen Schritt nach links</translation>
    </message>
</context>
<context>
    <name>commands.Move.PastePlacement</name>
    <message>
        <source>Paste Placement</source>
        <comment>title</comment>
        <translation>Platzierung übertragen</translation>
    </message>
    <message>
        <source>Give the selected parts the remembered placement.</source>
        <comment>tooltip</comment>
        <translation>Gibt den ausgewählten Teilen die gemerkte Platzierung.</translation>
    </message>
    <message>
        <source>Give the selected parts the copied placement</source>
        <comment>statustip</comment>
        <translation>Den ausgewählten Teilen die kopierte Platzierung geben</translation>
    </message>
</context>
<context>
    <name>commands.Move.Reset</name>
    <message>
        <source>Reset Placement</source>
        <comment>title</comment>
        <translation>Platzierung zurücksetzen</translation>
    </message>
    <message>
        <source>Take back every move, turn and scale of the selected parts.</source>
        <comment>tooltip</comment>
        <translation>Nimmt jede Verschiebung, Drehung und Skalierung der ausgewählten Teile zurück.</translation>
    </message>
    <message>
        <source>Undo all placement of the selected parts</source>
        <comment>statustip</comment>
        <translation>Die ganze Platzierung der ausgewählten Teile zurücknehmen</translation>
    </message>
</context>
<context>
    <name>commands.Move.Right</name>
    <message>
        <source>Right</source>
        <comment>title</comment>
        <translation>Nach rechts</translation>
    </message>
    <message>
        <source>Move the selected parts to the right by the step of the options.</source>
        <comment>tooltip</comment>
        <translation>Verschiebt die ausgewählten Teile um die Schrittweite der Optionen nach rechts.</translation>
    </message>
    <message>
        <source>Move right by one step</source>
        <comment>statustip</comment>
        <translation>Um einen Schritt nach rechts</translation>
    </message>
</context>
<context>
    <name>commands.Move.ToCenter</name>
    <message>
        <source>Centre on Plate</source>
        <comment>title</comment>
        <translation>Auf der Platte zentrieren</translation>
    </message>
    <message>
        <source>Put the selected parts, together, in the middle of the plate.</source>
        <comment>tooltip</comment>
        <translation>Stellt die ausgewählten Teile gemeinsam in die Mitte der Platte.</translation>
    </message>
    <message>
        <source>Centre the selected parts on the plate</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile auf der Platte zentrieren</translation>
    </message>
</context>
<context>
    <name>commands.Move.ToPlate</name>
    <message>
        <source>Drop to Plate</source>
        <comment>title</comment>
        <translation>Auf die Platte setzen</translation>
    </message>
    <message>
        <source>Put the lowest point of each selected part on the plate.</source>
        <comment>tooltip</comment>
        <translation>Setzt jedes ausgewählte Teil mit seinem tiefsten Punkt auf die Platte.</translation>
    </message>
    <message>
        <source>Put the selected parts on the plate</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile auf die Platte setzen</translation>
    </message>
</context>
<context>
    <name>commands.Move.Up</name>
    <message>
        <source>Up</source>
        <comment>title</comment>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Lift the selected parts by the step of the options.</source>
        <comment>tooltip</comment>
        <translation>Hebt die ausgewählten Teile um die Schrittweite der Optionen an.</translation>
    </message>
    <message>
        <source>Lift by one step</source>
        <comment>statustip</comment>
        <translation>Um einen Schritt anheben</translation>
    </message>
</context>
<context>
    <name>commands.Repair.All</name>
    <message>
        <source>Repair</source>
        <comment>title</comment>
        <translation>Reparieren</translation>
    </message>
    <message>
        <source>Do all that makes the selected parts printable: join, clean, orient and close.</source>
        <comment>tooltip</comment>
        <translation>Tut alles, was die ausgewählten Teile druckbar macht: verbinden, bereinigen, orientieren und schließen.</translation>
    </message>
    <message>
        <source>Repair the selected parts</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile reparieren</translation>
    </message>
</context>
<context>
    <name>commands.Repair.Clean</name>
    <message>
        <source>Clean</source>
        <comment>title</comment>
        <translation>Bereinigen</translation>
    </message>
    <message>
        <source>Take out triangles without area and triangles that are there twice.</source>
        <comment>tooltip</comment>
        <translation>Entfernt Dreiecke ohne Fläche und doppelte Dreiecke.</translation>
    </message>
    <message>
        <source>Remove useless triangles</source>
        <comment>statustip</comment>
        <translation>Nutzlose Dreiecke entfernen</translation>
    </message>
</context>
<context>
    <name>commands.Repair.CloseHoles</name>
    <message>
        <source>Close Holes</source>
        <comment>title</comment>
        <translation>Löcher schließen</translation>
    </message>
    <message>
        <source>Close every hole of the surface of the selected parts.</source>
        <comment>tooltip</comment>
        <translation>Schließt jedes Loch in der Oberfläche der ausgewählten Teile.</translation>
    </message>
    <message>
        <source>Close holes in the surface</source>
        <comment>statustip</comment>
        <translation>Löcher in der Oberfläche schließen</translation>
    </message>
</context>
<context>
    <name>commands.Repair.Flip</name>
    <message>
        <source>Turn Inside Out</source>
        <comment>title</comment>
        <translation>Umstülpen</translation>
    </message>
    <message>
        <source>Turn the surface of the selected parts inside out.</source>
        <comment>tooltip</comment>
        <translation>Kehrt die Oberfläche der ausgewählten Teile von innen nach außen.</translation>
    </message>
    <message>
        <source>Flip all triangles</source>
        <comment>statustip</comment>
        <translation>Alle Dreiecke wenden</translation>
    </message>
</context>
<context>
    <name>commands.Repair.Join</name>
    <message>
        <source>Join Points</source>
        <comment>title</comment>
        <translation>Punkte verbinden</translation>
    </message>
    <message>
        <source>Join points of the surface that lie apart by rounding only.</source>
        <comment>tooltip</comment>
        <translation>Verbindet Punkte der Oberfläche, die nur durch Rundung auseinanderliegen.</translation>
    </message>
    <message>
        <source>Join near points</source>
        <comment>statustip</comment>
        <translation>Nahe Punkte verbinden</translation>
    </message>
</context>
<context>
    <name>commands.Repair.KeepLargest</name>
    <message>
        <source>Keep Largest</source>
        <comment>title</comment>
        <translation>Größte behalten</translation>
    </message>
    <message>
        <source>Keep the largest shell of each selected part and drop the crumbs.</source>
        <comment>tooltip</comment>
        <translation>Behält die größte Hülle jedes ausgewählten Teils und verwirft die Krümel.</translation>
    </message>
    <message>
        <source>Drop all shells but the largest</source>
        <comment>statustip</comment>
        <translation>Alle Hüllen außer der größten verwerfen</translation>
    </message>
</context>
<context>
    <name>commands.Repair.Merge</name>
    <message>
        <source>Merge</source>
        <comment>title</comment>
        <translation>Zusammenfügen</translation>
    </message>
    <message>
        <source>Make one part of all selected parts.</source>
        <comment>tooltip</comment>
        <translation>Macht aus allen ausgewählten Teilen ein Teil.</translation>
    </message>
    <message>
        <source>Merge the selected parts into one</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile zu einem zusammenfügen</translation>
    </message>
</context>
<context>
    <name>commands.Repair.Orient</name>
    <message>
        <source>Orient</source>
        <comment>title</comment>
        <translation>Orientieren</translation>
    </message>
    <message>
        <source>Make all triangles agree about the outside.</source>
        <comment>tooltip</comment>
        <translation>Lässt alle Dreiecke über außen und innen übereinstimmen.</translation>
    </message>
    <message>
        <source>Make triangles look outwards</source>
        <comment>statustip</comment>
        <translation>Dreiecke nach außen wenden</translation>
    </message>
</context>
<context>
    <name>commands.Repair.Split</name>
    <message>
        <source>Split</source>
        <comment>title</comment>
        <translation>Zerlegen</translation>
    </message>
    <message>
        <source>Make a part of its own of each separate shell of the selected parts.</source>
        <comment>tooltip</comment>
        <translation>Macht aus jeder getrennten Hülle der ausgewählten Teile ein eigenes Teil.</translation>
    </message>
    <message>
        <source>Split into shells</source>
        <comment>statustip</comment>
        <translation>In Hüllen zerlegen</translation>
    </message>
</context>
<context>
    <name>commands.Scale.By</name>
    <message>
        <source>Scale By</source>
        <comment>title</comment>
        <translation>Skalieren um</translation>
    </message>
    <message>
        <source>Scale the selected parts by factors, or to given sizes.</source>
        <comment>tooltip</comment>
        <translation>Skaliert die ausgewählten Teile um Faktoren oder auf gegebene Größen.</translation>
    </message>
    <message>
        <source>Scale by factors or to sizes</source>
        <comment>statustip</comment>
        <translation>Um Faktoren oder auf Größen skalieren</translation>
    </message>
</context>
<context>
    <name>commands.Scale.Double</name>
    <message>
        <source>Double</source>
        <comment>title</comment>
        <translation>Verdoppeln</translation>
    </message>
    <message>
        <source>Make the selected parts twice as large.</source>
        <comment>tooltip</comment>
        <translation>Macht die ausgewählten Teile doppelt so groß.</translation>
    </message>
    <message>
        <source>Double the size</source>
        <comment>statustip</comment>
        <translation>Die Größe verdoppeln</translation>
    </message>
</context>
<context>
    <name>commands.Scale.Down</name>
    <message>
        <source>Smaller</source>
        <comment>title</comment>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Make the selected parts 10 percent smaller.</source>
        <comment>tooltip</comment>
        <translation>Verkleinert die ausgewählten Teile um 10 Prozent.</translation>
    </message>
    <message>
        <source>Make 10 percent smaller</source>
        <comment>statustip</comment>
        <translation>Um 10 Prozent verkleinern</translation>
    </message>
</context>
<context>
    <name>commands.Scale.Half</name>
    <message>
        <source>Halve</source>
        <comment>title</comment>
        <translation>Halbieren</translation>
    </message>
    <message>
        <source>Make the selected parts half as large.</source>
        <comment>tooltip</comment>
        <translation>Macht die ausgewählten Teile halb so groß.</translation>
    </message>
    <message>
        <source>Halve the size</source>
        <comment>statustip</comment>
        <translation>Die Größe halbieren</translation>
    </message>
</context>
<context>
    <name>commands.Scale.InchToMm</name>
    <message>
        <source>Inch to mm</source>
        <comment>title</comment>
        <translation>Zoll in mm</translation>
    </message>
    <message>
        <source>Scale parts up by 25.4 that were drawn in inches.</source>
        <comment>tooltip</comment>
        <translation>Vergrößert Teile, die in Zoll gezeichnet wurden, um 25,4.</translation>
    </message>
    <message>
        <source>Read the sizes as inches</source>
        <comment>statustip</comment>
        <translation>Die Größen als Zoll lesen</translation>
    </message>
</context>
<context>
    <name>commands.Scale.MmToInch</name>
    <message>
        <source>mm to Inch</source>
        <comment>title</comment>
        <translation>mm in Zoll</translation>
    </message>
    <message>
        <source>Scale parts down by 25.4 that were taken for inches.</source>
        <comment>tooltip</comment>
        <translation>Verkleinert Teile, die für Zoll gehalten wurden, um 25,4.</translation>
    </message>
    <message>
        <source>Take the sizes back from inches</source>
        <comment>statustip</comment>
        <translation>Die Größen von Zoll zurücknehmen</translation>
    </message>
</context>
<context>
    <name>commands.Scale.Reset</name>
    <message>
        <source>Reset Scale</source>
        <comment>title</comment>
        <translation>Skalierung zurücksetzen</translation>
    </message>
    <message>
        <source>Take back every scale of the selected parts; turn and place stay.</source>
        <comment>tooltip</comment>
        <translation>Nimmt jede Skalierung der ausgewählten Teile zurück; Drehung und Ort bleiben.</translation>
    </message>
    <message>
        <source>Undo all scaling</source>
        <comment>statustip</comment>
        <translation>Alle Skalierungen zurücknehmen</translation>
    </message>
</context>
<context>
    <name>commands.Scale.ToFit</name>
    <message>
        <source>Fill the Plate</source>
        <comment>title</comment>
        <translation>Bauraum ausfüllen</translation>
    </message>
    <message>
        <source>Make the selected parts, together, as large as the build volume allows.</source>
        <comment>tooltip</comment>
        <translation>Macht die ausgewählten Teile gemeinsam so groß, wie es der Bauraum erlaubt.</translation>
    </message>
    <message>
        <source>Scale to fill the build volume</source>
        <comment>statustip</comment>
        <translation>Bis zum Ausfüllen des Bauraums skalieren</translation>
    </message>
</context>
<context>
    <name>commands.Scale.Up</name>
    <message>
        <source>Larger</source>
        <comment>title</comment>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Make the selected parts 10 percent larger.</source>
        <comment>tooltip</comment>
        <translation>Vergrößert die ausgewählten Teile um 10 Prozent.</translation>
    </message>
    <message>
        <source>Make 10 percent larger</source>
        <comment>statustip</comment>
        <translation>Um 10 Prozent vergrößern</translation>
    </message>
</context>
<context>
    <name>commands.Section.Backward</name>
    <message>
        <source>Section Backward</source>
        <comment>title</comment>
        <translation>Schnitt zurück</translation>
    </message>
    <message>
        <source>Move the section plane back by one step of the options.</source>
        <comment>tooltip</comment>
        <translation>Schiebt die Schnittebene um eine Schrittweite der Optionen zurück.</translation>
    </message>
    <message>
        <source>Move the section backward</source>
        <comment>statustip</comment>
        <translation>Den Schnitt zurückschieben</translation>
    </message>
</context>
<context>
    <name>commands.Section.Center</name>
    <message>
        <source>Section to Middle</source>
        <comment>title</comment>
        <translation>Schnitt in die Mitte</translation>
    </message>
    <message>
        <source>Put the section plane in the middle of the selected parts, or of all.</source>
        <comment>tooltip</comment>
        <translation>Legt die Schnittebene in die Mitte der ausgewählten oder aller Teile.</translation>
    </message>
    <message>
        <source>Put the section in the middle</source>
        <comment>statustip</comment>
        <translation>Den Schnitt in die Mitte legen</translation>
    </message>
</context>
<context>
    <name>commands.Section.Flip</name>
    <message>
        <source>Other Side</source>
        <comment>title</comment>
        <translation>Andere Seite</translation>
    </message>
    <message>
        <source>Show the other side of the section.</source>
        <comment>tooltip</comment>
        <translation>Zeigt die andere Seite des Schnitts.</translation>
    </message>
    <message>
        <source>Show the other side of the section</source>
        <comment>statustip</comment>
        <translation>Die andere Seite des Schnitts zeigen</translation>
    </message>
</context>
<context>
    <name>commands.Section.Forward</name>
    <message>
        <source>Section Forward</source>
        <comment>title</comment>
        <translation>Schnitt vor</translation>
    </message>
    <message>
        <source>Move the section plane by one step of the options.</source>
        <comment>tooltip</comment>
        <translation>Schiebt die Schnittebene um eine Schrittweite der Optionen vor.</translation>
    </message>
    <message>
        <source>Move the section forward</source>
        <comment>statustip</comment>
        <translation>Den Schnitt vorschieben</translation>
    </message>
</context>
<context>
    <name>commands.Section.On</name>
    <message>
        <source>Section</source>
        <comment>title</comment>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Cut the view open at a plane.</source>
        <comment>tooltip</comment>
        <translation>Schneidet die Ansicht an einer Ebene auf.</translation>
    </message>
    <message>
        <source>Cut the view open</source>
        <comment>statustip</comment>
        <translation>Die Ansicht aufschneiden</translation>
    </message>
</context>
<context>
    <name>commands.Section.X</name>
    <message>
        <source>Section X</source>
        <comment>title</comment>
        <translation>Schnitt X</translation>
    </message>
    <message>
        <source>Let the section plane stand across the x axis.</source>
        <comment>tooltip</comment>
        <translation>Stellt die Schnittebene quer zur x-Achse.</translation>
    </message>
    <message>
        <source>Section across x</source>
        <comment>statustip</comment>
        <translation>Schnitt quer zu x</translation>
    </message>
</context>
<context>
    <name>commands.Section.Y</name>
    <message>
        <source>Section Y</source>
        <comment>title</comment>
        <translation>Schnitt Y</translation>
    </message>
    <message>
        <source>Let the section plane stand across the y axis.</source>
        <comment>tooltip</comment>
        <translation>Stellt die Schnittebene quer zur y-Achse.</translation>
    </message>
    <message>
        <source>Section across y</source>
        <comment>statustip</comment>
        <translation>Schnitt quer zu y</translation>
    </message>
</context>
<context>
    <name>commands.Section.Z</name>
    <message>
        <source>Section Z</source>
        <comment>title</comment>
        <translation>Schnitt Z</translation>
    </message>
    <message>
        <source>Let the section plane lie level.</source>
        <comment>tooltip</comment>
        <translation>Legt die Schnittebene waagerecht.</translation>
    </message>
    <message>
        <source>Level section</source>
        <comment>statustip</comment>
        <translation>Waagerechter Schnitt</translation>
    </message>
</context>
<context>
    <name>commands.Select.All</name>
    <message>
        <source>Select All</source>
        <comment>title</comment>
        <translation>Alles auswählen</translation>
    </message>
    <message>
        <source>Select all visible parts.</source>
        <comment>tooltip</comment>
        <translation>Wählt alle sichtbaren Teile aus.</translation>
    </message>
    <message>
        <source>Select all visible parts</source>
        <comment>statustip</comment>
        <translation>Alle sichtbaren Teile auswählen</translation>
    </message>
</context>
<context>
    <name>commands.Select.Faulty</name>
    <message>
        <source>Select Faulty</source>
        <comment>title</comment>
        <translation>Fehlerhafte auswählen</translation>
    </message>
    <message>
        <source>Select the parts whose surface is not closed.</source>
        <comment>tooltip</comment>
        <translation>Wählt die Teile aus, deren Oberfläche nicht geschlossen ist.</translation>
    </message>
    <message>
        <source>Select parts that need repair</source>
        <comment>statustip</comment>
        <translation>Teile auswählen, die repariert werden müssen</translation>
    </message>
</context>
<context>
    <name>commands.Select.Hide</name>
    <message>
        <source>Hide</source>
        <comment>title</comment>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Hide the selected parts.</source>
        <comment>tooltip</comment>
        <translation>Blendet die ausgewählten Teile aus.</translation>
    </message>
    <message>
        <source>Hide the selected parts</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Select.Invert</name>
    <message>
        <source>Invert Selection</source>
        <comment>title</comment>
        <translation>Auswahl umkehren</translation>
    </message>
    <message>
        <source>Select the visible parts that are not selected, and no others.</source>
        <comment>tooltip</comment>
        <translation>Wählt genau die sichtbaren Teile aus, die nicht ausgewählt sind.</translation>
    </message>
    <message>
        <source>Invert the selection</source>
        <comment>statustip</comment>
        <translation>Die Auswahl umkehren</translation>
    </message>
</context>
<context>
    <name>commands.Select.Isolate</name>
    <message>
        <source>Show Only</source>
        <comment>title</comment>
        <translation>Nur diese zeigen</translation>
    </message>
    <message>
        <source>Hide all parts but the selected ones.</source>
        <comment>tooltip</comment>
        <translation>Blendet alle Teile außer den ausgewählten aus.</translation>
    </message>
    <message>
        <source>Hide all other parts</source>
        <comment>statustip</comment>
        <translation>Alle anderen Teile ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Select.Lock</name>
    <message>
        <source>Lock</source>
        <comment>title</comment>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Protect the selected parts against every change.</source>
        <comment>tooltip</comment>
        <translation>Schützt die ausgewählten Teile vor jeder Änderung.</translation>
    </message>
    <message>
        <source>Lock the selected parts</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile sperren</translation>
    </message>
</context>
<context>
    <name>commands.Select.Next</name>
    <message>
        <source>Next Part</source>
        <comment>title</comment>
        <translation>Nächstes Teil</translation>
    </message>
    <message>
        <source>Select the next visible part.</source>
        <comment>tooltip</comment>
        <translation>Wählt das nächste sichtbare Teil aus.</translation>
    </message>
    <message>
        <source>Select the next part</source>
        <comment>statustip</comment>
        <translation>Das nächste Teil auswählen</translation>
    </message>
</context>
<context>
    <name>commands.Select.None</name>
    <message>
        <source>Select None</source>
        <comment>title</comment>
        <translation>Auswahl aufheben</translation>
    </message>
    <message>
        <source>Clear the selection.</source>
        <comment>tooltip</comment>
        <translation>Hebt die Auswahl auf.</translation>
    </message>
    <message>
        <source>Clear the selection</source>
        <comment>statustip</comment>
        <translation>Die Auswahl aufheben</translation>
    </message>
</context>
<context>
    <name>commands.Select.Outside</name>
    <message>
        <source>Select Outside</source>
        <comment>title</comment>
        <translation>Überstehende auswählen</translation>
    </message>
    <message>
        <source>Select the parts that reach out of the build volume.</source>
        <comment>tooltip</comment>
        <translation>Wählt die Teile aus, die aus dem Bauraum ragen.</translation>
    </message>
    <message>
        <source>Select parts outside the build volume</source>
        <comment>statustip</comment>
        <translation>Teile außerhalb des Bauraums auswählen</translation>
    </message>
</context>
<context>
    <name>commands.Select.Previous</name>
    <message>
        <source>Previous Part</source>
        <comment>title</comment>
        <translation>Voriges Teil</translation>
    </message>
    <message>
        <source>Select the previous visible part.</source>
        <comment>tooltip</comment>
        <translation>Wählt das vorige sichtbare Teil aus.</translation>
    </message>
    <message>
        <source>Select the previous part</source>
        <comment>statustip</comment>
        <translation>Das vorige Teil auswählen</translation>
    </message>
</context>
<context>
    <name>commands.Select.ShowAll</name>
    <message>
        <source>Show All</source>
        <comment>title</comment>
        <translation>Alle einblenden</translation>
    </message>
    <message>
        <source>Show all hidden parts again.</source>
        <comment>tooltip</comment>
        <translation>Blendet alle ausgeblendeten Teile wieder ein.</translation>
    </message>
    <message>
        <source>Show all parts</source>
        <comment>statustip</comment>
        <translation>Alle Teile einblenden</translation>
    </message>
</context>
<context>
    <name>commands.Select.Similar</name>
    <message>
        <source>Select Copies</source>
        <comment>title</comment>
        <translation>Kopien auswählen</translation>
    </message>
    <message>
        <source>Select all copies of the selected parts.</source>
        <comment>tooltip</comment>
        <translation>Wählt alle Kopien der ausgewählten Teile aus.</translation>
    </message>
    <message>
        <source>Select parts of the same shape</source>
        <comment>statustip</comment>
        <translation>Teile gleicher Form auswählen</translation>
    </message>
</context>
<context>
    <name>commands.Select.Unlock</name>
    <message>
        <source>Unlock All</source>
        <comment>title</comment>
        <translation>Alle entsperren</translation>
    </message>
    <message>
        <source>Lift the lock of all parts.</source>
        <comment>tooltip</comment>
        <translation>Hebt die Sperre aller Teile auf.</translation>
    </message>
    <message>
        <source>Unlock all parts</source>
        <comment>statustip</comment>
        <translation>Alle Teile entsperren</translation>
    </message>
</context>
<context>
    <name>commands.Show.Axes</name>
    <message>
        <source>Axes</source>
        <comment>title</comment>
        <translation>Achsen</translation>
    </message>
    <message>
        <source>Show the axes at the origin of the plate.</source>
        <comment>tooltip</comment>
        <translation>Zeigt die Achsen im Ursprung der Platte.</translation>
    </message>
    <message>
        <source>Show or hide the axes</source>
        <comment>statustip</comment>
        <translation>Die Achsen ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Show.Bounds</name>
    <message>
        <source>Part Boxes</source>
        <comment>title</comment>
        <translation>Quader der Teile</translation>
    </message>
    <message>
        <source>Show the box about each selected part, with its sizes.</source>
        <comment>tooltip</comment>
        <translation>Zeigt um jedes ausgewählte Teil seinen Quader mit den Maßen.</translation>
    </message>
    <message>
        <source>Show or hide boxes of selected parts</source>
        <comment>statustip</comment>
        <translation>Die Quader der ausgewählten Teile ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Show.Grid</name>
    <message>
        <source>Grid</source>
        <comment>title</comment>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Show the grid of the plate.</source>
        <comment>tooltip</comment>
        <translation>Zeigt das Raster der Platte.</translation>
    </message>
    <message>
        <source>Show or hide the grid</source>
        <comment>statustip</comment>
        <translation>Das Raster ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Show.Labels</name>
    <message>
        <source>Names</source>
        <comment>title</comment>
        <translation>Namen</translation>
    </message>
    <message>
        <source>Show the names of parts beside them.</source>
        <comment>tooltip</comment>
        <translation>Zeigt neben den Teilen ihre Namen.</translation>
    </message>
    <message>
        <source>Show or hide part names</source>
        <comment>statustip</comment>
        <translation>Die Namen der Teile ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Show.Plate</name>
    <message>
        <source>Plate</source>
        <comment>title</comment>
        <translation>Platte</translation>
    </message>
    <message>
        <source>Show the build plate.</source>
        <comment>tooltip</comment>
        <translation>Zeigt die Bauplatte.</translation>
    </message>
    <message>
        <source>Show or hide the plate</source>
        <comment>statustip</comment>
        <translation>Die Platte ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Show.Shadows</name>
    <message>
        <source>Shadows</source>
        <comment>title</comment>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Let parts throw a soft shadow on the plate.</source>
        <comment>tooltip</comment>
        <translation>Lässt Teile einen weichen Schatten auf die Platte werfen.</translation>
    </message>
    <message>
        <source>Show or hide shadows</source>
        <comment>statustip</comment>
        <translation>Die Schatten ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Show.ViewCube</name>
    <message>
        <source>View Cube</source>
        <comment>title</comment>
        <translation>Ansichtswürfel</translation>
    </message>
    <message>
        <source>Show the cube by which the view is turned.</source>
        <comment>tooltip</comment>
        <translation>Zeigt den Würfel, mit dem sich die Ansicht drehen lässt.</translation>
    </message>
    <message>
        <source>Show or hide the view cube</source>
        <comment>statustip</comment>
        <translation>Den Ansichtswürfel ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Show.Volume</name>
    <message>
        <source>Build Volume</source>
        <comment>title</comment>
        <translation>Bauraum</translation>
    </message>
    <message>
        <source>Show the edges of the build volume.</source>
        <comment>tooltip</comment>
        <translation>Zeigt die Kanten des Bauraums.</translation>
    </message>
    <message>
        <source>Show or hide the build volume</source>
        <comment>statustip</comment>
        <translation>Den Bauraum ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Slice.CopyLayer</name>
    <message>
        <source>Copy Layer</source>
        <comment>title</comment>
        <translation>Schicht kopieren</translation>
    </message>
    <message>
        <source>Copy the present layer as an SVG drawing to the clipboard.</source>
        <comment>tooltip</comment>
        <translation>Kopiert die aktuelle Schicht als SVG-Zeichnung in die Zwischenablage.</translation>
    </message>
    <message>
        <source>Copy the present layer as SVG</source>
        <comment>statustip</comment>
        <translation>Die aktuelle Schicht als SVG kopieren</translation>
    </message>
</context>
<context>
    <name>commands.Slice.Down</name>
    <message>
        <source>Layer Down</source>
        <comment>title</comment>
        <translation>Schicht tiefer</translation>
    </message>
    <message>
        <source>Go one layer down.</source>
        <comment>tooltip</comment>
        <translation>Geht eine Schicht nach unten.</translation>
    </message>
    <message>
        <source>One layer down</source>
        <comment>statustip</comment>
        <translation>Eine Schicht nach unten</translation>
    </message>
</context>
<context>
    <name>commands.Slice.Down10</name>
    <message>
        <source>Ten Down</source>
        <comment>title</comment>
        <translation>Zehn tiefer</translation>
    </message>
    <message>
        <source>Go ten layers down.</source>
        <comment>tooltip</comment>
        <translation>Geht zehn Schichten nach unten.</translation>
    </message>
    <message>
        <source>Ten layers down</source>
        <comment>statustip</comment>
        <translation>Zehn Schichten nach unten</translation>
    </message>
</context>
<context>
    <name>commands.Slice.ExportAll</name>
    <message>
        <source>Export All Layers</source>
        <comment>title</comment>
        <translation>Alle Schichten exportieren</translation>
    </message>
    <message>
        <source>Export every layer as an SVG drawing into a folder.</source>
        <comment>tooltip</comment>
        <translation>Exportiert jede Schicht als SVG-Zeichnung in einen Ordner.</translation>
    </message>
    <message>
        <source>Export all layers as SVG</source>
        <comment>statustip</comment>
        <translation>Alle Schichten als SVG exportieren</translation>
    </message>
</context>
<context>
    <name>commands.Slice.ExportLayer</name>
    <message>
        <source>Export Layer</source>
        <comment>title</comment>
        <translation>Schicht exportieren</translation>
    </message>
    <message>
        <source>Export the present layer as an SVG drawing in true size.</source>
        <comment>tooltip</comment>
        <translation>Exportiert die aktuelle Schicht als SVG-Zeichnung in wahrer Größe.</translation>
    </message>
    <message>
        <source>Export the present layer as SVG</source>
        <comment>statustip</comment>
        <translation>Die aktuelle Schicht als SVG exportieren</translation>
    </message>
</context>
<context>
    <name>commands.Slice.Fault</name>
    <message>
        <source>Next Fault</source>
        <comment>title</comment>
        <translation>Nächster Fehler</translation>
    </message>
    <message>
        <source>Go to the next layer whose contours do not close.</source>
        <comment>tooltip</comment>
        <translation>Geht zur nächsten Schicht, deren Konturen sich nicht schließen.</translation>
    </message>
    <message>
        <source>Go to the next layer with open contours</source>
        <comment>statustip</comment>
        <translation>Zur nächsten Schicht mit offenen Konturen</translation>
    </message>
</context>
<context>
    <name>commands.Slice.Fill</name>
    <message>
        <source>Fill Layer</source>
        <comment>title</comment>
        <translation>Schicht füllen</translation>
    </message>
    <message>
        <source>Fill the present layer with colour.</source>
        <comment>tooltip</comment>
        <translation>Füllt die aktuelle Schicht mit Farbe.</translation>
    </message>
    <message>
        <source>Fill the present layer</source>
        <comment>statustip</comment>
        <translation>Die aktuelle Schicht füllen</translation>
    </message>
</context>
<context>
    <name>commands.Slice.First</name>
    <message>
        <source>First Layer</source>
        <comment>title</comment>
        <translation>Erste Schicht</translation>
    </message>
    <message>
        <source>Go to the lowest layer.</source>
        <comment>tooltip</comment>
        <translation>Geht zur untersten Schicht.</translation>
    </message>
    <message>
        <source>Go to the first layer</source>
        <comment>statustip</comment>
        <translation>Zur ersten Schicht</translation>
    </message>
</context>
<context>
    <name>commands.Slice.GoTo</name>
    <message>
        <source>Go to Layer</source>
        <comment>title</comment>
        <translation>Gehe zu Schicht</translation>
    </message>
    <message>
        <source>Go to a layer by its number.</source>
        <comment>tooltip</comment>
        <translation>Geht zu einer Schicht mit gegebener Nummer.</translation>
    </message>
    <message>
        <source>Go to a layer by number</source>
        <comment>statustip</comment>
        <translation>Zu einer Schicht mit gegebener Nummer</translation>
    </message>
</context>
<context>
    <name>commands.Slice.Hatch</name>
    <message>
        <source>Hatch Layer</source>
        <comment>title</comment>
        <translation>Schicht schraffieren</translation>
    </message>
    <message>
        <source>Fill the present layer with the lines of its infill.</source>
        <comment>tooltip</comment>
        <translation>Füllt die aktuelle Schicht mit den Linien ihrer Füllung.</translation>
    </message>
    <message>
        <source>Hatch the present layer</source>
        <comment>statustip</comment>
        <translation>Die aktuelle Schicht schraffieren</translation>
    </message>
</context>
<context>
    <name>commands.Slice.HatchCross</name>
    <message>
        <source>Cross Hatch</source>
        <comment>title</comment>
        <translation>Kreuzschraffur</translation>
    </message>
    <message>
        <source>Turn the infill by 90 degrees from layer to layer.</source>
        <comment>tooltip</comment>
        <translation>Dreht die Füllung von Schicht zu Schicht um 90 Grad.</translation>
    </message>
    <message>
        <source>Cross the hatch from layer to layer</source>
        <comment>statustip</comment>
        <translation>Die Schraffur von Schicht zu Schicht kreuzen</translation>
    </message>
</context>
<context>
    <name>commands.Slice.HatchDenser</name>
    <message>
        <source>Denser Hatch</source>
        <comment>title</comment>
        <translation>Dichter schraffieren</translation>
    </message>
    <message>
        <source>Bring the lines of the infill nearer together.</source>
        <comment>tooltip</comment>
        <translation>Rückt die Linien der Füllung enger zusammen.</translation>
    </message>
    <message>
        <source>Denser hatch lines</source>
        <comment>statustip</comment>
        <translation>Schraffur dichter</translation>
    </message>
</context>
<context>
    <name>commands.Slice.HatchSparser</name>
    <message>
        <source>Sparser Hatch</source>
        <comment>title</comment>
        <translation>Weiter schraffieren</translation>
    </message>
    <message>
        <source>Bring the lines of the infill farther apart.</source>
        <comment>tooltip</comment>
        <translation>Rückt die Linien der Füllung weiter auseinander.</translation>
    </message>
    <message>
        <source>Sparser hatch lines</source>
        <comment>statustip</comment>
        <translation>Schraffur weiter</translation>
    </message>
</context>
<context>
    <name>commands.Slice.HatchTurn</name>
    <message>
        <source>Turn Hatch</source>
        <comment>title</comment>
        <translation>Schraffur drehen</translation>
    </message>
    <message>
        <source>Turn the infill by 15 degrees.</source>
        <comment>tooltip</comment>
        <translation>Dreht die Füllung um 15 Grad.</translation>
    </message>
    <message>
        <source>Turn the hatch lines</source>
        <comment>statustip</comment>
        <translation>Die Schraffur drehen</translation>
    </message>
</context>
<context>
    <name>commands.Slice.Last</name>
    <message>
        <source>Last Layer</source>
        <comment>title</comment>
        <translation>Letzte Schicht</translation>
    </message>
    <message>
        <source>Go to the topmost layer.</source>
        <comment>tooltip</comment>
        <translation>Geht zur obersten Schicht.</translation>
    </message>
    <message>
        <source>Go to the last layer</source>
        <comment>statustip</comment>
        <translation>Zur letzten Schicht</translation>
    </message>
</context>
<context>
    <name>commands.Slice.Play</name>
    <message>
        <source>Play</source>
        <comment>title</comment>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Run through the layers from the present one to the top.</source>
        <comment>tooltip</comment>
        <translation>Läuft durch die Schichten von der aktuellen bis zur obersten.</translation>
    </message>
    <message>
        <source>Run through the layers</source>
        <comment>statustip</comment>
        <translation>Durch die Schichten laufen</translation>
    </message>
</context>
<context>
    <name>commands.Slice.Show</name>
    <message>
        <source>Show Layers</source>
        <comment>title</comment>
        <translation>Schichten zeigen</translation>
    </message>
    <message>
        <source>Show the parts as layers up to the present one.</source>
        <comment>tooltip</comment>
        <translation>Zeigt die Teile als Schichten bis zur aktuellen.</translation>
    </message>
    <message>
        <source>Show layers in place of surfaces</source>
        <comment>statustip</comment>
        <translation>Schichten statt Oberflächen zeigen</translation>
    </message>
</context>
<context>
    <name>commands.Slice.Stack</name>
    <message>
        <source>Show Stack</source>
        <comment>title</comment>
        <translation>Stapel zeigen</translation>
    </message>
    <message>
        <source>Show the layers below the present one as well.</source>
        <comment>tooltip</comment>
        <translation>Zeigt auch die Schichten unter der aktuellen.</translation>
    </message>
    <message>
        <source>Show the layers below</source>
        <comment>statustip</comment>
        <translation>Die Schichten darunter zeigen</translation>
    </message>
</context>
<context>
    <name>commands.Slice.Thicker</name>
    <message>
        <source>Thicker Layers</source>
        <comment>title</comment>
        <translation>Dickere Schichten</translation>
    </message>
    <message>
        <source>Make the layers thicker by 0.05 mm.</source>
        <comment>tooltip</comment>
        <translation>Macht die Schichten um 0,05 mm dicker.</translation>
    </message>
    <message>
        <source>Thicker layers</source>
        <comment>statustip</comment>
        <translation>Dickere Schichten</translation>
    </message>
</context>
<context>
    <name>commands.Slice.Thickness</name>
    <message>
        <source>Layer Thickness</source>
        <comment>title</comment>
        <translation>Schichtdicke</translation>
    </message>
    <message>
        <source>Choose the thickness of the layers.</source>
        <comment>tooltip</comment>
        <translation>Legt die Dicke der Schichten fest.</translation>
    </message>
    <message>
        <source>Choose the layer thickness</source>
        <comment>statustip</comment>
        <translation>Die Schichtdicke festlegen</translation>
    </message>
</context>
<context>
    <name>commands.Slice.Thinner</name>
    <message>
        <source>Thinner Layers</source>
        <comment>title</comment>
        <translation>Dünnere Schichten</translation>
    </message>
    <message>
        <source>Make the layers thinner by 0.05 mm.</source>
        <comment>tooltip</comment>
        <translation>Macht die Schichten um 0,05 mm dünner.</translation>
    </message>
    <message>
        <source>Thinner layers</source>
        <comment>statustip</comment>
        <translation>Dünnere Schichten</translation>
    </message>
</context>
<context>
    <name>commands.Slice.Up</name>
    <message>
        <source>Layer Up</source>
        <comment>title</comment>
        <translation>Schicht höher</translation>
    </message>
    <message>
        <source>Go one layer up.</source>
        <comment>tooltip</comment>
        <translation>Geht eine Schicht nach oben.</translation>
    </message>
    <message>
        <source>One layer up</source>
        <comment>statustip</comment>
        <translation>Eine Schicht nach oben</translation>
    </message>
</context>
<context>
    <name>commands.Slice.Up10</name>
    <message>
        <source>Ten Up</source>
        <comment>title</comment>
        <translation>Zehn höher</translation>
    </message>
    <message>
        <source>Go ten layers up.</source>
        <comment>tooltip</comment>
        <translation>Geht zehn Schichten nach oben.</translation>
    </message>
    <message>
        <source>Ten layers up</source>
        <comment>statustip</comment>
        <translation>Zehn Schichten nach oben</translation>
    </message>
</context>
<context>
    <name>commands.Turn.By</name>
    <message>
        <source>Turn By</source>
        <comment>title</comment>
        <translation>Drehen um</translation>
    </message>
    <message>
        <source>Turn the selected parts by given angles about the axes.</source>
        <comment>tooltip</comment>
        <translation>Dreht die ausgewählten Teile um gegebene Winkel um die Achsen.</translation>
    </message>
    <message>
        <source>Turn by given angles</source>
        <comment>statustip</comment>
        <translation>Um gegebene Winkel drehen</translation>
    </message>
</context>
<context>
    <name>commands.Turn.LayFlat</name>
    <message>
        <source>Lay Flat</source>
        <comment>title</comment>
        <translation>Flach legen</translation>
    </message>
    <message>
        <source>Turn each selected part onto its largest flat side.</source>
        <comment>tooltip</comment>
        <translation>Dreht jedes ausgewählte Teil auf seine größte ebene Seite.</translation>
    </message>
    <message>
        <source>Lay the selected parts on their largest flat side</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile auf ihre größte ebene Seite legen</translation>
    </message>
</context>
<context>
    <name>commands.Turn.Over</name>
    <message>
        <source>Turn Over</source>
        <comment>title</comment>
        <translation>Umdrehen</translation>
    </message>
    <message>
        <source>Turn the selected parts upside down.</source>
        <comment>tooltip</comment>
        <translation>Stellt die ausgewählten Teile auf den Kopf.</translation>
    </message>
    <message>
        <source>Turn the selected parts upside down</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile auf den Kopf stellen</translation>
    </message>
</context>
<context>
    <name>commands.Turn.Reset</name>
    <message>
        <source>Reset Turn</source>
        <comment>title</comment>
        <translation>Drehung zurücksetzen</translation>
    </message>
    <message>
        <source>Take back every turn of the selected parts; size and place stay.</source>
        <comment>tooltip</comment>
        <translation>Nimmt jede Drehung der ausgewählten Teile zurück; Größe und Ort bleiben.</translation>
    </message>
    <message>
        <source>Undo all turns</source>
        <comment>statustip</comment>
        <translation>Alle Drehungen zurücknehmen</translation>
    </message>
</context>
<context>
    <name>commands.Turn.XMinus</name>
    <message>
        <source>Turn Back About X</source>
        <comment>title</comment>
        <translation>Um X zurückdrehen</translation>
    </message>
    <message>
        <source>Turn the selected parts by -90 degrees about the x axis.</source>
        <comment>tooltip</comment>
        <translation>Dreht die ausgewählten Teile um -90 Grad um die x-Achse.</translation>
    </message>
    <message>
        <source>Turn by -90 degrees about x</source>
        <comment>statustip</comment>
        <translation>Um -90 Grad um x drehen</translation>
    </message>
</context>
<context>
    <name>commands.Turn.XPlus</name>
    <message>
        <source>Turn About X</source>
        <comment>title</comment>
        <translation>Um X drehen</translation>
    </message>
    <message>
        <source>Turn the selected parts by 90 degrees about the x axis.</source>
        <comment>tooltip</comment>
        <translation>Dreht die ausgewählten Teile um 90 Grad um die x-Achse.</translation>
    </message>
    <message>
        <source>Turn by 90 degrees about x</source>
        <comment>statustip</comment>
        <translation>Um 90 Grad um x drehen</translation>
    </message>
</context>
<context>
    <name>commands.Turn.YMinus</name>
    <message>
        <source>Turn Back About Y</source>
        <comment>title</comment>
        <translation>Um Y zurückdrehen</translation>
    </message>
    <message>
        <source>Turn the selected parts by -90 degrees about the y axis.</source>
        <comment>tooltip</comment>
        <translation>Dreht die ausgewählten Teile um -90 Grad um die y-Achse.</translation>
    </message>
    <message>
        <source>Turn by -90 degrees about y</source>
        <comment>statustip</comment>
        <translation>Um -90 Grad um y drehen</translation>
    </message>
</context>
<context>
    <name>commands.Turn.YPlus</name>
    <message>
        <source>Turn About Y</source>
        <comment>title</comment>
        <translation>Um Y drehen</translation>
    </message>
    <message>
        <source>Turn the selected parts by 90 degrees about the y axis.</source>
        <comment>tooltip</comment>
        <translation>Dreht die ausgewählten Teile um 90 Grad um die y-Achse.</translation>
    </message>
    <message>
        <source>Turn by 90 degrees about y</source>
        <comment>statustip</comment>
        <translation>Um 90 Grad um y drehen</translation>
    </message>
</context>
<context>
    <name>commands.Turn.ZMinus</name>
    <message>
        <source>Turn Right</source>
        <comment>title</comment>
        <translation>Nach rechts drehen</translation>
    </message>
    <message>
        <source>Turn the selected parts to the right by the angle of the options.</source>
        <comment>tooltip</comment>
        <translation>Dreht die ausgewählten Teile um den Winkel der Optionen nach rechts.</translation>
    </message>
    <message>
        <source>Turn to the right about z</source>
        <comment>statustip</comment>
        <translation>Um z nach rechts drehen</translation>
    </message>
</context>
<context>
    <name>commands.Turn.ZPlus</name>
    <message>
        <source>Turn Left</source>
        <comment>title</comment>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Turn the selected parts to the left by the angle of the options.</source>
        <comment>tooltip</comment>
        <translation>Dreht die ausgewählten Teile um den Winkel der Optionen nach links.</translation>
    </message>
    <message>
        <source>Turn to the left about z</source>
        <comment>statustip</comment>
        <translation>Um z nach links drehen</translation>
    </message>
</context>
<context>
    <name>commands.Units.Inch</name>
    <message>
        <source>Inches</source>
        <comment>title</comment>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Show and enter lengths in inches.</source>
        <comment>tooltip</comment>
        <translation>Zeigt und liest Längen in Zoll.</translation>
    </message>
    <message>
        <source>Lengths in inches</source>
        <comment>statustip</comment>
        <translation>Längen in Zoll</translation>
    </message>
</context>
<context>
    <name>commands.Units.Mm</name>
    <message>
        <source>Millimetres</source>
        <comment>title</comment>
        <translation>Millimeter</translation>
    </message>
    <message>
        <source>Show and enter lengths in millimetres.</source>
        <comment>tooltip</comment>
        <translation>Zeigt und liest Längen in Millimetern.</translation>
    </message>
    <message>
        <source>Lengths in millimetres</source>
        <comment>statustip</comment>
        <translation>Längen in Millimetern</translation>
    </message>
</context>
<context>
    <name>commands.View.Back</name>
    <message>
        <source>Back</source>
        <comment>title</comment>
        <translation>Hinten</translation>
    </message>
    <message>
        <source>Look from the back.</source>
        <comment>tooltip</comment>
        <translation>Blickt von hinten.</translation>
    </message>
    <message>
        <source>Look from the back</source>
        <comment>statustip</comment>
        <translation>Von hinten blicken</translation>
    </message>
</context>
<context>
    <name>commands.View.Bottom</name>
    <message>
        <source>Bottom</source>
        <comment>title</comment>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Look from below, through the plate.</source>
        <comment>tooltip</comment>
        <translation>Blickt von unten durch die Platte.</translation>
    </message>
    <message>
        <source>Look from below</source>
        <comment>statustip</comment>
        <translation>Von unten blicken</translation>
    </message>
</context>
<context>
    <name>commands.View.Front</name>
    <message>
        <source>Front</source>
        <comment>title</comment>
        <translation>Vorn</translation>
    </message>
    <message>
        <source>Look from the front.</source>
        <comment>tooltip</comment>
        <translation>Blickt von vorn.</translation>
    </message>
    <message>
        <source>Look from the front</source>
        <comment>statustip</comment>
        <translation>Von vorn blicken</translation>
    </message>
</context>
<context>
    <name>commands.View.Home</name>
    <message>
        <source>Home View</source>
        <comment>title</comment>
        <translation>Grundansicht</translation>
    </message>
    <message>
        <source>Look at the plate from the front right above.</source>
        <comment>tooltip</comment>
        <translation>Blickt von vorn rechts oben auf die Platte.</translation>
    </message>
    <message>
        <source>Look from the front right above</source>
        <comment>statustip</comment>
        <translation>Von vorn rechts oben blicken</translation>
    </message>
</context>
<context>
    <name>commands.View.Left</name>
    <message>
        <source>Left Side</source>
        <comment>title</comment>
        <translation>Linke Seite</translation>
    </message>
    <message>
        <source>Look from the left.</source>
        <comment>tooltip</comment>
        <translation>Blickt von links.</translation>
    </message>
    <message>
        <source>Look from the left</source>
        <comment>statustip</comment>
        <translation>Von links blicken</translation>
    </message>
</context>
<context>
    <name>commands.View.Perspective</name>
    <message>
        <source>Perspective</source>
        <comment>title</comment>
        <translation>Perspektive</translation>
    </message>
    <message>
        <source>Let far things look smaller; off, equal lengths look equal.</source>
        <comment>tooltip</comment>
        <translation>Lässt Fernes kleiner erscheinen; ohne sie sehen gleiche Längen gleich aus.</translation>
    </message>
    <message>
        <source>Switch perspective on or off</source>
        <comment>statustip</comment>
        <translation>Die Perspektive ein- oder ausschalten</translation>
    </message>
</context>
<context>
    <name>commands.View.Previous</name>
    <message>
        <source>Previous View</source>
        <comment>title</comment>
        <translation>Vorige Ansicht</translation>
    </message>
    <message>
        <source>Go back to the view before.</source>
        <comment>tooltip</comment>
        <translation>Geht zur vorigen Ansicht zurück.</translation>
    </message>
    <message>
        <source>Go back to the view before</source>
        <comment>statustip</comment>
        <translation>Zur vorigen Ansicht zurückgehen</translation>
    </message>
</context>
<context>
    <name>commands.View.QuickSearch</name>
    <message>
        <source>Quick Search</source>
        <comment>title</comment>
        <translation>Schnellsuche</translation>
    </message>
    <message>
        <source>Type part of a command&apos;s name to find and run it.</source>
        <comment>tooltip</comment>
        <translation>Findet einen Befehl über einen Teil seines Namens und führt ihn aus.</translation>
    </message>
    <message>
        <source>Find a command by its name</source>
        <comment>statustip</comment>
        <translation>Einen Befehl über seinen Namen finden</translation>
    </message>
</context>
<context>
    <name>commands.View.Right</name>
    <message>
        <source>Right Side</source>
        <comment>title</comment>
        <translation>Rechte Seite</translation>
    </message>
    <message>
        <source>Look from the right.</source>
        <comment>tooltip</comment>
        <translation>Blickt von rechts.</translation>
    </message>
    <message>
        <source>Look from the right</source>
        <comment>statustip</comment>
        <translation>Von rechts blicken</translation>
    </message>
</context>
<context>
    <name>commands.View.RotateDown</name>
    <message>
        <source>Orbit Down</source>
        <comment>title</comment>
        <translation>Herunter drehen</translation>
    </message>
    <message>
        <source>Turn the view down by 15 degrees.</source>
        <comment>tooltip</comment>
        <translation>Dreht die Ansicht um 15 Grad nach unten.</translation>
    </message>
    <message>
        <source>Turn the view down</source>
        <comment>statustip</comment>
        <translation>Die Ansicht nach unten drehen</translation>
    </message>
</context>
<context>
    <name>commands.View.RotateLeft</name>
    <message>
        <source>Orbit Left</source>
        <comment>title</comment>
        <translation>Links drehen</translation>
    </message>
    <message>
        <source>Turn the view to the left by 15 degrees.</source>
        <comment>tooltip</comment>
        <translation>Dreht die Ansicht um 15 Grad nach links.</translation>
    </message>
    <message>
        <source>Turn the view left</source>
        <comment>statustip</comment>
        <translation>Die Ansicht nach links drehen</translation>
    </message>
</context>
<context>
    <name>commands.View.RotateRight</name>
    <message>
        <source>Orbit Right</source>
        <comment>title</comment>
        <translation>Rechts drehen</translation>
    </message>
    <message>
        <source>Turn the view to the right by 15 degrees.</source>
        <comment>tooltip</comment>
        <translation>Dreht die Ansicht um 15 Grad nach rechts.</translation>
    </message>
    <message>
        <source>Turn the view right</source>
        <comment>statustip</comment>
        <translation>Die Ansicht nach rechts drehen</translation>
    </message>
</context>
<context>
    <name>commands.View.RotateUp</name>
    <message>
        <source>Orbit Up</source>
        <comment>title</comment>
        <translation>Hoch drehen</translation>
    </message>
    <message>
        <source>Turn the view up by 15 degrees.</source>
        <comment>tooltip</comment>
        <translation>Dreht die Ansicht um 15 Grad nach oben.</translation>
    </message>
    <message>
        <source>Turn the view up</source>
        <comment>statustip</comment>
        <translation>Die Ansicht nach oben drehen</translation>
    </message>
</context>
<context>
    <name>commands.View.Top</name>
    <message>
        <source>Top</source>
        <comment>title</comment>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Look from above.</source>
        <comment>tooltip</comment>
        <translation>Blickt von oben.</translation>
    </message>
    <message>
        <source>Look from above</source>
        <comment>statustip</comment>
        <translation>Von oben blicken</translation>
    </message>
</context>
<context>
    <name>commands.View.ZoomAll</name>
    <message>
        <source>Zoom to Parts</source>
        <comment>title</comment>
        <translation>Alle Teile</translation>
    </message>
    <message>
        <source>Show all parts as large as they fit.</source>
        <comment>tooltip</comment>
        <translation>Zeigt alle Teile so groß, wie sie hineinpassen.</translation>
    </message>
    <message>
        <source>Show all parts</source>
        <comment>statustip</comment>
        <translation>Alle Teile zeigen</translation>
    </message>
</context>
<context>
    <name>commands.View.ZoomIn</name>
    <message>
        <source>Zoom In</source>
        <comment>title</comment>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Come nearer.</source>
        <comment>tooltip</comment>
        <translation>Geht näher heran.</translation>
    </message>
    <message>
        <source>Come nearer</source>
        <comment>statustip</comment>
        <translation>Näher herangehen</translation>
    </message>
</context>
<context>
    <name>commands.View.ZoomOut</name>
    <message>
        <source>Zoom Out</source>
        <comment>title</comment>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Go farther away.</source>
        <comment>tooltip</comment>
        <translation>Geht weiter weg.</translation>
    </message>
    <message>
        <source>Go farther away</source>
        <comment>statustip</comment>
        <translation>Weiter weggehen</translation>
    </message>
</context>
<context>
    <name>commands.View.ZoomPlate</name>
    <message>
        <source>Zoom to Plate</source>
        <comment>title</comment>
        <translation>Ganze Platte</translation>
    </message>
    <message>
        <source>Show the whole build volume.</source>
        <comment>tooltip</comment>
        <translation>Zeigt den ganzen Bauraum.</translation>
    </message>
    <message>
        <source>Show the whole plate</source>
        <comment>statustip</comment>
        <translation>Die ganze Platte zeigen</translation>
    </message>
</context>
<context>
    <name>commands.View.ZoomSelection</name>
    <message>
        <source>Zoom to Selection</source>
        <comment>title</comment>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Show the selected parts as large as they fit.</source>
        <comment>tooltip</comment>
        <translation>Zeigt die ausgewählten Teile so groß, wie sie hineinpassen.</translation>
    </message>
    <message>
        <source>Show the selected parts</source>
        <comment>statustip</comment>
        <translation>Die ausgewählten Teile zeigen</translation>
    </message>
</context>
<context>
    <name>commands.Window.Dark</name>
    <message>
        <source>Dark Theme</source>
        <comment>title</comment>
        <translation>Dunkles Design</translation>
    </message>
    <message>
        <source>Use dark colours in the whole window.</source>
        <comment>tooltip</comment>
        <translation>Verwendet im ganzen Fenster dunkle Farben.</translation>
    </message>
    <message>
        <source>Switch the dark theme on or off</source>
        <comment>statustip</comment>
        <translation>Das dunkle Design ein- oder ausschalten</translation>
    </message>
</context>
<context>
    <name>commands.Window.Findings</name>
    <message>
        <source>Findings</source>
        <comment>title</comment>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Show or hide the panel with the findings of the check.</source>
        <comment>tooltip</comment>
        <translation>Blendet den Bereich mit den Befunden der Prüfung ein oder aus.</translation>
    </message>
    <message>
        <source>Show or hide the findings</source>
        <comment>statustip</comment>
        <translation>Die Befunde ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Window.FullScreen</name>
    <message>
        <source>Full Screen</source>
        <comment>title</comment>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Let the window fill the screen.</source>
        <comment>tooltip</comment>
        <translation>Lässt das Fenster den ganzen Bildschirm füllen.</translation>
    </message>
    <message>
        <source>Switch full screen on or off</source>
        <comment>statustip</comment>
        <translation>Das Vollbild ein- oder ausschalten</translation>
    </message>
</context>
<context>
    <name>commands.Window.History</name>
    <message>
        <source>History</source>
        <comment>title</comment>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Show or hide the panel with the steps that can be undone.</source>
        <comment>tooltip</comment>
        <translation>Blendet den Bereich mit den Schritten ein oder aus, die sich rückgängig machen lassen.</translation>
    </message>
    <message>
        <source>Show or hide the history</source>
        <comment>statustip</comment>
        <translation>Den Verlauf ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Window.Layers</name>
    <message>
        <source>Layers</source>
        <comment>title</comment>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>Show or hide the panel with the layers.</source>
        <comment>tooltip</comment>
        <translation>Blendet den Bereich mit den Schichten ein oder aus.</translation>
    </message>
    <message>
        <source>Show or hide the layers</source>
        <comment>statustip</comment>
        <translation>Die Schichten ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Window.Legend</name>
    <message>
        <source>Colours</source>
        <comment>title</comment>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Show or hide the panel that says what the colours of the parts mean.</source>
        <comment>tooltip</comment>
        <translation>Blendet den Bereich ein oder aus, der sagt, was die Farben der Teile bedeuten.</translation>
    </message>
    <message>
        <source>Show or hide the legend of colours</source>
        <comment>statustip</comment>
        <translation>Die Farblegende ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Window.Log</name>
    <message>
        <source>Log</source>
        <comment>title</comment>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Show or hide the panel with what happened so far.</source>
        <comment>tooltip</comment>
        <translation>Blendet den Bereich mit dem ein oder aus, was bisher geschah.</translation>
    </message>
    <message>
        <source>Show or hide the log</source>
        <comment>statustip</comment>
        <translation>Das Protokoll ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Window.Measurements</name>
    <message>
        <source>Measurements</source>
        <comment>title</comment>
        <translation>Messungen</translation>
    </message>
    <message>
        <source>Show or hide the panel with all measurements.</source>
        <comment>tooltip</comment>
        <translation>Blendet den Bereich mit allen Messungen ein oder aus.</translation>
    </message>
    <message>
        <source>Show or hide the measurements</source>
        <comment>statustip</comment>
        <translation>Die Messungen ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Window.Notes</name>
    <message>
        <source>Notes</source>
        <comment>title</comment>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Show or hide the panel with the notes on parts and build.</source>
        <comment>tooltip</comment>
        <translation>Blendet den Bereich mit den Notizen zu Teilen und Projekt ein oder aus.</translation>
    </message>
    <message>
        <source>Show or hide the notes</source>
        <comment>statustip</comment>
        <translation>Die Notizen ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Window.PartTree</name>
    <message>
        <source>Part</source>
        <comment>title</comment>
        <translation>Teil</translation>
    </message>
    <message>
        <source>Show or hide the panel in which the selected part is edited.</source>
        <comment>tooltip</comment>
        <translation>Blendet den Bereich ein oder aus, in dem das ausgewählte Teil bearbeitet wird.</translation>
    </message>
    <message>
        <source>Show or hide the editor of the part</source>
        <comment>statustip</comment>
        <translation>Den Bearbeiter des Teils ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Window.Parts</name>
    <message>
        <source>Part List</source>
        <comment>title</comment>
        <translation>Teileliste</translation>
    </message>
    <message>
        <source>Show or hide the panel with the list of parts.</source>
        <comment>tooltip</comment>
        <translation>Blendet den Bereich mit der Liste der Teile ein oder aus.</translation>
    </message>
    <message>
        <source>Show or hide the list of parts</source>
        <comment>statustip</comment>
        <translation>Die Liste der Teile ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Window.Primitives</name>
    <message>
        <source>Primitives</source>
        <comment>title</comment>
        <translation>Grundkörper</translation>
    </message>
    <message>
        <source>Show or hide the panel with simple solids to insert.</source>
        <comment>tooltip</comment>
        <translation>Blendet den Bereich mit einfachen Körpern zum Einfügen ein oder aus.</translation>
    </message>
    <message>
        <source>Show or hide the simple solids</source>
        <comment>statustip</comment>
        <translation>Die einfachen Körper ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Window.Properties</name>
    <message>
        <source>Properties</source>
        <comment>title</comment>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Show or hide the panel with the properties of the selected part.</source>
        <comment>tooltip</comment>
        <translation>Blendet den Bereich mit den Eigenschaften des ausgewählten Teils ein oder aus.</translation>
    </message>
    <message>
        <source>Show or hide the properties</source>
        <comment>statustip</comment>
        <translation>Die Eigenschaften ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>commands.Window.StatusBar</name>
    <message>
        <source>Status Bar</source>
        <comment>title</comment>
        <translation>Statusleiste</translation>
    </message>
    <message>
        <source>Show or hide the status bar.</source>
        <comment>tooltip</comment>
        <translation>Blendet die Statusleiste ein oder aus.</translation>
    </message>
    <message>
        <source>Show or hide the status bar</source>
        <comment>statustip</comment>
        <translation>Die Statusleiste ein- oder ausblenden</translation>
    </message>
</context>
<context>
    <name>composites</name>
    <message>
        <source>Samples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>Ausrichten</translation>
    </message>
    <message>
        <source>Recent Files</source>
        <translation>Zuletzt verwendet</translation>
    </message>
    <message>
        <source>Views</source>
        <translation>Ansichten</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Hatch</source>
        <translation>Schraffur</translation>
    </message>
</context>
<context>
    <name>menus</name>
    <message>
        <source>Part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswahl</translation>
    </message>
</context>
<context>
    <name>ribbon.groups</name>
    <message>
        <source>Work</source>
        <translation>Arbeiten</translation>
    </message>
    <message>
        <source>Build</source>
        <translation>Projekt</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platzieren</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>Solids</source>
        <translation>Körper</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Kopien</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>Ausrichten</translation>
    </message>
    <message>
        <source>Placement</source>
        <translation>Platzierung</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalieren</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Einheiten</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparieren</translation>
    </message>
    <message>
        <source>Shells</source>
        <translation>Hüllen</translation>
    </message>
    <message>
        <source>Mesh</source>
        <translation>Netz</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Schneiden</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>Snap</source>
        <translation>Fangen</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Overhang</source>
        <translation>Überhang</translation>
    </message>
    <message>
        <source>Plane</source>
        <translation>Ebene</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>Go</source>
        <translation>Gehen</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Thickness</source>
        <translation>Dicke</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Schicht</translation>
    </message>
    <message>
        <source>Hatch</source>
        <translation>Schraffur</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Views</source>
        <translation>Ansichten</translation>
    </message>
    <message>
        <source>Orbit</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
</context>
<context>
    <name>ribbon.pages</name>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platzieren</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparieren</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Füllung</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
</context>
<context>
    <name>tarnix::Backstage</name>
    <message>
        <source>Info</source>
        <translation>Informationen</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>Noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation>Dreiecke</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>Build volume</source>
        <translation>Bauraum</translation>
    </message>
    <message numerus="yes">
        <source>More findings: %n</source>
        <translation>
            <numerusform>Weitere Befunde: %n</numerusform>
            <numerusform>Weitere Befunde: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt verwendete Dateien</translation>
    </message>
    <message>
        <source>No file has been opened yet.</source>
        <translation>Es wurde noch keine Datei geöffnet.</translation>
    </message>
    <message>
        <source>The file is no longer there.</source>
        <translation>Die Datei ist nicht mehr da.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>The picture as it will be saved</source>
        <translation>Das Bild, wie es gespeichert wird</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>A small program that prepares parts for 3D printing, and shows what the frame it stands on can do.</source>
        <translation>Ein kleines Programm, das Teile für den 3D-Druck vorbereitet und zeigt, was das Gerüst kann, auf dem es steht.</translation>
    </message>
</context>
<context>
    <name>tarnix::BuildFile</name>
    <message>
        <source>This is not a build of this program.</source>
        <translation>Das ist kein Projekt dieses Programms.</translation>
    </message>
    <message>
        <source>The build was saved by a newer program (form %1).</source>
        <translation>Das Projekt wurde von einem neueren Programm gespeichert (Form %1).</translation>
    </message>
    <message>
        <source>The build is damaged: its head makes no sense.</source>
        <translation>Das Projekt ist beschädigt: Sein Kopf ergibt keinen Sinn.</translation>
    </message>
    <message>
        <source>The build is damaged: mesh %1 cannot be read.</source>
        <translation>Das Projekt ist beschädigt: Netz %1 ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The build is damaged: its list of parts makes no sense.</source>
        <translation>Das Projekt ist beschädigt: Seine Teileliste ergibt keinen Sinn.</translation>
    </message>
    <message>
        <source>The build is damaged: part %1 cannot be read.</source>
        <translation>Das Projekt ist beschädigt: Teil %1 ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The file cannot be written: %1.</source>
        <translation>Die Datei lässt sich nicht schreiben: %1.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Die Datei lässt sich nicht öffnen: %1.</translation>
    </message>
    <message>
        <source>The file is too large.</source>
        <translation>Die Datei ist zu groß.</translation>
    </message>
    <message>
        <source>The build is damaged: its notes cannot be read.</source>
        <translation>Das Projekt ist beschädigt: Seine Notizen sind nicht lesbar.</translation>
    </message>
</context>
<context>
    <name>tarnix::Checks</name>
    <message numerus="yes">
        <source>The surface is open; open edges: %n.</source>
        <translation>
            <numerusform>Die Oberfläche ist offen; offene Kanten: %n.</numerusform>
            <numerusform>Die Oberfläche ist offen; offene Kanten: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>More than two triangles meet at an edge; such edges: %n.</source>
        <translation>
            <numerusform>An einer Kante treffen sich mehr als zwei Dreiecke; solche Kanten: %n.</numerusform>
            <numerusform>An Kanten treffen sich mehr als zwei Dreiecke; solche Kanten: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Triangles disagree about the outside; such edges: %n.</source>
        <translation>
            <numerusform>Dreiecke sind sich über außen und innen uneinig; solche Kanten: %n.</numerusform>
            <numerusform>Dreiecke sind sich über außen und innen uneinig; solche Kanten: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>The part is inside out.</source>
        <translation>Das Innere des Teils ist nach außen gekehrt.</translation>
    </message>
    <message numerus="yes">
        <source>Triangles without area: %n.</source>
        <translation>
            <numerusform>Dreiecke ohne Fläche: %n.</numerusform>
            <numerusform>Dreiecke ohne Fläche: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Triangles that are there twice: %n.</source>
        <translation>
            <numerusform>Doppelt vorhandene Dreiecke: %n.</numerusform>
            <numerusform>Doppelt vorhandene Dreiecke: %n.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The part is made of several shells: %n.</source>
        <translation>
            <numerusform>Das Teil besteht aus mehreren Hüllen: %n.</numerusform>
            <numerusform>Das Teil besteht aus mehreren Hüllen: %n.</numerusform>
        </translation>
    </message>
    <message>
        <source>The part reaches below the plate.</source>
        <translation>Das Teil reicht unter die Platte.</translation>
    </message>
    <message>
        <source>The part reaches out of the build volume.</source>
        <translation>Das Teil ragt aus dem Bauraum.</translation>
    </message>
    <message>
        <source>The part floats %1 above the plate.</source>
        <translation>Das Teil schwebt %1 über der Platte.</translation>
    </message>
    <message>
        <source>%1 of the surface need support.</source>
        <translation>%1 der Oberfläche brauchen Stützen.</translation>
    </message>
    <message>
        <source>Its box runs into that of %1.</source>
        <translation>Sein Quader ragt in den von %1.</translation>
    </message>
    <message>
        <source>There is no part on the plate yet.</source>
        <translation>Auf der Platte ist noch kein Teil.</translation>
    </message>
    <message>
        <source>The build is ready: nothing to report.</source>
        <translation>Das Projekt ist bereit: keine Befunde.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Made here</source>
        <translation>Hier erzeugt</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Turned</source>
        <translation>Gedreht</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Oberfläche</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation>Dreiecke</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
    </message>
    <message>
        <source>Shells</source>
        <translation>Hüllen</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Geschlossen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No, needs repair</source>
        <translation>Nein, zu reparieren</translation>
    </message>
    <message>
        <source>Build report</source>
        <translation>Bericht zum Projekt</translation>
    </message>
    <message>
        <source>Build volume: %1</source>
        <translation>Bauraum: %1</translation>
    </message>
    <message numerus="yes">
        <source>Parts: %n</source>
        <translation>
            <numerusform>Teile: %n</numerusform>
            <numerusform>Teile: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
</context>
<context>
    <name>tarnix::EditCommands</name>
    <message numerus="yes">
        <source>Parts copied: %n</source>
        <translation>
            <numerusform>Kopierte Teile: %n</numerusform>
            <numerusform>Kopierte Teile: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The parts on the clipboard cannot be read.</source>
        <translation>Die Teile in der Zwischenablage sind nicht lesbar.</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>Duplizieren</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Name of the part:</source>
        <translation>Name des Teils:</translation>
    </message>
    <message>
        <source>Part Colour</source>
        <translation>Teilefarbe</translation>
    </message>
    <message>
        <source>Row of Copies</source>
        <translation>Reihe von Kopien</translation>
    </message>
    <message>
        <source>Copies of the selected part, one after another at these steps.</source>
        <translation>Kopien des ausgewählten Teils, eine nach der anderen in diesen Schritten.</translation>
    </message>
    <message>
        <source>Number of copies:</source>
        <translation>Anzahl der Kopien:</translation>
    </message>
    <message>
        <source>Step along X:</source>
        <translation>Schritt entlang X:</translation>
    </message>
    <message>
        <source>Step along Y:</source>
        <translation>Schritt entlang Y:</translation>
    </message>
    <message>
        <source>Step along Z:</source>
        <translation>Schritt entlang Z:</translation>
    </message>
    <message>
        <source>Grid of Copies</source>
        <translation>Raster von Kopien</translation>
    </message>
    <message>
        <source>Columns and rows count the selected part itself.</source>
        <translation>Spalten und Zeilen zählen das ausgewählte Teil mit.</translation>
    </message>
    <message>
        <source>Columns:</source>
        <translation>Spalten:</translation>
    </message>
    <message>
        <source>Rows:</source>
        <translation>Zeilen:</translation>
    </message>
    <message>
        <source>Column step:</source>
        <translation>Spaltenabstand:</translation>
    </message>
    <message>
        <source>Row step:</source>
        <translation>Zeilenabstand:</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message numerus="yes">
        <source>Faulty parts: %n</source>
        <translation>
            <numerusform>Fehlerhafte Teile: %n</numerusform>
            <numerusform>Fehlerhafte Teile: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Parts outside: %n</source>
        <translation>
            <numerusform>Überstehende Teile: %n</numerusform>
            <numerusform>Überstehende Teile: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Quader</translation>
    </message>
    <message>
        <source>Cylinder</source>
        <translation>Zylinder</translation>
    </message>
    <message>
        <source>Cone</source>
        <translation>Kegel</translation>
    </message>
    <message>
        <source>Upper diameter:</source>
        <translation>Oberer Durchmesser:</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Kugel</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>Ring</translation>
    </message>
    <message>
        <source>Prism</source>
        <translation>Prisma</translation>
    </message>
    <message>
        <source>Corners:</source>
        <translation>Ecken:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Depth:</source>
        <translation>Tiefe:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Diameter:</source>
        <translation>Durchmesser:</translation>
    </message>
    <message>
        <source>Lower diameter:</source>
        <translation>Unterer Durchmesser:</translation>
    </message>
    <message>
        <source>Outer diameter:</source>
        <translation>Außendurchmesser:</translation>
    </message>
    <message>
        <source>Thickness:</source>
        <translation>Dicke:</translation>
    </message>
    <message>
        <source>Diameter over corners:</source>
        <translation>Durchmesser über die Ecken:</translation>
    </message>
</context>
<context>
    <name>tarnix::EventLog</name>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
</context>
<context>
    <name>tarnix::FileActions</name>
    <message>
        <source>STL files (*.stl)</source>
        <translation>STL-Dateien (*.stl)</translation>
    </message>
    <message>
        <source>Builds (*.tarnix)</source>
        <translation>Projekte (*.tarnix)</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Add parts</source>
        <translation>Teile hinzufügen</translation>
    </message>
    <message numerus="yes">
        <source>Parts added: %n</source>
        <translation>
            <numerusform>Hinzugefügte Teile: %n</numerusform>
            <numerusform>Hinzugefügte Teile: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Some files could not be read.</source>
        <translation>Einige Dateien konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file could not be read; nothing was changed.</source>
        <translation>Die Datei konnte nicht gelesen werden; nichts wurde geändert.</translation>
    </message>
    <message>
        <source>The build could not be opened; nothing was changed.</source>
        <translation>Das Projekt konnte nicht geöffnet werden; nichts wurde geändert.</translation>
    </message>
    <message>
        <source>Open without saving</source>
        <translation>Ohne Speichern öffnen</translation>
    </message>
    <message>
        <source>The build could not be saved.</source>
        <translation>Das Projekt konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Gespeichert als %1.</translation>
    </message>
    <message>
        <source>The build &quot;%1&quot; has not been saved.</source>
        <translation>Das Projekt „%1“ ist nicht gespeichert.</translation>
    </message>
    <message>
        <source>The sample part could not be read.</source>
        <translation>Das Beispielteil konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file could not be written.</source>
        <translation>Die Datei konnte nicht geschrieben werden.</translation>
    </message>
</context>
<context>
    <name>tarnix::FileCommands</name>
    <message>
        <source>Clear without saving</source>
        <translation>Ohne Speichern räumen</translation>
    </message>
    <message>
        <source>Save Build As</source>
        <translation>Projekt speichern unter</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message numerus="yes">
        <source>Parts read again: %n</source>
        <translation>
            <numerusform>Neu geladene Teile: %n</numerusform>
            <numerusform>Neu geladene Teile: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Some parts could not be read again; they stay as they were.</source>
        <translation>Einige Teile konnten nicht neu geladen werden; sie bleiben, wie sie waren.</translation>
    </message>
    <message>
        <source>Export as Text</source>
        <translation>Als Text exportieren</translation>
    </message>
    <message>
        <source>Export STL</source>
        <translation>STL exportieren</translation>
    </message>
    <message>
        <source>Exported to %1.</source>
        <translation>Exportiert nach %1.</translation>
    </message>
    <message>
        <source>Export Each Part</source>
        <translation>Teile einzeln exportieren</translation>
    </message>
    <message numerus="yes">
        <source>Parts exported: %n</source>
        <translation>
            <numerusform>Exportierte Teile: %n</numerusform>
            <numerusform>Exportierte Teile: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Bilder (*.png)</translation>
    </message>
    <message>
        <source>Picture saved as %1.</source>
        <translation>Bild gespeichert als %1.</translation>
    </message>
    <message>
        <source>The picture is on the clipboard.</source>
        <translation>Das Bild ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>Print Report</source>
        <translation>Bericht ausgeben</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>Report written to %1.</source>
        <translation>Bericht nach %1 geschrieben.</translation>
    </message>
    <message>
        <source>Open Build</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Builds and parts (*.tarnix *.stl)</source>
        <translation>Projekte und Teile (*.tarnix *.stl)</translation>
    </message>
    <message>
        <source>Add Parts</source>
        <translation>Teile hinzufügen</translation>
    </message>
    <message>
        <source>Bracket</source>
        <translation>Lagerbock</translation>
    </message>
    <message>
        <source>Gear wheel</source>
        <translation>Zahnrad</translation>
    </message>
    <message>
        <source>Vase</source>
        <translation>Vase</translation>
    </message>
</context>
<context>
    <name>tarnix::FindingsPage</name>
    <message>
        <source>Part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>Finding</source>
        <translation>Befund</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>The build has not been checked yet.</source>
        <translation>Das Projekt wurde noch nicht geprüft.</translation>
    </message>
    <message>
        <source>The build has changed since it was checked.</source>
        <translation>Das Projekt hat sich seit der Prüfung geändert.</translation>
    </message>
</context>
<context>
    <name>tarnix::Help</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
</context>
<context>
    <name>tarnix::HistoryPage</name>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
</context>
<context>
    <name>tarnix::Host</name>
    <message>
        <source>Again: %1</source>
        <translation>Wiederholt: %1</translation>
    </message>
    <message>
        <source>Undone: %1</source>
        <translation>Zurückgenommen: %1</translation>
    </message>
</context>
<context>
    <name>tarnix::InspectCommands</name>
    <message numerus="yes">
        <source>Measurements copied: %n</source>
        <translation>
            <numerusform>Kopierte Messungen: %n</numerusform>
            <numerusform>Kopierte Messungen: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The build is ready: nothing to report.</source>
        <translation>Das Projekt ist bereit: keine Befunde.</translation>
    </message>
    <message numerus="yes">
        <source>Findings: %n</source>
        <translation>
            <numerusform>Befunde: %n</numerusform>
            <numerusform>Befunde: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>The report is on the clipboard.</source>
        <translation>Der Bericht ist in der Zwischenablage.</translation>
    </message>
    <message>
        <source>Overhang limit: %1</source>
        <translation>Grenze für Überhänge: %1</translation>
    </message>
</context>
<context>
    <name>tarnix::LayersPage</name>
    <message>
        <source>Thickness</source>
        <translation>Dicke</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Schicht</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Contours</source>
        <translation>Konturen</translation>
    </message>
    <message>
        <source>Contour length</source>
        <translation>Konturlänge</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>tarnix::LegendPage</name>
    <message>
        <source>Colours of the parts</source>
        <translation>Farben der Teile</translation>
    </message>
    <message>
        <source>Height over the plate</source>
        <translation>Höhe über der Platte</translation>
    </message>
    <message>
        <source>Overhang</source>
        <translation>Überhang</translation>
    </message>
    <message>
        <source>What the colours tell</source>
        <translation>Was die Farben bedeuten</translation>
    </message>
    <message>
        <source>Scale of colours</source>
        <translation>Farbskala</translation>
    </message>
    <message>
        <source>Each part has a colour of its own.</source>
        <translation>Jedes Teil hat seine eigene Farbe.</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Height in %1</source>
        <translation>Höhe in %1</translation>
    </message>
    <message>
        <source>Degrees that a surface leans over</source>
        <translation>Überhang einer Fläche in Grad</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
</context>
<context>
    <name>tarnix::LogPage</name>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>Messages and warnings</source>
        <translation>Meldungen und Warnungen</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>Shown entries</source>
        <translation>Gezeigte Einträge</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>What happened</source>
        <translation>Was geschah</translation>
    </message>
</context>
<context>
    <name>tarnix::MainWindow</name>
    <message>
        <source>The place under the pointer</source>
        <translation>Die Stelle unter dem Mauszeiger</translation>
    </message>
    <message>
        <source>The present layer and its height</source>
        <translation>Die aktuelle Schicht und ihre Höhe</translation>
    </message>
    <message>
        <source>Parts on the plate, and how many are selected</source>
        <translation>Teile auf der Platte und wie viele ausgewählt sind</translation>
    </message>
    <message>
        <source>The size of the selected parts, or of all</source>
        <translation>Die Größe der ausgewählten oder aller Teile</translation>
    </message>
    <message>
        <source>The unit of lengths; click for the other one</source>
        <translation>Die Längeneinheit; ein Klick wechselt zur anderen</translation>
    </message>
    <message>
        <source>Selected: %1 of %2</source>
        <translation>Ausgewählt: %1 von %2</translation>
    </message>
    <message>
        <source>Parts: %1</source>
        <translation>Teile: %1</translation>
    </message>
    <message>
        <source>Layer %1 of %2</source>
        <translation>Schicht %1 von %2</translation>
    </message>
    <message>
        <source>Leave without saving</source>
        <translation>Ohne Speichern verlassen</translation>
    </message>
</context>
<context>
    <name>tarnix::Measurement</name>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Gap</source>
        <translation>Lücke</translation>
    </message>
</context>
<context>
    <name>tarnix::MeasurementsPage</name>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Einzelheiten</translation>
    </message>
    <message>
        <source>Choose what to measure on the page Measure, then click points on parts.</source>
        <translation>Wählen Sie auf der Seite Messen, was gemessen werden soll, und klicken Sie dann auf Punkte an Teilen.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>tarnix::Need</name>
    <message>
        <source>There is no part on the plate.</source>
        <translation>Auf der Platte ist kein Teil.</translation>
    </message>
    <message>
        <source>There is no visible part on the plate.</source>
        <translation>Auf der Platte ist kein sichtbares Teil.</translation>
    </message>
    <message>
        <source>Select a part first.</source>
        <translation>Wählen Sie zuerst ein Teil aus.</translation>
    </message>
    <message>
        <source>Select a part that is not locked.</source>
        <translation>Wählen Sie ein Teil aus, das nicht gesperrt ist.</translation>
    </message>
    <message>
        <source>Select exactly one part.</source>
        <translation>Wählen Sie genau ein Teil aus.</translation>
    </message>
    <message>
        <source>Select exactly one part that is not locked.</source>
        <translation>Wählen Sie genau ein Teil aus, das nicht gesperrt ist.</translation>
    </message>
    <message>
        <source>Select at least two parts.</source>
        <translation>Wählen Sie mindestens zwei Teile aus.</translation>
    </message>
    <message>
        <source>Select exactly two parts.</source>
        <translation>Wählen Sie genau zwei Teile aus.</translation>
    </message>
    <message>
        <source>Select at least two parts that are not locked.</source>
        <translation>Wählen Sie mindestens zwei Teile aus, die nicht gesperrt sind.</translation>
    </message>
    <message>
        <source>Select at least three parts that are not locked.</source>
        <translation>Wählen Sie mindestens drei Teile aus, die nicht gesperrt sind.</translation>
    </message>
    <message>
        <source>Select a part that came from a file and is not locked.</source>
        <translation>Wählen Sie ein Teil aus, das aus einer Datei kam und nicht gesperrt ist.</translation>
    </message>
    <message>
        <source>No part is hidden.</source>
        <translation>Kein Teil ist ausgeblendet.</translation>
    </message>
    <message>
        <source>No part is locked.</source>
        <translation>Kein Teil ist gesperrt.</translation>
    </message>
    <message>
        <source>There is no step to take back.</source>
        <translation>Es gibt keinen Schritt, der sich zurücknehmen ließe.</translation>
    </message>
    <message>
        <source>No step was taken back.</source>
        <translation>Es wurde kein Schritt zurückgenommen.</translation>
    </message>
    <message>
        <source>There are no parts on the clipboard.</source>
        <translation>In der Zwischenablage sind keine Teile.</translation>
    </message>
    <message>
        <source>Copy a placement first, then select a part that is not locked.</source>
        <translation>Kopieren Sie zuerst eine Platzierung und wählen Sie dann ein Teil aus, das nicht gesperrt ist.</translation>
    </message>
    <message>
        <source>Switch the section on first.</source>
        <translation>Schalten Sie zuerst den Schnitt ein.</translation>
    </message>
    <message>
        <source>Let the section run through a selected part that is not locked.</source>
        <translation>Lassen Sie den Schnitt durch ein ausgewähltes Teil laufen, das nicht gesperrt ist.</translation>
    </message>
    <message>
        <source>There is no visible part to slice.</source>
        <translation>Es gibt kein sichtbares Teil, das sich in Schichten zerlegen ließe.</translation>
    </message>
    <message>
        <source>Show the layers first.</source>
        <translation>Blenden Sie zuerst die Schichten ein.</translation>
    </message>
    <message>
        <source>Show the layers first; there must be one above.</source>
        <translation>Blenden Sie zuerst die Schichten ein; darüber muss noch eine liegen.</translation>
    </message>
    <message>
        <source>Show the layers first; there must be one below.</source>
        <translation>Blenden Sie zuerst die Schichten ein; darunter muss noch eine liegen.</translation>
    </message>
    <message>
        <source>Show the layers and hatch them first.</source>
        <translation>Blenden Sie zuerst die Schichten ein und schraffieren Sie sie.</translation>
    </message>
    <message>
        <source>Nothing has been measured yet.</source>
        <translation>Es wurde noch nichts gemessen.</translation>
    </message>
    <message>
        <source>No measuring is under way.</source>
        <translation>Es wird gerade nicht gemessen.</translation>
    </message>
    <message>
        <source>Check the build first; nothing was found so far.</source>
        <translation>Prüfen Sie zuerst das Projekt; bisher gibt es keine Befunde.</translation>
    </message>
    <message>
        <source>There are no recent files.</source>
        <translation>Es gibt keine zuletzt verwendeten Dateien.</translation>
    </message>
    <message>
        <source>The view has not been changed yet.</source>
        <translation>Die Ansicht wurde noch nicht verändert.</translation>
    </message>
</context>
<context>
    <name>tarnix::NotesPage</name>
    <message>
        <source>Write here what is worth knowing.</source>
        <translation>Schreiben Sie hier auf, was wissenswert ist.</translation>
    </message>
    <message>
        <source>About %1</source>
        <translation>Zu %1</translation>
    </message>
    <message>
        <source>About the build</source>
        <translation>Zum Projekt</translation>
    </message>
</context>
<context>
    <name>tarnix::Options</name>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Brown</source>
        <translation>Braun</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Lime</source>
        <translation>Limette</translation>
    </message>
    <message>
        <source>Magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>Rosa</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>Lila</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Teal</source>
        <translation>Blaugrün</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Aussehen</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Design</translation>
    </message>
    <message>
        <source>Accent</source>
        <translation>Akzent</translation>
    </message>
    <message>
        <source>Show the titles of groups</source>
        <translation>Gruppentitel anzeigen</translation>
    </message>
    <message>
        <source>Ribbon in the caption of the window</source>
        <translation>Menüband in der Titelleiste des Fensters</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Statusleiste</translation>
    </message>
    <message>
        <source>Step of moving</source>
        <translation>Schritt beim Verschieben</translation>
    </message>
    <message>
        <source>Step of turning</source>
        <translation>Schritt beim Drehen</translation>
    </message>
    <message>
        <source>Gap between parts</source>
        <translation>Abstand zwischen Teilen</translation>
    </message>
    <message>
        <source>Drag parts in steps</source>
        <translation>Teile in Schritten ziehen</translation>
    </message>
    <message>
        <source>Build volume</source>
        <translation>Bauraum</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Depth</source>
        <translation>Tiefe</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Material</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>Density</source>
        <translation>Dichte</translation>
    </message>
    <message>
        <source>Overhang limit</source>
        <translation>Grenze für Überhänge</translation>
    </message>
    <message>
        <source>Layer thickness</source>
        <translation>Schichtdicke</translation>
    </message>
    <message>
        <source>As the system (%1)</source>
        <translation>Wie das System (%1)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Units and Steps</source>
        <translation>Einheiten und Schritte</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>Decimals of lengths</source>
        <translation>Nachkommastellen von Längen</translation>
    </message>
    <message>
        <source>Digits behind the point in millimetres; two more in inches.</source>
        <translation>Stellen hinter dem Komma in Millimetern; in Zoll zwei mehr.</translation>
    </message>
    <message>
        <source>Unit inside the fields</source>
        <translation>Einheit in den Feldern</translation>
    </message>
    <message>
        <source>Shows the unit inside the fields of dialogs, and not beside them.</source>
        <translation>Zeigt die Einheit in den Feldern der Dialoge und nicht daneben.</translation>
    </message>
    <message>
        <source>Moving and Turning</source>
        <translation>Verschieben und Drehen</translation>
    </message>
    <message>
        <source>How far the arrows move the selected parts.</source>
        <translation>Wie weit die Pfeile die ausgewählten Teile verschieben.</translation>
    </message>
    <message>
        <source>Parts that are dragged go from step to step.</source>
        <translation>Gezogene Teile springen von Schritt zu Schritt.</translation>
    </message>
    <message>
        <source>Way until a drag begins</source>
        <translation>Weg bis zum Beginn des Ziehens</translation>
    </message>
    <message>
        <source>How far the pointer moves before a press becomes a drag.</source>
        <translation>Wie weit sich der Mauszeiger bewegt, bevor aus dem Drücken ein Ziehen wird.</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>The angle of the commands that turn to the left and right.</source>
        <translation>Der Winkel der Befehle, die nach links und rechts drehen.</translation>
    </message>
    <message>
        <source>Turn in steps only</source>
        <translation>Nur in Schritten drehen</translation>
    </message>
    <message>
        <source>Angles that are typed come to the nearest step.</source>
        <translation>Eingegebene Winkel werden auf den nächsten Schritt gerundet.</translation>
    </message>
    <message>
        <source>Kept free when parts are arranged and added.</source>
        <translation>Bleibt frei, wenn Teile angeordnet und hinzugefügt werden.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Steps that can be undone</source>
        <translation>Zurücknehmbare Schritte</translation>
    </message>
    <message>
        <source>Older steps are forgotten.</source>
        <translation>Ältere Schritte werden vergessen.</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>The colours of the window.</source>
        <translation>Die Farben des Fensters.</translation>
    </message>
    <message>
        <source>The colour of the ribbon and of what is selected.</source>
        <translation>Die Farbe des Menübands und der Auswahl.</translation>
    </message>
    <message>
        <source>Every text that is visible follows at once.</source>
        <translation>Alle sichtbaren Texte folgen sofort.</translation>
    </message>
    <message>
        <source>Parts of the Window</source>
        <translation>Teile des Fensters</translation>
    </message>
    <message>
        <source>Below the groups of the ribbon.</source>
        <translation>Unter den Gruppen des Menübands.</translation>
    </message>
    <message>
        <source>The window draws its own caption.</source>
        <translation>Das Fenster zeichnet seine Titelleiste selbst.</translation>
    </message>
    <message>
        <source>Shows the pointer, the selection and the unit.</source>
        <translation>Zeigt den Mauszeiger, die Auswahl und die Einheit.</translation>
    </message>
    <message>
        <source>Messages stay for</source>
        <translation>Meldungen bleiben</translation>
    </message>
    <message>
        <source>How long a message stands in the status bar.</source>
        <translation>Wie lange eine Meldung in der Statusleiste steht.</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Opening and Leaving</source>
        <translation>Öffnen und Verlassen</translation>
    </message>
    <message>
        <source>Open the last build at the start</source>
        <translation>Beim Start das letzte Projekt öffnen</translation>
    </message>
    <message>
        <source>The program goes on where it was left.</source>
        <translation>Das Programm macht weiter, wo es verlassen wurde.</translation>
    </message>
    <message>
        <source>Ask before unsaved parts are lost</source>
        <translation>Nachfragen, bevor ungespeicherte Teile verloren gehen</translation>
    </message>
    <message>
        <source>When the program is left or another build is opened.</source>
        <translation>Wenn das Programm verlassen oder ein anderes Projekt geöffnet wird.</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt verwendete Dateien</translation>
    </message>
    <message>
        <source>How many files the program remembers from now on.</source>
        <translation>Wie viele Dateien sich das Programm von jetzt an merkt.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Place new parts</source>
        <translation>Neue Teile platzieren</translation>
    </message>
    <message>
        <source>Parts from files find a free place on the plate; otherwise they stay where their file has them.</source>
        <translation>Teile aus Dateien finden einen freien Platz auf der Platte; sonst bleiben sie, wo ihre Datei sie hat.</translation>
    </message>
    <message>
        <source>Repair new parts</source>
        <translation>Neue Teile reparieren</translation>
    </message>
    <message>
        <source>Parts from files are joined, closed and turned right side out.</source>
        <translation>Teile aus Dateien werden verbunden, geschlossen und nach außen gewendet.</translation>
    </message>
    <message>
        <source>Inches if smaller than</source>
        <translation>Zoll, wenn kleiner als</translation>
    </message>
    <message>
        <source>A part from a file whose longest side is shorter is taken to be in inches; 0 for none.</source>
        <translation>Ein Teil aus einer Datei, dessen längste Seite kürzer ist, gilt als in Zoll gezeichnet; 0 für keines.</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Saved Pictures</source>
        <translation>Gespeicherte Bilder</translation>
    </message>
    <message>
        <source>Picture width</source>
        <translation>Bildbreite</translation>
    </message>
    <message>
        <source>Of the pictures that are saved to a file.</source>
        <translation>Der Bilder, die in eine Datei gespeichert werden.</translation>
    </message>
    <message>
        <source>Picture height</source>
        <translation>Bildhöhe</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>How parts are drawn.</source>
        <translation>Wie Teile gezeichnet werden.</translation>
    </message>
    <message>
        <source>Shaded</source>
        <translation>Schattiert</translation>
    </message>
    <message>
        <source>Shaded with edges</source>
        <translation>Schattiert mit Kanten</translation>
    </message>
    <message>
        <source>Shaded with triangles</source>
        <translation>Schattiert mit Dreiecken</translation>
    </message>
    <message>
        <source>Wireframe</source>
        <translation>Drahtgitter</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Durchsichtig</translation>
    </message>
    <message>
        <source>Boxes</source>
        <translation>Quader</translation>
    </message>
    <message>
        <source>Smooth shading</source>
        <translation>Weiche Schattierung</translation>
    </message>
    <message>
        <source>Light runs smoothly over soft bends.</source>
        <translation>Das Licht läuft weich über sanfte Biegungen.</translation>
    </message>
    <message>
        <source>Fine edges</source>
        <translation>Feine Kanten</translation>
    </message>
    <message>
        <source>A view at rest is drawn twice as fine.</source>
        <translation>Eine ruhende Ansicht wird doppelt so fein gezeichnet.</translation>
    </message>
    <message>
        <source>Names of parts</source>
        <translation>Namen der Teile</translation>
    </message>
    <message>
        <source>Font of texts in the scene</source>
        <translation>Schrift der Texte in der Szene</translation>
    </message>
    <message>
        <source>Names, sizes and measurements.</source>
        <translation>Namen, Größen und Messungen.</translation>
    </message>
    <message>
        <source>Around the Parts</source>
        <translation>Um die Teile herum</translation>
    </message>
    <message>
        <source>Plate</source>
        <translation>Platte</translation>
    </message>
    <message>
        <source>Shadows</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>Of the parts on the plate.</source>
        <translation>Der Teile auf der Platte.</translation>
    </message>
    <message>
        <source>Axes</source>
        <translation>Achsen</translation>
    </message>
    <message>
        <source>View cube</source>
        <translation>Ansichtswürfel</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <source>Distance of the lines</source>
        <translation>Abstand der Linien</translation>
    </message>
    <message>
        <source>0 for the usual one of the unit: 10 mm, half an inch.</source>
        <translation>0 für den üblichen der Einheit: 10 mm, ein halber Zoll.</translation>
    </message>
    <message>
        <source>Strong lines</source>
        <translation>Kräftige Linien</translation>
    </message>
    <message>
        <source>Every so many lines is a strong one.</source>
        <translation>Jede wievielte Linie kräftig ist.</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Mouse</source>
        <translation>Maus</translation>
    </message>
    <message>
        <source>Speed of turning</source>
        <translation>Geschwindigkeit des Drehens</translation>
    </message>
    <message>
        <source>1 is the usual one.</source>
        <translation>1 ist die übliche.</translation>
    </message>
    <message>
        <source> times</source>
        <translation> ×</translation>
    </message>
    <message>
        <source>Speed of zooming</source>
        <translation>Geschwindigkeit des Zoomens</translation>
    </message>
    <message>
        <source>Turn the wheel the other way</source>
        <translation>Drehrichtung des Rads umkehren</translation>
    </message>
    <message>
        <source>Views</source>
        <translation>Ansichten</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>Perspektive</translation>
    </message>
    <message>
        <source>What is far away is smaller.</source>
        <translation>Was weiter weg ist, ist kleiner.</translation>
    </message>
    <message>
        <source>Flight to another view</source>
        <translation>Flug zu einer anderen Ansicht</translation>
    </message>
    <message>
        <source>0 to be there at once.</source>
        <translation>0, um sofort dort zu sein.</translation>
    </message>
    <message>
        <source> ms</source>
        <translation> ms</translation>
    </message>
    <message>
        <source>Views to go back to</source>
        <translation>Ansichten, zu denen man zurückkann</translation>
    </message>
    <message>
        <source>View at the start</source>
        <translation>Ansicht beim Start</translation>
    </message>
    <message>
        <source>From where the program looks at the plate when it starts.</source>
        <translation>Von wo das Programm beim Start auf die Platte blickt.</translation>
    </message>
    <message>
        <source>Take the present one (now %1, %2)</source>
        <translation>Die jetzige nehmen (jetzt %1, %2)</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Background, above</source>
        <translation>Hintergrund, oben</translation>
    </message>
    <message>
        <source>As the theme</source>
        <translation>Wie das Design</translation>
    </message>
    <message>
        <source>Background, below</source>
        <translation>Hintergrund, unten</translation>
    </message>
    <message>
        <source>Grid, strong lines</source>
        <translation>Raster, kräftige Linien</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Kanten</translation>
    </message>
    <message>
        <source>New Parts</source>
        <translation>Neue Teile</translation>
    </message>
    <message>
        <source>Colour %1</source>
        <translation>Farbe %1</translation>
    </message>
    <message>
        <source>Take the colours in turn</source>
        <translation>Die Farben reihum verwenden</translation>
    </message>
    <message>
        <source>Otherwise all new parts have the first colour.</source>
        <translation>Sonst haben alle neuen Teile die erste Farbe.</translation>
    </message>
    <message>
        <source>Machine and Material</source>
        <translation>Maschine und Material</translation>
    </message>
    <message>
        <source>Build Volume</source>
        <translation>Bauraum</translation>
    </message>
    <message>
        <source>Own figures</source>
        <translation>Eigene Werte</translation>
    </message>
    <message>
        <source>Material in use</source>
        <translation>Verwendetes Material</translation>
    </message>
    <message>
        <source>Brings its figures along.</source>
        <translation>Bringt seine Werte mit.</translation>
    </message>
    <message>
        <source>For the weight of parts.</source>
        <translation>Für das Gewicht der Teile.</translation>
    </message>
    <message>
        <source>Flatter surfaces need a support.</source>
        <translation>Flachere Flächen brauchen eine Stütze.</translation>
    </message>
    <message>
        <source>Profile &quot;%1&quot;</source>
        <translation>Profil „%1“</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Colour of new parts</source>
        <translation>Farbe neuer Teile</translation>
    </message>
    <message>
        <source>Otherwise the colours of the options in turn.</source>
        <translation>Sonst die Farben der Optionen reihum.</translation>
    </message>
    <message>
        <source>In turn</source>
        <translation>Reihum</translation>
    </message>
    <message>
        <source>This profile</source>
        <translation>Dieses Profil</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>More Profiles</source>
        <translation>Weitere Profile</translation>
    </message>
    <message>
        <source>A profile with the figures in use</source>
        <translation>Ein Profil mit den verwendeten Werten</translation>
    </message>
    <message>
        <source>Add Profile</source>
        <translation>Profil hinzufügen</translation>
    </message>
    <message>
        <source>Material %1</source>
        <translation>Material %1</translation>
    </message>
    <message>
        <source>Measuring</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>Snapping</source>
        <translation>Fangen</translation>
    </message>
    <message>
        <source>To points</source>
        <translation>An Punkten</translation>
    </message>
    <message>
        <source>A click takes the nearest corner.</source>
        <translation>Ein Klick nimmt die nächste Ecke.</translation>
    </message>
    <message>
        <source>To edges</source>
        <translation>An Kanten</translation>
    </message>
    <message>
        <source>A click takes the nearest place of an edge, unless it goes to points.</source>
        <translation>Ein Klick nimmt die nächste Stelle einer Kante, wenn er nicht an Punkten fängt.</translation>
    </message>
    <message>
        <source>Point that is taken</source>
        <translation>Gefangener Punkt</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Messungen</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Linien</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>Width of lines</source>
        <translation>Linienbreite</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>Hatching</source>
        <translation>Schraffur</translation>
    </message>
    <message>
        <source>Distance of hatch lines</source>
        <translation>Abstand der Schraffurlinien</translation>
    </message>
    <message>
        <source>Angle of hatch lines</source>
        <translation>Winkel der Schraffurlinien</translation>
    </message>
    <message>
        <source>Cross every other layer</source>
        <translation>Jede zweite Schicht kreuzen</translation>
    </message>
    <message>
        <source>Colours of Layers</source>
        <translation>Farben der Schichten</translation>
    </message>
    <message>
        <source>Contours</source>
        <translation>Konturen</translation>
    </message>
    <message>
        <source>Otherwise the colour of each part.</source>
        <translation>Sonst die Farbe jedes Teils.</translation>
    </message>
    <message>
        <source>As the part</source>
        <translation>Wie das Teil</translation>
    </message>
    <message>
        <source>Hatch lines</source>
        <translation>Schraffurlinien</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Time of a step</source>
        <translation>Dauer eines Schritts</translation>
    </message>
    <message>
        <source>When the layers are run through.</source>
        <translation>Wenn die Schichten durchlaufen werden.</translation>
    </message>
    <message>
        <source>New Solids</source>
        <translation>Neue Körper</translation>
    </message>
    <message>
        <source>Box</source>
        <translation>Quader</translation>
    </message>
    <message>
        <source>Cylinder</source>
        <translation>Zylinder</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Cone</source>
        <translation>Kegel</translation>
    </message>
    <message>
        <source>Lower radius</source>
        <translation>Unterer Radius</translation>
    </message>
    <message>
        <source>Upper radius</source>
        <translation>Oberer Radius</translation>
    </message>
    <message>
        <source>Prism</source>
        <translation>Prisma</translation>
    </message>
    <message>
        <source>Radius over corners</source>
        <translation>Radius über die Ecken</translation>
    </message>
    <message>
        <source>Corners</source>
        <translation>Ecken</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Kugel</translation>
    </message>
    <message>
        <source>Ring</source>
        <translation>Ring</translation>
    </message>
    <message>
        <source>Outer radius</source>
        <translation>Außenradius</translation>
    </message>
    <message>
        <source>Radius of the tube</source>
        <translation>Radius des Rohrs</translation>
    </message>
    <message>
        <source>Search in the options</source>
        <translation>In den Optionen suchen</translation>
    </message>
    <message>
        <source>Lengths in</source>
        <translation>Längen in</translation>
    </message>
    <message>
        <source>Millimetres</source>
        <translation>Millimetern</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Zoll</translation>
    </message>
    <message>
        <source>Pages of the options</source>
        <translation>Seiten der Optionen</translation>
    </message>
    <message>
        <source>No option has these words.</source>
        <translation>Keine Option enthält diese Wörter.</translation>
    </message>
    <message>
        <source>Restore What Is Shown</source>
        <translation>Gezeigtes wiederherstellen</translation>
    </message>
    <message>
        <source>Restore All</source>
        <translation>Alles wiederherstellen</translation>
    </message>
    <message>
        <source>Take Over From a File...</source>
        <translation>Aus einer Datei übernehmen...</translation>
    </message>
    <message>
        <source>Take Over Options</source>
        <translation>Optionen übernehmen</translation>
    </message>
    <message>
        <source>Options (*.xml)</source>
        <translation>Optionen (*.xml)</translation>
    </message>
    <message>
        <source>Options taken over from %1.</source>
        <translation>Optionen aus %1 übernommen.</translation>
    </message>
</context>
<context>
    <name>tarnix::PartListModel</name>
    <message>
        <source>(locked)</source>
        <translation>(gesperrt)</translation>
    </message>
    <message>
        <source>%1
Tick to show it, double click to rename it.</source>
        <translation>%1
Ein Haken zeigt es, ein Doppelklick benennt es um.</translation>
    </message>
</context>
<context>
    <name>tarnix::PartTreePage</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Kennzahlen</translation>
    </message>
    <message>
        <source>Sections</source>
        <translation>Abschnitte</translation>
    </message>
    <message>
        <source>No section is shown</source>
        <translation>Kein Abschnitt wird gezeigt</translation>
    </message>
    <message>
        <source>Keep the proportions</source>
        <translation>Proportionen beibehalten</translation>
    </message>
    <message>
        <source>A new size in one direction changes the others too</source>
        <translation>Eine neue Größe in einer Richtung ändert auch die anderen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Recolour</source>
        <translation>Umfärben</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
</context>
<context>
    <name>tarnix::PlaceCommands</name>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>Drop to Plate</source>
        <translation>Auf die Platte setzen</translation>
    </message>
    <message>
        <source>Centre on Plate</source>
        <translation>Auf der Platte zentrieren</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Anordnen</translation>
    </message>
    <message>
        <source>Move By</source>
        <translation>Verschieben um</translation>
    </message>
    <message>
        <source>Along X:</source>
        <translation>Entlang X:</translation>
    </message>
    <message>
        <source>Along Y:</source>
        <translation>Entlang Y:</translation>
    </message>
    <message>
        <source>Along Z:</source>
        <translation>Entlang Z:</translation>
    </message>
    <message>
        <source>Turn By</source>
        <translation>Drehen um</translation>
    </message>
    <message>
        <source>Turns about the middle of the selection: first about X, then Y, then Z.</source>
        <translation>Dreht um die Mitte der Auswahl: zuerst um X, dann um Y, dann um Z.</translation>
    </message>
    <message>
        <source>About X:</source>
        <translation>Um X:</translation>
    </message>
    <message>
        <source>About Y:</source>
        <translation>Um Y:</translation>
    </message>
    <message>
        <source>About Z:</source>
        <translation>Um Z:</translation>
    </message>
    <message>
        <source>Scale By</source>
        <translation>Skalieren um</translation>
    </message>
    <message>
        <source>Factors about the middle of the selection; 100 % is the present size.</source>
        <translation>Faktoren um die Mitte der Auswahl; 100 % ist die jetzige Größe.</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalieren</translation>
    </message>
    <message>
        <source>Lay Flat</source>
        <translation>Flach legen</translation>
    </message>
    <message>
        <source>Fill the Plate</source>
        <translation>Bauraum ausfüllen</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>Ausrichten</translation>
    </message>
    <message>
        <source>Spread</source>
        <translation>Verteilen</translation>
    </message>
    <message>
        <source>The placement is copied.</source>
        <translation>Die Platzierung ist kopiert.</translation>
    </message>
    <message>
        <source>Paste Placement</source>
        <translation>Platzierung übertragen</translation>
    </message>
    <message>
        <source>Reset Placement</source>
        <translation>Platzierung zurücksetzen</translation>
    </message>
    <message>
        <source>Work In</source>
        <translation>Einarbeiten</translation>
    </message>
    <message>
        <source>Turn Over</source>
        <translation>Umdrehen</translation>
    </message>
    <message>
        <source>Reset Turn</source>
        <translation>Drehung zurücksetzen</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Double</source>
        <translation>Verdoppeln</translation>
    </message>
    <message>
        <source>Halve</source>
        <translation>Halbieren</translation>
    </message>
    <message>
        <source>Inch to mm</source>
        <translation>Zoll in mm</translation>
    </message>
    <message>
        <source>mm to Inch</source>
        <translation>mm in Zoll</translation>
    </message>
    <message>
        <source>Reset Scale</source>
        <translation>Skalierung zurücksetzen</translation>
    </message>
</context>
<context>
    <name>tarnix::PrimitivesPage</name>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
</context>
<context>
    <name>tarnix::PropertiesPage</name>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Resize</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Selected parts</source>
        <translation>Ausgewählte Teile</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Oberfläche</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Gewicht</translation>
    </message>
    <message>
        <source>Triangles</source>
        <translation>Dreiecke</translation>
    </message>
</context>
<context>
    <name>tarnix::RecentFileCommand</name>
    <message>
        <source>Open %1</source>
        <translation>%1 öffnen</translation>
    </message>
</context>
<context>
    <name>tarnix::RepairCommands</name>
    <message>
        <source>There was nothing to repair.</source>
        <translation>Es gab nichts zu reparieren.</translation>
    </message>
    <message numerus="yes">
        <source>points joined: %n</source>
        <translation>
            <numerusform>verbundene Punkte: %n</numerusform>
            <numerusform>verbundene Punkte: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>triangles removed: %n</source>
        <translation>
            <numerusform>entfernte Dreiecke: %n</numerusform>
            <numerusform>entfernte Dreiecke: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>triangles turned: %n</source>
        <translation>
            <numerusform>gewendete Dreiecke: %n</numerusform>
            <numerusform>gewendete Dreiecke: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>triangles added: %n</source>
        <translation>
            <numerusform>hinzugefügte Dreiecke: %n</numerusform>
            <numerusform>hinzugefügte Dreiecke: %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Triangles now: %n</source>
        <translation>
            <numerusform>Dreiecke jetzt: %n</numerusform>
            <numerusform>Dreiecke jetzt: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 has too many triangles to be refined.</source>
        <translation>%1 hat zu viele Dreiecke, um verfeinert zu werden.</translation>
    </message>
    <message>
        <source>Refine</source>
        <translation>Verfeinern</translation>
    </message>
    <message>
        <source>Simplify</source>
        <translation>Vereinfachen</translation>
    </message>
    <message>
        <source>Details smaller than this are lost.</source>
        <translation>Kleinere Einzelheiten als diese gehen verloren.</translation>
    </message>
    <message>
        <source>Fineness:</source>
        <translation>Feinheit:</translation>
    </message>
    <message>
        <source>There was nothing to take apart.</source>
        <translation>Es gab nichts zu zerlegen.</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Zerlegen</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Zusammenfügen</translation>
    </message>
    <message>
        <source>Repair</source>
        <translation>Reparieren</translation>
    </message>
    <message>
        <source>Join Points</source>
        <translation>Punkte verbinden</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Bereinigen</translation>
    </message>
    <message>
        <source>Orient</source>
        <translation>Orientieren</translation>
    </message>
    <message>
        <source>Turn Inside Out</source>
        <translation>Umstülpen</translation>
    </message>
    <message>
        <source>Close Holes</source>
        <translation>Löcher schließen</translation>
    </message>
    <message>
        <source>Keep Largest</source>
        <translation>Größte behalten</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Glätten</translation>
    </message>
    <message>
        <source>Keep Below</source>
        <translation>Unteres behalten</translation>
    </message>
    <message>
        <source>Keep Above</source>
        <translation>Oberes behalten</translation>
    </message>
    <message>
        <source>Cut Apart</source>
        <translation>Durchschneiden</translation>
    </message>
</context>
<context>
    <name>tarnix::Report</name>
    <message>
        <source>Build volume: %1</source>
        <translation>Bauraum: %1</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
</context>
<context>
    <name>tarnix::Scene</name>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
</context>
<context>
    <name>tarnix::SceneView</name>
    <message>
        <source>Build plate</source>
        <translation>Bauplatte</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
</context>
<context>
    <name>tarnix::SliceCommands</name>
    <message>
        <source>Layers of %1</source>
        <translation>Schichten von %1</translation>
    </message>
    <message>
        <source>Layer Thickness</source>
        <translation>Schichtdicke</translation>
    </message>
    <message>
        <source>Thickness:</source>
        <translation>Dicke:</translation>
    </message>
    <message>
        <source>Go to Layer</source>
        <translation>Gehe zu Schicht</translation>
    </message>
    <message>
        <source>Layers are numbered from the plate, from 1 to %1.</source>
        <translation>Die Schichten zählen von der Platte an, von 1 bis %1.</translation>
    </message>
    <message>
        <source>Layer:</source>
        <translation>Schicht:</translation>
    </message>
    <message>
        <source>Hatch lines every %1</source>
        <translation>Schraffurlinien alle %1</translation>
    </message>
    <message>
        <source>The contours of all layers close.</source>
        <translation>Die Konturen aller Schichten schließen sich.</translation>
    </message>
    <message>
        <source>Layer %1 has contours that do not close.</source>
        <translation>Schicht %1 hat Konturen, die sich nicht schließen.</translation>
    </message>
    <message>
        <source>Export Layer</source>
        <translation>Schicht exportieren</translation>
    </message>
    <message>
        <source>Drawings (*.svg)</source>
        <translation>Zeichnungen (*.svg)</translation>
    </message>
    <message>
        <source>Layer %1 exported to %2.</source>
        <translation>Schicht %1 nach %2 exportiert.</translation>
    </message>
    <message>
        <source>Export All Layers</source>
        <translation>Alle Schichten exportieren</translation>
    </message>
    <message numerus="yes">
        <source>Layers exported: %n</source>
        <translation>
            <numerusform>Exportierte Schichten: %n</numerusform>
            <numerusform>Exportierte Schichten: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>Layer %1 is on the clipboard.</source>
        <translation>Schicht %1 ist in der Zwischenablage.</translation>
    </message>
</context>
<context>
    <name>tarnix::Start</name>
    <message>
        <source>Take over the options of the version before?</source>
        <translation>Die Optionen der vorigen Version übernehmen?</translation>
    </message>
    <message>
        <source>Take over the customized interface of the version before?</source>
        <translation>Die angepasste Oberfläche der vorigen Version übernehmen?</translation>
    </message>
</context>
<context>
    <name>tarnix::StlReader</name>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file has no triangles.</source>
        <translation>Die Datei enthält keine Dreiecke.</translation>
    </message>
    <message>
        <source>The file cannot be opened: %1.</source>
        <translation>Die Datei lässt sich nicht öffnen: %1.</translation>
    </message>
    <message>
        <source>This is a folder, not a file.</source>
        <translation>Das ist ein Ordner, keine Datei.</translation>
    </message>
    <message>
        <source>The file has %1; at most %2 can be read.</source>
        <translation>Die Datei hat %1; höchstens %2 sind lesbar.</translation>
    </message>
    <message>
        <source>The file cannot be read: %1.</source>
        <translation>Die Datei ist nicht lesbar: %1.</translation>
    </message>
    <message>
        <source>The file grew beyond what can be read.</source>
        <translation>Die Datei wuchs über das hinaus, was lesbar ist.</translation>
    </message>
    <message>
        <source>This is not an STL file: it has %1 bytes, fewer than the %2 of a header.</source>
        <translation>Das ist keine STL-Datei: Sie hat %1 Bytes, weniger als die %2 eines Kopfes.</translation>
    </message>
    <message>
        <source>The file is cut off: it announces %1 triangles and holds %2.</source>
        <translation>Die Datei ist abgeschnitten: Sie kündigt %1 Dreiecke an und enthält %2.</translation>
    </message>
    <message>
        <source>The file has %1 triangles; at most %2 can be read.</source>
        <translation>Die Datei hat %1 Dreiecke; höchstens %2 sind lesbar.</translation>
    </message>
    <message>
        <source>Triangle %1 has a corner that is not a usable point.</source>
        <translation>Dreieck %1 hat eine Ecke, die kein brauchbarer Punkt ist.</translation>
    </message>
    <message>
        <source>Line %1: &quot;%2&quot; was expected, not &quot;%3&quot;.</source>
        <translation>Zeile %1: Erwartet wurde „%2“, nicht „%3“.</translation>
    </message>
    <message>
        <source>The file is cut off: the solid has no end.</source>
        <translation>Die Datei ist abgeschnitten: Der Körper hat kein Ende.</translation>
    </message>
    <message>
        <source>Line %1: the vertex is not a usable point.</source>
        <translation>Zeile %1: Die Ecke ist kein brauchbarer Punkt.</translation>
    </message>
    <message>
        <source>The file has more than %1 triangles.</source>
        <translation>Die Datei hat mehr als %1 Dreiecke.</translation>
    </message>
</context>
<context>
    <name>tarnix::TransformDialog</name>
    <message>
        <source>Along &amp;X:</source>
        <translation>Entlang &amp;X:</translation>
    </message>
    <message>
        <source>Along &amp;Y:</source>
        <translation>Entlang &amp;Y:</translation>
    </message>
    <message>
        <source>Along &amp;Z:</source>
        <translation>Entlang &amp;Z:</translation>
    </message>
    <message>
        <source>&amp;Turn about Z:</source>
        <translation>Um Z &amp;drehen:</translation>
    </message>
    <message>
        <source>&amp;Keep the parts inside the build volume</source>
        <translation>Teile im Bauraum &amp;halten</translation>
    </message>
    <message>
        <source>A field holds no number that is allowed.</source>
        <translation>Ein Feld enthält keine erlaubte Zahl.</translation>
    </message>
    <message>
        <source>The parts would leave the build volume.</source>
        <translation>Die Teile würden den Bauraum verlassen.</translation>
    </message>
    <message>
        <source>Changed from the last move.</source>
        <translation>Gegenüber der letzten Verschiebung geändert.</translation>
    </message>
    <message>
        <source>The last move, as it was.</source>
        <translation>Die letzte Verschiebung, wie sie war.</translation>
    </message>
</context>
<context>
    <name>tarnix::ViewCube</name>
    <message>
        <source>FRONT</source>
        <translation>VORN</translation>
    </message>
    <message>
        <source>RIGHT</source>
        <translation>RECHTS</translation>
    </message>
    <message>
        <source>BACK</source>
        <translation>HINTEN</translation>
    </message>
    <message>
        <source>LEFT</source>
        <translation>LINKS</translation>
    </message>
    <message>
        <source>TOP</source>
        <translation>OBEN</translation>
    </message>
    <message>
        <source>BELOW</source>
        <translation>UNTEN</translation>
    </message>
</context>
<context>
    <name>tarnix::WindowCommands</name>
    <message>
        <source>The version is on the clipboard.</source>
        <translation>Die Version ist in der Zwischenablage.</translation>
    </message>
</context>
<context>
    <name>tarnix::Workspace</name>
    <message>
        <source>Click a point on a part.</source>
        <translation>Klicken Sie auf einen Punkt an einem Teil.</translation>
    </message>
    <message numerus="yes">
        <source>Points to click on parts: %n</source>
        <translation>
            <numerusform>Anzuklickende Punkte an Teilen: %n</numerusform>
            <numerusform>Anzuklickende Punkte an Teilen: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>These points say nothing: they fall together or lie in one line.</source>
        <translation>Diese Punkte sagen nichts aus: Sie fallen zusammen oder liegen auf einer Geraden.</translation>
    </message>
    <message>
        <source>New build</source>
        <translation>Neues Projekt</translation>
    </message>
</context>
<context>
    <name>toolbars</name>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Platzieren</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Schichten</translation>
    </message>
</context>
<context>
    <name>toolpages</name>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Messungen</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>Part</source>
        <translation>Teil</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Primitives</source>
        <translation>Grundkörper</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
</context>
<context>
    <name>toolsheets</name>
    <message>
        <source>Parts</source>
        <translation>Teile</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Measurements</source>
        <translation>Messungen</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Schichten</translation>
    </message>
    <message>
        <source>Primitives</source>
        <translation>Grundkörper</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
</context>
</TS>
