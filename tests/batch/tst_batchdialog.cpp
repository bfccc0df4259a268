#include "app.h"
#include "appsettingsdialog.h"
#include "batchdialog.h"
#include "batchfixtures.h"
#include "comboslider.h"
#include "testutils.h"

#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QFormLayout>
#include <QGroupBox>
#include <QImageWriter>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSettings>

using namespace BatchFixtures;
using OrkWidgets::App;

// Takes the place of the desktop's file browser.
class FolderOpener : public QObject
{
    Q_OBJECT

public:
    QList<QUrl> opened;

public slots:
    void open(const QUrl& url) { opened << url; }
};

class TestBatchDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void batchDialogLayout();
    void progress_data();
    void progress();
    void pauseButtonTogglesItsText();
    void freshInstallRunWritesJpegAt90AndOpensTheFolder();
    void oddNumbersContinueInTheSameDialog();
    void dialogShowsAResetStateAgain();
    void stopBeforeTheStartStillCloses();
    void settingsDialogLayout();
    void settingsDefaults();
    void formatSwitchesQuality_data();
    void formatSwitchesQuality();
    void okStoresTheSixKeys();
    void cancelStoresNothing();
    void uncheckedRenameDisablesItsFields();

private:
    // Runs the dialog over the photos and waits until the run has closed it.
    void runDialog(BatchDialog& dialog, const QStringList& photos);
    QString labelText(QWidget* widget, QWidget* field);
    QStringList labelTexts(const QWidget& widget);
    // The line edit of the Rename group, not the one inside the quality's spin box.
    QLineEdit* newNameEdit(const QWidget& dialog);

    FolderOpener opener;
    QString inFolder;
};

void TestBatchDialog::initTestCase()
{
    QDesktopServices::setUrlHandler("file", &opener, "open");
    inFolder = TestUtils::sandboxHome() + "/in";
}

void TestBatchDialog::init()
{
    QSettings().clear();
    opener.opened.clear();
}

void TestBatchDialog::cleanup()
{
    QDir(App::outputBaseFolder()).removeRecursively();
}

