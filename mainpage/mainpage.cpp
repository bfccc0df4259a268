#include "mainpage.h"

#include "app.h"
#include "appsettingsdialog.h"
#include "basenode.h"
#include "creator.h"
#include "creatordroparea.h"
#include "creatoriconsview.h"
#include "flatbutton.h"
#include "flowpanel.h"
#include "nodesoptionspanel.h"
#include "photoactions.h"
#include "representor.h"
#include "runsummarybar.h"
#include "translationsmanager.h"

#include <QAction>
#include <QActionGroup>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QUndoStack>
#include <QVBoxLayout>

MainPage::MainPage(QWidget* parent)
    : QFrame(parent)
{
    setObjectName("MainPage");
    setFixedSize(735, 795);

    optionsPanel = new NodesOptionsPanel(this);
    photoSide = new Creator(optionsPanel, this);
    resultSide = new Representor(optionsPanel, this);
    flow = new FlowPanel(optionsPanel, this);

    connect(resultSide, &Representor::next, photoSide, &Creator::slotNext);
    connect(resultSide, &Representor::previous, photoSide, &Creator::slotPrevious);
    connect(resultSide, &Representor::gotoFirst, photoSide, &Creator::slotGotoFirst);
    connect(photoSide, &Creator::imageChanged, resultSide, &Representor::slotSetImage);
    connect(photoSide, &Creator::formatChanged, resultSide, &Representor::slotSetFormat);
    connect(photoSide, &Creator::realPreview, resultSide, &Representor::slotRealPreview);
    connect(flow, &FlowPanel::showOptions, optionsPanel, &NodesOptionsPanel::slotShowOptions);
    connect(flow, &FlowPanel::flowChanged, optionsPanel, &NodesOptionsPanel::slotFlowChanged);
    connect(flow, &FlowPanel::nodeRemoved, optionsPanel, &NodesOptionsPanel::slotNodeRemoved);
    connect(resultSide, &Representor::realSizeRequired, optionsPanel,
            &NodesOptionsPanel::slotParametersChanged);
    connect(flow, &FlowPanel::runBatch, resultSide, &Representor::slotRunBatchClicked);

    menuBar = new QMenuBar(this);
    menuBar->setObjectName("MenuBar");
    settingsButton =
        OrkWidgets::newFlatButton("SettingsButton", menuBar, QString(), tr("Output settings"));
    menuBar->setCornerWidget(settingsButton, Qt::TopRightCorner);
    connect(settingsButton, &QPushButton::clicked, this, &MainPage::slotShowSettings);
    photoActions = new PhotoActions(photoSide, this);
    buildMenus();
    addPageShortcuts();

    auto* sides = new QHBoxLayout;
    sides->addStretch(1);
    sides->addWidget(photoSide);
    sides->addWidget(resultSide);
    sides->addStretch(1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(menuBar);
    layout->addLayout(sides);
    layout->addWidget(optionsPanel);
    layout->addWidget(flow);

    // Over the top of the page, below the menu bar: the page has a fixed size and no room
    // to give the bar.
    summaryBar = new RunSummaryBar(this);
    connect(resultSide, &Representor::batchFinished, this, [this](const RunSummary& summary) {
        summaryBar->move(0, menuBar->geometry().bottom() + 1);
        summaryBar->slotShowSummary(summary);
    });
}

namespace {

// Each language under its own name, so that anyone finds theirs whatever the current one is.
const struct
{
    const char* code;
    const char* name;
} languages[] = {{"en", "English"}, {"de", "Deutsch"}, {"ru", "Русский"}};

} // namespace

void MainPage::buildFileMenu()
{
    QMenu* fileMenu = menuBar->addMenu(tr("&File"));
    fileMenu->addAction(photoActions->addPhotos());
    fileMenu->addAction(photoActions->addFolder());
    fileMenu->addSeparator();
    fileMenu->addAction(photoActions->removePhoto());
    fileMenu->addAction(photoActions->clearPhotos());
    fileMenu->addSeparator();
    fileMenu->addAction(tr("&Quit"), qApp, &QCoreApplication::quit,
                        QKeySequence(Qt::CTRL + Qt::Key_Q));
    photoSide->iconsView()->addActions({photoActions->addPhotos(), photoActions->removePhoto()});
}

void MainPage::addPageShortcuts()
{
    addActions({photoActions->nextPhoto(), photoActions->previousPhoto()});
    auto* saveFlow = new QAction(tr("Save Flow"), this);
    saveFlow->setShortcut(QKeySequence(Qt::CTRL + Qt::Key_S));
    connect(saveFlow, &QAction::triggered, flow, &FlowPanel::slotSaveFlow);
    addAction(saveFlow);
}

void MainPage::buildMenus()
{
    buildFileMenu();
    OrkWidgets::App* app = OrkWidgets::App::instance();
    // Languages the program has no texts for show in English.
    const QString current = app ? app->translations()->chosenLanguage() : QString();

    buildEditMenu();

    QMenu* languageMenu = menuBar->addMenu(tr("&Language"));
    languageMenu->setEnabled(app != nullptr);
    languageGroup = new QActionGroup(languageMenu);
    for (const auto& language : languages) {
        QAction* action = languageMenu->addAction(QString::fromUtf8(language.name));
        action->setCheckable(true);
        action->setData(QLatin1String(language.code));
        languageGroup->addAction(action);
        if (current == QLatin1String(language.code))
            action->setChecked(true);
    }
    if (!languageGroup->checkedAction())
        languageGroup->actions().constFirst()->setChecked(true);
    connect(languageGroup, &QActionGroup::triggered, this,
            [this](const QAction* action) { slotChooseLanguage(action->data().toString()); });

    QMenu* helpMenu = menuBar->addMenu(tr("&Help"));
    helpMenu->setEnabled(app != nullptr);
    if (!app)
        return;
    helpMenu->addAction(tr("Show &Help"), app, &OrkWidgets::App::slotHelp,
                        QKeySequence(Qt::Key_F1));
    helpMenu->addAction(tr("&About %1").arg(QCoreApplication::applicationName()), app,
                        &OrkWidgets::App::slotAbout);
}

void MainPage::buildEditMenu()
{
    QMenu* editMenu = menuBar->addMenu(tr("&Edit"));
    // Qt's own texts name the step, "Undo Add Resize", and come with Qt's translations.
    QAction* undo = flow->undoStack()->createUndoAction(editMenu);
    undo->setShortcut(QKeySequence::Undo);
    QAction* redo = flow->undoStack()->createRedoAction(editMenu);
    redo->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    editMenu->addActions({undo, redo});
}

void MainPage::slotChooseLanguage(const QString& language)
{
    OrkWidgets::App* app = OrkWidgets::App::instance();
    if (!app || language == app->translations()->chosenLanguage())
        return;
    app->translations()->chooseForNextStart(language);
    // Said in the chosen language, the one reader sure to understand it.
    const QString notice = app->translations()->programText(
        language, "MainPage", QT_TR_NOOP("The new language is used from the next start of %1."));
    auto* box =
        new QMessageBox(QMessageBox::Information, QCoreApplication::applicationName(),
                        notice.arg(QCoreApplication::applicationName()), QMessageBox::Ok, this);
    box->setObjectName("LanguageNotice");
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void MainPage::slotFilesDropped(const QList<QUrl>& urls)
{
    if (!urls.isEmpty())
        photoSide->dropArea()->setPhotos(urls);
    showOfferingHelp();
}

void MainPage::slotFilesAdded(const QList<QUrl>& urls)
{
    photoSide->dropArea()->addPhotos(urls);
    showOfferingHelp();
}

void MainPage::showOfferingHelp()
{
    show();
    OrkWidgets::App* app = OrkWidgets::App::instance();
    if (!app)
        return;
    if (app->isHelpDue())
        QTimer::singleShot(500, app, &OrkWidgets::App::slotHelp);
    app->addUsage(5);
}

void MainPage::slotShowSettings()
{
    AppSettingsDialog dialog(settingsButton);
    dialog.exec();
}
