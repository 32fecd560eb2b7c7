#include "resources/MenuItemList.h"

#include "framework/core/MenuItems.h"
#include "support/TestApplication.h"

#include <algorithm>

namespace keltavlo {

constexpr CommandId placeholder = 7, first = 100, limit = 110;

// A menu that is a single popup: ids and texts.
struct FakeMenu : MenuItems {
    using Item = std::pair<CommandId, std::string>;

    auto Find(CommandId id) { return std::ranges::find(items, id, &Item::first); }
    bool HasItem(CommandId id) const override { return std::ranges::count(items, id, &Item::first) > 0; }
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

    // Returns what the run shows.
    std::string Run() const {
        std::string run;
        for (std::size_t i = 1; i + 1 < items.size(); ++i) run += "[" + items[i].second + "]";
        return run;
    }

    std::vector<Item> items{{1, "Above"}, {placeholder, "Placeholder"}, {2, "Below"}};
};

struct NumberedList : MenuItemList {
    NumberedList() { Init(placeholder, first, limit); }
    std::string GetItemText(CommandId id) const override { return std::to_string(id - first); }
    void Show(MenuItems& menu, std::size_t count) {
        SetCount(count);
        Update(menu, nullptr);
    }
};

struct MenuItemListTest : WorkshopTest {
    NumberedList list;
    FakeMenu menu;
};

TEST_F(MenuItemListTest, NewItemsComeDirectlyBehindTheFirst) {
    const std::pair<std::size_t, const char*> runs[] = {{0, "[(None)]"},  {2, "[0][1]"}, {4, "[0][2][3][1]"},
                                                        {3, "[0][2][1]"}, {1, "[0]"},    {0, "[(None)]"}};
    for (const auto& [count, run] : runs) {
        list.Show(menu, count);
        EXPECT_EQ(menu.Run(), run);
    }
}

TEST_F(MenuItemListTest, AllMenusShareOneEnd) {
    FakeMenu contextMenu, another;
    list.Show(menu, 2);
    list.Show(contextMenu, 2);
    list.Show(menu, 4);
    EXPECT_EQ(menu.Run(), "[0][2][3][1]");
    list.Show(another, 3);
    EXPECT_EQ(another.Run(), "[0][1][2]") << "a placeholder starts anew";
    list.Show(menu, 3);
    EXPECT_EQ(menu.items.size(), 6U) << "the run ends at three already, in whatever menu";
}

TEST_F(MenuItemListTest, IdsLeadToEntriesAndLists) {
    const NumberedList later;
    CObject entry;
    list.SetItem(2, &entry);
    EXPECT_EQ(list.GetItem(first + 2), &entry);
    for (const CommandId id : {first - 1, first, first + 5}) EXPECT_EQ(list.GetItem(id), nullptr) << id;
    EXPECT_EQ(MenuItemList::FindList(limit - 1), &later) << "the last one of several";
    EXPECT_EQ(MenuItemList::FindList(limit), nullptr);
    list.Show(menu, 300);
    EXPECT_EQ(menu.items.size(), limit - first + 2) << "other ids belong to others";
}

} // namespace keltavlo
