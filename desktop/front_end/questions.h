#pragma once

class QWidget;

namespace Tamrivo
{

class AllelePane;

// What a person is asked before work of theirs is lost. True: go on.

/// Asks before a new list takes the place of rows that were edited by hand or imported; without
/// such rows there is nothing to ask.
bool MayReplaceAlleles(QWidget* parent, const AllelePane& pane);

/// Asks before what was entered on a page is thrown away.
bool MayDiscardChanges(QWidget* parent);

} // namespace Tamrivo
