#pragma once

// What the program asks of the operating system. Names of files and folders are plain bytes in the platform's own
// multi-byte encoding (UTF-8 on POSIX, the ANSI code page on Windows) and travel unchanged. Nothing here throws but for
// lack of memory; every failure is a result.

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

// ---- paths

#ifdef _WIN32
inline constexpr char path_separator = '\\';
inline constexpr bool has_drive_letters = true; // names follow the rules for drives and network shares
inline constexpr std::string_view last_resort_temporary_folder = "c:\\tmp";
inline constexpr bool lives_on_the_console = false; // asks and tells in windows
inline constexpr std::size_t longest_name = 259;    // bytes of a file name that the system takes
#else
inline constexpr char path_separator = '/';
inline constexpr bool has_drive_letters = false;
inline constexpr std::string_view last_resort_temporary_folder = "/tmp";
inline constexpr bool lives_on_the_console = true; // asks and tells on the terminal that started it
inline constexpr std::size_t longest_name = 4095;
#endif

// ---- names (names.cpp); no disk is asked

// A name inside a folder, with one separator between; the name alone for the empty folder.
std::string joined(std::string_view folder, std::string_view name);
// What stands behind the last separator, or the colon of a drive; the whole name if there is none.
std::string last_part(std::string_view name);
// The name of the folder above, without a separator at its end; empty for what stands in the root, and for a name
// without folder.
std::string parent_of(std::string_view name);

// ---- texts (text_encoding.cpp)

// The interface to the host speaks UTF-8, the program and its files the platform's own encoding. These are the one
// place where either becomes the other; where both are the same the text comes back as it is, valid or not.

// For the interface. Every text of the own encoding can be said in UTF-8.
std::string utf8_from_own(std::string_view text);
// For a name out of a model that becomes the name of a file. A letter that the own encoding lacks becomes its bytes in
// UTF-8, each as a percent sign and two hexadecimal digits of lower case, so that different names stay different. A
// text that is no UTF-8 comes back as it is.
std::string own_from_utf8(std::string_view text);

// ---- the process (process.cpp, environment.cpp)

// The command line as one text: the arguments joined by one blank, each that is empty or holds a blank put in double
// quotation marks. argv: argc texts, the program's own path first. On Windows the arguments are ignored: the system
// keeps the text as it was typed.
std::string raw_command_line(int argc, const char* const* argv);

// Full path of the running program; empty if the system does not tell.
std::string program_path();

// Bytes of physical memory that the process occupies now; 0 if the system does not tell.
std::uint64_t working_set_bytes();

// Value of an environment variable; nothing if it is not set. A variable set to an empty text gives the empty text.
std::optional<std::string> environment_variable(const std::string& name);

// Network name of the computer as the system spells it; empty if it has none.
std::string computer_name();

// What the system says about its own version. On a system that is not Windows `description` holds a readable text and
// the numbers are 0; on Windows it is empty and the numbers are those of the system call.
struct os_version {
    std::string description;
    int platform_id = 0;
    int major = 0;
    int minor = 0;
    int build = 0;
    std::string service_pack;
};
os_version system_version();

// ---- the console (console.cpp)

enum class standard_stream { input, output, error };
bool is_terminal(standard_stream stream);

// Whether nobody sits before the program: TESSALINE_UNATTENDED is set and not empty. What would be shown in a window,
// and wait for somebody to close it, goes to standard error then as it does on a console, and the progress of a run as
// lines "progress 42", one for each percentage that is new.
bool is_unattended();

// Writes the bytes at once and unchanged. False if not all could be written: a full disk, a reader that is gone, a
// closed stream. Windows: true where there is neither a stream nor a console, since nobody listens there.
bool write_standard_output(std::string_view text);
// The same; a failure is ignored, since there is no other place to tell of it.
void write_standard_error(std::string_view text);

// Text for developers: the file that the environment variable TESSALINE_TRACE names (each call appends to it and closes
// it, so that nothing is lost in a crash), standard error if it is "-", nowhere if it is not set; on Windows it goes to
// whatever listens to the system's debug output as well.
void debug_output(std::string_view text);
// Whether it goes anywhere: what nobody hears need not be put into words. Always true where that cannot be known.
bool debug_output_is_heard();

// Shows a text that the user must see and goes on when it has been read. A box without a title tells of a fault in the
// program itself and stands above the windows of all programs. POSIX: a line "title: text" on standard error, or the
// text alone if the title is empty; nothing waits.
void message_box(std::string_view title, std::string_view text);

// ---- the error dialog (error_dialog.cpp)

// Which of the two dialogs; the numbers are those of the resource file where there is one. Either offers a check box,
// if asked to, that silences the place of the message.
enum class error_dialog_kind {
    message = 12042, // offers "More"
    report = 12049,  // offers "Copy"
};

struct error_dialog_view {
    error_dialog_kind kind = error_dialog_kind::message;
    std::string caption;
    std::string text; // lines end in CR LF
    bool offers_silence = true;
    std::function<void()> on_copy; // called when "Copy" is pressed; the dialog stays open
};

enum class error_dialog_button { ok, more };