void TestBatchDialog::runDialog(BatchDialog& dialog, const QStringList& photos)
{
    dialog.startBatch({}, urls(photos));
    dialog.open();
    QTRY_VERIFY(dialog.isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(!dialog.isVisible(), 20000);
}

// The caption the form layout around field shows for it.
QString TestBatchDialog::labelText(QWidget* widget, QWidget* field)
{
    const QList<QFormLayout*> forms = widget->findChildren<QFormLayout*>();
    for (QFormLayout* form : forms) {
        if (auto* label = qobject_cast<QLabel*>(form->labelForField(field)))
            return label->text();
    }
    return {};
}

QStringList TestBatchDialog::labelTexts(const QWidget& widget)
{
    QStringList texts;
    const QList<QLabel*> labels = widget.findChildren<QLabel*>();
    for (QLabel* label : labels)
        texts << label->text();
    return texts;
}

QLineEdit* TestBatchDialog::newNameEdit(const QWidget& dialog)
{
    return dialog.findChildren<QGroupBox*>().at(1)->findChild<QLineEdit*>(
        QString(), Qt::FindDirectChildrenOnly);
}

void TestBatchDialog::batchDialogLayout()
{
    BatchDialog dialog;
    QCOMPARE(dialog.windowTitle(), QString("Pelodine Batch Process"));
    // The customize hint keeps the window manager from adding a close button or a menu.
    QCOMPARE(dialog.windowFlags(),
             Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowStaysOnTopHint);
    QCOMPARE(dialog.minimumWidth(), 500);
    auto* preview = dialog.findChild<QLabel*>("PreviewLabel");
    QVERIFY(preview);
    QCOMPARE(preview->minimumSize(), QSize(400, 400));
    auto* bar = dialog.findChild<QProgressBar*>();
    QVERIFY(bar);
    QCOMPARE(bar->minimum(), 0);
    QCOMPARE(bar->maximum(), 100);
    QCOMPARE(bar->maximumHeight(), 32);
    auto* pause = dialog.findChild<QPushButton*>("BatchPauseButton");
    auto* stop = dialog.findChild<QPushButton*>("BatchStopButton");
    QVERIFY(pause && stop);
    QCOMPARE(pause->text(), QString("Pause"));
    QVERIFY(pause->isCheckable());
    QCOMPARE(stop->text(), QString("Stop"));
}

void TestBatchDialog::progress_data()
{
    QTest::addColumn<int>("nCur");
    QTest::addColumn<int>("nCount");
    QTest::addColumn<QString>("info");
    QTest::addColumn<int>("bar");
    QTest::newRow("first of three") << 0 << 3 << "<CENTER><H2>1 of 3</H2></CENTER>" << 0;
    QTest::newRow("second of three") << 1 << 3 << "<CENTER><H2>2 of 3</H2></CENTER>" << 33;
    QTest::newRow("third of three") << 2 << 3 << "<CENTER><H2>3 of 3</H2></CENTER>" << 66;
    QTest::newRow("last of two hundred")
        << 199 << 200 << "<CENTER><H2>200 of 200</H2></CENTER>" << 99;
}

void TestBatchDialog::progress()
{
    QFETCH(int, nCur);
    QFETCH(int, nCount);
    QFETCH(QString, info);
    QFETCH(int, bar);
    BatchDialog dialog;
    dialog.slotUpdateInfo(TestUtils::filledImage(60, 30, 0xff00ff00), nCur, nCount);
    const QStringList texts = labelTexts(dialog);
    QVERIFY2(texts.contains(info), qPrintable(texts.join(" | ")));
    QCOMPARE(dialog.findChild<QProgressBar*>()->value(), bar);
    QVERIFY(!dialog.findChild<QLabel*>("PreviewLabel")->pixmap(Qt::ReturnByValue).isNull());
}

void TestBatchDialog::pauseButtonTogglesItsText()
{
    BatchDialog dialog;
    auto* pause = dialog.findChild<QPushButton*>("BatchPauseButton");
    pause->click();
    QCOMPARE(pause->text(), QString("Resume"));
    QVERIFY(pause->isChecked());
    pause->click();
    QCOMPARE(pause->text(), QString("Pause"));
    QVERIFY(!pause->isChecked());
}

void TestBatchDialog::freshInstallRunWritesJpegAt90AndOpensTheFolder()
{
    const QStringList photos{writePhoto(inFolder, "one.png", 0xff205080),
                             writePhoto(inFolder, "two.png", 0xff802050),
                             writePhoto(inFolder, "three.png", 0xff508020)};
    BatchDialog dialog;
    runDialog(dialog, photos);

    const QString destination = dialog.destinationFolder();
    QVERIFY(destination.startsWith(App::outputBaseFolder()));
    QVERIFY2(QRegularExpression("^\\d{4}-\\d\\d-\\d\\d_\\d\\d-\\d\\d-\\d\\d/$")
                 .match(destination.mid(App::outputBaseFolder().size()))
                 .hasMatch(),
             qPrintable(destination));
    QCOMPARE(fileNames(destination), (QStringList{"one.jpeg", "three.jpeg", "two.jpeg"}));

    for (int quality : {90, 100}) {
        QBuffer reference;
        reference.open(QIODevice::WriteOnly);
        QImageWriter writer(&reference, "jpeg");
        writer.setQuality(quality);
        QVERIFY(writer.write(TestUtils::filledImage(16, 8, 0xff802050)));
        QCOMPARE(fileBytes(destination + "two.jpeg") == reference.data(), quality == 90);
    }

    QCOMPARE(opener.opened, QList<QUrl>{QUrl::fromLocalFile(destination)});
    const QStringList texts = labelTexts(dialog);
    QVERIFY2(texts.contains("<CENTER><H2>3 of 3</H2></CENTER>"), qPrintable(texts.join(" | ")));
    QCOMPARE(dialog.findChild<QProgressBar*>()->value(), 66);
}

void TestBatchDialog::oddNumbersContinueInTheSameDialog()
{
    App::writeSetting("KeyRename", true);
    App::writeSetting("KeyNumbers", 1);
    App::writeSetting("KeyFormat", "PNG");
    const QStringList photos{writePhoto(inFolder, "a.png", 0xff000000),
                             writePhoto(inFolder, "b.png", 0xff000000)};
    BatchDialog dialog;
    runDialog(dialog, photos);
    const QString first = dialog.destinationFolder();
    runDialog(dialog, photos.mid(0, 1));
    const QString second = dialog.destinationFolder();
    QStringList names = fileNames(first);
    if (second != first)
        names += fileNames(second);
    QCOMPARE(names, (QStringList{"NewName1.png", "NewName3.png", "NewName5.png"}));
}

void TestBatchDialog::dialogShowsAResetStateAgain()
{
    App::writeSetting("KeyOpenLocation", false);
    BatchDialog dialog;
    runDialog(dialog, {writePhoto(inFolder, "a.png", 0xff000000)});
    QCOMPARE(fileNames(dialog.destinationFolder()), QStringList{"a.jpeg"});
    // Switched off, the destination is not opened.
    QVERIFY(opener.opened.isEmpty());

    auto* pause = dialog.findChild<QPushButton*>("BatchPauseButton");
    pause->setChecked(true);
    pause->setText("Resume");
    dialog.show();
    QCOMPARE(pause->text(), QString("Pause"));
    QVERIFY(!pause->isChecked());
    QCOMPARE(dialog.findChild<QProgressBar*>()->value(), 0);
    QVERIFY(dialog.findChild<QLabel*>("PreviewLabel")->pixmap(Qt::ReturnByValue).isNull());
    const QStringList texts = labelTexts(dialog);
    QVERIFY(texts.contains("<CENTER><H1>Please, wait...</H1></CENTER>"));
    dialog.hide();
}

// Escape at once, most likely within the start delay: whether the run has begun or not,
// the dialog closes.
void TestBatchDialog::stopBeforeTheStartStillCloses()
{
    BatchDialog dialog;
    dialog.startBatch({}, urls({writePhoto(inFolder, "a.png", 0xff000000)}));
    dialog.open();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QTRY_VERIFY(!dialog.isVisible());
}

void TestBatchDialog::settingsDialogLayout()
{
    AppSettingsDialog dialog;
    QCOMPARE(dialog.windowTitle(), QString("Pelodine Settings"));
    QCOMPARE(dialog.windowType(), Qt::Tool);
    QVERIFY(dialog.windowFlags().testFlag(Qt::WindowSystemMenuHint));
    auto* openBox = dialog.findChild<QCheckBox*>();
    QCOMPARE(openBox->text(), QString("Open Destination Folder When Done"));

    const QList<QGroupBox*> groups = dialog.findChildren<QGroupBox*>();
    QCOMPARE(groups.size(), 2);
    QCOMPARE(groups.at(0)->title(), QString("Output Format"));
    QVERIFY(!groups.at(0)->isCheckable());
    QCOMPARE(groups.at(1)->title(), QString("Rename"));
    QVERIFY(groups.at(1)->isCheckable());

    const QList<QComboBox*> combos = dialog.findChildren<QComboBox*>();
    QCOMPARE(combos.size(), 2);
    const auto items = [](const QComboBox* combo) {
        QStringList texts;
        for (int i = 0; i < combo->count(); ++i)
            texts << combo->itemText(i);
        return texts;
    };
    QComboBox* formats = combos.at(0);
    QCOMPARE(items(formats), (QStringList{"JPEG", "PNG", "BMP", "TIFF", "PPM", "XPM"}));
    QCOMPARE(formats->minimumWidth(), 140);
    QCOMPARE(formats->maximumWidth(), 140);
    QCOMPARE(labelText(&dialog, formats), QString("Format:"));
    QComboBox* numbers = combos.at(1);
    QCOMPARE(items(numbers), (QStringList{"All", "Odd", "Even"}));
    QCOMPARE(labelText(&dialog, numbers), QString("Numbers:"));

    auto* quality = dialog.findChild<ComboSlider*>();
    QCOMPARE(labelText(&dialog, quality), QString("Quiality:"));
    QCOMPARE(quality->minimum(), 1);
    QCOMPARE(quality->maximum(), 100);
    QCOMPARE(labelText(&dialog, newNameEdit(dialog)), QString("New Name:"));

    const QList<QPushButton*> buttons = dialog.findChildren<QPushButton*>("PushButton");
    QCOMPARE(buttons.size(), 2);
    QCOMPARE(buttons.at(0)->text(), QString("Ok"));
    QCOMPARE(buttons.at(1)->text(), QString("Cancel"));
}

void TestBatchDialog::settingsDefaults()
{
    AppSettingsDialog dialog;
    QVERIFY(dialog.findChild<QCheckBox*>()->isChecked());
    QCOMPARE(dialog.findChildren<QComboBox*>().at(0)->currentText(), QString("JPEG"));
    QCOMPARE(dialog.findChild<ComboSlider*>()->value(), 90);
    QVERIFY(dialog.findChild<ComboSlider*>()->isEnabled());
    QVERIFY(!dialog.findChildren<QGroupBox*>().at(1)->isChecked());
    QCOMPARE(newNameEdit(dialog)->text(), QString("NewName"));
    QCOMPARE(dialog.findChildren<QComboBox*>().at(1)->currentIndex(), 0);
}

void TestBatchDialog::formatSwitchesQuality_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("JPEG") << "JPEG" << true;
    QTest::newRow("PNG") << "PNG" << false;
    QTest::newRow("BMP") << "BMP" << false;
    QTest::newRow("TIFF") << "TIFF" << false;
    QTest::newRow("PPM") << "PPM" << false;
    QTest::newRow("XPM") << "XPM" << false;
}

