#pragma once

#include "framework/core/CCmdUI.h"

#include <initializer_list>
#include <vector>

namespace keltavlo {

class CCmdTarget;

// One row of a class's command table: an id or a range of ids, the function that carries the command out and
// the function that updates its state.
struct CommandRow {
    CommandId first, last;
    void (*execute)(CCmdTarget&, CommandId);
    void (*update)(CCmdTarget&, CCmdUI&); // null: the command is always enabled
};

class CommandMap {
public:
    CommandMap() = default;
    CommandMap(const CommandMap& baseMap, std::initializer_list<CommandRow> ownRows)
        : base(&baseMap), rows(ownRows) {}

    // Returns the row for the id, or null. The class's own rows come before those of its base.
    const CommandRow* Find(CommandId id) const {
        for (const CommandMap* map = this; map; map = map->base)
            for (const CommandRow& row : map->rows)
                if (row.first <= id && id <= row.last) return &row;
        return nullptr;
    }

private:
    const CommandMap* base = nullptr;
    std::vector<CommandRow> rows;
};

namespace command_detail {

template <auto handler>
struct Bound;

template <class Target, void (Target::*handler)()>
struct Bound<handler> {
    static void Execute(CCmdTarget& target, CommandId) { (static_cast<Target&>(target).*handler)(); }
};

template <class Target, void (Target::*handler)(CommandId)>
struct Bound<handler> {
    static void Execute(CCmdTarget& target, CommandId id) { (static_cast<Target&>(target).*handler)(id); }
};

template <class Target, void (Target::*handler)(CCmdUI&)>
struct Bound<handler> {
    static void Update(CCmdTarget& target, CCmdUI& state) { (static_cast<Target&>(target).*handler)(state); }
};

template <class Target, void (Target::*handler)(CCmdUI&) const>
struct Bound<handler> {
    static void Update(CCmdTarget& target, CCmdUI& state) {
        (static_cast<const Target&>(target).*handler)(state);
    }
};

} // namespace command_detail

// Rows are written like this: Command<&Class::OnEditUndo, &Class::OnUpdateEditUndo>(ID_EDIT_UNDO). The
// handler takes nothing or the id; the update handler takes the CCmdUI.
template <auto handler>
CommandRow Command(CommandId id) {
    return {id, id, &command_detail::Bound<handler>::Execute, nullptr};
}
template <auto handler, auto update>
CommandRow Command(CommandId id) {
    return {id, id, &command_detail::Bound<handler>::Execute, &command_detail::Bound<update>::Update};
}
template <auto handler, auto update>
CommandRow CommandRange(CommandId first, CommandId last) {
    return {first, last, &command_detail::Bound<handler>::Execute, &command_detail::Bound<update>::Update};
}

} // namespace keltavlo
