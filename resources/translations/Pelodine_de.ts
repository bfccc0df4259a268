<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <location filename="../../batch/appsettingsdialog.cpp" line="+23"/>
        <source> Settings</source>
        <translation> Einstellungen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open Destination Folder When Done</source>
        <translation>Zielordner danach öffnen</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Quiality:</source>
        <translation>Qualität:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Output Format</source>
        <translation>Ausgabeformat</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Format:</source>
        <translation>Format:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Odd</source>
        <translation>Ungerade</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Even</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>New Name:</source>
        <translation>Neuer Name:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Numbers:</source>
        <translation>Nummern:</translation>
    </message>
    <message>
        <location line="+5"/>
        <source> megapixels</source>
        <translation> Megapixel</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Transparent pixels are laid on it in JPEG, BMP and PPM</source>
        <translation>Transparente Pixel werden in JPEG, BMP und PPM darauf gelegt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Short file extensions (.jpg, .tif)</source>
        <translation>Kurze Dateiendungen (.jpg, .tif)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source> KB</source>
        <translation> KB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No limit</source>
        <translation>Keine Grenze</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Largest photo:</source>
        <translation>Größtes Foto:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>For JPEG, WEBP, AVIF and JXL: the highest quality whose file fits</source>
        <translation>Für JPEG, WEBP, AVIF und JXL: die höchste Qualität, deren Datei passt</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Largest file:</source>
        <translation>Größte Datei:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Background:</source>
        <translation>Hintergrund:</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Keep all</source>
        <translation>Alle behalten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Remove location</source>
        <translation>Aufnahmeort entfernen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Remove all</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Metadata</source>
        <translation>Metadaten</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Artist:</source>
        <translation>Urheber:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copyright:</source>
        <translation>Copyright:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>A new folder for each run</source>
        <translation>Neuer Ordner je Durchlauf</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Keep folder structure</source>
        <translation>Ordnerstruktur beibehalten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A photo from a subfolder of a folder you added goes into the same subfolder of the results</source>
        <translation>Ein Foto aus einem Unterordner eines hinzugefügten Ordners kommt in denselben Unterordner der Ergebnisse</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Convert to sRGB</source>
        <translation>In sRGB umwandeln</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Colours converted from the photo&apos;s profile to sRGB, as the web expects</source>
        <translation>Farben vom Profil des Fotos nach sRGB umgerechnet, wie es das Web erwartet</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Save into:</source>
        <translation>Speichern in:</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>One per core</source>
        <translation>Eines je Kern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fast reading</source>
        <translation>Schnelles Einlesen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A flow that begins by shrinking the photo to half or less reads a JPEG at a half, a quarter or an eighth of its size: much faster, a little less sharp</source>
        <translation>Ein Ablauf, der das Foto zuerst auf die Hälfte oder weniger verkleinert, liest ein JPEG in halber, Viertel- oder Achtelgröße: viel schneller, etwas weniger scharf</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Photos at once:</source>
        <translation>Fotos gleichzeitig:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Save into</source>
        <translation>Speichern in</translation>
    </message>
</context>
<context>
    <name>BCSNode</name>
    <message>
        <location filename="../../nodes/params/operations.cpp" line="+21"/>
        <source>Brightness:</source>
        <translation>Helligkeit:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Contrast:</source>
        <translation>Kontrast:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Saturation:</source>
        <translation>Sättigung:</translation>
    </message>
</context>
<context>
    <name>BINNode</name>
    <message>
        <location line="+196"/>
        <source>Threshold:</source>
        <translation>Schwellwert:</translation>
    </message>
</context>
<context>
    <name>BLRNode</name>
    <message>
        <location line="-102"/>
        <source>Blur:</source>
        <translation>Unschärfe:</translation>
    </message>
