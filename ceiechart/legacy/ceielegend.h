// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_LEGACY_CEIELEGEND_H
#define CEIECHART_LEGACY_CEIELEGEND_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/widgets/chartlegend.h>

/*!
 * \brief The legend of a legacy chart: like NewCEIE::CEIELegend, but the values of its entries have no gap.
 *
 * Its captions have a translation context of their own, CEIELegend.
 *
 * \code
 * chart->getLegend()->setLegendVisible(CEIELegend::ManagedPoint, false);
 * \endcode
 *
 * All labels are children of the legend.
 */
class CEIECHART_EXPORT CEIELegend : public ceiechart::ChartLegend {
    Q_OBJECT
    /*! \brief How the entries are arranged; see setLegendAlignament(). */
    Q_PROPERTY(Qt::Alignment legendAlignament READ legendAlignament WRITE setLegendAlignament)
    /*! \brief The caption of the original gamut. */
    Q_PROPERTY(QString showOriginalText READ showOriginalText WRITE setShowOriginalText)
    /*! \brief The caption of the target gamut. */
    Q_PROPERTY(QString showTargetText READ showTargetText WRITE setShowTargetText)
    /*! \brief The caption of the target point. */
    Q_PROPERTY(QString targetPointText READ targetPointText WRITE setTargetPointText)
    /*! \brief The caption of the original point. */
    Q_PROPERTY(QString originalPointText READ originalPointText WRITE setOriginalPointText)
    /*! \brief The caption of the managed point. */
    Q_PROPERTY(QString managedPointText READ managedPointText WRITE setManagedPointText)
    /*! \brief Whether the entry of the common gamut is shown. */
    Q_PROPERTY(bool commonGamutVisible READ isCommonGamutVisible WRITE setCommonGamutVisible)
    /*! \brief Whether the entry of the target gamut is shown. */
    Q_PROPERTY(bool targetGamutVisible READ isTargetGamutVisible WRITE setTargetGamutVisible)
    /*! \brief Whether the entry of the original gamut is shown. */
    Q_PROPERTY(bool originalGamutVisible READ isOriginalGamutVisible WRITE setOriginalGamutVisible)
    /*! \brief Whether the entry of the target point is shown. */
    Q_PROPERTY(bool targetPointVisible READ isTargetPointVisible WRITE setTargetPointVisible)
    /*! \brief Whether the entry of the original point is shown. */
    Q_PROPERTY(bool originalPointVisible READ isOriginalPointVisible WRITE setOriginalPointVisible)
    /*! \brief Whether the entry of the managed point is shown. */
    Q_PROPERTY(bool managedPointVisible READ isManagedPointVisible WRITE setManagedPointVisible)

public:
    /*! \brief An entry of the legend. */
    enum legendType : int {
        CommonGamut = 0, //!< yellow square
        TargetGamut = 1, //!< black square
        OriginalGamut = 2, //!< white square with a grey outline
        TargetPoint = 3, //!< white plus sign with a black outline
        OriginalPoint = 4, //!< grey disc
        ManagedPoint = 5 //!< black ring
    };

    /*! \copydoc NewCEIE::CEIELegend::CEIELegend(QWidget *) */
    explicit CEIELegend(QWidget *parent);
    /*! \copydoc NewCEIE::CEIELegend::CEIELegend(bool, QWidget *) */
    CEIELegend(bool showPoint, QWidget *parent);
    /*! \copydoc NewCEIE::CEIELegend::CEIELegend(bool, QFlags<Qt::AlignmentFlag>, QWidget *) */
    CEIELegend(bool showPoint, QFlags<Qt::AlignmentFlag> alignment, QWidget *parent);
    ~CEIELegend() override;

    /*!
     * \brief Shows or hides the swatch and the caption of an entry.
     *
     * Values that are not a legendType, and points in a legend without point entries, are ignored.
     */
    void setLegendVisible(legendType type, bool visible);
    /*! \brief Whether an entry is shown; false for values that are not a legendType and for missing points. */
    bool isLegendVisible(legendType type) const;

protected:
    /*! \copydoc NewCEIE::CEIELegend::initUI */
    void initUI(QFlags<Qt::AlignmentFlag> alignment);
    /*! \copydoc NewCEIE::CEIELegend::drawColorLegend */
    void drawColorLegend(QFlags<Qt::AlignmentFlag> alignment);
    /*! \copydoc NewCEIE::CEIELegend::drawQCPoint */
    void drawQCPoint(QFlags<Qt::AlignmentFlag> alignment);
};

#endif // CEIECHART_LEGACY_CEIELEGEND_H
