// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_DESCRIPTIONREADER_P_H
#define GAMUTFILES_DESCRIPTIONREADER_P_H

#include "descriptionformat_p.h"
#include "gamutfromprimaries_p.h"
#include "jsonreader_p.h"
#include <gamutfiles/descriptionfile.h>

#include <QCoreApplication>
#include <QHash>
#include <QSet>
#include <optional>

namespace gamutfiles {

/*!
 * \brief Reads display descriptions and says of the first thing that is wrong with one where it stands.
 *
 * A description is taken whole or not at all.
 */
class DescriptionReader : public JsonReader {
    Q_DECLARE_TR_FUNCTIONS(gamutfiles::DescriptionReader)

public:
    /*! \brief The description in \a utf8; nothing, and problem() set, when there is none. */
    std::optional<DisplayDescription> read(const QByteArray &utf8);

private:
    void readDescription(const Node &node);
    static QSet<QString> shownNames(const Node &node);
    DisplayGamut readGamut(const Node &node, PrimariesOf kind);
    void warnOfGamut(const Node &node, const Model::Targets &gamut, PrimariesOf kind);
    void warnOfTheRest(const Node &gamuts);
    LuminanceUnit readUnit(const Node &node);
    Model::Target readTarget(const Node &node, PrimariesOf kind, double rounding = 0.0);
    QVector<NamedPoint> readPoints(const Node &node);
    QString readGamutReference(const Node &node);
    QString readDisplayReference(const Node &node);
    QStringList readStandards(const Node &node);
    //! \a rounding is how far the sum of x and y of a display's colour may exceed 1.
    QPointF readChromaticity(const Node &node, PrimariesOf kind = PrimariesOf::Display, double rounding = 0.0);

    DisplayWall readWall(const Node &node);
    WallCabinet readCabinet(const Node &node);
    IncompleteCabinet readIncomplete(const Node &node);
    std::optional<Model::GridPosition> readPosition(const Node &node);
    Model::Target readMeasured(const Node &node);
    //! Reads the member "black" of \a parent: with a chromaticity as \a black, and its \a luminance alone without.
    void readBlack(const Node &parent, std::optional<Model::Target> &black, std::optional<double> &luminance);

    DisplayDescription m_description;
    QHash<QString, int> m_places; //!< DisplayDescription::gamutPlaces() of what has been read
    int m_otherWarnings = 0; //!< of gamuts that the display does not show
};

} // namespace gamutfiles

#endif
