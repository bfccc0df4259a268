<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru_RU">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <location filename="../../batch/appsettingsdialog.cpp" line="+23"/>
        <source> Settings</source>
        <translation> Настройки</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Open Destination Folder When Done</source>
        <translation>Открыть папку результатов по завершении</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Quiality:</source>
        <translation>Качество:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Output Format</source>
        <translation>Формат вывода</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Format:</source>
        <translation>Формат:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Rename</source>
        <translation>Переименовать</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Odd</source>
        <translation>Нечётные</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Even</source>
        <translation>Чётные</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>New Name:</source>
        <translation>Новое имя:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Numbers:</source>
        <translation>Номера:</translation>
    </message>
    <message>
        <location line="+5"/>
        <source> megapixels</source>
        <translation> мегапикселей</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Transparent pixels are laid on it in JPEG, BMP and PPM</source>
        <translation>Прозрачные пиксели в JPEG, BMP и PPM кладутся на этот цвет</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Short file extensions (.jpg, .tif)</source>
        <translation>Короткие расширения файлов (.jpg, .tif)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source> KB</source>
        <translation> КБ</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>No limit</source>
        <translation>Без ограничения</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Largest photo:</source>
        <translation>Наибольшая фотография:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>For JPEG, WEBP, AVIF and JXL: the highest quality whose file fits</source>
        <translation>Для JPEG, WEBP, AVIF и JXL: наибольшее качество, при котором файл помещается</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Largest file:</source>
        <translation>Наибольший файл:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Background:</source>
        <translation>Фон:</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Keep all</source>
        <translation>Сохранить все</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Remove location</source>
        <translation>Удалить место съёмки</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Remove all</source>
        <translation>Удалить все</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Metadata</source>
        <translation>Метаданные</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Artist:</source>
        <translation>Автор:</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copyright:</source>
        <translation>Авторское право:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>A new folder for each run</source>
        <translation>Новая папка для каждого запуска</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Browse...</source>
        <translation>Обзор...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Keep folder structure</source>
        <translation>Сохранять структуру папок</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A photo from a subfolder of a folder you added goes into the same subfolder of the results</source>
        <translation>Фото из подпапки добавленной папки попадает в ту же подпапку результатов</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Convert to sRGB</source>
        <translation>Преобразовать в sRGB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Colours converted from the photo&apos;s profile to sRGB, as the web expects</source>
        <translation>Цвета переводятся из профиля фото в sRGB, как того ждёт веб</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Save into:</source>
        <translation>Сохранять в:</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>One per core</source>
        <translation>По одному на ядро</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fast reading</source>
        <translation>Быстрое чтение</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A flow that begins by shrinking the photo to half or less reads a JPEG at a half, a quarter or an eighth of its size: much faster, a little less sharp</source>
        <translation>Если поток сначала уменьшает фото вдвое или сильнее, JPEG читается в половину, четверть или восьмую часть размера: намного быстрее, чуть менее резко</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Photos at once:</source>
        <translation>Фото одновременно:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Ok</source>
        <translation>ОК</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Save into</source>
        <translation>Сохранять в</translation>
    </message>
</context>
<context>
    <name>BCSNode</name>
    <message>
        <location filename="../../nodes/params/operations.cpp" line="+21"/>
        <source>Brightness:</source>
        <translation>Яркость:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Contrast:</source>
        <translation>Контраст:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Saturation:</source>
        <translation>Насыщенность:</translation>
    </message>
</context>
<context>
    <name>BINNode</name>
    <message>
        <location line="+196"/>
        <source>Threshold:</source>
        <translation>Порог:</translation>
    </message>
</context>
<context>
    <name>BLRNode</name>
    <message>
        <location line="-102"/>
        <source>Blur:</source>
        <translation>Размытие:</translation>
    </message>
