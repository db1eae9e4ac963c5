#pragma once

#include "platform/ui/Colour.h"
#include "platform/ui/Control.h"

#include <cstddef>
#include <memory>
#include <unordered_map>
#include <vector>

namespace quillmere::ui {

/// A tree of keyed nodes. Nodes never leave but all at once.
class TreeView : public Control {
public:
    struct Node {
        std::string key;
        std::string text;
        std::string tag;
        Colour foreColor = colour::buttonText;
        Node* parent = nullptr;
        /// Its place among its siblings, from 0.
        std::size_t index = 0;
        std::vector<Node*> children;
        bool expanded = false;
    };

    explicit TreeView(std::string name) : Control(Kind::TreeView, std::move(name)) {}

    /// Adds a node as the last child of `parent`, or as the last root. Raises KeyAlreadyUsed. The
    /// view is told by `endUpdate`. Constant time.
    Node& add(Node* parent, std::string key, std::string text);
    /// Keys are compared without regard to case; none when it is not there. Constant time.
    [[nodiscard]] Node* find(std::string_view key) const;
    void clear();
    /// Tells the view that nodes have been added or changed.
    void endUpdate() { notify(Property::Items); }

    [[nodiscard]] const std::vector<Node*>& roots() const { return roots_; }
    /// In the order of adding.
    [[nodiscard]] const std::vector<std::unique_ptr<Node>>& nodes() const { return nodes_; }
    [[nodiscard]] Node* SelectedItem() const { return selected_; }
    void setSelectedItem(Node* node);
    void setExpanded(Node& node, bool expanded);
    /// The node that `setExpanded` opened or closed last, none since the last clearing.
    [[nodiscard]] const Node* lastToggled() const { return toggled_; }
    /// The lowest of the nodes that show, none in an empty tree.
    [[nodiscard]] Node* lastShown() const;
    /// In the toolkit's own units.
    [[nodiscard]] double Indentation() const { return indentation_; }
    void setIndentation(double indentation) { indentation_ = indentation; }

    [[nodiscard]] std::optional<std::string> property(std::string_view name) const override;

protected:
    [[nodiscard]] bool isFocusKind() const override { return true; }
    void personKeyDown(const KeyStroke& stroke) override;

private:
    [[nodiscard]] const std::vector<Node*>& siblingsOf(const Node& node) const;
    /// The nodes that show, from top to bottom, are walked by their neighbours only; none at the ends.
    [[nodiscard]] Node* below(Node& node) const;
    [[nodiscard]] Node* above(Node& node) const;

    std::vector<std::unique_ptr<Node>> nodes_;
    std::vector<Node*> roots_;
    std::unordered_map<std::string, Node*> byKey_;
    Node* selected_ = nullptr;
    const Node* toggled_ = nullptr;
    double indentation_ = 0;
};

} // namespace quillmere::ui
