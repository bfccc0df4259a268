// The photo side of the main page: the "Original" heading, the drop area or the icon list,
// and the hand-over of the current photo to the options panel.
#pragma once

#include <QImage>
#include <QList>
#include <QString>
#include <QUrl>
#include <QWidget>

class CreatorDropArea;
class CreatorIconsView;
class NodesOptionsPanel;
class QPushButton;
class ResultThumbnails;

class Creator : public QWidget
{
    Q_OBJECT

public:
    Creator(NodesOptionsPanel* optionsPanel, QWidget* parent = nullptr);

    CreatorDropArea* dropArea() const { return area; }
    CreatorIconsView* iconsView() const { return icons; }

signals:
    void imageChanged(const QImage& image);
    void formatChanged(const QString& format);
    void realPreview();

public slots:
    // Loads the current photo whole and hands it to the options panel, which runs the flow.
    void slotDropped(bool loaded);
    // Checked shows the single large photo, unchecked the icon list.
    void slotShowModeChanged(bool checked);
    void slotNext();
    void slotPrevious();
    void slotGotoFirst();
    // Without photos the invitation to drop them shows again, whichever view was chosen.
    void slotListChanged(const QList<QUrl>& urls);
    // Checked, the icon list shows the flow's results instead of the photos; kept for the
    // next start.
    void slotShowResultsChanged(bool checked);

protected:
    // Photos dropped beside the drop area, on the icon list for example, are taken in as well.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    NodesOptionsPanel* optionsPanel = nullptr;
    CreatorDropArea* area = nullptr;
    CreatorIconsView* icons = nullptr;
    QPushButton* iconViewButton = nullptr;
    QPushButton* resultsViewButton = nullptr;
    ResultThumbnails* resultThumbnails = nullptr;
};