</context>
<context>
    <name>BaseNode</name>
    <message>
        <location filename="../../nodes/nodecontrols.cpp" line="+158"/>
        <source>&lt;H2&gt;No options&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;Нет параметров&lt;/H2&gt;</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <location filename="../../batch/batchdialog.cpp" line="+28"/>
        <source> Batch Process</source>
        <translation> Пакетная обработка</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+57"/>
        <location line="+61"/>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <location line="-115"/>
        <source>Stop</source>
        <translation>Стоп</translation>
    </message>
    <message>
        <location line="+54"/>
        <source>Resume</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>of</source>
        <translation>из</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>&lt;CENTER&gt;&lt;H1&gt;Please, wait...&lt;/H1&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H1&gt;Пожалуйста, подождите...&lt;/H1&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>BatchEngine</name>
    <message>
        <location filename="../../batch/engine/batchengine.cpp" line="+418"/>
        <source>cannot write: it would replace a source photo</source>
        <translation>запись невозможна: исходное фото было бы заменено</translation>
    </message>
    <message>
        <location line="-262"/>
        <source>cannot write: %1</source>
        <translation>запись невозможна: %1</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>too large: %1 x %2</source>
        <translation>слишком большое: %1 x %2</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>cannot write: disk full</source>
        <translation>запись невозможна: диск заполнен</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>cannot write: permission denied</source>
        <translation>запись невозможна: нет прав доступа</translation>
    </message>
    <message>
        <location line="+252"/>
        <source>cannot write: the name &quot;%1&quot; would leave the output folder</source>
        <translation>запись невозможна: имя «%1» выводит за пределы папки результатов</translation>
    </message>
    <message>
        <location line="-145"/>
        <source>cannot write: the photo is not inside %1</source>
        <translation>запись невозможна: фото лежит не внутри %1</translation>
    </message>
    <message>
        <location line="+17"/>
        <location line="+146"/>
        <source>cannot write: %1 is a link</source>
        <translation>запись невозможна: %1 — ссылка</translation>
    </message>
    <message>
        <location line="-145"/>
        <source>cannot create the folder %1</source>
        <translation>не удаётся создать папку %1</translation>
    </message>
    <message>
        <location line="+147"/>
        <source>cannot write: %1 is not a regular file</source>
        <translation>запись невозможна: %1 — не обычный файл</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>cannot write: %1 already exists</source>
        <translation>запись невозможна: %1 уже существует</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>larger than %1 KB even at quality 1</source>
        <translation>больше %1 КБ даже при качестве 1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>cannot write: the %1 writer failed</source>
        <translation>запись невозможна: ошибка записи %1</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>unreadable: not a regular file</source>
        <translation>не читается: не обычный файл</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>unreadable: permission denied</source>
        <translation>не читается: нет прав доступа</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>unreadable: %1</source>
        <translation>не читается: %1</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>unreadable: a drawing (%1), not a photo</source>
        <translation>не читается: рисунок (%1), а не фотография</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>unreadable: its size cannot be read</source>
        <translation>не читается: не удаётся прочитать её размер</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>damaged: %1</source>
        <translation>повреждён: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>unreadable: not a photo this program can read</source>
        <translation>не читается: это не фото, которое может прочитать программа</translation>
    </message>
    <message>
        <location line="-37"/>
        <source>unreadable: no such file</source>
        <translation>не читается: файл не существует</translation>
    </message>
    <message>
        <location line="-335"/>
        <source>the operation &quot;%1&quot; left no image</source>
        <translation>операция «%1» не оставила изображения</translation>
    </message>
</context>
<context>
    <name>BatchOperations</name>
    <message>
        <location filename="../../batch/engine/flowoperations.cpp" line="+25"/>
        <source>&quot;%1&quot; is not an operation: left out</source>
        <translation>«%1» — не операция: пропущена</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>%1: the %2 cannot be read: left as it was</source>
        <translation>%1: значение %2 не читается: оставлено как было</translation>
    </message>
</context>
<context>
    <name>CRPNode</name>
    <message>
        <location filename="../../nodes/params/operations.cpp" line="-63"/>
        <source>Left:</source>
        <translation>Слева:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Right:</source>
        <translation>Справа:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Top:</source>
        <translation>Сверху:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Buttom:</source>
        <translation>Снизу:</translation>
    </message>
</context>
<context>
    <name>Creator</name>
    <message>
        <location filename="../../mainpage/creator.cpp" line="+48"/>
        <source>&lt;H2&gt;&lt;CENTER&gt;Original&lt;/CENTER&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;CENTER&gt;Оригинал&lt;/CENTER&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Switch between the photo and the icon list</source>
        <translation>Переключение между фото и списком значков</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Show the photos as the flow makes them</source>
        <translation>Показать фото такими, какими их делает сценарий</translation>
    </message>
</context>
<context>
    <name>CreatorDropArea</name>
    <message>
        <location filename="../../mainpage/creatordroparea.cpp" line="+95"/>
        <source>&lt;H2&gt;Drop the photos here&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;Перетащите фото сюда&lt;/H2&gt;</translation>
    </message>
    <message>
        <location line="-74"/>
        <source>Click to open the photos</source>
        <translation>Нажмите, чтобы открыть фото</translation>
    </message>
    <message>
        <location line="+79"/>
        <source>Open the photos</source>
        <translation>Открыть фото</translation>
    </message>
</context>
<context>
    <name>Direction</name>
    <message>
        <location filename="../../nodes/params/direction.cpp" line="+9"/>
        <source>TopLeft</source>
        <translation>Вверху слева</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TopMiddle</source>
        <translation>Вверху по центру</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TopRight</source>
        <translation>Вверху справа</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>MiddleLeft</source>
        <translation>В центре слева</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Middle</source>
        <translation>В центре</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>MiddleRight</source>
        <translation>В центре справа</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>BottomLeft</source>
        <translation>Внизу слева</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>BottomMiddle</source>
        <translation>Внизу по центру</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>BottomRight</source>
        <translation>Внизу справа</translation>
    </message>
</context>
<context>
    <name>FRMNode</name>
    <message>
        <location filename="../../nodes/params/operations.cpp" line="+30"/>
        <source>Color:</source>
        <translation>Цвет:</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Width:</source>
        <translation>Ширина:</translation>
    </message>
