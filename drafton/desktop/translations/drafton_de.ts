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
        <source>Line Weigh&amp;ts</source>
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
        <source>Reading palettes, %s to go...</source>
        <translation>Paletten werden gelesen, noch %s ...</translation>
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
        <source>Reach of object &amp;snaps (pixels)</source>
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
    <message>
        <source>Block "%1" already exists. Redefine it?</source>
        <translation>Der Block "%1" besteht bereits. Neu festlegen?</translation>
    </message>
    <message>
        <source>"%1" is no name for a block: %2.</source>
        <translation>"%1" ist kein Name für einen Block: %2.</translation>
    </message>
    <message>
        <source>"%1" is an external reference.</source>
        <translation>"%1" ist eine externe Referenz.</translation>
    </message>
    <message>
        <source>Block "%1" would contain itself.</source>
        <translation>Der Block "%1" würde sich selbst enthalten.</translation>
    </message>
    <message>
        <source>Enter block name</source>
        <translation>Name des Blocks</translation>
    </message>
    <message>
        <source>Specify insertion base point</source>
        <translation>Basispunkt der Einfügung</translation>
    </message>
    <message>
        <source>Enter attribute values</source>
        <translation>Werte der Attribute eingeben</translation>
    </message>
    <message>
        <source>Verify attribute values</source>
        <translation>Werte der Attribute prüfen</translation>
    </message>
    <message>
        <source>Block "%1" cannot be exploded.</source>
        <translation>Der Block "%1" kann nicht zerlegt werden.</translation>
    </message>
    <message>
        <source>A block cannot be inserted into itself.</source>
        <translation>Ein Block kann nicht in sich selbst eingefügt werden.</translation>
    </message>
    <message>
        <source>A drawing cannot be inserted into itself.</source>
        <translation>Eine Zeichnung kann nicht in sich selbst eingefügt werden.</translation>
    </message>
    <message>
        <source>Defined blocks:</source>
        <translation>Vorhandene Blöcke:</translation>
    </message>
    <message>
        <source>%1 block(s).</source>
        <translation>%1 Block/Blöcke.</translation>
    </message>
    <message>
        <source>There is neither a block nor a file "%1".</source>
        <translation>Es gibt weder einen Block noch eine Datei "%1".</translation>
    </message>
    <message>
        <source>There is no place for what is copied: %1</source>
        <translation>Für das Kopierte ist kein Platz: %1</translation>
    </message>
    <message>
        <source>There is no clipboard.</source>
        <translation>Es gibt keine Zwischenablage.</translation>
    </message>
    <message>
        <source>%1 is too long a name to be copied.</source>
        <translation>%1 ist als Name zum Kopieren zu lang.</translation>
    </message>
    <message>
        <source>%1 copied</source>
        <translation>%1 kopiert</translation>
    </message>
    <message>
        <source>Units: %1   Conversion: %2</source>
        <translation>Einheiten: %1   Umrechnung: %2</translation>
    </message>
    <message>
        <source>A block cannot be inserted at the scale %1.</source>
        <translation>Ein Block kann nicht im Maßstab %1 eingefügt werden.</translation>
    </message>
    <message>
        <source>Enter block(s) to list</source>
        <translation>Aufzulistende Blöcke</translation>
    </message>
    <message>
        <source>There is no layout "%1".</source>
        <translation>Es gibt kein Layout "%1".</translation>
    </message>
    <message>
        <source>"%1" is no name for a layout: %2.</source>
        <translation>"%1" ist kein Name für ein Layout: %2.</translation>
    </message>
    <message>
        <source>There is a layout "%1" already.</source>
        <translation>Es gibt bereits ein Layout "%1".</translation>
    </message>
    <message>
        <source>Layout%1</source>
        <translation>Layout%1</translation>
    </message>
    <message>
        <source>Layouts:</source>
        <translation>Layouts:</translation>
    </message>
    <message>
        <source>  %1 x %2 mm</source>
        <translation>  %1 x %2 mm</translation>
    </message>
    <message>
        <source>The model cannot be copied to a layout.</source>
        <translation>Das Modell kann nicht in ein Layout kopiert werden.</translation>
    </message>
    <message>
        <source>The model cannot be deleted.</source>
        <translation>Das Modell kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Layout "%1" deleted.</source>
        <translation>Layout "%1" gelöscht.</translation>
    </message>
    <message>
        <source>The model cannot be renamed.</source>
        <translation>Das Modell kann nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>Enter layout option</source>
        <translation>Option für Layouts</translation>
    </message>
    <message>
        <source>There is no paper size "%1".</source>
        <translation>Es gibt kein Papierformat "%1".</translation>
    </message>
    <message>
        <source>The margins leave nothing of the sheet.</source>
        <translation>Die Ränder lassen vom Blatt nichts übrig.</translation>
    </message>
    <message>
        <source>Sheet of "%1": %2 mm, margins %3, %4, %5, %6</source>
        <translation>Blatt von "%1": %2 mm, Ränder %3, %4, %5, %6</translation>
    </message>
    <message>
        <source>Enter paper size (A0 to A4, or width x height in millimetres as 420x297)</source>
        <translation>Papierformat (A0 bis A4, oder Breite x Höhe in Millimetern wie 420x297)</translation>
    </message>
    <message>
        <source>Enter orientation</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Enter plotted millimetres</source>
        <translation>Geplottete Millimeter</translation>
    </message>
    <message>
        <source>Enter drawing units for them</source>
        <translation>Zeichnungseinheiten dafür</translation>
    </message>
    <message>
        <source>Enter plot style table, . for none</source>
        <translation>Plotstiltabelle, . für keine</translation>
    </message>
    <message>
        <source>Enter an option</source>
        <translation>Option</translation>
    </message>
    <message>
        <source>Specify rotation angle</source>
        <translation>Drehwinkel</translation>
    </message>
    <message>
        <source>Enter X scale factor</source>
        <translation>Skalierfaktor in X</translation>
    </message>
    <message>
        <source>Specify insertion point</source>
        <translation>Einfügepunkt</translation>
    </message>
    <message>
        <source>%1 cannot be read as a picture: %2</source>
        <translation>%1 kann nicht als Bild gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1 is no picture that can be shown; its name stands in its place</source>
        <translation>%1 ist kein Bild, das gezeigt werden kann; dort steht sein Name</translation>
    </message>
    <message>
        <source>its end is missing</source>
        <translation>das Ende fehlt</translation>
    </message>
    <message>
        <source>Qt's image format plugin for pictures of the kind "%1" is not installed</source>
        <translation>Qts Plugin für Bilder der Art „%1“ ist nicht installiert</translation>
    </message>
    <message>
        <source>A picture cannot be inserted at the scale %1.</source>
        <translation>Ein Bild kann nicht im Maßstab %1 eingefügt werden.</translation>
    </message>
    <message>
        <source>Enter image file name</source>
        <translation>Name der Bilddatei</translation>
    </message>
    <message>
        <source>Specify scale factor</source>
        <translation>Skalierfaktor</translation>
    </message>
    <message>
        <source>A drawing cannot be attached to itself.</source>
        <translation>Eine Zeichnung kann nicht an sich selbst angehängt werden.</translation>
    </message>
    <message>
        <source>"%1" is already attached.</source>
        <translation>"%1" ist bereits angehängt.</translation>
    </message>
    <message>
        <source>%1 was not attached: %2</source>
        <translation>%1 wurde nicht angehängt: %2</translation>
    </message>
    <message>
        <source>A reference cannot be attached at the scale %1.</source>
        <translation>Eine Referenz kann nicht im Maßstab %1 angehängt werden.</translation>
    </message>
    <message>
        <source>overlay</source>
        <translation>überlagert</translation>
    </message>
    <message>
        <source>attached</source>
        <translation>angehängt</translation>
    </message>
    <message>
        <source>not found</source>
        <translation>nicht gefunden</translation>
    </message>
    <message>
        <source>loaded</source>
        <translation>geladen</translation>
    </message>
    <message>
        <source>unloaded</source>
        <translation>entladen</translation>
    </message>
    <message>
        <source>circular</source>
        <translation>im Kreis</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>nicht lesbar</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>weggelassen</translation>
    </message>
    <message>
        <source>"%1" is left out: %2. %3.</source>
        <translation>"%1" wird weggelassen: %2. %3.</translation>
    </message>
    <message>
        <source>%1 external reference(s).</source>
        <translation>%1 externe Referenz(en).</translation>
    </message>
    <message>
        <source>No external reference fits "%1".</source>
        <translation>Keine externe Referenz passt zu "%1".</translation>
    </message>
    <message>
        <source>"%1": %2</source>
        <translation>"%1": %2</translation>
    </message>
    <message>
        <source>The file of "%1" was not found: %2</source>
        <translation>Die Datei von "%1" wurde nicht gefunden: %2</translation>
    </message>
    <message>
        <source>"%1" bound.</source>
        <translation>"%1" gebunden.</translation>
    </message>
    <message>
        <source>"%1" detached.</source>
        <translation>"%1" abgehängt.</translation>
    </message>
    <message>
        <source>"%1" unloaded.</source>
        <translation>"%1" entladen.</translation>
    </message>
    <message>
        <source>Enter name of file to attach</source>
        <translation>Name der anzuhängenden Datei</translation>
    </message>
    <message>
        <source>Enter reference type</source>
        <translation>Art der Referenz</translation>
    </message>
    <message>
        <source>Enter new path</source>
        <translation>Neuer Pfad</translation>
    </message>
    <message>
        <source>Views of the model stand on layouts. Choose a layout first.</source>
        <translation>Ansichten des Modells stehen auf Layouts. Wählen Sie zuerst ein Layout.</translation>
    </message>
    <message>
        <source>A view needs a width and a height.</source>
        <translation>Eine Ansicht braucht Breite und Höhe.</translation>
    </message>
    <message>
        <source>No view was chosen.</source>
        <translation>Es wurde keine Ansicht gewählt.</translation>
    </message>
    <message>
        <source>Enter layer name(s) to freeze in views</source>
        <translation>In Ansichten zu frierende Layer</translation>
    </message>
    <message>
        <source>Enter layer name(s) to thaw in views</source>
        <translation>In Ansichten zu tauende Layer</translation>
    </message>
    <message>
        <source>No layers are frozen in view %1.</source>
        <translation>In der Ansicht %1 sind keine Layer gefroren.</translation>
    </message>
    <message>
        <source>Layers frozen in view %1: %2</source>
        <translation>In der Ansicht %1 gefrorene Layer: %2</translation>
    </message>
    <message>
        <source>Specify first corner in the model</source>
        <translation>Erste Ecke im Modell</translation>
    </message>
    <message>
        <source>Specify opposite corner in the model</source>
        <translation>Gegenüberliegende Ecke im Modell</translation>
    </message>
    <message>
        <source>Enter sheet units for one unit of the model</source>
        <translation>Blatteinheiten für eine Einheit des Modells</translation>
    </message>
    <message>
        <source>Lock views?</source>
        <translation>Ansichten sperren?</translation>
    </message>
    <message>
        <source>Specify corner of view</source>
        <translation>Ecke der Ansicht</translation>
    </message>
    <message>
        <source>Specify opposite corner</source>
        <translation>Gegenüberliegende Ecke</translation>
    </message>
    <message>
        <source>%1 is the drawing's own file.</source>
        <translation>%1 ist die Datei der Zeichnung selbst.</translation>
    </message>
    <message>
        <source>%1 already exists. Replace it?</source>
        <translation>%1 besteht bereits. Ersetzen?</translation>
    </message>
    <message>
        <source>There is no block "%1".</source>
        <translation>Es gibt keinen Block "%1".</translation>
    </message>
    <message>
        <source>%1 written.</source>
        <translation>%1 geschrieben.</translation>
    </message>
    <message>
        <source>Enter name of output file</source>
        <translation>Name der Ausgabedatei</translation>
    </message>
    <message>
        <source>Enter name of existing block, = (block of the file's name), * (whole drawing), or nothing to choose objects</source>
        <translation>Name eines vorhandenen Blocks, = (Block mit dem Namen der Datei), * (ganze Zeichnung), oder nichts, um Objekte zu wählen</translation>
    </message>
    <message>
        <source>The drawing is being closed.</source>
        <translation>Die Zeichnung wird gerade geschlossen.</translation>
    </message>
    <message>
        <source>The text is longer than %1 characters and is not taken.</source>
        <translation>Der Text ist länger als %1 Zeichen und wird nicht übernommen.</translation>
    </message>
    <message>
        <source>Command: </source>
        <translation>Befehl: </translation>
    </message>
    <message>
        <source>Unknown command "%1".</source>
        <translation>Unbekannter Befehl "%1".</translation>
    </message>
    <message>
        <source>Commands run too deep inside each other.</source>
        <translation>Befehle sind zu tief ineinander verschachtelt.</translation>
    </message>
    <message>
        <source>%1 failed (%2).</source>
        <translation>%1 ist fehlgeschlagen (%2).</translation>
    </message>
    <message>
        <source>*Cancel*</source>
        <translation>*Abbruch*</translation>
    </message>
    <message>
        <source>There is no command that draws objects of this kind.</source>
        <translation>Es gibt keinen Befehl, der solche Objekte zeichnet.</translation>
    </message>
    <message>
        <source>%1 did not end.</source>
        <translation>%1 ist nicht zu Ende gekommen.</translation>
    </message>
    <message>
        <source>There is no line or arc to continue.</source>
        <translation>Es gibt keine Linie und keinen Bogen zum Fortsetzen.</translation>
    </message>
    <message>
        <source>Specify end point of arc</source>
        <translation>Endpunkt des Bogens</translation>
    </message>
    <message>
        <source>Specify center point of arc</source>
        <translation>Mittelpunkt des Bogens</translation>
    </message>
    <message>
        <source>Specify tangent direction for the start point of arc</source>
        <translation>Tangentenrichtung im Startpunkt des Bogens</translation>
    </message>
    <message>
        <source>Specify radius of arc</source>
        <translation>Radius des Bogens</translation>
    </message>
    <message>
        <source>Specify second point of arc</source>
        <translation>Zweiter Punkt des Bogens</translation>
    </message>
    <message>
        <source>Specify start point of arc</source>
        <translation>Startpunkt des Bogens</translation>
    </message>
    <message>
        <source>The angle must not be zero and must be below a full turn.</source>
        <translation>Der Winkel darf nicht null und muss kleiner als eine volle Drehung sein.</translation>
    </message>
    <message>
        <source>There is no such arc.</source>
        <translation>Einen solchen Bogen gibt es nicht.</translation>
    </message>
    <message>
        <source>Specify included angle</source>
        <translation>Eingeschlossener Winkel</translation>
    </message>
    <message>
        <source>Specify length of chord</source>
        <translation>Länge der Sehne</translation>
    </message>
    <message>
        <source>Current attribute modes:  %1</source>
        <translation>Aktuelle Attributmodi:  %1</translation>
    </message>
    <message>
        <source>A tag cannot have blanks.</source>
        <translation>Ein Bezeichner darf keine Leerzeichen haben.</translation>
    </message>
    <message>
        <source>A tag is needed.</source>
        <translation>Ein Bezeichner wird gebraucht.</translation>
    </message>
    <message>
        <source>Enter a mode to change</source>
        <translation>Zu ändernder Modus</translation>
    </message>
    <message>
        <source>Enter attribute tag name</source>
        <translation>Bezeichner des Attributs</translation>
    </message>
    <message>
        <source>There is nothing to undo.</source>
        <translation>Es gibt nichts rückgängig zu machen.</translation>
    </message>
    <message>
        <source>%1 polylines were made.</source>
        <translation>%1 Polylinien erzeugt.</translation>
    </message>
    <message>
        <source>Specify internal point</source>
        <translation>Punkt im Innern</translation>
    </message>
    <message>
        <source>There is no layer "%1".</source>
        <translation>Es gibt keinen Layer "%1".</translation>
    </message>
    <message>
        <source>%1 cannot have a thickness.</source>
        <translation>%1 kann keine Dicke haben.</translation>
    </message>
    <message>
        <source>Objects of this drawing take their plot styles from their colors.</source>
        <translation>Objekte dieser Zeichnung bekommen ihre Plotstile von ihren Farben.</translation>
    </message>
    <message>
        <source>Enter new layer name</source>
        <translation>Name des neuen Layers</translation>
    </message>
    <message>
        <source>Specify new linetype scale</source>
        <translation>Neuer Linientypfaktor</translation>
    </message>
    <message>
        <source>Specify new thickness</source>
        <translation>Neue Dicke</translation>
    </message>
    <message>
        <source>Enter property to change</source>
        <translation>Zu ändernde Eigenschaft</translation>
    </message>
    <message>
        <source>The two points must differ.</source>
        <translation>Die beiden Punkte müssen verschieden sein.</translation>
    </message>
    <message>
        <source>There is no circle through these points: they stand in a line.</source>
        <translation>Durch diese Punkte geht kein Kreis: sie liegen auf einer Geraden.</translation>
    </message>
    <message>
        <source>Specify radius of circle</source>
        <translation>Radius des Kreises</translation>
    </message>
    <message>
        <source>Specify diameter of circle</source>
        <translation>Durchmesser des Kreises</translation>
    </message>
    <message>
        <source>Specify first end point of circle's diameter</source>
        <translation>Erster Endpunkt des Durchmessers</translation>
    </message>
    <message>
        <source>Specify second end point of circle's diameter</source>
        <translation>Zweiter Endpunkt des Durchmessers</translation>
    </message>
    <message>
        <source>Specify first point on circle</source>
        <translation>Erster Punkt auf dem Kreis</translation>
    </message>
    <message>
        <source>Specify second point on circle</source>
        <translation>Zweiter Punkt auf dem Kreis</translation>
    </message>
    <message>
        <source>Specify third point on circle</source>
        <translation>Dritter Punkt auf dem Kreis</translation>
    </message>
    <message>
        <source>Specify center point for circle</source>
        <translation>Mittelpunkt des Kreises</translation>
    </message>
    <message>
        <source>Current settings: Copy mode = Single</source>
        <translation>Aktuelle Einstellung: Kopiermodus = Einzeln</translation>
    </message>
    <message>
        <source>Current settings: Copy mode = Multiple</source>
        <translation>Aktuelle Einstellung: Kopiermodus = Mehrfach</translation>
    </message>
    <message>
        <source>Enter a copy mode option</source>
        <translation>Option für den Kopiermodus</translation>
    </message>
    <message>
        <source>Specify base point</source>
        <translation>Basispunkt</translation>
    </message>
    <message>
        <source>Specify second point</source>
        <translation>Zweiter Punkt</translation>
    </message>
    <message>
        <source>Displacement</source>
        <translation>Verschiebung</translation>
    </message>
    <message>
        <source>Dimension text = %1</source>
        <translation>Maßtext = %1</translation>
    </message>
    <message>
        <source>The object cannot be dimensioned.</source>
        <translation>Das Objekt kann nicht bemaßt werden.</translation>
    </message>
    <message>
        <source>Specify dimension line location</source>
        <translation>Ort der Maßlinie</translation>
    </message>
    <message>
        <source>Specify angle of dimension text</source>
        <translation>Winkel des Maßtextes</translation>
    </message>
    <message>
        <source>Current dimension style: %1</source>
        <translation>Aktueller Bemaßungsstil: %1</translation>
    </message>
    <message>
        <source>Current dimension overrides:</source>
        <translation>Aktuelle Überschreibungen der Bemaßung:</translation>
    </message>
    <message>
        <source>Dimension styles:</source>
        <translation>Bemaßungsstile:</translation>
    </message>
    <message>
        <source>No dimension was selected.</source>
        <translation>Es wurde keine Bemaßung gewählt.</translation>
    </message>
    <message>
        <source>There is no dimension style "%1".</source>
        <translation>Es gibt keinen Bemaßungsstil "%1".</translation>
    </message>
    <message>
        <source>"%1" is no name for a dimension style: %2.</source>
        <translation>"%1" ist kein Name für einen Bemaßungsstil: %2.</translation>
    </message>
    <message>
        <source>Variables of dimension style %1:</source>
        <translation>Variablen des Bemaßungsstils %1:</translation>
    </message>
    <message>
        <source>%1 are no dimensions.</source>
        <translation>%1 sind keine Bemaßungen.</translation>
    </message>
    <message>
        <source>Enter dimension style(s) to list</source>
        <translation>Aufzulistende Bemaßungsstile</translation>
    </message>
    <message>
        <source>Enter a dimension style name</source>
        <translation>Name eines Bemaßungsstils</translation>
    </message>
    <message>
        <source>Enter name for new dimension style</source>
        <translation>Name des neuen Bemaßungsstils</translation>
    </message>
    <message>
        <source>That name is already in use, redefine it?</source>
        <translation>Der Name ist schon vergeben, neu festlegen?</translation>
    </message>
    <message>
        <source>Enter a dimension style option</source>
        <translation>Option für Bemaßungsstile</translation>
    </message>
    <message>
        <source>Specify displacement</source>
        <translation>Verschiebung angeben</translation>
    </message>
    <message>
        <source>Specify inside diameter of donut</source>
        <translation>Innendurchmesser des Rings</translation>
    </message>
    <message>
        <source>Specify outside diameter of donut</source>
        <translation>Außendurchmesser des Rings</translation>
    </message>
    <message>
        <source>Specify center of donut</source>
        <translation>Mittelpunkt des Rings</translation>
    </message>
    <message>
        <source>exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>An angle between 0 and 89.4 is needed.</source>
        <translation>Ein Winkel zwischen 0 und 89.4 wird gebraucht.</translation>
    </message>
    <message>
        <source>The ellipse would be too thin.</source>
        <translation>Die Ellipse würde zu schmal.</translation>
    </message>
    <message>
        <source>Invalid angle: degrees or a point are needed.</source>
        <translation>Ungültiger Winkel: Grad oder ein Punkt werden gebraucht.</translation>
    </message>
    <message>
        <source>Specify rotation around major axis</source>
        <translation>Drehung um die Hauptachse</translation>
    </message>
    <message>
        <source>Specify distance to other axis</source>
        <translation>Abstand zur anderen Achse</translation>
    </message>
    <message>
        <source>Specify included angle for arc</source>
        <translation>Eingeschlossener Winkel des Bogens</translation>
    </message>
    <message>
        <source>Specify center of ellipse</source>
        <translation>Mittelpunkt der Ellipse</translation>
    </message>
    <message>
        <source>Specify axis endpoint of ellipse</source>
        <translation>Achsenendpunkt der Ellipse</translation>
    </message>
    <message>
        <source>Specify axis endpoint of elliptical arc</source>
        <translation>Achsenendpunkt des elliptischen Bogens</translation>
    </message>
    <message>
        <source>"%1" is an external reference and cannot be exploded.</source>
        <translation>"%1" ist eine externe Referenz und kann nicht zerlegt werden.</translation>
    </message>
    <message>
        <source>%1 could not be exploded.</source>
        <translation>%1 konnte nicht zerlegt werden.</translation>
    </message>
    <message>
        <source>%1 of them are tables: the sizes of their letters are those of a table style, which other tables share.</source>
        <translation>%1 davon sind Tabellen: Die Größe ihrer Buchstaben ist die eines Tabellenstils, den andere Tabellen mitbenutzen.</translation>
    </message>
    <message>
        <source>Block "%1" stays whole: its %2 cannot take the shape of the insert.</source>
        <translation>Der Block "%1" bleibt ganz: %2 darin kann die Form der Einfügung nicht annehmen.</translation>
    </message>
    <message>
        <source>A font is needed.</source>
        <translation>Eine Schriftart wird gebraucht.</translation>
    </message>
    <message>
        <source>Only a shape font can have one big font.</source>
        <translation>Nur zu einer Formschrift kann es eine große Schriftart geben.</translation>
    </message>
    <message>
        <source>"%1" is no big font.</source>
        <translation>"%1" ist keine große Schriftart.</translation>
    </message>
    <message>
        <source>This area is chosen already.</source>
        <translation>Diese Fläche ist schon gewählt.</translation>
    </message>
    <message>
        <source>The point lies on a boundary. Choose a point inside of an area.</source>
        <translation>Der Punkt liegt auf einer Umgrenzung. Wählen Sie einen Punkt im Innern einer Fläche.</translation>
    </message>
    <message>
        <source>There is no closed boundary around the point.</source>
        <translation>Um den Punkt gibt es keine geschlossene Umgrenzung.</translation>
    </message>
    <message>
        <source>Gaps up to %1 are closed; HPGAPTOL changes that.</source>
        <translation>Lücken bis %1 werden geschlossen; HPGAPTOL ändert das.</translation>
    </message>
    <message>
        <source>Gaps are not closed; HPGAPTOL changes that.</source>
        <translation>Lücken werden nicht geschlossen; HPGAPTOL ändert das.</translation>
    </message>
    <message>
        <source>The objects enclose no area.</source>
        <translation>Die Objekte schließen keine Fläche ein.</translation>
    </message>
    <message>
        <source>solid</source>
        <translation>ausgefüllt</translation>
    </message>
    <message>
        <source>lines  Angle=%1  Spacing=%2</source>
        <translation>Linien  Winkel=%1  Abstand=%2</translation>
    </message>
    <message>
        <source>  Double</source>
        <translation>  Doppelt</translation>
    </message>
    <message>
        <source>gradient %1  Angle=%2</source>
        <translation>Verlauf %1  Winkel=%2</translation>
    </message>
    <message>
        <source>pattern %1  Scale=%2  Angle=%3</source>
        <translation>Muster %1  Maßstab=%2  Winkel=%3</translation>
    </message>
    <message>
        <source>Nothing was hatched.</source>
        <translation>Es wurde nichts schraffiert.</translation>
    </message>
    <message>
        <source>Current fill: %1</source>
        <translation>Aktuelle Füllung: %1</translation>
    </message>
    <message>
        <source>SOLID fills the area with a color.</source>
        <translation>SOLID füllt die Fläche mit einer Farbe.</translation>
    </message>
    <message>
        <source>There is no hatch pattern "%1".</source>
        <translation>Es gibt kein Schraffurmuster "%1".</translation>
    </message>
    <message>
        <source>The value must be between 0 and 5000.</source>
        <translation>Der Wert muss zwischen 0 und 5000 liegen.</translation>
    </message>
    <message>
        <source>Enter a pattern name or ? for a list</source>
        <translation>Name des Musters, oder ? für eine Liste</translation>
    </message>
    <message>
        <source>Specify a scale for the pattern</source>
        <translation>Maßstab des Musters</translation>
    </message>
    <message>
        <source>Specify spacing between the lines</source>
        <translation>Abstand der Linien</translation>
    </message>
    <message>
        <source>Enter a gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Fill with</source>
        <translation>Füllen mit</translation>
    </message>
    <message>
        <source>Enter hatching style</source>
        <translation>Stil der Schraffur</translation>
    </message>
    <message>
        <source>Specify the largest gap to be closed</source>
        <translation>Größte Lücke, die geschlossen wird</translation>
    </message>
    <message>
        <source>The name of a layer is needed.</source>
        <translation>Der Name eines Layers wird gebraucht.</translation>
    </message>
    <message>
        <source>Current layer: "%1"</source>
        <translation>Aktueller Layer: "%1"</translation>
    </message>
    <message>
        <source>not plotted</source>
        <translation>nicht geplottet</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>"%1" is no name for a layer: %2.</source>
        <translation>"%1" ist kein Name für einen Layer: %2.</translation>
    </message>
    <message>
        <source>Layer "%1" is frozen and cannot be made current.</source>
        <translation>Der Layer "%1" ist gefroren und kann nicht aktuell werden.</translation>
    </message>
    <message>
        <source>Layer "0" cannot be renamed.</source>
        <translation>Der Layer "0" kann nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>Layer "%1" belongs to an external reference and cannot be renamed.</source>
        <translation>Der Layer "%1" gehört zu einer externen Referenz und kann nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>No layer fits "%1".</source>
        <translation>Kein Layer passt zu "%1".</translation>
    </message>
    <message>
        <source>Layer "%1" already exists.</source>
        <translation>Der Layer "%1" besteht bereits.</translation>
    </message>
    <message>
        <source>Enter old layer name</source>
        <translation>Alter Name des Layers</translation>
    </message>
    <message>
        <source>Enter layer name(s) to list</source>
        <translation>Aufzulistende Layer</translation>
    </message>
    <message>
        <source>Enter name for new layer (becomes current)</source>
        <translation>Name des neuen Layers (wird aktuell)</translation>
    </message>
    <message>
        <source>Enter layer name to make current</source>
        <translation>Name des Layers, der aktuell wird</translation>
    </message>
    <message>
        <source>Enter name list for new layer(s)</source>
        <translation>Namen neuer Layer</translation>
    </message>
    <message>
        <source>Layer "%1" is the current layer and cannot be frozen.</source>
        <translation>Der Layer "%1" ist der aktuelle und kann nicht gefroren werden.</translation>
    </message>
    <message>
        <source>Layer "%1" is the current layer. Really turn it off?</source>
        <translation>Der Layer "%1" ist der aktuelle. Wirklich ausschalten?</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) for color %1</source>
        <translation>Namen der Layer für die Farbe %1</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) for linetype "%1"</source>
        <translation>Namen der Layer für den Linientyp "%1"</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) for lineweight %1</source>
        <translation>Namen der Layer für die Linienstärke %1</translation>
    </message>
    <message>
        <source>Enter layer name(s) for this plot preference</source>
        <translation>Namen der Layer für diese Plotangabe</translation>
    </message>
    <message>
        <source>A description has at most %1 characters.</source>
        <translation>Eine Beschreibung hat höchstens %1 Zeichen.</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) for this description</source>
        <translation>Namen der Layer für diese Beschreibung</translation>
    </message>
    <message>
        <source>Enter a plotting preference</source>
        <translation>Plotangabe</translation>
    </message>
    <message>
        <source>Enter layer description</source>
        <translation>Beschreibung des Layers</translation>
    </message>
    <message>
        <source>Enter leader format option</source>
        <translation>Option für das Format der Führungslinie</translation>
    </message>
    <message>
        <source>Specify leader start point</source>
        <translation>Startpunkt der Führungslinie</translation>
    </message>
    <message>
        <source>Specify next point</source>
        <translation>Nächster Punkt</translation>
    </message>
    <message>
        <source>All segments already undone.</source>
        <translation>Alle Abschnitte sind schon zurückgenommen.</translation>
    </message>
    <message>
        <source>Specify first point</source>
        <translation>Erster Punkt</translation>
    </message>
    <message>
        <source>Length of line</source>
        <translation>Länge der Linie</translation>
    </message>
    <message>
        <source>Specify first extension line origin</source>
        <translation>Ursprung der ersten Hilfslinie</translation>
    </message>
    <message>
        <source>Specify second extension line origin</source>
        <translation>Ursprung der zweiten Hilfslinie</translation>
    </message>
    <message>
        <source>Specify angle of dimension line</source>
        <translation>Winkel der Maßlinie</translation>
    </message>
    <message>
        <source>select object</source>
        <translation>Objekt wählen</translation>
    </message>
    <message>
        <source>No line type fits "%1".</source>
        <translation>Kein Linientyp passt zu "%1".</translation>
    </message>
    <message>
        <source>"%1" is no name for a line type: %2.</source>
        <translation>"%1" ist kein Name für einen Linientyp: %2.</translation>
    </message>
    <message>
        <source>There is a line type "%1" already.</source>
        <translation>Es gibt bereits einen Linientyp "%1".</translation>
    </message>
    <message>
        <source>A pattern consists of lengths with commas between them.</source>
        <translation>Ein Muster besteht aus Längen mit Kommas dazwischen.</translation>
    </message>
    <message>
        <source>There is no file "%1".</source>
        <translation>Es gibt keine Datei "%1".</translation>
    </message>
    <message>
        <source>Linetype "%1" is already loaded. Reload it?</source>
        <translation>Der Linientyp "%1" ist schon geladen. Neu laden?</translation>
    </message>
    <message>
        <source>Linetype "%1" loaded.</source>
        <translation>Linientyp "%1" geladen.</translation>
    </message>
    <message>
        <source>The file has no line type "%1".</source>
        <translation>Die Datei hat keinen Linientyp "%1".</translation>
    </message>
    <message>
        <source>Current line type: "%1"</source>
        <translation>Aktueller Linientyp: "%1"</translation>
    </message>
    <message>
        <source>Enter linetype name(s) to list</source>
        <translation>Aufzulistende Linientypen</translation>
    </message>
    <message>
        <source>Enter name of linetype to create</source>
        <translation>Name des neuen Linientyps</translation>
    </message>
    <message>
        <source>Descriptive text</source>
        <translation>Beschreibender Text</translation>
    </message>
    <message>
        <source>Enter linetype pattern: A</source>
        <translation>Muster des Linientyps: A</translation>
    </message>
    <message>
        <source>Enter name of linetype file</source>
        <translation>Name der Linientypdatei</translation>
    </message>
    <message>
        <source>Enter linetype(s) to load</source>
        <translation>Zu ladende Linientypen</translation>
    </message>
    <message>
        <source>Select destination objects</source>
        <translation>Zielobjekte wählen</translation>
    </message>
    <message>
        <source>Specify first point of mirror line</source>
        <translation>Erster Punkt der Spiegelachse</translation>
    </message>
    <message>
        <source>Specify second point of mirror line</source>
        <translation>Zweiter Punkt der Spiegelachse</translation>
    </message>
    <message>
        <source>Erase source objects?</source>
        <translation>Quellobjekte löschen?</translation>
    </message>
    <message>
        <source>use first point as displacement</source>
        <translation>ersten Punkt als Verschiebung nehmen</translation>
    </message>
    <message>
        <source>A factor from 0.25x to 4x or a distance of as much is needed.</source>
        <translation>Ein Faktor von 0.25x bis 4x oder ein Abstand in diesem Maß wird gebraucht.</translation>
    </message>
    <message>
        <source>Current text style: "%1"  Text height: %2</source>
        <translation>Aktueller Textstil: "%1"  Texthöhe: %2</translation>
    </message>
    <message>
        <source>Enter justification</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Enter line spacing type</source>
        <translation>Art des Zeilenabstands</translation>
    </message>
    <message>
        <source>Enter line spacing factor or distance</source>
        <translation>Faktor oder Abstand der Zeilen</translation>
    </message>
    <message>
        <source>Specify height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Specify first corner</source>
        <translation>Erste Ecke</translation>
    </message>
    <message>
        <source>Specify width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>MText</source>
        <translation>MText</translation>
    </message>
    <message>
        <source>Current settings: Erase source=%1  Layer=%2</source>
        <translation>Aktuelle Einstellungen: Quelle löschen=%1  Layer=%2</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>The object cannot be offset there.</source>
        <translation>Dort kann kein Parallelobjekt stehen.</translation>
    </message>
    <message>
        <source>That object cannot be offset.</source>
        <translation>Von diesem Objekt gibt es keine Parallele.</translation>
    </message>
    <message>
        <source>Specify offset distance</source>
        <translation>Abstand der Parallele</translation>
    </message>
    <message>
        <source>Erase source object after offsetting?</source>
        <translation>Quellobjekt danach löschen?</translation>
    </message>
    <message>
        <source>Enter layer option for offset objects</source>
        <translation>Layer für Parallelobjekte</translation>
    </message>
    <message>
        <source>Current point modes:  PDMODE=%1  PDSIZE=%2</source>
        <translation>Aktuelle Punktmodi:  PDMODE=%1  PDSIZE=%2</translation>
    </message>
    <message>
        <source>Specify a point</source>
        <translation>Punkt angeben</translation>
    </message>
    <message>
        <source>A whole number between %1 and %2 is needed.</source>
        <translation>Eine ganze Zahl zwischen %1 und %2 wird gebraucht.</translation>
    </message>
    <message>
        <source>A distance greater than zero is needed.</source>
        <translation>Ein Abstand größer als null wird gebraucht.</translation>
    </message>
    <message>
        <source>Enter number of sides</source>
        <translation>Anzahl der Seiten</translation>
    </message>
    <message>
        <source>Specify first endpoint of edge</source>
        <translation>Erster Endpunkt der Kante</translation>
    </message>
    <message>
        <source>Specify second endpoint of edge</source>
        <translation>Zweiter Endpunkt der Kante</translation>
    </message>
    <message>
        <source>Specify center of polygon</source>
        <translation>Mittelpunkt des Polygons</translation>
    </message>
    <message>
        <source>Specify direction of chord for arc</source>
        <translation>Richtung der Bogensehne</translation>
    </message>
    <message>
        <source>Specify endpoint of arc</source>
        <translation>Endpunkt des Bogens angeben</translation>
    </message>
    <message>
        <source>Specify the tangent direction for the start point of arc</source>
        <translation>Tangentenrichtung im Startpunkt des Bogens angeben</translation>
    </message>
    <message>
        <source>Specify endpoint of the arc</source>
        <translation>Endpunkt von diesem Bogen</translation>
    </message>
    <message>
        <source>Specify second point on arc</source>
        <translation>Zweiter Punkt auf dem Bogen</translation>
    </message>
    <message>
        <source>Current line-width is %1</source>
        <translation>Aktuelle Linienbreite: %1</translation>
    </message>
    <message>
        <source>Specify length of line</source>
        <translation>Länge der Linie angeben</translation>
    </message>
    <message>
        <source>Specify start point</source>
        <translation>Startpunkt</translation>
    </message>
    <message>
        <source>Three numbers from 0 to 255 with commas between them are needed.</source>
        <translation>Drei Zahlen von 0 bis 255 mit Kommas dazwischen werden gebraucht.</translation>
    </message>
    <message>
        <source>A color is needed: a name, a number from 1 to 255, or red,green,blue.</source>
        <translation>Eine Farbe wird gebraucht: ein Name, eine Zahl von 1 bis 255, oder Rot,Grün,Blau.</translation>
    </message>
    <message>
        <source>A layer cannot have the line type "%1".</source>
        <translation>Ein Layer kann den Linientyp "%1" nicht haben.</translation>
    </message>
    <message>
        <source>A width from 0.0 to 2.11 millimetres or Default is needed.</source>
        <translation>Eine Stärke von 0.0 bis 2.11 Millimetern oder Vorgabe wird gebraucht.</translation>
    </message>
    <message>
        <source>A whole number from 0 to 90, ByLayer or ByBlock is needed.</source>
        <translation>Eine ganze Zahl von 0 bis 90, ByLayer oder ByBlock wird gebraucht.</translation>
    </message>
    <message>
        <source>There is no plot style "%1".</source>
        <translation>Es gibt keinen Plotstil "%1".</translation>
    </message>
    <message>
        <source>Enter Red,Green,Blue</source>
        <translation>Rot,Grün,Blau</translation>
    </message>
    <message>
        <source>Enter color book name</source>
        <translation>Name des Farbbuchs</translation>
    </message>
    <message>
        <source>Enter color name</source>
        <translation>Name der Farbe</translation>
    </message>
    <message>
        <source>The object is no arc and no circle.</source>
        <translation>Das Objekt ist weder Bogen noch Kreis.</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>er ist leer</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>er ist länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>the character %1 is not allowed</source>
        <translation>das Zeichen %1 ist nicht erlaubt</translation>
    </message>
    <message>
        <source>control characters are not allowed</source>
        <translation>Steuerzeichen sind nicht erlaubt</translation>
    </message>
    <message>
        <source>it begins or ends with a blank</source>
        <translation>er beginnt oder endet mit einem Leerzeichen</translation>
    </message>
    <message>
        <source>"%1" belongs to an external reference.</source>
        <translation>"%1" gehört zu einer externen Referenz.</translation>
    </message>
    <message>
        <source>Chamfer=%1 x %2</source>
        <translation>Fase=%1 x %2</translation>
    </message>
    <message>
        <source>Rotation=%1</source>
        <translation>Drehung=%1</translation>
    </message>
    <message>
        <source>Current rectangle modes: %1</source>
        <translation>Aktuelle Modi des Rechtecks: %1</translation>
    </message>
    <message>
        <source>The corners must differ in both directions.</source>
        <translation>Die Ecken müssen sich in beiden Richtungen unterscheiden.</translation>
    </message>
    <message>
        <source>Specify first chamfer distance for rectangles</source>
        <translation>Erster Fasenabstand für Rechtecke</translation>
    </message>
    <message>
        <source>Specify second chamfer distance for rectangles</source>
        <translation>Zweiter Fasenabstand für Rechtecke</translation>
    </message>
    <message>
        <source>Specify the elevation for rectangles</source>
        <translation>Erhebung für Rechtecke</translation>
    </message>
    <message>
        <source>Specify fillet radius for rectangles</source>
        <translation>Rundungsradius für Rechtecke</translation>
    </message>
    <message>
        <source>Specify thickness for rectangles</source>
        <translation>Dicke für Rechtecke</translation>
    </message>
    <message>
        <source>Specify line width for rectangles</source>
        <translation>Linienbreite für Rechtecke</translation>
    </message>
    <message>
        <source>Specify first corner point</source>
        <translation>Erster Eckpunkt</translation>
    </message>
    <message>
        <source>Enter area of rectangle in current units</source>
        <translation>Fläche des Rechtecks in aktuellen Einheiten</translation>
    </message>
    <message>
        <source>Calculate rectangle dimensions based on</source>
        <translation>Abmessungen des Rechtecks berechnen aus</translation>
    </message>
    <message>
        <source>Specify length for rectangles</source>
        <translation>Länge für Rechtecke</translation>
    </message>
    <message>
        <source>Specify width for rectangles</source>
        <translation>Breite für Rechtecke</translation>
    </message>
    <message>
        <source>Specify other corner point</source>
        <translation>Anderer Eckpunkt</translation>
    </message>
    <message>
        <source>Rotating a copy of the selected objects.</source>
        <translation>Eine Kopie der gewählten Objekte wird gedreht.</translation>
    </message>
    <message>
        <source>Specify the reference angle</source>
        <translation>Bezugswinkel</translation>
    </message>
    <message>
        <source>Specify the new angle</source>
        <translation>Neuer Winkel</translation>
    </message>
    <message>
        <source>Scaling a copy of the selected objects.</source>
        <translation>Eine Kopie der gewählten Objekte wird skaliert.</translation>
    </message>
    <message>
        <source>Specify reference length</source>
        <translation>Bezugslänge</translation>
    </message>
    <message>
        <source>Specify new length</source>
        <translation>Neue Länge</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>%1 gewählt</translation>
    </message>
    <message>
        <source>Enter type(s) of objects</source>
        <translation>Arten der Objekte</translation>
    </message>
    <message>
        <source>Enter layer name(s)</source>
        <translation>Namen der Layer</translation>
    </message>
    <message>
        <source>Enter linetype name(s)</source>
        <translation>Namen der Linientypen</translation>
    </message>
    <message>
        <source>Include what fits in the set, or exclude it</source>
        <translation>Passendes in die Auswahl aufnehmen oder davon ausnehmen</translation>
    </message>
    <message>
        <source>Requires a whole number</source>
        <translation>Verlangt wird eine ganze Zahl</translation>
    </message>
    <message>
        <source>Requires a number</source>
        <translation>Verlangt wird eine Zahl</translation>
    </message>
    <message>
        <source>%1 greater than zero.</source>
        <translation>%1 größer als null.</translation>
    </message>
    <message>
        <source>%1 between %2 and %3.</source>
        <translation>%1 zwischen %2 und %3.</translation>
    </message>
    <message>
        <source>%1 of at least %2.</source>
        <translation>%1 von mindestens %2.</translation>
    </message>
    <message>
        <source>%1 of at most %2.</source>
        <translation>%1 von höchstens %2.</translation>
    </message>
    <message>
        <source>Requires a point: x,y or x,y,z.</source>
        <translation>Verlangt wird ein Punkt: x,y oder x,y,z.</translation>
    </message>
    <message>
        <source>Requires a color: a name, a number from 0 to 256, or r,g,b.</source>
        <translation>Verlangt wird eine Farbe: ein Name, eine Zahl von 0 bis 256, oder r,g,b.</translation>
    </message>
    <message>
        <source>Requires a single character.</source>
        <translation>Verlangt wird ein einzelnes Zeichen.</translation>
    </message>
    <message>
        <source>The value cannot be set: there is nothing of that name, or it cannot be used.</source>
        <translation>Der Wert kann nicht gesetzt werden: es gibt nichts mit diesem Namen, oder es ist nicht zu gebrauchen.</translation>
    </message>
    <message>
        <source>  (read only)</source>
        <translation>  (nur lesbar)</translation>
    </message>
    <message>
        <source>No variable fits "%1".</source>
        <translation>Keine Variable passt zu "%1".</translation>
    </message>
    <message>
        <source>Unknown variable name "%1". Type SETVAR ? for a list of variables.</source>
        <translation>Unbekannte Variable "%1". SETVAR ? listet die Variablen auf.</translation>
    </message>
    <message>
        <source>Unknown variable name "%1".</source>
        <translation>Unbekannte Variable "%1".</translation>
    </message>
    <message>
        <source>%1 = %2 (read only)</source>
        <translation>%1 = %2 (nur lesbar)</translation>
    </message>
    <message>
        <source>Enter new value for %1</source>
        <translation>Neuer Wert für %1</translation>
    </message>
    <message>
        <source>Enter variable name or ?</source>
        <translation>Name der Variablen oder ?</translation>
    </message>
    <message>
        <source>Enter variable(s) to list</source>
        <translation>Aufzulistende Variablen</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>natural</source>
        <translation>natürlich</translation>
    </message>
    <message>
        <source>Text styles:</source>
        <translation>Textstile:</translation>
    </message>
    <message>
        <source>  %1  Font: %2  Height: %3  Width factor: %4  Obliquing angle: %5</source>
        <translation>  %1  Schriftart: %2  Höhe: %3  Breitenfaktor: %4  Neigung: %5</translation>
    </message>
    <message>
        <source>Existing style.</source>
        <translation>Vorhandener Stil.</translation>
    </message>
    <message>
        <source>it stands for a shape file</source>
        <translation>er steht für eine Formdatei</translation>
    </message>
    <message>
        <source>"%1" is no name for a text style: %2.</source>
        <translation>"%1" ist kein Name für einen Textstil: %2.</translation>
    </message>
    <message>
        <source>New style.</source>
        <translation>Neuer Stil.</translation>
    </message>
    <message>
        <source>A number between %1 and %2 is needed.</source>
        <translation>Eine Zahl zwischen %1 und %2 wird gebraucht.</translation>
    </message>
    <message>
        <source>An angle between -85 and 85 is needed.</source>
        <translation>Ein Winkel zwischen -85 und 85 wird gebraucht.</translation>
    </message>
    <message>
        <source>"%1" is now the current text style.</source>
        <translation>"%1" ist jetzt der aktuelle Textstil.</translation>
    </message>
    <message>
        <source>Enter name of text style</source>
        <translation>Name des Textstils</translation>
    </message>
    <message>
        <source>Enter text style(s) to list</source>
        <translation>Aufzulistende Textstile</translation>
    </message>
    <message>
        <source>Specify full font name or font filename</source>
        <translation>Name der Schriftart oder ihrer Datei</translation>
    </message>
    <message>
        <source>Specify obliquing angle</source>
        <translation>Neigungswinkel</translation>
    </message>
    <message>
        <source>Specify height of text</source>
        <translation>Höhe des Textes</translation>
    </message>
    <message>
        <source>Enter text</source>
        <translation>Text eingeben</translation>
    </message>
    <message>
        <source>Specify second endpoint of text baseline</source>
        <translation>Zweiter Endpunkt der Textgrundlinie</translation>
    </message>
    <message>
        <source>Specify rotation angle of text</source>
        <translation>Drehwinkel des Textes</translation>
    </message>
    <message>
        <source>  %1  Font: %2  Height: %3</source>
        <translation>  %1  Schriftart: %2  Höhe: %3</translation>
    </message>
    <message>
        <source>There is no text style "%1".</source>
        <translation>Es gibt keinen Textstil "%1".</translation>
    </message>
    <message>
        <source>Enter style name</source>
        <translation>Name des Stils</translation>
    </message>
    <message>
        <source>The beginning of the group is reached.</source>
        <translation>Der Anfang der Gruppe ist erreicht.</translation>
    </message>
    <message>
        <source>Mark encountered.</source>
        <translation>Markierung erreicht.</translation>
    </message>
    <message>
        <source>Everything has been undone.</source>
        <translation>Alles wurde rückgängig gemacht.</translation>
    </message>
    <message>
        <source>There is nothing to redo.</source>
        <translation>Es gibt nichts wiederherzustellen.</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>No group is open.</source>
        <translation>Keine Gruppe ist offen.</translation>
    </message>
    <message>
        <source>This will undo everything. OK?</source>
        <translation>Damit wird alles rückgängig gemacht. In Ordnung?</translation>
    </message>
    <message>
        <source>Enter the number of operations to undo</source>
        <translation>Anzahl der rückgängig zu machenden Schritte</translation>
    </message>
    <message>
        <source>No previous view saved.</source>
        <translation>Es gibt keine vorherige Ansicht.</translation>
    </message>
    <message>
        <source>A height or a magnification (nX or nXP) above zero is needed.</source>
        <translation>Eine Höhe oder Vergrößerung (nX oder nXP) über null wird gebraucht.</translation>
    </message>
    <message>
        <source>A scale factor above zero is needed.</source>
        <translation>Ein Skalierfaktor über null wird gebraucht.</translation>
    </message>
    <message>
        <source>The corners must differ.</source>
        <translation>Die Ecken müssen verschieden sein.</translation>
    </message>
    <message>
        <source>A corner of a window, a scale factor or an option is needed.</source>
        <translation>Eine Fensterecke, ein Skalierfaktor oder eine Option wird gebraucht.</translation>
    </message>
    <message>
        <source>The view would be too small or too large to be drawn.</source>
        <translation>Die Ansicht wäre zum Zeichnen zu klein oder zu groß.</translation>
    </message>
    <message>
        <source>Specify center point</source>
        <translation>Mittelpunkt</translation>
    </message>
    <message>
        <source>Enter magnification or height</source>
        <translation>Vergrößerung oder Höhe</translation>
    </message>
    <message>
        <source>Enter a scale factor (nX or nXP)</source>
        <translation>Skalierfaktor (nX oder nXP)</translation>
    </message>
    <message>
        <source>Specify corner of window, enter a scale factor (nX or nXP)</source>
        <translation>Fensterecke oder Skalierfaktor (nX oder nXP)</translation>
    </message>
    <message>
        <source>%1 holds content that Drafton cannot write (%2): saving over it would lose it. Save the drawing under another name.</source>
        <translation>%1 enthält, was Drafton nicht schreiben kann (%2): beim Speichern ginge es verloren. Speichern Sie die Zeichnung unter einem anderen Namen.</translation>
    </message>
    <message>
        <source>The drawing was read as %1 and is saved as %2.</source>
        <translation>Die Zeichnung wurde als %1 gelesen und wird als %2 gespeichert.</translation>
    </message>
    <message>
        <source>Another program has changed %1 since it was opened. Save over it?</source>
        <translation>Ein anderes Programm hat %1 seit dem Öffnen geändert. Trotzdem darüber speichern?</translation>
    </message>
    <message>
        <source>%1 exists. Replace it?</source>
        <translation>%1 besteht. Ersetzen?</translation>
    </message>
    <message>
        <source>The drawing cannot be opened. %1: %2</source>
        <translation>Die Zeichnung kann nicht geöffnet werden. %1: %2</translation>
    </message>
    <message>
        <source>Enter the version of DXF</source>
        <translation>DXF-Version</translation>
    </message>
    <message>
        <source>Enter the file name</source>
        <translation>Name der Datei</translation>
    </message>
    <message>
        <source>Enter the name of the drawing to open</source>
        <translation>Name der zu öffnenden Zeichnung</translation>
    </message>
    <message>
        <source>Enter the name of the setting</source>
        <translation>Name der Einstellung</translation>
    </message>
    <message>
        <source>Enter the new value</source>
        <translation>Neuer Wert</translation>
    </message>
    <message>
        <source>%1 holds content that Drafton does not understand: %2.</source>
        <translation>%1 enthält, was Drafton nicht versteht: %2.</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>It is open for reading; it can be saved under another name only.</source>
        <translation>Sie ist zum Lesen geöffnet; gespeichert werden kann sie nur unter einem anderen Namen.</translation>
    </message>
    <message>
        <source>there is no place for the conversion: %1</source>
        <translation>für die Umwandlung ist kein Platz: %1</translation>
    </message>
    <message>
        <source>DWG drawings are read and written by a converter, and none is set. Set its command line with the command SETTING under the name %1; {input} and {output} stand for the two files.</source>
        <translation>DWG-Zeichnungen liest und schreibt ein Umwandler, und es ist keiner eingestellt. Stellen Sie seine Befehlszeile mit dem Befehl SETTING unter dem Namen %1 ein; {input} und {output} stehen für die beiden Dateien.</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>es gibt keine solche Datei</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>%1. It said: %2</source>
        <translation>%1. Gesagt hat er: %2</translation>
    </message>
    <message>
        <source>the converter's command line "%1" has to hold {input} and {output}</source>
        <translation>die Befehlszeile "%1" des Umwandlers muss {input} und {output} enthalten</translation>
    </message>
    <message>
        <source>the converter %1 does not start: %2</source>
        <translation>der Umwandler %1 startet nicht: %2</translation>
    </message>
    <message>
        <source>the conversion was cancelled</source>
        <translation>die Umwandlung wurde abgebrochen</translation>
    </message>
    <message>
        <source>the converter %1 was stopped, since it did not end within %2 seconds</source>
        <translation>der Umwandler %1 wurde angehalten, weil er nach %2 Sekunden nicht fertig war</translation>
    </message>
    <message>
        <source>the converter %1 crashed</source>
        <translation>der Umwandler %1 ist abgestürzt</translation>
    </message>
    <message>
        <source>the converter %1 failed with exit code %2</source>
        <translation>der Umwandler %1 ist mit dem Code %2 fehlgeschlagen</translation>
    </message>
    <message>
        <source>the converter %1 made no file</source>
        <translation>der Umwandler %1 hat keine Datei erzeugt</translation>
    </message>
    <message>
        <source>The module %1 is not loaded: %2.</source>
        <translation>Das Modul %1 ist nicht geladen: %2.</translation>
    </message>
    <message>
        <source>The startup command "%1" is not known.</source>
        <translation>Der Startbefehl "%1" ist nicht bekannt.</translation>
    </message>
    <message>
        <source>%1 or [%2]</source>
        <translation>%1 oder [%2]</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message>
        <source>No filter.</source>
        <translation>Kein Filter.</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source>%1 found, %2 in total</source>
        <translation>%1 gefunden, %2 insgesamt</translation>
    </message>
    <message>
        <source>Nothing was found there.</source>
        <translation>Dort wurde nichts gefunden.</translation>
    </message>
    <message>
        <source>Specify next fence point</source>
        <translation>Nächster Zaunpunkt</translation>
    </message>
    <message>
        <source>Enter what to filter by</source>
        <translation>Wonach gefiltert wird</translation>
    </message>
    <message>
        <source>Enter the handle</source>
        <translation>Referenz (Handle)</translation>
    </message>
    <message>
        <source>Remove objects</source>
        <translation>Objekte entfernen</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>es ist ein Ordner</translation>
    </message>
    <message>
        <source>it cannot be read</source>
        <translation>sie kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>ihr Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be used: %2. Settings of this run are not kept.</source>
        <translation>Die Einstellungsdatei %1 ist nicht zu gebrauchen: %2. Einstellungen dieses Laufs werden nicht behalten.</translation>
    </message>
    <message>
        <source>it holds lines that are no settings</source>
        <translation>sie enthält Zeilen, die keine Einstellungen sind</translation>
    </message>
    <message>
        <source>it cannot be written</source>
        <translation>sie kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be written.</source>
        <translation>Die Einstellungsdatei %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message>
        <source>_USER</source>
        <translation>_USER</translation>
    </message>
    <message>
        <source>The script ends while %1 waits for input.</source>
        <translation>Das Skript endet, während %1 auf eine Eingabe wartet.</translation>
    </message>
    <message>
        <source>The line is longer than %1 bytes.</source>
        <translation>Die Zeile ist länger als %1 Bytes.</translation>
    </message>
    <message>
        <source>There is no tool "%1".</source>
        <translation>Es gibt kein Werkzeug "%1".</translation>
    </message>
    <message>
        <source>There is no open drawing "%1".</source>
        <translation>Es ist keine Zeichnung "%1" geöffnet.</translation>
    </message>
    <message>
        <source>Enter layout to copy</source>
        <translation>Zu kopierendes Layout</translation>
    </message>
    <message>
        <source>Enter name for copied layout</source>
        <translation>Name des kopierten Layouts</translation>
    </message>
    <message>
        <source>Enter new layout name</source>
        <translation>Neuer Name des Layouts</translation>
    </message>
    <message>
        <source>Enter name of layout to delete</source>
        <translation>Name des zu löschenden Layouts</translation>
    </message>
    <message>
        <source>Enter layout to rename</source>
        <translation>Umzubenennendes Layout</translation>
    </message>
    <message>
        <source>Enter layout to make current</source>
        <translation>Layout, das aktuell wird</translation>
    </message>
    <message>
        <source>Specify left margin</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>Specify bottom margin</source>
        <translation>Unterer Rand</translation>
    </message>
    <message>
        <source>Specify right margin</source>
        <translation>Rechter Rand</translation>
    </message>
    <message>
        <source>Specify top margin</source>
        <translation>Oberer Rand</translation>
    </message>
    <message>
        <source>Enter scale factor</source>
        <translation>Skalierfaktor eingeben</translation>
    </message>
    <message>
        <source>Enter Y scale factor</source>
        <translation>Skalierfaktor in Y</translation>
    </message>
    <message>
        <source>Enter Z scale factor</source>
        <translation>Skalierfaktor in Z</translation>
    </message>
    <message>
        <source>Enter scale factor for XYZ axes</source>
        <translation>Skalierfaktor in X, Y und Z</translation>
    </message>
    <message>
        <source>The file of "%1" cannot be read: %3</source>
        <translation>Die Datei von "%1" kann nicht gelesen werden: %3</translation>
    </message>
    <message>
        <source>Enter reference(s) whose path changes</source>
        <translation>Referenzen, deren Pfad sich ändert</translation>
    </message>
    <message>
        <source>Enter reference(s) to detach</source>
        <translation>Abzuhängende Referenzen</translation>
    </message>
    <message>
        <source>Enter reference(s) to bind</source>
        <translation>Zu bindende Referenzen</translation>
    </message>
    <message>
        <source>Enter reference(s) to unload</source>
        <translation>Zu entladende Referenzen</translation>
    </message>
    <message>
        <source>Enter reference(s) to reload</source>
        <translation>Neu zu ladende Referenzen</translation>
    </message>
    <message>
        <source>Select object</source>
        <translation>Objekt wählen</translation>
    </message>
    <message>
        <source>Lock position=%1</source>
        <translation>Ort sperren=%1</translation>
    </message>
    <message>
        <source>Enter constant attribute value</source>
        <translation>Fester Wert des Attributs</translation>
    </message>
    <message>
        <source>Enter attribute prompt</source>
        <translation>Frage nach dem Attribut</translation>
    </message>
    <message>
        <source>Enter default attribute value</source>
        <translation>Vorgabe für den Wert des Attributs</translation>
    </message>
    <message>
        <source>There is no attribute to go on from.</source>
        <translation>Es gibt kein Attribut zum Fortsetzen.</translation>
    </message>
    <message>
        <source>New color</source>
        <translation>Neue Farbe</translation>
    </message>
    <message>
        <source>Enter new linetype name</source>
        <translation>Neuer Linientyp</translation>
    </message>
    <message>
        <source>Enter new lineweight</source>
        <translation>Neue Linienstärke</translation>
    </message>
    <message>
        <source>Enter new transparency value</source>
        <translation>Neue Transparenz</translation>
    </message>
    <message>
        <source>Enter new plot style</source>
        <translation>Neuer Plotstil</translation>
    </message>
    <message>
        <source>Enter default object color</source>
        <translation>Farbe neuer Objekte</translation>
    </message>
    <message>
        <source>Enter default lineweight for new objects</source>
        <translation>Linienstärke neuer Objekte</translation>
    </message>
    <message>
        <source>Enter dimension text</source>
        <translation>Maßtext</translation>
    </message>
    <message>
        <source>Select dimension</source>
        <translation>Bemaßung wählen</translation>
    </message>
    <message>
        <source>Specify start parameter</source>
        <translation>Startparameter</translation>
    </message>
    <message>
        <source>Specify end parameter</source>
        <translation>Endparameter</translation>
    </message>
    <message>
        <source>Specify start angle</source>
        <translation>Startwinkel</translation>
    </message>
    <message>
        <source>Specify end angle</source>
        <translation>Endwinkel</translation>
    </message>
    <message>
        <source>Specify endpoint of axis</source>
        <translation>Endpunkt der Achse</translation>
    </message>
    <message>
        <source>Specify other endpoint of axis</source>
        <translation>Anderer Endpunkt der Achse</translation>
    </message>
    <message>
        <source>Enter the hatch color</source>
        <translation>Farbe der Schraffur</translation>
    </message>
    <message>
        <source>Specify an angle for the pattern</source>
        <translation>Winkel des Musters</translation>
    </message>
    <message>
        <source>Specify angle for crosshatch lines</source>
        <translation>Winkel der Schraffurlinien</translation>
    </message>
    <message>
        <source>Double hatch area?</source>
        <translation>Fläche doppelt schraffieren?</translation>
    </message>
    <message>
        <source>Specify an angle for the gradient</source>
        <translation>Winkel des Verlaufs</translation>
    </message>
    <message>
        <source>Center the gradient?</source>
        <translation>Verlauf zentrieren?</translation>
    </message>
    <message>
        <source>Enter the first color</source>
        <translation>Erste Farbe</translation>
    </message>
    <message>
        <source>Enter the second color</source>
        <translation>Zweite Farbe</translation>
    </message>
    <message>
        <source>Keep the hatch with its boundary?</source>
        <translation>Schraffur an ihre Umgrenzung binden?</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to turn on</source>
        <translation>Namen der einzuschaltenden Layer</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to turn off</source>
        <translation>Namen der auszuschaltenden Layer</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to freeze</source>
        <translation>Namen der zu frierenden Layer</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to thaw</source>
        <translation>Namen der zu tauenden Layer</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to lock</source>
        <translation>Namen der zu sperrenden Layer</translation>
    </message>
    <message>
        <source>Enter name list of layer(s) to unlock</source>
        <translation>Namen der zu entsperrenden Layer</translation>
    </message>
    <message>
        <source>Enter loaded linetype name</source>
        <translation>Name eines geladenen Linientyps</translation>
    </message>
    <message>
        <source>Enter lineweight (0.0mm - 2.11mm)</source>
        <translation>Linienstärke (0.0mm - 2.11mm)</translation>
    </message>
    <message>
        <source>Enter first line of annotation text</source>
        <translation>Erste Zeile der Beschriftung</translation>
    </message>
    <message>
        <source>Enter next line of annotation text</source>
        <translation>Nächste Zeile der Beschriftung</translation>
    </message>
    <message>
        <source>Select object to dimension</source>
        <translation>Zu bemaßendes Objekt wählen</translation>
    </message>
    <message>
        <source>Specify linetype name</source>
        <translation>Name des Linientyps</translation>
    </message>
    <message>
        <source>Select source object</source>
        <translation>Quellobjekt wählen</translation>
    </message>
    <message>
        <source>Specify through point</source>
        <translation>Punkt auf der Parallele</translation>
    </message>
    <message>
        <source>Specify point on side to offset</source>
        <translation>Punkt auf der Seite der Parallele</translation>
    </message>
    <message>
        <source>Select object to offset</source>
        <translation>Objekt für die Parallele wählen</translation>
    </message>
    <message>
        <source>Specify starting half-width</source>
        <translation>Halbe Anfangsbreite</translation>
    </message>
    <message>
        <source>Specify starting width</source>
        <translation>Anfangsbreite</translation>
    </message>
    <message>
        <source>Specify ending half-width</source>
        <translation>Halbe Endbreite</translation>
    </message>
    <message>
        <source>Specify ending width</source>
        <translation>Endbreite</translation>
    </message>
    <message>
        <source>Select arc or circle</source>
        <translation>Bogen oder Kreis wählen</translation>
    </message>
    <message>
        <source>Enter rectangle length</source>
        <translation>Länge des Rechtecks</translation>
    </message>
    <message>
        <source>Enter rectangle width</source>
        <translation>Breite des Rechtecks</translation>
    </message>
    <message>
        <source>Enter color</source>
        <translation>Farbe eingeben</translation>
    </message>
    <message>
        <source>Specify tangent</source>
        <translation>Tangente</translation>
    </message>
    <message>
        <source>Specify start tangent</source>
        <translation>Tangente am Anfang</translation>
    </message>
    <message>
        <source>Specify end tangent</source>
        <translation>Tangente am Ende</translation>
    </message>
    <message>
        <source>Specify width factor</source>
        <translation>Breitenfaktor</translation>
    </message>
    <message>
        <source>Display text backwards?</source>
        <translation>Text rückwärts zeigen?</translation>
    </message>
    <message>
        <source>Display text upside-down?</source>
        <translation>Text kopfüber zeigen?</translation>
    </message>
    <message>
        <source>There is no text to go on from.</source>
        <translation>Es gibt keinen Text zum Fortsetzen.</translation>
    </message>
    <message>
        <source>Specify start point of text</source>
        <translation>Startpunkt des Textes</translation>
    </message>
    <message>
        <source>Specify center point of text</source>
        <translation>Mitte der Grundlinie des Textes</translation>
    </message>
    <message>
        <source>Specify right endpoint of text baseline</source>
        <translation>Rechter Endpunkt der Textgrundlinie</translation>
    </message>
    <message>
        <source>Specify first endpoint of text baseline</source>
        <translation>Erster Endpunkt der Textgrundlinie</translation>
    </message>
    <message>
        <source>Specify middle point of text</source>
        <translation>Mitte des Textes</translation>
    </message>
    <message>
        <source>Specify top-left point of text</source>
        <translation>Punkt links oben am Text</translation>
    </message>
    <message>
        <source>Specify top-center point of text</source>
        <translation>Punkt oben in der Mitte des Textes</translation>
    </message>
    <message>
        <source>Specify top-right point of text</source>
        <translation>Punkt rechts oben am Text</translation>
    </message>
    <message>
        <source>Specify middle-left point of text</source>
        <translation>Punkt links in der Mitte des Textes</translation>
    </message>
    <message>
        <source>Specify middle-right point of text</source>
        <translation>Punkt rechts in der Mitte des Textes</translation>
    </message>
    <message>
        <source>Specify bottom-left point of text</source>
        <translation>Punkt links unten am Text</translation>
    </message>
    <message>
        <source>Specify bottom-center point of text</source>
        <translation>Punkt unten in der Mitte des Textes</translation>
    </message>
    <message>
        <source>Specify bottom-right point of text</source>
        <translation>Punkt rechts unten am Text</translation>
    </message>
    <message>
        <source>Select cutting edges; Enter takes everything.</source>
        <translation>Schneidende Kanten wählen; Enter nimmt alles.</translation>
    </message>
    <message>
        <source>Select object to trim</source>
        <translation>Zu stutzendes Objekt wählen</translation>
    </message>
    <message>
        <source>The object does not cross a cutting edge there.</source>
        <translation>Das Objekt schneidet dort keine schneidende Kante.</translation>
    </message>
    <message>
        <source>Select boundary edges; Enter takes everything.</source>
        <translation>Grenzkanten wählen; Enter nimmt alles.</translation>
    </message>
    <message>
        <source>Select object to extend</source>
        <translation>Zu dehnendes Objekt wählen</translation>
    </message>
    <message>
        <source>The object does not reach a boundary edge from there.</source>
        <translation>Das Objekt erreicht von dort keine Grenzkante.</translation>
    </message>
    <message>
        <source>Invalid point.</source>
        <translation>Ungültiger Punkt.</translation>
    </message>
    <message>
        <source>A point is needed.</source>
        <translation>Ein Punkt wird gebraucht.</translation>
    </message>
    <message>
        <source>Invalid distance: a number or a point is needed.</source>
        <translation>Ungültiger Abstand: eine Zahl oder ein Punkt wird gebraucht.</translation>
    </message>
    <message>
        <source>A distance is needed: a number or a point.</source>
        <translation>Ein Abstand wird gebraucht: eine Zahl oder ein Punkt.</translation>
    </message>
    <message>
        <source>An angle is needed: degrees or a point.</source>
        <translation>Ein Winkel wird gebraucht: Grad oder ein Punkt.</translation>
    </message>
    <message>
        <source>Invalid whole number.</source>
        <translation>Ungültige ganze Zahl.</translation>
    </message>
    <message>
        <source>A whole number is needed.</source>
        <translation>Eine ganze Zahl wird gebraucht.</translation>
    </message>
    <message>
        <source>Invalid number.</source>
        <translation>Ungültige Zahl.</translation>
    </message>
    <message>
        <source>A number is needed.</source>
        <translation>Eine Zahl wird gebraucht.</translation>
    </message>
    <message>
        <source>Invalid text.</source>
        <translation>Ungültiger Text.</translation>
    </message>
    <message>
        <source>A text is needed.</source>
        <translation>Ein Text wird gebraucht.</translation>
    </message>
    <message>
        <source>Invalid option.</source>
        <translation>Ungültige Option.</translation>
    </message>
    <message>
        <source>An option is needed.</source>
        <translation>Eine Option wird gebraucht.</translation>
    </message>
    <message>
        <source>The value must not be zero.</source>
        <translation>Der Wert darf nicht null sein.</translation>
    </message>
    <message>
        <source>The value must not be negative.</source>
        <translation>Der Wert darf nicht negativ sein.</translation>
    </message>
    <message>
        <source>The value must be greater than zero.</source>
        <translation>Der Wert muss größer als null sein.</translation>
    </message>
    <message>
        <source>Specify first fence point</source>
        <translation>Erster Zaunpunkt</translation>
    </message>
    <message>
        <source>First polygon point</source>
        <translation>Erster Polygonpunkt</translation>
    </message>
    <message>
        <source>Specify endpoint of line</source>
        <translation>Endpunkt der Linie</translation>
    </message>
    <message>
        <source>Files of %1 do not hold: %2.</source>
        <translation>Dateien von %1 fassen nicht: %2.</translation>
    </message>
    <message>
        <source>true colours</source>
        <translation>Echtfarben</translation>
    </message>
    <message>
        <source>transparencies</source>
        <translation>Transparenzen</translation>
    </message>
    <message>
        <source>gradients</source>
        <translation>Farbverläufe</translation>
    </message>
    <message>
        <source>attributes of several lines</source>
        <translation>mehrzeilige Attribute</translation>
    </message>
    <message>
        <source>A polygon needs three corners.</source>
        <translation>Ein Vieleck braucht drei Ecken.</translation>
    </message>
    <message>
        <source>A fence needs two points.</source>
        <translation>Ein Zaun braucht zwei Punkte.</translation>
    </message>
    <message>
        <source>Pa&amp;ge Setup...</source>
        <translation>Seite ein&amp;richten...</translation>
    </message>
    <message>
        <source>Choose paper, scale and plot style of what is shown</source>
        <translation>Papier, Maßstab und Plotstil dessen wählen, was zu sehen ist</translation>
    </message>
    <message>
        <source>Page Setup: %1</source>
        <translation>Seite einrichten: %1</translation>
    </message>
    <message>
        <source>&amp;Paper</source>
        <translation>&amp;Papier</translation>
    </message>
    <message>
        <source>&amp;Orientation</source>
        <translation>&amp;Ausrichtung</translation>
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
        <source>Other size</source>
        <translation>Andere Größe</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Breite</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Höhe</translation>
    </message>
    <message>
        <source>What is plo&amp;tted</source>
        <translation>Was &amp;geplottet wird</translation>
    </message>
    <message>
        <source>What is plotted</source>
        <translation>Was geplottet wird</translation>
    </message>
    <message>
        <source>Pick the w&amp;indow...</source>
        <translation>&amp;Fenster zeigen...</translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation>&amp;Maßstab</translation>
    </message>
    <message>
        <source>Fit to the paper</source>
        <translation>An das Papier angepasst</translation>
    </message>
    <message>
        <source>In the &amp;middle of the paper</source>
        <translation>In der M&amp;itte des Papiers</translation>
    </message>
    <message>
        <source>Plot st&amp;yle</source>
        <translation>Plot&amp;stil</translation>
    </message>
    <message>
        <source>P&amp;rint...</source>
        <translation>D&amp;rucken...</translation>
    </message>
    <message>
        <source>A scale looks like 1:50.</source>
        <translation>Ein Maßstab sieht aus wie 1:50.</translation>
    </message>
    <message>
        <source>Colors of the drawing</source>
        <translation>Farben der Zeichnung</translation>
    </message>
    <message>
        <source>Grayscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <translation>Schwarzweiß</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Extents</source>
        <translation>Grenzen</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limiten</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Enter what is plotted</source>
        <translation>Was geplottet wird</translation>
    </message>
    <message>
        <source>&amp;Color...</source>
        <translation>&amp;Farbe...</translation>
    </message>
    <message>
        <source>Choose the color of what is chosen, or of new objects</source>
        <translation>Die Farbe des Gewählten oder neuer Objekte wählen</translation>
    </message>
    <message>
        <source>Choose a Color</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>&amp;Index</translation>
    </message>
    <message>
        <source>&amp;True Color</source>
        <translation>&amp;True Color</translation>
    </message>
    <message>
        <source>Color &amp;Books</source>
        <translation>Farb&amp;bücher</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>By &amp;Layer</source>
        <translation>Von &amp;Layer</translation>
    </message>
    <message>
        <source>By Bloc&amp;k</source>
        <translation>Von Bloc&amp;k</translation>
    </message>
    <message>
        <source>Entries of color books in this drawing</source>
        <translation>Einträge von Farbbüchern in dieser Zeichnung</translation>
    </message>
    <message>
        <source>Boo&amp;k</source>
        <translation>Bu&amp;ch</translation>
    </message>
    <message>
        <source>&amp;Name in the book</source>
        <translation>&amp;Name im Buch</translation>
    </message>
    <message>
        <source>Or name the color that is chosen now:</source>
        <translation>Oder die jetzt gewählte Farbe benennen:</translation>
    </message>
    <message>
        <source>Recent color %1</source>
        <translation>Zuletzt gewählte Farbe %1</translation>
    </message>
    <message>
        <source>&amp;Delete the Copies</source>
        <translation>Kopien &amp;löschen</translation>
    </message>
    <message>
        <source>Ask &amp;Later</source>
        <translation>&amp;Später fragen</translation>
    </message>
    <message>
        <source>it holds no catalog</source>
        <translation>sie enthält keinen Katalog</translation>
    </message>
    <message>
        <source>a NUL byte</source>
        <translation>ein NUL-Byte</translation>
    </message>
    <message>
        <source>bytes that are no UTF-8 (%1 in all)</source>
        <translation>Bytes, die kein UTF-8 sind (insgesamt %1)</translation>
    </message>
    <message>
        <source>its text is in %1, and only UTF-8 is read</source>
        <translation>ihr Text ist in %1, gelesen wird nur UTF-8</translation>
    </message>
    <message>
        <source>line %1, column %2: %3</source>
        <translation>Zeile %1, Spalte %2: %3</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>"%1" is closed but was not opened</source>
        <translation>"%1" wird geschlossen, war aber nicht geöffnet</translation>
    </message>
    <message>
        <source>an attribute of the element "%1" is broken</source>
        <translation>ein Attribut des Elements "%1" ist beschädigt</translation>
    </message>
    <message>
        <source>elements are nested more than %1 deep</source>
        <translation>Elemente sind mehr als %1-fach geschachtelt</translation>
    </message>
    <message>
        <source>the XML declaration does not end</source>
        <translation>die XML-Deklaration endet nicht</translation>
    </message>
    <message>
        <source>the element "%1" has more than %2 attributes</source>
        <translation>das Element "%1" hat mehr als %2 Attribute</translation>
    </message>
    <message>
        <source>the element "%1" is closed as "%2"</source>
        <translation>das Element "%1" wird als "%2" geschlossen</translation>
    </message>
    <message>
        <source>the element "%1" is not closed</source>
        <translation>das Element "%1" wird nicht geschlossen</translation>
    </message>
    <message>
        <source>the end of the element "%1" is broken</source>
        <translation>das Ende des Elements "%1" ist beschädigt</translation>
    </message>
    <message>
        <source>the entity "%1" is not known and stands as it is</source>
        <translation>die Entität "%1" ist nicht bekannt und bleibt, wie sie steht</translation>
    </message>
    <message>
        <source>the tag of the element "%1" does not end</source>
        <translation>das Tag des Elements "%1" endet nicht</translation>
    </message>
    <message>
        <source>the text that follows the last element is left out</source>
        <translation>der Text hinter dem letzten Element wird weggelassen</translation>
    </message>
    <message>
        <source>there is no character "%1"</source>
        <translation>es gibt kein Zeichen "%1"</translation>
    </message>
    <message>
        <source>this is no XML: there is no element</source>
        <translation>das ist kein XML: es gibt kein Element</translation>
    </message>
    <message>
        <source>the CDATA section does not end</source>
        <translation>der CDATA-Abschnitt endet nicht</translation>
    </message>
    <message>
        <source>the comment does not end</source>
        <translation>der Kommentar endet nicht</translation>
    </message>
    <message>
        <source>the tag does not end</source>
        <translation>das Tag endet nicht</translation>
    </message>
    <message>
        <source>the file is larger than %1 MB</source>
        <translation>die Datei ist größer als %1 MB</translation>
    </message>
    <message>
        <source>it is an absolute path</source>
        <translation>es ist ein absoluter Pfad</translation>
    </message>
    <message>
        <source>it leads out of its folder</source>
        <translation>er führt aus seinem Ordner hinaus</translation>
    </message>
    <message>
        <source>it lies on a network share</source>
        <translation>es liegt auf einer Netzfreigabe</translation>
    </message>
    <message>
        <source>it names a device</source>
        <translation>er nennt ein Gerät</translation>
    </message>
    <message>
        <source>Error while reading tool palette file.</source>
        <translation>Fehler beim Lesen der Datei einer Werkzeugpalette.</translation>
    </message>
    <message>
        <source>Tool Palettes</source>
        <translation>Werkzeugpaletten</translation>
    </message>
    <message>
        <source>it holds no palette</source>
        <translation>sie enthält keine Palette</translation>
    </message>
    <message>
        <source>its palette is empty</source>
        <translation>ihre Palette ist leer</translation>
    </message>
    <message>
        <source>Error: cannot read file %1: %2</source>
        <translation>Fehler: Die Datei %1 ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>The file %1, which could not be read, is kept as %2</source>
        <translation>Die Datei %1, die nicht lesbar war, ist als %2 aufgehoben</translation>
    </message>
    <message>
        <source>The file %1, which another program has written since it was read, is kept as %2</source>
        <translation>Die Datei %1, die ein anderes Programm geschrieben hat, seit sie gelesen wurde, liegt nun als Kopie in %2</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>there is no folder to keep it in</source>
        <translation>es gibt keinen Ordner, in dem sie aufgehoben werden könnte</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Failed to open file</source>
        <translation>die Datei lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Error parsing Element.</source>
        <translation>ein Element ist fehlerhaft.</translation>
    </message>
    <message>
        <source>Failed to read Element name</source>
        <translation>der Name eines Elements ist nicht lesbar</translation>
    </message>
    <message>
        <source>Error reading Element value.</source>
        <translation>der Wert eines Elements ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Error reading Attributes.</source>
        <translation>Attribute sind nicht lesbar.</translation>
    </message>
    <message>
        <source>Error: empty tag.</source>
        <translation>ein Tag ist leer.</translation>
    </message>
    <message>
        <source>Error reading end tag.</source>
        <translation>ein schließendes Tag ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Error parsing Unknown.</source>
        <translation>ein unbekannter Abschnitt ist fehlerhaft.</translation>
    </message>
    <message>
        <source>Error parsing Comment.</source>
        <translation>ein Kommentar ist fehlerhaft.</translation>
    </message>
    <message>
        <source>Error parsing Declaration.</source>
        <translation>die Deklaration ist fehlerhaft.</translation>
    </message>
    <message>
        <source>Error document empty.</source>
        <translation>das Dokument ist leer.</translation>
    </message>
    <message>
        <source>Error null (0) or unexpected EOF found in input stream.</source>
        <translation>ein NUL-Zeichen oder ein zu frühes Ende.</translation>
    </message>
    <message>
        <source>Error parsing CDATA.</source>
        <translation>ein CDATA-Abschnitt ist fehlerhaft.</translation>
    </message>
    <message>
        <source>the catalog has no file yet</source>
        <translation>der Katalog hat noch keine Datei</translation>
    </message>
    <message>
        <source>