// What the user did. `more` only from the dialog that offers it.
struct error_dialog_answer {
    bool was_shown = true; // false if the dialog could not be started
    error_dialog_button button = error_dialog_button::ok;
    bool silences_place = false;
};

// Shows the dialog and comes back when it is closed. A ticked check box silences by OK, and by nothing else. POSIX: the
// caption and the text on standard error, as message_box prints them; the answer is OK, and nothing is silenced.
error_dialog_answer show_error_dialog(const error_dialog_view& view);

// ---- the progress window (progress.cpp)

// The one window of a run. POSIX: a bar on standard error. On a terminal it is redrawn in place, gives its place to
// each message_box and debug_output, and is gone when the window closes; otherwise its last state is written as one
// line then.
class progress_window {
public:
    virtual ~progress_window() = default;
    virtual void set_title(std::string_view title) = 0;
    virtual void set_percent(int percent) = 0; // 0 to 100; drawn within the call
    virtual void set_text(std::string_view text) = 0;
};

// Opens the window with that caption, runs `work` while it is open, and closes it. False if the window could not be
// opened; `work` has not run then.
// Windows: the dialog takes no message meanwhile. What `work` throws comes out of the call.
bool run_with_progress_window(std::string_view caption, const std::function<void(progress_window&)>& work);

// ---- asking for a file (file_chooser.cpp)

struct file_question {
    std::string title;
    std::string default_extension; // without the dot
    std::string default_name;      // offered to the user
    std::string filter;            // pairs of description and pattern, each closed by "|", the list closed by "|" again
    bool asks_before_overwriting = false;
};

// Whether the user can be asked at all: on Windows unless it is_unattended(); on POSIX if standard input and error are
// terminals.
bool can_ask_for_file();

// The name that the user chose; nothing if the question was dismissed or cannot be asked. On a POSIX terminal the title
// and the default name are shown and one line is read; an empty line takes the default name, end of input dismisses.
std::optional<std::string> ask_for_file_to_open(const file_question& question);
std::optional<std::string> ask_for_file_to_save(const file_question& question);

// ---- known folders (known_folders.cpp); full names without a separator at the end, empty if the system has none

std::string home_folder();
// POSIX: XDG_CONFIG_HOME, else ~/.config; Windows: roaming application data, or where APPDATA says if a user or a test
// has set it to another full name.
std::string user_config_folder();
std::string documents_folder(); // POSIX: XDG_DOCUMENTS_DIR, else ~/Documents
std::string temporary_folder(); // POSIX: TMPDIR, else /tmp; may be missing on disk
std::string current_folder();
// Where a settings file named without a folder is looked up. Windows: the system's own folder; POSIX: empty.
std::string shared_ini_folder();

// ---- the file system (file_system.cpp)

// All of these follow symbolic links unless told otherwise, and answer "no" for a name that cannot be examined.
bool exists(const std::string& name);
bool is_folder(const std::string& name);
bool is_symbolic_link(const std::string& name);                  // looks at the name itself
std::optional<std::uint64_t> file_size(const std::string& name); // bytes; nothing for what is no plain file
std::optional<std::string> real_name(const std::string& name);   // full name without links, "." and ".."
// The name made full by putting the current folder in front. Doubled separators are folded to one; nothing else is
// changed on POSIX. Windows: slashes become backslashes, "." and ".." go, and so do blanks and dots that end a name,
// as the system itself reads names; the pair in front of a share stays. The empty name stays empty.
std::string absolute_name(const std::string& name);

bool make_folder(const std::string& name); // the parent must exist; false also if the name is taken
struct made_folders {
    bool is_there = false;         // the folder asked for, made by this call or by anyone else
    std::vector<std::string> made; // by this call, the outermost first, even if it failed further in
};
// Makes the folder with all that are missing above it. name: without a separator at its end (names.cpp).
made_folders make_folders(const std::string& name);
bool delete_file(const std::string& name); // a file or a link itself, never a folder
bool delete_empty_folder(const std::string& name);
// Removes all that is in the folder and in the folders in it, but for the file `kept` of the folder itself. Links go,
// and what they lead to stays. False if anything could not be removed. POSIX: no link is followed either that takes the
// place of a folder meanwhile.
bool clear_folder(const std::string& name, std::string_view kept = {});
// Whatever was written in that folder and below it is on its disk when it returns; false if the disk refused it. A file
// that somebody holds (held_file.h) is left to its holder on Windows.
bool flush_file_system(const std::string& folder);
bool rename_replacing(const std::string& from, const std::string& to); // atomic; an old file `to` is replaced

// Makes a folder that nobody else has or gets, however many ask at once, and that only this user may enter. Its name is
// `beginning`, a full name whose parent must exist, and six characters more. Gives the name; nothing on failure.
std::optional<std::string> make_unique_folder(const std::string& beginning);

struct folder_entry {
    std::string name;       // without folder
    bool is_folder = false; // false for a link, whatever it leads to
    bool is_symbolic_link = false;
    std::uint64_t size = 0; // bytes; 0 for all but plain files
};
// The entries of a folder but "." and "..", sorted by the bytes of their names, so that the order in which a disk keeps
// them reaches no output. Nothing if the folder cannot be read.
std::optional<std::vector<folder_entry>> list_folder(const std::string& name);

