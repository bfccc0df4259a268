#include "wmrnode.h"

#include "colorbutton.h"
#include "commondata.h"
#include "flatbutton.h"
#include "photofiles.h"
#include "ui/comboslider.h"
#include "ui/directionswidget.h"

#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <utility>

namespace {
const int textMode = 0;
const int logoMode = 1;
const int bothModes = -1;
const int columnSpacing = 8;
const int formSpacing = 5;
const int rowSpacing = 3;
const bool captionsAbove = true;
const bool captionsBeside = false;
const bool packed = true;
const int fontComboLetters = 6;
// Long captions (Russian ones) would otherwise squeeze the sliders to a few pixels.
const int sliderMinimumWidth = 80;

// A form whose captions go above or beside its fields, appended to parent.
QFormLayout* newForm(QBoxLayout* parent, bool above)
{
    auto* form = new QFormLayout;
    form->setSpacing(formSpacing);
    if (above)
        form->setRowWrapPolicy(QFormLayout::WrapAllRows);
    // Buttons keep their own width instead of filling what the widest row leaves them.
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    parent->addLayout(form);
    return form;
}

// The widgets side by side; with keepWidths they keep their own widths and leave the rest empty.
QHBoxLayout* newRowFields(std::initializer_list<QWidget*> widgets, bool keepWidths)
{
    auto* fields = new QHBoxLayout;
    fields->setSpacing(rowSpacing);
    for (QWidget* widget : widgets)
        fields->addWidget(widget);
    if (keepWidths)
        fields->addStretch(1);
    return fields;
}

// Every widget of the layout and of the layouts inside it.
void collectWidgets(const QLayout* layout, QVector<QWidget*>& widgets)
{
    for (int i = 0; i < layout->count(); ++i) {
        QLayoutItem* item = layout->itemAt(i);
        if (QWidget* widget = item->widget())
            widgets.append(widget);
        else if (const QLayout* inner = item->layout())
            collectWidgets(inner, widgets);
    }
}

// What the text menu inserts, with the menu's words for it.
const std::pair<const char*, const char*> textInserts[] = {
    {QT_TRANSLATE_NOOP("WMRNode", "Photo name"), "{name}"},
    {QT_TRANSLATE_NOOP("WMRNode", "File name"), "{file}"},
    {QT_TRANSLATE_NOOP("WMRNode", "Date taken"), "{date}"},
    {QT_TRANSLATE_NOOP("WMRNode", "Date and time taken"), "{date:yyyy-MM-dd HH:mm}"},
    {QT_TRANSLATE_NOOP("WMRNode", "Year taken"), "{year}"},
    {QT_TRANSLATE_NOOP("WMRNode", "Camera"), "{camera}"},
    {QT_TRANSLATE_NOOP("WMRNode", "Lens"), "{lens}"},
    {QT_TRANSLATE_NOOP("WMRNode", "Artist"), "{artist}"},
    {QT_TRANSLATE_NOOP("WMRNode", "Copyright"), "{copyright}"},
    {QT_TRANSLATE_NOOP("WMRNode", "Photo number"), "{n}"},
    {QT_TRANSLATE_NOOP("WMRNode", "Number of photos"), "{count}"},
    {QT_TRANSLATE_NOOP("WMRNode", "Copyright sign"), "\u00a9"},
};

// A button at the end of edit whose menu puts each of textInserts into it at the cursor.
void addInsertMenu(QLineEdit* edit)
{
    auto* menu = new QMenu(edit);
    menu->setObjectName("WMRInsertMenu");
    for (const auto& [label, inserted] : textInserts) {
        const QString text = QString::fromUtf8(inserted);
        // The sign comes last, after a line, where the photo's details end.
        if (!text.startsWith('{'))
            menu->addSeparator();
        // After a tab the inserted text lines up on the right, where shortcuts go.
        QAction* action =
            menu->addAction(QCoreApplication::translate("WMRNode", label) + '\t' + text);
        QObject::connect(action, &QAction::triggered, edit, [edit, text] {
            edit->insert(text);
            edit->setFocus();
        });
    }
    // The field asks for no more width than before: the row has none to spare where captions
    // are long, and the button then takes from the text's room instead.
    const int leastWidth = edit->minimumSizeHint().width();
    QIcon icon(":/buttons/macros.png");
    icon.addFile(":/buttons/macros-disabled.png", QSize(), QIcon::Disabled);
    QAction* opener = edit->addAction(icon, QLineEdit::TrailingPosition);
    edit->setMinimumWidth(leastWidth);
    opener->setToolTip(WMRNode::tr("Insert a detail of each photo"));
    opener->setMenu(menu);
    QObject::connect(opener, &QAction::triggered, edit,
                     [edit, menu] { menu->popup(edit->mapToGlobal(edit->rect().bottomLeft())); });
}

QSpinBox* newOffsetBox(const Param<WMRValues>& key, const QString& toolTip, QWidget* parent)
{
    auto* box = new QSpinBox(parent);
    box->setRange(key.range.minimum, key.range.maximum);
    box->setValue(key.uiDefault.toInt());
    box->setPrefix(key.translatedCaption());
    box->setSuffix("%");
    box->setToolTip(toolTip);
    // Only as narrow as its widest value needs; its preferred width keeps room to spare.
    box->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    return box;
}
} // namespace

