-- Checks a supplier whose deliveries are to fill an order or order template and returns his identifier: he has to have
-- delivered something in the months before the document's moment that the company's parameter POCETMESICUDODAVEK gives.
-- a_JMENO is what the clerk typed, in any case of letters, a_DODVID whom he picked, null for none.
--
-- Refusals: ML012 the document does not exist; ML020 to ML023 who is named; ML029 no deliveries; ML070 the parameter is
-- no number of months.
--
-- in: a_DDOBIDMASTER integer
-- in: a_JMENO
-- in: a_DODVID integer

select refuse_unknown_order(:a_DDOBIDMASTER) as refusal where :a_DDOBIDMASTER > 0;

delete from SOURCE_SOUGHT;
delete from SOURCE_CANDIDATE;

insert into SOURCE_SOUGHT (KIND, TYPED, ID) values ('Dodavatel', typed(:a_JMENO), nullif(max(:a_DODVID, 0), 0));

insert into SOURCE_CANDIDATE (ID, LABEL, NAMED, FAULT)
select v.ID, v.JMENO, lower(v.JMENO) = lower(s.TYPED),
       deliveries_fault(v.ID, :a_DDOBIDMASTER, null, null, null, V_GetGlobalParam('SKLAD', 'POCETMESICUDODAVEK'))
from DODAVATEL v
join SOURCE_SOUGHT s on v.ID = s.ID or (s.ID is null and lower(v.JMENO) = lower(s.TYPED));

-- include: source-choice
