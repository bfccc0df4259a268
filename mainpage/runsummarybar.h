// The end of a batch run, told in the main window without stopping the user: how many photos
// were written and where, which failed and why, and a way to open the folder.
#pragma once

#include <QFrame>
#include <QList>
#include <QPair>
#include <QString>

class QLabel;

// What a run did, photo by photo.
struct RunSummary
{
    QString folder;
    // The photos of the run, reached or not.
    int count = 0;
    int written = 0;
    // (source path, reason), in run order.
    QList<QPair<QString, QString>> failures;

    // A photo the run reached; error empty when its result was written.
    void add(const QString& source, const QString& error);
    // The photos a stop left alone.
    int notReached() const { return count - written - failures.size(); }
};

class RunSummaryBar : public QFrame
{
    Q_OBJECT

public:
    explicit RunSummaryBar(QWidget* parent = nullptr);

    // The heading and the failures as the bar shows them.
    QString headline() const;
    QString details() const;

public slots:
    // Fills the bar and shows it; it stays until closed or the next run.
    void slotShowSummary(const RunSummary& summary);
    void slotOpenFolder();

private:
    QLabel* headlineLabel = nullptr;
    QLabel* detailsLabel = nullptr;
    QString folder;
};
