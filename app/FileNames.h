#pragma once

#include <optional>
#include <string>
#include <string_view>

// The characters that no file name may hold, in the order in which messages list them.
inline constexpr std::wstring_view kInvalidNameChars = L"/\\:*?\"<>|";

// The most characters of a receive file extension.
inline constexpr std::size_t kExtensionLength = 3;

bool IsInvalidChar(wchar_t c);

// No character is invalid. The empty name is valid: who needs a name tests for that too.
bool IsValidName(std::wstring_view name);

// The name, with any extension, opens a device instead of a file: CON, PRN, AUX, NUL, CONIN$, CONOUT$
// and COM or LPT with one digit, superscript 1 to 3 included. Windows compares what stands before the
// first dot, without case and without the blanks around it.
bool IsReservedName(std::wstring_view name);

// Below code 32, or 127 to 159.
bool HasControlChar(std::wstring_view text);

// Windows drops dots at the end of a file name. A configuration's extension keeps them, but where the name
// stands alone it would mean another file.
bool EndsInDot(std::wstring_view name);

// The receive file extension as typed by the user: blanks at both ends and then one leading "." are
// dropped. Nothing when the rest is longer than 3 characters or holds anything but A to Z, a to z and
// digits. The empty extension is valid.
std::optional<std::wstring> CheckedExtension(std::wstring_view typed);
