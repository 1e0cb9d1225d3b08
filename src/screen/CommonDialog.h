#pragma once

#include "screen/Container.h"
#include "screen/Services.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace k7deval::screen
{

/// The save dialog as a part of a control: it keeps what was asked and what was answered.
class CommonDialog final : public Widget
{
public:
    CommonDialog(Container& parent, std::string name, Services& services);

    void SetFilter(std::string filter) { update(filter_, std::move(filter)); }
    void SetDefaultExt(std::string extension) { update(defaultExt_, std::move(extension)); }
    /// The chosen file; empty before a choice and after a failure.
    [[nodiscard]] const std::string& FileName() const { return fileName_; }
    /// The chosen entry of the filter, from 1.
    [[nodiscard]] std::int32_t FilterIndex() const { return filterIndex_; }

    /// Shows the dialog. Error 32755 when the user cancels.
    void ShowSave();

    [[nodiscard]] std::string_view kind() const override { return "CommonDialog"; }
    [[nodiscard]] PropertyList Properties() const override;

private:
    Services* services_;
    std::string filter_;
    std::string defaultExt_;
    std::string fileName_;
    std::int32_t filterIndex_ = 1;
};

} // namespace k7deval::screen
