// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_ACCENTBUTTON_H
#define GAMUTVIEWER_ACCENTBUTTON_H

#include <QToolButton>

namespace gamutviewer {

/*! \brief A button that is in the accent colour while it is checked, which styles show but faintly on dark ground. */
class AccentButton : public QToolButton {
    Q_OBJECT

public:
    using QToolButton::QToolButton;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPalette m_accent;
    qint64 m_accentOf = 0; // the key of the palette that it was made of
};

} // namespace gamutviewer

#endif
