// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef CEIECHART_TESTS_WIDGETS_EXAMPLEPROGRAM_H
#define CEIECHART_TESTS_WIDGETS_EXAMPLEPROGRAM_H

#include <QApplication>
#include <QtTest>

#include <functional>

/*! \brief Runs an example's main() and looks at its windows when its event loop turns for the first time. */
class ExampleProgram {
public:
    using Main = int (*)(int, char **);
    using Inspection = std::function<void()>;

    /*! \return whether the program reached its event loop, was inspected and ended with 0 */
    static bool run(Main main, const Inspection &inspection)
    {
        s_inspection = inspection;
        s_inspected = false;
        qAddPreRoutine(&ExampleProgram::onApplicationMade);
        char name[] = "example";
        char *arguments[] = {name, nullptr};
        return main(1, arguments) == 0 && s_inspected;
    }

    /*! \return the window on show, null unless there is just one */
    static QWidget *window()
    {
        QWidgetList shown;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            if (widget->isVisible()) {
                shown.append(widget);
            }
        }
        return shown.size() == 1 ? shown.constFirst() : nullptr;
    }

private:
    static void onApplicationMade()
    {
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [] {
                s_inspected = true;
                s_inspection();
                QCoreApplication::quit();
            },
            Qt::QueuedConnection);
    }

    static inline Inspection s_inspection;
    static inline bool s_inspected = false;
};

#endif // CEIECHART_TESTS_WIDGETS_EXAMPLEPROGRAM_H
