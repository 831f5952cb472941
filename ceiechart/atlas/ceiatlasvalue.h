// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_ATLAS_CEIATLASVALUE_H
#define CEIECHART_ATLAS_CEIATLASVALUE_H

#include <ceiechart/ceiechart_export.h>

#include <QList>
#include <QObject>
#include <QPointF>

#include <vector>

/*!
 * \brief The fixed chromaticity data of the diagrams.
 *
 * The constructor fills the tables once; users read the members directly. All chromaticities are CIE 1931 x, y
 * (unitless). Each renderer holds an atlas of its own by value:
 *
 * \code
 * CEIAtlasValue atlas;
 * const CEIAtlasValue::CEIAtlasCoordinate &row = atlas.atlasCoordinates.at(555 - 360); // 555 nm
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
        int waveLength = 0; //!< wavelength in nanometres
        double X = 0.0; //!< x̄(λ), unitless
        double Y = 0.0; //!< ȳ(λ), unitless
        double Z = 0.0; //!< z̄(λ), unitless
    };

    /*! \brief Chromaticity of a black body, rounded to three decimals. */
    class CEITemperatureCoordinate {
    public:
        int colorTemperature = 0; //!< temperature in kelvin
        double x = 0.0; //!< CIE 1931 x
        double y = 0.0; //!< CIE 1931 y
    };

    /*! \brief Creates an atlas without a parent and fills all tables. */
    CEIAtlasValue();
    /*! \brief Creates an atlas and fills all tables. \a parent owns the object if it is not null. */
    explicit CEIAtlasValue(QObject *parent);
    ~CEIAtlasValue() override;

    /*! \brief The primaries that colour the horseshoe; they are specific to the diagram. The white is D65. */
    TColorSystem colorSystem;

    /*! \brief The Planckian locus: 54 rows from 1000 K to 15000 K in ascending order, unevenly spaced. */
    QList<CEITemperatureCoordinate> temperatureCoordinates;

    /*!
     * \brief The colour-matching functions of the CIE 1931 2° standard observer (ISO/CIE 11664-1:2019).
     *
     * 471 rows from 360 nm to 830 nm in steps of 1 nm, in ascending order.
     */
    QList<CEIAtlasCoordinate> atlasCoordinates;

    /*!
     * \brief The spectral locus from its violet end to its red end: 62 points, unevenly spaced.
     *
     * The polyline is open; it does not contain the line of purples.
     */
    std::vector<QPointF> spectrumLocus;

private:
    /*! \brief Appends the rows to the lists, which must be empty. Called by the constructors only. */
    void initData();
};

#endif // CEIECHART_ATLAS_CEIATLASVALUE_H
