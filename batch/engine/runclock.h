// How fast a batch run goes and how long it still takes: the one estimate the window's progress
// and pelodine-batch's progress line both show.
#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QString>

class RunClock
{
    Q_DECLARE_TR_FUNCTIONS(RunClock)

public:
    // A run of count photos, started now.
    explicit RunClock(int count);

    void photoFinished() { ++done; }
    int finished() const { return done; }

    // At the pace of the run so far; 0 before the first photo is finished.
    double photosPerSecond() const;
    // The time the photos not yet finished take at that pace, rounded up to whole seconds;
    // -1 before the first photo is finished.
    int secondsLeft() const;

    // "12 s left", "3 min 5 s left", "2 h 10 min left"; empty without an estimate.
    static QString timeLeftText(int seconds);
    QString timeLeftText() const { return timeLeftText(secondsLeft()); }

private:
    QElapsedTimer clock;
    int count = 0;
    int done = 0;
};
