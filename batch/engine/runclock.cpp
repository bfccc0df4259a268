#include "runclock.h"

#include <cmath>

RunClock::RunClock(int count)
    : count(count)
{
    clock.start();
}

double RunClock::photosPerSecond() const
{
    const qint64 elapsed = clock.elapsed();
    return done > 0 && elapsed > 0 ? done * 1000.0 / elapsed : 0;
}

int RunClock::secondsLeft() const
{
    if (done == 0)
        return -1;
    return int(std::ceil(double(clock.elapsed()) * (count - done) / done / 1000));
}

QString RunClock::timeLeftText(int seconds)
{
    if (seconds < 0)
        return {};
    if (seconds < 60)
        return tr("%1 s left").arg(seconds);
    if (seconds < 3600)
        return tr("%1 min %2 s left").arg(seconds / 60).arg(seconds % 60);
    return tr("%1 h %2 min left").arg(seconds / 3600).arg(seconds / 60 % 60);
}
