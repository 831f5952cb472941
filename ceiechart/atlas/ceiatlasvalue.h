// SPDX-License-Identifier: MIT
#ifndef CEIECHART_ATLAS_CEIATLASVALUE_H
#define CEIECHART_ATLAS_CEIATLASVALUE_H

#include <ceiechart/ceiechart_export.h>

#include <QList>
#include <QObject>
#include <QPointF>

#include <vector>

/*!
 * \brief The fixed chromaticity data of the diagram.
 *
 * Filled once by the constructor; readers use the members directly. All chromaticities are CIE 1931 x, y.
 * A renderer owns one atlas by value:
 *
 * \code
 * CEIAtlasValue atlas;
 * const CEIAtlasValue::CEIAtlasCoordinate &row = atlas.atlasCoordinates.at(555 - 360);
 * const double x = row.X / (row.X + row.Y + row.Z);
 * \endcode
 */
class CEIECHART_EXPORT CEIAtlasValue : public QObject {
    Q_OBJECT

public:
    /*! \brief Chromaticities (x, y) of three primaries and a white point, in single precision. */
    struct TColorSystem {
        float xRed = 0.0F; //!< x of the red primary
        float yRed = 0.0F; //!< y of the red primary
        float xGreen = 0.0F; //!< x of the green primary
        float yGreen = 0.0F; //!< y of the green primary
        float xBlue = 0.0F; //!< x of the blue primary
        float yBlue = 0.0F; //!< y of the blue primary
        float xWhite = 0.0F; //!< x of the white point
        float yWhite = 0.0F; //!< y of the white point
    };

    /*!
     * \brief Tristimulus values of a monochromatic stimulus of unit power.
     *
     * Its chromaticity is x = X / (X + Y + Z), y = Y / (X + Y + Z).
     */
    class CEIAtlasCoordinate {
    public:
        int waveLength = 0; //!< nanometres
        double X = 0.0; //!< x̄(λ)
        double Y = 0.0; //!< ȳ(λ)
        double Z = 0.0; //!< z̄(λ)
    };

    /*! \brief Chromaticity of a black body, to three decimals. */
    class CEITemperatureCoordinate {
    public:
        int colorTemperature = 0; //!< kelvin
        double x = 0.0; //!< CIE 1931 x
        double y = 0.0; //!< CIE 1931 y
    };

    /*! \brief Fills all tables. */
    CEIAtlasValue();
    /*! \brief The same with \a parent, which owns the object when it is not null. */
    explicit CEIAtlasValue(QObject *parent);
    ~CEIAtlasValue() override;

    /*! \brief The colour system that colours the horseshoe: the diagram's own primaries, white D65. */
    TColorSystem colorSystem;

    /*! \brief The Planckian locus, 54 rows from 1000 K to 15000 K, ascending, irregular steps. */
    QList<CEITemperatureCoordinate> temperatureCoordinates;

    /*!
     * \brief The colour-matching functions of the CIE 1931 2 degree standard observer (ISO/CIE 11664-1:2019), 471
     *        rows.
     *
     * 360 nm to 830 nm in steps of 1 nm, ascending.
     */
    QList<CEIAtlasCoordinate> atlasCoordinates;

    /*!
     * \brief The spectral locus from its violet to its red end, 62 points, not evenly spaced.
     *
     * The polyline is open: the line of purples is not part of it.
     */
    std::vector<QPointF> spectrumLocus;

private:
    // Appends to the lists: for the constructor only.
    void initData();
};

#endif // CEIECHART_ATLAS_CEIATLASVALUE_H
