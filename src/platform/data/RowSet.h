#pragma once

// Hosts use it too.
#include <quillmere/RowSet.h>
