#pragma once

#include <string>
#include <string_view>

// Texts on their way to and from files and messages of the tools.

std::string Utf8(std::wstring_view text);
std::wstring FromUtf8(std::string_view bytes);

[[noreturn]] void Fail(const std::wstring& what); // throws std::runtime_error
