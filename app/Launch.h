#pragma once

// Starts the suite's companion programs, documents and help topics, in a normal window that takes the focus.
// `folder` (ends in a backslash) is the program's own unless the caller names another one; the current folder
// is inherited. A program that wants other rights is started by the shell, which asks the user. Nothing is
// checked beforehand and a failed start is silent: the page goes on.

#include "app/modLocations.h"

#include <string>

// "<folder>file", in quotation marks, followed by `arguments` as they stand (give the leading blank).
void RunProgram(const std::wstring& file, const std::wstring& arguments = {},
                const std::wstring& folder = locations.AppPath);

// Runs a whole command line, made by the caller.
void RunCommandLine(const std::wstring& commandLine);

// The shell's verb "Open" on "<folder>file", in quotation marks.
void OpenDocument(const std::wstring& file, const std::wstring& arguments = {},
                  const std::wstring& folder = locations.AppPath);

// HH.exe "<folder>helpFile::/topic"
void ShowHelpTopic(const std::wstring& helpFile, const std::wstring& topic,
                   const std::wstring& folder = locations.AppPath);
