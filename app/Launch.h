#pragma once

// Starts the suite's companion programs, documents and help topics from the program's folder. Nothing is
// checked beforehand and a failed start is silent: the page goes on.

#include <string>

// "<ProgramFolder>file" followed by `arguments` as they stand (give the leading blank), in a normal window
// with the focus. The current folder is inherited.
void RunProgram(const std::wstring& file, const std::wstring& arguments = {});

// Runs a whole command line, made by the caller.
void RunCommandLine(std::wstring commandLine);

// The shell's verb "Open" on "<ProgramFolder>file", in a normal window.
void OpenDocument(const std::wstring& file, const std::wstring& arguments = {});

// HH.exe "<ProgramFolder>helpFile::/topic"
void ShowHelpTopic(const std::wstring& helpFile, const std::wstring& topic);
