#pragma once

namespace quillmere::component {

/// Makes sure that there is a user interface to show windows in: loads the toolkit that lies beside the
/// server when no other has been chosen. From then on the server stays in the process. Raises Error
/// (CannotCreateObject) with a Chinese description when there is none.
void requireToolkit();

} // namespace quillmere::component