</context>
<context>
    <name>FavoritesDeleteDlg</name>
    <message>
        <location filename="../../flow/favoritesdeletedlg.cpp" line="+16"/>
        <source>Delete the flow</source>
        <translation>Удалить сценарий</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>&amp;Cancel</source>
        <translation>&amp;Отмена</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>&amp;Delete</source>
        <translation>&amp;Удалить</translation>
    </message>
</context>
<context>
    <name>FlowPanel</name>
    <message>
        <location filename="../../flow/flowpanel.cpp" line="+100"/>
        <source>Flows</source>
        <translation>Сценарии</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save Results</source>
        <translation>Сохранить результаты</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Add node</source>
        <translation>Добавить шаг</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>A click adds a watermark; the arrow or a right click lists every operation.</source>
        <translation>Щелчок добавляет водяной знак; стрелка или правый щелчок открывают список всех шагов.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Remove selected node</source>
        <translation>Удалить выбранный шаг</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Save the resulted photos to the separate folder</source>
        <translation>Сохранить обработанные фото в отдельную папку</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>&amp;Clear</source>
        <translation>&amp;Очистить</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&amp;Save...</source>
        <translation>&amp;Сохранить...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&amp;Delete...</source>
        <translation>&amp;Удалить...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&amp;Go To Flows Location</source>
        <translation>&amp;Перейти к папке сценариев</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&amp;Keep the Flow for the Next Start</source>
        <translation>&amp;Запоминать сценарий до следующего запуска</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>Add %1</source>
        <translation>добавление «%1»</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Load a Flow</source>
        <translation>загрузку сценария</translation>
    </message>
    <message>
        <location line="+18"/>
        <location line="+137"/>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <location line="-38"/>
        <source>Move %1</source>
        <translation>перемещение «%1»</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Clear the Flow</source>
        <translation>очистку сценария</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Save Flow</source>
        <translation>Сохранить сценарий</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Flow&apos;s Name:</source>
        <translation>Имя сценария:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Can not create the flow without name</source>
        <translation>Нельзя создать сценарий без имени</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The flow the with name &quot;%1&quot; already exists.
Overwrite?</source>
        <translation>Сценарий с именем «%1» уже существует.
Перезаписать?</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Remove the flow:
 &quot;%1&quot;?</source>
        <translation>Удалить сценарий:
 «%1»?</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Remove %1</source>
        <translation>удаление «%1»</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Change %1</source>
        <translation>изменение «%1»</translation>
    </message>
</context>
<context>
    <name>HSTNode</name>
    <message>
        <location filename="../../nodes/params/operations.cpp" line="-50"/>
        <source>Left:</source>
        <translation>Слева:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Right:</source>
        <translation>Справа:</translation>
    </message>
</context>
<context>
    <name>ImagePreview</name>
    <message>
        <location filename="../../mainpage/imagepreview.cpp" line="+13"/>
        <source>&lt;H1&gt;INFO&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;ИНФО&lt;/H1&gt;</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Preview · %1</source>
        <translation>Превью · %1</translation>
    </message>
</context>
<context>
    <name>ImageViewDialog</name>
    <message>
        <location filename="../../mainpage/imageviewdialog.cpp" line="+15"/>
        <source>Result</source>
        <translation>Результат</translation>
    </message>
</context>
<context>
    <name>MRRNode</name>
    <message>
        <location filename="../../nodes/params/operations.cpp" line="+163"/>
        <source>Mirror left to right</source>
        <translation>Отразить слева направо</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Mirror top to bottom</source>
        <translation>Отразить сверху вниз</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <location filename="../../mainpage/mainpage.cpp" line="+55"/>
        <source>Output settings</source>
        <translation>Параметры вывода</translation>
    </message>
    <message>
        <location line="+43"/>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>&amp;Quit</source>
        <translation>В&amp;ыход</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Save Flow</source>
        <translation>Сохранить сценарий</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>&amp;Language</source>
        <translation>&amp;Язык</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Show &amp;Help</source>
        <translation>Показать &amp;справку</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>&amp;About %1</source>
        <translation>&amp;О программе %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The new language is used from the next start of %1.</source>
        <translation>Новый язык будет использоваться после следующего запуска %1.</translation>
    </message>
