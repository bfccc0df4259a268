// Pelodine's help slides and documentation screenshots, taken from the real windows: the tool
// builds them with the compiled-in style sheet in each language, grabs them and writes PNGs.
//   pelodine-screens slides <folder>   <folder>/<lang>/slide1.png .. slide11.png, 1000 x 700
//   pelodine-screens docs <folder>     <folder>/<shot>-<lang>.png at actual size
#include "app.h"
#include "appsettingsdialog.h"
#include "basenode.h"
#include "batchdialog.h"
#include "commondata.h"
#include "creator.h"
#include "dropwidget.h"
#include "flowfile.h"
#include "flowpanel.h"
#include "imageviewdialog.h"
#include "itemsmodel.h"
#include "mainpage.h"
#include "nodecatalogue.h"
#include "nodesoptionspanel.h"
#include "nodestabbar.h"
#include "representor.h"
#include "runclock.h"
#include "runsummarybar.h"
#include "testutils.h"
#include "translationsmanager.h"

#include <QDir>
#include <QElapsedTimer>
#include <QInputDialog>
#include <QLineEdit>
#include <QLinearGradient>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QRadialGradient>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <functional>

namespace {

const QColor accent(61, 174, 233);
const QStringList languages = {"en", "de", "ru"};

// A landscape of our own: sky, sun, two mountain ridges and a lake that mirrors them.
QImage landscape(int variant)
{
    const QColor skyTop[] = {QColor(40, 90, 170), QColor(190, 90, 60), QColor(70, 120, 160)};
    const QColor skyLow[] = {QColor(190, 215, 235), QColor(250, 200, 120), QColor(215, 225, 230)};
    const QColor ridge[] = {QColor(60, 80, 110), QColor(90, 60, 80), QColor(50, 90, 70)};
    QImage image(1600, 1200, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, 760);
    sky.setColorAt(0, skyTop[variant % 3]);
    sky.setColorAt(1, skyLow[variant % 3]);
    painter.fillRect(0, 0, 1600, 760, sky);
    QRadialGradient sun(420 + variant * 380, 300, 160);
    sun.setColorAt(0, QColor(255, 250, 225));
    sun.setColorAt(0.45, QColor(255, 240, 190, 230));
    sun.setColorAt(1, QColor(255, 240, 190, 0));
    painter.fillRect(0, 0, 1600, 760, sun);
    for (int layer = 0; layer < 2; ++layer) {
        QPainterPath mountains(QPointF(0, 760));
        for (int x = 0; x <= 1600; x += 100) {
            const int peak = ((x / 100 + variant * 3 + layer * 5) * 37) % 230;
            mountains.lineTo(x, 470 + layer * 120 + peak);
        }
        mountains.lineTo(1600, 760);
        painter.fillPath(mountains, ridge[variant % 3].darker(100 + layer * 40));
    }
    // The lake: the upper half mirrored, darkened and tinted.
    const QImage upper = image.copy(0, 320, 1600, 440).mirrored(false, true);
    painter.drawImage(0, 760, upper);
    painter.fillRect(0, 760, 1600, 440, QColor(20, 50, 80, 110));
    painter.setPen(QPen(QColor(255, 255, 255, 60), 3));
    for (int y = 790; y < 1200; y += 37)
        painter.drawLine(100 + (y * 7) % 600, y, 500 + (y * 13) % 900, y);
    return image;
}

QString sampleFlowText()
{
    return OrkWidgets::App::resourceText(":/sample.flow");
}

// A flow of one watermark that shows the further settings: a turned text with a shadow, tiled.
QString tiledFlowText()
{
    return "<OperationsFlow><Operation name=\"Watermark\" index=\"0\"><Parameters>"
           "<Active>yes</Active><Mode>0</Mode><Size>24</Size><Text>\u00a9 Pelodine</Text>"
           "<Bold>yes</Bold><Transparency>35</Transparency><Color>#ffffff</Color>"
           "<Font>DejaVu Sans</Font><Tile>yes</Tile><TileGap>60</TileGap><Angle>30</Angle>"
           "<Shadow>yes</Shadow><ShadowDistance>6</ShadowDistance><ShadowBlur>10</ShadowBlur>"
           "</Parameters></Operation></OperationsFlow>";
}

void settle()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
}

