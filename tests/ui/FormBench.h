#pragma once

#include "platform/ui/Form.h"
#include "platform/ui/TextBox.h"
#include "support/ScriptedPerson.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace quillmere::ui {

using Texts = std::vector<std::string>;

/// A form that logs its life.
class LifeForm : public Form {
public:
    LifeForm(std::string name, Texts& log) : Form(std::move(name), "标题"), log_(log) {}

    std::function<void()> atLoad = [] {};
    std::function<void()> atActivate = [] {};

protected:
    void onLoad() override {
        note("load");
        atLoad();
    }
    void onActivate() override {
        note("activate");
        atActivate();
    }
    void onUnload() override { note("unload"); }
    void onResize() override { note("resize " + std::to_string(geometry().width)); }

private:
    void note(const std::string& what) { log_.push_back(name() + " " + what); }

    Texts& log_;
};

/// A text box that tells when it is destroyed.
class MortalBox : public TextBox {
public:
    MortalBox(std::string name, bool& alive) : TextBox(std::move(name)), alive_(alive) { alive_ = true; }
    ~MortalBox() override { alive_ = false; }

private:
    bool& alive_;
};

class FormBench : public testing::Test {
protected:
    test::ScriptedPerson person;
    Texts log;
    LifeForm form{"frm", log};
};

} // namespace quillmere::ui
