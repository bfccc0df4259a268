#include "mrrnode.h"

#include "flatbutton.h"

#include <QPushButton>

#include <utility>

MRRNode::MRRNode(QWidget* parent)
    : KeyedNode(parent)
{
    // The object names are crossed with the keys ("MirrorVButton" holds "Horizontal"):
    // the style sheet knows the buttons by these names.
    const std::pair<const char*, const char*> buttons[] = {{"Horizontal", "MirrorVButton"},
                                                           {"Vertical", "MirrorHButton"}};
    QList<QWidget*> row;
    for (const auto& [name, objectName] : buttons) {
        const Param<Values>& param = key(name);
        QPushButton* button =
            OrkWidgets::newToggleButton(objectName, this, param.translatedCaption());
        button->setChecked(param.uiDefault.toBool());
        connect(button, &QPushButton::clicked, this, &BaseNode::parametersChanged);
        bindControl(name, button);
        row << button;
    }
    addCentredRow(optionsLayout, {row.at(0), row.at(1)});
}
