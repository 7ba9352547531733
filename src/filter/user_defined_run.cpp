#include "filter/user_defined_run.h"

#include "base/collation.h"
#include "database/recordset_columns.h"
#include "database/recordset_selection.h"
#include "database/sql/conditions.h"
#include "filter/document_counter.h"
#include "filter/filter_context.h"
#include "filter/fragments.h"
#include "filter/user_defined_match.h"
#include "platform/progress.h"
#include "session/error_report.h"

#include <algorithm>

namespace quelvarn {

namespace {

constexpr std::size_t STEP_WIDTH = 8192;
constexpr std::size_t AS_QUERIES = 2000; // So many documents are looked up one by one.

// Where the rows of the documents found stand.
struct HitPlace
{
    std::string_view table;
    std::string section; // The status scope of its readers.
};

struct Find
{
    RowKey row = 0; // 0: not found yet
    std::size_t hitPlace = 0;
};

// One run of the filter for user-defined properties: counts hits per document, then finds the documents' rows.
class UserDefinedRun
{
public:
    UserDefinedRun(FilterContext& context, LongWork& work)
        : context_(context), work_(work), type_(DOCUMENT_TYPES[static_cast<std::size_t>(context.tab)]),
          steps_(context.state()), ZusBenutzDef_(context.state().ZusBenutzDef),
          total_(context.table().count() * (steps_.count() + 1) + STEP_WIDTH)
    {
        // A special table's documents are looked up among the parts first.
        const bool special = type_.specialTable > 0;
        const std::string& WhereStatus = context.session.rights.WhereStatus;
        hitPlaces_.push_back({special ? DOCUMENT_TYPES[0].table : type_.table, WhereStatus});
        if (special)
            hitPlaces_.push_back({type_.table, ""});
    }

    // Nothing when it was given up.
    std::optional<Recordset> execute()
    {
        if (steps_.count() > 0 && (!countHits() || !searchDocuments()))
            return std::nullopt;
        return result();
    }

private:
    Connection& connection() const { return context_.session.database.connection; }

    bool further()
    {
        if (++read_ % STEP_WIDTH != 0)
            return true;
        return work_(std::min(read_, total_), total_);
    }

    // --- rows of properties ---
    bool countHits()
    {
        for (sql::ExpressionPointer& condition : steps_.preselection())
            if (!countHits(std::move(condition)))
                return false;
        return true;
    }

    bool countHits(sql::ExpressionPointer condition)
    {
        sql::Select select;
        select.table = type_.tableUserDef;
        select.columns = {"DokuBez", "RevBez", "Name", "Wert"};
        select.where = sql::all(std::move(condition), sql::statusScope(context_.session.rights.WhereStatus));
        for (const AdditionalValue& value : ZusBenutzDef_)
            select.where =
                sql::all(std::move(select.where), valueCondition(ADDITIONAL_COLUMNS[value.column], value.value));
        const auto rows = connection().engine().read(select, WithKey::No);
        while (rows->next()) {
            if (!further())
                return false;
            if (steps_.meets(rows->text(2), rows->text(3)))
                documents_.count(rows->text(0), rows->text(1));
        }
        return true;
    }

    // --- rows of documents ---
    // A document whose count passes the number of steps has reached it before.
    bool sought(DocumentCounter::Number number) const
    {
        return documents_.counter(number) >= steps_.count() && hits_[number].row == 0;
    }

    bool searchDocuments()
    {
        hits_.resize(documents_.count());
        for (std::size_t hitPlace = 0; hitPlace < hitPlaces_.size(); ++hitPlace) {
            std::vector<DocumentCounter::Number> open;
            for (DocumentCounter::Number number = 0; number < documents_.count(); ++number)
                if (sought(number))
                    open.push_back(number);
            if (open.empty())
                break;
            if (!(open.size() <= AS_QUERIES ? searchSingle(hitPlace, open) : searchInWhole(hitPlace)))
                return false;
        }
        return true;
    }

    // A fault has its box; OK goes on with the documents behind.
    bool searchSingle(std::size_t hitPlace, const std::vector<DocumentCounter::Number>& open)
    {
        bool goOn = true;
        singlePass_ = false;
        std::vector<sql::ExpressionPointer> documents;
        for (const DocumentCounter::Number number : open)
            documents.push_back(sql::all(sql::equal("DokuBez", documents_.DokuBez(number)),
                                         sql::equal("RevBez", documents_.RevBez(number))));
        for (sql::ExpressionPointer& some : sql::chunks(std::move(documents))) {
            guardedCopied([&] { goOn = takeRows(hitPlace, std::move(some)); });
            if (!goOn)
                return false;
        }
        return true;
    }

