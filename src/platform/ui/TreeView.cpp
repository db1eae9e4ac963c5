#include "platform/ui/TreeView.h"

#include "platform/Error.h"
#include "platform/text/Text.h"

#include <algorithm>

namespace quillmere::ui {

TreeView::Node& TreeView::add(Node* parent, std::string key, std::string text) {
    auto [place, fresh] = byKey_.try_emplace(text::lower(key), nullptr);
    if (!fresh) throw Error(Failure::KeyAlreadyUsed);
    nodes_.push_back(std::make_unique<Node>());
    Node& node = *nodes_.back();
    node.key = std::move(key);
    node.text = std::move(text);
    node.parent = parent;
    (parent == nullptr ? roots_ : parent->children).push_back(&node);
    place->second = &node;
    if (selected_ == nullptr) selected_ = &node;
    return node;
}

TreeView::Node* TreeView::find(std::string_view key) const {
    const auto found = byKey_.find(text::lower(key));
    return found == byKey_.end() ? nullptr : found->second;
}

void TreeView::clear() {
    selected_ = nullptr;
    byKey_.clear();
    roots_.clear();
    nodes_.clear();
    notify(Property::Items);
}

void TreeView::setSelectedItem(Node* node) {
    if (selected_ == node) return;
    selected_ = node;
    notify(Property::Current);
}

void TreeView::setExpanded(Node& node, bool expanded) {
    if (node.expanded == expanded) return;
    node.expanded = expanded;
    notify(Property::Rows);
    if (expanded) return;
    // A selection that would no longer show moves up to the node that closed over it.
    for (const Node* above = selected_ == nullptr ? nullptr : selected_->parent; above != nullptr;
         above = above->parent) {
        if (above == &node) return setSelectedItem(&node);
    }
}

void TreeView::personKeyDown(const KeyStroke& stroke) {
    if (selected_ == nullptr) return;
    // The nodes that show, from top to bottom, are walked by their neighbours only.
    const auto siblings = [&](const Node& node) -> const std::vector<Node*>& {
        return node.parent == nullptr ? roots_ : node.parent->children;
    };
    const auto place = [&](const Node& node) { return std::ranges::find(siblings(node), &node); };
    switch (stroke.code) {
    case key::Right:
        if (!selected_->expanded)
            setExpanded(*selected_, !selected_->children.empty());
        else if (!selected_->children.empty())
            setSelectedItem(selected_->children.front());
        break;
    case key::Left:
        if (selected_->expanded)
            setExpanded(*selected_, false);
        else if (selected_->parent != nullptr)
            setSelectedItem(selected_->parent);
        break;
    case key::Down: {
        Node* next = selected_;
        if (next->expanded && !next->children.empty()) {
            setSelectedItem(next->children.front());
            break;
        }
        while (next != nullptr && place(*next) + 1 == siblings(*next).end())
            next = next->parent;
        if (next != nullptr) setSelectedItem(*(place(*next) + 1));
        break;
    }
    case key::Up: {
        const auto here = place(*selected_);
        if (here == siblings(*selected_).begin()) {
            if (selected_->parent != nullptr) setSelectedItem(selected_->parent);
            break;
        }
        Node* above = *(here - 1);
        while (above->expanded && !above->children.empty())
            above = above->children.back();
        setSelectedItem(above);
        break;
    }
    default:
        break;
    }
}

std::optional<std::string> TreeView::property(std::string_view name) const {
    if (text::equalsNoCase(name, "SelectedItem"))
        return selected_ == nullptr ? std::string() : selected_->key;
    if (text::equalsNoCase(name, "Nodes.Count")) return std::to_string(nodes_.size());
    return Control::property(name);
}

} // namespace quillmere::ui
