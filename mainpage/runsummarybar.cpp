#include "runsummarybar.h"

#include "flatbutton.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QUrl>
#include <QVBoxLayout>
#include <QVariant>

namespace {

// More failures than this are named in the tool tip only: the bar covers the window's top.
const int failuresShown = 4;

} // namespace

void RunSummary::add(const QString& source, const QString& error)
{
    if (error.isEmpty())
        ++written;
    else
        failures.append({source, error});
}

RunSummaryBar::RunSummaryBar(QWidget* parent)
    : QFrame(parent)
    , headlineLabel(new QLabel(this))
    , detailsLabel(new QLabel(this))
{
    setObjectName("RunSummaryBar");
    headlineLabel->setObjectName("RunSummaryHeadline");
    headlineLabel->setWordWrap(true);
    headlineLabel->setTextFormat(Qt::PlainText);
    headlineLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);
    detailsLabel->setObjectName("RunSummaryDetails");
    detailsLabel->setWordWrap(true);
    detailsLabel->setTextFormat(Qt::PlainText);
    detailsLabel->setTextInteractionFlags(Qt::TextSelectableByMouse);

    auto* openButton = new QPushButton(tr("Open Folder"), this);
    openButton->setObjectName("RunSummaryOpenButton");
    connect(openButton, &QPushButton::clicked, this, &RunSummaryBar::slotOpenFolder);
    QPushButton* closeButton =
        OrkWidgets::newFlatButton("RunSummaryCloseButton", this, QString(), tr("Close"));
    connect(closeButton, &QPushButton::clicked, this, &QWidget::hide);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(headlineLabel);
    texts->addWidget(detailsLabel);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 6, 6, 6);
    layout->addLayout(texts, 1);
    layout->addWidget(openButton, 0, Qt::AlignVCenter);
    layout->addWidget(closeButton, 0, Qt::AlignTop);
    hide();
}

QString RunSummaryBar::headline() const
{
    return headlineLabel->text();
}

QString RunSummaryBar::details() const
{
    return detailsLabel->text();
}

void RunSummaryBar::slotShowSummary(const RunSummary& summary)
{
    folder = summary.folder;
    QString text = tr("Photos written: %1 of %2, into %3")
                       .arg(summary.written)
                       .arg(summary.count)
                       .arg(QDir::toNativeSeparators(summary.folder));
    if (summary.notReached() > 0)
        text += "\n" + tr("Stopped: %1 not processed.").arg(summary.notReached());
    headlineLabel->setText(text);

    QStringList lines;
    for (const auto& [source, reason] : summary.failures)
        lines << QFileInfo(source).fileName() + ": " + reason;
    QString details;
    if (!lines.isEmpty()) {
        details = tr("Failed: %1").arg(lines.size());
        for (int i = 0; i < lines.size() && i < failuresShown; ++i)
            details += "\n" + lines.at(i);
        if (lines.size() > failuresShown)
            details += "\n" + tr("and %1 more").arg(lines.size() - failuresShown);
    }
    detailsLabel->setText(details);
    detailsLabel->setVisible(!details.isEmpty());
    detailsLabel->setToolTip(lines.size() > failuresShown ? lines.join("\n") : QString());
    // The look follows whether anything failed.
    setProperty("failed", QVariant(!lines.isEmpty()));
    style()->unpolish(this);
    style()->polish(this);
    show();
    raise();
    // Over the page's full width, as high as its texts need there in the style sheet's fonts,
    // which are known once shown.
    if (const QWidget* page = parentWidget()) {
        layout()->activate();
        resize(page->width(), heightForWidth(page->width()));
    }
}

void RunSummaryBar::slotOpenFolder()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
}
