#include "json_value.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <unordered_set>

#include "document.h"
#include "reading.h"

namespace io {

// ---- Paths ----------------------------------------------------------------------------------

static void append_path(std::string &text, const JsonPath &path)
{
    if (path.outer == nullptr) return;
    append_path(text, *path.outer);
    if (path.name.empty())
        text.append("[").append(std::to_string(path.entry)).append("]");
    else
        text.append("/").append(path.name);
}

[[noreturn]] static void refuse_at_path(const std::string &path, const std::string &file, const std::string &reason)
{
    throw InputError(file + ": " + (path.empty() ? "/" : path) + ": " + on_one_line(reason));
}

void refuse_at(const JsonPath &path, const std::string &file, const std::string &reason)
{
    std::string text;
    append_path(text, path);
    refuse_at_path(text, file, reason);
}

// ---- Names and texts ------------------------------------------------------------------------

namespace {

bool begins_identifier(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_'; }

bool continues_identifier(char c) { return begins_identifier(c) || (c >= '0' && c <= '9') || c == '-' || c == '.'; }

bool is_identifier(std::string_view text)
{
    return !text.empty() && begins_identifier(text.front()) &&
           std::all_of(text.begin(), text.end(), continues_identifier);
}

bool is_member_name(std::string_view text)
{
    if (text == "@") return true;
    if (text.starts_with('@')) text.remove_prefix(1);
    const size_t colon = text.find(':');
    if (colon == std::string_view::npos) return is_identifier(text);
    return is_identifier(text.substr(0, colon)) && is_identifier(text.substr(colon + 1));
}

// Below blank only tab and the two of a line end, and not the two that end Unicode's first plane.
bool fits_xml(std::string_view text)
{
    const auto is_control = [](char c) {
        return static_cast<unsigned char>(c) < ' ' && white_space.find(c) == std::string_view::npos;
    };
    return std::none_of(text.begin(), text.end(), is_control) && text.find("\uFFFE") == std::string_view::npos &&
           text.find("\uFFFF") == std::string_view::npos;
}

// ---- The parser's events --------------------------------------------------------------------

// Exceptions may go through the parser of JSON.
class Builder final : public nlohmann::json_sax<nlohmann::json> {
public:
    Builder(std::string_view text, const std::string &file, platform::NameTable &names)
        : text_(text), file_(file), names_(names)
    {
    }

    JsonValue take_root() { return std::move(root_); }

    bool null() override
    {
        add(JsonValue::Shape::null);
        return true;
    }

    bool boolean(bool value) override { return scalar(value ? "true" : "false"); }
    bool number_integer(int64_t value) override { return scalar(std::to_string(value)); }
    bool number_unsigned(uint64_t value) override { return scalar(std::to_string(value)); }
    bool number_float(double /*value*/, const std::string &text) override { return scalar(text); }
    bool binary(nlohmann::json::binary_t & /*value*/) override { return false; }  // JSON text has none

    bool string(std::string &value) override
    {
        if (fits_xml(value)) return scalar(std::move(value));
        open(JsonValue::Shape::scalar);
        refuse_here("a character that XML cannot carry");
    }

    bool start_object(size_t /*count*/) override
    {
        open(JsonValue::Shape::object);
        objects_++;
        return true;
    }

    bool key(std::string &text) override
    {
        if (text.size() > longest_name) refuse_here("a name of more than " + std::to_string(longest_name) + " bytes");
        if (!is_member_name(text)) refuse_here(nlohmann::json(text).dump() + " is no name of a member");
        if (objects_ > deepest_nesting) refuse_here("nested deeper than " + std::to_string(deepest_nesting));
        constexpr std::string_view own_module = "openconfig-bgp:";
        const bool is_annotation = text.starts_with('@');
        qualified_ = std::string_view(text).substr(is_annotation ? 1 : 0).starts_with(own_module);
        if (qualified_) text.erase(is_annotation ? 1 : 0, own_module.size());
        key_ = names_.hold(text);
        return true;
    }

    bool end_object() override
    {
        check_members(*open_.back());
        objects_--;
        open_.pop_back();
        return true;
    }

    bool start_array(size_t /*count*/) override
    {
        const bool in_array = !open_.empty() && open_.back()->shape == JsonValue::Shape::array;
        open(JsonValue::Shape::array);
        if (in_array) refuse_here("an array in an array");
        return true;
    }

    bool end_array() override
    {
        open_.pop_back();
        return true;
    }

    // The parser's text quotes what it read last, which may be a password: only what comes before is told.
    bool parse_error(size_t position, const std::string & /*last*/, const nlohmann::detail::exception &error) override
    {
        constexpr int number_too_large = 406;
        std::string reason = "a number that is too large";
        if (error.id != number_too_large) {
            const std::string_view what = error.what();
            const size_t begin = what.find("syntax error");
            reason =
                begin == std::string_view::npos ? "not JSON" : what.substr(begin, what.find("; last read: ") - begin);
        }
        // The parser counts what it has read, and at the end one more than there is.
        refuse_at(text_, std::min(position - std::min(position, size_t{1}), text_.size()), file_, reason);
    }

private:
    // Adds a value to what is open. It stays where it is until it is closed: nothing is added beside it before.
    JsonValue &add(JsonValue::Shape shape)
    {
        if (++values_ > most_nodes) refuse_here("more than " + std::to_string(most_nodes) + " values");
        JsonValue &value = open_.empty() ? root_ : open_.back()->items.emplace_back();
        value.shape = shape;
        if (open_.empty() || open_.back()->shape != JsonValue::Shape::object) return value;
        value.name = key_;
        value.qualified = qualified_;
        return value;
    }

    void open(JsonValue::Shape shape) { open_.push_back(&add(shape)); }

    bool scalar(std::string text)
    {
        if (text.size() > longest_value) {
            open(JsonValue::Shape::scalar);
            refuse_here("a value of more than " + std::to_string(longest_value) + " bytes");
        }
        add(JsonValue::Shape::scalar).text = std::move(text);
        return true;
    }

    void check_members(const JsonValue &object) const
    {
        std::unordered_set<std::string_view> seen;
        for (const JsonValue &member : object.items)
            if (!seen.insert(member.name).second)
                refuse_here("the member \"" + std::string(member.name) + "\" stands twice");
    }

    // At the value that was opened last.
    [[noreturn]] void refuse_here(const std::string &reason) const
    {
        std::string path;
        for (size_t depth = 1; depth < open_.size(); depth++) {
            const JsonValue &outer = *open_[depth - 1];
            path += outer.shape == JsonValue::Shape::array ? "[" + std::to_string(outer.items.size()) + "]"
                                                           : "/" + std::string(open_[depth]->name);
        }
        refuse_at_path(path, file_, reason);
    }

    std::string_view text_;
    const std::string &file_;
    platform::NameTable &names_;
    JsonValue root_;
    std::vector<JsonValue *> open_;  // from the root down
    size_t values_ = 0;
    size_t objects_ = 0;
    const char *key_ = nullptr;
    bool qualified_ = false;
};

}  // namespace

JsonValue parse_json(std::string_view text, const std::string &file, platform::NameTable &names)
{
    Builder builder(text, file, names);
    nlohmann::json::sax_parse(text, &builder);
    return builder.take_root();
}

}  // namespace io
