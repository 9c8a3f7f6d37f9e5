#pragma once

// What is thrown when the environment refuses: a number, the part of the program that met it and a
// description, ready to be shown, that names the act and the path. A bug is an assertion instead.

#include <exception>
#include <string>
#include <utility>

namespace win {

class AppError : public std::exception {
  public:
    AppError(int number, std::wstring source, std::wstring description)
        : number_(number), source_(std::move(source)), description_(std::move(description)) {}

    int Number() const { return number_; }
    const std::wstring& Source() const { return source_; }
    const std::wstring& Description() const { return description_; }
    const char* what() const noexcept override { return "VWizard application error"; }

  private:
    int number_;
    std::wstring source_;
    std::wstring description_;
};

} // namespace win
