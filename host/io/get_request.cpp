#include "get_request.h"

#include <algorithm>

#include "modules.h"
#include "nodes.h"
#include "reading.h"
#include "schema.h"

namespace io {

namespace {

class PathReader {
public:
    explicit PathReader(const std::string &path) : path_(path) {}

    Document read()
    {
        Document document;
        if (element_name() != "bgp") refuse("a path begins with /bgp");
        Datatree *node = &document.bgp.root();
        name_root(*node, platform::intern("bgp"), platform::intern(OC_BGP_NS));
        const model::OcNode *model = child_in_schema(&schema_root, "bgp");
        while (at_ < path_.size()) {
            const std::string name = element_name();
            model = child_in_schema(model, name);
            node = &add_child(*node, document.names.hold(name), platform::intern(OC_BGP_NS));
            while (at_ < path_.size() && path_[at_] == '[') read_key(document, *node, model);
        }
        return document;
    }

private:
    [[noreturn]] void refuse(const std::string &reason) const
    {
        throw InputError("--path: at character " + std::to_string(at_ + 1) + ": " + reason);
    }

    void expect(char wanted)
    {
        if (at_ >= path_.size() || path_[at_] != wanted) refuse(std::string("expected ") + wanted);
        at_++;
    }

    // A name up to one of the characters that end it; a prefix is taken off.
    std::string name_until(const char *ends)
    {
        const size_t end = std::min(path_.find_first_of(ends, at_), path_.size());
        std::string name = path_.substr(at_, end - at_);
        if (const size_t colon = name.find(':'); colon != std::string::npos) name.erase(0, colon + 1);
        if (name.empty()) refuse("a name is missing");
        at_ = end;
        return name;
    }

    std::string element_name()
    {
        expect('/');
        return name_until("/[");
    }

    std::string quoted()
    {
        if (at_ >= path_.size() || (path_[at_] != '\'' && path_[at_] != '"')) refuse("a key stands in quotes");
        const size_t end = path_.find(path_[at_], at_ + 1);
        if (end == std::string::npos) refuse("a quote is not closed");
        std::string text = path_.substr(at_ + 1, end - at_ - 1);
        at_ = end + 1;
        return text;
    }

    void read_key(Document &document, Datatree &entry, const model::OcNode *list)
    {
        expect('[');
        const std::string name = name_until("=]");
        expect('=');
        const std::string value = quoted();
        expect(']');
        Datatree &key = add_child(entry, document.names.hold(name), platform::intern(OC_BGP_NS));
        const model::OcNode *model = child_in_schema(list, name);
        if (model == nullptr || model->type != model::Type::identityref_) return give_value(key, value);
        give_identity(key, value);
    }

    void give_identity(Datatree &key, const std::string &value) const
    {
        const size_t colon = value.find(':');
        std::string_view ns = OC_BGP_TYPES_NS;
        if (colon != std::string::npos) ns = namespace_of_module(std::string_view(value).substr(0, colon));
        if (colon != std::string::npos && ns.empty() && value.starts_with("oc-bgp-types:")) ns = OC_BGP_TYPES_NS;
        if (ns.empty()) refuse("no module is called " + value.substr(0, colon));
        give_value(key, colon != std::string::npos ? value.substr(colon + 1) : value);
        platform::set_data_namespace(key, platform::intern(ns));
    }

    const std::string &path_;
    size_t at_ = 0;
};

bool has_child(const Datatree &node, std::string_view tag)
{
    return std::ranges::any_of(platform::children_of(node),
                               [&](const Datatree &child) { return platform::tag_of(child) == tag; });
}

void complete_below(Datatree &node, const model::OcNode *model)
{
    for (Datatree &child : platform::children_of(node))
        complete_below(child, child_in_schema(model, platform::tag_of(child)));
    if (model != nullptr && model->kind == model::Kind::list && !has_child(node, model->key))
        add_child(node, platform::intern(model->key), platform::intern(OC_BGP_NS));
}

}  // namespace

Document read_path(const std::string &path) { return PathReader(path).read(); }

void complete_keys(Document &document) { complete_below(document.bgp.root(), child_in_schema(&schema_root, "bgp")); }

}  // namespace io
