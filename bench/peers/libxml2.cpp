#include "libxml2.h"

#include "walks.h"
#include "xml.h"

namespace bench {

namespace {

struct Elements {
    using In = const xmlNode *;
    using Out = xmlNode *;
    static constexpr const char *ipv4 = "openconfig-bgp-types:IPV4_UNICAST";
    static constexpr const char *ipv6 = "openconfig-bgp-types:IPV6_UNICAST";

    static In first(In parent) { return parent->children; }
    static In next(In /*parent*/, In node) { return node->next; }
    static const char *tag(In node) { return reinterpret_cast<const char *>(node->name); }
    static const char *value(In node)
    {
        return node->children != nullptr ? reinterpret_cast<const char *>(node->children->content) : "";
    }

    static Out leaf(Out parent, const char *tag, const char *value)
    {
        // Without a namespace of its own an element gets its parent's.
        return xmlNewTextChild(parent, nullptr, reinterpret_cast<const xmlChar *>(tag),
                               reinterpret_cast<const xmlChar *>(value));
    }
    static Out add(Out parent, const char *tag) { return leaf(parent, tag, nullptr); }
    static void identity(Out parent, const char *tag, const char *value) { leaf(parent, tag, value); }
    static Out entry(Out parent, const char *list, const char *key_tag, const char *key)
    {
        const Out child = add(parent, list);
        leaf(child, key_tag, key);
        return child;
    }
    static Out identity_entry(Out parent, const char *list, const char *key_tag, const char *key)
    {
        return entry(parent, list, key_tag, key);
    }

    using Place = Out;
    static Place place(Out /*parent*/, Out child) { return child; }
    static Out at(Place place) { return place; }
};

class Libxml2 : public Peer {
public:
    Libxml2(Way way, size_t neighbors) : way_(way), in_(xml_input(way, neighbors)) {}

    void work() override
    {
        const bool forward = way_ == Way::forward;
        Datatree bgp = {};
        bgp.tag = const_cast<char *>("bgp");
        bgp.present[0] = VMF_DT_TAG;
        out_ = xml_of(bgp, forward ? ZR_BGP_CFG_NS : OC_BGP_NS);
        const xmlNode *in = xmlDocGetRootElement(in_.get());
        xmlNode *out = xmlDocGetRootElement(out_.get());
        if (forward)
            ForwardWalk<Elements>({}).run(in, out);
        else
            BackWalk<Elements>({}).run(in, out);
    }
    size_t nodes_in() const override { return count_elements(xmlDocGetRootElement(in_.get())); }
    size_t nodes_out() const override { return count_elements(xmlDocGetRootElement(out_.get())); }
    std::string text() const override { return text_of(xmlDocGetRootElement(out_.get())); }

private:
    Way way_;
    XmlDocument in_;
    XmlDocument out_{nullptr, xmlFreeDoc};
};

}  // namespace

std::unique_ptr<Peer> make_libxml2(Way way, size_t neighbors) { return std::make_unique<Libxml2>(way, neighbors); }

}  // namespace bench