Cannot save the palette: %s</source>
        <translation>
Die Palette kann nicht gespeichert werden: %s</translation>
    </message>
    <message>
        <source>
Cannot save the picture: %s</source>
        <translation>
Das Bild kann nicht gespeichert werden: %s</translation>
    </message>
    <message>
        <source>
Pictures not saved in all: %s</source>
        <translation>
Insgesamt nicht gespeicherte Bilder: %s</translation>
    </message>
    <message>
        <source>it leads out of the store's folder</source>
        <translation>es führt aus dem Ordner der Ablage hinaus</translation>
    </message>
    <message>
        <source>it names no file</source>
        <translation>es nennt keine Datei</translation>
    </message>
    <message>
        <source>it points to no palettes</source>
        <translation>sie verweist auf keine Paletten</translation>
    </message>
    <message>
        <source>the catalog is only read as far as this: %1</source>
        <translation>der Katalog ist nur bis hierher gelesen: %1</translation>
    </message>
    <message>
        <source>the entry %1 is not followed: %2</source>
        <translation>dem Eintrag %1 wird nicht gefolgt: %2</translation>
    </message>
    <message>
        <source>the file is too large</source>
        <translation>die Datei ist zu groß</translation>
    </message>
    <message>
        <source>the palette "%1" stands in the catalog itself, and is not taken</source>
        <translation>die Palette "%1" steht im Katalog selbst und wird nicht übernommen</translation>
    </message>
    <message>
        <source>there are no palettes in the folder</source>
        <translation>im Ordner sind keine Paletten</translation>
    </message>
    <message>
        <source>