</context>
<context>
    <name>BaseNode</name>
    <message>
        <location filename="../../nodes/nodecontrols.cpp" line="+158"/>
        <source>&lt;H2&gt;No options&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;Keine Optionen&lt;/H2&gt;</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <location filename="../../batch/batchdialog.cpp" line="+28"/>
        <source> Batch Process</source>
        <translation> Stapelverarbeitung</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+57"/>
        <location line="+61"/>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <location line="-115"/>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <location line="+54"/>
        <source>Resume</source>
        <translation>Fortsetzen</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>of</source>
        <translation>von</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>&lt;CENTER&gt;&lt;H1&gt;Please, wait...&lt;/H1&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H1&gt;Bitte warten...&lt;/H1&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>BatchEngine</name>
    <message>
        <location filename="../../batch/engine/batchengine.cpp" line="+418"/>
        <source>cannot write: it would replace a source photo</source>
        <translation>Schreiben nicht möglich: ein Quellfoto würde ersetzt</translation>
    </message>
    <message>
        <location line="-262"/>
        <source>cannot write: %1</source>
        <translation>Schreiben nicht möglich: %1</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>too large: %1 x %2</source>
        <translation>zu groß: %1 x %2</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>cannot write: disk full</source>
        <translation>Schreiben nicht möglich: Datenträger voll</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>cannot write: permission denied</source>
        <translation>Schreiben nicht möglich: keine Berechtigung</translation>
    </message>
    <message>
        <location line="+252"/>
        <source>cannot write: the name &quot;%1&quot; would leave the output folder</source>
        <translation>Schreiben nicht möglich: der Name „%1“ würde den Ausgabeordner verlassen</translation>
    </message>
    <message>
        <location line="-145"/>
        <source>cannot write: the photo is not inside %1</source>
        <translation>Schreiben nicht möglich: das Foto liegt nicht in %1</translation>
    </message>
    <message>
        <location line="+17"/>
        <location line="+146"/>
        <source>cannot write: %1 is a link</source>
        <translation>Schreiben nicht möglich: %1 ist eine Verknüpfung</translation>
    </message>
    <message>
        <location line="-145"/>
        <source>cannot create the folder %1</source>
        <translation>der Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <location line="+147"/>
        <source>cannot write: %1 is not a regular file</source>
        <translation>Schreiben nicht möglich: %1 ist keine normale Datei</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>cannot write: %1 already exists</source>
        <translation>Schreiben nicht möglich: %1 existiert bereits</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>larger than %1 KB even at quality 1</source>
        <translation>größer als %1 KB selbst bei Qualität 1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>cannot write: the %1 writer failed</source>
        <translation>Schreiben nicht möglich: der %1-Schreiber scheiterte</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>unreadable: not a regular file</source>
        <translation>nicht lesbar: keine normale Datei</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>unreadable: permission denied</source>
        <translation>nicht lesbar: keine Berechtigung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>unreadable: %1</source>
        <translation>nicht lesbar: %1</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>unreadable: a drawing (%1), not a photo</source>
        <translation>nicht lesbar: eine Zeichnung (%1), kein Foto</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>unreadable: its size cannot be read</source>
        <translation>nicht lesbar: seine Größe lässt sich nicht lesen</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>damaged: %1</source>
        <translation>beschädigt: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>unreadable: not a photo this program can read</source>
        <translation>nicht lesbar: kein Foto, das dieses Programm lesen kann</translation>
    </message>
    <message>
        <location line="-37"/>
        <source>unreadable: no such file</source>
        <translation>nicht lesbar: Datei existiert nicht</translation>
    </message>
    <message>
        <location line="-335"/>
        <source>the operation &quot;%1&quot; left no image</source>
        <translation>die Operation „%1“ hat kein Bild hinterlassen</translation>
    </message>
</context>
<context>
    <name>BatchOperations</name>
    <message>
        <location filename="../../batch/engine/flowoperations.cpp" line="+25"/>
        <source>&quot;%1&quot; is not an operation: left out</source>
        <translation>„%1“ ist keine Operation: ausgelassen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1: the %2 cannot be read: left as it was</source>
        <translation>%1: %2 ist nicht lesbar: unverändert gelassen</translation>
    </message>
</context>
<context>
    <name>CRPNode</name>
    <message>
        <location filename="../../nodes/params/operations.cpp" line="-63"/>
        <source>Left:</source>
        <translation>Links:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Right:</source>
        <translation>Rechts:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Top:</source>
        <translation>Oben:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Buttom:</source>
        <translation>Unten:</translation>
    </message>
</context>
<context>
    <name>Creator</name>
    <message>
        <location filename="../../mainpage/creator.cpp" line="+48"/>
        <source>&lt;H2&gt;&lt;CENTER&gt;Original&lt;/CENTER&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;CENTER&gt;Original&lt;/CENTER&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Switch between the photo and the icon list</source>
        <translation>Zwischen Foto und Symbolliste wechseln</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Show the photos as the flow makes them</source>
        <translation>Die Fotos so zeigen, wie der Ablauf sie macht</translation>
    </message>
</context>
<context>
    <name>CreatorDropArea</name>
    <message>
        <location filename="../../mainpage/creatordroparea.cpp" line="+95"/>
        <source>&lt;H2&gt;Drop the photos here&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;Fotos hierher ziehen&lt;/H2&gt;</translation>
    </message>
    <message>
        <location line="-74"/>
        <source>Click to open the photos</source>
        <translation>Klicken, um Fotos zu öffnen</translation>
    </message>
    <message>
        <location line="+79"/>
        <source>Open the photos</source>
        <translation>Fotos öffnen</translation>
    </message>
</context>
<context>
    <name>Direction</name>
    <message>
        <location filename="../../nodes/params/direction.cpp" line="+9"/>
        <source>TopLeft</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TopMiddle</source>
        <translation>Oben Mitte</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TopRight</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>MiddleLeft</source>
        <translation>Mitte links</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>MiddleRight</source>
        <translation>Mitte rechts</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>BottomLeft</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>BottomMiddle</source>
        <translation>Unten Mitte</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>BottomRight</source>
        <translation>Unten rechts</translation>
    </message>
</context>
<context>
    <name>FRMNode</name>
    <message>
        <location filename="../../nodes/params/operations.cpp" line="+30"/>
        <source>Color:</source>
        <translation>Farbe:</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
