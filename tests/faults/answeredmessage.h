// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_FAULTS_ANSWEREDMESSAGE_H
#define CEIECHART_TESTS_FAULTS_ANSWEREDMESSAGE_H

#include "failingcalls.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QTimer>

/*! \brief Closes the message of what went wrong, and keeps its text; answers a question by Cancel. */
class AnsweredMessage {
public:
    AnsweredMessage()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                failCall(nullptr, 0, nullptr, 0);
                m_text = box->text();
                box->accept();
            } else if (auto *question = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
                m_hasAsked = true;
                question->reject();
            }
        });
        m_timer.start(0);
    }
    bool saysWhy() const
    {
        return !m_text.isEmpty() && !m_text.contains(QLatin1Char('\n'))
            && !m_text.contains(QLatin1String("Unknown error"));
    }

    //! Whether what was asked for went on up to a question.
    bool hasAsked() const { return m_hasAsked; }

private:
    QTimer m_timer;
    QString m_text;
    bool m_hasAsked = false;
};

#endif // CEIECHART_TESTS_FAULTS_ANSWEREDMESSAGE_H