Groups cannot be nested any deeper.</source>
        <translation>
Gruppen lassen sich nicht tiefer schachteln.</translation>
    </message>
    <message>
        <source>Pictures for dark windows that were left out: %1</source>
        <translation>Weggelassene Bilder für dunkle Fenster: %1</translation>
    </message>
    <message>
        <source>The folder of the pictures, "%1", is not looked into: %2.</source>
        <translation>In den Ordner der Bilder, "%1", wird nicht gesehen: %2.</translation>
    </message>
    <message>
        <source>The palette's own picture "%1" is missing.</source>
        <translation>Das eigene Bild der Palette, "%1", fehlt.</translation>
    </message>
    <message>
        <source>it is the root folder</source>
        <translation>es ist der Wurzelordner</translation>
    </message>
    <message>
        <source>picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>&lt;%1&gt; holds no value and ends the reading of %2: not read are %3</source>
        <translation>&lt;%1&gt; enthält keinen Wert und beendet das Lesen von %2: nicht gelesen sind %3</translation>
    </message>
    <message>
        <source>a tool of several commands, and none of them draws a "%1" here</source>
        <translation>ein Werkzeug aus mehreren Befehlen, und keiner davon zeichnet hier "%1"</translation>
    </message>
    <message>
        <source>entries of the kind "%1" have no place here</source>
        <translation>Einträge der Art "%1" haben hier keinen Platz</translation>
    </message>
    <message>
        <source>it is of type %1, which cannot run here</source>
        <translation>es ist vom Typ %1, der hier nicht läuft</translation>
    </message>
    <message>
        <source>its record "%1" belongs to another product; the tool does nothing</source>
        <translation>sein Eintrag "%1" gehört zu einem anderen Produkt; das Werkzeug tut nichts</translation>
    </message>
    <message>
        <source>its source is a link that leads to %1</source>
        <translation>seine Quelle ist eine Verknüpfung, die zu %1 führt</translation>
    </message>
    <message>
        <source>its source is not looked for: %1</source>
        <translation>seine Quelle wird nicht gesucht: %1</translation>
    </message>
    <message>
        <source>one command in the place of several</source>
        <translation>ein Befehl statt mehrerer</translation>
    </message>
    <message>
        <source>the command "%1" is not available here</source>
        <translation>den Befehl "%1" gibt es hier nicht</translation>
    </message>
    <message>
        <source>the file does not say what it does</source>
        <translation>die Datei sagt nicht, was es tut</translation>
    </message>
    <message>
        <source>the macro in its record "%1" is now a command</source>
        <translation>das Makro in seinem Eintrag "%1" ist jetzt ein Befehl</translation>
    </message>
    <message>
        <source>tools of the kind "%1" cannot run here</source>
        <translation>Werkzeuge der Art "%1" laufen hier nicht</translation>
    </message>
    <message>
        <source>the file cannot be replaced</source>
        <translation>die Datei kann nicht ersetzt werden</translation>
    </message>
    <message>
        <source>the picture cannot be written</source>
        <translation>das Bild kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the palette could not be read</source>
        <translation>die Palette war nicht lesbar</translation>
    </message>
    <message>
        <source>A picture is not saved: %1</source>
        <translation>Ein Bild ist nicht gespeichert: %1</translation>
    </message>
    <message>
        <source>Further palettes in the file, which are not taken: %1</source>
        <translation>Weitere Paletten in der Datei, die nicht übernommen werden: %1</translation>
    </message>
    <message>
        <source>Kinds of tool that cannot run here: %1</source>
        <translation>Arten von Werkzeugen, die hier nicht laufen: %1</translation>
    </message>
    <message>
        <source>The palette has another list of tools behind these, which are not taken: %1</source>
        <translation>Hinter diesen hat die Palette noch eine Liste von Werkzeugen, die nicht übernommen werden: %1</translation>
    </message>
    <message>
        <source>
