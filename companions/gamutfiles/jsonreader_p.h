// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_JSONREADER_P_H
#define GAMUTFILES_JSONREADER_P_H

#include <gamutfiles/outcome.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonValue>

#include <initializer_list>
#include <optional>
#include <vector>

namespace gamutfiles {

/*! \brief \a text in double quotes. */
QString quoted(const QString &text);

/*!
 * \brief What the readers of JSON files have in common: typed values of a text that is taken whole or not at all.
 *
 * The first thing that is wrong is kept with its place. What is read after it has no meaning.
 */
class JsonReader {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::JsonReader)

public:
    /*! \brief The first thing that is wrong. */
    const Problem &problem() const { return m_error; }
    /*! \brief What a user must know of a text that was taken: keys that an object has twice, and what warn() said. */
    const QVector<Problem> &warnings() const { return m_warnings; }

protected:
    struct Node {
        QJsonValue value; // undefined when the key is missing
        QString path;
    };
    struct Key {
        QString name;
        bool required;
    };

    /*! \brief The whole of \a utf8; \a tooLarge, with %1 for the maximum in KiB, is said of more than \a maximum bytes.
     */
    std::optional<Node> parse(const QByteArray &utf8, int maximum, const QString &tooLarge);
    void checkVersion(const Node &node, int known);

    bool checkObject(const Node &node, std::initializer_list<Key> keys);
    bool checkType(const Node &node, QJsonValue::Type type);
    QString readString(const Node &node);
    QString readName(const Node &node);
    double readNumber(const Node &node);
    int readWhole(const Node &node);
    std::vector<Node> elements(const Node &node);
    static Node member(const Node &node, const QString &key);

    void fail(const QString &path, const QString &reason);
    void fail(const Node &node, const QString &reason) { fail(node.path, reason); }
    void warn(const Node &node, const QString &text) { m_warnings.append({text, node.path, 0, 0}); }
    bool failed() const { return m_failed; }

private:
    bool m_failed = false;
    Problem m_error;
    QVector<Problem> m_warnings;
};

} // namespace gamutfiles

#endif
