// SPDX-License-Identifier: MIT
#ifndef CEIECHART_WIDGETS_LEGENDENTRIES_P_H
#define CEIECHART_WIDGETS_LEGENDENTRIES_P_H

#include <QString>

#include <array>

class QFrame;
class QLabel;

namespace ceiechart {

/*! \brief The entries of a legend. */
enum class LegendEntry { CommonGamut, TargetGamut, OriginalGamut, TargetPoint, OriginalPoint, ManagedPoint };

/*!
 * \brief The entries of a legend: a swatch and a caption each. Both are labels and children of the legend.
 *
 * All functions ignore entries that have not been created.
 */
class LegendEntries {
public:
    LegendEntries(QFrame *legend, bool withPoints);

    bool withPoints() const { return m_withPoints; }

    /*! \brief Creates the three gamut entries. Beside the chart, captions are written downwards. */
    void addGamuts(const QString &common, const QString &target, const QString &original, Qt::Alignment alignment);
    /*! \brief Creates the three point entries. Beside the chart, captions are written downwards. */
    void addPoints(const QString &target, const QString &original, const QString &managed, Qt::Alignment alignment);

    /*! \brief Arranges the entries in a new layout: a column beside the chart or a row below it. */
    void arrange(Qt::Alignment alignment);

    /*! \brief Shows or hides an entry. A value that is not a LegendEntry is ignored. */
    void setVisible(LegendEntry entry, bool visible);
    /*! \brief Replaces a caption. It is never written downwards from then on. */
    void setCaption(LegendEntry entry, const QString &text);
    void setPointCaptions(const QString &target, const QString &original, const QString &managed);

private:
    struct Labels {
        QLabel *swatch = nullptr;
        QLabel *caption = nullptr;
        QString verticalCaption; //!< the original text of a caption that is written downwards; null for all others
    };

    void add(LegendEntry entry, const QString &caption, Qt::Alignment alignment);
    Labels &labels(LegendEntry entry);
    void styleCaption(const Labels &labels, bool besideChart) const;

    QFrame *m_legend;
    bool m_withPoints;
    std::array<Labels, 6> m_labels;
    bool m_besideChart = false;
};

} // namespace ceiechart

#endif // CEIECHART_WIDGETS_LEGENDENTRIES_P_H