Skipped unsupported tool: %s</source>
        <translation>
Nicht unterstütztes Werkzeug übergangen: %s</translation>
    </message>
    <message>
        <source>another import is under way</source>
        <translation>ein anderer Import läuft noch</translation>
    </message>
    <message>
        <source>it is a catalog, which only points to palettes</source>
        <translation>es ist ein Katalog, der nur auf Paletten verweist</translation>
    </message>
    <message>
        <source>it stands behind an empty element, which ends the list</source>
        <translation>es steht hinter einem leeren Element, das die Liste beendet</translation>
    </message>
    <message>
        <source>the catalog %1 cannot be read: %2</source>
        <translation>der Katalog %1 ist nicht lesbar: %2</translation>
    </message>
    <message>
        <source>the import was cancelled</source>
        <translation>der Import wurde abgebrochen</translation>
    </message>
    <message>
        <source>there is no hatch pattern "%1" here</source>
        <translation>das Schraffurmuster "%1" gibt es hier nicht</translation>
    </message>
    <message>
        <source>
Cannot import %s: %s</source>
        <translation>
%s kann nicht importiert werden: %s</translation>
    </message>
    <message>
        <source>
Cannot save the catalog: %s</source>
        <translation>
Der Katalog kann nicht gespeichert werden: %s</translation>
    </message>
    <message>
        <source>
