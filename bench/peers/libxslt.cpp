#include "libxslt.h"

#include <libxslt/transform.h>
#include <libxslt/xsltInternals.h>

#include <cstdio>
#include <cstdlib>

#include "xml.h"

namespace bench {

namespace {

class Libxslt : public Peer {
public:
    Libxslt(Way way, size_t neighbors) : in_(xml_input(way, neighbors))
    {
        const char *file = way == Way::forward ? BENCH_STYLESHEETS "/forward.xsl" : BENCH_STYLESHEETS "/back.xsl";
        stylesheet_.reset(xsltParseStylesheetFile(reinterpret_cast<const xmlChar *>(file)));
        if (stylesheet_ != nullptr) return;
        std::fprintf(stderr, "no stylesheet: %s\n", file);
        std::exit(1);
    }

    void work() override { out_.reset(xsltApplyStylesheet(stylesheet_.get(), in_.get(), nullptr)); }
    size_t nodes_in() const override { return count_elements(xmlDocGetRootElement(in_.get())); }
    size_t nodes_out() const override { return count_elements(xmlDocGetRootElement(out_.get())); }
    std::string text() const override { return text_of(xmlDocGetRootElement(out_.get())); }

private:
    XmlDocument in_;
    std::unique_ptr<xsltStylesheet, decltype(&xsltFreeStylesheet)> stylesheet_{nullptr, xsltFreeStylesheet};
    XmlDocument out_{nullptr, xmlFreeDoc};
};

}  // namespace

std::unique_ptr<Peer> make_libxslt(Way way, size_t neighbors) { return std::make_unique<Libxslt>(way, neighbors); }

}  // namespace bench
