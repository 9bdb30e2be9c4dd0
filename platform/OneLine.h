#pragma once
#include <QString>

/// A text as a field of one line may hold it: each line break or tab is a blank, other control characters are gone.
QString oneLine(QString text);
