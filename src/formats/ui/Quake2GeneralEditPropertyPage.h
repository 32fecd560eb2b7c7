#pragma once

#include "framework/ui/CPropertyPage.h"

#include <cstdint>
#include <string>

namespace keltavlo {

// The names and the value that a Quake II texture stores.
class Quake2GeneralEditPropertyPage : public CPropertyPage {
public:
    Quake2GeneralEditPropertyPage();

    void OnInitDialog() override;
    bool OnApply() override;

protected:
    void DoDataExchange(CDataExchange& exchange) override;

private:
    std::string name;
    std::string nextFrameName;
    std::int32_t value = 0;
};

} // namespace keltavlo
