#include "host/reports/report.h"

#include "console/commands/aligned_table.h"
#include "console/commands/command.h"
#include "console/commands/output_format.h"
#include "host/framework/host_application.h"
#include "host/framework/parameter_page.h"
#include "host/framework/wizard_session.h"

#include <memory>
#include <optional>

namespace Tamrivo
{

namespace
{

struct ReportOptions
{
    std::optional<std::string> Parameter;
    OutputFormat Format = OutputFormat::Table;
};

/// A report and, for programs, what it is about.
struct DescribedReport
{
    nlohmann::ordered_json About;
    Report Content;
};

/// Nobody answers while a report is made: what would be shown goes to standard error.
class SilentFrontEnd : public FrontEnd
{
public:
    explicit SilentFrontEnd(std::ostream& err) : m_err(err) {}

    void RunWizard(WizardSession& wizard) override { wizard.Cancel(); }
    void ShowMenu(UserControl&, Menu&) override {}
    MessageAnswer ShowMessage(const std::string& text, std::int32_t kind,
                              const std::string&) override
    {
        m_err << "tamrivo: " << text << '\n';
        return kind == MessageKind::ExclamationYesNo ? MessageAnswer::No : MessageAnswer::Ok;
    }
    void ShowReport(const FailureReport& report) override
    {
        // What isn't final goes on to the command, which says it.
        if (report.Final)
            ShowFailure(report.Error);
    }
    void ShowFailure(const ErrorRecord& error) override
    {
        m_err << "tamrivo: " << error.Description << '\n';
    }

private:
    std::ostream& m_err;
};

DescribedReport LociOfParameter(HostApplication& host, const std::string& name)
{
    ParameterPage page(host, host.Parameters().Open(name));
    Report report{"Analysis parameter " + page.Name(), {}, {}, host.Store().Dyes()};
    for (const auto& locus : page.Selector().SelectedLocusTags())
    {
        report.Keys.push_back(locus->LocusTag());
        report.Items.push_back(locus);
    }
    return {{{"Parameter", page.Name()}}, std::move(report)};
}

std::vector<DescribedReport> Reports(HostApplication& host, const ReportOptions& options)
{
    if (options.Parameter)
        return {LociOfParameter(host, *options.Parameter)};
    std::vector<DescribedReport> reports;
    for (const ContextKind& kind : host.ContextKinds())
        reports.push_back(
            {{{"Identifier", kind.Identifier}, {"Name", kind.Name}, {"Number", kind.Number}},
             ContextsOf(host, kind)});
    return reports;
}

void PrintForPeople(std::ostream& out, const std::vector<DescribedReport>& reports)
{
    for (const auto& [about, report] : reports)
    {
        out << report.Heading() << "\n\n";
        PrintAligned(out, TableOf(report, Audience::People));
    }
}

void PrintTables(std::ostream& out, const std::vector<DescribedReport>& reports)
{
    for (const auto& [about, report] : reports)
        PrintTsv(out, TableOf(report, Audience::Programs));
}

void PrintJson(std::ostream& out, const std::vector<DescribedReport>& reports)
{
    auto array = nlohmann::ordered_json::array();
    for (const auto& [about, report] : reports)
    {
        auto& object = array.emplace_back(about);
        auto& contexts = object["Contexts"] = LociJson(report.Items, report.OfStore);
        for (std::size_t at = 0; at < contexts.size(); ++at)
        {
            nlohmann::ordered_json context{{"Context", report.Keys[at]}};
            context.update(contexts[at]);
            contexts[at] = std::move(context);
        }
    }
    out << JsonText(array) << '\n';
}

void PrintPage(std::ostream& out, const std::vector<DescribedReport>& reports)
{
    std::vector<std::pair<std::string, Table>> tables;
    for (const auto& [about, report] : reports)
        tables.emplace_back(report.Heading(), TableOf(report, Audience::People));
    PrintHtmlPage(out, tables);
}

void PrintReport(Context& context, const ReportOptions& options)
{
    Store store(context.StoreLocation);
    SilentFrontEnd frontEnd(context.Err);
    HostApplication host(store, frontEnd);
    const std::vector<DescribedReport> reports = Reports(host, options);
    switch (options.Format)
    {
    case OutputFormat::Table: PrintForPeople(context.Out, reports); break;
    case OutputFormat::Tsv: PrintTables(context.Out, reports); break;
    case OutputFormat::Json: PrintJson(context.Out, reports); break;
    case OutputFormat::Html: PrintPage(context.Out, reports); break;
    }
}

} // namespace

void AddReportCommand(CLI::App& program, Context& context)
{
    CLI::App& command =
        AddCommand(program, context, "report", "Print the loci as reports get them.",
                   "  tamrivo report                           the contexts of every kind\n"
                   "  tamrivo report --parameter Casework      the loci of one analysis parameter\n"
                   "  tamrivo report --format html > loci.html a page to print or send\n"
                   "  tamrivo report --format json             for a program\n");
    const auto options = std::make_shared<ReportOptions>();
    command
        .add_option("--parameter", options->Parameter,
                    "Only the loci that this analysis parameter uses, in their order")
        ->type_name("NAME");
    AddFormatOption(
        command, options->Format,
        {OutputFormat::Table, OutputFormat::Tsv, OutputFormat::Json, OutputFormat::Html});
    command.callback([&context, options] { PrintReport(context, *options); });
}

} // namespace Tamrivo
