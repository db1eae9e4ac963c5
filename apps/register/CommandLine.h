#pragma once

#include <QSize>
#include <QString>
#include <QStringList>

namespace quillmere::host {

/// What the command line asks for.
struct CommandLine {
    /// The register's file; empty when none is named.
    QString database;
    /// Where the guided tour leaves its pictures; empty for no tour.
    QString tour;
    /// Where a picture of each panel is left; empty for none.
    QString panels;
    /// Skin file that the panels' window wears; empty for the light one.
    QString skin;
    /// Of the panels' window; invalid for as high as each panel needs.
    QSize size;
    /// The journal of what is changed and deleted; empty for none.
    QString journal;
    /// Code of the bureau that the register is kept for; empty when it is kept for all of them.
    QString unitCode;
    bool help = false;
    /// Nobody is before the screen.
    [[nodiscard]] bool isUnattended() const { return !tour.isEmpty() || !panels.isEmpty(); }
    /// Why the command line is refused; empty when it is not.
    QString complaint;
};

/// Reads the words behind the program's name.
[[nodiscard]] CommandLine parseCommandLine(const QStringList& words);

[[nodiscard]] QString helpText();

} // namespace quillmere::host
