#pragma once

#include "formats/ui/EditPropertyPage.h"

#include <string>

namespace keltavlo {

// The name that a Quake texture stores.
class QuakeEditPropertyPage : public EditPropertyPage {
public:
    QuakeEditPropertyPage();

    void OnInitDialog() override;
    bool OnApply() override;

protected:
    void DoDataExchange(CDataExchange& exchange) override;

private:
    std::string name; // as stored, in bytes of any kind
};

} // namespace keltavlo
