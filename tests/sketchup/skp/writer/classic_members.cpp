#include "tests/sketchup/skp/writer/classic_members.h"

#include "tests/sketchup/skp/writer/classic_member_specs.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace {

using classic_table::class_spec;
using classic_table::class_specs;
using classic_table::member;

// What was seen of a body: of an object with a tag, or of one without that stands inside another.
struct body_facts {
    const class_spec* spec = nullptr;
    std::vector<member_facts> members;
    std::vector<std::unique_ptr<body_facts>> inside; // by member
};

class observer {
public:
    explicit observer(std::span<const std::uint8_t> file) : file_(file), specs_(classic_table::parse_table()) {}

    classic_facts observe() {
        slots_.resize(3);
        read_body("file");
        read_body("CSketchUpModel");
        if (at_ != file_.size())
            fail(std::to_string(file_.size() - at_) + " bytes behind the model");
        classic_facts facts;
        for (const auto& [name, body] : bodies_)
            tell(name, *body, facts);
        return facts;
    }

private:
    struct object {
        const std::string* class_name = nullptr; // of a class: its own
        bool is_class = false;
        std::set<std::string> names; // of the records in it
    };
    using names = std::set<std::string>;

    [[noreturn]] void fail(const std::string& reason) const {
        throw std::runtime_error("offset " + std::to_string(at_) + ", " + where_ + ": " + reason);
    }
    std::span<const std::uint8_t> take(std::size_t count) {
        if (count > file_.size() - at_)
            fail("ends early");
        at_ += count;
        return file_.subspan(at_ - count, count);
    }
    template<class T>
    T number() {
        T value;
        std::memcpy(&value, take(sizeof(T)).data(), sizeof(T));
        return value;
    }
    std::uint32_t u32() { return number<std::uint32_t>(); }
    // A count of things of at least that size.
    std::uint32_t count(std::size_t size) {
        const std::uint32_t n = u32();
        if (n > (file_.size() - at_) / size)
            fail("a count of " + std::to_string(n));
        return n;
    }
    static bool is_filled(std::span<const std::uint8_t> bytes) {
        return std::ranges::any_of(bytes, [](std::uint8_t byte) { return byte != 0; });
    }

    std::string text();
    std::uint32_t layout_of(const std::string& class_name) const {
        const auto found = layouts_.find(class_name);
        return found == layouts_.end() ? 0 : found->second;
    }

    std::size_t reference();
    std::size_t new_object(std::size_t class_slot);
    std::size_t checked_reference(const member& m);
    std::uint32_t list(std::uint32_t n, const member& m, names& found);
    names typed_value();
    names entries();
    names providers();
    names style_items(body_facts& body, std::size_t at);
    names version_map();
    bool number_is_filled(const member& m);
    bool is_there(const member& m, const std::vector<std::uint32_t>& values) const;

    body_facts& facts_inside(body_facts& body, std::size_t member, const std::string& class_name);
    const class_spec& spec_of(const std::string& name) const {
        const auto found = specs_.find(name);
        if (found == specs_.end())
            fail("no layout of " + name);
        return found->second;
    }
    std::unique_ptr<body_facts> empty_facts(const std::string& name) const {
        auto made = std::make_unique<body_facts>();
        made->spec = &spec_of(name);
        made->members.resize(made->spec->members.size());
        made->inside.resize(made->members.size());
        return made;
    }
    names read_body(const std::string& name);
    names read_members(body_facts& body);
    std::uint32_t read_member(body_facts& body, std::size_t at, names& found);
    std::optional<std::uint32_t> read_named(body_facts& body, std::size_t at, names& inner, names& found);
    std::uint32_t read_plain(body_facts& body, std::size_t at, names& found);
    static void note(member_facts& facts, bool filled, const names* found);
    static void tell(const std::string& path, const body_facts& body, classic_facts& facts);

    std::span<const std::uint8_t> file_;
    std::size_t at_ = 0;
    std::string where_ = "header";
    const class_specs specs_;
    std::map<std::string, std::uint32_t, std::less<>> layouts_;
    std::vector<object> slots_; // slot 0 is never used; 1 and 2 are those of the version map
    std::map<std::string, std::unique_ptr<body_facts>> bodies_;
    std::string dictionary_; // the name of the one being read
};

std::string observer::text() {
    if (number<std::uint8_t>() != 0xFF || number<std::uint16_t>() != 0xFFFE)
        fail("no wide string");
    std::uint32_t units = number<std::uint8_t>();
    if (units == 0xFF)
        units = number<std::uint16_t>();
    if (units == 0xFFFF)
        units = u32();
    std::string result;
    const auto bytes = take(std::size_t{units} * 2);
    for (std::size_t i = 0; i < bytes.size(); i += 2)
        result += bytes[i + 1] == 0 && bytes[i] < 0x80 ? static_cast<char>(bytes[i]) : '?';
    return result;
}

