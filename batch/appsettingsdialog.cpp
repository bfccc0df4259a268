#include "appsettingsdialog.h"

#include "colorbutton.h"
#include "comboslider.h"
#include "outputsettings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

AppSettingsDialog::AppSettingsDialog(QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::WindowSystemMenuHint)
{
    setWindowTitle(QCoreApplication::applicationName() + tr(" Settings"));

    openLocationBox = new QCheckBox(tr("Open Destination Folder When Done"));

    formatCombo = new QComboBox;
    formatCombo->addItems(OutputSettings::formats());
    formatCombo->setFixedWidth(140);
    qualityLabel = new QLabel(tr("Quiality:"));
    qualitySlider = new ComboSlider;
    qualitySlider->setRange(1, 100);
    auto* formatBox = new QGroupBox(tr("Output Format"));
    auto* formatForm = new QFormLayout(formatBox);
    formatForm->addRow(tr("Format:"), formatCombo);
    formatForm->addRow(qualityLabel, qualitySlider);

    renameBox = new QGroupBox(tr("Rename"));
    renameBox->setCheckable(true);
    newNameEdit = new QLineEdit;
    numbersCombo = new QComboBox;
    numbersCombo->addItems({tr("All"), tr("Odd"), tr("Even")});
    auto* renameForm = new QFormLayout(renameBox);
    renameForm->addRow(tr("New Name:"), newNameEdit);
    renameForm->addRow(tr("Numbers:"), numbersCombo);

    // Beyond the settings above: how large a photo a run takes, checked before decoding.
    maxMegapixelsBox = new QSpinBox;
    maxMegapixelsBox->setRange(1, 10000);
    maxMegapixelsBox->setSuffix(tr(" megapixels"));
    backgroundButton = new OrkWidgets::ColorButton(Qt::white, this);
    backgroundButton->setToolTip(tr("Transparent pixels are laid on it in JPEG, BMP and PPM"));
    shortExtensionsBox = new QCheckBox(tr("Short file extensions (.jpg, .tif)"));
    maxKilobytesBox = new QSpinBox;
    maxKilobytesBox->setRange(0, 1000000);
    maxKilobytesBox->setSuffix(tr(" KB"));
    maxKilobytesBox->setSpecialValueText(tr("No limit"));
    auto* limitsForm = new QFormLayout;
    limitsForm->addRow(tr("Largest photo:"), maxMegapixelsBox);
    maxKilobytesBox->setToolTip(tr("For JPEG, WEBP, AVIF and JXL: the highest quality whose "
                                   "file fits"));
    maxKilobytesLabel = new QLabel(tr("Largest file:"));
    limitsForm->addRow(maxKilobytesLabel, maxKilobytesBox);
    limitsForm->addRow(tr("Background:"), backgroundButton);
    limitsForm->addRow(shortExtensionsBox);

    // In the order of PhotoMetadata::Choice.
    metadataCombo = new QComboBox;
    metadataCombo->addItems({tr("Keep all"), tr("Remove location"), tr("Remove all")});
    artistEdit = new QLineEdit;
    copyrightEdit = new QLineEdit;
    auto* metadataBox = new QGroupBox(tr("Metadata"));
    auto* metadataForm = new QFormLayout(metadataBox);
    metadataForm->addRow(metadataCombo);
    metadataForm->addRow(tr("Artist:"), artistEdit);
    metadataForm->addRow(tr("Copyright:"), copyrightEdit);

    saveIntoEdit = new QLineEdit;
    saveIntoEdit->setPlaceholderText(tr("A new folder for each run"));
    // Wide enough to show what an empty field means.
    saveIntoEdit->setMinimumWidth(
        saveIntoEdit->fontMetrics().horizontalAdvance(saveIntoEdit->placeholderText()) + 16);
    auto* browseButton = new QPushButton(tr("Browse..."));
    auto* saveIntoRow = new QHBoxLayout;
    saveIntoRow->addWidget(saveIntoEdit);
    saveIntoRow->addWidget(browseButton);
    keepFoldersBox = new QCheckBox(tr("Keep folder structure"));
    keepFoldersBox->setToolTip(tr("A photo from a subfolder of a folder you added goes into the "
                                  "same subfolder of the results"));
    convertToSrgbBox = new QCheckBox(tr("Convert to sRGB"));
    convertToSrgbBox->setToolTip(tr("Colours converted from the photo's profile to sRGB, as the "
                                    "web expects"));
    auto* foldersForm = new QFormLayout;
    foldersForm->addRow(tr("Save into:"), saveIntoRow);
    foldersForm->addRow(keepFoldersBox);
    foldersForm->addRow(convertToSrgbBox);
    // How the run goes: photos worked on at once, and reading shrunk for speed.
    jobsBox = new QSpinBox;
    jobsBox->setRange(0, OutputSettings::maxJobs);
    jobsBox->setSpecialValueText(tr("One per core"));
    fastReadingBox = new QCheckBox(tr("Fast reading"));
    fastReadingBox->setToolTip(tr("A flow that begins by shrinking the photo to half or less "
                                  "reads a JPEG at a half, a quarter or an eighth of its size: "
                                  "much faster, a little less sharp"));
    auto* speedForm = new QFormLayout;
    speedForm->addRow(tr("Photos at once:"), jobsBox);
    speedForm->addRow(fastReadingBox);
    auto* okButton = new QPushButton(tr("Ok"));
    okButton->setObjectName("PushButton");
    auto* cancelButton = new QPushButton(tr("Cancel"));
    cancelButton->setObjectName("PushButton");
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(okButton);
    buttons->addWidget(cancelButton);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(openLocationBox);
    layout->addWidget(formatBox);
    layout->addWidget(renameBox);
    layout->addLayout(limitsForm);
    layout->addWidget(metadataBox);
    layout->addLayout(foldersForm);
    layout->addLayout(speedForm);
    layout->addLayout(buttons);

    connect(okButton, &QPushButton::clicked, this, &AppSettingsDialog::slotSaveSettings);
    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    connect(browseButton, &QPushButton::clicked, this, [this] {
        const QString folder =
            QFileDialog::getExistingDirectory(this, tr("Save into"), saveIntoEdit->text());
        if (!folder.isEmpty())
            saveIntoEdit->setText(folder);
    });
    connect(formatCombo, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &AppSettingsDialog::slotFormatChanged);
    slotLoadSettings();
}

