#include "output/report.h"

#include "output/xml.h"

namespace kelvora {
namespace {

// The routines of a page, and what its two kinds differ in besides: a DTA file has no head and no
// user, and without days no graphs.
struct PageKind {
  Text (*index_head)(const ReportContext&);
  Text (*index_row)(const ReportContext&, const Rec_DayFile&);
  Text (*index_end)(const ReportContext&);
  Text (*graph_open)(const ReportContext&);
  Text (*graph_bar)(const ReportContext&, const Rec_DayFile&, ReportGraph);
  Text (*graph_close)(const ReportContext&, std::string_view);
  Text (*day)(const ReportContext&, const Rec_DayFile&, DiaryChoice);
  Text (*footer)(const ReportContext&, const ReportDay&);
  bool has_head_and_user;
  bool has_empty_graphs;
};
constexpr PageKind kHtmlPage = {Export_HTML_Index_Head,
                                Export_HTML_Index_Row,
                                Export_HTML_Index_End,
                                Export_HTML_Graph_Open,
                                Export_HTML_Graph_Bar,
                                Export_HTML_Graph_Close,
                                Export_HTML_Day,
                                Export_HTML_Footer,
                                true,
                                true};
constexpr PageKind kDtaPage = {Export_DTA_Index_Head,
                               Export_DTA_Index_Row,
                               Export_DTA_Index_End,
                               Export_DTA_Graph_Open,
                               Export_DTA_Graph_Bar,
                               Export_DTA_Graph_Close,
                               Export_DTA_Day,
                               Export_DTA_Footer,
                               false,
                               false};

const PageKind& KindOf(ReportFormat format) {
  return format == ReportFormat::dta ? kDtaPage : kHtmlPage;
}

Text Joined(std::initializer_list<std::string_view> pieces) {
  std::size_t size = 0;
  for (const std::string_view piece : pieces) size += piece.size();
  Text whole;
  whole.reserve(size);
  for (const std::string_view piece : pieces) whole.append(piece);
  return whole;
}

}  // namespace

void Report::Add(const Rec_DayFile& day, std::string_view shown_date) {
  if (options_.format == ReportFormat::xml) {
    sections_.push_back(Export_XML_Day(context_, day, options_.diary));
  } else {
    const PageKind& kind = KindOf(options_.format);
    index_ += kind.index_row(context_, day);
    sections_.push_back(kind.day(context_, day, options_.diary));
    for (std::size_t i = 0; options_.graphs && i < bars_.size(); ++i) {
      bars_[i] += kind.graph_bar(context_, day, kReportGraphs[i]);
    }
  }
  // What a text has grown beyond its end is as much again where there are many.
  sections_.back().shrink_to_fit();
  if (start_date_.empty()) start_date_ = shown_date;
  end_date_ = shown_date;
  ++days_;
}

ReportSpan Report::Span(std::string_view user_name) const {
  return {user_name, days_, start_date_, end_date_};
}

std::vector<Text> Report::TakePieces(std::string_view user_name, const ReportDay& today) {
  const ReportSpan span = Span(user_name);
  const bool xml = options_.format == ReportFormat::xml;
  std::vector<Text> pieces = std::move(sections_);
  pieces.insert(pieces.begin(), xml ? FrontOfXml(span) : FrontOfPage(span));
  pieces.push_back(xml ? Export_XML_Footer(context_)
                       : KindOf(options_.format).footer(context_, today));
  return pieces;
}

Text Report::FrontOfXml(const ReportSpan& span) const {
  const Text user = days_ > 0 ? Export_XML_User(context_) : Text();
  return Export_XML_Header(context_, span.start_date, span.end_date, span.days, span.user_name) +
         user;
}

Text Report::FrontOfPage(const ReportSpan& span) const {
  const PageKind& kind = KindOf(options_.format);
  Text head, user;
  if (kind.has_head_and_user) {
    head = Export_HTML_Header(context_, span);
    user = Export_HTML_User(context_, span.days);
  }
  return Joined(
      {head, user, kind.index_head(context_), index_, kind.index_end(context_), Graphs()});
}

Text Report::Graphs() const {
  const PageKind& kind = KindOf(options_.format);
  Text graphs;
  if (!options_.graphs || (days_ == 0 && !kind.has_empty_graphs)) return graphs;
  for (std::size_t i = 0; i < bars_.size(); ++i) {
    graphs += kind.graph_open(context_);
    graphs += bars_[i];
    graphs += kind.graph_close(context_, TitleOf(kReportGraphs[i], context_.texts));
  }
  return graphs;
}

}  // namespace kelvora
