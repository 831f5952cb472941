// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_TARGETSESSION_H
#define GAMUTVIEWER_TARGETSESSION_H

#include "display/assessment.h"
#include "editing/targetedits.h"

#include <QObject>

#include <memory>
#include <optional>
#include <vector>

namespace gamutviewer {

class Document;

/*!
 * \brief Editing of the document's target, the same for diagrams and numbers: which vertex is selected, what is held or
 * locked, and what an edit that cannot be made is answered with.
 */
class TargetSession : public QObject {
    Q_OBJECT

public:
    /*! \param document must outlive the session */
    explicit TargetSession(Document *document, QObject *parent = nullptr);

    Document *document() const { return m_document; }

    /*! \brief The rules of editing as diagrams take them. Holding the white locks it, too. */
    std::shared_ptr<const ceiechart::TargetRules> rules() const { return m_rules; }
    bool holdWhite() const { return m_rules->holdsWhite(); }
    bool lockPrimaries() const { return m_rules->locksPrimaries(); }
    bool snaps() const { return m_rules->snaps(); }
    /*! \brief The vertex that diagrams and numbers mark; nothing for none. */
    std::optional<Vertex> selected() const { return m_selected; }
    /*! \brief Whether the rules let \a vertex be moved. */
    bool isMovable(Vertex vertex) const { return m_rules->isMovable(vertex); }

    void setHoldWhite(bool hold);
    void setLockPrimaries(bool lock);
    void setSnaps(bool snap);
    void select(std::optional<Vertex> vertex);

    /*! \brief What the display is judged by; nothing for no tolerances. They are not part of the document. */
    const std::optional<Tolerances> &tolerances() const { return m_tolerances; }
    void setTolerances(const std::optional<Tolerances> &tolerances);

    /*! \brief What can be said of the document by the tolerances, worked out once for each state. */
    const Assessment &assessment() const;
    /*!
     * \brief The cabinet of the wall that map, close looks and table mark, by its index; nothing for none.
     *
     * It stays the cabinet of that label when the wall changes.
     */
    std::optional<std::size_t> selectedCabinet() const { return m_selectedCabinet; }
    void selectCabinet(std::optional<std::size_t> cabinet);

    /*! \brief Why \a vertex cannot be moved to \a xy, for people; empty when it can. */
    QString whyNot(Vertex vertex, const QPointF &xy) const;

    /*! \brief One step of the history; false, and refused(), when it cannot be made. */
    bool setChromaticity(Vertex vertex, const QPointF &xy, int mergeKey = 0);
    bool setLuminance(Vertex vertex, double luminance, int mergeKey = 0);
    bool setWhiteTemperature(double kelvin, double duv, int mergeKey = 0);
    /*!
     * \brief Puts the luminances of the target in \a unit; see withLuminanceUnit(). The brightest white is that which
     * all known gamuts of the display are known to reach; where it is not known, refused() says so, and numbers stay.
     */
    void setLuminanceUnit(LuminanceUnit unit);
    /*! \brief Puts the gamut called \a gamutName in place of the target. */
    void reset(const QString &gamutName);
    /*!
     * \brief Moves each primary that lies outside of exceededDisplay() to the nearest chromaticity in u′, v′, of as
     * many decimals as are shown, that lies inside. Does nothing when none lies outside.
     */
    void fitToDisplay();
    /*! \brief Whether there is anything for fitToWall() to do, or to say: why a target that fails cannot be fitted. */
    bool offersFitToWall() const;
    /*!
     * \brief Puts the target that is fitted to the wall in place of the target, as one step; tells, as refused(), why
     * that cannot be done.
     */
    void fitToWall();
    /*! \brief Judges the wall without \a cabinets, or with them again, as one step. */
    void setLeftOut(const std::vector<std::size_t> &cabinets, bool isLeftOut);
    /*! \brief Takes the wall out of the document, as one step. */
    void removeWall();
    /*! \brief Selects \a vertex and has it shown closely on the diagram. */
    void pointOut(Vertex vertex);

    /*! \brief Tells, as refused(), that an edit was not made. */
    void refuse(const QString &reason) { Q_EMIT refused(reason); }

    void beginDrag(Vertex vertex);
    /*! \brief Shows \a targets, which a diagram made by rules(), while a drag lasts. */
    void dragTo(const Model::Targets &targets);
    void endDrag();
    void cancelDrag();

Q_SIGNALS:
    void rulesChanged();
    void tolerancesChanged();
    void selectionChanged();
    void selectedCabinetChanged();
    /*! \brief The user wants to see where \a vertex is. */
    void pointedOut(gamutviewer::Vertex vertex);
    /*! \brief The drag was ended from elsewhere than from where it is made. */
    void dragCanceled();
    /*! \brief An edit was not made; \a reason is for people. */
    void refused(const QString &reason);

private:
    void keepSelectedCabinet();
    void setSelectedCabinet(std::optional<std::size_t> cabinet);
    ceiechart::TargetMove edited(Vertex vertex, const QPointF &xy) const;
    LuminanceUnit unitAfterMoving(Vertex vertex) const;
    bool apply(const std::optional<Model::Targets> &targets, LuminanceUnit unit, const QString &text, int mergeKey);

    Document *m_document;
    std::shared_ptr<ceiechart::StandardTargetRules> m_rules = std::make_shared<ceiechart::StandardTargetRules>();
    std::optional<Tolerances> m_tolerances;
    std::optional<Vertex> m_selected = Vertex::Red;
    Vertex m_dragged = Vertex::Red;
    std::optional<std::size_t> m_selectedCabinet;
    QString m_selectedLabel; // of that cabinet
    mutable std::optional<Assessment> m_assessment; // of the present state, once it has been asked for
};

/*! \brief \a gamutName as the interface shows it: that a gamut was changed by hand is said in its language. */
QString shownGamutName(const QString &gamutName);

} // namespace gamutviewer

#endif
