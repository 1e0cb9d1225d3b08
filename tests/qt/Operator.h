#pragma once

#include <QFont>
#include <QStringList>
#include <QWidget>

#include <filesystem>
#include <functional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <vector>

class QDialog;

/// What a failed comparison prints.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

namespace k7deval::qt::test
{

/// The hands of an operator at a screen: mouse and keys, nothing else. Widgets go by the names that
/// the tools give them.
class Operator
{
public:
    /// Sits down at a screen, which is shown.
    explicit Operator(QWidget& screen);

    /// A part of the screen by its name; std::runtime_error if there is none or it is of another
    /// kind.
    template <class View> [[nodiscard]] View& view(const std::string& name) const
    {
        auto* found = screen_->findChild<View*>(QString::fromStdString(name));
        if (found == nullptr)
            throw std::runtime_error("no such part of the screen: " + name);
        return *found;
    }

    /// Clicks into the middle of a button, or on the mark of a box or option.
    void click(const std::string& name) const;
    /// Types a text over what a field holds, without leaving it.
    void type(const std::string& name, const std::string& text) const;
    /// Types a text over what a field holds and goes on with the tabulator.
    void enter(const std::string& name, const std::string& text) const;
    /// Picks an entry of a list with the keys.
    void pick(const std::string& name, const std::string& entry) const;
    /// Presses a key where the focus is.
    void press(Qt::Key key) const;
    /// Presses Alt and a letter.
    void pressMnemonic(Qt::Key letter) const;

    /// Goes on from a part by the tabulator, or backwards by Key_Backtab, until that part comes
    /// round again. The names on the way, that part first; std::runtime_error if it doesn't come.
    [[nodiscard]] QStringList walk(const std::string& first, Qt::Key key = Qt::Key_Tab) const;

    /// What a label says.
    [[nodiscard]] std::string text(const std::string& label) const;

    /// Writes what the screen looks like to a PNG, if the variable K7DEVAL_SCREENS names a folder.
    void photograph(const std::string& name) const;

private:
    QWidget* screen_;
};

/// Letters twice as large on all screens, for the time of a test.
class LargeLetters
{
public:
    LargeLetters();
    LargeLetters(const LargeLetters&) = delete;
    LargeLetters& operator=(const LargeLetters&) = delete;
    ~LargeLetters();

private:
    QFont before_;
};

/// The labels and buttons on view that have less room than their texts need.
std::vector<std::string> cutOff(const QWidget& screen);

/// Lets the event loop deal with what waits.
void settle();

/// Drops files on a part of the screen, if it takes them.
void dropFiles(QWidget& target, const std::vector<std::filesystem::path>& files);

/// Does something with the next dialog that comes up, over whatever runs then. Each dialog has to
/// be dealt with so that the program goes on.
void whenDialogComes(std::function<void(QDialog&)> deal);
/// Closes the next message box, and keeps what it said.
void readBox(std::string& text);
/// Does something that brings up a message box, and gives its text.
std::string told(const std::function<void()>& act);

} // namespace k7deval::qt::test
