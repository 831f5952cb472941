// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_DESCRIPTIONREADER_H
#define GAMUTVIEWER_DESCRIPTIONREADER_H

#include "display/displaydescription.h"
#include "display/json.h"

#include <QCoreApplication>
#include <QJsonValue>

#include <initializer_list>
#include <optional>

namespace gamutviewer {

/*! \brief What is wrong with a display description, and where. */
struct DescriptionError {
    QString reason;
    std::optional<TextPosition> position; //!< of what is not JSON
    QString path; //!< of the value in question, such as gamuts[1].red.x; empty for the whole text

    /*! \brief One line: file, place and reason. Line ends and control characters in them are escaped. */
    QString message(const QString &fileName) const;
};

/*!
 * \brief Reads display descriptions and says of the first thing that is wrong with one where it stands.
 *
 * A description is taken whole or not at all.
 */
class DescriptionReader {
    Q_DECLARE_TR_FUNCTIONS(gamutviewer::DescriptionReader)

public:
    /*! \brief Longer texts are refused: a description is a few kilobytes, unless it has many points. */
    static constexpr int maximumBytes = 16 * 1024 * 1024;

    /*! \brief The description in the file \a fileName; nothing, and error() set, when there is none. */
    std::optional<DisplayDescription> readFile(const QString &fileName);
    /*! \brief The description in \a utf8. */
    std::optional<DisplayDescription> read(const QByteArray &utf8);

    const DescriptionError &error() const { return m_error; }

private:
    struct Node {
        QJsonValue value; // undefined when the key is missing
        QString path;
    };
    struct Key {
        QString name;
        bool required;
    };

    void readDescription(const Node &node);
    Model::ColorGamut readGamut(const Node &node);
    Model::Target readTarget(const Node &node);
    QVector<NamedPoint> readPoints(const Node &node);
    QString readGamutReference(const Node &node);
    QStringList readStandards(const Node &node);
    QPointF readChromaticity(const Node &node);

    bool checkObject(const Node &node, std::initializer_list<Key> keys);
    bool checkType(const Node &node, QJsonValue::Type type);
    QString readString(const Node &node);
    QString readName(const Node &node);
    double readNumber(const Node &node);
    std::vector<Node> elements(const Node &node);
    static Node member(const Node &node, const QString &key);

    void fail(const QString &path, const QString &reason);
    void fail(const Node &node, const QString &reason) { fail(node.path, reason); }

    DisplayDescription m_description;
    bool m_failed = false;
    DescriptionError m_error;
};

} // namespace gamutviewer

#endif