</context>
<context>
    <name>FavoritesDeleteDlg</name>
    <message>
        <location filename="../../flow/favoritesdeletedlg.cpp" line="+16"/>
        <source>Delete the flow</source>
        <translation>Ablauf löschen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
</context>
<context>
    <name>FlowPanel</name>
    <message>
        <location filename="../../flow/flowpanel.cpp" line="+100"/>
        <source>Flows</source>
        <translation>Abläufe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save Results</source>
        <translation>Ergebnisse speichern</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Add node</source>
        <translation>Schritt hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A click adds a watermark; the arrow or a right click lists every operation.</source>
        <translation>Ein Klick fügt ein Wasserzeichen hinzu; der Pfeil oder ein Rechtsklick zeigt jeden Schritt zur Auswahl.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Remove selected node</source>
        <translation>Gewählten Schritt entfernen</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Save the resulted photos to the separate folder</source>
        <translation>Die bearbeiteten Fotos in einen eigenen Ordner speichern</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&amp;Save...</source>
        <translation>&amp;Speichern...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&amp;Delete...</source>
        <translation>&amp;Löschen...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&amp;Go To Flows Location</source>
        <translation>Ablauf&amp;ordner öffnen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&amp;Keep the Flow for the Next Start</source>
        <translation>Ablauf für den nächsten Start &amp;behalten</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Load a Flow</source>
        <translation>Ablauf laden</translation>
    </message>
    <message>
        <location line="+18"/>
        <location line="+137"/>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <location line="-38"/>
        <source>Move %1</source>
        <translation>%1 verschieben</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Clear the Flow</source>
        <translation>Ablauf leeren</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Save Flow</source>
        <translation>Ablauf speichern</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Flow&apos;s Name:</source>
        <translation>Name des Ablaufs:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Can not create the flow without name</source>
        <translation>Ein Ablauf ohne Namen kann nicht angelegt werden</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The flow the with name &quot;%1&quot; already exists.
Overwrite?</source>
        <translation>Ein Ablauf mit dem Namen „%1“ existiert bereits.
Überschreiben?</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Remove the flow:
 &quot;%1&quot;?</source>
        <translation>Den Ablauf entfernen:
 „%1“?</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Change %1</source>
        <translation>%1 ändern</translation>
    </message>
</context>
<context>
    <name>HSTNode</name>
    <message>
        <location filename="../../nodes/params/operations.cpp" line="-50"/>
        <source>Left:</source>
        <translation>Links:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Right:</source>
        <translation>Rechts:</translation>
    </message>
</context>
<context>
    <name>ImagePreview</name>
    <message>
        <location filename="../../mainpage/imagepreview.cpp" line="+13"/>
        <source>&lt;H1&gt;INFO&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;INFO&lt;/H1&gt;</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Preview · %1</source>
        <translation>Vorschau · %1</translation>
    </message>
</context>
<context>
    <name>ImageViewDialog</name>
    <message>
        <location filename="../../mainpage/imageviewdialog.cpp" line="+15"/>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
</context>
<context>
    <name>MRRNode</name>
    <message>
        <location filename="../../nodes/params/operations.cpp" line="+163"/>
        <source>Mirror left to right</source>
        <translation>Von links nach rechts spiegeln</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Mirror top to bottom</source>
        <translation>Von oben nach unten spiegeln</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <location filename="../../mainpage/mainpage.cpp" line="+55"/>
        <source>Output settings</source>
        <translation>Ausgabeeinstellungen</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Save Flow</source>
        <translation>Ablauf speichern</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>&amp;Language</source>
        <translation>&amp;Sprache</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Show &amp;Help</source>
        <translation>&amp;Hilfe anzeigen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&amp;About %1</source>
        <translation>&amp;Über %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The new language is used from the next start of %1.</source>
        <translation>Die neue Sprache gilt ab dem nächsten Start von %1.</translation>
    </message>
</context>
<context>
    <name>NodeName</name>
    <message>
        <location filename="../../nodes/params/operations.h" line="+26"/>
        <source>Brightness, Contrast, Saturation</source>
        <translation>Helligkeit, Kontrast, Sättigung</translation>
    </message>
    <message>
        <location line="+154"/>
        <source>Binarization</source>
        <translation>Binarisierung</translation>
    </message>
    <message>
        <location line="-74"/>
        <source>Blur</source>
        <translation>Weichzeichnen</translation>
    </message>
    <message>
        <location line="-51"/>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <location line="+107"/>
        <source>Grayscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <location line="-148"/>
        <source>Histogram optimizer</source>
        <translation>Histogramm-Optimierung</translation>
    </message>
    <message>
        <location line="+155"/>
        <source>Invert</source>
        <translation>Invertieren</translation>
    </message>
    <message>
        <location line="-27"/>
        <source>Mirror</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <location line="-100"/>
        <source>RGB-Order</source>
        <translation>RGB-Reihenfolge</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>Resize</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <location line="-47"/>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Vignetting</source>
        <translation>Vignettierung</translation>
    </message>
    <message>
        <location filename="../../nodes/params/watermarkoperation.h" line="+20"/>
        <source>Watermark</source>
        <translation>Wasserzeichen</translation>
    </message>
