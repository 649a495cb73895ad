-- Checks a delivery note as the source of an order or order template and returns its identifier. a_CISLO is what the
-- clerk typed, a_DODKID what he picked, null for none.
--
-- Refusals: ML012 the document does not exist; ML020 to ML023 what is named; ML024 another supplier, ML025 another
-- warehouse.
--
-- in: a_DDOBIDMASTER integer
-- in: a_CISLO
-- in: a_DODKID integer

select refuse_unknown_order(:a_DDOBIDMASTER) as refusal where :a_DDOBIDMASTER > 0;

delete from SOURCE_SOUGHT;
delete from SOURCE_CANDIDATE;

insert into SOURCE_SOUGHT (KIND, TYPED, ID) values ('Dodací list', typed(:a_CISLO), nullif(max(:a_DODKID, 0), 0));

insert into SOURCE_CANDIDATE (ID, LABEL, NAMED, FAULT)
select n._ID, n.CISLO, n.CISLO = s.TYPED, note_fault_for_order(n._ID, n._DODVID, o.ID, o.SKLDID, o.DODVID)
from DODAK_NORMAL_V n
join SOURCE_SOUGHT s
left join DODOBJEDNAVKA o on o.ID = :a_DDOBIDMASTER
where n._ID in (select ID from SOURCE_SOUGHT
                union all
                select named.ID
                from SOURCE_SOUGHT t
                cross join DODAK named on named.CISLO = t.TYPED
                where t.ID is null);

-- include: source-choice
