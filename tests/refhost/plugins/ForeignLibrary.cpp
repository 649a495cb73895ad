/// A shared library that is no package at all.
extern "C" int answer() {
    return 42;
}
