#pragma once

#include <QMetaType>
#include <QtGlobal>

namespace BF {

/// Status of a host operation: a 32-bit signed code, returned by value.
///
/// 0 is success, 1 nothing done (or refused after telling the user), 2 cancelled by the user; negative is failure.
class Result
{
public:
    constexpr Result() noexcept = default;
    /// \p code as written in the host's documentation, for example 0x80000003.
    constexpr explicit Result(quint32 code) noexcept
        : m_code(static_cast<qint32>(code))
    {
    }

    constexpr qint32 Code() const noexcept { return m_code; }
    constexpr bool IsFailure() const noexcept { return m_code < 0; }
    constexpr bool IsSuccess() const noexcept { return m_code == 0; }

    friend constexpr bool operator==(Result a, Result b) noexcept { return a.m_code == b.m_code; }
    friend constexpr bool operator!=(Result a, Result b) noexcept { return a.m_code != b.m_code; }

private:
    qint32 m_code = 0;
};

static_assert(sizeof(Result) == 4, "the host returns a bare 32-bit code");

/// The codes that the panel and the host exchange.
namespace Results {
inline constexpr Result Success{0};
inline constexpr Result NothingDone{1};
inline constexpr Result Cancelled{2};
/// An allocation failed, or a resource (form, resource file, pixmap) is missing or unusable.
inline constexpr Result ResourceFailure{0x80000002};
inline constexpr Result InvalidArgument{0x80000003};
inline constexpr Result IndexOutOfRange{0x80000004};
inline constexpr Result MissingDisabledPixmap{0x80000005};
/// The host refused the operation, for example an all-black weight image.
inline constexpr Result Refused{0x80000006};
} // namespace Results

} // namespace BF

Q_DECLARE_METATYPE(BF::Result)
