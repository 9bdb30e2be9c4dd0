#pragma once
#include "platform/Messages.h"

#include <QStringList>

/// Notes every box as "title|text" and answers each question with `answer`.
class RecordingMessages : public Messages {
public:
    void box(const QString &text, const QString &title) override { boxes << title + u'|' + text; }
    bool question(const QString &text, const QString &title) override
    {
        boxes << title + u'|' + text;
        return answer;
    }
    void alert(const QString &text) override { alerts << text; }

    QStringList boxes;
    QStringList alerts;
    bool answer = true;
};
