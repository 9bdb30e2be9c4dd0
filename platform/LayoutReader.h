#pragma once
#include "platform/PrintLayout.h"

#include <QJsonObject>

/// Takes a layout out of its JSON text. The first thing that is wrong ends up in `result()`, with its place.
class LayoutReader {
public:
    PrintLayout read(const QByteArray &json);
    const Result &result() const { return m_result; }

private:
    void readPage(const QJsonObject &object);
    void readCells(const QJsonObject &object);
    QList<PrintObject> readObjects(const QJsonArray &list, const QString &place, const QRectF &room);
    PrintObject readObject(const QJsonObject &object, const QString &place);
    void readText(const QJsonObject &object, const QString &place, PrintObject &taken);
    void readLook(const QJsonObject &object, const QString &place, PrintObject &taken);
    void checkKeys(const QJsonObject &object, const QString &place, const QStringList &known);
    void checkFields(const QString &text, const QString &place);
    double number(const QJsonObject &object, const QString &place, const QString &key, double absent, double least);
    QString text(const QJsonObject &object, const QString &place, const QString &key, const QString &absent = {});
    bool flag(const QJsonObject &object, const QString &place, const QString &key, bool absent);
    QJsonObject part(const QJsonObject &object, const QString &key);
    QRectF rectangle(const QJsonValue &value, const QString &place);
    unsigned colour(const QString &text, const QString &place);
    void fail(int number, const QString &place, const QString &text);

    PrintLayout m_layout;
    Result m_result;
};
