// The output settings: format and quality, renaming and numbering, opening the folder,
// the largest photo, the metadata the results keep, the folder they go into and their colours.
#pragma once

#include <QDialog>

class ComboSlider;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QSpinBox;
namespace OrkWidgets {
class ColorButton;
}

class AppSettingsDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AppSettingsDialog(QWidget* parent = nullptr);

public slots:
    // Stores the six settings and closes the dialog as accepted.
    void slotSaveSettings();
    void slotLoadSettings();
    // The quality and the size budget apply only to the formats that take them; the values stay
    // as they are either way.
    void slotFormatChanged();

private:
    QCheckBox* openLocationBox = nullptr;
    QComboBox* formatCombo = nullptr;
    QLabel* qualityLabel = nullptr;
    ComboSlider* qualitySlider = nullptr;
    QGroupBox* renameBox = nullptr;
    QLineEdit* newNameEdit = nullptr;
    QComboBox* numbersCombo = nullptr;
    QSpinBox* maxMegapixelsBox = nullptr;
    OrkWidgets::ColorButton* backgroundButton = nullptr;
    QCheckBox* shortExtensionsBox = nullptr;
    QLabel* maxKilobytesLabel = nullptr;
    QSpinBox* maxKilobytesBox = nullptr;
    QComboBox* metadataCombo = nullptr;
    QLineEdit* artistEdit = nullptr;
    QLineEdit* copyrightEdit = nullptr;
    QLineEdit* saveIntoEdit = nullptr;
    QCheckBox* keepFoldersBox = nullptr;
    QCheckBox* convertToSrgbBox = nullptr;
    QSpinBox* jobsBox = nullptr;
    QCheckBox* fastReadingBox = nullptr;
};