</context>
<context>
    <name>NodeShortName</name>
    <message>
        <location filename="../../nodes/nodecatalogue.cpp" line="+66"/>
        <source>RGB-Order</source>
        <translation>RGB-Folge</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rotate</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Blur</source>
        <translation>Unschärfe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Invert</source>
        <translation>Invertieren</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Mirror</source>
        <translation>Spiegeln</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Grayscale</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Watermark</source>
        <translation>Wasserzeichen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Crop</source>
        <translation>Zuschnitt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Resize</source>
        <translation>Größe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Histogram</source>
        <translation>Histogramm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Binarization</source>
        <translation>Binär</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vignetting</source>
        <translation>Vignette</translation>
    </message>
</context>
<context>
    <name>NodesOptionsPanel</name>
    <message>
        <location filename="../../nodes/ui/nodesoptionspanel.cpp" line="+46"/>
        <source>Build your flow</source>
        <translation>Ablauf erstellen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Add an operation with the %1 button below.</source>
        <translation>Fügen Sie mit der Schaltfläche %1 unten einen Schritt hinzu.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Its options will appear here.</source>
        <translation>Seine Optionen erscheinen hier.</translation>
    </message>
</context>
<context>
    <name>PhotoActions</name>
    <message>
        <location filename="../../mainpage/photoactions.cpp" line="+23"/>
        <source>&amp;Add Photos…</source>
        <translation>&amp;Fotos hinzufügen…</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add &amp;Folder…</source>
        <translation>&amp;Ordner hinzufügen…</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&amp;Remove Photo</source>
        <translation>Foto &amp;entfernen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&amp;Clear Photos</source>
        <translation>&amp;Alle Fotos entfernen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Next Photo</source>
        <translation>Nächstes Foto</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Previous Photo</source>
        <translation>Vorheriges Foto</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Add Photos</source>
        <translation>Fotos hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Photos (%1);;All Files (*)</source>
        <translation>Fotos (%1);;Alle Dateien (*)</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Add Folder</source>
        <translation>Ordner hinzufügen</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>There are no photos in the folder %1.</source>
        <translation>Im Ordner %1 sind keine Fotos.</translation>
    </message>
</context>
<context>
    <name>PhotoLabel</name>
    <message>
        <location filename="../../mainpage/photolabel.cpp" line="+35"/>
        <source>Previous photo</source>
        <translation>Vorheriges Foto</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Next photo</source>
        <translation>Nächstes Foto</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>&lt;H1&gt;%1 of %2&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;%1 von %2&lt;/H1&gt;</translation>
    </message>
</context>
<context>
    <name>RGBNode</name>
    <message>
        <location filename="../../nodes/rgbnode.cpp" line="+10"/>
        <source>Red&lt;-&gt;Blue</source>
        <translation>Rot&lt;-&gt;Blau</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Red&lt;-&gt;Green</source>
        <translation>Rot&lt;-&gt;Grün</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Green&lt;-&gt;Blue</source>
        <translation>Grün&lt;-&gt;Blau</translation>
    </message>
</context>
<context>
    <name>RSZNode</name>
    <message>
        <location filename="../../nodes/rsznode.cpp" line="+14"/>
        <source>Percentage</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Maximum Pixels</source>
        <translation>Maximale Pixel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <location filename="../../nodes/params/operations.cpp" line="-53"/>
        <source>Scale by:</source>
        <translation>Skalieren nach:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Never enlarge</source>
        <translation>Nie vergrößern</translation>
    </message>
</context>
<context>
    <name>RTTNode</name>
    <message>
        <location filename="../../nodes/rttnode.cpp" line="+11"/>
        <source>Rotate clockwise</source>
        <translation>Im Uhrzeigersinn drehen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Rotate anticlockwise</source>
        <translation>Gegen den Uhrzeigersinn drehen</translation>
    </message>
</context>
<context>
    <name>Representor</name>
    <message>
        <location filename="../../mainpage/representor.cpp" line="+56"/>
        <source>&lt;H2&gt;&lt;CENTER&gt;Result&lt;/CENTER&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;CENTER&gt;Ergebnis&lt;/CENTER&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Show the result in full size</source>
        <translation>Ergebnis in voller Größe zeigen</translation>
    </message>
</context>
<context>
    <name>RunClock</name>
    <message>
        <location filename="../../batch/engine/runclock.cpp" line="+29"/>
        <source>%1 s left</source>
        <translation>noch %1 s</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 min %2 s left</source>
        <translation>noch %1 min %2 s</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 h %2 min left</source>
        <translation>noch %1 h %2 min</translation>
    </message>
</context>
<context>
    <name>RunSummaryBar</name>
    <message>
        <location filename="../../mainpage/runsummarybar.cpp" line="+46"/>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Photos written: %1 of %2, into %3</source>
        <translation>Geschriebene Fotos: %1 von %2, in %3</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Stopped: %1 not processed.</source>
        <translation>Angehalten: %1 nicht bearbeitet.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Failed: %1</source>
        <translation>Fehlgeschlagen: %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
