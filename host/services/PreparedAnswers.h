#pragma once

#include <QQueue>
#include <QString>

#include <optional>

namespace Host {

/// Answers given in advance to the host's message boxes and file dialogs, so that a run needs nobody to click.
class PreparedAnswers
{
public:
    /// The next message box is answered with this button.
    void AddButton(int button) { m_buttons.enqueue(button); }
    /// The next file dialog is answered with this path; empty is Cancel.
    void AddFile(const QString& path) { m_files.enqueue(path); }

    std::optional<int> TakeButton() { return Take(m_buttons); }
    std::optional<QString> TakeFile() { return Take(m_files); }

    /// With nobody to click, a box without a prepared answer is cancelled instead of being shown.
    bool unattended = false;

    bool IsEmpty() const { return m_buttons.isEmpty() && m_files.isEmpty(); }

private:
    template <class T>
    static std::optional<T> Take(QQueue<T>& queue)
    {
        return queue.isEmpty() ? std::nullopt : std::make_optional(queue.dequeue());
    }

    QQueue<int> m_buttons;
    QQueue<QString> m_files;
};

} // namespace Host
