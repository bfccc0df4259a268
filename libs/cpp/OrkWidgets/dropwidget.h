// The small first window: photos dropped on it (or chosen with its button) open the main page.
#pragma once

#include <QList>
#include <QUrl>
#include <QWidget>

class QLabel;
class QPushButton;

namespace OrkWidgets {

class DropWidget : public QWidget
{
    Q_OBJECT

public:
    explicit DropWidget(QWidget* parent = nullptr);

signals:
    void dropped(const QList<QUrl>& urls);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void slotOpenClicked();

    QLabel* picture = nullptr;
    QLabel* caption = nullptr;
    QPushButton* openButton = nullptr;
};

} // namespace OrkWidgets
