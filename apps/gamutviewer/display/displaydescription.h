// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_DISPLAYDESCRIPTION_H
#define GAMUTVIEWER_DISPLAYDESCRIPTION_H

#include <gamutmodel/colorgamut.h>

#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>
#include <vector>

namespace gamutviewer {

/*! \brief A point of the CIE 1931 x, y diagram, with or without a name. */
struct NamedPoint {
    QString name;
    QPointF xy;
};

/*!
 * \brief What is known of one display: its gamuts, which part each of them plays, and points to mark.
 *
 * A plain value. docs/display-description.md describes the file that it is read from; numbers are kept as the
 * doubles nearest to what the file says.
 */
struct DisplayDescription {
    QString name;
    QString notes;

    std::vector<Model::ColorGamut> gamuts;
    // The parts are played by name: a gamut of the list above, or else a published one.
    QString original;
    QString declared; //!< what the display says of itself in an EDID or an ICC profile; empty when it says nothing
    QString measured; //!< empty when nothing was measured
    QString target;
    QStringList standards;

    QVector<NamedPoint> colorTemperaturePoints;
    QVector<NamedPoint> measurePoints;
    QVector<NamedPoint> cmyPoints;

    /*!
     * \brief The gamut that \a gamutName stands for: the description's own, or else the published gamut of that
     * name (Model::standardGamuts()); nothing when there is neither.
     */
    std::optional<Model::ColorGamut> gamut(const QString &gamutName) const;

    /*! \brief The gamuts to compare with: the description's standards, then each other published gamut. */
    std::vector<Model::ColorGamut> allStandards() const;
};

} // namespace gamutviewer

#endif
