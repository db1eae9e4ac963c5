#pragma once

#include "adapters/qt/Companion.h"

#include <QString>

#include <deque>
#include <exception>
#include <functional>

class QWidget;

namespace quillmere::host {

/// A guided tour: works in the windows as a person would, takes a picture at each stop and prints its
/// path. Whatever does not go as it should ends the tour.
class Tour final : public qt::Companion {
public:
    /// `directory` for the pictures; it is made when it is not there.
    explicit Tour(QString directory);

    /// Goes from stop to stop. Raises std::exception for what went wrong.
    void run(QWidget& mainWindow);

    void formOpened(ui::Form& form) override;
    [[nodiscard]] std::optional<ui::Answer> messageOpened(const ui::MessageBox& message) override;

private:
    using Work = std::function<void(ui::Form& form)>;
    struct ExpectedMessage {
        QString title;
        QString part;
        QString picture;
    };

    // The stops.
    void search();
    void enterNewPerson();
    void showStudies();
    void showProject(const QString& stage, const QString& button);
    void showUnits();

    /// Clicks a button of the main window that opens the maintenance window, and works in that.
    void maintain(const QString& button, Work work);
    void selectRow(int row) const;
    /// The first row whose project is in that stage.
    [[nodiscard]] int rowInStage(const QString& stage) const;
    [[nodiscard]] int rowCount() const;
    [[nodiscard]] QString cell(int row, int column) const;
    template <class T>
    [[nodiscard]] T& child(const QString& name) const;

    /// Runs work whose failure must reach `run` past whoever is between.
    template <class F>
    auto keeping(F&& work);
    void takePicture(const QString& name);

    QString directory_;
    int pictures_ = 0;
    QWidget* main_ = nullptr;
    std::deque<Work> forms_;
    std::deque<ExpectedMessage> messages_;
    std::exception_ptr failure_;
};

} // namespace quillmere::host
