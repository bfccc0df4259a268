// The output settings: format and JPEG quality, renaming and numbering, opening the folder,
// the largest photo and the metadata the results keep.
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
    // The quality applies to "JPEG" only; the value stays as it is either way.
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
    QSpinBox* maxKilobytesBox = nullptr;
    QComboBox* metadataCombo = nullptr;
    QLineEdit* artistEdit = nullptr;
    QLineEdit* copyrightEdit = nullptr;
    QSpinBox* jobsBox = nullptr;
    QCheckBox* fastReadingBox = nullptr;
};
