// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef GAMUTVIEWER_STEPBOX_H
#define GAMUTVIEWER_STEPBOX_H

#include <QDoubleSpinBox>

#include <optional>

namespace gamutviewer {

/*!
 * \brief A number to type or to step: the arrow keys take a tenth of the step while Shift is held, and ten steps with
 * Ctrl.
 *
 * Any number may be typed, with an exponent too; what is beyond the range or the decimals is brought there when the
 * number is complete. Undo and redo are the window's, and those of the text only while one is being typed.
 */
class StepBox : public QDoubleSpinBox {
    Q_OBJECT

public:
    explicit StepBox(QWidget *parent = nullptr);

    /*!
     * \brief Lets the box show that there is no value: the lowest of the range then stands for none.
     *
     * \a firstStep is the value that the first step leads to from there.
     */
    void setNoValue(const QString &text, double firstStep);
    bool hasValue() const { return !m_firstStep || value() > minimum(); }
    /*! \brief Shows \a number, or that there is none, without a signal. */
    void showNumber(const std::optional<double> &number);

    /*! \brief Whether the text is not that of the number: it is one that has not become the number yet. */
    bool isBeingTyped() const;

    /*! \brief Marks the number as one that is shown but does not hold, for the reason \a why; takes it off if empty. */
    void setDoubt(const QString &why);
    bool isDoubted() const { return m_doubted; }

    void stepBy(int steps) override;
    QValidator::State validate(QString &text, int &position) const override;
    double valueFromText(const QString &text) const override;
    QString textFromValue(double value) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    StepEnabled stepEnabled() const override;
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QString digits(const QString &text) const;

    std::optional<double> m_firstStep;
    bool m_doubted = false;
};

} // namespace gamutviewer

#endif
