#pragma once

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <vector>

namespace Torture {

class Stage;

/// Something that a user or the host does.
struct Action
{
    QByteArray name;
    void (*prepare)(Stage&); ///< What is there before; null for the selected hero with the dialog closed.
    std::function<void(Stage&)> act;
    const char* writes;        ///< The operations that change something and that it makes, each at least once.
    const char* mayWrite = ""; ///< Those that it may make besides.
    /// Qt uses the pressed widget, or the hidden one, once more after the handler: nobody may destroy it in a write.
    bool keepsPanel = false;
};

const std::vector<Action>& Actions();

} // namespace Torture
