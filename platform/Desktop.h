#pragma once
#include <QString>

/// What the program hands to the desktop. A test records.
class Desktop {
public:
    virtual ~Desktop() = default;
    /// The verb "open": a file with the application that its kind belongs to, an address with the browser.
    /// False when nothing could be started.
    virtual bool open(const QString &fileOrAddress) = 0;
};