Error: cannot find catalog file: %s</source>
        <translation>
Fehler: Die Katalogdatei ist nicht zu finden: %s</translation>
    </message>
    <message>
        <source>
The palette file %s could not be read, and is left as it is until you save it.</source>
        <translation>
Die Palettendatei %s war nicht lesbar und bleibt, wie sie ist, bis Sie sie speichern.</translation>
    </message>
    <message>
        <source>
Cannot delete the palette file %s.</source>
        <translation>
Die Palettendatei %s kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>
The file %s does not belong to the catalog alone, and is not deleted.</source>
        <translation>
Die Datei %s gehört nicht allein zum Katalog und wird nicht gelöscht.</translation>
    </message>
    <message>
        <source>
The file %s is that of another palette too, and is not deleted.</source>
        <translation>
Die Datei %s ist auch die einer anderen Palette und wird nicht gelöscht.</translation>
    </message>
    <message>
        <source>
Tool "%s" cannot be run.</source>
        <translation>
Das Werkzeug "%s" kann nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>
Tool "%s" cannot be run: the drawing is locked.</source>
        <translation>
Das Werkzeug "%s" kann nicht ausgeführt werden: die Zeichnung ist gesperrt.</translation>
    </message>
    <message>
        <source>Separator</source>
        <translation>Trennlinie</translation>
    </message>
    <message>
        <source>%1 is a folder</source>
        <translation>%1 ist ein Ordner</translation>
    </message>
    <message>
        <source>%1 is no picture that can be shown</source>
        <translation>%1 ist kein Bild, das gezeigt werden kann</translation>
    </message>
    <message>
        <source>%1 is too large to be shown: %2 by %3 pixels</source>
        <translation>%1 ist zu groß, um gezeigt zu werden: %2 mal %3 Pixel</translation>
    </message>
    <message>
        <source>%1: pictures of this kind cannot be written</source>
        <translation>%1: Bilder dieser Art können nicht geschrieben werden</translation>
    </message>
    <message>
        <source>%1: the file cannot be replaced</source>
        <translation>%1: die Datei kann nicht ersetzt werden</translation>
    </message>
    <message>
        <source>there is no file %1</source>
        <translation>es gibt keine Datei %1</translation>
    </message>
    <message>
        <source>%1: %2 is a file and no folder</source>
        <translation>%1: %2 ist eine Datei und kein Ordner</translation>
    </message>
    <message>
        <source>%1: the folder %2 cannot be made</source>
        <translation>%1: der Ordner %2 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>Block tool instrument</source>
        <translation>Blockwerkzeug</translation>
    </message>
    <message>
        <source>Hatch tool instrument</source>
        <translation>Schraffurwerkzeug</translation>
    </message>
    <message>
        <source>Raster tool instrument</source>
        <translation>Bildwerkzeug</translation>
    </message>
    <message>
        <source>%1 is not imported: %2.</source>
        <translation>%1 ist nicht importiert: %2.</translation>
    </message>
    <message>
        <source>%1 is not written: %2.</source>
        <translation>%1 ist nicht geschrieben: %2.</translation>
    </message>
    <message>
        <source>%1 is now the palette "%2".</source>
        <translation>%1 ist jetzt die Palette "%2".</translation>
    </message>
    <message>
        <source>%1 is written.</source>
        <translation>%1 ist geschrieben.</translation>
    </message>
    <message>
        <source>%1: its picture is missing.</source>
        <translation>%1: sein Bild fehlt.</translation>
    </message>
    <message>
        <source>%1: the file "%2" is missing.</source>
        <translation>%1: die Datei "%2" fehlt.</translation>
    </message>
    <message>
        <source>%1: the picture "%2" cannot be read.</source>
        <translation>%1: das Bild "%2" ist nicht lesbar.</translation>
    </message>
    <message>
        <source>%1: the picture "%2" is missing.</source>
        <translation>%1: das Bild "%2" fehlt.</translation>
    </message>
    <message>
        <source>%1: the picture "%2" is refused: it leads out of its folder.</source>
        <translation>%1: das Bild "%2" wird abgelehnt: es führt aus seinem Ordner hinaus.</translation>
    </message>
    <message>
        <source>There is no catalog to take the palette.</source>
        <translation>Es gibt keinen Katalog, der die Palette aufnimmt.</translation>
    </message>
    <message>
        <source>There is no palette "%1".</source>
        <translation>Es gibt keine Palette "%1".</translation>
    </message>
    <message>
        <source>File to write: </source>
        <translation>Zu schreibende Datei: </translation>
    </message>
    <message>
        <source>Folder of the catalog &lt;the default&gt;: </source>
        <translation>Ordner des Katalogs &lt;der übliche&gt;: </translation>
    </message>
    <message>
        <source>Group &lt;none&gt;: </source>
        <translation>Gruppe &lt;keine&gt;: </translation>
    </message>
    <message>
        <source>Palette file: </source>
        <translation>Palettendatei: </translation>
    </message>
    <message>
        <source>Palette: </source>
        <translation>Palette: </translation>
    </message>
    <message>
        <source>%1 gives no tool: %2</source>
        <translation>%1 ergibt kein Werkzeug: %2</translation>
    </message>
    <message>
        <source>%1 is now the tool "%2".</source>
        <translation>%1 ist jetzt das Werkzeug "%2".</translation>
    </message>
    <message>
        <source>The block "%1"</source>
        <translation>Der Block "%1"</translation>
    </message>
    <message>
        <source>The clipboard</source>
        <translation>Die Zwischenablage</translation>
    </message>
    <message>
        <source>The object %1</source>
        <translation>Das Objekt %1</translation>
    </message>
    <message>
        <source>The palette "%1" cannot be saved: %2</source>
        <translation>Die Palette "%1" kann nicht gespeichert werden: %2</translation>
    </message>
    <message>
        <source>The tool "%1" has no picture: %2</source>
        <translation>Das Werkzeug "%1" hat kein Bild: %2</translation>
    </message>
    <message>
        <source>Tools cannot be made from "%1".</source>
        <translation>Aus "%1" lassen sich keine Werkzeuge erzeugen.</translation>
    </message>
    <message>
        <source>Block: </source>
        <translation>Block: </translation>
    </message>
    <message>
        <source>Block &lt;all&gt;: </source>
        <translation>Block &lt;alle&gt;: </translation>
    </message>
    <message>
        <source>Drawing file: </source>
        <translation>Zeichnungsdatei: </translation>
    </message>
    <message>
        <source>File: </source>
        <translation>Datei: </translation>
    </message>
    <message>
        <source>Group of the new palette &lt;none&gt;: </source>
        <translation>Gruppe der neuen Palette &lt;keine&gt;: </translation>
    </message>
    <message>
        <source>Make tools from [Object/Block/Drawing/File/Command/Paste] &lt;Object&gt;: </source>
        <translation>Werkzeuge erzeugen aus [Object/Block/Drawing/File/Command/Paste] &lt;Object&gt;: </translation>
    </message>
    <message>
        <source>Value must be an digit.</source>
        <translation>Der Wert muss eine Ziffer sein.</translation>
    </message>
    <message>
        <source>The drawing has no block definitions.</source>
        <translation>Die Zeichnung hat keine Blockdefinitionen.</translation>
    </message>
    <message>
        <source>Error reading file.</source>
        <translation>Fehler beim Lesen der Datei.</translation>
    </message>
    <message>
        <source>Cannot find catalog in the specified folder.