</context>
<context>
    <name>NodeName</name>
    <message>
        <location filename="../../nodes/params/operations.h" line="+26"/>
        <source>Brightness, Contrast, Saturation</source>
        <translation>Яркость, контраст, насыщенность</translation>
    </message>
    <message>
        <location line="+154"/>
        <source>Binarization</source>
        <translation>Бинаризация</translation>
    </message>
    <message>
        <location line="-74"/>
        <source>Blur</source>
        <translation>Размытие</translation>
    </message>
    <message>
        <location line="-51"/>
        <source>Crop</source>
        <translation>Обрезка</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Frame</source>
        <translation>Рамка</translation>
    </message>
    <message>
        <location line="+107"/>
        <source>Grayscale</source>
        <translation>Оттенки серого</translation>
    </message>
    <message>
        <location line="-148"/>
        <source>Histogram optimizer</source>
        <translation>Оптимизация гистограммы</translation>
    </message>
    <message>
        <location line="+155"/>
        <source>Invert</source>
        <translation>Инверсия</translation>
    </message>
    <message>
        <location line="-27"/>
        <source>Mirror</source>
        <translation>Отражение</translation>
    </message>
    <message>
        <location line="-100"/>
        <source>RGB-Order</source>
        <translation>Порядок RGB</translation>
    </message>
    <message>
        <location line="+73"/>
        <source>Resize</source>
        <translation>Изменение размера</translation>
    </message>
    <message>
        <location line="-47"/>
        <source>Rotate</source>
        <translation>Поворот</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Vignetting</source>
        <translation>Виньетирование</translation>
    </message>
    <message>
        <location filename="../../nodes/params/watermarkoperation.h" line="+20"/>
        <source>Watermark</source>
        <translation>Водяной знак</translation>
    </message>
</context>
<context>
    <name>NodeShortName</name>
    <message>
        <location filename="../../nodes/nodecatalogue.cpp" line="+66"/>
        <source>RGB-Order</source>
        <translation>Порядок RGB</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Brightness</source>
        <translation>Яркость</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rotate</source>
        <translation>Поворот</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Blur</source>
        <translation>Размытие</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Invert</source>
        <translation>Инверсия</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Mirror</source>
        <translation>Отражение</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Grayscale</source>
        <translation>Серый</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Watermark</source>
        <translation>Водяной знак</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Crop</source>
        <translation>Обрезка</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Resize</source>
        <translation>Размер</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Histogram</source>
        <translation>Гистограмма</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Frame</source>
        <translation>Рамка</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Binarization</source>
        <translation>Бинаризация</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vignetting</source>
        <translation>Виньетка</translation>
    </message>
</context>
<context>
    <name>NodesOptionsPanel</name>
    <message>
        <location filename="../../nodes/ui/nodesoptionspanel.cpp" line="+46"/>
        <source>Build your flow</source>
        <translation>Создайте сценарий</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Add an operation with the %1 button below.</source>
        <translation>Добавьте шаг кнопкой %1 внизу.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Its options will appear here.</source>
        <translation>Здесь появятся его параметры.</translation>
    </message>
</context>
<context>
    <name>PhotoActions</name>
    <message>
        <location filename="../../mainpage/photoactions.cpp" line="+23"/>
        <source>&amp;Add Photos…</source>
        <translation>&amp;Добавить фото…</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Add &amp;Folder…</source>
        <translation>Добавить &amp;папку…</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&amp;Remove Photo</source>
        <translation>&amp;Убрать фото</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>&amp;Clear Photos</source>
        <translation>Убрать &amp;все фото</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Next Photo</source>
        <translation>Следующее фото</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Previous Photo</source>
        <translation>Предыдущее фото</translation>
    </message>
    <message>
        <location line="+31"/>
        <source>Add Photos</source>
        <translation>Добавить фото</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Photos (%1);;All Files (*)</source>
        <translation>Фото (%1);;Все файлы (*)</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Add Folder</source>
        <translation>Добавить папку</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>There are no photos in the folder %1.</source>
        <translation>В папке %1 нет фото.</translation>
    </message>
</context>
<context>
    <name>PhotoLabel</name>
    <message>
        <location filename="../../mainpage/photolabel.cpp" line="+35"/>
        <source>Previous photo</source>
        <translation>Предыдущее фото</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Next photo</source>
        <translation>Следующее фото</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>&lt;H1&gt;%1 of %2&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;%1 из %2&lt;/H1&gt;</translation>
    </message>
</context>
<context>
    <name>RGBNode</name>
    <message>
        <location filename="../../nodes/rgbnode.cpp" line="+10"/>
        <source>Red&lt;-&gt;Blue</source>
        <translation>Красный&lt;-&gt;Синий</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Red&lt;-&gt;Green</source>
        <translation>Красный&lt;-&gt;Зелёный</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Green&lt;-&gt;Blue</source>
        <translation>Зелёный&lt;-&gt;Синий</translation>
    </message>
</context>
<context>
    <name>RSZNode</name>
    <message>
        <location filename="../../nodes/rsznode.cpp" line="+14"/>
        <source>Percentage</source>
        <translation>Проценты</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Maximum Pixels</source>
        <translation>Максимум пикселей</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pixels</source>
        <translation>Пиксели</translation>
    </message>
    <message>
        <location filename="../../nodes/params/operations.cpp" line="-53"/>
        <source>Scale by:</source>
        <translation>Масштаб по:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Width:</source>
        <translation>Ширина:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Height:</source>
        <translation>Высота:</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Never enlarge</source>
        <translation>Не увеличивать</translation>
    </message>