// The main page with the photos and a flow of the named nodes, its watermark set to show.
struct Session
{
    explicit Session(const QList<QUrl>& photos, const QStringList& nodes)
    {
        page.setWindowTitle("Pelodine");
        page.show();
        for (const QString& name : nodes) {
            page.flowPanel()
                ->nodesMenu()
                ->actions()
                .value(factoryNodeNames().indexOf(name))
                ->trigger();
        }
        page.slotFilesDropped(photos);
        settle();
    }

    void selectNode(int position)
    {
        auto* tabs = page.flowPanel()->findChild<NodesTabBar*>();
        tabs->setCurrentIndex(position);
        emit tabs->tabClicked();
        settle();
    }

    MainPage page;
};

QPixmap grabWindow(QWidget* window)
{
    window->show();
    settle();
    return window->grab();
}

QPoint below(const QWidget* widget, const QRect& part)
{
    return widget->mapToGlobal(part.bottomLeft() + QPoint(0, 1));
}

// The page with a menu open at a global position, as one picture.
QPixmap withMenu(QWidget* page, QMenu* menu, const QPoint& position)
{
    menu->popup(position);
    settle();
    const QPixmap menuPixmap = menu->grab();
    const QPoint at = page->mapFromGlobal(menu->pos());
    const QRect canvas = page->rect().united(QRect(at, menuPixmap.size()));
    QPixmap picture(canvas.size());
    picture.fill(QColor(40, 40, 40));
    QPainter painter(&picture);
    painter.drawPixmap(-canvas.topLeft(), page->grab());
    painter.fillRect(QRect(at - canvas.topLeft() + QPoint(4, 4), menuPixmap.size()),
                     QColor(0, 0, 0, 90));
    painter.drawPixmap(at - canvas.topLeft(), menuPixmap);
    painter.end();
    menu->hide();
    return picture;
}

// The rows of a page picture from the top of one widget down to the bottom of another; nullptr
// for from means the top of the picture, for to its bottom (menus may reach below the page).
QPixmap rows(const QPixmap& picture, const QWidget* page, const QWidget* from, const QWidget* to)
{
    const int top = from ? from->mapTo(page, QPoint(0, 0)).y() : 0;
    const int bottom = to ? to->mapTo(page, QPoint(0, to->height())).y() + 2 : picture.height();
    return picture.copy(0, top, picture.width(), bottom - top);
}

// A dialog over the dimmed window it belongs to.
QPixmap overWindow(const QPixmap& window, const QPixmap& dialog)
{
    QPixmap picture = window;
    QPainter painter(&picture);
    painter.fillRect(picture.rect(), QColor(0, 0, 0, 120));
    QRect target(QPoint(0, 0), dialog.size());
    target.moveCenter(picture.rect().center());
    painter.fillRect(target.translated(5, 5), QColor(0, 0, 0, 110));
    painter.drawPixmap(target, dialog);
    return picture;
}

// The page with the current watermark's text naming each photo and its insert menu open below
// the text, as its button opens it.
QPixmap watermarkMacros(MainPage& page)
{
    QWidget* node = page.nodesOptionsPanel()->findChild<QStackedWidget*>()->currentWidget();
    auto* menu = node->findChild<QMenu*>("WMRInsertMenu");
    auto* edit = qobject_cast<QLineEdit*>(menu->parent());
    edit->setText("{file} {n}/{count}");
    settle();
    return withMenu(&page, menu, edit->mapToGlobal(edit->rect().bottomLeft()));
}

// The page with the menu of "+" open below it, as its arrow opens it.
QPixmap operationsMenu(MainPage& page)
{
    const auto* addButton = page.flowPanel()->findChild<QToolButton*>("PushButtonAdd");
    return withMenu(&page, page.flowPanel()->nodesMenu(), below(addButton, addButton->rect()));
}

// As the result view does when it opens: a run at full size, then back to the preview.
QPixmap largeView(MainPage& page)
{
    auto* large = page.representor()->findChild<ImageViewDialog*>();
    large->resize(900, 560);
    CommonData::instance()->previewMode = 0;
    page.nodesOptionsPanel()->slotParametersChanged();
    const QPixmap picture = grabWindow(large);
    large->hide();
    CommonData::instance()->previewMode = 1;
    page.nodesOptionsPanel()->slotParametersChanged();
    return picture;
}

