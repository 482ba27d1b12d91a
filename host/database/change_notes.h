#pragma once

#include <functional>
#include <string>

namespace Tamrivo
{

/// What the history says of the changes made through a connection, besides what they are.
struct ChangeNotes
{
    std::string Who;        ///< Login name.
    std::string Program;    ///< Name and version.
    std::string Machine;    ///< Host name.
    std::string Reason;     ///< Given by the person; may be empty.
    bool BroughtIn = false; ///< What is stored now comes out of a file.
    /// If set, called before each transaction that changes objects, while nothing is locked; gives
    /// the reason for it. What it throws keeps the transaction from beginning.
    std::function<std::string()> AskReason;
};

/// The notes for this process, without a reason.
ChangeNotes NotesOfThisProcess();

/// Says, for as long as it lives, that what is stored through a connection comes out of a file.
class BringingIn
{
public:
    explicit BringingIn(ChangeNotes& notes) : m_notes(notes) { m_notes.BroughtIn = true; }
    ~BringingIn() { m_notes.BroughtIn = false; }
    BringingIn(const BringingIn&) = delete;
    BringingIn& operator=(const BringingIn&) = delete;

private:
    ChangeNotes& m_notes;
};

} // namespace Tamrivo
