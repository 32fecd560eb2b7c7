#pragma once

#include "formats/ui/EditPropertyPage.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace keltavlo {

// Edits the names and the value that a Quake II texture stores.
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

// Edits a set of flags with one check box per bit.
class Quake2FlagsEditPropertyPage : public CPropertyPage {
public:
    // The labels start with bit 0. Bits beyond them stay unchanged.
    Quake2FlagsEditPropertyPage(const QString& title, std::span<const std::string_view> labels);

    void OnInitDialog() override;
    bool OnApply() override;

protected:
    void DoDataExchange(CDataExchange& exchange) override;
    virtual std::uint32_t GetStored(const TavloDocument& document) const = 0;
    // Stores the flags as an undoable change.
    virtual void Store(TavloDocument& document, std::uint32_t newFlags) const = 0;

private:
    std::uint32_t bitCount;
    std::unique_ptr<bool[]> checkStates; // bitCount elements
    std::uint32_t flags = 0;
};

// Edits how the game treats the surface.
class Quake2SurfaceEditPropertyPage : public Quake2FlagsEditPropertyPage {
public:
    Quake2SurfaceEditPropertyPage();

protected:
    std::uint32_t GetStored(const TavloDocument& document) const override;
    void Store(TavloDocument& document, std::uint32_t newFlags) const override;
};

// Edits what the game assumes to be in the space behind the surface.
class Quake2ContentsEditPropertyPage : public Quake2FlagsEditPropertyPage {
public:
    Quake2ContentsEditPropertyPage();

protected:
    std::uint32_t GetStored(const TavloDocument& document) const override;
    void Store(TavloDocument& document, std::uint32_t newFlags) const override;
};

// Edits what a Quake II texture stores, in a sheet inside the page.
class Quake2EditPropertyPage : public EditPropertyPage {
public:
    Quake2EditPropertyPage();

    void OnInitDialog() override;
    bool OnKillActive() override { return innerSheet.KillActivePage(); }
    bool OnApply() override;

private:
    CPropertySheet innerSheet{{}, nullptr};
    Quake2GeneralEditPropertyPage generalPage;
    Quake2SurfaceEditPropertyPage surfacePage;
    Quake2ContentsEditPropertyPage contentsPage;
};

} // namespace keltavlo
