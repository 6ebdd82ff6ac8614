#include <inspect/ZipFile.h>

#include <memory>

#include <locale.h>

#include <archive.h>
#include <archive_entry.h>

#include <inspect/Failure.h>

namespace Effect::Inspect {

namespace {

// Each written at the same moment, the first that the format knows, so that equal files make equal archives.
constexpr time_t epoch = 315532800; // 1980-01-01

/// The library reads names by the locale's encoding. While this lives that is UTF-8, for this thread.
class Utf8Names
{
public:
    Utf8Names()
        : m_locale(::newlocale(LC_CTYPE_MASK, "C.UTF-8", locale_t{}))
        , m_previous(::uselocale(m_locale))
    {}
    ~Utf8Names()
    {
        ::uselocale(m_previous);
        if (m_locale)
            ::freelocale(m_locale);
    }
    Utf8Names(Utf8Names const &) = delete;
    Utf8Names & operator=(Utf8Names const &) = delete;

private:
    locale_t m_locale;
    locale_t m_previous;
};

struct Free
{
    void operator()(archive * used) const { ::archive_free(used); }
    void operator()(archive_entry * used) const { ::archive_entry_free(used); }
};

using Archive = std::unique_ptr<archive, Free>;
using Entry = std::unique_ptr<archive_entry, Free>;

[[noreturn]] void fail(Archive const & used)
{
    char const * const reason = ::archive_error_string(used.get());
    throw Failure(reason ? reason : "this is no pack");
}

la_ssize_t append(archive *, void * bytes, void const * data, std::size_t size)
{
    static_cast<std::string *>(bytes)->append(static_cast<char const *>(data), size);
    return static_cast<la_ssize_t>(size);
}

std::string bytesOf(Archive const & read, std::size_t largest)
{
    std::string bytes;
    char piece[1 << 16];
    for (;;) {
        la_ssize_t const count = ::archive_read_data(read.get(), piece, sizeof piece);
        if (count < 0)
            fail(read);
        if (count == 0)
            return bytes;
        bytes.append(piece, static_cast<std::size_t>(count));
        if (bytes.size() > largest)
            throw Failure("an entry is larger than " + std::to_string(largest >> 20) + " MiB");
    }
}

} // namespace

std::string zipped(std::vector<std::pair<std::string, std::string>> const & files)
{
    Utf8Names const utf8;
    std::string bytes;
    Archive const written(::archive_write_new());
    if (::archive_write_set_format_zip(written.get()) != ARCHIVE_OK ||
        ::archive_write_set_options(written.get(), "zip:hdrcharset=UTF-8") != ARCHIVE_OK ||
        ::archive_write_set_bytes_in_last_block(written.get(), 1) != ARCHIVE_OK ||
        ::archive_write_open2(written.get(), &bytes, nullptr, append, nullptr, nullptr) != ARCHIVE_OK)
        fail(written);
    for (auto const & [name, content] : files) {
        Entry const entry(::archive_entry_new());
        ::archive_entry_set_pathname_utf8(entry.get(), name.c_str());
        ::archive_entry_set_size(entry.get(), static_cast<la_int64_t>(content.size()));
        ::archive_entry_set_filetype(entry.get(), AE_IFREG);
        ::archive_entry_set_perm(entry.get(), 0644);
        ::archive_entry_set_mtime(entry.get(), epoch, 0);
        if (::archive_write_header(written.get(), entry.get()) != ARCHIVE_OK ||
            ::archive_write_data(written.get(), content.data(), content.size()) !=
                static_cast<la_ssize_t>(content.size()))
            fail(written);
    }
    if (::archive_write_close(written.get()) != ARCHIVE_OK)
        fail(written);
    return bytes;
}

void forEachZipped(std::string const & path, std::size_t largest,
    std::function<void(std::string const & name, std::string && bytes)> const & take)
{
    Utf8Names const utf8;
    Archive const read(::archive_read_new());
    constexpr std::size_t block = 1 << 16;
    if (::archive_read_support_format_zip(read.get()) != ARCHIVE_OK ||
        ::archive_read_open_filename(read.get(), path.c_str(), block) != ARCHIVE_OK)
        fail(read);
    for (;;) {
        archive_entry * entry = nullptr;
        int const result = ::archive_read_next_header(read.get(), &entry);
        if (result == ARCHIVE_EOF)
            return;
        if (result != ARCHIVE_OK)
            fail(read);
        char const * const name = ::archive_entry_pathname_utf8(entry);
        if (!name)
            throw Failure("the name of an entry is not UTF-8");
        if (::archive_entry_filetype(entry) != AE_IFREG || ::archive_entry_hardlink(entry))
            throw Failure(std::string(name) + ": is no plain file");
        std::string const file = name; // what is read next may move it
        take(file, bytesOf(read, largest));
    }
}

} // namespace Effect::Inspect