</source>
        <translation>Im angegebenen Ordner ist kein Katalog zu finden.
</translation>
    </message>
    <message>
        <source>Cannot find catalog in the specified folder.</source>
        <translation>Im angegebenen Ordner ist kein Katalog zu finden.</translation>
    </message>
    <message>
        <source>Before you create the tool you need to save the drawing.
</source>
        <translation>Bevor Sie das Werkzeug erzeugen, müssen Sie die Zeichnung speichern.
</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>General.Color</source>
        <translation>Allgemein.Farbe</translation>
    </message>
    <message>
        <source>General.Layer</source>
        <translation>Allgemein.Layer</translation>
    </message>
    <message>
        <source>General.Line type</source>
        <translation>Allgemein.Linientyp</translation>
    </message>
    <message>
        <source>General.Linetype scale</source>
        <translation>Allgemein.Linientypfaktor</translation>
    </message>
    <message>
        <source>General.Dimstyle</source>
        <translation>Allgemein.Dimstil</translation>
    </message>
    <message>
        <source>General.Plot style</source>
        <translation>Allgemein.Plotstil</translation>
    </message>
    <message>
        <source>General.Line weight</source>
        <translation>Allgemein.Linienstärke</translation>
    </message>
    <message>
        <source>General.Transparency</source>
        <translation>Allgemein.Transparenz</translation>
    </message>
    <message>
        <source>General.Text style</source>
        <translation>Allgemein.Textstil</translation>
    </message>
    <message>
        <source>General.Dimension style</source>
        <translation>Allgemein.Bemaßungsstil</translation>
    </message>
    <message>
        <source>Do you want to remove the palette "%s"? This action cannot be undone.</source>
        <translation>Möchten Sie die Palette "%s" entfernen? Das kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Do you want to remove the tool "%s"? This action cannot be undone.</source>
        <translation>Möchten Sie das Werkzeug "%s" entfernen? Das kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Change icon size</source>
        <translation>Größe der Symbole ändern</translation>
    </message>
    <message>
        <source>Change view style</source>
        <translation>Darstellung ändern</translation>
    </message>
    <message>
        <source>Are you sure want to remove selected items? This action cannot be undone.</source>
        <translation>Möchten Sie die gewählten Einträge wirklich entfernen? Das kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Tool palettes</source>
        <translation>Werkzeugpaletten</translation>
    </message>
    <message>
        <source>The tool palette you're loading contains multitools with pop-up menu
