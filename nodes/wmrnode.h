// "Watermark": a text or a logo placed on the image, in three columns of controls that fit
// the low, wide options area, and a compact form.
#pragma once

#include "keyednode.h"
#include "watermarkoperation.h"

#include <QVector>

class ComboSlider;
class DirectionsWidget;
class QCheckBox;
class QComboBox;
class QFontComboBox;
class QFormLayout;
class QLayout;
class QLineEdit;
class QPushButton;
class QSpinBox;
namespace OrkWidgets {
class ColorButton;
}

class WMRNode : public KeyedNode<WMRNode, WMROperation>
{
    Q_OBJECT

public:
    using WMRParams = OrkGraphX::WMRParams;

    explicit WMRNode(QWidget* parent = nullptr);

    // Takes the picture in fileName as the logo. When it cannot be read, a warning box says so
    // and the previous logo stays.
    bool openLogoFile(const QString& fileName);

    // The controls' values with the text's macros naming the current photo.
    Values runValues() const;

public slots:
    // 0 shows the rows of the text watermark, 1 those of the logo.
    void slotModeChanged(int mode);
    void slotWMRBrowse();
    // The compact form, while checked, keeps only the kind and the text or logo rows.
    void slotShrinkClicked(bool checked);

private:
    // A row of one of the forms and the kind it belongs to (-1 to both); essential rows stay in
    // the compact form.
    struct Row
    {
        QWidget* label = nullptr;
        QVector<QWidget*> fields;
        int mode = -1;
        bool essential = false;
    };

    void addRow(QFormLayout* form, const QString& label, QWidget* field, int mode, bool essential);
    // A row of several widgets: a layout, so that no extra widget paints a background of its own.
    void addRow(QFormLayout* form, const QString& label, QLayout* fields, int mode, bool essential);
    // The picker with the two offsets stacked beside it.
    QLayout* newPositionFields();
    void updateRows(int mode);

    QComboBox* kindCombo = nullptr;
    QPushButton* shrinkButton = nullptr;
    QLineEdit* textEdit = nullptr;
    QFontComboBox* fontCombo = nullptr;
    QPushButton* boldButton = nullptr;
    QPushButton* italicButton = nullptr;
    QPushButton* underlinedButton = nullptr;
    OrkWidgets::ColorButton* colorButton = nullptr;
    OrkWidgets::ColorButton* backgroundButton = nullptr;
    QCheckBox* backgroundEnabledBox = nullptr;
    QLineEdit* logoLine = nullptr;
    QPushButton* browseButton = nullptr;
    ComboSlider* sizeSlider = nullptr;
    ComboSlider* transparencySlider = nullptr;
    DirectionsWidget* directions = nullptr;
    QSpinBox* xOffsetBox = nullptr;
    QSpinBox* yOffsetBox = nullptr;
    QCheckBox* expandBox = nullptr;
    QVector<Row> rows;
    bool compact = false;
};