// The page down to the photos with the menu bar's menu of that title open.
QPixmap withMenuBarMenu(MainPage& page, const char* title)
{
    auto* bar = page.findChild<QMenuBar*>("MenuBar");
    const QString text = QCoreApplication::translate("MainPage", title);
    QAction* entry = nullptr;
    const QList<QAction*> entries = bar->actions();
    for (QAction* action : entries) {
        if (action->text() == text)
            entry = action;
    }
    return rows(withMenu(&page, entry->menu(), below(bar, bar->actionGeometry(entry))), &page,
                nullptr, page.creator());
}

struct Shot
{
    QPixmap picture;
    // The caption of the slide; docs screenshots have none.
    QString caption;
};

// One caption per slide, in the slide's language.
const char* const captions[][3] = {
    {"Drop your photos on this window, or click it to choose them.",
     "Ziehen Sie Ihre Fotos auf dieses Fenster oder klicken Sie, um sie auszuwählen.",
     "Перетащите фото в это окно или нажмите, чтобы выбрать их."},
    {"On the left the original, on the right the result of the flow. The arrows step through "
     "the photos.",
     "Links das Original, rechts das Ergebnis des Ablaufs. Mit den Pfeilen blättern Sie durch "
     "die Fotos.",
     "Слева оригинал, справа результат сценария. Стрелками можно листать фото."},
    {"A click on \"+\" adds a watermark; its arrow, or a right click, offers every step: "
     "resize, crop, frame and more. Edit > Undo (Ctrl+Z) takes any change back.",
     "Ein Klick auf „+“ fügt ein Wasserzeichen hinzu; sein Pfeil oder ein Rechtsklick bietet "
     "jeden Schritt an: Größe, Zuschnitt, Rahmen und mehr. Bearbeiten > Rückgängig (Strg+Z) "
     "nimmt jede Änderung zurück.",
     "Щелчок по «+» добавляет водяной знак; его стрелка или правый щелчок предлагают любой "
     "шаг: "
     "размер, обрезку, рамку и другое. Правка > Отменить действие (Ctrl+Z) возвращает любое "
     "изменение."},
    {"The watermark: a text or a logo, with font, colours, size, transparency and position.",
     "Das Wasserzeichen: ein Text oder ein Logo, mit Schrift, Farben, Größe, Transparenz und "
     "Position.",
     "Водяной знак: текст или логотип, шрифт, цвета, размер, прозрачность и положение."},
    {"Every step has its own options. Untick its title to switch it off; drag the tabs to "
     "change the order.",
     "Jeder Schritt hat eigene Optionen. Das Häkchen am Titel schaltet ihn ab; die Reihenfolge "
     "ändern Sie durch Ziehen der Reiter.",
     "У каждого шага свои параметры. Снимите флажок заголовка, чтобы отключить шаг; порядок "
     "меняется перетаскиванием вкладок."},
    {"The Flows menu keeps your flows: load one with a click, or clear, save and delete them.",
     "Das Menü „Abläufe“ verwahrt Ihre Abläufe: ein Klick lädt einen, außerdem leeren, "
     "speichern und löschen.",
     "Меню «Сценарии» хранит ваши сценарии: загрузка одним щелчком, очистка, сохранение и "
     "удаление."},
    {"Save the flow under a name to use it again on the next photos.",
     "Speichern Sie den Ablauf unter einem Namen, um ihn für die nächsten Fotos zu verwenden.",
     "Сохраните сценарий под именем, чтобы применить его к следующим фото."},
    {"Click the result to see it in full size; zoom with + and -, 1:1 shows the actual pixels.",
     "Ein Klick auf das Ergebnis zeigt es in voller Größe; + und - zoomen, 1:1 zeigt die "
     "echten Pixel.",
     "Щелчок по результату показывает его в полном размере; + и - масштабируют, 1:1 — "
     "реальные пиксели."},
    {"The output settings: format, JPEG quality, renaming and the folder opened at the end.",
     "Die Ausgabeeinstellungen: Format, JPEG-Qualität, Umbenennen und der Ordner zum Schluss.",
     "Параметры вывода: формат, качество JPEG, переименование и папка по завершении."},
    {"\"Save Results\" runs the flow over all photos into a new folder; pause or stop it at "
     "any time.",
     "„Ergebnisse speichern“ wendet den Ablauf auf alle Fotos an und schreibt in einen neuen "
     "Ordner; Pause und Stopp jederzeit.",
     "«Сохранить результаты» применяет сценарий ко всем фото и пишет их в новую папку; пауза "
     "и стоп в любой момент."},
    {"Choose the language and find this tour again in the menu bar.",
     "Sprache wählen und diese Einführung wiederfinden: in der Menüleiste.",
     "Язык и эта экскурсия — в строке меню."},
};

