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

protected:
    /*! \copydoc NewCEIE::CEIELegend::initUI */
    void initUI(QFlags<Qt::AlignmentFlag> alignment);
    /*! \copydoc NewCEIE::CEIELegend::drawColorLegend */
    void drawColorLegend(QFlags<Qt::AlignmentFlag> alignment);
    /*! \copydoc NewCEIE::CEIELegend::drawQCPoint */
    void drawQCPoint(QFlags<Qt::AlignmentFlag> alignment);
};

#endif // CEIECHART_LEGACY_CEIELEGEND_H
