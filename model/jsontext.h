// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <optional>

/// The object that the JSON text \a text is; nothing for any other text.
std::optional<QJsonObject> objectOfText(const QString &text);

/// Writes JSON text piece by piece, byte for byte as QJsonDocument prints it. A day of records is written many times
/// faster so than by building the tree of all of it first. Keys are to come in the order in which QJsonObject has them.
class JsonText
{
public:
    explicit JsonText(QJsonDocument::JsonFormat format) : m_compact(format == QJsonDocument::Compact) {}

    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }
    /// Begins a member of an object; its value follows.
    void key(const QByteArray &key);
    /// Begins an element of an array; its value follows.
    void element() { next(); }

    void value(const QString &text);
    void value(const QStringList &texts);
    void value(int number) { m_text += QByteArray::number(number); }
    void value(const QJsonValue &value);

    /// The text; a document ends in a line feed unless it is compact.
    QByteArray document() const { return m_compact ? m_text : m_text + '\n'; }

private:
    void open(char bracket);
    void close(char bracket);
    void next();

    bool m_compact;
    bool m_first = true; ///< nothing stands behind the last opened bracket
    int m_depth = 0;
    QByteArray m_text;
};