QList<Shot> helpShots(const QList<QUrl>& photos, int languageIndex)
{
    QList<Shot> shots;
    const auto add = [&shots, languageIndex](const QPixmap& picture) {
        shots << Shot{picture, QString::fromUtf8(captions[shots.size()][languageIndex])};
    };

    OrkWidgets::DropWidget drop;
    drop.resize(400, 400);
    add(grabWindow(&drop));

    Session session(photos, {"Watermark", "Resize", "Vignetting", "Frame"});
    MainPage& page = session.page;
    QWidget* options = page.nodesOptionsPanel();
    QWidget* photoSide = page.creator();
    session.selectNode(0);
    add(rows(page.grab(), &page, nullptr, photoSide));

    add(rows(operationsMenu(page), &page, options, nullptr));

    add(rows(page.grab(), &page, options, nullptr));

    session.selectNode(2);
    add(rows(page.grab(), &page, options, nullptr));

    QPushButton* flows = nullptr;
    const QList<QPushButton*> buttons = page.flowPanel()->findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        if (button->menu())
            flows = button;
    }
    add(rows(withMenu(&page, flows->menu(), below(flows, flows->rect())), &page, options, nullptr));

    session.selectNode(0);
    const QPixmap lower = rows(page.grab(), &page, options, nullptr);
    QInputDialog save(&page);
    save.setWindowTitle(QCoreApplication::translate("FlowPanel", "Save Flow"));
    save.setLabelText(QCoreApplication::translate("FlowPanel", "Flow's Name:"));
    save.setTextValue("Web gallery");
    add(overWindow(lower, grabWindow(&save)));
    save.hide();

    add(largeView(page));

    AppSettingsDialog settings(&page);
    add(overWindow(lower, grabWindow(&settings)));
    settings.hide();

    auto* batch = page.representor()->findChild<BatchDialog*>();
    batch->show();
    batch->slotUpdateInfo(QImage(photos.at(1).toLocalFile()).scaledToWidth(600), 1, 3);
    add(grabWindow(batch));
    batch->hide();

    add(withMenuBarMenu(page, "&Language"));
    return shots;
}

// A 1000 x 700 slide: the shot fitted (never enlarged) above a caption band.
QImage slide(const Shot& shot, int number)
{
    const QSize size(1000, 700);
    const int band = 110;
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor(40, 40, 40));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect area(24, 20, size.width() - 48, size.height() - band - 36);
    QSize fitted = shot.picture.size();
    if (fitted.width() > area.width() || fitted.height() > area.height())
        fitted.scale(area.size(), Qt::KeepAspectRatio);
    QRect target(QPoint(0, 0), fitted);
    target.moveCenter(area.center());
    painter.fillRect(target.translated(6, 6), QColor(0, 0, 0, 120));
    painter.drawPixmap(target, shot.picture);
    painter.setPen(QPen(QColor(110, 110, 110), 1));
    painter.drawRect(target.adjusted(0, 0, -1, -1));

    const QRect caption(0, size.height() - band, size.width(), band);
    painter.fillRect(caption, QColor(71, 71, 71));
    painter.fillRect(caption.x(), caption.y(), caption.width(), 3, accent);
    const QRect badge(24, caption.center().y() - 24, 48, 48);
    painter.setPen(Qt::NoPen);
    painter.setBrush(accent);
    painter.drawEllipse(badge);
    QFont font("DejaVu Sans");
    font.setPixelSize(24);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(badge, Qt::AlignCenter, QString::number(number));
    font.setPixelSize(20);
    font.setBold(false);
    painter.setFont(font);
    painter.drawText(caption.adjusted(96, 8, -24, -8), Qt::AlignVCenter | Qt::TextWordWrap,
                     shot.caption);
    return image;
}

