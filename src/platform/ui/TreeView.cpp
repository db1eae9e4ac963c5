#include "platform/ui/TreeView.h"

#include "platform/Error.h"
#include "platform/text/Text.h"

namespace quillmere::ui {

TreeView::Node& TreeView::add(Node* parent, std::string key, std::string text) {
    auto [place, fresh] = byKey_.try_emplace(text::lower(key), nullptr);
    if (!fresh) throw Error(Failure::KeyAlreadyUsed);
    nodes_.push_back(std::make_unique<Node>());
    Node& node = *nodes_.back();
    node.key = std::move(key);
    node.text = std::move(text);
    node.parent = parent;
    auto& siblings = parent == nullptr ? roots_ : parent->children;
    node.index = siblings.size();
    siblings.push_back(&node);
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
    toggled_ = nullptr;
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
    toggled_ = &node;
    notify(Property::Rows);
    if (expanded) return;
    // A selection that would no longer show moves up to the node that closed over it.
    for (const Node* above = selected_ == nullptr ? nullptr : selected_->parent; above != nullptr;
         above = above->parent) {
        if (above == &node) return setSelectedItem(&node);
    }
}

TreeView::Node* TreeView::lastShown() const {
    if (roots_.empty()) return nullptr;
    Node* last = roots_.back();
    while (last->expanded && !last->children.empty())
        last = last->children.back();
    return last;
}

const std::vector<TreeView::Node*>& TreeView::siblingsOf(const Node& node) const {
    return node.parent == nullptr ? roots_ : node.parent->children;
}

TreeView::Node* TreeView::below(Node& node) const {
    if (node.expanded && !node.children.empty()) return node.children.front();
    for (const Node* last = &node; last != nullptr; last = last->parent) {
        const auto& siblings = siblingsOf(*last);
        if (last->index + 1 < siblings.size()) return siblings[last->index + 1];
    }
    return nullptr;
}

TreeView::Node* TreeView::above(Node& node) const {
    if (node.index == 0) return node.parent;
    Node* last = siblingsOf(node)[node.index - 1];
    while (last->expanded && !last->children.empty())
        last = last->children.back();
    return last;
}

void TreeView::personKeyDown(const KeyStroke& stroke) {
    if (selected_ == nullptr) return;
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
    case key::Down:
        if (Node* next = below(*selected_); next != nullptr) setSelectedItem(next);
        break;
    case key::Up:
        if (Node* next = above(*selected_); next != nullptr) setSelectedItem(next);
        break;
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
