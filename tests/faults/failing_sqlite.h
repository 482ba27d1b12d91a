#pragma once

namespace Tamrivo::Testing
{

/// SQLite over a file system and an allocator that fail when they are told to.
class FailingSqlite
{
public:
    enum class Fault
    {
        Call,     ///< One call of the file system gives an I/O error.
        FullDisk, ///< From one write on there is no room left.
        Memory,   ///< One allocation gives none.
    };

    /// Takes the place of SQLite's own. Before anything else is done with SQLite.
    static void Install();

    /// Lets the call with the number, counted from now on, fail; 0: none.
    static void FailAt(Fault fault, int call);
    /// Whether it has come to that.
    static bool HasFailed();
};

} // namespace Tamrivo::Testing
