// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_VERDICT_H
#define GAMUTVIEWER_VERDICT_H

#include <QFrame>

class QLabel;
class QPushButton;

namespace gamutviewer {

class TargetSession;

/*! \brief Whether the display can show the target: in words, with the grounds, and with the way out. */
class Verdict : public QFrame {
    Q_OBJECT

public:
    explicit Verdict(TargetSession *session, QWidget *parent = nullptr);

    /*! \brief Verdict and grounds, on a line each. */
    QString text() const;
    QPushButton *fitButton() const { return m_fit; }

private:
    void refresh();

    TargetSession *m_session;
    QLabel *m_verdict;
    QLabel *m_grounds;
    QPushButton *m_fit;
};

} // namespace gamutviewer

#endif
