#include "component/objects/ServerLife.h"

#include <atomic>

namespace quillmere::component {

namespace {

std::atomic<long> holds{0};

} // namespace

LifeToken::LifeToken() { ++holds; }
LifeToken::~LifeToken() { --holds; }

void lockServer(bool lock) { holds += lock ? 1 : -1; }
void keepServer() { ++holds; }
bool canUnload() { return holds == 0; }

} // namespace quillmere::component
