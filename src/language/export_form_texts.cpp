#include "language/export_form_texts.h"

#include "language/built_in_texts.h"

namespace kelvora {
namespace {

using namespace export_form_text;

// Spellings such as "contant" and "to many" are meant. Column 0 of the list has one blank as its
// head.
constexpr std::array kRows = {
    TextRow{kTitle, "Export days to HTML, XML or DTA"_w,
            "Dagen exporteren naar HTML, XML of DTA"_w},
    TextRow{
        kInfo,
        "Select the export options you want to use. If you want to make your own selection you must select a start date, keep the SHIFT button pressed and select the end date. Press 'export' to start exporting."_w,
        "Kies hieronder hoe je wilt exporteren. Wil je zelf de dagen bepalen, klik dan op een begindatum, houd de SHIFT-toets ingedrukt en klik op de einddatum. Klik op 'Exporteren' om te beginnen."_w},
    TextRow{kFrameFormat, "Export to:"_w, "Exporteren naar:"_w},
    TextRow{kFrameSelection, "Select the days:"_w, "Kies de dagen:"_w},
    TextRow{kFrameOptions, "Options:"_w, "Opties:"_w},
    TextRow{kGraphs, "Export the graphs"_w, "Exporteer de grafieken"_w},
    TextRow{kDiary, "Export the diary"_w, "Exporteer het dagboek"_w},
    TextRow{kFormatHtml, ".HTML file for email"_w, ".HTML-bestand voor e-mail"_w},
    TextRow{kFormatDta, ".DTA file for internet websites"_w,
            ".DTA-bestand voor websites op internet"_w},
    TextRow{kExport, "Export"_w, "Exporteren"_w},
    TextRow{kCancel, "Cancel"_w, "Annuleren"_w},
    TextRow{kColumnNumber, " "_w, " "_w},
    TextRow{kReadError, "An error occurred while reading user files."_w,
            "Er is een fout opgetreden tijdens het lezen van de gebruikersbestanden."_w},
    TextRow{kProfilesDamaged, "The user profiles are probably damaged."_w,
            "Waarschijnlijk zijn de gebruikersprofielen beschadigd."_w},
    TextRow{kRemoveUsers,
            "Remove the users in the directory 'Users' and start the program again."_w,
            "Verwijder de gebruikers uit de map 'Users' en start het programma opnieuw."_w},
    TextRow{kCollectError, "An error occurred while collecting user information."_w,
            "Er is een fout opgetreden tijdens het verzamelen van de gebruikersgegevens."_w},
    TextRow{kContactMaker, "Please contant Brelux when this error occurs more than once."_w,
            "Neem contact op met Brelux als deze fout vaker dan één keer optreedt."_w},
    TextRow{kColumnPath, "Filenamefull"_w, "Volledige bestandsnaam"_w},
    TextRow{kColumnFile, "Filename"_w, "Bestandsnaam"_w},
    TextRow{kColumnDate, "Date"_w, "Datum"_w},
    TextRow{kColumnDay, "Day"_w, "Dag"_w},
    TextRow{kFrameDays, "Saved days:"_w, "Opgeslagen dagen:"_w},
    TextRow{kColumnWeight, "Weight"_w, "Gewicht"_w},
    Filler(TextTable::taal_export_form, 23),
    Filler(TextTable::taal_export_form, 24),
    Filler(TextTable::taal_export_form, 25),
    TextRow{kFolderPrompt, "Select a folder to save the file."_w,
            "Kies een map om het bestand in op te slaan."_w},
    TextRow{kNoDays, "You did not select any days!"_w,
            "Er zijn geen dagen geselecteerd om te exporteren."_w},
    TextRow{kSelectDays, "Select the days you want to export and try again."_w,
            "Selecteer de dagen die je wilt exporteren en probeer het opnieuw."_w},
    TextRow{kTooManyDays, "You have selected more than 92 days."_w,
            "Je hebt meer dan 92 dagen geselecteerd om te exporteren."_w},
    TextRow{kGraphLayout, "The layout of the graphs will not be displayed properly"_w,
            "De opmaak van de grafieken wordt dan niet goed weergegeven"_w},
    TextRow{kContinueSure, "Are you sure that you want to continue?"_w,
            "Weet je zeker dat je wilt doorgaan?"_w},
    TextRow{kTooManyDaysTitle, "Export contains to many days"_w, "De export bevat te veel dagen"_w},
    TextRow{kDaysFrom, "days from"_w, "dagen van"_w},
    TextRow{kTill, "till"_w, "tot en met"_w},
    TextRow{kGraphWeight, "weight"_w, "gewicht"_w},
    TextRow{kGraphKilocalories, "Kilocalories"_w, "Kilocalorieën"_w},
    TextRow{kGraphUnsaturatedFats, "Unsaturated fats"_w, "Onverzadigde vetten"_w},
    TextRow{kGraphSaturatedFats, "Saturated fats"_w, "Verzadigde vetten"_w},
    TextRow{kGraphProteins, "Proteins"_w, "Eiwitten"_w},
    TextRow{kGraphCarbohydrates, "Carbohydrates"_w, "Koolhydraten"_w},
    TextRow{kSavedAs, "The exported file has been saved as:"_w,
            "Het geëxporteerde bestand is opgeslagen als:"_w},
    TextRow{kSubmitDta, "You can submit this file to websites that support DTA files."_w,
            "Je kunt dit bestand inzenden bij websites die DTA-bestanden ondersteunen."_w},
    Filler(TextTable::taal_export_form, 43),
    Filler(TextTable::taal_export_form, 44),
    Filler(TextTable::taal_export_form, 45, "-EMPTY"),
    TextRow{kFormatXml, ".XML file for email"_w, ".XML-bestand voor e-mail"_w},
    TextRow{kKilogram, "Kg"_w, "Kg"_w},
    TextRow{kPounds, "Lbs"_w, "Lbs"_w},
    TextRow{kStones, "Stones"_w, "Stones"_w},
};
static_assert(RowsFill(kRows, 50, 6));

}  // namespace

std::span<const TextRow> ExportFormTextRows() {
  return kRows;
}

}  // namespace kelvora
