#include "tools/page/write_page.h"

#include "tests/support/temporary_folder.h"
#include "tools/page/page_text.h"

#include <gtest/gtest.h>

namespace {

page_facts some_facts() {
    page_facts facts;
    facts.title = "</script><b>";
    facts.kind = "model";
    facts.program = "skp-view";
    return facts;
}

#define NEEDS_THE_PAGE()                                                                                               \
    if (page_text().empty())                                                                                           \
    GTEST_SKIP() << "the page was not bundled, for there is no node"

TEST(WritePage, a_title_cannot_end_the_element_that_holds_it) {
    NEEDS_THE_PAGE();
    const temporary_folder folder;
    const std::string glb = folder.write("a.glb", "1234");
    EXPECT_EQ(write_page(some_facts(), glb, folder / "a.html"), "");
    const std::string page = folder.read("a.html");
    EXPECT_NE(page.find("\"title\":\"\\u003c/script>\\u003cb>\""), std::string::npos);
    EXPECT_NE(page.find("\"glb_bytes\":4,"), std::string::npos);
    EXPECT_NE(page.find("default-src 'none'"), std::string::npos);
    EXPECT_EQ(page.find("<!--DATA-->"), std::string::npos);
    EXPECT_FALSE(folder.has("a.html.part"));
}

TEST(WritePage, an_old_page_stays_where_there_is_no_model) {
    NEEDS_THE_PAGE();
    const temporary_folder folder;
    const std::string page = folder.write("a.html", "old");
    EXPECT_EQ(write_page(some_facts(), folder / "none.glb", page), folder / "none.glb: cannot be read");
    EXPECT_EQ(folder.read("a.html"), "old");
}

TEST(WritePage, a_page_that_cannot_be_written_leaves_nothing) {
    NEEDS_THE_PAGE();
    const temporary_folder folder;
    const std::string glb = folder.write("a.glb", "1234");
    EXPECT_NE(write_page(some_facts(), glb, folder / "no/a.html"), "");
    folder.make_folder("b.html");
    EXPECT_EQ(write_page(some_facts(), glb, folder / "b.html"), folder / "b.html: cannot be written");
    EXPECT_FALSE(folder.has("b.html.part"));
}

TEST(WritePage, bytes_that_are_no_text_do_not_stop_it) {
    NEEDS_THE_PAGE();
    const temporary_folder folder;
    page_facts facts = some_facts();
    facts.title = "a\xff";
    EXPECT_EQ(write_page(facts, folder.write("a.glb", "1234"), folder / "a.html"), "");
    EXPECT_NE(folder.read("a.html").find("\"title\":\"a\xef\xbf\xbd\""), std::string::npos);
}

} // namespace
