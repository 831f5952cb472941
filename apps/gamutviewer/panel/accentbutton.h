// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_ACCENTBUTTON_H
#define GAMUTVIEWER_ACCENTBUTTON_H

#include <QToolButton>

namespace gamutviewer {

/*!
 * \brief A button with a text that is in the accent colour while it is checked, which styles show but faintly on dark
 *        ground.
 */
class AccentButton : public QToolButton {
    Q_OBJECT

public:
    using QToolButton::QToolButton;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace gamutviewer

#endif
