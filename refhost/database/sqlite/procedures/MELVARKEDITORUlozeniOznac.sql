-- Gives the save that is under way its identity, 32 hexadecimal digits that no other save has; null takes it away. The
-- closing call writes it down.
--
-- Refusals: ML056 it is no identity.
--
-- in: a_ULOZENI
-- after failure: staging refused

select refuse_wrong_identity(:a_ULOZENI) as refusal where :a_ULOZENI is not null;

update SAVE_IDENTITY set IDENTITA = :a_ULOZENI;
