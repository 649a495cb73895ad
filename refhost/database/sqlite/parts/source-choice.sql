-- Gives the one admissible record of SOURCE_CANDIDATE that SOURCE_SOUGHT names, or refuses: ML020 nothing is given, ML021
-- no such record, ML022 the text is not that of the picked record, ML023 several would do, else the record's own fault. Of
-- records that differ in the case of letters only, those written just as the clerk wrote are meant.
--
-- returns: ID

delete from SOURCE_CANDIDATE
where LABEL <> (select TYPED from SOURCE_SOUGHT)
  and exists (select 1 from SOURCE_CANDIDATE c join SOURCE_SOUGHT s on c.LABEL = s.TYPED);

select refuse('ML020') as refusal
from SOURCE_SOUGHT
where ID is null and TYPED is null;

select refuse('ML021', KIND, coalesce(TYPED, ID)) as refusal
from SOURCE_SOUGHT
where not exists (select 1 from SOURCE_CANDIDATE);

select refuse('ML022', s.TYPED, c.LABEL) as refusal
from SOURCE_SOUGHT s
join SOURCE_CANDIDATE c on c.ID = s.ID
where s.TYPED is not null and not c.NAMED;

-- What a fault's sentence has no place for is not shown.
select refuse(c.FAULT, s.KIND, c.LABEL, date_text(s.DAY)) as refusal
from SOURCE_SOUGHT s
join SOURCE_CANDIDATE c on c.ID = (select min(ID) from SOURCE_CANDIDATE)
where not exists (select 1 from SOURCE_CANDIDATE where FAULT is null);

select refuse('ML023', TYPED) as refusal
from SOURCE_SOUGHT
where (select count(*) from SOURCE_CANDIDATE where FAULT is null) > 1;

select ID from SOURCE_CANDIDATE where FAULT is null;
