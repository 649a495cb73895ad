-- Checks the stock groups of the three levels together, null for a level that is left empty.
--
-- Refusals: ML012 the document does not exist; ML033 no group at all; ML030 no such group; ML034 a group that does not
-- lie under the chosen one above it.
--
-- in: a_DDOBIDMASTER integer
-- in: a_SSP1ID integer
-- in: a_SSP2ID integer
-- in: a_SSP3ID integer

select refuse_unknown_order(:a_DDOBIDMASTER) as refusal where :a_DDOBIDMASTER > 0;

select refuse_groups(:a_SSP1ID, :a_SSP2ID, :a_SSP3ID) as refusal;
