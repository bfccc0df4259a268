// The main window: photos on the left, the result on the right, options and flow below.
#pragma once

#include <QFrame>
#include <QList>
#include <QUrl>

class Creator;
class FlowPanel;
class NodesOptionsPanel;
class PhotoActions;
class QActionGroup;
class QMenuBar;
class QPushButton;
class Representor;
class RunSummaryBar;

class MainPage : public QFrame
{
    Q_OBJECT

public:
    explicit MainPage(QWidget* parent = nullptr);

    NodesOptionsPanel* nodesOptionsPanel() const { return optionsPanel; }
    Creator* creator() const { return photoSide; }
    Representor* representor() const { return resultSide; }
    FlowPanel* flowPanel() const { return flow; }
    PhotoActions* photoCommands() const { return photoActions; }
    RunSummaryBar* runSummaryBar() const { return summaryBar; }

public slots:
    // Photos dropped on the drop window: a non-empty list replaces the photo list; the page is
    // shown in any case.
    void slotFilesDropped(const QList<QUrl>& urls);
    // Photos from the command line or a second instance: appended to the list; the page is
    // shown.
    void slotFilesAdded(const QList<QUrl>& urls);
    // The output settings, modal.
    void slotShowSettings();
    // Stores the language for the next start, says so in that language, and changes nothing
    // on screen before.
    void slotChooseLanguage(const QString& language);

private:
    void buildMenus();
    void buildFileMenu();
    // The page's keys that no menu shows.
    void addPageShortcuts();
    void showOfferingHelp();
    // Undo and redo of the flow's changes.
    void buildEditMenu();

    NodesOptionsPanel* optionsPanel = nullptr;
    Creator* photoSide = nullptr;
    Representor* resultSide = nullptr;
    FlowPanel* flow = nullptr;
    QMenuBar* menuBar = nullptr;
    QPushButton* settingsButton = nullptr;
    QActionGroup* languageGroup = nullptr;
    PhotoActions* photoActions = nullptr;
    RunSummaryBar* summaryBar = nullptr;
};