bool writeSlides(const QString& folder, const QList<QUrl>& photos)
{
    OrkWidgets::TranslationsManager* translations = OrkWidgets::App::instance()->translations();
    for (int l = 0; l < languages.size(); ++l) {
        translations->setLanguage(languages.at(l));
        const QList<Shot> shots = helpShots(photos, l);
        QDir().mkpath(folder + "/" + languages.at(l));
        for (int i = 0; i < shots.size(); ++i) {
            const QString path =
                QString("%1/%2/slide%3.png").arg(folder, languages.at(l)).arg(i + 1);
            if (!slide(shots.at(i), i + 1).save(path))
                return false;
        }
    }
    return true;
}

// A flow panel wide enough to show a tab of every kind of node at once, each with its preview.
QPixmap wideFlowPanel(const QUrl& photo)
{
    NodesOptionsPanel options;
    FlowPanel flow(&options);
    QObject::connect(&flow, &FlowPanel::flowChanged, &options, &NodesOptionsPanel::slotFlowChanged);
    const QList<QAction*> actions = flow.nodesMenu()->actions();
    for (QAction* action : actions)
        action->trigger();
    options.setImage(QImage(photo.toLocalFile()));
    flow.findChild<NodesTabBar*>()->setCurrentIndex(0);
    flow.resize(1500, 170);
    return grabWindow(&flow);
}

// The icon list showing the flow's results, once every photo's has come.
QPixmap resultsGrid(MainPage& page)
{
    page.findChild<QPushButton*>("IconViewButton")->click();
    page.findChild<QPushButton*>("ResultsViewButton")->click();
    const ItemsModel* model = CommonData::instance()->itemsModel();
    const auto allCome = [model] {
        for (int row = 0; row < model->rowCount(); ++row) {
            if (model->index(row).data(Qt::DecorationRole).value<QImage>().isNull())
                return false;
        }
        return true;
    };
    for (QElapsedTimer waited; !allCome() && waited.elapsed() < 20000;)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    settle();
    const QPixmap shot = page.grab();
    page.findChild<QPushButton*>("ResultsViewButton")->click();
    page.findChild<QPushButton*>("IconViewButton")->click();
    return shot;
}

// The bar at the end of a run in which one photo of three failed.
QPixmap summaryBar(MainPage& page)
{
    RunSummary summary{"/home/user/Pictures/Pelodine/2024-05-01_10-00-00/", 3, 0, {}};
    summary.add("/home/user/Pictures/Lake.jpg", {});
    summary.add("/home/user/Pictures/Evening.jpg",
                QCoreApplication::translate("BatchEngine", "damaged: %1")
                    .arg("Premature end of JPEG file"));
    summary.add("/home/user/Pictures/Valley.jpg", {});
    emit page.representor()->batchFinished(summary);
    settle();
    const QPixmap shot = page.grab();
    page.runSummaryBar()->hide();
    return shot;
}

