// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_TARGETSESSION_H
#define GAMUTVIEWER_TARGETSESSION_H

#include "editing/targetedits.h"

#include <QObject>

namespace gamutviewer {

class Document;

/*!
 * \brief Editing of the document's target, the same for mouse, keyboard and numbers: which vertex is selected, what is
 * held or locked, and what an edit that cannot be made is answered with.
 */
class TargetSession : public QObject {
    Q_OBJECT

public:
    /*! \param document must outlive the session */
    explicit TargetSession(Document *document, QObject *parent = nullptr);

    Document *document() const { return m_document; }

    bool holdWhite() const { return m_holdWhite; }
    bool lockPrimaries() const { return m_lockPrimaries; }
    bool snaps() const { return m_snaps; }
    Vertex selected() const { return m_selected; }
    /*! \brief Whether the rules let \a vertex be moved. */
    bool isMovable(Vertex vertex) const;

    void setHoldWhite(bool hold);
    void setLockPrimaries(bool lock);
    void setSnaps(bool snap);
    void select(Vertex vertex);

    /*! \brief Why \a vertex cannot be moved to \a xy, for people; empty when it can. */
    QString whyNot(Vertex vertex, const QPointF &xy) const;

    /*! \brief One step of the history; false, and refused(), when it cannot be made. */
    bool setChromaticity(Vertex vertex, const QPointF &xy, int mergeKey = 0);
    bool setLuminance(Vertex vertex, double luminance, int mergeKey = 0);
    bool setWhiteTemperature(double kelvin, double duv, int mergeKey = 0);
    /*! \brief Puts the gamut called \a gamutName in place of the target. */
    void reset(const QString &gamutName);

    /*! \brief Tells, as refused(), that an edit was not made. */
    void refuse(const QString &reason) { Q_EMIT refused(reason); }

    void beginDrag();
    /*!
     * \brief Moves \a vertex to \a xy, or to a point within \a reach of it that it snaps to, while a drag lasts.
     *
     * Returns whether the target is there now.
     */
    bool dragTo(Vertex vertex, const QPointF &xy, double reach);
    void endDrag();
    void cancelDrag();

Q_SIGNALS:
    void rulesChanged();
    void selectionChanged();
    /*! \brief An edit was not made; \a reason is for people. */
    void refused(const QString &reason);

private:
    std::optional<Model::Targets> edited(Vertex vertex, const QPointF &xy) const;
    bool apply(const std::optional<Model::Targets> &targets, const QString &text, int mergeKey);

    Document *m_document;
    bool m_holdWhite = false;
    bool m_lockPrimaries = false;
    bool m_snaps = true;
    Vertex m_selected = Vertex::Red;
    Vertex m_dragged = Vertex::Red;
};

/*! \brief The name of \a vertex in the language of the interface. */
QString vertexName(Vertex vertex);
/*! \brief \a gamutName as the interface shows it: that a gamut was changed by hand is said in its language. */
QString shownGamutName(const QString &gamutName);

} // namespace gamutviewer

#endif
