// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_REFERENCE_QUIETMESSAGES_H
#define CEIECHART_TESTS_REFERENCE_QUIETMESSAGES_H

#include <QtGlobal>

namespace reference {

/*!
 * \brief Suppresses the warnings of Qt during its lifetime. Painting on a null picture logs a warning at every call.
 */
class QuietMessages {
public:
    QuietMessages()
        : m_previous(qInstallMessageHandler(&QuietMessages::handle))
    {
        s_previous = m_previous;
    }
    ~QuietMessages()
    {
        qInstallMessageHandler(m_previous);
        s_previous = nullptr;
    }
    Q_DISABLE_COPY(QuietMessages)

private:
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &message)
    {
        if (type == QtFatalMsg && s_previous) {
            s_previous(type, context, message);
        }
    }

    static inline QtMessageHandler s_previous = nullptr;
    QtMessageHandler m_previous;
};

} // namespace reference

#endif // CEIECHART_TESTS_REFERENCE_QUIETMESSAGES_H
