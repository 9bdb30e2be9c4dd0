#pragma once
#include "app/DeskScreens.h"
#include "benches/BenchCatalogue.h"
#include "benches/Fastest.h"
#include "platform/Desktop.h"
#include "platform/FileChooser.h"
#include "platform/Messages.h"
#include "shell/Skin.h"

#include <QApplication>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

/// The desk over a catalogue made for benches, where nothing waits for a person. Needs an application.
class DeskBench : public Messages, public Desktop, public FileChooser {
public:
    explicit DeskBench(int products)
        : settings(m_place.filePath(QStringLiteral("settings"))), session(settings, clock, m_place.path()),
          screens(session)
    {
        BenchCatalogue::make(m_place.path(), products);
        session.messages = this;
        session.desktop = this;
        session.files = this;
        session.screens = &screens;
        session.readSettings();
        if (const Result opened = session.gCnn.open(connectionText(session.gsDbPath)); !opened) {
            std::fprintf(stderr, "%s\n", qPrintable(opened.message()));
            std::exit(1);
        }
    }

    void box(const QString &text, const QString &) override { std::fprintf(stderr, "%s\n", qPrintable(text)); }
    bool question(const QString &, const QString &) override { return false; }
    void alert(const QString &) override {}
    bool open(const QString &) override { return false; }
    QString saveFile(QWidget *, const QString &, const QStringList &) override
    {
        return path(QStringLiteral("out.txt"));
    }
    QString path(const QString &name) const { return m_place.filePath(name); }

private:
    QTemporaryDir m_place;

public:
    SettingsStore settings;
    Clock clock;
    Session session;
    DeskScreens screens;
};
