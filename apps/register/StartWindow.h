#pragma once

#include "register/SampleMaker.h"

#include <QTimer>
#include <QWidget>

#include <functional>
#include <vector>

class QBoxLayout;
class QFrame;
class QLabel;
class QProgressBar;
class QPushButton;

namespace quillmere::host {

/// Why a register could not be opened.
struct Problem {
    QString title;
    /// The file, what is wrong with it, and what may help.
    QString text;
};

/// Stands where no register is open: at the first start, and when the one that was asked for cannot be
/// opened. Offers to open another file or to make the sample register.
class StartWindow final : public QWidget {
public:
    struct Listener {
        /// A register is chosen, or made; the owner opens it, and shows a problem if it cannot.
        std::function<void(const QString& path)> chosen;
        /// Asks the person for a register's file, and for where a new one goes. Empty for none.
        std::function<QString()> askForFile;
        std::function<QString()> askForPlace;
    };

    explicit StartWindow(Listener listener);

    void showProblem(const Problem& problem);
    /// Makes a sample register there and gives it to the owner.
    void makeSample(const QString& path);

private:
    void buildWelcome(QBoxLayout& column);
    void buildProblem(QBoxLayout& column);
    void buildChoices(QBoxLayout& column);
    void buildProgress(QBoxLayout& column);
    QPushButton* addChoice(QBoxLayout& column, const char* name, const QString& caption, const QString& hint,
                           const QIcon& icon);
    void setMaking(bool making);

    Listener listener_;
    QFrame* problem_ = nullptr;
    QLabel* problemTitle_ = nullptr;
    QLabel* problemText_ = nullptr;
    std::vector<QPushButton*> choices_;
    QWidget* making_ = nullptr;
    QLabel* part_ = nullptr;
    QTimer patience_;
    SampleMaker maker_;
};

} // namespace quillmere::host