// The documentation screenshots at actual size, in each language: the main window with photos,
// with its File menu open and without photos, the large view, a warning and the language
// notice, every kind of node in the flow panel, the watermark options and the two dialogs; a
// tiled, turned watermark with a shadow in the main window and the large view.
bool writeDocs(const QString& folder, const QList<QUrl>& photos)
{
    OrkWidgets::TranslationsManager* translations = OrkWidgets::App::instance()->translations();
    QDir().mkpath(folder);
    for (const QString& language : languages) {
        translations->setLanguage(language);
        QList<QPair<QString, QPixmap>> shots;
        {
            Session sample(photos, {});
            sample.page.flowPanel()->loadFlow(sampleFlowText());
            sample.selectNode(0);
            shots << qMakePair(QString("mainwindow"), sample.page.grab());
            shots << qMakePair(QString("operations-menu"), operationsMenu(sample.page));
            shots << qMakePair(QString("largeview"), largeView(sample.page));
            shots << qMakePair(QString("filemenu"), withMenuBarMenu(sample.page, "&File"));
            QMessageBox warning(
                QMessageBox::Warning, "Warning",
                QCoreApplication::translate("PhotoActions", "There are no photos in the folder %1.")
                    .arg("/home/user/Pictures/Empty"),
                QMessageBox::Ok, &sample.page);
            shots << qMakePair(QString("messagebox"), grabWindow(&warning));
            warning.hide();
            sample.page.slotChooseLanguage(language == "ru" ? "de" : "ru");
            auto* notice = sample.page.findChild<QMessageBox*>("LanguageNotice");
            shots << qMakePair(QString("languagenotice"), grabWindow(notice));
            notice->close();
            translations->setLanguage(language);
            shots << qMakePair(QString("watermark-options"),
                               sample.page.nodesOptionsPanel()->grab());
            AppSettingsDialog settings(&sample.page);
            shots << qMakePair(QString("settings-dialog"), grabWindow(&settings));
            auto* batch = sample.page.representor()->findChild<BatchDialog*>();
            batch->show();
            batch->slotUpdateInfo(QImage(photos.at(0).toLocalFile()).scaledToWidth(600), 1, 3);
            batch->slotProgressDetails(photos.at(0).fileName(), RunClock::timeLeftText(75));
            shots << qMakePair(QString("batch-dialog"), grabWindow(batch));
            batch->hide();
            shots << qMakePair(QString("results-grid"), resultsGrid(sample.page));
            shots << qMakePair(QString("summary-bar"), summaryBar(sample.page));
            shots << qMakePair(QString("watermark-macros"), watermarkMacros(sample.page));
        }
        {
            Session tiled(photos, {});
            tiled.page.flowPanel()->loadFlow(tiledFlowText());
            tiled.selectNode(0);
            tiled.page.nodesOptionsPanel()->findChild<QPushButton*>("WMRMoreButton")->click();
            settle();
            shots << qMakePair(QString("mainwindow-tiled"), tiled.page.grab());
            shots << qMakePair(QString("largeview-tiled"), largeView(tiled.page));
            shots << qMakePair(QString("watermark-more-options"),
                               tiled.page.nodesOptionsPanel()->grab());
        }
        {
            MainPage empty;
            shots << qMakePair(QString("mainwindow-empty"), grabWindow(&empty));
        }
        Session all(photos, factoryNodeNames());
        all.selectNode(0);
        shots << qMakePair(QString("flowpanel-all-nodes"), wideFlowPanel(photos.at(0)));
        for (int i = 0; i < factoryNodeNames().size(); ++i) {
            all.selectNode(i);
            shots << qMakePair(QString("options-%1").arg(i + 1, 2, 10, QChar('0')),
                               all.page.nodesOptionsPanel()->grab());
        }
        for (const auto& shot : qAsConst(shots)) {
            if (!shot.second.save(QString("%1/%2-%3.png").arg(folder, shot.first, language)))
                return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    TestUtils::makeSandboxHome();
    OrkWidgets::App app(argc, argv, "Qubrast", "Pelodine");
    app.setApplicationVersion("1.0");
    app.setStyleSheet(OrkWidgets::App::resourceText(":/stylesheet.qss"));
    const QStringList arguments = QCoreApplication::arguments();
    QTextStream err(stderr);
    if (arguments.size() != 3 || (arguments.at(1) != "slides" && arguments.at(1) != "docs")) {
        err << "usage: pelodine-screens slides|docs <folder>\n";
        return 2;
    }

    // The Flows menu then lists a flow, as it does after the first start.
    FlowFile::installSampleFlow();
    QTemporaryDir dir;
    QList<QUrl> photos;
    const char* const names[] = {"Lake.jpg", "Evening.jpg", "Valley.jpg"};
    for (int i = 0; i < 3; ++i) {
        const QString path = dir.filePath(names[i]);
        landscape(i).save(path, "JPEG", 92);
        photos << QUrl::fromLocalFile(path);
    }
    const bool written = arguments.at(1) == "slides" ? writeSlides(arguments.at(2), photos)
                                                     : writeDocs(arguments.at(2), photos);
    if (!written)
        err << "cannot write into " << arguments.at(2) << "\n";
    return written ? 0 : 1;
}