// The slot of the object behind a tag, 0 for the null tag.
std::size_t observer::reference() {
    const std::uint16_t tag = number<std::uint16_t>();
    constexpr std::uint16_t long_form = 0x7FFF;
    if (tag == 0xFFFF) {
        number<std::uint16_t>(); // the schema, which the version map overrules
        const auto name = take(number<std::uint16_t>());
        const std::string class_name(name.begin(), name.end());
        slots_.push_back({&spec_of(class_name).name, true, {}});
        return new_object(slots_.size() - 1);
    }
    const std::uint32_t word = tag == long_form ? u32() : (tag & 0x7FFFU) | ((tag & 0x8000U) << 16);
    const std::size_t slot = word & 0x7FFFFFFFU;
    const bool is_new = (word & 0x80000000U) != 0;
    if (tag == 0)
        return 0;
    if (slot < 3 || slot >= slots_.size() || slots_[slot].is_class != is_new)
        fail("slot " + std::to_string(slot));
    return is_new ? new_object(slot) : slot;
}

std::size_t observer::new_object(std::size_t class_slot) {
    const std::string& class_name = *slots_[class_slot].class_name;
    slots_.push_back({&class_name, false, {}});
    const std::size_t slot = slots_.size() - 1;
    const std::string before = where_;
    where_ = class_name;
    names found = read_body(class_name);
    slots_[slot].names = std::move(found);
    where_ = before;
    return slot;
}

std::size_t observer::checked_reference(const member& m) {
    const std::size_t slot = reference();
    if (slot != 0 && !m.classes.contains("any") && !m.classes.contains(*slots_[slot].class_name))
        fail(m.name + " is a " + *slots_[slot].class_name);
    return slot;
}

std::uint32_t observer::list(std::uint32_t n, const member& m, names& found) {
    for (std::uint32_t i = 0; i < n; ++i)
        if (const std::size_t slot = checked_reference(m); slot != 0)
            found.insert(slots_[slot].names.begin(), slots_[slot].names.end());
    return n;
}

observer::names observer::typed_value() {
    constexpr std::size_t sizes[] = {0, 0, 1, 2, 4, 4, 8, 1, 4, 4, 0, 0, 8, 8, 8, 8, 8, 24, 24, 24, 104};
    const std::size_t code = number<std::uint8_t>();
    if (code == 1 || code >= std::size(sizes))
        fail("value of code " + std::to_string(code));
    take(sizes[code]);
    if (code == 10)
        text();
    if (code == 11)
        for (std::uint32_t i = count(1); i > 0; --i)
            typed_value();
    return {};
}

observer::names observer::entries() {
    names keys;
    for (std::string key = text(); !key.empty(); key = text()) {
        typed_value();
        keys.insert(key);
    }
    return keys;
}

observer::names observer::providers() {
    names found;
    for (std::uint32_t i = count(2); i > 0; --i) {
        const std::string provider = text();
        found.insert(provider);
        for (const std::string& key : entries())
            found.insert(std::string(provider).append("/").append(key));
    }
    return found;
}

observer::names observer::style_items(body_facts& body, std::size_t at) {
    constexpr std::size_t sizes[] = {0, 1, 1, 2, 4, 4, 4, 8, 0, 24, 24, 24, 128, 0, 4};
    names found;
    const member watermarks{"list", 1, "watermarks", {"CWatermark"}, {}, 0, 0, {}};
    for (std::uint32_t i = count(4); i > 0; --i) {
        const std::uint32_t key = u32();
        std::ostringstream name;
        name << "item " << std::hex << key;
        if (key == 0x3F5) {
            read_members(facts_inside(body, at, "SketchyEdges"));
        } else if (key == 0x1389) {
            names unused;
            list(count(2), watermarks, unused);
        } else {
            u32();
            const std::uint32_t type = u32();
            if (type >= std::size(sizes) || type == 8 || type == 13)
                fail("style value of type " + std::to_string(type));
            take(sizes[type]);
            name << " of type " << std::dec << type;
        }
        found.insert(name.str());
    }
    return found;
}

observer::names observer::version_map() {
    constexpr std::size_t tag = 2 + 2 + 2 + 11; // of the class CVersionMap
    take(tag);
    names found;
    for (std::string name = text(); name != "End-Of-Version-Map"; name = text()) {
        layouts_[name] = u32();
        found.insert(name + " " + std::to_string(layouts_[name]));
    }
    u32();
    return found;
}

bool observer::number_is_filled(const member& m) {
    const std::map<std::string, std::size_t, std::less<>> sizes = {{"u8", 1},   {"bool", 1}, {"u32", 4}, {"u64", 8},
                                                                   {"rgba", 4}, {"f64", 8},  {"v3", 24}, {"guid", 16}};
    const auto found = sizes.find(m.type);
    if (found == sizes.end())
        throw std::logic_error("type " + m.type);
    return is_filled(take(found->second * m.times));
}

