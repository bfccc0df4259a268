<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>OrkWidgets::App</name>
    <message>
        <location filename="../../libs/cpp/OrkWidgets/app.cpp" line="+92"/>
        <source>&lt;H2&gt;%1&lt;/H2&gt;&lt;p&gt;Version %2&lt;/p&gt;&lt;p&gt;Built on %3&lt;/p&gt;</source>
        <translation>&lt;H2&gt;%1&lt;/H2&gt;&lt;p&gt;Версия %2&lt;/p&gt;&lt;p&gt;Дата сборки: %3&lt;/p&gt;</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>About %1</source>
        <translation>О программе %1</translation>
    </message>
</context>
<context>
    <name>OrkWidgets::DropWidget</name>
    <message>
        <location filename="../../libs/cpp/OrkWidgets/dropwidget.cpp" line="+27"/>
        <source>&lt;H2&gt;Drop the photos here&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;Перетащите фото сюда&lt;/H2&gt;</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Click to open the photos</source>
        <translation>Нажмите, чтобы открыть фото</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Open the photos</source>
        <translation>Открыть фото</translation>
    </message>
</context>
<context>
    <name>OrkWidgets::HelpWindow</name>
    <message>
        <location filename="../../libs/cpp/OrkWidgets/helpwindow.cpp" line="+17"/>
        <source>%1 Help</source>
        <translation>Справка %1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>&amp;Previous</source>
        <translation>&amp;Назад</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&amp;Next</source>
        <translation>&amp;Далее</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&amp;Close</source>
        <translation>&amp;Закрыть</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>%1 of %2</source>
        <translation>%1 из %2</translation>
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
        <translation>Уменьшить (-)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fit</source>
        <translation>Вписать</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Fit to the window (0)</source>
        <translation>Вписать в окно (0)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Actual pixels (1)</source>
        <translation>Реальный размер (1)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Zoom in (+)</source>
        <translation>Увеличить (+)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Close (Esc)</source>
        <translation>Закрыть (Esc)</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Previous photo (Left)</source>
        <translation>Предыдущее фото (Влево)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Next photo (Right)</source>
        <translation>Следующее фото (Вправо)</translation>
    </message>
</context>
</TS>
