// A library that a host brings. Its file is called as one of the editor's libraries is, and nothing in it is theirs.

extern "C" __attribute__((visibility("default"))) int ownLibrary()
{
    return 1;
}
