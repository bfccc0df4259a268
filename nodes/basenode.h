// An operation node: at once the option widget of one image operation and its processing step.
#pragma once

#include <QDomDocument>
#include <QDomElement>
#include <QFrame>
#include <QImage>
#include <QString>

class QGroupBox;
class QVBoxLayout;

namespace OrkWidgets {
class ClickableImageLabel;
}

class BaseNode : public QFrame
{
    Q_OBJECT

public:
    BaseNode(const QString& name, QWidget* parent = nullptr);
    ~BaseNode() override;

    // Reads the node's own keys; the base does nothing.
    virtual void loadParameters(const QDomElement& parameters);
    // Appends the node's own keys; the base does nothing.
    virtual void saveParameters(QDomElement& parameters, QDomDocument document);
    // Applies the operation in place when active, then updates the preview.
    virtual void process(QImage& image) = 0;

    // "Active" (case-insensitive "yes" switches on; missing keeps the state), then loadParameters.
    void readParameters(const QDomElement& parameters);
    // A "Parameters" element: "Active" first, then the node's keys.
    QDomElement writeParameters(QDomDocument document);
    // writeParameters as a document of its own, indentation 1.
    QString parametersText();

    void updatePreview(const QImage& image);
    void setNodeIcon(const QString& name);

    QString name() const { return nodeName; }
    bool isActive() const;
    void setActive(bool active);

signals:
    void parametersChanged();
    void previewChanged(const QImage& preview);

public slots:
    void slotActiveStateChanged();

protected:
    // Puts the widget below the node's icon, outside the options.
    void addBelowIcon(QWidget* widget);

    QImage disabledPicture;
    QGroupBox* activeBox = nullptr;
    OrkWidgets::ClickableImageLabel* iconLabel = nullptr;
    QString nodeName;
    QVBoxLayout* optionsLayout = nullptr;
};