WMRNode::WMRNode(QWidget* parent)
    : KeyedNode(parent)
    , kindCombo(new QComboBox(this))
    , shrinkButton(OrkWidgets::newToggleButton("WMRShrinkButton", this, tr("Fewer options")))
    , textEdit(new QLineEdit(key("Text").uiDefault.toString(), this))
    , fontCombo(new QFontComboBox(this))
    , boldButton(OrkWidgets::newToggleButton("BoldButton", this, key("Bold").translatedCaption()))
    , italicButton(
          OrkWidgets::newToggleButton("ItalicButton", this, key("Italic").translatedCaption()))
    , underlinedButton(OrkWidgets::newToggleButton("UnderlinedButton", this,
                                                   key("Underlined").translatedCaption()))
    , colorButton(newColorButton(this, key("Color").uiDefault.value<QColor>()))
    , backgroundButton(newColorButton(this, key("Background").uiDefault.value<QColor>()))
    , backgroundEnabledBox(new QCheckBox(key("BackgroundEnabled").translatedCaption(), this))
    , logoLine(new QLineEdit(key("ImageName").uiDefault.toString(), this))
    , browseButton(
          OrkWidgets::newFlatButton("WMRBrowseButton", this, QString(), tr("Open a logo picture")))
    , sizeSlider(newSlider(this, sliderRange(key("Size"))))
    , transparencySlider(newSlider(this, sliderRange(key("Transparency"))))
    , directions(new DirectionsWidget(this))
    , xOffsetBox(
          newOffsetBox(key("XOffset"), tr("Horizontal offset in percent of the height"), this))
    , yOffsetBox(newOffsetBox(key("YOffset"), tr("Vertical offset in percent of the height"), this))
    , expandBox(new QCheckBox(this))
{
    const std::pair<const char*, QObject*> bound[] = {
        {"Mode", kindCombo},
        {"Size", sizeSlider},
        {"Text", textEdit},
        {"Position", directions},
        {"Expand", expandBox},
        {"Bold", boldButton},
        {"Italic", italicButton},
        {"Underlined", underlinedButton},
        {"XOffset", xOffsetBox},
        {"YOffset", yOffsetBox},
        {"Transparency", transparencySlider},
        {"Color", colorButton},
        {"Background", backgroundButton},
        {"BackgroundEnabled", backgroundEnabledBox},
        {"Font", fontCombo},
        {"ImageName", logoLine},
    };
    for (const auto& [name, control] : bound)
        bindControl(name, control);
    directions->setDirection(Direction(key("Position").uiDefault.toInt()));
    kindCombo->addItem(tr("Text"));
    kindCombo->addItem(tr("Image"));
    // The widest family name on the machine would otherwise set the width of the whole node.
    fontCombo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    fontCombo->setMinimumContentsLength(fontComboLetters);
    logoLine->setReadOnly(true);
    backgroundEnabledBox->setToolTip(tr("Draw the background behind the text"));
    addInsertMenu(textEdit);

    // Three columns of form rows side by side, so that all rows fit the low, wide options area:
    // what is drawn, how strongly, and where and how it is laid on. Captions go above the fields
    // where a caption is wider than its field, so that it does not widen the whole column.
    auto* columns = new QHBoxLayout;
    columns->setSpacing(columnSpacing);
    addFramedLayout(optionsLayout, columns);
    QFormLayout* what = newForm(columns, captionsBeside);
    addRow(what, key("Mode").translatedCaption(), newRowFields({kindCombo, shrinkButton}, packed),
           bothModes, true);
    addRow(what, key("Text").translatedCaption(),
           newRowFields({textEdit, boldButton, italicButton, underlinedButton}, !packed), textMode,
           true);
    addRow(what, key("Font").translatedCaption(), fontCombo, textMode, false);
    addRow(what, key("ImageName").translatedCaption(),
           newRowFields({logoLine, browseButton}, !packed), logoMode, true);
    QFormLayout* strength = newForm(columns, captionsAbove);
    for (ComboSlider* slider : {sizeSlider, transparencySlider})
        slider->setSliderMinimumWidth(sliderMinimumWidth);
    addRow(strength, key("Size").translatedCaption(), sizeSlider, bothModes, false);
    addRow(strength, key("Transparency").translatedCaption(), transparencySlider, bothModes, false);
    auto* where = new QVBoxLayout;
    where->setSpacing(formSpacing);
    columns->addLayout(where);
    addRow(newForm(where, captionsBeside), key("Position").translatedCaption(), newPositionFields(),
           bothModes, false);
    auto* colours = new QHBoxLayout;
    colours->setSpacing(columnSpacing);
    where->addLayout(colours);
    where->addStretch(1);
    addRow(newForm(colours, captionsAbove), key("Color").translatedCaption(), colorButton, textMode,
           false);
    addRow(newForm(colours, captionsAbove), key("Background").translatedCaption(),
           newRowFields({backgroundButton, backgroundEnabledBox}, packed), textMode, false);
    addRow(newForm(colours, captionsAbove), key("Expand").translatedCaption(), expandBox, logoMode,
           false);
    updateRows(textMode);

    connect(kindCombo, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &WMRNode::slotModeChanged);
    connect(shrinkButton, &QPushButton::clicked, this, &WMRNode::slotShrinkClicked);
    connect(browseButton, &QPushButton::clicked, this, &WMRNode::slotWMRBrowse);
    connect(textEdit, &QLineEdit::textChanged, this, &BaseNode::parametersChanged);
    connect(fontCombo, &QFontComboBox::currentFontChanged, this, &BaseNode::parametersChanged);
    for (QPushButton* button : {boldButton, italicButton, underlinedButton})
        connect(button, &QPushButton::clicked, this, &BaseNode::parametersChanged);
    for (QCheckBox* box : {backgroundEnabledBox, expandBox})
        connect(box, &QCheckBox::stateChanged, this, &BaseNode::parametersChanged);
    for (QSpinBox* box : {xOffsetBox, yOffsetBox})
        connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &BaseNode::parametersChanged);
    connect(directions, &DirectionsWidget::directionChanged, this, &BaseNode::parametersChanged);
}

