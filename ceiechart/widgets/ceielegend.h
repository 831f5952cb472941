// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_CEIELEGEND_H
#define CEIECHART_WIDGETS_CEIELEGEND_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/widgets/chartlegend.h>

namespace NewCEIE {

/*!
 * \brief The key to a chart: a swatch and a caption for each gamut layer and, on request, for each kind of point.
 *
 * Entries stand in a row, or in a column when the legend is beside the chart, in the order original gamut, target
 * gamut, common gamut, target point, original point, managed point. The captions are Chinese in the source and
 * pass through tr() once, at construction: install a translator before (see ceiechart::installTranslations()).
 *
 * A chart view makes its legend; a host changes it there:
 *
 * \code
 * chart->getLegend()->setShowOriginalText(QStringLiteral("Factory gamut"));
 * chart->getLegend()->setLegendVisible(NewCEIE::CEIELegend::CommonGamut, false);
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
        NoEntry = 3, //!< no entry has this value
        TargetPoint = 4, //!< white plus sign with a black outline
        OriginalPoint = 5, //!< grey disc
        ManagedPoint = 6 //!< black ring
    };

    /*!
     * \brief A row with the three gamut entries.
     * \param parent owns the legend when not null.
     */
    explicit CEIELegend(QWidget *parent);
    /*! \brief A row with the three gamut entries and, if \a showPoint, the three point entries. */
    CEIELegend(bool showPoint, QWidget *parent);
    /*!
     * \brief As above, a column with captions written downwards, one character a line, if \a alignment is exactly
     *        Qt::AlignLeft or exactly Qt::AlignRight. Any other value, combinations included, gives a row.
     */
    CEIELegend(bool showPoint, QFlags<Qt::AlignmentFlag> alignment, QWidget *parent);
    ~CEIELegend() override;

    /*!
     * \brief Shows or hides swatch and caption of one entry.
     *
     * NoEntry, values that are no legendType, and points on a legend without point entries are ignored.
     */
    void setLegendVisible(legendType type, bool visible);

protected:
    /*! \brief Makes the entries and lays them out: the constructors' last step. */
    void initUI(QFlags<Qt::AlignmentFlag> alignment);
    /*! \brief Makes the three gamut entries. */
    void drawColorLegend(QFlags<Qt::AlignmentFlag> alignment);
    /*! \brief Makes the three point entries. */
    void drawQCPoint(QFlags<Qt::AlignmentFlag> alignment);
};

} // namespace NewCEIE

#endif // CEIECHART_WIDGETS_CEIELEGEND_H
