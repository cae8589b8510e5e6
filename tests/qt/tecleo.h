#pragma once

namespace calvento {

/// A program of its own that types growing numbers into the fields of a chute and tells each on its output, with the
/// time of the steady clock in ms: until it is killed.
int teclear(int argc, char** argv);

}  // namespace calvento