which includes drafting and dimensioning commands.
This version doesn't support multitools,&#xd;
 so they will be converted to regular with current tool.</source>
        <translation>Die Werkzeugpalette, die Sie laden, enthält Mehrfachwerkzeuge mit einem Menü
aus Zeichen- und Bemaßungsbefehlen.
Diese Version unterstützt keine Mehrfachwerkzeuge,&#xd;
 sie werden deshalb zu gewöhnlichen mit ihrem aktuellen Werkzeug.</translation>
    </message>
    <message>
        <source>
Multitool "%s" has been converted to regular.</source>
        <translation>
Das Mehrfachwerkzeug "%s" ist jetzt ein gewöhnliches.</translation>
    </message>
    <message>
        <source>The tool palette you're loading contains unsupported tools.
This version of program doesn't support "Visual Style, Light, MLeader,Camera,Table,Text, Separator" tools,
so they will be excluded from tool palette.</source>
        <translation>Die Werkzeugpalette, die Sie laden, enthält nicht unterstützte Werkzeuge.
Diese Version des Programms unterstützt die Werkzeuge "Visueller Stil, Licht, Multi-Führungslinie, Kamera, Tabelle, Text, Trennlinie" nicht,
sie werden deshalb aus der Werkzeugpalette weggelassen.</translation>
    </message>
    <message>
        <source>Tool Palette Import</source>
        <translation>Import von Werkzeugpaletten</translation>
    </message>
    <message>
        <source>Small|Normal|Large</source>
        <translation>Klein|Normal|Groß</translation>
    </message>
    <message>
        <source>
Execution canceled. Tool "%s" is already running in document "%s"</source>
        <translation>
Ausführung abgebrochen. Das Werkzeug "%s" läuft schon im Dokument "%s"</translation>
    </message>
    <message>
        <source>
Definition of block "%s" is not found in the source file "%s"</source>
        <translation>
Die Definition des Blocks "%s" ist in der Quelldatei "%s" nicht zu finden</translation>
    </message>
    <message>
        <source>
Could not find the original file "%s" for block "%s"</source>
        <translation>
Die Originaldatei "%s" des Blocks "%s" ist nicht zu finden</translation>
    </message>
    <message>
        <source>Change active view</source>
        <translation>Zwischen Baum und Liste wechseln</translation>
    </message>
    <message>
        <source>-- use current</source>
        <translation>-- aktuellen verwenden</translation>
    </message>
    <message>
        <source>ByLayer</source>
        <translation>ByLayer</translation>
    </message>
    <message>
        <source>ByBlock</source>
        <translation>ByBlock</translation>
    </message>
    <message>
        <source>ByDefault</source>
        <translation>ByDefault</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Continuous</translation>
    </message>
    <message>
        <source>
Layer "%s" is frozen and cannot be made current.</source>
        <translation>
Der Layer "%s" ist gefroren und kann nicht aktuell werden.</translation>
    </message>
    <message>
        <source>
%s: "%s" cannot be set, the drawing's own value stays.</source>
        <translation>
%s: "%s" kann nicht gesetzt werden, der Wert der Zeichnung bleibt.</translation>
    </message>
    <message>
        <source>
%s: "%s" is no value for it, the usual one is taken.</source>
        <translation>
%s: "%s" ist dafür kein Wert, genommen wird der übliche.</translation>
    </message>
    <message>
        <source>
Cannot make the %s "%s": %s.</source>
        <translation>
Nicht anzulegen: %s "%s", denn %s.</translation>
    </message>
    <message>
        <source>
"%s" belongs to an external reference and cannot be used.</source>
        <translation>
"%s" gehört zu einer externen Referenz und ist nicht zu gebrauchen.</translation>
    </message>
    <message>
        <source>names must not begin or end with a blank</source>
        <translation>Namen dürfen nicht mit einem Leerzeichen beginnen oder enden</translation>
    </message>
    <message>
        <source>names must not have control characters</source>
        <translation>Namen dürfen keine Steuerzeichen haben</translation>
    </message>
    <message>
        <source>names must not have the character %s</source>
        <translation>Namen dürfen das Zeichen %s nicht haben</translation>
    </message>
    <message>
        <source>the name is too long</source>
        <translation>der Name ist zu lang</translation>
    </message>
    <message>
        <source>
Cannot put back the drawing's %s: %s</source>
        <translation>
In der Zeichnung lässt sich "%s" nicht zurücksetzen: %s</translation>
    </message>
    <message>
        <source>
Cannot set the drawing's %s: %s</source>
        <translation>
In der Zeichnung lässt sich "%s" nicht setzen: %s</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>Layer</translation>
    </message>
    <message>
        <source>dimension style</source>
        <translation>Bemaßungsstil</translation>
    </message>
    <message>
        <source>line type</source>
        <translation>Linientyp</translation>
    </message>
    <message>
        <source>text style</source>
        <translation>Textstil</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Cylinder</source>
        <translation>Zylinder</translation>
    </message>
    <message>
        <source>Inversed-cylinder</source>
        <translation>Zylinder, umgekehrt</translation>
    </message>
    <message>
        <source>Spherical</source>
        <translation>Kugel</translation>
    </message>
    <message>
        <source>Inversed-spherical</source>
        <translation>Kugel, umgekehrt</translation>
    </message>
    <message>
        <source>Hemispherical</source>
        <translation>Halbkugel</translation>
    </message>
    <message>
        <source>Inversed-hemispherical</source>
        <translation>Halbkugel, umgekehrt</translation>
    </message>
    <message>
        <source>Curved</source>
        <translation>Gebogen</translation>
    </message>
    <message>
        <source>Inversed-curved</source>
        <translation>Gebogen, umgekehrt</translation>
    </message>
    <message>
        <source>
Could not find the image file %s
</source>
        <translation>
Die Bilddatei %s ist nicht zu finden
</translation>
    </message>
    <message>
        <source>Unable to create the tool. The xref file '%s' could not be located.</source>
        <translation>Das Werkzeug lässt sich nicht erzeugen. Die Referenzdatei '%s' ist nicht zu finden.</translation>
    </message>
    <message>
        <source>there is no drawing</source>
        <translation>es gibt keine Zeichnung</translation>
    </message>
    <message>
        <source>there is no such block</source>
        <translation>diesen Block gibt es nicht</translation>
    </message>
    <message>
        <source>
Block "%s" of the source file "%s" cannot be inserted: </source>
        <translation>
Der Block "%s" der Quelldatei "%s" kann nicht eingefügt werden: </translation>
    </message>
    <message>
        <source>
Block "%s" of the source file "%s" contains itself</source>
        <translation>
Der Block "%s" der Quelldatei "%s" enthält sich selbst</translation>
    </message>
    <message>
        <source>
Not all of "%s" could be read: %s
</source>
        <translation>
Nicht alles von "%s" war lesbar: %s
</translation>
    </message>
    <message>
        <source>a block's name cannot begin or end with a blank</source>
        <translation>der Name eines Blocks kann nicht mit einem Leerzeichen beginnen oder enden</translation>
    </message>
    <message>
        <source>a block's name cannot have control characters</source>
        <translation>der Name eines Blocks kann keine Steuerzeichen haben</translation>
    </message>
    <message>
        <source>a block's name has at most 255 characters</source>
        <translation>der Name eines Blocks hat höchstens 255 Zeichen</translation>
    </message>
    <message>
        <source>a block's name cannot have any of &lt; &gt; / \ " : ; ? * | , = `</source>
        <translation>der Name eines Blocks kann keines der Zeichen &lt; &gt; / \ " : ; ? * | , = ` haben</translation>
    </message>
    <message>
        <source>the tool names no block</source>
        <translation>das Werkzeug nennt keinen Block</translation>
    </message>
    <message>
        <source>Unable to create the tool. The image file '%s' could not be located.</source>
        <translation>Das Werkzeug lässt sich nicht erzeugen. Die Bilddatei '%s' ist nicht zu finden.</translation>
    </message>
    <message>
        <source>
The hatch pattern "%s" is in no file of patterns: its tool cannot hatch here.</source>
        <translation>
Das Schraffurmuster "%s" steht in keiner Musterdatei: sein Werkzeug kann hier nicht schraffieren.</translation>
    </message>
    <message>
        <source>no command draws objects of this kind</source>
        <translation>kein Befehl zeichnet Objekte dieser Art</translation>
    </message>
    <message>
        <source>the block is not defined</source>
        <translation>der Block ist nicht definiert</translation>
    </message>
    <message>
        <source>the image has no file</source>
        <translation>das Bild hat keine Datei</translation>
    </message>
    <message>
        <source>there is no such object</source>
        <translation>dieses Objekt gibt es nicht</translation>
    </message>
    <message>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>there is no drawing on the clipboard</source>
        <translation>in der Zwischenablage ist keine Zeichnung</translation>
    </message>
    <message>
        <source>there is no such file or command</source>
        <translation>es gibt keine solche Datei und keinen solchen Befehl</translation>
    </message>
    <message>
        <source>From lines</source>
        <translation>Aus Linien</translation>
    </message>
    <message>
        <source>Dimscale</source>
        <translation>Bemaßungsfaktor</translation>
    </message>
    <message>
        <source>Plot scale</source>
        <translation>Plotmaßstab</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>External reference</source>
        <translation>Externe Referenz</translation>
    </message>
    <message>
        <source>Attachment</source>
        <translation>Zuordnung</translation>
    </message>
    <message>
        <source>Overlay</source>
        <translation>Überlagerung</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>User defined</source>
        <translation>Benutzerdefiniert</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigenes</translation>
    </message>
    <message>
        <source>Command.Command string</source>
        <translation>Befehl.Befehlszeile</translation>
    </message>
    <message>
        <source>Insert.Name</source>
        <translation>Einfügen.Name</translation>
    </message>
    <message>
        <source>Insert.Source file</source>
        <translation>Einfügen.Quelldatei</translation>
    </message>
    <message>
        <source>Insert.Insert as</source>
        <translation>Einfügen.Einfügen als</translation>
    </message>
    <message>
        <source>Insert.Xref type</source>
        <translation>Einfügen.Art der Referenz</translation>
    </message>
    <message>
        <source>Insert.Scale</source>
        <translation>Einfügen.Faktor</translation>
    </message>
    <message>
        <source>Insert.Auxiliary scale</source>
        <translation>Einfügen.Zusatzfaktor</translation>
    </message>
    <message>
        <source>Insert.Rotation</source>
        <translation>Einfügen.Drehung</translation>
    </message>
    <message>
        <source>Insert.Prompt rotation angle</source>
        <translation>Einfügen.Drehwinkel erfragen</translation>
    </message>
    <message>
        <source>Insert.Prompt attributes</source>
        <translation>Einfügen.Attribute erfragen</translation>
    </message>
    <message>
        <source>Insert.Explode</source>
        <translation>Einfügen.Zerlegen</translation>
    </message>
    <message>
        <source>Sample.Instrument type</source>
        <translation>Muster.Art des Werkzeugs</translation>
    </message>
    <message>
        <source>Sample.Type</source>
        <translation>Muster.Typ</translation>
    </message>
    <message>
        <source>Sample.Pattern name</source>
        <translation>Muster.Mustername</translation>
    </message>
    <message>
        <source>Sample.Angle</source>
        <translation>Muster.Winkel</translation>
    </message>
    <message>
        <source>Sample.Scale</source>
        <translation>Muster.Faktor</translation>
    </message>
    <message>
        <source>Sample.Auxiliary scale</source>
        <translation>Muster.Zusatzfaktor</translation>
    </message>
    <message>
        <source>Sample.Spacing</source>
        <translation>Muster.Abstand</translation>
    </message>
    <message>
        <source>Sample.Crosswise</source>
        <translation>Muster.Kreuzweise</translation>
    </message>
    <message>
        <source>Sample.Color 1</source>
        <translation>Muster.Farbe 1</translation>
    </message>
    <message>
        <source>Sample.Color 2</source>
        <translation>Muster.Farbe 2</translation>
    </message>
    <message>
        <source>Sample.Gradient angle</source>
        <translation>Muster.Winkel des Verlaufs</translation>
    </message>
    <message>
        <source>Sample.Centered</source>
        <translation>Muster.Zentriert</translation>
    </message>
    <message>
        <source>Sample.Gradient name</source>
        <translation>Muster.Art des Verlaufs</translation>
    </message>
    <message>
        <source>Select Tool Palette folder</source>
        <translation>Ordner mit Werkzeugpaletten wählen</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Catalogs</source>
        <translation>Kataloge</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>De&amp;tails</source>
        <translation>De&amp;tails</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
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
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>The samples cannot be copied to %1.</source>
        <translation>Die Beispiele lassen sich nicht nach %1 kopieren.</translation>
    </message>
    <message>
        <source>%1 cannot be shown: the image format plugin of Qt for pictures of the kind "%2" is not installed</source>
        <translation>%1 kann nicht gezeigt werden: das Qt-Modul für Bilder der Art "%2" ist nicht installiert</translation>
    </message>
    <message>
        <source>%1 is no picture that can be shown: its end is missing</source>
        <translation>%1 ist kein Bild, das gezeigt werden kann: sein Ende fehlt</translation>
    </message>
    <message>
        <source>
