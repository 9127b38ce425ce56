#include "make_help/page.h"

#include <array>
#include <sstream>
#include <stdexcept>

#include "core/frame/help_pages.h"
#include "make_help/html.h"

namespace kelvora::help {
namespace {

constexpr Words kHelp = {"Help for Kelvora FOOD", "Help bij Kelvora FOOD"};
constexpr Words kContents = {"Contents", "Inhoud"};
constexpr Words kSearch = {"Search", "Zoeken"};
constexpr Words kOtherLanguage = {"Nederlands", "English"};
constexpr Words kOtherCode = {"nl", "en"};
constexpr Words kPrevious = {"Previous", "Vorige"};
constexpr Words kNext = {"Next", "Volgende"};
constexpr Words kAllPages = {"All pages", "Alle pagina's"};

std::string Link(std::string_view page, std::string_view words, std::string_view more = {}) {
  std::string link = "<a href=\"";
  link.append(page).append(".html\"").append(more).append(">").append(words).append("</a>");
  return link;
}

std::string LineBetween(const std::string& text, std::string_view begin, std::string_view end,
                        std::size_t from) {
  const std::size_t start = text.find(begin, from);
  const std::size_t stop = text.find(end, start);
  if (start == text.npos || stop == text.npos) throw std::runtime_error("no " + std::string(begin));
  const std::size_t inside = text.find('>', start) + 1;
  return text.substr(inside, stop - inside);
}

std::string Head(const HelpLanguage& in, const Page& page) {
  std::string html = "<!DOCTYPE html>\n<html lang=\"";
  html.append(in.code).append("\">\n<head>\n<meta charset=\"utf-8\">\n<title>").append(page.title);
  if (page.name != kFirstHelpPage) html.append(" - ").append(in(kHelp));
  html +=
      "</title>\n"
      "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
      "<meta name=\"color-scheme\" content=\"light dark\">\n"
      "<link rel=\"stylesheet\" href=\"../style.css\">\n</head>\n";
  return html;
}

std::string Top(const HelpLanguage& in, const Page& page) {
  std::string html = "<header>\n<p class=\"name\">" + Link(kFirstHelpPage, in(kHelp)) + "</p>\n<p>";
  html += Link(kFirstHelpPage, in(kContents)) + " " + Link(kSearchPage, in(kSearch)) + " ";
  const std::string code(in(kOtherCode));
  html += Link("../" + code + "/" + page.name, in(kOtherLanguage),
               " lang=\"" + code + "\" hreflang=\"" + code + "\"");
  return html + "</p>\n</header>\n";
}

std::string Neighbours(const HelpLanguage& in, const std::vector<Page>& pages, std::size_t place) {
  std::string html = "<p class=\"neighbours\">\n";
  if (place > 0) {
    const Page& page = pages[place - 1];
    html += "<span>" + std::string(in(kPrevious)) + ": " +
            Link(page.name, page.title, " rel=\"prev\"") + "</span>\n";
  }
  if (place + 1 < pages.size()) {
    const Page& page = pages[place + 1];
    html += "<span class=\"next\">" + std::string(in(kNext)) + ": " +
            Link(page.name, page.title, " rel=\"next\"") + "</span>\n";
  }
  return html + "</p>\n";
}

std::string List(const HelpLanguage& in, const std::vector<Page>& pages, std::size_t place) {
  std::string html =
      "<nav class=\"pages\" aria-label=\"" + std::string(in(kAllPages)) + "\">\n<ul>\n";
  for (std::size_t i = 0; i < pages.size(); ++i) {
    const bool here = i == place;
    html += "<li>" + Link(pages[i].name, pages[i].title, here ? " aria-current=\"page\"" : "") +
            "</li>\n";
  }
  return html + "</ul>\n</nav>\n";
}

}  // namespace

std::string Filled(const std::string& body, const Fill& fill) {
  std::string html;
  std::istringstream lines(body);
  for (std::string line; std::getline(lines, line);) {
    if (!line.starts_with("{{")) {
      html += line + '\n';
      continue;
    }
    if (!line.ends_with("}}")) throw std::runtime_error("a place that doesn't end: " + line);
    const std::string inside = line.substr(2, line.size() - 4);
    const std::size_t blank = std::min(inside.find(' '), inside.size());
    html += fill(inside.substr(0, blank), inside.substr(std::min(blank + 1, inside.size())));
  }
  if (html.find("{{") != html.npos) throw std::runtime_error("a place within a line");
  return html;
}

Page PageOf(std::string name, std::string body) {
  if (!body.starts_with("<h1>")) throw std::runtime_error(name + ": begins with no <h1>");
  Page page{std::move(name),
            LineBetween(body, "<h1>", "</h1>", 0),
            LineBetween(body, "<p", "</p>", 0),
            {}};
  page.body = std::move(body);
  return page;
}

std::string FileOf(const HelpLanguage& in, const std::vector<Page>& pages, std::size_t place) {
  const Page& page = pages[place];
  return Head(in, page) + "<body>\n" + Top(in, page) + "<div class=\"sheet\">\n<main>\n" +
         page.body + Neighbours(in, pages, place) + "</main>\n" + List(in, pages, place) +
         "</div>\n</body>\n</html>\n";
}

}  // namespace kelvora::help
