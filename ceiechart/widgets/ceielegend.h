// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_CEIELEGEND_H
#define CEIECHART_WIDGETS_CEIELEGEND_H

#include <ceiechart/ceiechart_export.h>
#include <ceiechart/widgets/legendentries.h>

#include <QFrame>

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
class CEIECHART_EXPORT CEIELegend : public QFrame {
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
     * \brief Lays the entries out in a column for exactly Qt::AlignLeft or exactly Qt::AlignRight, else in a row.
     *
     * May be called again at any time. In a column captions are centred and wrap between words. Captions that were
     * made downwards, because the legend was constructed for a column, are written on one line while it is a row;
     * captions made on one line, and those that the host has set, are never rewritten. So a legend that is moved
     * beside the chart after its construction keeps captions that read across, for scripts that do not run
     * downwards. Hidden entries stay hidden.
     */
    void setLegendAlignament(QFlags<Qt::AlignmentFlag> alignment) { m_entries.arrange(alignment); }

    /*!
     * \brief Shows or hides swatch and caption of one entry.
     *
     * NoEntry, values that are no legendType, and points on a legend without point entries are ignored.
     */
    void setLegendVisible(legendType type, bool visible);

    /*! \brief Replaces the caption of the original gamut by \a text, as given: it is not written downwards. */
    void setShowOriginalText(const QString &text) { m_entries.setCaption(ceiechart::LegendEntry::OriginalGamut, text); }
    /*! \brief Replaces the caption of the target gamut by \a text, as given. */
    void setShowTargetText(const QString &text) { m_entries.setCaption(ceiechart::LegendEntry::TargetGamut, text); }
    /*! \brief Replaces the point captions, as given. Ignored on a legend without point entries. */
    void setshowPointText(const QString &target, const QString &original, const QString &managed)
    {
        m_entries.setPointCaptions(target, original, managed);
    }

protected:
    /*! \brief Makes the entries and lays them out: the constructors' last step. */
    void initUI(QFlags<Qt::AlignmentFlag> alignment);
    /*! \brief Makes the three gamut entries. */
    void drawColorLegend(QFlags<Qt::AlignmentFlag> alignment);
    /*! \brief Makes the three point entries. */
    void drawQCPoint(QFlags<Qt::AlignmentFlag> alignment);

private:
    ceiechart::LegendEntries m_entries;
};

} // namespace NewCEIE

#endif // CEIECHART_WIDGETS_CEIELEGEND_H