</context>
<context>
    <name>SHSNode</name>
    <message>
        <location filename="../../nodes/shsnode.cpp" line="+11"/>
        <source>Sharpness:</source>
        <translation>Schärfe:</translation>
    </message>
</context>
<context>
    <name>TabLabel</name>
    <message>
        <location filename="../../flow/tablabel.cpp" line="+16"/>
        <source>Enlarge the preview</source>
        <translation>Vorschau vergrößern</translation>
    </message>
</context>
<context>
    <name>UCSNode</name>
    <message>
        <location filename="../../nodes/params/operations.cpp" line="-38"/>
        <source>Radius:</source>
        <translation>Radius:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Opacity:</source>
        <translation>Deckkraft:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Color:</source>
        <translation>Farbe:</translation>
    </message>
</context>
<context>
    <name>WMRNode</name>
    <message>
        <location filename="../../nodes/wmrnode.cpp" line="+147"/>
        <source>Fewer options</source>
        <translation>Weniger Optionen</translation>
    </message>
    <message>
        <location filename="../../nodes/params/watermarkoperation.cpp" line="+59"/>
        <source>Bold</source>
        <translation>Fett</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Italic</source>
        <translation>Kursiv</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Underlined</source>
        <translation>Unterstrichen</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Draw</source>
        <translation>Zeichnen</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Tile:</source>
        <translation>Kacheln:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Gap: </source>
        <translation>Abstand: </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Angle:</source>
        <translation>Winkel:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Shadow</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Distance: </source>
        <translation>Versatz: </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Blur: </source>
        <translation>Weichheit: </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Outline</source>
        <translation>Kontur</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Width: </source>
        <translation>Breite: </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Size of:</source>
        <translation>Größe von:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Places:</source>
        <translation>Orte:</translation>
    </message>
    <message>
        <location filename="../../nodes/wmrnode.cpp" line="+13"/>
        <source>Open a logo picture</source>
        <translation>Logobild öffnen</translation>
    </message>
    <message>
        <location filename="../../nodes/params/watermarkoperation.cpp" line="-45"/>
        <source>X: </source>
        <translation>X: </translation>
    </message>
    <message>
        <location filename="../../nodes/wmrnode.cpp" line="+5"/>
        <source>Horizontal offset in percent of the height</source>
        <translation>Waagrechter Versatz in Prozent der Höhe</translation>
    </message>
    <message>
        <location filename="../../nodes/params/watermarkoperation.cpp" line="+2"/>
        <source>Y: </source>
        <translation>Y: </translation>
    </message>
    <message>
        <location filename="../../nodes/wmrnode.cpp" line="-80"/>
        <source>Photo name</source>
        <translation>Fotoname</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Date taken</source>
        <translation>Aufnahmedatum</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Date and time taken</source>
        <translation>Aufnahmedatum und -zeit</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Year taken</source>
        <translation>Aufnahmejahr</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Artist</source>
        <translation>Urheber</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copyright</source>
        <translation>Copyright</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Photo number</source>
        <translation>Nummer des Fotos</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Number of photos</source>
        <translation>Anzahl der Fotos</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copyright sign</source>
        <translation>Copyright-Zeichen</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Insert a detail of each photo</source>
        <translation>Eine Angabe zu jedem Foto einfügen</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Vertical offset in percent of the height</source>
        <translation>Senkrechter Versatz in Prozent der Höhe</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Image</source>
        <translation>Bild</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Draw the background behind the text</source>
        <translation>Hintergrund hinter dem Text zeichnen</translation>
    </message>
    <message>
        <location line="+137"/>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Size of, angle, tiles, shadow, outline, automatic color and position</source>
        <translation>Größe von, Winkel, Kacheln, Schatten, Kontur, automatische Farbe und Position</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Long edge</source>
        <translation>Lange Kante</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Short edge</source>
        <translation>Kurze Kante</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>What the size is a percentage of: the same visual size on portrait and landscape photos with the long or the short edge</source>
        <translation>Wovon die Größe ein Prozentsatz ist: mit der langen oder der kurzen Kante dieselbe sichtbare Größe auf Hoch- und Querformat</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Turns the mark about its center, counter-clockwise</source>
        <translation>Dreht das Zeichen um seine Mitte, gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Repeats the mark over the whole photo; position and offsets set where the grid starts</source>
        <translation>Wiederholt das Zeichen über das ganze Foto; Position und Versätze legen fest, wo das Raster beginnt</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Gap between the tiles in percent of the mark</source>
        <translation>Abstand zwischen den Kacheln in Prozent des Zeichens</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Shadow color</source>
        <translation>Schattenfarbe</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>How far the shadow lies right and down, in percent of the text height</source>
        <translation>Wie weit der Schatten nach rechts unten liegt, in Prozent der Texthöhe</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>How soft the shadow is, in percent of the text height</source>
        <translation>Wie weich der Schatten ist, in Prozent der Texthöhe</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Outline color</source>
        <translation>Konturfarbe</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Width of the outline in percent of the text height</source>
        <translation>Breite der Kontur in Prozent der Texthöhe</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Per photo, the text color or its light or dark opposite, whichever stands out more; the shadow and outline follow</source>
        <translation>Je Foto die Textfarbe oder ihr helles bzw. dunkles Gegenstück, je nachdem, was sich besser abhebt; Schatten und Kontur folgen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Per photo, the ticked place with the least detail under the mark, the offsets kept</source>
        <translation>Je Foto der angekreuzte Ort mit den wenigsten Details unter dem Zeichen; die Versätze bleiben</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Auto:</source>
        <translation>Auto:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The places the automatic position chooses from</source>
        <translation>Die Orte, unter denen die automatische Position wählt</translation>
    </message>
    <message>
        <location filename="../../nodes/params/watermarkoperation.cpp" line="-20"/>
        <source>Kind:</source>
        <translation>Art:</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Text:</source>
        <translation>Text:</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Font:</source>
        <translation>Schrift:</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Text color:</source>
        <translation>Textfarbe:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Background:</source>
        <translation>Hintergrund:</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Logo:</source>
        <translation>Logo:</translation>
    </message>
    <message>
        <location line="-32"/>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Transparency:</source>
        <translation>Transparenz:</translation>
    </message>
    <message>
        <location line="-14"/>
        <source>Position:</source>
        <translation>Position:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Expand:</source>
        <translation>Strecken:</translation>
    </message>
    <message>
        <location filename="../../nodes/wmrnode.cpp" line="-141"/>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Can not open the image file:</source>
        <translation>Die Bilddatei kann nicht geöffnet werden:</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Open the watermark file</source>
        <translation>Wasserzeichen-Datei öffnen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Images (%1);;All files (*)</source>
        <translation>Bilder (%1);;Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <location filename="../../app/batchmain.cpp" line="+77"/>
        <source>Runs a Pelodine flow over photos and writes the results, as the window&apos;s &quot;Save Results&quot; does.
