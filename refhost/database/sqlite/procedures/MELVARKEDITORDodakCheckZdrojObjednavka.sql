-- Checks an order as the source of a delivery note and returns its identifier. a_CISLO is what the clerk typed, a_DDOBID
-- what he picked, null for none.
--
-- Refusals: ML010 the note does not exist; ML020 to ML023 what is named; ML024 another supplier, ML025 another warehouse,
-- ML026 nothing is left to deliver.
--
-- in: a_DODKIDMASTER integer
-- in: a_CISLO
-- in: a_DDOBID integer

select refuse_unknown_note(:a_DODKIDMASTER) as refusal where :a_DODKIDMASTER > 0;

delete from SOURCE_SOUGHT;
delete from SOURCE_CANDIDATE;

insert into SOURCE_SOUGHT (KIND, TYPED, ID) values ('Objednávka', typed(:a_CISLO), nullif(max(:a_DDOBID, 0), 0));

insert into SOURCE_CANDIDATE (ID, LABEL, NAMED, FAULT)
select o._ID, o.CISLO, o.CISLO = s.TYPED,
       order_fault_for_note(o._ID, o._SKLDID, o._DODVID, d.ID, d.DODVID, o._DODANO)
from DODOBJEDNAVKA_NORMAL_V o
join SOURCE_SOUGHT s
left join DODAK d on d.ID = :a_DODKIDMASTER
where o._ID = (select coalesce(ID, (select n.ID from DODOBJEDNAVKA n where n.VZOR = 0 and n.CISLO = TYPED))
               from SOURCE_SOUGHT);

-- include: source-choice
