// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_LENS_H
#define GAMUTVIEWER_LENS_H

#include <QFrame>

class QLabel;

namespace gamutviewer {

class DocumentView;
class LayerSwitches;
class TargetSession;

/*!
 * \brief A close look at the white point of the target, in which one works as in the diagram that it lies on.
 *
 * It has no colours, and always the isotherms and the rings of tolerance. It follows the white when the rings leave it.
 */
class Lens : public QFrame {
    Q_OBJECT

public:
    Lens(TargetSession *session, LayerSwitches *switches, QWidget *parent);

    DocumentView *view() const { return m_view; }
    /*! \brief Shows the document as it is now; \a large is the diagram that the lens is on. */
    void refresh(const DocumentView &large);
    /*! \brief Brings the white into the middle. */
    void showWhite();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    TargetSession *m_session;
    LayerSwitches *m_switches; // of the diagram that the lens lies on
    LayerSwitches *m_ownSwitches;
    bool m_isOnWhite = false; // not before there is one
    QLabel *m_value;
    DocumentView *m_view;
};

} // namespace gamutviewer

#endif
