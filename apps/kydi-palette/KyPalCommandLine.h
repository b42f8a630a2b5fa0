// KyPalCommandLine: the host's command line. What the user types is queued to
// the host's command interpreter as typed, with the new line that Enter
// stands for (Escape queues the cancel character); the host runs it when it
// is idle. Above the line, the host's command line as a log: its prompts,
// echoes and errors as they come.
#pragma once

#include <QWidget>

class KyRefHost;
class QLineEdit;
class QPlainTextEdit;

class KyPalCommandLine : public QWidget {
    Q_OBJECT
public:
    explicit KyPalCommandLine(KyRefHost& host, QWidget* parent = nullptr);

    // Queues `text` and a new line to the host, as if typed.
    void send(const QString& text);

public Q_SLOTS:
    // Appends what the host wrote on its command line since the last call.
    void showNewLines();

private:
    void queue(const QString& text);

    KyRefHost& m_host;
    QPlainTextEdit* m_log;
    QLineEdit* m_input;
};