</context>
<context>
    <name>RTTNode</name>
    <message>
        <location filename="../../nodes/rttnode.cpp" line="+11"/>
        <source>Rotate clockwise</source>
        <translation>Повернуть по часовой стрелке</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Rotate anticlockwise</source>
        <translation>Повернуть против часовой стрелки</translation>
    </message>
</context>
<context>
    <name>Representor</name>
    <message>
        <location filename="../../mainpage/representor.cpp" line="+56"/>
        <source>&lt;H2&gt;&lt;CENTER&gt;Result&lt;/CENTER&gt;&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;&lt;CENTER&gt;Результат&lt;/CENTER&gt;&lt;/H2&gt;</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Show the result in full size</source>
        <translation>Показать результат в полном размере</translation>
    </message>
</context>
<context>
    <name>RunClock</name>
    <message>
        <location filename="../../batch/engine/runclock.cpp" line="+29"/>
        <source>%1 s left</source>
        <translation>осталось %1 с</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 min %2 s left</source>
        <translation>осталось %1 мин %2 с</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 h %2 min left</source>
        <translation>осталось %1 ч %2 мин</translation>
    </message>
</context>
<context>
    <name>RunSummaryBar</name>
    <message>
        <location filename="../../mainpage/runsummarybar.cpp" line="+46"/>
        <source>Open Folder</source>
        <translation>Открыть папку</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Photos written: %1 of %2, into %3</source>
        <translation>Записано фото: %1 из %2, в %3</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Stopped: %1 not processed.</source>
        <translation>Остановлено: не обработано %1.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Failed: %1</source>
        <translation>Не удалось: %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>and %1 more</source>
        <translation>и ещё %1</translation>
    </message>
</context>
<context>
    <name>SHSNode</name>
    <message>
        <location filename="../../nodes/shsnode.cpp" line="+11"/>
        <source>Sharpness:</source>
        <translation>Резкость:</translation>
    </message>
</context>
<context>
    <name>TabLabel</name>
    <message>
        <location filename="../../flow/tablabel.cpp" line="+16"/>
        <source>Enlarge the preview</source>
        <translation>Увеличить превью</translation>
    </message>
</context>
<context>
    <name>UCSNode</name>
    <message>
        <location filename="../../nodes/params/operations.cpp" line="-38"/>
        <source>Radius:</source>
        <translation>Радиус:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Opacity:</source>
        <translation>Непрозрачность:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Color:</source>
        <translation>Цвет:</translation>
    </message>
