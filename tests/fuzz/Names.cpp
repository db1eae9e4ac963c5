// Names by which classes, fields and widgets are found.

#include "support/Fuzzing.h"

#include "binding/FieldEvents.h"
#include "component/server/ServerClasses.h"
#include "metadata/cFieldItems.h"
#include "panels/PanelCatalogue.h"
#include "panels/PanelFactory.h"
#include "platform/text/Text.h"
#include "support/StandInWindow.h"

#include <algorithm>

namespace {

using namespace quillmere;
using fuzz::hold;

void findsAPanel(const std::string& name) {
    const PanelRow* row = findPanel(name);
    hold(row == nullptr || text::equalsNoCase(row->className, name), "a panel is found by its own name");
    test::StandInWindow window;
    const auto failure =
        fuzz::failureOf([&] { hold(createPanel(name, window) != nullptr, "a panel is made"); });
    hold(row == nullptr ? failure == Failure::CannotCreateObject : !failure, "what is found can be made");
    const bool served =
        std::ranges::any_of(component::serverClasses(), [&](const component::ServerClass& known) {
            return text::equalsNoCase(known.name, name) && text::startsWithNoCase(name, "A1ctrlUser");
        });
    hold(served == (row != nullptr), "hosts that know panels by name find the same ones");
}

void findsAField(const std::string& name) {
    cFieldItems items;
    items.Add(std::make_shared<cFieldItem>(), "A02_A0203");
    const std::string key = fieldKey(name);
    hold(!isValueWidget(name) || name == key + "_v", "a value widget is its field's key and an ending");
    hold(!(isValueWidget(name) && isCaptionWidget(name)), "a widget is no value and caption at once");
    const bool found = items.find(key) != nullptr;
    hold(found == text::equalsNoCase(key, "A02_A0203"), "a field is found by its key in any case");
    const auto failure = fuzz::failureOf([&] { (void)items.Item(key); });
    hold(found ? !failure : failure == Failure::InvalidCall, "and any other key is an invalid call");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string name = fuzz::Input(data, size).rest();
    findsAPanel(name);
    findsAField(name);
    return 0;
}
