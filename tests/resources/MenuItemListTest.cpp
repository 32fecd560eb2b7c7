#include "framework/core/MenuItems.h"
#include "res/CommandIds.h"
#include "resources/BuiltInPath.h"
#include "resources/ColorTableDocument.h"
#include "resources/DocumentMenuList.h"
#include "support/TestApplication.h"

#include <algorithm>
#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::Pair;

namespace {

constexpr CommandId placeholder = 7, first = 100, limit = 110;

// A menu of one popup: ids and texts.
struct FakeMenu : MenuItems {
    using Item = std::pair<CommandId, std::string>;

    auto Find(CommandId id) { return std::ranges::find(items, id, &Item::first); }
    bool HasItem(CommandId id) const override {
        return std::ranges::find(items, id, &Item::first) != items.end();
    }
    void ModifyItem(CommandId id, CommandId newId, const std::string& text) override {
        if (HasItem(id)) *Find(id) = {newId, text};
    }
    void InsertItem(CommandId before, CommandId id, const std::string& text) override {
        if (HasItem(before)) items.insert(Find(before), {id, text});
    }
    void RemoveItem(CommandId id) override {
        if (HasItem(id)) items.erase(Find(id));
    }
    void SetItemPrompt(CommandId, const std::string&) override {}

    std::vector<CommandId> Ids() const {
        std::vector<CommandId> ids;
        for (const Item& item : items) ids.push_back(item.first);
        return ids;
    }

    std::vector<Item> items{{1, "Above"}, {placeholder, "Placeholder"}, {2, "Below"}};
};

struct NumberedList : MenuItemList {
    NumberedList() { Init(placeholder, first, limit); }
    std::string GetItemText(CommandId id) const override { return "item " + std::to_string(id - first); }
    void Show(MenuItems& menu, std::size_t count) {
        SetCount(count);
        Update(menu, nullptr);
    }
};

class MenuItemListTest : public WorkshopTest {};

} // namespace

TEST_F(MenuItemListTest, AnEmptyRunSaysSo) {
    NumberedList list;
    FakeMenu menu;
    list.Show(menu, 0);
    list.Show(menu, 3);
    list.Show(menu, 0);
    EXPECT_THAT(menu.items, ElementsAre(Pair(1, "Above"), Pair(first, "(None)"), Pair(2, "Below")));
}

TEST_F(MenuItemListTest, NewItemsComeDirectlyBehindTheFirst) {
    NumberedList list;
    FakeMenu menu;
    list.Show(menu, 2);
    EXPECT_THAT(menu.Ids(), ElementsAre(1, first, first + 1, 2));
    list.Show(menu, 4);
    EXPECT_THAT(menu.items,
                ElementsAre(Pair(1, "Above"), Pair(first, "item 0"), Pair(first + 2, "item 2"),
                            Pair(first + 3, "item 3"), Pair(first + 1, "item 1"), Pair(2, "Below")));
    list.Show(menu, 3);
    EXPECT_THAT(menu.Ids(), ElementsAre(1, first, first + 2, first + 1, 2));
    list.Show(menu, 1);
    EXPECT_THAT(menu.Ids(), ElementsAre(1, first, 2));
}

TEST_F(MenuItemListTest, AllMenusShareOneEnd) {
    NumberedList list;
    FakeMenu mainMenu, contextMenu;
    list.Show(mainMenu, 2);
    list.Show(contextMenu, 2);
    list.Show(mainMenu, 4);
    EXPECT_THAT(mainMenu.Ids(), ElementsAre(1, first, first + 2, first + 3, first + 1, 2));
    FakeMenu another;
    list.Show(another, 3);
    EXPECT_THAT(another.Ids(), ElementsAre(1, first, first + 1, first + 2, 2)) << "a placeholder starts anew";
    list.Show(mainMenu, 3);
    EXPECT_EQ(mainMenu.items.size(), 6U) << "the run ends at three already, in whatever menu";
}

TEST_F(MenuItemListTest, IdsLeadToEntriesAndLists) {
    NumberedList list, later;
    CObject entry;
    list.SetItem(2, &entry);
    EXPECT_EQ(list.GetItem(first + 2), &entry);
    EXPECT_EQ(list.GetItem(first), nullptr);
    EXPECT_EQ(list.GetItem(first + 5), nullptr);
    EXPECT_EQ(list.GetItem(first - 1), nullptr);
    EXPECT_EQ(MenuItemList::FindList(limit - 1), &later) << "the last one of several";
    EXPECT_EQ(MenuItemList::FindList(limit), nullptr);
    FakeMenu menu;
    list.Show(menu, 300);
    EXPECT_EQ(menu.items.size(), limit - first + 2) << "other ids belong to others";
}

TEST_F(MenuItemListTest, DocumentsAreListedWithThoseOfDerivedClasses) {
    DocumentMenuList list(ColorTableDocument::runtimeClass);
    list.Init(placeholder, first, first + 256);
    Open<BaseDocument>(GetBuiltInPath(quakePalette));
    Open<BaseDocument>(GetBuiltInPath(rgbaColorSpace));
    Open<BaseDocument>(Put("R&B.kelcolors", Bytes(800)));
    Open<BaseDocument>(Put("R&B.kelcolors", Bytes(800)));
    FakeMenu menu;
    MenuItemList::UpdateAll(menu, nullptr);
    EXPECT_THAT(menu.items, ElementsAre(Pair(1, "Above"), Pair(first, "R&&B"), Pair(first + 1, "Quake"),
                                        Pair(2, "Below")));
    EXPECT_EQ(dynamic_cast<CDocument*>(list.GetItem(first + 1))->GetTitle(), "Quake");
}
