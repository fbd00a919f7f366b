// SPDX-FileCopyrightText: 2026 The zel-utility-i18n authors
// SPDX-License-Identifier: Apache-2.0

#ifndef ZEL_TESTS_CHILD_H
#define ZEL_TESTS_CHILD_H

#include <csignal>
#include <QtCore/QElapsedTimer>
#include <QtCore/QProcess>
#include <sys/types.h>

/** A child program that reads and writes lines until it ends or is killed. */
class Child
{
public:
    /** No status if the program did not end by itself. */
    struct Result
    {
        int status = -1;
        QString output;
        QString errors;
    };

    static constexpr int timeoutMs = ZEL_TEST_TIMEOUT_MS / 5 * 2;

    Child(const QString& program, const QStringList& arguments,
          const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment())
    {
        m_process.setProcessEnvironment(environment);
        m_process.start(program, arguments);
    }
    ~Child() { stop(); }
    Q_DISABLE_COPY_MOVE(Child)

    void feed(const QByteArray& input)
    {
        m_process.write(input);
        m_process.waitForBytesWritten();
    }

    /** The next line; empty after the timeout. */
    QString line(int time = timeoutMs / 4)
    {
        QElapsedTimer timer;
        timer.start();
        while (!m_process.canReadLine() && timer.elapsed() < time && m_process.state() != QProcess::NotRunning) {
            m_process.waitForReadyRead(static_cast<int>(time - timer.elapsed()));
        }
        return QString::fromUtf8(m_process.readLine()).trimmed();
    }

    void signal(int number) { ::kill(static_cast<pid_t>(m_process.processId()), number); }
    QByteArray errors() { return m_process.readAllStandardError(); }

    /** Closes its input and waits for its end. Returns the remaining output. */
    Result finish()
    {
        m_process.closeWriteChannel();
        Result result;
        if (m_process.waitForFinished(timeoutMs) && m_process.exitStatus() == QProcess::NormalExit) {
            result.status = m_process.exitCode();
        }
        result.output = QString::fromUtf8(m_process.readAllStandardOutput());
        result.errors = QString::fromUtf8(errors());
        return result;
    }

    void stop()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    QProcess& process() { return m_process; }

private:
    QProcess m_process;
};

#endif
