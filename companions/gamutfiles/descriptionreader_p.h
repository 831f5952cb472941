// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_DESCRIPTIONREADER_P_H
#define GAMUTFILES_DESCRIPTIONREADER_P_H

#include "gamutfromprimaries_p.h"
#include <gamutfiles/descriptionfile.h>

#include <QCoreApplication>
#include <QJsonValue>
#include <QSet>

#include <initializer_list>
#include <optional>

namespace gamutfiles {

/*! \brief The key of a gamut that states the unit of its luminances. */
QString luminanceUnitKey();
/*! \brief How a description writes \a unit; empty when it is not known. */
QString luminanceUnitName(LuminanceUnit unit);

/*!
 * \brief Reads display descriptions and says of the first thing that is wrong with one where it stands.
 *
 * A description is taken whole or not at all.
 */
class DescriptionReader {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::DescriptionReader)

public:
    /*! \brief The description in \a utf8; nothing, and error() set, when there is none. */
    std::optional<DisplayDescription> read(const QByteArray &utf8);

    const Problem &error() const { return m_error; }

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
    static QSet<QString> colorSpaces(const Node &node);
    DisplayGamut readGamut(const Node &node, PrimariesOf kind);
    LuminanceUnit readUnit(const Node &node);
    Model::Target readTarget(const Node &node, PrimariesOf kind);
    QVector<NamedPoint> readPoints(const Node &node);
    QString readGamutReference(const Node &node);
    QString readDisplayReference(const Node &node);
    QStringList readStandards(const Node &node);
    QPointF readChromaticity(const Node &node, PrimariesOf kind = PrimariesOf::Display);

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
    Problem m_error;
};

} // namespace gamutfiles

#endif
