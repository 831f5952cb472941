// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTFILES_LATESTMEASUREMENTS_H
#define GAMUTFILES_LATESTMEASUREMENTS_H

#include <gamutfiles/displaywall.h>
#include <gamutfiles/gamutfiles_export.h>
#include <gamutfiles/measurementlist.h>
#include <gamutfiles/measurementstream.h>

#include <QVector>

#include <memory>
#include <optional>

namespace gamutfiles {

/*! \brief As many colours are kept as points. */
constexpr int mostLatestPoints = 100;
/*! \brief The colours of a gamut are kept of as many cabinets. */
constexpr int mostLatestCabinets = 10000;

/*!
 * \brief What a measurement that goes on has come to: of every colour the measurement that came last.
 *
 * Colours are the same if they play the same part, or have the same name, in the same cabinet; without a name every
 * measurement is a colour of its own. Red, green, blue, white and black are kept of each cabinet, and the last
 * mostLatestPoints colours of any kind. Of more cabinets than mostLatestCabinets those are forgotten that were
 * measured the longest ago.
 */
class GAMUTFILES_EXPORT LatestMeasurements {
public:
    /*! \param whiteIsSum whether a missing white is the sum of red, green and blue */
    explicit LatestMeasurements(bool whiteIsSum = false);
    /*! \brief What has been added to \a other; what is added to one of them then is not added to the other. */
    LatestMeasurements(const LatestMeasurements &other);
    ~LatestMeasurements();

    /*! \brief The unit of what is added from now on. Measurements in another unit are forgotten. */
    void setUnit(LuminanceUnit unit);
    /*!
     * \brief Adds \a measurement, the last for now.
     *
     * One without a chromaticity takes the place of the former one, too: what that was is out of date. One that could
     * not be read takes no one's place; where there is none, the colour is measured but not known.
     */
    void add(const Measurement &measurement);
    /*!
     * \brief Adds what \a line says, of which no more will come.
     *
     * The colour that it measures is not known then, unless there is a former one, nor is any that it may be where the
     * name is not whole. Where the cabinet is not whole, that holds for all cabinets that begin like that.
     */
    void addUnfinished(const UnfinishedMeasurement &line);
    /*! \brief Forgets everything but the unit. */
    void clear();

    /*!
     * \brief What there is to show: the gamut of one cabinet, and the last colours that do not belong to it as points,
     * the oldest first.
     *
     * The cabinet is the one that was measured last among those that have a gamut, or else among all. The measurements
     * name no cabinet, as they are shown together; the name of a point begins with that of its cabinet.
     */
    MeasurementList list() const;
    /*!
     * \brief How people call the cabinet whose gamut list() has: by its name, with row and column only where another
     * has the same name. Empty without a gamut, and where no cabinet is named.
     */
    QString listedCabinet() const;
    /*!
     * \brief The cabinets that are kept as a wall, as wallFromMeasurements() makes it of a whole list: in the order in
     * which they came first. Nothing unless two cabinets have been named and one of them has red, green and blue.
     *
     * It is worked out when it is asked for after a colour of a cabinet has changed. The reference is valid until
     * anything is added or forgotten.
     */
    const std::optional<DisplayWall> &wall() const;
    /*!
     * \brief The same while the measurement goes on: the cabinet that was measured last is incomplete while it lacks a
     * white or a black that another one has, as that may still come. So is the cabinet of \a line, which is being
     * written, while it lacks what that may be.
     */
    std::optional<DisplayWall> wallInProgress(const std::optional<UnfinishedMeasurement> &line = std::nullopt) const;
    /*!
     * \brief The last colours, as list() has them, without those of the cabinets that \a shown has complete, which is
     * wall() or wallInProgress().
     */
    MeasurementList listBeside(const DisplayWall &shown) const;
    /*!
     * \brief Red, green, blue, white and black of each cabinet, as far as they have been measured, in the order in
     * which the cabinets were measured last; empty when no measurement names a cabinet.
     */
    QVector<CabinetMeasurements> cabinets() const;

    /*! \brief Whether any measurement that is kept names a cabinet. */
    bool namesCabinets() const;
    int pointCount() const; //!< colours that are kept as points
    int cabinetCount() const; //!< cabinets that are kept; without names of cabinets there is one

private:
    LatestMeasurements &operator=(const LatestMeasurements &) = delete;
    class GAMUTFILES_NO_EXPORT Private;
    std::unique_ptr<Private> d;
};

} // namespace gamutfiles

#endif // GAMUTFILES_LATESTMEASUREMENTS_H
