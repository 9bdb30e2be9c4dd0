#pragma once
#include "app/DeskScreens.h"
#include "platform/Desktop.h"
#include "platform/FileChooser.h"
#include "shell/ApplicationFolder.h"
#include "tests/support/RecordingMessages.h"
#include "tests/support/Suite.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>

#include <functional>
#include <vector>

struct RecordingDesktop : Desktop {
    bool open(const QString &fileOrAddress) override
    {
        opened << fileOrAddress;
        return true;
    }
    QStringList opened;
};

/// Gives `path` for every question where to save.
struct FixedFile : FileChooser {
    QString saveFile(QWidget *, const QString &, const QStringList &) override
    {
        ++asked;
        return path;
    }
    QString path;
    int asked = 0;
};

/// Acts on modal windows as a person would: the first action belongs to the first window of its name that shows,
/// and so on. An action that never got its window is a failure of the test.
class Visitor : public QObject {
public:
    Visitor();
    ~Visitor() override;

    void whenShown(const QString &window, std::function<void(QWidget &)> action);
    /// Names of the windows whose turn never came.
    QStringList waiting() const;
    void forget() { m_steps.clear(); }
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    struct Step {
        QString window;
        std::function<void(QWidget &)> action;
    };
    std::vector<Step> m_steps;
};

/// The program's session over a fresh application folder and empty settings, with everything recorded.
class Desk {
public:
    Desk();

    QString path(const QString &name) const { return m_place.filePath(name); }
    QString setting(const QString &name) const { return session.setting(name); }
    void setSetting(const QString &name, const QString &value);
    /// Logged in on the sample shop, as after a start.
    void openSample();
    void sql(const QString &statement);
    QString value(const QString &statement);

private:
    QTemporaryDir m_place;

public:
    SettingsStore settings;
    Clock clock;
    RecordingMessages messages;
    RecordingDesktop desktop;
    FixedFile files;
    Session session;
    DeskScreens screens;
};

/// Opened on the sample shop.
struct SampleDesk : Desk {
    SampleDesk() { openSample(); }
};

/// The control of that name; the test stops where there is none.
template <typename Control>
Control &control(QWidget &window, const char *name)
{
    auto *found = window.findChild<Control *>(QString::fromLatin1(name));
    if (!found)
        qFatal("no control %s", name);
    return *found;
}
