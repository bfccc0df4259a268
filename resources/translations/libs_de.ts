<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>OrkWidgets::App</name>
    <message>
        <location filename="../../libs/cpp/OrkWidgets/app.cpp" line="+92"/>
        <source>&lt;H2&gt;%1&lt;/H2&gt;&lt;p&gt;Version %2&lt;/p&gt;&lt;p&gt;Built on %3&lt;/p&gt;</source>
        <translation>&lt;H2&gt;%1&lt;/H2&gt;&lt;p&gt;Version %2&lt;/p&gt;&lt;p&gt;Erstellt am %3&lt;/p&gt;</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>About %1</source>
        <translation>Über %1</translation>
    </message>
</context>
<context>
    <name>OrkWidgets::DropWidget</name>
    <message>
        <location filename="../../libs/cpp/OrkWidgets/dropwidget.cpp" line="+27"/>
        <source>&lt;H2&gt;Drop the photos here&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;Fotos hierher ziehen&lt;/H2&gt;</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Click to open the photos</source>
        <translation>Klicken, um Fotos zu öffnen</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Open the photos</source>
        <translation>Fotos öffnen</translation>
    </message>
</context>
<context>
    <name>OrkWidgets::HelpWindow</name>
    <message>
        <location filename="../../libs/cpp/OrkWidgets/helpwindow.cpp" line="+17"/>
        <source>%1 Help</source>
        <translation>%1-Hilfe</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Previous</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>OrkWidgets::ImageViewer</name>
    <message>
        <location filename="../../libs/cpp/OrkWidgets/imageviewer.cpp" line="+42"/>
        <source>-</source>
        <translation>-</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Zoom out (-)</source>
        <translation>Verkleinern (-)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Fit to the window (0)</source>
        <translation>An Fenster anpassen (0)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Actual pixels (1)</source>
        <translation>Originalgröße (1)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Zoom in (+)</source>
        <translation>Vergrößern (+)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Close (Esc)</source>
        <translation>Schließen (Esc)</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Previous photo (Left)</source>
        <translation>Vorheriges Foto (Links)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Next photo (Right)</source>
        <translation>Nächstes Foto (Rechts)</translation>
    </message>
</context>
</TS>