</context>
<context>
    <name>WMRNode</name>
    <message>
        <location filename="../../nodes/wmrnode.cpp" line="+147"/>
        <source>Fewer options</source>
        <translation>Меньше параметров</translation>
    </message>
    <message>
        <location filename="../../nodes/params/watermarkoperation.cpp" line="+59"/>
        <source>Bold</source>
        <translation>Жирный</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Italic</source>
        <translation>Курсив</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Underlined</source>
        <translation>Подчёркнутый</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Draw</source>
        <translation>Рисовать</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Tile:</source>
        <translation>Плитка:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Gap: </source>
        <translation>Зазор: </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Angle:</source>
        <translation>Угол:</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Shadow</source>
        <translation>Тень</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Distance: </source>
        <translation>Сдвиг: </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Blur: </source>
        <translation>Размытие: </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Outline</source>
        <translation>Контур</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Width: </source>
        <translation>Толщина: </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Size of:</source>
        <translation>Размер от:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Color</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Position</source>
        <translation>Положение</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Places:</source>
        <translation>Места:</translation>
    </message>
    <message>
        <location filename="../../nodes/wmrnode.cpp" line="+13"/>
        <source>Open a logo picture</source>
        <translation>Открыть изображение логотипа</translation>
    </message>
    <message>
        <location filename="../../nodes/params/watermarkoperation.cpp" line="-45"/>
        <source>X: </source>
        <translation>X: </translation>
    </message>
    <message>
        <location filename="../../nodes/wmrnode.cpp" line="+5"/>
        <source>Horizontal offset in percent of the height</source>
        <translation>Смещение по горизонтали в процентах от высоты</translation>
    </message>
    <message>
        <location filename="../../nodes/params/watermarkoperation.cpp" line="+2"/>
        <source>Y: </source>
        <translation>Y: </translation>
    </message>
    <message>
        <location filename="../../nodes/wmrnode.cpp" line="-80"/>
        <source>Photo name</source>
        <translation>Имя фото</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Date taken</source>
        <translation>Дата съёмки</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Date and time taken</source>
        <translation>Дата и время съёмки</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Year taken</source>
        <translation>Год съёмки</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Camera</source>
        <translation>Камера</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Lens</source>
        <translation>Объектив</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Artist</source>
        <translation>Автор</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copyright</source>
        <translation>Авторское право</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Photo number</source>
        <translation>Номер фото</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Number of photos</source>
        <translation>Число фото</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copyright sign</source>
        <translation>Знак авторского права</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Insert a detail of each photo</source>
        <translation>Вставить сведения о каждом фото</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Vertical offset in percent of the height</source>
        <translation>Смещение по вертикали в процентах от высоты</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Text</source>
        <translation>Текст</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Image</source>
        <translation>Логотип</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Draw the background behind the text</source>
        <translation>Рисовать фон под текстом</translation>
    </message>
    <message>
        <location line="+137"/>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Size of, angle, tiles, shadow, outline, automatic color and position</source>
        <translation>Размер от, угол, плитка, тень, контур, автоматический цвет и положение</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Width</source>
        <translation>Ширины</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Long edge</source>
        <translation>Длинной стороны</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Short edge</source>
        <translation>Короткой стороны</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>What the size is a percentage of: the same visual size on portrait and landscape photos with the long or the short edge</source>
        <translation>От чего берётся размер в процентах: с длинной или короткой стороной знак одного размера на вертикальных и горизонтальных фото</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Turns the mark about its center, counter-clockwise</source>
        <translation>Поворачивает знак вокруг его центра против часовой стрелки</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Repeats the mark over the whole photo; position and offsets set where the grid starts</source>
        <translation>Повторяет знак по всему фото; положение и смещения задают начало сетки</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Gap between the tiles in percent of the mark</source>
        <translation>Зазор между плитками в процентах от знака</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Shadow color</source>
        <translation>Цвет тени</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>How far the shadow lies right and down, in percent of the text height</source>
        <translation>Насколько тень сдвинута вправо и вниз, в процентах от высоты текста</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>How soft the shadow is, in percent of the text height</source>
        <translation>Насколько тень мягкая, в процентах от высоты текста</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Outline color</source>
        <translation>Цвет контура</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Width of the outline in percent of the text height</source>
        <translation>Толщина контура в процентах от высоты текста</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Per photo, the text color or its light or dark opposite, whichever stands out more; the shadow and outline follow</source>
        <translation>Для каждого фото цвет текста или его светлая либо тёмная противоположность, смотря что заметнее; тень и контур следуют за ним</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Per photo, the ticked place with the least detail under the mark, the offsets kept</source>
        <translation>Для каждого фото отмеченное место с наименьшим числом деталей под знаком; смещения сохраняются</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Auto:</source>
        <translation>Авто:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The places the automatic position chooses from</source>
        <translation>Места, из которых выбирает автоматическое положение</translation>
    </message>
    <message>
        <location filename="../../nodes/params/watermarkoperation.cpp" line="-20"/>
        <source>Kind:</source>
        <translation>Тип:</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Text:</source>
        <translation>Текст:</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Font:</source>
        <translation>Шрифт:</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Text color:</source>
        <translation>Цвет текста:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Background:</source>
        <translation>Фон:</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Logo:</source>
        <translation>Логотип:</translation>
    </message>
    <message>
        <location line="-32"/>
        <source>Size:</source>
        <translation>Размер:</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Transparency:</source>
        <translation>Прозрачность:</translation>
    </message>
    <message>
        <location line="-14"/>
        <source>Position:</source>
        <translation>Положение:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Expand:</source>
        <translation>Растянуть:</translation>
    </message>
    <message>
        <location filename="../../nodes/wmrnode.cpp" line="-141"/>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Can not open the image file:</source>
        <translation>Не удаётся открыть файл изображения:</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Open the watermark file</source>
        <translation>Открыть файл водяного знака</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Images (%1);;All files (*)</source>
        <translation>Изображения (%1);;Все файлы (*)</translation>
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
        <translation>Применяет поток Pelodine к фотографиям и записывает результаты, как это делает «Сохранить результаты» в окне.
