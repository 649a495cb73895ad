-- Makes the user's row: a user is known from the first thing that is kept for him.
insert into UZIVATEL (JMENO)
select current_user_name()
where not exists (select 1 from UZIVATEL where JMENO = current_user_name());