void AppSettingsDialog::slotSaveSettings()
{
    OutputSettings settings;
    settings.openLocation = openLocationBox->isChecked();
    settings.rename = renameBox->isChecked();
    settings.quality = qualitySlider->value();
    settings.newName = newNameEdit->text();
    settings.format = formatCombo->currentText();
    settings.numbers = numbersCombo->currentIndex();
    settings.maxMegapixels = maxMegapixelsBox->value();
    settings.background = backgroundButton->color();
    settings.shortExtensions = shortExtensionsBox->isChecked();
    settings.maxKilobytes = maxKilobytesBox->value();
    settings.metadata = metadataCombo->currentIndex();
    settings.artist = artistEdit->text();
    settings.copyright = copyrightEdit->text();
    settings.saveInto = saveIntoEdit->text().trimmed();
    settings.keepFolders = keepFoldersBox->isChecked();
    settings.convertToSrgb = convertToSrgbBox->isChecked();
    settings.jobs = jobsBox->value();
    settings.fastReading = fastReadingBox->isChecked();
    settings.save();
    accept();
}

void AppSettingsDialog::slotLoadSettings()
{
    const OutputSettings settings = OutputSettings::load();
    openLocationBox->setChecked(settings.openLocation);
    renameBox->setChecked(settings.rename);
    newNameEdit->setText(settings.newName);
    qualitySlider->setValue(settings.quality);
    formatCombo->setCurrentText(settings.format);
    numbersCombo->setCurrentIndex(settings.numbers);
    maxMegapixelsBox->setValue(settings.maxMegapixels);
    backgroundButton->setColor(settings.background);
    shortExtensionsBox->setChecked(settings.shortExtensions);
    maxKilobytesBox->setValue(settings.maxKilobytes);
    metadataCombo->setCurrentIndex(settings.metadata);
    artistEdit->setText(settings.artist);
    copyrightEdit->setText(settings.copyright);
    saveIntoEdit->setText(settings.saveInto);
    keepFoldersBox->setChecked(settings.keepFolders);
    convertToSrgbBox->setChecked(settings.convertToSrgb);
    jobsBox->setValue(settings.jobs);
    fastReadingBox->setChecked(settings.fastReading);
    slotFormatChanged();
}

void AppSettingsDialog::slotFormatChanged()
{
    const QString format = formatCombo->currentText();
    qualityLabel->setEnabled(OutputSettings::takesQuality(format));
    qualitySlider->setEnabled(OutputSettings::takesQuality(format));
    maxKilobytesLabel->setEnabled(OutputSettings::takesSizeBudget(format));
    maxKilobytesBox->setEnabled(OutputSettings::takesSizeBudget(format));
}
