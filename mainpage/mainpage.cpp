#include "mainpage.h"

#include "app.h"
#include "appsettingsdialog.h"
#include "basenode.h"
#include "creator.h"
#include "creatordroparea.h"
#include "flowpanel.h"
#include "nodesoptionspanel.h"
#include "representor.h"

#include <QHBoxLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
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
    settingsButton = new QPushButton(menuBar);
    settingsButton->setObjectName("SettingsButton");
    settingsButton->setToolTip(tr("Output settings"));
    settingsButton->setFlat(true);
    menuBar->setCornerWidget(settingsButton, Qt::TopRightCorner);
    connect(settingsButton, &QPushButton::clicked, this, &MainPage::slotShowSettings);

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
}

void MainPage::slotFilesDropped(const QList<QUrl>& urls)
{
    if (!urls.isEmpty())
        photoSide->dropArea()->setPhotos(urls);
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
