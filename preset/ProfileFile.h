#pragma once

#include <MVPluginQt/Result.h>

#include <QString>

#include <functional>
#include <vector>

class QSettings;

/// Profiles: INI files in UTF-8 whose groups belong to different parts of the panel. A file is opened, handled and
/// closed in one go; nothing of it is kept.
namespace MV {

class CIniGroup;

/// A group of a profile and who handles it.
struct ProfileGroup
{
    QString name;
    std::function<BF::Result(const CIniGroup&)> load;
    std::function<void(QSettings&)> save; ///< Gets the store positioned inside the group.
};

/// Why a profile was not handled.
enum class EProfileProblem
{
    None,
    InvalidPath, ///< There is no file at the path.
    Unreadable,
    Unwritable,
};

/// Lets each of \p groups that the file at \p path holds be loaded, in the order of \p groups, up to the first failure.
/// \param result  receives that failure, or 0
EProfileProblem LoadProfile(const QString& path, const std::vector<ProfileGroup>& groups, BF::Result& result);

/// Lets all of \p groups be saved to \p path. What else an existing file holds is kept, comments excepted. A save
/// that does not succeed leaves the file as it was.
EProfileProblem SaveProfile(const QString& path, const std::vector<ProfileGroup>& groups);

} // namespace MV