    bool searchInWhole(std::size_t hitPlace)
    {
        bool goOn = true;
        singlePass_ = found_.empty();
        guardedCopied([&] { goOn = takeRows(hitPlace, nullptr); });
        return goOn;
    }

    bool guardedCopied(const std::function<void()>& action)
    {
        return guarded(context_.ports().boxes, "SE-ModFiltern: Erstellen der Filtertabelle BenutzDef",
                       "Fehler beim Erstellen der Filtertabelle BenutzDef", action);
    }

    // Of several rows of one document the first counts.
    bool takeRows(std::size_t hitPlace, sql::ExpressionPointer condition)
    {
        sql::Select select;
        select.table = hitPlaces_[hitPlace].table;
        select.columns = {"DokuBez", "RevBez"};
        select.where = sql::all(std::move(condition), sql::statusScope(hitPlaces_[hitPlace].section));
        select.orderBy = {{"DokuBez", false}, {"RevBez", true}}; // As the index has it.
        const auto rows = connection().engine().read(select, WithKey::Yes);
        while (rows->next()) {
            if (!further())
                return false;
            const auto number = documents_.find(rows->text(0), rows->text(1));
            if (!number)
                continue;
            Find& find = hits_[*number];
            if (sought(*number))
                found_.push_back(*number);
            else if (find.row == 0 || find.hitPlace != hitPlace || find.row < rows->key())
                continue;
            find = {rows->key(), hitPlace};
        }
        return true;
    }

    // --- the result ---
    // By document, older revisions first. One pass over all brought the documents in order already, their revisions
    // the other way round.
    void arrange()
    {
        const auto label = [&](DocumentCounter::Number number) { return documents_.DokuBez(number); };
        if (!singlePass_) {
            std::ranges::sort(found_, [&](auto left, auto right) {
                const int comparison = compareText(label(left), label(right));
                return comparison != 0 ? comparison < 0
                                       : compareText(documents_.RevBez(left), documents_.RevBez(right)) < 0;
            });
            return;
        }
        for (auto first = found_.begin(); first != found_.end();) {
            const auto end = std::find_if(first + 1, found_.end(), [&](DocumentCounter::Number number) {
                return !equalText(label(number), label(*first));
            });
            std::reverse(first, end);
            first = end;
        }
    }

    std::optional<Recordset> result()
    {
        arrange();
        std::size_t own = 0;
        std::vector<RowKey> key;
        for (const DocumentCounter::Number number : found_) {
            key.push_back(hits_[number].row);
            own += hits_[number].hitPlace;
        }
        Recordset recordset;
        if (own != 0 && own != found_.size())
            return mixed();
        openRows(recordset, hitPlaces_[own == 0 ? 0 : 1].table, std::move(key), connection());
        return recordset;
    }

    // Rows of two tables make a recordset in memory.
    std::optional<Recordset> mixed()
    {
        std::array<Recordset, 2> sources;
        for (std::size_t hitPlace = 0; hitPlace < hitPlaces_.size(); ++hitPlace) {
            std::vector<RowKey> key;
            for (const DocumentCounter::Number number : found_)
                if (hits_[number].hitPlace == hitPlace)
                    key.push_back(hits_[number].row);
            openRows(sources[hitPlace], hitPlaces_[hitPlace].table, std::move(key), connection());
        }
        Recordset target;
        for (const ColumnInfo& field : sources[1].fields())
            if (hasField(sources[0], field.name))
                target.appendField(field.name, field.type);
        target.Open();
        for (const DocumentCounter::Number number : found_) {
            if (!further())
                return std::nullopt;
            Recordset& source = sources[hits_[number].hitPlace];
            if (!guardedCopied([&] { copy(source, target); }))
                target.CancelUpdate();
            source.MoveNext();
        }
        if (target.RecordCount() > 0)
            target.MoveFirst();
        return target;
    }

    static void copy(const Recordset& source, Recordset& target)
    {
        target.AddNew();
        for (const ColumnInfo& field : target.fields())
            target.setField(field.name, source.field(field.name));
        target.Update();
    }

    FilterContext& context_;
    LongWork& work_;
    const DocumentType& type_;
    UserDefinedSteps steps_;
    const std::vector<AdditionalValue>& ZusBenutzDef_;
    std::vector<HitPlace> hitPlaces_;
    DocumentCounter documents_;
    std::vector<Find> hits_;
    std::vector<DocumentCounter::Number> found_;
    bool singlePass_ = false;
    std::size_t read_ = 0;
    std::size_t total_; // About.
};

} // namespace

std::optional<Recordset> ApplyBenutzDefFilter(FilterContext& context)
{
    context.table(); // Opening it has a progress of its own.
    LongWork work(context.ports().progress, "Benutzerdefinierte Eigenschaften werden gefiltert ...");
    return UserDefinedRun(context, work).execute();
}

} // namespace quelvarn
