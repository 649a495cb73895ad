-- Checks a stock group of level 1 and returns its identifier, null when the level is left empty. a_NAZEV is what the clerk
-- typed, in any case of letters, a_SSP1ID what he picked, null for none.
--
-- Refusals: ML012 the document does not exist; ML030 no such group, ML031 several have the name, ML032 the name is not that
-- of the picked one.
--
-- in: a_DDOBIDMASTER integer
-- in: a_NAZEV
-- in: a_SSP1ID integer

select refuse_unknown_order(:a_DDOBIDMASTER) as refusal where :a_DDOBIDMASTER > 0;

delete from GROUP_SOUGHT;
insert into GROUP_SOUGHT (LEVEL, TYPED, ID) values (1, typed(:a_NAZEV), nullif(max(:a_SSP1ID, 0), 0));

-- include: group-choice
