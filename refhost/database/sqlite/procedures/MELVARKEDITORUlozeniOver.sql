-- Whether the save of this identity has come, for good: a closing call under way is waited for, and one that has not come
-- by now will be refused when it does. The session is about this save from here on, so that unsaved work on what it saved
-- is not taken up.
--
-- Refusals: ML056 it is no identity.
--
-- in: a_ULOZENI
-- out: a_ULOZENO
-- after failure: staging refused

select refuse_wrong_identity(:a_ULOZENI) as refusal;

update SAVE_IDENTITY set IDENTITA = :a_ULOZENI;

insert into ULOZENI (IDENTITA, UZIVATEL) values (:a_ULOZENI, current_user_name()) on conflict do nothing;

select exists (select 1 from ULOZENI where IDENTITA = :a_ULOZENI and DRUH is not null) as a_ULOZENO;
