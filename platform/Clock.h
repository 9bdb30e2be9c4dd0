#pragma once
#include <QDate>

/// The day of today. A test gives its own.
class Clock {
public:
    virtual ~Clock() = default;
    virtual QDate today() const { return QDate::currentDate(); }
};
