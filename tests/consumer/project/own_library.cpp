// A library of the host's own: its file is called as one of the editor's libraries is, and it has nothing else in
// common with that.

extern "C" int FUNCTION()
{
    return 1;
}
