#pragma once
#include <QDateTime>

/// The day of today. A test gives its own.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDate today() const { return QDate::currentDate(); }
    QDateTime now() const { return {today(), QTime::currentTime()}; }
};
