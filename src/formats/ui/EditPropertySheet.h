#pragma once

#include "formats/ui/Quake2EditPropertyPage.h"

#include <cstdint>
#include <string>

namespace keltavlo {

// Edits the picture's size.
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

// Edits the name that a Quake texture stores.
class QuakeEditPropertyPage : public EditPropertyPage {
public:
    QuakeEditPropertyPage();

    void OnInitDialog() override;
    bool OnApply() override;

protected:
    void DoDataExchange(CDataExchange& exchange) override;

private:
    std::string name; // as stored; any bytes
};

// Edits what the game formats store with a texture besides its pixels. When the sheet is confirmed, each
// group of values that the user changed becomes one undoable change.
class EditPropertySheet : public CPropertySheet, public EditTarget {
public:
    EditPropertySheet(QWidget* dialogOwner, TavloDocument& edited);

    TavloDocument& GetDocument() const override { return document; }

private:
    TavloDocument& document;
    GeneralEditPropertyPage generalPage;
    QuakeEditPropertyPage quakePage;
    Quake2EditPropertyPage quake2Page;
};

} // namespace keltavlo