Options that are not given take their defaults: JPEG at quality 90, the photos&apos; own names, numbers all; with --use-window-settings they come from the settings of the Pelodine window.
Progress and a summary go to the standard error; every photo that failed is named with the reason.
Exit status: 0 when every photo was written, 1 when some failed or the flow holds something that cannot be taken (see --lenient), 2 for bad usage or a flow that cannot be read.
A source photo is never written over; nothing is written through a link, outside the output folder, or over a file this run did not write (see --overwrite).</source>
        <translation>Führt einen Pelodine-Ablauf über Fotos aus und schreibt die Ergebnisse, wie es „Ergebnisse speichern“ im Fenster tut.
Nicht angegebene Optionen nehmen ihre Vorgaben: JPEG mit Qualität 90, die eigenen Namen der Fotos, Nummern all; mit --use-window-settings kommen sie aus den Einstellungen des Pelodine-Fensters.
Fortschritt und Zusammenfassung gehen auf die Standardfehlerausgabe; jedes Foto, das scheiterte, wird mit dem Grund genannt.
Rückgabewert: 0, wenn jedes Foto geschrieben wurde, 1, wenn manche scheiterten oder der Ablauf etwas enthält, das nicht übernommen werden kann (siehe --lenient), 2 bei falscher Verwendung oder einem Ablauf, der nicht gelesen werden kann.
Ein Quellfoto wird nie überschrieben; nichts wird durch eine Verknüpfung, außerhalb des Ausgabeordners oder über eine Datei geschrieben, die dieser Lauf nicht geschrieben hat (siehe --overwrite).</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>The flow: a .flow file, or the name of a flow in the flows folder (%1). Default: the built-in sample flow.</source>
        <translation>Der Ablauf: eine .flow-Datei oder der Name eines Ablaufs im Ablaufordner (%1). Standard: der eingebaute Beispielablauf.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The folder to write into. Default: a new folder named by the start time under %1.</source>
        <translation>Der Ordner, in den geschrieben wird. Standard: ein neuer, nach der Startzeit benannter Ordner unter %1.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The output format; the file extension is its name in lower case.</source>
        <translation>Das Ausgabeformat; die Dateiendung ist sein Name in Kleinbuchstaben.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Name the files NAME followed by a number instead of the photo&apos;s name.</source>
        <translation>Die Dateien NAME mit angehängter Nummer statt nach dem Foto benennen.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Keep the photos&apos; own names, also where the window&apos;s settings rename.</source>
        <translation>Die eigenen Namen der Fotos behalten, auch wenn die Einstellungen des Fensters umbenennen.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The numbers when renaming: all 0, 1, 2, ...; odd 1, 3, 5, ...; even 2, 4, 6, ...</source>
        <translation>Die Nummern beim Umbenennen: all 0, 1, 2, ...; odd 1, 3, 5, ...; even 2, 4, 6, ...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Take the options that are not given from the settings of the Pelodine window.</source>
        <translation>Nicht angegebene Optionen aus den Einstellungen des Pelodine-Fensters übernehmen.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Replace files in the output folder that this run did not write.</source>
        <translation>Dateien im Ausgabeordner ersetzen, die dieser Lauf nicht geschrieben hat.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The largest photo to read, in megapixels, checked before decoding; a flow may not grow a photo past it either. Default: %1.</source>
        <translation>Das größte Foto, das gelesen wird, in Megapixeln, vor dem Dekodieren geprüft; auch ein Ablauf darf ein Foto nicht darüber hinaus vergrößern. Vorgabe: %1.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>What the results keep of the photos&apos; EXIF, IPTC and XMP: all of it, all but where the photo was taken (GPS and location fields), or none. Default: keep.</source>
        <translation>Was die Ergebnisse von EXIF, IPTC und XMP der Fotos behalten: alles, alles außer dem Aufnahmeort (GPS- und Ortsfelder) oder nichts. Vorgabe: keep.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The colour transparent pixels are laid on in JPEG, BMP and PPM, as a name or #rrggbb. Default: white.</source>
        <translation>Die Farbe, auf die transparente Pixel in JPEG, BMP und PPM gelegt werden, als Name oder #rrggbb. Vorgabe: weiß.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The file extension: the format&apos;s name in lower case (jpeg, tiff) or the short one (jpg, tif). Default: format.</source>
        <translation>Die Dateiendung: der Name des Formats in Kleinbuchstaben (jpeg, tiff) oder die kurze (jpg, tif). Vorgabe: format.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Write TEXT as the artist into every result&apos;s EXIF, IPTC and XMP.</source>
        <translation>TEXT als Urheber in EXIF, IPTC und XMP jedes Ergebnisses schreiben.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Write TEXT as the copyright into every result&apos;s EXIF, IPTC and XMP.</source>
        <translation>TEXT als Copyright in EXIF, IPTC und XMP jedes Ergebnisses schreiben.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Convert each photo from its colour profile to sRGB before the flow and embed sRGB, as the web expects; a photo without a profile is taken as sRGB. Without it the photo&apos;s own profile is embedded.</source>
        <translation>Jedes Foto vor dem Ablauf von seinem Farbprofil nach sRGB umrechnen und sRGB einbetten, wie es das Web erwartet; ein Foto ohne Profil gilt als sRGB. Ohne diese Option wird das eigene Profil des Fotos eingebettet.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Write a photo found in a subfolder of a FOLDER given into the same subfolder below the output folder. The default, unless --use-window-settings says otherwise.</source>
        <translation>Ein Foto aus einem Unterordner eines angegebenen FOLDER in denselben Unterordner unter dem Ausgabeordner schreiben. Standard, sofern --use-window-settings nichts anderes sagt.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Write every photo straight into the output folder.</source>
        <translation>Jedes Foto direkt in den Ausgabeordner schreiben.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Run a flow that holds something that cannot be taken (an unknown operation, a logo that does not decode) without it, instead of stopping.</source>
        <translation>Einen Ablauf, der etwas enthält, das nicht übernommen werden kann (eine unbekannte Operation, ein Logo, das sich nicht dekodieren lässt), ohne dieses ausführen, statt anzuhalten.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Print only the photos that failed.</source>
        <translation>Nur die fehlgeschlagenen Fotos ausgeben.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Write no results: run the flow on every photo at the size of the window&apos;s preview and write one sheet of them all into FILE, each labelled with its name and the size the run would write. The format follows FILE&apos;s extension.</source>
        <translation>Keine Ergebnisse schreiben: den Ablauf auf jedes Foto in der Größe der Vorschau des Fensters anwenden und einen Bogen mit allen in FILE schreiben, jedes mit seinem Namen und der Größe beschriftet, die der Lauf schreiben würde. Das Format folgt der Endung von FILE.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Work on N photos at once. Default: one per core (%1).</source>
        <translation>N Fotos gleichzeitig bearbeiten. Vorgabe: eines je Kern (%1).</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Fast reading: when the flow begins by shrinking the photo to half or less, read a JPEG at 1/2, 1/4 or 1/8 of its size and finish the resize from there. The results have the same size, a little less sharp.</source>
        <translation>Schnelles Einlesen: Verkleinert der Ablauf das Foto zuerst auf die Hälfte oder weniger, wird ein JPEG in 1/2, 1/4 oder 1/8 seiner Größe gelesen und von dort fertig verkleinert. Die Ergebnisse haben dieselbe Größe und sind etwas weniger scharf.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Skip every photo whose result is already in the --output folder, as after a run that was stopped.</source>
        <translation>Jedes Foto überspringen, dessen Ergebnis schon im Ordner von --output liegt, etwa nach einem angehaltenen Lauf.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Take only the photos whose position (from 0) leaves K when divided by N, named and numbered as in the whole list: N copies with K = 0 .. N-1 share the work.</source>
        <translation>Nur die Fotos nehmen, deren Position (ab 0) geteilt durch N den Rest K lässt, benannt und nummeriert wie in der ganzen Liste: N Kopien mit K = 0 .. N-1 teilen sich die Arbeit.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Photos, and folders whose image files (subfolders included) are taken in name order.</source>
        <translation>Fotos und Ordner, deren Bilddateien (samt Unterordnern) in Namensreihenfolge genommen werden.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>no flow file or flow named %1</source>
        <translation>keine Ablaufdatei und kein Ablauf namens %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>cannot read the flow %1</source>
        <translation>der Ablauf %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 is not a flow: it is not well-formed XML</source>
        <translation>%1 ist kein Ablauf: kein wohlgeformtes XML</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>--resume needs the --output folder to resume in</source>
        <translation>--resume braucht den Ordner von --output, in dem fortgesetzt wird</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>the shard must be K/N with N at least 1 and K from 0 to N-1</source>
        <translation>der Anteil muss K/N sein, mit N mindestens 1 und K von 0 bis N-1</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>unknown format %1</source>
        <translation>unbekanntes Format %1</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>the quality must be 1 to 100</source>
        <translation>die Qualität muss zwischen 1 und 100 liegen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>--rename and --no-rename exclude each other</source>
        <translation>--rename und --no-rename schließen einander aus</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>the new name must not hold &quot;/&quot; or be &quot;.&quot; or &quot;..&quot;</source>
        <translation>der neue Name darf kein „/“ enthalten und nicht „.“ oder „..“ sein</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>the numbers must be all, odd or even</source>
        <translation>die Nummern müssen all, odd oder even sein</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the megapixels must be a whole number of at least 1</source>
        <translation>die Megapixel müssen eine ganze Zahl von mindestens 1 sein</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the metadata must be keep, strip-location or strip</source>
        <translation>die Metadaten müssen keep, strip-location oder strip sein</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the kilobytes must be a whole number of at least 1</source>
        <translation>die Kilobyte müssen eine ganze Zahl von mindestens 1 sein</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>unknown colour %1</source>
        <translation>unbekannte Farbe %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the extension must be format or short</source>
        <translation>die Endung muss format oder short sein</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>--keep-folders and --no-keep-folders exclude each other</source>
        <translation>--keep-folders und --no-keep-folders schließen einander aus</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>the jobs must be a whole number from 1 to %1</source>
        <translation>die Zahl der Aufträge muss eine ganze Zahl von 1 bis %1 sein</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>--contact-sheet writes no results: it does not go with --output</source>
        <translation>--contact-sheet schreibt keine Ergebnisse: es passt nicht zu --output</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the contact sheet&apos;s file must end in the extension of an output format: %1</source>
        <translation>die Datei des Kontaktbogens muss auf die Endung eines Ausgabeformats enden: %1</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>no photos given</source>
        <translation>keine Fotos angegeben</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>pelodine-batch: nothing written; --lenient runs the flow without what was left out</source>
        <translation>pelodine-batch: nichts geschrieben; --lenient führt den Ablauf ohne das Ausgelassene aus</translation>
    </message>
    <message numerus="yes">
        <location line="+40"/>
        <source>%n photo(s) skipped: their results are already in %1</source>
        <translation>
            <numerusform>%n Foto übersprungen: sein Ergebnis liegt schon in %1</numerusform>
            <numerusform>%n Fotos übersprungen: ihre Ergebnisse liegen schon in %1</numerusform>
        </translation>
    </message>
    <message>
        <location line="+16"/>
        <source>%1 photos/s</source>
        <translation>%1 Fotos/s</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>contact sheet of %1 photos written into %2</source>
        <translation>Kontaktbogen mit %1 Fotos in %2 geschrieben</translation>
    </message>
    <message numerus="yes">
        <location line="+5"/>
        <source>%n photo(s) would fail:</source>
        <translation>
            <numerusform>%n Foto würde fehlschlagen:</numerusform>
            <numerusform>%n Fotos würden fehlschlagen:</numerusform>
        </translation>
    </message>
    <message>
        <location line="+35"/>
        <source>see pelodine-batch --help</source>
        <translation>siehe pelodine-batch --help</translation>
    </message>
    <message>
        <location line="-208"/>
        <source>no photos in the folders given</source>
        <translation>keine Fotos in den angegebenen Ordnern</translation>
    </message>
    <message>
        <location line="-265"/>
        <source>The quality of JPEG, WEBP, AVIF, JXL and HEIC.</source>
        <translation>Die Qualität von JPEG, WEBP, AVIF, JXL und HEIC.</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Keep every JPEG, WEBP, AVIF or JXL file at most N kilobytes: the highest quality up to --quality that fits; a photo that fits not even at quality 1 is written at 1 and named.</source>
        <translation>Jede JPEG-, WEBP-, AVIF- oder JXL-Datei höchstens N Kilobyte groß halten: die höchste Qualität bis --quality, die passt; ein Foto, das selbst bei Qualität 1 nicht passt, wird mit 1 geschrieben und genannt.</translation>
    </message>
    <message>
        <location line="+252"/>
        <location line="+137"/>
        <source>cannot create the folder %1</source>
        <translation>der Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <location line="-33"/>
        <source>%1 of %2 photos written into %3</source>
        <translation>%1 von %2 Fotos nach %3 geschrieben</translation>
    </message>
    <message numerus="yes">
        <location line="+7"/>
        <source>%n photo(s) failed:</source>
        <translation>
            <numerusform>%n Foto fehlgeschlagen:</numerusform>
            <numerusform>%n Fotos fehlgeschlagen:</numerusform>
        </translation>
    </message>
</context>
</TS>
