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
 * \brief The entries of a legend: a swatch and a caption each, labels that are children of the legend's frame.
 *
 * An entry that was not made is skipped by every operation.
 */
class LegendEntries {
public:
    LegendEntries(QFrame *legend, bool withPoints);

    bool withPoints() const { return m_withPoints; }

    /*! \brief Makes the three gamut entries. Beside the chart, captions are written downwards. */
    void addGamuts(const QString &common, const QString &target, const QString &original, Qt::Alignment alignment);
    /*! \brief Makes the three point entries, likewise. */
    void addPoints(const QString &target, const QString &original, const QString &managed, Qt::Alignment alignment);

    /*! \brief Lays the entries out anew, as a column beside the chart or as a row below it. */
    void arrange(Qt::Alignment alignment);

    /*! \brief Ignores a value that is no LegendEntry. */
    void setVisible(LegendEntry entry, bool visible);
    /*! \brief Replaces a caption for good: from now on it is shown as given. */
    void setCaption(LegendEntry entry, const QString &text);
    void setPointCaptions(const QString &target, const QString &original, const QString &managed);

private:
    struct Labels {
        QLabel *swatch = nullptr;
        QLabel *caption = nullptr;
        QString verticalCaption; //!< the caption as made, before it was written downwards; null for any other
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
