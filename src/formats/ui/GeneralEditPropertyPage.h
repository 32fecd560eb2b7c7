#pragma once

#include "formats/ui/EditPropertyPage.h"

#include <cstdint>

namespace keltavlo {

// The picture's size.
class GeneralEditPropertyPage : public EditPropertyPage {
public:
    GeneralEditPropertyPage();

    void OnInitDialog() override;
    bool OnApply() override;

protected:
    void DoDataExchange(CDataExchange& exchange) override;

private:
    std::uint32_t width = 256; // texels
    std::uint32_t height = 256;
};

} // namespace keltavlo
