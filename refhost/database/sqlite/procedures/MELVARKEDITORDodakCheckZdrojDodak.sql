-- Checks another delivery note as the source of a delivery note and returns its identifier. a_DODAKCISLO is what the
-- clerk typed, a_DODKID what he picked, null for none.
--
-- Refusals: ML010 the note does not exist; ML020 to ML023 what is named; ML027 the note itself, ML024 another supplier.
--
-- in: a_DODKIDMASTER integer
-- in: a_DODAKCISLO
-- in: a_DODKID integer

select refuse_unknown_note(:a_DODKIDMASTER) as refusal where :a_DODKIDMASTER > 0;

delete from SOURCE_SOUGHT;
delete from SOURCE_CANDIDATE;

insert into SOURCE_SOUGHT (KIND, TYPED, ID) values ('Dodací list', typed(:a_DODAKCISLO), nullif(max(:a_DODKID, 0), 0));

insert into SOURCE_CANDIDATE (ID, LABEL, NAMED, FAULT)
select n._ID, n.CISLO, n.CISLO = s.TYPED, note_fault_for_note(n._ID, n._DODVID, d.ID, d.DODVID)
from DODAK_NORMAL_V n
join SOURCE_SOUGHT s
left join DODAK d on d.ID = :a_DODKIDMASTER
where n._ID in (select ID from SOURCE_SOUGHT
                union all
                select named.ID
                from SOURCE_SOUGHT t
                cross join DODAK named on named.CISLO = t.TYPED
                where t.ID is null);

-- include: source-choice
