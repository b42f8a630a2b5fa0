#include "KyPalCommandLine.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include "KyRefHost.h"
#include "kydiqt/KyDiQtValue.h"

namespace {

// The lines the log keeps; older ones scroll away.
constexpr int kLogLines = 2000;

}  // namespace

KyPalCommandLine::KyPalCommandLine(KyRefHost& host, QWidget* parent)
    : QWidget(parent), m_host(host), m_log(new QPlainTextEdit(this)), m_input(new QLineEdit(this)) {
    m_log->setObjectName("commandLog");
    m_log->setReadOnly(true);
    m_log->setMaximumBlockCount(kLogLines);
    m_log->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_log->setFont(QFont("Monospace"));
    m_input->setObjectName("commandInput");
    m_input->setPlaceholderText(tr("Type a command"));

    auto* prompt = new QHBoxLayout;
    prompt->addWidget(new QLabel(tr("Command:"), this));
    prompt->addWidget(m_input, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_log, 1);
    layout->addLayout(prompt);

    // The host may be one without an editor: nothing can be typed then.
    m_input->setEnabled(host.KyRefHost::editor() != nullptr);
    connect(m_input, &QLineEdit::returnPressed, this, [this] {
        send(m_input->text());
        m_input->clear();
    });
    auto* cancel = new QShortcut(QKeySequence(Qt::Key_Escape), m_input);
    cancel->setContext(Qt::WidgetShortcut);
    connect(cancel, &QShortcut::activated, this, [this] { queue(QStringLiteral("\x1b")); });
}

void KyPalCommandLine::send(const QString& text) {
    queue(text + QLatin1Char('\n'));
}

void KyPalCommandLine::queue(const QString& text) {
    if (KyRefEditor* editor = m_host.KyRefHost::editor()) {
        editor->interpreter().queue(KyDiQtValue::toKyString(text).kwszPtr());
    }
}

void KyPalCommandLine::showNewLines() {
    const std::vector<KyString> lines = m_host.commandLine().takeLines();
    for (const KyString& line : lines) {
        m_log->appendPlainText(KyDiQtValue::fromKyString(line));
    }
    if (!lines.empty()) {
        m_log->verticalScrollBar()->setValue(m_log->verticalScrollBar()->maximum());
    }
}