bool observer::is_there(const member& m, const std::vector<std::uint32_t>& values) const {
    const std::uint32_t layout = layout_of(m.gate);
    if (layout < m.from || layout > m.to)
        return false;
    if (!m.when)
        return true;
    const std::uint32_t asked = values[m.when->member] & m.when->mask;
    const bool met = m.when->value ? asked == *m.when->value : asked != 0;
    return met != m.when->inverted;
}

body_facts& observer::facts_inside(body_facts& body, std::size_t member, const std::string& class_name) {
    std::unique_ptr<body_facts>& inside = body.inside[member];
    if (!inside)
        inside = empty_facts(class_name);
    return *inside;
}

observer::names observer::read_body(const std::string& name) {
    std::unique_ptr<body_facts>& body = bodies_[name];
    if (!body)
        body = empty_facts(name);
    return read_members(*body);
}

// Reads one body and gives the names of what it is and holds: of a dictionary its own and those of its entries.
observer::names observer::read_members(body_facts& body) {
    std::vector<std::uint32_t> values(body.members.size(), 0);
    names found;
    for (std::size_t i = 0; i < body.members.size(); ++i)
        if (is_there(body.spec->members[i], values))
            values[i] = read_member(body, i, found);
    return found;
}

// Gives what a condition may ask: a number, a count, or whether there is something.
std::uint32_t observer::read_member(body_facts& body, std::size_t at, names& found) {
    const member& m = body.spec->members[at];
    if (m.type == "inline") {
        read_members(facts_inside(body, at, *m.classes.begin()));
        return 0;
    }
    names inner;
    const std::optional<std::uint32_t> named = read_named(body, at, inner, found);
    const std::uint32_t value = named ? *named : read_plain(body, at, found);
    note(body.members[at], value != 0, named ? &inner : nullptr);
    return value;
}

// A member that holds objects or named records; nothing if it is of another type. inner: the names in it.
std::optional<std::uint32_t> observer::read_named(body_facts& body, std::size_t at, names& inner, names& found) {
    const member& m = body.spec->members[at];
    if (m.type == "ref") {
        const std::size_t slot = checked_reference(m);
        if (slot != 0)
            inner = slots_[slot].names;
        return slot != 0 ? 1 : 0;
    }
    if (m.type == "list")
        return list(count(2), m, inner);
    if (m.type == "until_null") {
        std::uint32_t elements = 0;
        for (std::size_t slot = checked_reference(m); slot != 0; slot = checked_reference(m), ++elements)
            found.insert(slots_[slot].names.begin(), slots_[slot].names.end());
        return elements;
    }
    if (m.type == "providers")
        inner = providers();
    else if (m.type == "style_items")
        inner = style_items(body, at);
    else if (m.type == "map")
        inner = version_map();
    else if (m.type == "values")
        inner = entries();
    else
        return std::nullopt;
    if (m.type == "values")
        for (const std::string& key : inner)
            found.insert(dictionary_ + "/" + key);
    return inner.empty() ? 0 : 1;
}

// Any other member.
std::uint32_t observer::read_plain(body_facts& body, std::size_t at, names& found) {
    const member& m = body.spec->members[at];
    if (m.type == "str") {
        const std::string read = text();
        if (body.spec->name == "CAttributeNamed") {
            dictionary_ = read;
            found.insert(read);
        }
        return read.empty() ? 0 : 1;
    }
    if (m.type == "bytes")
        return take(u32()).empty() ? 0 : 1;
    if (m.type == "array")
        return take(count(m.times) * m.times).empty() ? 0 : 1;
    if (m.type == "pid") {
        const std::uint8_t mask = number<std::uint8_t>();
        for (unsigned bit = 0; bit < 8; ++bit)
            take((mask >> bit) & 1U);
        return mask;
    }
    if (m.type == "u32" && m.times == 1)
        return u32();
    return number_is_filled(m) ? 1 : 0;
}

void observer::note(member_facts& facts, bool filled, const names* found) {
    ++facts.times;
    facts.empty += filled ? 0 : 1;
    if (found == nullptr)
        return;
    if (!facts.names)
        facts.names = *found;
    else
        std::erase_if(*facts.names, [&](const std::string& name) { return !found->contains(name); });
}

void observer::tell(const std::string& path, const body_facts& body, classic_facts& facts) {
    for (std::size_t i = 0; i < body.members.size(); ++i) {
        const std::string name = path + "." + body.spec->members[i].name;
        if (body.members[i].times > 0)
            facts[name] = body.members[i];
        if (body.inside[i])
            tell(name, *body.inside[i], facts);
    }
}

} // namespace

classic_facts facts_of_classic(std::span<const std::uint8_t> file) {
    return observer(file).observe();
}

void add_facts(classic_facts& sum, const classic_facts& more) {
    for (const auto& [path, facts] : more) {
        const auto [known, is_new] = sum.try_emplace(path, facts);
        if (is_new)
            continue;
        known->second.files += facts.files;
        known->second.times += facts.times;
        known->second.empty += facts.empty;
        if (known->second.names && facts.names)
            std::erase_if(*known->second.names,
                          [&names = *facts.names](const std::string& name) { return !names.contains(name); });
    }
}
