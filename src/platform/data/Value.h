#pragma once

// Hosts use it too.
#include <quillmere/Value.h>
