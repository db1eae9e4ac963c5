#include "register/CommandLine.h"
#include "register/Look.h"
#include "register/Program.h"

#include <QApplication>
#include <QMessageBox>

#include <cstdlib>
#include <iostream>

namespace {

using namespace quillmere;

constexpr int usageStatus = 2;

void print(std::ostream& stream, const QString& text) { stream << text.toStdString() << std::flush; }

/// Where nobody is before the screen, no one could close a message.
void tell(const host::CommandLine& line, const QString& text) {
    print(std::cerr, QStringLiteral("quillmere-register: ") + text + u'\n');
    if (!line.isUnattended()) QMessageBox::critical(nullptr, QStringLiteral("人才登记库"), text);
}

} // namespace

int main(int argc, char** argv) {
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words << QString::fromLocal8Bit(argv[i]);
    if (host::parseCommandLine(words).help) {
        print(std::cout, host::helpText());
        return EXIT_SUCCESS;
    }

    QApplication application(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Quillmere"));
    QApplication::setApplicationName(QStringLiteral("quillmere-register"));
    host::look::dress(application);

    // What Qt takes for itself, such as -platform, is gone from these.
    const host::CommandLine line = host::parseCommandLine(QApplication::arguments().mid(1));
    if (!line.complaint.isEmpty()) {
        print(std::cerr, QStringLiteral("quillmere-register: ") + line.complaint + QStringLiteral("\n\n") +
                             host::helpText());
        return usageStatus;
    }
    return host::work(line, [&line](const QString& text) { tell(line, text); });
}
