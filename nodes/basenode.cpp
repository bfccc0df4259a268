#include "basenode.h"

#include "clickableimagelabel.h"
#include "nodecatalogue.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

BaseNode::BaseNode(const QString& name, QWidget* parent)
    : QFrame(parent)
    , disabledPicture(":/DisabledNode.png")
    , activeBox(new QGroupBox(displayNameForNodeName(name), this))
    , iconLabel(new OrkWidgets::ClickableImageLabel(this))
    , nodeName(name)
    , optionsLayout(new QVBoxLayout)
{
    iconLabel->setFixedSize(64, 64);
    iconLabel->setObjectName("NodeIconLabel");
    // A group box made checkable starts checked: a new node is active.
    activeBox->setCheckable(true);
    connect(activeBox, &QGroupBox::clicked, this, &BaseNode::slotActiveStateChanged);
    optionsLayout->setContentsMargins(1, 1, 1, 1);
    optionsLayout->setSpacing(3);
    activeBox->setLayout(optionsLayout);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(1);
    layout->addStretch(1);
    layout->addWidget(iconLabel);
    layout->addWidget(activeBox);
    layout->addStretch(1);
}

BaseNode::~BaseNode() = default;

void BaseNode::addBelowIcon(QWidget* widget)
{
    auto* row = static_cast<QHBoxLayout*>(layout());
    const int at = row->indexOf(iconLabel);
    row->removeWidget(iconLabel);
    auto* column = new QVBoxLayout;
    column->setSpacing(3);
    column->addStretch(1);
    column->addWidget(iconLabel);
    column->addWidget(widget);
    column->addStretch(1);
    row->insertLayout(at, column);
}

void BaseNode::loadParameters(const QDomElement& /*parameters*/) {}

void BaseNode::saveParameters(QDomElement& /*parameters*/, QDomDocument /*document*/) {}

void BaseNode::readParameters(const QDomElement& parameters)
{
    activeBox->setChecked(ParameterText::active(parameters, isActive()));
    loadParameters(parameters);
}

QDomElement BaseNode::writeParameters(QDomDocument document)
{
    QDomElement parameters = ParameterText::newElement(document, isActive());
    saveParameters(parameters, document);
    return parameters;
}

QString BaseNode::parametersText()
{
    // A document made with a (empty) name is a real one: a default-constructed one is null.
    QDomDocument document(QStringLiteral(""));
    return ParameterText::documentText(document, writeParameters(document));
}

void BaseNode::updatePreview(const QImage& image)
{
    emit previewChanged(isActive() ? image : disabledPicture);
}

void BaseNode::setNodeIcon(const QString& name)
{
    iconLabel->setPixmap(iconForNodeName(name));
}

bool BaseNode::isActive() const
{
    return activeBox->isChecked();
}

void BaseNode::setActive(bool active)
{
    activeBox->setChecked(active);
}

void BaseNode::slotActiveStateChanged()
{
    emit parametersChanged();
}
