-- Checks an order as the source of an order or order template and returns its identifier. a_CISLO is what
-- the clerk typed, a_DDOBID what he picked, null for none.
--
-- Refusals: ML012 the document does not exist; ML020 to ML023 what is named; ML027 the document itself, ML024 another
-- supplier, ML025 another warehouse.
--
-- in: a_DDOBIDMASTER integer
-- in: a_CISLO
-- in: a_DDOBID integer

select refuse_unknown_order(:a_DDOBIDMASTER) as refusal where :a_DDOBIDMASTER > 0;

delete from SOURCE_SOUGHT;
delete from SOURCE_CANDIDATE;

insert into SOURCE_SOUGHT (KIND, TYPED, ID) values ('Objednávka', typed(:a_CISLO), nullif(max(:a_DDOBID, 0), 0));

insert into SOURCE_CANDIDATE (ID, LABEL, NAMED, FAULT)
select v._ID, v.CISLO, v.CISLO = s.TYPED,
       order_fault_for_order(v._ID, v._SKLDID, v._DODVID, o.ID, o.SKLDID, o.DODVID)
from DODOBJEDNAVKA_NORMAL_V v
join SOURCE_SOUGHT s
left join DODOBJEDNAVKA o on o.ID = :a_DDOBIDMASTER
where v._ID = (select coalesce(ID, (select n.ID from DODOBJEDNAVKA n where n.VZOR = 0 and n.CISLO = TYPED))
               from SOURCE_SOUGHT);

-- include: source-choice