// ---- files (file.cpp)

enum class open_mode {
    read,      // must exist and be a plain file: a pipe or a device could keep the reader for ever
    write,     // made or emptied; a device is written to
    write_new, // made; the name must be free, even of a link
    append,    // made if missing, positioned at the end; a device is written to
};

// An open file of plain bytes: no buffer, no line ends changed. Where the system knows sharing modes, others may read
// the file while it is open and may not write it.
class file {
public:
    file() = default;
    file(file&& other) noexcept;
    file& operator=(file&& other) noexcept;
    file(const file&) = delete;
    file& operator=(const file&) = delete;
    ~file();

    // Closes what was open and opens another file. Never waits: a pipe that nobody reads cannot be opened for writing.
    // False on failure, with the system's words in failure(), or "Not a plain file". Where a disk takes nothing from
    // this user, for want of room or of rights, the trace of a program that is_unattended() says so, and so it does of
    // a later write.
    bool open(const std::string& name, open_mode mode);
    bool is_open() const { return handle != closed; }

    // Reads up to `size` bytes, fewer only at the end of the file or where the system fails; then failure() has its
    // words, and at the end it is empty. Gives the number read.
    std::size_t read(void* buffer, std::size_t size);
    // Writes all bytes, in as many steps as the system needs. False if not all could be written.
    bool write_all(std::string_view bytes);
    bool seek(std::uint64_t offset); // bytes from the start
    // False if the system reports a late write error, or if the file was not open.
    bool close();

    // Why opening, reading or writing failed since the file was opened, in the system's words.
    const std::string& failure() const { return failure_text; }

private:
    static constexpr std::intptr_t closed = -1;
    std::intptr_t handle = closed;
    std::string file_name; // of what is open for writing; empty otherwise
    std::string failure_text;
};

// The whole file. Nothing if it cannot be opened or read, is no plain file, or has more than `limit` bytes.
std::optional<std::vector<std::byte>> read_file(const std::string& name, std::uint64_t limit);

// ---- files that several processes write (shared_file.cpp)

// What becomes of a file: it is given the bytes on the disk, none of a missing file, and gives those to be written, or
// nothing to leave the file as it is.
using file_editor = std::function<std::optional<std::string>(const std::string& bytes)>;

enum class edit_result {
    done,
    held_elsewhere, // for longer than one was ready to wait
    impossible,     // too large, no plain file, may not be written
};

// Changes a file that other processes change too: no change is lost, and whoever reads the file through this header
// gets the old bytes or the new ones, whole. A missing file is made if there is anything to write. Permissions stay,
// and so does a link: the file behind it changes. POSIX: the file is replaced in one step; among programs that use this
// call, a lock file stands beside it meanwhile. Windows: the file is locked as the system's own calls for such files do
// it, so that programs with those calls lose nothing either.
// patience: milliseconds for which it waits for others; 0 tries once. limit: bytes beyond which a file is left alone.
// Whatever is not done leaves the file as it was; `edit` may have been called.
edit_result edit_file(const std::string& name, std::uint64_t limit, int patience, const file_editor& edit);

// ---- the clock (clock.cpp)

double seconds_since_epoch(); // with milliseconds

// The moment that a run writes into its output: SOURCE_DATE_EPOCH if that holds a whole number, else now. Seconds since
// the epoch. Whatever puts a date into a file asks here.
std::int64_t run_date();

// run_date() as `strftime` forms it. Local time; UTC if SOURCE_DATE_EPOCH fixes the date, so that the text does not
// depend on where the machine stands.
std::string run_date_text(const std::string& strftime_format);

// Any moment as `strftime` forms it, in local time. Empty for a moment that the calendar cannot hold.
std::string local_time_text(std::int64_t seconds, const std::string& strftime_format);

// ---- the registry (registry.cpp)

enum class registry_hive { local_machine, current_user };

struct registry_answer {
    bool key_found = false;
    bool value_found = false;
    std::uint32_t type = 0;      // the system's code: 1 text, 3 binary, 4 a 32-bit number
    std::vector<std::byte> data; // as stored; a text ends in a zero byte
};

class registry {
public:
    virtual ~registry() = default;
    virtual registry_answer read(registry_hive hive, const std::string& key, const std::string& value_name) = 0;
    virtual bool has_key(registry_hive hive, const std::string& key) = 0;
    virtual bool make_key(registry_hive hive, const std::string& key) = 0; // the parent key must exist
    virtual bool write_text(registry_hive hive, const std::string& key, const std::string& value_name,
                            const std::string& value) = 0;
};

// The system's registry; one that holds no key and takes none where the system has no such thing.
std::unique_ptr<registry> system_registry();

// ---- the clipboard (clipboard.cpp)

enum class clipboard_result { done, no_memory, cannot_open, cannot_put };
clipboard_result set_clipboard_text(const std::string& text); // cannot_open where there is no clipboard

} // namespace platform
