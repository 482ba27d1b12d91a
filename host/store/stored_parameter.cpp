#include "host/store/stored_parameter.h"

#include "host/store/locus_table.h"
#include "host/store/store.h"

namespace Tamrivo
{

std::int32_t StoredTagEntry::Load()
{
    try
    {
        const std::int32_t number = FindLocusNumber(m_store->SharedDatabase(), m_tagName);
        if (number == 0)
            return LoadResult::NoSuchTag;
        m_tagID = number;
        return LoadResult::Loaded;
    }
    catch (const Failure& failure)
    {
        const std::int32_t number = failure.Record().Number;
        const bool noConnection = number == StoreError::Unreachable || number == StoreError::Locked;
        return noConnection ? LoadResult::NoConnection : number;
    }
}

LocusTagEntries& StoredFragAnalysisParam::LocusTagList(std::int16_t number)
{
    if (number < 0 || number >= LocusTagListCount())
        throw Failure(ErrorNumber::InvalidArgument, "FragAnalysisParam",
                      "The analysis parameter has no locus tag list number " +
                          std::to_string(number));
    return *TagList;
}

} // namespace Tamrivo
