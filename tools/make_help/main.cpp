// Makes the pages of the help. Part of the build, not of the program.
//
//   make_help <folder of the prose> <page of the failure codes> <folder to make>
//
// The prose is help/<language>/<name>.html, one body a page. What the program knows by itself is
// filled in from its own tables; a fact that nothing is said of ends the build.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <map>
#include <stdexcept>

#include "core/frame/help_pages.h"
#include "make_help/facts.h"
#include "make_help/html.h"
#include "make_help/page.h"
#include "make_help/search_page.h"
#include "storage/record_file.h"

namespace {

using namespace kelvora;
using namespace kelvora::help;
namespace fs = std::filesystem;

struct Sources {
  fs::path prose;
  std::string codes;
  std::map<std::string, Words> pictures;  // what each shows
};

// The size that stands in the head of a PNG file, as attributes.
std::string SizeOfPicture(const std::string& path) {
  const std::string bytes = ReadFile(path);
  const auto number = [&](std::size_t at) {
    unsigned value = 0;
    for (std::size_t i = 0; i < 4; ++i) {
      value = value * 256 + static_cast<unsigned char>(bytes.at(at + i));
    }
    return std::to_string(value);
  };
  return "width=\"" + number(16) + "\" height=\"" + number(20) + "\"";
}

std::string Picture(const Sources& sources, const HelpLanguage& in, const std::string& name) {
  const auto words = sources.pictures.find(name);
  if (words == sources.pictures.end()) throw std::runtime_error("no words for the picture " + name);
  const std::string place = "pictures/" + std::string(in.code) + "/" + name + ".png";
  return "<figure><img src=\"../" + place + "\" alt=\"" + HtmlOf(in(words->second)) + "\" " +
         SizeOfPicture((sources.prose / place).string()) + "></figure>\n";
}

std::string ListOfPages(const std::vector<Page>& pages) {
  std::string html = "<dl class=\"list\">\n";
  for (const Page& page : pages) {
    if (page.name == kFirstHelpPage) continue;
    html += "<dt><a href=\"" + page.name + ".html\">" + page.title + "</a></dt>\n<dd>" + page.lead +
            "</dd>\n";
  }
  return html + "</dl>\n";
}

std::vector<Page> PagesOf(const Sources& sources, const HelpLanguage& in) {
  std::vector<Page> pages;
  for (const std::string_view name : HelpPages()) {
    const fs::path file = sources.prose / in.code / (std::string(name) + ".html");
    pages.push_back(PageOf(std::string(name), ReadFile(file.string())));
  }
  for (Page& page : pages) {
    page.body = Filled(page.body, [&](const std::string& what, const std::string& argument) {
      if (what == "keys") return KeysTables(in);
      if (what == "settings") return SettingsTables(in);
      if (what == "pages") return ListOfPages(pages);
      if (what == "picture") return Picture(sources, in, argument);
      if (what == "boxes") {
        return BoxesList(in) +
               CodesTables(in, sources.codes, (sources.prose / "words/codes.tsv").string());
      }
      throw std::runtime_error(page.name + ": nothing is called " + what);
    });
  }
  pages.push_back(SearchPage(in, pages));
  return pages;
}

void MakeLanguage(const Sources& sources, const HelpLanguage& in, const fs::path& target) {
  const std::vector<Page> pages = PagesOf(sources, in);
  fs::create_directories(target / in.code);
  for (std::size_t i = 0; i < pages.size(); ++i) {
    const fs::path file = target / in.code / (pages[i].name + ".html");
    WriteFileAnew(file.string(), FileOf(in, pages, i));
  }
}

}  // namespace

int main(int argc, char** argv) {
  try {
    if (argc != 4) throw std::runtime_error("three arguments are wanted");
    Sources sources{argv[1], argv[2], {}};
    const fs::path target = argv[3];
    const auto rows = ReadTsv((sources.prose / "words/pictures.tsv").string(), 3);
    for (const auto& row : rows) sources.pictures[row[0]] = {row[1], row[2]};
    for (const HelpLanguage& language : HelpLanguages()) MakeLanguage(sources, language, target);
    fs::copy(sources.prose / "pictures", target / "pictures", fs::copy_options::recursive);
    for (const char* name : {"style.css", "search.js"}) {
      fs::copy_file(sources.prose / name, target / name);
    }
    return 0;
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "make_help: %s\n", failure.what());
    return 1;
  }
}