The reference "%s" of "%s" stays empty: %s
</source>
        <translation>
Die Referenz "%s" von "%s" bleibt leer: %s
</translation>
    </message>
    <message>
        <source>
Block "%s" of the drawing contains itself
</source>
        <translation>
Der Block "%s" der Zeichnung enthält sich selbst
</translation>
    </message>
    <message>
        <source>there is nothing to make a picture of</source>
        <translation>es gibt nichts, wovon ein Bild zu machen wäre</translation>
    </message>
    <message>
        <source>there is no hatch pattern "%1"</source>
        <translation>es gibt kein Schraffurmuster "%1"</translation>
    </message>
    <message>
        <source>files of this kind give no tool</source>
        <translation>Dateien dieser Art ergeben kein Werkzeug</translation>
    </message>
    <message>
        <source>there is no block "%1" in %2</source>
        <translation>es gibt keinen Block "%1" in %2</translation>
    </message>
    <message>
        <source>ENDpoint</source>
        <translation>ENDpunkt</translation>
    </message>
    <message>
        <source>MIDpoint</source>
        <translation>MITte</translation>
    </message>
    <message>
        <source>CENter</source>
        <translation>ZENtrum</translation>
    </message>
    <message>
        <source>NODe</source>
        <translation>PUNkt</translation>
    </message>
    <message>
        <source>QUAdrant</source>
        <translation>QUAdrant</translation>
    </message>
    <message>
        <source>INTersection</source>
        <translation>SCHnittpunkt</translation>
    </message>
    <message>
        <source>INSertion</source>
        <translation>EINfügepunkt</translation>
    </message>
    <message>
        <source>PERpendicular</source>
        <translation>LOT</translation>
    </message>
    <message>
        <source>TANgent</source>
        <translation>TANgente</translation>
    </message>
    <message>
        <source>NEArest</source>
        <translation>NÄChster</translation>
    </message>
    <message>
        <source>NONe</source>
        <translation>KEIner</translation>
    </message>
    <message>
        <source>%1 of</source>
        <translation>%1 von</translation>
    </message>
    <message>
        <source>There is no such place here.</source>
        <translation>Hier ist keine solche Stelle.</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Move obj&amp;ects to the clipboard</source>
        <translation>Obj&amp;ekte in die Zwischenablage verschieben</translation>
    </message>
    <message>
        <source>Put down objects of the clip&amp;board</source>
        <translation>O&amp;bjekte der Zwischenablage absetzen</translation>
    </message>
    <message>
        <source>There are no objects on the clipboard.</source>
        <translation>In der Zwischenablage sind keine Objekte.</translation>
    </message>
    <message>
        <source>%1 cut</source>
        <translation>%1 ausgeschnitten</translation>
    </message>
    <message>
        <source>%1 could not be pasted.</source>
        <translation>%1 konnten nicht eingefügt werden.</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Fillet</source>
        <translation>Abrunden</translation>
    </message>
    <message>
        <source>Chamfer</source>
        <translation>Abschrägen</translation>
    </message>
    <message>
        <source>Round &amp;corners</source>
        <translation>E&amp;cken abrunden</translation>
    </message>
    <message>
        <source>Cut corn&amp;ers off</source>
        <translation>Ecken absc&amp;hrägen</translation>
    </message>
    <message>
        <source>Radius = %1</source>
        <translation>Radius = %1</translation>
    </message>
    <message>
        <source>Distances = %1, %2</source>
        <translation>Abstände = %1, %2</translation>
    </message>
    <message>
        <source>Specify fillet radius</source>
        <translation>Abrundungsradius angeben</translation>
    </message>
    <message>
        <source>Specify first chamfer distance</source>
        <translation>Ersten Abstand der Schräge angeben</translation>
    </message>
    <message>
        <source>Specify second chamfer distance</source>
        <translation>Zweiten Abstand der Schräge angeben</translation>
    </message>
    <message>
        <source>No trim</source>
        <translation>Nicht stutzen</translation>
    </message>
    <message>
        <source>Notrim</source>
        <translation>Nichtstutzen</translation>
    </message>
    <message>
        <source>Multiple</source>
        <translation>Mehrfach</translation>
    </message>
    <message>
        <source>Distance</source>
        <translation>Abstand</translation>
    </message>
    <message>
        <source>Current settings: Mode = %1, %2</source>
        <translation>Aktuelle Einstellungen: Modus = %1, %2</translation>
    </message>
    <message>
        <source>Enter trim mode</source>
        <translation>Stutzmodus eingeben</translation>
    </message>
    <message>
        <source>Select polyline</source>
        <translation>Polylinie wählen</translation>
    </message>
    <message>
        <source>Select first object</source>
        <translation>Erstes Objekt wählen</translation>
    </message>
    <message>
        <source>Select second object</source>
        <translation>Zweites Objekt wählen</translation>
    </message>
    <message>
        <source>%1 corner(s) done, %2 left as they are.</source>
        <translation>%1 Ecke(n) bearbeitet, %2 unverändert.</translation>
    </message>
    <message>
        <source>That is no polyline.</source>
        <translation>Das ist keine Polylinie.</translation>
    </message>
    <message>
        <source>Only lines, arcs, circles and sides of one polyline have such corners.</source>
        <translation>Solche Ecken haben nur Linien, Bögen, Kreise und Seiten einer Polylinie.</translation>
    </message>
    <message>
        <source>The objects lie at different heights.</source>
        <translation>Die Objekte liegen in verschiedenen Höhen.</translation>
    </message>
    <message>
        <source>The objects have no such corner.</source>
        <translation>Die Objekte haben keine solche Ecke.</translation>
    </message>
    <message>
        <source>The objects are too short for that corner.</source>
        <translation>Die Objekte sind für diese Ecke zu kurz.</translation>
    </message>
    <message>
        <source>Select two objects, or two sides of one polyline.</source>
        <translation>Wählen Sie zwei Objekte oder zwei Seiten einer Polylinie.</translation>
    </message>
    <message>
        <source>The sides do not meet at a corner.</source>
        <translation>Die Seiten treffen sich an keiner Ecke.</translation>
    </message>
    <message>
        <source>Measure the distance of t&amp;wo points</source>
        <translation>Abstand &amp;zweier Punkte messen</translation>
    </message>
    <message>
        <source>Distance = %1, angle = %2</source>
        <translation>Abstand = %1, Winkel = %2</translation>
    </message>
    <message>
        <source>Delta X = %1, Y = %2, Z = %3</source>
        <translation>Delta X = %1, Y = %2, Z = %3</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Strecken</translation>
    </message>
    <message>
        <source>Array</source>
        <translation>Reihe</translation>
    </message>
    <message>
        <source>Stretch ob&amp;jects by a part of them</source>
        <translation>Ob&amp;jekte an einem Teil strecken</translation>
    </message>
    <message>
        <source>Copy objects in rows or around a ce&amp;nter</source>
        <translation>Objekte in &amp;Reihen oder um einen Mittelpunkt kopieren</translation>
    </message>
    <message>
        <source>Specify first corner of a box around what is to move</source>
        <translation>Erste Ecke eines Rahmens um das angeben, was sich bewegen soll</translation>
    </message>
    <message>
        <source>%1 could not be stretched.</source>
        <translation>%1 konnten nicht gestreckt werden.</translation>
    </message>
    <message>
        <source>More than %1 copies are not made at once.</source>
        <translation>Mehr als %1 Kopien werden nicht auf einmal gemacht.</translation>
    </message>
    <message>
        <source>Enter the number of rows</source>
        <translation>Anzahl der Zeilen eingeben</translation>
    </message>
    <message>
        <source>Enter the number of columns</source>
        <translation>Anzahl der Spalten eingeben</translation>
    </message>
    <message>
        <source>Specify the distance between rows</source>
        <translation>Abstand der Zeilen angeben</translation>
    </message>
    <message>
        <source>Specify the distance between columns</source>
        <translation>Abstand der Spalten angeben</translation>
    </message>
    <message>
        <source>Specify center point of array</source>
        <translation>Mittelpunkt der Reihe angeben</translation>
    </message>
    <message>
        <source>Enter the number of items</source>
        <translation>Anzahl der Elemente eingeben</translation>
    </message>
    <message>
        <source>Specify the angle to fill</source>
        <translation>Auszufüllenden Winkel angeben</translation>
    </message>
    <message>
        <source>Rotate arrayed objects?</source>
        <translation>Objekte mitdrehen?</translation>
    </message>
    <message>
        <source>Enter the type of array</source>
        <translation>Art der Reihe eingeben</translation>
    </message>
    <message>
        <source>Rectangular</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>Polar</source>
        <translation>Polar</translation>
    </message>
    <message>
        <source>More commands</source>
        <translation>Weitere Befehle</translation>
    </message>
    <message>
        <source>Continue Dimension</source>
        <translation>Bemaßung fortsetzen</translation>
    </message>
    <message>
        <source>Dimension &amp;on from where the last dimension ends</source>
        <translation>V&amp;om Ende der letzten Bemaßung an weiterbemaßen</translation>
    </message>
    <message>
        <source>Select the dimension to go on from</source>
        <translation>Bemaßung wählen, von der es weitergeht</translation>
    </message>
    <message>
        <source>Only linear and aligned dimensions can be continued.</source>
        <translation>Nur lineare und ausgerichtete Bemaßungen können fortgesetzt werden.</translation>
    </message>
    <message>
        <source>Specify next extension line origin</source>
        <translation>Ursprung der nächsten Hilfslinie angeben</translation>
    </message>
    <message>
        <source>Draw a box around what is to be seen.</source>
        <translation>Einen Rahmen um das ziehen, was zu sehen sein soll.</translation>
    </message>
    <message>
        <source>Break</source>
        <translation>Bruch</translation>
    </message>
    <message>
        <source>&amp;Break a piece out of an object, or part it</source>
        <translation>Ein Stück aus einem Objekt &amp;brechen oder es teilen</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>&amp;Join objects into one</source>
        <translation>Ob&amp;jekte zu einem verbinden</translation>
    </message>
    <message>
        <source>Edit Text</source>
        <translation>Text bearbeiten</translation>
    </message>
    <message>
        <source>Edit te&amp;xts</source>
        <translation>Te&amp;xte bearbeiten</translation>
    </message>
    <message>
        <source>Baseline Dimension</source>
        <translation>Basisbemaßung</translation>
    </message>
    <message>
        <source>Dimension from where the last dimension begin&amp;s</source>
        <translation>Vom Anfang der letzten Bemaßung au&amp;s bemaßen</translation>
    </message>
    <message>
        <source>Angular Dimension</source>
        <translation>Winkelbemaßung</translation>
    </message>
    <message>
        <source>Dimension an an&amp;gle</source>
        <translation>Einen &amp;Winkel bemaßen</translation>
    </message>
    <message>
        <source>Measure an a&amp;rea and its perimeter</source>
        <translation>Eine Fläche und ihren &amp;Umfang messen</translation>
    </message>
    <message>
        <source>Specify next corner</source>
        <translation>Nächste Ecke angeben</translation>
    </message>
    <message>
        <source>Select object to measure</source>
        <translation>Objekt zum Messen wählen</translation>
    </message>
    <message>
        <source>The object encloses no area.</source>
        <translation>Das Objekt umschließt keine Fläche.</translation>
    </message>
    <message>
        <source>The area is too large to calculate with.</source>
        <translation>Die Fläche ist zu groß, um mit ihr zu rechnen.</translation>
    </message>
    <message>
        <source>An area needs three corners.</source>
        <translation>Eine Fläche braucht drei Ecken.</translation>
    </message>
    <message>
        <source>Area = %1</source>
        <translation>Fläche = %1</translation>
    </message>
    <message>
        <source>Area = %1, perimeter = %2</source>
        <translation>Fläche = %1, Umfang = %2</translation>
    </message>
    <message>
        <source>Area = %1, length = %2</source>
        <translation>Fläche = %1, Länge = %2</translation>
    </message>
    <message>
        <source>Select object to break</source>
        <translation>Objekt zum Brechen wählen</translation>
    </message>
    <message>
        <source>Only lines, arcs, circles and polylines can be broken.</source>
        <translation>Nur Linien, Bögen, Kreise und Polylinien lassen sich brechen.</translation>
    </message>
    <message>
        <source>Specify second break point, or @ for the same</source>
        <translation>Zweiten Bruchpunkt angeben, oder @ für denselben</translation>
    </message>
    <message>
        <source>Specify first break point</source>
        <translation>Ersten Bruchpunkt angeben</translation>
    </message>
    <message>
        <source>Specify break point</source>
        <translation>Bruchpunkt angeben</translation>
    </message>
    <message>
        <source>The object cannot be broken there.</source>
        <translation>Das Objekt lässt sich dort nicht brechen.</translation>
    </message>
    <message>
        <source>%1 joined into %2</source>
        <translation>%1 zu %2 verbunden</translation>
    </message>
    <message>
        <source>%1 could not be joined.</source>
        <translation>%1 ließen sich nicht verbinden.</translation>
    </message>
    <message>
        <source>Only linear and aligned dimensions have a baseline.</source>
        <translation>Nur lineare und ausgerichtete Bemaßungen haben eine Basis.</translation>
    </message>
    <message>
        <source>Select arc, circle or line; Enter for a vertex and two points</source>
        <translation>Bogen, Kreis oder Linie wählen; Enter für Scheitel und zwei Punkte</translation>
    </message>
    <message>
        <source>Specify angle vertex</source>
        <translation>Scheitel des Winkels angeben</translation>
    </message>
    <message>
        <source>Specify first angle endpoint</source>
        <translation>Ersten Endpunkt des Winkels angeben</translation>
    </message>
    <message>
        <source>Specify second angle endpoint</source>
        <translation>Zweiten Endpunkt des Winkels angeben</translation>
    </message>
    <message>
        <source>Select second line</source>
        <translation>Zweite Linie wählen</translation>
    </message>
    <message>
        <source>The lines are parallel.</source>
        <translation>Die Linien sind parallel.</translation>
    </message>
    <message>
        <source>The object is no line.</source>
        <translation>Das Objekt ist keine Linie.</translation>
    </message>
    <message>
        <source>The object is no arc, circle or line.</source>
        <translation>Das Objekt ist kein Bogen, kein Kreis und keine Linie.</translation>
    </message>
    <message>
        <source>Select text to edit</source>
        <translation>Text zum Bearbeiten wählen</translation>
    </message>
    <message>
        <source>The object has no text of its own.</source>
        <translation>Das Objekt hat keinen eigenen Text.</translation>
    </message>
    <message>
        <source>Text of the drawing</source>
        <translation>Text der Zeichnung</translation>
    </message>
    <message>
        <source>Enter takes the text, Esc leaves it as it was.</source>
        <translation>Enter übernimmt den Text, Esc lässt ihn, wie er war.</translation>
    </message>
    <message>
        <source>Ctrl+Enter or a click into the drawing takes the text, Esc leaves it as it was.</source>
        <translation>Strg+Enter oder ein Klick in die Zeichnung übernimmt den Text, Esc lässt ihn, wie er war.</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Erster</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>Werkzeug</translation>
    </message>
</context>
</TS>