Неуказанные параметры берут значения по умолчанию: JPEG с качеством 90, собственные имена фотографий, номера all; с --use-window-settings они берутся из настроек окна Pelodine.
Ход работы и итог выводятся в стандартный поток ошибок; каждая фотография, которую не удалось обработать, названа с причиной.
Код выхода: 0, если записаны все фотографии, 1, если некоторые не удалось или поток содержит то, что нельзя принять (см. --lenient), 2 при неверном использовании или если поток не читается.
Исходная фотография никогда не перезаписывается; ничего не пишется через ссылку, за пределы папки результатов или поверх файла, который этот запуск не записывал (см. --overwrite).</translation>
    </message>
    <message>
        <location line="+18"/>
        <source>The flow: a .flow file, or the name of a flow in the flows folder (%1). Default: the built-in sample flow.</source>
        <translation>Сценарий: файл .flow или имя сценария в папке сценариев (%1). По умолчанию: встроенный пример.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>The folder to write into. Default: a new folder named by the start time under %1.</source>
        <translation>Папка для записи. По умолчанию: новая папка с именем по времени запуска в %1.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The output format; the file extension is its name in lower case.</source>
        <translation>Формат вывода; расширение файла — его имя строчными буквами.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Name the files NAME followed by a number instead of the photo&apos;s name.</source>
        <translation>Называть файлы NAME с номером вместо имени фото.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Keep the photos&apos; own names, also where the window&apos;s settings rename.</source>
        <translation>Сохранять собственные имена фото, даже если настройки окна переименовывают.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The numbers when renaming: all 0, 1, 2, ...; odd 1, 3, 5, ...; even 2, 4, 6, ...</source>
        <translation>Номера при переименовании: all 0, 1, 2, ...; odd 1, 3, 5, ...; even 2, 4, 6, ...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Take the options that are not given from the settings of the Pelodine window.</source>
        <translation>Брать не заданные параметры из настроек окна Pelodine.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Replace files in the output folder that this run did not write.</source>
        <translation>Заменять файлы в папке результатов, которые этот запуск не записывал.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The largest photo to read, in megapixels, checked before decoding; a flow may not grow a photo past it either. Default: %1.</source>
        <translation>Самая большая фотография для чтения, в мегапикселях, проверяется до декодирования; поток тоже не может увеличить фотографию сверх этого. По умолчанию: %1.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>What the results keep of the photos&apos; EXIF, IPTC and XMP: all of it, all but where the photo was taken (GPS and location fields), or none. Default: keep.</source>
        <translation>Что результаты сохраняют из EXIF, IPTC и XMP фотографий: всё, всё кроме места съёмки (GPS и поля местоположения) или ничего. По умолчанию: keep.</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>The colour transparent pixels are laid on in JPEG, BMP and PPM, as a name or #rrggbb. Default: white.</source>
        <translation>Цвет, на который кладутся прозрачные пиксели в JPEG, BMP и PPM, в виде имени или #rrggbb. По умолчанию: белый.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>The file extension: the format&apos;s name in lower case (jpeg, tiff) or the short one (jpg, tif). Default: format.</source>
        <translation>Расширение файла: имя формата строчными буквами (jpeg, tiff) или короткое (jpg, tif). По умолчанию: format.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Write TEXT as the artist into every result&apos;s EXIF, IPTC and XMP.</source>
        <translation>Записать TEXT как автора в EXIF, IPTC и XMP каждого результата.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Write TEXT as the copyright into every result&apos;s EXIF, IPTC and XMP.</source>
        <translation>Записать TEXT как авторское право в EXIF, IPTC и XMP каждого результата.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Convert each photo from its colour profile to sRGB before the flow and embed sRGB, as the web expects; a photo without a profile is taken as sRGB. Without it the photo&apos;s own profile is embedded.</source>
        <translation>Перевести каждое фото из его цветового профиля в sRGB до сценария и встроить sRGB, как того ждёт веб; фото без профиля считается sRGB. Без этого параметра встраивается собственный профиль фото.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Write a photo found in a subfolder of a FOLDER given into the same subfolder below the output folder. The default, unless --use-window-settings says otherwise.</source>
        <translation>Записывать фото из подпапки указанной FOLDER в ту же подпапку внутри папки вывода. По умолчанию, если --use-window-settings не говорит иного.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Write every photo straight into the output folder.</source>
        <translation>Записывать каждое фото прямо в папку вывода.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Run a flow that holds something that cannot be taken (an unknown operation, a logo that does not decode) without it, instead of stopping.</source>
        <translation>Выполнять поток, содержащий то, что нельзя принять (неизвестную операцию, недекодируемый логотип), без этого, а не останавливаться.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Print only the photos that failed.</source>
        <translation>Выводить только необработанные фото.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Write no results: run the flow on every photo at the size of the window&apos;s preview and write one sheet of them all into FILE, each labelled with its name and the size the run would write. The format follows FILE&apos;s extension.</source>
        <translation>Не записывать результаты: выполнить поток для каждого фото в размере предпросмотра окна и записать в FILE один лист со всеми, каждое с подписью: имя и размер, который записал бы запуск. Формат следует расширению FILE.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Work on N photos at once. Default: one per core (%1).</source>
        <translation>Обрабатывать N фото одновременно. По умолчанию: по одному на ядро (%1).</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Fast reading: when the flow begins by shrinking the photo to half or less, read a JPEG at 1/2, 1/4 or 1/8 of its size and finish the resize from there. The results have the same size, a little less sharp.</source>
        <translation>Быстрое чтение: если поток сначала уменьшает фото вдвое или сильнее, JPEG читается в 1/2, 1/4 или 1/8 размера, и уменьшение завершается оттуда. Результаты того же размера, чуть менее резкие.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Skip every photo whose result is already in the --output folder, as after a run that was stopped.</source>
        <translation>Пропускать каждое фото, результат которого уже есть в папке --output, например после остановленного запуска.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Take only the photos whose position (from 0) leaves K when divided by N, named and numbered as in the whole list: N copies with K = 0 .. N-1 share the work.</source>
        <translation>Брать только фото, позиция которых (с 0) даёт остаток K при делении на N, с именами и номерами как во всём списке: N копий с K = 0 .. N-1 делят работу.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Photos, and folders whose image files (subfolders included) are taken in name order.</source>
        <translation>Фото и папки, файлы изображений которых (включая подпапки) берутся в порядке имён.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>no flow file or flow named %1</source>
        <translation>нет файла сценария или сценария с именем %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>cannot read the flow %1</source>
        <translation>не удаётся прочитать сценарий %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 is not a flow: it is not well-formed XML</source>
        <translation>%1 — не сценарий: это некорректный XML</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>--resume needs the --output folder to resume in</source>
        <translation>--resume нужна папка --output, в которой продолжить</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>the shard must be K/N with N at least 1 and K from 0 to N-1</source>
        <translation>доля должна быть K/N, где N не меньше 1, а K от 0 до N-1</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>unknown format %1</source>
        <translation>неизвестный формат %1</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>the quality must be 1 to 100</source>
        <translation>качество должно быть от 1 до 100</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>--rename and --no-rename exclude each other</source>
        <translation>--rename и --no-rename исключают друг друга</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>the new name must not hold &quot;/&quot; or be &quot;.&quot; or &quot;..&quot;</source>
        <translation>новое имя не должно содержать «/» или быть «.» или «..»</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>the numbers must be all, odd or even</source>
        <translation>номера должны быть all, odd или even</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the megapixels must be a whole number of at least 1</source>
        <translation>мегапиксели должны быть целым числом не меньше 1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the metadata must be keep, strip-location or strip</source>
        <translation>метаданные должны быть keep, strip-location или strip</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the kilobytes must be a whole number of at least 1</source>
        <translation>килобайты должны быть целым числом не меньше 1</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>unknown colour %1</source>
        <translation>неизвестный цвет %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>the extension must be format or short</source>
        <translation>расширение должно быть format или short</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>--keep-folders and --no-keep-folders exclude each other</source>
        <translation>--keep-folders и --no-keep-folders исключают друг друга</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>the jobs must be a whole number from 1 to %1</source>
        <translation>число заданий должно быть целым числом от 1 до %1</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>--contact-sheet writes no results: it does not go with --output</source>
        <translation>--contact-sheet не записывает результатов: он несовместим с --output</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>the contact sheet&apos;s file must end in the extension of an output format: %1</source>
        <translation>файл листа просмотра должен иметь расширение формата вывода: %1</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>no photos given</source>
        <translation>фото не указаны</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>pelodine-batch: nothing written; --lenient runs the flow without what was left out</source>
        <translation>pelodine-batch: ничего не записано; --lenient выполняет поток без пропущенного</translation>
    </message>
    <message numerus="yes">
        <location line="+40"/>
        <source>%n photo(s) skipped: their results are already in %1</source>
        <translation>
            <numerusform>%n фото пропущено: результат уже есть в %1</numerusform>
            <numerusform>%n фото пропущены: результаты уже есть в %1</numerusform>
            <numerusform>%n фото пропущено: результаты уже есть в %1</numerusform>
        </translation>
    </message>
    <message>
        <location line="+16"/>
        <source>%1 photos/s</source>
        <translation>%1 фото/с</translation>
    </message>
    <message>
        <location line="+55"/>
        <source>contact sheet of %1 photos written into %2</source>
        <translation>лист просмотра с %1 фото записан в %2</translation>
    </message>
    <message numerus="yes">
        <location line="+5"/>
        <source>%n photo(s) would fail:</source>
        <translation>
            <numerusform>%n фото не удалось бы обработать:</numerusform>
            <numerusform>%n фото не удалось бы обработать:</numerusform>
            <numerusform>%n фото не удалось бы обработать:</numerusform>
        </translation>
    </message>
    <message>
        <location line="+35"/>
        <source>see pelodine-batch --help</source>
        <translation>см. pelodine-batch --help</translation>
    </message>
    <message>
        <location line="-208"/>
        <source>no photos in the folders given</source>
        <translation>в указанных папках нет фото</translation>
    </message>
    <message>
        <location line="-265"/>
        <source>The quality of JPEG, WEBP, AVIF, JXL and HEIC.</source>
        <translation>Качество JPEG, WEBP, AVIF, JXL и HEIC.</translation>
    </message>
    <message>
        <location line="+32"/>
        <source>Keep every JPEG, WEBP, AVIF or JXL file at most N kilobytes: the highest quality up to --quality that fits; a photo that fits not even at quality 1 is written at 1 and named.</source>
        <translation>Держать каждый файл JPEG, WEBP, AVIF или JXL не больше N килобайт: наибольшее качество до --quality, которое подходит; фотография, которая не подходит даже при качестве 1, записывается с качеством 1 и называется.</translation>
    </message>
    <message>
        <location line="+252"/>
        <location line="+137"/>
        <source>cannot create the folder %1</source>
        <translation>не удаётся создать папку %1</translation>
    </message>
    <message>
        <location line="-33"/>
        <source>%1 of %2 photos written into %3</source>
        <translation>записано %1 из %2 фото в %3</translation>
    </message>
    <message numerus="yes">
        <location line="+7"/>
        <source>%n photo(s) failed:</source>
        <translation>
            <numerusform>%n фото не обработано:</numerusform>
            <numerusform>%n фото не обработаны:</numerusform>
            <numerusform>%n фото не обработано:</numerusform>
        </translation>
    </message>
</context>
</TS>
