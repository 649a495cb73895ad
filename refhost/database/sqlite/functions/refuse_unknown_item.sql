-- Refuses a row without a stock item (ML042) or with one that does not exist (ML043).
--
-- in: name

select case
           when :name is null then refuse('ML042')
           when not exists (select 1 from SKLADPOL where NAZEV = :name)
               then refuse('ML043', :name)
       end;