bool WMRNode::openLogoFile(const QString& fileName)
{
    const QImage picture = WatermarkLogo::fromFile(fileName);
    if (picture.isNull()) {
        QMessageBox::warning(this, tr("Warning"), tr("Can not open the image file:") + fileName,
                             QMessageBox::Ok);
        return false;
    }
    plain.ImageData = picture;
    logoLine->setText(QFileInfo(fileName).fileName());
    emit parametersChanged();
    return true;
}

WMRNode::Values WMRNode::runValues() const
{
    return WMROperation::forPhoto(currentValues(), CommonData::instance()->photo);
}

void WMRNode::slotModeChanged(int mode)
{
    updateRows(mode);
    emit parametersChanged();
}

void WMRNode::slotWMRBrowse()
{
    const QString fileName = QFileDialog::getOpenFileName(
        this, tr("Open the watermark file"), QString(),
        tr("Images (%1);;All files (*)").arg(PhotoFiles::namePatterns(true)));
    if (!fileName.isEmpty())
        openLogoFile(fileName);
}

void WMRNode::slotShrinkClicked(bool checked)
{
    compact = checked;
    updateRows(kindCombo->currentIndex());
    emit parametersChanged();
}

void WMRNode::addRow(QFormLayout* form, const QString& label, QWidget* field, int mode,
                     bool essential)
{
    form->addRow(label, field);
    rows.append({form->labelForField(field), {field}, mode, essential});
}

void WMRNode::addRow(QFormLayout* form, const QString& label, QLayout* fields, int mode,
                     bool essential)
{
    form->addRow(label, fields);
    Row row{form->labelForField(fields), {}, mode, essential};
    collectWidgets(fields, row.fields);
    rows.append(row);
}

QLayout* WMRNode::newPositionFields()
{
    auto* offsets = new QVBoxLayout;
    offsets->setSpacing(0);
    offsets->addWidget(xOffsetBox);
    offsets->addWidget(yOffsetBox);
    auto* fields = new QHBoxLayout;
    fields->setSpacing(rowSpacing);
    fields->addWidget(directions);
    fields->addLayout(offsets);
    return fields;
}

void WMRNode::updateRows(int mode)
{
    for (const Row& row : qAsConst(rows)) {
        const bool visible =
            (row.mode == bothModes || row.mode == mode) && (!compact || row.essential);
        for (QWidget* field : row.fields)
            field->setVisible(visible);
        row.label->setVisible(visible);
    }
}
