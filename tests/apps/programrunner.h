// SPDX-FileCopyrightText: 2026 the ceiechart authors
// SPDX-License-Identifier: MIT
#ifndef TESTS_APPS_PROGRAMRUNNER_H
#define TESTS_APPS_PROGRAMRUNNER_H

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/*! Runs the program as a script would: with nothing in its environment, no display above all. */
class ProgramRunner {
protected:
    struct Result {
        int exitCode = -1;
        QByteArray output;
        QByteArray error;
    };

    Result run(const QStringList &arguments, const QProcessEnvironment &environment, const QByteArray &input = {},
        const QString &program = QStringLiteral(GAMUTVIEWER_PROGRAM))
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_folder->path());
        process.start(program, arguments);
        process.write(input);
        process.closeWriteChannel();
        if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit) {
            return {};
        }
        return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
    }
    Result run(const QStringList &arguments, const QByteArray &input = {}) { return run(arguments, bare(), input); }

    static QProcessEnvironment bare()
    {
        QProcessEnvironment environment;
        // An instrumented program needs to be told about its instruments.
        const QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
        for (const char *name : {"ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS"}) {
            if (own.contains(QLatin1String(name))) {
                environment.insert(QLatin1String(name), own.value(QLatin1String(name)));
            }
        }
        // They must not write where the program's own lines are expected.
        const QString leaks = environment.value(QStringLiteral("LSAN_OPTIONS"));
        environment.insert(QStringLiteral("LSAN_OPTIONS"), leaks + QStringLiteral(":print_suppressions=0"));
        // QProcess takes an empty environment for "as here".
        environment.insert(QStringLiteral("GAMUTVIEWERTEST"), QStringLiteral("1"));
        return environment;
    }

    /*! Leaves the folder in which the program runs, for an empty one. */
    void renewFolder()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        if (!m_folder->isValid()) {
            qFatal("there is no folder to run in");
        }
    }
    QString path(const char *name) const { return m_folder->filePath(QString::fromUtf8(name)); }
    QString write(const char *name, const QByteArray &bytes)
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
            qFatal("cannot write %s", name);
        }
        return file.fileName();
    }
    QString folder() const { return m_folder->path(); }
    QStringList entries() const { return QDir(m_folder->path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

private:
    std::unique_ptr<QTemporaryDir> m_folder;
};

inline const QByteArray minimal = R"({"version": 1, "gamuts": [], "original": "Rec.2020", "target": "Rec.709"})";

inline bool isOneLine(const QByteArray &text)
{
    return text.startsWith("gamutviewer: ") && text.endsWith('\n') && text.count('\n') == 1;
}

#endif
