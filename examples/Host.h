#pragma once

#include "screen/Services.h"
#include "screen/TextBox.h"

#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <utility>

/// What the examples share.
namespace k7deval::example
{

/// A host that saves to one file and has no calendar and no viewer.
class Dialogs : public screen::Services
{
public:
    explicit Dialogs(std::string path) : path_(std::move(path)) {}

    std::optional<screen::SaveAnswer> ShowSave(const std::string& /*filter*/,
                                               const std::string& /*defaultExtension*/) override
    {
        return screen::SaveAnswer{path_, 1};
    }
    screen::MsgBoxAnswer MsgBox(const screen::MsgBoxRequest& request) override
    {
        std::cout << request.prompt << '\n';
        return screen::MsgBoxAnswer::Yes;
    }
    std::optional<Date> PickDate(const std::string& /*title*/, Date /*date*/, std::int32_t,
                                 std::int32_t, std::int32_t) override
    {
        return std::nullopt;
    }
    void OpenDocument(const std::string& path, std::int32_t, std::int32_t /*ownerWindow*/,
                      std::int32_t, std::int32_t /*showCommand*/) override
    {
        std::cout << "Saved " << path << '\n';
    }

private:
    std::string path_;
};

/// What an operator does at a field.
inline void type(screen::TextBox& field, const std::string& text)
{
    field.Type(text);
    field.Leave();
}

/// The main function of an example: a site to evaluate, and a file for the report.
template <class Evaluate> int run(int argc, char** argv, Evaluate evaluate)
{
    if (argc != 3) {
        std::cerr << "Usage: " << argv[0] << " SITE REPORT\n";
        return 2;
    }
    try {
        evaluate(argv[1], argv[2]);
    } catch (const std::exception& failure) {
        std::cerr << failure.what() << '\n';
        return 2;
    }
    return 0;
}

} // namespace k7deval::example
