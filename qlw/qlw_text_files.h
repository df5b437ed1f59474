#pragma once

// Text and binary files: all file work but the geometry stream. Names go through resolve_file_path first. Text files
// end their lines with CR LF on every platform; readers accept CR LF and LF alike.

#include "platform/platform.h"
#include "qlw/text_format.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// A buffered file on a stream. Closed when built; closed without a word when destroyed.
class cl_stdio_file {
public:
    enum class content { text, binary };

    cl_stdio_file() = default;
    cl_stdio_file(cl_stdio_file&&) = delete;
    cl_stdio_file& operator=(cl_stdio_file&&) = delete;
    virtual ~cl_stdio_file();

    bool is_open() const { return stream.is_open(); }
    const std::string& path() const { return file_path; } // as resolved by the last open

    // The next line without its line end. False at the end of the file, when nothing is left.
    // A carriage return counts as part of the line end only in a text file. Lines longer than longest_line are passed
    // over, each with a trace.
    bool read_line(std::string& line);

    std::size_t longest_line = std::size_t{64} << 20; // bytes; no line that anybody writes comes near

    // Writes the text; in a text file each line feed becomes CR LF. False if the file is not open or takes no data; a
    // failure may show only in a later call, as bytes are gathered first.
    bool write_string(std::string_view text);

    bool seek(std::uint64_t offset); // bytes from the start
    bool flush();
    bool close(); // false if bytes were lost, or if the file was not open

protected:
    // Opens without any report. path: complete.
    bool open_stream(const std::string& path, platform::open_mode mode, content kind);
    bool write_bytes(std::string_view bytes);

    platform::file stream;
    std::string file_path;
    content content_kind = content::text;

private:
    bool fill();
    bool read_any_line(std::string& line, bool& is_too_long);

    std::string pending;       // written, not yet in the file
    std::string read_ahead;    // read, not yet handed out
    std::size_t read_from = 0; // index of the next byte of read_ahead
};

// Whether the user is shown that a file cannot be opened; quiet where it may be absent.
enum class open_failure { shown, quiet };

class cl_input_file : public cl_stdio_file {
public:
    // Opens for reading; true if the file is open.
    // source_file, source_line: the caller's place, for the message; empty and 0 if it has none.
    bool open(const std::string& path, open_failure failure, const std::string& source_file, int source_line);
    bool open_binary(const std::string& path, open_failure failure, const std::string& source_file, int source_line);

    // The next field of a line of fields separated by ";", trimmed on both sides; cut from `line` with its separator. A
    // field that begins with a double quote may hold separators; inside, two quotes are one, quote r is a carriage
    // return, quote n a line feed, and quote ";" ends the field. Anything else behind a quote is traced and kept.
    static std::string read_field_csv(std::string& line);
};

// What cl_output_file::open does beside opening.
enum class output_file_mode {
    report_failure = 0, // shows a failure to the user
    quiet = 1,
    write_test = 3, // also writes a line, reads it back and empties the file, to prove that the disk takes data
};

class cl_output_file : public cl_stdio_file {
public:
    // Makes or empties a text file; true if it is open.
    bool open(const std::string& path, output_file_mode mode);
    // Opens a text file at its end, making it if missing.
    bool open_for_append(const std::string& path, open_failure failure);
    // Makes or empties a binary file.
    bool open_binary(const std::string& path, open_failure failure);

    // Writes a text formed as by printf. A format that does not fit its arguments writes nothing; a failed write is
    // not reported.
    template<class... Arguments>
    void write_format(std::string_view format, const Arguments&... arguments) {
        if (const auto text = format_text(format, arguments...))
            write_string(*text);
    }

    // Writes raw bytes, whatever kind of file it is. Always true: a failure is only traced, as a developer's error.
    bool write_data(const void* buffer, std::size_t size);

private:
    bool passes_write_test();
};
