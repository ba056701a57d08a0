<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Drafton</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Begin a new drawing</source>
        <translation>Eine neue Zeichnung beginnen</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open a drawing</source>
        <translation>Eine Zeichnung öffnen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close the drawing</source>
        <translation>Die Zeichnung schließen</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save the drawing</source>
        <translation>Die Zeichnung speichern</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Print the sheet that is shown</source>
        <translation>Das gezeigte Blatt drucken</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>End Drafton</source>
        <translation>Drafton beenden</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Select all objects that can be selected</source>
        <translation>Alle Objekte auswählen, die sich auswählen lassen</translation>
    </message>
    <message>
        <source>Zoom &amp;Extents</source>
        <translation>&amp;Alles zeigen</translation>
    </message>
    <message>
        <source>Show all of the drawing</source>
        <translation>Die ganze Zeichnung zeigen</translation>
    </message>
    <message>
        <source>Zoom &amp;Window</source>
        <translation>&amp;Fenster zeigen</translation>
    </message>
    <message>
        <source>Show what lies between two corners</source>
        <translation>Zeigen, was zwischen zwei Ecken liegt</translation>
    </message>
    <message>
        <source>Zoom &amp;Previous</source>
        <translation>&amp;Vorige Ansicht</translation>
    </message>
    <message>
        <source>Go back to the view before the last zoom</source>
        <translation>Zurück zur Ansicht vor dem letzten Zoom</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>See the middle of the drawing larger</source>
        <translation>Die Mitte der Zeichnung größer sehen</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>See more of the drawing</source>
        <translation>Mehr von der Zeichnung sehen</translation>
    </message>
    <message>
        <source>&amp;Grid</source>
        <translation>&amp;Raster</translation>
    </message>
    <message>
        <source>Show a grid</source>
        <translation>Ein Raster zeigen</translation>
    </message>
    <message>
        <source>O&amp;rtho</source>
        <translation>&amp;Ortho</translation>
    </message>
    <message>
        <source>Draw along x and y only</source>
        <translation>Nur entlang x und y zeichnen</translation>
    </message>
    <message>
        <source>Po&amp;lar Tracking</source>
        <translation>&amp;Polare Führung</translation>
    </message>
    <message>
        <source>Hold the cursor to round angles</source>
        <translation>Den Zeiger an runden Winkeln halten</translation>
    </message>
    <message>
        <source>Object &amp;Snap</source>
        <translation>Ob&amp;jektfang</translation>
    </message>
    <message>
        <source>Snap to places of objects</source>
        <translation>An Stellen von Objekten einrasten</translation>
    </message>
    <message>
        <source>&amp;Line Weights</source>
        <translation>&amp;Linienstärken</translation>
    </message>
    <message>
        <source>Show lines as thick as they are printed</source>
        <translation>Linien so dick zeigen, wie sie gedruckt werden</translation>
    </message>
    <message>
        <source>Pa&amp;nes</source>
        <translation>&amp;Bereiche</translation>
    </message>
    <message>
        <source>Panes and toolbars</source>
        <translation>Bereiche und Werkzeugleisten</translation>
    </message>
    <message>
        <source>La&amp;yers...</source>
        <translation>&amp;Layer...</translation>
    </message>
    <message>
        <source>Make and change layers</source>
        <translation>Layer anlegen und ändern</translation>
    </message>
    <message>
        <source>&amp;Blocks...</source>
        <translation>&amp;Blöcke...</translation>
    </message>
    <message>
        <source>Choose a block to insert</source>
        <translation>Einen Block zum Einfügen wählen</translation>
    </message>
    <message>
        <source>Tool &amp;Palettes</source>
        <translation>Werkzeug&amp;paletten</translation>
    </message>
    <message>
        <source>Show the tool palettes</source>
        <translation>Die Werkzeugpaletten zeigen</translation>
    </message>
    <message>
        <source>&amp;Options...</source>
        <translation>&amp;Optionen...</translation>
    </message>
    <message>
        <source>How Drafton looks and works</source>
        <translation>Wie Drafton aussieht und arbeitet</translation>
    </message>
    <message>
        <source>&amp;Manual</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>Open the manual</source>
        <translation>Das Handbuch öffnen</translation>
    </message>
    <message>
        <source>&amp;About Drafton</source>
        <translation>Ü&amp;ber Drafton</translation>
    </message>
    <message>
        <source>What Drafton is</source>
        <translation>Was Drafton ist</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Drawings that were open lately</source>
        <translation>Zeichnungen, die zuletzt offen waren</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Save the drawing under another name</source>
        <translation>Die Zeichnung unter einem anderen Namen speichern</translation>
    </message>
    <message>
        <source>Save as P&amp;DF...</source>
        <translation>Als &amp;PDF speichern...</translation>
    </message>
    <message>
        <source>Save the sheet that is shown as PDF</source>
        <translation>Das gezeigte Blatt als PDF speichern</translation>
    </message>
    <message>
        <source>Select N&amp;one</source>
        <translation>&amp;Nichts auswählen</translation>
    </message>
    <message>
        <source>Select no object any more</source>
        <translation>Kein Objekt mehr auswählen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
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
        <source>&amp;Draw</source>
        <translation>&amp;Zeichnen</translation>
    </message>
    <message>
        <source>&amp;Modify</source>
        <translation>Ä&amp;ndern</translation>
    </message>
    <message>
        <source>F&amp;ormat</source>
        <translation>&amp;Format</translation>
    </message>
    <message>
        <source>&amp;Insert</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Dime&amp;nsion</source>
        <translation>Be&amp;maßung</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>E&amp;xtras</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Draw</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <source>Modify</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>No copy of %1 could be kept: %2</source>
        <translation>Von %1 konnte keine Kopie aufgehoben werden: %2</translation>
    </message>
    <message>
        <source>%1-recovered.dxf</source>
        <translation>%1-wiederhergestellt.dxf</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>Blocks of the drawing</source>
        <translation>Blöcke der Zeichnung</translation>
    </message>
    <message>
        <source>Drawing area</source>
        <translation>Zeichenfläche</translation>
    </message>
    <message>
        <source>Command history</source>
        <translation>Verlauf der Befehle</translation>
    </message>
    <message>
        <source>Command line</source>
        <translation>Befehlszeile</translation>
    </message>
    <message>
        <source>Type a command</source>
        <translation>Einen Befehl eintippen</translation>
    </message>
    <message>
        <source>Command:</source>
        <translation>Befehl:</translation>
    </message>
    <message>
        <source>Commands that begin with the typed text</source>
        <translation>Befehle, die mit dem getippten Text beginnen</translation>
    </message>
    <message>
        <source>A command is running: end it first.</source>
        <translation>Es läuft ein Befehl: beenden Sie ihn zuerst.</translation>
    </message>
    <message>
        <source>Do not show this message again</source>
        <translation>Diese Meldung nicht mehr zeigen</translation>
    </message>
    <message>
        <source>Drafton did not end as it should. Copies of changed drawings were kept: %1. Open them?</source>
        <translation>Drafton wurde nicht richtig beendet. Kopien geänderter Zeichnungen sind da: %1. Sollen sie geöffnet werden?</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>The option %1 is not known.</source>
        <translation>Die Option %1 ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Open drawings</source>
        <translation>Offene Zeichnungen</translation>
    </message>
    <message>
        <source>Model and layouts</source>
        <translation>Modell und Layouts</translation>
    </message>
    <message>
        <source>No drawing is open.</source>
        <translation>Es ist keine Zeichnung offen.</translation>
    </message>
    <message>
        <source>Make a new one</source>
        <translation>Eine neue beginnen</translation>
    </message>
    <message>
        <source>Model</source>
        <translation>Modell</translation>
    </message>
    <message>
        <source>GRID</source>
        <translation>RASTER</translation>
    </message>
    <message>
        <source>ORTHO</source>
        <translation>ORTHO</translation>
    </message>
    <message>
        <source>POLAR</source>
        <translation>POLAR</translation>
    </message>
    <message>
        <source>OSNAP</source>
        <translation>OFANG</translation>
    </message>
    <message>
        <source>Drawings</source>
        <translation>Zeichnungen</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>Open Drawing</source>
        <translation>Zeichnung öffnen</translation>
    </message>
    <message>
        <source>The drawing is not saved. %1: %2</source>
        <translation>Die Zeichnung ist nicht gespeichert. %1: %2</translation>
    </message>
    <message>
        <source>Saved to %1.</source>
        <translation>Gespeichert in %1.</translation>
    </message>
    <message>
        <source>%1 was changed by another program. Save over it?</source>
        <translation>%1 wurde von einem anderen Programm geändert. Darüber speichern?</translation>
    </message>
    <message>
        <source>The copy will lack what Drafton does not understand (%1). Save it?</source>
        <translation>Der Kopie wird fehlen, was Drafton nicht versteht (%1). Trotzdem speichern?</translation>
    </message>
    <message>
        <source>Save Drawing As</source>
        <translation>Zeichnung speichern unter</translation>
    </message>
    <message>
        <source>%1: drawings are saved as .dxf or .dwg files.</source>
        <translation>%1: Zeichnungen werden als .dxf oder .dwg gespeichert.</translation>
    </message>
    <message>
        <source>The object cannot take that shape.</source>
        <translation>Das Objekt kann diese Form nicht annehmen.</translation>
    </message>
    <message>
        <source>Drafton's Manual</source>
        <translation>Draftons Handbuch</translation>
    </message>
    <message>
        <source>About Drafton</source>
        <translation>Über Drafton</translation>
    </message>
    <message>
        <source>Tool palettes for desktop CAD, and a small CAD program to use them in.</source>
        <translation>Werkzeugpaletten für CAD und ein kleines CAD-Programm, in dem man sie benutzt.</translation>
    </message>
    <message>
        <source>Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Freie Software unter der GNU General Public License, Version 3 oder später.</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Area</source>
        <translation>Fläche</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>Mittelpunkt</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Start angle</source>
        <translation>Anfangswinkel</translation>
    </message>
    <message>
        <source>End angle</source>
        <translation>Endwinkel</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Line type</source>
        <translation>Linientyp</translation>
    </message>
    <message>
        <source>Line type scale</source>
        <translation>Linientypfaktor</translation>
    </message>
    <message>
        <source>Line weight</source>
        <translation>Linienstärke</translation>
    </message>
    <message>
        <source>Transparency</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Handle</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>Property</source>
        <translation>Eigenschaft</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Properties of what is chosen</source>
        <translation>Eigenschaften der Auswahl</translation>
    </message>
    <message>
        <source>Nothing is chosen</source>
        <translation>Nichts ist ausgewählt</translation>
    </message>
    <message>
        <source>varies</source>
        <translation>verschieden</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>There is no line type "%1".</source>
        <translation>Es gibt keinen Linientyp "%1".</translation>
    </message>
    <message>
        <source>Layer%1</source>
        <translation>Layer%1</translation>
    </message>
    <message>
        <source>On</source>
        <translation>An</translation>
    </message>
    <message>
        <source>Frozen</source>
        <translation>Gefroren</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Plotted</source>
        <translation>Gedruckt</translation>
    </message>
    <message>
        <source>&amp;New Layer</source>
        <translation>&amp;Neuer Layer</translation>
    </message>
    <message>
        <source>Make &amp;Current</source>
        <translation>&amp;Aktuell machen</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>%1 is not written: %2</source>
        <translation>%1 ist nicht geschrieben: %2</translation>
    </message>
    <message>
        <source>The printer does not take the sheet.</source>
        <translation>Der Drucker nimmt das Blatt nicht an.</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>Repeat %1</source>
        <translation>%1 wiederholen</translation>
    </message>
    <message>
        <source>Command Line</source>
        <translation>Befehlszeile</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
    <message>
        <source>Blocks</source>
        <translation>Blöcke</translation>
    </message>
    <message>
        <source>End point</source>
        <translation>Endpunkt</translation>
    </message>
    <message>
        <source>Midpoint</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Quadrant</source>
        <translation>Quadrant</translation>
    </message>
    <message>
        <source>Intersection</source>
        <translation>Schnittpunkt</translation>
    </message>
    <message>
        <source>Insertion</source>
        <translation>Einfügepunkt</translation>
    </message>
    <message>
        <source>Perpendicular</source>
        <translation>Lot</translation>
    </message>
    <message>
        <source>Tangent</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>Nearest</source>
        <translation>Nächster</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>&amp;Farbschema</translation>
    </message>
    <message>
        <source>&amp;Language (at the next start)</source>
        <translation>&amp;Sprache (ab dem nächsten Start)</translation>
    </message>
    <message>
        <source>Size of the &amp;crosshair (percent)</source>
        <translation>Größe des Faden&amp;kreuzes (Prozent)</translation>
    </message>
    <message>
        <source>&amp;Pick box (pixels)</source>
        <translation>&amp;Pickbox (Pixel)</translation>
    </message>
    <message>
        <source>&amp;Reach of object snaps (pixels)</source>
        <translation>&amp;Reichweite des Objektfangs (Pixel)</translation>
    </message>
    <message>
        <source>Step of polar &amp;angles (degrees)</source>
        <translation>Schritt der polaren &amp;Winkel (Grad)</translation>
    </message>
    <message>
        <source>&amp;Keep the former file as .bak</source>
        <translation>Die frühere Datei als .bak &amp;behalten</translation>
    </message>
    <message>
        <source>Copies for &amp;recovery every (minutes, 0 for none)</source>
        <translation>Kopien zur Rettun&amp;g alle (Minuten, 0 für keine)</translation>
    </message>
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
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>Andere...</translation>
    </message>
    <message>
        <source>Place of the cursor</source>
        <translation>Ort des Zeigers</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Änderungen an %1 speichern?</translation>
    </message>
    <message>
        <source>&amp;Do Not Save</source>
        <translation>&amp;Nicht speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The drawing has no plot styles.</source>
        <translation>Die Zeichnung hat keine Plotstile.</translation>
    </message>
    <message>
        <source>Plot Style</source>
        <translation>Plotstil</translation>
    </message>
    <message>
        <source>Plot style:</source>
        <translation>Plotstil:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>&amp;New drawing</source>
        <translation>&amp;Neue Zeichnung</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>&amp;Open a drawing</source>
        <translation>&amp;Eine Zeichnung öffnen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>&amp;Save the drawing</source>
        <translation>&amp;Die Zeichnung speichern</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Save the drawing under &amp;another name</source>
        <translation>&amp;Die Zeichnung unter einem anderen Namen speichern</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>&amp;Close the drawing</source>
        <translation>&amp;Die Zeichnung schließen</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>E&amp;xit Drafton</source>
        <translation>&amp;Drafton beenden</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>&amp;Undo the last command</source>
        <translation>&amp;Den letzten Befehl zurücknehmen</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Redo what was undone</source>
        <translation>&amp;Wieder tun, was zurückgenommen wurde</translation>
    </message>
    <message>
        <source>Erase</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>&amp;Erase objects</source>
        <translation>&amp;Objekte löschen</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Schieben</translation>
    </message>
    <message>
        <source>&amp;Move objects</source>
        <translation>&amp;Objekte verschieben</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Cop&amp;y objects</source>
        <translation>&amp;Objekte kopieren</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>&amp;Rotate objects</source>
        <translation>&amp;Objekte drehen</translation>
    </message>
    <message>
        <source>Make objects larger or &amp;smaller</source>
        <translation>&amp;Objekte größer oder kleiner machen</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <source>M&amp;irror objects</source>
        <translation>&amp;Objekte spiegeln</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versetzen</translation>
    </message>
    <message>
        <source>Draw parallels to &amp;objects</source>
        <translation>&amp;Parallelen zu Objekten zeichnen</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>Stutzen</translation>
    </message>
    <message>
        <source>&amp;Trim objects at others</source>
        <translation>&amp;Objekte an anderen stutzen</translation>
    </message>
    <message>
        <source>Extend</source>
        <translation>Dehnen</translation>
    </message>
    <message>
        <source>Exten&amp;d objects to others</source>
        <translation>&amp;Objekte bis zu anderen dehnen</translation>
    </message>
    <message>
        <source>Explode</source>
        <translation>Ursprung</translation>
    </message>
    <message>
        <source>Break objects into their &amp;pieces</source>
        <translation>&amp;Objekte in ihre Teile zerlegen</translation>
    </message>
    <message>
        <source>Change the properties of ob&amp;jects</source>
        <translation>&amp;Die Eigenschaften von Objekten ändern</translation>
    </message>
    <message>
        <source>Match Properties</source>
        <translation>Eigenschaften übertragen</translation>
    </message>
    <message>
        <source>&amp;Give the properties of one object to others</source>
        <translation>&amp;Die Eigenschaften eines Objekts anderen geben</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Se&amp;lect objects</source>
        <translation>&amp;Objekte auswählen</translation>
    </message>
    <message>
        <source>Quick Select</source>
        <translation>Schnellauswahl</translation>
    </message>
    <message>
        <source>Select objects by their &amp;kind</source>
        <translation>&amp;Objekte nach ihrer Art auswählen</translation>
    </message>
    <message>
        <source>Add Selected</source>
        <translation>Weiteres zeichnen</translation>
    </message>
    <message>
        <source>Draw another object like a selected o&amp;ne</source>
        <translation>&amp;Noch ein Objekt wie ein ausgewähltes zeichnen</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Draw straight &amp;lines</source>
        <translation>&amp;Gerade Linien zeichnen</translation>
    </message>
    <message>
        <source>Polyline</source>
        <translation>Polylinie</translation>
    </message>
    <message>
        <source>Draw a &amp;polyline</source>
        <translation>&amp;Eine Polylinie zeichnen</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Draw a &amp;circle</source>
        <translation>&amp;Einen Kreis zeichnen</translation>
    </message>
    <message>
        <source>Arc</source>
        <translation>Bogen</translation>
    </message>
    <message>
        <source>Draw an &amp;arc</source>
        <translation>&amp;Einen Bogen zeichnen</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Draw a &amp;rectangle</source>
        <translation>&amp;Ein Rechteck zeichnen</translation>
    </message>
    <message>
        <source>Polygon</source>
        <translation>Polygon</translation>
    </message>
    <message>
        <source>Draw a polygon with e&amp;qual sides</source>
        <translation>&amp;Ein Vieleck mit gleichen Seiten zeichnen</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Draw an &amp;ellipse</source>
        <translation>&amp;Eine Ellipse zeichnen</translation>
    </message>
    <message>
        <source>Spline</source>
        <translation>Spline</translation>
    </message>
    <message>
        <source>Draw a &amp;smooth curve</source>
        <translation>&amp;Eine glatte Kurve zeichnen</translation>
    </message>
    <message>
        <source>Donut</source>
        <translation>Ring</translation>
    </message>
    <message>
        <source>Draw filled rin&amp;gs</source>
        <translation>&amp;Gefüllte Ringe zeichnen</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Draw p&amp;oints</source>
        <translation>&amp;Punkte zeichnen</translation>
    </message>
    <message>
        <source>Hatch</source>
        <translation>Schraffur</translation>
    </message>
    <message>
        <source>Fill areas with a pattern, a color or a gra&amp;dient</source>
        <translation>&amp;Flächen mit einem Muster, einer Farbe oder einem Verlauf füllen</translation>
    </message>
    <message>
        <source>Boundary</source>
        <translation>Umgrenzung</translation>
    </message>
    <message>
        <source>Draw the &amp;boundary of an area</source>
        <translation>&amp;Die Umgrenzung einer Fläche zeichnen</translation>
    </message>
    <message>
        <source>Write a line of &amp;text</source>
        <translation>&amp;Eine Zeile Text schreiben</translation>
    </message>
    <message>
        <source>Multiline Text</source>
        <translation>Absatztext</translation>
    </message>
    <message>
        <source>Write several lines of te&amp;xt</source>
        <translation>&amp;Mehrere Zeilen Text schreiben</translation>
    </message>
    <message>
        <source>Leader</source>
        <translation>Führung</translation>
    </message>
    <message>
        <source>Draw a leader with a &amp;note</source>
        <translation>&amp;Eine Führungslinie mit Anmerkung zeichnen</translation>
    </message>
    <message>
        <source>Linear Dimension</source>
        <translation>Lineare Bemaßung</translation>
    </message>
    <message>
        <source>Dimension a distance that is level or &amp;upright</source>
        <translation>&amp;Einen waagerechten oder senkrechten Abstand bemaßen</translation>
    </message>
    <message>
        <source>Aligned Dimension</source>
        <translation>Ausgerichtete Bemaßung</translation>
    </message>
    <message>
        <source>Dimension the distance of t&amp;wo points</source>
        <translation>&amp;Den Abstand zweier Punkte bemaßen</translation>
    </message>
    <message>
        <source>Radius Dimension</source>
        <translation>Radiusbemaßung</translation>
    </message>
    <message>
        <source>Dimension a rad&amp;ius</source>
        <translation>&amp;Einen Radius bemaßen</translation>
    </message>
    <message>
        <source>Diameter Dimension</source>
        <translation>Durchmesserbemaßung</translation>
    </message>
    <message>
        <source>Dimension a dia&amp;meter</source>
        <translation>&amp;Einen Durchmesser bemaßen</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>&amp;Insert a block</source>
        <translation>&amp;Einen Block einfügen</translation>
    </message>
    <message>
        <source>Make a &amp;block of objects</source>
        <translation>&amp;Aus Objekten einen Block machen</translation>
    </message>
    <message>
        <source>Write Block</source>
        <translation>Block schreiben</translation>
    </message>
    <message>
        <source>&amp;Write a block to a file</source>
        <translation>&amp;Einen Block in eine Datei schreiben</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>In die Zwischenablage</translation>
    </message>
    <message>
        <source>Put objects on the clip&amp;board</source>
        <translation>&amp;Objekte in die Zwischenablage legen</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Define an &amp;attribute of a block</source>
        <translation>&amp;Ein Attribut eines Blocks festlegen</translation>
    </message>
    <message>
        <source>Attach Reference</source>
        <translation>Referenz anhängen</translation>
    </message>
    <message>
        <source>Attach a drawing as a refe&amp;rence</source>
        <translation>&amp;Eine Zeichnung als Referenz anhängen</translation>
    </message>
    <message>
        <source>References</source>
        <translation>Referenzen</translation>
    </message>
    <message>
        <source>&amp;Manage attached drawings</source>
        <translation>&amp;Angehängte Zeichnungen verwalten</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Insert a &amp;picture</source>
        <translation>&amp;Ein Bild einfügen</translation>
    </message>
    <message>
        <source>Layouts</source>
        <translation>Layouts</translation>
    </message>
    <message>
        <source>Make and choose layou&amp;ts</source>
        <translation>&amp;Layouts anlegen und wählen</translation>
    </message>
    <message>
        <source>Go back to the mo&amp;del</source>
        <translation>&amp;Zurück zum Modell</translation>
    </message>
    <message>
        <source>Layout View</source>
        <translation>Ansichtsfenster</translation>
    </message>
    <message>
        <source>Put a &amp;view of the model on the layout</source>
        <translation>&amp;Eine Ansicht des Modells auf das Layout legen</translation>
    </message>
    <message>
        <source>Layers of Views</source>
        <translation>Layer von Fenstern</translation>
    </message>
    <message>
        <source>Freeze layers in single views of a layo&amp;ut</source>
        <translation>&amp;Layer in einzelnen Fenstern eines Layouts frieren</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Seite einrichten</translation>
    </message>
    <message>
        <source>Set paper and plot &amp;scale of a layout</source>
        <translation>&amp;Papier und Maßstab eines Layouts einrichten</translation>
    </message>
    <message>
        <source>Make and change la&amp;yers</source>
        <translation>&amp;Layer anlegen und ändern</translation>
    </message>
    <message>
        <source>Set the &amp;color of new objects</source>
        <translation>&amp;Die Farbe neuer Objekte setzen</translation>
    </message>
    <message>
        <source>Line Weight</source>
        <translation>Linienstärke</translation>
    </message>
    <message>
        <source>Set the line &amp;weight of new objects</source>
        <translation>&amp;Die Linienstärke neuer Objekte setzen</translation>
    </message>
    <message>
        <source>Line Types</source>
        <translation>Linientypen</translation>
    </message>
    <message>
        <source>Load line types and set t&amp;hat of new objects</source>
        <translation>&amp;Linientypen laden und den neuer Objekte setzen</translation>
    </message>
    <message>
        <source>Text Styles</source>
        <translation>Textstile</translation>
    </message>
    <message>
        <source>Make and change text st&amp;yles</source>
        <translation>&amp;Textstile anlegen und ändern</translation>
    </message>
    <message>
        <source>Dimension Styles</source>
        <translation>Bemaßungsstile</translation>
    </message>
    <message>
        <source>Make and change &amp;dimension styles</source>
        <translation>&amp;Bemaßungsstile anlegen und ändern</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>&amp;Zoom the view</source>
        <translation>&amp;Die Ansicht zoomen</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variablen</translation>
    </message>
    <message>
        <source>Show and set &amp;variables</source>
        <translation>&amp;Variablen zeigen und setzen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Change a setti&amp;ng</source>
        <translation>&amp;Eine Einstellung ändern</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>Deutsch</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>Open &amp;Catalog Folder...</source>
        <translation>&amp;Katalogordner öffnen...</translation>
    </message>
    <message>
        <source>Show the tool palettes of another folder as well</source>
        <translation>Auch die Werkzeugpaletten eines anderen Ordners zeigen</translation>
    </message>
    <message>
        <source>Folder of the catalog: </source>
        <translation>Ordner des Katalogs: </translation>
    </message>
</context>
</TS>
