// The main window: photos on the left, the result on the right, options and flow below.
#pragma once

#include <QFrame>
#include <QList>
#include <QUrl>

class Creator;
class FlowPanel;
class NodesOptionsPanel;
class QActionGroup;
class QMenuBar;
class QPushButton;
class Representor;

class MainPage : public QFrame
{
    Q_OBJECT

public:
    explicit MainPage(QWidget* parent = nullptr);

    NodesOptionsPanel* nodesOptionsPanel() const { return optionsPanel; }
    Creator* creator() const { return photoSide; }
    Representor* representor() const { return resultSide; }
    FlowPanel* flowPanel() const { return flow; }

public slots:
    // Photos from the drop window, a second instance or the command line: a non-empty list
    // replaces the photo list; the page is shown in any case.
    void slotFilesDropped(const QList<QUrl>& urls);
    // The output settings, modal.
    void slotShowSettings();
    // Stores the language for the next start, says so in that language, and changes nothing
    // on screen before.
    void slotChooseLanguage(const QString& language);

private:
    void buildMenus();

    NodesOptionsPanel* optionsPanel = nullptr;
    Creator* photoSide = nullptr;
    Representor* resultSide = nullptr;
    FlowPanel* flow = nullptr;
    QMenuBar* menuBar = nullptr;
    QPushButton* settingsButton = nullptr;
    QActionGroup* languageGroup = nullptr;
};