// The stored quality (55) stays in the control and in the settings whatever the format.
void TestBatchDialog::formatSwitchesQuality()
{
    QFETCH(QString, format);
    QFETCH(bool, enabled);
    App::writeSetting("KeyQuality", 55);
    AppSettingsDialog dialog;
    auto* formats = dialog.findChildren<QComboBox*>().at(0);
    auto* quality = dialog.findChild<ComboSlider*>();
    QWidget* label =
        qobject_cast<QFormLayout*>(formats->parentWidget()->layout())->labelForField(quality);
    formats->setCurrentText("XPM");
    formats->setCurrentText(format);
    QCOMPARE(quality->isEnabled(), enabled);
    QCOMPARE(label->isEnabled(), enabled);
    QCOMPARE(quality->value(), 55);
    dialog.findChildren<QPushButton*>("PushButton").at(0)->click();
    QCOMPARE(App::readSetting("KeyQuality").toInt(), 55);
    QCOMPARE(App::readSetting("KeyFormat").toString(), format);
}

void TestBatchDialog::okStoresTheSixKeys()
{
    AppSettingsDialog dialog;
    dialog.findChild<QCheckBox*>()->setChecked(false);
    dialog.findChildren<QComboBox*>().at(0)->setCurrentText("TIFF");
    dialog.findChild<ComboSlider*>()->setValue(12);
    dialog.findChildren<QGroupBox*>().at(1)->setChecked(true);
    newNameEdit(dialog)->setText("");
    dialog.findChildren<QComboBox*>().at(1)->setCurrentIndex(2);
    dialog.findChildren<QPushButton*>("PushButton").at(0)->click();
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(App::readSetting("KeyOpenLocation").toBool(), false);
    QCOMPARE(App::readSetting("KeyFormat").toString(), QString("TIFF"));
    QCOMPARE(App::readSetting("KeyQuality").toInt(), 12);
    QCOMPARE(App::readSetting("KeyRename").toBool(), true);
    QVERIFY(App::readSetting("KeyNewName").isValid());
    QCOMPARE(App::readSetting("KeyNewName").toString(), QString());
    QCOMPARE(App::readSetting("KeyNumbers").toInt(), 2);

    AppSettingsDialog again;
    QCOMPARE(again.findChildren<QComboBox*>().at(0)->currentText(), QString("TIFF"));
    QCOMPARE(again.findChild<ComboSlider*>()->value(), 12);
    QVERIFY(!again.findChild<ComboSlider*>()->isEnabled());
    QCOMPARE(again.findChildren<QComboBox*>().at(1)->currentIndex(), 2);
}

void TestBatchDialog::cancelStoresNothing()
{
    AppSettingsDialog dialog;
    dialog.findChildren<QComboBox*>().at(0)->setCurrentText("PNG");
    dialog.findChildren<QPushButton*>("PushButton").at(1)->click();
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
    QVERIFY(!App::readSetting("KeyFormat").isValid());
}

void TestBatchDialog::uncheckedRenameDisablesItsFields()
{
    AppSettingsDialog dialog;
    auto* rename = dialog.findChildren<QGroupBox*>().at(1);
    rename->setChecked(true);
    QVERIFY(newNameEdit(dialog)->isEnabled());
    rename->setChecked(false);
    QVERIFY(!newNameEdit(dialog)->isEnabled());
    QVERIFY(!dialog.findChildren<QComboBox*>().at(1)->isEnabled());
}

PELODINE_TEST_MAIN(TestBatchDialog)
#include "tst_batchdialog.moc"
